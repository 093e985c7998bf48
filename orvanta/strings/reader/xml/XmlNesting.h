#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace orvanta::strings {

/// The stack of open elements while a value is skipped, one byte for each level. Only arrays and
/// dictionaries contain elements; any other element ends at the next tag, closed or not.
class XmlNesting {
 public:
  void open(std::string_view name);

  /// Closes the innermost element of that name and all open elements inside it. False when no such
  /// element is open: the tag belongs to an element outside.
  bool close(std::string_view name);

  /// Closes the innermost element if it cannot contain others.
  void endLeaf();

  [[nodiscard]] bool isEmpty() const noexcept { return open_.empty(); }

  /// Whether a key is allowed here.
  [[nodiscard]] bool isInDictionary() const noexcept;

 private:
  std::string open_;
  std::size_t arrays_ = 0;
  std::size_t dictionaries_ = 0;
};

}  // namespace orvanta::strings
