#include <regex>

#include "Command.h"

namespace ovlocalize {

namespace {

class Check : public Command {
 protected:
  // "FOLDER:LINE rule, ..." of all findings.
  std::string findings(const std::string& options = "") {
    run("${OV%% *} --bundle b check --all " + options);
    static const std::regex line(
        R"((?:b|c/OrvantaLocalizations)/(\S+?)\.lproj/\S+?(:\d+)?(?::\d+)?: \w+: .*\[(.*)\])");
    std::string found;
    for (std::sregex_iterator at(out_.begin(), out_.end(), line), end; at != end; ++at) {
      found += (found.empty() ? "" : ", ") + at->str(1) + at->str(2) + " " + at->str(3);
    }
    return found;
  }

  void writeTable(const std::string& language, const std::string& text) const {
    write("b/" + language + ".lproj/Localizable.strings", text);
  }
};

TEST_F(Check, ComparesTextsWithEnglish) {
  const std::tuple<const char*, const char*, const char*, const char*, const char*> rows[] = {
      {"moved placeholders", "de", "%@ of %d%%", "%2$d%% von %1$@", ""},
      {"lost placeholder", "de", "%@ of %d", "von %d", "placeholders placeholders"},
      {"other family", "de", "%.2f", "%x km", "placeholders"},
      {"same family", "de", "%5d %s", "%ld %S", ""},
      {"torn placeholder", "azb", "%d hours", "d% x", "placeholders"},
      {"new placeholder", "de", "all", "alle %@", "placeholders"},
      {"percentages", "de", "100% sure, 50%off", "100%ig, 50 % d", ""},
      {"argument renamed", "de", "Hi {name}", "Hallo {nom}", "arguments arguments"},
      {"quoted by an apostrophe", "fr", "of {name}", "d'{name}", "arguments"},
      {"plural for a plain argument", "de", "{n} x", "{n, plural, one {eins} other {#}}", ""},
      {"plain argument for a plural", "ja", "{n, plural, one {# x} other {#}}", "{n} y", ""},
      {"select for a plural", "de", "{n, plural, one {# x} other {#}}", "{n, select, other {y}}",
       "arguments"},
      {"selector translated", "de", "{g, select, he {x} other {y}}", "{g, select, er {z} other {}}",
       "arguments"},
      {"select not needed", "tr", "{g, select, he {x} other {y}}", "z", ""},
      {"malformed", "de", "Hi {name}", "Hallo {name", "message"},
      {"malformed in both", "de", "{n, plural, one {x}}", "{n, plural, one {y}}",
       "message message"},
      {"braces of a text", "de", "a {b c} {{d}} {", "{ {{}} {x y}", ""},
      {"every category", "ar", "{n, plural, one {#x} other {#}}",
       "{n, plural, zero {a} one {b} two {c} few {d} many {e} other {f}}", ""},
      {"numbers for categories", "ar", "{n, plural, =1 {#x} other {#}}",
       "{n, plural, =0 {a} =1 {b} =2 {c} few {d} many {e} other {f}}", ""},
      {"lacking categories", "ar", "{n, plural, one {#x} other {#}}",
       "{n, plural, one {b} other {f}}", "plural plural plural plural"},
      {"few of Polish", "pl-PL", "{n, plural, one {#x} other {#}}",
       "{n, plural, one {b} many {m} other {f}}", "plural"},
      {"fractions need no branch", "cs", "{n, plural, one {#x} other {#}}",
       "{n, plural, one {b} few {m} other {f}}", ""},
      {"millions", "fr", "{n, plural, one {#x} other {#}}", "{n, plural, one {b} other {f}}",
       "rare-plural"},
      {"offset", "de", "{n, plural, one {#x} other {#}}",
       "{n, plural, offset:1 =0 {a} =1 {b} =2 {c} other {f}}", ""},
      {"ordinals", "en-GB", "{n, selectordinal, one {#st} two {#nd} few {#rd} other {#th}}",
       "{n, selectordinal, one {#st} two {#nd} other {#th}}", "plural"},
      {"no category", "de", "{n, plural, one {#x} other {#}}",
       "{n, plural, eins {} one {} other {}}", "message"},
      {"untranslated", "de", "Open %@", "Open %@", "untranslated"},
      {"the same everywhere", "de", "%@: %d", "%@: %d", ""},
      {"address", "de", "name@example.com", "name@example.com", ""},
      {"empty", "de", "Open", "", "empty"},
  };
  for (const auto& [name, language, english, text, expected] : rows) {
    fs::remove_all(folder_ / "b");
    writeTable("en", std::string("\"k\" = \"") + english + "\";");
    writeTable(language, std::string("\"k\" = \"") + text + "\";");
    std::string rules = std::regex_replace(findings(), std::regex(R"([a-zA-Z-]+:\d+ )"), "");
    EXPECT_EQ(std::regex_replace(rules, std::regex(","), ""), expected) << name << '\n' << out_;
  }
}

TEST_F(Check, LooksAtFilesAndFolders) {
  writeTable("en",
             "a = A;\nb = B;\n\"CONFIG-DO_NOT_TRANSLATE-OrvantaLanguageEquivalentsKey\" = "
             "\"en-US,de-AT\";");
  writeTable("de", "a = X;\na = Y;\nno sign;\nc = \"\xFF\";");
  writeTable("DE", "a = X; b = Z;");
  writeTable("de-AT", "a = X; b = Z;");
  write("c/OrvantaLocalizations/de-AT.lproj/Localizable.strings", "a = X; b = Z;");
  EXPECT_EQ(
      findings("--cache c --ignore configuration"),
      "de missing, de folder-case, de:2 repeated, de:3 statement, de:4 unknown, de:4 characters, "
      "en:3 identifier")
      << out_;
  EXPECT_EQ(status_, 1);
  EXPECT_THAT(out_, testing::ContainsRegex("\nde  +bundle +2 +50 % +2 +4\n"));
  EXPECT_THAT(out_,
              testing::ContainsRegex("\nde-AT +cache +2 +100 % +0 +0\n5 languages: 3 errors"));
  EXPECT_EQ(findings("--ignore identifier --ignore statement --ignore characters --level error"),
            "");
  EXPECT_EQ(status_, 0) << err_;
  run("${OV%% *} --bundle b --json check --level error");
  EXPECT_THAT(out_, testing::HasSubstr(R"("level": "error",
      "rule": "statement",
      "file": "b/de.lproj/Localizable.strings",
      "line": 3,)"));
  run("${OV%% *} --bundle b --cache no check");
  EXPECT_EQ(err_, "ovlocalize: no such caches folder: no\n");
  run("${OV%% *} --bundle c check");
  EXPECT_EQ(err_, "ovlocalize: no languages in the folder c\n");
}

}  // namespace

}  // namespace ovlocalize
