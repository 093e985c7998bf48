#pragma once

#include <QImage>
#include <QList>
#include <QString>

#include "Findings.h"

namespace ovaudit {

/// Saves the picture of a window with red frames around the findings and their rules
/// beside them. False when the file cannot be written.
[[nodiscard]] bool savePicture(QImage window, const QList<Finding>& findings, const QString& file);

}  // namespace ovaudit
