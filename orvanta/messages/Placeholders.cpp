#include <algorithm>

#include <orvanta/messages/Placeholders.h>

namespace orvanta {

namespace {

constexpr std::size_t kMostDigits = 2;

class PlaceholderParser {
 public:
  // `text` begins with the "%". `following` is the argument that is taken next.
  PlaceholderParser(std::string_view text, std::size_t following) noexcept : text_(text) {
    placeholder_.argument = following;
  }

  std::optional<Placeholder> parse() {
    const std::optional<int> leading = number();
    if (leading && *leading > 0 && skip('$')) {
      placeholder_.argument = static_cast<std::size_t>(*leading - 1);
      placeholder_.isPositioned = true;
    } else {
      at_ = 1;
    }
    placeholder_.isLeft = skip('-');
    placeholder_.hasZeros = skip('0') && !placeholder_.isLeft;
    placeholder_.width = static_cast<std::size_t>(number().value_or(0));
    if (skip('.')) {
      placeholder_.precision = number().value_or(0);
    }
    at_ = std::min(text_.find_first_not_of("hlqLzjt", at_), text_.size());
    if (at_ == text_.size() ||
        std::string_view("@sSdDiuUxXofFeEgGcC").find(text_[at_]) == text_.npos) {
      return std::nullopt;
    }
    placeholder_.conversion = text_[at_];
    placeholder_.size = at_ + 1;
    return placeholder_;
  }

 private:
  bool skip(char character) {
    const bool isThere = at_ < text_.size() && text_[at_] == character;
    at_ += isThere ? 1 : 0;
    return isThere;
  }

  std::optional<int> number() {
    int value = 0;
    const std::size_t begin = at_;
    while (at_ < text_.size() && at_ - begin < kMostDigits && text_[at_] >= '0' &&
           text_[at_] <= '9') {
      value = value * 10 + (text_[at_++] - '0');
    }
    return at_ > begin ? std::optional(value) : std::nullopt;
  }

  std::string_view text_;
  std::size_t at_ = 1;
  Placeholder placeholder_;
};

}  // namespace

std::optional<Placeholder> PlaceholderReader::next() noexcept {
  while ((at_ = text_.find('%', at_)) != std::string_view::npos) {
    std::optional<Placeholder> found;
    if (text_.substr(at_).starts_with("%%")) {
      found = Placeholder{.size = 2, .precision = std::nullopt, .conversion = '%'};
    } else {
      found = PlaceholderParser(text_.substr(at_), following_).parse();
    }
    if (found) {
      found->begin = at_;
      at_ += found->size;
      following_ += found->isPercent() || found->isPositioned ? 0 : 1;
      return found;
    }
    ++at_;
  }
  at_ = text_.size();
  return std::nullopt;
}

}  // namespace orvanta
