#pragma once

#include <algorithm>
#include <array>
#include <atomic>
#include <memory>
#include <numeric>
#include <random>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include <orvanta/platform/NotificationCenter.h>

/// What every notification centre must do. `Factory::make()` gives a new one.
namespace orvanta::test {

template <typename Factory>
class NotificationCenterSuite : public testing::Test {
 protected:
  using Handler = platform::NotificationCenter::Handler;

  [[nodiscard]] Handler appending(const char* text) {
    return [this, text](const platform::Notification&) { told_ += text; };
  }
  void post(const String& name, const void* object = nullptr) {
    center_->postNotification({name, object, {}});
  }
  /// Who was told since the last call.
  [[nodiscard]] std::string told() { return std::exchange(told_, {}); }

  std::shared_ptr<platform::NotificationCenter> center_ = Factory::make();
  std::string told_;
  std::array<int, 4> things_{};  // Observers and senders are known by their addresses alone.
};

TYPED_TEST_SUITE_P(NotificationCenterSuite);

TYPED_TEST_P(NotificationCenterSuite, TellsWhoRegisteredForNameAndSender) {
  const void* const anna = &this->things_[0];
  const void* const berta = &this->things_[1];
  const void* const sender = &this->things_[2];
  this->center_->addObserver(anna, "change", nullptr, this->appending("a"));
  this->center_->addObserver(berta, "change", sender, this->appending("b"));
  this->center_->addObserver(berta, "other", nullptr, this->appending("o"));
  this->center_->addObserver(anna, "change", nullptr, this->appending("A"));
  this->center_->addObserver(anna, "empty", nullptr, {});
  this->post("change");
  EXPECT_EQ(this->told(), "aA");
  this->post("change", sender);
  EXPECT_EQ(this->told(), "abA");
  this->post("other", sender);
  EXPECT_EQ(this->told(), "o");
  this->post("nobody");
  this->post("empty");
  EXPECT_EQ(this->told(), "");

  this->center_->removeObserver(anna);
  this->center_->removeObserver(sender);
  this->post("change", sender);
  EXPECT_EQ(this->told(), "b");
  this->center_->removeObserver(berta);
  this->post("change", sender);
  this->post("other");
  EXPECT_EQ(this->told(), "");
  this->center_->addObserver(anna, "change", nullptr, this->appending("again"));
  this->post("change");
  EXPECT_EQ(this->told(), "again");
}

TYPED_TEST_P(NotificationCenterSuite, HandsTheNotificationOn) {
  const platform::Notification sent{"change", &this->things_[2], {{"key", StringList{"x"}}}};
  int count = 0;
  this->center_->addObserver(this, "change", nullptr, [&](const platform::Notification& got) {
    ++count;
    EXPECT_EQ(got.name, "change");
    EXPECT_EQ(got.object, sent.object);
    EXPECT_TRUE(got.userInfo.isSameObject(sent.userInfo));
  });
  this->center_->postNotification(sent);
  EXPECT_EQ(count, 1);
}

TYPED_TEST_P(NotificationCenterSuite, MayBeChangedFromInsideAHandler) {
  const void* const anna = &this->things_[0];
  const void* const berta = &this->things_[1];
  const void* const carla = &this->things_[2];
  this->center_->addObserver(anna, "change", nullptr, [&](const platform::Notification&) {
    this->told_ += "a";
    this->center_->removeObserver(anna);
    this->center_->removeObserver(berta);
    this->center_->addObserver(anna, "change", nullptr, this->appending("new"));
    this->post("nested");
  });
  this->center_->addObserver(berta, "change", nullptr, this->appending("b"));
  this->center_->addObserver(carla, "change", nullptr, this->appending("c"));
  this->center_->addObserver(carla, "nested", nullptr, [&](const platform::Notification&) {
    this->told_ += "(";
    this->center_->removeObserver(carla);
    this->center_->addObserver(carla, "change", nullptr, this->appending("C"));
    this->post("change");
    this->told_ += ")";
  });
  this->post("change");
  EXPECT_EQ(this->told(), "a(newC)") << "removed: not told any more; added: not told of this one";
  this->post("change");
  EXPECT_EQ(this->told(), "newC");
}

TYPED_TEST_P(NotificationCenterSuite, SurvivesAHandlerThatThrows) {
  const void* const anna = &this->things_[0];
  this->center_->addObserver(anna, "change", nullptr, [&](const platform::Notification&) {
    this->center_->removeObserver(anna);
    throw std::runtime_error("the application's own");
  });
  this->center_->addObserver(this, "change", nullptr, this->appending("b"));
  EXPECT_THROW(this->post("change"), std::runtime_error);
  this->post("change");
  EXPECT_EQ(this->told(), "b");
}

// What a handler holds may come back as it is destroyed, as a control that its handler owned does.
struct RemovesItself {
  explicit RemovesItself(std::shared_ptr<platform::NotificationCenter> where)
      : center(std::move(where)) {}
  RemovesItself(const RemovesItself&) = delete;
  RemovesItself& operator=(const RemovesItself&) = delete;
  ~RemovesItself() {
    center->removeObserver(this);
    center->postNotification({"gone", nullptr, {}});
  }
  std::shared_ptr<platform::NotificationCenter> center;
};

TYPED_TEST_P(NotificationCenterSuite, LetsGoOfWhatHandlersHold) {
  const auto heldBy = [&](const void* observer) {
    auto held = std::make_shared<RemovesItself>(this->center_);
    std::weak_ptr<RemovesItself> watch = held;
    this->center_->addObserver(observer, "change", nullptr,
                               [held = std::move(held)](const platform::Notification&) {});
    return watch;
  };
  const void* const anna = &this->things_[0];
  const void* const berta = &this->things_[1];
  this->center_->addObserver(this, "gone", nullptr, this->appending("gone "));
  const auto first = heldBy(anna);
  const auto second = heldBy(berta);
  this->center_->removeObserver(anna);
  EXPECT_TRUE(first.expired()) << "at once when nothing is being posted";
  EXPECT_FALSE(second.expired());
  this->center_->addObserver(this, "change", nullptr, [&](const platform::Notification&) {
    this->center_->removeObserver(berta);
  });
  this->post("change");
  EXPECT_TRUE(second.expired()) << "else once the post is over";
  EXPECT_EQ(this->told(), "gone gone ");
}

TYPED_TEST_P(NotificationCenterSuite, KeepsCountOfThousandsInAnyOrder) {
  constexpr std::size_t kCount = 10000;
  std::vector<int> observers(kCount);
  std::vector<std::size_t> order(kCount);
  std::iota(order.begin(), order.end(), std::size_t{0});
  std::mt19937 random(7);  // NOLINT(cert-msc51-cpp): a run must be repeatable.
  std::shuffle(order.begin(), order.end(), random);
  for (int& observer : observers) {
    this->center_->addObserver(&observer, "change", nullptr,
                               [&observer](const platform::Notification&) { ++observer; });
  }
  this->post("change");
  EXPECT_EQ(std::count(observers.begin(), observers.end(), 1), kCount);
  for (std::size_t removed = 0; removed < kCount; ++removed) {
    this->center_->removeObserver(&observers[order[removed]]);
    if (removed % 1000 == 999) {
      std::fill(observers.begin(), observers.end(), 0);
      this->post("change");
      for (std::size_t index = 0; index < kCount; ++index) {
        ASSERT_EQ(observers[order[index]], index <= removed ? 0 : 1);
      }
    }
  }
}

TYPED_TEST_P(NotificationCenterSuite, MayBeUsedFromSeveralThreads) {
  std::atomic<bool> isOver = false;
  std::atomic<std::size_t> told = 0;
  std::vector<std::thread> threads;
  threads.reserve(2);
  for (int number = 0; number < 2; ++number) {
    threads.emplace_back([&] {
      while (!isOver) {
        this->post("change");
      }
    });
  }
  std::array<int, 50> observers{};
  for (int round = 0; round < 200; ++round) {
    for (int& observer : observers) {
      auto state = std::make_shared<int>(0);
      this->center_->addObserver(&observer, "change", nullptr,
                                 [&told, state](const platform::Notification&) { ++told; });
    }
    for (int& observer : observers) {
      this->center_->removeObserver(&observer);
    }
  }
  isOver = true;
  for (std::thread& thread : threads) {
    thread.join();
  }
  const std::size_t before = told;
  this->post("change");
  EXPECT_EQ(told, before);
}

REGISTER_TYPED_TEST_SUITE_P(NotificationCenterSuite, TellsWhoRegisteredForNameAndSender,
                            HandsTheNotificationOn, MayBeChangedFromInsideAHandler,
                            SurvivesAHandlerThatThrows, LetsGoOfWhatHandlersHold,
                            KeepsCountOfThousandsInAnyOrder, MayBeUsedFromSeveralThreads);

}  // namespace orvanta::test
