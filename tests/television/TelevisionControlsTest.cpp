#include <thread>

#include <gtest/gtest.h>

#include <orvanta/locale/SystemInfo.h>

#include "../controls/DesignedControls.h"

namespace orvanta {
namespace {

using platform::OperatingSystemVersion;
using test::Design;
using test::LocalizedApplication;

platform::Platform withSystem(const OperatingSystemVersion& version) {
  platform::Platform platform;
  platform.processInfo = standard::makeProcessInfo(version);
  return platform;
}

const Design kDesign = {"title", "spoken", "hint"};

TEST(Television, IsWhatThisBuildIsFor) {
  EXPECT_TRUE(SystemInfo::isTVOS());
  EXPECT_FALSE(SystemInfo::isIOS());
}

template <typename Control>
class DeferredControls : public testing::Test {};
using DeferredKinds = testing::Types<test::DesignedLabel, test::DesignedButton>;
TYPED_TEST_SUITE(DeferredControls, DeferredKinds);

TYPED_TEST(DeferredControls, AreConfiguredLaterBeforeVersion91) {
  const std::pair<OperatingSystemVersion, bool> kRows[] = {
      {{9, 0, 0}, true},  {{9, 0, 9}, true},  {{8, 4, 0}, true},
      {{9, 1, 0}, false}, {{9, 1, 1}, false}, {{10, 0, 0}, false},
  };
  for (const auto& [version, isDeferred] : kRows) {
    const LocalizedApplication app(test::languagesToSpeak(), {"fr"}, withSystem(version));
    TypeParam control(kDesign);
    control.localized->awakeFromNib();
    EXPECT_EQ(control.diary->take().empty(), isDeferred)
        << version.majorVersion << '.' << version.minorVersion;
    LocalizedApplication::post();
    EXPECT_EQ(control.diary->take().empty(), isDeferred) << "not even listening";
    app.loop->runPending();
    EXPECT_EQ(control.shown(), (Design{"titre", "dit", "indice"}));
    app.speak({"de"});
    EXPECT_EQ(control.shown(), (Design{"Titel", "gesagt", "Hinweis"}));
  }
}

TYPED_TEST(DeferredControls, TakeTheTextOfThatLaterMomentUnlessTheyHaveDied) {
  const LocalizedApplication app(test::languagesToSpeak(), {"fr"}, withSystem({9, 0, 0}));
  TypeParam control({"plain", {}, {}});
  control.localized->awakeFromNib();
  control.watched->setText("title");
  TypeParam dead(kDesign);
  dead.localized->awakeFromNib();
  std::weak_ptr<void> watched = dead.watched;
  dead.watched.reset();
  dead.localized.reset();
  EXPECT_TRUE(watched.expired()) << "the step that waits keeps nothing alive";
  EXPECT_EQ(app.loop->runPending(), 2U);
  EXPECT_EQ(control.shown().text, "titre");
  EXPECT_EQ(dead.diary->take(), "");
}

TYPED_TEST(DeferredControls, MayDieWhileTheyAreConfigured) {
  const LocalizedApplication app(test::languagesToSpeak(), {"fr"}, withSystem({9, 0, 0}));
  TypeParam control(kDesign);
  control.localized->awakeFromNib();
  control.watched.reset();
  control.diary->afterwards = [&](const std::string& /*entry*/) { control.localized.reset(); };
  app.loop->runPending();
  EXPECT_EQ(control.localized, nullptr);
  control.diary->forget();
  LocalizedApplication::post();
  EXPECT_EQ(control.diary->take(), "");
}

TEST(Deferral, IsForLabelsAndButtonsLoadedFromALayout) {
  const LocalizedApplication app(test::languagesToSpeak(), {"fr"}, withSystem({9, 0, 0}));
  test::DesignedTextField field(kDesign);
  field.localized->awakeFromNib();
  EXPECT_EQ(field.shown().text, "titre") << "text fields never wait";
  auto label = std::make_shared<test::WatchedLabel>();
  label->setText("title");
  const auto localized = UILocalizedLabel::initLocalizedWithFrame(
      {}, [&](const platform::Rect& /*frame*/) { return label; });
  EXPECT_EQ(label->text(), "titre") << "nor does what is made in code";
}

TEST(Placeholder, IsLocalizedAtTheLoad) {
  const std::tuple<const char*, String, String, String> rows[] = {
      {"a marker without text", "", "email.p", "courriel"},
      {"a marker with a key", "title", "email.p", "courriel"},
      {"a marker with plain text", "plain", "password.p", "mot de passe"},
      {"a marker in capitals", "", "EMAIL.P", "EMAIL.P"},
      {"a key with a key", "title", "hint", "indice"},
      {"a key with plain text", "plain", "hint", "hint"},
      {"a key without text", "", "hint", "hint"},
      {"no translation", "title", "plain", "plain"},
      {"empty", "title", "", ""},
      {"absent", "title", {}, {}},
  };
  for (const auto& [name, text, placeholder, shown] : rows) {
    const LocalizedApplication app(test::languagesToSpeak(), {"fr"}, withSystem({9, 0, 0}));
    test::DesignedTextField control({text, {}, {}});
    control.watched->setPlaceholder(placeholder);
    control.localized->awakeFromNib();
    EXPECT_EQ(control.watched->placeholder(), shown) << name;
    const bool keyed = text == "title";
    EXPECT_EQ(control.localized->originalPlaceholder(), keyed ? placeholder : String()) << name;
    app.speak({"de"});
    EXPECT_EQ(control.watched->placeholder(), shown) << name << ", later";
  }
}

TEST(Placeholder, MayDestroyTheFieldThatItIsSetOn) {
  const LocalizedApplication app(test::languagesToSpeak(), {"fr"}, withSystem({9, 0, 0}));
  for (const char* placeholder : {"email.p", "hint"}) {
    test::DesignedTextField control({"title", {}, {}});
    control.localized->awakeFromNib();
    control.watched->setPlaceholder(placeholder);
    control.localized->setOriginalPlaceholder("hint");
    control.watched.reset();
    control.diary->forget();
    control.diary->afterwards = [&](const std::string& /*entry*/) { control.localized.reset(); };
    control.localized->initializePlaceholder();
    EXPECT_EQ(control.localized, nullptr) << placeholder;
    EXPECT_EQ(control.diary->take().find("placeholder placeholder="), 0U) << placeholder;
  }
}

TEST(PlaceholderThread, IsTheMainOneBeforeTheRefreshAndWhenAsked) {
  const LocalizedApplication app(test::languagesToSpeak(), {"fr"});
  test::DesignedTextField control({"title", {}, {}});
  control.watched->setPlaceholder("hint");
  control.diary->forget();
  control.localized->awakeFromNib();
  EXPECT_EQ(control.diary->take(),
            "text spoken hint placeholder font alignment placeholder placeholder=indice "
            "font=System alignment=0 text=titre");
  control.watched->setPlaceholder("email.p");
  control.diary->forget();
  std::thread other([&] {
    control.localized->initializePlaceholder();
    EXPECT_EQ(control.diary->take(), "placeholder placeholder=courriel") << "before it returns";
    app.loop->quit();
  });
  app.loop->run();
  other.join();
}

}  // namespace
}  // namespace orvanta
