// Kills a process that keeps updating one table, at random moments, and reads what is left: the
// whole table of one update or of another, never a torn one, and no further language. Prints the
// counts; ends with 1 when a table was torn or the next update left a temporary file behind.
#include <csignal>
#include <cstdlib>
#include <iostream>
#include <random>
#include <string>
#include <thread>

#include <sys/wait.h>
#include <unistd.h>

#include <orvanta/cache/OVStringCache.h>

#include "../support/TestApplication.h"
#include "../support/UpdateFixture.h"

namespace {

using namespace orvanta;

constexpr int kEntries = 2000;
constexpr int kGenerations = 2;

test::Pairs generation(int number) {
  test::Pairs pairs;
  for (int entry = 0; entry < kEntries; ++entry) {
    pairs.emplace_back(
        "some.dotted.key." + std::to_string(entry),
        "The text of entry " + std::to_string(entry) + " in generation " + std::to_string(number));
  }
  return pairs;
}

bool isWhole(OVStringCache& cache, int number) {
  const test::Pairs pairs = generation(number);
  return std::all_of(pairs.begin(), pairs.end(), [&](const auto& pair) {
    return cache.localizedStringForKey(pair.first, "fr") == pair.second.c_str();
  });
}

[[noreturn]] void writeForEver(const StringsPayload* generations) {
  OVStringCache cache;
  for (int number = 1;; number = (number + 1) % kGenerations) {
    cache.updateStrings(generations[number], "main", "app");
  }
}

}  // namespace

int main(int argc, char** argv) {
  const int kills = argc > 1 ? std::atoi(argv[1]) : 8;
  test::TestApplication app;
  const StringsPayload generations[kGenerations] = {test::payloadOf({{"fr", generation(0)}}),
                                                    test::payloadOf({{"fr", generation(1)}})};
  OVStringCache().updateStrings(generations[0], "main", "app");

  std::mt19937 random(std::random_device{}());
  std::uniform_int_distribution<int> microseconds(500, 40'000);
  int counts[kGenerations + 1] = {};
  int leftovers = 0;
  int unswept = 0;
  for (int kill = 0; kill < kills; ++kill) {
    const pid_t writer = fork();
    if (writer == 0) {
      writeForEver(generations);
    }
    std::this_thread::sleep_for(std::chrono::microseconds(microseconds(random)));
    ::kill(writer, SIGKILL);
    ::waitpid(writer, nullptr, 0);

    leftovers += test::tablesBelow(app.cacheFolder()) > 1 ? 1 : 0;
    OVStringCache cache;
    const bool alone = cache.cachedLanguages().size() == 1;
    platform::Platform::current().bundles->refreshTables();
    ++counts[isWhole(cache, 0) && alone ? 0 : isWhole(cache, 1) && alone ? 1 : kGenerations];
    cache.updateStrings(generations[0], "main", "app");
    unswept += test::tablesBelow(app.cacheFolder()) != 1 ? 1 : 0;
  }
  std::cout << kills << " kills: " << counts[0] << " old, " << counts[1] << " new, "
            << counts[kGenerations] << " torn; " << leftovers << " left a file, " << unswept
            << " of them unswept\n";
  return counts[kGenerations] == 0 && unswept == 0 ? 0 : 1;
}
