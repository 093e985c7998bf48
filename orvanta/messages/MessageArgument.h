#pragma once

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include <orvanta/Export.h>
#include <orvanta/text/String.h>

namespace orvanta {

/// A number that shows exactly so many digits behind the point, 18 at most: Decimal{1.5, 2} is
/// shown as "1.50", and "1.0 kilometres" can be plural where "1 kilometre" is not.
struct Decimal {
  /// Rounded to the digits that it shows, half to even.
  double value;
  /// How many digits it shows behind the point.
  int fractionDigits;
};

template <typename T>
concept MessageInteger = std::integral<T> && !std::same_as<T, bool> && !std::same_as<T, char> &&
                         !std::same_as<T, wchar_t> && !std::same_as<T, char8_t> &&
                         !std::same_as<T, char16_t> && !std::same_as<T, char32_t>;

/// What stands in a message in place of a placeholder: a number, a text, or nothing. Views its
/// text, which must live until the message is made.
class ORVANTA_EXPORT MessageValue {
 public:
  /// What the value is.
  enum class Kind : std::uint8_t { missing, signedInteger, unsignedInteger, real, text };

  /// Shown with at most so many digits behind the point, unless it is a `Decimal`.
  static constexpr int kMostFractionDigits = 3;

  // NOLINTBEGIN(google-explicit-constructor): numbers and texts are what one writes as arguments.
  /// An integer, shown with all its digits.
  template <MessageInteger T>
  requires std::signed_integral<T> MessageValue(T value)
  noexcept : kind_(Kind::signedInteger), signed_(value) {}
  /// An integer, shown with all its digits.
  template <MessageInteger T>
  requires std::unsigned_integral<T> MessageValue(T value)
  noexcept : kind_(Kind::unsignedInteger), unsigned_(value) {}
  /// A real number, rounded to `kMostFractionDigits` where it has more.
  template <std::floating_point T>
  MessageValue(T value) noexcept : kind_(Kind::real), real_(static_cast<double>(value)) {}
  /// A real number with a fixed number of digits behind the point.
  MessageValue(Decimal value) noexcept;
  /// A text, empty or not.
  MessageValue(std::string_view text) noexcept : kind_(Kind::text), text_(text) {}
  /// A text, empty or not.
  MessageValue(const std::string& text) noexcept : MessageValue(std::string_view(text)) {}
  /// Missing for a null pointer, and for an absent text.
  MessageValue(const char* text) noexcept
      : kind_(text == nullptr ? Kind::missing : Kind::text),
        text_(text == nullptr ? std::string_view() : text) {}
  /// Missing for an absent text.
  MessageValue(const String& text) noexcept
      : kind_(text.isAbsent() ? Kind::missing : Kind::text), text_(text.view()) {}
  // NOLINTEND(google-explicit-constructor)

  /// What the value is.
  [[nodiscard]] Kind kind() const noexcept { return kind_; }
  /// Whether it is an integer or a real number.
  [[nodiscard]] bool isNumber() const noexcept {
    return kind_ != Kind::missing && kind_ != Kind::text;
  }
  /// Whether it is an integer.
  [[nodiscard]] bool isInteger() const noexcept {
    return kind_ == Kind::signedInteger || kind_ == Kind::unsignedInteger;
  }

  /// Each for its own kind only.
  [[nodiscard]] std::int64_t signedInteger() const noexcept { return signed_; }
  /// For an unsigned integer only.
  [[nodiscard]] std::uint64_t unsignedInteger() const noexcept { return unsigned_; }
  /// For a real number only.
  [[nodiscard]] double real() const noexcept { return real_; }
  /// For a text only; valid as long as what the value was made from.
  [[nodiscard]] std::string_view text() const noexcept { return text_; }

  /// Any number, rounded where a double cannot hold it.
  [[nodiscard]] double approximately() const noexcept;

  /// Of a real number: the fewest and the most digits that it shows behind the point.
  [[nodiscard]] int fewestFractionDigits() const noexcept { return fewestFractionDigits_; }
  /// Of a real number: the most digits behind the point.
  [[nodiscard]] int mostFractionDigits() const noexcept { return mostFractionDigits_; }

 private:
  Kind kind_;
  std::int8_t fewestFractionDigits_ = 0;
  std::int8_t mostFractionDigits_ = kMostFractionDigits;
  union {
    std::int64_t signed_;
    std::uint64_t unsigned_;
    double real_;
    std::string_view text_;
  };
};

/// A value under the name by which a message asks for it. A value without a name is found by its
/// position in the list, counted from 0: "{0}".
class MessageArgument {
 public:
  /// A value that a message asks for by name; `name` is viewed, not copied.
  MessageArgument(std::string_view name, MessageValue value) noexcept
      : name_(name), value_(value) {}
  /// A value without a name.
  // NOLINTNEXTLINE(google-explicit-constructor): {3, "Ada"} is a list of arguments.
  template <std::convertible_to<MessageValue> T>
  MessageArgument(const T& value) noexcept : value_(value) {}

  /// Empty for a value without a name.
  [[nodiscard]] std::string_view name() const noexcept { return name_; }
  /// What takes the placeholder's place.
  [[nodiscard]] const MessageValue& value() const noexcept { return value_; }

 private:
  std::string_view name_;
  MessageValue value_;
};

/// The arguments of one message, as a view that lives as long as the call:
///
///     {{"count", 3}, {"name", "Ada"}}
class ORVANTA_EXPORT MessageArguments {
 public:
  // NOLINTBEGIN(google-explicit-constructor)
  /// Views the list, which must live as long as this.
  MessageArguments(std::initializer_list<MessageArgument> arguments) noexcept
      : arguments_(arguments.begin(), arguments.size()) {}
  /// Views the list, which must live as long as this.
  MessageArguments(std::span<const MessageArgument> arguments) noexcept : arguments_(arguments) {}
  /// Views the list, which must live as long as this.
  MessageArguments(const std::vector<MessageArgument>& arguments) noexcept
      : arguments_(arguments) {}
  // NOLINTEND(google-explicit-constructor)

  /// The first one of that name, else the one without a name at the position that `name` counts;
  /// null where there is none, or where it is missing.
  [[nodiscard]] const MessageValue* find(std::string_view name) const noexcept;
  /// Whatever its name is.
  [[nodiscard]] const MessageValue* at(std::size_t position) const noexcept;

 private:
  std::span<const MessageArgument> arguments_;
};

}  // namespace orvanta
