#pragma once

#include <memory>
#include <string>
#include <string_view>

#include <orvanta/Export.h>
#include <orvanta/cache/OVStringCache.h>
#include <orvanta/locale/FallbackTable.h>
#include <orvanta/locale/TextChain.h>
#include <orvanta/locale/TextExplanation.h>
#include <orvanta/locale/TextProblem.h>
#include <orvanta/platform/AffineTransform.h>
#include <orvanta/platform/Bundle.h>
#include <orvanta/platform/Calendar.h>
#include <orvanta/text/LifetimeBound.h>
#include <orvanta/text/String.h>
#include <orvanta/text/StringList.h>

namespace orvanta {

/// The language of last resort, and of the text that replaces one that another language lacks.
inline constexpr std::string_view lastResortLocale = "en";
/// The right-to-left languages.
inline constexpr std::string_view arabicCode = "ar";
inline constexpr std::string_view hebrewCode = "he";
inline constexpr std::string_view urduCode = "ur";

/// Posted asynchronously on the main queue after each change, without a sender. The user info
/// always holds both of the lists below.
inline constexpr std::string_view OVPreferredLocaleDidChangeNotification =
    "OVPreferredLocaleDidChangeNotification";
/// In the user info: the available identifiers that the change adopted.
inline constexpr std::string_view OVPreferredLocaleKey = "OVPreferredLocaleKey";
/// In the user info: the requested identifiers, expanded with the country; the adopted ones when
/// the requested list was absent.
inline constexpr std::string_view OVRawLocaleKey = "OVRawLocaleKey";

/// Holds the application's current language and looks texts up in it.
///
/// The current language is an ordered list of identifiers, the first of which has a bundle that
/// strings come from; English stands in for what it lacks. A change stores the new state at once
/// on the calling thread, and posts `OVPreferredLocaleDidChangeNotification` on the main queue
/// later.
///
/// `sharedLocalizer` and `isIOS9Minimum` may be called from any thread. Everything else is meant
/// for the main thread: no locks are taken. The first `sharedLocalizer` builds the catalogue, so
/// no other thread may use the platform's bundles during that call; make it on the main thread.
///
/// Shortage of memory: whatever has to build a list, a catalogue or a table may throw
/// `std::bad_alloc`. The object is then usable, and the next call tries again; a change of language
/// has happened or not, but may be without its notification. A look-up whose tables are all in
/// memory does not allocate, except to copy a key.
///
/// An exception from an application's callback reaches the caller of the operation. The library's
/// own state stays valid: a notification has reached the other handlers, and queued steps stay
/// queued. An exception from a log sink is dropped.
///
/// In a child process made by `fork` see `platform::MainQueue`.
class ORVANTA_EXPORT Localizer {
 public:
  /// The instance that the whole application shares, made at the first call in the language that
  /// the device asks for; never destroyed.
  [[nodiscard]] static Localizer& sharedLocalizer();

  /// An instance of its own, in the language that the device asks for. Takes the main bundle from
  /// the installed platform and posts a first notification like any change.
  Localizer();
  Localizer(const Localizer&) = delete;
  Localizer& operator=(const Localizer&) = delete;
  virtual ~Localizer();

  // ── Choosing the language ──────────────────────────────────────────────────────────────────

  /// Goes back to what the device asks for among the shipped languages; English when none of them
  /// suits.
  void useDefaultLocale();

  /// Adopts those of the identifiers that are available; an absent or empty list is English. With
  /// none available, `useDefaultLocale`. Every call stores and posts again, the same language
  /// included.
  void changeOrvantaLanguageToPreferredLocales(const StringList& requested);

  /// Expands bare two-letter languages with the country ("fr" and "CA" give "fr-CA", "fr"), keeps
  /// the list as `originalLocales`, and adopts it. An absent country leaves the list as it is.
  void updatePreferredLocales(const StringList& languages, const String& country);

  // ── Looking texts up ───────────────────────────────────────────────────────────────────────

  /// The text in the current language; else in English; else the key itself, as the handle that
  /// was passed in. An empty text of the current language is returned; an empty English text is
  /// not, and gives the key. Absent when there is no bundle at all. A text that is found needs no
  /// allocation and stays valid after any later change.
  [[nodiscard]] String localizedStringForKey(const String& key);
  /// The same; a key that is found nowhere is copied.
  [[nodiscard]] String localizedStringForKey(std::string_view key);
  /// The same; a key that is found nowhere is copied.
  [[nodiscard]] String localizedStringForKey(const std::string& key) {
    return localizedStringForKey(std::string_view(key));
  }
  /// The same; absent for a null pointer.
  [[nodiscard]] String localizedStringForKey(const char* key) {
    return key == nullptr ? localizedStringForKey(String())
                          : localizedStringForKey(std::string_view(key));
  }

  /// The text that `localizedStringForKey` gives, and where it comes from. Not reported to the
  /// observer.
  [[nodiscard]] TextExplanation explain(const String& key);

  /// The tables that look-ups ask now, in their order; none when there is no bundle at all. Valid
  /// until the language or a property changes.
  [[nodiscard]] const TextChain& textChain() ORVANTA_LIFETIME_BOUND;

  /// Called for each look-up that finds no text in the current language, and for each malformed
  /// message, at once and on the thread that looks up. One observer at a time; none by default,
  /// and an empty one removes it. It may look up, and set another observer.
  void setTextObserver(TextObserver observer);
  /// Whether an observer is set.
  [[nodiscard]] bool hasTextObserver() const noexcept { return textObserver_ != nullptr; }
  /// Calls the observer, if there is one.
  void report(const TextProblem& problem) const;

  /// Whether the table that the application ships for a language is asked for what a downloaded
  /// one lacks, before English: a table downloaded for an older version of the application lacks
  /// the keys of the new one. Off by default. An empty text of the shipped table stays empty.
  [[nodiscard]] bool shippedTextsStandIn() const noexcept { return shippedTextsStandIn_; }
  /// Takes effect with the next look-up; posts nothing.
  void setShippedTextsStandIn(bool standIn) noexcept;

  /// The current identifiers, `preferredLocales` itself.
  [[nodiscard]] const StringList& currentLocales() const noexcept ORVANTA_LIFETIME_BOUND {
    return preferredLocales_;
  }

  /// The current identifiers with "," between them; "en" when there is no list, empty for an
  /// empty one.
  [[nodiscard]] String currentLocalesString() const;

  /// The device's languages, best first, available or not; possibly none, never absent.
  [[nodiscard]] StringList devicePreferredLocales() const;

  /// A new calendar of the platform, which names days and months in the current language. Never
  /// null.
  [[nodiscard]] std::shared_ptr<platform::Calendar> currentCalendar() const;

  /// Whether the system is version 9.0.0 at least. Asked once in the life of the process.
  [[nodiscard]] bool isIOS9Minimum() const;

  // ── Matching ───────────────────────────────────────────────────────────────────────────────

  /// The available identifiers for the requested ones. Each is replaced by its entry in the
  /// fallback table, if there is one. The result is taken when it, or its language part, has a
  /// bundle; otherwise the same is tried with the language part of the request. A request without a
  /// bundle is left out; order and duplicates are kept. An absent or empty request gives ["en"]
  /// without a check. Absent when nothing is available.
  [[nodiscard]] StringList availableLocalesFromArray(const StringList& requested) const;

  /// The identifier without blanks at its ends, or what the table has in its place. Absent for
  /// absent.
  [[nodiscard]] String localeWithFallbacksApplied(const String& identifier) const;

  /// The part before the first "-"; see `languagePart`.
  [[nodiscard]] static String languageOnlyFromString(const String& identifier);

  /// Puts "language-country" before each language of exactly two characters; never absent. An
  /// absent country is written as "(null)".
  [[nodiscard]] static StringList localesFromLanguages(const StringList& languages,
                                                       const String& country);

  /// The main bundle for an absent or empty identifier; else the bundle of the identifier or of
  /// its language part; else absent.
  [[nodiscard]] std::shared_ptr<platform::Bundle> languageBundleForLocale(
      const String& identifier) const;

  /// Whether the identifier's first piece is "ar", "he" or "ur", exactly.
  [[nodiscard]] bool rightToLeftOrientationForLocale(const String& identifier) const;

  // ── Punctuation and mirroring ──────────────────────────────────────────────────────────────

  /// `text` with every "," as the Arabic comma when the first current language is Arabic; else
  /// `text` itself. Other right-to-left languages keep their commas.
  [[nodiscard]] String stringWithLocalizedPunctuation(const String& text) const;

  /// U+060C, the same object at every call. From any thread.
  [[nodiscard]] static const String& arabicComma();

  /// The mirror image across the vertical axis, or the identity. From any thread.
  [[nodiscard]] static platform::AffineTransform transformForRightToLeft(bool mirrored) noexcept;

  // ── State ──────────────────────────────────────────────────────────────────────────────────
  //
  // A setter replaces this one property and posts nothing.

  /// Whether the first current identifier is of a right-to-left language.
  [[nodiscard]] bool rightToLeftOrientation() const noexcept { return rightToLeftOrientation_; }
  /// Replaces it until the next change of language.
  void setRightToLeftOrientation(bool rightToLeft) noexcept;

  /// What `updatePreferredLocales` made of its last request; for the application.
  [[nodiscard]] const StringList& originalLocales() const noexcept ORVANTA_LIFETIME_BOUND {
    return originalLocales_;
  }
  /// Replaces them.
  void setOriginalLocales(StringList locales) noexcept;

  /// The adopted identifiers, best first.
  [[nodiscard]] const StringList& preferredLocales() const noexcept ORVANTA_LIFETIME_BOUND {
    return preferredLocales_;
  }
  /// Replaces them until the next change of language; the bundle stays.
  void setPreferredLocales(StringList locales) noexcept;

  /// Where strings come from; absent when the first identifier has no bundle.
  [[nodiscard]] const std::shared_ptr<platform::Bundle>& currentLanguageBundle() const noexcept
      ORVANTA_LIFETIME_BOUND {
    return currentLanguageBundle_;
  }
  /// Replaces it until the next change of language; null lets the next look-up choose.
  void setCurrentLanguageBundle(std::shared_ptr<platform::Bundle> bundle) noexcept;

  /// The application's own bundle, taken from the platform when this localizer was made.
  [[nodiscard]] const std::shared_ptr<platform::Bundle>& mainBundle() const noexcept
      ORVANTA_LIFETIME_BOUND {
    return mainBundle_;
  }
  /// Replaces it; the current language stays.
  void setMainBundle(std::shared_ptr<platform::Bundle> bundle) noexcept;

  /// The English bundle, memoized once it was found: later downloads do not replace it. Null while
  /// there is none. A bundle that is set is not owned and must outlive this localizer, or the next
  /// call of the setter.
  [[nodiscard]] platform::Bundle* defaultLocaleBundle() const;
  /// Replaces it; null makes the next look-up find it again.
  void setDefaultLocaleBundle(platform::Bundle* bundle) noexcept;

  /// The regional fallbacks; an absent table makes the next read build the built-in one.
  [[nodiscard]] const FallbackTable& fallbackTable() const ORVANTA_LIFETIME_BOUND;
  /// Used from the next request on.
  void setFallbackTable(FallbackTable table) noexcept;

  /// The catalogue and its cache, made at the first read.
  [[nodiscard]] OVStringCache& stringCache() const ORVANTA_LIFETIME_BOUND;
  /// Used from now on; null makes the next read make one.
  void setStringCache(std::shared_ptr<OVStringCache> cache) noexcept;

 private:
  // Stores the matched identifiers, of which there is one at least, and queues the notification
  // with them and the requested ones. `raw` may be `preferredLocales_` itself.
  ORVANTA_HIDDEN void adopt(const StringList& matched, const StringList& raw);
  // What `localeWithFallbacksApplied` gives, its text with its hash, and whether the table gave it.
  struct Resolved {
    String locale;
    HashedKey key;
    bool isFromTable;
  };
  [[nodiscard]] ORVANTA_HIDDEN Resolved resolve(const String& identifier) const;
  // Whether `languageBundleForLocale` would give one.
  [[nodiscard]] ORVANTA_HIDDEN bool hasBundleFor(const Resolved& resolved) const;
  // The result of matching one requested identifier.
  struct Match {
    bool isAvailable = false;
    String locale;
    bool isFromTable = false;
    bool isFromLanguagePart = false;
  };
  [[nodiscard]] ORVANTA_HIDDEN Match match(const String& request) const;
  ORVANTA_HIDDEN void explainLocale(TextExplanation& explanation) const;

  // Makes `chain_` if needed, with English if there is an English bundle. False when there is no
  // current bundle and the device's languages give none.
  [[nodiscard]] ORVANTA_HIDDEN bool hasChain();
  [[nodiscard]] ORVANTA_HIDDEN bool settleChain();
  [[nodiscard]] ORVANTA_HIDDEN TextChain makeChain() const;
  ORVANTA_HIDDEN void resetChain() noexcept;
  [[nodiscard]] ORVANTA_HIDDEN std::shared_ptr<platform::Bundle> shippedBundleFor(
      const TextLink& link) const;
  // `key` is what becomes the result when no language has a text.
  template <typename Key>
  [[nodiscard]] ORVANTA_HIDDEN String textOrKey(std::string_view characters, const Key& key) const;
  template <typename Key>
  [[nodiscard]] ORVANTA_HIDDEN String laterTextOrKey(const HashedKey& hashed, std::size_t link,
                                                     const Key& key) const;
  ORVANTA_HIDDEN void reportFallback(std::string_view key, TextSource source) const;

  bool rightToLeftOrientation_ = false;
  bool shippedTextsStandIn_ = false;
  // Whether `chain_` is made and includes English. Setters of the properties that it is made from
  // reset it.
  bool chainIsComplete_ = false;
  TextChain chain_;
  std::shared_ptr<const TextObserver> textObserver_;
  StringList adoptedRequest_;
  StringList originalLocales_;
  StringList preferredLocales_;
  std::shared_ptr<platform::Bundle> currentLanguageBundle_;
  std::shared_ptr<platform::Bundle> mainBundle_;
  // Made or looked for by the first read. The memo owns a bundle that was looked for, since an
  // application may have put it into the catalogue and take it out again.
  mutable FallbackTable fallbackTable_;
  mutable std::shared_ptr<platform::Bundle> defaultLocaleBundle_;
  mutable std::shared_ptr<OVStringCache> stringCache_;
};

}  // namespace orvanta
