#include <cstdio>
#include <string>
#include <utility>

#include <orvanta/standard/StandardLog.h>

namespace orvanta::standard {

namespace {

using Sink = std::function<void(std::string_view message)>;

void writeToStandardError(std::string_view message) {
  // One call for the whole line, so that lines of several threads are not interleaved.
  const std::string line = std::string(message) + '\n';
  static_cast<void>(std::fwrite(line.data(), 1, line.size(), stderr));
}

class StandardLog final : public platform::Log {
 public:
  explicit StandardLog(Sink sink) : sink_(std::move(sink)) {}
  void log(const String& message) noexcept override {
    try {
      sink_(message.view());
    } catch (...) {
      // A message that cannot be logged must not stop the work that it tells of.
    }
  }

 private:
  Sink sink_;
};

}  // namespace

std::shared_ptr<platform::Log> makeLog(Sink sink) {
  return std::make_shared<StandardLog>(sink ? std::move(sink) : Sink(writeToStandardError));
}

}  // namespace orvanta::standard
