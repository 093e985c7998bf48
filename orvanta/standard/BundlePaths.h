#pragma once

#include <string_view>

#include <orvanta/text/String.h>

namespace orvanta::standard {

/// The path without trailing "/", doubled "/" and "." components; ".." stays, since what it leads
/// to is the file system's affair. Absent when `path` is not absolute.
[[nodiscard]] String normalizedBundlePath(const String& path);

/// True when `relativePath`, put behind a folder's path, names something below that folder.
[[nodiscard]] bool staysBelow(std::string_view relativePath);

}  // namespace orvanta::standard
