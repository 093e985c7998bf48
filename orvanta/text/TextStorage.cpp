#include <orvanta/text/TextStorage.h>

namespace orvanta {

TextStorage::~TextStorage() = default;

void TextStorage::destroy() noexcept {
  delete this;
}

}  // namespace orvanta
