#include <QGuiApplication>
#include <QRawFont>
#include <QTest>
#include <memory>
#include <vector>

#include <orvanta/qt/AwakeFromNib.h>
#include <orvanta/qt/FormLoader.h>
#include <orvanta/qt/LayoutDirectionFollower.h>
#include <orvanta/qt/UILocalizedButton.h>
#include <orvanta/qt/UILocalizedLabel.h>
#include <orvanta/qt/UILocalizedTextField.h>

#include "Support.h"
#include "ui_promoted.h"

using namespace Qt::StringLiterals;
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
void awaken(Widget& widget, const QString& text, Qt::Alignment designed) {
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
}

template <typename Widget>
QString sideOf(const QString& text, Qt::Alignment designed, const QString& language) {
  Widget widget;
  awaken(widget, text, designed);
  return speak(language) ? inkSide(widget) : u"unheard"_s;
}

void checkForm(QWidget& root) {
  auto* label = root.findChild<UILocalizedLabel*>(u"label"_s);
  auto* field = root.findChild<UILocalizedTextField*>(u"field"_s);
  auto* button = root.findChild<UILocalizedButton*>(u"button"_s);
  QVERIFY(label != nullptr && field != nullptr && button != nullptr);
  QVERIFY(speak(u"de"_s));
  QCOMPARE(dynamic_cast<QLabel&>(root).text(), u"Ihr Warenkorb"_s);
  QVERIFY(speak(u"fr"_s));
  QCOMPARE(label->text(), u"Connexion"_s);
  QCOMPARE(label->accessibleName(), u"Adresse e-mail"_s);
  QVERIFY(label->accessibleDescription() != u"signin.email.hint"_s);
  QVERIFY(label->alignment().testFlag(Qt::AlignBottom));
  QCOMPARE(label->font().family(), QFont().family());
  QCOMPARE(field->text(), u"nom@exemple.fr"_s);
  QCOMPARE(button->text(), u"Commander"_s);
  QCOMPARE(button->titleForState(orvanta::platform::kControlStateDisabled), u"Commander"_s);
  QVERIFY(button->titleAlignment().testFlag(Qt::AlignLeft));
}

}  // namespace

class WidgetsTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    QVERIFY(speak(u"en"_s));
  }

  void drawsTextOnTheDesignedSide_data() {
    QTest::addColumn<Qt::Alignment>("designed");
    QTest::addColumn<QString>("inEnglish");
    QTest::addColumn<QString>("inArabic");
    const auto row = [](const char* name, Qt::Alignment designed, const char* inEnglish,
                        const char* inArabic) {
      QTest::newRow(name) << (designed | Qt::AlignVCenter) << QString(inEnglish)
                          << QString(inArabic);
    };
    row("no side is natural", {}, "left", "right");
    row("leading is natural", Qt::AlignLeft, "left", "right");
    row("trailing is right", Qt::AlignRight, "right", "left");
    row("a side that is left", Qt::AlignLeft | Qt::AlignAbsolute, "left", "right");
    row("a side that is right", Qt::AlignRight | Qt::AlignAbsolute, "right", "left");
    row("the middle", Qt::AlignHCenter, "middle", "middle");
  }

  void drawsTextOnTheDesignedSide() {
    QFETCH(Qt::Alignment, designed);
    QFETCH(QString, inEnglish);
    QFETCH(QString, inArabic);
    const orvanta::qt::LayoutDirectionFollower direction;
    // The text's own direction changes nothing.
    for (const QString& text : {u"latin"_s, u"שלום"_s}) {
      for (const auto& [language, side] : {std::pair(u"en"_s, inEnglish), {u"ar"_s, inArabic}}) {
        QCOMPARE(sideOf<UILocalizedLabel>(text, designed, language), side);
        QCOMPARE(sideOf<UILocalizedTextField>(text, designed, language), side);
        QCOMPARE(sideOf<UILocalizedButton>(text, designed, language), side);
      }
    }
  }

  void naturalFollowsTheApplication() {
    UILocalizedLabel label;
    UILocalizedTextField field;
    UILocalizedButton button;
    awaken(label, u"latin"_s, Qt::AlignLeft | Qt::AlignVCenter);
    awaken(field, u"latin"_s, Qt::AlignLeft | Qt::AlignVCenter);
    awaken(button, u"latin"_s, Qt::AlignLeft | Qt::AlignVCenter);
    for (const QString& side : {u"left"_s, u"right"_s}) {
      QCOMPARE(inkSide(label), side);
      QCOMPARE(inkSide(field), side);
      QCOMPARE(inkSide(button), side);
      QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    }
  }

  void givesTheDesignedFontBack() {
    QWidget parent;
    auto* label = new UILocalizedLabel(&parent);
    QFont designed = label->font();
    designed.setBold(true);
    designed.setPixelSize(30);
    label->setFont(designed);
    const QFont before = label->font();
    label->setText(u"signin.title"_s);
    orvanta::qt::awakeFromNib(&parent);
    QVERIFY(speak(u"ar"_s));
    const QRawFont shown = QRawFont::fromFont(label->font(), QFontDatabase::Arabic);
    QCOMPARE(shown.familyName(), u"CorbetSansKufiArabic-Bold"_s);
    QVERIFY(qAbs(shown.pixelSize() - 30) < 1);
    QVERIFY(speak(u"en"_s));
    QCOMPARE(label->font(), before);
    // What was inherited before still is.
    QFont families(u"Noto Serif"_s);
    parent.setFont(families);
    QCOMPARE(label->font().family(), u"Noto Serif"_s);
  }

  void loadsFormsThreeWays() {
    const std::unique_ptr<QWidget> loaded(
        orvanta::qt::FormLoader().load(QStringLiteral(PROMOTED_FORM)));
    QVERIFY(loaded != nullptr);
    checkForm(*loaded);

    QVERIFY(speak(u"ar"_s));
    UILocalizedLabel compiled;
    Ui::Promoted ui;
    ui.setupUi(&compiled);
    orvanta::qt::awakeFromNib(&compiled);
    // Awakening again must not take the localized look for the designed one.
    orvanta::qt::awakeFromNib(&compiled);
    checkForm(compiled);

    QVERIFY(orvanta::qt::FormLoader().load(u"no such form.ui"_s) == nullptr);
  }

  void labelsMadeInCodeAreAwake() {
    const std::unique_ptr<UILocalizedLabel> label(
        UILocalizedLabel::initLocalizedWithFrame({3, 4, 200, 30}, nullptr, u"order.title"_s));
    QCOMPARE(label->geometry(), QRect(3, 4, 200, 30));
    QCOMPARE(label->text(), u"Your cart"_s);
    QVERIFY(speak(u"en-GB"_s));
    QCOMPARE(label->text(), u"Your basket"_s);
  }

  void buttonShowsTheTitleOfItsState() {
    using namespace orvanta::platform;
    UILocalizedButton button;
    paintBlackOnWhite(button);
    button.setCheckable(true);
    button.setText(u"I"_s);
    button.setTitle(u"selected title"_s, kControlStateSelected);
    button.setTitle(u"held"_s, kControlStateHighlighted);
    QCOMPARE(button.titleForState(kControlStateDisabled), u"I"_s);
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

  void buttonFitsEveryTitle() {
    UILocalizedButton button;
    UILocalizedButton wide;
    button.setText(u"A short title here"_s);
    wide.setText(u"A title that is a good deal longer than the other one"_s);
    const int narrow = button.sizeHint().width();
    QVERIFY(narrow < wide.sizeHint().width());
    button.setTitle(wide.text(), orvanta::platform::kControlStateSelected);
    QCOMPARE(button.sizeHint().width(), wide.sizeHint().width());
  }

  void ampersandsStandForThemselves() {
    UILocalizedButton button;
    button.setTitle(u"Salt & pepper"_s, orvanta::platform::kControlStateNormal);
    QCOMPARE(button.text(), u"Salt && pepper"_s);
    QCOMPARE(button.titleForState(orvanta::platform::kControlStateNormal), u"Salt & pepper"_s);
    UILocalizedLabel label;
    label.control().label().setText("<b>a & b</b>");
    QCOMPARE(label.text(), u"<b>a & b</b>"_s);
    QCOMPARE(label.textFormat(), Qt::PlainText);
  }

  void livesThroughSwitching() {
    std::vector<std::unique_ptr<QWidget>> widgets;
    const QStringList languages = {u"ar"_s, u"fr"_s, u"he"_s};
    for (int i = 0; i < 1000; ++i) {
      widgets.emplace_back(
          UILocalizedLabel::initLocalizedWithFrame({0, 0, 80, 20}, nullptr, u"signin.title"_s));
      if (i % 100 == 0) {
        // The change is still on its way while widgets come and go.
        orvanta::Localizer::sharedLocalizer().updatePreferredLocales(
            {orvanta::qt::fromQString(languages[i / 100 % 3])}, {});
      }
      if (i % 3 == 0) {
        widgets[widgets.size() / 2] = std::make_unique<UILocalizedButton>();
      }
    }
    QVERIFY(speak(u"fr"_s));
    int french = 0;
    for (const auto& widget : widgets) {
      const auto* label = dynamic_cast<UILocalizedLabel*>(widget.get());
      if (label != nullptr) {
        QCOMPARE(label->text(), u"Connexion"_s);
        ++french;
      }
    }
    QVERIFY(french > 500);
  }
};

std::unique_ptr<QObject> orvanta::test::makeWidgetsTest() {
  return std::make_unique<WidgetsTest>();
}

#include "WidgetsTest.moc"
