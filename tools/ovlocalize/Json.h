#pragma once

#include <nlohmann/json.hpp>

#include <orvanta/text/String.h>
#include <orvanta/text/StringList.h>

#include "Escaping.h"

namespace ovlocalize {

// Keeps the order in which keys are added. A look-up by key is linear.
using Json = nlohmann::ordered_json;

/// Text, or null when absent.
[[nodiscard]] inline Json toJson(const orvanta::String& text) {
  return text.isAbsent() ? Json(nullptr) : Json(text.str());
}

/// An array of text, or null when absent.
[[nodiscard]] inline Json toJson(const orvanta::StringList& list) {
  if (list.isAbsent()) {
    return nullptr;
  }
  Json array = Json::array();
  for (const orvanta::String& item : list) {
    array.push_back(toJson(item));
  }
  return array;
}

/// As text for a file, a pipe or a terminal; bytes that are not UTF-8 come out as U+FFFD.
[[nodiscard]] inline std::string printed(const Json& json) {
  return escapedJson(json.dump(2, ' ', false, Json::error_handler_t::replace));
}

}  // namespace ovlocalize
