#include <QWidget>

#include <orvanta/qt/AwakeFromNib.h>
#include <orvanta/qt/LocalizedWidget.h>

namespace orvanta::qt {

void awakeFromNib(QWidget* root) {
  if (root == nullptr) {
    return;
  }
  // A child inherits its parent's font: it takes its designed one before the parent has another.
  const QList<QWidget*> children =
      root->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
  for (QWidget* child : children) {
    awakeFromNib(child);
  }
  if (auto* localized = dynamic_cast<LocalizedWidget*>(root)) {
    localized->awakeFromNib();
  }
}

}  // namespace orvanta::qt
