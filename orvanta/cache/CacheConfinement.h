#pragma once

#include <orvanta/platform/FileManager.h>
#include <orvanta/text/String.h>
#include <orvanta/text/URL.h>

namespace orvanta {

/// The path that a write to `file` may use: decoded, without "." and ".." parts behind the folder's
/// path, strictly inside the folder, and reached through no symbolic link on the way from it (the
/// folder itself may be reached through one). Absent when there is no such path, so that a
/// language's name from the network can never lead out of the cache.
[[nodiscard]] String confinedPath(platform::FileManager& files, const URL& file, const URL& folder);

}  // namespace orvanta
