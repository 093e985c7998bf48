#include <algorithm>
#include <array>
#include <cstdint>
#include <utility>

#include <orvanta/strings/reader/xml/XmlText.h>
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

// A line end at the front of `rest`, in any of its forms.
void appendLineEnd(std::string& out, std::string_view& rest) {
  out.push_back('\n');
  rest.remove_prefix(rest.starts_with("\r\n") ? 2 : 1);
}

constexpr std::uint32_t kNoDigit = 16;

std::uint32_t digitValue(char digit) noexcept {
  constexpr std::string_view kDigits = "0123456789abcdefABCDEF";
  const std::size_t found = kDigits.find(digit);
  if (found == std::string_view::npos) {
    return kNoDigit;
  }
  return static_cast<std::uint32_t>(found < kNoDigit ? found : found - 6);
}

// "&#10;" or "&#xA;" at the front of `rest`. What stands for no character, NUL included, gives
// U+FFFD; so does a reference without digits or without its end, up to where it breaks off.
void appendNumericReference(std::string& out, std::string_view& rest) {
  const bool hexadecimal = rest.starts_with("&#x");
  const std::uint32_t base = hexadecimal ? 16 : 10;
  rest.remove_prefix(hexadecimal ? 3 : 2);
  std::uint32_t codePoint = 0;
  for (; !rest.empty() && digitValue(rest.front()) < base; rest.remove_prefix(1)) {
    codePoint = std::min(codePoint * base + digitValue(rest.front()), kBeyondUnicode);
  }
  const bool ended = rest.starts_with(';');
  rest.remove_prefix(ended ? 1 : 0);
  utf8::append(out, ended && codePoint != 0 ? codePoint : utf8::kReplacement);
}

bool appendReference(std::string& out, std::string_view& rest) {
  if (rest.starts_with("&#")) {
    appendNumericReference(out, rest);
    return true;
  }
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

std::optional<std::size_t> XmlText::appendData(std::string_view raw) {
  if (takeWhole(raw, kSpecialInData)) {
    return std::nullopt;
  }
  makeOwn();
  for (std::string_view rest = raw; !rest.empty();) {
    const std::size_t plain = std::min(rest.find_first_of(kSpecialInData), rest.size());
    own_.append(rest.substr(0, plain));
    rest.remove_prefix(plain);
    if (rest.starts_with('\r')) {
      appendLineEnd(own_, rest);
    } else if (!rest.empty() && !appendReference(own_, rest)) {
      return raw.size() - rest.size();
    }
  }
  return std::nullopt;
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
