// Reads every file of the library and checks which rooms it depends on: by its includes, its
// forward declarations and its friends.
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>

#include <gtest/gtest.h>

namespace {

namespace fs = std::filesystem;

using FileLists = std::map<std::string, std::vector<std::string>>;

struct Sources {
  FileLists includes;     // By file, paths relative to the source folder.
  FileLists declares;     // By file: the types that it names in forward declarations and friends.
  FileLists definitions;  // By type name: the files that define it.
};

void readLine(const std::string& file, const std::string& line, Sources& sources) {
  static const std::regex include(R"(^#include [<"]([^>"]+)[>"])");
  static const std::regex declaration(
      R"(^\s*(?:friend\s+)?(?:class|struct|enum class)\s+(?:\w+::)*(\w+)\s*;)");
  static const std::regex definition(
      R"(^\s*(?:class|struct|enum class)\s+(?:[A-Z_]+\s+)?(\w+)(?:\s+final)?\s*(?::[^:;].*)?\{)");
  std::smatch match;
  if (std::regex_search(line, match, include)) {
    sources.includes[file].push_back(match[1]);
  } else if (std::regex_search(line, match, declaration)) {
    sources.declares[file].push_back(match[1]);
  } else if (std::regex_search(line, match, definition)) {
    sources.definitions[match[1]].push_back(file);
  }
}

Sources readLibrary() {
  const fs::path root = ORVANTA_SOURCE_DIR;
  Sources sources;
  for (const auto& entry : fs::recursive_directory_iterator(root / "orvanta")) {
    const std::string extension = entry.path().extension();
    if (extension != ".h" && extension != ".cpp") {
      continue;
    }
    const std::string file = fs::relative(entry.path(), root).generic_string();
    sources.includes[file];
    std::ifstream in(entry.path());
    for (std::string line; std::getline(in, line);) {
      readLine(file, line, sources);
    }
  }
  return sources;
}

// A room by the beginning of its files' paths, and the rooms it stands on directly. The longest
// beginning that fits a path decides; the record of a language stands below the cache, although its
// folder is that of the `Localizer`.
struct Room {
  const char* path;
  std::vector<const char*> standsOn;
};
const std::vector<Room>& rooms() {
  static const char* const kRecord = "orvanta/locale/OVLocale.";
  static const std::vector<Room> all = {
      {"orvanta/Export.h", {}},
      {"orvanta/text/", {"orvanta/Export.h"}},
      {"orvanta/strings/", {"orvanta/text/"}},
      {"orvanta/platform/", {"orvanta/strings/"}},
      {"orvanta/standard/", {"orvanta/platform/"}},
      {"orvanta/locale/LanguagePart.", {"orvanta/platform/"}},
      {"orvanta/locale/SystemInfo.", {"orvanta/platform/"}},
      {"orvanta/locale/Version.", {"orvanta/Export.h"}},
      {kRecord, {"orvanta/locale/LanguagePart."}},
      {"orvanta/cache/", {kRecord}},
      {"orvanta/locale/",
       {"orvanta/cache/", "orvanta/locale/SystemInfo.", "orvanta/locale/Version."}},
      {"orvanta/messages/", {"orvanta/locale/"}},
      {"orvanta/fonts/", {"orvanta/locale/"}},
      {"orvanta/controls/", {"orvanta/fonts/"}},
      {"orvanta/orvanta.h", {"orvanta/controls/", "orvanta/messages/"}},
      {"orvanta/qt/", {"orvanta/orvanta.h", "orvanta/standard/"}},
      {"orvanta/quick/", {"orvanta/qt/"}},
  };
  return all;
}

const Room* roomOf(const std::string& file) {
  const Room* best = nullptr;
  for (const Room& room : rooms()) {
    if (file.starts_with(room.path) &&
        (best == nullptr || std::string(room.path).size() > std::string(best->path).size())) {
      best = &room;
    }
  }
  return best;
}

bool mayDependOn(const Room& room, const Room& other) {
  return &room == &other ||
         std::any_of(room.standsOn.begin(), room.standsOn.end(),
                     [&](const char* below) { return mayDependOn(*roomOf(below), other); });
}

bool mayDependOn(const std::string& file, const std::string& other) {
  const Room* const from = roomOf(file);
  const Room* const to = roomOf(other);
  return from != nullptr && to != nullptr && mayDependOn(*from, *to);
}

// "QWidget" or "QtCore/...": a capital Q and a capital or a t after it.
bool isQtHeader(const std::string& header) {
  return header.size() > 1 && header[0] == 'Q' &&
         (header[1] == 't' || (header[1] >= 'A' && header[1] <= 'Z'));
}

TEST(DependencyLaw, IncludesPointDownwards) {
  const Sources sources = readLibrary();
  ASSERT_GT(sources.includes.size(), 20U);
  for (const auto& [file, list] : sources.includes) {
    EXPECT_NE(roomOf(file), nullptr) << file << " stands in no room";
    const bool knowsQt = file.starts_with("orvanta/qt/") || file.starts_with("orvanta/quick/");
    for (const std::string& included : list) {
      SCOPED_TRACE(testing::Message() << file << " includes " << included);
      EXPECT_TRUE(knowsQt || !isQtHeader(included));
      if (included.starts_with("orvanta/")) {
        EXPECT_TRUE(sources.includes.contains(included)) << "which is missing";
        EXPECT_TRUE(mayDependOn(file, included));
      }
    }
  }
}

TEST(DependencyLaw, ForwardDeclarationsAndFriendsPointDownwards) {
  const Sources sources = readLibrary();
  ASSERT_FALSE(sources.declares.empty());
  for (const auto& [file, names] : sources.declares) {
    for (const std::string& name : names) {
      const auto found = sources.definitions.find(name);
      if (found == sources.definitions.end()) {
        continue;  // Not a type of this library.
      }
      EXPECT_TRUE(std::any_of(
          found->second.begin(), found->second.end(),
          [&, &from = file](const std::string& other) { return mayDependOn(from, other); }))
          << file << " declares " << name << " of " << found->second.front();
    }
  }
}

// Whether a file leads to another through any number of includes.
bool reaches(const FileLists& includes, const std::string& from, const std::string& to,
             std::set<std::string>& seen) {
  const auto found = includes.find(from);
  return found != includes.end() &&
         std::any_of(found->second.begin(), found->second.end(), [&](const std::string& next) {
           return next == to || (seen.insert(next).second && reaches(includes, next, to, seen));
         });
}

TEST(DependencyLaw, NoFileLeadsBackToItself) {
  const Sources sources = readLibrary();
  for (const auto& [file, list] : sources.includes) {
    std::set<std::string> seen;
    EXPECT_FALSE(reaches(sources.includes, file, file, seen)) << file << " includes itself";
  }
}

}  // namespace
