#pragma once

#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "ReferenceReader.h"

namespace orvanta::fuzz {

/// One damage: the bytes from `begin` to `end` of a table replaced by others.
struct Edit {
  const char* kind;
  std::size_t begin;
  std::size_t end;
  std::string replacement;
  std::size_t copiedBegin = 0;  ///< Where the replacement was copied from, if it was.
  std::size_t copiedEnd = 0;

  [[nodiscard]] std::string appliedTo(std::string_view text) const {
    return std::string(text.substr(0, begin)) + replacement + std::string(text.substr(end));
  }

  /// Whether the edit changes the statement or inserts characters into it. Characters inserted
  /// right before a key without quotes become part of it.
  [[nodiscard]] bool hits(const Statement& statement) const noexcept {
    return begin < statement.end &&
           (statement.begin < end ||
            (statement.begin == end && (begin == end || !statement.isQuoted)));
  }

  [[nodiscard]] bool copies(const Statement& statement) const noexcept {
    return statement.begin < copiedEnd && copiedBegin < statement.end;
  }
};

/// Deletes, inserts or replaces a byte or a token, cuts off, joins two places, or copies a piece.
[[nodiscard]] Edit inventEdit(std::mt19937& random, std::string_view text);

}  // namespace orvanta::fuzz
