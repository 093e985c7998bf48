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

struct KeyRow {
  const char* name;
  Design design;
  Design label;  // What each control remembers of it.
  Design field;
  Design button;

  const Design& of(const test::DesignedLabel& /*control*/) const { return label; }
  const Design& of(const test::DesignedTextField& /*control*/) const { return field; }
  const Design& of(const test::DesignedButton& /*control*/) const { return button; }
};

const Design kNothing;
const Design kAll = {"title", "spoken", "hint"};
const Design kTitle = {"title", {}, {}};

const KeyRow kKeyRows[] = {
    {"all keys", kAll, kAll, kAll, kAll},
    {"the text of a new label",
     {"Label", "spoken", "hint"},
     kNothing,
     {"Label", "spoken", "hint"},
     {"Label", "spoken", "hint"}},
    {"the title of a new button",
     {"Button", "spoken", "hint"},
     {"Button", "spoken", "hint"},
     {"Button", "spoken", "hint"},
     {"Button", "spoken", "hint"}},
    {"the spoken label of a new label",
     {"title", "Label", "Label"},
     {"title", {}, "Label"},
     {"title", "Label", "Label"},
     {"title", "Label", "Label"}},
    {"the spoken label of a new button",
     {"title", "Button", "Button"},
     {"title", "Button", "Button"},
     {"title", "Button", "Button"},
     {"title", {}, "Button"}},
    {"nothing spoken", kTitle, kTitle, kTitle, kTitle},
    {"empty is spoken", {"title", "", ""}, {"title", "", ""}, {"title", "", ""}, {"title", "", ""}},
    {"what is spoken has no translation",
     {"title", "plain", "plain too"},
     {"title", "plain", "plain too"},
     {"title", "plain", "plain too"},
     {"title", "plain", "plain too"}},
    {"no translation", {"plain", "spoken", "hint"}, kNothing, kNothing, kNothing},
    {"translated as itself", {"same", "spoken", "hint"}, kNothing, kNothing, kNothing},
    {"translated as nothing", {"void", "spoken", "hint"}, kNothing, kNothing, kNothing},
    {"another letter case", {"Title", "spoken", "hint"}, kNothing, kNothing, kNothing},
    {"empty", {"", "spoken", "hint"}, kNothing, kNothing, kNothing},
    {"absent", {{}, "spoken", "hint"}, kNothing, kNothing, kNothing},
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
  struct Row {
    const char* locale;
    const char* fontName;
    TextAlignment left, right, center, natural;
  };
  constexpr auto kLeft = TextAlignment::left;
  constexpr auto kRight = TextAlignment::right;
  constexpr auto kCenter = TextAlignment::center;
  constexpr auto kNatural = TextAlignment::natural;
  const Row kRows[] = {
      {"ar-EG", "CorbetSansKufiArabic", kRight, kLeft, kCenter, kNatural},
      {"de", "System", kLeft, kRight, kCenter, kNatural},
      {"ar", "CorbetSansKufiArabic", kRight, kLeft, kCenter, kNatural},
  };
  for (const char* text : {"title", "plain", ""}) {
    this->app_.speak({"fr"});
    TypeParam left({text, {}, {}, kLeft});
    TypeParam right({text, {}, {}, kRight});
    TypeParam center({text, {}, {}, kCenter});
    TypeParam natural({text, {}, {}, kNatural});
    for (TypeParam* control : {&left, &right, &center, &natural}) {
      control->localized->awakeFromNib();
    }
    for (const Row& row : kRows) {
      this->app_.speak({row.locale});
      EXPECT_EQ(left.fontName(), row.fontName) << row.locale << ", " << text;
      EXPECT_EQ(left.shown().alignment, row.left) << row.locale << ", " << text;
      EXPECT_EQ(right.shown().alignment, row.right) << row.locale << ", " << text;
      EXPECT_EQ(center.shown().alignment, row.center) << row.locale << ", " << text;
      EXPECT_EQ(natural.shown().alignment, row.natural) << row.locale << ", " << text;
    }
  }
}

TYPED_TEST(LocalizedControls, PassAnAbsentFontThrough) {
  TypeParam control(kAll);
  control.localized->awakeFromNib();
  control.localized->setOriginalFont(nullptr);
  this->app_.speak({"ar"});
  EXPECT_EQ(control.fontName(), "none");
  EXPECT_EQ(control.shown().alignment, TextAlignment::right);
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
  EXPECT_EQ(twice.remembered(), Design({"title", "spoken", "hint"}))
      << "\"titre\" is no key: what was remembered stays";
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

// Where the toolkit's control calls the application, that may destroy the localized control.
TYPED_TEST(LocalizedControls, AreNotTouchedAnyMoreWhenTheyDieAmidTheirRefresh) {
  for (const bool whileConfigured : {true, false}) {
    std::size_t told = 0;
    for (std::size_t fatal = 1; fatal == 1 || told == fatal - 1; ++fatal) {
      TypeParam control(kAll);
      if (!whileConfigured) {
        control.localized->awakeFromNib();
      }
      control.watched.reset();
      told = 0;
      control.diary->afterwards = [&](const std::string& /*entry*/) {
        if (++told == fatal) {
          control.localized.reset();
        }
      };
      if (whileConfigured) {
        control.localized->awakeFromNib();
      } else {
        LocalizedApplication::post();
      }
      if (control.localized != nullptr) {
        EXPECT_GE(fatal, 6U) << "five things at least were told";
        break;
      }
      LocalizedApplication::post();
      EXPECT_EQ(told, fatal);
    }
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
