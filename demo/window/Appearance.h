#pragma once

class QApplication;

namespace demo {

/// The demo's colours, borders and base font. Fonts of single widgets are the form's and the
/// library's business; the style sheet names none, since it would win over both.
void applyAppearance(QApplication& application);

}  // namespace demo
