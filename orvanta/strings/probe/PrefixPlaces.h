#pragma once

#include <algorithm>
#include <cstddef>
#include <string_view>
#include <vector>

#include <orvanta/strings/probe/PrefixSearches.h>
#include <orvanta/strings/probe/TextUnits.h>

namespace orvanta::strings {

/// Finds the places of a prefix in a text, and of the escapes that may spell one of its characters.
/// Every key that begins with the prefix has such a place between its quotes.
template <typename Text>
class PrefixPlaces {
 public:
  /// `search` finds the prefix as it is encoded in the text.
  PrefixPlaces(Text text, const SampledSearch& search, const SpellingEscapes& escapes) noexcept
      : text_(text), search_(search), escapes_(escapes) {}

  /// Appends the places from `begin` to `end`, in units and in order, until `places` holds `most`.
  /// Leaves out places that overlap with the one before.
  void collect(std::size_t begin, std::size_t end, std::size_t most,
               std::vector<std::size_t>& places) const {
    // Small enough to stay in the first-level cache for the second search (benchmark row
    // startup-utf8).
    constexpr std::size_t kBlock = std::size_t{16} * 1024 / kUnitSize;
    while (begin < end && places.size() < most) {
      const std::size_t blockEnd = std::min(begin + kBlock, end);
      const std::size_t prefix = nextPrefix(begin, blockEnd);
      const std::size_t escape = nextEscape(begin, std::min(prefix, blockEnd));
      if (escape != kNone) {
        places.push_back(escape);
        begin = escape + 1;
      } else if (prefix != kNone) {
        places.push_back(prefix);
        begin = prefix + search_.longestPattern() / kUnitSize;
      } else {
        begin = blockEnd;
      }
    }
  }

 private:
  static constexpr std::size_t kNone = static_cast<std::size_t>(-1);
  static constexpr std::size_t kUnitSize = sizeof(typename Text::Unit);

  // The next prefix that begins before `end`.
  [[nodiscard]] std::size_t nextPrefix(std::size_t from, std::size_t end) const noexcept {
    const std::string_view bytes =
        text_.bytes().substr(0, end * kUnitSize + search_.longestPattern() - 1);
    const std::size_t found = search_.find(bytes, from * kUnitSize);
    return found == SampledSearch::kNone ? kNone : found / kUnitSize;
  }

  [[nodiscard]] std::size_t nextEscape(std::size_t from, std::size_t end) const noexcept {
    std::size_t at = nextBackslash(from, end);
    while (at != kNone && !(at + 1 < text_.size() && escapes_.has(text_.asciiAt(at + 1)))) {
      at = nextBackslash(at + 1, end);
    }
    return at;
  }

  // In UTF-16 the byte of a backslash is also half of many other units, mostly of Chinese
  // characters. Where one of those is found, a whole block without a backslash is skipped
  // (benchmark row startup-configured-some).
  [[nodiscard]] std::size_t nextBackslash(std::size_t from, std::size_t end) const noexcept {
    constexpr std::size_t kBlock = 128;
    const std::string_view bytes = text_.slice(0, end);
    std::size_t at = bytes.find('\\', from * kUnitSize);
    while (at != std::string_view::npos) {
      const std::size_t index = at / kUnitSize;
      if (text_.unitAt(index) == Text::unitOf('\\')) {
        return index;
      }
      const std::size_t blockEnd = std::min(index + kBlock, end);
      at = bytes.find('\\', (holdsBackslash(index, blockEnd) ? index + 1 : blockEnd) * kUnitSize);
    }
    return kNone;
  }

  // Without branches, so that compilers vectorize it.
  [[nodiscard]] bool holdsBackslash(std::size_t begin, std::size_t end) const noexcept {
    unsigned found = 0;
    for (std::size_t index = begin; index < end; ++index) {
      found |= text_.unitAt(index) == Text::unitOf('\\') ? 1U : 0U;
    }
    return found != 0;
  }

  Text text_;
  const SampledSearch& search_;
  const SpellingEscapes& escapes_;
};

}  // namespace orvanta::strings
