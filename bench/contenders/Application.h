#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

#include <orvanta/platform/Platform.h>
#include <orvanta/standard/RunLoop.h>

#include "data/Corpus.h"

namespace orvanta::bench {

using TableForm = std::string (*)(const Table& table);

/// An application on disk that uses our library: its main bundle's folder and its caches folder.
class Application {
 public:
  explicit Application(std::filesystem::path folder) : folder_(std::move(folder)) {}

  void ship(std::string_view language, const Table& table, TableForm form) const;

  [[nodiscard]] std::filesystem::path languageFolder(std::string_view language) const;
  [[nodiscard]] std::filesystem::path tableFile(std::string_view language) const;
  [[nodiscard]] std::filesystem::path cachesFolder() const { return folder_ / "Caches"; }

  /// A standard platform for this application on a device set to `language`. Reads nothing yet.
  /// Uses `loop` as main queue if one is given, and discards log messages.
  [[nodiscard]] platform::Platform makePlatform(
      std::string_view language, std::shared_ptr<standard::RunLoop> loop = nullptr) const;

 private:
  std::filesystem::path folder_;
};

}  // namespace orvanta::bench
