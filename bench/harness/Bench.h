#pragma once

#include <filesystem>
#include <string_view>

#include "harness/Files.h"
#include "harness/Report.h"

namespace orvanta::bench {

/// What a family of rows runs in.
class Bench {
 public:
  explicit Bench(std::filesystem::path scratch) : scratch_(std::move(scratch)) {}

  /// A folder for the files of one family.
  [[nodiscard]] ScratchFolder folder(std::string_view family) const {
    return ScratchFolder(scratch_ / family);
  }

  /// Measures a row and adds it to the report.
  void run(const Row& row);

  [[nodiscard]] Report& report() noexcept { return report_; }

 private:
  std::filesystem::path scratch_;
  Report report_;
};

}  // namespace orvanta::bench
