// The code of docs/threads.md. The argument is a folder with tables.
#include <cstdlib>
#include <iostream>
#include <memory>
#include <thread>

#include <orvanta/orvanta.h>
#include <orvanta/platform/Platform.h>
#include <orvanta/standard/RunLoop.h>
#include <orvanta/standard/StandardPlatform.h>

namespace {

class Exporter : public std::enable_shared_from_this<Exporter> {
 public:
  void observe() {
    orvanta::platform::Platform::current().notifications->addObserver(
        this, orvanta::OVPreferredLocaleDidChangeNotification, nullptr,
        [weak = weak_from_this()](const orvanta::platform::Notification&) {
          if (const auto exporter = weak.lock()) {
            exporter->texts_ = orvanta::texts();
          }
        });
  }
  ~Exporter() { orvanta::platform::Platform::current().notifications->removeObserver(this); }

  [[nodiscard]] const orvanta::TextSnapshot& texts() const { return texts_; }

 private:
  orvanta::TextSnapshot texts_;
};

void work(const orvanta::TextSnapshot& texts) {
  std::thread worker([texts] {
    const orvanta::String title = texts.localizedStringForKey("signin.title");
    orvanta::platform::Platform::current().mainQueue->dispatchAsync(
        [title] { std::cout << "exported under " << title << '\n'; });
  });
  worker.join();
}

void hostTurn() {
  orvanta::standard::RunLoop::main()->runPending();
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    return EXIT_FAILURE;
  }
  orvanta::platform::Platform::install(
      orvanta::standard::makeStandardPlatform({.mainBundlePath = argv[1]}));
  bool isWoken = false;
  orvanta::standard::RunLoop::main()->setWakeUpHook([&isWoken] { isWoken = true; });

  const auto exporter = std::make_shared<Exporter>();
  exporter->observe();
  orvanta::Localizer::sharedLocalizer().updatePreferredLocales({"de"}, {});
  hostTurn();
  work(exporter->texts());
  hostTurn();
  orvanta::standard::RunLoop::main()->setWakeUpHook({});
  return isWoken ? EXIT_SUCCESS : EXIT_FAILURE;
}
