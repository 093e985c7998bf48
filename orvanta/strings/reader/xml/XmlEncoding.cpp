#include <algorithm>
#include <array>

#include <orvanta/strings/reader/xml/XmlEncoding.h>

namespace orvanta::strings {

namespace {

constexpr std::string_view kWhiteSpace = " \t\r\n";

// In lower case. ASCII is a subset of UTF-8. A declared UTF-16 or UTF-32 is ignored where the bytes
// show otherwise.
constexpr std::array<std::string_view, 9> kUnicode = {
    "utf-8", "utf8", "utf-16", "utf16", "utf-32", "utf32", "ucs-", "iso-10646-ucs-", "us-ascii"};
constexpr std::array<std::string_view, 6> kLatin1 = {"iso-8859-1", "iso_8859-1", "iso8859-1",
                                                     "iso88591",   "latin1",     "latin-1"};
constexpr std::array<std::string_view, 3> kWindows1252 = {"windows-1252", "cp1252", "x-cp1252"};

char lowerCase(char c) noexcept {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool equalsIgnoringCase(std::string_view a, std::string_view b) noexcept {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](char x, char y) { return lowerCase(x) == lowerCase(y); });
}

template <std::size_t kCount>
bool isOneOf(const std::array<std::string_view, kCount>& names, std::string_view name) noexcept {
  return std::any_of(names.begin(), names.end(),
                     [&](std::string_view other) { return equalsIgnoringCase(name, other); });
}

bool isUnicode(std::string_view name) noexcept {
  return std::any_of(kUnicode.begin(), kUnicode.end(), [&](std::string_view beginning) {
    return equalsIgnoringCase(name.substr(0, beginning.size()), beginning);
  });
}

// The name in the declaration at the front of the text, which is empty without one.
std::string_view declaredEncoding(std::string_view text) noexcept {
  text = text.substr(std::min(text.find_first_not_of(kWhiteSpace), text.size()));
  if (!text.starts_with("<?xml")) {
    return {};
  }
  constexpr std::string_view kAttribute = "encoding";
  const std::string_view declaration = text.substr(0, text.find("?>"));
  std::size_t at = declaration.find(kAttribute);
  at = at == std::string_view::npos ? at : at + kAttribute.size();
  at = declaration.find_first_not_of(kWhiteSpace, at);
  if (at == std::string_view::npos || declaration[at] != '=') {
    return {};
  }
  at = declaration.find_first_not_of(kWhiteSpace, at + 1);
  if (at == std::string_view::npos || (declaration[at] != '"' && declaration[at] != '\'')) {
    return {};
  }
  const std::string_view name = declaration.substr(at + 1);
  return name.substr(0, std::min(name.find(declaration[at]), name.size()));
}

}  // namespace

DeclaredText asDeclared(EncodedText text) noexcept {
  const bool isBytes =
      text.encoding == TextEncoding::kUtf8 || text.encoding == TextEncoding::kBrokenUtf8;
  const std::string_view name =
      isBytes && !text.hasMark ? declaredEncoding(text.bytes) : std::string_view();
  DeclaredText declared = {text, true, 0};
  if (name.empty()) {
    return declared;
  }
  declared.nameAt = static_cast<std::size_t>(name.data() - text.bytes.data());
  if (isOneOf(kLatin1, name)) {
    declared.text.encoding = TextEncoding::kLatin1;
  } else if (isOneOf(kWindows1252, name)) {
    declared.text.encoding = TextEncoding::kWindows1252;
  } else {
    declared.isKnown = isUnicode(name);
  }
  return declared;
}

}  // namespace orvanta::strings
