#include <algorithm>
#include <charconv>
#include <cmath>
#include <iterator>
#include <limits>

#include <orvanta/messages/PlainNumber.h>

namespace orvanta {

namespace {

// The shortest digits that tell a finite double from its neighbours, and how many of them stand
// before the point: 3 for 123.4, -2 for 0.00123.
class ShortestDigits {
 public:
  explicit ShortestDigits(double absolute) {
    char characters[32];
    const char* const end =
        std::to_chars(characters, std::end(characters), absolute, std::chars_format::scientific)
            .ptr;
    const std::string_view scientific(characters, static_cast<std::size_t>(end - characters));
    const std::size_t exponent = scientific.find('e');
    for (const char character : scientific.substr(0, exponent)) {
      if (character != '.') {
        digits_[count_++] = character;
      }
    }
    const bool hasPlus = scientific[exponent + 1] == '+';
    std::from_chars(characters + exponent + (hasPlus ? 2 : 1), end, beforePoint_);
    ++beforePoint_;
  }

  // Leaves at most so many digits behind the point.
  void round(int fractionDigits) {
    const int kept = beforePoint_ + fractionDigits;
    if (kept >= count_) {
      return;
    }
    if (kept < 0) {
      count_ = 0;
      return;
    }
    const bool isUp = isRoundedUp(kept);
    count_ = kept;
    if (isUp) {
      carryInto(kept);
    }
    while (count_ > 0 && digits_[count_ - 1] == '0') {
      --count_;
    }
  }

  [[nodiscard]] bool isZero() const noexcept { return count_ == 0 || digits_[0] == '0'; }
  [[nodiscard]] int beforePoint() const noexcept { return isZero() ? 1 : beforePoint_; }
  [[nodiscard]] int behindPoint() const noexcept {
    return isZero() ? 0 : std::max(0, count_ - beforePoint_);
  }
  // The digit at a place counted from the first one; zeros where there is none.
  [[nodiscard]] char at(int place) const noexcept {
    return !isZero() && place >= 0 && place < count_ ? digits_[place] : '0';
  }

 private:
  [[nodiscard]] bool isRoundedUp(int kept) const noexcept {
    if (digits_[kept] != '5' || kept + 1 < count_) {
      return digits_[kept] >= '5';
    }
    return kept > 0 && (digits_[kept - 1] - '0') % 2 == 1;
  }

  void carryInto(int kept) noexcept {
    int at = kept;
    while (at > 0 && digits_[at - 1] == '9') {
      digits_[--at] = '0';
    }
    if (at > 0) {
      ++digits_[at - 1];
    } else {
      digits_[0] = '1';
      count_ = 1;
      ++beforePoint_;
    }
  }

  char digits_[24];
  int count_ = 0;
  int beforePoint_ = 0;
};

// Absent where the offset is no whole number, or the difference leaves the type.
template <typename Integer>
bool subtract(Integer value, double offset, Integer& difference) {
  constexpr double kExact = 1LL << 53;
  if (!(std::abs(offset) <= kExact) || offset != std::trunc(offset)) {
    return false;
  }
  const auto whole = static_cast<std::int64_t>(offset);
  return !__builtin_sub_overflow(value, whole, &difference);
}

}  // namespace

PlainNumber::PlainNumber(const MessageValue& value, double offset) {
  std::int64_t signedDifference = 0;
  std::uint64_t unsignedDifference = 0;
  if (value.kind() == MessageValue::Kind::signedInteger &&
      subtract(value.signedInteger(), offset, signedDifference)) {
    writeInteger(signedDifference);
  } else if (value.kind() == MessageValue::Kind::unsignedInteger &&
             subtract(value.unsignedInteger(), offset, unsignedDifference)) {
    writeInteger(unsignedDifference);
  } else {
    writeReal(value.approximately() - offset, value.fewestFractionDigits(),
              value.mostFractionDigits());
  }
}

template <typename Integer>
void PlainNumber::writeInteger(Integer value) {
  size_ = static_cast<std::size_t>(std::to_chars(characters_, characters_ + kCapacity, value).ptr -
                                   characters_);
}

void PlainNumber::writeReal(double value, int fewestFractionDigits, int mostFractionDigits) {
  if (!std::isfinite(value)) {
    isFinite_ = false;
    append(std::isnan(value) ? "NaN" : value < 0 ? "-∞" : "∞");
    return;
  }
  ShortestDigits digits(std::abs(value));
  digits.round(mostFractionDigits);
  if (value < 0 && !digits.isZero()) {
    append('-');
  }
  const int whole = digits.beforePoint();
  if (whole <= 0) {
    append('0');
  }
  for (int place = 0; place < whole; ++place) {
    append(digits.at(place));
  }
  const int fraction = std::max(fewestFractionDigits, digits.behindPoint());
  if (fraction > 0) {
    append('.');
  }
  for (int place = 0; place < fraction; ++place) {
    append(digits.at(whole + place));
  }
}

void PlainNumber::append(std::string_view text) noexcept {
  std::copy(text.begin(), text.end(), characters_ + size_);
  size_ += text.size();
}

}  // namespace orvanta
