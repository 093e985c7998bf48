#include <algorithm>
#include <cstdlib>
#include <new>

#include <orvanta/text/String.h>
#include <orvanta/text/Utf8.h>

namespace orvanta {

namespace {

// A text in one block with its count. Of size 1 at least, so that the empty text is an object.
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

String::String(std::string_view text) : size_(text.size()) {
  auto* copy = CopiedText::make(text);
  text_ = copy->characters();
  storage_ = copy;
}

String String::takingOver(char* block, std::size_t size) {
  return {block, size, new TakenOverText(block)};
}

String::String(const char* text) {
  if (text != nullptr) {
    *this = String(std::string_view(text));
  }
}

std::size_t String::utf16Length() const noexcept {
  std::size_t units = 0;
  for (std::string_view rest = view(); !rest.empty();) {
    const utf8::Decoded next = utf8::decode(rest);
    units += next.codePoint > 0xFFFF ? 2U : 1U;
    rest.remove_prefix(next.length);
  }
  return units;
}

std::ostream& operator<<(std::ostream& out, const String& text) {
  return text.isAbsent() ? out << "(absent)" : out << text.view();
}

}  // namespace orvanta
