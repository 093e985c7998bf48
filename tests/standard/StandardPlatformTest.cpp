#include <gtest/gtest.h>
#include <tests/support/ForwardingFileManager.h>
#include <tests/support/TestApplication.h>

#include <orvanta/standard/ApplicationPaths.h>
#include <orvanta/standard/RunLoop.h>
#include <orvanta/standard/StandardFiles.h>
#include <orvanta/standard/StandardLocaleData.h>
#include <orvanta/standard/StandardLog.h>
#include <orvanta/standard/StandardPlatform.h>
#include <orvanta/standard/StandardProcessInfo.h>

namespace orvanta::standard {
namespace {

namespace fs = std::filesystem;

TEST(StandardPlatform, KeepsCachesWhereTheSystemWantsThem) {
  const std::tuple<const char*, std::map<std::string, const char*>, String> kRows[] = {
      {"the one that is set", {{"XDG_CACHE_HOME", "/c"}, {"HOME", "/h"}}, "/c/app"},
      {"the usual one", {{"HOME", "/h"}}, "/h/.cache/app"},
      {"a relative one counts as none", {{"XDG_CACHE_HOME", "c"}, {"HOME", "/h"}}, "/h/.cache/app"},
      {"an empty one, too", {{"XDG_CACHE_HOME", ""}, {"HOME", "/h"}}, "/h/.cache/app"},
      {"no place", {}, {}},
      {"no place in a relative home", {{"HOME", "h"}}, {}},
  };
  for (const auto& [name, variables, path] : kRows) {
    const Environment environment = test::environmentOf(variables);
    EXPECT_EQ(cachesPathOf("/usr/bin/app", environment), path) << name;
    EXPECT_TRUE(cachesPathOf({}, environment).isAbsent()) << name;
  }
}

TEST(StandardPlatform, ReadsTheSystemsVersion) {
  const std::pair<const char*, platform::OperatingSystemVersion> kRows[] = {
      {"6.1.0-13-amd64", {6, 1, 0}},
      {"5.15.90.1-wsl2", {5, 15, 90}},
      {"6.8", {6, 8, 0}},
      {"6.0.5", {6, 0, 5}},
      {"6.1-rc3", {6, 1, 0}},
      {"6..3", {6, 0, 0}},
      {"next", {0, 0, 0}},
      {"", {0, 0, 0}},
      {"-6.1", {0, 0, 0}},
      {"6.-1", {6, 0, 0}},
      {"99999999999999999999.1", {0, 0, 0}},
  };
  for (const auto& [release, version] : kRows) {
    EXPECT_EQ(versionOfRelease(release), version) << release;
  }
  EXPECT_GT(kernelVersion(), platform::OperatingSystemVersion());
  const auto info = makeProcessInfo({9, 1, 0});
  EXPECT_TRUE(info->isOperatingSystemAtLeastVersion({9, 1, 0}));
  EXPECT_TRUE(info->isOperatingSystemAtLeastVersion({8, 7, 6}));
  EXPECT_FALSE(info->isOperatingSystemAtLeastVersion({9, 1, 1}));
  EXPECT_FALSE(info->isOperatingSystemAtLeastVersion({10, 0, 0}));
}

TEST(StandardPlatform, StandsOnTheProcessWithoutAnyOption) {
  const platform::Platform platform = makeStandardPlatform();
  EXPECT_EQ(platform.mainQueue, RunLoop::main());
  EXPECT_EQ(fs::path(platform.bundles->mainBundle()->bundlePath().str()),
            fs::read_symlink("/proc/self/exe").parent_path());
  testing::internal::CaptureStderr();
  platform.log->log("one");
  platform.log->log("");
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "one\n\n");
  const auto throwing = makeLog([](std::string_view message) { throw std::string(message); });
  throwing->log("what a sink throws is dropped");
}

TEST(StandardPlatform, TakesARelativePathOfCaches) {
  const test::ScratchFolder scratch;
  StandardOptions options;
  options.cachesPath = fs::relative(scratch.path());
  const fs::path caches = makeStandardPlatform(options).files->cachesDirectoryURL().path().str();
  EXPECT_TRUE(caches.is_absolute());
  EXPECT_TRUE(fs::equivalent(caches, scratch.path()));
}

TEST(StandardPlatform, BuildsOnWhatReplacesItsOwn) {
  const test::ScratchFolder scratch;
  for (const char* language : {"fr", "ja"}) {
    test::writeTable(scratch.path() / (std::string(language) + ".lproj"), {{"k", language}});
  }
  std::size_t asked = 0;
  const auto count = [&](std::string_view, std::string_view) {
    ++asked;
    return test::Fault::none();
  };
  platform::Platform replacements;
  replacements.files = std::make_shared<test::ForwardingFileManager>(makeFileManager({}), count);
  replacements.locales = makeLocaleData({"ja"});
  replacements.mainQueue = RunLoop::make();
  StandardOptions options;
  options.mainBundlePath = scratch.path();
  options.deviceLanguages = {{"fr"}};
  const platform::Platform platform = makeStandardPlatform(options, replacements);
  EXPECT_EQ(platform.files, replacements.files);
  EXPECT_EQ(platform.mainQueue, replacements.mainQueue);
  EXPECT_EQ(platform.bundles->mainBundle()->localizedStringForKey("k"), "ja");
  EXPECT_GT(asked, 0U);
}

}  // namespace
}  // namespace orvanta::standard
