#include <cerrno>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <string>

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <tests/support/TestApplication.h>
#include <unistd.h>

#include <orvanta/platform/standard/StandardFiles.h>

namespace orvanta::platform::standard {
namespace {

namespace fs = std::filesystem;
using testing::UnorderedElementsAre;

std::string contentOf(const fs::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

// The errno of a failure; 0 for success.
std::uint64_t codeOf(const FileOutcome& outcome) {
  EXPECT_TRUE(!outcome || !outcome->localizedDescription.empty());
  return outcome ? outcome->code : 0;
}

class StandardFiles : public testing::Test {
 protected:
  [[nodiscard]] fs::path at(std::string_view name) const { return scratch_.path() / name; }
  [[nodiscard]] String path(std::string_view name) const { return at(name).native(); }
  [[nodiscard]] URL url(std::string_view name, bool isDirectory = false) const {
    return URL::fileURLWithPath(path(name), isDirectory);
  }

  test::ScratchFolder scratch_;
  std::shared_ptr<FileManager> files_ = makeFileManager({});
};

TEST_F(StandardFiles, TellWhatIsThere) {
  test::writeFile(at("file \u00E9"), "12345");
  fs::create_directory(at("folder"));
  fs::create_symlink("file \u00E9", at("link"));
  fs::create_symlink("folder", at("folderLink"));
  fs::create_symlink("nowhere", at("dangling"));
  ASSERT_EQ(::mkfifo(at("fifo").c_str(), 0600), 0);
  const struct {
    const char* name;
    ItemKind kind;
    bool exists;
    bool hasStamp;
  } kRows[] = {
      {"file \u00E9", ItemKind::file, true, true},
      {"folder", ItemKind::directory, true, false},
      {"link", ItemKind::symbolicLink, true, true},
      {"folderLink", ItemKind::symbolicLink, true, false},
      {"folderLink/.", ItemKind::directory, true, false},
      {"dangling", ItemKind::symbolicLink, false, false},
      {"fifo", ItemKind::other, true, false},
      {"none", ItemKind::missing, false, false},
      {"file \u00E9/none", ItemKind::missing, false, false},
  };
  for (const auto& row : kRows) {
    SCOPED_TRACE(row.name);
    EXPECT_EQ(files_->itemKindAtPath(path(row.name)), row.kind);
    EXPECT_EQ(files_->fileExistsAtPath(path(row.name)), row.exists);
    EXPECT_EQ(files_->stampOfFileAtPath(path(row.name)).has_value(), row.hasStamp);
    EXPECT_EQ(files_->openFileForReading(path(row.name)) != nullptr, row.hasStamp);
  }
  EXPECT_EQ(files_->stampOfFileAtPath(path("link")),
            files_->stampOfFileAtPath(path("file \u00E9")));
  EXPECT_EQ(files_->stampOfFileAtPath(path("link"))->size, 5U);
}

// Paths that name nothing: no operation may take them for something else.
TEST_F(StandardFiles, KnowNothingAtWhatIsNoPath) {
  test::writeFile(at("file"), "x");
  const std::string cutByNul = at("file").native() + std::string("\0x", 2);
  for (const String& none : {String(), String(""), String("file"), String("."), String(cutByNul),
                             String("file://" + path("file").str())}) {
    SCOPED_TRACE(none);
    EXPECT_FALSE(files_->fileExistsAtPath(none));
    EXPECT_EQ(files_->itemKindAtPath(none), ItemKind::missing);
    EXPECT_EQ(files_->openFileForReading(none), nullptr);
    EXPECT_EQ(files_->createFile(none).file, nullptr);
    EXPECT_NE(codeOf(files_->createFile(none).outcome), 0U);
    EXPECT_NE(codeOf(files_->moveItemReplacing(path("file"), none)), 0U);
    EXPECT_NE(codeOf(files_->syncDirectory(none)), 0U);
    EXPECT_NE(codeOf(files_->removeFileUnlessInUse(none)), 0U);
  }
  const URL noFile = URL::URLWithString("https://example.org/x");
  for (const URL& none : {URL(), noFile}) {
    EXPECT_NE(codeOf(files_->createDirectoryAtURL(none)), 0U);
    EXPECT_NE(codeOf(files_->removeItemAtURL(none)), 0U);
    EXPECT_TRUE(files_->contentsOfDirectoryAtURL(none).empty());
    files_->enumerateDirectoryAtURL(none, [](const URL&, bool) { ADD_FAILURE(); });
  }
  EXPECT_EQ(contentOf(at("file")), "x");
}

TEST_F(StandardFiles, StampTellsStatesApart) {
  test::writeFile(at("file"), "one");
  const auto first = files_->stampOfFileAtPath(path("file"));
  EXPECT_EQ(first, files_->stampOfFileAtPath(path("file")));
  test::writeFile(at("other"), "two");
  ASSERT_EQ(codeOf(files_->moveItemReplacing(path("other"), path("file"))), 0U);
  EXPECT_NE(files_->stampOfFileAtPath(path("file")), first) << "another file";
  const auto second = files_->stampOfFileAtPath(path("file"));
  fs::last_write_time(at("file"), fs::last_write_time(at("file")) - std::chrono::nanoseconds(100));
  EXPECT_NE(files_->stampOfFileAtPath(path("file")), second) << "another time";
}

TEST_F(StandardFiles, MakeFoldersWithTheirParents) {
  EXPECT_EQ(codeOf(files_->createDirectoryAtURL(url("a/b c/\u00E9", true))), 0U);
  EXPECT_EQ(codeOf(files_->createDirectoryAtURL(url("a/b c/\u00E9", true))), 0U);
  EXPECT_TRUE(fs::is_directory(at("a/b c/\u00E9")));
  test::writeFile(at("file"), "");
  EXPECT_NE(codeOf(files_->createDirectoryAtURL(url("file", true))), 0U);
  EXPECT_NE(codeOf(files_->createDirectoryAtURL(url("file/x", true))), 0U);
  fs::create_symlink("nowhere", at("dangling"));
  EXPECT_NE(codeOf(files_->createDirectoryAtURL(url("dangling", true))), 0U);
}

TEST_F(StandardFiles, ListAFolderWithItsHiddenEntries) {
  test::writeFile(at("in/a b.txt"), "");
  test::writeFile(at("in/.hidden"), "");
  test::writeFile(at("in/sub/deep"), "");
  fs::create_symlink("sub", at("in/link"));
  EXPECT_THAT(files_->contentsOfDirectoryAtURL(url("in", true)),
              UnorderedElementsAre(url("in/a b.txt"), url("in/.hidden"), url("in/sub", true),
                                   url("in/link")));
  EXPECT_TRUE(files_->contentsOfDirectoryAtURL(url("in/a b.txt")).empty());
  EXPECT_TRUE(files_->contentsOfDirectoryAtURL(url("none", true)).empty());
}

TEST_F(StandardFiles, VisitWhatIsNotHidden) {
  test::writeFile(at("in/fr.lproj/T \u00E9.strings"), "");
  test::writeFile(at("in/a/b/c/d"), "");
  test::writeFile(at("in/.hidden/x"), "");
  test::writeFile(at("in/a/.x"), "");
  test::writeFile(at("outside/secret"), "");
  fs::create_symlink("../outside", at("in/link"));
  fs::create_symlink("..", at("in/a/loop"));
  std::map<std::string, bool> seen;
  files_->enumerateDirectoryAtURL(url("in", true), [&](const URL& entry, bool isDirectory) {
    const std::string parent = fs::path(entry.path().str()).parent_path();
    EXPECT_TRUE(parent == at("in") ||
                seen.contains(URL::fileURLWithPath(parent, true).absoluteString().str()))
        << "a folder comes before what is in it";
    seen[entry.absoluteString().str()] = isDirectory;
  });
  const auto text = [&](const char* name, bool isDirectory) {
    return std::pair(url(name, isDirectory).absoluteString().str(), isDirectory);
  };
  EXPECT_EQ(seen,
            (std::map<std::string, bool>{
                text("in/fr.lproj", true), text("in/fr.lproj/T \u00E9.strings", false),
                text("in/a", true), text("in/a/b", true), text("in/a/b/c", true),
                text("in/a/b/c/d", false), text("in/link", false), text("in/a/loop", false)}));
}

TEST_F(StandardFiles, RemoveTreesButNothingBehindLinks) {
  test::writeFile(at("outside/kept"), "kept");
  test::writeFile(at("tree/a/b/.hidden"), "");
  test::writeFile(at("tree/a b"), "");
  fs::create_symlink("../outside", at("tree/link"));
  fs::create_symlink("../outside", at("tree/a/link"));
  fs::create_symlink("outside", at("link"));
  for (const char* name : {"tree", "link"}) {
    EXPECT_EQ(codeOf(files_->removeItemAtURL(url(name, true))), 0U);
    EXPECT_EQ(files_->itemKindAtPath(path(name)), ItemKind::missing);
    EXPECT_EQ(codeOf(files_->removeItemAtURL(url(name))), static_cast<std::uint64_t>(ENOENT));
  }
  EXPECT_EQ(contentOf(at("outside/kept")), "kept");
}

// Deeper than a path may be long, and than files may be open.
TEST_F(StandardFiles, RemoveTreesOfAnyDepth) {
  constexpr int kDepth = 300;
  rlimit before{};
  ASSERT_EQ(::getrlimit(RLIMIT_NOFILE, &before), 0);
  const rlimit few{64, before.rlim_max};
  ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &few), 0);
  const std::string name(20, 'd');
  fs::create_directory(at("deep"));
  int folder = ::open(at("deep").c_str(), O_RDONLY | O_DIRECTORY);
  for (int depth = 0; depth < kDepth; ++depth) {
    ASSERT_EQ(::mkdirat(folder, name.c_str(), 0700), 0);
    const int next = ::openat(folder, name.c_str(), O_RDONLY | O_DIRECTORY);
    ::close(folder);
    folder = next;
  }
  ::close(folder);
  std::size_t visited = 0;
  files_->enumerateDirectoryAtURL(url("deep", true), [&](const URL&, bool) { ++visited; });
  EXPECT_GT(visited, 100U);
  EXPECT_EQ(codeOf(files_->removeItemAtURL(url("deep", true))), 0U);
  EXPECT_FALSE(fs::exists(at("deep")));
  ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &before), 0);
}

TEST_F(StandardFiles, RemoveFoldersOfManyEntries) {
  // More than the system lists at once.
  for (int number = 0; number < 1100; ++number) {
    test::writeFile(at("many/file" + std::to_string(number)), "");
  }
  EXPECT_EQ(codeOf(files_->removeItemAtURL(url("many", true))), 0U);
  EXPECT_FALSE(fs::exists(at("many")));
}

TEST_F(StandardFiles, ReadWhatWasWritten) {
  const std::string bytes(300000, 'b');
  FileManager::Creation creation = files_->createFile(path("file \u00E9"));
  ASSERT_NE(creation.file, nullptr);
  EXPECT_EQ(codeOf(creation.file->write("a")), 0U);
  EXPECT_EQ(codeOf(creation.file->write(bytes)), 0U);
  EXPECT_EQ(codeOf(creation.file->sync()), 0U);
  EXPECT_EQ(codeOf(creation.file->close()), 0U);
  EXPECT_EQ(codeOf(creation.file->write("late")), static_cast<std::uint64_t>(EBADF));
  EXPECT_EQ(codeOf(files_->syncDirectory(scratch_.path().native())), 0U);

  const auto file = files_->openFileForReading(path("file \u00E9"));
  ASSERT_NE(file, nullptr);
  std::string read(bytes.size() + 100, '\0');
  EXPECT_EQ(file->read({read.data(), 1}), 1U);
  EXPECT_EQ(file->read({read.data() + 1, read.size() - 1}), bytes.size());
  EXPECT_EQ(file->read(read), 0U);
  read.resize(bytes.size() + 1);
  EXPECT_EQ(read, "a" + bytes);
}

TEST_F(StandardFiles, MakeNoFileWhereAnythingIs) {
  test::writeFile(at("file"), "kept");
  fs::create_directory(at("folder"));
  fs::create_symlink("nowhere", at("dangling"));
  for (const char* name : {"file", "folder", "dangling"}) {
    const FileManager::Creation creation = files_->createFile(path(name));
    EXPECT_EQ(creation.file, nullptr) << name;
    EXPECT_EQ(codeOf(creation.outcome), static_cast<std::uint64_t>(EEXIST)) << name;
  }
  EXPECT_EQ(contentOf(at("file")), "kept");
  EXPECT_FALSE(fs::exists(at("nowhere")));
  EXPECT_EQ(codeOf(files_->createFile(path("none/file")).outcome),
            static_cast<std::uint64_t>(ENOENT));
}

TEST_F(StandardFiles, MoveOverWhatIsThere) {
  test::writeFile(at("from"), "new");
  test::writeFile(at("to"), "old");
  EXPECT_EQ(codeOf(files_->moveItemReplacing(path("from"), path("to"))), 0U);
  EXPECT_EQ(contentOf(at("to")), "new");
  EXPECT_EQ(codeOf(files_->moveItemReplacing(path("from"), path("to"))),
            static_cast<std::uint64_t>(ENOENT));
  fs::create_directory(at("folder"));
  EXPECT_NE(codeOf(files_->moveItemReplacing(path("to"), path("folder"))), 0U);
  EXPECT_EQ(contentOf(at("to")), "new");
}

TEST_F(StandardFiles, LeaveFilesInUseAlone) {
  FileManager::Creation creation = files_->createFile(path("used"));
  ASSERT_NE(creation.file, nullptr);
  EXPECT_EQ(codeOf(files_->removeFileUnlessInUse(path("used"))), 0U);
  EXPECT_TRUE(fs::exists(at("used")));
  creation.file.reset();
  EXPECT_EQ(codeOf(files_->removeFileUnlessInUse(path("used"))), 0U);
  EXPECT_FALSE(fs::exists(at("used")));
  EXPECT_EQ(codeOf(files_->removeFileUnlessInUse(path("used"))),
            static_cast<std::uint64_t>(ENOENT));

  fs::create_directory(at("folder"));
  EXPECT_NE(codeOf(files_->removeFileUnlessInUse(path("folder"))), 0U);
  EXPECT_TRUE(fs::exists(at("folder")));
}

TEST_F(StandardFiles, MakeTheCachesFolderWhenItIsAskedFor) {
  const auto files = makeFileManager(path("Caches \u00E9/App"));
  EXPECT_FALSE(fs::exists(at("Caches \u00E9")));
  EXPECT_EQ(files->cachesDirectoryURL(), url("Caches \u00E9/App", true));
  EXPECT_TRUE(fs::is_directory(at("Caches \u00E9/App")));
  EXPECT_TRUE(files_->cachesDirectoryURL().isAbsent());
}

TEST_F(StandardFiles, LeaveNoDescriptorToOtherPrograms) {
  test::writeFile(at("file"), "x");
  const auto reading = files_->openFileForReading(path("file"));
  const auto writing = files_->createFile(path("new"));
  for (const auto& entry : fs::directory_iterator("/proc/self/fd")) {
    std::error_code error;
    const fs::path target = fs::read_symlink(entry.path(), error);
    if (target == at("file") || target == at("new")) {
      EXPECT_NE(::fcntl(std::stoi(entry.path().filename()), F_GETFD) & FD_CLOEXEC, 0) << target;
    }
  }
}

}  // namespace
}  // namespace orvanta::platform::standard
