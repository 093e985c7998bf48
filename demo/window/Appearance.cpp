#include "Appearance.h"

#include <QApplication>
#include <QFont>
#include <QFontDatabase>
#include <QPalette>

namespace demo {

namespace {

// The padding of labels is for letters that reach beyond their advance, such as a French J.
constexpr auto kStyleSheet = R"(
#OrderWindow { background: #f4f1ea; }
#signInCard, #orderCard { background: #ffffff; border: 1px solid #e3ddd1; border-radius: 14px; }
#rule { background: #e9e4da; border: none; }
QLabel { color: #1f2d2b; background: transparent; padding: 0 3px; }
#emailCaption, #passwordCaption, #favoritesTitle, #statusLabel,
#coffeeQuantity, #teaQuantity, #juiceQuantity, #cookieQuantity { color: #6a7672; }
QLineEdit { color: #1f2d2b; background: #fbfaf7; border: 1px solid #d3ccbf; border-radius: 8px;
            padding: 8px 11px; selection-background-color: #0e6b62; }
QLineEdit:focus { border-color: #0e6b62; background: #ffffff; }
QPushButton { color: #0e6b62; background: #ffffff; border: 1px solid #b9d0cb; border-radius: 8px;
              padding: 9px 18px; }
QPushButton:hover { background: #eef5f3; }
QPushButton:focus { border-color: #0e6b62; }
QPushButton:pressed, QPushButton:checked { background: #d8e9e5; border-color: #0e6b62; }
QPushButton:disabled { color: #9aa5a2; border-color: #dedede; }
QPushButton::menu-indicator { width: 0; image: none; }
#signInButton, #placeButton { color: #ffffff; background: #0e6b62; border-color: #0e6b62;
                              padding: 11px 18px; }
#takeawayButton { padding: 11px 18px; }
#signInButton:hover, #placeButton:hover { background: #0b5851; }
#signInButton:focus, #placeButton:focus { border-color: #06332f; }
#signInButton:pressed, #placeButton:pressed { background: #084640; }
QMenu { background: #ffffff; border: 1px solid #d3ccbf; padding: 6px; }
QMenu::item { color: #1f2d2b; padding: 6px 26px; border-radius: 6px; }
QMenu::item:selected { background: #e3efec; }
QMenu::item:checked { color: #0e6b62; background: #f1f6f5; }
)";

}  // namespace

void applyAppearance(QApplication& application) {
  QApplication::setStyle(QStringLiteral("Fusion"));
  // Han letters from a font made for them, not from the first that happens to have a few.
  QFont font;
  font.setFamilies({QStringLiteral("Noto Sans"), QStringLiteral("Droid Sans Fallback"),
                    QFontDatabase::systemFont(QFontDatabase::GeneralFont).family()});
  font.setPointSizeF(11);
  QApplication::setFont(font);
  application.setStyleSheet(QString::fromUtf8(kStyleSheet));
}

}  // namespace demo
