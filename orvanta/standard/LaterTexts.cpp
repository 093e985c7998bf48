#include <algorithm>

#include <orvanta/standard/LaterTexts.h>
#include <orvanta/standard/TableFile.h>

namespace orvanta::standard {

std::vector<String> LaterTexts::read(const String& path, std::span<const HashedKey> keys) {
  const std::lock_guard lock(mutex_);
  TableFile file(files_, std::shared_ptr<strings::PrefixProbe>(std::shared_ptr<void>(), &probe_));
  const std::string_view prefix = strings::prefixToProbeFor(keys);
  return textsIn(prefix.empty() ? *file.read(path) : *file.entriesWithPrefix(prefix, path), keys);
}

std::vector<String> textsIn(const strings::StringTable& table, std::span<const HashedKey> keys) {
  std::vector<String> texts(keys.size());
  std::transform(keys.begin(), keys.end(), texts.begin(),
                 [&](const HashedKey& key) { return table.textForKey(key); });
  return texts;
}

}  // namespace orvanta::standard
