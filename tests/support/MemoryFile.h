#pragma once

#include <string>
#include <string_view>

#include <orvanta/strings/ByteSink.h>
#include <orvanta/strings/writer/StringsFile.h>

namespace orvanta::test {

/// A writable file in memory.
class MemoryFile final : public strings::ByteSink {
 public:
  Status write(std::string_view written) override {
    bytes += written;
    return {};
  }

  std::string bytes;
};

/// The bytes of a strings file with this text; empty when the text cannot be written.
inline std::string writtenAsUtf16(std::string_view utf8) {
  MemoryFile file;
  return strings::writeStringsFile(utf8, file).ok() ? file.bytes : "";
}

}  // namespace orvanta::test
