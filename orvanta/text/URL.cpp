#include <algorithm>
#include <optional>
#include <ostream>
#include <string>

#include <orvanta/text/HexDigit.h>
#include <orvanta/text/URL.h>

namespace orvanta {

namespace {

constexpr std::string_view kFileScheme = "file:";
constexpr std::string_view kNeverInURL = "\"<>[\\]^`{|}";
constexpr std::string_view kUnescapedInPath =
    "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789-._~!$&'()*+,=:@/";

// The byte that an escape at the start of `text` stands for.
std::optional<char> escapedByte(std::string_view text) {
  if (text.size() < 3 || text[0] != '%') {
    return std::nullopt;
  }
  const unsigned high = digitValue(text[1]);
  const unsigned low = digitValue(text[2]);
  if (high == kNoDigit || low == kNoDigit) {
    return std::nullopt;
  }
  return static_cast<char>((high << 4) | low);
}

bool isURLText(std::string_view text) {
  for (std::size_t index = 0; index < text.size(); ++index) {
    const auto byte = static_cast<unsigned char>(text[index]);
    if (byte <= 0x20 || byte >= 0x7F || kNeverInURL.find(text[index]) != std::string_view::npos ||
        (byte == '%' && !escapedByte(text.substr(index)))) {
      return false;
    }
  }
  return !text.empty();
}

std::string escapedPath(std::string_view path) {
  std::string escaped;
  for (const char character : path) {
    if (kUnescapedInPath.find(character) != std::string_view::npos) {
      escaped += character;
    } else {
      const auto byte = static_cast<unsigned char>(character);
      escaped += '%';
      escaped += kHexadecimalDigits[byte >> 4U];
      escaped += kHexadecimalDigits[byte & 0xFU];
    }
  }
  return escaped;
}

}  // namespace

URL URL::URLWithString(const String& text) {
  return isURLText(text.view()) ? URL(text) : URL();
}

URL URL::fileURLWithPath(const String& path, bool isDirectory) {
  if (path.isAbsent()) {
    return {};
  }
  std::string text = "file://" + escapedPath(path.view());
  if (isDirectory && !text.ends_with('/')) {
    text += '/';
  }
  return URL(String(text));
}

URL URL::URLByAppendingPathComponent(std::string_view component, bool isDirectory) const {
  if (isAbsent()) {
    return {};
  }
  std::string text(text_.view());
  if (!text.ends_with('/')) {
    text += '/';
  }
  text += escapedPath(component);
  if (isDirectory && !text.ends_with('/')) {
    text += '/';
  }
  return URL(String(text));
}

String URL::path() const {
  if (!isFileURL()) {
    return {};
  }
  std::string_view rest = text_.view().substr(kFileScheme.size());
  if (rest.starts_with("//")) {
    // An authority, as in "file://localhost/x", ends where the path begins.
    rest.remove_prefix(2);
    rest.remove_prefix(std::min(rest.find('/'), rest.size()));
  }
  rest = rest.substr(0, rest.find_first_of("?#"));
  std::string decoded;
  while (!rest.empty()) {
    const auto byte = escapedByte(rest);
    const char next = byte.value_or(rest.front());
    if (next == '\0') {
      return {};
    }
    decoded += next;
    rest.remove_prefix(byte ? 3 : 1);
  }
  while (decoded.size() > 1 && decoded.ends_with('/')) {
    decoded.pop_back();
  }
  return decoded;
}

std::ostream& operator<<(std::ostream& out, const URL& url) {
  return out << url.text_;
}

}  // namespace orvanta
