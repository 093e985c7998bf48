#pragma once

#include <filesystem>
#include <iosfwd>
#include <vector>

#include "harness/Measure.h"

namespace orvanta::bench {

/// The results of the rows, in the order in which they were measured.
class Report {
 public:
  void add(const Row& row, std::vector<Measurement> measurements);

  /// Prints every contender of every row with its ratio to the row's floor, and the goal for ours.
  void printTable(std::ostream& out) const;

  /// Prints our cost for each unit of a row's size, for the rows that have one.
  void printGrowth(std::ostream& out) const;

  void writeJson(const std::filesystem::path& file) const;

 private:
  struct Result {
    Row row;
    std::vector<Measurement> measurements;
  };
  std::vector<Result> results_;
};

}  // namespace orvanta::bench
