#pragma once

#include <cstdint>
#include <string_view>

#include <orvanta/Export.h>
#include <orvanta/platform/String.h>

namespace orvanta {

/// Hashes text for the tables of this process. The values differ from run to run, so that a
/// downloaded table cannot be crafted to make its keys collide; never store one.
[[nodiscard]] ORVANTA_EXPORT std::uint64_t textHash(std::string_view text) noexcept;

/// A key with its hash, computed once however many tables are asked. A view: the text must outlive
/// it. An absent key is found nowhere.
struct HashedKey {
  explicit HashedKey(std::string_view key) noexcept : text(key), hash(textHash(key)) {}

  std::string_view text;
  std::uint64_t hash;
};

/// The hash and the equality that let a dictionary be asked with a view of the key.
struct TextHash {
  using is_transparent = void;
  std::size_t operator()(std::string_view text) const noexcept { return textHash(text); }
  std::size_t operator()(const String& text) const noexcept { return textHash(text.view()); }
};

struct TextEqual {
  using is_transparent = void;
  bool operator()(const String& a, const String& b) const noexcept { return a == b; }
  bool operator()(const String& a, std::string_view b) const noexcept { return a == b; }
  bool operator()(std::string_view a, const String& b) const noexcept { return b == a; }
};

}  // namespace orvanta
