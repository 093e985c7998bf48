#include <gtest/gtest.h>

#include <orvanta/text/URL.h>

namespace orvanta {
namespace {

TEST(URL, AcceptsTheCharactersThatAURLMayHold) {
  constexpr std::string_view kRefused = "\"<>[\\]^`{|}%";  // A "%" alone.
  for (int byte = 0; byte < 256; ++byte) {
    const std::string text = std::string("x:/") + static_cast<char>(byte);
    const bool isAccepted = byte > 0x20 && byte < 0x7F &&
                            kRefused.find(static_cast<char>(byte)) == std::string_view::npos;
    EXPECT_EQ(URL::URLWithString(text).absoluteString(), isAccepted ? String(text) : String())
        << byte;
  }
  for (const char* text : {"%41", "%aF/", "a%09%fa", "%90%AF", "x?y#z"}) {
    EXPECT_EQ(URL::URLWithString(text).absoluteString(), text);
  }
  for (const char* text : {"", "%", "%4", "%4g", "%G4", "%:0", "%/0", "%0@", "%0`", "a%41%"}) {
    EXPECT_TRUE(URL::URLWithString(text).isAbsent()) << text;
  }
  EXPECT_TRUE(URL::URLWithString({}).isAbsent());
}

TEST(URL, GivesThePathOfAFile) {
  const std::pair<const char*, const char*> rows[] = {// Null: no path.
                                                      {"file:///a/b", "/a/b"},
                                                      {"file:///a%20b/%C3%a9%2F", "/a b/\u00E9"},
                                                      {"file:///a/b///", "/a/b"},
                                                      {"file:///", "/"},
                                                      {"file:////", "/"},
                                                      {"file://localhost/a", "/a"},
                                                      {"file://localhost", ""},
                                                      {"file:/a", "/a"},
                                                      {"file:a", "a"},
                                                      {"file:///a?b/c", "/a"},
                                                      {"file:///a#b/c", "/a"},
                                                      {"file:///a/../b", "/a/../b"},
                                                      {"file:///a%00b", nullptr},
                                                      {"https://host/a", nullptr},
                                                      {"/a", nullptr}};
  for (const auto& [text, path] : rows) {
    const URL url = URL::URLWithString(text);
    ASSERT_TRUE(url.isPresent()) << text;
    EXPECT_EQ(url.path(), path) << text;
  }
  EXPECT_TRUE(URL().path().isAbsent());
}

TEST(URL, IsMadeOfAPathAndComponents) {
  // The path as a file and as a folder, with the file "x y" and with the folder "z/".
  const std::tuple<const char*, const char*, const char*, const char*, const char*> rows[] = {
      {"/a b", "file:///a%20b", "file:///a%20b/", "file:///a%20b/x%20y", "file:///a%20b/z/"},
      {"/a/", "file:///a/", "file:///a/", "file:///a/x%20y", "file:///a/z/"},
      {"/", "file:///", "file:///", "file:///x%20y", "file:///z/"},
      {"/\u00E9%?#", "file:///%C3%A9%25%3F%23", "file:///%C3%A9%25%3F%23/",
       "file:///%C3%A9%25%3F%23/x%20y", "file:///%C3%A9%25%3F%23/z/"},
  };
  for (const auto& [path, asFile, asFolder, child, childFolder] : rows) {
    SCOPED_TRACE(path);
    const URL file = URL::fileURLWithPath(path, false);
    EXPECT_EQ(file.absoluteString(), asFile);
    EXPECT_EQ(URL::fileURLWithPath(path, true).absoluteString(), asFolder);
    EXPECT_EQ(file.URLByAppendingPathComponent("x y", false).absoluteString(), child);
    EXPECT_EQ(file.URLByAppendingPathComponent("z", true).absoluteString(), childFolder);
    EXPECT_EQ(file.URLByAppendingPathComponent("z/", true).absoluteString(), childFolder);
    EXPECT_EQ(file == URL::fileURLWithPath(path, true), file.absoluteString() == asFolder);
  }
  EXPECT_TRUE(URL::fileURLWithPath({}, true).isAbsent());
  EXPECT_TRUE(URL().URLByAppendingPathComponent("x", false).isAbsent());

  std::string path = "/";
  for (int byte = 1; byte < 256; ++byte) {
    path += static_cast<char>(byte);
  }
  const URL url = URL::fileURLWithPath(path, false);
  EXPECT_EQ(url.path(), path);
  EXPECT_EQ(URL::URLWithString(url.absoluteString()), url) << "escaped to what a URL may hold";
}

}  // namespace
}  // namespace orvanta
