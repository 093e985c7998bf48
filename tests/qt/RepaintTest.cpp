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

using Arrange = void (*)(QWidget& window, const QList<QLabel*>& labels);

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

using Design = void (*)(QLabel& label);

}  // namespace

class RepaintTest : public QObject {
  Q_OBJECT

 private slots:
  static void init() { QVERIFY(speak(QStringLiteral("en"))); }
  static void aBatchPaintsEveryLabelOnce_data();
  static void aBatchPaintsEveryLabelOnce();
  static void measuresPlainTextAsQtDoes_data();
  static void measuresPlainTextAsQtDoes();
};

void RepaintTest::aBatchPaintsEveryLabelOnce_data() {
  QTest::addColumn<Arrange>("arrange");
  QTest::newRow("at places") << Arrange(atPlaces);
  QTest::newRow("in a layout") << Arrange(inGrid);
  QTest::newRow("in a scroll area") << Arrange(scrolled);
}

void RepaintTest::aBatchPaintsEveryLabelOnce() {
  QFETCH(const Arrange, arrange);
  QWidget window;
  window.resize(720, 150);
  const RepaintBatch batch(window);
  QList<QLabel*> labels;
  for (int at = 0; at < kLabels; ++at) {
    labels << UILocalizedLabel::initLocalizedWithFrame({}, &window, QStringLiteral("signin.title"));
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
    QCOMPARE(painted.times.value(label), inSight ? 1 : 0);
    QCOMPARE(painted.texts.value(label), inSight ? QStringLiteral("Anmelden") : QString());
  }
  QVERIFY(!painted.times.isEmpty());
  QCOMPARE(window.children().size(), children);
}

void RepaintTest::measuresPlainTextAsQtDoes_data() {
  QTest::addColumn<Design>("design");
  QTest::newRow("plain") << Design([](QLabel&) {});
  QTest::newRow("several lines") << Design([](QLabel& label) { label.setText("one\ntwo two\n"); });
  QTest::newRow("tabs") << Design([](QLabel& label) { label.setText("one\ttwo"); });
  QTest::newRow("Arabic") << Design([](QLabel& label) { label.setText(u8"تسجيل الدخول"); });
  QTest::newRow("wider than any") << Design(
      [](QLabel& label) { label.setText(QStringLiteral("long ").repeated(900)); });
  QTest::newRow("empty") << Design([](QLabel& label) { label.setText({}); });
  QTest::newRow("a picture") << Design([](QLabel& label) { label.setPixmap(QPixmap(30, 40)); });
  QTest::newRow("wrapped") << Design([](QLabel& label) {
    label.setText(QStringLiteral("many words ").repeated(30));
    label.setWordWrap(true);
  });
  QTest::newRow("rich") << Design([](QLabel& label) {
    label.setText("<b>one</b><br>two");
    label.setTextFormat(Qt::RichText);
  });
  QTest::newRow("margin") << Design([](QLabel& label) { label.setMargin(7); });
  QTest::newRow("contents margins")
      << Design([](QLabel& label) { label.setContentsMargins(1, 2, 3, 4); });
  QTest::newRow("frame") << Design([](QLabel& label) {
    label.setFrameStyle(QFrame::Box | QFrame::Raised);
    label.setLineWidth(3);
  });
  QTest::newRow("frame, centred") << Design([](QLabel& label) {
    label.setFrameStyle(QFrame::Panel);
    label.setAlignment(Qt::AlignCenter);
  });
  QTest::newRow("indented, at the bottom right") << Design([](QLabel& label) {
    label.setIndent(9);
    label.setAlignment(Qt::AlignRight | Qt::AlignBottom);
  });
  QTest::newRow("justified") << Design(
      [](QLabel& label) { label.setAlignment(Qt::AlignJustify | Qt::AlignTop); });
  QTest::newRow("at least so large") << Design([](QLabel& label) { label.setMinimumSize(300, 5); });
  QTest::newRow("style sheet") << Design([](QLabel& label) {
    label.setStyleSheet("border: 3px solid; padding: 5px 8px; font-weight: bold");
  });
}

void RepaintTest::measuresPlainTextAsQtDoes() {
  QFETCH(const Design, design);
  UILocalizedLabel ours;
  QLabel theirs;
  for (QLabel* label : {static_cast<QLabel*>(&ours), &theirs}) {
    label->setTextFormat(Qt::PlainText);
    label->setText(QStringLiteral("Sign in"));
    design(*label);
    label->ensurePolished();
  }
  QCOMPARE(ours.sizeHint(), theirs.sizeHint());
  QCOMPARE(ours.minimumSizeHint(), theirs.minimumSizeHint());
  for (QLabel* label : {static_cast<QLabel*>(&ours), &theirs}) {
    label->setFont(QFont(QStringLiteral("DejaVu Sans"), 20));
  }
  QCOMPARE(ours.sizeHint(), theirs.sizeHint());
  for (QLabel* label : {static_cast<QLabel*>(&ours), &theirs}) {
    label->setText(label->text() + QStringLiteral(" now"));
  }
  QCOMPARE(ours.sizeHint(), theirs.sizeHint());
  QCOMPARE(ours.minimumSizeHint(), theirs.minimumSizeHint());
}

static const orvanta::test::Registration<RepaintTest> registration;

#include "RepaintTest.moc"
