#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QSignalSpy>
#include <QTest>
#include <QToolBox>
#include <memory>

#include <orvanta/qt/AwakeFromNib.h>
#include <orvanta/qt/FormLoader.h>
#include <orvanta/qt/Localize.h>

#include "Support.h"
#include "ui_bindings.h"

using namespace Qt::StringLiterals;
using orvanta::qt::localize;
using orvanta::test::speak;

namespace {

// The texts of a form's objects, with "|" between them.
QString textsOf(const QWidget& form) {
  const auto* combo = form.findChild<QComboBox*>();
  const auto* tabs = form.findChild<QTabWidget*>();
  const auto* field = form.findChild<QLineEdit*>(u"field"_s);
  const QStringList texts =
      QStringList(form.windowTitle())
      << field->placeholderText() << field->toolTip() << form.findChild<QCheckBox*>()->text()
      << form.findChild<QGroupBox*>()->title() << combo->itemText(0) << combo->itemText(1)
      << combo->itemText(2) << tabs->tabText(0) << tabs->tabText(1)
      << form.findChild<QToolBox*>()->itemText(0) << form.findChild<QAction*>()->text();
  return texts.join(u'|');
}

const QString kEnglish =
    u"Your cart|Email|Type the email address of your account|Designed|Your favorites|Tea|no key|"
    "Orange juice|Sign in|Your cart|Place order|Language"_s;
const QString kGerman =
    u"Ihr Warenkorb|E-Mail|Geben Sie die E-Mail-Adresse Ihres Kontos ein|Designed|Ihre Favoriten|"
    "Tee|no key|Orangensaft|Anmelden|Ihr Warenkorb|Bestellen|Sprache"_s;

}  // namespace

class BindingsTest : public QObject {
  Q_OBJECT

 private slots:
  static void init() { QVERIFY(speak(u"en"_s)); }

  static void bindsWhatAFormNames() {
    QTest::ignoreMessage(QtWarningMsg, "ovNoSuchProperty of field names no text property.");
    const std::unique_ptr<QWidget> loaded(
        orvanta::qt::FormLoader().load(QStringLiteral(BINDINGS_FORM)));
    QWidget compiled;
    Ui::Bindings ui;
    ui.setupUi(&compiled);
    QTest::ignoreMessage(QtWarningMsg, "ovNoSuchProperty of field names no text property.");
    orvanta::qt::awakeFromNib(&compiled);
    for (QWidget* form : {loaded.get(), &compiled}) {
      QVERIFY(speak(u"de"_s));
      QCOMPARE(textsOf(*form), kGerman);
      // An item keeps its key when it moves.
      auto* combo = form->findChild<QComboBox*>();
      combo->insertItem(0, u"inserted"_s);
      QVERIFY(speak(u"en"_s));
      QCOMPARE(combo->itemText(0), u"inserted"_s);
      combo->removeItem(0);
      QCOMPARE(textsOf(*form), kEnglish);
      form->findChild<QAction*>()->setText(u"overwritten"_s);
      orvanta::qt::awakeFromNib(form);
      QCOMPARE(textsOf(*form), kEnglish);
    }
  }

  static void bindsInCode() {
    QAction action;
    QLabel label;
    QVERIFY(localize(&action, "text", u"signin.title"_s));
    localize(&action, &QAction::setToolTip, u"order.title"_s);
    localize(&label, &QLabel::setText, u"order.total"_s);
    localize(
        &label, [&label](const QString& text) { label.setToolTip(u'<' + text + u'>'); },
        u"order.title"_s);
    QVERIFY(!localize(&label, "nothing", u"order.title"_s));
    QVERIFY(!localize(&label, "margin", u"order.title"_s));
    QVERIFY(!localize(nullptr, "text", u"order.title"_s));
    QVERIFY(!label.property("nothing").isValid());
    QCOMPARE(action.text(), u"Sign in"_s);
    QCOMPARE(label.toolTip(), u"<Your cart>"_s);
    QVERIFY(speak(u"de"_s));
    QCOMPARE(action.text(), u"Anmelden"_s);
    QCOMPARE(action.toolTip(), u"Ihr Warenkorb"_s);
    QCOMPARE(label.text(), u"Summe: 12,50 €"_s);
    QCOMPARE(label.toolTip(), u"<Ihr Warenkorb>"_s);

    // Replaces the earlier bindings. A null key leaves the text.
    localize(&action, "text", u"no.such.key"_s);
    localize(&action, &QAction::setToolTip, {});
    QSignalSpy changes(&action, &QAction::changed);
    QVERIFY(speak(u"fr"_s));
    QCOMPARE(action.text(), u"no.such.key"_s);
    QCOMPARE(action.toolTip(), u"Ihr Warenkorb"_s);
    QCOMPARE(changes.size(), 0);
  }

  static void bindsMessages() {
    QLabel label;
    const auto bind = [&label](const QVariant& count) {
      localize(&label, "text", u"order.items"_s, {{u"count"_s, count}});
    };
    localize(&label, &QLabel::setToolTip, u"{0}, {1} and {name}"_s,
             {{u"0"_s, 1.5}, {u"1"_s, QVariant()}, {u"name"_s, true}});
    bind(1);
    QCOMPARE(label.text(), u"1 item ordered"_s);
    bind(2U);
    QCOMPARE(label.text(), u"2 items ordered"_s);
    bind(qint64(0));
    QCOMPARE(label.text(), u"Nothing ordered yet"_s);
    QCOMPARE(label.toolTip().remove(QChar(0x2068)).remove(QChar(0x2069)), u"1.5, {1} and true"_s);
    QVERIFY(speak(u"ar"_s));
    QCOMPARE(label.text(), u"لم يُطلب أي صنف"_s);
  }

  // Setters that bind and destroy while bindings are applied.
  static void livesThroughChangesOfBindings() {
    bool isArmed = false;
    auto bound = std::make_unique<QLabel>();
    auto self = std::make_unique<QObject>();
    QLabel destroyer;
    QLabel late;
    QVERIFY(localize(bound.get(), "text", u"order.title"_s));
    const auto destroy = [&](const QString&) {
      if (isArmed) {
        bound.reset();
        self.reset();
        localize(&late, "text", u"signin.title"_s);
      }
    };
    localize(&destroyer, destroy, u"order.title"_s);
    localize(self.get(), destroy, u"order.title"_s);
    localize(self.get(), destroy, u"order.title"_s);
    isArmed = true;
    QVERIFY(speak(u"de"_s));
    QVERIFY(bound == nullptr && self == nullptr);
    QCOMPARE(late.text(), u"Anmelden"_s);
    QVERIFY(speak(u"en"_s));
    QCOMPARE(late.text(), u"Sign in"_s);
  }
};

static const orvanta::test::Registration<BindingsTest> registration;

#include "BindingsTest.moc"
