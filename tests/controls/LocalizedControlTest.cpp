// What the three controls share, and where they part.
#include <gtest/gtest.h>

#include "DesignedControls.h"

namespace orvanta {
namespace {

using platform::TextAlignment;
using test::Design;
using test::LocalizedApplication;

template <typename Control>
class LocalizedControls : public testing::Test {
 protected:
  LocalizedApplication app_{test::languagesToSpeak(), {"fr"}};
};
using AllControls =
    testing::Types<test::DesignedLabel, test::DesignedTextField, test::DesignedButton>;
TYPED_TEST_SUITE(LocalizedControls, AllControls);

const Design kNothing;
const Design kAll = {"title", "spoken", "hint"};

// What each control remembers of a design: the same, unless a row says otherwise.
struct KeyRow {
  const char* name;
  Design design;
  Design label = design;
  Design field = design;
  Design button = design;

  const Design& of(const test::DesignedLabel& /*control*/) const { return label; }
  const Design& of(const test::DesignedTextField& /*control*/) const { return field; }
  const Design& of(const test::DesignedButton& /*control*/) const { return button; }
};

KeyRow noKey(const char* name, const String& text) {
  return {name, {text, "spoken", "hint"}, kNothing, kNothing, kNothing};
}

const KeyRow kKeyRows[] = {
    {"all keys", kAll},
    {.name = "the text of a new label", .design = {"Label", "spoken", "hint"}, .label = kNothing},
    {"the title of a new button", {"Button", "spoken", "hint"}},
    {.name = "the spoken label of a new label",
     .design = {"title", "Label", "Label"},
     .label = {"title", {}, "Label"}},
    {.name = "the spoken label of a new button",
     .design = {"title", "Button", "Button"},
     .button = {"title", {}, "Button"}},
    {"nothing spoken", {"title", {}, {}}},
    {"empty is spoken", {"title", "", ""}},
    {"what is spoken has no translation", {"title", "plain", "plain too"}},
    noKey("no translation", "plain"),
    noKey("translated as itself", "same"),
    noKey("translated as nothing", "void"),
    noKey("another letter case", "Title"),
    noKey("empty", ""),
    noKey("absent", {}),
};

// What a control shows that remembers `keys` of `design`.
Design translated(const Design& design, const Design& keys) {
  const auto text = [](const String& designed, const String& key) {
    return key.empty() ? designed : Localizer::sharedLocalizer().localizedStringForKey(key);
  };
  return {text(design.text, keys.text), text(design.spoken, keys.spoken),
          text(design.hint, keys.hint)};
}

TYPED_TEST(LocalizedControls, TakeDesignedTextsAsKeys) {
  for (const KeyRow& row : kKeyRows) {
    this->app_.speak({"fr"});
    TypeParam control(row.design);
    const Design& keys = row.of(control);
    control.localized->awakeFromNib();
    EXPECT_EQ(control.remembered(), keys) << row.name;
    EXPECT_EQ(control.shown(), translated(row.design, keys)) << row.name;
    this->app_.speak({"de"});
    EXPECT_EQ(control.shown(), translated(row.design, keys)) << row.name;
    EXPECT_EQ(control.remembered(), keys) << row.name;
  }
}

TYPED_TEST(LocalizedControls, FollowTheLocaleInFontAndAlignmentKeyOrNot) {
  const std::tuple<const char*, const char*, TextAlignment> kRows[] = {
      {"ar-EG", "CorbetSansKufiArabic", TextAlignment::right},
      {"de", "System", TextAlignment::left},
      {"ar", "CorbetSansKufiArabic", TextAlignment::right},
  };
  for (const char* text : {"title", "plain", ""}) {
    this->app_.speak({"fr"});
    TypeParam control({text, {}, {}});
    control.localized->awakeFromNib();
    for (const auto& [locale, fontName, alignment] : kRows) {
      this->app_.speak({locale});
      EXPECT_EQ(control.fontName(), fontName) << locale << ", " << text;
      EXPECT_EQ(control.shown().alignment, alignment) << locale << ", " << text;
    }
    control.localized->setOriginalFont(nullptr);
    control.localized->setOriginalAlignment(TextAlignment::right);
    this->app_.speak({"ar"});
    EXPECT_EQ(control.fontName(), "none") << "an absent font is passed through";
    EXPECT_EQ(control.shown().alignment, TextAlignment::left);
  }
}

TYPED_TEST(LocalizedControls, StayAsTheyAreWithoutACurrentLocale) {
  for (const StringList& none : {StringList(), StringList::emptyList()}) {
    Localizer::sharedLocalizer().setPreferredLocales(none);
    TypeParam control(kAll);
    control.localized->awakeFromNib();
    EXPECT_EQ(control.diary->take().find('='), std::string::npos);
    EXPECT_EQ(control.remembered(), kAll) << "the key is remembered all the same";
    LocalizedApplication::post();
    control.localized->handleOVPreferredLocaleDidChangeNotification(nullptr);
    EXPECT_EQ(control.diary->take(), "");
    Localizer::sharedLocalizer().setPreferredLocales({"fr"});
    LocalizedApplication::post();
    EXPECT_EQ(control.shown().text, "titre");
  }
}

TYPED_TEST(LocalizedControls, TakeStringsFromTheCurrentLanguageWhateverTheLocale) {
  TypeParam control(kAll);
  control.localized->awakeFromNib();
  control.refreshFor("ar");
  EXPECT_EQ(control.shown(), (Design{"titre", "dit", "indice", TextAlignment::right}));
  control.refreshFor({});
  EXPECT_EQ(control.shown(), (Design{"titre", "dit", "indice", TextAlignment::left}));
}

TYPED_TEST(LocalizedControls, ListenFromTheirConfigurationToTheirEnd) {
  TypeParam untouched(kAll);
  TypeParam gone(kAll);
  gone.localized->awakeFromNib();
  TypeParam twice(kAll);
  twice.localized->awakeFromNib();
  twice.localized->awakeFromNib();
  EXPECT_EQ(twice.remembered(), kAll) << "\"titre\" is no key: what was remembered stays";
  gone.localized.reset();
  gone.diary->forget();
  twice.diary->forget();
  twice.refreshFor("fr");
  const std::string once = twice.diary->take();
  LocalizedApplication::post();
  EXPECT_EQ(untouched.diary->take(), "");
  EXPECT_EQ(gone.diary->take(), "");
  EXPECT_EQ(twice.diary->take(), once + " " + once) << "registered twice, refreshed twice";
}

// Where the toolkit's control calls the application, that may destroy the localized control: at
// each thing that is told while it is configured, and at each of a refresh.
TYPED_TEST(LocalizedControls, AreNotTouchedAnyMoreWhenTheyDieAmidTheirRefresh) {
  bool died = true;
  for (std::size_t fatal = 1; died; ++fatal) {
    TypeParam control(kAll);
    control.watched.reset();
    std::size_t told = 0;
    control.diary->afterwards = [&](const std::string& /*entry*/) {
      if (++told == fatal) {
        control.localized.reset();
      }
    };
    control.localized->awakeFromNib();
    LocalizedApplication::post();
    LocalizedApplication::post();
    died = control.localized == nullptr;
    EXPECT_TRUE(died ? told == fatal : fatal > 15) << "five things at least are told each time";
  }
}

TEST(ControlSteps, AreTakenInTheOrderOfEachControl) {
  const LocalizedApplication app(test::languagesToSpeak(), {"fr"});
  const auto steps = [](auto control) {
    control.localized->awakeFromNib();
    return control.diary->take();
  };
  EXPECT_EQ(steps(test::DesignedLabel(kAll)),
            "font alignment text spoken hint "
            "text=titre spoken=dit hint=indice font=System alignment=0");
  EXPECT_EQ(steps(test::DesignedTextField(kAll)),
            "text spoken hint placeholder font alignment "
            "font=System alignment=0 text=titre spoken=dit hint=indice");
  EXPECT_EQ(steps(test::DesignedButton(kAll)),
            "title0 spoken hint font alignment "
            "title0=titre title2=titre title8=titre title1=titre title4=titre "
            "title0=titre title2=titre title8=titre title1=titre title4=titre "
            "spoken=dit hint=indice font=System alignment=0");
  EXPECT_EQ(steps(test::DesignedLabel({"plain", "spoken", "hint"})),
            "font alignment text font=System alignment=0");
  EXPECT_EQ(steps(test::DesignedTextField({"plain", "spoken", "hint"})),
            "text font alignment font=System alignment=0");
  EXPECT_EQ(steps(test::DesignedButton({"plain", "spoken", "hint"})),
            "title0 font alignment font=System alignment=0");
}

}  // namespace
}  // namespace orvanta
