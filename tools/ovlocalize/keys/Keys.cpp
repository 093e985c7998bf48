#include <algorithm>
#include <filesystem>
#include <iostream>
#include <map>
#include <memory>
#include <set>
#include <system_error>

#include <fnmatch.h>

#include <orvanta/strings/reader/StringTableReader.h>

#include "../Color.h"
#include "../CommandLine.h"
#include "../Commands.h"
#include "../Escaping.h"
#include "../FileContents.h"
#include "../Json.h"
#include "../Tables.h"
#include "SourceKeys.h"

namespace ovlocalize {

namespace {

namespace fs = std::filesystem;

struct KeysRequest {
  std::vector<std::string> sources;    ///< Files, and folders that are searched for sources.
  std::vector<std::string> functions;  ///< Further functions whose first argument is a key.
  std::vector<std::string> keep;       ///< Patterns of keys that count as used.
  std::vector<std::string> ignored;    ///< Patterns of keys that English need not have.
};

bool isSource(const fs::path& path) {
  static const std::set<std::string> extensions = {".c",   ".cc", ".cpp", ".cxx", ".h",   ".hh",
                                                   ".hpp", ".mm", ".qml", ".js",  ".mjs", ".ui"};
  return extensions.contains(path.extension().string());
}

// The sources below the folders, and the files that are named themselves, sorted and once each.
std::vector<std::string> sourcesIn(const std::vector<std::string>& paths) {
  std::set<std::string> files;
  for (const std::string& path : paths) {
    std::error_code error;
    if (!fs::is_directory(path, error)) {
      files.insert(path);
      continue;
    }
    for (fs::recursive_directory_iterator entry(path, error), end; !error && entry != end;
         entry.increment(error)) {
      if (isSource(entry->path()) && entry->is_regular_file()) {
        files.insert(entry->path().string());
      }
    }
    if (error) {
      throw Failure("cannot read the folder " + path + ": " + error.message());
    }
  }
  return {files.begin(), files.end()};
}

struct Report {
  std::size_t sources = 0;
  std::map<std::string, std::vector<KeyUse>> missing;  ///< Used, and not in English.
  std::vector<std::string> unused;                     ///< In English, and used nowhere.
  std::vector<KeyUse> computed;                        ///< Calls whose key is no literal.
  std::size_t found = 0;                               ///< Keys used and in English.
};

bool matches(const std::string& key, const std::vector<std::string>& patterns) {
  return std::any_of(patterns.begin(), patterns.end(), [&](const std::string& pattern) {
    return fnmatch(pattern.c_str(), key.c_str(), 0) == 0;
  });
}

std::vector<KeyUse> usesIn(const std::vector<std::string>& files, const KeysRequest& request) {
  std::vector<KeyFunction> functions = libraryKeyFunctions();
  for (const std::string& name : request.functions) {
    functions.push_back({name, 0, 0, ""});
  }
  std::vector<KeyUse> uses;
  for (const std::string& file : files) {
    const std::string contents = contentsOf(file);
    if (file.ends_with(".ui")) {
      collectFormKeys(contents, file, uses);
    } else {
      collectSourceKeys(contents, file, functions, uses);
    }
  }
  return uses;
}

Report reportOn(const Settings& settings, const KeysRequest& request) {
  std::set<std::string> english;
  const auto table = tableOfLanguage(settings, "en");
  for (const auto& [key, value] : table->entries()) {
    english.emplace(key);
  }
  const std::vector<std::string> files = sourcesIn(request.sources);
  Report report;
  report.sources = files.size();
  std::set<std::string> used;
  for (KeyUse& use : usesIn(files, request)) {
    if (use.key.empty()) {
      report.computed.push_back(std::move(use));
    } else if (english.contains(use.key)) {
      used.insert(std::move(use.key));
    } else if (!matches(use.key, request.ignored)) {
      report.missing[use.key].push_back(use);
    }
  }
  report.found = used.size();
  for (const std::string& key : english) {
    if (!used.contains(key) && !isConfigurationKey(key) && !matches(key, request.keep)) {
      report.unused.push_back(key);
    }
  }
  return report;
}

Json placesOf(const std::vector<KeyUse>& uses) {
  Json places = Json::array();
  for (const KeyUse& use : uses) {
    places.push_back({{"file", use.file}, {"line", use.line}});
  }
  return places;
}

void printForMachines(const Report& report) {
  Json missing = Json::array();
  for (const auto& [key, uses] : report.missing) {
    missing.push_back({{"key", key}, {"uses", placesOf(uses)}});
  }
  std::cout << printed({{"sources", report.sources},
                        {"found", report.found},
                        {"missing", std::move(missing)},
                        {"unused", report.unused},
                        {"computed", placesOf(report.computed)}})
            << '\n';
}

void printForPeople(const Settings& settings, const Report& report) {
  const std::string error = painted(settings.isColored, Tone::kError, "error");
  const std::string warning = painted(settings.isColored, Tone::kWarning, "warning");
  for (const auto& [key, uses] : report.missing) {
    for (const KeyUse& use : uses) {
      std::cout << escaped(use.file) << ':' << use.line << ": " << error << ": the key "
                << quoted(key) << " is not in English\n";
    }
  }
  for (const std::string& key : report.unused) {
    std::cout << warning << ": the key " << quoted(key) << " is used nowhere\n";
  }
  std::cout << report.sources << " sources: " << report.found << " keys found, "
            << report.missing.size() << " missing, " << report.unused.size() << " unused, "
            << report.computed.size() << " calls with a computed key\n";
}

int keys(const Settings& settings, const KeysRequest& request) {
  const Report report = reportOn(settings, request);
  settings.json ? printForMachines(report) : printForPeople(settings, report);
  return report.missing.empty() ? 0 : 1;
}

}  // namespace

void addKeys(CommandLine& commands) {
  const auto request = std::make_shared<KeysRequest>();
  CLI::App& command = commands.add(
      "keys",
      "Compare the keys that sources use with those of English: a key that English lacks is\n"
      "an error, one that nobody uses a warning. Sources are C++, QML and JavaScript files,\n"
      "where keys are literals handed to the library, and Qt Designer forms",
      "  ovlocalize --bundle demo/bundle keys src forms\n"
      "  ovlocalize --bundle demo/bundle keys --keep 'order.*' --function tr src\n"
      "  ovlocalize --bundle demo/bundle keys --ignore 'test.*' src tests",
      [request](const Settings& settings) { return keys(settings, *request); });
  command.add_option("sources", request->sources, "Source files and folders")
      ->required()
      ->check(refuseEmpty)
      ->type_name("PATH");
  command
      .add_option("--keep", request->keep,
                  "Keys that match this shell pattern count as used: those that the program\n"
                  "computes. May be given more than once")
      ->allow_extra_args(false)
      ->type_name("PATTERN");
  command
      .add_option("--ignore", request->ignored,
                  "Keys that match this shell pattern are no error where English lacks them. May\n"
                  "be given more than once")
      ->allow_extra_args(false)
      ->type_name("PATTERN");
  command
      .add_option("--function", request->functions,
                  "A further function whose first argument is a key. May be given more than once")
      ->allow_extra_args(false)
      ->type_name("NAME");
}

}  // namespace ovlocalize
