#include <orvanta/locale/FallbackTable.h>

namespace orvanta {

namespace {

struct Row {
  std::string_view requested;
  std::string_view instead;
};

// New Zealand reads Australian English, not British. Overseas Chinese communities read Traditional
// characters; only the mainland, Singapore, Malaysia and "zh" alone read Simplified ones.
constexpr Row kRows[] = {
    {"en-IE", "en-GB"},   {"en-GG", "en-GB"},   {"en-IM", "en-GB"},   {"en-JE", "en-GB"},
    {"en-NZ", "en-AU"},   {"es-AD", "es-ES"},   {"es-GQ", "es-ES"},   {"es-IC", "es-ES"},
    {"es-PH", "es-ES"},   {"pt-AO", "pt-PT"},   {"pt-CV", "pt-PT"},   {"pt-GW", "pt-PT"},
    {"pt-MO", "pt-PT"},   {"pt-MZ", "pt-PT"},   {"pt-ST", "pt-PT"},   {"pt-TL", "pt-PT"},
    {"zh-TW", "zh-Hant"}, {"zh-HK", "zh-Hant"}, {"zh-MO", "zh-Hant"}, {"zh-ID", "zh-Hant"},
    {"zh-US", "zh-Hant"}, {"zh-TH", "zh-Hant"}, {"zh-BN", "zh-Hant"}, {"zh-VN", "zh-Hant"},
    {"zh-PH", "zh-Hant"}, {"zh-AU", "zh-Hant"}, {"zh-GB", "zh-Hant"}, {"zh-CN", "zh-Hans"},
    {"zh-SG", "zh-Hans"}, {"zh-MY", "zh-Hans"}, {"zh", "zh-Hans"},
};

}  // namespace

FallbackTable makeFallbackTable() {
  FallbackTable::Map entries;
  for (const Row& row : kRows) {
    entries.emplace(String::fromStatic(row.requested), String::fromStatic(row.instead));
  }
  return FallbackTable(std::move(entries));
}

}  // namespace orvanta
