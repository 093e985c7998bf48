#pragma once

#include <optional>
#include <string>
#include <vector>

#include "Settings.h"

namespace ovlocalize {

/// The languages and the country that a request is made of.
struct Request {
  std::vector<std::string> locales;  ///< Empty: what the device asks for.
  std::optional<std::string> country;
};

// Each command prints its answer on standard output and returns the exit status. It throws
// `Failure` when it cannot answer.

int languages(const Settings& settings);
int match(const Settings& settings, const Request& request);
int lookup(const Settings& settings, const Request& request, const std::vector<std::string>& keys);
int clear(const Settings& settings);

}  // namespace ovlocalize
