#pragma once

#include <functional>

#include <orvanta/platform/FileManager.h>
#include <orvanta/text/String.h>
#include <orvanta/text/URL.h>

namespace orvanta {

/// Puts a file with what `write` writes in the place of what is at `path`. Whatever goes wrong on
/// the way, and wherever the process or the power ends, a reader finds the whole old file or the
/// whole new one: `write` gets a new file beside the old one, which is synced and then renamed over
/// it.
[[nodiscard]] FileOutcome replaceFile(
    platform::FileManager& files, const String& path,
    const std::function<FileOutcome(platform::WritableFile& file)>& write);

/// Removes what writers that died on the way have left in the folder and below it; never the file
/// of a writer that lives, in this process or another.
void sweepAbandonedFiles(platform::FileManager& files, const URL& folder);

}  // namespace orvanta
