// Localizer's look-ups, the chain of tables that they ask, and what is told about them.
#include <utility>

#include <orvanta/locale/LanguagePart.h>
#include <orvanta/locale/Localizer.h>
#include <orvanta/platform/Platform.h>
#include <orvanta/text/PathString.h>

namespace orvanta {

using platform::Bundle;

String Localizer::localizedStringForKey(const String& key) {
  return hasChain() && key.isPresent() ? textOrKey(key.view(), key) : String();
}

String Localizer::localizedStringForKey(std::string_view key) {
  return hasChain() ? textOrKey(key, key) : String();
}

// What `TextChain::find` gives, without a loop, a call or a virtual call where the first two links
// have the text: the benchmark's rows `hit` and `fallback`.
template <typename Key>
[[gnu::always_inline]] inline String Localizer::textOrKey(std::string_view characters,
                                                          const Key& key) const {
  const HashedKey hashed(characters);
  std::size_t link = 0;
  if (const strings::StringTable* const table = chain_.loadedTable(0)) [[likely]] {
    const std::string_view text = table->find(hashed);
    if (text.data() != nullptr) [[likely]] {
      return table->handleTo(text);
    }
    link = 1;
    if (textObserver_ == nullptr) [[likely]] {
      if (const strings::StringTable* const second = chain_.loadedTable(1)) [[likely]] {
        const std::string_view next = second->find(hashed);
        if (!next.empty()) [[likely]] {
          return second->handleTo(next);
        }
      }
    }
  }
  return laterTextOrKey(hashed, link, key);
}

// Where a table has to be read, no language has the text, or somebody wants to be told.
template <typename Key>
[[gnu::noinline]] String Localizer::laterTextOrKey(const HashedKey& hashed, std::size_t link,
                                                   const Key& key) const {
  TextChain::Found found = chain_.find(hashed, link);
  if (found.source >= TextSource::english && textObserver_ != nullptr) {
    reportFallback(hashed.text, found.source);
  }
  return found.source == TextSource::key ? String(key) : std::move(found.text);
}

inline bool Localizer::hasChain() {
  return chainIsComplete_ || settleChain();
}

bool Localizer::settleChain() {
  if (currentLanguageBundle_ == nullptr) {
    useDefaultLocale();
  }
  if (currentLanguageBundle_ == nullptr) {
    return false;
  }
  // Also when the current language has every text: the first look-up fixes the memo.
  const bool hasEnglish = defaultLocaleBundle() != nullptr;
  if (hasEnglish || chain_.empty()) {
    chain_ = makeChain();
    chainIsComplete_ = hasEnglish;
  }
  return true;
}

const TextChain& Localizer::textChain() {
  static_cast<void>(hasChain());
  return chain_;
}

TextChain Localizer::makeChain() const {
  TextChain chain;
  // Also where none was asked for yet: links are told from downloads by it.
  static_cast<void>(stringCache());
  const auto add = [&](TextSource source, const std::shared_ptr<Bundle>& bundle,
                       TextSource shippedSource) {
    const TextLink link(source, bundle, stringCache_);
    chain.add(link);
    if (shippedTextsStandIn_ && link.isDownloaded()) {
      chain.add({shippedSource, shippedBundleFor(link), stringCache_});
    }
  };
  add(TextSource::current, currentLanguageBundle_, TextSource::standIn);
  add(TextSource::english, defaultLocaleBundle_, TextSource::english);
  return chain;
}

void Localizer::resetChain() noexcept {
  chain_ = {};
  chainIsComplete_ = false;
}

std::shared_ptr<Bundle> Localizer::shippedBundleFor(const TextLink& link) const {
  if (mainBundle_ == nullptr) {
    return nullptr;
  }
  const String folder = path::lastPathComponent(link.bundle()->bundlePath());
  for (const String& name :
       {path::stringByDeletingPathExtension(folder), link.locale(), languagePart(link.locale())}) {
    auto bundle = platform::Platform::current().bundles->bundleWithPath(
        mainBundle_->pathForResource(name, "lproj"_s));
    if (bundle != nullptr) {
      return bundle;
    }
  }
  return nullptr;
}

void Localizer::setShippedTextsStandIn(bool standIn) noexcept {
  shippedTextsStandIn_ = standIn;
  resetChain();
}

void Localizer::setTextObserver(TextObserver observer) {
  textObserver_ = observer ? std::make_shared<const TextObserver>(std::move(observer)) : nullptr;
}

void Localizer::report(const TextProblem& problem) const {
  // A handle of its own: the observer may set another one.
  if (const auto observer = textObserver_) {
    (*observer)(problem);
  }
}

void Localizer::reportFallback(std::string_view key, TextSource source) const {
  TextProblem problem;
  problem.kind =
      source == TextSource::key ? TextProblem::Kind::shownAsKey : TextProblem::Kind::shownInEnglish;
  problem.key = key;
  problem.locale = preferredLocales_.empty() ? String() : preferredLocales_.front();
  report(problem);
}

TextExplanation Localizer::explain(const String& key) {
  TextExplanation explanation;
  const TextChain chain = textChain();
  if (!chain.empty() && key.isPresent()) {
    TextChain::Found found = chain.find(HashedKey(key.view()));
    explanation.source = found.source;
    if (found.source == TextSource::key) {
      explanation.text = key;
    } else {
      explanation.text = std::move(found.text);
      const TextLink& link = chain.links()[found.link];
      explanation.locale = link.locale();
      explanation.bundlePath = link.bundle()->bundlePath();
      explanation.isDownloaded = link.isDownloaded();
    }
  }
  explainLocale(explanation);
  return explanation;
}

}  // namespace orvanta
