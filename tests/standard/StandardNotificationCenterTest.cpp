#include <algorithm>
#include <array>
#include <atomic>
#include <random>
#include <stdexcept>
#include <thread>

#include <gtest/gtest.h>

#include <orvanta/standard/StandardNotificationCenter.h>

namespace orvanta::standard {
namespace {

class StandardNotificationCenter : public testing::Test {
 protected:
  using Handler = platform::NotificationCenter::Handler;

  [[nodiscard]] Handler appending(const char* text) {
    return [this, text](const platform::Notification&) { told_ += text; };
  }
  void post(const String& name, const void* object = nullptr) {
    center_->postNotification({name, object, {}});
  }
  /// The handlers that were called since the last call of this.
  [[nodiscard]] std::string told() { return std::exchange(told_, {}); }

  std::shared_ptr<platform::NotificationCenter> center_ = makeNotificationCenter();
  std::string told_;

  // Observers and senders are identified by their addresses.
  std::array<int, 4> things_{};
  const void* const anna_ = things_.data();
  const void* const berta_ = &things_[1];
  const void* const carla_ = &things_[2];
  const void* const sender_ = &things_[3];
};

TEST_F(StandardNotificationCenter, TellsWhoRegisteredForNameAndSender) {
  center_->addObserver(anna_, "change", nullptr, appending("a"));
  center_->addObserver(berta_, "change", sender_, appending("b"));
  center_->addObserver(berta_, "other", nullptr, appending("o"));
  center_->addObserver(anna_, "change", nullptr, appending("A"));
  center_->addObserver(anna_, "empty", nullptr, {});
  post("change");
  EXPECT_EQ(told(), "aA");
  post("change", sender_);
  EXPECT_EQ(told(), "abA");
  post("other", sender_);
  EXPECT_EQ(told(), "o");
  post("nobody");
  post("empty");
  EXPECT_EQ(told(), "");

  center_->removeObserver(anna_);
  center_->removeObserver(sender_);
  post("change", sender_);
  EXPECT_EQ(told(), "b");
  center_->removeObserver(berta_);
  post("change", sender_);
  post("other");
  EXPECT_EQ(told(), "");
  center_->addObserver(anna_, "change", nullptr, appending("again"));
  post("change");
  EXPECT_EQ(told(), "again");
}

TEST_F(StandardNotificationCenter, HandsTheNotificationOn) {
  const platform::Notification sent{"change", sender_, {{"key", StringList{"x"}}}};
  center_->addObserver(this, "change", nullptr, [&](const platform::Notification& got) {
    told_ = got.name.str();
    EXPECT_EQ(got.object, sent.object);
    EXPECT_TRUE(got.userInfo.isSameObject(sent.userInfo));
  });
  center_->postNotification(sent);
  EXPECT_EQ(told(), "change");
}

TEST_F(StandardNotificationCenter, MayBeChangedFromInsideAHandler) {
  center_->addObserver(anna_, "change", nullptr, [&](const platform::Notification&) {
    told_ += "a";
    center_->removeObserver(anna_);
    center_->removeObserver(berta_);
    center_->addObserver(anna_, "change", nullptr, appending("new"));
    post("nested");
  });
  center_->addObserver(berta_, "change", nullptr, appending("b"));
  center_->addObserver(carla_, "change", nullptr, appending("c"));
  center_->addObserver(carla_, "nested", nullptr, [&](const platform::Notification&) {
    told_ += "(";
    center_->removeObserver(carla_);
    center_->addObserver(carla_, "change", nullptr, appending("C"));
    post("change");
    told_ += ")";
  });
  post("change");
  EXPECT_EQ(told(), "a(newC)") << "removed: not told any more; added: not told of this one";
  post("change");
  EXPECT_EQ(told(), "newC");
}

TEST_F(StandardNotificationCenter, CallsTheOthersWhenAHandlerThrows) {
  center_->addObserver(anna_, "change", nullptr, [&](const platform::Notification&) {
    center_->removeObserver(anna_);
    throw std::runtime_error("the application's own");
  });
  center_->addObserver(this, "change", nullptr, appending("b"));
  center_->addObserver(this, "change", nullptr, [](const platform::Notification&) {
    throw std::logic_error("a second one");
  });
  center_->addObserver(this, "change", nullptr, appending("c"));
  EXPECT_THROW(post("change"), std::runtime_error) << "the first of the exceptions";
  EXPECT_EQ(told(), "bc");
  EXPECT_THROW(post("change"), std::logic_error);
  EXPECT_EQ(told(), "bc");
}

// An object that a handler owns may call the center when it is destroyed, as a control does.
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

TEST_F(StandardNotificationCenter, LetsGoOfWhatHandlersHold) {
  const auto heldBy = [&](const void* observer) {
    auto held = std::make_shared<RemovesItself>(center_);
    std::weak_ptr<RemovesItself> watch = held;
    center_->addObserver(observer, "change", nullptr,
                         [held = std::move(held)](const platform::Notification&) {});
    return watch;
  };
  center_->addObserver(this, "gone", nullptr, appending("gone "));
  const auto first = heldBy(anna_);
  const auto second = heldBy(berta_);
  center_->removeObserver(anna_);
  EXPECT_TRUE(first.expired()) << "at once when nothing is being posted";
  EXPECT_FALSE(second.expired());
  center_->addObserver(this, "change", nullptr,
                       [&](const platform::Notification&) { center_->removeObserver(berta_); });
  post("change");
  EXPECT_TRUE(second.expired()) << "else once the post is over";
  EXPECT_EQ(told(), "gone gone ");
}

TEST_F(StandardNotificationCenter, KeepsCountOfThousandsInAnyOrder) {
  constexpr std::size_t kStretch = 1000;
  std::vector<std::size_t> times(10 * kStretch);  // How often each one was told.
  std::vector<std::size_t*> observers;
  for (std::size_t& count : times) {
    center_->addObserver(&count, "change", nullptr,
                         [&count](const platform::Notification&) { ++count; });
    observers.push_back(&count);
  }
  std::mt19937 random(7);  // NOLINT(cert-msc51-cpp): a run must be repeatable.
  std::shuffle(observers.begin(), observers.end(), random);
  for (std::size_t removed = 0; removed < observers.size(); ++removed) {
    if (removed % kStretch == 0) {
      post("change");
    }
    center_->removeObserver(observers[removed]);
  }
  post("change");
  for (std::size_t index = 0; index < observers.size(); ++index) {
    ASSERT_EQ(*observers[index], index / kStretch + 1);
  }
}

TEST_F(StandardNotificationCenter, MayBeUsedFromSeveralThreads) {
  std::atomic<bool> isOver = false;
  std::atomic<std::size_t> told = 0;
  const auto postOn = [&] {
    while (!isOver) {
      post("change");
    }
  };
  std::thread one(postOn);
  std::thread another(postOn);
  const std::array<int, 50> observers{};
  for (int round = 0; round < 200; ++round) {
    for (const int& observer : observers) {
      center_->addObserver(&observer, "change", nullptr,
                           [&told, state = std::make_shared<std::size_t>(1)](
                               const platform::Notification&) { told += *state; });
    }
    for (const int& observer : observers) {
      center_->removeObserver(&observer);
    }
  }
  isOver = true;
  one.join();
  another.join();
  const std::size_t before = told;
  post("change");
  EXPECT_EQ(told, before);
}

}  // namespace
}  // namespace orvanta::standard
