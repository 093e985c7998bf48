#include "CommandLine.h"

#include <iostream>
#include <utility>

#include "Escaping.h"

namespace ovlocalize {

namespace {

constexpr const char* kDescription =
    "Asks the localization library about an application's languages: the .lproj folders in its\n"
    "bundle, and the tables that it downloaded into its cache.";
constexpr const char* kFooter =
    "`ovlocalize COMMAND --help` shows a command's options and examples.\n"
    "\n"
    "Exit status: 0 when the command did its work, whatever the answer; 1 with one line on "
    "standard\n"
    "error when it could not, or when a check found an error; 2 with one line when the arguments\n"
    "are wrong.";

}  // namespace

std::string refuseEmpty(const std::string& word) {
  return word.empty() ? "must not be empty" : "";
}

CommandLine::CommandLine() : app_(kDescription, "ovlocalize") {
  app_.footer(kFooter);
  app_.require_subcommand(1);
  app_.fallthrough();
  app_.add_option("--bundle", settings_.bundle,
                  "The application's main bundle: the folder that holds its .lproj folders\n"
                  "(default: the folder of this command)")
      ->check(refuseEmpty)
      ->type_name("DIR");
  app_.add_option("--cache", settings_.cache,
                  "The caches directory that holds, or will hold, OrvantaLocalizations\n"
                  "(default: this command's own folder in $XDG_CACHE_HOME or ~/.cache)")
      ->check(refuseEmpty)
      ->type_name("DIR");
  app_.add_option("--device", devices_,
                  "The device's languages, best first (default: LANGUAGE, LC_ALL,\n"
                  "LC_MESSAGES and LANG)")
      ->delimiter(',')
      ->allow_extra_args(false)
      ->type_name("a,b");
  app_.add_flag("--json", settings_.json, "Print JSON");
}

CLI::App& CommandLine::add(const char* name, const char* help, const char* examples,
                           Command command) {
  CLI::App* const added = app_.add_subcommand(name, help);
  added->footer(std::string("Examples:\n") + examples);
  added->callback([this, command = std::move(command)] {
    chosen_ = [this, command] { return command(settings_); };
  });
  return *added;
}

int CommandLine::run(int argc, char** argv) {
  const int status = parseAndRun(argc, argv);
  if (!std::cout.flush()) {
    throw Failure("the answer could not be written");
  }
  return status;
}

int CommandLine::parseAndRun(int argc, char** argv) {
  try {
    app_.parse(argc, argv);
  } catch (const CLI::CallForHelp& help) {
    return app_.exit(help);
  } catch (const CLI::ParseError& error) {
    std::cerr << "ovlocalize: " << escaped(error.what()) << " (see ovlocalize --help)\n";
    return 2;
  }
  if (app_.count("--device") > 0) {
    std::erase(devices_, "");
    settings_.devices = devices_;
  }
  return chosen_();
}

}  // namespace ovlocalize
