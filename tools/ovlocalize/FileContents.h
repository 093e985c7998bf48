#pragma once

#include <string>

namespace ovlocalize {

/// The bytes of a regular file, or of standard input for "-". Throws `Failure` when they cannot be
/// read, and for a pipe, a device or a folder under a name, which might never end.
[[nodiscard]] std::string contentsOf(const std::string& file);

/// What messages call the file.
[[nodiscard]] std::string nameOf(const std::string& file);

}  // namespace ovlocalize
