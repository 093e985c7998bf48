#include "WidgetsTest.h"

#include <QGuiApplication>
#include <QRawFont>
#include <QTest>
#include <memory>
#include <vector>

#include <orvanta/platform/qt/AwakeFromNib.h>
#include <orvanta/platform/qt/FormLoader.h>
#include <orvanta/platform/qt/LayoutDirectionFollower.h>
#include <orvanta/platform/qt/UILocalizedButton.h>
#include <orvanta/platform/qt/UILocalizedLabel.h>
#include <orvanta/platform/qt/UILocalizedTextField.h>

#include "Support.h"
#include "ui_promoted.h"

using orvanta::qt::UILocalizedButton;
using orvanta::qt::UILocalizedLabel;
using orvanta::qt::UILocalizedTextField;
using orvanta::test::inkSide;
using orvanta::test::speak;

namespace {

void paintBlackOnWhite(QWidget& widget) {
  QPalette palette(Qt::white);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(role, Qt::black);
  }
  palette.setColor(QPalette::Base, Qt::white);
  widget.setPalette(palette);
  widget.resize(400, 40);
}

// A text that is no key stays as it is in every language.
template <typename Widget>
QString sideOf(const QString& text, Qt::Alignment designed, const QString& language) {
  Widget widget;
  paintBlackOnWhite(widget);
  widget.setText(text);
  if constexpr (std::is_same_v<Widget, UILocalizedButton>) {
    widget.setFlat(true);
    widget.setTitleAlignment(designed);
  } else {
    widget.setAlignment(designed);
  }
  if constexpr (std::is_same_v<Widget, UILocalizedTextField>) {
    widget.setFrame(false);
  }
  widget.awakeFromNib();
  return speak(language) ? inkSide(widget) : QStringLiteral("unheard");
}

void checkForm(QWidget& root) {
  auto* label = root.findChild<UILocalizedLabel*>(QStringLiteral("label"));
  auto* field = root.findChild<UILocalizedTextField*>(QStringLiteral("field"));
  auto* button = root.findChild<UILocalizedButton*>(QStringLiteral("button"));
  QVERIFY(label != nullptr && field != nullptr && button != nullptr);
  QVERIFY(speak(QStringLiteral("de")));
  QCOMPARE(dynamic_cast<QLabel&>(root).text(), QStringLiteral("Ihr Warenkorb"));
  QVERIFY(speak(QStringLiteral("fr")));
  QCOMPARE(label->text(), QStringLiteral("Connexion"));
  QCOMPARE(label->accessibleName(), QStringLiteral("Adresse e-mail"));
  QVERIFY(label->accessibleDescription() != QStringLiteral("signin.email.hint"));
  QVERIFY(label->alignment().testFlag(Qt::AlignBottom));
  QCOMPARE(label->font().family(), QFont().family());
  QCOMPARE(field->text(), QStringLiteral("nom@exemple.fr"));
  QCOMPARE(button->text(), QStringLiteral("Commander"));
  QCOMPARE(button->titleForState(orvanta::platform::kControlStateDisabled),
           QStringLiteral("Commander"));
  QVERIFY(button->titleAlignment().testFlag(Qt::AlignLeft));
}

}  // namespace

void WidgetsTest::init() {
  QGuiApplication::setLayoutDirection(Qt::LeftToRight);
  QVERIFY(speak(QStringLiteral("en")));
}

void WidgetsTest::drawsTextOnTheDesignedSide_data() {
  QTest::addColumn<Qt::Alignment>("designed");
  QTest::addColumn<QString>("inEnglish");
  QTest::addColumn<QString>("inArabic");
  const auto row = [](const char* name, Qt::Alignment designed, const char* inEnglish,
                      const char* inArabic) {
    QTest::newRow(name) << (designed | Qt::AlignVCenter) << QString(inEnglish) << QString(inArabic);
  };
  row("no side is natural", {}, "left", "right");
  row("leading is natural", Qt::AlignLeft, "left", "right");
  row("trailing is right", Qt::AlignRight, "right", "left");
  row("a side that is left", Qt::AlignLeft | Qt::AlignAbsolute, "left", "right");
  row("a side that is right", Qt::AlignRight | Qt::AlignAbsolute, "right", "left");
  row("the middle", Qt::AlignHCenter, "middle", "middle");
}

void WidgetsTest::drawsTextOnTheDesignedSide() {
  QFETCH(Qt::Alignment, designed);
  QFETCH(QString, inEnglish);
  QFETCH(QString, inArabic);
  const orvanta::qt::LayoutDirectionFollower direction;
  // The text's own direction changes nothing.
  for (const QString& text : {QStringLiteral("latin"), QStringLiteral("שלום")}) {
    QCOMPARE(sideOf<UILocalizedLabel>(text, designed, QStringLiteral("en")), inEnglish);
    QCOMPARE(sideOf<UILocalizedLabel>(text, designed, QStringLiteral("ar")), inArabic);
    QCOMPARE(sideOf<UILocalizedTextField>(text, designed, QStringLiteral("en")), inEnglish);
    QCOMPARE(sideOf<UILocalizedTextField>(text, designed, QStringLiteral("ar")), inArabic);
    QCOMPARE(sideOf<UILocalizedButton>(text, designed, QStringLiteral("en")), inEnglish);
    QCOMPARE(sideOf<UILocalizedButton>(text, designed, QStringLiteral("ar")), inArabic);
  }
}

void WidgetsTest::naturalFollowsTheApplication() {
  UILocalizedLabel label;
  UILocalizedTextField field;
  UILocalizedButton button;
  field.setFrame(false);
  button.setFlat(true);
  button.setTitleAlignment(Qt::AlignLeft);
  const auto checkAll = [&](const char* side) {
    QCOMPARE(inkSide(label), QString(side));
    QCOMPARE(inkSide(field), QString(side));
    QCOMPARE(inkSide(button), QString(side));
  };
  const auto prepare = [](auto& widget) {
    paintBlackOnWhite(widget);
    widget.setText(QStringLiteral("latin"));
    widget.awakeFromNib();
  };
  prepare(label);
  prepare(field);
  prepare(button);
  checkAll("left");
  QGuiApplication::setLayoutDirection(Qt::RightToLeft);
  checkAll("right");
}

void WidgetsTest::givesTheDesignedFontBack() {
  QWidget parent;
  auto* label = new UILocalizedLabel(&parent);
  QFont designed = label->font();
  designed.setBold(true);
  designed.setPixelSize(30);
  label->setFont(designed);
  const QFont before = label->font();
  label->setText(QStringLiteral("signin.title"));
  orvanta::qt::awakeFromNib(&parent);
  QVERIFY(speak(QStringLiteral("ar")));
  const QRawFont shown = QRawFont::fromFont(label->font(), QFontDatabase::Arabic);
  QCOMPARE(shown.familyName(), QStringLiteral("CorbetSansKufiArabic-Bold"));
  QVERIFY(qAbs(shown.pixelSize() - 30) < 1);
  QVERIFY(speak(QStringLiteral("en")));
  QCOMPARE(label->font(), before);
  // What was inherited before still is.
  QFont families(QStringLiteral("Noto Serif"));
  parent.setFont(families);
  QCOMPARE(label->font().family(), QStringLiteral("Noto Serif"));
}

void WidgetsTest::loadsFormsThreeWays() {
  const std::unique_ptr<QWidget> loaded(
      orvanta::qt::FormLoader().load(QStringLiteral(PROMOTED_FORM)));
  QVERIFY(loaded != nullptr);
  checkForm(*loaded);

  QVERIFY(speak(QStringLiteral("ar")));
  UILocalizedLabel compiled;
  Ui::Promoted ui;
  ui.setupUi(&compiled);
  orvanta::qt::awakeFromNib(&compiled);
  // Awakening again must not take the localized look for the designed one.
  orvanta::qt::awakeFromNib(&compiled);
  checkForm(compiled);

  QVERIFY(orvanta::qt::FormLoader().load(QStringLiteral("no such form.ui")) == nullptr);
}

void WidgetsTest::labelsMadeInCodeAreAwake() {
  const std::unique_ptr<UILocalizedLabel> label(UILocalizedLabel::initLocalizedWithFrame(
      {3, 4, 200, 30}, nullptr, QStringLiteral("order.title")));
  QCOMPARE(label->geometry(), QRect(3, 4, 200, 30));
  QCOMPARE(label->text(), QStringLiteral("Your cart"));
  QVERIFY(speak(QStringLiteral("en-GB")));
  QCOMPARE(label->text(), QStringLiteral("Your basket"));
}

void WidgetsTest::buttonShowsTheTitleOfItsState() {
  using namespace orvanta::platform;
  UILocalizedButton button;
  paintBlackOnWhite(button);
  button.setCheckable(true);
  button.setText(QStringLiteral("I"));
  button.setTitle(QStringLiteral("selected title"), kControlStateSelected);
  button.setTitle(QStringLiteral("held"), kControlStateHighlighted);
  QCOMPARE(button.titleForState(kControlStateDisabled), QStringLiteral("I"));
  const auto inkWidth = [&button] {
    const QRect inside = button.rect().adjusted(10, 8, -10, -8);
    const orvanta::test::Blank blank = orvanta::test::blankBesideInk(button, inside);
    return inside.width() - blank.left - blank.right;
  };
  const int normal = inkWidth();
  button.setDown(true);
  const int held = inkWidth();
  button.setDown(false);
  button.setChecked(true);
  const int selected = inkWidth();
  QVERIFY2(normal < held && held < selected, "each state draws its own title");
}

void WidgetsTest::buttonFitsEveryTitle() {
  UILocalizedButton button;
  UILocalizedButton wide;
  button.setText(QStringLiteral("A short title here"));
  wide.setText(QStringLiteral("A title that is a good deal longer than the other one"));
  const int narrow = button.sizeHint().width();
  QVERIFY(narrow < wide.sizeHint().width());
  button.setTitle(wide.text(), orvanta::platform::kControlStateSelected);
  QCOMPARE(button.sizeHint().width(), wide.sizeHint().width());
}

void WidgetsTest::ampersandsStandForThemselves() {
  UILocalizedButton button;
  button.setTitle(QStringLiteral("Salt & pepper"), orvanta::platform::kControlStateNormal);
  QCOMPARE(button.text(), QStringLiteral("Salt && pepper"));
  QCOMPARE(button.titleForState(orvanta::platform::kControlStateNormal),
           QStringLiteral("Salt & pepper"));
  UILocalizedLabel label;
  label.control().label().setText("<b>a & b</b>");
  QCOMPARE(label.text(), QStringLiteral("<b>a & b</b>"));
  QCOMPARE(label.textFormat(), Qt::PlainText);
}

void WidgetsTest::livesThroughSwitching() {
  std::vector<std::unique_ptr<QWidget>> widgets;
  const QStringList languages = {QStringLiteral("ar"), QStringLiteral("fr"), QStringLiteral("he")};
  for (int i = 0; i < 1000; ++i) {
    widgets.emplace_back(UILocalizedLabel::initLocalizedWithFrame({0, 0, 80, 20}, nullptr,
                                                                  QStringLiteral("signin.title")));
    if (i % 100 == 0) {
      // The change is still on its way while widgets come and go.
      orvanta::Localizer::sharedLocalizer().updatePreferredLocales(
          {orvanta::qt::fromQString(languages[i / 100 % 3])}, {});
    }
    if (i % 3 == 0) {
      widgets[widgets.size() / 2] = std::make_unique<UILocalizedButton>();
    }
  }
  QVERIFY(speak(QStringLiteral("fr")));
  int french = 0;
  for (const auto& widget : widgets) {
    const auto* label = dynamic_cast<UILocalizedLabel*>(widget.get());
    if (label != nullptr) {
      QCOMPARE(label->text(), QStringLiteral("Connexion"));
      ++french;
    }
  }
  QVERIFY(french > 500);
}
