#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace ovlocalize {

/// A table for people, with a heading for each column. On a terminal it fits the width: the cells
/// of the widest columns are cut, with "…" where something is missing.
class TextTable {
 public:
  enum class Align { kLeft, kRight };

  struct Column {
    std::string heading;
    Align align = Align::kLeft;
  };

  explicit TextTable(std::vector<Column> columns) : columns_(std::move(columns)) {}

  /// A cell for each column, without control characters.
  void add(std::vector<std::string> row) { rows_.push_back(std::move(row)); }

  /// Prints lines with two spaces between the columns, the headings coloured if asked to.
  void print(bool isColored) const;

 private:
  [[nodiscard]] std::string line(const std::vector<std::string>& cells,
                                 const std::vector<std::size_t>& widths) const;
  [[nodiscard]] std::vector<std::size_t> widths(std::size_t most) const;

  std::vector<Column> columns_;
  std::vector<std::vector<std::string>> rows_;
};

}  // namespace ovlocalize
