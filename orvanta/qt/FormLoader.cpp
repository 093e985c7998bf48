#include <QBuffer>
#include <QFile>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <orvanta/qt/AwakeFromNib.h>
#include <orvanta/qt/FormLoader.h>
#include <orvanta/qt/UILocalizedButton.h>
#include <orvanta/qt/UILocalizedLabel.h>
#include <orvanta/qt/UILocalizedTextField.h>

namespace orvanta::qt {

namespace {

// Null for a class that is not one of the three.
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

// The form with every text marked as one that is not for Qt's translators: QUiLoader would ask them
// in spite of setTranslationEnabled(false). What is no XML is left to QUiLoader to refuse.
QByteArray withoutTranslatableTexts(const QByteArray& form) {
  QByteArray marked;
  QXmlStreamReader reader(form);
  QXmlStreamWriter writer(&marked);
  while (!reader.atEnd()) {
    reader.readNext();
    const bool isText = reader.isStartElement() && (reader.name() == QLatin1String("string") ||
                                                    reader.name() == QLatin1String("stringlist"));
    if (isText) {
      writer.writeStartElement(reader.name().toString());
      writer.writeAttribute(QLatin1String("notr"), QLatin1String("true"));
    } else if (!reader.hasError()) {
      writer.writeCurrentToken(reader);
    }
  }
  return reader.hasError() ? form : marked;
}

}  // namespace

FormLoader::FormLoader(QObject* parent) : QUiLoader(parent) {
  setTranslationEnabled(false);
  setLanguageChangeEnabled(false);
}

// Properties are set after a widget is created, so nothing can be awakened before the whole form is
// there.
QWidget* FormLoader::load(QIODevice* device, QWidget* parent) {
  if (!device->isOpen()) {
    device->open(QIODevice::ReadOnly);
  }
  QBuffer form;
  form.setData(withoutTranslatableTexts(device->readAll()));
  form.open(QIODevice::ReadOnly);
  QWidget* root = QUiLoader::load(&form, parent);
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
