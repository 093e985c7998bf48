#include <gtest/gtest.h>

#include <orvanta/text/StringList.h>

namespace orvanta {
namespace {

TEST(StringList, IsSplitAndJoined) {
  const std::pair<String, StringList> rows[] = {
      {"a,b", {"a", "b"}},      {"a", {"a"}}, {"", {""}}, {",", {"", ""}}, {",a,", {"", "a", ""}},
      {"a,,b", {"a", "", "b"}}, {{}, {}}};
  for (const auto& [text, pieces] : rows) {
    EXPECT_EQ(componentsSeparatedBy(',', text), pieces) << text;
    EXPECT_EQ(componentsJoinedBy(',', pieces), text) << text;
  }
  EXPECT_EQ(componentsJoinedBy('-', StringList::emptyList()), "");
  EXPECT_EQ(componentsJoinedBy('-', {"a", String(), "b"}), "a--b");
}

TEST(StringList, ComparesEntriesAndKeepsASnapshot) {
  const StringList rows[] = {
      {}, StringList::emptyList(), {"a"}, {String()}, {""}, {"a", "b"}, {"b", "a"}};
  for (const StringList& a : rows) {
    for (const StringList& b : rows) {
      EXPECT_EQ(a == b, &a == &b) << a << ' ' << b;
      EXPECT_EQ(a.isSameObject(b), &a == &b) << a << ' ' << b;
    }
    EXPECT_TRUE(StringList(a).isSameObject(a));
  }
  std::vector<String> items = {"a", "b"};
  const StringList list(items);
  items[0] = "changed";
  EXPECT_EQ(list, StringList({"a", "b"}));
  EXPECT_EQ(list.front(), "a");
  EXPECT_EQ(StringList(list)[1], "b");
  EXPECT_EQ(StringList(list).front(), "a");
  EXPECT_TRUE(rows[0].isAbsent() && rows[0].empty() && rows[1].isPresent() && rows[1].empty());
  EXPECT_TRUE(rows[3].isPresent() && !rows[3].empty());
}

TEST(StringList, IsBuiltUpToTheAnnouncedSize) {
  EXPECT_TRUE(StringList::Builder(3).build().isAbsent()) << "nothing added";
  StringList::Builder builder(3);
  builder.add("a");
  builder.add("b");
  EXPECT_EQ(std::move(builder).build(), StringList({"a", "b"}));
}

}  // namespace
}  // namespace orvanta
