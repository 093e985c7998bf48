#include <QMetaMethod>
#include <QMetaProperty>

#include <orvanta/qt/Text.h>
#include <orvanta/quick/ItemLocalization.h>

namespace orvanta::quick {

void ItemLocalization::setKey(const QString& key) {
  if (key == key_) {
    return;
  }
  key_ = key;
  if (control_ != nullptr) {
    applyKey();
  }
  Q_EMIT keyChanged();
}

void ItemLocalization::setAccessibleName(const QString& name) {
  if (name != accessibleName_) {
    accessibleName_ = name;
    Q_EMIT accessibleNameChanged();
  }
}

void ItemLocalization::setAccessibleDescription(const QString& description) {
  if (description != accessibleDescription_) {
    accessibleDescription_ = description;
    Q_EMIT accessibleDescriptionChanged();
  }
}

// Before the item's own completion, which gives a text without a side one by its direction.
void ItemLocalization::componentComplete() {
  if (target_ == nullptr) {
    return;
  }
  if (!key_.isEmpty()) {
    target_->setProperty("text", key_);
  }
  control_ = awaken(*target_);
  followMirroring();
  if (key_.isEmpty()) {
    key_ = qt::toQString(control_->originalKey());
    Q_EMIT keyChanged();
  } else if (control_->originalKey().isAbsent()) {
    applyKey();
  }
}

void ItemLocalization::applyKey() {
  control_->setOriginalKey(key_.isEmpty() ? String() : qt::fromQString(key_));
  control_->handleOVPreferredLocaleDidChangeNotification(nullptr);
}

void ItemLocalization::followMirroring() {
  const QMetaObject& type = *target_->metaObject();
  const int alignment = type.indexOfProperty("effectiveHorizontalAlignment");
  if (alignment >= 0) {
    const int slot = metaObject()->indexOfSlot("effectiveAlignmentChanged()");
    connect(target_, type.property(alignment).notifySignal(), this, metaObject()->method(slot));
  }
}

}  // namespace orvanta::quick
