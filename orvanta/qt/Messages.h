#pragma once

#include <QString>
#include <QVariantMap>

#include <orvanta/qt/Export.h>

namespace orvanta::qt {

/// The text under `key` in the current language; the key itself where no language has one. On the
/// main thread alone.
[[nodiscard]] ORVANTA_QT_EXPORT QString localizedText(const QString& key);

/// The message that the text under `key` makes of the arguments, see `localizedMessageForKey`:
///
///     localizedMessage("cart.items", {{"count", 3}, {"name", "Ada"}});
///
/// "{0}" is the argument named "0". Numbers are numbers; what is neither a number nor invalid is
/// shown as its text, and an argument that has none is missing. On the main thread alone.
[[nodiscard]] ORVANTA_QT_EXPORT QString localizedMessage(const QString& key,
                                                         const QVariantMap& arguments);

}  // namespace orvanta::qt
