#include <QApplication>
#include <QFontInfo>
#include <QTest>
#include <QVBoxLayout>
#include <functional>

#include <orvanta/qt/AwakeFromNib.h>
#include <orvanta/qt/UILocalizedButton.h>
#include <orvanta/qt/UILocalizedLabel.h>
#include <orvanta/qt/UILocalizedTextField.h>

#include "Support.h"

using namespace Qt::StringLiterals;
using orvanta::test::speak;

namespace {

struct Look {
  QString family;
  double size;
  bool isBold;
};

QFont font(const std::function<void(QFont&)>& set) {
  QFont made;
  made.setResolveMask(0);
  set(made);
  return made;
}

using Step = std::function<void(QWidget& window, QWidget& widget)>;

// The look in a language without a font of its own, before and after a change under way.
struct Row {
  const char* name;
  Step design;
  Look designed;
  Step change;
  Look changed;
};

void nothing(QWidget& /*window*/, QWidget& /*widget*/) {}

Step sheet(const QString& text) {
  return [text](QWidget&, QWidget&) { qApp->setStyleSheet(text); };
}

Step windowSheet(const QString& text) {
  return [text](QWidget& window, QWidget&) { window.setStyleSheet(text); };
}

Step windowFont(const std::function<void(QFont&)>& set) {
  return [set](QWidget& window, QWidget&) { window.setFont(font(set)); };
}

Step ownFont(const std::function<void(QFont&)>& set) {
  return [set](QWidget&, QWidget& widget) { widget.setFont(font(set)); };
}

const auto kSize20 = [](QFont& font) { font.setPointSize(20); };
const auto kSize25 = [](QFont& font) { font.setPointSize(25); };
const auto kBold = [](QFont& font) { font.setBold(true); };
const auto kSerif = [](QFont& font) { font.setFamilies({u"DejaVu Serif"_s}); };

const QString kSans = u"DejaVu Sans"_s;

const std::vector<Row>& rows() {
  static const std::vector<Row> all = {
      {"the application's font",
       nothing,
       {kSans, 11, false},
       [](QWidget&, QWidget&) { QApplication::setFont(QFont(u"DejaVu Serif"_s, 14)); },
       {u"DejaVu Serif"_s, 14, false}},
      {"a window's size",
       windowFont(kSize20),
       {kSans, 20, false},
       windowFont(kSize25),
       {kSans, 25, false}},
      {"a window's weight", nothing, {kSans, 11, false}, windowFont(kBold), {kSans, 11, true}},
      {"an own weight, a window's size",
       [](QWidget& window, QWidget& widget) {
         window.setFont(font(kSize20));
         widget.setFont(font(kBold));
       },
       {kSans, 20, true},
       windowFont(kSize25),
       {kSans, 25, true}},
      {"an own size",
       ownFont(kSize20),
       {kSans, 20, false},
       windowFont(kSize25),
       {kSans, 20, false}},
      {"a sheet on the application",
       sheet(u"*{font-size:20pt;font-weight:bold}"_s),
       {kSans, 20, true},
       sheet(u"*{font-size:25pt}"_s),
       {kSans, 25, false}},
      {"a sheet that names a family",
       sheet(u"*{font-size:20pt;font-family:'DejaVu Serif'}"_s),
       {u"DejaVu Serif"_s, 20, false},
       sheet({}),
       {kSans, 11, false}},
      {"a sheet that comes later",
       nothing,
       {kSans, 11, false},
       sheet(u"*{font-size:20pt;font-weight:bold}"_s),
       {kSans, 20, true}},
      {"an own weight, a sheet's size",
       [](QWidget&, QWidget& widget) {
         widget.setFont(font(kBold));
         qApp->setStyleSheet(u"*{font-size:20pt}"_s);
       },
       {kSans, 20, true},
       sheet({}),
       {kSans, 11, true}},
      {"an own size, a sheet's size",
       [](QWidget&, QWidget& widget) {
         widget.setFont(font(kSize25));
         qApp->setStyleSheet(u"*{font-size:20pt}"_s);
       },
       {kSans, 20, false},
       sheet({}),
       {kSans, 25, false}},
      {"a sheet without fonts",
       sheet(u"*{color:black}"_s),
       {kSans, 11, false},
       sheet(u"*{color:red}"_s),
       {kSans, 11, false}},
      {"a sheet on the window",
       windowSheet(u"*{font-size:20pt;font-weight:bold}"_s),
       {kSans, 20, true},
       windowSheet(u"*{font-size:25pt}"_s),
       {kSans, 25, false}},
      {"an own weight, a sheet on the window",
       [](QWidget& window, QWidget& widget) {
         widget.setFont(font(kBold));
         window.setStyleSheet(u"*{font-size:20pt}"_s);
       },
       {kSans, 20, true},
       windowSheet({}),
       {kSans, 11, true}},
      {"a font set later", ownFont(kBold), {kSans, 11, true}, ownFont(kSize20), {kSans, 20, false}},
      {"a family set later",
       ownFont(kBold),
       {kSans, 11, true},
       ownFont(kSerif),
       {u"DejaVu Serif"_s, 11, false}},
      {"the shown font with another size",
       ownFont(kBold),
       {kSans, 11, true},
       [](QWidget&, QWidget& widget) {
         QFont larger = widget.font();
         larger.setPointSize(20);
         widget.setFont(larger);
       },
       {kSans, 20, true}},
  };
  return all;
}

QString describe(const QString& family, double size, bool isBold) {
  return QStringLiteral("%1 %2%3").arg(family).arg(qRound(size)).arg(isBold ? u" bold"_s : u""_s);
}

QString shownLook(const QWidget& widget) {
  const QFontInfo shown(widget.font());
  return describe(shown.family(), shown.pointSizeF(), shown.bold());
}

QString wantedLook(const Look& base, const QString& language) {
  const QString face = base.isBold ? u"CorbetSansKufiArabic-Bold"_s : u"CorbetSansKufiArabic"_s;
  return describe(language == u"ar"_s ? face : base.family, base.size, base.isBold);
}

}  // namespace

class FontsTest : public QObject {
  Q_OBJECT

 private slots:
  void cleanup() {
    qApp->setStyleSheet({});
    QApplication::setFont(QFont(kSans, 11));
  }

  void followsTheBaseInEveryLanguage_data() {
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("first");
    for (std::size_t at = 0; at < rows().size(); ++at) {
      for (const QString& first : {u"en"_s, u"ar"_s}) {
        QTest::addRow("%s, changed in %s", rows()[at].name, qPrintable(first)) << int(at) << first;
      }
    }
  }

  // Every row with each kind of widget, localized before and after it is shown.
  void followsTheBaseInEveryLanguage() {
    QFETCH(int, index);
    QFETCH(QString, first);
    const Row& row = rows()[std::size_t(index)];
    for (const bool shownBefore : {false, true}) {
      const QString second = first == u"ar"_s ? u"en"_s : u"ar"_s;
      const QString wanted =
          QStringList{wantedLook(row.designed, first), wantedLook(row.designed, second),
                      wantedLook(row.changed, first), wantedLook(row.changed, second),
                      wantedLook(row.changed, first)}
              .join(u", "_s);
      QCOMPARE(looks<orvanta::qt::UILocalizedLabel>(row, first, second, shownBefore), wanted);
      QCOMPARE(looks<orvanta::qt::UILocalizedTextField>(row, first, second, shownBefore), wanted);
      QCOMPARE(looks<orvanta::qt::UILocalizedButton>(row, first, second, shownBefore), wanted);
    }
  }

  // What follows is no slot. NOLINTNEXTLINE(readability-redundant-access-specifiers)
 private:
  template <typename Widget>
  QString looks(const Row& row, const QString& first, const QString& second, bool shownBefore) {
    cleanup();
    QWidget window;
    auto* widget = new Widget(&window);
    const auto lookIn = [widget](const QString& language) {
      return speak(language) ? shownLook(*widget) : u"unheard"_s;
    };
    if (!speak(first)) {
      return u"unheard"_s;
    }
    widget->setText(u"signin.title"_s);
    row.design(window, *widget);
    if (shownBefore) {
      window.show();
    }
    orvanta::qt::awakeFromNib(&window);
    window.show();
    QStringList seen = {shownLook(*widget)};
    seen << lookIn(second);
    static_cast<void>(speak(first));
    row.change(window, *widget);
    QCoreApplication::processEvents();
    seen << shownLook(*widget);
    seen << lookIn(second);
    seen << lookIn(first);
    return seen.join(u", "_s);
  }
};

std::unique_ptr<QObject> orvanta::test::makeFontsTest() {
  return std::make_unique<FontsTest>();
}

#include "FontsTest.moc"
