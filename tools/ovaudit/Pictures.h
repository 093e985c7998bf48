#pragma once

#include <QList>
#include <QString>

#include "Findings.h"

class QWidget;

namespace ovaudit {

/// Saves a picture of the window as it is now, with red frames around the findings and their rules
/// beside them. False when the file cannot be written.
[[nodiscard]] bool savePicture(QWidget& window, const QList<Finding>& findings,
                               const QString& file);

}  // namespace ovaudit
