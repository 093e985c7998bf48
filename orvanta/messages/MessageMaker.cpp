#include <array>
#include <memory_resource>
#include <string>

#include <orvanta/locale/Localizer.h>
#include <orvanta/messages/FormatString.h>
#include <orvanta/messages/MessageMaker.h>
#include <orvanta/messages/pattern/MessageFormat.h>
#include <orvanta/messages/pattern/MessageLanguage.h>
#include <orvanta/messages/pattern/MessagePattern.h>

namespace orvanta {

namespace {

// Memory on the stack, enough for usual messages; the benchmark's row `message` counts allocations.
class Workspace {
 public:
  Workspace() {
    parts.reserve(kParts);
    text.reserve(kText);
  }

 private:
  static constexpr std::size_t kParts = 48;
  static constexpr std::size_t kText = 1000;

  std::array<std::byte, kParts * sizeof(PatternPart) + kText + 64> room_;
  std::pmr::monotonic_buffer_resource memory_{room_.data(), room_.size()};

 public:
  PatternParts parts{&memory_};
  std::pmr::string text{&memory_};
};

TextProblem problemOf(TextSource source, std::string_view key) {
  TextProblem problem;
  problem.kind =
      source == TextSource::key ? TextProblem::Kind::shownAsKey : TextProblem::Kind::shownInEnglish;
  problem.key = key;
  return problem;
}

void addFallback(TextSource source, std::string_view key, std::vector<TextProblem>* problems) {
  if (problems != nullptr && source >= TextSource::english) {
    problems->push_back(problemOf(source, key));
  }
}

String localeOf(const MessageTexts& texts, const TextChain::Found& found) {
  return found.source == TextSource::key ? String::fromStatic(lastResortLocale)
                                         : texts.localeOfLink(found.link);
}

// Whether a pattern is the message as it stands.
bool isPlain(std::string_view pattern) {
  return pattern.find('{') == std::string_view::npos &&
         pattern.find('\'') == std::string_view::npos;
}

}  // namespace

MessageTexts::~MessageTexts() = default;

String makeMessage(const MessageTexts& texts, std::string_view key,
                   const MessageArguments& arguments, platform::LocaleData& data,
                   std::vector<TextProblem>* problems) {
  Workspace workspace;
  const HashedKey hashed(key);
  String malformed;
  for (std::size_t first = 0;;) {
    TextChain::Found found = texts.find(hashed, first);
    const bool isKey = found.source == TextSource::key;
    if (isKey && malformed.isPresent()) {
      return malformed;
    }
    const std::string_view pattern = isKey ? key : found.text.view();
    const bool isWhole = isPlain(pattern);
    const auto error = isWhole ? std::nullopt : parsePattern(pattern, workspace.parts);
    if (error && !isKey) {
      if (problems != nullptr) {
        problems->push_back({TextProblem::Kind::malformedMessage, key,
                             texts.localeOfLink(found.link), error->position, error->reason});
      }
      malformed = std::move(found.text);
      first = found.link + 1;
      continue;
    }
    if (malformed.isAbsent()) {
      addFallback(found.source, key, problems);
    }
    if (isWhole || error) {
      return isKey ? String(key) : std::move(found.text);
    }
    const MessageLanguage language(localeOf(texts, found), data);
    formatMessage(pattern, workspace.parts, arguments, language, workspace.text);
    return std::string_view(workspace.text);
  }
}

String fillText(const MessageTexts& texts, std::string_view key, const MessageArguments& arguments,
                platform::LocaleData& data, std::vector<TextProblem>* problems) {
  const TextChain::Found found = texts.find(HashedKey(key), 0);
  addFallback(found.source, key, problems);
  const std::string_view text = found.source == TextSource::key ? key : found.text.view();
  Workspace workspace;
  const MessageLanguage language(localeOf(texts, found), data);
  formatPlaceholders(text, arguments, language, workspace.text);
  return std::string_view(workspace.text);
}

}  // namespace orvanta
