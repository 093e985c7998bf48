// ovlocalize: asks the library about a folder of languages from a shell.
#include <functional>
#include <iostream>

#include <CLI/CLI.hpp>

#include "Commands.h"
#include "Escaping.h"

namespace {

constexpr const char* kDescription =
    "Asks the localization library about an application's languages: the .lproj folders in its\n"
    "bundle, and the tables that it downloaded into its cache.";
constexpr const char* kFooter =
    "Examples:\n"
    "  ovlocalize --bundle demo/bundle languages\n"
    "  ovlocalize --bundle demo/bundle match --country CA fr en\n"
    "  ovlocalize --bundle demo/bundle --device ar lookup signin.title\n"
    "\n"
    "Exit status: 0 when the command did its work, whatever the answer; 1 with one line on "
    "standard\n"
    "error when it could not; 2 with one line when the arguments are wrong.";

// An empty word, such as an unset shell variable gives, must not mean the default: that may be the
// cache of another application.
std::string refuseEmpty(const std::string& word) {
  return word.empty() ? "must not be empty" : "";
}

/// The command's arguments. Each command has a function of its own, which adds its options and what
/// to run.
class CommandLine {
 public:
  CommandLine() : app_(kDescription, "ovlocalize") {
    app_.footer(kFooter);
    app_.require_subcommand(1);
    app_.fallthrough();
    addSettings();
    addLanguages();
    addMatch();
    addLookup();
    addDump();
    addUpdate();
    addClear();
  }

  // Returns the exit status.
  int run(int argc, char** argv) {
    const int status = parseAndRun(argc, argv);
    if (!std::cout.flush()) {
      throw ovlocalize::Failure("the answer could not be written");
    }
    return status;
  }

 private:
  int parseAndRun(int argc, char** argv) {
    try {
      app_.parse(argc, argv);
    } catch (const CLI::CallForHelp& help) {
      return app_.exit(help);
    } catch (const CLI::ParseError& error) {
      std::cerr << "ovlocalize: " << ovlocalize::escaped(error.what())
                << " (see ovlocalize --help)\n";
      return 2;
    }
    if (app_.count("--device") > 0) {
      std::erase(devices_, "");
      settings_.devices = devices_;
    }
    return chosen_();
  }

  CLI::App* addCommand(const char* name, const char* help, std::function<int()> command) {
    CLI::App* added = app_.add_subcommand(name, help);
    added->callback([this, command = std::move(command)] { chosen_ = command; });
    return added;
  }

  void addSettings() {
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

  void addCountry(CLI::App& command) {
    command
        .add_option_function<std::string>(
            "--country", [this](const std::string& country) { request_.country = country; },
            "A country: each two-letter language is first tried with it (fr: fr-CA, then fr)")
        ->type_name("CC");
  }

  void addLanguages() {
    addCommand("languages", "List the languages that exist, shipped and downloaded",
               [this] { return ovlocalize::languages(settings_); });
  }

  void addMatch() {
    CLI::App* match = addCommand("match", "Show which languages a request is matched with",
                                 [this] { return ovlocalize::match(settings_, request_); });
    match
        ->add_option("locales", request_.locales,
                     "The languages asked for, best first (default: the device's languages)")
        ->type_name("LOCALE");
    addCountry(*match);
  }

  void addLookup() {
    CLI::App* lookup = addCommand("lookup", "Print the texts of keys, one a line", [this] {
      return ovlocalize::lookup(settings_, request_, keys_);
    });
    lookup
        ->add_option("--locales", request_.locales,
                     "The languages to look in, best first (default: the device's languages)")
        ->delimiter(',')
        ->allow_extra_args(false)
        ->type_name("a,b");
    addCountry(*lookup);
    lookup->add_option("keys", keys_, "The keys to look up")->required()->type_name("KEY");
  }

  void addDump() {
    CLI::App* dump =
        addCommand("dump",
                   "Print the entries of a strings file in any of its forms; problems in it\n"
                   "go to standard error as FILE:LINE:COLUMN: message",
                   [this] { return ovlocalize::dump(settings_, source_); });
    CLI::Option* file =
        dump->add_option("file", source_.file, "The strings file, or - for standard input")
            ->check(refuseEmpty)
            ->type_name("FILE");
    CLI::Option* language = dump->add_option("--language", source_.language,
                                             "Instead of a file: the table of this language")
                                ->check(refuseEmpty)
                                ->type_name("ID")
                                ->excludes(file);
    dump->parse_complete_callback([file, language] {
      if (file->count() + language->count() == 0) {
        throw CLI::ValidationError("dump", "a FILE or --language ID is required");
      }
    });
  }

  void addUpdate() {
    CLI::App* update =
        addCommand("update",
                   "Write downloaded tables into the cache. The file holds an object from\n"
                   "language to payload; the table of a payload is under B.N.zantorData",
                   [this] { return ovlocalize::update(settings_, download_); });
    update->add_option("--bundle-name", download_.bundleName, "B, the first level of a payload")
        ->required()
        ->type_name("B");
    update->add_option("--namespace", download_.namespaceName, "N, the second level of a payload")
        ->required()
        ->type_name("N");
    update->add_option("file", download_.file, "The JSON file, or - for standard input")
        ->required()
        ->check(refuseEmpty)
        ->type_name("FILE.json");
  }

  void addClear() {
    addCommand("clear", "Delete every downloaded table",
               [this] { return ovlocalize::clear(settings_); });
  }

  CLI::App app_;
  ovlocalize::Settings settings_;
  std::vector<std::string> devices_;
  ovlocalize::Request request_;
  std::vector<std::string> keys_;
  ovlocalize::Source source_;
  ovlocalize::Download download_;
  std::function<int()> chosen_;
};

}  // namespace

int main(int argc, char** argv) {
  try {
    return CommandLine().run(argc, argv);
  } catch (const std::exception& error) {
    std::cerr << "ovlocalize: " << ovlocalize::escaped(error.what()) << '\n';
    return 1;
  }
}
