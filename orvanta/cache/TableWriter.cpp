#include <cerrno>
#include <cstdint>
#include <cstring>

#include <orvanta/cache/CacheConfinement.h>
#include <orvanta/cache/OVStringCacheUtilities.h>
#include <orvanta/cache/ReplacingWriter.h>
#include <orvanta/cache/TableWriter.h>
#include <orvanta/platform/PathString.h>
#include <orvanta/platform/Platform.h>
#include <orvanta/platform/Utf8.h>

namespace orvanta {

namespace {

using platform::FileError;
using platform::FileOutcome;
using platform::Platform;
using platform::URL;

char* put(char* out, char32_t unit) {
  *out++ = static_cast<char>(unit & 0xFF);
  *out++ = static_cast<char>(unit >> 8);
  return out;
}

bool isAsciiBlock(const char* bytes) {
  std::uint64_t block = 0;
  std::memcpy(&block, bytes, sizeof block);
  return (block & 0x8080808080808080) == 0;
}

FileOutcome replaceTable(const String& text, const String& path) {
  const std::optional<std::string> bytes = utf16WithByteOrderMark(text.view());
  if (!bytes) {
    return FileError{EILSEQ, "the table is not valid UTF-8"_s};
  }
  OVStringCacheUtilities::createDirectoryIfNeeded(
      URL::fileURLWithPath(path::stringByDeletingLastPathComponent(path), true));
  return replaceFile(*Platform::current().files, path, *bytes);
}

FileOutcome logged(FileOutcome outcome, const URL& file) {
  const std::string_view name =
      file.isAbsent() ? std::string_view("(null)") : file.absoluteString().view();
  std::string message = outcome ? "error saving strings file " : "file ";
  message += name;
  message += outcome ? "" : " written to cache";
  Platform::current().log->log(message);
  return outcome;
}

}  // namespace

std::optional<std::string> utf16WithByteOrderMark(std::string_view utf8) {
  std::string units(2 + 2 * utf8.size(), '\0');
  char* out = put(units.data(), 0xFEFF);
  while (!utf8.empty()) {
    if (utf8.size() >= 8 && isAsciiBlock(utf8.data())) {
      for (std::size_t index = 0; index < 8; ++index) {
        out = put(out, static_cast<unsigned char>(utf8[index]));
      }
      utf8.remove_prefix(8);
      continue;
    }
    const utf8::Decoded next = utf8::decode(utf8);
    if (!next.valid) {
      return std::nullopt;
    }
    if (next.codePoint > 0xFFFF) {
      out = put(out, 0xD800 + ((next.codePoint - 0x10000) >> 10));
      out = put(out, 0xDC00 + ((next.codePoint - 0x10000) & 0x3FF));
    } else {
      out = put(out, next.codePoint);
    }
    utf8.remove_prefix(next.length);
  }
  units.resize(static_cast<std::size_t>(out - units.data()));
  return units;
}

FileOutcome writeTable(const String& text, const URL& file) {
  const String path = file.path();
  return logged(path.isAbsent() ? FileError{EINVAL, "the URL is not that of a file"_s}
                                : replaceTable(text, path),
                file);
}

FileOutcome writeTableInside(const URL& folder, const String& text, const URL& file) {
  if (file.isAbsent()) {
    return logged(FileError{EINVAL, "no URL can hold this language's name"_s}, file);
  }
  const String path = confinedPath(*Platform::current().files, file, folder);
  return logged(path.isAbsent()
                    ? FileError{EPERM, "the file would not be inside the cache folder"_s}
                    : replaceTable(text, path),
                file);
}

}  // namespace orvanta
