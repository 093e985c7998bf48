#pragma once

#include <memory>

#include <orvanta/cache/CachePath.h>
#include <orvanta/cache/FolderMaker.h>
#include <orvanta/cache/ReplacementFile.h>
#include <orvanta/platform/FileManager.h>
#include <orvanta/text/StringsPayload.h>
#include <orvanta/text/URL.h>

namespace orvanta {

/// Writes tables into the cache folder. Holds open folders and follows no symbolic link behind the
/// cache folder's own path, so that nothing is written outside, whatever other processes do.
class CacheUpdate {
 public:
  /// Touches nothing yet. `files` must outlive this.
  CacheUpdate(platform::FileManager& files, URL cacheFolder);

  [[nodiscard]] const URL& cacheFolderURL() const noexcept { return cacheFolderURL_; }

  /// Writes a language's table in place of an earlier one. The first call opens the cache folder,
  /// making it if need be, and removes what interrupted updates have left in it.
  [[nodiscard]] Replacement writeStringsFile(const StringsPayload& table, const CachePath& path);

 private:
  Status openCacheFolder();
  [[nodiscard]] Replacement attempt(const StringsPayload& table, const CachePath& path);
  [[nodiscard]] Replacement failed(Status status);

  platform::FileManager& files_;
  URL cacheFolderURL_;
  FolderMaker cacheFolderMaker_;
  std::unique_ptr<platform::Folder> cacheFolder_;
};

}  // namespace orvanta
