#include "OrderWindowTest.h"

#include <QAction>
#include <QGuiApplication>
#include <QMenu>
#include <QRawFont>
#include <QTest>
#include <QTimer>
#include <atomic>
#include <thread>

#include <orvanta/cache/OVStringCache.h>
#include <orvanta/platform/qt/UILocalizedButton.h>
#include <orvanta/platform/qt/UILocalizedLabel.h>
#include <orvanta/platform/qt/UILocalizedTextField.h>

#include "OrderWindow.h"
#include "Support.h"

using orvanta::qt::UILocalizedButton;
using orvanta::qt::UILocalizedLabel;
using orvanta::qt::UILocalizedTextField;
using orvanta::test::speak;

OrderWindowTest::OrderWindowTest() = default;
OrderWindowTest::~OrderWindowTest() = default;

template <typename Widget>
Widget* OrderWindowTest::find(const char* name) const {
  return window_->findChild<Widget*>(QString::fromLatin1(name));
}

void OrderWindowTest::init() {
  QVERIFY(speak(QStringLiteral("en")));
  window_ = std::make_unique<demo::OrderWindow>(QStringLiteral(DEMO_DOWNLOADS "/it.json"));
  window_->show();
  QVERIFY(QTest::qWaitForWindowExposed(window_.get()));
}

void OrderWindowTest::speaksTheLanguageThatIsClicked() {
  auto* button = find<UILocalizedButton>("languageButton");
  bool clicked = false;
  QTimer::singleShot(0, button, [&] {
    for (QAction* action : button->menu()->actions()) {
      if (action->text() == QStringLiteral("العربية")) {
        clicked = true;
        QTest::mouseClick(button->menu(), Qt::LeftButton, {},
                          button->menu()->actionGeometry(action).center());
        return;
      }
    }
    button->menu()->close();
  });
  QTest::mouseClick(button, Qt::LeftButton);
  QVERIFY(clicked);
  auto* title = find<UILocalizedLabel>("signInTitle");
  QTRY_COMPARE(title->text(), QStringLiteral("تسجيل الدخول"));
  QCOMPARE(QGuiApplication::layoutDirection(), Qt::RightToLeft);
  QCOMPARE(orvanta::test::inkSide(*title), QStringLiteral("right"));
  QCOMPARE(QRawFont::fromFont(title->font(), QFontDatabase::Arabic).familyName(),
           QStringLiteral("CorbetSansKufiArabic-Bold"));
  QCOMPARE(find<UILocalizedButton>("signInButton")->accessibleName(),
           QStringLiteral("تسجيل الدخول إلى حسابك"));
  QCOMPARE(find<UILocalizedTextField>("passwordField")->accessibleName(),
           QStringLiteral("كلمة المرور"));
  QVERIFY(find<UILocalizedLabel>("summaryLabel")->text().contains(QChar(0x60C)));
}

void OrderWindowTest::cutsNothingOffInAnyLanguage() {
  auto& cache = orvanta::Localizer::sharedLocalizer().stringCache();
  const orvanta::OVLocaleDictionary languages = cache.availableLanguages();
  QVERIFY(languages.entries().size() >= 14);
  for (const auto& [language, record] : languages) {
    QVERIFY(speak(orvanta::qt::toQString(language)));
    for (QWidget* widget : window_->findChildren<QWidget*>()) {
      const auto* label = qobject_cast<UILocalizedLabel*>(widget);
      const bool wraps = label != nullptr && label->wordWrap();
      if (label == nullptr && qobject_cast<UILocalizedButton*>(widget) == nullptr) {
        continue;
      }
      const QSize needed =
          wraps ? QSize(0, label->heightForWidth(label->width())) : widget->sizeHint();
      QVERIFY2(needed.width() <= widget->width() && needed.height() <= widget->height(),
               qPrintable(orvanta::qt::toQString(language) + ' ' + widget->objectName()));
    }
  }
}

void OrderWindowTest::keepsWhatWasTyped() {
  auto* email = find<UILocalizedTextField>("emailField");
  QCOMPARE(email->text(), QStringLiteral("name@example.com"));
  QVERIFY(speak(QStringLiteral("fr")));
  QCOMPARE(email->text(), QStringLiteral("nom@exemple.fr"));
  email->selectAll();
  QTest::keyClicks(email, QStringLiteral("me@here"));
  QVERIFY(speak(QStringLiteral("de")));
  QCOMPARE(email->text(), QStringLiteral("me@here"));
  QCOMPARE(email->accessibleName(), QStringLiteral("E-Mail-Adresse"));

  QTest::mouseClick(find<UILocalizedButton>("placeButton"), Qt::LeftButton);
  QCOMPARE(find<UILocalizedLabel>("statusLabel")->control().originalKey().str(),
           std::string("order.placed"));
}

void OrderWindowTest::refreshesFromAWorkerThread() {
  auto* title = find<UILocalizedLabel>("orderTitle");
  title->setText(QStringLiteral("stale"));
  std::atomic<bool> ended = false;
  std::thread worker([&] {
    title->control().refreshStringsFromLocale("en");
    ended = true;
  });
  const bool refreshed = QTest::qWaitFor([&] { return ended.load(); });
  QVERIFY(refreshed);
  worker.join();
  QCOMPARE(title->text(), QStringLiteral("Your cart"));
}

void OrderWindowTest::downloadsALanguageAndSpeaksIt() {
  QTest::mouseClick(find<UILocalizedButton>("downloadButton"), Qt::LeftButton);
  QTRY_COMPARE(find<UILocalizedLabel>("signInTitle")->text(), QStringLiteral("Accedi"));
  QVERIFY(find<UILocalizedLabel>("statusLabel")
              ->text()
              .startsWith(QStringLiteral("Le nuove lingue sono pronte")));
  const QList<QAction*> actions = find<UILocalizedButton>("languageButton")->menu()->actions();
  QVERIFY(std::any_of(actions.begin(), actions.end(), [](const QAction* action) {
    return action->text() == QStringLiteral("Italiano") && action->isChecked();
  }));
}
