#include "TextTable.h"

#include <algorithm>
#include <iostream>
#include <numeric>

#include <sys/ioctl.h>
#include <unistd.h>

#include <orvanta/text/Utf8.h>

#include "Color.h"

namespace ovlocalize {

namespace {

constexpr std::string_view kGap = "  ";
constexpr std::string_view kCut = "…";

// In characters, which is what most of them take on a terminal.
std::size_t lengthOf(std::string_view text) {
  return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0) != 0x80;
  }));
}

std::string cut(const std::string& text, std::size_t width) {
  if (lengthOf(text) <= width) {
    return text;
  }
  std::string_view rest = text;
  for (std::size_t left = width - 1; left > 0; --left) {
    rest.remove_prefix(orvanta::utf8::decode(rest).length);
  }
  return text.substr(0, text.size() - rest.size()).append(kCut);
}

// Of standard output; 0 when that is no terminal.
std::size_t terminalWidth() {
  winsize size{};
  const bool isKnown =
      ::isatty(STDOUT_FILENO) != 0 && ::ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0;
  return isKnown ? size.ws_col : 0;
}

}  // namespace

std::vector<std::size_t> TextTable::widths(std::size_t most) const {
  std::vector<std::size_t> widths;
  for (std::size_t index = 0; index < columns_.size(); ++index) {
    std::size_t width = lengthOf(columns_[index].heading);
    for (const auto& row : rows_) {
      width = std::max(width, lengthOf(row[index]));
    }
    widths.push_back(width);
  }
  const auto total = [&] {
    return std::accumulate(widths.begin(), widths.end(), kGap.size() * (widths.size() - 1));
  };
  while (most > 0 && total() > most) {
    std::size_t widest = 0;
    for (std::size_t index = 0; index < columns_.size(); ++index) {
      widest = widths[index] > widths[widest] ? index : widest;
    }
    if (widths[widest] <= lengthOf(columns_[widest].heading)) {
      break;
    }
    --widths[widest];
  }
  return widths;
}

std::string TextTable::line(const std::vector<std::string>& cells,
                            const std::vector<std::size_t>& widths) const {
  std::string line;
  for (std::size_t index = 0; index < columns_.size(); ++index) {
    const std::string cell = cut(cells[index], widths[index]);
    const std::string padding(widths[index] - lengthOf(cell), ' ');
    line += index == 0 ? "" : kGap;
    line += columns_[index].align == Align::kRight ? padding + cell : cell + padding;
  }
  return line.substr(0, line.find_last_not_of(' ') + 1);
}

void TextTable::print(bool isColored) const {
  const std::vector<std::size_t> fitting = widths(terminalWidth());
  std::vector<std::string> headings;
  for (const Column& column : columns_) {
    headings.push_back(column.heading);
  }
  std::cout << painted(isColored, Tone::kHeading, line(headings, fitting)) << '\n';
  for (const auto& row : rows_) {
    std::cout << line(row, fitting) << '\n';
  }
}

}  // namespace ovlocalize
