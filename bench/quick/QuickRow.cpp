#include "quick/QuickRow.h"

#include <QCoreApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QTranslator>
#include <memory>
#include <stdexcept>

#include <orvanta/locale/Localizer.h>

#include "contenders/QtTranslations.h"
#include "harness/Check.h"

namespace orvanta::bench {

namespace {

constexpr int kSamples = 21;
constexpr std::size_t kPasses = 5;
constexpr double kGoal = 0.9;

// Texts whose binding is this call with their key.
class Scene {
 public:
  Scene(const LabelLanguages& languages, const std::string& function) : languages_(languages) {
    std::string source = "import QtQuick\nimport Orvanta\nItem {\n";
    for (std::size_t label = 0; label < LabelLanguages::kLabels; ++label) {
      source += "Text { text: " + function + "(\"" + languages.key(label) + "\") }\n";
    }
    QQmlComponent component(&engine_);
    component.setData(QByteArray::fromStdString(source + "}\n"), QUrl());
    root_.reset(qobject_cast<QQuickItem*>(component.create()));
    if (root_ == nullptr) {
      throw std::runtime_error(component.errorString().toStdString());
    }
  }
  virtual ~Scene() = default;
  Scene(const Scene&) = delete;
  Scene& operator=(const Scene&) = delete;

  virtual void change(bool toFrench) = 0;

  void check() {
    for (const bool toFrench : {true, false}) {
      change(toFrench);
      const QList<QQuickItem*> texts = root_->childItems();
      for (qsizetype label = 0; label < texts.size(); ++label) {
        const auto at = static_cast<std::size_t>(label);
        expectText(texts[label]->property("text").toString().toStdString(),
                   languages_.text(at, toFrench), languages_.key(at));
      }
    }
  }

 protected:
  QQmlEngine& engine() noexcept { return engine_; }

 private:
  const LabelLanguages& languages_;
  QQmlEngine engine_;
  std::unique_ptr<QQuickItem> root_;
};

class OurScene final : public Scene {
 public:
  explicit OurScene(const LabelLanguages& languages) : Scene(languages, "Orvanta.text") {}
  void change(bool toFrench) override {
    Localizer::sharedLocalizer().changeOrvantaLanguageToPreferredLocales(
        toFrench ? StringList{"fr"_s} : StringList{"en"_s});
    QCoreApplication::processEvents();
  }
};

class FloorScene final : public Scene {
 public:
  FloorScene(const std::filesystem::path& folder, const LabelLanguages& languages)
      : Scene(languages, "qsTrId"),
        french_(qt::open(folder / "fr.qm")),
        english_(qt::open(folder / "en.qm")) {}
  void change(bool toFrench) override {
    QCoreApplication::removeTranslator(toFrench ? english_.get() : french_.get());
    QCoreApplication::installTranslator(toFrench ? french_.get() : english_.get());
    engine().retranslate();
    QCoreApplication::processEvents();
  }

 private:
  std::unique_ptr<QTranslator> french_;
  std::unique_ptr<QTranslator> english_;
};

}  // namespace

extern "C" __attribute__((visibility("default"))) void orvantaBenchQuickRow(
    Bench& bench, const std::filesystem::path& folder, const LabelLanguages& languages) {
  Row row{
      .name = "switch-quick", .operations = 2, .samples = kSamples, .warmUp = true, .goal = kGoal};
  row.passes = kPasses;
  row.amount = Amount{static_cast<double>(LabelLanguages::kLabels), "texts"};
  FloorScene floor(folder, languages);
  OurScene ours(languages);
  const auto contender = [](std::string_view name, Scene& scene) {
    return Contender{std::string(name),
                     [&scene] { scene.check(); },
                     [&scene] {
                       scene.change(true);
                       scene.change(false);
                     },
                     {}};
  };
  row.contenders = {contender(kFloor, floor), contender(kOurs, ours)};
  bench.run(row);
}

}  // namespace orvanta::bench
