// Makes each allocation of an operation fail in turn. The operation may fail only with
// `std::bad_alloc`, and its object must work afterwards as if the operation had not been called.
#include <functional>
#include <new>

#include <gtest/gtest.h>

#include <orvanta/controls/UILocalizedButton.h>
#include <orvanta/controls/UILocalizedLabel.h>
#include <orvanta/standard/MemoryControls.h>
#include <orvanta/standard/StandardBundles.h>
#include <orvanta/standard/StandardFiles.h>
#include <orvanta/standard/StandardLocaleData.h>
#include <orvanta/standard/StandardNotificationCenter.h>

#include "../support/LocalizedApplication.h"
#include "CountingNew.h"

namespace orvanta {
namespace {

using test::LocalizedApplication;
using test::RefusedAllocations;
using Extent = RefusedAllocations::Extent;

// Calls `operation` on new objects from `prepare`, each time with a later allocation failing, until
// none fails; calls `check` after each call. The object is destroyed while all allocations fail.
template <typename Object>
void refuseEach(const std::function<std::unique_ptr<Object>()>& prepare,
                const std::function<void(Object&)>& operation,
                const std::function<void(Object&, std::size_t granted)>& check) {
  for (const Extent extent : {Extent::one, Extent::allFromThere}) {
    bool anyWasRefused = true;
    for (std::size_t granted = 0; anyWasRefused; ++granted) {
      std::unique_ptr<Object> object = prepare();
      {
        const RefusedAllocations refused(granted, extent);
        try {
          operation(*object);
        } catch (const std::bad_alloc&) {
        }
        anyWasRefused = RefusedAllocations::anyWas();
      }
      check(*object, granted);
      const RefusedAllocations refused(0, Extent::allFromThere);
      object.reset();
    }
  }
}

class AllocationFailure : public testing::Test {
 protected:
  const LocalizedApplication app_{
      {{"en", {{"title", "Title"}}}, {"fr", {{"title", "titre"}, {"hint", "indice"}}}}, {"fr"}};

  void SetUp() override {
    // So old that the table's stamp is not racy.
    const auto table = app_.bundle() / "fr.lproj/Localizable.strings";
    std::filesystem::last_write_time(
        table, std::filesystem::last_write_time(table) - std::chrono::hours(1));
  }
};

TEST_F(AllocationFailure, OfLookUpsLeavesBundlesUsable) {
  using Registry = std::shared_ptr<platform::BundleRegistry>;
  const String path = (app_.bundle() / "fr.lproj").string();
  const std::array keys = {HashedKey("title")};
  refuseEach<Registry>(
      [&] {
        return std::make_unique<Registry>(standard::makeBundleRegistry(
            standard::makeFileManager({}), standard::makeLocaleData({"fr"}), path, {}));
      },
      [&](Registry& registry) {
        const auto bundle = registry->bundleWithPath(path);
        static_cast<void>(bundle->textsForKeys(keys));
        static_cast<void>(bundle->localizedStringForKey("title"_s));
        static_cast<void>(registry->bundleWithPath(path));
        registry->refreshTables();
      },
      [&](Registry& registry, std::size_t granted) {
        const auto bundle = registry->bundleWithPath(path);
        ASSERT_NE(bundle, nullptr) << granted;
        EXPECT_EQ(bundle->localizedStringForKey("title"), "titre") << granted;
        EXPECT_EQ(bundle->textsForKeys(keys).front(), "titre") << granted;
      });
}

TEST_F(AllocationFailure, OfARegistrationLeavesNoHandlerBehind) {
  struct Center {
    std::shared_ptr<platform::NotificationCenter> center = standard::makeNotificationCenter();
    int told = 0;
  };
  const auto add = [](Center& center, const void* observer) {
    center.center->addObserver(observer, "change"_s, nullptr,
                               [&center](const platform::Notification&) { ++center.told; });
  };
  refuseEach<Center>(
      [&] {
        auto center = std::make_unique<Center>();
        add(*center, "kept");
        center->told = 0;
        return center;
      },
      [&](Center& center) {
        add(center, &center);
        center.center->addObserver(&center, "change"_s, nullptr,
                                   [&](const platform::Notification&) { add(center, &center); });
        center.center->postNotification({"change"_s, nullptr, {}});
      },
      [&](Center& center, std::size_t granted) {
        {
          const RefusedAllocations refused(0, Extent::allFromThere);
          center.center->removeObserver(&center);
        }
        center.told = 0;
        center.center->postNotification({"change", nullptr, {}});
        EXPECT_EQ(center.told, 1) << granted;
      });
}

TEST_F(AllocationFailure, OfAStepLosesNoOther) {
  struct Loop {
    std::shared_ptr<standard::RunLoop> loop = standard::RunLoop::make();
    int ran = 0;
  };
  refuseEach<Loop>([&] { return std::make_unique<Loop>(); },
                   [&](Loop& loop) {
                     for (int step = 0; step < 3; ++step) {
                       loop.loop->dispatchAsync([&loop] { ++loop.ran; });
                       loop.loop->performOnMainThreadAndWait([&loop] { ++loop.ran; });
                     }
                   },
                   [&](Loop& loop, std::size_t granted) {
                     const std::size_t queued = loop.loop->runPending();
                     EXPECT_GE(loop.ran, static_cast<int>(2 * queued)) << granted;
                     loop.loop->dispatchAsync([] {});
                   });
}

TEST_F(AllocationFailure, OfAChangeOfLanguageLeavesALanguage) {
  refuseEach<Localizer>([&] { return std::make_unique<Localizer>(); },
                        [&](Localizer& localizer) {
                          localizer.stringCache().refreshCache();
                          localizer.updatePreferredLocales({"fr"_s, "en"_s}, "CA"_s);
                          static_cast<void>(localizer.localizedStringForKey("title"_s));
                        },
                        [&](Localizer& localizer, std::size_t granted) {
                          EXPECT_EQ(localizer.localizedStringForKey("title"), "titre") << granted;
                          localizer.updatePreferredLocales({"en"}, nullptr);
                          EXPECT_EQ(localizer.localizedStringForKey("title"), "Title") << granted;
                        });
}

TEST_F(AllocationFailure, OfAControlLeavesNothingThatCallsIt) {
  struct Control {
    std::shared_ptr<standard::MemoryButton> button = std::make_shared<standard::MemoryButton>();
    UILocalizedButton localized{button};
  };
  refuseEach<Control>(
      [&] {
        auto control = std::make_unique<Control>();
        control->button->setTitle("title", platform::kControlStateNormal);
        return control;
      },
      [&](Control& control) {
        control.localized.awakeFromNib();
        LocalizedApplication::post();
      },
      [&](Control& control, std::size_t granted) {
        control.button->setTitle("title", platform::kControlStateNormal);
        control.localized.awakeFromNib();
        app_.speak({"en"});
        EXPECT_EQ(control.button->titleForState(platform::kControlStateSelected), "Title")
            << granted;
        app_.speak({"fr"});
      });
  LocalizedApplication::post();
}

}  // namespace
}  // namespace orvanta
