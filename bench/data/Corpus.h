#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "data/Languages.h"

namespace orvanta::bench {

struct Entry {
  std::string key;
  std::string value;
};

/// One language's strings.
using Table = std::vector<Entry>;

/// Distinct keys of 20 to 60 characters: words joined by dots. A longer list begins with the
/// shorter one.
[[nodiscard]] std::vector<std::string> makeKeys(std::size_t count);

/// A value of 20 to 120 characters for each key, in the language's script; some with placeholders,
/// line breaks or emoji. In most scripts no value is pure ASCII; in English most are.
[[nodiscard]] Table makeTable(const Language& language, const std::vector<std::string>& keys);

/// The bytes of all keys and values.
[[nodiscard]] std::size_t textBytes(const Table& table);

}  // namespace orvanta::bench
