#include <algorithm>

#include <orvanta/platform/String.h>
#include <orvanta/platform/Utf8.h>

namespace orvanta {

String::String(std::string_view text) : size_(text.size()) {
  // One block for the text and its count; of size 1 at least, so that the empty text is an object.
  auto storage = std::make_shared<char[]>(std::max<std::size_t>(text.size(), 1));
  std::copy(text.begin(), text.end(), storage.get());
  text_ = std::shared_ptr<const char>(storage, storage.get());
}

String::String(const char* text) {
  if (text != nullptr) {
    *this = String(std::string_view(text));
  }
}

std::size_t String::utf16Length() const noexcept {
  std::size_t units = 0;
  for (std::string_view rest = view(); !rest.empty();) {
    const utf8::Decoded next = utf8::decode(rest);
    units += next.codePoint > 0xFFFF ? 2U : 1U;
    rest.remove_prefix(next.length);
  }
  return units;
}

std::ostream& operator<<(std::ostream& out, const String& text) {
  return text.isAbsent() ? out << "(absent)" : out << text.view();
}

}  // namespace orvanta
