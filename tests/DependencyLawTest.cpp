// Reads the includes of every file and holds them to the direction in which this library is built.
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace {

namespace fs = std::filesystem;

using Includes = std::map<std::string, std::vector<std::string>>;

// What each file below orvanta/ includes, paths relative to the source folder.
Includes includesOfTheLibrary() {
  static const std::regex kInclude(R"(^\s*#\s*include\s*[<"]([^>"]+)[>"])");
  const fs::path root = ORVANTA_SOURCE_DIR;
  Includes includes;
  for (const auto& entry : fs::recursive_directory_iterator(root / "orvanta")) {
    const std::string extension = entry.path().extension();
    if (extension != ".h" && extension != ".cpp") {
      continue;
    }
    auto& list = includes[fs::relative(entry.path(), root).generic_string()];
    std::ifstream file(entry.path());
    for (std::string line; std::getline(file, line);) {
      std::smatch match;
      if (std::regex_search(line, match, kInclude)) {
        list.push_back(match[1]);
      }
    }
  }
  return includes;
}

// The storey that a file stands on; a file may include its own storey and those below. Platform
// implementations stand beside the house and see its whole ground floor, the Qt one all of it.
int storeyOf(const std::string& file) {
  const auto in = [&](const char* folder) { return file.starts_with(folder); };
  if (in("orvanta/platform/qt/")) return 9;
  if (in("orvanta/platform/standard/")) return 1;
  if (in("orvanta/platform/") || file == "orvanta/Export.h") return 0;
  if (in("orvanta/locale/OVLocale.") || in("orvanta/locale/LanguagePart.")) return 2;
  if (in("orvanta/locale/SystemInfo.") || in("orvanta/locale/Version.")) return 2;
  if (in("orvanta/cache/")) return 3;
  if (in("orvanta/locale/")) return 4;
  if (in("orvanta/fonts/")) return 5;
  if (in("orvanta/controls/")) return 6;
  return 8;
}

bool isPlatformImplementation(const std::string& file) {
  return file.starts_with("orvanta/platform/standard/") || file.starts_with("orvanta/platform/qt/");
}

TEST(DependencyLaw, IncludesPointDownwards) {
  const Includes includes = includesOfTheLibrary();
  ASSERT_GT(includes.size(), 20U);
  for (const auto& [file, list] : includes) {
    for (const std::string& included : list) {
      if (!included.starts_with("orvanta/")) {
        continue;
      }
      EXPECT_TRUE(includes.contains(included)) << file << " includes the missing " << included;
      const bool installsTheDefault = file == "orvanta/platform/DefaultPlatform.cpp";
      if (!installsTheDefault) {
        EXPECT_GE(storeyOf(file), storeyOf(included)) << file << " includes " << included;
        EXPECT_TRUE(isPlatformImplementation(file) || !isPlatformImplementation(included))
            << file << " includes the platform implementation " << included;
      }
    }
  }
}

TEST(DependencyLaw, OnlyTheQtPlatformIncludesQt) {
  static const std::regex kQtHeader("^(Q[A-Z][A-Za-z]*|Qt[A-Z][A-Za-z]*/.*)$");
  for (const auto& [file, list] : includesOfTheLibrary()) {
    for (const std::string& included : list) {
      EXPECT_TRUE(file.starts_with("orvanta/platform/qt/") ||
                  !std::regex_match(included, kQtHeader))
          << file << " includes " << included;
    }
  }
}

// The files that a file leads back to itself through, if any.
bool reaches(const Includes& includes, const std::string& from, const std::string& to,
             std::set<std::string>& seen) {
  const auto found = includes.find(from);
  return found != includes.end() &&
         std::any_of(found->second.begin(), found->second.end(), [&](const std::string& next) {
           return next == to || (seen.insert(next).second && reaches(includes, next, to, seen));
         });
}

TEST(DependencyLaw, NoFileLeadsBackToItself) {
  const Includes includes = includesOfTheLibrary();
  for (const auto& [file, list] : includes) {
    std::set<std::string> seen;
    EXPECT_FALSE(reaches(includes, file, file, seen)) << file << " includes itself by a detour";
  }
}

}  // namespace
