#pragma once

#include <string>
#include <string_view>

#include <orvanta/cache/Utf16Writer.h>
#include <orvanta/platform/FileManager.h>

namespace orvanta::test {

/// A file that keeps in memory what is written.
class MemoryFile final : public platform::WritableFile {
 public:
  platform::FileOutcome write(std::string_view written) override {
    bytes += written;
    return {};
  }
  platform::FileOutcome sync() override { return {}; }
  platform::FileOutcome close() override { return {}; }

  std::string bytes;
};

/// What a file of this text holds; empty when the text cannot be written.
inline std::string writtenAsUtf16(std::string_view utf8) {
  MemoryFile file;
  Utf16Writer writer(file);
  writer.append(utf8);
  return writer.finish() ? "" : file.bytes;
}

}  // namespace orvanta::test
