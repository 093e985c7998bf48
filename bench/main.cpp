// Measures the library and its alternatives on the same data, in one run.
#include <QtGlobal>
#include <algorithm>
#include <iostream>
#include <string>
#include <thread>
#include <vector>

#include <gnu/libc-version.h>
#include <malloc.h>
#include <unicode/uvernum.h>

#include "contenders/Gettext.h"
#include "harness/Check.h"
#include "rows/Rows.h"

namespace {

namespace bench = orvanta::bench;

struct Family {
  std::string_view name;
  void (*run)(bench::Bench& bench);
};

// The order matters: the tables of a million strings leave a heap behind that no application starts
// with. The last family starts a thread, which makes reference counting atomic until the process
// ends; Qt's widgets, just before it, may do so, too.
constexpr Family kFamilies[] = {
    {"hit", bench::hitRows},
    {"fallback", bench::fallbackRow},
    {"message", bench::messageRows},
    {"load", bench::loadRows},
    {"startup", bench::startupRows},
    {"switch", bench::switchRows},
    {"match", bench::matchRows},
    {"update", bench::updateRows},
    {"memory", bench::memoryRows},
    {"first-text", bench::firstTextRow},
    {"hit-sizes", bench::hitSizeRows},
    {"switch-qt", bench::switchQtRows},
    {"hit-threaded", bench::hitThreadedRow},
};

constexpr std::string_view kHelp =
    "usage: bench/run [--help] [--row=NAME]... [--without=NAME]... [--contender=NAME] [FAMILY...]\n"
    "\n"
    "Measures the library and the alternatives to it, prints a Markdown table of all rows and\n"
    "another of how our cost grows, and writes the first to build/bench.json.\n"
    "\n"
    "A row has a floor, what a careful engineer would write by hand for that one job, and a ratio\n"
    "is a median through the floor's median. Every answer of every contender is compared with the\n"
    "expected text before anything is timed. The contenders of a row are timed in turn, in "
    "changing\n"
    "order. Allocations are those of one operation, counted in a round that is not timed.\n"
    "\n"
    "The peers are used in their own best forms: gettext with .mo files in the locale C.UTF-8 and\n"
    "the variable LANGUAGE; ICU with bundles of genrb, its answers left in UTF-16; Qt with .qm\n"
    "files of lrelease, asked by text identifier.\n"
    "\n"
    "--row measures the rows of that name alone. --without leaves a row or a family out.\n"
    "--contender runs one contender alone, for a profiler.\n"
    "\n"
    "Families of rows, all of them unless some are named:";

struct Arguments {
  std::string json = "build/bench.json";
  bench::Bench::Options bench;
  std::vector<std::string> families;
  bool help = false;
};

bool isFamily(std::string_view word) {
  return std::any_of(std::begin(kFamilies), std::end(kFamilies),
                     [&](const Family& family) { return family.name == word; });
}

bool holds(const std::vector<std::string>& words, std::string_view word) {
  return std::find(words.begin(), words.end(), word) != words.end();
}

Arguments parse(int count, char** words) {
  Arguments arguments;
  for (int at = 1; at < count; ++at) {
    const std::string_view word = words[at];
    const std::string value(word.substr(std::min(word.find('='), word.size() - 1) + 1));
    if (word == "--help" || word == "-h") {
      arguments.help = true;
    } else if (word.starts_with("--json=")) {
      arguments.json = value;
    } else if (word.starts_with("--scratch=")) {
      arguments.bench.scratch = std::filesystem::absolute(value);
    } else if (word.starts_with("--contender=")) {
      arguments.bench.onlyContender = value;
    } else if (word.starts_with("--row=")) {
      arguments.bench.rows.push_back(value);
    } else if (word.starts_with("--without=")) {
      arguments.bench.without.push_back(value);
    } else if (isFamily(word)) {
      arguments.families.emplace_back(word);
    } else {
      throw std::invalid_argument("no such family: " + std::string(word));
    }
  }
  return arguments;
}

void printHelp() {
  std::cout << kHelp;
  for (const Family& family : kFamilies) {
    std::cout << ' ' << family.name;
  }
  std::cout << '\n';
}

// Fixes the heap's thresholds at their initial values. They would adapt to what is freed, so that
// earlier rows would change the cost of later ones.
void useUsualHeap() {
  constexpr int kThreshold = 128 * 1024;
  mallopt(M_MMAP_THRESHOLD, kThreshold);
  mallopt(M_TRIM_THRESHOLD, kThreshold);
}

void runFamilies(const Arguments& arguments) {
  bench::Bench session(arguments.bench);
  bench::gettext::chooseLanguages("fr:en");
  for (const Family& family : kFamilies) {
    if ((arguments.families.empty() || holds(arguments.families, family.name)) &&
        !holds(arguments.bench.without, family.name)) {
      useUsualHeap();
      family.run(session);
    }
  }
  session.report().printTable(std::cout);
  std::cout << '\n';
  session.report().printGrowth(std::cout);
  std::cout << "\n"
            << std::thread::hardware_concurrency() << " processors; GCC " << __VERSION__
            << ", C library " << gnu_get_libc_version() << ", Abseil "
            << ORVANTA_BENCH_ABSEIL_VERSION << ", ICU " << U_ICU_VERSION << ", Qt " << qVersion()
            << ".\n";
  session.report().writeJson(arguments.json);
}

}  // namespace

int main(int count, char** words) {
  try {
    const Arguments arguments = parse(count, words);
    if (arguments.help) {
      printHelp();
    } else {
      runFamilies(arguments);
    }
  } catch (const std::exception& error) {
    std::cerr << "FAILED: " << error.what() << '\n';
    return 1;
  }
  return 0;
}
