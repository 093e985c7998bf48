#pragma once

#include <string_view>
#include <vector>

#include <orvanta/text/Status.h>
#include <orvanta/text/String.h>
#include <orvanta/text/URL.h>

namespace orvanta {

inline constexpr std::string_view kLanguageFolderExtension = ".lproj";

/// The way from the cache folder to a language's table. A language's name comes from the network,
/// so it may not lead out of the cache or into another language's folder.
struct CachePath {
  /// Why a table may not be written there; the rest is empty then.
  Status status;
  /// The names of the folders below the cache folder, the language's own last.
  std::vector<String> folders;
  String file;

  /// Whether the catalogue passes over the table, because a name begins with ".".
  [[nodiscard]] bool isHidden() const noexcept;
};

/// Takes the path of `file` apart behind that of `cacheFolder`, percent escapes decoded, "." and
/// ".." resolved. Looks at no disk.
[[nodiscard]] CachePath cachePathOf(const URL& file, const URL& cacheFolder);

/// The path of a file URL that a table may be written to. Absent for a URL of another kind, and for
/// one with a query or a fragment, which no path holds.
[[nodiscard]] String pathToWrite(const URL& file);

}  // namespace orvanta
