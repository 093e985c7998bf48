#pragma once

#include <memory>
#include <mutex>
#include <span>
#include <utility>
#include <vector>

#include <orvanta/platform/FileManager.h>
#include <orvanta/strings/probe/PrefixProbe.h>
#include <orvanta/text/String.h>
#include <orvanta/text/TextHash.h>

namespace orvanta::standard {

/// Reads a few texts of a table without keeping the table. Thread-safe: a mutex serializes the
/// calls of `read`.
///
/// Keeps the buffers of its probe for the next table. Records share one object, and each releases
/// it when it has read its table or is destroyed; the last one frees the buffers.
class LaterTexts {
 public:
  explicit LaterTexts(std::shared_ptr<platform::FileManager> files) : files_(std::move(files)) {}

  /// One text for each of `keys` from the table at `path`; absent for a key that it lacks, and all
  /// absent when there is no table. Throws `std::bad_alloc`.
  [[nodiscard]] std::vector<String> read(const String& path, std::span<const HashedKey> keys);

 private:
  std::shared_ptr<platform::FileManager> files_;
  std::mutex mutex_;
  strings::PrefixProbe probe_;
};

/// One text for each of `keys`; absent for a key that the table lacks.
[[nodiscard]] std::vector<String> textsIn(const strings::StringTable& table,
                                          std::span<const HashedKey> keys);

}  // namespace orvanta::standard
