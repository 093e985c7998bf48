#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace orvanta::bench {

/// A folder for a row's files, empty at first; it goes with the object.
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

/// Writes the file and the folders above it. Throws when it cannot.
void writeFile(const std::filesystem::path& file, std::string_view bytes);

/// The bytes of a file, read in one go. Throws when it cannot.
[[nodiscard]] std::string readFile(const std::filesystem::path& file);

/// Runs a program to its end. Throws when it fails; its output is shown then.
void runTool(const std::vector<std::string>& command);

}  // namespace orvanta::bench
