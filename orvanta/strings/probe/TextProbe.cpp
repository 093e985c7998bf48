#include <algorithm>
#include <vector>

#include <orvanta/strings/encoding/Utf8Validity.h>
#include <orvanta/strings/probe/PrefixPlaces.h>
#include <orvanta/strings/probe/SoundStatements.h>
#include <orvanta/strings/probe/TextProbe.h>
#include <orvanta/strings/probe/TextUnits.h>
#include <orvanta/strings/reader/StringTableReader.h>
#include <orvanta/strings/reader/text/TextTable.h>

namespace orvanta::strings {

namespace {

// With more places, a full read is as fast.
constexpr std::size_t kMostPlaces = 1024;

template <TextEncoding kEncoding>
class TextProbe final : public FileProbe {
 public:
  TextProbe(std::size_t markSize, const PrefixSearches& searches) noexcept
      : markSize_(markSize),
        escapes_(searches.escapes),
        search_(kEncoding == TextEncoding::kUtf8 ? searches.inUtf8 : searches.inUtf16) {}

  void look(const FilePiece& piece) override {
    const Text text = textOf(piece);
    const std::size_t base = (piece.offset - std::min(piece.offset, markSize_)) / kUnitSize;
    // A prefix or an escape that begins before `end` is complete in this piece.
    const std::size_t longest = search_.longestPattern() / kUnitSize + 1;
    const std::size_t end = text.size() - (piece.isLast ? 0 : std::min(text.size(), longest));
    const std::size_t known = places_.size();
    PrefixPlaces<Text>(text, search_, escapes_)
        .collect(searched_ - base, end, kMostPlaces, places_);
    std::for_each(places_.begin() + static_cast<std::ptrdiff_t>(known), places_.end(),
                  [base](std::size_t& place) { place += base; });
    searched_ = std::max(searched_, base + end);
  }

  bool addEntries(const FilePiece& head, StringTableBuilder& table) override {
    return places_.empty() ||
           (places_.size() < kMostPlaces && addStatements(textOf(head), head.isLast, table));
  }

 private:
  using Text = TextUnits<kEncoding>;
  static constexpr std::size_t kUnitSize = sizeof(typename Text::Unit);

  Text textOf(const FilePiece& piece) const noexcept {
    return Text(piece.bytes.substr(piece.offset == 0 ? markSize_ : 0));
  }

  bool addStatements(Text text, bool isWhole, StringTableBuilder& table) const {
    if (places_.back() >= text.size()) {
      return false;
    }
    SoundStatements<Text> statements(text);
    auto place = places_.begin();
    while (place != places_.end()) {
      do {
        if (!statements.next()) {
          return isWhole && statements.isAtEnd();
        }
      } while (statements.end() <= *place);
      if (!addStatement(text.slice(statements.begin(), statements.end()), table)) {
        return false;
      }
      while (place != places_.end() && *place < statements.end()) {
        ++place;
      }
    }
    return statements.next() || (isWhole && statements.isAtEnd());
  }

  static bool addStatement(std::string_view statement, StringTableBuilder& table) {
    if (kEncoding == TextEncoding::kUtf8 && !isValidUtf8(statement)) {
      return false;
    }
    bool isSound = true;
    const bool isRead = readTextTable({kEncoding, statement}, table,
                                      [&isSound](const TableProblem&) { isSound = false; });
    return isRead && isSound;
  }

  std::size_t markSize_;
  const SpellingEscapes& escapes_;
  const SampledSearch& search_;
  std::size_t searched_ = 0;
  std::vector<std::size_t> places_;
};

}  // namespace

std::unique_ptr<FileProbe> makeTextProbe(TextEncoding encoding, std::size_t markSize,
                                         const PrefixSearches& searches) {
  switch (encoding) {
    case TextEncoding::kUtf8:
    case TextEncoding::kBrokenUtf8:
      return std::make_unique<TextProbe<TextEncoding::kUtf8>>(markSize, searches);
    case TextEncoding::kUtf16Little:
      return std::make_unique<TextProbe<TextEncoding::kUtf16Little>>(markSize, searches);
    case TextEncoding::kUtf16Big:
      return std::make_unique<TextProbe<TextEncoding::kUtf16Big>>(markSize, searches);
    case TextEncoding::kUtf32Little:
    case TextEncoding::kUtf32Big:
    case TextEncoding::kLatin1:
    case TextEncoding::kWindows1252:
      break;
  }
  return nullptr;
}

}  // namespace orvanta::strings
