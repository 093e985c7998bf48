#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include <orvanta/locale/TextChain.h>
#include <orvanta/locale/TextProblem.h>
#include <orvanta/messages/MessageArgument.h>
#include <orvanta/platform/LocaleData.h>
#include <orvanta/text/String.h>
#include <orvanta/text/TextHash.h>

namespace orvanta {

/// The texts that a message can be made from.
class MessageTexts {
 public:
  virtual ~MessageTexts();
  MessageTexts(const MessageTexts&) = delete;
  MessageTexts& operator=(const MessageTexts&) = delete;

  /// As `TextChain::find`.
  [[nodiscard]] virtual TextChain::Found find(const HashedKey& key, std::size_t first) const = 0;
  [[nodiscard]] virtual String localeOfLink(std::size_t link) const = 0;

 protected:
  MessageTexts() = default;
};

/// What `localizedMessageForKey` says. Adds to `problems` what the text observer is to be told, if
/// it is not null; they have no locale where it is the current one.
[[nodiscard]] String makeMessage(const MessageTexts& texts, std::string_view key,
                                 const MessageArguments& arguments, platform::LocaleData& data,
                                 std::vector<TextProblem>* problems);

/// What `localizedStringWithFormat` says.
[[nodiscard]] String fillText(const MessageTexts& texts, std::string_view key,
                              const MessageArguments& arguments, platform::LocaleData& data,
                              std::vector<TextProblem>* problems);

}  // namespace orvanta
