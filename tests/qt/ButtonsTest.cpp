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

QRect inkOf(QWidget& widget, const QRect& within) {
  const orvanta::test::Blank blank = orvanta::test::blankBesideInk(widget, within);
  return within.adjusted(blank.left, 0, -blank.right, 0);
}

}  // namespace

Q_DECLARE_METATYPE(Dress)

class ButtonsTest : public QObject {
  Q_OBJECT

 private slots:
  static void init() {
    QApplication::setStyle(u"Fusion"_s);
    QVERIFY(speak(u"en"_s));
  }
  static void cleanupTestCase() { QApplication::setStyle(u"Fusion"_s); }
  static void showsTheTitleOfItsState();
  static void hasTheSizeThatItsTitlesNeed_data();
  static void hasTheSizeThatItsTitlesNeed();
  static void drawsWholeTitlesAtASide_data();
  static void drawsWholeTitlesAtASide();
  static void drawsTheFrameThatTheStyleDraws();
  static void ampersandsStandForThemselves();
  static void ampersandsMarkMnemonicsWhereAskedFor();
};

void ButtonsTest::showsTheTitleOfItsState() {
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

void ButtonsTest::hasTheSizeThatItsTitlesNeed_data() {
  QTest::addColumn<Dress>("dress");
  QTest::newRow("plain") << Dress([](QPushButton&) {});
  QTest::newRow("an icon") << Dress(withIcon);
  QTest::newRow("a tall icon") << Dress([](QPushButton& button) {
    withIcon(button);
    button.setIconSize({40, 40});
  });
  QTest::newRow("a menu") << Dress(withMenu);
  QTest::newRow("a style sheet") << Dress(
      [](QPushButton& button) { button.setStyleSheet(u"border: 2px solid; padding: 5px 9px"_s); });
}

void ButtonsTest::hasTheSizeThatItsTitlesNeed() {
  QFETCH(const Dress, dress);
  for (const QString& title :
       {u"II"_s, u"a title"_s, u"A title that is a good deal longer than the other one"_s}) {
    UILocalizedButton ours;
    QPushButton theirs;
    dress(ours);
    dress(theirs);
    ours.setText(u"I"_s);
    ours.setTitle(title, kControlStateSelected);
    theirs.setText(title);
    QCOMPARE(ours.sizeHint(), theirs.sizeHint());
  }
}

void ButtonsTest::drawsWholeTitlesAtASide_data() {
  QTest::addColumn<Dress>("dress");
  QTest::addColumn<QString>("style");
  QTest::newRow("plain") << Dress([](QPushButton&) {}) << u"Fusion"_s;
  QTest::newRow("an icon") << Dress(withIcon) << u"Fusion"_s;
  QTest::newRow("a menu") << Dress(withMenu) << u"Fusion"_s;
  QTest::newRow("an icon and a menu") << Dress([](QPushButton& button) {
    withIcon(button);
    withMenu(button);
  }) << u"Windows"_s;
  QTest::newRow("a style sheet") << Dress([](QPushButton& button) {
    withMenu(button);
    button.setStyleSheet(u"color: black; background: white; border: none; padding: 3px 9px"_s);
  }) << u"Fusion"_s;
}

// The ink is as wide as in the middle, and as far from the frame as the style's margin.
void ButtonsTest::drawsWholeTitlesAtASide() {
  QFETCH(const Dress, dress);
  QFETCH(const QString, style);
  constexpr int kIndicator = 15;
  QApplication::setStyle(style);
  for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
    UILocalizedButton button;
    QPalette palette(Qt::white);
    palette.setColor(QPalette::ButtonText, Qt::black);
    button.setPalette(palette);
    button.setFlat(true);
    button.setText(u"Wide enough title"_s);
    dress(button);
    button.setLayoutDirection(direction);
    button.ensurePolished();
    button.resize(400, 40);
    const bool hasMenu = button.menu() != nullptr;
    const bool isReversed = direction == Qt::RightToLeft;
    const QRect place = button.rect().adjusted(hasMenu && isReversed ? kIndicator : 0, 0,
                                               hasMenu && !isReversed ? -kIndicator : 0, 0);
    const QRect middle = inkOf(button, place);
    button.setTitleAlignment(Qt::AlignLeft | Qt::AlignAbsolute);
    const QRect left = inkOf(button, place);
    button.setTitleAlignment(Qt::AlignRight | Qt::AlignAbsolute);
    const QRect right = inkOf(button, place);
    QCOMPARE(left.width(), middle.width());
    QCOMPARE(right.width(), middle.width());
    const int leftGap = left.left() - (hasMenu && isReversed ? kIndicator - 3 : 0);
    const int rightGap =
        button.rect().right() - right.right() - (hasMenu && !isReversed ? kIndicator - 3 : 0);
    QVERIFY2(leftGap >= 3 && leftGap <= 14, qPrintable(QString::number(leftGap)));
    QVERIFY2(rightGap >= 3 && rightGap <= 14, qPrintable(QString::number(rightGap)));
  }
}

// Frame, focus frame and menu indicator are the style's, wherever the title is.
void ButtonsTest::drawsTheFrameThatTheStyleDraws() {
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

void ButtonsTest::ampersandsStandForThemselves() {
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

void ButtonsTest::ampersandsMarkMnemonicsWhereAskedFor() {
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

static const orvanta::test::Registration<ButtonsTest> registration;

#include "ButtonsTest.moc"
