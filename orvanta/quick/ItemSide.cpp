#include <QScopedValueRollback>
#include <QVariant>

#include <orvanta/qt/CurrentDirection.h>
#include <orvanta/qt/TextSides.h>
#include <orvanta/quick/ItemSide.h>

namespace orvanta::quick {

namespace {

using platform::TextAlignment;

constexpr auto kAlignment = "horizontalAlignment";
constexpr auto kEffectiveAlignment = "effectiveHorizontalAlignment";

// Values of the property are those of Qt::Alignment.
int alignmentOf(TextAlignment side) {
  switch (side) {
    case TextAlignment::left:
      return Qt::AlignLeft;
    case TextAlignment::right:
      return Qt::AlignRight;
    case TextAlignment::center:
      return Qt::AlignHCenter;
    case TextAlignment::justified:
      return Qt::AlignJustify;
    default:
      return qt::currentLanguageIsRightToLeft() ? Qt::AlignRight : Qt::AlignLeft;
  }
}

int opposite(int alignment) {
  return alignment == Qt::AlignLeft ? Qt::AlignRight : Qt::AlignLeft;
}

}  // namespace

int ItemSide::shownNow() const {
  return item_.property(kAlignment).toInt();
}

TextAlignment ItemSide::side() const {
  const int shown = shownNow();
  return set_ && shown == shown_ ? *set_ : qt::textAlignmentOf(Qt::Alignment(shown));
}

void ItemSide::set(TextAlignment side) {
  const QScopedValueRollback<bool> setting(isSetting_, true);
  const int wanted = alignmentOf(side);
  const auto isDrawn = [this, wanted] {
    return item_.property(kEffectiveAlignment).toInt() == wanted;
  };
  if (!set_ || !isDrawn()) {
    item_.setProperty(kAlignment, wanted);
    // A mirrored item exchanges left and right.
    if (!isDrawn()) {
      item_.setProperty(kAlignment, opposite(wanted));
    }
  }
  set_ = side;
  shown_ = shownNow();
}

void ItemSide::renew() {
  if (!isSetting_ && set_ && shownNow() == shown_) {
    set(*set_);
  }
}

}  // namespace orvanta::quick
