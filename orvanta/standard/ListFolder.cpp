#include <memory>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

#include <orvanta/standard/FileDescriptor.h>
#include <orvanta/standard/Folders.h>

namespace orvanta::standard {

namespace {

struct CloseFolder {
  void operator()(DIR* folder) const noexcept { ::closedir(folder); }
};

bool isDirectory(int folder, const dirent& entry) {
  if (entry.d_type != DT_UNKNOWN) {
    return entry.d_type == DT_DIR;
  }
  struct stat status {};
  return ::fstatat(folder, entry.d_name, &status, AT_SYMLINK_NOFOLLOW) == 0 &&
         S_ISDIR(status.st_mode);
}

}  // namespace

std::optional<std::vector<FolderEntry>> listFolder(const std::string& path, FinalLink link) {
  const int noFollow = link == FinalLink::refuse ? O_NOFOLLOW : 0;
  FileDescriptor file(uninterrupted(
      [&] { return ::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC | noFollow); }));
  if (!file.isOpen()) {
    return std::nullopt;
  }
  const std::unique_ptr<DIR, CloseFolder> folder(::fdopendir(file.get()));
  if (folder == nullptr) {
    return std::nullopt;
  }
  const int descriptor = file.release();
  std::vector<FolderEntry> entries;
  while (const dirent* entry = ::readdir(folder.get())) {
    std::string name(static_cast<const char*>(entry->d_name));
    if (name != "." && name != "..") {
      entries.push_back({std::move(name), isDirectory(descriptor, *entry)});
    }
  }
  return entries;
}

}  // namespace orvanta::standard
