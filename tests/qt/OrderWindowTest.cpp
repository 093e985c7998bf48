#include <QAction>
#include <QGuiApplication>
#include <QMenu>
#include <QRawFont>
#include <QTest>
#include <QTimer>
#include <memory>

#include <orvanta/qt/UILocalizedButton.h>
#include <orvanta/qt/UILocalizedLabel.h>
#include <orvanta/qt/UILocalizedTextField.h>

#include "OrderWindow.h"
#include "Support.h"

using namespace Qt::StringLiterals;
using orvanta::qt::UILocalizedButton;
using orvanta::qt::UILocalizedLabel;
using orvanta::qt::UILocalizedTextField;
using orvanta::test::speak;

class OrderWindowTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    QVERIFY(speak(u"en"_s));
    window_ = std::make_unique<demo::OrderWindow>(QStringLiteral(DEMO_DOWNLOADS "/it.json"));
    window_->show();
    QVERIFY(QTest::qWaitForWindowExposed(window_.get()));
  }

  void speaksTheLanguageThatIsClicked() {
    auto* button = find<UILocalizedButton>("languageButton");
    bool clicked = false;
    QTimer::singleShot(0, button, [&] {
      for (QAction* action : button->menu()->actions()) {
        if (action->text() == u"العربية"_s) {
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
    QTRY_COMPARE(title->text(), u"تسجيل الدخول"_s);
    QCOMPARE(QGuiApplication::layoutDirection(), Qt::RightToLeft);
    QCOMPARE(orvanta::test::inkSide(*title), u"right"_s);
    QCOMPARE(QRawFont::fromFont(title->font(), QFontDatabase::Arabic).familyName(),
             u"CorbetSansKufiArabic-Bold"_s);
    QCOMPARE(find<UILocalizedButton>("signInButton")->accessibleName(),
             u"تسجيل الدخول إلى حسابك"_s);
    QCOMPARE(find<UILocalizedTextField>("passwordField")->accessibleName(), u"كلمة المرور"_s);
    QVERIFY(find<UILocalizedLabel>("summaryLabel")->text().contains(QChar(0x60C)));
  }

  void keepsWhatWasTyped() {
    auto* email = find<UILocalizedTextField>("emailField");
    QCOMPARE(email->text(), u"name@example.com"_s);
    QVERIFY(speak(u"fr"_s));
    QCOMPARE(email->text(), u"nom@exemple.fr"_s);
    email->selectAll();
    QTest::keyClicks(email, u"me@here"_s);
    QVERIFY(speak(u"de"_s));
    QCOMPARE(email->text(), u"me@here"_s);
    QCOMPARE(email->accessibleName(), u"E-Mail-Adresse"_s);
    QCOMPARE(window_->windowTitle(), u"Ihr Warenkorb"_s);
    QVERIFY(email->toolTip() == email->accessibleDescription() && !email->toolTip().isEmpty());

    QTest::mouseClick(find<UILocalizedButton>("placeButton"), Qt::LeftButton);
    QCOMPARE(find<UILocalizedLabel>("statusLabel")->control().originalKey().str(),
             std::string("order.placed"));
  }

  void countsInEveryPluralForm() {
    QVERIFY(speak(u"ar"_s));
    const std::pair<int, const char16_t*> rows[] = {{0, u"لم يُطلب أي صنف"}, {1, u"طُلب صنف واحد"},
                                                    {2, u"طُلب صنفان"},      {3, u"طُلبت ٣ أصناف"},
                                                    {11, u"طُلب ١١ صنفًا"},   {100, u"طُلب ١٠٠ صنف"}};
    for (const auto& [count, line] : rows) {
      window_->setItemCount(count);
      QCOMPARE(find<UILocalizedLabel>("summaryLabel")->text().section(u'\n', 1), QStringView(line));
    }
  }

  void downloadsALanguageToChoose() {
    QTest::mouseClick(find<UILocalizedButton>("downloadButton"), Qt::LeftButton);
    QCOMPARE(find<UILocalizedLabel>("statusLabel")->text(),
             u"New languages are ready. Choose one from the menu."_s);
    QCoreApplication::processEvents();
    QCOMPARE(find<UILocalizedLabel>("signInTitle")->text(), u"Sign in"_s);
    for (QAction* action : find<UILocalizedButton>("languageButton")->menu()->actions()) {
      if (action->text() == u"Italiano"_s) {
        action->trigger();
        break;
      }
    }
    QTRY_COMPARE(find<UILocalizedLabel>("signInTitle")->text(), u"Accedi"_s);
  }

  // What follows is no slot. NOLINTNEXTLINE(readability-redundant-access-specifiers)
 private:
  template <typename Widget>
  Widget* find(const char* name) const {
    return window_->findChild<Widget*>(QString::fromLatin1(name));
  }

  std::unique_ptr<demo::OrderWindow> window_;
};

static const orvanta::test::Registration<OrderWindowTest> registration;

#include "OrderWindowTest.moc"
