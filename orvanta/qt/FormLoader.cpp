#include <QFile>

#include <orvanta/qt/AwakeFromNib.h>
#include <orvanta/qt/FormLoader.h>
#include <orvanta/qt/UILocalizedButton.h>
#include <orvanta/qt/UILocalizedLabel.h>
#include <orvanta/qt/UILocalizedTextField.h>

namespace orvanta::qt {

namespace {

// Null for a class that is not ours.
QWidget* localizedWidget(QString className, QWidget* parent) {
  className.remove(QLatin1String("orvanta::qt::"));
  if (className == QLatin1String("UILocalizedLabel")) {
    return new UILocalizedLabel(parent);
  }
  if (className == QLatin1String("UILocalizedTextField")) {
    return new UILocalizedTextField(parent);
  }
  if (className == QLatin1String("UILocalizedButton")) {
    return new UILocalizedButton(parent);
  }
  return nullptr;
}

}  // namespace

FormLoader::FormLoader(QObject* parent) : QUiLoader(parent) {
  setTranslationEnabled(false);
  setLanguageChangeEnabled(false);
}

// Properties are set after a widget is created, so nothing can be awakened before the whole form is
// there.
QWidget* FormLoader::load(QIODevice* device, QWidget* parent) {
  QWidget* root = QUiLoader::load(device, parent);
  awakeFromNib(root);
  return root;
}

QWidget* FormLoader::load(const QString& path, QWidget* parent) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? load(&file, parent) : nullptr;
}

QWidget* FormLoader::createWidget(const QString& className, QWidget* parent, const QString& name) {
  QWidget* widget = localizedWidget(className, parent);
  if (widget == nullptr) {
    return QUiLoader::createWidget(className, parent, name);
  }
  widget->setObjectName(name);
  return widget;
}

}  // namespace orvanta::qt
