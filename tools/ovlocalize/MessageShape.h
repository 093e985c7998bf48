#pragma once

#include <map>
#include <optional>
#include <set>
#include <string_view>
#include <vector>

#include <orvanta/messages/PluralKeyword.h>
#include <orvanta/messages/pattern/MessagePattern.h>

namespace ovlocalize {

/// What a message asks of one argument.
struct ArgumentShape {
  bool isNumber = false;                   ///< A plural or an ordinal is chosen by it.
  bool isSelect = false;                   ///< A select is.
  std::set<std::string_view> selectors{};  ///< Of the select, without "other".
};

/// One plural or selectordinal of a message.
struct PluralShape {
  std::string_view argument;
  orvanta::PluralType type = orvanta::PluralType::cardinal;
  double offset = 0;
  std::set<std::string_view> keywords{};  ///< Of its branches, "other" among them.
  std::set<double> numbers{};             ///< Of its branches such as "=3".
};

/// What a text is as a message of `localizedMessageForKey`. Views the text.
///
/// A strings file does not say which texts are messages. One counts as a message when it is a valid
/// pattern with an argument in it ("{name}"), or when a choice opens in it ("{name, plural,"),
/// valid or not. Any other text with braces is plain text.
struct MessageShape {
  bool isMessage = false;
  std::optional<orvanta::PatternError> error;           ///< Of a text that is no valid pattern.
  std::map<std::string_view, ArgumentShape> arguments;  ///< By name. None after an error.
  std::vector<PluralShape> plurals;                     ///< In the order of the text.
};

[[nodiscard]] MessageShape messageShapeOf(std::string_view text);

}  // namespace ovlocalize
