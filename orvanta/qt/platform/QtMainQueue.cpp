#include <QCoreApplication>
#include <QEvent>
#include <QObject>
#include <utility>
#include <vector>

#include <orvanta/qt/platform/QtMainQueue.h>
#include <orvanta/qt/platform/QtPlatformCheck.h>
#include <orvanta/standard/RunLoop.h>
#include <orvanta/text/NoDestructor.h>

namespace orvanta::qt {

namespace {

using standard::RunLoop;

// Runs the steps that are queued in a run loop from Qt's event loop. Never freed: other threads may
// queue steps until the process ends.
class Pump final : public QObject {
 public:
  explicit Pump(std::shared_ptr<RunLoop> loop) : loop_(std::move(loop)) {
    loop_->setWakeUpHook([this] { postEvent(); });
  }

  // One event for each step: a step that opens a dialog runs an event loop of its own, in which the
  // steps behind it must go on.
  void postEvent() { QCoreApplication::postEvent(this, new QEvent(QEvent::User)); }

  bool event(QEvent* event) override {
    if (event->type() != QEvent::User) {
      return QObject::event(event);
    }
    loop_->runPending();
    return true;
  }

 private:
  const std::shared_ptr<RunLoop> loop_;
};

// On the main thread alone.
std::vector<Pump*>& pumps() {
  static NoDestructor<std::vector<Pump*>> all;
  return *all;
}

// Qt drops events that were posted before there was an application object, or after the last one.
void postEventsForNewApplication() {
  for (Pump* pump : pumps()) {
    pump->postEvent();
  }
}

}  // namespace

std::shared_ptr<platform::MainQueue> makeQtMainQueue() {
  noteQtPlatform();
  // Threads that wait for the process's own loop are released when the process ends.
  const std::shared_ptr<RunLoop> loop =
      RunLoop::main()->isMainThread() ? RunLoop::main() : RunLoop::make();
  if (pumps().empty()) {
    qAddPreRoutine(postEventsForNewApplication);
  }
  pumps().push_back(new Pump(loop));
  pumps().back()->postEvent();
  return loop;
}

}  // namespace orvanta::qt
