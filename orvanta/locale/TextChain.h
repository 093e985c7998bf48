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

/// Which link of the chain a text comes from.
enum class TextSource : std::uint8_t {
  current,  ///< The current language.
  standIn,  ///< The table that the application ships for the current language; see
            ///< `Localizer::setShippedTextsStandIn`.
  english,
  key,  ///< No table: the key is shown.
};

/// Whether a text that a table holds is the answer. An empty English text gives way to the key.
[[nodiscard]] constexpr bool isAnswer(TextSource source, std::string_view text) noexcept {
  return source == TextSource::english ? !text.empty() : text.data() != nullptr;
}

/// One table that a look-up asks.
class ORVANTA_EXPORT TextLink {
 public:
  TextLink() noexcept = default;
  /// A link to the table of `bundle`. `cache` tells whether it was downloaded; it may be null.
  TextLink(TextSource source, std::shared_ptr<platform::Bundle> bundle,
           std::shared_ptr<OVStringCache> cache) noexcept
      : source_(source), bundle_(std::move(bundle)), cache_(std::move(cache)) {}

  /// What the link is in its chain.
  [[nodiscard]] TextSource source() const noexcept { return source_; }
  /// The bundle of the table; null in a link made without one.
  [[nodiscard]] const std::shared_ptr<platform::Bundle>& bundle() const& noexcept
      ORVANTA_LIFETIME_BOUND {
    return bundle_;
  }

  /// The locale of the texts: what the table names as `OVOrvantaLanguageAppleIDKey`, else the name
  /// of its folder; `lastResortLocale` for a folder that is no language's. Memoized.
  [[nodiscard]] const String& locale() const& ORVANTA_LIFETIME_BOUND;

  /// Whether the table stands in the cache of downloads; else it is shipped, or the application's
  /// own.
  [[nodiscard]] bool isDownloaded() const;

 private:
  TextSource source_ = TextSource::key;
  std::shared_ptr<platform::Bundle> bundle_;
  std::shared_ptr<OVStringCache> cache_;
  mutable String locale_;
};

/// The tables that a look-up asks, in their order; the first is the current language's. What none
/// of them has is shown as its key.
///
/// Every answer about a text is made from this list: look-ups, explanations, messages and
/// snapshots. A value; used from one thread at a time, as bundles are.
class ORVANTA_EXPORT TextChain {
 public:
  /// The most links that a chain has.
  static constexpr std::size_t kMostLinks = 4;

  /// What `find` gives.
  struct Found {
    String text;        ///< Absent when no link has one.
    TextSource source;  ///< `key` then.
    std::size_t link;   ///< Its position among the links.
  };

  /// Whether there are no links.
  [[nodiscard]] bool empty() const noexcept { return size_ == 0; }
  /// The links in the order in which they are asked; valid until the chain changes.
  [[nodiscard]] std::span<const TextLink> links() const& noexcept ORVANTA_LIFETIME_BOUND {
    return {links_.data(), size_};
  }

  /// Adds a link, unless an earlier one has the same bundle or there is none. There must be room.
  void add(TextLink link);

  /// Asks the links from the position `first` on.
  [[nodiscard]] Found find(const HashedKey& key, std::size_t first = 0) const;

  /// The table of the link, if it is in memory; null where there is no such link.
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
