#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orvanta::bench {

/// The names of contenders that ratios and goals refer to.
inline constexpr std::string_view kFloor = "floor";
inline constexpr std::string_view kOurs = "orvanta";

/// One implementation of a row's job.
struct Contender {
  std::string name;
  /// Compares every answer with the expected text; throws `WrongAnswer`.
  std::function<void()> check;
  /// The timed part: all operations of the row, once.
  std::function<void()> round;
  /// Prepares a round, untimed; may be empty.
  std::function<void()> prepare = {};
};

/// The size of what one operation works on, to show how the cost grows with it.
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
  /// Whether an untimed round precedes each timed one, so that no contender is timed with the
  /// caches that the previous one left.
  bool warmUp = false;
  std::optional<double> goal = {};  ///< The ratio that we are to reach.
  /// A contender that does only what all of them must do: its cost is subtracted from the others'
  /// before the ratio is computed. In a row without a floor the ratio is to the fastest peer.
  std::string base = {};
  std::optional<double> mostAllocations = {};  ///< For an operation; part of the goal.
  std::optional<Amount> amount = {};
  std::vector<Contender> contenders = {};
};

/// Keeps the compiler from removing a value that is not used.
template <typename Value>
void keep(const Value& value) {
  asm volatile("" : : "g"(&value) : "memory");
}

}  // namespace orvanta::bench
