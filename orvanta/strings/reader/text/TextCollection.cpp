#include <array>
#include <cstddef>

#include <orvanta/strings/reader/text/TextCollection.h>

namespace orvanta::strings {

namespace {

bool isHexDigit(char c) noexcept {
  return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}

class CollectionPasser {
 public:
  CollectionPasser(TextScanner& scanner, const char* open) noexcept
      : scanner_(scanner), at_(open) {}

  PassedCollection pass() noexcept {
    bool sound = passPiece();
    while (sound && depth_ > 0) {
      at_ = scanner_.skipIdle(at_);
      sound = at_ != scanner_.end() && passPiece();
    }
    return {at_, sound};
  }

 private:
  // A token or a mark; false for what cannot stand there.
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
        return close();
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

  bool close() noexcept {
    if (!passMark(*at_)) {
      return false;
    }
    --depth_;
    return true;
  }

  bool passMark(char innermostCloser) noexcept {
    if (depth_ == 0 || closers_[depth_ - 1] != innermostCloser) {
      return false;
    }
    ++at_;
    return true;
  }

  bool passData() noexcept {
    do {
      ++at_;
    } while (at_ != scanner_.end() && (isHexDigit(*at_) || isKind(*at_, kBlank)));
    if (at_ == scanner_.end() || *at_ != '>') {
      return false;
    }
    ++at_;
    return true;
  }

  bool passToken() noexcept {
    const TextToken token = scanner_.readToken(at_);
    at_ = token.found() ? token.next : at_;
    return token.found();
  }

  TextScanner& scanner_;
  const char* at_;
  std::size_t depth_ = 0;
  std::array<char, kDeepestCollection> closers_ = {};
};

}  // namespace

PassedCollection passOverCollection(TextScanner& scanner, const char* open) {
  return CollectionPasser(scanner, open).pass();
}

}  // namespace orvanta::strings
