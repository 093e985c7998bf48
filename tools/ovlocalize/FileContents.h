#pragma once

#include <string>

namespace ovlocalize {

/// The bytes of a file, or of standard input for "-". Throws `Failure` when they cannot be read.
[[nodiscard]] std::string contentsOf(const std::string& file);

/// What messages call the file.
[[nodiscard]] std::string nameOf(const std::string& file);

}  // namespace ovlocalize
