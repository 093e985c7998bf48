#include <cstring>

#include <orvanta/strings/reader/text/TextStatements.h>

namespace orvanta::strings {

namespace {

constexpr std::string_view kUsualSign = " = ";

char* put(const TextToken& token, char* out) noexcept {
  if (token.escapes) {
    return resolveEscapes(token.text(), out);
  }
  const std::string_view text = token.text();
  std::memcpy(out, text.data(), text.size());
  return out + text.size();
}

}  // namespace

const char* TextStatements::read(TextScanner& scanner, const char* at) {
  while (!full_) {
    at = scanner.skipIdle(at);
    if (at == scanner.end() || braces_ == Braces::kClosed) {
      break;
    }
    const char* next = readStatement(scanner, at);
    if (next == nullptr) {
      break;
    }
    at = next;
  }
  return at;
}

const char* TextStatements::readStatement(TextScanner& scanner, const char* at) {
  const TextToken key = scanner.readToken(at);
  if (!key.found()) {
    return readBrace(at);
  }
  const char* next = key.next;
  if (std::string_view(next, scanner.end()).starts_with(kUsualSign)) {
    next += kUsualSign.size();
  } else {
    next = scanner.skipIdle(next);
    if (next == scanner.end() || (*next != '=' && *next != ';')) {
      return nullptr;
    }
    if (*next == ';') {
      last_ = at;
      add(key, key);
      return next + 1;
    }
    ++next;
  }
  const TextToken value = scanner.readToken(scanner.skipIdle(next));
  if (!value.found()) {
    return nullptr;
  }
  next = scanner.skipIdle(value.next);
  if (next == scanner.end() || *next != ';') {
    return nullptr;
  }
  last_ = at;
  add(key, value);
  return next + 1;
}

const char* TextStatements::readBrace(const char* at) noexcept {
  if (*at == '{' && braces_ == Braces::kNone && count_ == 0) {
    braces_ = Braces::kOpen;
    return at + 1;
  }
  if (*at == '}' && braces_ == Braces::kOpen) {
    braces_ = Braces::kClosed;
    return at + 1;
  }
  return nullptr;
}

void TextStatements::add(const TextToken& key, const TextToken& value) {
  char* begin = table_.beginEntry(key.text().size() + value.text().size());
  if (begin == nullptr) {
    full_ = true;
    return;
  }
  char* keyEnd = put(key, begin);
  char* valueEnd = put(value, keyEnd);
  table_.commitEntry(static_cast<std::size_t>(keyEnd - begin),
                     static_cast<std::size_t>(valueEnd - keyEnd));
  ++count_;
}

}  // namespace orvanta::strings
