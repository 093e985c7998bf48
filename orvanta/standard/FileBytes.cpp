#include <algorithm>
#include <limits>
#include <new>
#include <utility>

#include <orvanta/standard/FileBytes.h>

namespace orvanta::standard {

namespace {

constexpr std::size_t kLargestFile = std::numeric_limits<std::uint32_t>::max();

void enlarge(FileBytes& bytes, std::size_t capacity) {
  Bytes larger(allocateBytes(capacity));
  if (larger == nullptr) {
    throw std::bad_alloc();
  }
  std::copy_n(bytes.data.get(), bytes.size, larger.get());
  bytes.data = std::move(larger);
}

}  // namespace

std::optional<FileBytes> readWholeFile(platform::FileManager& files, const String& path,
                                       std::uint64_t expectedSize) {
  const std::unique_ptr<platform::ReadableFile> file = files.openFileForReading(path);
  if (file == nullptr || expectedSize >= kLargestFile) {
    return std::nullopt;
  }
  FileBytes bytes;
  // One byte more than expected shows the end of the file without another buffer.
  std::size_t capacity = static_cast<std::size_t>(expectedSize) + 1;
  for (;;) {
    enlarge(bytes, capacity);
    while (bytes.size < capacity) {
      const auto count = file->read({bytes.data.get() + bytes.size, capacity - bytes.size});
      if (!count) {
        return std::nullopt;
      }
      if (*count == 0) {
        return bytes;
      }
      bytes.size += *count;
    }
    if (capacity > kLargestFile / 2) {
      return std::nullopt;
    }
    capacity *= 2;
  }
}

}  // namespace orvanta::standard
