#include "Documents.h"

#include <filesystem>
#include <system_error>

#include "../CommandLine.h"
#include "../FileContents.h"

namespace ovlocalize {

namespace {

namespace fs = std::filesystem;

// A check for CLI11: the error message for a word that is not a single file name, else empty.
std::string refusePath(const std::string& word) {
  return word.empty() || word.find('/') != std::string::npos ? "must be a name, not a path" : "";
}

}  // namespace

void addTableOptions(CLI::App& command, TableRequest& request) {
  command.add_option("--language", request.language, "The language that is translated to")
      ->required()
      ->check(refusePath)
      ->type_name("ID");
  command
      .add_option("--from", request.source, "The language that is translated from (default: en)")
      ->check(refusePath)
      ->type_name("ID");
  command
      .add_option("--table", request.table,
                  "The strings file, without .strings (default: Localizable)")
      ->check(refusePath)
      ->type_name("NAME");
}

std::string fileInBundle(const Settings& settings, const std::string& language,
                         const std::string& table) {
  if (settings.bundle.empty()) {
    throw Failure("name the folder of the languages with --bundle");
  }
  std::error_code ignored;
  if (!fs::is_directory(settings.bundle, ignored)) {
    throw Failure("no such bundle folder: " + settings.bundle);
  }
  return (fs::path(settings.bundle) / (language + ".lproj") / (table + ".strings")).string();
}

orvanta::strings::StringsDocument documentIn(const std::string& file, Missing missing) {
  // Only a file that is known not to be there is an empty one.
  std::error_code error;
  const bool isThere =
      missing == Missing::kRefused || fs::status(file, error).type() != fs::file_type::not_found;
  auto document = orvanta::strings::StringsDocument::read(isThere ? contentsOf(file) : "");
  if (!document) {
    throw Failure(file + " is not a strings file");
  }
  return *std::move(document);
}

}  // namespace ovlocalize
