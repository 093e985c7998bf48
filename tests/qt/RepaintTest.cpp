#include <QEvent>
#include <QGridLayout>
#include <QMap>
#include <QScrollArea>
#include <QTest>

#include <orvanta/qt/RepaintBatch.h>
#include <orvanta/qt/UILocalizedLabel.h>

#include "Support.h"

using orvanta::qt::RepaintBatch;
using orvanta::qt::UILocalizedLabel;
using orvanta::test::speak;

namespace {

constexpr int kLabels = 40;

// Counts how often each label is painted, and records its last text.
class Painted : public QObject {
 public:
  QMap<QObject*, int> times;
  QMap<QObject*, QString> texts;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Paint) {
      ++times[watched];
      texts[watched] = qobject_cast<QLabel*>(watched)->text();
    }
    return false;
  }
};

void atPlaces(QWidget& /*window*/, const QList<QLabel*>& labels) {
  for (int at = 0; at < kLabels; ++at) {
    labels[at]->setGeometry(at % 8 * 90, at / 8 * 30, 80, 20);
  }
}

void inGrid(QWidget& window, const QList<QLabel*>& labels) {
  auto* grid = new QGridLayout(&window);
  for (int at = 0; at < kLabels; ++at) {
    grid->addWidget(labels[at], at / 8, at % 8);
  }
}

// In an opaque widget inside the window; some labels are out of sight.
void scrolled(QWidget& window, const QList<QLabel*>& labels) {
  auto* area = new QScrollArea(&window);
  auto* inside = new QWidget;
  inGrid(*inside, labels);
  area->setWidget(inside);
  (new QGridLayout(&window))->addWidget(area);
}

const std::pair<const char*, void (*)(QLabel&)> kDesigns[] = {
    {"plain", [](QLabel&) {}},
    {"several lines", [](QLabel& label) { label.setText("one\ntwo two\n"); }},
    {"tabs", [](QLabel& label) { label.setText("one\ttwo"); }},
    {"Arabic", [](QLabel& label) { label.setText(u8"تسجيل الدخول"); }},
    {"wider than any", [](QLabel& label) { label.setText(QStringLiteral("long ").repeated(900)); }},
    {"empty", [](QLabel& label) { label.setText({}); }},
    {"a picture", [](QLabel& label) { label.setPixmap(QPixmap(30, 40)); }},
    {"wrapped",
     [](QLabel& label) {
       label.setText(QStringLiteral("many words ").repeated(30));
       label.setWordWrap(true);
     }},
    {"rich",
     [](QLabel& label) {
       label.setText("<b>one</b><br>two");
       label.setTextFormat(Qt::RichText);
     }},
    {"margin", [](QLabel& label) { label.setMargin(7); }},
    {"contents margins", [](QLabel& label) { label.setContentsMargins(1, 2, 3, 4); }},
    {"frame",
     [](QLabel& label) {
       label.setFrameStyle(QFrame::Box | QFrame::Raised);
       label.setLineWidth(3);
     }},
    {"frame, centred",
     [](QLabel& label) {
       label.setFrameStyle(QFrame::Panel);
       label.setAlignment(Qt::AlignCenter);
     }},
    {"indented, at the bottom right",
     [](QLabel& label) {
       label.setIndent(9);
       label.setAlignment(Qt::AlignRight | Qt::AlignBottom);
     }},
    {"justified", [](QLabel& label) { label.setAlignment(Qt::AlignJustify | Qt::AlignTop); }},
    {"at least so large", [](QLabel& label) { label.setMinimumSize(300, 5); }},
    {"style sheet",
     [](QLabel& label) {
       label.setStyleSheet("border: 3px solid; padding: 5px 8px; font-weight: bold");
     }},
};

const std::pair<const char*, void (*)(QWidget& window, const QList<QLabel*>& labels)>
    kArrangements[] = {
        {"at places", atPlaces}, {"in a layout", inGrid}, {"in a scroll area", scrolled}};

}  // namespace

class RepaintTest : public QObject {
  Q_OBJECT

 private slots:
  static void init() { QVERIFY(speak(QStringLiteral("en"))); }

  static void aBatchPaintsEveryLabelOnce() {
    for (const auto& [name, arrange] : kArrangements) {
      QWidget window;
      window.resize(720, 150);
      const RepaintBatch batch(window);
      QList<QLabel*> labels;
      for (int at = 0; at < kLabels; ++at) {
        labels << UILocalizedLabel::initLocalizedWithFrame({}, &window,
                                                           QStringLiteral("signin.title"));
      }
      arrange(window, labels);
      window.show();
      QVERIFY(QTest::qWaitForWindowExposed(&window));
      // The first change may enlarge the window, which causes another repaint.
      QVERIFY(speak(QStringLiteral("de")));
      QVERIFY(speak(QStringLiteral("en")));

      Painted painted;
      for (QLabel* label : std::as_const(labels)) {
        label->installEventFilter(&painted);
      }
      const qsizetype children = window.children().size();
      QVERIFY(speak(QStringLiteral("de")));
      for (QLabel* label : std::as_const(labels)) {
        const bool inSight = !label->visibleRegion().isEmpty();
        QVERIFY2(painted.times.value(label) == (inSight ? 1 : 0), name);
        QCOMPARE(painted.texts.value(label), inSight ? QStringLiteral("Anmelden") : QString());
      }
      QVERIFY2(!painted.times.isEmpty(), name);
      QCOMPARE(window.children().size(), children);
      QVERIFY(speak(QStringLiteral("en")));
    }
  }

  static void measuresPlainTextAsQtDoes() {
    for (const auto& [name, design] : kDesigns) {
      UILocalizedLabel ours;
      QLabel theirs;
      QLabel* const both[] = {&ours, &theirs};
      for (QLabel* label : both) {
        label->setTextFormat(Qt::PlainText);
        label->setText(QStringLiteral("Sign in"));
        design(*label);
        label->ensurePolished();
      }
      const auto areAlike = [&] {
        return ours.sizeHint() == theirs.sizeHint() &&
               ours.minimumSizeHint() == theirs.minimumSizeHint();
      };
      QVERIFY2(areAlike(), name);
      for (QLabel* label : both) {
        label->setFont(QFont(QStringLiteral("DejaVu Sans"), 20));
      }
      QVERIFY2(areAlike(), name);
      for (QLabel* label : both) {
        label->setText(label->text() + QStringLiteral(" now"));
      }
      QVERIFY2(areAlike(), name);
    }
  }
};

static const orvanta::test::Registration<RepaintTest> registration;

#include "RepaintTest.moc"
