#include <QCoreApplication>
#include <QEvent>
#include <QObject>
#include <utility>
#include <vector>

#include <orvanta/qt/platform/QtMainQueue.h>
#include <orvanta/standard/RunLoop.h>

namespace orvanta::qt {

namespace {

using standard::RunLoop;

// Runs what a run loop has queued, in turns of Qt's event loop. Never freed: threads may ask for a
// turn until the process ends.
class Pump final : public QObject {
 public:
  explicit Pump(std::shared_ptr<RunLoop> loop) : loop_(std::move(loop)) {
    loop_->setWakeUpHook([this] { askForTurn(); });
  }

  // Every step asks for a turn of its own, so that a step that opens a dialog, with an event loop
  // inside the step, does not hold up the steps behind it.
  void askForTurn() { QCoreApplication::postEvent(this, new QEvent(QEvent::User)); }

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
  static auto& all = *new std::vector<Pump*>();
  return all;
}

// An application object that comes into being finds the turns that were asked for before it, or
// after the one before it, forgotten.
void askForTurns() {
  for (Pump* pump : pumps()) {
    pump->askForTurn();
  }
}

}  // namespace

std::shared_ptr<platform::MainQueue> makeQtMainQueue() {
  // The process's own loop lets waiting threads go when the process ends.
  const std::shared_ptr<RunLoop> loop =
      RunLoop::main()->isMainThread() ? RunLoop::main() : RunLoop::make();
  static const bool hooked = [] {
    qAddPreRoutine(askForTurns);
    return true;
  }();
  static_cast<void>(hooked);
  pumps().push_back(new Pump(loop));
  pumps().back()->askForTurn();
  return loop;
}

}  // namespace orvanta::qt
