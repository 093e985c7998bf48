#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QVariantMap>
#include <concepts>
#include <functional>

#include <orvanta/qt/Export.h>

/// Bindings: texts of any object that follow the language.
///
///     localize(action, "text", "menu.file");
///     localize(action, &QAction::setToolTip, "menu.file.hint");
///     localize(status, "text", "cart.items", {{"count", 3}});
///     localize(label, [label](const QString& text) { label->setText(text + ':'); }, "total");
///
/// A binding sets the text at once and after every change of language, and goes with the object. A
/// key without a translation shows as itself. With arguments the text is a message, see
/// `localizedMessage`; binding again with other arguments shows those. Texts are set as they are:
/// where Qt reads "&" as the mark of a mnemonic, so it does in a translation. On the main thread
/// alone.
namespace orvanta::qt {

/// Binds a property, in place of an earlier binding of the same one. A null or empty key takes that
/// binding away and leaves the text. False, without effect, when the object has no such property
/// that can be written.
ORVANTA_QT_EXPORT bool localize(QObject* object, const char* property, const QString& key,
                                const QVariantMap& arguments = {});

/// Binds what `set` does. Every call adds a binding.
ORVANTA_QT_EXPORT void localize(QObject* object, const std::function<void(const QString&)>& set,
                                const QString& key, const QVariantMap& arguments = {});

/// Binds under a name of the caller's: in place of an earlier binding of the object under it. A
/// null or empty key takes that away.
ORVANTA_QT_EXPORT void localize(QObject* object, const QByteArray& name,
                                const std::function<void(const QString&)>& set, const QString& key,
                                const QVariantMap& arguments = {});

/// Binds a setter of the object, in place of an earlier binding of the same one.
template <typename Object, typename Class, typename Result>
requires std::derived_from<Object, Class>
void localize(Object* object, Result (Class::*setter)(const QString&), const QString& key,
              const QVariantMap& arguments = {}) {
  // No property has such a name.
  const QByteArray name = '&' + QByteArray(reinterpret_cast<const char*>(&setter), sizeof setter);
  localize(
      object, name, [object, setter](const QString& text) { (object->*setter)(text); }, key,
      arguments);
}

}  // namespace orvanta::qt
