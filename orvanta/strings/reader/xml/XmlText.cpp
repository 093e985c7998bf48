#include <algorithm>
#include <array>
#include <cstdint>
#include <utility>

#include <orvanta/strings/reader/xml/XmlText.h>
#include <orvanta/text/HexDigit.h>
#include <orvanta/text/Utf8.h>

namespace orvanta::strings {

namespace {

constexpr std::string_view kSpecialInData = "&\r";
constexpr std::string_view kSpecialInLiteral = "\r";
constexpr std::uint32_t kBeyondUnicode = 0x110000;

constexpr std::array<std::pair<std::string_view, char>, 5> kPredefined = {{
    {"&amp;", '&'},
    {"&lt;", '<'},
    {"&gt;", '>'},
    {"&quot;", '"'},
    {"&apos;", '\''},
}};

bool holdsAny(std::string_view text, std::string_view characters) noexcept {
  return std::any_of(characters.begin(), characters.end(), [&](char character) {
    return text.find(character) != std::string_view::npos;
  });
}

// Consumes the line end at the front of `rest`, in any of its forms.
void appendLineEnd(std::string& out, std::string_view& rest) {
  out.push_back('\n');
  rest.remove_prefix(rest.starts_with("\r\n") ? 2 : 1);
}

// Consumes "&#10;" or "&#xA;" at the front of `rest`. Appends U+FFFD and returns false for a number
// that is no character, including NUL, and for a reference without digits or semicolon.
bool appendNumericReference(std::string& out, std::string_view& rest) {
  const bool isHexadecimal = rest.starts_with("&#x");
  const std::uint32_t base = isHexadecimal ? 16 : 10;
  rest.remove_prefix(isHexadecimal ? 3 : 2);
  std::uint32_t codePoint = 0;
  for (; !rest.empty() && digitValue(rest.front()) < base; rest.remove_prefix(1)) {
    codePoint = std::min(codePoint * base + digitValue(rest.front()), kBeyondUnicode);
  }
  const bool isEnded = rest.starts_with(';');
  rest.remove_prefix(isEnded ? 1 : 0);
  const bool isSurrogate = codePoint >= 0xD800 && codePoint <= 0xDFFF;
  const bool isCharacter = isEnded && codePoint != 0 && codePoint != kBeyondUnicode && !isSurrogate;
  utf8::append(out, isCharacter ? codePoint : utf8::kReplacement);
  return isCharacter;
}

// Consumes a predefined entity at the front of `rest`; false when there is none.
bool appendEntity(std::string& out, std::string_view& rest) {
  for (const auto& [name, character] : kPredefined) {
    if (rest.starts_with(name)) {
      out.push_back(character);
      rest.remove_prefix(name.size());
      return true;
    }
  }
  return false;
}

}  // namespace

void XmlText::clear() noexcept {
  borrowed_ = {};
  own_.clear();
  isOwn_ = false;
}

std::string_view XmlText::view() const noexcept {
  return isOwn_ ? own_ : borrowed_;
}

bool XmlText::takeWhole(std::string_view raw, std::string_view special) noexcept {
  if (isOwn_ || !borrowed_.empty() || holdsAny(raw, special)) {
    return false;
  }
  borrowed_ = raw;
  return true;
}

void XmlText::makeOwn() {
  if (!isOwn_) {
    own_.assign(borrowed_);
    isOwn_ = true;
  }
}

XmlText::BadReferences XmlText::appendData(std::string_view raw) {
  BadReferences bad;
  if (takeWhole(raw, kSpecialInData)) {
    return bad;
  }
  makeOwn();
  for (std::string_view rest = raw; !rest.empty();) {
    const std::size_t plain = std::min(rest.find_first_of(kSpecialInData), rest.size());
    own_.append(rest.substr(0, plain));
    rest.remove_prefix(plain);
    const std::size_t at = raw.size() - rest.size();
    if (rest.starts_with('\r')) {
      appendLineEnd(own_, rest);
    } else if (rest.starts_with("&#")) {
      const bool isCharacter = appendNumericReference(own_, rest);
      bad.toNoCharacter = isCharacter || bad.toNoCharacter ? bad.toNoCharacter : at;
    } else if (!rest.empty() && !appendEntity(own_, rest)) {
      bad.unknown = at;
      break;
    }
  }
  return bad;
}

void XmlText::appendLiteral(std::string_view raw) {
  if (takeWhole(raw, kSpecialInLiteral)) {
    return;
  }
  makeOwn();
  for (std::string_view rest = raw; !rest.empty();) {
    const std::size_t plain = std::min(rest.find('\r'), rest.size());
    own_.append(rest.substr(0, plain));
    rest.remove_prefix(plain);
    if (!rest.empty()) {
      appendLineEnd(own_, rest);
    }
  }
}

}  // namespace orvanta::strings
