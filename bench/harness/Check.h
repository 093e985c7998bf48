#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

namespace orvanta::bench {

/// Thrown when a contender gave a wrong text. Ends the run: the time of a wrong answer is
/// worthless.
class WrongAnswer : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// `asked` is named in the message.
inline void expectText(std::string_view given, std::string_view expected, std::string_view asked) {
  if (given != expected) {
    throw WrongAnswer("for \"" + std::string(asked) + "\" expected \"" + std::string(expected) +
                      "\" but got \"" + std::string(given) + '"');
  }
}

inline void expect(bool holds, const char* what) {
  if (!holds) {
    throw WrongAnswer(what);
  }
}

}  // namespace orvanta::bench
