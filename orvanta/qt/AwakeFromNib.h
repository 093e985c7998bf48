#pragma once

#include <orvanta/qt/Export.h>

class QWidget;

namespace orvanta::qt {

/// Awakens every localized widget of a layout, `root` included, children before their parents, and
/// binds the texts of all its objects that dynamic properties name: "ovToolTip" with a key binds
/// the property "toolTip", and so for every text property, and where "ovItems" is true the texts of
/// the items of a combo box, tab widget or tool box are keys. A text that is no key stays as it is.
///
/// To be called once the layout is complete: after the `setupUi` that uic has generated, say. What
/// is awake or bound already shows its translation again. Nothing happens for a null root.
ORVANTA_QT_EXPORT void awakeFromNib(QWidget* root);

}  // namespace orvanta::qt
