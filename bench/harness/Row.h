#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orvanta::bench {

/// The names that ratios and goals go by.
inline constexpr std::string_view kFloor = "floor";
inline constexpr std::string_view kOurs = "orvanta";

/// One way of doing a row's job.
struct Contender {
  std::string name;
  /// Compares every answer with the expected text; throws `WrongAnswer`.
  std::function<void()> check;
  /// What is timed: the row's operations, all of them once.
  std::function<void()> round;
  /// Sets the stage before a round, untimed; may be absent.
  std::function<void()> prepare = {};
};

/// How much of something one operation works on, to show how the cost grows with it.
struct Amount {
  double count;
  std::string_view unit;
  bool isShared = true;  ///< The cost is expected to be so much for each; else to be flat.
};

/// One job that several contenders do on the same data.
struct Row {
  std::string name;
  std::size_t operations = 1;  ///< In a contender's round.
  std::size_t passes = 1;      ///< Rounds that are timed as one, where a single one is too short.
  int samples = 21;            ///< Times that each contender is timed.
  /// A round goes untimed before each timing, so that no contender is timed with the caches that
  /// the one before it left.
  bool warmUp = false;
  std::optional<double> goal = {};  ///< The ratio that we are to reach.
  /// A contender that does nothing but what all of them must: its cost is taken off every other
  /// one's before a ratio is made. The ratio of a row without a floor is to its fastest peer.
  std::string base = {};
  std::optional<double> mostAllocations = {};  ///< For an operation; part of the goal.
  std::optional<Amount> amount = {};
  std::vector<Contender> contenders = {};
};

/// Keeps the compiler from dropping what nobody reads.
template <typename Value>
void keep(const Value& value) {
  asm volatile("" : : "g"(&value) : "memory");
}

}  // namespace orvanta::bench
