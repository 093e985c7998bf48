#include "FileContents.h"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>

#include "Settings.h"

namespace ovlocalize {

std::string nameOf(const std::string& file) {
  return file == "-" ? "standard input" : file;
}

std::string contentsOf(const std::string& file) {
  if (file == "-") {
    return {std::istreambuf_iterator<char>(std::cin), {}};
  }
  std::error_code ignored;
  std::ifstream stream(file, std::ios::binary);
  // A folder opens like a file, and then reads as an empty one.
  if (!stream.is_open() || std::filesystem::is_directory(file, ignored)) {
    throw Failure("cannot read " + file);
  }
  std::string contents(std::istreambuf_iterator<char>(stream), {});
  if (stream.bad()) {
    throw Failure("cannot read " + file);
  }
  return contents;
}

}  // namespace ovlocalize
