#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

#include <orvanta/strings/probe/TextUnits.h>

namespace orvanta::strings {

/// The unescaped double quotes of a text, in order.
///
/// Finds them a block at a time without a branch for each, because their distances cannot be
/// predicted (benchmark row startup-configured-last).
template <typename Text>
class QuoteIndex {
 public:
  static constexpr std::size_t kNone = static_cast<std::size_t>(-1);

  explicit QuoteIndex(Text text) noexcept : text_(text) {}

  /// The index of the next quote, `kNone` at the end of the text. Does not consume it.
  [[nodiscard]] std::size_t peek() noexcept {
    if (at_ == count_) [[unlikely]] {
      fill();
    }
    return found_[at_];
  }
  void drop() noexcept { ++at_; }

  /// Drops the quotes before `index`, and a quote at `index`. Whether there was one at `index`.
  [[nodiscard]] bool takeAt(std::size_t index) noexcept {
    while (peek() < index) {
      drop();
    }
    const bool isThere = peek() == index;
    at_ += isThere ? 1 : 0;
    return isThere;
  }

 private:
  using Unit = typename Text::Unit;

  static constexpr std::size_t kBlock = 64;
  static constexpr std::size_t kEnough = 128;

  // One bit for each unit of a block that is a quote or a backslash, and whether any is a
  // backslash.
  struct Marks {
    std::uint64_t bits = 0;
    bool haveBackslash = false;
  };

  void fill() noexcept {
    at_ = 0;
    count_ = 0;
    while (count_ < kEnough && next_ < text_.size()) {
      addBlock();
    }
    if (count_ == 0) {
      found_[count_++] = kNone;
    }
  }

  void addBlock() noexcept {
    const bool isWhole = text_.size() - next_ >= kBlock;
    const Marks marks = isWhole ? marksInBlock(next_) : marksInRest(next_);
    std::uint64_t quotes = marks.bits;
    if (marks.haveBackslash || isEscaped_) [[unlikely]] {
      quotes = withoutEscaped(marks.bits);
    }
    // Most blocks have at most this many quotes. So many are always written; `more` of them count.
    // Counting them here is faster than `std::popcount`, which is a function call unless the
    // compiler may assume the instruction.
    constexpr std::size_t kUsual = 4;
    std::size_t* const out = found_.data() + count_;
    std::size_t more = 0;
    for (std::size_t number = 0; number < kUsual; ++number) {
      out[number] = next_ + static_cast<std::size_t>(std::countr_zero(quotes));
      more += quotes != 0 ? 1 : 0;
      quotes &= quotes - 1;
    }
    while (quotes != 0) {
      out[more++] = next_ + static_cast<std::size_t>(std::countr_zero(quotes));
      quotes &= quotes - 1;
    }
    count_ += more;
    next_ += kBlock;
  }

  // The quotes without the escaped ones. Remembers whether the first unit of the next block is
  // escaped.
  [[nodiscard]] std::uint64_t withoutEscaped(std::uint64_t marks) noexcept {
    marks &= isEscaped_ ? ~std::uint64_t{1} : ~std::uint64_t{0};
    isEscaped_ = false;
    std::uint64_t quotes = marks;
    while (marks != 0) {
      const auto at = static_cast<std::size_t>(std::countr_zero(marks));
      marks &= marks - 1;
      if (text_.unitAt(next_ + at) == Text::unitOf('\\')) {
        const std::uint64_t backslash = std::uint64_t{1} << at;
        const std::uint64_t escaped = backslash << 1;  // 0 at the end of the block.
        quotes &= ~(backslash | escaped);
        marks &= ~escaped;
        isEscaped_ = escaped == 0;
      }
    }
    return quotes;
  }

  [[nodiscard]] Marks marksInRest(std::size_t begin) const noexcept {
    Marks marks;
    const std::size_t end = std::min(begin + kBlock, text_.size());
    for (std::size_t index = begin; index < end; ++index) {
      const bool isBackslash = text_.unitAt(index) == Text::unitOf('\\');
      const bool isMark = isBackslash || text_.unitAt(index) == Text::unitOf('"');
      marks.bits |= std::uint64_t{isMark} << (index - begin);
      marks.haveBackslash = marks.haveBackslash || isBackslash;
    }
    return marks;
  }

#ifdef __SSE2__
  [[nodiscard]] Marks marksInBlock(std::size_t begin) const noexcept {
    const char* const block = text_.bytes().data() + begin * sizeof(Unit);
    Marks marks;
    __m128i backslashes = _mm_setzero_si128();
    for (std::size_t part = 0; part < kBlock; part += sizeof(__m128i)) {
      const __m128i bits = marksInVector(block + part * sizeof(Unit), backslashes);
      marks.bits |= std::uint64_t{static_cast<unsigned>(_mm_movemask_epi8(bits))} << part;
    }
    marks.haveBackslash = _mm_movemask_epi8(backslashes) != 0;
    return marks;
  }

  // All ones in the byte of each quote and backslash among 16 units.
  static __m128i marksInVector(const char* units, __m128i& backslashes) noexcept {
    const auto load = [units](std::size_t offset) {
      return _mm_loadu_si128(reinterpret_cast<const __m128i*>(units + offset));
    };
    const auto mark = [&backslashes](__m128i vector) {
      __m128i isBackslash;
      __m128i isQuote;
      if constexpr (sizeof(Unit) == 1) {
        isBackslash = _mm_cmpeq_epi8(vector, _mm_set1_epi8('\\'));
        isQuote = _mm_cmpeq_epi8(vector, _mm_set1_epi8('"'));
      } else {
        isBackslash =
            _mm_cmpeq_epi16(vector, _mm_set1_epi16(static_cast<short>(Text::unitOf('\\'))));
        isQuote = _mm_cmpeq_epi16(vector, _mm_set1_epi16(static_cast<short>(Text::unitOf('"'))));
      }
      backslashes = _mm_or_si128(backslashes, isBackslash);
      return _mm_or_si128(isBackslash, isQuote);
    };
    if constexpr (sizeof(Unit) == 1) {
      return mark(load(0));
    } else {
      return _mm_packs_epi16(mark(load(0)), mark(load(sizeof(__m128i))));
    }
  }
#else
  [[nodiscard]] Marks marksInBlock(std::size_t begin) const noexcept {
    return marksInRest(begin);
  }
#endif

  Text text_;
  std::size_t next_ = 0;  // Where the next block begins.
  bool isEscaped_ = false;
  std::size_t at_ = 0;
  std::size_t count_ = 0;
  std::array<std::size_t, kEnough + kBlock> found_ = {};
};

}  // namespace orvanta::strings
