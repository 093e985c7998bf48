#include "CommandLine.h"

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <memory>
#include <sstream>
#include <string_view>
#include <utility>

#include <unistd.h>

#include "Escaping.h"
#include "Pages.h"

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

constexpr const char* kEveryCommand =
    "Every command also takes --bundle, --cache, --device, --json and --color: see\n"
    "`ovlocalize --help`.\n"
    "\n"
    "Examples:\n";

// Lists the commands with the first clause of what each does.
class Formatter : public CLI::Formatter {
 public:
  std::string make_subcommand(const CLI::App* command) const override {
    std::string what = command->get_description();
    std::replace(what.begin(), what.end(), '\n', ' ');
    for (const char* end : {": ", ". ", "; ", ", "}) {
      what.resize(std::min(what.find(end), what.size()));
    }
    std::ostringstream line;
    CLI::detail::format_help(line, command->get_name(), what, get_column_width());
    return line.str();
  }
};

// https://no-color.org: a variable that is set and not empty.
bool wantsColor(const std::string& choice) {
  const char* const none = std::getenv("NO_COLOR");
  const char* const terminal = std::getenv("TERM");
  const bool isPlain = (none != nullptr && *none != '\0') ||
                       (terminal != nullptr && std::string_view(terminal) == "dumb");
  return choice == "always" || (choice == "auto" && !isPlain && ::isatty(STDOUT_FILENO) != 0);
}

}  // namespace

std::string refuseEmpty(const std::string& word) {
  return word.empty() ? "must not be empty" : "";
}

CommandLine::CommandLine() : app_(kDescription, "ovlocalize") {
  app_.formatter(std::make_shared<Formatter>());
  app_.footer(kFooter);
  addVersionAndPages(app_, "ask about and check the languages of an application");
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
  app_.add_option(
          "--color", color_,
          "Whether answers are coloured (default: auto, on a terminal unless NO_COLOR is set)")
      ->check(CLI::IsMember({"auto", "always", "never"}).description(""))
      ->type_name("auto|always|never");
}

CLI::App& CommandLine::add(const char* name, const char* help, const char* examples,
                           Command command) {
  CLI::App* const added = app_.add_subcommand(name, help);
  added->footer(std::string(kEveryCommand) + examples);
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

std::string CommandLine::reasonOf(const CLI::ParseError& error) const {
  const std::vector<std::string> words = app_.remaining();
  const auto isWord = [](const std::string& word) { return !word.starts_with('-'); };
  const auto unknown = std::find_if(words.begin(), words.end(), isWord);
  const bool isCommand = app_.get_subcommands().empty() && unknown != words.end();
  return isCommand ? "there is no command " + *unknown : error.what();
}

int CommandLine::parseAndRun(int argc, char** argv) {
  try {
    app_.parse(argc, argv);
  } catch (const CLI::Success& help) {
    return app_.exit(help);
  } catch (const CLI::ParseError& error) {
    std::cerr << "ovlocalize: " << escaped(reasonOf(error)) << " (see ovlocalize --help)\n";
    return 2;
  }
  settings_.isColored = wantsColor(color_);
  if (app_.count("--device") > 0) {
    std::erase(devices_, "");
    settings_.devices = devices_;
  }
  return chosen_();
}

}  // namespace ovlocalize
