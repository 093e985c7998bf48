// A change to a language whose table is in memory. Each listener looks up one key and stores the
// text. A round changes to French and back to English.
#include <array>
#include <functional>

#include <orvanta/locale/Localizer.h>

#include "contenders/Application.h"
#include "contenders/ArenaMap.h"
#include "contenders/QtListeners.h"
#include "contenders/QtTranslations.h"
#include "data/TableForms.h"
#include "rows/Questions.h"
#include "rows/Rows.h"

namespace orvanta::bench {

namespace {

constexpr std::size_t kStrings = 10'000;

// Both languages and the keys of the listeners. The answers are in the order of the listeners.
struct Languages {
  explicit Languages(std::size_t listeners) {
    const auto keys = makeKeys(kStrings);
    french = makeTable(languageNamed("fr"), keys);
    english = makeTable(languageNamed("en"), keys);
    Random random("listeners");
    for (std::size_t at = 0; at < listeners; ++at) {
      asked.push_back(random.below(kStrings));
    }
  }

  Table french;
  Table english;
  std::vector<std::size_t> asked;
};

// Changes to French and back and compares every listener's text after each change. `change` gets
// whether it is to French, `text` a listener's number.
template <typename Change, typename Text>
void checkListeners(const Languages& languages, Change change, Text text) {
  for (const bool toFrench : {true, false}) {
    change(toFrench);
    const Table& table = toFrench ? languages.french : languages.english;
    for (std::size_t at = 0; at < languages.asked.size(); ++at) {
      const auto& [key, value] = table[languages.asked[at]];
      expectText(text(at), value, key);
    }
  }
}

template <typename Side>
Contender switching(std::string_view name, const Languages& languages,
                    const std::shared_ptr<Side>& side) {
  const auto check = [side, &languages] {
    checkListeners(
        languages, [&](bool toFrench) { side->change(toFrench); },
        [&](std::size_t at) { return side->text(at); });
  };
  const auto round = [side] {
    side->change(true);
    side->change(false);
  };
  return {std::string(name), check, round};
}

class OurSide {
 public:
  OurSide(const Application& application, const Languages& languages)
      : loop_(standard::RunLoop::make()), listeners_(languages.asked.size()) {
    platform::Platform::install(application.makePlatform("fr", loop_));
    localizer_ = std::make_unique<Localizer>();
    auto& center = *platform::Platform::current().notifications;
    for (std::size_t at = 0; at < listeners_.size(); ++at) {
      Listener& listener = listeners_[at];
      listener.key = languages.english[languages.asked[at]].key;
      center.addObserver(&listener, String::fromStatic(OVPreferredLocaleDidChangeNotification),
                         nullptr, [this, &listener](const platform::Notification&) {
                           listener.text = localizer_->localizedStringForKey(listener.key);
                         });
    }
  }
  ~OurSide() {
    for (const Listener& listener : listeners_) {
      platform::Platform::current().notifications->removeObserver(&listener);
    }
  }
  OurSide(const OurSide&) = delete;
  OurSide& operator=(const OurSide&) = delete;

  void change(bool toFrench) {
    localizer_->changeOrvantaLanguageToPreferredLocales(toFrench ? french_ : english_);
    loop_->runPending();
  }
  [[nodiscard]] std::string_view text(std::size_t at) const { return listeners_[at].text.view(); }

 private:
  struct Listener {
    String key;
    String text;
  };
  const StringList french_ = {"fr"_s};
  const StringList english_ = {"en"_s};
  std::shared_ptr<standard::RunLoop> loop_;
  std::unique_ptr<Localizer> localizer_;
  std::vector<Listener> listeners_;
};

class FloorSide {
 public:
  explicit FloorSide(const Languages& languages)
      : french_(languages.french), english_(languages.english), listeners_(languages.asked.size()) {
    for (std::size_t at = 0; at < listeners_.size(); ++at) {
      Listener& listener = listeners_[at];
      listener.key = languages.english[languages.asked[at]].key;
      callbacks_.emplace_back([this, &listener] { listener.text = current_->find(listener.key); });
    }
  }
  FloorSide(const FloorSide&) = delete;
  FloorSide& operator=(const FloorSide&) = delete;

  void change(bool toFrench) {
    current_ = toFrench ? &french_ : &english_;
    for (const auto& callback : callbacks_) {
      callback();
    }
  }
  [[nodiscard]] std::string_view text(std::size_t at) const { return listeners_[at].text; }

 private:
  struct Listener {
    std::string key;
    std::string_view text;
  };
  ArenaMap french_;
  ArenaMap english_;
  const ArenaMap* current_ = nullptr;
  std::vector<Listener> listeners_;
  std::vector<std::function<void()>> callbacks_;
};

class QtSide {
 public:
  QtSide(const std::filesystem::path& folder, const Languages& languages) {
    qt::makeTranslations(folder / "fr.qm", languages.french);
    qt::makeTranslations(folder / "en.qm", languages.english);
    french_ = qt::open(folder / "fr.qm");
    english_ = qt::open(folder / "en.qm");
    for (const std::size_t asked : languages.asked) {
      listeners_.push_back(
          std::make_unique<qt::Listener>(current_, languages.english[asked].key.c_str()));
      QObject::connect(&announcer_, &qt::Announcer::languageChanged, listeners_.back().get(),
                       &qt::Listener::refresh);
    }
  }
  QtSide(const QtSide&) = delete;
  QtSide& operator=(const QtSide&) = delete;

  void change(bool toFrench) {
    current_ = toFrench ? french_.get() : english_.get();
    announcer_.announce();
  }
  [[nodiscard]] std::string text(std::size_t at) const {
    return listeners_[at]->text().toStdString();
  }

 private:
  std::unique_ptr<QTranslator> french_;
  std::unique_ptr<QTranslator> english_;
  const QTranslator* current_ = nullptr;
  qt::Announcer announcer_;
  std::vector<std::unique_ptr<qt::Listener>> listeners_;
};

void switchRow(Bench& bench, const char* name, std::size_t listeners, std::optional<double> goal) {
  if (!bench.isWanted(name)) {
    return;
  }
  const ScratchFolder folder = bench.folder(name);
  const Languages languages(listeners);
  const Application application(folder.path());
  application.ship("fr", languages.french, textFormUtf8);
  application.ship("en", languages.english, textFormUtf8);
  Row row{.name = name, .operations = 2, .samples = 41, .warmUp = true, .goal = goal};
  row.passes = 20'000 / listeners;
  row.amount = Amount{static_cast<double>(listeners), "listeners"};
  row.contenders = {switching(kFloor, languages, std::make_shared<FloorSide>(languages)),
                    switching(kOurs, languages, std::make_shared<OurSide>(application, languages)),
                    switching("qt", languages, std::make_shared<QtSide>(folder.path(), languages))};
  bench.run(row);
}

}  // namespace

void switchRows(Bench& bench) {
  switchRow(bench, "switch-100", 100, {});
  switchRow(bench, "switch", 1'000, 1.0);
  switchRow(bench, "switch-10k", 10'000, {});
}

}  // namespace orvanta::bench
