#pragma once

#include <cstdint>
#include <optional>

#include <orvanta/text/String.h>

namespace orvanta {

/// Why a file operation failed.
struct FileError {
  std::uint64_t code;           ///< The system's own number (errno where there is one).
  String localizedDescription;  ///< For people.
};

/// The outcome of an operation that gives nothing back: absent when it succeeded.
using FileOutcome = std::optional<FileError>;

}  // namespace orvanta
