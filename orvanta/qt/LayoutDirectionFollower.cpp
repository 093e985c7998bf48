#include <QGuiApplication>

#include <orvanta/qt/CurrentDirection.h>
#include <orvanta/qt/LayoutDirectionFollower.h>

namespace orvanta::qt {

namespace {

void followCurrentLanguage() {
  QGuiApplication::setLayoutDirection(currentLanguageIsRightToLeft() ? Qt::RightToLeft
                                                                     : Qt::LeftToRight);
}

}  // namespace

LayoutDirectionFollower::LayoutDirectionFollower() : observer_(followCurrentLanguage) {
  followCurrentLanguage();
}

}  // namespace orvanta::qt
