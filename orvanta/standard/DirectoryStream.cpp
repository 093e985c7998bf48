#include <string_view>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>

#include <orvanta/standard/DirectoryStream.h>

namespace orvanta::standard {

namespace {

bool isDirectory(int folder, const dirent& entry) {
  if (entry.d_type != DT_UNKNOWN) {
    return entry.d_type == DT_DIR;
  }
  struct stat status {};
  return ::fstatat(folder, entry.d_name, &status, AT_SYMLINK_NOFOLLOW) == 0 &&
         S_ISDIR(status.st_mode);
}

}  // namespace

FileDescriptor openDirectory(int at, const std::string& path, FinalLink link) {
  const int noFollow = link == FinalLink::refuse ? O_NOFOLLOW : 0;
  return FileDescriptor(uninterrupted(
      [&] { return ::openat(at, path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC | noFollow); }));
}

DirectoryStream openDirectoryStream(FileDescriptor folder) {
  DirectoryStream stream(folder.isOpen() ? ::fdopendir(folder.get()) : nullptr);
  if (stream != nullptr) {
    static_cast<void>(folder.release());
  }
  return stream;
}

platform::Folder::Listing listDirectory(FileDescriptor folder) {
  const DirectoryStream stream = openDirectoryStream(std::move(folder));
  if (stream == nullptr) {
    return {{}, systemError(errno)};
  }
  platform::Folder::Listing listing;
  errno = 0;
  while (const dirent* entry = ::readdir(stream.get())) {
    const std::string_view name(static_cast<const char*>(entry->d_name));
    if (name != "." && name != "..") {
      listing.entries.push_back({name, isDirectory(::dirfd(stream.get()), *entry)});
    }
    errno = 0;
  }
  if (errno != 0) {
    return {{}, systemError(errno)};
  }
  return listing;
}

}  // namespace orvanta::standard
