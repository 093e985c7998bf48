#include <orvanta/standard/FileBytes.h>

namespace orvanta::standard {

std::optional<strings::ReadBuffer> readWholeFile(platform::FileManager& files, const String& path,
                                                 std::uint64_t expectedSize) {
  const std::unique_ptr<platform::ReadableFile> file = files.openFileForReading(path);
  std::optional<strings::ReadBuffer> bytes;
  if (file != nullptr && !bytes.emplace().read(*file, expectedSize)) {
    bytes.reset();
  }
  return bytes;
}

}  // namespace orvanta::standard
