#include <QWidget>

#include <orvanta/platform/qt/AwakeFromNib.h>
#include <orvanta/platform/qt/LocalizedWidget.h>

namespace orvanta::qt {

void awakeFromNib(QWidget* root) {
  if (root == nullptr) {
    return;
  }
  QList<QWidget*> widgets = root->findChildren<QWidget*>();
  widgets.prepend(root);
  for (QWidget* widget : widgets) {
    if (auto* localized = dynamic_cast<LocalizedWidget*>(widget)) {
      localized->awakeFromNib();
    }
  }
}

}  // namespace orvanta::qt
