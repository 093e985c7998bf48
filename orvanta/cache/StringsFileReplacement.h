#pragma once

#include <system_error>

#include <orvanta/cache/ReplacementFile.h>
#include <orvanta/platform/Folder.h>
#include <orvanta/strings/writer/StringsFile.h>
#include <orvanta/text/String.h>
#include <orvanta/text/URL.h>

namespace orvanta {

/// Puts a strings file in the place of the file `name`. `contents` is a table or the file's text.
template <typename Contents>
[[nodiscard]] Replacement replaceStringsFile(platform::Folder& folder, const String& name,
                                             const Contents& contents) {
  ReplacementFile file(folder, name);
  Status status = file.creation();
  if (status.ok()) {
    status = strings::writeStringsFile(contents, file.contents());
  }
  return status.ok() ? file.commit() : Replacement{false, status};
}

/// Calls `attempt` again when it fails because something is missing: another process may empty the
/// cache between two of its steps.
template <typename Attempt>
[[nodiscard]] Replacement withOneRetry(Attempt attempt) {
  Replacement replacement = attempt();
  return !replacement.isInPlace && replacement.status.is(std::errc::no_such_file_or_directory)
             ? attempt()
             : replacement;
}

/// Logs how the replacement of `file` ended.
void logReplacement(const Replacement& replacement, const URL& file);

}  // namespace orvanta
