#include <orvanta/platform/Bundle.h>

namespace orvanta::platform {

Bundle::~Bundle() = default;
BundleRegistry::~BundleRegistry() = default;

String Bundle::localizedStringForKey(const String& key, const String& value,
                                     const String& table) const {
  const String text = key.isAbsent() ? String() : textForKey(HashedKey(key.view()), table);
  return lookUpResult(text, key, value);
}

std::shared_ptr<const strings::StringTable> Bundle::shareDefaultTable() const {
  if (defaultTable_ == nullptr) {
    static_cast<void>(textForKey(HashedKey(std::string_view()), {}));
  }
  return defaultTable_;
}

Bundle::TextsReader Bundle::laterTexts() const {
  return {};
}

std::vector<String> Bundle::textsForKeys(std::span<const HashedKey> keys) const {
  std::vector<String> texts;
  texts.reserve(keys.size());
  for (const HashedKey& key : keys) {
    texts.push_back(textForKey(key, {}));
  }
  return texts;
}

}  // namespace orvanta::platform
