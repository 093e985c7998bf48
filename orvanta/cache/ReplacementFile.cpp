#include <algorithm>
#include <array>
#include <atomic>
#include <charconv>
#include <chrono>
#include <exception>
#include <string>
#include <string_view>
#include <utility>

#include <orvanta/cache/ReplacementFile.h>
#include <orvanta/text/TextHash.h>

namespace orvanta {

namespace {

// A temporary name is "." <hexadecimal number> ".orvanta-unfinished".
constexpr std::string_view kExtension = ".orvanta-unfinished";
constexpr std::string_view kHexDigits = "0123456789abcdef";

// Differs within a process by the count, and between processes by the clock and by the hash, which
// is seeded at random.
std::string makeTemporaryName() {
  static std::atomic<unsigned> count{0};
  const auto now = std::chrono::steady_clock::now().time_since_epoch().count();
  const std::string moment = std::to_string(now) + '.' + std::to_string(++count);
  std::array<char, 16> hex{};
  const auto end = std::to_chars(hex.data(), hex.data() + hex.size(), textHash(moment), 16).ptr;
  std::string name = ".";
  name.append(hex.data(), end);
  name += kExtension;
  return name;
}

bool isTemporaryName(std::string_view name) {
  if (!name.starts_with('.') || !name.ends_with(kExtension)) {
    return false;
  }
  name.remove_prefix(1);
  return name.find_first_not_of(kHexDigits) + kExtension.size() == name.size();
}

}  // namespace

ReplacementFile::ReplacementFile(platform::Folder& folder, String name)
    : folder_(folder), name_(std::move(name)) {
  // A process that sweeps, or one that means harm, may lock the new file first.
  constexpr int kMostAttempts = 8;
  for (int attempt = 0; attempt < kMostAttempts; ++attempt) {
    temporaryName_ = makeTemporaryName();
    creation_ = folder_.createFile(temporaryName_);
    if (!creation_.status.is(std::errc::resource_unavailable_try_again) &&
        !creation_.status.is(std::errc::file_exists)) {
      return;
    }
  }
}

ReplacementFile::~ReplacementFile() {
  if (creation_.file == nullptr || isInPlace_) {
    return;
  }
  try {
    // A file that stays is found by the next sweep.
    static_cast<void>(folder_.removeFile(temporaryName_));
  } catch (const std::exception&) {
  }
}

Replacement ReplacementFile::commit() {
  Status status = creation_.file->sync();
  if (status.ok()) {
    // Still open and locked: no sweep removes it before it has its name.
    status = folder_.rename(temporaryName_, name_);
  }
  if (!status.ok()) {
    return {false, std::move(status)};
  }
  isInPlace_ = true;
  status = creation_.file->close();
  const Status synced = folder_.sync();
  return {true, status.ok() ? synced : status};
}

void removeAbandonedReplacements(platform::Folder& folder) {
  for (const platform::Folder::Entry& entry : folder.list().entries) {
    if (!entry.isDirectory && isTemporaryName(entry.name.view())) {
      static_cast<void>(folder.removeFileUnlessLocked(entry.name));
    }
  }
}

}  // namespace orvanta
