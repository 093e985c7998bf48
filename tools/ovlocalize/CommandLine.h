#pragma once

#include <functional>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>

#include "Settings.h"

namespace ovlocalize {

/// An option's value that may not be empty: an empty word, such as an unset shell variable gives,
/// must not mean the default, which may be another application's folder.
[[nodiscard]] std::string refuseEmpty(const std::string& word);

/// The options that all commands share, and the commands.
class CommandLine {
 public:
  /// Answers a command: prints on standard output and returns the exit status. Throws `Failure`
  /// when it cannot answer.
  using Command = std::function<int(const Settings&)>;

  CommandLine();

  /// Adds a command, to which the caller then adds its options. `examples` stand in its own help, a
  /// line each.
  CLI::App& add(const char* name, const char* help, const char* examples, Command command);

  /// Parses the arguments and runs the command that they name. Returns the exit status.
  int run(int argc, char** argv);

 private:
  [[nodiscard]] std::string reasonOf(const CLI::ParseError& error) const;
  int parseAndRun(int argc, char** argv);

  CLI::App app_;
  Settings settings_;
  std::vector<std::string> devices_;
  std::string color_ = "auto";
  std::function<int()> chosen_;
};

}  // namespace ovlocalize
