#include <optional>

#include <orvanta/messages/PlainNumber.h>
#include <orvanta/messages/pattern/MessageFormat.h>
#include <orvanta/messages/pattern/TextDirection.h>

namespace orvanta {

namespace {

using Kind = PatternPart::Kind;

constexpr std::string_view kIsolate = "\u2068";
constexpr std::string_view kPopIsolate = "\u2069";

// What "#" stands for: a number, or the text that was given in its place.
struct Counted {
  const PlainNumber* number = nullptr;
  std::string_view text;
};

class Formatter {
 public:
  Formatter(std::string_view pattern, std::span<const PatternPart> parts,
            const MessageArguments& arguments, const MessageLanguage& language,
            std::pmr::string& out) noexcept
      : pattern_(pattern), parts_(parts), arguments_(arguments), language_(language), out_(out) {}

  void formatAll() { format(0, parts_.size(), {}); }

 private:
  // The depth of recursion is that of the pattern's branches, which is limited.
  void format(std::size_t begin, std::size_t end, const Counted& counted) {
    for (std::size_t at = begin; at < end; at = parts_[at].next) {
      const std::string_view characters = parts_[at].in(pattern_);
      switch (parts_[at].kind) {
        case Kind::text:
          out_ += characters;
          break;
        case Kind::number:
          write(counted);
          break;
        case Kind::argument:
          formatArgument(characters);
          break;
        default:
          formatChoice(at, characters);
      }
    }
  }

  void formatArgument(std::string_view name) {
    const MessageValue* value = arguments_.find(name);
    if (value == nullptr) {
      writeMissing(name);
    } else if (value->isNumber()) {
      write(PlainNumber(*value));
    } else {
      write(value->text());
    }
  }

  void formatChoice(std::size_t choice, std::string_view name) {
    const MessageValue* value = arguments_.find(name);
    if (value == nullptr) {
      writeMissing(name);
    } else if (parts_[choice].kind == Kind::select) {
      formatSelect(choice, *value);
    } else if (value->isNumber()) {
      formatPlural(choice, *value);
    } else {
      formatBranch(branchOf(choice, keywordOf(PluralCategory::other), {}),
                   {nullptr, value->text()});
    }
  }

  void formatSelect(std::size_t choice, const MessageValue& value) {
    if (value.isNumber()) {
      formatBranch(branchOf(choice, PlainNumber(value).text(), {}), {});
    } else {
      formatBranch(branchOf(choice, value.text(), {}), {});
    }
  }

  void formatPlural(std::size_t choice, const MessageValue& value) {
    const PatternPart& first = parts_[choice + 1];
    const double offset =
        first.kind == Kind::offset ? patternNumber(first.in(pattern_)).value_or(0) : 0;
    const PlainNumber number(value, offset);
    const PluralCategory category = parts_[choice].kind == Kind::plural
                                        ? language_.cardinalCategory(number)
                                        : language_.ordinalCategory(number);
    formatBranch(branchOf(choice, keywordOf(category), value.approximately()), {&number, {}});
  }

  void formatBranch(std::size_t branch, const Counted& counted) {
    format(branch + 1, parts_[branch].next, counted);
  }

  // The first branch for exactly this number, else the first with the keyword, else the first
  // `other`, of which every choice has one.
  [[nodiscard]] std::size_t branchOf(std::size_t choice, std::string_view keyword,
                                     std::optional<double> exactly) const {
    constexpr std::size_t kNone = 0;  // A choice stands before its branches.
    std::size_t other = kNone;
    std::size_t found = kNone;
    for (std::size_t at = choice + 1; at < parts_[choice].next; at = parts_[at].next) {
      const std::string_view selector = parts_[at].in(pattern_);
      if (parts_[at].kind == Kind::offset) {
        continue;
      }
      if (exactly && selector.starts_with('=')) {
        if (patternNumber(selector.substr(1)) == exactly) {
          return at;
        }
      } else if (found == kNone && selector == keyword) {
        found = at;
      } else if (other == kNone && selector == keywordOf(PluralCategory::other)) {
        other = at;
      }
    }
    return found == kNone ? other : found;
  }

  void writeMissing(std::string_view name) { out_.append(1, '{').append(name).append(1, '}'); }

  void write(const Counted& counted) {
    if (counted.number != nullptr) {
      write(*counted.number);
    } else {
      write(counted.text);
    }
  }

  void write(const PlainNumber& number) { out_ += language_.written(number); }

  void write(std::string_view text) {
    if (mayDisturbDirection(text, language_.direction())) {
      out_.append(kIsolate).append(text).append(kPopIsolate);
    } else {
      out_ += text;
    }
  }

  std::string_view pattern_;
  std::span<const PatternPart> parts_;
  const MessageArguments& arguments_;
  const MessageLanguage& language_;
  std::pmr::string& out_;
};

}  // namespace

void formatMessage(std::string_view pattern, std::span<const PatternPart> parts,
                   const MessageArguments& arguments, const MessageLanguage& language,
                   std::pmr::string& out) {
  Formatter(pattern, parts, arguments, language, out).formatAll();
}

}  // namespace orvanta
