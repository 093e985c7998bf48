#include "harness/Report.h"

#include <algorithm>
#include <array>
#include <iomanip>
#include <ostream>
#include <span>
#include <sstream>
#include <string>

#include "harness/Files.h"

namespace orvanta::bench {

namespace {

struct Unit {
  double size;
  const char* name;
};

std::string withUnit(double value, std::span<const Unit> units) {
  const auto unit = std::find_if(units.begin(), units.end() - 1,
                                 [&](const Unit& candidate) { return value >= candidate.size; });
  std::ostringstream text;
  text << std::setprecision(value / unit->size < 1000 ? 3 : 4) << value / unit->size << ' '
       << unit->name;
  return text.str();
}

std::string asTime(double nanoseconds) {
  static constexpr std::array kUnits = {Unit{1e9, "s"}, Unit{1e6, "ms"}, Unit{1e3, "µs"},
                                        Unit{1, "ns"}};
  return withUnit(nanoseconds, kUnits);
}

std::string asBytes(double bytes) {
  static constexpr std::array kUnits = {Unit{1e6, "MB"}, Unit{1e3, "kB"}, Unit{1, "B"}};
  return withUnit(bytes, kUnits);
}

std::string asNumber(double number, int digits) {
  std::ostringstream text;
  text << std::fixed << std::setprecision(digits) << number;
  return text.str();
}

std::string asCount(double count) {
  return asNumber(count, count == static_cast<double>(static_cast<std::int64_t>(count)) ? 0 : 2);
}

double costOf(const Measurement& measurement) {
  return measurement.bytes > 0 ? measurement.bytes : measurement.median;
}

const Measurement* contenderNamed(const std::vector<Measurement>& measurements,
                                  std::string_view name) {
  const auto found =
      std::find_if(measurements.begin(), measurements.end(),
                   [&](const Measurement& candidate) { return candidate.contender == name; });
  return found == measurements.end() ? nullptr : &*found;
}

// The divisor of ratios: the cost of the floor, or of the cheapest peer.
double referenceCost(const Row& row, const std::vector<Measurement>& measurements) {
  const Measurement* floor = contenderNamed(measurements, kFloor);
  double least = floor == nullptr ? 0 : costOf(*floor);
  for (const Measurement& peer : measurements) {
    if (floor == nullptr && peer.contender != kOurs && peer.contender != row.base) {
      least = least == 0 ? costOf(peer) : std::min(least, costOf(peer));
    }
  }
  return least;
}

double ratioOf(const Measurement& measurement, const Row& row,
               const std::vector<Measurement>& measurements) {
  const Measurement* base = contenderNamed(measurements, row.base);
  const double offset = base == nullptr ? 0 : costOf(*base);
  const double reference = referenceCost(row, measurements) - offset;
  return reference <= 0 ? 0 : (costOf(measurement) - offset) / reference;
}

std::string goalOf(const Row& row) {
  std::string goal = row.goal ? asNumber(*row.goal, 2) : "";
  if (row.goal && row.mostAllocations) {
    goal += *row.mostAllocations == 0 ? ", no allocation"
                                      : ", allocations at most " + asCount(*row.mostAllocations);
  }
  return goal;
}

bool isMet(const Row& row, const Measurement& ours, double ratio) {
  return ratio <= *row.goal && (!row.mostAllocations || ours.allocations <= *row.mostAllocations);
}

}  // namespace

void Report::add(const Row& row, std::vector<Measurement> measurements) {
  Row described = row;
  described.contenders.clear();
  results_.push_back({std::move(described), std::move(measurements)});
}

void Report::printTable(std::ostream& out) const {
  out << "| row | contender | median | min – max | allocations | ratio | goal | met |\n"
         "|---|---|--:|--:|--:|--:|--:|---|\n";
  for (const auto& [row, measurements] : results_) {
    for (const Measurement& measurement : measurements) {
      const bool isMemory = measurement.bytes > 0;
      const double ratio = ratioOf(measurement, row, measurements);
      const bool hasGoal = row.goal && measurement.contender == kOurs && ratio > 0;
      out << "| " << row.name << " | " << measurement.contender << " | "
          << (isMemory ? asBytes(measurement.bytes) : asTime(measurement.median)) << " | "
          << (isMemory ? "" : asTime(measurement.least) + " – " + asTime(measurement.most)) << " | "
          << (isMemory ? "" : asCount(measurement.allocations)) << " | " << asNumber(ratio, 2)
          << " | " << (hasGoal ? goalOf(row) : "") << " | "
          << (!hasGoal                         ? ""
              : isMet(row, measurement, ratio) ? "yes"
                                               : "NO")
          << " |\n";
    }
  }
}

void Report::printGrowth(std::ostream& out) const {
  out << "| row | works on | took | for each |\n|---|--:|--:|--:|\n";
  for (const auto& [row, measurements] : results_) {
    const Measurement* ours = contenderNamed(measurements, kOurs);
    if (row.amount && ours != nullptr) {
      const auto& [count, unit, isShared] = *row.amount;
      out << "| " << row.name << " | " << asNumber(count, 0) << ' ' << unit << " | "
          << asTime(ours->median) << " | " << (isShared ? asTime(ours->median / count) : "flat")
          << " |\n";
    }
  }
}

void Report::writeJson(const std::filesystem::path& file) const {
  std::ostringstream out;
  out << std::setprecision(12) << '[';
  const char* separator = "\n";
  for (const auto& [row, measurements] : results_) {
    for (const Measurement& measurement : measurements) {
      out << separator << R"(  {"row": ")" << row.name << R"(", "contender": ")"
          << measurement.contender << R"(", "median_ns": )" << measurement.median
          << R"(, "min_ns": )" << measurement.least << R"(, "max_ns": )" << measurement.most
          << R"(, "allocs": )" << measurement.allocations << R"(, "ratio": )"
          << ratioOf(measurement, row, measurements);
      if (measurement.bytes > 0) {
        out << R"(, "bytes": )" << measurement.bytes;
      }
      out << '}';
      separator = ",\n";
    }
  }
  out << "\n]\n";
  writeFile(file, out.str());
}

}  // namespace orvanta::bench
