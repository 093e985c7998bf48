#pragma once

#include <QLocale>

#include <orvanta/qt/Export.h>
#include <orvanta/qt/LanguageChangeObserver.h>

namespace orvanta::qt {

/// Keeps `QLocale`'s default, by which applications write numbers, dates and times, in step with
/// the current language, from its construction on and for as long as it lives. A language without a
/// region gets the region of the system where that speaks it ("de" on an Austrian system is de_AT),
/// else the one that Qt takes for it. For a language that Qt does not know the default is the one
/// that it found when it was made.
///
/// Widgets take the default locale when they are made: make the follower before them, and in a
/// widget that exists already set the locale in its `changeEvent`.
class ORVANTA_QT_EXPORT LocaleFollower {
 public:
  LocaleFollower();

 private:
  QLocale original_;
  LanguageChangeObserver observer_;
};

}  // namespace orvanta::qt
