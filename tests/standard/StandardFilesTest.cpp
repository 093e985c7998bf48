#include <atomic>
#include <cerrno>
#include <functional>
#include <thread>

#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <orvanta/standard/FileBytes.h>
#include <orvanta/standard/StandardFiles.h>

#include "../support/TestApplication.h"

namespace orvanta::standard {
namespace {

namespace fs = std::filesystem;
using testing::Contains;
using testing::UnorderedElementsAre;

// The errno of a failure; 0 for success.
int codeOf(const Status& status) {
  EXPECT_EQ(status.localizedDescription().empty(), status.ok());
  return status.code();
}

ino_t inodeOf(const fs::path& path) {
  struct stat status {};
  return ::stat(path.c_str(), &status) == 0 ? status.st_ino : 0;
}

class StandardFiles : public testing::Test {
 protected:
  [[nodiscard]] fs::path at(std::string_view name) const { return scratch_.path() / name; }
  [[nodiscard]] String path(std::string_view name) const { return at(name).native(); }
  [[nodiscard]] URL url(std::string_view name, bool isDirectory = false) const {
    return URL::fileURLWithPath(path(name), isDirectory);
  }
  [[nodiscard]] std::unique_ptr<platform::Folder> open(std::string_view name) const {
    auto opening = files_->openFolder(path(name));
    EXPECT_EQ(codeOf(opening.status), 0);
    return std::move(opening.folder);
  }

  test::ScratchFolder scratch_;
  std::shared_ptr<platform::FileManager> files_ = makeFileManager({});
};

TEST_F(StandardFiles, TellItemKinds) {
  test::writeFile(at("file \u00E9"), "12345");
  fs::create_directory(at("folder"));
  fs::create_symlink("file \u00E9", at("link"));
  fs::create_symlink("folder", at("folderLink"));
  fs::create_symlink("nowhere", at("dangling"));
  ASSERT_EQ(::mkfifo(at("fifo").c_str(), 0600), 0);
  const std::tuple<const char*, platform::ItemKind, bool, bool> kRows[] = {
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
  for (const auto& [name, kind, exists, hasStamp] : kRows) {
    SCOPED_TRACE(name);
    EXPECT_EQ(files_->itemKindAtPath(path(name)), kind);
    EXPECT_EQ(files_->fileExistsAtPath(path(name)), exists);
    EXPECT_EQ(files_->stampOfFileAtPath(path(name)).has_value(), hasStamp);
    EXPECT_EQ(files_->openFileForReading(path(name)) != nullptr, hasStamp);
  }
  EXPECT_EQ(files_->stampOfFileAtPath(path("link")),
            files_->stampOfFileAtPath(path("file \u00E9")));
  EXPECT_EQ(files_->stampOfFileAtPath(path("link"))->size, 5U);
}

TEST_F(StandardFiles, RefuseWhatIsNoPathOrName) {
  test::writeFile(at("file"), "x");
  const std::string cutByNul = at("file").native() + std::string("\0x", 2);
  for (const String& none : {String(), String(""), String("file"), String("."), String(cutByNul),
                             String("file://" + path("file").str())}) {
    SCOPED_TRACE(none);
    EXPECT_FALSE(files_->fileExistsAtPath(none));
    EXPECT_EQ(files_->itemKindAtPath(none), platform::ItemKind::missing);
    EXPECT_EQ(files_->openFileForReading(none), nullptr);
    EXPECT_NE(codeOf(files_->openFolder(none).status), 0);
  }
  const auto folder = open("");
  for (const String& none : {String(), String(""), String("."), String(".."), String("x/y"),
                             String(std::string("file\0x", 6)), path("file")}) {
    SCOPED_TRACE(none);
    EXPECT_NE(codeOf(folder->openFolder(none).status), 0);
    EXPECT_NE(codeOf(folder->createFolder(none)), 0);
    EXPECT_NE(codeOf(folder->createFile(none).status), 0);
    EXPECT_NE(codeOf(folder->removeFile(none)), 0);
    EXPECT_NE(codeOf(folder->removeFileUnlessLocked(none)), 0);
    EXPECT_NE(codeOf(folder->rename("file", none)), 0);
  }
  const URL noFile = URL::URLWithString("https://example.org/x");
  for (const URL& none : {URL(), noFile}) {
    EXPECT_NE(codeOf(files_->removeItemAtURL(none)), 0);
    EXPECT_NE(codeOf(files_->contentsOfDirectoryAtURL(none).status), 0);
    EXPECT_NE(codeOf(files_->enumerateDirectoryAtURL(none, {})), 0);
  }
  EXPECT_EQ(test::contentsOf(at("file")), "x");
}

TEST_F(StandardFiles, GiveAnotherStampToAnotherState) {
  test::writeFile(at("file"), "one");
  const auto first = files_->stampOfFileAtPath(path("file"));
  EXPECT_EQ(first, files_->stampOfFileAtPath(path("file")));
  test::writeFile(at("other"), "two");
  ASSERT_EQ(codeOf(open("")->rename("other", "file")), 0);
  EXPECT_NE(files_->stampOfFileAtPath(path("file")), first) << "another file";
  EXPECT_EQ(test::contentsOf(at("file")), "two");
  const auto second = files_->stampOfFileAtPath(path("file"));
  fs::last_write_time(at("file"), fs::last_write_time(at("file")) - std::chrono::nanoseconds(100));
  EXPECT_NE(files_->stampOfFileAtPath(path("file")), second) << "another time";
}

TEST_F(StandardFiles, FailWithTheSystemsError) {
  constexpr int kAny = -1;
  test::writeFile(at("file"), "kept");
  fs::create_directory(at("folder"));
  fs::create_symlink("nowhere", at("dangling"));
  fs::create_directory_symlink("folder", at("link"));
  const auto folder = open("");
  const std::tuple<const char*, Status, int> kRows[] = {
      {"a folder over a file", folder->createFolder("file"), EEXIST},
      {"a folder over a folder", folder->createFolder("folder"), EEXIST},
      {"a folder over a link", folder->createFolder("dangling"), EEXIST},
      {"a file as a folder", folder->openFolder("file").status, ENOTDIR},
      {"a link as a folder", folder->openFolder("link").status, kAny},
      {"a path to a file as a folder", files_->openFolder(path("file")).status, ENOTDIR},
      {"a file over a file", folder->createFile("file").status, EEXIST},
      {"a file over a folder", folder->createFile("folder").status, EEXIST},
      {"a file over a link", folder->createFile("dangling").status, EEXIST},
      {"nothing renamed", folder->rename("none", "file"), ENOENT},
      {"a file renamed over a folder", folder->rename("file", "folder"), kAny},
      {"no item removed", files_->removeItemAtURL(url("none")), ENOENT},
      {"no file removed", folder->removeFile("none"), ENOENT},
      {"a folder removed as a file", folder->removeFile("folder"), kAny},
      {"no unlocked file", folder->removeFileUnlessLocked("none"), ENOENT},
      {"an unlocked folder", folder->removeFileUnlessLocked("folder"), kAny},
      {"an unlocked link", folder->removeFileUnlessLocked("link"), kAny},
  };
  for (const auto& [name, status, expected] : kRows) {
    const int code = codeOf(status);
    EXPECT_TRUE(expected == kAny ? code != 0 : code == expected) << name << ": " << code;
  }
  EXPECT_EQ(files_->removeItemAtURL(url("none")).localizedDescription(),
            String(at("none").native() + ": No such file or directory"));
  EXPECT_EQ(test::contentsOf(at("file")), "kept");
  EXPECT_TRUE(fs::is_directory(at("folder")));
  EXPECT_FALSE(fs::exists(at("nowhere")));
}

TEST_F(StandardFiles, ListAFolderAndVisitWhatIsNotHidden) {
  test::writeFile(at("in/T \u00E9.strings"), "");
  test::writeFile(at("in/a/b/c/d"), "");
  test::writeFile(at("in/.hidden/x"), "");
  test::writeFile(at("in/a/.x"), "");
  test::writeFile(at("outside/secret"), "");
  fs::create_symlink("../outside", at("in/link"));
  fs::create_symlink("..", at("in/a/loop"));
  EXPECT_THAT(files_->contentsOfDirectoryAtURL(url("in", true)).entries,
              UnorderedElementsAre(url("in/T \u00E9.strings"), url("in/.hidden", true),
                                   url("in/a", true), url("in/link")));
  EXPECT_EQ(codeOf(files_->contentsOfDirectoryAtURL(url("in/a/.x")).status), ENOTDIR);
  EXPECT_EQ(codeOf(files_->enumerateDirectoryAtURL(url("none", true), {})), ENOENT);

  std::vector<URL> seen = {url("in", true)};
  const auto visit = [&](const URL& entry, bool isDirectory) {
    EXPECT_EQ(isDirectory, entry.absoluteString().view().ends_with('/'));
    const std::string parent = fs::path(entry.path().str()).parent_path();
    EXPECT_THAT(seen, Contains(URL::fileURLWithPath(parent, true)))
        << "a folder comes before what is in it";
    seen.push_back(entry);
  };
  EXPECT_EQ(codeOf(files_->enumerateDirectoryAtURL(url("in", true), visit)), 0);
  EXPECT_THAT(seen,
              UnorderedElementsAre(url("in", true), url("in/T \u00E9.strings"), url("in/a", true),
                                   url("in/a/b", true), url("in/a/b/c", true), url("in/a/b/c/d"),
                                   url("in/link"), url("in/a/loop")));
}

TEST_F(StandardFiles, RemoveTreesButNothingBehindLinks) {
  test::writeFile(at("outside/kept"), "kept");
  test::writeFile(at("tree/a/b/.hidden"), "");
  // More entries than the system lists in one call.
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

// The path is longer than PATH_MAX, and the tree deeper than the limit of descriptors.
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
  EXPECT_EQ(codeOf(files_->enumerateDirectoryAtURL(url("deep", true),
                                                   [&](const URL&, bool) { ++visited; })),
            0);
  EXPECT_GT(visited, 100U);
  EXPECT_EQ(codeOf(files_->removeItemAtURL(url("deep", true))), 0);
  EXPECT_FALSE(fs::exists(at("deep")));
  ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &before), 0);
}

// See `fsync` and `flock` below.
std::vector<ino_t> synced;
std::function<void(int file)> beforeLock;

TEST_F(StandardFiles, ReadWhatWasWritten) {
  const std::string bytes(3'000'000, 'b');
  auto [file, status] = open("")->createFile("file \u00E9");
  ASSERT_EQ(codeOf(status), 0);
  EXPECT_EQ(codeOf(file->write("a")), 0);
  EXPECT_EQ(codeOf(file->write(bytes)), 0);
  synced.clear();
  EXPECT_EQ(codeOf(file->sync()), 0);
  EXPECT_EQ(codeOf(open("")->sync()), 0);
  EXPECT_THAT(synced, testing::ElementsAre(inodeOf(at("file \u00E9")), inodeOf(at(""))));
  EXPECT_EQ(codeOf(file->close()), 0);
  EXPECT_EQ(codeOf(file->write("late")), EBADF);
  EXPECT_EQ(codeOf(file->sync()), EBADF);

  const auto reading = files_->openFileForReading(path("file \u00E9"));
  ASSERT_NE(reading, nullptr);
  std::string read(bytes.size() + 100, '\0');
  EXPECT_EQ(reading->read({read.data(), 1}), 1U);
  EXPECT_EQ(reading->read({read.data() + 1, read.size() - 1}), bytes.size());
  EXPECT_EQ(reading->read(read), 0U);
  read.resize(bytes.size() + 1);
  EXPECT_EQ(read, "a" + bytes);
}

TEST_F(StandardFiles, ReadAFileWhoseSizeChanges) {
  const std::string bytes = "twelve bytes";
  test::writeFile(at("file"), bytes);
  for (const std::uint64_t expected : {0U, 1U, 5U, 11U, 12U, 13U, 100U}) {
    const auto read = readWholeFile(*files_, path("file"), expected);
    ASSERT_TRUE(read) << expected;
    EXPECT_EQ(read->view(), bytes) << expected;
  }
  EXPECT_FALSE(readWholeFile(*files_, path("none"), 0));
  EXPECT_FALSE(readWholeFile(*files_, path("file"), std::uint64_t{1} << 32));
}

TEST_F(StandardFiles, StayInAnOpenFolder) {
  fs::create_directories(at("folder/sub"));
  test::writeFile(at("outside/file"), "kept");
  const auto folder = open("folder");
  fs::rename(at("folder"), at("moved"));
  fs::create_directory_symlink("outside", at("folder"));
  EXPECT_EQ(codeOf(folder->openFolder("sub").status), 0);
  EXPECT_EQ(codeOf(folder->createFile("file").status), 0);
  EXPECT_EQ(codeOf(folder->rename("file", "renamed")), 0);
  EXPECT_TRUE(fs::exists(at("moved/renamed")));
  EXPECT_EQ(folder->list().entries.size(), 2U);
  EXPECT_EQ(folder->list().entries.size(), 2U) << "from the start each time";
  fs::remove_all(at("moved"));
  EXPECT_EQ(codeOf(folder->createFile("file").status), ENOENT);
  EXPECT_EQ(test::contentsOf(at("outside/file")), "kept");
}

TEST_F(StandardFiles, LeaveLockedFilesAlone) {
  const auto folder = open("");
  auto creation = folder->createFile("used");
  ASSERT_NE(creation.file, nullptr);
  EXPECT_EQ(codeOf(folder->removeFileUnlessLocked("used")), 0);
  EXPECT_TRUE(fs::exists(at("used")));
  creation.file.reset();
  EXPECT_EQ(codeOf(folder->removeFileUnlessLocked("used")), 0);
  EXPECT_FALSE(fs::exists(at("used")));

  int other = -1;
  beforeLock = [&](int file) {
    other = ::open(("/proc/self/fd/" + std::to_string(file)).c_str(), O_RDONLY | O_CLOEXEC);
    ::syscall(SYS_flock, other, LOCK_EX);
  };
  EXPECT_EQ(codeOf(folder->createFile("locked").status), EAGAIN);
  EXPECT_FALSE(fs::exists(at("locked")));
  ::close(other);
  beforeLock = [&](int /*file*/) { fs::remove(at("removed")); };
  EXPECT_EQ(codeOf(folder->createFile("removed").status), EAGAIN);
  beforeLock = {};
}

TEST_F(StandardFiles, TellShortageFromEmptiness) {
  test::writeFile(at("in/a/x"), "");
  rlimit before{};
  ASSERT_EQ(::getrlimit(RLIMIT_NOFILE, &before), 0);
  const rlimit none{0, before.rlim_max};
  std::size_t visited = 0;
  const auto visit = [&](const URL& entry, bool) {
    ++visited;
    // The walk is between two folders now.
    if (entry == url("in/a", true)) {
      EXPECT_EQ(::setrlimit(RLIMIT_NOFILE, &none), 0);
    }
  };
  const Status walked = files_->enumerateDirectoryAtURL(url("in", true), visit);
  const Status listed = files_->contentsOfDirectoryAtURL(url("in", true)).status;
  ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &before), 0);
  EXPECT_TRUE(walked.isShortage());
  EXPECT_TRUE(listed.isShortage());
  EXPECT_EQ(visited, 1U);
}

TEST_F(StandardFiles, CloseDescriptorsOnExec) {
  test::writeFile(at("file"), "x");
  fs::create_directory(at("sub"));
  const auto folder = open("");
  const auto sub = folder->openFolder("sub");
  const auto reading = files_->openFileForReading(path("file"));
  const auto writing = folder->createFile("new");
  std::size_t found = 0;
  for (const auto& entry : fs::directory_iterator("/proc/self/fd")) {
    std::error_code error;
    const fs::path target = fs::read_symlink(entry.path(), error);
    if (target.native().starts_with(scratch_.path().native())) {
      ++found;
      EXPECT_NE(::fcntl(std::stoi(entry.path().filename()), F_GETFD) & FD_CLOEXEC, 0) << target;
    }
  }
  EXPECT_EQ(found, 4U);
}

// Another thread exchanges a folder with a link, or moves it away, while its tree is removed.
TEST_F(StandardFiles, RemoveNothingOutsideWhileFoldersAreExchanged) {
  constexpr int kRounds = 60;
  for (const bool byMoving : {false, true}) {
    std::atomic<bool> isOver{false};
    std::thread exchanger([&] {
      const auto link = at("link");
      fs::create_directory_symlink(at("outside"), link);
      while (!isOver) {
        if (byMoving) {
          ::rename(at("tree/a/b").c_str(), at("outside/b").c_str());
        } else {
          ::renameat2(AT_FDCWD, at("tree/a").c_str(), AT_FDCWD, link.c_str(), RENAME_EXCHANGE);
        }
      }
    });
    for (int round = 0; round < kRounds; ++round) {
      std::error_code ignored;
      fs::create_directories(at("outside/kept/more"), ignored);
      fs::create_directories(at("tree/a/b/c"), ignored);
      for (const char* name : {"tree/a/b/1", "tree/a/b/2", "tree/a/b/c/3", "outside/kept/4"}) {
        std::ofstream(at(name)) << "x";
      }
      static_cast<void>(files_->removeItemAtURL(url("tree", true)));
      EXPECT_TRUE(fs::exists(at("outside/kept/4"))) << byMoving << ' ' << round;
      fs::remove_all(at("outside/b"), ignored);
    }
    isOver = true;
    exchanger.join();
    fs::remove_all(at("link"));
  }
}

}  // namespace
}  // namespace orvanta::standard

// Replace the C library's functions for all tests of this program. `fsync` records the file and
// does not wait for the disk; `flock` calls a test's hook first, and never blocks.
extern "C" int fsync(int file) {
  struct stat status {};
  const int result = ::fstat(file, &status);
  orvanta::standard::synced.push_back(status.st_ino);
  return result;
}

extern "C" int flock(int file, int operation) noexcept {
  EXPECT_NE(operation & LOCK_NB, 0) << "would wait";
  if (orvanta::standard::beforeLock) {
    orvanta::standard::beforeLock(file);
  }
  return static_cast<int>(::syscall(SYS_flock, file, operation | LOCK_NB));
}
