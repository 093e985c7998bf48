#pragma once

#include <QImage>
#include <QList>
#include <memory>
#include <string>

#include "DrawnTexts.h"

namespace ovaudit {

/// What is audited, shown on a platform without a display.
class Stage {
 public:
  Stage() = default;
  virtual ~Stage() = default;
  Stage(const Stage&) = delete;
  Stage& operator=(const Stage&) = delete;

  /// How many pages of tabs and the like there are to be shown one after the other; 1 without any.
  [[nodiscard]] virtual int views() const { return 1; }
  /// Shows one of them.
  virtual void show(int /*view*/) {}

  /// The visible texts and the bound properties.
  [[nodiscard]] virtual QList<DrawnText> texts() const = 0;
  /// The window, with a device pixel ratio that maps its coordinates.
  [[nodiscard]] virtual QImage picture() const = 0;
};

/// A form of Qt Designer's. Throws `Failure` when the file is none.
[[nodiscard]] std::unique_ptr<Stage> makeFormStage(const std::string& file);

/// A QML file whose root is a window or an item. Throws `Failure` when it cannot be loaded, and
/// where the command was built without Qt Quick.
[[nodiscard]] std::unique_ptr<Stage> makeQuickStage(const std::string& file);

}  // namespace ovaudit
