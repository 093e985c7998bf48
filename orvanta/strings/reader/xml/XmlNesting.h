#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace orvanta::strings {

/// The elements that are open while a value is passed over. Only arrays and dictionaries hold
/// elements; any other one ends where the next tag begins, closed or not. Takes one byte a level.
class XmlNesting {
 public:
  void open(std::string_view name);

  /// Closes the innermost element of that name and whatever stands open inside it. False when none
  /// is open: the tag belongs to somebody else.
  bool close(std::string_view name);

  /// Ends the innermost element if it cannot hold others.
  void endLeaf();

  [[nodiscard]] bool isEmpty() const noexcept { return open_.empty(); }

  /// True where a key may stand.
  [[nodiscard]] bool isInDictionary() const noexcept;

 private:
  std::string open_;
  std::size_t arrays_ = 0;
  std::size_t dictionaries_ = 0;
};

}  // namespace orvanta::strings
