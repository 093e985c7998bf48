#include <array>
#include <cstddef>

#include <orvanta/strings/reader/text/TextCollection.h>
#include <orvanta/text/HexDigit.h>

namespace orvanta::strings {

namespace {

bool isOfData(char c) noexcept {
  return digitValue(c) != kNoDigit || isKind(c, kBlank);
}

// A number, a flag or a date.
bool isOfTypedValue(char c) noexcept {
  return isKind(c, kPlain | kBlank) || c == '+';
}

class CollectionPasser {
 public:
  CollectionPasser(TextScanner& scanner, const char* open, bool isStrict) noexcept
      : scanner_(scanner), at_(open), isStrict_(isStrict) {}

  PassedCollection pass() noexcept {
    bool isSound = passPiece();
    while (isSound && depth_ > 0) {
      at_ = scanner_.skipAllIdle(at_);
      isSound = at_ != scanner_.end() && passPiece();
    }
    return {at_, isSound};
  }

 private:
  // Passes a bracket, a mark or a token; false where none is allowed.
  bool passPiece() noexcept {
    switch (*at_) {
      case '(':
        return open(')');
      case '{':
        return open('}');
      case '<':
        return passData();
      case ')':
      case '}':
        return isStrict_ ? passMark(*at_) && close(1) : close();
      case ',':
        return passMark(')');
      case '=':
      case ';':
        return passMark('}');
      default:
        return passToken();
    }
  }

  bool open(char closer) noexcept {
    if (depth_ == closers_.size()) {
      return false;
    }
    closers_[depth_++] = closer;
    ++at_;
    return true;
  }

  bool close(std::size_t levels) noexcept {
    depth_ -= levels;
    return true;
  }

  // Closes the collection that the bracket ends, and those inside it that lack their ends. A
  // bracket that ends nothing is taken for an ordinary character.
  bool close() noexcept {
    std::size_t levels = 1;
    while (levels <= depth_ && closers_[depth_ - levels] != *at_) {
      ++levels;
    }
    ++at_;
    return close(levels <= depth_ ? levels : 0);
  }

  // Passes a mark that belongs to arrays (`closer` is ")") or to dictionaries ("}").
  bool passMark(char closer) noexcept {
    const bool isInPlace = depth_ > 0 && closers_[depth_ - 1] == closer;
    if (!isInPlace && (isStrict_ || (*at_ == '=' && !leaveArrays()))) {
      return false;
    }
    ++at_;
    return true;
  }

  // Closes the arrays that are open inside the innermost dictionary; false without a dictionary.
  bool leaveArrays() noexcept {
    while (depth_ > 0 && closers_[depth_ - 1] == ')') {
      --depth_;
    }
    return depth_ > 0;
  }

  // Inside a damaged collection, "<" that does not begin data is taken for an ordinary character.
  bool passData() noexcept {
    const char* at = at_ + 1;
    const bool isTyped = at != scanner_.end() && *at == '*';
    at += isTyped ? 1 : 0;
    while (at != scanner_.end() && (isTyped ? isOfTypedValue(*at) : isOfData(*at))) {
      ++at;
    }
    const bool isClosed = at != scanner_.end() && *at == '>';
    at_ = isClosed ? at + 1 : at_ + 1;
    return isClosed || (!isStrict_ && depth_ > 0);
  }

  bool passToken() noexcept {
    const TextToken token =
        isStrict_ ? scanner_.readToken(at_) : readToken(at_, scanner_.lineEnd(at_));
    at_ = token.found() ? token.next : at_ + 1;
    return token.found() || !isStrict_;
  }

  TextScanner& scanner_;
  const char* at_;
  bool isStrict_;
  std::size_t depth_ = 0;
  std::array<char, kDeepestCollection> closers_ = {};
};

}  // namespace

PassedCollection passOverCollection(TextScanner& scanner, const char* open) {
  const PassedCollection strictly = CollectionPasser(scanner, open, true).pass();
  return strictly.isClosed ? strictly : CollectionPasser(scanner, open, false).pass();
}

}  // namespace orvanta::strings
