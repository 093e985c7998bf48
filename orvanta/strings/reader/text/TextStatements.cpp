#include <cstring>

#include <orvanta/strings/encoding/Escapes.h>
#include <orvanta/strings/reader/text/TextStatements.h>

namespace orvanta::strings {

namespace {

constexpr std::string_view kUsualSign = " = ";

ResolvedText resolve(const TextToken& token, char* out) noexcept {
  const std::string_view text = token.text();
  if (token.escapes) {
    return resolveEscapes(text, out);
  }
  std::memcpy(out, text.data(), text.size());
  return {out + text.size(), false};
}

}  // namespace

const char* TextStatements::read(TextScanner& scanner, const char* at) {
  while (!full_) {
    at = scanner.skipIdle(at);
    if (at == scanner.end() || braces_ == Braces::kClosed) {
      break;
    }
    const char* next = readStatement(scanner, at, Standing::kFirm);
    next = next == nullptr ? readBrace(at) : next;
    if (next == nullptr) {
      break;
    }
    at = next;
  }
  return at;
}

const char* TextStatements::readStatement(TextScanner& scanner, const char* at, Standing standing) {
  const TextToken key = scanner.readToken(at);
  if (!key.found()) {
    return nullptr;
  }
  TextToken value = key;
  const char* next = key.next;
  if (std::string_view(next, scanner.end()).starts_with(kUsualSign)) {
    next += kUsualSign.size();
  } else {
    next = scanner.skipIdle(next);
    next = next != scanner.end() && *next == '=' ? next + 1 : nullptr;
  }
  if (next != nullptr) {
    value = scanner.readToken(scanner.skipIdle(next));
    if (!value.found()) {
      return nullptr;
    }
  }
  next = scanner.skipIdle(value.next);
  if (next == scanner.end() || *next != ';' || !put(key, value, standing, Damaged::kRefuse)) {
    return nullptr;
  }
  last_ = at;
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

bool TextStatements::add(const TextToken& key, const TextToken& value) {
  return put(key, value, Standing::kFirm, Damaged::kAccept) || full_;
}

bool TextStatements::put(const TextToken& key, const TextToken& value, Standing standing,
                         Damaged damaged) {
  char* begin = table_.beginEntry(key.text().size() + value.text().size());
  if (begin == nullptr) {
    full_ = true;
    return false;
  }
  const ResolvedText keyText = resolve(key, begin);
  const ResolvedText valueText = resolve(value, keyText.end);
  const bool isSound = !keyText.hasLoneSurrogate && !valueText.hasLoneSurrogate;
  if (isSound || damaged == Damaged::kAccept) {
    table_.commitEntry(static_cast<std::size_t>(keyText.end - begin),
                       static_cast<std::size_t>(valueText.end - keyText.end), standing);
    ++count_;
  }
  return isSound;
}

}  // namespace orvanta::strings
