#pragma once

#include <functional>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace ovlocalize {

/// The options that every command takes.
struct Settings {
  std::string bundle;  ///< The main bundle's folder; empty: none given.
  std::string cache;   ///< The caches directory; empty: the user's.
  std::optional<std::vector<std::string>> devices;  ///< The device's languages.
  bool json = false;
  bool isColored = false;                         ///< Answers for people are.
  std::function<void(std::string_view)> logSink;  ///< Absent: standard error, a line each.
};

/// Why a command could not answer: one line for standard error.
class Failure : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Installs the platform that the settings describe. Throws `Failure` when the bundle's folder is
/// missing.
void installPlatform(const Settings& settings);

}  // namespace ovlocalize
