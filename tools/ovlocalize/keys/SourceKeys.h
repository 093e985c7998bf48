#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace ovlocalize {

/// A place that uses a key.
struct KeyUse {
  std::string key;  ///< Empty where the key is computed while the program runs.
  std::string file;
  std::size_t line;
};

/// A function that takes a key.
struct KeyFunction {
  std::string name;      ///< Without its namespace or object.
  std::size_t argument;  ///< Which argument is the key, counted from 0.
  std::size_t last;      ///< Or one of those up to this one: the first literal among them.
  std::string object;    ///< Counts only behind "object."; empty: wherever the name stands.
};

/// The functions of the library that take a key, in C++ and in QML.
[[nodiscard]] std::vector<KeyFunction> libraryKeyFunctions();

/// Adds the keys that a C++, QML or JavaScript source hands to one of the functions as a literal,
/// bare or as the only argument of a call (`QStringLiteral("key")`). A call whose key is no literal
/// is added with an empty key.
void collectSourceKeys(std::string_view source, const std::string& file,
                       std::span<const KeyFunction> functions, std::vector<KeyUse>& uses);

/// Adds the keys of a Qt Designer form: the texts of the localized widgets, and the dynamic
/// properties whose names begin with "ov". Throws `Failure` when it is no form.
void collectFormKeys(std::string_view form, const std::string& file, std::vector<KeyUse>& uses);

}  // namespace ovlocalize
