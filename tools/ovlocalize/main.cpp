// ovlocalize: what the library knows about a folder of languages, from a shell.
#include <functional>
#include <iostream>

#include <CLI/CLI.hpp>

#include "Commands.h"

namespace {

using ovlocalize::Request;
using ovlocalize::Settings;

constexpr const char* kDescription =
    "Asks the localization library about an application's languages: the .lproj folders in its\n"
    "bundle, and the tables that it downloaded into its cache.";
constexpr const char* kFooter =
    "Examples:\n"
    "  ovlocalize --bundle demo/bundle languages\n"
    "  ovlocalize --bundle demo/bundle match --country CA fr en\n"
    "  ovlocalize --bundle demo/bundle --device ar lookup signin.title\n"
    "\n"
    "Ends with 0 when the question was answered, whatever the answer; with 1 and one line on\n"
    "standard error when it could not be; with 2 and such a line when it was not understood.";

// What an unset shell variable gives must not stand for the default: that may be another cache.
std::string refuseEmpty(const std::string& word) {
  return word.empty() ? "must not be empty" : "";
}

void addRequestCountry(CLI::App& command, Request& request) {
  command
      .add_option_function<std::string>(
          "--country", [&request](const std::string& country) { request.country = country; },
          "A country: each two-letter language is first tried with it (fr: fr-CA, then fr)")
      ->type_name("CC");
}

// Ends in the status of the command that was chosen.
int run(int argc, char** argv) {
  CLI::App app(kDescription, "ovlocalize");
  app.footer(kFooter);
  app.require_subcommand(1);
  app.fallthrough();

  Settings settings;
  std::vector<std::string> devices;
  app.add_option("--bundle", settings.bundle,
                 "The application's main bundle: the folder that holds its .lproj folders\n"
                 "(default: the folder of this command)")
      ->check(refuseEmpty)
      ->type_name("DIR");
  app.add_option("--cache", settings.cache,
                 "The caches directory that holds, or will hold, OrvantaLocalizations\n"
                 "(default: this command's own folder in $XDG_CACHE_HOME or ~/.cache)")
      ->check(refuseEmpty)
      ->type_name("DIR");
  const CLI::Option* device =
      app.add_option("--device", devices,
                     "The device's languages, best first (default: LANGUAGE, LC_ALL,\n"
                     "LC_MESSAGES and LANG)")
          ->delimiter(',')
          ->allow_extra_args(false)
          ->type_name("a,b");
  app.add_flag("--json", settings.json, "Answer in JSON, for machines");

  Request request;
  std::vector<std::string> keys;
  std::function<int()> chosen;

  app.add_subcommand("languages", "List the languages that exist, shipped and downloaded")
      ->callback([&] { chosen = [&] { return ovlocalize::languages(settings); }; });

  CLI::App* match = app.add_subcommand("match", "Show what a request for languages comes to");
  match
      ->add_option("locales", request.locales,
                   "What is asked for, best first (default: the device's languages)")
      ->type_name("LOCALE");
  addRequestCountry(*match, request);
  match->callback([&] { chosen = [&] { return ovlocalize::match(settings, request); }; });

  CLI::App* lookup = app.add_subcommand("lookup", "Print the texts of keys, one a line");
  lookup
      ->add_option("--locales", request.locales,
                   "The languages to look in, best first (default: the device's languages)")
      ->delimiter(',')
      ->allow_extra_args(false)
      ->type_name("a,b");
  addRequestCountry(*lookup, request);
  lookup->add_option("keys", keys, "The keys to look up")->required()->type_name("KEY");
  lookup->callback([&] { chosen = [&] { return ovlocalize::lookup(settings, request, keys); }; });

  ovlocalize::Source source;
  CLI::App* dump = app.add_subcommand(
      "dump",
      "Print what a strings file holds, whichever of its forms it is in; what is wrong with\n"
      "it goes to standard error as FILE:LINE:COLUMN: message");
  CLI::Option* file = dump->add_option("file", source.file, "The strings file")->type_name("FILE");
  dump->add_option("--language", source.language, "Instead of a file: the table of this language")
      ->type_name("ID")
      ->excludes(file);
  dump->callback([&] {
    if (source.file.empty() && source.language.empty()) {
      throw CLI::ValidationError("dump", "a FILE or --language ID is required");
    }
    chosen = [&] { return ovlocalize::dump(settings, source); };
  });

  ovlocalize::Download download;
  CLI::App* update = app.add_subcommand(
      "update",
      "Write downloaded tables into the cache: an object from language to payload, as the\n"
      "network gave it; the table of a payload is found under B.N.zantorData");
  update->add_option("--bundle-name", download.bundleName, "B, the first level of a payload")
      ->required()
      ->type_name("B");
  update->add_option("--namespace", download.namespaceName, "N, the second level of a payload")
      ->required()
      ->type_name("N");
  update->add_option("file", download.file, "The JSON file, or - for standard input")
      ->required()
      ->type_name("FILE.json");
  update->callback([&] { chosen = [&] { return ovlocalize::update(settings, download); }; });

  app.add_subcommand("clear", "Delete every downloaded table")->callback([&] {
    chosen = [&] { return ovlocalize::clear(settings); };
  });

  try {
    app.parse(argc, argv);
  } catch (const CLI::CallForHelp& help) {
    return app.exit(help);
  } catch (const CLI::ParseError& error) {
    std::cerr << "ovlocalize: " << error.what() << " (see ovlocalize --help)\n";
    return 2;
  }
  if (device->count() > 0) {
    std::erase(devices, "");
    settings.devices = devices;
  }
  const int status = chosen();
  if (!std::cout.flush()) {
    throw ovlocalize::Failure("the answer could not be written");
  }
  return status;
}

}  // namespace

int main(int argc, char** argv) {
  try {
    return run(argc, argv);
  } catch (const std::exception& error) {
    std::cerr << "ovlocalize: " << error.what() << '\n';
    return 1;
  }
}
