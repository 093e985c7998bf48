#include <orvanta/cache/FolderMaker.h>
#include <orvanta/text/PathString.h>

namespace orvanta {

using Opening = platform::Folder::Opening;

Opening FolderMaker::open(const String& path) {
  Opening opening = files_.openFolder(path);
  const String parentPath = path::stringByDeletingLastPathComponent(path);
  if (!opening.status.is(std::errc::no_such_file_or_directory) || parentPath == path) {
    return opening;
  }
  Opening parent = open(parentPath);
  if (!parent.status.ok()) {
    return parent;
  }
  const String name = path::lastPathComponent(path);
  // These lead elsewhere now that the parent is there.
  return name == "." || name == ".." ? files_.openFolder(path) : open(*parent.folder, name);
}

Opening FolderMaker::open(platform::Folder& parent, const String& name) {
  Opening opening = parent.openFolder(name);
  if (!opening.status.is(std::errc::no_such_file_or_directory)) {
    return opening;
  }
  const Status made = parent.createFolder(name);
  if (made.ok()) {
    const Status synced = parent.sync();
    if (syncStatus_.ok()) {
      syncStatus_ = synced;
    }
  } else if (!made.is(std::errc::file_exists)) {
    return {nullptr, made};
  }
  return parent.openFolder(name);
}

}  // namespace orvanta
