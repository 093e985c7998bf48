// What is written reads back equal, for whatever needs no escape in the format.
#include <map>
#include <random>

#include <gtest/gtest.h>

#include <orvanta/cache/OVStringCacheUtilities.h>
#include <orvanta/cache/TableWriter.h>
#include <orvanta/platform/Utf8.h>
#include <orvanta/platform/standard/strings/StringTableReader.h>

#include "../support/UpdateFixture.h"

namespace orvanta {
namespace {

std::string randomText(std::mt19937& random) {
  // Control characters, ASCII, two and three bytes in UTF-8, and beyond the basic plane.
  constexpr std::pair<char32_t, char32_t> kRanges[] = {
      {0x1, 0x1F}, {0x20, 0x7E}, {0x20, 0x7E}, {0x80, 0x7FF}, {0x800, 0xFFFD}, {0x1F300, 0x1F6FF}};
  std::string text;
  for (auto left = std::uniform_int_distribution<int>(1, 40)(random); left > 0; --left) {
    const auto& range = kRanges[std::uniform_int_distribution<std::size_t>(0, 5)(random)];
    const char32_t character =
        std::uniform_int_distribution<std::uint32_t>(range.first, range.second)(random);
    if (character != '"' && character != '\\') {
      utf8::append(text, character);
    }
  }
  return text.empty() ? "x" : text;
}

TEST(RoundTrip, WhatIsWrittenReadsBackEqual) {
  std::mt19937 random(20261124);
  for (int table = 0; table < 300; ++table) {
    std::map<std::string, std::string> pairs;
    for (int pair = 0; pair < 40; ++pair) {
      pairs[randomText(random)] = randomText(random);
    }
    const String text =
        OVStringCacheUtilities::localizableStringsFile(test::tableOf({pairs.begin(), pairs.end()}));
    const auto read = platform::standard::readStringTable(
        utf16WithByteOrderMark(text.view()).value(),
        [](const platform::standard::TableProblem& problem) {
          ADD_FAILURE() << problem.line << ": " << problem.message;
        });
    ASSERT_NE(read, nullptr);
    EXPECT_EQ(read->size(), pairs.size());
    for (const auto& [key, value] : pairs) {
      ASSERT_EQ(read->textForKey(HashedKey(key)).str(), value) << "under " << key;
    }
  }
}

}  // namespace
}  // namespace orvanta
