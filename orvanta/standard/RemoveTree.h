#pragma once

#include <string>

#include <orvanta/text/Status.h>

namespace orvanta::standard {

/// Removes the item at `path`, a folder with everything in it, and stops at the first failure.
///
/// Follows no symbolic link, including one that replaces a folder during the removal. Needs two
/// open files and no path longer than `path` at any depth.
Status removeTree(const std::string& path);

}  // namespace orvanta::standard
