#include "contenders/TsvMap.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <stdexcept>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace orvanta::bench {

namespace {

// A small buffer that is reused for each read: memory for the whole file would be fresh pages,
// which makes the load take one and a half times as long.
constexpr std::size_t kBuffer = std::size_t{64} * 1024;

// Less than the size of a line, so that the map need not grow.
constexpr std::size_t kShortLine = 100;

class File {
 public:
  explicit File(const char* path) : descriptor_(open(path, O_RDONLY | O_CLOEXEC)) {
    if (descriptor_ < 0) {
      throw std::runtime_error("cannot open a table");
    }
  }
  ~File() { close(descriptor_); }
  File(const File&) = delete;
  File& operator=(const File&) = delete;

  [[nodiscard]] std::size_t size() const noexcept {
    struct stat info {};
    return fstat(descriptor_, &info) == 0 ? static_cast<std::size_t>(info.st_size) : 0;
  }
  [[nodiscard]] std::size_t readInto(char* start, std::size_t room) const {
    const ssize_t count = read(descriptor_, start, room);
    if (count < 0) {
      throw std::runtime_error("cannot read a table");
    }
    return static_cast<std::size_t>(count);
  }

 private:
  int descriptor_;
};

std::string field(const char* start, const char* end) {
  std::string text(start, end);
  const std::size_t escape = text.find('\\');
  if (escape == std::string::npos) {
    return text;
  }
  std::size_t used = escape;
  for (std::size_t at = escape; at < text.size(); ++at) {
    char character = text[at];
    if (character == '\\' && at + 1 < text.size()) {
      character = text[++at];
      character = character == 'n' ? '\n' : character == 't' ? '\t' : character;
    }
    text[used++] = character;
  }
  text.resize(used);
  return text;
}

const char* find(const char* from, const char* end, char character) {
  return static_cast<const char*>(
      std::memchr(from, character, static_cast<std::size_t>(end - from)));
}

// Adds the complete lines and returns the beginning of the incomplete one.
const char* addLines(const char* at, const char* end, TsvMap& map) {
  while (const char* const lineEnd = find(at, end, '\n')) {
    if (const char* const tab = find(at, lineEnd, '\t')) {
      map.emplace(field(at, tab), field(tab + 1, lineEnd));
    }
    at = lineEnd + 1;
  }
  return at;
}

}  // namespace

TsvMap loadTsv(const std::filesystem::path& path) {
  const File file(path.c_str());
  TsvMap map;
  map.reserve(file.size() / kShortLine);
  std::array<char, kBuffer> buffer;
  char* end = buffer.data();
  while (const std::size_t more =
             file.readInto(end, static_cast<std::size_t>(buffer.data() + kBuffer - end))) {
    end += more;
    const char* const torn = addLines(buffer.data(), end, map);
    if (torn == buffer.data() && end == buffer.data() + kBuffer) {
      throw std::runtime_error("a line of a table is too long");
    }
    end = std::copy(torn, static_cast<const char*>(end), buffer.data());
  }
  return map;
}

}  // namespace orvanta::bench
