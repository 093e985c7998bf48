#pragma once

#include <QUiLoader>

#include <orvanta/qt/Export.h>

namespace orvanta::qt {

/// Loads .ui files made with Qt Designer at run time. Widgets promoted to the three localized
/// classes, with or without "orvanta::qt::" before the name, come out localized: what was typed
/// into them is a key to the library, and nothing is handed to Qt's own translation.
class ORVANTA_QT_EXPORT FormLoader : public QUiLoader {
  Q_OBJECT

 public:
  /// As QUiLoader's.
  explicit FormLoader(QObject* parent = nullptr);

  /// The form's root, awake with everything in it; null when `device` holds no form.
  [[nodiscard]] QWidget* load(QIODevice* device, QWidget* parent = nullptr);
  /// The same for the file at `path`.
  [[nodiscard]] QWidget* load(const QString& path, QWidget* parent = nullptr);

  /// As QUiLoader's, with the localized widgets under their class names.
  [[nodiscard]] QWidget* createWidget(const QString& className, QWidget* parent = nullptr,
                                      const QString& name = {}) override;
};

}  // namespace orvanta::qt
