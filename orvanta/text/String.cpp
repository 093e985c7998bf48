#include <algorithm>
#include <cstdlib>
#include <new>
#include <ostream>

#include <orvanta/text/String.h>
#include <orvanta/text/TextHash.h>
#include <orvanta/text/Utf8.h>

namespace orvanta {

namespace {

// One block holds the reference count and the characters behind it. At least one byte of
// characters, so that each copy of the empty text has an address of its own.
class CopiedText final : public TextStorage {
 public:
  static CopiedText* make(std::string_view text) {
    void* block = ::operator new(sizeof(CopiedText) + std::max<std::size_t>(text.size(), 1));
    auto* made = new (block) CopiedText;
    std::copy(text.begin(), text.end(), made->characters());
    return made;
  }
  // The block is larger than the object.
  static void operator delete(void* block) { ::operator delete(block); }

  char* characters() noexcept { return reinterpret_cast<char*>(this + 1); }

 private:
  CopiedText() noexcept = default;
};

class TakenOverText final : public TextStorage {
 public:
  explicit TakenOverText(char* block) noexcept : block_(block) {}
  TakenOverText(const TakenOverText&) = delete;
  TakenOverText& operator=(const TakenOverText&) = delete;
  ~TakenOverText() override { std::free(block_); }

 private:
  char* block_;
};

}  // namespace

String String::copyOf(std::string_view text) {
  auto* copy = CopiedText::make(text);
  return {copy->characters(), text.size(), copy};
}

String String::takingOver(char* block, std::size_t size) {
  return {block, size, new TakenOverText(block)};
}

std::size_t String::utf16Length() const noexcept {
  return utf8::utf16Length(view());
}

std::ostream& operator<<(std::ostream& out, const String& text) {
  return text.isAbsent() ? out << "(absent)" : out << text.view();
}

}  // namespace orvanta

std::size_t std::hash<orvanta::String>::operator()(const orvanta::String& text) const noexcept {
  return orvanta::TextHash()(text);
}
