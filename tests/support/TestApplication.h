#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <orvanta/platform/Platform.h>
#include <orvanta/standard/Environment.h>
#include <orvanta/standard/RunLoop.h>
#include <orvanta/standard/StandardPlatform.h>

namespace orvanta::test {

using Strings = std::map<std::string, std::string>;

/// The tables of shipped languages, by name.
using Languages = std::map<std::string, Strings>;

/// A temporary folder, removed with the object. Its name contains a blank and a non-ASCII letter,
/// so that every test covers such paths.
class ScratchFolder {
 public:
  ScratchFolder() {
    std::string name = std::filesystem::temp_directory_path() / "orvanta tést XXXXXX";
    path_ = mkdtemp(name.data());
  }
  ~ScratchFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;

  [[nodiscard]] const std::filesystem::path& path() const { return path_; }

 private:
  std::filesystem::path path_;
};

inline void writeFile(const std::filesystem::path& file, std::string_view text) {
  std::filesystem::create_directories(file.parent_path());
  std::ofstream(file, std::ios::binary) << text;
}

inline std::string contentsOf(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

inline void writeTable(const std::filesystem::path& folder, const Strings& strings) {
  std::string text;
  for (const auto& [key, value] : strings) {
    text.append("\"").append(key).append("\" = \"").append(value).append("\";\n");
  }
  writeFile(folder / "Localizable.strings", text);
}

/// An environment of these variables alone.
inline standard::Environment environmentOf(const std::map<std::string, const char*>& variables) {
  return [variables](const char* name) {
    const auto found = variables.find(name);
    return found == variables.end() ? String() : String(found->second);
  };
}

/// An application with its own bundle and caches. Installs a standard platform for itself.
class TestApplication {
 public:
  explicit TestApplication(const Languages& shipped = {},
                           std::vector<std::string> deviceLanguages = {"en"},
                           platform::Platform replacements = {}) {
    std::filesystem::create_directories(bundle());
    for (const auto& [language, strings] : shipped) {
      ship(language, strings);
    }
    standard::StandardOptions options;
    options.mainBundlePath = bundle();
    options.cachesPath = caches();
    options.deviceLanguages = std::move(deviceLanguages);
    options.systemVersion = platform::OperatingSystemVersion{9, 0, 0};
    options.logSink = [this](std::string_view line) { log.emplace_back(line); };
    loop = standard::RunLoop::make();
    if (replacements.mainQueue == nullptr) {
      replacements.mainQueue = loop;
    }
    platform::Platform::install(standard::makeStandardPlatform(options, std::move(replacements)));
  }

  [[nodiscard]] std::filesystem::path bundle() const { return scratch_.path() / "App"; }
  [[nodiscard]] std::filesystem::path caches() const { return scratch_.path() / "Caches"; }
  [[nodiscard]] std::filesystem::path cacheFolder() const {
    return caches() / "OrvantaLocalizations";
  }

  void ship(const std::string& language, const Strings& strings) const {
    writeTable(bundle() / (language + ".lproj"), strings);
  }
  void download(const std::string& language, const Strings& strings) const {
    writeTable(cacheFolder() / (language + ".lproj"), strings);
  }

  std::vector<std::string> log;
  std::shared_ptr<standard::RunLoop> loop;

 private:
  ScratchFolder scratch_;
};

}  // namespace orvanta::test
