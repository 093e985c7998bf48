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
/// A table to print: a file, or the table of a language in the catalogue. One of the two is empty.
struct Source {
  std::string file;
  std::string language;
};

/// Problems in the table go to standard error as FILE:LINE:COLUMN: message.
int dump(const Settings& settings, const Source& source);

/// Where in a service's answer the tables are, and the file that holds the answer ("-": standard
/// input).
struct Download {
  std::string bundleName;
  std::string namespaceName;
  std::string file;
};

/// The status is 1 when a language's table could not be written.
int update(const Settings& settings, const Download& download);
int clear(const Settings& settings);

}  // namespace ovlocalize
