#include <cstdlib>
#include <future>
#include <stdexcept>
#include <thread>

#include <gtest/gtest.h>
#include <unistd.h>

#include <orvanta/standard/RunLoop.h>

namespace orvanta::standard {
namespace {

TEST(RunLoop, RunsStepsLaterAndInOrderUnlessTheMainThreadWaits) {
  const auto loop = RunLoop::make();
  std::string order;
  loop->dispatchAsync([&] {
    order += "2";
    loop->dispatchAsync([&] { order += "4"; });
    order += "3";
  });
  loop->performOnMainThreadAndWait([&] { order += "1"; });
  EXPECT_EQ(order, "1") << "never inside the call that hands over";
  while (loop->runPending() > 0) {
  }
  EXPECT_EQ(order, "1234");
}

TEST(RunLoop, RunsTheStepsOfOtherThreadsOnTheMainOne) {
  const auto loop = RunLoop::make();
  std::vector<int> seen;  // By steps on the main thread alone.
  std::vector<std::thread> threads;
  for (int number = 0; number < 4; ++number) {
    threads.emplace_back([&, number] {
      bool ran = false;
      loop->performOnMainThreadAndWait([&] {
        ran = loop->isMainThread();
        seen.push_back(number);
      });
      EXPECT_TRUE(ran) << "waits until the step has run";
      loop->dispatchAsync([&, number] {
        seen.push_back(number);
        if (seen.size() == 8) {
          loop->quit();
        }
      });
    });
  }
  loop->run();
  for (std::thread& thread : threads) {
    thread.join();
  }
  EXPECT_EQ(seen.size(), 8U);
}

TEST(RunLoop, RunsUntilItIsToldToQuit) {
  const auto loop = RunLoop::make();
  std::string order;
  loop->dispatchAsync([&] { order += "1"; });
  loop->dispatchAsync([&] {
    loop->quit();
    order += "2";
  });
  loop->dispatchAsync([&] { order += "3"; });
  loop->run();
  EXPECT_EQ(order, "12") << "the step under way is the last one";
  loop->quit();
  loop->run();
  EXPECT_EQ(order, "12") << "told to quit before it runs, it returns at once";
  loop->dispatchAsync([&] { loop->quit(); });
  loop->run();
  EXPECT_EQ(order, "123") << "nothing is lost";
}

TEST(RunLoop, RunsWhatIsPendingAndNoMore) {
  const auto loop = RunLoop::make();
  int inner = 0;
  EXPECT_EQ(loop->runPending(), 0U);
  loop->dispatchAsync([&] {
    loop->dispatchAsync([&] { ++inner; });
    EXPECT_EQ(loop->runPending(), 2U) << "nested: the second step and the inner one";
    loop->dispatchAsync([&] { ++inner; });
  });
  loop->dispatchAsync([] {});
  EXPECT_EQ(loop->runPending(), 1U);
  EXPECT_EQ(inner, 1);
  EXPECT_EQ(loop->runPending(), 1U);
  EXPECT_EQ(inner, 2);
}

TEST(RunLoop, LosesNoStepToAnException) {
  const auto loop = RunLoop::make();
  int ran = 0;
  for (int count = 0; count < 2; ++count) {
    loop->dispatchAsync([] { throw std::runtime_error("the application's own"); });
    loop->dispatchAsync([&] { ++ran; });
  }
  EXPECT_THROW(static_cast<void>(loop->runPending()), std::runtime_error);
  EXPECT_THROW(loop->run(), std::runtime_error);
  EXPECT_EQ(loop->runPending(), 1U);
  EXPECT_EQ(ran, 2);

  std::thread waiting([&] {
    loop->performOnMainThreadAndWait([] { throw std::runtime_error("on the main thread"); });
  });
  EXPECT_THROW(loop->run(), std::runtime_error);
  waiting.join();
}

TEST(RunLoop, AsksItsHostForATurn) {
  const auto loop = RunLoop::make();
  int asked = 0;
  loop->dispatchAsync([] {});
  loop->setWakeUpHook([&] { ++asked; });
  loop->dispatchAsync([] {});
  loop->dispatchAsync([] {});
  EXPECT_EQ(asked, 2);
  loop->setWakeUpHook({});
  loop->dispatchAsync([] {});
  EXPECT_EQ(asked, 2);
  EXPECT_EQ(loop->runPending(), 4U);
}

TEST(RunLoop, LetsGoOfWaitingThreadsWhenItEnds) {
  auto loop = RunLoop::make();
  std::promise<void> queued;
  loop->setWakeUpHook([&] { queued.set_value(); });
  bool ran = false;
  std::thread waiting(
      [queue = loop.get(), &ran] { queue->performOnMainThreadAndWait([&] { ran = true; }); });
  queued.get_future().wait();
  loop.reset();
  waiting.join();
  EXPECT_FALSE(ran);
}

// A static object, made after the first use of the library, joins a thread that waits for the main
// one.
TEST(RunLoopDeathTest, LetsGoOfWaitingThreadsBeforeStaticObjectsGo) {
  testing::GTEST_FLAG(death_test_style) = "threadsafe";
  const auto program = [] {
    alarm(20);
    const auto loop = RunLoop::main();
    loop->dispatchAsync([] {});
    static std::thread waiting([loop] {
      loop->performOnMainThreadAndWait([] {});
      loop->performOnMainThreadAndWait([] {});
    });
    static const std::shared_ptr<void> joins(nullptr, [](void*) { waiting.join(); });
    std::exit(0);
  };
  EXPECT_EXIT(program(), testing::ExitedWithCode(0), "");
}

TEST(RunLoop, MayEndInsideAStep) {
  auto loop = RunLoop::make();
  bool ran = false;
  loop->dispatchAsync([&] { loop.reset(); });
  loop->dispatchAsync([&] { ran = true; });
  loop->run();
  EXPECT_FALSE(ran);
}

TEST(RunLoop, KnowsItsThread) {
  for (const auto& loop : {RunLoop::make(), RunLoop::main()}) {
    EXPECT_TRUE(loop->isMainThread());
    std::thread([&] { EXPECT_FALSE(loop->isMainThread()); }).join();
  }
}

}  // namespace
}  // namespace orvanta::standard
