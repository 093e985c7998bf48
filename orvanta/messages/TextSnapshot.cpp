#include <utility>
#include <vector>

#include <orvanta/messages/MessageMaker.h>
#include <orvanta/messages/TextSnapshot.h>
#include <orvanta/platform/Platform.h>

namespace orvanta {

struct TextSnapshot::Content final : public MessageTexts {
  struct Link {
    TextSource source;
    String locale;
    std::shared_ptr<const strings::StringTable> table;
  };

  explicit Content(Localizer& localizer)
      : locales(localizer.preferredLocales()), data(platform::Platform::current().locales) {
    const TextChain chain = localizer.textChain();
    isEmpty = chain.empty();
    for (const TextLink& link : chain.links()) {
      if (auto table = link.bundle()->shareDefaultTable()) {
        links.push_back({link.source(), link.locale(), std::move(table)});
      }
    }
  }

  // As `TextChain::find`, of tables that nobody changes.
  TextChain::Found find(const HashedKey& key, std::size_t first) const override {
    for (std::size_t at = first; at < links.size(); ++at) {
      const std::string_view text = links[at].table->find(key);
      if (isAnswer(links[at].source, text)) {
        return {links[at].table->handleTo(text), links[at].source, at};
      }
    }
    return {{}, TextSource::key, links.size()};
  }
  String localeOfLink(std::size_t link) const override { return links[link].locale; }

  // The same for the benchmark's row `snapshot-hit`, without what only messages need.
  template <typename Key>
  String textOrKey(std::string_view characters, const Key& key) const {
    const HashedKey hashed(characters);
    for (const Link& link : links) {
      const std::string_view text = link.table->find(hashed);
      if (isAnswer(link.source, text)) {
        return link.table->handleTo(text);
      }
    }
    return String(key);
  }

  bool isEmpty = true;
  std::vector<Link> links;
  StringList locales;
  std::shared_ptr<platform::LocaleData> data;
};

TextSnapshot::TextSnapshot(std::shared_ptr<const Content> content) noexcept
    : content_(std::move(content)) {}

String TextSnapshot::localizedStringForKey(const String& key) const {
  if (content_ == nullptr || content_->isEmpty || key.isAbsent()) {
    return {};
  }
  return content_->textOrKey(key.view(), key);
}

String TextSnapshot::localizedStringForKey(std::string_view key) const {
  if (content_ == nullptr || content_->isEmpty) {
    return {};
  }
  return content_->textOrKey(key, key);
}

String TextSnapshot::textForKey(std::string_view key) const {
  return content_ == nullptr ? String() : content_->find(HashedKey(key), 0).text;
}

String TextSnapshot::localizedMessageForKey(std::string_view key,
                                            const MessageArguments& arguments) const {
  return content_ == nullptr || content_->isEmpty
             ? String()
             : makeMessage(*content_, key, arguments, *content_->data, nullptr);
}

String TextSnapshot::localizedStringWithFormat(std::string_view key,
                                               const MessageArguments& arguments) const {
  return content_ == nullptr || content_->isEmpty
             ? String()
             : fillText(*content_, key, arguments, *content_->data, nullptr);
}

StringList TextSnapshot::currentLocales() const {
  return content_ == nullptr ? StringList() : content_->locales;
}

TextSnapshot texts(Localizer& localizer) {
  return TextSnapshot(std::make_shared<const TextSnapshot::Content>(localizer));
}

}  // namespace orvanta
