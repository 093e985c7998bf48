#include <condition_variable>
#include <cstdint>
#include <deque>
#include <future>
#include <mutex>
#include <optional>
#include <thread>
#include <utility>

#include <orvanta/standard/RunLoop.h>

namespace orvanta::standard {

namespace {

// The steps that wait for their turn. Outlives the loop while a call is under way: a step may let
// go of the loop that runs it, and a thread may wait for a step when the loop goes.
class StepQueue {
 public:
  using Step = platform::MainQueue::Step;
  using Ticket = std::uint64_t;

  // Drops the step when no more will run.
  void push(Step step) {
    std::shared_ptr<const std::function<void()>> hook;
    {
      const std::scoped_lock lock(mutex_);
      if (closed_) {
        return;
      }
      steps_.push_back(std::move(step));
      hook = wakeUpHook_;
    }
    changed_.notify_all();
    if (hook != nullptr && *hook) {
      (*hook)();
    }
  }

  // Steps that are pushed from now on have this ticket or a later one.
  Ticket nextTicket() {
    const std::scoped_lock lock(mutex_);
    return firstTicket_ + steps_.size();
  }

  std::optional<Step> takeBefore(Ticket end) {
    const std::scoped_lock lock(mutex_);
    return !steps_.empty() && firstTicket_ < end ? std::optional(takeFirst()) : std::nullopt;
  }

  // The next step as soon as there is one. None on a call of `quit`, which it uses up, and when no
  // more will run.
  std::optional<Step> waitForStep() {
    std::unique_lock lock(mutex_);
    changed_.wait(lock, [&] { return quit_ || closed_ || !steps_.empty(); });
    return std::exchange(quit_, false) || closed_ ? std::nullopt : std::optional(takeFirst());
  }

  void quit() {
    {
      const std::scoped_lock lock(mutex_);
      quit_ = true;
    }
    changed_.notify_all();
  }

  void setWakeUpHook(std::function<void()> hook) {
    auto shared = std::make_shared<const std::function<void()>>(std::move(hook));
    const std::scoped_lock lock(mutex_);
    wakeUpHook_.swap(shared);
  }

  void close() {
    std::deque<Step> dropped;
    const std::scoped_lock lock(mutex_);
    closed_ = true;
    dropped.swap(steps_);
    changed_.notify_all();
  }

 private:
  Step takeFirst() {
    Step step = std::move(steps_.front());
    steps_.pop_front();
    ++firstTicket_;
    return step;
  }

  std::mutex mutex_;
  std::condition_variable changed_;
  std::deque<Step> steps_;
  Ticket firstTicket_ = 0;
  bool quit_ = false;
  bool closed_ = false;
  std::shared_ptr<const std::function<void()>> wakeUpHook_;
};

class StandardRunLoop final : public RunLoop {
 public:
  ~StandardRunLoop() override { close(); }

  bool isMainThread() const override { return std::this_thread::get_id() == mainThread_; }

  void dispatchAsync(Step step) override {
    if (step) {
      queue_->push(std::move(step));
    }
  }

  void performOnMainThreadAndWait(const Step& step) override {
    if (!step) {
      return;
    }
    if (isMainThread()) {
      step();
      return;
    }
    // The promise is kept by the step in the queue alone: it ends the wait when the step has run,
    // has thrown, and also when it was dropped.
    auto promise = std::make_shared<std::promise<void>>();
    const std::future<void> ended = promise->get_future();
    const auto queue = queue_;
    queue->push([&step, promise = std::move(promise)] { step(); });
    ended.wait();
  }

  void run() override {
    const auto queue = queue_;
    while (const std::optional<Step> step = queue->waitForStep()) {
      (*step)();
    }
  }

  void quit() override { queue_->quit(); }

  std::size_t runPending() override {
    const auto queue = queue_;
    const StepQueue::Ticket end = queue->nextTicket();
    std::size_t count = 0;
    while (const std::optional<Step> step = queue->takeBefore(end)) {
      ++count;
      (*step)();
    }
    return count;
  }

  void setWakeUpHook(std::function<void()> hook) override {
    queue_->setWakeUpHook(std::move(hook));
  }

  void close() { queue_->close(); }

 private:
  const std::thread::id mainThread_ = std::this_thread::get_id();
  const std::shared_ptr<StepQueue> queue_ = std::make_shared<StepQueue>();
};

// The loop object itself is never freed: threads and static objects may use it until the end.
const std::shared_ptr<StandardRunLoop>& mainLoop() {
  static const auto* const loop =
      new std::shared_ptr<StandardRunLoop>(std::make_shared<StandardRunLoop>());
  return *loop;
}

// Made while the library is loaded, because the thread that loads it is taken for the main thread.
// A program that loads the library at run time from another thread gives the platform a loop of
// its own. When the process ends, whoever still waits for the main thread is let go.
struct MainLoopOfProcess {
  MainLoopOfProcess() { static_cast<void>(mainLoop()); }
  MainLoopOfProcess(const MainLoopOfProcess&) = delete;
  MainLoopOfProcess& operator=(const MainLoopOfProcess&) = delete;
  ~MainLoopOfProcess() { mainLoop()->close(); }
};
const MainLoopOfProcess mainLoopOfProcess;

}  // namespace

const std::shared_ptr<RunLoop>& RunLoop::main() {
  static const auto* const loop = new std::shared_ptr<RunLoop>(mainLoop());
  return *loop;
}

std::shared_ptr<RunLoop> RunLoop::make() {
  return std::make_shared<StandardRunLoop>();
}

}  // namespace orvanta::standard
