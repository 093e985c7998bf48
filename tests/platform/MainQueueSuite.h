#pragma once

#include <atomic>
#include <functional>
#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include <orvanta/platform/MainQueue.h>

/// What every main queue must do, whatever drives it.
///
/// A harness gives `queue()`, whose main thread is the test's, and `turn()`, which lets the main
/// thread run what is queued, without waiting for more for longer than a moment.
namespace orvanta::test {

template <typename Harness>
class MainQueueSuite : public testing::Test {
 protected:
  platform::MainQueue& queue() { return harness_.queue(); }
  void turnUntil(const std::function<bool()>& isDone) {
    while (!isDone()) {
      harness_.turn();
    }
  }
  Harness harness_;
};

TYPED_TEST_SUITE_P(MainQueueSuite);

TYPED_TEST_P(MainQueueSuite, KnowsItsThread) {
  EXPECT_TRUE(this->queue().isMainThread());
  bool isMain = true;
  std::thread([&] { isMain = this->queue().isMainThread(); }).join();
  EXPECT_FALSE(isMain);
}

TYPED_TEST_P(MainQueueSuite, RunsStepsLaterAndInOrder) {
  std::string order;
  this->queue().dispatchAsync([&] {
    order += "1";
    this->queue().dispatchAsync([&] { order += "3"; });
    order += "2";
  });
  EXPECT_EQ(order, "") << "never inside the call";
  this->turnUntil([&] { return order.size() >= 3; });
  EXPECT_EQ(order, "123");
}

TYPED_TEST_P(MainQueueSuite, WaitsOnTheMainThreadByRunningAtOnce) {
  std::string order;
  this->queue().dispatchAsync([&] { order += "2"; });
  this->queue().performOnMainThreadAndWait([&] { order += "1"; });
  EXPECT_EQ(order, "1");
  this->turnUntil([&] { return order.size() >= 2; });
  EXPECT_EQ(order, "12");
}

TYPED_TEST_P(MainQueueSuite, RunsTheStepsOfOtherThreadsOnTheMainOne) {
  std::atomic<int> ended = 0;
  std::vector<int> seen;  // By steps on the main thread alone.
  std::vector<std::thread> threads;
  threads.reserve(4);
  for (int number = 0; number < 4; ++number) {
    threads.emplace_back([&, number] {
      bool ran = false;
      this->queue().performOnMainThreadAndWait([&] {
        ran = this->queue().isMainThread();
        seen.push_back(number);
      });
      EXPECT_TRUE(ran) << "waits until the step has run";
      this->queue().dispatchAsync([&, number] { seen.push_back(number); });
      ++ended;
    });
  }
  this->turnUntil([&] { return ended == 4 && seen.size() >= 8; });
  for (std::thread& thread : threads) {
    thread.join();
  }
  EXPECT_EQ(seen.size(), 8U);
}

REGISTER_TYPED_TEST_SUITE_P(MainQueueSuite, KnowsItsThread, RunsStepsLaterAndInOrder,
                            WaitsOnTheMainThreadByRunningAtOnce,
                            RunsTheStepsOfOtherThreadsOnTheMainOne);

}  // namespace orvanta::test
