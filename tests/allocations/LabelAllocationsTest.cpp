#include <gtest/gtest.h>

#include <orvanta/controls/UILocalizedLabel.h>
#include <orvanta/standard/MemoryControls.h>

#include "../support/LocalizedApplication.h"
#include "CountingNew.h"

namespace orvanta {
namespace {

using test::LocalizedApplication;

constexpr std::size_t kKeys = 500;
constexpr int kSizes = 4;

test::Strings stringsOf(const std::string& language) {
  test::Strings strings;
  for (std::size_t key = 0; key < kKeys; ++key) {
    strings["screen.label." + std::to_string(key)] =
        "a text in " + language + " too long for any short string, " + std::to_string(key);
  }
  return strings;
}

std::vector<std::unique_ptr<UILocalizedLabel>> liveLabels(std::size_t count) {
  std::vector<std::unique_ptr<UILocalizedLabel>> labels;
  for (std::size_t i = 0; i < count; ++i) {
    auto label = std::make_shared<standard::MemoryLabel>();
    label->setText("screen.label." + std::to_string(i % kKeys));
    label->setAccessibilityHint("screen.label." + std::to_string((i + 1) % kKeys));
    label->setFont(platform::Platform::current().fonts->systemFontOfSize(
        12 + static_cast<int>(i) % kSizes, i % 3 == 0 ? 0.4 : 0.0));
    labels.push_back(std::make_unique<UILocalizedLabel>(label));
    labels.back()->awakeFromNib();
  }
  return labels;
}

std::size_t allocationsOfAChangeTo(const String& locale, const LocalizedApplication& app) {
  const StringList requested = {locale};
  app.speak({"en"});
  const std::size_t before = test::allocationsSoFar();
  app.speak(requested);
  return test::allocationsSoFar() - before;
}

TEST(LabelAllocations, OfAChangeAreTheSameForOneLabelAndForTenThousand) {
  const LocalizedApplication app({{"en", stringsOf("English")},
                                  {"fr", stringsOf("French")},
                                  {"ar", stringsOf("Arabic")},
                                  {"he", stringsOf("Hebrew")}});
  const char* const kLocales[] = {"fr", "ar", "he-IL", "ar-EG", "en"};
  const auto warmUp = liveLabels(std::size_t{2} * kSizes * 3);
  for (const char* locale : kLocales) {
    app.speak({locale});
  }
  for (const char* locale : kLocales) {
    const std::size_t ofFew = allocationsOfAChangeTo(locale, app);
    const auto labels = liveLabels(10000);
    const std::size_t ofMany = allocationsOfAChangeTo(locale, app);
    EXPECT_EQ(ofMany, ofFew) << locale;
    EXPECT_NE(labels.back()->label().text(), labels.back()->originalKey()) << locale;
    RecordProperty(locale, static_cast<int>(ofMany));
  }
}

}  // namespace
}  // namespace orvanta
