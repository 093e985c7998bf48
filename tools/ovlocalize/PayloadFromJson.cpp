#include "PayloadFromJson.h"

namespace ovlocalize {

namespace {

constexpr int kDeepest = 32;

orvanta::StringsPayload convert(const Json& json, int depth) {
  if (json.is_string()) {
    return orvanta::String(json.get_ref<const std::string&>());
  }
  if (!json.is_object() || depth == kDeepest) {
    return {};
  }
  auto dictionary = orvanta::StringsPayload::dictionary();
  for (const auto& [key, value] : json.items()) {
    dictionary.add(key, convert(value, depth + 1));
  }
  return dictionary;
}

}  // namespace

orvanta::StringsPayload payloadFromJson(const Json& json) {
  return convert(json, 0);
}

}  // namespace ovlocalize
