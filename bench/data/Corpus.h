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

/// Different keys of 20 to 60 characters, words with dots between; a longer list begins with the
/// shorter one.
[[nodiscard]] std::vector<std::string> makeKeys(std::size_t count);

/// A value of 20 to 120 characters for each key, in the language's script: part of them with
/// placeholders, line breaks, emoji. No value is ASCII alone in most scripts, most are in English.
[[nodiscard]] Table makeTable(const Language& language, const std::vector<std::string>& keys);

/// The bytes of all keys and values.
[[nodiscard]] std::size_t textBytes(const Table& table);

}  // namespace orvanta::bench
