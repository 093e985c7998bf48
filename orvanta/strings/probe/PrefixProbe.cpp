// Why the probe gives the same entries as a full read.
//
// The prefix consists of letters, digits, "-", "_" and "." alone. Suppose that the table of a full
// read has a key that begins with the prefix. In the file, the characters of that prefix are
// written in one of two ways.
//
// 1. As themselves and adjacent. Then the file contains the prefix, in the file's encoding. No
//    non-ASCII character decodes to an ASCII one, because malformed input becomes U+FFFD.
// 2. With an escape for one of them, or with something between two of them.
//    - In the text form that is a backslash and what follows it. The escapes for control characters
//      and quotation marks give characters that are not in the prefix. An unknown escape gives the
//      character behind the backslash, and matters if that is in the prefix (SpellingEscapes).
//    - In XML it is a numeric reference: the five named ones give characters that are not in the
//      prefix, and any other reference loses its pair. Or it is a comment, processing instruction
//      or CDATA section between two characters: then a "<" follows a character of the prefix and
//      does not begin a closing tag, which would end the key.
//    - In binary property lists neither is possible: texts are contiguous.
//
// The whole file is searched for these places. Without any, there is no such entry. Otherwise the
// probe for the file's form reads the entries there, or asks for a full read. Forms and encodings
// without a probe, which are rare, are read in full.
#include <algorithm>
#include <cstddef>
#include <cstring>
#include <new>
#include <optional>

#include <orvanta/strings/ReadFully.h>
#include <orvanta/strings/StringTableBuilder.h>
#include <orvanta/strings/encoding/TextEncoding.h>
#include <orvanta/strings/probe/BinaryProbe.h>
#include <orvanta/strings/probe/PrefixProbe.h>
#include <orvanta/strings/probe/TextProbe.h>
#include <orvanta/strings/probe/XmlProbe.h>
#include <orvanta/strings/reader/StringTableReader.h>
#include <orvanta/strings/reader/binary/BinaryTable.h>

namespace orvanta::strings {

namespace {

constexpr std::size_t kShortestPrefix = SampledSearch::kShortestPattern;
constexpr std::size_t kLongestPrefix = 64;

// Large enough for few system calls, small enough for the second-level cache. The first piece also
// shows the form of the file.
constexpr std::size_t kPiece = std::size_t{256} * 1024;

// Enough to detect the encoding. Whether UTF-8 is valid does not matter here.
constexpr std::size_t kFirstBytes = 512;

// Longer than every pattern that is searched for.
constexpr std::size_t kOverlap = FileProbe::kLargestOverlap;

// Up to this size the reader leaves no entry out of a table for its size.
constexpr std::size_t kLargestFile = std::size_t{256} * 1024 * 1024;

bool canBeProbedFor(char character) noexcept {
  return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z') ||
         (character >= '0' && character <= '9') || character == '-' || character == '_' ||
         character == '.';
}

// Whether "<" is the first character behind white space and the zero bytes of wide encodings. The
// reader takes only such a text for XML.
bool mayBeXml(std::string_view text) noexcept {
  const auto first = std::find_if(text.begin(), text.end(), [](char character) {
    return static_cast<unsigned char>(character) > ' ';
  });
  return first != text.end() && *first == '<';
}

// A probe for the form of the file that begins with `head`; null when that form has none.
std::unique_ptr<FileProbe> makeFileProbe(std::string_view head, const PrefixSearches& searches) {
  if (looksLikeBinaryTable(head)) {
    return makeBinaryProbe(searches);
  }
  const std::string_view first = head.substr(0, kFirstBytes);
  const EncodedText text = detectEncoding(first);
  const std::size_t markSize = first.size() - text.bytes.size();
  if (mayBeXml(head.substr(markSize))) {
    const bool isUtf8 =
        text.encoding == TextEncoding::kUtf8 || text.encoding == TextEncoding::kBrokenUtf8;
    return isUtf8 ? makeXmlProbe(searches) : nullptr;
  }
  return makeTextProbe(text.encoding, markSize, searches);
}

}  // namespace

std::string_view prefixToProbeFor(std::span<const HashedKey> keys) noexcept {
  if (keys.empty()) {
    return {};
  }
  std::string_view prefix = keys.front().text.substr(0, kLongestPrefix);
  for (const HashedKey& key : keys) {
    const auto end = std::mismatch(prefix.begin(), prefix.end(), key.text.begin(), key.text.end());
    prefix = {prefix.begin(), end.first};
  }
  prefix = {prefix.begin(), std::find_if_not(prefix.begin(), prefix.end(), canBeProbedFor)};
  return prefix.size() < kShortestPrefix ? std::string_view() : prefix;
}

PrefixProbe::PrefixProbe() = default;
PrefixProbe::~PrefixProbe() = default;

std::shared_ptr<const StringTable> PrefixProbe::entries(const Opener& open,
                                                        std::uint64_t expectedSize,
                                                        std::string_view prefix) {
  if (searches_ == nullptr || searches_->prefix != prefix) {
    searches_ = std::make_unique<PrefixSearches>(prefix);
  }
  if (expectedSize > kPiece && !needsAll_) {
    const std::unique_ptr<ByteSource> file = open();
    auto found = file == nullptr ? nullptr : entriesFromHead(*file);
    if (found != nullptr) {
      return found;
    }
  }
  const std::unique_ptr<ByteSource> file = open();
  return file == nullptr ? nullptr : entriesFromAll(*file, expectedSize);
}

void PrefixProbe::releaseMemory() noexcept {
  window_.reset();
  whole_.release();
}

// Keeps the head of the file in memory and searches the rest through a small window, which is
// faster than reading the whole file into memory (benchmark row startup-configured-some). Null when
// the head is not enough.
std::shared_ptr<const StringTable> PrefixProbe::entriesFromHead(ByteSource& file) {
  if (window_ == nullptr) {
    window_.reset(allocateBytes(kPiece + kOverlap + kPiece));
  }
  if (window_ == nullptr) {
    throw std::bad_alloc();
  }
  char* const begin = window_.get();
  char* const seam = begin + kPiece;
  const auto headSize = readFully(file, {begin, kPiece});
  if (!headSize) {
    return nullptr;
  }
  const FilePiece head{{begin, *headSize}, 0, *headSize < kPiece};
  file_ = makeFileProbe(head.bytes, *searches_);
  if (file_ == nullptr) {
    return nullptr;
  }
  file_->look(head);
  for (FilePiece piece = head; !piece.isLast;) {
    std::memmove(seam, piece.bytes.data() + piece.bytes.size() - kOverlap, kOverlap);
    const auto more = readFully(file, {seam + kOverlap, kPiece});
    if (!more) {
      return nullptr;
    }
    const std::size_t offset = piece.offset + piece.bytes.size() - kOverlap;
    piece = {{seam, kOverlap + *more}, offset, *more < kPiece};
    file_->look(piece);
  }
  return entriesAt(head);
}

std::shared_ptr<const StringTable> PrefixProbe::entriesFromAll(ByteSource& file,
                                                               std::uint64_t expectedSize) {
  file_.reset();
  const auto look = [this](std::string_view bytes) {
    if (file_ == nullptr && bytes.size() >= kPiece) {
      file_ = makeFileProbe(bytes, *searches_);
    }
    if (file_ != nullptr) {
      file_->look({bytes, 0, false});
    }
  };
  if (!whole_.read(file, expectedSize, look)) {
    return nullptr;
  }
  const std::string_view bytes = whole_.view();
  std::shared_ptr<const StringTable> found;
  if (file_ == nullptr) {
    file_ = makeFileProbe(bytes, *searches_);
  }
  if (file_ != nullptr && bytes.size() <= kLargestFile) {
    file_->look({bytes, 0, true});
    found = entriesAt({bytes.substr(0, kPiece), 0, bytes.size() <= kPiece});
    needsAll_ = found == nullptr;
    found = found == nullptr ? entriesAt({bytes, 0, true}) : found;
  }
  return found == nullptr ? restricted(readStringTable(bytes)) : found;
}

// Null when the head is not enough or a full read is needed.
std::shared_ptr<const StringTable> PrefixProbe::entriesAt(const FilePiece& head) const {
  StringTableBuilder builder;
  return file_->addEntries(head, builder) ? restricted(builder.build()) : nullptr;
}

// The entries whose keys begin with the prefix. An empty table for null.
std::shared_ptr<const StringTable> PrefixProbe::restricted(
    const std::shared_ptr<const StringTable>& table) const {
  StringTableBuilder builder;
  if (table != nullptr) {
    for (const auto& [key, value] : table->entries()) {
      if (key.starts_with(searches_->prefix)) {
        builder.add(key, value);
      }
    }
  }
  return builder.build();
}

}  // namespace orvanta::strings
