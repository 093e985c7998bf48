#include "harness/Measure.h"

#include <algorithm>
#include <chrono>

#include "harness/Check.h"
#include "harness/Heap.h"

namespace orvanta::bench {

namespace {

void prepare(const Contender& contender) {
  if (contender.prepare) {
    contender.prepare();
  }
}

void checkAnswers(const Row& row, const Contender& contender) {
  try {
    contender.check();
  } catch (const WrongAnswer& wrong) {
    throw WrongAnswer(row.name + ", " + contender.name + ": " + wrong.what());
  }
}

// Not in the first round, which fills memos. Where rounds take long, the check is the first round.
double countAllocations(const Row& row, const Contender& contender) {
  constexpr int kUsualSamples = 5;
  if (row.samples >= kUsualSamples) {
    prepare(contender);
    contender.round();
  }
  prepare(contender);
  heap::startCounting();
  contender.round();
  return static_cast<double>(heap::stopCounting().allocations) /
         static_cast<double>(row.operations);
}

double timeOnce(const Row& row, const Contender& contender) {
  using Clock = std::chrono::steady_clock;
  if (row.warmUp) {
    prepare(contender);
    contender.round();
  }
  Clock::duration spent{};
  for (std::size_t pass = 0; pass < row.passes; ++pass) {
    prepare(contender);
    const auto start = Clock::now();
    contender.round();
    spent += Clock::now() - start;
  }
  return std::chrono::duration<double, std::nano>(spent).count() /
         static_cast<double>(row.operations * row.passes);
}

}  // namespace

std::vector<Measurement> measure(const Row& row) {
  const std::size_t count = row.contenders.size();
  std::vector<Measurement> measurements(count);
  std::vector<std::vector<double>> samples(count);
  for (std::size_t at = 0; at < count; ++at) {
    checkAnswers(row, row.contenders[at]);
    measurements[at].contender = row.contenders[at].name;
    measurements[at].allocations = countAllocations(row, row.contenders[at]);
  }
  for (int sample = 0; sample < row.samples; ++sample) {
    for (std::size_t turn = 0; turn < count; ++turn) {
      // In reverse order every other time, so that no contender always follows the same one.
      const std::size_t step = (static_cast<std::size_t>(sample) / 2 + turn) % count;
      const std::size_t at = sample % 2 == 0 ? step : count - 1 - step;
      samples[at].push_back(timeOnce(row, row.contenders[at]));
    }
  }
  for (std::size_t at = 0; at < count; ++at) {
    std::sort(samples[at].begin(), samples[at].end());
    measurements[at].median = samples[at][samples[at].size() / 2];
    measurements[at].least = samples[at].front();
    measurements[at].most = samples[at].back();
  }
  return measurements;
}

}  // namespace orvanta::bench
