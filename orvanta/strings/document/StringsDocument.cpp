#include <algorithm>
#include <unordered_map>
#include <utility>

#include <orvanta/strings/document/DocumentReader.h>
#include <orvanta/strings/document/EncodeText.h>
#include <orvanta/strings/document/NewStatements.h>
#include <orvanta/strings/document/StringsDocument.h>
#include <orvanta/text/TextHash.h>

namespace orvanta::strings {

StringsDocument::StringsDocument(std::shared_ptr<const DocumentContents> contents) noexcept
    : contents_(std::move(contents)) {}

std::optional<StringsDocument> StringsDocument::read(std::string bytes,
                                                     const ProblemCollector& problems) {
  auto contents = std::make_shared<DocumentContents>();
  contents->bytes = std::move(bytes);
  if (!readDocument(*contents, problems)) {
    return std::nullopt;
  }
  return StringsDocument(std::move(contents));
}

const std::vector<DocumentEntry>& StringsDocument::entries() const noexcept {
  return contents_->entries;
}

/// Puts texts into a file.
class StringsDocument::Rewriting {
 public:
  Rewriting(const DocumentContents& contents, const std::vector<DocumentEntry>& texts)
      : contents_(contents), entries_(contents.entries) {
    std::unordered_map<std::string_view, std::size_t, TextHash> places;
    for (std::size_t index = 0; index < entries_.size(); ++index) {
      places.emplace(contents.entries[index].key, index);
    }
    for (const DocumentEntry& text : texts) {
      const auto [place, isNew] = places.try_emplace(text.key, entries_.size());
      if (isNew) {
        entries_.push_back(text);
      } else {
        entries_[place->second].value = text.value;
      }
    }
  }

  [[nodiscard]] bool changesNothing() const {
    return entries_.size() == old().size() &&
           std::equal(old().begin(), old().end(), entries_.begin(),
                      [](const auto& a, const auto& b) { return a.value == b.value; });
  }

  /// Absent where a place to write to is missing or inside another.
  [[nodiscard]] std::optional<std::string> bytes() const {
    std::string bytes;
    std::size_t copied = 0;
    for (std::size_t index = 0; index < old().size(); ++index) {
      const ValuePlace& place = contents_.places[index];
      if (entries_[index].value == old()[index].value) {
        continue;
      }
      if (place.begin < copied) {
        return std::nullopt;
      }
      bytes.append(contents_.bytes, copied, place.begin - copied);
      appendEncoded(bytes, place.before + valueAt(index) + place.behind, contents_.encoding);
      copied = place.end;
    }
    if (entries_.size() > old().size()) {
      if (!contents_.tableEnd || *contents_.tableEnd < copied) {
        return std::nullopt;
      }
      bytes.append(contents_.bytes, copied, *contents_.tableEnd - copied);
      appendNewEntries(bytes);
      copied = *contents_.tableEnd;
    }
    return bytes.append(contents_.bytes, copied);
  }

  /// Whether the file, once read, holds the entries that it should, and no other.
  [[nodiscard]] bool isHeldBy(std::string_view bytes) const {
    const std::shared_ptr<const StringTable> table = readStringTable(bytes);
    return table != nullptr && table->size() == entries_.size() &&
           std::all_of(entries_.begin(), entries_.end(), [&](const DocumentEntry& entry) {
             const String text = table->textForKey(HashedKey(entry.key));
             return text.isPresent() && text == entry.value;
           });
  }

  [[nodiscard]] const std::vector<DocumentEntry>& entries() const noexcept { return entries_; }

 private:
  [[nodiscard]] const std::vector<DocumentEntry>& old() const noexcept { return contents_.entries; }

  [[nodiscard]] std::string valueAt(std::size_t index) const {
    return contents_.style.isXml ? asXmlData(entries_[index].value)
                                 : asQuoted(entries_[index].value, contents_.places[index].quote);
  }

  void appendNewEntries(std::string& bytes) const {
    std::string statements = contents_.endsInLine ? std::string(contents_.style.lineEnd) : "";
    for (std::size_t index = old().size(); index < entries_.size(); ++index) {
      const DocumentEntry& entry = entries_[index];
      statements += newStatement(contents_.style, entry.key, entry.value, entry.comment);
    }
    appendEncoded(bytes, statements, contents_.encoding);
  }

  const DocumentContents& contents_;
  std::vector<DocumentEntry> entries_;  // Those of the file first.
};

std::optional<std::string> StringsDocument::withTexts(
    const std::vector<DocumentEntry>& texts) const {
  const Rewriting rewriting(*contents_, texts);
  if (rewriting.changesNothing()) {
    return contents_->bytes;
  }
  if (contents_->isBinary) {
    return read("")->withTexts(rewriting.entries());
  }
  std::optional<std::string> bytes = rewriting.bytes();
  return bytes && rewriting.isHeldBy(*bytes) ? std::move(bytes) : std::nullopt;
}

}  // namespace orvanta::strings
