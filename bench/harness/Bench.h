#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "harness/Files.h"
#include "harness/Report.h"

namespace orvanta::bench {

/// The environment of a family of rows.
class Bench {
 public:
  struct Options {
    std::filesystem::path scratch = std::filesystem::absolute("build/bench/data");
    std::string onlyContender;         ///< All others sit out, as a profiler wants it; empty: none.
    std::vector<std::string> rows;     ///< Those to be measured; all where empty.
    std::vector<std::string> without;  ///< Those to be left out.
  };

  explicit Bench(Options options) : options_(std::move(options)) {}

  /// Whether the row is to be measured. Its preparation can be skipped otherwise.
  [[nodiscard]] bool isWanted(std::string_view row) const;

  /// A folder for the files of one family.
  [[nodiscard]] ScratchFolder folder(std::string_view family) const {
    return ScratchFolder(options_.scratch / family);
  }

  /// Measures a row, if it is selected, and adds it to the report.
  void run(Row row);

  [[nodiscard]] Report& report() noexcept { return report_; }

 private:
  Options options_;
  Report report_;
};

}  // namespace orvanta::bench
