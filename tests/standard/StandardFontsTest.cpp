#include <optional>

#include <gtest/gtest.h>
#include <tests/support/Bytes.h>
#include <tests/support/TestApplication.h>

#include <orvanta/standard/LibraryResources.h>
#include <orvanta/standard/StandardFonts.h>
#include <orvanta/standard/TrueTypeFace.h>

namespace orvanta::standard {
namespace {

using test::bigEndian;

std::string utf16(std::string_view text) {
  return test::unitsOf(test::kUtf16Big, text);
}

// One entry of a "name" table, with the bytes of its text.
struct NameRecord {
  std::size_t platform;
  std::size_t id;
  std::string text;
};

// A minimal font file; each part can be made invalid.
struct FontFile {
  std::string signature{"\0\1\0\0", 4};
  std::vector<NameRecord> names{{3, 4, utf16("Test Face")}, {3, 6, utf16("Test-Face")}};
  std::size_t fsSelection = 0;
  std::size_t macStyle = 0;
  bool hasOs2 = true;
  std::string headMagic = "\x5F\x0F\x3C\xF5";
  std::size_t extraNameRecords = 0;  // Claimed, not there.
  std::size_t extraTables = 0;       // Claimed, not there.
  std::size_t extraLength = 0;       // By which the last table is longer than the file.
  std::size_t storageOffsetError = 0;

  [[nodiscard]] std::string nameTable() const {
    std::string records;
    std::string storage;
    for (const NameRecord& name : names) {
      records += bigEndian(name.platform, 2) + bigEndian(name.platform == 3 ? 1 : 0, 2) +
                 bigEndian(0x409, 2) + bigEndian(name.id, 2) + bigEndian(name.text.size(), 2) +
                 bigEndian(storage.size(), 2);
      storage += name.text;
    }
    return bigEndian(0, 2) + bigEndian(names.size() + extraNameRecords, 2) +
           bigEndian(6 + records.size() + storageOffsetError, 2) + records + storage;
  }

  [[nodiscard]] std::string bytes() const {
    std::vector<std::pair<std::string, std::string>> tables;
    if (hasOs2) {
      tables.emplace_back(
          "OS/2", std::string(62, '\0') + bigEndian(fsSelection, 2) + std::string(32, '\0'));
    }
    tables.emplace_back("head", std::string(12, '\0') + headMagic + std::string(28, '\0') +
                                    bigEndian(macStyle, 2) + std::string(8, '\0'));
    tables.emplace_back("name", nameTable());
    std::string directory =
        signature + bigEndian(tables.size() + extraTables, 2) + std::string(6, '\0');
    std::string body;
    const std::size_t bodyStart = directory.size() + 16 * tables.size();
    for (const auto& [tag, table] : tables) {
      const bool last = tag == "name";
      directory += tag + bigEndian(0, 4) + bigEndian(bodyStart + body.size(), 4) +
                   bigEndian(table.size() + (last ? extraLength : 0), 4);
      body += table;
    }
    return directory + body;
  }
};

std::span<const std::byte> bytesOf(const std::string& text) {
  return std::as_bytes(std::span(text));
}

const std::tuple<const char*, FontFile, std::optional<TrueTypeFace>> kFaceRows[] = {
    {"plain", {}, {{"Test-Face", 0}}},
    {"outlines of the other kind", {.signature = "OTTO"}, {{"Test-Face", 0}}},
    {"italic", {.fsSelection = 0x01}, {{"Test-Face", platform::kItalicTrait}}},
    {"bold", {.fsSelection = 0x20}, {{"Test-Face", platform::kBoldTrait}}},
    {"the newer table decides", {.macStyle = 3}, {{"Test-Face", 0}}},
    {"without it the older does",
     {.macStyle = 1, .hasOs2 = false},
     {{"Test-Face", platform::kBoldTrait}}},
    {"a name of one byte a letter", {.names = {{1, 6, "Mac-Face"}}}, {{"Mac-Face", 0}}},
    {"a spoilt name does not hide a good one",
     {.names = {{3, 6, utf16("Test Face")}, {1, 6, "Test-Face"}}},
     {{"Test-Face", 0}}},

    {"a collection", {.signature = "ttcf"}, {}},
    {"no font", {.signature = "wOFF"}, {}},
    {"no magic number", {.headMagic = "\x5F\x0F\x3C\xF4"}, {}},
    {"more tables than the file holds", {.extraTables = 0xFFF0}, {}},
    {"a table longer than the file", {.extraLength = 1}, {}},
    {"a table whose end wraps around", {.extraLength = 0xFFFFFF00}, {}},
    {"more names than the table holds", {.extraNameRecords = 0xFF00}, {}},
    {"texts beyond the table", {.storageOffsetError = 0xF000}, {}},
    {"no PostScript name", {.names = {{3, 4, utf16("Test Face")}}}, {}},
    {"an empty name", {.names = {{3, 6, ""}}}, {}},
    {"half a character", {.names = {{3, 6, utf16("Face") + '\0'}}}, {}},
    {"a name in Arabic", {.names = {{3, 6, "\x06\x27\x06\x28"}}}, {}},
    {"a name with a bracket", {.names = {{3, 6, utf16("Face(1)")}}}, {}},
    {"a name too long", {.names = {{3, 6, utf16(std::string(64, 'a'))}}}, {}},
};

TEST(TrueTypeFace, IsReadOrRefused) {
  for (const auto& [name, file, face] : kFaceRows) {
    EXPECT_EQ(readTrueTypeFace(bytesOf(file.bytes())), face) << name;
  }
}

TEST(TrueTypeFace, AnyPartCutOffIsRefused) {
  const std::string whole = FontFile().bytes();
  for (std::size_t size = 0; size < whole.size(); ++size) {
    const std::string cut = whole.substr(0, size);
    EXPECT_FALSE(readTrueTypeFace(bytesOf(cut))) << size << " of " << whole.size() << " bytes";
  }
}

TEST(StandardFonts, ComeWithTheLicenceOfTheArabicFaces) {
  const std::filesystem::path resources = libraryResourcesPath().str();
  EXPECT_NE(test::contentsOf(resources / "OFL.txt").find("SIL OPEN FONT LICENSE Version 1.1"),
            std::string::npos);
}

TEST(StandardFonts, HaveASystemFaceThatNobodyCanReplace) {
  const auto fonts = makeStandardFonts();
  const auto bold = fonts->systemFontOfSize(13, platform::kFontWeightBold);
  EXPECT_EQ(bold->symbolicTraits(), platform::kBoldTrait);
  EXPECT_EQ(fonts->systemFontOfSize(13, platform::kFontWeightRegular)->symbolicTraits(), 0U);

  const auto italic = bold->fontWithSymbolicTraits(platform::kItalicTrait);
  EXPECT_EQ(italic->symbolicTraits(), platform::kItalicTrait)
      << "traits are replaced, not added to";
  EXPECT_EQ(italic->pointSize(), 13);

  FontFile impostor;
  impostor.names = {{3, 6, utf16("System")}};
  impostor.fsSelection = 0x20;
  EXPECT_FALSE(fonts->registerFontData(bytesOf(impostor.bytes())));
  EXPECT_EQ(fonts->fontWithName("System", 12)->symbolicTraits(), 0U);
  EXPECT_EQ(fonts->fontWithName("Nobody", 12), nullptr);
  EXPECT_EQ(fonts->fontWithName(nullptr, 12), nullptr);
}

}  // namespace
}  // namespace orvanta::standard
