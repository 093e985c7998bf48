#pragma once

class QObject;
class QWidget;

namespace orvanta::qt {

/// Binds what dynamic properties of `root` and everything below it name, once for each object:
/// "ovToolTip" with a key binds the property "toolTip", and so for every text property. Combo
/// boxes, tab widgets and tool boxes with a true "ovItems" have keys as texts of their items. A
/// text that is no key is not bound. Objects that are bound already get their texts again.
void bindForm(QWidget& root);

}  // namespace orvanta::qt
