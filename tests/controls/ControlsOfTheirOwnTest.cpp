// What only one of the controls has.
#include <gtest/gtest.h>

#include "DesignedControls.h"

namespace orvanta {
namespace {

using standard::MemoryButton;
using standard::MemoryLabel;
using test::LocalizedApplication;

TEST(LabelMadeInCode, HasItsFrameAndIsConfigured) {
  const LocalizedApplication app(test::languagesToSpeak(), {"fr"});
  std::shared_ptr<MemoryLabel> made;
  const auto label =
      UILocalizedLabel::initLocalizedWithFrame({1, 2, 3, 4}, [&](const platform::Rect& frame) {
        made = std::make_shared<MemoryLabel>(frame);
        made->setText("title");
        return made;
      });
  ASSERT_NE(label, nullptr);
  EXPECT_EQ(made->frame(), (platform::Rect{1, 2, 3, 4}));
  EXPECT_EQ(made->text(), "titre");
  EXPECT_EQ(label->originalAccessibilityLabel(), "title") << "what is shown is spoken";
  app.speak({"de"});
  EXPECT_EQ(made->text(), "Titel");
  EXPECT_EQ(made->accessibilityLabel(), "Titel");
  EXPECT_EQ(UILocalizedLabel::initLocalizedWithFrame(
                {}, [](const platform::Rect& /*frame*/) { return nullptr; }),
            nullptr);
  EXPECT_EQ(UILocalizedLabel::initLocalizedWithFrame({}, nullptr), nullptr);
}

TEST(TextFieldOnPhones, KeepsItsPlaceholder) {
  const LocalizedApplication app(test::languagesToSpeak(), {"fr"});
  for (const char* placeholder : {"email.p", "password.p", "hint", ""}) {
    test::DesignedTextField control({"title", {}, {}});
    control.watched->setPlaceholder(placeholder);
    control.diary->forget();
    control.localized->awakeFromNib();
    control.localized->initializePlaceholder();
    EXPECT_EQ(control.localized->originalPlaceholder(), placeholder);
    EXPECT_EQ(control.diary->take().find("placeholder="), std::string::npos) << placeholder;
  }
  test::DesignedTextField plain({"plain", {}, {}});
  plain.watched->setPlaceholder("hint");
  plain.localized->awakeFromNib();
  EXPECT_TRUE(plain.localized->originalPlaceholder().isAbsent());
}

TEST(ButtonStates, SayWhichTitlesAreSet) {
  const LocalizedApplication app(test::languagesToSpeak(), {"fr"});
  using States = std::vector<platform::ControlState>;
  test::DesignedButton control({"title", {}, {}});
  UILocalizedButton& button = *control.localized;
  const auto titlesSet = [&] {
    control.diary->forget();
    button.setTitlesFromKey("hint");
    return control.diary->take();
  };
  const States defaults = {0, 2, 8, 1, 4};
  EXPECT_EQ(*button.controlStates(), defaults);
  EXPECT_EQ(button.controlStates(), button.controlStates());
  const auto own = std::make_shared<const States>(States{4, 17});
  button.setControlStates(own);
  EXPECT_EQ(titlesSet(), "title4=indice title17=indice");
  button.setControlStates(std::make_shared<const States>());
  EXPECT_EQ(titlesSet(), "");
  button.setControlStates(nullptr);
  EXPECT_EQ(*button.controlStates(), defaults);

  control.diary->afterwards = [&](const std::string& /*entry*/) { button.setControlStates(own); };
  EXPECT_EQ(titlesSet(), "title0=indice title2=indice title8=indice title1=indice title4=indice")
      << "a list that is set meanwhile counts from the next time on";
}

TEST(MemoryButtonTitles, FallBackToTheNormalOne) {
  MemoryButton button;
  EXPECT_TRUE(button.titleForState(platform::kControlStateSelected).isAbsent());
  button.setTitle("normal", platform::kControlStateNormal);
  button.setTitle("", platform::kControlStateFocused);
  button.setTitle("selected", platform::kControlStateSelected);
  button.setTitle({}, platform::kControlStateSelected);
  EXPECT_EQ(button.titleForState(platform::kControlStateSelected), "normal");
  EXPECT_EQ(button.titleForState(platform::kControlStateFocused), "");
  EXPECT_EQ(button.accessibilityLabel(), "normal");
}

}  // namespace
}  // namespace orvanta
