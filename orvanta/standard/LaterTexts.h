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

/// Reads a few texts out of tables, on any thread, one table at a time. Keeps the memory of its
/// probe for the next one: shared by the records of one catalogue, it goes with the last of them
/// that is read.
class LaterTexts {
 public:
  explicit LaterTexts(std::shared_ptr<platform::FileManager> files) : files_(std::move(files)) {}

  /// The texts under `keys` in the table at `path`, absent where it has none. Throws
  /// `std::bad_alloc`.
  [[nodiscard]] std::vector<String> read(const String& path, std::span<const HashedKey> keys);

 private:
  std::shared_ptr<platform::FileManager> files_;
  std::mutex mutex_;
  strings::PrefixProbe probe_;
};

/// The texts under `keys` in a table, absent where there is none.
[[nodiscard]] std::vector<String> textsIn(const strings::StringTable& table,
                                          std::span<const HashedKey> keys);

}  // namespace orvanta::standard
