#include <algorithm>

#include <orvanta/cache/CachePath.h>
#include <orvanta/locale/Localizer.h>
#include <orvanta/locale/OVLocale.h>
#include <orvanta/locale/TextChain.h>
#include <orvanta/text/PathString.h>

namespace orvanta {

namespace {

String localeOf(const platform::Bundle& bundle) {
  String named = bundle.textForKey(HashedKey(OVOrvantaLanguageAppleIDKey), {});
  if (!named.empty()) {
    return named;
  }
  const String path = bundle.bundlePath();
  return path.view().ends_with(kLanguageFolderExtension)
             ? path::stringByDeletingPathExtension(path::lastPathComponent(path))
             : String::fromStatic(lastResortLocale);
}

}  // namespace

const String& TextLink::locale() const& {
  if (locale_.isAbsent() && bundle_ != nullptr) {
    locale_ = localeOf(*bundle_);
  }
  return locale_;
}

bool TextLink::isDownloaded() const {
  if (cache_ == nullptr || bundle_ == nullptr) {
    return false;
  }
  const URL table = URL::fileURLWithPath(bundle_->bundlePath(), true)
                        .URLByAppendingPathComponent("Localizable.strings", false);
  return cachePathOf(table, cache_->cacheDirectoryURL()).status.ok();
}

void TextChain::add(TextLink link) {
  const auto isSame = [&](const TextLink& other) { return other.bundle() == link.bundle(); };
  if (link.bundle() != nullptr && std::none_of(links().begin(), links().end(), isSame)) {
    links_[size_++] = std::move(link);
  }
}

TextChain::Found TextChain::find(const HashedKey& key, std::size_t first) const {
  for (std::size_t at = first; at < size_; ++at) {
    const strings::StringTable* const table = loadedTable(at);
    if (table == nullptr) {
      return findInBundles(key, at);
    }
    const std::string_view text = table->find(key);
    if (isAnswer(links_[at].source(), text)) {
      return {table->handleTo(text), links_[at].source(), at};
    }
  }
  return {{}, TextSource::key, size_};
}

// The slow path of `find`: for a table that is not in memory yet, or a bundle that keeps its texts
// elsewhere. Works on a copy of the chain, because `textForKey` of an application's bundle may
// change the language and thereby reset this chain.
TextChain::Found TextChain::findInBundles(const HashedKey& key, std::size_t first) const {
  const TextChain held = *this;
  for (std::size_t at = first; at < held.size_; ++at) {
    const TextLink& link = held.links_[at];
    String text = link.bundle()->textForKey(key, {});
    if (isAnswer(link.source(), text.view())) {
      return {std::move(text), link.source(), at};
    }
  }
  return {{}, TextSource::key, held.size_};
}

}  // namespace orvanta
