#include <QAbstractItemModel>
#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>

#include <orvanta/qt/platform/QtFonts.h>

#include "tests/qt/Support.h"
#include "tests/support/UpdateFixture.h"

using namespace Qt::StringLiterals;
using orvanta::test::speak;

namespace {

constexpr auto kScene = R"(
import QtQuick
import QtQuick.Controls
import Orvanta

ApplicationWindow {
  width: 400; height: 300; visible: true
  font.pointSize: 10
  LayoutMirroring.enabled: Orvanta.rightToLeft
  LayoutMirroring.childrenInherit: true
  property int count: 1
  property string languages: { let names = []; for (let i = 0; i < list.count; ++i) names.push(list.itemAt(i).line); return names.join() }

  Column {
    width: 300
    LocalizedLabel { objectName: "label"; text: "signin.title"; width: 300; accessibleName: "order.title"; property string spoken: Accessible.name }
    LocalizedLabel { objectName: "right"; text: "order.title"; width: 300; horizontalAlignment: Text.AlignRight; font.bold: true }
    LocalizedLabel { objectName: "keyed"; key: count > 1 ? "order.item.tea" : "no.such.key"; property string spoken: Accessible.name }
    LocalizedTextField { objectName: "field"; text: "signin.email.text"; width: 300 }
    LocalizedButton { objectName: "button"; text: "signin.button" }
    LocalizedButton { objectName: "ampersand"; key: "a & b" }
    LocalizedButton { objectName: "mnemonic"; key: "a &b"; mnemonics: true }
    Text { objectName: "text"; text: Orvanta.text("menu.language") + "/" + Orvanta.locales[0] }
    Text { objectName: "message"; text: Orvanta.message("order.items", {count: count}) }
    Text { objectName: "list"; text: Orvanta.message("{0}-{1}", [1, 2]) }
    Text { objectName: "font"; font: Orvanta.font(Qt.font({family: "DejaVu Sans", pointSize: 12})) }
    Repeater { id: list; model: Orvanta.languages; Item { property string line: identifier + ":" + name + (downloaded ? "!" : "") } }
  }
}
)";

// Objects and their properties, in English, German and Arabic.
constexpr std::tuple<const char*, const char*, const char16_t*, const char16_t*, const char16_t*>
    kRows[] = {
        {"label", "text", u"Sign in", u"Anmelden", u"تسجيل الدخول"},
        {"label", "spoken", u"Your cart", u"Ihr Warenkorb", u"سلتك"},
        {"label", "effectiveHorizontalAlignment", u"AlignLeft", u"AlignLeft", u"AlignRight"},
        {"right", "effectiveHorizontalAlignment", u"AlignRight", u"AlignRight", u"AlignLeft"},
        {"keyed", "text", u"no.such.key", u"no.such.key", u"no.such.key"},
        {"keyed", "spoken", u"no.such.key", u"no.such.key", u"no.such.key"},
        {"field", "text", u"name@example.com", u"name@beispiel.de", u"name@example.com"},
        {"field", "effectiveHorizontalAlignment", u"AlignLeft", u"AlignLeft", u"AlignRight"},
        {"button", "text", u"Sign in", u"Anmelden", u"دخول"},
        {"ampersand", "text", u"a && b", u"a && b", u"a && b"},
        {"mnemonic", "text", u"a &b", u"a &b", u"a &b"},
        {"text", "text", u"Language/en", u"Sprache/de", u"اللغة/ar"},
        {"message", "text", u"1 item ordered", u"1 Artikel bestellt", u"طُلب صنف واحد"},
        {"list", "text", u"1-2", u"1-2", u"1-2"},
};

}  // namespace

class QuickTest : public QObject {
  Q_OBJECT

  QQmlApplicationEngine engine_;

  QObject* root() const { return engine_.rootObjects().value(0); }
  QObject* find(const char* name) const {
    return root()->findChild<QObject*>(QString::fromLatin1(name));
  }
  QFont fontOf(const char* name) const { return find(name)->property("font").value<QFont>(); }

 private slots:
  void init() {
    QVERIFY(speak(u"en"_s));
    if (root() == nullptr) {
      engine_.loadData(kScene);
    }
    QVERIFY(root() != nullptr);
    root()->setProperty("count", 1);
  }

  void followsTheLanguage() {
    for (const char16_t* language : {u"en", u"ar", u"de", u"ar", u"en"}) {
      const QString spoken = QString::fromUtf16(language);
      QVERIFY(speak(spoken));
      for (const auto& [object, property, english, german, arabic] : kRows) {
        const QString text = find(object)->property(property).toString();
        const char16_t* expected = spoken == u"en" ? english : spoken == u"ar" ? arabic : german;
        const QString name = spoken + u' ' + QLatin1String(object) + u'.' + QLatin1String(property);
        QVERIFY2(text == QStringView(expected), qPrintable(name + u": "_s + text));
      }
    }
  }

  void followsKeysAndArguments() {
    QVERIFY(speak(u"de"_s));
    root()->setProperty("count", 2);
    QCOMPARE(find("keyed")->property("text"), u"Tee"_s);
    QCOMPARE(find("keyed")->property("key"), u"order.item.tea"_s);
    QCOMPARE(find("message")->property("text"), u"2 Artikel bestellt"_s);
    find("field")->setProperty("key", QString());
    find("field")->setProperty("text", u"typed"_s);
    QVERIFY(speak(u"ar"_s));
    QCOMPARE(find("field")->property("text"), u"typed"_s);
  }

  void exchangesFonts() {
    const QFont designed = fontOf("label");
    QVERIFY(speak(u"ar"_s));
    QCOMPARE(fontOf("label").families().value(0), u"CorbetSansKufiArabic"_s);
    QCOMPARE(fontOf("button").families().value(0), u"CorbetSansKufiArabic"_s);
    QCOMPARE(fontOf("font").families().value(0), u"CorbetSansKufiArabic"_s);
    QCOMPARE(fontOf("label").pointSizeF(), 10);
    QVERIFY(fontOf("right").bold());
    // What is set meanwhile stays, what is inherited is inherited afterwards.
    QFont larger = fontOf("right");
    larger.setPointSize(20);
    find("right")->setProperty("font", larger);
    QVERIFY(speak(u"en"_s));
    QCOMPARE(fontOf("label"), designed);
    QCOMPARE(fontOf("right").pointSizeF(), 20);
    QCOMPARE(fontOf("right").families(), designed.families());
    QCOMPARE(fontOf("font").pointSizeF(), 12);
    QFont inherited;
    inherited.setPointSize(14);
    root()->setProperty("font", inherited);
    QCOMPARE(fontOf("label").pointSizeF(), 14);
    QCOMPARE(fontOf("right").pointSizeF(), 20);
  }

  void listsTheLanguages() {
    auto* const orvanta =
        engine_.singletonInstance<QObject*>(qmlTypeId("Orvanta", 1, 0, "Orvanta"));
    QVERIFY(root()->property("languages").toString().contains(u"de:Deutsch,"_s));
    orvanta::Localizer::sharedLocalizer().stringCache().updateStrings(
        orvanta::test::payloadOf({{"nl", {{"signin.title", "Aanmelden"}}}}), "main", "app");
    QMetaObject::invokeMethod(orvanta, "refreshLanguages");
    QVERIFY(root()->property("languages").toString().contains(u"nl:Nederlands!,"_s));
    QMetaObject::invokeMethod(orvanta, "setLanguage", Q_ARG(QString, u"nl"_s));
    QTRY_COMPARE(find("label")->property("text"), u"Aanmelden"_s);
  }
};

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("QT_QUICK_BACKEND", "software");
  const orvanta::test::DemoPlatform platform;
  const QGuiApplication application(argc, argv);
  QGuiApplication::setFont(QFont(u"DejaVu Sans"_s, 11));
  QuickTest test;
  return QTest::qExec(&test, argc, argv);
}

#include "QuickTest.moc"
