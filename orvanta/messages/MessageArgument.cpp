#include <algorithm>
#include <charconv>
#include <cmath>

#include <orvanta/messages/MessageArgument.h>

namespace orvanta {

MessageValue::MessageValue(Decimal value) noexcept
    : kind_(Kind::real),
      fewestFractionDigits_(static_cast<std::int8_t>(std::clamp(value.fractionDigits, 0, 18))),
      mostFractionDigits_(fewestFractionDigits_),
      real_(value.value) {}

double MessageValue::approximately() const noexcept {
  switch (kind_) {
    case Kind::signedInteger:
      return static_cast<double>(signed_);
    case Kind::unsignedInteger:
      return static_cast<double>(unsigned_);
    case Kind::real:
      return real_;
    default:
      return std::nan("");
  }
}

const MessageValue* MessageArguments::find(std::string_view name) const noexcept {
  for (const MessageArgument& argument : arguments_) {
    if (!argument.name().empty() && argument.name() == name) {
      return argument.value().kind() == MessageValue::Kind::missing ? nullptr : &argument.value();
    }
  }
  std::size_t position = 0;
  const auto [end, error] = std::from_chars(name.data(), name.data() + name.size(), position);
  const bool isPosition = error == std::errc() && end == name.data() + name.size();
  return isPosition && position < arguments_.size() && arguments_[position].name().empty()
             ? at(position)
             : nullptr;
}

const MessageValue* MessageArguments::at(std::size_t position) const noexcept {
  if (position >= arguments_.size() ||
      arguments_[position].value().kind() == MessageValue::Kind::missing) {
    return nullptr;
  }
  return &arguments_[position].value();
}

}  // namespace orvanta
