// Localizer's look-ups, the chain of tables that they ask, and what is told about them.
#include <utility>

#include <orvanta/locale/LanguagePart.h>
#include <orvanta/locale/Localizer.h>
#include <orvanta/platform/Platform.h>
#include <orvanta/text/CharacterSet.h>
#include <orvanta/text/PathString.h>

namespace orvanta {

using platform::Bundle;

String Localizer::localizedStringForKey(const String& key) {
  const TextChain* chain = chainForLookUp();
  return chain != nullptr && key.isPresent() ? textOrKey(*chain, key.view(), key) : String();
}

String Localizer::localizedStringForKey(std::string_view key) {
  const TextChain* chain = chainForLookUp();
  return chain != nullptr ? textOrKey(*chain, key, key) : String();
}

// Inline for the benchmark's rows `hit` and `fallback`.
template <typename Key>
[[gnu::always_inline]] inline String Localizer::textOrKey(const TextChain& chain,
                                                          std::string_view characters,
                                                          const Key& key) const {
  TextChain::Found found = chain.find(HashedKey(characters));
  if (found.source >= TextSource::english && textObserver_ != nullptr) [[unlikely]] {
    reportFallback(characters, found.source);
  }
  return found.source == TextSource::key ? String(key) : std::move(found.text);
}

inline const TextChain* Localizer::chainForLookUp() {
  return chainIsComplete_ ? &chain_ : settleChain();
}

const TextChain* Localizer::settleChain() {
  if (currentLanguageBundle_ == nullptr) {
    useDefaultLocale();
  }
  if (currentLanguageBundle_ == nullptr) {
    return nullptr;
  }
  // Also when the current language has every text: the first look-up fixes the memo.
  const bool hasEnglish = defaultLocaleBundle() != nullptr;
  if (hasEnglish || chain_.empty()) {
    chain_ = makeChain();
    chainIsComplete_ = hasEnglish;
  }
  return &chain_;
}

const TextChain& Localizer::textChain() {
  static_cast<void>(chainForLookUp());
  return chain_;
}

TextChain Localizer::makeChain() const {
  TextChain chain;
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
    const auto bundle = platform::Platform::current().bundles->bundleWithPath(
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
    explanation.text = found.source == TextSource::key ? key : std::move(found.text);
    if (found.source != TextSource::key) {
      const TextLink& link = chain.links()[found.link];
      explanation.locale = link.locale();
      explanation.bundlePath = link.bundle()->bundlePath();
      explanation.isDownloaded = link.isDownloaded();
    }
  }
  explainLocale(explanation);
  return explanation;
}

void Localizer::explainLocale(TextExplanation& explanation) const {
  if (preferredLocales_.empty()) {
    return;
  }
  const String& locale = explanation.currentLocale = preferredLocales_.front();
  for (const String& request : adoptedRequest_) {
    const Match found = match(request);
    if (!found.isAvailable || found.locale != locale) {
      continue;
    }
    explanation.request = request;
    const String asked = found.isFromLanguagePart ? languagePart(request) : request;
    if (found.isFromTable) {
      explanation.fallbackRow = stringByTrimming(asked, CharacterSet::whitespace);
    }
    if (found.isFromLanguagePart) {
      explanation.languagePart = asked;
    }
    break;
  }
  const String part = languagePart(locale);
  const OVLocaleDictionary available = stringCache().availableLanguages();
  if (explanation.languagePart.isAbsent() && part != locale && available.find(locale) == nullptr) {
    explanation.languagePart = part;
  }
}

}  // namespace orvanta
