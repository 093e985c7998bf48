#include <chrono>
#include <utility>

#include <orvanta/standard/FileBytes.h>
#include <orvanta/standard/TableFile.h>
#include <orvanta/strings/probe/PrefixProbe.h>
#include <orvanta/strings/reader/StringTableReader.h>
#include <orvanta/text/TextHash.h>

namespace orvanta::standard {

namespace {

// Systems note the time of a write in steps of up to 10 ms, some file systems in whole seconds or
// two; until the step is over, another write of the same length leaves the stamp as it is.
bool isSettledAt(std::chrono::nanoseconds now, std::chrono::nanoseconds modification) {
  using std::chrono_literals::operator""s;
  using std::chrono_literals::operator""ms;
  const std::chrono::nanoseconds step = modification % 1s == 0s ? 2s : 20ms;
  return modification + step < now;
}

std::optional<FileBytes> readSighted(platform::FileManager& files, const FileSighting& sighting) {
  return sighting.stamp ? readWholeFile(files, sighting.path, sighting.stamp->size) : std::nullopt;
}

std::shared_ptr<const strings::StringTable> tableOf(const std::optional<FileBytes>& bytes) {
  static const auto empty = std::make_shared<const strings::StringTable>();
  auto table = bytes ? strings::readStringTable(bytes->view()) : nullptr;
  return table == nullptr ? empty : table;
}

}  // namespace

FileSighting FileSighting::of(platform::FileManager& files, String path) {
  const auto now = std::chrono::system_clock::now().time_since_epoch();
  FileSighting sighting{std::move(path), std::nullopt};
  sighting.stamp = files.stampOfFileAtPath(sighting.path);
  sighting.isSettled =
      !sighting.stamp ||
      isSettledAt(now, std::chrono::nanoseconds(sighting.stamp->modificationNanoseconds));
  return sighting;
}

const strings::StringTable& TableFile::load(const String& path) {
  forget();
  sighting_ = FileSighting::of(*files_, path);
  const std::optional<FileBytes> bytes = readSighted(*files_, sighting_);
  // What could not be read today may be readable tomorrow without having changed.
  sighting_.isSettled = sighting_.isSettled && (bytes || !sighting_.stamp);
  contentHash_ = bytes && !sighting_.isSettled ? textHash(bytes->view()) : 0;
  table_ = tableOf(bytes);
  return *table_;
}

bool TableFile::findOutWhetherItLacks(std::string_view prefix, const String& path) {
  forget();
  sighting_ = FileSighting::of(*files_, path);
  const auto file = files_->openFileForReading(path);
  if (file == nullptr || probe_->mayHoldKeysWithPrefix(*file, prefix)) {
    return false;
  }
  lackedPrefix_ = prefix;
  return true;
}

void TableFile::checkAgain(const String& path) {
  FileSighting now = FileSighting::of(*files_, path);
  if (stillHolds(now)) {
    sighting_ = std::move(now);
  } else {
    forget();
  }
}

void TableFile::forget() noexcept {
  table_.reset();
  lackedPrefix_.clear();
}

bool TableFile::stillHolds(const FileSighting& now) const {
  if (now != sighting_ || sighting_.isSettled) {
    return now == sighting_;
  }
  const auto bytes = table_ == nullptr ? std::nullopt : readSighted(*files_, now);
  return bytes && textHash(bytes->view()) == contentHash_;
}

}  // namespace orvanta::standard
