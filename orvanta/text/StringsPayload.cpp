#include <algorithm>

#include <orvanta/text/StringsPayload.h>

namespace orvanta {

StringsPayload StringsPayload::dictionary(std::vector<Entry> entries) {
  StringsPayload payload;
  payload.isDictionary_ = true;
  payload.entries_ = std::move(entries);
  return payload;
}

void StringsPayload::add(String key, StringsPayload value) {
  isDictionary_ = true;
  text_ = {};
  entries_.emplace_back(std::move(key), std::move(value));
}

const StringsPayload* StringsPayload::valueForKey(std::string_view key) const noexcept {
  const auto found = std::find_if(entries_.rbegin(), entries_.rend(),
                                  [&](const Entry& entry) { return entry.first == key; });
  return found == entries_.rend() ? nullptr : &found->second;
}

const StringsPayload* StringsPayload::valueForKeyPath(std::string_view path) const noexcept {
  const StringsPayload* value = this;
  while (value != nullptr) {
    const std::size_t dot = path.find('.');
    value = value->valueForKey(path.substr(0, dot));
    if (dot == std::string_view::npos) {
      break;
    }
    path.remove_prefix(dot + 1);
  }
  return value;
}

}  // namespace orvanta
