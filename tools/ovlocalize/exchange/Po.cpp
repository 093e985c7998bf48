#include <array>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <memory>
#include <string_view>

#include <gettext-po.h>

#include <orvanta/text/Utf8.h>

#include "../Settings.h"
#include "Formats.h"
#include "Notation.h"

namespace ovlocalize {

namespace {

constexpr std::size_t kNoLine = static_cast<std::size_t>(-1);

// The first error that libgettextpo has reported. Its handlers take no argument of ours.
std::string firstError;  // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)

void report(int severity, po_message_t /*message*/, const char* /*file*/, std::size_t line,
            std::size_t /*column*/, int /*isMultiline*/, const char* text) {
  if (severity != PO_SEVERITY_WARNING && firstError.empty()) {
    std::string_view reason(text);
    reason = reason.substr(0, reason.find_last_not_of('\n') + 1);
    firstError = line == kNoLine ? "" : std::to_string(line) + ": ";
    firstError += reason;
  }
  if (severity == PO_SEVERITY_FATAL_ERROR) {
    // It must not go on; what it has allocated is lost.
    throw Failure(firstError);
  }
}

void reportBoth(int severity, po_message_t message, const char* file, std::size_t line,
                std::size_t column, int isMultiline, const char* text, po_message_t /*other*/,
                const char* /*otherFile*/, std::size_t /*otherLine*/, std::size_t /*otherColumn*/,
                int /*isOtherMultiline*/, const char* /*otherText*/) {
  report(severity, message, file, line, column, isMultiline, text);
}

constexpr po_xerror_handler kHandler = {report, reportBoth};

using OpenPo = std::unique_ptr<struct po_file, decltype(&po_file_free)>;
using Messages = std::unique_ptr<struct po_message_iterator, decltype(&po_message_iterator_free)>;

/// A file without a name: libgettextpo reads and writes nothing else than files.
class ScratchFile {
 public:
  ScratchFile() : file_(std::tmpfile(), std::fclose) {
    if (file_ == nullptr) {
      throw Failure("no temporary file can be made");
    }
    path_ = "/dev/fd/" + std::to_string(::fileno(file_.get()));
  }

  [[nodiscard]] const char* path() const { return path_.c_str(); }

  void write(std::string_view bytes) const {
    if (std::fwrite(bytes.data(), 1, bytes.size(), file_.get()) != bytes.size() ||
        std::fflush(file_.get()) != 0) {
      throw Failure("a temporary file could not be written");
    }
  }

  [[nodiscard]] std::string contents() const {
    std::string bytes;
    std::array<char, 1 << 16> buffer;
    while (const std::size_t count = std::fread(buffer.data(), 1, buffer.size(), file_.get())) {
      bytes.append(buffer.data(), count);
    }
    return bytes;
  }

 private:
  std::unique_ptr<std::FILE, int (*)(std::FILE*)> file_;
  std::string path_;
};

std::string header(const Catalog& catalog) {
  std::array<char, 32> date = {};
  std::tm utc = {};
  ::gmtime_r(&catalog.revision, &utc);
  std::strftime(date.data(), date.size(), "%Y-%m-%d %H:%M+0000", &utc);
  return "Project-Id-Version: " + catalog.table + "\nPO-Revision-Date: " + date.data() +
         "\nLast-Translator: \nLanguage-Team: \nLanguage: " + catalog.language +
         "\nMIME-Version: 1.0\nContent-Type: text/plain; charset=UTF-8\n"
         "Content-Transfer-Encoding: 8bit\nX-Source-Language: " +
         catalog.sourceLanguage + "\n";
}

void writeOuterLineFeeds(std::string& text) {
  if (text.starts_with('\n')) {
    text.replace(0, 1, kLineFeedInNotation);
  }
  if (text.ends_with('\n')) {
    text.replace(text.size() - 1, 1, kLineFeedInNotation);
  }
}

// The readers of PO require that a translation begins and ends with a line feed if and only if the
// source text does.
void alignLineFeeds(std::string& source, std::string& target) {
  if (source.starts_with('\n') != target.starts_with('\n') ||
      source.ends_with('\n') != target.ends_with('\n')) {
    writeOuterLineFeeds(source);
    writeOuterLineFeeds(target);
  }
}

po_message_t messageFrom(const Unit& unit) {
  std::string source = inNotation(unit.source);
  std::string target = unit.target ? inNotation(*unit.target) : "";
  if (unit.target) {
    alignLineFeeds(source, target);
  }
  auto* const message = po_message_create();
  po_message_set_msgctxt(message, keyInNotation(unit.key).c_str());
  po_message_set_msgid(message, source.c_str());
  po_message_set_msgstr(message, target.c_str());
  if (!unit.note.empty()) {
    po_message_set_extracted_comments(message, inNotation(unit.note).c_str());
  }
  return message;
}

// Texts in another encoding would become other texts.
std::string validText(const char* text, const std::string& name) {
  if (!orvanta::utf8::isValid(text)) {
    throw Failure(name + " is no PO file in UTF-8");
  }
  return text;
}

std::string headerField(po_file_t file, const char* field) {
  const char* const header = po_file_domain_header(file, nullptr);
  const std::unique_ptr<char, decltype(&std::free)> value(
      header == nullptr ? nullptr : po_header_field(header, field), std::free);
  return value == nullptr ? "" : value.get();
}

void addUnit(Catalog& catalog, po_message_t message, const std::string& name) {
  const char* const key = po_message_msgctxt(message);
  const std::string source = validText(po_message_msgid(message), name);
  const bool isHeader = key == nullptr && source.empty();
  if (isHeader || po_message_is_obsolete(message) != 0) {
    return;
  }
  if (key == nullptr || po_message_msgid_plural(message) != nullptr) {
    ++catalog.leftOut;
    return;
  }
  Unit unit;
  unit.key = fromNotation(validText(key, name));
  unit.source = fromNotation(source);
  const std::string target = validText(po_message_msgstr(message), name);
  if (!target.empty()) {
    unit.target = fromNotation(target);
  }
  const char* const note = po_message_extracted_comments(message);
  std::string lines = note == nullptr ? "" : validText(note, name);
  lines.erase(lines.find_last_not_of('\n') + 1);
  unit.note = fromNotation(lines);
  unit.isFuzzy = po_message_is_fuzzy(message) != 0;
  catalog.units.push_back(std::move(unit));
}

}  // namespace

std::string poFrom(const Catalog& catalog) {
  const OpenPo file(po_file_create(), po_file_free);
  {
    const Messages messages(po_message_iterator(file.get(), nullptr), po_message_iterator_free);
    auto* const first = po_message_create();
    po_message_set_msgid(first, "");
    po_message_set_msgstr(first, header(catalog).c_str());
    po_message_insert(messages.get(), first);
    for (const Unit& unit : catalog.units) {
      po_message_insert(messages.get(), messageFrom(unit));
    }
  }
  firstError.clear();
  const ScratchFile scratch;
  if (po_file_write(file.get(), scratch.path(), &kHandler) == nullptr || !firstError.empty()) {
    throw Failure("the PO file could not be written: " + firstError);
  }
  return scratch.contents();
}

Catalog catalogFromPo(const std::string& bytes, const std::string& name) {
  const ScratchFile scratch;
  scratch.write(bytes);
  firstError.clear();
  OpenPo file(nullptr, po_file_free);
  try {
    file.reset(po_file_read(scratch.path(), &kHandler));
  } catch (const Failure&) {
    // The first error tells more than the one that made it stop.
  }
  if (file == nullptr || !firstError.empty()) {
    throw Failure(name + " is no PO file: " + firstError);
  }
  Catalog catalog;
  catalog.language = headerField(file.get(), "Language");
  const Messages messages(po_message_iterator(file.get(), nullptr), po_message_iterator_free);
  while (auto* const message = po_next_message(messages.get())) {
    addUnit(catalog, message, name);
  }
  return catalog;
}

}  // namespace ovlocalize
