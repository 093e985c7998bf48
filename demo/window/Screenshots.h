#pragma once

#include <QImage>
#include <QString>
#include <initializer_list>

class QWidget;

namespace demo {

class OrderWindow;

/// The window, drawn at twice its size in the language.
[[nodiscard]] QImage screenshotIn(const QString& language, QWidget& window);

/// Leaves a picture of the window in each of the languages in `folder`, under the language's name.
/// False when one could not be written. Leaves the language as it was.
[[nodiscard]] bool takeScreenshots(QWidget& window, const QString& folder,
                                   const QStringList& languages);

/// One picture of the window in two languages, side by side.
[[nodiscard]] QImage sideBySide(QWidget& window, const QString& left, const QString& right);

/// The window's summary of the order for counts of every plural form, one below the other.
[[nodiscard]] QImage summariesIn(const QString& language, OrderWindow& window);

}  // namespace demo
