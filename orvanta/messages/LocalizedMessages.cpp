#include <orvanta/messages/LocalizedMessages.h>
#include <orvanta/messages/MessageMaker.h>
#include <orvanta/platform/Platform.h>

namespace orvanta {

namespace {

class TextsOfLocalizer final : public MessageTexts {
 public:
  explicit TextsOfLocalizer(Localizer& localizer) noexcept : localizer_(localizer) {}

  TextChain::Found find(const HashedKey& key, std::size_t first) const override {
    return localizer_.textChain().find(key, first);
  }
  String localeOfLink(std::size_t link) const override {
    const auto links = localizer_.textChain().links();
    return link < links.size() ? links[link].locale() : String();
  }

 private:
  Localizer& localizer_;
};

template <typename Make>
String madeBy(const Make& make, Localizer& localizer, std::string_view key,
              const MessageArguments& arguments) {
  if (localizer.textChain().empty()) {
    return {};
  }
  std::vector<TextProblem> problems;
  String text =
      make(TextsOfLocalizer(localizer), key, arguments, *platform::Platform::current().locales,
           localizer.hasTextObserver() ? &problems : nullptr);
  for (TextProblem& problem : problems) {
    if (problem.locale.isAbsent() && !localizer.preferredLocales().empty()) {
      problem.locale = localizer.preferredLocales().front();
    }
    localizer.report(problem);
  }
  return text;
}

}  // namespace

String localizedMessageForKey(Localizer& localizer, std::string_view key,
                              const MessageArguments& arguments) {
  return madeBy(makeMessage, localizer, key, arguments);
}

String localizedStringWithFormat(Localizer& localizer, std::string_view key,
                                 const MessageArguments& arguments) {
  return madeBy(fillText, localizer, key, arguments);
}

}  // namespace orvanta
