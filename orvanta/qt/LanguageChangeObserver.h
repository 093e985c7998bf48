#pragma once

#include <functional>
#include <memory>

#include <orvanta/qt/Export.h>

namespace orvanta::qt {

/// Runs a step after each change of language, on the main thread, for as long as it lives.
/// Observers and localized widgets are told in the order in which they began to observe.
class ORVANTA_QT_EXPORT LanguageChangeObserver {
 public:
  /// Observes from now on. What `step` throws reaches the poster of the notification.
  explicit LanguageChangeObserver(std::function<void()> step);
  LanguageChangeObserver(const LanguageChangeObserver&) = delete;
  LanguageChangeObserver& operator=(const LanguageChangeObserver&) = delete;
  ~LanguageChangeObserver();

 private:
  // Emptied on the main thread; what other threads carry there finds it empty.
  std::shared_ptr<std::function<void()>> step_;
};

}  // namespace orvanta::qt
