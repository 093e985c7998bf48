#pragma once

#include <memory>

#include <orvanta/platform/MainQueue.h>
#include <orvanta/qt/Export.h>

namespace orvanta::qt {

/// A main queue whose steps Qt's event loop runs. To be called on the thread of the application
/// object, which need not exist yet: steps that are queued before wait for it.
[[nodiscard]] ORVANTA_QT_EXPORT std::shared_ptr<platform::MainQueue> makeQtMainQueue();

}  // namespace orvanta::qt
