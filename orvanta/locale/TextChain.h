#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string_view>
#include <utility>

#include <orvanta/Export.h>
#include <orvanta/cache/OVStringCache.h>
#include <orvanta/platform/Bundle.h>
#include <orvanta/text/LifetimeBound.h>
#include <orvanta/text/String.h>
#include <orvanta/text/TextHash.h>

namespace orvanta {

/// Which kind of link in the chain a text comes from.
enum class TextSource : std::uint8_t {
  current,  ///< The current language.
  standIn,  ///< The table that the application ships for the current language; see
            ///< `Localizer::setShippedTextsStandIn`.
  english,  ///< The English table.
  key,      ///< No table has a text: the key is shown.
};

/// Whether a look-up returns `text`, which has null data when the table has no entry. An empty
/// English text is not returned: the look-up goes on, and in the end shows the key.
[[nodiscard]] constexpr bool isAnswer(TextSource source, std::string_view text) noexcept {
  return source == TextSource::english ? !text.empty() : text.data() != nullptr;
}

/// One table that look-ups search.
class ORVANTA_EXPORT TextLink {
 public:
  TextLink() noexcept = default;
  /// A link to the table of `bundle`. `isDownloaded` compares its path with the folder of `cache`;
  /// without a cache no table counts as downloaded.
  TextLink(TextSource source, std::shared_ptr<platform::Bundle> bundle,
           std::shared_ptr<OVStringCache> cache) noexcept
      : source_(source), bundle_(std::move(bundle)), cache_(std::move(cache)) {}

  /// The kind of link.
  [[nodiscard]] TextSource source() const noexcept { return source_; }
  /// The bundle of the table; null in a link made without one.
  [[nodiscard]] const std::shared_ptr<platform::Bundle>& bundle() const& noexcept
      ORVANTA_LIFETIME_BOUND {
    return bundle_;
  }

  /// The locale of the texts: the table's entry `OVOrvantaLanguageAppleIDKey`, else the folder's
  /// name without ".lproj", else (another kind of folder) `lastResortLocale`. Memoized. Absent
  /// without a bundle.
  [[nodiscard]] const String& locale() const& ORVANTA_LIFETIME_BOUND;

  /// Whether the table's path is inside the cache of downloaded tables. Other tables were shipped
  /// or supplied by the application. False without a bundle or a cache.
  [[nodiscard]] bool isDownloaded() const;

 private:
  TextSource source_ = TextSource::key;
  std::shared_ptr<platform::Bundle> bundle_;
  std::shared_ptr<OVStringCache> cache_;
  mutable String locale_;
};

/// The tables that look-ups search, in order of priority. A key that none of them has is shown
/// itself.
///
/// Look-ups, explanations, messages and snapshots all use this list. A copyable value. Used from
/// one thread at a time, because bundles are.
class ORVANTA_EXPORT TextChain {
 public:
  /// The maximum number of links.
  static constexpr std::size_t kMostLinks = 4;

  /// The result of `find`.
  struct Found {
    String text;        ///< Absent when no link has one.
    TextSource source;  ///< `key` when no link has a text.
    std::size_t link;   ///< The index of the link; the number of links when none has a text.
  };

  /// Whether there are no links.
  [[nodiscard]] bool empty() const noexcept { return size_ == 0; }
  /// The links in the order in which they are searched; valid until the chain changes.
  [[nodiscard]] std::span<const TextLink> links() const& noexcept ORVANTA_LIFETIME_BOUND {
    return {links_.data(), size_};
  }

  /// Appends a link. Ignores one without a bundle, and one whose bundle an earlier link has. Must
  /// not be called on a chain of `kMostLinks` links.
  void add(TextLink link);

  /// The first text for `key` in the links from index `first` on.
  [[nodiscard]] Found find(const HashedKey& key, std::size_t first = 0) const;

  /// The table of the link at this index. Null when it is not in memory yet, when the bundle keeps
  /// its texts elsewhere, and when there is no such link.
  [[nodiscard]] const strings::StringTable* loadedTable(std::size_t link) const noexcept
      ORVANTA_LIFETIME_BOUND {
    return link < size_ ? links_[link].bundle()->loadedDefaultTable() : nullptr;
  }

 private:
  [[nodiscard]] ORVANTA_HIDDEN Found findInBundles(const HashedKey& key, std::size_t first) const;

  std::array<TextLink, kMostLinks> links_;
  std::size_t size_ = 0;
};

}  // namespace orvanta
