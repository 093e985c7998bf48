#include <string>
#include <string_view>

#include <orvanta/text/PathString.h>

namespace orvanta::path {

namespace {

// The part of a "file:" URL before its path: the scheme and, behind "//", the authority. Empty for
// other text.
std::string_view beforePath(std::string_view text) {
  constexpr std::string_view kScheme = "file:";
  if (!text.starts_with(kScheme)) {
    return {};
  }
  const bool hasAuthority = text.substr(kScheme.size()).starts_with("//");
  return text.substr(0, hasAuthority ? text.find('/', kScheme.size() + 2) : kScheme.size());
}

// The text without its trailing "/"; "/" stays of a text that holds nothing else.
std::string_view withoutTrailingSlashes(std::string_view text) {
  while (text.size() > 1 && text.ends_with('/')) {
    text.remove_suffix(1);
  }
  return text;
}

}  // namespace

String lastPathComponent(const String& text) {
  if (text.isAbsent()) {
    return {};
  }
  const std::string_view whole = withoutTrailingSlashes(text.view());
  const std::size_t slash = whole.rfind('/');
  return slash == std::string_view::npos || whole.size() == 1 ? String(whole)
                                                              : String(whole.substr(slash + 1));
}

String stringByDeletingLastPathComponent(const String& text) {
  if (text.isAbsent()) {
    return {};
  }
  const std::string_view prefix = beforePath(text.view());
  const std::string_view whole = withoutTrailingSlashes(text.view().substr(prefix.size()));
  const std::size_t slash = whole.rfind('/');
  std::string parent(prefix);
  if (slash == 0) {
    parent += '/';
  } else if (slash != std::string_view::npos) {
    parent += whole.substr(0, slash);
  }
  return parent;
}

String stringByDeletingPathExtension(const String& text) {
  if (text.isAbsent()) {
    return {};
  }
  const std::string_view whole = withoutTrailingSlashes(text.view());
  const std::size_t dot = whole.rfind('.');
  const std::size_t slash = whole.rfind('/');
  const std::size_t start = slash == std::string_view::npos ? 0 : slash + 1;
  if (dot == std::string_view::npos || dot <= start || dot + 1 == whole.size()) {
    return whole.size() == text.size() ? text : String(whole);
  }
  return {whole.substr(0, dot)};
}

String stringByAppendingPathComponent(const String& folder, std::string_view component) {
  std::string joined(folder.view());
  if (!joined.ends_with('/')) {
    joined += '/';
  }
  joined += component;
  return joined;
}

}  // namespace orvanta::path
