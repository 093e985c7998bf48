#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <system_error>

namespace orvanta::tests {

/// A folder of the test's own, gone with the object.
class TemporaryFolder {
 public:
  TemporaryFolder() {
    std::string name = std::filesystem::temp_directory_path() / "orvanta-XXXXXX";
    path_ = ::mkdtemp(name.data());
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }

  [[nodiscard]] const std::string& path() const { return path_; }
  [[nodiscard]] std::string path(std::string_view relative) const {
    return path_ + '/' + std::string(relative);
  }

  /// Writes a file, and the folders that it stands in.
  std::string write(std::string_view relative, std::string_view bytes) const {
    std::string file = path(relative);
    std::filesystem::create_directories(std::filesystem::path(file).parent_path());
    std::ofstream(file, std::ios::binary | std::ios::trunc) << bytes;
    return file;
  }

 private:
  std::string path_;
};

}  // namespace orvanta::tests
