#include <chrono>
#include <future>
#include <stdexcept>

#include <tests/platform/MainQueueSuite.h>

#include <orvanta/platform/standard/RunLoop.h>

namespace orvanta::test {
namespace {

using platform::standard::RunLoop;

struct PendingHarness {
  platform::MainQueue& queue() { return *loop; }
  void turn() { loop->runPending(); }
  std::shared_ptr<RunLoop> loop = RunLoop::make();
};

struct RunningHarness : PendingHarness {
  void turn() {
    loop->dispatchAsync([this] { loop->quit(); });
    loop->run();
  }
};

using Harnesses = testing::Types<PendingHarness, RunningHarness>;
INSTANTIATE_TYPED_TEST_SUITE_P(RunLoop, MainQueueSuite, Harnesses);

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

TEST(RunLoop, WakesUpForOtherThreads) {
  const auto loop = RunLoop::make();
  std::thread other([&] {
    loop->performOnMainThreadAndWait([] {});
    loop->quit();
  });
  loop->run();
  other.join();
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

TEST(RunLoop, MayEndInsideAStep) {
  auto loop = RunLoop::make();
  bool ran = false;
  loop->dispatchAsync([&] { loop.reset(); });
  loop->dispatchAsync([&] { ran = true; });
  loop->run();
  EXPECT_FALSE(ran);
}

TEST(RunLoop, OfTheProcessBelongsToTheThreadThatLoadedIt) {
  EXPECT_TRUE(RunLoop::main()->isMainThread());
  std::thread([] { EXPECT_FALSE(RunLoop::main()->isMainThread()); }).join();
}

}  // namespace
}  // namespace orvanta::test
