#pragma once

#include <string_view>

#include <orvanta/Export.h>
#include <orvanta/text/String.h>
#include <orvanta/text/StringsPayload.h>
#include <orvanta/text/URL.h>

namespace orvanta {

/// The name of the cache folder inside the platform's caches directory.
inline constexpr std::string_view cacheDirectoryName = "OrvantaLocalizations";

/// The file and text operations of the string cache. Each takes what it acts on as its first
/// argument; with an absent one it does nothing and gives absent.
namespace OVStringCacheUtilities {

/// The URL of the cache folder, which is made if it can be; absent when the platform has no caches
/// directory. Ends in "/".
[[nodiscard]] ORVANTA_EXPORT URL cacheDirectoryURL();

/// Makes the folder and its parents if they are missing. A failure is ignored; the next operation
/// on the folder meets it.
ORVANTA_EXPORT void createDirectoryIfNeeded(const URL& directory);

/// The same for a file's parent folder.
ORVANTA_EXPORT void createDirectoryIfNeededForFile(const URL& file);

/// The URL of a file's parent folder.
[[nodiscard]] ORVANTA_EXPORT URL directoryFromFileURL(const URL& file);

/// Deletes every entry of the folder, hidden ones included, and keeps the folder. An entry that
/// cannot be deleted is logged and skipped.
ORVANTA_EXPORT void clearFilesFromDirectory(const URL& directory);

/// The URL of a language's table below the folder, with the identifier copied into it as it is.
/// Absent for an absent identifier, and for one with a character that no URL holds.
[[nodiscard]] ORVANTA_EXPORT URL stringsFileURLForLanguage(const URL& directory,
                                                           const String& language);

/// The text of a strings file with the table's pairs in the table's order: for each an empty
/// comment, the assignment and a blank line. Pairs with an empty key or value, and values that are
/// no text, are left out. Nothing is escaped: what a service sends is source text of the format, in
/// which the reader resolves the escapes.
[[nodiscard]] ORVANTA_EXPORT String localizableStringsFile(const StringsPayload& table);

/// Writes a strings file's text to `file` as UTF-16 with a byte-order mark, making its folder and
/// replacing an earlier file, and logs how that ended. Text that is not valid UTF-8, and a URL with
/// a query or a fragment, fail and leave the earlier file. `language` is not used. `file` may be
/// anywhere; only `OVStringCache::updateStrings` keeps inside the cache folder.
ORVANTA_EXPORT void saveLanguageStringForLanguage(const String& text, const String& language,
                                                  const URL& file);

/// The text in lower case, then without white space and line breaks at both ends.
[[nodiscard]] ORVANTA_EXPORT String cleanedString(const String& text);

}  // namespace OVStringCacheUtilities

}  // namespace orvanta
