#include <algorithm>
#include <memory>
#include <string_view>
#include <utility>

#include <orvanta/strings/StringTableBuilder.h>
#include <orvanta/strings/document/ByteOffsets.h>
#include <orvanta/strings/document/Comments.h>
#include <orvanta/strings/document/DocumentReader.h>
#include <orvanta/strings/reader/binary/BinaryTable.h>
#include <orvanta/strings/reader/text/StatementPlaces.h>
#include <orvanta/strings/reader/text/TextTable.h>
#include <orvanta/strings/reader/xml/XmlEncoding.h>
#include <orvanta/strings/reader/xml/XmlTable.h>

namespace orvanta::strings {

namespace {

using Place = StatementPlaces::Place;

constexpr std::string_view kEmptyElement = "<string";

bool isBlank(char c) noexcept {
  return c == ' ' || c == '\t';
}

std::string_view lineEndOf(std::string_view text) noexcept {
  const std::size_t at = text.find_first_of("\r\n");
  const bool isCarriageReturn = at != std::string_view::npos && text[at] == '\r';
  return !isCarriageReturn ? "\n" : text.substr(at).starts_with("\r\n") ? "\r\n" : "\r";
}

bool hasQuotedKey(const Place& place) noexcept {
  return place.keyEnd != nullptr && isQuote(place.keyEnd[-1]);
}

const char* beginOf(const Place& place) noexcept {
  return hasQuotedKey(place) ? place.at - 1 : place.at;
}

// What a new value replaces, in the text, without its offsets.
ValuePlace withoutOffsets(const Place& place, const char* textEnd) {
  const TextToken& value = place.value;
  ValuePlace replaced;
  if (place.keyEnd == nullptr) {
    if (value.text().starts_with(kEmptyElement)) {
      replaced.before = "<string>";
      replaced.behind = "</string>";
    }
  } else if (value.begin == place.at) {
    replaced.before = " = \"";
    replaced.behind = "\"";
  } else if (!isQuote(value.begin[-1])) {
    replaced.before = replaced.behind = "\"";
  } else {
    replaced.quote = value.begin[-1];
    const bool isClosed = value.end != textEnd && *value.end == replaced.quote;
    const bool hasSemicolon = value.end != textEnd && *value.end == ';';
    replaced.behind = isClosed ? "" : std::string(1, replaced.quote) + (hasSemicolon ? "" : ";");
  }
  return replaced;
}

/// Takes over what the readers tell of a text.
class ContentsMaker {
 public:
  ContentsMaker(DocumentContents& contents, EncodedText encoded, std::string_view text)
      : contents_(contents),
        mark_(static_cast<std::size_t>(encoded.bytes.data() - contents.bytes.data())),
        text_(text),
        offsets_(encoded, text) {
    contents.encoding = encoded.encoding;
    contents.style.lineEnd = lineEndOf(text);
  }

  void take(StatementPlaces& found, const StringTable& table) {
    std::vector<Place> places = found.takeHolding();
    if (!places.empty()) {
      takeStyle(places.back());
    }
    readComments(places);
    for (std::size_t index = 0; index < places.size(); ++index) {
      contents_.entries[index].value = table.textForKey(HashedKey(places[index].key)).str();
      contents_.entries[index].key = std::move(places[index].key);
      takePlace(places[index]);
    }
    if (found.tableEnd() != nullptr) {
      takeTableEnd(found.tableEnd());
    }
  }

 private:
  [[nodiscard]] std::size_t byteOffset(const char* at) noexcept {
    return mark_ + offsets_.at(static_cast<std::size_t>(at - text_.data()));
  }
  [[nodiscard]] const char* textEnd() const noexcept { return text_.data() + text_.size(); }

  void takePlace(const Place& place) {
    ValuePlace value = withoutOffsets(place, textEnd());
    const bool isKeyAlone = place.value.begin == place.at;
    value.begin = byteOffset(isKeyAlone ? place.keyEnd : place.value.begin);
    value.end = byteOffset(isKeyAlone ? place.keyEnd : place.value.end);
    contents_.places.push_back(std::move(value));
  }

  void takeStyle(const Place& last) {
    contents_.style.hasPlainKeys = !contents_.style.isXml && !hasQuotedKey(last);
    const char* const at = beginOf(last);
    const char* line = at;
    while (line != text_.data() && isBlank(line[-1])) {
      --line;
    }
    contents_.style.indentation.assign(line, at);
  }

  void readComments(const std::vector<Place>& places) {
    contents_.entries.resize(places.size());
    TextScanner scanner(text_);
    const char* from = text_.data();
    for (std::size_t index = 0; index < places.size(); ++index) {
      const Place& place = places[index];
      readCommentsBetween(scanner, from, beginOf(place), index);
      from = std::max(from, place.value.next);
    }
    readCommentsBetween(scanner, from, textEnd(), places.size());
  }

  // `next` is the entry behind them.
  void readCommentsBetween(TextScanner& scanner, const char* from, const char* to,
                           std::size_t next) {
    if (from >= to) {
      return;
    }
    CommentsBetween comments;
    if (contents_.style.isXml) {
      comments.ofNext = xmlComments({from, to});
    } else {
      comments = commentsBetween(scanner, from, to);
    }
    if (next > 0 && !comments.ofPrevious.empty()) {
      std::string& previous = contents_.entries[next - 1].comment;
      previous += (previous.empty() ? "" : "\n") + comments.ofPrevious;
    }
    if (next < contents_.entries.size()) {
      contents_.entries[next].comment = std::move(comments.ofNext);
    }
  }

  // In XML before the line of the closing tag.
  void takeTableEnd(const char* end) {
    while (end != textEnd() && end != text_.data() && isBlank(end[-1])) {
      --end;
    }
    contents_.endsInLine = end != text_.data() && end[-1] != '\n' && end[-1] != '\r';
    contents_.tableEnd = byteOffset(end);
  }

  DocumentContents& contents_;
  std::size_t mark_;
  std::string_view text_;
  ByteOffsets offsets_;
};

bool readBinary(DocumentContents& contents, const ProblemCollector& problems) {
  StringTableBuilder builder(StringTableBuilder::Expected::inFile(contents.bytes.size()));
  if (!readBinaryTable(contents.bytes, builder, problems, {})) {
    return false;
  }
  contents.isBinary = true;
  const std::shared_ptr<const StringTable> table = builder.build();
  for (const StringTable::Entry& entry : table->entries()) {
    contents.entries.push_back({std::string(entry.key), std::string(entry.value), ""});
  }
  return true;
}

}  // namespace

bool readDocument(DocumentContents& contents, const ProblemCollector& problems) {
  if (looksLikeBinaryTable(contents.bytes)) {
    return readBinary(contents, problems);
  }
  EncodedText encoded = detectEncoding(contents.bytes);
  const bool isXml = looksLikeXmlTable(encoded);
  if (isXml) {
    const DeclaredText declared = asDeclared(encoded);
    encoded = declared.text;
    if (!declared.isKnown) {
      // For the report alone.
      return readStringTable(contents.bytes, problems) != nullptr;
    }
  }
  contents.style.isXml = isXml;
  const WholeUtf8 whole(encoded);
  StringTableBuilder builder(StringTableBuilder::Expected::inFile(whole.view().size()));
  StatementPlaces places;
  const bool isTable = isXml ? readXmlTable(whole, builder, problems, places)
                             : readTextTable(whole, builder, problems, places);
  if (isTable) {
    ContentsMaker(contents, encoded, whole.view()).take(places, *builder.build());
  }
  return isTable;
}

}  // namespace orvanta::strings
