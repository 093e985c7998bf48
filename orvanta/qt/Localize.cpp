#include <QMetaProperty>
#include <QVariant>

#include <orvanta/locale/Localizer.h>
#include <orvanta/qt/Localize.h>
#include <orvanta/qt/Messages.h>
#include <orvanta/qt/Text.h>
#include <orvanta/qt/TextBindings.h>

namespace orvanta::qt {

namespace {

TextBindings::Text translationOf(const QString& key, const QVariantMap& arguments) {
  if (arguments.isEmpty()) {
    return [key = fromQString(key)] {
      return toQString(Localizer::sharedLocalizer().localizedStringForKey(key));
    };
  }
  return [key, arguments] { return localizedMessage(key, arguments); };
}

bool canBeWritten(const QObject& object, const char* property) {
  const QMetaObject& type = *object.metaObject();
  const int index = type.indexOfProperty(property);
  return index >= 0 && type.property(index).isWritable() &&
         type.property(index).metaType() == QMetaType::fromType<QString>();
}

}  // namespace

void localize(QObject* object, const QByteArray& name,
              const std::function<void(const QString&)>& set, const QString& key,
              const QVariantMap& arguments) {
  if (key.isEmpty()) {
    TextBindings::shared().unbind(object, name);
  } else {
    TextBindings::shared().bind(object, name, translationOf(key, arguments), set);
  }
}

void localize(QObject* object, const std::function<void(const QString&)>& set, const QString& key,
              const QVariantMap& arguments) {
  TextBindings::shared().bind(object, {}, translationOf(key, arguments), set);
}

bool localize(QObject* object, const char* property, const QString& key,
              const QVariantMap& arguments) {
  if (object == nullptr || !canBeWritten(*object, property)) {
    return false;
  }
  const QByteArray name(property);
  localize(
      object, name,
      [object, name](const QString& text) { object->setProperty(name.constData(), text); }, key,
      arguments);
  return true;
}

}  // namespace orvanta::qt
