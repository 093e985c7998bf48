#include <string>
#include <string_view>

#include <orvanta/text/PathString.h>

namespace orvanta::path {

namespace {

constexpr std::string_view kFileScheme = "file://";

// The text without the "/" that end it; of "/" and "//" one is left.
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
  const std::string_view scheme =
      text.view().starts_with(kFileScheme) ? kFileScheme : std::string_view();
  const std::string_view whole = withoutTrailingSlashes(text.view().substr(scheme.size()));
  const std::size_t slash = whole.rfind('/');
  std::string parent(scheme);
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
