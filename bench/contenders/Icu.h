#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

#include <unicode/ures.h>

#include "data/Corpus.h"

namespace orvanta::bench::icu {

/// Compiles `<folder>/<locale>.res` with genrb: a table of keys and strings.
void makeBundle(const std::filesystem::path& folder, std::string_view locale, const Table& table);

struct CloseBundle {
  void operator()(UResourceBundle* bundle) const noexcept { ures_close(bundle); }
};
using Bundle = std::unique_ptr<UResourceBundle, CloseBundle>;

/// Opens a bundle and those of its fallback locales. Throws when there is none.
[[nodiscard]] Bundle open(const std::filesystem::path& folder, const char* locale);

/// The text under a key as ICU gives it: a view of the bundle's UTF-16, neither copied nor
/// converted. Null data when there is none.
[[nodiscard]] inline std::u16string_view find(const UResourceBundle* bundle, const char* key) {
  UErrorCode status = U_ZERO_ERROR;
  std::int32_t length = 0;
  const UChar* text = ures_getStringByKey(bundle, key, &length, &status);
  return U_FAILURE(status) ? std::u16string_view()
                           : std::u16string_view(text, static_cast<std::size_t>(length));
}

/// ICU's text in UTF-8, for comparisons.
[[nodiscard]] std::string utf8(std::u16string_view text);

}  // namespace orvanta::bench::icu
