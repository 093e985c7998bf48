#include <condition_variable>
#include <cstdint>
#include <list>
#include <mutex>
#include <optional>
#include <thread>
#include <utility>

#include <orvanta/standard/RunLoop.h>
#include <orvanta/text/NoDestructor.h>

namespace orvanta::standard {

namespace {

// The queued steps. Shared with the calls that are under way, because a step may destroy the loop
// that runs it, and a loop may be destroyed while a thread waits for a step.
class StepQueue {
 public:
  using Step = platform::MainQueue::Step;
  using Ticket = std::uint64_t;

  // Drops the step when the queue is closed.
  void push(Step step) {
    std::shared_ptr<const std::function<void()>> hook;
    std::list<Step> added;
    added.push_back(std::move(step));
    {
      const std::scoped_lock lock(mutex_);
      if (closed_) {
        return;
      }
      steps_.splice(steps_.end(), added);
      hook = wakeUpHook_;
    }
    changed_.notify_all();
    if (hook != nullptr && *hook) {
      (*hook)();
    }
  }

  // A step that is pushed from now on has this ticket or a later one.
  Ticket nextTicket() {
    const std::scoped_lock lock(mutex_);
    return firstTicket_ + steps_.size();
  }

  std::optional<Step> takeBefore(Ticket end) {
    const std::scoped_lock lock(mutex_);
    return !steps_.empty() && firstTicket_ < end ? std::optional(takeFirst()) : std::nullopt;
  }

  // Waits for the next step. None after a call of `quit`, which is thereby consumed, and when the
  // queue is closed.
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

  // Drops all steps, those to come included. Allocates nothing: called by destructors.
  void close() noexcept {
    std::list<Step> dropped;  // Destroyed without the lock.
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
  std::list<Step> steps_;  // Adding one cannot fail under the lock, nor can closing.
  Ticket firstTicket_ = 0;
  bool quit_ = false;
  bool closed_ = false;
  std::shared_ptr<const std::function<void()>> wakeUpHook_;
};

// What a thread waits for that has queued a step.
class Completion {
 public:
  void set() {
    {
      const std::scoped_lock lock(mutex_);
      isSet_ = true;
    }
    changed_.notify_all();
  }
  void wait() {
    std::unique_lock lock(mutex_);
    changed_.wait(lock, [&] { return isSet_; });
  }

 private:
  std::mutex mutex_;
  std::condition_variable changed_;
  bool isSet_ = false;
};

// Completes when the queued step that holds it is destroyed: after it has run or thrown, and also
// when it was dropped.
class CompletesAtEnd {
 public:
  explicit CompletesAtEnd(std::shared_ptr<Completion> completion)
      : completion_(std::move(completion)) {}
  CompletesAtEnd(const CompletesAtEnd&) = delete;
  CompletesAtEnd& operator=(const CompletesAtEnd&) = delete;
  ~CompletesAtEnd() { completion_->set(); }

 private:
  std::shared_ptr<Completion> completion_;
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
    const auto completion = std::make_shared<Completion>();
    const auto queue = queue_;
    queue->push([&step, end = std::make_shared<CompletesAtEnd>(completion)] { step(); });
    completion->wait();
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

  void close() noexcept { queue_->close(); }

 private:
  const std::thread::id mainThread_ = std::this_thread::get_id();
  const std::shared_ptr<StepQueue> queue_ = std::make_shared<StepQueue>();
};

const std::shared_ptr<StandardRunLoop>& mainLoop() {
  static NoDestructor<const std::shared_ptr<StandardRunLoop>> loop(
      std::make_shared<StandardRunLoop>());
  return *loop;
}

struct ClosesMainLoop {
  ClosesMainLoop() = default;
  ClosesMainLoop(const ClosesMainLoop&) = delete;
  ClosesMainLoop& operator=(const ClosesMainLoop&) = delete;
  ~ClosesMainLoop() { mainLoop()->close(); }
};

// Takes the thread that loads the library for the main thread, and closes the loop when that thread
// ends. `exit` destroys the thread-local objects of the main thread before every static object: one
// whose destructor joins a thread that waits for the main thread is not dead-locked.
bool takeThisThreadForMain() {
  static_cast<void>(mainLoop());
  thread_local const ClosesMainLoop closesMainLoop;
  static_cast<void>(closesMainLoop);
  return true;
}

// The one object of the library that needs code at start-up: the identity of the main thread is not
// known before.
[[maybe_unused]] const bool isMainThreadKnown = takeThisThreadForMain();

}  // namespace

const std::shared_ptr<RunLoop>& RunLoop::main() {
  static NoDestructor<const std::shared_ptr<RunLoop>> loop(mainLoop());
  return *loop;
}

std::shared_ptr<RunLoop> RunLoop::make() {
  return std::make_shared<StandardRunLoop>();
}

}  // namespace orvanta::standard
