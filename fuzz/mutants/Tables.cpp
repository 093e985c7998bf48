#include "Tables.h"

#include <iterator>

namespace orvanta::fuzz {

namespace {

std::string replaced(std::string text, std::string_view what, const std::string& with) {
  for (std::size_t at = text.find(what); at != std::string::npos;
       at = text.find(what, at + with.size())) {
    text.replace(at, what.size(), with);
  }
  return text;
}

const char* const kKeys[] = {"section.#.title",      "Save # files?", "KEY_#", "#",
                             R"(Do you want \"#\")", "%@ of #"};

const char* const kValues[] = {"Plain text #",
                               "Gr\u00FC\u00DFe #, \u05E9\u05DC\u05D5\u05DD, \U0001F600",
                               R"(say \"yes # \" or \"no\")",
                               "two # \nlines; and = more",
                               "it's #, 100 %",
                               R"(C:\\path#\\)",
                               "/* no comment */ // nor this #",
                               "{a = b;} (c) <0f> #",
                               R"(#\n)",
                               "%1$@ of #; see http://example.org/#?a=b"};

}  // namespace

const std::vector<Layout>& layoutsOf(Group group) {
  static const std::vector<Layout> kOrdinary = {
      {"as downloaded", "", "/* */\nK = V;\n\n", ""},
      {"LF", "// table\n\n", "/* The title.\n   Of a section. */\nK = V;\n\n", ""},
      {"CRLF", "", "/* The title. */\r\nK = V;\r\n\r\n", ""},
      {"CR", "", "/* The title. */\rK = V; // x\r\r", ""},
      {"one a line", "", "K = V;\n", ""},
      {"braces", "{\n", "  K = V;\n", "}\n"},
  };
  static const std::vector<Layout> kSignOnNextLine = {
      {"sign on the next line", "", "/* The title. */\nK\n= V;\n\n", ""},
      {"sign on the next line, indented", "", "K\n  = V;\n", ""},
  };
  static const std::vector<Layout> kOneLine = {{"one line", "", "K=V;", ""},
                                               {"one line with blanks", "", "K = V; ", "\n"},
                                               {"one line in braces", "{ ", "K = V; ", "}\n"}};
  switch (group) {
    case Group::kSignOnNextLine:
      return kSignOnNextLine;
    case Group::kOneLine:
      return kOneLine;
    case Group::kOrdinary:
    case Group::kCollections:
      break;
  }
  return kOrdinary;
}

std::string layOut(const Layout& layout, const std::vector<RawPair>& pairs) {
  std::string text = layout.head;
  for (const RawPair& pair : pairs) {
    for (const char c : layout.statement) {
      text += c == 'K' ? pair.key : c == 'V' ? pair.value : std::string(1, c);
    }
  }
  return text + layout.tail;
}

std::vector<RawPair> inventPairs(std::mt19937& random, std::size_t count) {
  const bool isQuoted = below(random, 8) != 0;
  std::vector<RawPair> pairs;
  for (std::size_t index = 0; index < count; ++index) {
    const std::string number = std::to_string(100 + 10 * index + below(random, 10));
    const std::string key = replaced(kKeys[below(random, std::size(kKeys))], "#", number);
    const std::string value = replaced(kValues[below(random, std::size(kValues))], "#", number);
    pairs.push_back({isQuoted ? "\"" + key + "\"" : "key." + number, "\"" + value + "\""});
  }
  return pairs;
}

std::string inventCollection(std::mt19937& random) {
  const std::string inner(kInnerKey);
  switch (below(random, 4)) {
    case 0:
      return "{\n    " + inner + "1 = \"Wrong\";\n    \"" + inner + "2\" = (a, \"b;\");\n  }";
    case 1:
      return "(\n  { " + inner + "1 = \"Wrong\"; },\n  { " + inner + "2 = Wrong; }\n)";
    case 2:
      return "{ " + inner + "1 = <0fab 12>; \"" + inner + R"(2" = "Wrong"; })";
    default:
      return "(\"one\", two, <00ff>)";
  }
}

}  // namespace orvanta::fuzz
