#include <QWidget>

#include <orvanta/qt/AwakeFromNib.h>
#include <orvanta/qt/FormBindings.h>
#include <orvanta/qt/LocalizedWidget.h>

namespace orvanta::qt {

namespace {

// A child inherits its parent's font: it takes its designed one before the parent has another.
void awaken(QWidget* root) {
  const QList<QWidget*> children =
      root->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
  for (QWidget* child : children) {
    awaken(child);
  }
  if (auto* localized = dynamic_cast<LocalizedWidget*>(root)) {
    localized->awakeFromNib();
  }
}

}  // namespace

void awakeFromNib(QWidget* root) {
  if (root != nullptr) {
    awaken(root);
    bindForm(*root);
  }
}

}  // namespace orvanta::qt
