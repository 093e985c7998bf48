#pragma once

#include <orvanta/qt/Export.h>

class QWidget;

namespace orvanta::qt {

/// Awakens every localized widget of a layout, `root` included, children before their parents. To
/// be called once the layout is complete: after the `setupUi` that uic has generated, say. Widgets
/// that are awake already are left alone; a null root has none.
ORVANTA_QT_EXPORT void awakeFromNib(QWidget* root);

}  // namespace orvanta::qt
