#include <algorithm>
#include <array>
#include <optional>
#include <utility>

#include <orvanta/strings/reader/text/StatementPlaces.h>
#include <orvanta/strings/reader/xml/XmlEncoding.h>
#include <orvanta/strings/reader/xml/XmlNesting.h>
#include <orvanta/strings/reader/xml/XmlProblems.h>
#include <orvanta/strings/reader/xml/XmlScanner.h>
#include <orvanta/strings/reader/xml/XmlTable.h>
#include <orvanta/strings/reader/xml/XmlText.h>

namespace orvanta::strings {

namespace {

constexpr std::string_view kList = "plist";
constexpr std::string_view kDictionary = "dict";
constexpr std::string_view kKey = "key";
constexpr std::string_view kValue = "string";
constexpr const char* kNoList = "no property list";
constexpr const char* kStrayText = "text outside of a key or value";
constexpr std::string_view kWhiteSpace = " \t\r\n";
constexpr std::string_view kComment = "<!--";
constexpr std::array<std::string_view, 4> kBeginnings = {"<?xml", "<!DOCTYPE plist", "<plist",
                                                         "<dict"};

// Enough UTF-8 to recognise XML.
constexpr std::size_t kFirstBytes = 512;

bool endsName(char c) noexcept {
  return kWhiteSpace.find(c) != std::string_view::npos || c == '>' || c == '/';
}

bool endsDictionary(const XmlToken& token) noexcept {
  return token.closes(kDictionary) || token.closes(kList);
}

class XmlTableReader {
 public:
  XmlTableReader(std::string_view utf8, StringTableBuilder& table, XmlProblems& problems,
                 StatementPlaces* places)
      : begin_(utf8.data()), scanner_(utf8), table_(table), problems_(problems), places_(places) {}

  bool read() {
    if (!enterDictionary()) {
      return false;
    }
    while (readNext()) {
    }
    return true;
  }

 private:
  // What the next value belongs to.
  enum class Key { kNone, kHeld, kLost };

  XmlToken nextTag() {
    XmlToken token = scanner_.next();
    while (token.piece != XmlPiece::kOpening && token.piece != XmlPiece::kClosing &&
           token.piece != XmlPiece::kEnd) {
      token = scanner_.next();
    }
    return token;
  }

  bool enterDictionary() {
    const XmlToken list = nextTag();
    const bool isList = list.opens(kList) && !list.selfClosing;
    if (!isList && !list.opens(kDictionary)) {
      problems_.add(list.offset, kNoList);
      return false;
    }
    const XmlToken dictionary = isList ? nextTag() : list;
    if (!dictionary.opens(kDictionary)) {
      problems_.add(dictionary.offset, "a property list without a dictionary at its top");
      return false;
    }
    if (dictionary.selfClosing) {
      isClosed_ = true;
      closedAt_ = dictionary.offset;
    }
    return true;
  }

  // False once the table is read.
  bool readNext() {
    const XmlToken token = scanner_.next();
    switch (token.piece) {
      case XmlPiece::kEnd:
        finish(token.offset);
        return false;
      case XmlPiece::kText:
        reportStrayText(token);
        return true;
      case XmlPiece::kLiteral:
        addStray(token.offset, kStrayText);
        return true;
      case XmlPiece::kBroken:
        addStray(token.offset, "a '<' that begins no whole tag");
        return true;
      case XmlPiece::kClosing:
        return readClosing(token);
      case XmlPiece::kOpening:
        return readOpening(token);
    }
    return false;
  }

  void reportStrayText(const XmlToken& token) {
    const std::size_t blank = token.text.find_first_not_of(kWhiteSpace);
    if (blank != std::string_view::npos) {
      addStray(token.offset + blank, kStrayText);
    }
  }

  // Between two elements only the first problem is reported.
  void addStray(std::size_t offset, const char* message) {
    if (!std::exchange(isStrayReported_, true)) {
      problems_.add(offset, message);
    }
  }

  bool readClosing(const XmlToken& token) {
    if (token.text == kList) {
      finish(token.offset);
      return false;
    }
    if (token.text == kDictionary && !isClosed_) {
      closeDictionary(token.offset);
    } else {
      addStray(token.offset, "a closing tag without its opening tag");
    }
    return true;
  }

  void closeDictionary(std::size_t offset) {
    dropKey();
    isClosed_ = true;
    closedAt_ = offset;
    setTableEnd(offset);
  }

  void finish(std::size_t offset) {
    dropKey();
    if (!isClosed_) {
      problems_.add(offset, "the dictionary has no end");
      setTableEnd(offset);
    }
  }

  void setTableEnd(std::size_t offset) {
    if (places_ != nullptr) {
      places_->setTableEnd(begin_ + offset);
    }
  }

  bool readOpening(const XmlToken& token) {
    isStrayReported_ = false;
    if (isClosed_) {
      problems_.add(closedAt_, "the dictionary ends before its last pair");
      isClosed_ = false;
    }
    if (token.text == kKey) {
      dropKey();
      problems_.flush();
      keyAt_ = token.offset;
      held_ = readText(token, key_) ? Key::kHeld : Key::kLost;
      return true;
    }
    const Key owner = std::exchange(held_, Key::kNone);
    problems_.flush();
    if (owner == Key::kNone) {
      problems_.add(token.offset, "a value without a key");
    }
    if (token.text == kValue) {
      return !readText(token, value_) || owner != Key::kHeld || add(token);
    }
    if (owner == Key::kHeld) {
      problems_.add(token.offset, "a value that is no text");
    }
    skipElement(token);
    return true;
  }

  bool add(const XmlToken& value) {
    if (table_.add(key_.view(), value_.view())) {
      if (places_ != nullptr) {
        places_->add({begin_ + keyAt_, nullptr, inside_, std::string(key_.view())});
      }
      return true;
    }
    problems_.add(value.offset, "the table grows too large, all that follows is left out");
    return false;
  }

  void dropKey() {
    if (std::exchange(held_, Key::kNone) == Key::kHeld) {
      problems_.add(keyAt_, "a key without a value");
    }
  }

  // False, and reported, when the element's text is damaged.
  bool readText(const XmlToken& opening, XmlText& text) {
    text.clear();
    const char* const behind = begin_ + scanner_.position();
    if (opening.selfClosing) {
      inside_ = {begin_ + opening.offset, behind, behind};
      return true;
    }
    bool whole = true;
    for (;;) {
      const XmlToken token = scanner_.next();
      if (token.closes(opening.text)) {
        inside_ = {behind, begin_ + token.offset, begin_ + scanner_.position()};
        return whole;
      }
      if (token.piece == XmlPiece::kText) {
        whole = (whole && appendData(token, text)) && whole;
      } else if (token.piece == XmlPiece::kLiteral) {
        text.appendLiteral(token.text);
      } else {
        if (whole) {
          problems_.add(token.offset, token.piece == XmlPiece::kEnd ? "a text without an end"
                                                                    : "a '<' or tag in a text");
        }
        resume(opening.text, token);
        return false;
      }
    }
  }

  bool appendData(const XmlToken& token, XmlText& text) {
    const XmlText::BadReferences bad = text.appendData(token.text);
    if (bad.toNoCharacter) {
      problems_.add(token.offset + *bad.toNoCharacter,
                    "a reference to no character; U+FFFD stands for it",
                    TableProblem::Kind::characters);
    }
    if (bad.unknown) {
      problems_.add(token.offset + *bad.unknown, "a reference to an entity that is not known");
    }
    return !bad.unknown;
  }

  // Resumes after damage inside an element: behind its closing tag or, when that is missing, before
  // the next tag that cannot belong to it.
  void resume(std::string_view name, XmlToken token) {
    while (!token.closes(name)) {
      if (token.piece == XmlPiece::kEnd || token.opens(kKey) || endsDictionary(token)) {
        scanner_.giveBack(token);
        return;
      }
      token = nextTag();
    }
  }

  // Skips a value that is no text, whatever its nesting.
  void skipElement(const XmlToken& opening) {
    if (opening.selfClosing) {
      return;
    }
    XmlNesting nesting;
    nesting.open(opening.text);
    while (!nesting.isEmpty()) {
      const XmlToken token = nextTag();
      if (token.piece == XmlPiece::kOpening) {
        nesting.endLeaf();
      }
      const bool isForeign = token.piece == XmlPiece::kEnd || token.closes(kList) ||
                             nesting.isEmpty() || (token.opens(kKey) && !nesting.isInDictionary());
      if (isForeign || (token.piece == XmlPiece::kClosing && !nesting.close(token.text) &&
                        token.closes(kDictionary))) {
        scanner_.giveBack(token);
        return;
      }
      if (token.piece == XmlPiece::kOpening && !token.selfClosing) {
        nesting.open(token.text);
      }
    }
  }

  const char* begin_;
  XmlScanner scanner_;
  StringTableBuilder& table_;
  XmlProblems& problems_;
  StatementPlaces* places_;
  XmlText key_;
  XmlText value_;
  TextToken inside_;  // Of the text that was read last; all of its element if that has no inside.
  Key held_ = Key::kNone;
  std::size_t keyAt_ = 0;
  bool isStrayReported_ = false;
  bool isClosed_ = false;
  std::size_t closedAt_ = 0;
};

}  // namespace

bool looksLikeXmlTable(std::string_view utf8) noexcept {
  const std::size_t begin = std::min(utf8.find_first_not_of(kWhiteSpace), utf8.size());
  const std::string_view text = utf8.substr(begin);
  return text.starts_with(kComment) ||
         std::any_of(kBeginnings.begin(), kBeginnings.end(), [&](std::string_view beginning) {
           return text.starts_with(beginning) &&
                  (text.size() == beginning.size() || endsName(text[beginning.size()]));
         });
}

bool looksLikeXmlTable(EncodedText text) noexcept {
  std::array<char, kFirstBytes> first;
  const std::size_t size = Utf8Transcoder(text).transcode(first.data(), first.size());
  return looksLikeXmlTable(std::string_view(first.data(), size));
}

bool readXmlTable(EncodedText text, StringTableBuilder& table, const ProblemCollector& problems,
                  const StatementCollector& statements) {
  const DeclaredText declared = asDeclared(text);
  const WholeUtf8 whole(declared.text);
  XmlProblems found(whole, problems);
  if (!declared.isKnown) {
    found.add(declared.nameAt, "an encoding that is not known");
  }
  StatementPlaces places;
  const bool isTable =
      declared.isKnown &&
      XmlTableReader(whole.view(), table, found, statements ? &places : nullptr).read();
  found.finish();
  if (statements) {
    places.report(whole.view().data(), statements);
  }
  return isTable;
}

bool readXmlTable(const WholeUtf8& text, StringTableBuilder& table,
                  const ProblemCollector& problems, StatementPlaces& places) {
  XmlProblems found(text, problems);
  const bool isTable = XmlTableReader(text.view(), table, found, &places).read();
  found.finish();
  return isTable;
}

}  // namespace orvanta::strings
