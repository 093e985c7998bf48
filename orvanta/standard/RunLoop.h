#pragma once

#include <functional>
#include <memory>

#include <orvanta/Export.h>
#include <orvanta/platform/MainQueue.h>

namespace orvanta::standard {

/// A main queue that the application drives itself, or lets another loop drive.
///
/// With a loop of its own an application calls `run`. With a host loop (GLib, SDL, a game's frame)
/// it sets a wake-up hook that asks the host for a turn, and calls `runPending` in that turn.
///
/// An exception that a step throws leaves `run` or `runPending` at once; the steps behind it stay
/// queued.
class ORVANTA_EXPORT RunLoop : public platform::MainQueue {
 public:
  /// The loop of the process's main thread, which the standard platform uses unless it is given
  /// another one. The thread that loads the library counts as the main thread; a program that loads
  /// it later, on another thread, gives its platform a loop from `make`. Closed when that thread
  /// ends, and at the beginning of `exit` on it: threads that wait for a step are released, and
  /// steps are dropped from then on.
  [[nodiscard]] static const std::shared_ptr<RunLoop>& main();

  /// A loop whose main thread is the calling thread.
  [[nodiscard]] static std::shared_ptr<RunLoop> make();

  /// Runs steps as they come until `quit`. On the main thread only.
  virtual void run() = 0;
  /// Makes `run` return after the step under way; when it is not running, its next call returns
  /// at once. From any thread.
  virtual void quit() = 0;
  /// Runs the steps that are queued at the time of the call and returns their number, without
  /// waiting. On the main thread only.
  virtual std::size_t runPending() = 0;

  /// `hook` is called, on the thread that queues, whenever a step is queued. It must not block, and
  /// what it throws reaches the caller that queued the step.
  virtual void setWakeUpHook(std::function<void()> hook) = 0;
};

}  // namespace orvanta::standard
