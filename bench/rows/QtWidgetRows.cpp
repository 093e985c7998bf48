// A change to a language whose table is in memory, in a window of labels: Qt's way of retranslation
// and our widgets. A round changes to French and back to English.
#include <QApplication>
#include <QEvent>
#include <QTranslator>
#include <functional>
#include <iostream>
#include <memory>
#include <optional>

#include <malloc.h>

#include <orvanta/locale/Localizer.h>
#include <orvanta/qt/RepaintBatch.h>
#include <orvanta/qt/UILocalizedLabel.h>
#include <orvanta/qt/platform/QtPlatform.h>

#include "contenders/Application.h"
#include "contenders/LabelWindow.h"
#include "contenders/QtTranslations.h"
#include "data/Random.h"
#include "data/TableForms.h"
#include "harness/Check.h"
#include "rows/Rows.h"

namespace orvanta::bench {

namespace {

constexpr std::size_t kStrings = 10'000;
constexpr std::size_t kLabels = 1'000;

using qt::Arrangement;

struct Scene {
  const char* name;
  bool isShown;
  Arrangement arrangement;
  std::optional<double> goal;
  std::size_t passes;
  int samples;
};

// Both languages and the key of each label.
struct Languages {
  Languages() {
    Random random("labels");
    for (std::size_t label = 0; label < kLabels; ++label) {
      asked.push_back(random.below(kStrings));
    }
  }
  [[nodiscard]] const std::string& key(std::size_t label) const {
    return english[asked[label]].key;
  }

  const std::vector<std::string> keys = makeKeys(kStrings);
  const Table french = makeTable(languageNamed("fr"), keys);
  const Table english = makeTable(languageNamed("en"), keys);
  std::vector<std::size_t> asked;
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

class OurSide final : public Side {
 public:
  OurSide(const Languages& languages, const Scene& scene) : Side(scene) {
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
  void beginChange(bool toFrench) override {
    Localizer::sharedLocalizer().changeOrvantaLanguageToPreferredLocales(toFrench ? french_
                                                                                  : english_);
  }

  const StringList french_ = {"fr"_s};
  const StringList english_ = {"en"_s};
  std::optional<orvanta::qt::RepaintBatch> batch_;
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

class FloorSide final : public Side {
 public:
  FloorSide(const std::filesystem::path& folder, const Languages& languages, const Scene& scene)
      : Side(scene), french_(qt::open(folder / "fr.qm")), english_(qt::open(folder / "en.qm")) {
    for (std::size_t label = 0; label < kLabels; ++label) {
      add(new QtLabel(languages.key(label).c_str(), &window()));
    }
    open();
  }

 private:
  void beginChange(bool toFrench) override {
    QCoreApplication::removeTranslator(toFrench ? english_.get() : french_.get());
    QCoreApplication::installTranslator(toFrench ? french_.get() : english_.get());
  }

  std::unique_ptr<QTranslator> french_;
  std::unique_ptr<QTranslator> english_;
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

void checkLabels(Side& side, const Languages& languages) {
  for (const bool toFrench : {true, false}) {
    const qt::PaintedTexts painted(side.labels());
    side.change(toFrench);
    const Table& table = toFrench ? languages.french : languages.english;
    for (std::size_t label = 0; label < kLabels; ++label) {
      const auto& [key, value] = table[languages.asked[label]];
      expectText(side.labels()[label]->text().toStdString(), value, key);
      expectText(painted.text(label), side.isShown() ? value : "", key);
    }
  }
}

Contender switching(std::string_view name, const Languages& languages,
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

void installPlatform(const std::filesystem::path& folder, const Languages& languages) {
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

void switchRow(Bench& bench, const std::filesystem::path& folder, const Languages& languages,
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
      switching(kOurs, languages, stage,
                [&] { return std::make_unique<OurSide>(languages, scene); })};
  bench.run(row);
}

// Sets the heap's thresholds to what they become in an application with windows after a while. With
// the initial thresholds, Qt returns large blocks to the system at repaints in some rounds and not
// in others.
void useHeapOfWindows() {
  mallopt(M_MMAP_THRESHOLD, 32 * 1024 * 1024);
  mallopt(M_TRIM_THRESHOLD, 64 * 1024 * 1024);
}

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
  const Languages languages;
  installPlatform(folder.path(), languages);
  qt::makeTranslations(folder.path() / "fr.qm", languages.french);
  qt::makeTranslations(folder.path() / "en.qm", languages.english);
  for (const Scene& scene : {Scene{"switch-qt-hidden", false, Arrangement::layout, 0.8, 10, 41},
                             Scene{"switch-qt-shown", true, Arrangement::layout, 0.65, 1, 15},
                             Scene{"switch-qt-placed", true, Arrangement::places, {}, 1, 15}}) {
    if (bench.isWanted(scene.name)) {
      switchRow(bench, folder.path(), languages, scene);
    }
  }
}

}  // namespace orvanta::bench
