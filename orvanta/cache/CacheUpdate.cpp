#include <system_error>
#include <utility>

#include <orvanta/cache/CacheUpdate.h>
#include <orvanta/cache/StringsFileReplacement.h>

namespace orvanta {

using platform::Folder;

namespace {

// Of the languages' folders in the cache folder. Those further down, which names with "/" lead to,
// are swept when they are written to.
void sweepLanguageFolders(Folder& cacheFolder) {
  for (const Folder::Entry& entry : cacheFolder.list().entries) {
    if (entry.isDirectory && entry.name.view().ends_with(kLanguageFolderExtension)) {
      const Folder::Opening language = cacheFolder.openFolder(entry.name);
      if (language.status.ok()) {
        removeAbandonedReplacements(*language.folder);
      }
    }
  }
}

}  // namespace

CacheUpdate::CacheUpdate(platform::FileManager& files, URL cacheFolder)
    : files_(files), cacheFolderURL_(std::move(cacheFolder)), cacheFolderMaker_(files) {}

Replacement CacheUpdate::writeStringsFile(const StringsPayload& table, const CachePath& path) {
  return path.status.ok() ? withOneRetry([&] { return attempt(table, path); })
                          : Replacement{false, path.status};
}

Replacement CacheUpdate::attempt(const StringsPayload& table, const CachePath& path) {
  if (Status status = openCacheFolder(); !status.ok()) {
    return {false, std::move(status)};
  }
  FolderMaker maker(files_);
  Folder* parent = cacheFolder_.get();
  Folder::Opening language;
  for (const String& name : path.folders) {
    language = maker.open(*parent, name);
    if (!language.status.ok()) {
      return failed(std::move(language.status));
    }
    parent = language.folder.get();
  }
  if (path.folders.size() > 1) {
    removeAbandonedReplacements(*parent);
  }
  Replacement replacement = replaceStringsFile(*parent, path.file, table);
  if (!replacement.isInPlace) {
    return failed(std::move(replacement.status));
  }
  for (const Status* synced : {&maker.syncStatus(), &cacheFolderMaker_.syncStatus()}) {
    if (replacement.status.ok()) {
      replacement.status = *synced;
    }
  }
  return replacement;
}

Status CacheUpdate::openCacheFolder() {
  if (cacheFolder_ != nullptr) {
    return {};
  }
  Folder::Opening opening = cacheFolderMaker_.open(cacheFolderURL_.path());
  if (opening.status.ok()) {
    cacheFolder_ = std::move(opening.folder);
    sweepLanguageFolders(*cacheFolder_);
  }
  return opening.status;
}

// The cache folder itself may have been removed: the next attempt opens it by its path again.
Replacement CacheUpdate::failed(Status status) {
  if (status.is(std::errc::no_such_file_or_directory)) {
    cacheFolder_ = nullptr;
  }
  return {false, std::move(status)};
}

}  // namespace orvanta
