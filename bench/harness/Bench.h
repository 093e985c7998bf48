#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <utility>

#include "harness/Files.h"
#include "harness/Report.h"

namespace orvanta::bench {

/// What a family of rows runs in.
class Bench {
 public:
  /// With a name for `contender`, all others sit out, as a profiler wants it.
  explicit Bench(std::filesystem::path scratch, std::string contender = {})
      : scratch_(std::move(scratch)), onlyContender_(std::move(contender)) {}

  /// A folder for the files of one family.
  [[nodiscard]] ScratchFolder folder(std::string_view family) const {
    return ScratchFolder(scratch_ / family);
  }

  /// Measures a row and adds it to the report.
  void run(Row row);

  [[nodiscard]] Report& report() noexcept { return report_; }

 private:
  std::filesystem::path scratch_;
  std::string onlyContender_;
  Report report_;
};

}  // namespace orvanta::bench
