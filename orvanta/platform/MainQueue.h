#pragma once

#include <functional>

#include <orvanta/Export.h>

namespace orvanta::platform {

/// The queue of steps that run one after another on the main (user-interface) thread. Guards
/// itself: every operation may be called from any thread.
class ORVANTA_EXPORT MainQueue {
 public:
  using Step = std::function<void()>;

  virtual ~MainQueue();
  MainQueue(const MainQueue&) = delete;
  MainQueue& operator=(const MainQueue&) = delete;

  [[nodiscard]] virtual bool isMainThread() const = 0;

  /// Runs `step` at a later turn of the main thread, after the steps queued before it. Never runs
  /// it inside the call.
  virtual void dispatchAsync(Step step) = 0;

  /// Runs `step` on the main thread and returns when it has run; on the main thread itself at
  /// once. When the main thread will run no more steps, returns without having run it.
  virtual void performOnMainThreadAndWait(const Step& step) = 0;

 protected:
  MainQueue() = default;
};

}  // namespace orvanta::platform
