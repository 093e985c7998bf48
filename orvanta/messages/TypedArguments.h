#pragma once

#include <concepts>
#include <string>
#include <string_view>

#include <orvanta/messages/MessageArgument.h>
#include <orvanta/text/String.h>

namespace orvanta {

/// An argument by which a plural is chosen: a number, which a text does not convert to. The headers
/// that `ovlocalize header` writes take it.
class NumberArgument {
 public:
  // NOLINTBEGIN(google-explicit-constructor): numbers are what one writes as arguments.
  /// A whole number.
  template <MessageInteger T>
  NumberArgument(T value) noexcept : value_(value) {}
  /// A real number.
  template <std::floating_point T>
  NumberArgument(T value) noexcept : value_(value) {}
  /// A number with digits behind the point.
  NumberArgument(Decimal value) noexcept : value_(value) {}
  // NOLINTEND(google-explicit-constructor)

  /// The number.
  [[nodiscard]] const MessageValue& value() const noexcept { return value_; }

 private:
  MessageValue value_;
};

/// An argument by which a select is chosen: a text, which a number does not convert to. Views the
/// text, which must live until the message is made.
class TextArgument {
 public:
  // NOLINTBEGIN(google-explicit-constructor): texts are what one writes as arguments.
  /// A text.
  TextArgument(std::string_view text) noexcept : value_(text) {}
  /// A text.
  TextArgument(const std::string& text) noexcept : value_(text) {}
  /// A text; missing for a null pointer.
  TextArgument(const char* text) noexcept : value_(text) {}
  /// A text; missing when it is absent.
  TextArgument(const String& text) noexcept : value_(text) {}
  // NOLINTEND(google-explicit-constructor)

  /// The text.
  [[nodiscard]] const MessageValue& value() const noexcept { return value_; }

 private:
  MessageValue value_;
};

}  // namespace orvanta
