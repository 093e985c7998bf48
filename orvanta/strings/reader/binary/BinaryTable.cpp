#include <optional>
#include <string>
#include <utility>

#include <orvanta/strings/reader/binary/BinaryObjects.h>
#include <orvanta/strings/reader/binary/BinaryTable.h>
#include <orvanta/strings/reader/binary/BinaryText.h>

namespace orvanta::strings {

namespace {

constexpr std::string_view kMagic = "bplist00";

// A table may take this multiple of the file's size, plus a constant. Sound files, also those in
// which many keys share a text, need far less.
constexpr std::size_t kLargestGrowth = 16;
constexpr std::size_t kAlwaysGranted = std::size_t{64} << 10;
// The memory of an entry besides its characters.
constexpr std::size_t kEntryOverhead = 32;

constexpr std::size_t kLongestQuote = 80;

class BinaryTableReader {
 public:
  BinaryTableReader(std::string_view file, const BinaryObjects& objects, StringTableBuilder& table,
                    const ProblemCollector& problems, const StatementCollector& statements)
      : objects_(objects),
        table_(table),
        problems_(problems),
        statements_(statements),
        left_(kAlwaysGranted + kLargestGrowth * file.size()) {}

  // False when the dictionary has pairs, but no key is a text.
  bool read(const BinaryObject& dictionary) {
    const std::size_t count = objects_.pairCount(dictionary);
    std::size_t texts = 0;
    for (std::size_t index = 0; index < count; ++index) {
      const auto key = objects_.at(objects_.referenceAt(dictionary, index));
      const auto value = objects_.at(objects_.referenceAt(dictionary, count + index));
      texts += isText(key) ? 1 : 0;
      if (!isText(key)) {
        report("key " + std::to_string(index + 1) + " of the dictionary is no text");
      } else if (!isText(value)) {
        report("the value of \"" + quoted(*key) + "\" is no text");
      } else if (!add(*key, *value)) {
        report("the table grows too large for its file, " + std::to_string(count - index) +
               " pairs are left out");
        break;
      }
    }
    return texts > 0 || count == 0;
  }

 private:
  static bool isText(const std::optional<BinaryObject>& object) noexcept {
    return object && object->isText();
  }

  bool charge(std::size_t bytes) noexcept {
    const bool granted = bytes <= left_;
    left_ -= granted ? bytes : left_;
    return granted;
  }

  // Charges before decoding, so that no time is spent on refused entries.
  bool add(const BinaryObject& key, const BinaryObject& value) {
    const std::size_t least = BinaryText::leastSize(key) + BinaryText::leastSize(value);
    if (!charge(kEntryOverhead + least)) {
      return false;
    }
    const BinaryText keyText(key);
    const BinaryText valueText(value);
    char* const begin = table_.beginEntry(keyText.room() + valueText.room());
    if (begin == nullptr) {
      return false;
    }
    Replacements replacements;
    char* const keyEnd = keyText.decode(begin, replacements);
    char* const valueEnd = valueText.decode(keyEnd, replacements);
    if (!charge(static_cast<std::size_t>(valueEnd - begin) - least)) {
      return false;
    }
    table_.commitEntry(static_cast<std::size_t>(keyEnd - begin),
                       static_cast<std::size_t>(valueEnd - keyEnd));
    if (statements_) {
      statements_({0, 0, std::string(begin, keyEnd)});
    }
    if (replacements.count > 0) {
      report("damaged characters under \"" + quoted(key) + "\"; U+FFFD stands for them",
             TableProblem::Kind::characters);
    }
    return true;
  }

  // The beginning of a key, for a message.
  static std::string quoted(BinaryObject key) {
    const bool whole = key.payload.size() <= kLongestQuote;
    key.payload = key.payload.substr(0, kLongestQuote);
    return BinaryText(key).str() + (whole ? "" : "...");
  }

  void report(std::string message, TableProblem::Kind kind = TableProblem::Kind::statement) const {
    if (problems_) {
      problems_({0, 0, std::move(message), kind});
    }
  }

  const BinaryObjects& objects_;
  StringTableBuilder& table_;
  const ProblemCollector& problems_;
  const StatementCollector& statements_;
  std::size_t left_;
};

}  // namespace

bool looksLikeBinaryTable(std::string_view bytes) noexcept {
  return bytes.starts_with(kMagic);
}

bool readBinaryTable(std::string_view bytes, StringTableBuilder& table,
                     const ProblemCollector& problems, const StatementCollector& statements) {
  const auto refuse = [&](const char* why) {
    if (problems) {
      problems({0, 0, why, TableProblem::Kind::statement});
    }
    return false;
  };
  if (!looksLikeBinaryTable(bytes)) {
    return refuse("no binary property list");
  }
  const std::optional<BinaryObjects> objects = BinaryObjects::open(bytes);
  if (!objects) {
    return refuse("a binary property list that is cut off or damaged at its end");
  }
  const std::optional<BinaryObject> top = objects->at(objects->topObject());
  if (!top || top->kind != BinaryKind::kDictionary) {
    return refuse("a binary property list without a dictionary at its top");
  }
  return BinaryTableReader(bytes, *objects, table, problems, statements).read(*top);
}

}  // namespace orvanta::strings
