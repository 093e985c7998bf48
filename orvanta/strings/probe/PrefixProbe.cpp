// Why an answer of "no" is certain.
//
// The prefix consists of letters, digits, "-", "_" and "." alone. Suppose that the table read from
// the file has a key that begins with it, and look at where the key's first characters come from.
//
// 1. Each came from a character of the file that stood for itself, and they stood side by side.
//    Then the file holds the prefix as such. Every encoding that the reader knows writes it as its
//    ASCII bytes with 0, 1 or 3 zero bytes between any two (UTF-8; UTF-16 and UTF-32 in either
//    order; binary property lists: UTF-8 and UTF-16). The probe looks for all three, at any
//    position. No character that is not ASCII decodes to an ASCII one: what is malformed becomes
//    U+FFFD.
// 2. One of them was written as an escape, or something that stands for no character came between.
//    - In the text form only a backslash and what follows it does so. The escapes for control
//      characters and quotation marks give characters that the prefix does not hold, and so does
//      an unknown escape, which gives the character behind the backslash, unless that one is in the
//      prefix. What is left: "\U", "\u", octal and other digits, "\x", a character of the prefix
//      that is no known escape, and a line break, which a reader might swallow. The probe says
//      "yes" to each of them.
//    - In XML a numeric reference does so; the five named ones give other characters, and any other
//      reference costs its pair. Comments, processing instructions and CDATA sections may come
//      between: then a "<" stands right behind a character of the prefix, and it does not begin a
//      closing tag, which would end the key. The probe says "yes" to both.
//    - Binary property lists have neither; their texts stand in one piece.
//
// Which form and encoding a file has the probe leaves to the reader, except where the beginning
// settles it: "bplist00"; a byte-order mark of UTF-16; a first chunk without any zero byte and
// without such a mark, which the reader takes for UTF-8; a first character that is not "<", with
// which no XML begins. Elsewhere the rules of all forms and encodings are applied together: the
// characters around a backslash, "&" or "<" are then the nearest bytes that are not zero, at most
// three bytes of zero away. That finds them in all five encodings, and finds others too, which is
// harmless.
//
// A chunk of the file is looked at together with the end of the one before, longer than any of
// these, so that nothing is missed where two chunks meet.
#include <algorithm>
#include <array>
#include <bitset>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>
#include <optional>
#include <vector>

#include <orvanta/strings/probe/PrefixProbe.h>
#include <orvanta/strings/probe/SampledSearch.h>
#include <orvanta/text/Memory.h>

namespace orvanta::strings {

namespace {

using namespace std::string_view_literals;

constexpr std::size_t kShortestPrefix = SampledSearch::kShortestPattern;
constexpr std::size_t kLongestPrefix = 64;
// Large enough for few calls of the system, small enough to stay in a core's own cache between
// being read and being looked at.
constexpr std::size_t kChunk = std::size_t{256} * 1024;
constexpr std::size_t kWidestUnit = 4;
constexpr std::size_t kOverlap = kWidestUnit * kLongestPrefix;

enum class Form { binary, utf8, utf16Little, utf16Big, any };

struct FileForm {
  Form form = Form::any;
  bool mayBeXml = false;

  friend bool operator==(const FileForm&, const FileForm&) = default;
};

bool firstCharacterIs(char wanted, std::string_view start) noexcept {
  // White space, zero bytes, and the bytes of byte-order marks.
  const auto isPassedOver = [](char character) {
    const auto byte = static_cast<unsigned char>(character);
    return byte <= 0x20 || byte == 0xEF || byte == 0xBB || byte == 0xBF || byte >= 0xFE;
  };
  const auto first = std::find_if_not(start.begin(), start.end(), isPassedOver);
  return first == start.end() || *first == wanted;
}

FileForm formOf(std::string_view start) noexcept {
  if (start.starts_with("bplist00"sv)) {
    return {Form::binary, false};
  }
  const bool mayBeXml = firstCharacterIs('<', start);
  const bool isLittle = start.starts_with("\xFF\xFE"sv);
  const bool isBig = start.starts_with("\xFE\xFF"sv);
  if (!isLittle && !isBig) {
    return {start.find('\0') == std::string_view::npos ? Form::utf8 : Form::any, mayBeXml};
  }
  if (mayBeXml || start.starts_with("\xFF\xFE\0\0"sv)) {
    return {Form::any, mayBeXml};
  }
  return {isLittle ? Form::utf16Little : Form::utf16Big, false};
}

bool canBeProbedFor(char character) noexcept {
  return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z') ||
         (character >= '0' && character <= '9') ||
         "-_."sv.find(character) != std::string_view::npos;
}

// The prefix with `zeros` zero bytes between any two characters.
std::string spreadOut(std::string_view prefix, std::size_t zeros) {
  std::string bytes;
  for (const char character : prefix) {
    if (!bytes.empty()) {
      bytes.append(zeros, '\0');
    }
    bytes.push_back(character);
  }
  return bytes;
}

SampledSearch searchFor(std::string_view prefix, Form form) {
  switch (form) {
    case Form::utf8:
      return SampledSearch({spreadOut(prefix, 0)});
    case Form::utf16Little:
    case Form::utf16Big:
      return SampledSearch({spreadOut(prefix, 1)});
    case Form::binary:
    case Form::any:
      break;
  }
  return SampledSearch({spreadOut(prefix, 0), spreadOut(prefix, 1), spreadOut(prefix, 3)});
}

// Calls `isFound` with the position of each `byte` in `text` until it says yes.
template <typename Predicate>
bool anyOccurrence(std::string_view text, char byte, Predicate isFound) {
  std::size_t at = text.find(byte);
  while (at != std::string_view::npos) {
    if (isFound(at)) {
      return true;
    }
    at = text.find(byte, at + 1);
  }
  return false;
}

char characterBehind(std::string_view text, std::size_t at) noexcept {
  const std::string_view rest = text.substr(at + 1, kWidestUnit);
  const std::size_t found = rest.find_first_not_of('\0');
  return found == std::string_view::npos ? '\0' : rest[found];
}

char characterBefore(std::string_view text, std::size_t at) noexcept {
  const std::string_view rest =
      text.substr(at - std::min(at, kWidestUnit), std::min(at, kWidestUnit));
  const std::size_t found = rest.find_last_not_of('\0');
  return found == std::string_view::npos ? '\0' : rest[found];
}

// One character of UTF-16 as it stands in the file.
using Unit = std::uint16_t;
constexpr std::size_t kUnitSize = sizeof(Unit);

Unit unitOf(char character, Form form) noexcept {
  const std::array<char, kUnitSize> little = {character, '\0'};
  const std::array<char, kUnitSize> big = {'\0', character};
  Unit unit = 0;
  std::memcpy(&unit, form == Form::utf16Little ? little.data() : big.data(), kUnitSize);
  return unit;
}

Unit unitAt(std::string_view units, std::size_t index) noexcept {
  Unit unit = 0;
  std::memcpy(&unit, units.data() + index * kUnitSize, kUnitSize);
  return unit;
}

// Written so that compilers turn it into vector instructions.
bool holdsUnit(std::string_view units, Unit wanted) noexcept {
  Unit found = 0;
  for (std::size_t index = 0; index < units.size() / kUnitSize; ++index) {
    found = static_cast<Unit>(found | (unitAt(units, index) == wanted ? 0xFFFFU : 0U));
  }
  return found != 0;
}

class CharacterSet {
 public:
  void add(std::string_view characters) noexcept {
    for (const char character : characters) {
      set_.set(static_cast<unsigned char>(character));
    }
  }
  void remove(std::string_view characters) noexcept {
    for (const char character : characters) {
      set_.reset(static_cast<unsigned char>(character));
    }
  }
  [[nodiscard]] bool has(char character) const noexcept {
    return set_[static_cast<unsigned char>(character)];
  }

 private:
  std::bitset<256> set_;
};

// Looks at the bytes of files of one form.
class FormProbe {
 public:
  FormProbe(std::string_view prefix, const FileForm& form)
      : prefix_(prefix), form_(form), search_(searchFor(prefix, form.form)) {
    ofPrefix_.add(prefix);
    spellingEscapes_.add(prefix);
    spellingEscapes_.remove("abfnrtv");
    spellingEscapes_.add("Uux0123456789\n\r");
  }

  [[nodiscard]] bool isFor(std::string_view prefix, const FileForm& form) const {
    return prefix_ == prefix && form_ == form;
  }

  // `offset` is where `bytes` stand in the file.
  [[nodiscard]] bool mayHoldPrefix(std::string_view bytes, std::size_t offset) const {
    if (search_.occursIn(bytes)) {
      return true;
    }
    return form_.form != Form::binary &&
           (holdsSpellingEscape(bytes, offset) || (form_.mayBeXml && holdsSpellingXml(bytes)));
  }

 private:
  bool holdsSpellingEscape(std::string_view bytes, std::size_t offset) const {
    if (form_.form == Form::utf16Little || form_.form == Form::utf16Big) {
      return holdsSpellingEscapeInUtf16(bytes.substr(std::min(offset % kUnitSize, bytes.size())));
    }
    return anyOccurrence(bytes, '\\', [&](std::size_t at) {
      return spellingEscapes_.has(characterBehind(bytes, at));
    });
  }

  // The byte of a backslash is half of many another character, of Chinese ones above all. Where one
  // of those turns up, a whole block is passed over if no backslash is in it.
  bool holdsSpellingEscapeInUtf16(std::string_view units) const {
    constexpr std::size_t kBlock = 256;
    const Unit backslash = unitOf('\\', form_.form);
    std::size_t at = units.find('\\');
    while (at != std::string_view::npos) {
      const std::string_view rest = units.substr(at / kUnitSize * kUnitSize);
      std::size_t next = at + 1;
      if (rest.size() >= kUnitSize && unitAt(rest, 0) == backslash) {
        if (rest.size() >= 2 * kUnitSize && spells(unitAt(rest, 1))) {
          return true;
        }
      } else if (!holdsUnit(rest.substr(0, kBlock), backslash)) {
        next = units.size() - rest.size() + kBlock;
      }
      at = units.find('\\', next);
    }
    return false;
  }

  bool spells(Unit escaped) const {
    std::array<char, kUnitSize> bytes{};
    std::memcpy(bytes.data(), &escaped, kUnitSize);
    const bool isLittle = form_.form == Form::utf16Little;
    const char high = bytes[isLittle ? 1 : 0];
    return high == 0 && spellingEscapes_.has(bytes[isLittle ? 0 : 1]);
  }

  bool holdsSpellingXml(std::string_view bytes) const {
    return anyOccurrence(bytes, '&',
                         [&](std::size_t at) { return characterBehind(bytes, at) == '#'; }) ||
           anyOccurrence(bytes, '<', [&](std::size_t at) {
             return ofPrefix_.has(characterBefore(bytes, at)) && characterBehind(bytes, at) != '/';
           });
  }

  std::string prefix_;
  FileForm form_;
  SampledSearch search_;
  CharacterSet ofPrefix_;
  CharacterSet spellingEscapes_;
};

// Reads as much as there is and fits. Absent when reading failed.
std::optional<std::size_t> fill(ByteSource& file, std::span<char> buffer) {
  std::size_t filled = 0;
  while (filled < buffer.size()) {
    const auto count = file.read(buffer.subspan(filled));
    if (!count) {
      return std::nullopt;
    }
    if (*count == 0) {
      break;
    }
    filled += *count;
  }
  return filled;
}

}  // namespace

std::string_view prefixToProbeFor(std::span<const HashedKey> keys) noexcept {
  if (keys.empty()) {
    return {};
  }
  std::string_view prefix = keys.front().text.substr(0, kLongestPrefix);
  for (const HashedKey& key : keys) {
    const auto end = std::mismatch(prefix.begin(), prefix.end(), key.text.begin(), key.text.end());
    prefix = {prefix.begin(), end.first};
  }
  prefix = {prefix.begin(), std::find_if_not(prefix.begin(), prefix.end(), canBeProbedFor)};
  return prefix.size() < kShortestPrefix ? std::string_view() : prefix;
}

struct PrefixProbe::Tools {
  // Most files of an application have one form.
  const FormProbe& probeFor(std::string_view prefix, const FileForm& form) {
    if (!probe || !probe->isFor(prefix, form)) {
      probe.emplace(prefix, form);
    }
    return *probe;
  }

  Bytes buffer = Bytes(allocateBytes(kOverlap + kChunk));
  std::optional<FormProbe> probe;
};

PrefixProbe::PrefixProbe() = default;
PrefixProbe::~PrefixProbe() = default;

bool PrefixProbe::mayHoldKeysWithPrefix(ByteSource& file, std::string_view prefix) {
  if (tools_ == nullptr) {
    tools_ = std::make_unique<Tools>();
  }
  char* const buffer = tools_->buffer.get();
  if (buffer == nullptr) {
    return true;
  }
  const FormProbe* probe = nullptr;
  std::size_t kept = 0;
  std::size_t offset = 0;
  for (;;) {
    const auto count = fill(file, {buffer + kept, kChunk});
    if (!count) {
      return true;
    }
    const std::string_view bytes(buffer, kept + *count);
    if (probe == nullptr) {
      probe = &tools_->probeFor(prefix, formOf(bytes));
    }
    if (probe->mayHoldPrefix(bytes, offset)) {
      return true;
    }
    if (*count < kChunk) {
      return false;
    }
    kept = kOverlap;
    offset += bytes.size() - kept;
    std::memmove(buffer, bytes.data() + bytes.size() - kept, kept);
  }
}

}  // namespace orvanta::strings
