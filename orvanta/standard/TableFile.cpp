#include <chrono>
#include <utility>

#include <orvanta/standard/FileBytes.h>
#include <orvanta/standard/TableFile.h>
#include <orvanta/strings/reader/SoundTable.h>
#include <orvanta/strings/reader/StringTableReader.h>
#include <orvanta/text/NoDestructor.h>
#include <orvanta/text/TextHash.h>

namespace orvanta::standard {

namespace {

// Kernels round modification times to up to 10 ms, some file systems to one or two seconds. A
// second write of the same length within that time does not change the stamp.
bool isRacyAt(std::chrono::nanoseconds now, std::chrono::nanoseconds modification) {
  using std::chrono_literals::operator""s;
  using std::chrono_literals::operator""ms;
  const std::chrono::nanoseconds granularity = modification % 1s == 0s ? 2s : 20ms;
  return modification + granularity >= now;
}

std::optional<strings::ReadBuffer> contentOf(platform::FileManager& files, const FileState& state) {
  return state.stamp ? readWholeFile(files, state.path, state.stamp->size) : std::nullopt;
}

std::shared_ptr<const strings::StringTable> soundTableIn(platform::FileManager& files,
                                                         const FileState& state) {
  const auto file = files.openFileForReading(state.path);
  return file == nullptr ? nullptr : strings::readSoundTable(*file, state.stamp->size);
}

std::shared_ptr<const strings::StringTable> emptyTable() {
  static NoDestructor<const std::shared_ptr<const strings::StringTable>> empty(
      std::make_shared<const strings::StringTable>());
  return *empty;
}

}  // namespace

FileState FileState::of(platform::FileManager& files, String path) {
  const auto now = std::chrono::system_clock::now().time_since_epoch();
  FileState state{std::move(path), std::nullopt};
  state.stamp = files.stampOfFileAtPath(state.path);
  state.isRacy =
      state.stamp && isRacyAt(now, std::chrono::nanoseconds(state.stamp->modificationNanoseconds));
  return state;
}

std::shared_ptr<const strings::StringTable> TableFile::read(const String& path) {
  FileState state = FileState::of(*files_, path);
  // A racy file is hashed, so all of it has to be in memory.
  auto table = state.stamp && !state.isRacy ? soundTableIn(*files_, state) : nullptr;
  std::optional<strings::ReadBuffer> bytes;
  if (table == nullptr) {
    bytes = contentOf(*files_, state);
    table = bytes ? strings::readStringTable(bytes->view()) : nullptr;
    // A file that cannot be read now may become readable without a change of its stamp.
    state.isRacy = state.isRacy || (state.stamp && !bytes);
  }
  if (table == nullptr) {
    table = emptyTable();
  }
  probe_->releaseMemory();
  reset();
  if (bytes && state.isRacy) {
    contentHash_ = textHash(bytes->view());
  }
  state_ = std::move(state);
  return table;
}

std::shared_ptr<const strings::StringTable> TableFile::entriesWithPrefix(std::string_view prefix,
                                                                         const String& path) {
  if (entries_ != nullptr && prefix_ == prefix) {
    return entries_;
  }
  FileState state = FileState::of(*files_, path);
  const auto open = [&] { return files_->openFileForReading(path); };
  auto entries = state.stamp ? probe_->entries(open, state.stamp->size, prefix) : nullptr;
  state.isRacy = state.isRacy || (state.stamp && entries == nullptr);
  std::string known(prefix);
  reset();
  entries_ = entries == nullptr ? emptyTable() : std::move(entries);
  prefix_ = std::move(known);
  state_ = std::move(state);
  return entries_;
}

bool TableFile::hasChanged(const String& path) {
  FileState now = FileState::of(*files_, path);
  if (now != *state_ || (state_->isRacy && !isSameContent(now))) {
    return true;
  }
  state_ = std::move(now);
  return false;
}

void TableFile::reset() noexcept {
  state_.reset();
  contentHash_.reset();
  entries_.reset();
}

bool TableFile::isSameContent(const FileState& now) const {
  const auto bytes = contentHash_ ? contentOf(*files_, now) : std::nullopt;
  return bytes && textHash(bytes->view()) == *contentHash_;
}

}  // namespace orvanta::standard
