#include <cstring>

#include <orvanta/strings/encoding/Escapes.h>
#include <orvanta/strings/reader/text/TextStatements.h>

namespace orvanta::strings {

namespace {

constexpr std::string_view kUsualSign = " = ";

// Writes the token's text and returns its end. Sets `isSound` to false for a lone surrogate.
char* resolve(const TextToken& token, char* out, bool& isSound) noexcept {
  const std::string_view text = token.text();
  if (token.escapes) {
    const ResolvedText resolved = resolveEscapes(text, out);
    isSound = isSound && !resolved.hasLoneSurrogate;
    return resolved.end;
  }
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

const char* TextStatements::readTentatively(TextScanner& scanner, const char* at) {
  const std::size_t before = count_;
  const char* const next = *at == '{' || *at == '}' ? nullptr : readStatement(scanner, at);
  if (count_ != before) {
    table_.makeLastTentative();
    if (places_ != nullptr) {
      places_->makeLastTentative();
    }
  }
  return next;
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
      return put(key, key, Damaged::kRefuse) ? next + 1 : nullptr;
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
  return put(key, value, Damaged::kRefuse) ? next + 1 : nullptr;
}

const char* TextStatements::readBrace(const char* at) noexcept {
  if (*at == '{' && braces_ == Braces::kNone && count_ == 0) {
    braces_ = Braces::kOpen;
    return at + 1;
  }
  if (*at == '}' && braces_ == Braces::kOpen) {
    braces_ = Braces::kClosed;
    closingBrace_ = at;
    return at + 1;
  }
  return nullptr;
}

bool TextStatements::add(const TextToken& key, const TextToken& value) {
  return put(key, value, Damaged::kAccept) || full_;
}

bool TextStatements::put(const TextToken& key, const TextToken& value, Damaged damaged) {
  char* begin = table_.beginEntry(key.text().size() + value.text().size());
  if (begin == nullptr) {
    full_ = true;
    return false;
  }
  bool isSound = true;
  char* const keyEnd = resolve(key, begin, isSound);
  char* const valueEnd = resolve(value, keyEnd, isSound);
  if (isSound || damaged == Damaged::kAccept) {
    table_.commitEntry(static_cast<std::size_t>(keyEnd - begin),
                       static_cast<std::size_t>(valueEnd - keyEnd));
    ++count_;
    if (places_ != nullptr) {
      places_->add({key.begin, key.next, value, std::string(begin, keyEnd)});
    }
  }
  return isSound;
}

}  // namespace orvanta::strings
