#include <cstddef>
#include <string>

#include <orvanta/standard/BundlePaths.h>
#include <orvanta/text/StringList.h>

namespace orvanta::standard {

namespace {

bool meansNothing(const String& component) {
  return component.empty() || component == ".";
}

}  // namespace

String normalizedBundlePath(const String& path) {
  if (!path.view().starts_with('/')) {
    return {};
  }
  std::string normalized;
  for (const String& component : componentsSeparatedBy('/', path)) {
    if (!meansNothing(component)) {
      normalized.append(1, '/').append(component.view());
    }
  }
  return normalized.empty() ? "/" : String(normalized);
}

bool staysBelow(std::string_view relativePath) {
  std::size_t depth = 0;
  for (const String& component : componentsSeparatedBy('/', relativePath)) {
    if (component == "..") {
      if (depth == 0) {
        return false;
      }
      --depth;
    } else if (!meansNothing(component)) {
      ++depth;
    }
  }
  return depth > 0;
}

}  // namespace orvanta::standard
