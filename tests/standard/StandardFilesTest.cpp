#include <cerrno>
#include <filesystem>
#include <string>
#include <vector>

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <tests/support/TestApplication.h>
#include <unistd.h>

#include <orvanta/standard/StandardFiles.h>

namespace orvanta::standard {
namespace {

namespace fs = std::filesystem;
using testing::Contains;
using testing::UnorderedElementsAre;

// The errno of a failure; 0 for success.
int codeOf(const FileOutcome& outcome) {
  EXPECT_TRUE(!outcome || !outcome->localizedDescription.empty());
  return outcome ? static_cast<int>(outcome->code) : 0;
}

class StandardFiles : public testing::Test {
 protected:
  [[nodiscard]] fs::path at(std::string_view name) const { return scratch_.path() / name; }
  [[nodiscard]] String path(std::string_view name) const { return at(name).native(); }
  [[nodiscard]] URL url(std::string_view name, bool isDirectory = false) const {
    return URL::fileURLWithPath(path(name), isDirectory);
  }

  test::ScratchFolder scratch_;
  std::shared_ptr<platform::FileManager> files_ = makeFileManager({});
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
    platform::ItemKind kind;
    bool exists;
    bool hasStamp;
  } kRows[] = {
      {"file \u00E9", platform::ItemKind::file, true, true},
      {"folder", platform::ItemKind::directory, true, false},
      {"link", platform::ItemKind::symbolicLink, true, true},
      {"folderLink", platform::ItemKind::symbolicLink, true, false},
      {"folderLink/.", platform::ItemKind::directory, true, false},
      {"dangling", platform::ItemKind::symbolicLink, false, false},
      {"fifo", platform::ItemKind::other, true, false},
      {"none", platform::ItemKind::missing, false, false},
      {"file \u00E9/none", platform::ItemKind::missing, false, false},
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
    EXPECT_EQ(files_->itemKindAtPath(none), platform::ItemKind::missing);
    EXPECT_EQ(files_->openFileForReading(none), nullptr);
    EXPECT_EQ(files_->createFile(none).file, nullptr);
    EXPECT_NE(codeOf(files_->createFile(none).outcome), 0);
    EXPECT_NE(codeOf(files_->moveItemReplacing(path("file"), none)), 0);
    EXPECT_NE(codeOf(files_->syncDirectory(none)), 0);
    EXPECT_NE(codeOf(files_->removeFileUnlessInUse(none)), 0);
  }
  const URL noFile = URL::URLWithString("https://example.org/x");
  for (const URL& none : {URL(), noFile}) {
    EXPECT_NE(codeOf(files_->createDirectoryAtURL(none)), 0);
    EXPECT_NE(codeOf(files_->removeItemAtURL(none)), 0);
    EXPECT_TRUE(files_->contentsOfDirectoryAtURL(none).empty());
    files_->enumerateDirectoryAtURL(none, [](const URL&, bool) { ADD_FAILURE(); });
  }
  EXPECT_EQ(test::contentsOf(at("file")), "x");
}

TEST_F(StandardFiles, StampTellsStatesApart) {
  test::writeFile(at("file"), "one");
  const auto first = files_->stampOfFileAtPath(path("file"));
  EXPECT_EQ(first, files_->stampOfFileAtPath(path("file")));
  test::writeFile(at("other"), "two");
  ASSERT_EQ(codeOf(files_->moveItemReplacing(path("other"), path("file"))), 0);
  EXPECT_NE(files_->stampOfFileAtPath(path("file")), first) << "another file";
  EXPECT_EQ(test::contentsOf(at("file")), "two");
  const auto second = files_->stampOfFileAtPath(path("file"));
  fs::last_write_time(at("file"), fs::last_write_time(at("file")) - std::chrono::nanoseconds(100));
  EXPECT_NE(files_->stampOfFileAtPath(path("file")), second) << "another time";
}

TEST_F(StandardFiles, MakeFoldersWithTheirParents) {
  for (const char* when : {"new", "there already"}) {
    EXPECT_EQ(codeOf(files_->createDirectoryAtURL(url("a/b c/\u00E9", true))), 0) << when;
    EXPECT_TRUE(fs::is_directory(at("a/b c/\u00E9")));
  }
}

TEST_F(StandardFiles, RefuseToPutOrTakeWhatCannotBe) {
  constexpr int kAny = -1;
  test::writeFile(at("file"), "kept");
  fs::create_directory(at("folder"));
  fs::create_symlink("nowhere", at("dangling"));
  const struct {
    const char* name;
    FileOutcome outcome;
    int code;
  } kRows[] = {
      {"a folder over a file", files_->createDirectoryAtURL(url("file", true)), kAny},
      {"a folder in a file", files_->createDirectoryAtURL(url("file/x", true)), kAny},
      {"a folder over a link", files_->createDirectoryAtURL(url("dangling", true)), kAny},
      {"a file over a file", files_->createFile(path("file")).outcome, EEXIST},
      {"a file over a folder", files_->createFile(path("folder")).outcome, EEXIST},
      {"a file over a link", files_->createFile(path("dangling")).outcome, EEXIST},
      {"a file in no folder", files_->createFile(path("none/file")).outcome, ENOENT},
      {"nothing moved", files_->moveItemReplacing(path("none"), path("file")), ENOENT},
      {"a file over a folder", files_->moveItemReplacing(path("file"), path("folder")), kAny},
      {"nothing removed", files_->removeItemAtURL(url("none")), ENOENT},
      {"nothing in use", files_->removeFileUnlessInUse(path("none")), ENOENT},
      {"a folder for a file", files_->removeFileUnlessInUse(path("folder")), kAny},
  };
  for (const auto& row : kRows) {
    const int code = codeOf(row.outcome);
    EXPECT_TRUE(row.code == kAny ? code != 0 : code == row.code) << row.name << ": " << code;
  }
  EXPECT_EQ(test::contentsOf(at("file")), "kept");
  EXPECT_TRUE(fs::is_directory(at("folder")));
  EXPECT_FALSE(fs::exists(at("nowhere")));
}

TEST_F(StandardFiles, ListAFolderAndVisitWhatIsNotHiddenInIt) {
  test::writeFile(at("in/T \u00E9.strings"), "");
  test::writeFile(at("in/a/b/c/d"), "");
  test::writeFile(at("in/.hidden/x"), "");
  test::writeFile(at("in/a/.x"), "");
  test::writeFile(at("outside/secret"), "");
  fs::create_symlink("../outside", at("in/link"));
  fs::create_symlink("..", at("in/a/loop"));
  EXPECT_THAT(files_->contentsOfDirectoryAtURL(url("in", true)),
              UnorderedElementsAre(url("in/T \u00E9.strings"), url("in/.hidden", true),
                                   url("in/a", true), url("in/link")));
  EXPECT_TRUE(files_->contentsOfDirectoryAtURL(url("in/a/.x")).empty());
  EXPECT_TRUE(files_->contentsOfDirectoryAtURL(url("none", true)).empty());

  std::vector<URL> seen = {url("in", true)};
  files_->enumerateDirectoryAtURL(url("in", true), [&](const URL& entry, bool isDirectory) {
    EXPECT_EQ(isDirectory, entry.absoluteString().view().ends_with('/'));
    const std::string parent = fs::path(entry.path().str()).parent_path();
    EXPECT_THAT(seen, Contains(URL::fileURLWithPath(parent, true)))
        << "a folder comes before what is in it";
    seen.push_back(entry);
  });
  EXPECT_THAT(seen,
              UnorderedElementsAre(url("in", true), url("in/T \u00E9.strings"), url("in/a", true),
                                   url("in/a/b", true), url("in/a/b/c", true), url("in/a/b/c/d"),
                                   url("in/link"), url("in/a/loop")));
}

TEST_F(StandardFiles, RemoveTreesButNothingBehindLinks) {
  test::writeFile(at("outside/kept"), "kept");
  test::writeFile(at("tree/a/b/.hidden"), "");
  // More than the system lists at once.
  for (int number = 0; number < 1100; ++number) {
    test::writeFile(at("tree/file " + std::to_string(number)), "");
  }
  fs::create_symlink("../outside", at("tree/link"));
  fs::create_symlink("../outside", at("tree/a/link"));
  fs::create_symlink("outside", at("link"));
  for (const char* name : {"tree", "link"}) {
    EXPECT_EQ(codeOf(files_->removeItemAtURL(url(name, true))), 0);
    EXPECT_EQ(files_->itemKindAtPath(path(name)), platform::ItemKind::missing);
  }
  EXPECT_EQ(test::contentsOf(at("outside/kept")), "kept");
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
  EXPECT_EQ(codeOf(files_->removeItemAtURL(url("deep", true))), 0);
  EXPECT_FALSE(fs::exists(at("deep")));
  ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &before), 0);
}

TEST_F(StandardFiles, ReadWhatWasWritten) {
  const std::string bytes(300000, 'b');
  platform::FileManager::Creation creation = files_->createFile(path("file \u00E9"));
  ASSERT_NE(creation.file, nullptr);
  EXPECT_EQ(codeOf(creation.file->write("a")), 0);
  EXPECT_EQ(codeOf(creation.file->write(bytes)), 0);
  EXPECT_EQ(codeOf(creation.file->sync()), 0);
  EXPECT_EQ(codeOf(creation.file->close()), 0);
  EXPECT_EQ(codeOf(creation.file->write("late")), EBADF);
  EXPECT_EQ(codeOf(files_->syncDirectory(scratch_.path().native())), 0);

  const auto file = files_->openFileForReading(path("file \u00E9"));
  ASSERT_NE(file, nullptr);
  std::string read(bytes.size() + 100, '\0');
  EXPECT_EQ(file->read({read.data(), 1}), 1U);
  EXPECT_EQ(file->read({read.data() + 1, read.size() - 1}), bytes.size());
  EXPECT_EQ(file->read(read), 0U);
  read.resize(bytes.size() + 1);
  EXPECT_EQ(read, "a" + bytes);
}

TEST_F(StandardFiles, LeaveFilesInUseAlone) {
  platform::FileManager::Creation creation = files_->createFile(path("used"));
  ASSERT_NE(creation.file, nullptr);
  EXPECT_EQ(codeOf(files_->removeFileUnlessInUse(path("used"))), 0);
  EXPECT_TRUE(fs::exists(at("used")));
  creation.file.reset();
  EXPECT_EQ(codeOf(files_->removeFileUnlessInUse(path("used"))), 0);
  EXPECT_FALSE(fs::exists(at("used")));
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
}  // namespace orvanta::standard
