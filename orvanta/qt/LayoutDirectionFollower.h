#pragma once

#include <orvanta/qt/Export.h>
#include <orvanta/qt/LanguageChangeObserver.h>

namespace orvanta::qt {

/// Keeps the application's layout direction in step with the current language, from its
/// construction on and for as long as it lives. For languages whose direction is not known, from
/// left to right. Needs the application object.
class ORVANTA_QT_EXPORT LayoutDirectionFollower {
 public:
  LayoutDirectionFollower();

 private:
  LanguageChangeObserver observer_;
};

}  // namespace orvanta::qt
