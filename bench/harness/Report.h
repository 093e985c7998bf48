#pragma once

#include <filesystem>
#include <iosfwd>
#include <vector>

#include "harness/Measure.h"

namespace orvanta::bench {

/// What the rows gave, in the order in which they were measured.
class Report {
 public:
  void add(const Row& row, std::vector<Measurement> measurements);

  /// Every contender of every row, with its ratio to the row's floor and, for ours, the goal.
  void printTable(std::ostream& out) const;

  /// What our cost is for each unit of what a row works on, for the rows that say how much it is.
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
