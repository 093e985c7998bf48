#include <array>
#include <atomic>
#include <charconv>
#include <chrono>
#include <string>
#include <vector>

#include <orvanta/cache/ReplacingWriter.h>
#include <orvanta/text/PathString.h>
#include <orvanta/text/TextHash.h>

namespace orvanta {

namespace {

using platform::FileManager;
using Write = std::function<FileOutcome(platform::WritableFile& file)>;

// Hidden, so that it is never taken for a table, and told by its ending from anything else.
constexpr std::string_view kUnfinished = ".orvanta-unfinished";

// Differs between processes by the seed of the hash and the clock, within one by the count.
std::string uniqueName(std::string_view finalName) {
  static std::atomic<unsigned> count{0};
  const auto now = std::chrono::steady_clock::now().time_since_epoch().count();
  const std::string moment = std::to_string(now) + '.' + std::to_string(++count);
  std::array<char, 16> hex{};
  const auto end = std::to_chars(hex.data(), hex.data() + hex.size(), textHash(moment), 16).ptr;
  std::string name = ".";
  name += finalName;
  name += '.';
  name.append(hex.data(), end);
  name += kUnfinished;
  return name;
}

bool isUnfinished(const String& name) {
  return name.view().starts_with('.') && name.view().ends_with(kUnfinished);
}

FileOutcome writeAndMove(FileManager& files, platform::WritableFile& file, const String& from,
                         const String& to, const Write& write) {
  FileOutcome outcome = write(file);
  if (!outcome) {
    outcome = file.sync();
  }
  // The file is still open, and so in use, while it is moved: nobody sweeps it before it is in
  // place.
  return outcome ? outcome : files.moveItemReplacing(from, to);
}

}  // namespace

FileOutcome replaceFile(FileManager& files, const String& path, const Write& write) {
  const String folder = path::stringByDeletingLastPathComponent(path);
  const String unfinished = path::stringByAppendingPathComponent(
      folder, uniqueName(path::lastPathComponent(path).view()));
  FileManager::Creation creation = files.createFile(unfinished);
  if (creation.outcome) {
    return creation.outcome;
  }
  if (FileOutcome outcome = writeAndMove(files, *creation.file, unfinished, path, write)) {
    // Left behind when this fails too; the next sweep finds it.
    static_cast<void>(files.removeItemAtURL(URL::fileURLWithPath(unfinished, false)));
    return outcome;
  }
  if (FileOutcome outcome = creation.file->close()) {
    return outcome;
  }
  return files.syncDirectory(folder);
}

void sweepAbandonedFiles(FileManager& files, const URL& folder) {
  std::vector<URL> folders = {folder};
  files.enumerateDirectoryAtURL(folder, [&](const URL& entry, bool isDirectory) {
    if (isDirectory) {
      folders.push_back(entry);
    }
  });
  for (const URL& each : folders) {
    for (const URL& entry : files.contentsOfDirectoryAtURL(each)) {
      const String path = entry.path();
      if (isUnfinished(path::lastPathComponent(path))) {
        static_cast<void>(files.removeFileUnlessInUse(path));
      }
    }
  }
}

}  // namespace orvanta
