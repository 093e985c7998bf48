#pragma once

#include <memory>
#include <string>
#include <string_view>

#include <orvanta/Export.h>
#include <orvanta/locale/Localizer.h>
#include <orvanta/messages/MessageArgument.h>
#include <orvanta/text/String.h>
#include <orvanta/text/StringList.h>

namespace orvanta {

/// The texts of one moment, for other threads: answers what its localizer answered when the
/// snapshot was taken, whatever is changed later, on any number of threads at once and without
/// locks.
///
/// Immutable; a copy shares everything. It shares the tables with the localizer and keeps them in
/// memory. Falls back silently: the text observer is for the localizer's own thread.
class ORVANTA_EXPORT TextSnapshot {
 public:
  /// Holds nothing: every answer is absent.
  TextSnapshot() noexcept = default;

  /// As `Localizer::localizedStringForKey` answered.
  [[nodiscard]] String localizedStringForKey(const String& key) const;
  /// As `Localizer::localizedStringForKey` answered.
  [[nodiscard]] String localizedStringForKey(std::string_view key) const;
  /// As `Localizer::localizedStringForKey` answered.
  [[nodiscard]] String localizedStringForKey(const std::string& key) const {
    return localizedStringForKey(std::string_view(key));
  }
  /// As `Localizer::localizedStringForKey` answered.
  [[nodiscard]] String localizedStringForKey(const char* key) const {
    return key == nullptr ? String() : localizedStringForKey(std::string_view(key));
  }
  /// What `localizedStringForKey` finds in a table; absent where it would give the key itself.
  [[nodiscard]] String textForKey(std::string_view key) const;
  /// As `orvanta::localizedMessageForKey`, of the texts of that moment.
  [[nodiscard]] String localizedMessageForKey(std::string_view key,
                                              const MessageArguments& arguments) const;
  /// As `orvanta::localizedStringWithFormat`, of the texts of that moment.
  [[nodiscard]] String localizedStringWithFormat(std::string_view key,
                                                 const MessageArguments& arguments) const;

  /// `Localizer::preferredLocales` of that moment.
  [[nodiscard]] StringList currentLocales() const;

 private:
  struct ORVANTA_HIDDEN Content;
  friend ORVANTA_EXPORT TextSnapshot texts(Localizer& localizer);
  ORVANTA_HIDDEN explicit TextSnapshot(std::shared_ptr<const Content> content) noexcept;

  std::shared_ptr<const Content> content_;
};

/// Takes a snapshot, on the localizer's thread. Copies no table, and reads those of the current
/// language and of English where no look-up has. A bundle of the application's own that does not
/// keep its texts in a table gives none.
[[nodiscard]] ORVANTA_EXPORT TextSnapshot texts(Localizer& localizer);
[[nodiscard]] inline TextSnapshot texts() {
  return texts(Localizer::sharedLocalizer());
}

}  // namespace orvanta
