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

using Step = std::function<void(QWidget& window, QWidget& widget)>;
using FontChange = std::function<void(QFont&)>;

// The expected font in a language without its own font, before and after a later change: family,
// size, and "bold" or nothing.
struct Row {
  const char* name;
  Step design;
  QString designed;
  Step change;
  QString changed;
};

Step nothing() {
  return [](QWidget& /*window*/, QWidget& /*widget*/) {};
}

Step both(const Step& first, const Step& second) {
  return [first, second](QWidget& window, QWidget& widget) {
    first(window, widget);
    second(window, widget);
  };
}

Step sheet(const QString& text) {
  return [text](QWidget&, QWidget&) { qApp->setStyleSheet(text); };
}

Step windowSheet(const QString& text) {
  return [text](QWidget& window, QWidget&) { window.setStyleSheet(text); };
}

QFont fontWith(const FontChange& change) {
  QFont font;
  font.setResolveMask(0);
  change(font);
  return font;
}

Step windowFont(const FontChange& change) {
  return [change](QWidget& window, QWidget&) { window.setFont(fontWith(change)); };
}

Step ownFont(const FontChange& change) {
  return [change](QWidget&, QWidget& widget) { widget.setFont(fontWith(change)); };
}

const auto kSize20 = [](QFont& font) { font.setPointSize(20); };
const auto kSize25 = [](QFont& font) { font.setPointSize(25); };
const auto kBold = [](QFont& font) { font.setBold(true); };
const auto kSerif = [](QFont& font) { font.setFamilies({u"DejaVu Serif"_s}); };

const QString kPlain = u"Sans 11"_s;
const QString kPlainBold = u"Sans 11 bold"_s;
const QString kLarge = u"Sans 20"_s;
const QString kLargeBold = u"Sans 20 bold"_s;
const QString kLarger = u"Sans 25"_s;

const QString kSheet20 = u"*{font-size:20pt}"_s;
const QString kSheet25 = u"*{font-size:25pt}"_s;
const QString kSheet20Bold = u"*{font-size:20pt;font-weight:bold}"_s;
const QString kSheetSerif = u"*{font-size:20pt;font-family:'DejaVu Serif'}"_s;

void setApplicationSerif(QWidget& /*window*/, QWidget& /*widget*/) {
  QApplication::setFont(QFont(u"DejaVu Serif"_s, 14));
}

void enlargeShownFont(QWidget& /*window*/, QWidget& widget) {
  QFont larger = widget.font();
  larger.setPointSize(20);
  widget.setFont(larger);
}

const std::vector<Row>& rows() {
  static const std::vector<Row> all = {
      {"the application's font", nothing(), kPlain, setApplicationSerif, u"Serif 14"_s},
      {"a window's size", windowFont(kSize20), kLarge, windowFont(kSize25), kLarger},
      {"a window's weight", nothing(), kPlain, windowFont(kBold), kPlainBold},
      {"an own weight, a window's size", both(windowFont(kSize20), ownFont(kBold)), kLargeBold,
       windowFont(kSize25), u"Sans 25 bold"_s},
      {"an own size", ownFont(kSize20), kLarge, windowFont(kSize25), kLarge},
      {"a sheet on the application", sheet(kSheet20Bold), kLargeBold, sheet(kSheet25), kLarger},
      {"a sheet that names a family", sheet(kSheetSerif), u"Serif 20"_s, sheet({}), kPlain},
      {"a sheet that comes later", nothing(), kPlain, sheet(kSheet20Bold), kLargeBold},
      {"an own weight, a sheet's size", both(ownFont(kBold), sheet(kSheet20)), kLargeBold,
       sheet({}), kPlainBold},
      {"an own size, a sheet's size", both(ownFont(kSize25), sheet(kSheet20)), kLarge, sheet({}),
       kLarger},
      {"a sheet without fonts", sheet(u"*{color:black}"_s), kPlain, sheet(u"*{color:red}"_s),
       kPlain},
      {"a sheet on the window", windowSheet(kSheet20Bold), kLargeBold, windowSheet(kSheet25),
       kLarger},
      {"an own weight, a sheet on the window", both(ownFont(kBold), windowSheet(kSheet20)),
       kLargeBold, windowSheet({}), kPlainBold},
      {"a font set later", ownFont(kBold), kPlainBold, ownFont(kSize20), kLarge},
      {"a family set later", ownFont(kBold), kPlainBold, ownFont(kSerif), u"Serif 11"_s},
      {"the shown font with another size", ownFont(kBold), kPlainBold, enlargeShownFont,
       kLargeBold},
  };
  return all;
}

QString shownLook(const QWidget& widget) {
  const QFontInfo shown(widget.font());
  return u"%1 %2%3"_s.arg(shown.family())
      .arg(qRound(shown.pointSizeF()))
      .arg(shown.bold() ? u" bold"_s : u""_s);
}

QString wantedLook(const QString& base, const QString& language) {
  if (language != u"ar"_s) {
    return u"DejaVu "_s + base;
  }
  const QString face = base.endsWith(u" bold"_s) ? u"-Bold "_s : u" "_s;
  return u"CorbetSansKufiArabic"_s + face + base.section(u' ', 1);
}

}  // namespace

class FontsTest : public QObject {
  Q_OBJECT

 private slots:
  void cleanup() {
    qApp->setStyleSheet({});
    QApplication::setFont(QFont(u"DejaVu Sans"_s, 11));
  }

  // Every row with each kind of widget, localized before and after it is shown.
  void followsTheBaseInEveryLanguage() {
    for (const Row& row : rows()) {
      for (const auto& [first, second] : {std::pair(u"en"_s, u"ar"_s), {u"ar"_s, u"en"_s}}) {
        const QString wanted =
            QStringList{wantedLook(row.designed, first), wantedLook(row.designed, second),
                        wantedLook(row.changed, first), wantedLook(row.changed, second),
                        wantedLook(row.changed, first)}
                .join(u", "_s);
        for (const bool shownBefore : {false, true}) {
          for (const QString& seen :
               {looks<orvanta::qt::UILocalizedLabel>(row, first, second, shownBefore),
                looks<orvanta::qt::UILocalizedTextField>(row, first, second, shownBefore),
                looks<orvanta::qt::UILocalizedButton>(row, first, second, shownBefore)}) {
            QVERIFY2(seen == wanted, qPrintable(QString(row.name) + u", changed in "_s + first +
                                                u": "_s + seen + u", not "_s + wanted));
          }
        }
      }
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

static const orvanta::test::Registration<FontsTest> registration;

#include "FontsTest.moc"
