#pragma once

#include <string_view>

#include <orvanta/platform/FileManager.h>
#include <orvanta/platform/String.h>
#include <orvanta/platform/URL.h>

namespace orvanta {

/// Puts a file of these bytes in the place of what is at `path`. Whatever goes wrong on the way,
/// and wherever the process or the power ends, a reader finds the whole old file or the whole new
/// one: the bytes go to a new file beside the old one, which is synced and then renamed over it.
[[nodiscard]] platform::FileOutcome replaceFile(platform::FileManager& files, const String& path,
                                                std::string_view bytes);

/// Removes what writers that died on the way have left in the folder and below it; never the file
/// of a writer that lives, in this process or another.
void sweepAbandonedFiles(platform::FileManager& files, const platform::URL& folder);

}  // namespace orvanta
