#include "contenders/TsvMap.h"

#include <algorithm>
#include <cstring>
#include <memory>
#include <stdexcept>
#include <string_view>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace orvanta::bench {

namespace {

struct Bytes {
  std::unique_ptr<char[]> data;
  std::size_t size = 0;
};

// The whole file in one read into memory that nobody clears first.
Bytes readAtOnce(const char* path) {
  const int file = open(path, O_RDONLY | O_CLOEXEC);
  struct stat info {};
  if (file < 0 || fstat(file, &info) != 0) {
    throw std::runtime_error("cannot open a table");
  }
  const auto size = static_cast<std::size_t>(info.st_size);
  Bytes bytes{std::unique_ptr<char[]>(new char[size]), 0};
  while (bytes.size < size) {
    const ssize_t more = read(file, bytes.data.get() + bytes.size, size - bytes.size);
    if (more <= 0) {
      break;
    }
    bytes.size += static_cast<std::size_t>(more);
  }
  close(file);
  return bytes;
}

std::string field(const char* start, const char* end) {
  std::string text(start, end);
  std::size_t escape = text.find('\\');
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
  const void* found = std::memchr(from, character, static_cast<std::size_t>(end - from));
  return found == nullptr ? end : static_cast<const char*>(found);
}

}  // namespace

TsvMap loadTsv(const std::filesystem::path& file) {
  const Bytes bytes = readAtOnce(file.c_str());
  const char* at = bytes.data.get();
  const char* const end = at + bytes.size;
  TsvMap map;
  map.reserve(static_cast<std::size_t>(std::count(at, end, '\n')));
  while (at != end) {
    const char* const lineEnd = find(at, end, '\n');
    const char* const tab = find(at, lineEnd, '\t');
    if (tab != lineEnd) {
      map.emplace(field(at, tab), field(tab + 1, lineEnd));
    }
    at = lineEnd == end ? end : lineEnd + 1;
  }
  return map;
}

}  // namespace orvanta::bench
