#pragma once

#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace orvanta::fuzz {

/// A key and a value as written in a file, with their quotes.
struct RawPair {
  std::string key;
  std::string value;
};

/// The layout of a table's statements. "K" and "V" stand for a key and a value.
struct Layout {
  const char* name;
  std::string head;
  std::string statement;
  std::string tail;
};

enum class Group { kOrdinary, kSignOnNextLine, kOneLine, kCollections };

[[nodiscard]] const std::vector<Layout>& layoutsOf(Group group);

[[nodiscard]] std::string layOut(const Layout& layout, const std::vector<RawPair>& pairs);

/// `count` typical pairs with distinct keys and values.
[[nodiscard]] std::vector<RawPair> inventPairs(std::mt19937& random, std::size_t count);

/// A value that is a dictionary or an array; its keys begin with `kInnerKey`.
[[nodiscard]] std::string inventCollection(std::mt19937& random);
inline constexpr std::string_view kInnerKey = "inner";

/// A number below `limit`, the same on every system.
[[nodiscard]] inline std::size_t below(std::mt19937& random, std::size_t limit) {
  return static_cast<std::size_t>(random()) % limit;
}

}  // namespace orvanta::fuzz
