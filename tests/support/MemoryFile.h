#pragma once

#include <string>
#include <string_view>

#include <orvanta/platform/FileManager.h>
#include <orvanta/strings/writer/Utf16Writer.h>

namespace orvanta::test {

/// A file that keeps in memory what is written.
class MemoryFile final : public platform::WritableFile {
 public:
  FileOutcome write(std::string_view written) override {
    bytes += written;
    return {};
  }
  FileOutcome sync() override { return {}; }
  FileOutcome close() override { return {}; }

  std::string bytes;
};

/// What a file of this text holds; empty when the text cannot be written.
inline std::string writtenAsUtf16(std::string_view utf8) {
  MemoryFile file;
  strings::Utf16Writer writer(file);
  writer.append(utf8);
  return writer.finish() ? "" : file.bytes;
}

}  // namespace orvanta::test
