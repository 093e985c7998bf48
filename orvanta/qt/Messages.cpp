#include <string>
#include <vector>

#include <orvanta/locale/Localizer.h>
#include <orvanta/messages/LocalizedMessages.h>
#include <orvanta/qt/Messages.h>
#include <orvanta/qt/Text.h>

namespace orvanta::qt {

namespace {

// `text` holds what the result views.
MessageValue valueOf(const QVariant& value, const String& text) {
  switch (value.typeId()) {
    case QMetaType::Double:
    case QMetaType::Float:
      return value.toDouble();
    case QMetaType::UShort:
    case QMetaType::UInt:
    case QMetaType::ULong:
    case QMetaType::ULongLong:
      return value.toULongLong();
    case QMetaType::Short:
    case QMetaType::Int:
    case QMetaType::Long:
    case QMetaType::LongLong:
      return value.toLongLong();
    default:
      return text;
  }
}

}  // namespace

QString localizedText(const QString& key) {
  return toQString(Localizer::sharedLocalizer().localizedStringForKey(fromQString(key)));
}

QString localizedMessage(const QString& key, const QVariantMap& arguments) {
  std::vector<String> texts;
  std::vector<MessageArgument> list;
  texts.reserve(2 * std::size_t(arguments.size()));
  list.reserve(std::size_t(arguments.size()));
  for (auto argument = arguments.begin(); argument != arguments.end(); ++argument) {
    const String& name = texts.emplace_back(fromQString(argument.key()));
    const String& text = texts.emplace_back(fromQString(argument->toString()));
    list.emplace_back(name.view(), valueOf(*argument, text));
  }
  return toQString(localizedMessageForKey(fromQString(key).view(), list));
}

}  // namespace orvanta::qt
