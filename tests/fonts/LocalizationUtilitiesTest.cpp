#include <gtest/gtest.h>

#include <orvanta/fonts/ResourceFace.h>
#include <orvanta/fonts/localizationUtilities.h>
#include <orvanta/standard/StandardFonts.h>

#include "../support/LocalizedApplication.h"

namespace orvanta::localizationUtilities {
namespace {

using platform::kBoldTrait;
using platform::kItalicTrait;
using platform::TextAlignment;

// The standard fonts and two icon fonts. Records what is asked of them.
class WatchedFonts final : public platform::FontSystem {
 public:
  FontHandle fontWithName(const String& name, double size) const override {
    askedFor.push_back(name.str());
    const bool isIconFont = name == "MyIconFont" || name == "ICON";
    return isIconFont ? fonts_->systemFontOfSize(size, platform::kFontWeightRegular)
                      : fonts_->fontWithName(name, size);
  }
  FontHandle systemFontOfSize(double size, platform::FontWeight weight) const override {
    return fonts_->systemFontOfSize(size, weight);
  }
  bool registerFontData(std::span<const std::byte> data) override {
    registrations.push_back(fonts_->registerFontData(data));
    return registrations.back();
  }

  mutable std::vector<std::string> askedFor;
  std::vector<bool> registrations;  // Whether each one succeeded.

 private:
  std::shared_ptr<platform::FontSystem> fonts_ = standard::makeStandardFonts();
};

platform::Platform platformWith(std::shared_ptr<platform::FontSystem> fonts) {
  platform::Platform platform;
  platform.fonts = std::move(fonts);
  return platform;
}

class Fonts : public testing::Test {
 protected:
  FontHandle font(double size, platform::SymbolicTraits traits) {
    return watched_->systemFontOfSize(size, 0)->fontWithSymbolicTraits(traits);
  }

  std::shared_ptr<WatchedFonts> watched_ = std::make_shared<WatchedFonts>();
  test::LocalizedApplication app_{{{"en", {}}}, {"en"}, platformWith(watched_)};
};

std::string described(const FontHandle& font) {
  if (font == nullptr) {
    return "absent";
  }
  return font->fontName().str() + " " + std::to_string(static_cast<int>(font->pointSize())) +
         (ovFontIsBold(font) ? " bold" : "") + (ovFontIsItalic(font) ? " italic" : "");
}

TEST_F(Fonts, FollowTheLocale) {
  const std::tuple<String, platform::SymbolicTraits, std::string> kArabic[] = {
      {"ar", kBoldTrait, "CorbetSansKufiArabic-Bold 13 bold"},
      {"ar-EG", kBoldTrait, "CorbetSansKufiArabic-Bold 13 bold"},
      {"ar", kItalicTrait, "CorbetSansKufiArabic 13"},
      {"ar", kItalicTrait | kBoldTrait, "CorbetSansKufiArabic-Bold 13 bold"},
  };
  for (const auto& [locale, traits, expected] : kArabic) {
    EXPECT_EQ(described(ovFontForLocale(locale, font(13, traits))), expected) << locale;
  }
  const FontHandle base = font(20, kBoldTrait);
  for (const String& locale : {String("AR"), String("ar_EG"), String("arz"), String("he-IL"),
                               String("ur"), String("en"), String(""), String()}) {
    EXPECT_EQ(ovFontForLocale(locale, base), base) << locale;
  }
  EXPECT_EQ(ovFontForLocale("ar", nullptr), nullptr);
}

TEST_F(Fonts, AlignmentIsSwappedWhereThePlatformWritesFromTheRight) {
  const std::pair<String, bool> kRows[] = {
      {"ar-SA", true},    {"he", true},     {"ur", true},  {"fa-IR", true}, {"en-GB", false},
      {"zh-Hant", false}, {"ar_SA", false}, {"xx", false}, {"", false},     {nullptr, false}};
  for (const auto& [locale, isSwapped] : kRows) {
    for (std::int64_t number = -1; number <= 5; ++number) {
      const auto base = static_cast<TextAlignment>(number);
      const bool isSide = base == TextAlignment::left || base == TextAlignment::right;
      const auto expected = isSwapped && isSide ? static_cast<TextAlignment>(2 - number) : base;
      EXPECT_EQ(ovAlignmentForLocale(locale, base), expected) << locale << ", " << number;
    }
  }
}

TEST_F(Fonts, MakersFollowTheFirstCurrentLocale) {
  const std::tuple<const char*, FontHandle (*)(), std::string, std::string> kRows[] = {
      {"system", [] { return ovSystemFontOfSize(15); }, "System 15", "CorbetSansKufiArabic 15"},
      {"bold", [] { return ovBoldSystemFontOfSize(15); }, "System 15 bold",
       "CorbetSansKufiArabic-Bold 15 bold"},
      {"italic", [] { return ovItalicSystemFontOfSize(15); }, "System 15 italic",
       "CorbetSansKufiArabic 15 italic"},
      {"heavier than bold", [] { return ovSystemFontOfSize(15, 0.62); }, "System 15 bold",
       "CorbetSansKufiArabic-Bold 15 bold"},
      {"lighter than bold", [] { return ovSystemFontOfSize(15, 0.23); }, "System 15",
       "CorbetSansKufiArabic 15"},
      {"named", [] { return ovFontWithName("System", 9); }, "System 9", "CorbetSansKufiArabic 9"},
      {"icons", [] { return ovFontWithName("MyIconFont", 9); }, "System 9", "System 9"},
      {"icons in capitals", [] { return ovFontWithName("ICON", 9); }, "System 9", "System 9"},
      {"unknown", [] { return ovFontWithName("Nobody", 9); }, "absent", "absent"},
      {"no name", [] { return ovFontWithName(nullptr, 9); }, "absent", "absent"},
  };
  for (const auto& [name, make, inEnglish, inArabic] : kRows) {
    for (const StringList& locales :
         {StringList{"en", "ar"}, StringList::emptyList(), StringList()}) {
      Localizer::sharedLocalizer().setPreferredLocales(locales);
      EXPECT_EQ(described(make()), inEnglish) << name << " in " << locales;
    }
    Localizer::sharedLocalizer().setPreferredLocales({"ar-EG", "en"});
    EXPECT_EQ(described(make()), inArabic) << name << " in Arabic";
  }
}

TEST_F(Fonts, ArabicFacesAreTheSameObjectsAtSeventeenPoints) {
  EXPECT_EQ(described(corbetSansKufiArabicFont()), "CorbetSansKufiArabic 17");
  EXPECT_EQ(described(corbetSansKufiArabicBoldFont()), "CorbetSansKufiArabic-Bold 17 bold");
  watched_->askedFor.clear();
  watched_->registrations.clear();
  EXPECT_EQ(corbetSansKufiArabicFont(), corbetSansKufiArabicFont());
  EXPECT_EQ(corbetSansKufiArabicBoldFont(), corbetSansKufiArabicBoldFont());
  EXPECT_EQ(described(ArabicFontWithSize(8, true)), "CorbetSansKufiArabic-Bold 8 bold");
  EXPECT_TRUE(watched_->askedFor.empty());
  EXPECT_TRUE(watched_->registrations.empty());
}

// What three requests for one face ask of the platform, and their results.
TEST_F(Fonts, AFaceIsLoadedUntilThereIsAFontForIt) {
  using Registrations = std::vector<bool>;
  const Registrations never = {false, false, false};
  struct {
    const char* name;
    ResourceFace face;
    Registrations registrations;
    std::string expected;
  } rows[] = {
      {"the file answers to another name than its own",
       {"CorbetSansKufiArabic-Regular", "CorbetSansKufiArabic"},
       {true},
       "CorbetSansKufiArabic 17"},
      {"registered before",
       {"CorbetSansKufiArabic-Regular", "CorbetSansKufiArabic"},
       {false},
       "CorbetSansKufiArabic 17"},
      {"a name that the file does not answer to",
       {"CorbetSansKufiArabic-Regular", "CorbetSansKufiArabic-Regular"},
       never,
       "absent"},
      {"no such file, but a font", {"Missing", "System"}, {false}, "System 17"},
      {"no such file and no font", {"Missing", "Missing"}, never, "absent"},
      {"only the application has it", {"Own", "CorbetSansKufiArabic-Bold"}, never, "absent"},
  };
  const auto resources = platform::Platform::current().bundles->bundleForLibrary();
  ASSERT_NE(resources, nullptr);
  std::filesystem::copy_file(resources->pathForResource("CorbetSansKufiArabic-Bold", "ttf").str(),
                             app_.bundle() / "Own.ttf");
  for (auto& row : rows) {
    watched_->askedFor.clear();
    watched_->registrations.clear();
    const FontHandle first = row.face.font();
    EXPECT_EQ(described(first), row.expected) << row.name;
    EXPECT_EQ(row.face.font(), first) << row.name;
    EXPECT_EQ(row.face.font(), first) << row.name;
    EXPECT_EQ(watched_->registrations, row.registrations) << row.name;
    EXPECT_EQ(watched_->askedFor.size(), row.registrations.size()) << row.name;
  }
}

}  // namespace
}  // namespace orvanta::localizationUtilities
