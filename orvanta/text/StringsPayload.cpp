#include <algorithm>

#include <orvanta/text/StringsPayload.h>

namespace orvanta {

StringsPayload StringsPayload::dictionary(std::vector<Entry> entries) {
  StringsPayload payload;
  payload.isDictionary_ = true;
  payload.entries_ = std::move(entries);
  return payload;
}

StringsPayload::StringsPayload(const StringsPayload& other)
    : text_(other.text_), isDictionary_(other.isDictionary_) {
  struct Copying {
    const StringsPayload* from;
    StringsPayload* to;  // Complete but for its entries.
  };
  std::vector<Copying> pending = {{&other, this}};
  while (!pending.empty()) {
    const auto [from, to] = pending.back();
    pending.pop_back();
    to->entries_.reserve(from->entries_.size());
    for (const auto& [key, value] : from->entries_) {
      StringsPayload& copy = to->entries_.emplace_back(key, value.text_).second;
      copy.isDictionary_ = value.isDictionary_;
      if (!value.entries_.empty()) {
        pending.push_back({&value, &copy});
      }
    }
  }
}

StringsPayload::StringsPayload(StringsPayload&& other) noexcept
    : text_(std::move(other.text_)),
      isDictionary_(std::exchange(other.isDictionary_, false)),
      entries_(std::exchange(other.entries_, {})) {}

StringsPayload& StringsPayload::operator=(const StringsPayload& other) {
  return *this = StringsPayload(other);
}

StringsPayload& StringsPayload::operator=(StringsPayload&& other) noexcept {
  StringsPayload incoming(std::move(other));
  std::swap(text_, incoming.text_);
  std::swap(isDictionary_, incoming.isDictionary_);
  std::swap(entries_, incoming.entries_);
  return *this;
}

// Neither recurses nor allocates. Lists of entries wait in a chain: the entries of a waiting list's
// first entry are taken out, and the next waiting list is kept in their place.
StringsPayload::~StringsPayload() {
  std::vector<Entry> waiting;
  std::vector<Entry> list = std::move(entries_);
  for (;;) {
    while (!list.empty()) {
      std::vector<Entry> ofFirst = std::exchange(list.front().second.entries_, std::move(waiting));
      waiting = std::move(list);
      list = std::move(ofFirst);
    }
    if (waiting.empty()) {
      return;
    }
    list = std::move(waiting.back().second.entries_);
    if (waiting.size() == 1) {
      waiting = std::exchange(list, {});
    } else {
      waiting.pop_back();
    }
  }
}

void StringsPayload::add(String key, StringsPayload value) {
  entries_.emplace_back(std::move(key), std::move(value));
  isDictionary_ = true;
  text_ = {};
}

const StringsPayload* StringsPayload::valueForKey(std::string_view key) const& noexcept {
  const auto found = std::find_if(entries_.rbegin(), entries_.rend(),
                                  [&](const Entry& entry) { return entry.first == key; });
  return found == entries_.rend() ? nullptr : &found->second;
}

const StringsPayload* StringsPayload::valueForKeyPath(std::string_view path) const& noexcept {
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
