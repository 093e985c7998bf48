#include <QApplication>
#include <QLabel>
#include <QTest>
#include <QThread>
#include <atomic>

#include <orvanta/cache/OVStringCache.h>
#include <orvanta/qt/LocaleFollower.h>
#include <orvanta/qt/QtTextsTranslator.h>
#include <orvanta/qt/Translator.h>

#include "Support.h"
#include "tests/support/UpdateFixture.h"

using namespace Qt::StringLiterals;
using orvanta::test::speak;

namespace {

// What Qt asks next.
class Everything : public QTranslator {
 public:
  QString translate(const char*, const char*, const char*, int) const override { return u"next"_s; }
  bool isEmpty() const override { return false; }
};

// An application's window as it is without the library.
class StockLabel : public QLabel {
  Q_OBJECT

 public:
  int changes = 0;
  void retranslate() { setText(tr("Save &as…") + qtTrId("order.item.tea")); }
  void changeEvent(QEvent* event) override {
    if (event->type() == QEvent::LanguageChange) {
      ++changes;
      retranslate();
    }
    QLabel::changeEvent(event);
  }
};

constexpr std::tuple<const char*, int, const char16_t*, const char16_t*> kRows[] = {
    {"Save &as…", -1, u"Opslaan &als…", u"next"}, {"{braces}", -1, u"'{}'", u"next"},
    {"%n file(s)", 1, u"1 bestand", u"next"},     {"%n file(s)", 2, u"2 bestanden van 2", u"next"},
    {"no plural", 3, u"drie", u"next"},           {"order.item.tea", -1, u"Tea", u"Tea"},
    {"nobody knows", -1, u"next", u"next"},
};

void downloadDutch() {
  orvanta::Localizer::sharedLocalizer().stringCache().updateStrings(
      orvanta::test::payloadOf(
          {{"nl",
            {{"Save &as…", "Opslaan &als…"},
             {"{braces}", "'{}'"},
             {"no plural", "drie"},
             {"%n file(s)", "{n, plural, one {# bestand} other {# bestanden van %n}}"}}}}),
      "main", "app");
}

}  // namespace

class TranslatorTest : public QObject {
  Q_OBJECT

 private slots:
  static void initTestCase() { downloadDutch(); }
  static void init() {
    QApplication::setLayoutDirection(Qt::LayoutDirectionAuto);
    QVERIFY(speak(u"en"_s));
  }

  static void answersQt() {
    Everything next;
    QCoreApplication::installTranslator(&next);
    orvanta::qt::Translator translator;
    QCoreApplication::installTranslator(&translator);
    for (const bool isDutch : {true, false}) {
      QVERIFY(speak(isDutch ? u"nl"_s : u"en"_s));
      for (const auto& [source, n, dutch, english] : kRows) {
        const QString text = QCoreApplication::translate("Menu", source, "as a verb", n);
        QVERIFY2(text == QStringView(isDutch ? dutch : english),
                 qPrintable(QString::fromUtf8(source) + u": "_s + text));
      }
    }
  }

  static void retranslatesAStockWindowOnce() {
    orvanta::qt::Translator translator;
    QCoreApplication::installTranslator(&translator);
    StockLabel window;
    window.show();
    QCoreApplication::processEvents();
    window.changes = 0;
    QVERIFY(speak(u"nl"_s));
    QCOMPARE(window.text(), u"Opslaan &als…Tea"_s);
    QCOMPARE(window.changes, 1);
    QVERIFY(speak(u"ar"_s));
    QCOMPARE(window.text(), u"Save &as…شاي"_s);
    QCOMPARE(QApplication::layoutDirection(), Qt::RightToLeft);
    QVERIFY(speak(u"en"_s));
    QCOMPARE(QApplication::layoutDirection(), Qt::LeftToRight);
    QCOMPARE(window.changes, 3);
  }

  static void bringsQtsOwnTextsAndNumbersAlong() {
    const QLocale before;
    orvanta::qt::QtTextsTranslator qtTexts;
    const orvanta::qt::QtTextsTranslator nothing(u"/nowhere"_s);
    QCoreApplication::installTranslator(&qtTexts);
    const orvanta::qt::LocaleFollower follower;
    for (const auto& [language, cancel, number] :
         {std::tuple(u"de"_s, u"Abbrechen"_s, u"1.234,5"_s),
          {u"zh-Hans"_s, u"取消"_s, u"1,234.5"_s},
          {u"nl"_s, u"Annuleren"_s, u"1.234,5"_s},
          {u"en"_s, u"Cancel"_s, u"1,234.5"_s}}) {
      QVERIFY(speak(language));
      QCOMPARE(QCoreApplication::translate("QPlatformTheme", "Cancel"), cancel);
      QCOMPARE(QLocale().toString(1234.5), number);
      QVERIFY(nothing.translate("QPlatformTheme", "Cancel").isNull());
    }
    QVERIFY(speak(u"he"_s));
    QCOMPARE(QApplication::layoutDirection(), Qt::RightToLeft);
    QLocale::setDefault(before);
  }

  static void takesAnotherMapping() {
    orvanta::qt::Translator translator(
        [](const char* context, const char* source, const char* why) {
          return why == nullptr ? std::string() : std::string(context) + '.' + source + '.' + why;
        });
    QCOMPARE(translator.translate("order", "item", "tea"), u"Tea"_s);
    QVERIFY(translator.translate("order", "order.item.tea").isNull());
    QVERIFY(translator.translate(nullptr, nullptr).isNull());
    QCOMPARE(translator.translate("QGuiApplication", "QT_LAYOUT_DIRECTION"), u"LTR"_s);
  }

  static void translatesOnOtherThreads() {
    orvanta::qt::Translator translator;
    std::atomic<bool> stop = false;
    std::atomic<int> wrong = 0;
    std::atomic<int> asked = 0;
    const auto ask = [&] {
      while (!stop) {
        const QString text = translator.translate("", "%n file(s)", nullptr, 1) +
                             translator.translate("", "order.item.tea");
        wrong += text != u"Tea"_s && text != u"1 bestandTea"_s && text != u"Tee"_s &&
                 text != u"1 bestandTee"_s;
        ++asked;
      }
    };
    const std::unique_ptr<QThread> threads[] = {std::unique_ptr<QThread>(QThread::create(ask)),
                                                std::unique_ptr<QThread>(QThread::create(ask))};
    for (const auto& thread : threads) {
      thread->start();
    }
    QTRY_VERIFY(asked > 0);
    for (int change = 0; change < 100; ++change) {
      QVERIFY(speak(change % 2 == 0 ? u"nl"_s : u"de"_s));
    }
    stop = true;
    for (const auto& thread : threads) {
      thread->wait();
    }
    QCOMPARE(wrong.load(), 0);
  }
};

static const orvanta::test::Registration<TranslatorTest> registration;

#include "TranslatorTest.moc"
