// Refreshes and notifications from other threads. To be run under ThreadSanitizer as well.
#include <atomic>
#include <thread>

#include <gtest/gtest.h>

#include "DesignedControls.h"

namespace orvanta {
namespace {

using platform::TextAlignment;
using test::Design;
using test::LocalizedApplication;

const Design kDesign = {"title", "spoken", "hint"};

class ControlThreads : public testing::Test {
 protected:
  // Does `work` on another thread while this one, the main one, runs its loop.
  void offMain(const std::function<void()>& work) {
    std::thread other([&] {
      work();
      app_.loop->quit();
    });
    app_.loop->run();
    other.join();
  }

  // Starts `work` on another thread and returns when it waits for the main one.
  std::thread waitingForMain(const std::function<void()>& work) {
    std::atomic<bool> waits = false;
    app_.loop->setWakeUpHook([&] { waits = true; });
    std::thread other(work);
    while (!waits) {
      std::this_thread::yield();
    }
    app_.loop->setWakeUpHook(nullptr);
    return other;
  }

  LocalizedApplication app_{test::languagesToSpeak(), {"fr"}};
  test::DesignedLabel label_{kDesign};
  test::DesignedTextField field_{kDesign};
  test::DesignedButton button_{kDesign};

  void SetUp() override {
    label_.localized->awakeFromNib();
    field_.localized->awakeFromNib();
    button_.localized->awakeFromNib();
  }
};

TEST_F(ControlThreads, ARefreshIsAppliedBeforeItReturns) {
  offMain([&] {
    label_.refreshFor("ar");
    EXPECT_EQ(label_.shown(), (Design{"titre", "dit", "indice", TextAlignment::right}));
    EXPECT_EQ(label_.fontName(), "CorbetSansKufiArabic");
    field_.refreshFor("ar");
    EXPECT_EQ(field_.shown(), (Design{"titre", "dit", "indice", TextAlignment::right}));
    button_.refreshFor("ar");
    EXPECT_EQ(button_.shown(), (Design{"titre", "dit", "indice"}));
    EXPECT_EQ(button_.fontName(), "System") << "the locale is dropped";
  });
}

TEST_F(ControlThreads, APostIsAppliedBeforeItReturns) {
  app_.speak({"ar"});
  EXPECT_EQ(button_.fontName(), "CorbetSansKufiArabic");
  offMain([&] {
    for (const auto& diary : {label_.diary, field_.diary, button_.diary}) {
      diary->forget();
    }
    LocalizedApplication::post();
    EXPECT_EQ(label_.diary->take(),
              "text=عنوان spoken=Said hint=Hint font=CorbetSansKufiArabic alignment=2");
    EXPECT_EQ(field_.diary->take(),
              "font=CorbetSansKufiArabic alignment=2 text=عنوان spoken=Said hint=Hint");
    const std::string styled = "spoken=Said hint=Hint font=System alignment=0";
    const std::string said = button_.diary->take();
    EXPECT_EQ(said.substr(said.size() - styled.size()), styled) << "the locale is dropped";
    EXPECT_EQ(said.find("OFF-MAIN"), std::string::npos);
  });
  LocalizedApplication::post();
  EXPECT_EQ(button_.fontName(), "CorbetSansKufiArabic");
}

TEST_F(ControlThreads, AHandlerCalledOffMainWithoutALocaleDoesNothing) {
  Localizer::sharedLocalizer().setPreferredLocales({});
  label_.diary->forget();
  offMain([&] {
    LocalizedApplication::post();
    label_.localized->handleOVPreferredLocaleDidChangeNotification(nullptr);
  });
  EXPECT_EQ(label_.diary->take(), "");
}

TEST_F(ControlThreads, AControlThatDiesMeanwhileIsNotTouched) {
  const std::pair<const char*, std::function<void()>> rows[] = {
      {"a notification", [] { LocalizedApplication::post(); }},
      {"a label's refresh", [this] { label_.refreshFor("ar"); }},
      {"a field's refresh", [this] { field_.refreshFor("ar"); }},
      {"a button's refresh", [this] { button_.refreshFor("ar"); }},
      {"a field's placeholder", [this] { field_.localized->initializePlaceholder(); }},
  };
  for (const auto& [name, work] : rows) {
    label_ = test::DesignedLabel(kDesign);
    field_ = test::DesignedTextField(kDesign);
    button_ = test::DesignedButton(kDesign);
    SetUp();
    std::thread other = waitingForMain(work);
    const auto diaries = {label_.diary, field_.diary, button_.diary};
    for (const auto& diary : diaries) {
      diary->forget();
    }
    label_.localized.reset();
    field_.localized.reset();
    button_.localized.reset();
    while (app_.loop->runPending() > 0) {
    }
    other.join();
    for (const auto& diary : diaries) {
      EXPECT_EQ(diary->take(), "") << name;
    }
  }
}

TEST_F(ControlThreads, ControlsAndLanguagesChangeWhileOthersPostAndRefresh) {
  constexpr int kThreads = 3;
  constexpr int kPosts = 100;
  Localizer& localizer = Localizer::sharedLocalizer();
  std::atomic<int> posting = kThreads;
  std::vector<std::thread> threads;
  while (threads.size() < kThreads) {
    threads.emplace_back([&] {
      for (int post = 0; post < kPosts; ++post) {
        LocalizedApplication::post();
        label_.localized->handleOVPreferredLocaleDidChangeNotification(nullptr);
        button_.localized->handleOVPreferredLocaleDidChangeNotification(nullptr);
        field_.refreshFor("ar");
        field_.localized->initializePlaceholder();
      }
      --posting;
    });
  }
  std::vector<std::unique_ptr<test::DesignedLabel>> labels(7);
  std::vector<std::unique_ptr<test::DesignedButton>> buttons(5);
  for (std::size_t turn = 0; posting > 0; ++turn) {
    localizer.updatePreferredLocales({turn % 2 == 0 ? "de" : "fr"}, turn % 3 == 0 ? "CH" : nullptr);
    auto& label = labels[turn % labels.size()];
    label = std::make_unique<test::DesignedLabel>(kDesign);
    label->localized->awakeFromNib();
    auto& button = buttons[turn % buttons.size()];
    button = std::make_unique<test::DesignedButton>(kDesign);
    button->localized->awakeFromNib();
    if (turn % 2 == 0) {
      button = nullptr;
    }
    app_.loop->runPending();
  }
  for (std::thread& thread : threads) {
    thread.join();
  }
  app_.speak({"fr"});
  for (const auto& label : labels) {
    if (label != nullptr) {
      EXPECT_EQ(label->shown().text, "titre");
    }
  }
}

}  // namespace
}  // namespace orvanta
