#include <chrono>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <orvanta/platform/standard/strings/BinaryTable.h>

namespace orvanta::platform::standard {
namespace {

using namespace std::string_literals;
using Pairs = std::map<std::string, std::string>;

std::string number(std::uint64_t value, std::size_t size) {
  std::string bytes(size, '\0');
  for (std::size_t i = size; i-- > 0; value >>= 8) {
    bytes[i] = static_cast<char>(value & 0xFF);
  }
  return bytes;
}

// A marker whose count stands in an integer of 2 to the power of `exponent` bytes.
std::string longMarker(unsigned kind, std::uint64_t count, unsigned exponent) {
  return number((kind << 4) | 0xF, 1) + number(0x10 | exponent, 1) +
         number(count, std::size_t{1} << exponent);
}

std::string marker(unsigned kind, std::uint64_t count) {
  return count < 0xF ? number((kind << 4) | count, 1) : longMarker(kind, count, 3);
}

std::string ascii(const std::string& text) {
  return marker(0x5, text.size()) + text;
}

std::string utf16(const std::vector<std::uint16_t>& units) {
  std::string bytes = marker(0x6, units.size());
  for (const std::uint16_t unit : units) {
    bytes += number(unit, 2);
  }
  return bytes;
}

/// A file in the making. Its top object is a dictionary of the pairs added, unless replaced.
struct File {
  std::size_t referenceSize = 2;
  std::size_t offsetSize = 3;
  std::vector<std::string> objects;
  std::vector<std::uint64_t> keys;
  std::vector<std::uint64_t> values;

  std::uint64_t object(const std::string& bytes) {
    objects.push_back(bytes);
    return objects.size() - 1;
  }

  File& pair(std::uint64_t key, std::uint64_t value) {
    keys.push_back(key);
    values.push_back(value);
    return *this;
  }

  File& pair(const std::string& key, const std::string& value) {
    const std::uint64_t keyObject = object(key);
    return pair(keyObject, object(value));
  }

  [[nodiscard]] std::string dictionary() const {
    std::string bytes = marker(0xD, keys.size());
    for (const auto* references : {&keys, &values}) {
      for (const std::uint64_t reference : *references) {
        bytes += number(reference, referenceSize);
      }
    }
    return bytes;
  }

  [[nodiscard]] std::string bytes() const { return bytes(dictionary()); }

  [[nodiscard]] std::string bytes(const std::string& top) const {
    std::string file = "bplist00";
    std::string offsets;
    std::vector<std::string> all = objects;
    all.push_back(top);
    for (const std::string& bytes : all) {
      offsets += number(file.size(), offsetSize);
      file += bytes;
    }
    const std::size_t offsetsStart = file.size();
    return file + offsets + number(0, 6) + number(offsetSize, 1) + number(referenceSize, 1) +
           number(all.size(), 8) + number(all.size() - 1, 8) + number(offsetsStart, 8);
  }
};

struct Reading {
  bool isTable = false;
  Pairs pairs;
  std::vector<std::string> problems;
  std::size_t heapBytes = 0;
};

Reading read(std::string_view bytes) {
  Reading reading;
  StringTableBuilder builder;
  reading.isTable = readBinaryTable(bytes, builder, [&](const TableProblem& problem) {
    EXPECT_EQ(problem.line + problem.column, 0U);
    reading.problems.push_back(problem.message);
  });
  const auto table = builder.build();
  for (const StringTable::Entry& entry : table->entries()) {
    reading.pairs.emplace(entry.key, entry.value);
  }
  reading.heapBytes = table->heapBytes();
  return reading;
}

TEST(BinaryTable, ReadsTexts) {
  struct Row {
    const char* name;
    std::string object;
    std::string text;
  };
  const std::string longText(70000, 'x');
  const Row rows[] = {
      {"nothing", ascii(""), ""},
      {"short", ascii("hello"), "hello"},
      {"zero byte", ascii("a\0b"s), "a\0b"s},
      {"longer than the marker counts", ascii(longText), longText},
      {"count of 1 byte", longMarker(0x5, 3, 0) + "abc", "abc"},
      {"count of 2 bytes", longMarker(0x5, 3, 1) + "abc", "abc"},
      {"count of 4 bytes", longMarker(0x5, 3, 2) + "abc", "abc"},
      {"count of 16 bytes", "\x5F\x14"s + number(0, 8) + number(3, 8) + "abc", "abc"},
      {"UTF-8 in place of ASCII", ascii("12345678\u00E9"), "12345678\u00E9"},
      {"stray bytes in place of ASCII", ascii("\xE9t\xC3"), "\uFFFDt\uFFFD"},
      {"UTF-16, nothing", utf16({}), ""},
      {"UTF-16, ASCII in blocks and a rest", utf16({'a', 'b', 'c', 'd', 'e', 0, 0x7F}),
       "abcde\0\x7F"s},
      {"UTF-16, every length", utf16({0x80, 0x7FF, 0x800, 0xFFFF, 0xD800, 0xDC00, 0xDBFF, 0xDFFF}),
       "\u0080\u07FF\u0800\uFFFF\U00010000\U0010FFFF"},
      {"UTF-16, lone surrogates",
       utf16({0xDC00, 'a', 0xD800, 'b', 0xD800, 0xD800, 0xDC00, 'c', 0xDBFF}),
       "\uFFFDa\uFFFDb\uFFFD\U00010000c\uFFFD"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    const Reading reading = read(File().pair(row.object, row.object).bytes());
    EXPECT_TRUE(reading.isTable);
    EXPECT_EQ(reading.pairs, Pairs({{row.text, row.text}}));
    EXPECT_TRUE(reading.problems.empty());
  }
}

TEST(BinaryTable, ReadsEverySizeOfNumber) {
  for (std::size_t size = 1; size <= 8; ++size) {
    SCOPED_TRACE(size);
    File file{size, size, {}, {}, {}};
    for (int i = 0; i < 20; ++i) {
      file.pair(ascii("k" + std::to_string(i % 10)), ascii(std::to_string(i)));
    }
    const Reading reading = read(file.bytes());
    EXPECT_EQ(reading.pairs.size(), 10U);
    EXPECT_EQ(reading.pairs.at("k3"), "13");
    EXPECT_TRUE(reading.problems.empty());
  }
  EXPECT_TRUE(read(File().bytes()).isTable);
}

TEST(BinaryTable, LosesOnlyThePairThatIsDamaged) {
  struct Row {
    const char* name;
    std::string key;
    std::string value;
  };
  const std::string sound = ascii("a");
  const Row rows[] = {
      {"integer", sound, "\x10\x01"},
      {"integer as key", "\x10\x01", sound},
      {"flag", sound, "\x09"},
      {"array", sound, "\xA1"s + '\0'},
      {"dictionary of itself", sound, "\xD1"s + number(3, 2) + number(3, 2)},
      {"unknown kind", sound, number(0x75, 1) + "hello"},
      {"text longer than the file", sound, longMarker(0x5, 1 << 20, 2)},
      {"text of almost endless length", sound, longMarker(0x6, ~std::uint64_t{0} / 2 + 2, 3)},
      {"count beyond 8 bytes", sound, "\x5F\x14"s + number(1, 8) + number(3, 8) + "abc"},
      {"count of 32 bytes", sound, "\x5F\x15"s + std::string(31, '\0') + "\x03" + "abc"},
      {"count that is no integer", sound, "\x5F\x51\x03" + "abc"s},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    const Reading reading = read(File()
                                     .pair(ascii("good"), ascii("G"))
                                     .pair(row.key, row.value)
                                     .pair(ascii("after"), ascii("A"))
                                     .bytes());
    EXPECT_TRUE(reading.isTable);
    EXPECT_EQ(reading.pairs, Pairs({{"good", "G"}, {"after", "A"}}));
    EXPECT_EQ(reading.problems.size(), 1U);
  }
  File dangling;
  dangling.pair(ascii("good"), ascii("G")).pair(0, 7).pair(0xFFFF, 0);
  EXPECT_EQ(read(dangling.bytes()).pairs, Pairs({{"good", "G"}}));
  EXPECT_EQ(read(dangling.bytes()).problems.size(), 2U);
}

TEST(BinaryTable, RefusesABrokenFrame) {
  struct Row {
    const char* name;
    std::string file;
  };
  const File file = File().pair(ascii("good"), ascii("G"));
  const std::string sound = file.bytes();
  const auto withTrailer = [&](std::size_t at, const std::string& bytes) {
    return std::string(sound).replace(sound.size() - 32 + at, bytes.size(), bytes);
  };
  const std::string huge(8, '\xFF');
  const Row rows[] = {
      {"nothing", ""},
      {"other version", std::string(sound).replace(6, 2, "15")},
      {"one byte too many", sound + '\0'},
      {"offsets of no bytes", withTrailer(6, number(0, 1))},
      {"offsets of 9 bytes", withTrailer(6, number(9, 1))},
      {"references of no bytes", withTrailer(7, number(0, 1))},
      {"references of 9 bytes", withTrailer(7, number(9, 1))},
      {"no objects", withTrailer(8, number(0, 8))},
      {"too many objects", withTrailer(8, number(4, 8))},
      {"very many objects", withTrailer(8, huge)},
      {"top object out of range", withTrailer(16, number(3, 8))},
      {"top object far out of range", withTrailer(16, huge)},
      {"text on top", withTrailer(16, number(0, 8))},
      {"offsets in the magic", withTrailer(24, number(7, 8))},
      {"offsets in the trailer", withTrailer(24, number(sound.size() - 31, 8))},
      {"offsets out of range", withTrailer(24, huge)},
      {"array on top", file.bytes("\xA1"s + number(0, 2))},
      {"dictionary that is cut off", file.bytes("\xD2"s + number(0, 6))},
      {"dictionary without count", file.bytes("\xDF"s)},
      {"dictionary of almost endless size", file.bytes(longMarker(0xD, ~std::uint64_t{0} / 2, 3))},
  };
  EXPECT_TRUE(read(sound).isTable);
  EXPECT_TRUE(looksLikeBinaryTable(sound));
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    const Reading reading = read(row.file);
    EXPECT_FALSE(reading.isTable);
    EXPECT_TRUE(reading.pairs.empty());
    EXPECT_EQ(reading.problems.size(), 1U);
  }
  for (std::size_t size = 0; size < sound.size(); ++size) {
    SCOPED_TRACE(size);
    EXPECT_FALSE(read(std::string_view(sound).substr(0, size)).isTable);
  }
}

TEST(BinaryTable, GivesSharedTextsNoMoreMemoryThanTheFileIsWorth) {
  File file;
  file.pair(ascii("good"), ascii("G"));
  const std::uint64_t huge = file.object(ascii(std::string(1 << 20, 'x')));
  for (int i = 0; i < 100000; ++i) {
    file.pair(0, huge);
  }
  const std::string bytes = file.bytes();
  const Reading reading = read(bytes);
  EXPECT_EQ(reading.pairs.size(), 1U);
  EXPECT_EQ(reading.problems.size(), 1U);
  EXPECT_LT(reading.heapBytes, 20 * bytes.size());

  File sound;
  const std::uint64_t shared = sound.object(ascii(std::string(200, 'x')));
  for (int i = 0; i < 2000; ++i) {
    sound.pair(sound.object(ascii("some.key." + std::to_string(i))), shared);
  }
  EXPECT_EQ(read(sound.bytes()).pairs.size(), 2000U);
}

// Decoding the text for every pair that is lost would take minutes.
TEST(BinaryTable, StaysLinearWhereNoPairIsSound) {
  File file{3, 4, {}, {}, {}};
  const std::uint64_t huge =
      file.object(utf16(std::vector<std::uint16_t>(std::size_t{1} << 20, 0x4E2D)));
  const std::uint64_t flag = file.object("\x09");
  for (int i = 0; i < 200000; ++i) {
    file.pair(huge, flag);
  }
  const std::string bytes = file.bytes();
  const auto start = std::chrono::steady_clock::now();
  EXPECT_EQ(read(bytes).problems.size(), 200000U);
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(20));
}

}  // namespace
}  // namespace orvanta::platform::standard
