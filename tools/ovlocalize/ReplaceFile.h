#pragma once

#include <string>

namespace ovlocalize {

/// Replaces the file's contents at once: whoever reads it meanwhile reads the old ones or the new.
/// Makes the file, and its folder, when they are missing. Throws `Failure` when that cannot be
/// done, and for a device, a pipe or a folder; the old contents stay then.
void replaceFile(const std::string& file, const std::string& contents);

}  // namespace ovlocalize
