#include <gtest/gtest.h>

#include <orvanta/text/PathString.h>

namespace orvanta {
namespace {

const std::tuple<const char*, const char*, const char*, const char*> kPathRows[] = {
    {"/a/fr-CA.lproj", "fr-CA.lproj", "/a", "/a/fr-CA"},
    {"/a/zh-Hant.lproj/", "zh-Hant.lproj", "/a", "/a/zh-Hant"},
    {"/a/b.d/plain", "plain", "/a/b.d", "/a/b.d/plain"},
    {"/a/.hidden", ".hidden", "/a", "/a/.hidden"},
    {"a.b", "a.b", "", "a"},
    {"/a/b.", "b.", "/a", "/a/b."},
    {"/a/x..strings", "x..strings", "/a", "/a/x."},
    {"/top", "top", "/", "/top"},
    {"/", "/", "/", "/"},
    {"//", "/", "/", "/"},
    {"a/", "a", "", "a"},
    {"plain", "plain", "", "plain"},
    {"", "", "", ""},
    {"file:///a/b%20c/T.strings", "T.strings", "file:///a/b%20c", "file:///a/b%20c/T"},
    {"file:///top", "top", "file:///", "file:///top"},
    {"file://localhost/a/b", "b", "file://localhost/a", "file://localhost/a/b"},
    {"file://localhost/top", "top", "file://localhost/", "file://localhost/top"},
    {"file:/top", "top", "file:/", "file:/top"},
    {"file:/a/b.x/", "b.x", "file:/a", "file:/a/b"},
    {"a/file:/b", "b", "a/file:", "a/file:/b"},
};

TEST(PathString, TakesTextsApart) {
  for (const auto& [text, last, parent, withoutExtension] : kPathRows) {
    SCOPED_TRACE(text);
    EXPECT_EQ(path::lastPathComponent(text), last);
    EXPECT_EQ(path::stringByDeletingLastPathComponent(text), parent);
    EXPECT_EQ(path::stringByDeletingPathExtension(text), withoutExtension);
  }
  const String plain = "/a/plain";
  EXPECT_TRUE(path::stringByDeletingPathExtension(plain).isSameObject(plain));
  EXPECT_EQ(path::stringByAppendingPathComponent("/a", "b"), "/a/b");
  EXPECT_EQ(path::stringByAppendingPathComponent("/a/", "b"), "/a/b");
  EXPECT_TRUE(path::lastPathComponent({}).isAbsent());
  EXPECT_TRUE(path::stringByDeletingLastPathComponent({}).isAbsent());
  EXPECT_TRUE(path::stringByDeletingPathExtension({}).isAbsent());
}

}  // namespace
}  // namespace orvanta
