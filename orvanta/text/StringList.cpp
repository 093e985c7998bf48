#include <algorithm>
#include <ostream>
#include <string>

#include <orvanta/text/StringList.h>

namespace orvanta {

StringList::StringList(std::span<const String> items) : size_(items.size()) {
  auto storage = std::make_shared<String[]>(items.size());
  std::copy(items.begin(), items.end(), storage.get());
  items_ = std::move(storage);
}

bool operator==(const StringList& a, const StringList& b) noexcept {
  return a.isAbsent() == b.isAbsent() && std::equal(a.begin(), a.end(), b.begin(), b.end());
}

std::ostream& operator<<(std::ostream& out, const StringList& list) {
  if (list.isAbsent()) {
    return out << "(absent)";
  }
  out << '[';
  for (std::size_t index = 0; index < list.size(); ++index) {
    out << (index == 0 ? "" : ", ") << list[index];
  }
  return out << ']';
}

StringList componentsSeparatedBy(char separator, const String& text) {
  if (text.isAbsent()) {
    return {};
  }
  std::vector<String> pieces;
  std::string_view rest = text.view();
  for (;;) {
    const std::size_t end = rest.find(separator);
    pieces.emplace_back(rest.substr(0, end));
    if (end == std::string_view::npos) {
      return StringList(pieces);
    }
    rest.remove_prefix(end + 1);
  }
}

String componentsJoinedBy(char separator, const StringList& list) {
  if (list.isAbsent()) {
    return {};
  }
  std::string joined;
  for (const String& item : list) {
    if (&item != list.begin()) {
      joined.push_back(separator);
    }
    joined.append(item.view());
  }
  return joined;
}

}  // namespace orvanta
