#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace orvanta::bench {

/// A temporary folder for a row's files. Empty at first, removed with the object.
class ScratchFolder {
 public:
  explicit ScratchFolder(std::filesystem::path path);
  ~ScratchFolder();
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;

  [[nodiscard]] const std::filesystem::path& path() const noexcept { return path_; }

 private:
  std::filesystem::path path_;
};

/// Writes the file and makes its parent folders. Throws on failure.
void writeFile(const std::filesystem::path& file, std::string_view bytes);

/// The bytes of a file. Throws when it cannot be read.
[[nodiscard]] std::string readFile(const std::filesystem::path& file);

/// Runs a program and waits for it. When it fails, shows its output and throws.
void runTool(const std::vector<std::string>& command);

}  // namespace orvanta::bench
