#include <tests/support/BinaryList.h>

#include "../TableReading.h"

namespace orvanta::strings {
namespace {

using namespace std::string_literals;
using test::asciiObject;
using test::bigEndian;
using test::BinaryList;
using test::longMarker;
using test::utf16Object;

TEST(BinaryTable, ReadsTexts) {
  const auto row = [](const char* name, const std::string& object, const std::string& text) {
    return TableRow{name, BinaryList().pair(object, object).bytes(), text + "=" + text};
  };
  const std::string longText(70000, 'x');
  checkTables({
      row("nothing", asciiObject(""), ""),
      row("short", asciiObject("hello"), "hello"),
      row("zero byte", asciiObject("a\0b"s), "a\0b"s),
      row("longer than the marker counts", asciiObject(longText), longText),
      row("count of 1 byte", longMarker(0x5, 3, 0) + "abc", "abc"),
      row("count of 2 bytes", longMarker(0x5, 3, 1) + "abc", "abc"),
      row("count of 4 bytes", longMarker(0x5, 3, 2) + "abc", "abc"),
      row("count of 16 bytes", longMarker(0x5, 3, 4) + "abc", "abc"),
      row("UTF-8 in place of ASCII", asciiObject("12345678\u00E9"), "12345678\u00E9"),
      {"stray bytes in place of ASCII",
       BinaryList().pair(asciiObject("a"), asciiObject("\xE9t\xC3")).bytes(), "a=\uFFFDt\uFFFD",
       "0:0"},
      row("UTF-16, nothing", utf16Object(u""), ""),
      row("UTF-16, ASCII in blocks and a rest", utf16Object(u"abcde\0\x7F"s), "abcde\0\x7F"s),
      row("UTF-16, every length", utf16Object(u"\x80\u07FF\u0800\uFFFF\U00010000\U0010FFFF"),
          "\u0080\u07FF\u0800\uFFFF\U00010000\U0010FFFF"),
      {"UTF-16, lone surrogates",
       BinaryList()
           .pair(asciiObject("a"), utf16Object(u"\xDC00z\xD800y\xD800\xD800\xDC00x\xDBFF"))
           .bytes(),
       "a=\uFFFDz\uFFFDy\uFFFD\U00010000x\uFFFD", "0:0"},
  });
}

TEST(BinaryTable, ReadsEverySizeOfNumber) {
  for (std::size_t size = 1; size <= 8; ++size) {
    SCOPED_TRACE(size);
    BinaryList list{size, size};
    for (int i = 0; i < 20; ++i) {
      list.pair(asciiObject("k" + std::to_string(i % 4)), asciiObject(std::to_string(i)));
    }
    checkTables({{"the last one counts", list.bytes(), "k0=16|k1=17|k2=18|k3=19"}});
  }
}

TEST(BinaryTable, LosesOnlyThePairThatIsDamaged) {
  const auto row = [](const char* name, const std::string& key, const std::string& value) {
    BinaryList list;
    list.pair(asciiObject("good"), asciiObject("G")).pair(key, value);
    list.pair(asciiObject("after"), asciiObject("A"));
    return TableRow{name, list.bytes(), "after=A|good=G", "0:0"};
  };
  const std::string sound = asciiObject("a");
  BinaryList dangling;
  dangling.pair(asciiObject("good"), asciiObject("G")).pair(0, 7).pair(0xFFFF, 0);
  checkTables({
      row("integer", sound, "\x10\x01"),
      row("integer as key", "\x10\x01", sound),
      row("flag", sound, "\x09"),
      row("array", sound, "\xA1"s + '\0'),
      row("dictionary of itself", sound, "\xD1"s + bigEndian(3, 2) + bigEndian(3, 2)),
      row("unknown kind", sound, bigEndian(0x75, 1) + "hello"),
      row("text longer than the file", sound, longMarker(0x5, 1 << 20, 2)),
      row("text of almost endless length", sound, longMarker(0x6, ~std::uint64_t{0} / 2 + 2, 3)),
      row("count beyond 8 bytes", sound, "\x5F\x14"s + bigEndian(1, 8) + bigEndian(3, 8) + "abc"),
      row("count of 32 bytes", sound, longMarker(0x5, 3, 5) + "abc"),
      row("count that is no integer", sound, "\x5F\x51\x03" + "abc"s),
      {"references to nothing", dangling.bytes(), "good=G", "0:0 0:0"},
  });
}

TEST(BinaryTable, RefusesABrokenFrame) {
  const auto listOfSizes = [](std::size_t referenceSize, std::size_t offsetSize) {
    return BinaryList{referenceSize, offsetSize}.pair(asciiObject("good"), asciiObject("G"));
  };
  const BinaryList list = listOfSizes(2, 3);
  const std::string sound = list.bytes();
  const auto withTrailer = [&](std::size_t at, const std::string& bytes) {
    return std::string(sound).replace(sound.size() - 32 + at, bytes.size(), bytes);
  };
  const std::string huge(8, '\xFF');
  const auto row = [](const char* name, const std::string& file) {
    return TableRow{name, file, kNoTable, "0:0"};
  };
  checkTables({{"sound", sound, "good=G"},
               row("one byte too many", sound + '\0'),
               row("offsets of no bytes", withTrailer(6, bigEndian(0, 1))),
               row("offsets of 9 bytes", listOfSizes(2, 9).bytes()),
               row("references of no bytes", withTrailer(7, bigEndian(0, 1))),
               row("references of 9 bytes", listOfSizes(9, 3).bytes()),
               row("no objects", withTrailer(8, bigEndian(0, 8))),
               row("too many objects", withTrailer(8, bigEndian(4, 8))),
               row("very many objects", withTrailer(8, huge)),
               row("top object out of range", withTrailer(16, bigEndian(3, 8))),
               row("top object far out of range", withTrailer(16, huge)),
               row("text on top", withTrailer(16, bigEndian(0, 8))),
               row("offsets in the magic", withTrailer(24, bigEndian(7, 8))),
               row("offsets in the trailer", withTrailer(24, bigEndian(sound.size() - 31, 8))),
               row("offsets out of range", withTrailer(24, huge)),
               row("no key is a text", BinaryList().pair("\x10\x01", asciiObject("a")).bytes()),
               row("array on top", list.bytes("\xA1"s + bigEndian(0, 2))),
               row("dictionary that is cut off", list.bytes("\xD2"s + bigEndian(0, 6))),
               row("dictionary without count", list.bytes("\xDF"s)),
               row("dictionary of almost endless size",
                   list.bytes(longMarker(0xD, ~std::uint64_t{0} / 2, 3)))});
  EXPECT_EQ(readTable(std::string(sound).replace(6, 2, "15")).pairs, kNoTable) << "other version";
  for (std::size_t size = 1; size < sound.size(); ++size) {
    EXPECT_EQ(readTable(std::string_view(sound).substr(0, size)).pairs, kNoTable) << size;
  }
}

TEST(BinaryTable, NamesTheBeginningOfTheKeyThatIsLost) {
  for (const std::size_t size : {80U, 81U}) {
    const BinaryList list = BinaryList().pair(asciiObject(std::string(size, 'x')), "\x09");
    std::string message;
    static_cast<void>(readStringTable(
        list.bytes(), [&](const TableProblem& problem) { message = problem.message; }));
    EXPECT_NE(message.find("\"" + std::string(80, 'x') + (size > 80 ? "...\"" : "\"")),
              std::string::npos);
  }
}

TEST(BinaryTable, GivesSharedTextsNoMoreMemoryThanTheFileIsWorth) {
  BinaryList list;
  list.pair(asciiObject("good"), asciiObject("G"));
  const std::uint64_t huge = list.object(asciiObject(std::string(1 << 20, 'x')));
  for (int i = 0; i < 100000; ++i) {
    list.pair(0, huge);
  }
  const std::string bytes = list.bytes();
  const TableReading reading = readTable(bytes);
  EXPECT_EQ(reading.table->size(), 1U);
  EXPECT_EQ(reading.places, "0:0");
  EXPECT_LT(reading.table->heapBytes(), 20 * bytes.size());

  BinaryList sound;
  const std::uint64_t shared = sound.object(asciiObject(std::string(200, 'x')));
  for (int i = 0; i < 2000; ++i) {
    sound.pair(sound.object(asciiObject("some.key." + std::to_string(i))), shared);
  }
  EXPECT_EQ(readTable(sound.bytes()).table->size(), 2000U);
}

}  // namespace
}  // namespace orvanta::strings
