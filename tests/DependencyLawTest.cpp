// Reads the includes of every file and holds them to the direction in which this library is built.
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace {

namespace fs = std::filesystem;

using Includes = std::map<std::string, std::vector<std::string>>;

// What a line includes; empty when it includes nothing.
std::string includedBy(const std::string& line) {
  const std::size_t start = line.find_first_of("<\"");
  if (!line.starts_with("#include") || start == std::string::npos) {
    return {};
  }
  return line.substr(start + 1, line.find_first_of(">\"", start + 1) - start - 1);
}

// What each file below orvanta/ includes, paths relative to the source folder.
Includes includesOfTheLibrary() {
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
      if (std::string included = includedBy(line); !included.empty()) {
        list.push_back(std::move(included));
      }
    }
  }
  return includes;
}

// The storey that a file stands on; a file may include its own storey and those below. Platform
// implementations stand beside the house and see its whole ground floor, the Qt one all of it.
int storeyOf(const std::string& file) {
  static constexpr std::pair<const char*, int> kStoreys[] = {
      {"orvanta/platform/qt/", 9},
      {"orvanta/platform/standard/", 1},
      {"orvanta/platform/", 0},
      {"orvanta/Export.h", 0},
      {"orvanta/locale/OVLocale.", 2},
      {"orvanta/locale/LanguagePart.", 2},
      {"orvanta/locale/SystemInfo.", 2},
      {"orvanta/locale/Version.", 2},
      {"orvanta/cache/", 3},
      {"orvanta/locale/", 4},
      {"orvanta/fonts/", 5},
      {"orvanta/controls/", 6},
      {"orvanta/", 8},
  };
  return std::find_if(std::begin(kStoreys), std::end(kStoreys),
                      [&](const auto& row) { return file.starts_with(row.first); })
      ->second;
}

bool isPlatformImplementation(const std::string& file) {
  return file.starts_with("orvanta/platform/standard/") || file.starts_with("orvanta/platform/qt/");
}

// "QWidget" or "QtCore/...": a capital Q and a capital or a t after it.
bool isQtHeader(const std::string& header) {
  return header.size() > 1 && header[0] == 'Q' &&
         (header[1] == 't' || (header[1] >= 'A' && header[1] <= 'Z'));
}

TEST(DependencyLaw, IncludesPointDownwards) {
  const Includes includes = includesOfTheLibrary();
  ASSERT_GT(includes.size(), 20U);
  for (const auto& [file, list] : includes) {
    for (const std::string& included : list) {
      SCOPED_TRACE(testing::Message() << file << " includes " << included);
      EXPECT_TRUE(file.starts_with("orvanta/platform/qt/") || !isQtHeader(included));
      if (!included.starts_with("orvanta/")) {
        continue;
      }
      EXPECT_TRUE(includes.contains(included)) << "which is missing";
      if (file != "orvanta/platform/DefaultPlatform.cpp") {  // Installs the default.
        EXPECT_GE(storeyOf(file), storeyOf(included));
        EXPECT_TRUE(isPlatformImplementation(file) || !isPlatformImplementation(included));
      }
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
