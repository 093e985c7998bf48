#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <orvanta/text/String.h>

#include "data/Corpus.h"
#include "data/Random.h"
#include "harness/Check.h"
#include "harness/Row.h"

namespace orvanta::bench {

/// All keys of a table in random order, in the types that the contenders take, and their answers.
///
/// The keys' characters are copies in the order of the look-ups, the same copies for all
/// contenders, so that only the table is accessed at random.
struct Questions {
  /// `table` must outlive this.
  explicit Questions(const Table& table) {
    std::vector<const Entry*> order;
    order.reserve(table.size());
    for (const Entry& entry : table) {
      order.push_back(&entry);
    }
    Random("questions").shuffle(order);
    for (const Entry* entry : order) {
      handles.emplace_back(entry->key);
      views.push_back(handles.back().view());
      answers.emplace_back(entry->value);
    }
    for (const Entry* entry : order) {
      terminated.push_back(entry->key);
    }
  }

  [[nodiscard]] std::size_t size() const noexcept { return answers.size(); }

  std::vector<String> handles;
  std::vector<std::string_view> views;
  std::vector<std::string> terminated;
  std::vector<std::string_view> answers;
};

/// A contender that looks up all keys and stores each result over that of the previous round. `ask`
/// returns the result for a question's number, `text` a result's UTF-8.
template <typename Ask, typename Text>
Contender askingAll(std::string name, const Questions& questions, Ask ask, Text text) {
  using Result = decltype(ask(std::size_t{0}));
  const auto results = std::make_shared<std::vector<Result>>(questions.size());
  const auto round = [results, ask] {
    Result* const kept = results->data();
    const std::size_t count = results->size();
    for (std::size_t at = 0; at < count; ++at) {
      kept[at] = ask(at);
    }
    keep(kept);
  };
  const auto check = [results, round, text, &questions] {
    round();
    for (std::size_t at = 0; at < questions.size(); ++at) {
      expectText(text((*results)[at]), questions.answers[at], questions.views[at]);
    }
  };
  return {std::move(name), check, round};
}

}  // namespace orvanta::bench
