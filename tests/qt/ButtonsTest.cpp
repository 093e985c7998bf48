#include <QMenu>
#include <QStyleOptionButton>
#include <QTest>

#include <orvanta/qt/UILocalizedButton.h>
#include <orvanta/qt/UILocalizedLabel.h>

#include "Support.h"

using namespace Qt::StringLiterals;
using namespace orvanta::platform;
using orvanta::qt::UILocalizedButton;
using orvanta::test::speak;

namespace {

// Gives access to the title that a button draws.
class Titled : public UILocalizedButton {
 public:
  using UILocalizedButton::UILocalizedButton;
  QString shownTitle() const {
    QStyleOptionButton option;
    initStyleOption(&option);
    return option.text;
  }
};

struct State {
  const char* name;
  void (*enter)(QWidget& window, Titled& button);
  ControlState state;
};

constexpr State kStates[] = {
    {"checked", [](QWidget&, Titled& button) { button.setChecked(true); }, kControlStateSelected},
    {"held", [](QWidget&, Titled& button) { button.setDown(true); }, kControlStateHighlighted},
    {"disabled", [](QWidget&, Titled& button) { button.setEnabled(false); }, kControlStateDisabled},
    {"focused",
     [](QWidget& window, Titled& button) {
       window.show();
       QApplication::setActiveWindow(&window);
       button.setFocus();
     },
     kControlStateFocused},
};

using Dress = void (*)(QPushButton& button);

void withIcon(QPushButton& button) {
  QPixmap black(16, 16);
  black.fill(Qt::black);
  button.setIcon(QIcon(black));
}

void withMenu(QPushButton& button) {
  button.setMenu(new QMenu(&button));
}

const std::pair<const char*, Dress> kSizes[] = {
    {"plain", [](QPushButton&) {}},
    {"an icon", withIcon},
    {"a tall icon",
     [](QPushButton& button) {
       withIcon(button);
       button.setIconSize({40, 40});
     }},
    {"a menu", withMenu},
    {"a style sheet",
     [](QPushButton& button) { button.setStyleSheet(u"border: 2px solid; padding: 5px 9px"_s); }},
};

const std::tuple<const char*, Dress, const char*> kSides[] = {
    {"plain", [](QPushButton&) {}, "Fusion"},
    {"an icon", withIcon, "Fusion"},
    {"a menu", withMenu, "Fusion"},
    {"an icon and a menu",
     [](QPushButton& button) {
       withIcon(button);
       withMenu(button);
     },
     "Windows"},
    {"a style sheet",
     [](QPushButton& button) {
       withMenu(button);
       button.setStyleSheet(u"color: black; background: white; border: none; padding: 3px 9px"_s);
     },
     "Fusion"},
};

QRect inkOf(QWidget& widget, const QRect& within) {
  const orvanta::test::Blank blank = orvanta::test::blankBesideInk(widget, within);
  return within.adjusted(blank.left, 0, -blank.right, 0);
}

}  // namespace

class ButtonsTest : public QObject {
  Q_OBJECT

 private slots:
  static void init() {
    QApplication::setStyle(u"Fusion"_s);
    QVERIFY(speak(u"en"_s));
  }
  static void cleanupTestCase() { QApplication::setStyle(u"Fusion"_s); }

  static void showsTheTitleOfItsState() {
    for (const State& state : kStates) {
      QWidget window;
      Titled button(&window);
      button.setCheckable(true);
      button.setText(u"order.place"_s);
      button.configure();
      state.enter(window, button);
      QVERIFY2(button.shownTitle() == u"Place order"_s, state.name);
      button.setTitle(u"own & only"_s, state.state);
      QVERIFY2(button.shownTitle() == u"own && only"_s, state.name);
      QVERIFY2(button.titleForState(state.state) == u"own & only"_s, state.name);
      button.setTitle(u"normal"_s, kControlStateNormal);
      QVERIFY2(button.shownTitle() == u"own && only"_s, state.name);
      button.setTitle(QString(), state.state);
      QVERIFY2(button.shownTitle() == u"normal"_s, state.name);
      button.setTitle(u""_s, state.state);
      QVERIFY2(button.shownTitle().isEmpty(), state.name);
      // A text that the application sets is the title of every state.
      button.setText(u"by hand"_s);
      QVERIFY2(button.shownTitle() == u"by hand"_s, state.name);
      button.setTitle(u"newer"_s, state.state);
      QVERIFY2(button.shownTitle() == u"newer"_s, state.name);
      QVERIFY2(button.titleForState(kControlStateNormal) == u"by hand"_s, state.name);
    }
  }

  static void hasTheSizeThatItsTitlesNeed() {
    for (const auto& [name, dress] : kSizes) {
      for (const QString& title :
           {u"II"_s, u"a title"_s, u"A title that is a good deal longer than the other one"_s}) {
        UILocalizedButton ours;
        QPushButton theirs;
        dress(ours);
        dress(theirs);
        ours.setText(u"I"_s);
        ours.setTitle(title, kControlStateSelected);
        theirs.setText(title);
        QVERIFY2(ours.sizeHint() == theirs.sizeHint(), name);
      }
    }
  }

  // The ink is as wide as in the middle, and as far from the frame as the style's margin.
  static void drawsWholeTitlesAtASide() {
    constexpr int kIndicator = 15;
    for (const auto& [name, dress, style] : kSides) {
      QApplication::setStyle(QLatin1String(style));
      for (const bool isReversed : {false, true}) {
        UILocalizedButton button;
        QPalette palette(Qt::white);
        palette.setColor(QPalette::ButtonText, Qt::black);
        button.setPalette(palette);
        button.setFlat(true);
        button.setText(u"Wide enough title"_s);
        dress(button);
        button.setLayoutDirection(isReversed ? Qt::RightToLeft : Qt::LeftToRight);
        button.ensurePolished();
        button.resize(400, 40);
        const int indicator = button.menu() != nullptr ? kIndicator : 0;
        const int before = isReversed ? indicator : 0;
        const int after = indicator - before;
        const QRect place = button.rect().adjusted(before, 0, -after, 0);
        const QRect middle = inkOf(button, place);
        button.setTitleAlignment(Qt::AlignLeft | Qt::AlignAbsolute);
        const QRect left = inkOf(button, place);
        button.setTitleAlignment(Qt::AlignRight | Qt::AlignAbsolute);
        const QRect right = inkOf(button, place);
        QVERIFY2(left.width() == middle.width() && right.width() == middle.width(), name);
        const int leftGap = left.left() - std::max(before - 3, 0);
        const int rightGap = button.rect().right() - right.right() - std::max(after - 3, 0);
        for (const int gap : {leftGap, rightGap}) {
          QVERIFY2(gap >= 3 && gap <= 14, qPrintable(QLatin1String(name) + QString::number(gap)));
        }
      }
    }
  }

  // Frame, focus frame and menu indicator are the style's, wherever the title is.
  static void drawsTheFrameThatTheStyleDraws() {
    for (const QString& style : {u"Windows"_s, u"Fusion"_s}) {
      QApplication::setStyle(style);
      QWidget window;
      UILocalizedButton button(&window);
      withMenu(button);
      window.show();
      QApplication::setActiveWindow(&window);
      QVERIFY(QTest::qWaitForWindowActive(&window));
      for (const bool isFocused : {false, true}) {
        isFocused ? button.setFocus() : button.clearFocus();
        button.setTitleAlignment(Qt::AlignHCenter);
        const QImage middle = button.grab().toImage();
        button.setTitleAlignment(Qt::AlignLeft);
        QVERIFY2(button.grab().toImage() == middle, qPrintable(style));
      }
    }
  }

  static void ampersandsStandForThemselves() {
    UILocalizedButton button;
    button.setTitle(u"Salt & pepper"_s, kControlStateNormal);
    QCOMPARE(button.text(), u"Salt && pepper"_s);
    QCOMPARE(button.titleForState(kControlStateNormal), u"Salt & pepper"_s);
    orvanta::qt::UILocalizedLabel label;
    label.control().label().setText("<b>a & b</b>");
    QCOMPARE(label.text(), u"<b>a & b</b>"_s);
    QCOMPARE(label.textFormat(), Qt::PlainText);
    label.setBuddy(&button);
    QCOMPARE(label.text(), u"<b>a && b</b>"_s);
    label.setBuddy(nullptr);
    QCOMPARE(label.text(), u"<b>a & b</b>"_s);
  }

  static void ampersandsMarkMnemonicsWhereAskedFor() {
    UILocalizedButton button;
    button.setMnemonics(true);
    button.setTitle(u"&Salt && pepper"_s, kControlStateNormal);
    QCOMPARE(button.text(), u"&Salt && pepper"_s);
    QCOMPARE(button.titleForState(kControlStateNormal), u"&Salt && pepper"_s);
    QCOMPARE(button.shortcut(), QKeySequence(Qt::ALT | Qt::Key_S));
    orvanta::qt::UILocalizedLabel label;
    label.setBuddy(&button);
    label.control().label().setText("&Salt");
    QCOMPARE(label.text(), u"&&Salt"_s);
    label.setMnemonics(true);
    QCOMPARE(label.text(), u"&Salt"_s);
  }
};

static const orvanta::test::Registration<ButtonsTest> registration;

#include "ButtonsTest.moc"
