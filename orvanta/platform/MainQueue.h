#pragma once

#include <functional>

#include <orvanta/Export.h>

namespace orvanta::platform {

/// The queue of steps that run one after another on the main (user-interface) thread. Thread-safe:
/// every operation may be called from any thread.
///
/// In the child of a `fork` only the forking thread exists. If that was not the main thread, or
/// another thread was inside an operation, the child would wait for ever: use the library there
/// only after `exec`, or fork before other threads do.
class ORVANTA_EXPORT MainQueue {
 public:
  /// What is run on the main thread.
  using Step = std::function<void()>;

  virtual ~MainQueue();
  MainQueue(const MainQueue&) = delete;
  MainQueue& operator=(const MainQueue&) = delete;

  /// Whether the caller is on the main thread.
  [[nodiscard]] virtual bool isMainThread() const = 0;

  /// Runs `step` at a later turn of the main thread, after the steps queued before it, never inside
  /// the call. Throws `std::bad_alloc`, and has then queued nothing.
  virtual void dispatchAsync(Step step) = 0;

  /// Runs `step` on the main thread and returns when it has run; on the main thread itself at
  /// once. Returns without having run it when the main thread runs no more steps. What `step`
  /// throws leaves the call on the main thread; otherwise it leaves the function that runs the main
  /// thread's steps.
  virtual void performOnMainThreadAndWait(const Step& step) = 0;

 protected:
  MainQueue() = default;
};

}  // namespace orvanta::platform
