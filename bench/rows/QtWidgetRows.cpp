// A change to a language whose table is in memory, in a window of labels: Qt's way of retranslation
// and our widgets. A round changes to French and back to English.
#include <QApplication>
#include <QEvent>
#include <QLibrary>
#include <QTranslator>
#include <functional>
#include <iostream>
#include <memory>
#include <optional>
#include <stdexcept>

#include <malloc.h>

#include <orvanta/locale/Localizer.h>
#include <orvanta/qt/RepaintBatch.h>
#include <orvanta/qt/Translator.h>
#include <orvanta/qt/UILocalizedLabel.h>
#include <orvanta/qt/platform/QtPlatform.h>

#include "contenders/Application.h"
#include "contenders/LabelWindow.h"
#include "contenders/QtTranslations.h"
#include "data/TableForms.h"
#include "harness/Check.h"
#include "quick/QuickRow.h"
#include "rows/LabelLanguages.h"
#include "rows/Rows.h"

namespace orvanta::bench {

namespace {

using qt::Arrangement;

constexpr std::size_t kLabels = LabelLanguages::kLabels;

struct Scene {
  const char* name;
  bool isShown;
  Arrangement arrangement;
  std::optional<double> goal;
  std::size_t passes;
  int samples;
  bool hasStockLabels = false;  // Ours too: what differs is the translator.
};

// A window of labels in the current language.
class Side {
 public:
  explicit Side(const Scene& scene) : isShown_(scene.isShown), window_(scene.arrangement) {}
  virtual ~Side() = default;
  Side(const Side&) = delete;
  Side& operator=(const Side&) = delete;

  // Returns when every label has its text and, in a visible window, was painted with it.
  void change(bool toFrench) {
    window_.expectRepaint();
    beginChange(toFrench);
    window_.settle();
  }

  [[nodiscard]] const std::vector<QLabel*>& labels() const noexcept { return labels_; }
  [[nodiscard]] bool isShown() const noexcept { return isShown_; }

 protected:
  virtual void beginChange(bool toFrench) = 0;

  [[nodiscard]] qt::LabelWindow& window() noexcept { return window_; }
  void add(QLabel* label) {
    labels_.push_back(label);
    window_.place(label);
  }
  void open() {
    window_.setVisible(isShown());
    window_.settle();
  }

 private:
  bool isShown_;
  qt::LabelWindow window_;
  std::vector<QLabel*> labels_;
};

// A label that translates itself as Qt's documentation recommends. Plain text, like ours.
class QtLabel final : public QLabel {
 public:
  QtLabel(const char* identifier, QWidget* parent) : QLabel(parent), identifier_(identifier) {
    setTextFormat(Qt::PlainText);
    translate();
  }

 protected:
  void changeEvent(QEvent* event) override {
    if (event->type() == QEvent::LanguageChange) {
      translate();
    }
    QLabel::changeEvent(event);
  }

 private:
  void translate() { setText(qtTrId(identifier_)); }

  const char* identifier_;
};

// A window of labels of Qt's, which retranslate themselves.
class StockSide : public Side {
 protected:
  using Side::Side;

  // To be called once a translator is installed.
  void fill(const LabelLanguages& languages) {
    for (std::size_t label = 0; label < kLabels; ++label) {
      add(new QtLabel(languages.key(label).c_str(), &window()));
    }
    open();
  }
};

class FloorSide final : public StockSide {
 public:
  FloorSide(const std::filesystem::path& folder, const LabelLanguages& languages,
            const Scene& scene)
      : StockSide(scene),
        french_(qt::open(folder / "fr.qm")),
        english_(qt::open(folder / "en.qm")) {
    QCoreApplication::installTranslator(english_.get());
    fill(languages);
  }

 private:
  void beginChange(bool toFrench) override {
    QCoreApplication::removeTranslator(toFrench ? english_.get() : french_.get());
    QCoreApplication::installTranslator(toFrench ? french_.get() : english_.get());
  }

  std::unique_ptr<QTranslator> french_;
  std::unique_ptr<QTranslator> english_;
};

void changeOurLanguage(bool toFrench) {
  static const StringList french = {"fr"_s};
  static const StringList english = {"en"_s};
  Localizer::sharedLocalizer().changeOrvantaLanguageToPreferredLocales(toFrench ? french : english);
}

// The same labels, and our translator in place of Qt's.
class TranslatorSide final : public StockSide {
 public:
  TranslatorSide(const LabelLanguages& languages, const Scene& scene) : StockSide(scene) {
    QCoreApplication::installTranslator(&translator_);
    fill(languages);
  }

 private:
  void beginChange(bool toFrench) override {
    changeOurLanguage(toFrench);
    // The event is posted to the application, and by that to its windows.
    for (const QString before = labels().front()->text(); labels().front()->text() == before;) {
      QCoreApplication::processEvents();
    }
  }

  orvanta::qt::Translator translator_;
};

class OurSide final : public Side {
 public:
  OurSide(const LabelLanguages& languages, const Scene& scene) : Side(scene) {
    if (isShown()) {
      batch_.emplace(window());
    }
    for (std::size_t label = 0; label < kLabels; ++label) {
      add(orvanta::qt::UILocalizedLabel::initLocalizedWithFrame(
          {}, &window(), QString::fromStdString(languages.key(label))));
    }
    open();
  }

 private:
  void beginChange(bool toFrench) override { changeOurLanguage(toFrench); }

  std::optional<orvanta::qt::RepaintBatch> batch_;
};

// Keeps the window of one contender at a time: Qt notifies every window of a change of language,
// and one contender would pay for the other's window.
class Stage {
 public:
  using MakeSide = std::function<std::unique_ptr<Side>()>;

  [[nodiscard]] Side& enter(std::string_view name, const MakeSide& make) {
    if (name != name_) {
      side_.reset();
      side_ = make();
      name_ = name;
      becomeUsed();
    }
    return *side_;
  }

 private:
  // The window has existed for a while when the language changes.
  void becomeUsed() {
    for (const bool toFrench : {true, false, true, false, true, false}) {
      side_->change(toFrench);
    }
  }

  std::string_view name_;
  std::unique_ptr<Side> side_;
};

void checkLabels(Side& side, const LabelLanguages& languages) {
  for (const bool toFrench : {true, false}) {
    const qt::PaintedTexts painted(side.labels());
    side.change(toFrench);
    for (std::size_t label = 0; label < kLabels; ++label) {
      const std::string& key = languages.key(label);
      const std::string& value = languages.text(label, toFrench);
      expectText(side.labels()[label]->text().toStdString(), value, key);
      expectText(painted.text(label), side.isShown() ? value : "", key);
    }
  }
}

Contender switching(std::string_view name, const LabelLanguages& languages,
                    const std::shared_ptr<Stage>& stage, const Stage::MakeSide& make) {
  const auto enter = [=]() -> Side& { return stage->enter(name, make); };
  const auto check = [enter, &languages] { checkLabels(enter(), languages); };
  const auto round = [enter] {
    Side& side = enter();
    side.change(true);
    side.change(false);
  };
  const auto prepare = [enter] { static_cast<void>(enter()); };
  return {std::string(name), check, round, prepare};
}

void installPlatform(const std::filesystem::path& folder, const LabelLanguages& languages) {
  const Application application(folder);
  application.ship("fr", languages.french, textFormUtf8);
  application.ship("en", languages.english, textFormUtf8);
  standard::StandardOptions options;
  options.mainBundlePath = application.languageFolder("en").parent_path();
  options.cachesPath = application.cachesFolder();
  options.deviceLanguages = {"en"};
  options.logSink = [](std::string_view) {};
  platform::Platform::install(orvanta::qt::makeQtPlatform(options));
}

void switchRow(Bench& bench, const std::filesystem::path& folder, const LabelLanguages& languages,
               const Scene& scene) {
  Row row{.name = scene.name,
          .operations = 2,
          .samples = scene.samples,
          .warmUp = true,
          .goal = scene.goal};
  row.passes = scene.passes;
  row.amount = Amount{static_cast<double>(kLabels), "labels"};
  const auto stage = std::make_shared<Stage>();
  row.contenders = {
      switching(kFloor, languages, stage,
                [&] { return std::make_unique<FloorSide>(folder, languages, scene); }),
      switching(kOurs, languages, stage, [&]() -> std::unique_ptr<Side> {
        if (scene.hasStockLabels) {
          return std::make_unique<TranslatorSide>(languages, scene);
        }
        return std::make_unique<OurSide>(languages, scene);
      })};
  bench.run(row);
}

// Sets the heap's thresholds to what they become in an application with windows after a while. With
// the initial thresholds, Qt returns large blocks to the system at repaints in some rounds and not
// in others.
void useHeapOfWindows() {
  mallopt(M_MMAP_THRESHOLD, 32 * 1024 * 1024);
  mallopt(M_TRIM_THRESHOLD, 64 * 1024 * 1024);
}

#ifdef ORVANTA_BENCH_QUICK
decltype(&orvantaBenchQuickRow) loadQuickRow() {
  QLibrary module(QStringLiteral(ORVANTA_BENCH_QUICK));
  const auto row =
      reinterpret_cast<decltype(&orvantaBenchQuickRow)>(module.resolve("orvantaBenchQuickRow"));
  if (row == nullptr) {
    throw std::runtime_error(module.errorString().toStdString());
  }
  return row;
}
#endif

// Qt's offscreen platform warns at every layout about operations that it does not support.
void showProblems(QtMsgType type, const QMessageLogContext& /*context*/, const QString& message) {
  if (type == QtCriticalMsg || type == QtFatalMsg) {
    std::cerr << message.toStdString() << '\n';
  }
}

}  // namespace

void switchQtRows(Bench& bench) {
  useHeapOfWindows();
  qInstallMessageHandler(showProblems);
  qputenv("QT_QPA_PLATFORM", "offscreen");
  int count = 1;
  char name[] = "orvanta_bench";
  char* words[] = {name, nullptr};
  const QApplication application(count, words);

  // One application for all rows, because widgets follow the shared localizer of the process.
  const ScratchFolder folder = bench.folder("switch-qt");
  const LabelLanguages languages;
  installPlatform(folder.path(), languages);
  qt::makeTranslations(folder.path() / "fr.qm", languages.french);
  qt::makeTranslations(folder.path() / "en.qm", languages.english);
  for (const Scene& scene : {Scene{"switch-qt-hidden", false, Arrangement::layout, 0.8, 10, 41},
                             Scene{"switch-qt-tr", false, Arrangement::layout, 0.9, 10, 41, true},
                             Scene{"switch-qt-shown", true, Arrangement::layout, 0.65, 1, 15},
                             Scene{"switch-qt-placed", true, Arrangement::places, {}, 1, 15}}) {
    if (bench.isWanted(scene.name)) {
      switchRow(bench, folder.path(), languages, scene);
    }
  }
#ifdef ORVANTA_BENCH_QUICK
  if (bench.isWanted("switch-quick")) {
    loadQuickRow()(bench, folder.path(), languages);
  }
#endif
}

}  // namespace orvanta::bench
