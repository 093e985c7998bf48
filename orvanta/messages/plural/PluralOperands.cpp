#include <orvanta/messages/plural/PluralOperands.h>

namespace orvanta {

PluralOperands PluralOperands::of(std::string_view plainDigits) noexcept {
  constexpr std::uint64_t kLarge = 1'000'000'000'000'000'000;
  PluralOperands operands;
  if (plainDigits.starts_with('-')) {
    plainDigits.remove_prefix(1);
  }
  std::size_t at = 0;
  for (; at < plainDigits.size() && plainDigits[at] != '.'; ++at) {
    const std::uint64_t longer =
        operands.i * 10 + static_cast<std::uint64_t>(plainDigits[at] - '0');
    operands.i = longer < kLarge ? longer : kLarge + longer % kLarge;
  }
  for (++at; at < plainDigits.size(); ++at) {
    const auto digit = static_cast<std::uint64_t>(plainDigits[at] - '0');
    operands.f = operands.f * 10 + digit;
    ++operands.v;
    if (digit != 0) {
      operands.w = operands.v;
      operands.t = operands.f;
    }
  }
  return operands;
}

}  // namespace orvanta
