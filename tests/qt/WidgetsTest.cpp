#include <QFontInfo>
#include <QGuiApplication>
#include <QTest>
#include <QTranslator>
#include <memory>

#include <orvanta/qt/AwakeFromNib.h>
#include <orvanta/qt/FormLoader.h>
#include <orvanta/qt/LanguageNotifier.h>
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

template <typename Widget>
void checkKeys() {
  Widget widget;
  widget.setText(u"signin.title"_s);
  widget.setKey(u"order.title"_s);
  QCOMPARE(widget.text(), u"Your cart"_s);
  QCOMPARE(widget.key(), u"order.title"_s);
  QVERIFY(speak(u"de"_s));
  QCOMPARE(widget.text(), u"Ihr Warenkorb"_s);
  // The key replaces the text at the next change of language, unless it was cleared.
  widget.setText(u"typed"_s);
  QVERIFY(speak(u"en"_s));
  QCOMPARE(widget.text(), u"Your cart"_s);
  widget.setText(u"typed"_s);
  widget.setKey({});
  QVERIFY(widget.key().isEmpty());
  QVERIFY(speak(u"ar"_s));
  QCOMPARE(widget.text(), u"typed"_s);
  QCOMPARE(QFontInfo(widget.font()).family(), u"CorbetSansKufiArabic"_s);
  widget.setKey(u"no.such.key"_s);
  QCOMPARE(widget.text(), u"no.such.key"_s);
  QVERIFY(speak(u"en"_s));
}

}  // namespace

class WidgetsTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    QVERIFY(speak(u"en"_s));
  }

  void drawsTextOnTheDesignedSide() {
    const std::tuple<const char*, Qt::Alignment, const char*, const char*> rows[] = {
        {"no side is natural", {}, "left", "right"},
        {"leading is natural", Qt::AlignLeft, "left", "right"},
        {"trailing is right", Qt::AlignRight, "right", "left"},
        {"a side that is left", Qt::AlignLeft | Qt::AlignAbsolute, "left", "right"},
        {"a side that is right", Qt::AlignRight | Qt::AlignAbsolute, "right", "left"},
        {"the middle", Qt::AlignHCenter, "middle", "middle"},
    };
    const orvanta::qt::LayoutDirectionFollower direction;
    for (const auto& [name, side, inEnglish, inArabic] : rows) {
      const Qt::Alignment designed = side | Qt::AlignVCenter;
      // The text's own direction changes nothing.
      for (const QString& text : {u"latin"_s, u"שלום"_s}) {
        for (const auto& [language, drawn] : {std::pair(u"en"_s, inEnglish), {u"ar"_s, inArabic}}) {
          const QLatin1String expected(drawn);
          QVERIFY2(sideOf<UILocalizedLabel>(text, designed, language) == expected, name);
          QVERIFY2(sideOf<UILocalizedTextField>(text, designed, language) == expected, name);
          QVERIFY2(sideOf<UILocalizedButton>(text, designed, language) == expected, name);
        }
      }
    }
  }

  void naturalFollowsLanguageAndWidget() {
    constexpr auto kUnset = Qt::LayoutDirectionAuto;
    // The language, the directions of the application and of the window, and the side.
    const std::tuple<const char*, Qt::LayoutDirection, Qt::LayoutDirection, const char*> rows[] = {
        {"en", Qt::LeftToRight, kUnset, "left"},           {"en", Qt::RightToLeft, kUnset, "left"},
        {"en", Qt::LeftToRight, Qt::RightToLeft, "right"}, {"ar", Qt::LeftToRight, kUnset, "right"},
        {"ar", Qt::RightToLeft, Qt::LeftToRight, "left"},
    };
    // The direction is set before awakening, after it, and by a new parent.
    for (int at = 0; at < 15; ++at) {
      const auto& [language, application, window, side] = rows[at / 3];
      const int order = at % 3;
      QGuiApplication::setLayoutDirection(application);
      QWidget directed;
      QWidget other;
      UILocalizedLabel label(order == 0 ? &directed : &other);
      UILocalizedTextField field(order == 0 ? &directed : &other);
      UILocalizedButton button(order == 0 ? &directed : &other);
      QWidget* const widgets[] = {&label, &field, &button};
      awaken(label, u"latin"_s, Qt::AlignLeft | Qt::AlignVCenter);
      awaken(field, u"latin"_s, Qt::AlignLeft | Qt::AlignVCenter);
      awaken(button, u"latin"_s, Qt::AlignLeft | Qt::AlignVCenter);
      if (window != kUnset) {
        directed.setLayoutDirection(window);
      }
      QVERIFY(speak(QLatin1String(language)));
      for (QWidget* widget : widgets) {
        if (order == 1 && window != kUnset) {
          widget->setLayoutDirection(window);
        } else if (order == 2) {
          widget->setParent(&directed);
        }
        const QString what = QLatin1String(widget->metaObject()->className()) + QString::number(at);
        QVERIFY2(inkSide(*widget) == QLatin1String(side), qPrintable(what));
      }
    }
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
    // A second awakening must not take the localized font and texts for the designed ones.
    orvanta::qt::awakeFromNib(&compiled);
    checkForm(compiled);

    QVERIFY(orvanta::qt::FormLoader().load(u"no such form.ui"_s) == nullptr);
  }

  void labelsMadeInCodeAreAwake() {
    QVERIFY(speak(u"ar"_s));
    const std::unique_ptr<UILocalizedLabel> label(
        UILocalizedLabel::initLocalizedWithFrame({3, 4, 200, 30}, nullptr, u"order.title"_s));
    // If the label were not awake yet, this would take the shown text and font for the design.
    label->awakeFromNib();
    QVERIFY(speak(u"en"_s));
    QCOMPARE(label->geometry(), QRect(3, 4, 200, 30));
    QCOMPARE(label->text(), u"Your cart"_s);
    QCOMPARE(label->font(), QWidget().font());
    QVERIFY(speak(u"en-GB"_s));
    QCOMPARE(label->text(), u"Your basket"_s);
  }

  void keysAreChangedAndLetGoOf() {
    checkKeys<UILocalizedLabel>();
    checkKeys<UILocalizedTextField>();
    checkKeys<UILocalizedButton>();
  }

  void notifiesBySignal() {
    const orvanta::qt::LanguageNotifier notifier;
    QStringList seen;
    connect(&notifier, &orvanta::qt::LanguageNotifier::changed, this,
            [&seen] { seen << orvanta::qt::LanguageNotifier::locales(); });
    QVERIFY(speak(u"fr"_s));
    QCOMPARE(seen, QStringList(u"fr"_s));
  }

  // On Qt's language change event, generated form code sets the keys as texts again.
  void keysDoNotReappear() {
    UILocalizedLabel root;
    Ui::Promoted ui;
    ui.setupUi(&root);
    orvanta::qt::awakeFromNib(&root);
    ui.retranslateUi(&root);
    QEvent change(QEvent::LanguageChange);
    QCoreApplication::sendEvent(&root, &change);
    QCOMPARE(root.text(), u"Your cart"_s);
    QCOMPARE(ui.label->text(), u"Sign in"_s);
    QCOMPARE(ui.field->text(), u"name@example.com"_s);
    QCOMPARE(ui.button->text(), u"Place order"_s);
    ui.retranslateUi(&root);
    orvanta::qt::awakeFromNib(&root);
    QCOMPARE(ui.label->accessibleName(), u"Email address"_s);
  }

  void formsKeepKeysFromTranslators() {
    class Shouting : public QTranslator {
     public:
      QString translate(const char* /*context*/, const char* text, const char* /*hint*/,
                        int /*count*/) const override {
        return QString::fromLatin1(text).toUpper();
      }
      bool isEmpty() const override { return false; }
    } translator;
    QCoreApplication::installTranslator(&translator);
    const std::unique_ptr<QWidget> loaded(
        orvanta::qt::FormLoader().load(QStringLiteral(PROMOTED_FORM)));
    QCoreApplication::removeTranslator(&translator);
    checkForm(*loaded);
  }
};

static const orvanta::test::Registration<WidgetsTest> registration;

#include "WidgetsTest.moc"
