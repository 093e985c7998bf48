#include <algorithm>

#include <orvanta/strings/reader/text/NotATable.h>
#include <orvanta/strings/reader/text/TextCollection.h>

namespace orvanta::strings {

namespace {

bool isLetter(char c) noexcept {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

bool continuesName(char c) noexcept {
  return isLetter(c) || (c >= '0' && c <= '9') || c == '-' || c == '_' || c == ':' || c == '.';
}

class TagReader {
 public:
  explicit TagReader(std::string_view text) noexcept : rest_(text) {}

  // "<name", attributes, ">" or "/>".
  bool read() noexcept {
    accept('<');
    accept('/');
    if (!skipName()) {
      return false;
    }
    for (;;) {
      const bool isBlank = skipBlanks();
      accept('/');
      if (accept('>')) {
        return true;
      }
      if (!isBlank || !skipAttribute()) {
        return false;
      }
    }
  }

 private:
  bool accept(char c) noexcept {
    const bool isThere = rest_.starts_with(c);
    rest_.remove_prefix(isThere ? 1 : 0);
    return isThere;
  }

  template <typename Is>
  bool skipWhile(Is is) noexcept {
    const auto end = std::find_if_not(rest_.begin(), rest_.end(), is);
    const bool any = end != rest_.begin();
    rest_ = {end, rest_.end()};
    return any;
  }

  bool skipBlanks() noexcept {
    return skipWhile([](char c) { return isKind(c, kBlank); });
  }

  bool skipName() noexcept {
    return !rest_.empty() && isLetter(rest_[0]) && skipWhile(continuesName);
  }

  bool skipAttribute() noexcept {
    if (!skipName()) {
      return false;
    }
    skipBlanks();
    if (!accept('=')) {
      return true;
    }
    skipBlanks();
    if (rest_.empty() || !isQuote(rest_[0])) {
      return skipWhile([](char c) { return !isKind(c, kBlank) && c != '>' && !isQuote(c); });
    }
    const std::size_t close = rest_.find(rest_[0], 1);
    if (close == std::string_view::npos) {
      return false;
    }
    rest_.remove_prefix(close + 1);
    return true;
  }

  std::string_view rest_;
};

}  // namespace

bool beginsMarkup(std::string_view text) noexcept {
  if (text.size() < 2 || text[0] != '<') {
    return false;
  }
  const char next = text[1];
  const bool isDeclaration = text.size() > 2 && (next == '!' || next == '?') &&
                             (isLetter(text[2]) || text[2] == '-' || text[2] == '[');
  return isDeclaration || TagReader(text).read();
}

bool beginsList(TextScanner& scanner) {
  const char* const open = scanner.skipAllIdle(scanner.begin());
  if (open == scanner.end() || *open != '(') {
    return false;
  }
  const PassedCollection passed = passOverCollection(scanner, open);
  if (passed.isClosed) {
    return scanner.skipAllIdle(passed.end) == scanner.end();
  }
  // The list is damaged inside; its end at least must be there.
  const char* last = scanner.end();
  while (isKind(last[-1], kBlank)) {
    --last;
  }
  return last[-1] == ')';
}

bool beginsObjectNotation(TextScanner& scanner) {
  const char* const open = scanner.skipAllIdle(scanner.begin());
  if (open == scanner.end() || *open != '{') {
    return open != scanner.end() && *open == '[';
  }
  const TextToken key = scanner.readToken(scanner.skipAllIdle(open + 1));
  const char* const sign = key.found() ? scanner.skipAllIdle(key.next) : scanner.end();
  return sign != scanner.end() && *sign == ':';
}

}  // namespace orvanta::strings
