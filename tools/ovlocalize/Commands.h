#pragma once

#include <optional>
#include <string>
#include <vector>

#include "Settings.h"

namespace ovlocalize {

/// The languages asked for, and the country to try them with.
struct Request {
  std::vector<std::string> locales;  ///< Empty: what the device asks for.
  std::optional<std::string> country;
};

/// A table to print: a file, or the table of a language in the catalogue. One of the two is empty.
struct Source {
  std::string file;
  std::string language;
};

/// Where the tables are in a service's answer, and the file that holds the answer ("-": standard
/// input).
struct Download {
  std::string bundleName;
  std::string namespaceName;
  std::string file;
};

// Each command prints its answer on standard output and returns the exit status. It throws
// `Failure` when it cannot answer.

int languages(const Settings& settings);
int match(const Settings& settings, const Request& request);
int lookup(const Settings& settings, const Request& request, const std::vector<std::string>& keys);
/// Problems in the table go to standard error as FILE:LINE:COLUMN: message.
int dump(const Settings& settings, const Source& source);
/// Fails when a language's table could not be written.
int update(const Settings& settings, const Download& download);
int clear(const Settings& settings);

}  // namespace ovlocalize
