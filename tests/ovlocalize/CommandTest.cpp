#include <regex>

#include "Command.h"

namespace ovlocalize {

namespace {

using testing::HasSubstr;

TEST_F(Command, RefusesInOneLine) {
  write("bad.json", "{\"fr\": ");
  const std::tuple<const char*, const char*, int, const char*> rows[] = {
      {"nothing", "$OV", 2, "A subcommand is required"},
      {"unknown command", "$OV no", 2, "there is no command no"},
      {"unknown option", "$OV languages --no", 2, "not expected: --no"},
      {"too many arguments", "$OV clear a", 2, "not expected: a"},
      {"option without value", "$OV match --country", 2, "--country"},
      {"empty folder", "$OV --cache '' languages", 2, "must not be empty"},
      {"no such bundle", "${OV%% *} --bundle no languages", 1, "no such bundle folder: no"},
      {"dump of nothing", "$OV dump", 2, "a FILE or --language ID is required"},
      {"dump of two", "$OV dump --language fr x", 2, "excludes"},
      {"dump of no language", "$OV dump --language xx", 1, "no table for the language xx"},
      {"missing file", "$OV dump no", 1, "cannot read no: No such file"},
      {"folder", "$OV dump .", 1, "not a regular file"},
      {"pipe without writer", "mkfifo pipe; timeout 9 $OV dump pipe", 1, "not a regular file"},
      {"endless device", "timeout 9 $OV dump /dev/zero", 1, "not a regular file"},
      {"no JSON", "$OV update --bundle-name a --namespace b bad.json", 1, "bad.json is no JSON"},
      {"JSON array", "echo [] | $OV update --bundle-name a --namespace b -", 1, "no JSON object"},
      {"full disk", "$OV languages >/dev/full", 1, "could not be written"},
      {"help on a full disk", "$OV --help >/dev/full", 1, "could not be written"},
      {"line feed and escape in a name", "$OV dump \"$(printf 'a\\nb\\033[31m')\"", 1,
       "cannot read a\\nb\\U001B[31m: "},
  };
  for (const auto& [name, command, status, message] : rows) {
    SCOPED_TRACE(name);
    run(command);
    EXPECT_EQ(status_, status);
    EXPECT_EQ(out_, "");
    EXPECT_THAT(err_, testing::StartsWith("ovlocalize: "));
    EXPECT_THAT(err_, HasSubstr(message));
    EXPECT_EQ(err_.find('\n'), err_.size() - 1) << err_;
  }
}

TEST_F(Command, WritesItsPagesAndItsVersion) {
  write("d/complete", R"(source ovlocalize.bash
complete() { COMP_WORDS=("$@"); COMP_CWORD=$(($# - 1)); _ovlocalize; echo "${COMPREPLY[@]}"; }
complete ovlocalize ch
complete ovlocalize --json check --l
complete ovlocalize check --level ''
complete ovlocalize --bundle ''
complete ovlocalize dump d/)");
  run("$OV --generate . && bash d/complete");
  EXPECT_EQ(out_, "check\n--level\nerror warning\nd\nd/complete\n") << err_;
  const std::string page = contents("ovlocalize.1");
  EXPECT_THAT(page, HasSubstr(".SS check\n"));
  EXPECT_THAT(page, HasSubstr("\\fB\\-\\-level\\fR \\fIerror|warning\\fR\n"));
  EXPECT_THAT(page, testing::Not(HasSubstr("generate")));
  run("$OV --version && $OV languages | head -n 2 && $OV --color always languages | head -n 1");
  EXPECT_THAT(out_, testing::StartsWith("ovlocalize 1."));
  EXPECT_THAT(out_, HasSubstr("\nLANGUAGE  FROM     VERSION"));
  EXPECT_THAT(out_, HasSubstr("\n\x1B[1mLANGUAGE"));
  if (!runOnTerminal("stty cols 40; $OV languages; NO_COLOR=1 $OV languages")) {
    GTEST_SKIP() << "there are no pseudo-terminals";
  }
  EXPECT_THAT(out_, testing::MatchesRegex("\x1B\\[1mLANGUAGE .*\nLANGUAGE .*"));
  EXPECT_THAT(out_, HasSubstr("…"));
}

TEST_F(Command, UpdatesOnlyWhatHasTexts) {
  write("good.json", R"({"fr": {"a": {"b": {"zantorData": {"k": "1", "k": "2"}}}}})");
  run("$OV update --bundle-name a --namespace b good.json");
  ASSERT_EQ(out_, "fr\twritten\t" + folder_.string() +
                      "/OrvantaLocalizations/fr.lproj/Localizable.strings\n");
  const std::string nested(100'000, '[');
  for (const std::string& table :
       {std::string(R"({"k": 1})"), std::string(R"({"k": [{"k": "v"}]})"),
        R"({"k": )" + nested + std::string(nested.size(), ']') + "}"}) {
    SCOPED_TRACE(table.substr(0, 40));
    write("empty.json", R"({"es": 5, "fr": {"a": {"b": {"zantorData": )" + table + "}}}}");
    run("$OV update --bundle-name a --namespace b empty.json");
    EXPECT_EQ(status_, 0) << err_;
    EXPECT_THAT(out_, testing::StartsWith("fr\tskipped\t"));
    run("$OV dump --language fr");
    EXPECT_EQ(out_, "\"k\" = \"2\"\n");
  }
}

TEST_F(Command, FillsMessagesWithArguments) {
  write("messages.json", R"json({"en": {"a": {"b": {"zantorData": {
      "items": "{count, plural, one {# item} other {# items}} for {name}"}}}}})json");
  run("$OV update --bundle-name a --namespace b messages.json");
  run("$OV lookup --locales en --arg count=3 --arg name=Ada items");
  EXPECT_EQ(out_, "3 items for Ada\n") << err_;
  run("$OV lookup --locales en --arg count=1.0 --arg name=a=b items");
  EXPECT_EQ(out_, "1.0 items for a=b\n");
  run("$OV lookup --locales en --arg count items");
  EXPECT_EQ(status_, 2) << err_;
}

TEST_F(Command, ExplainsTexts) {
  write("new.json", R"({"fr": {"a": {"b": {"zantorData": {"signin.title": "Neu"}}}}})");
  run("$OV update --bundle-name a --namespace b new.json");
  const std::pair<const char*, const char*> rows[] = {
      {"--locales zh-TW signin.title",
       "zh-Hant, adopted for the request zh-TW; the fallback table"},
      {"--locales de-CH nope", "none: no table in use has the key"},
      {"--locales de-CH nope",
       "de-CH, adopted for the request de-CH; it has no table of its own, so "},
      {"--locales fr signin.title", "fr, downloaded\n"},
      {"--locales fr order.title", "en, shipped; it stands in for fr, which lacks the key"},
      {"--locales xx order.title", "adopted by default: none of the languages"},
      {"--json --locales fr order.title", R"("source": "english",
    "locale": "en",)"},
  };
  for (const auto& [arguments, lines] : rows) {
    run(std::string("$OV --device en explain ") + arguments);
    EXPECT_THAT(out_, HasSubstr(lines)) << arguments << err_;
  }
}

TEST_F(Command, MakesPseudoLanguages) {
  const std::tuple<const char*, const char*, const char*> rows[] = {
      {"%1$@ of 50%% ok", "[%1$@ ööƒ 50%% öööķ~]", "%1$@ <of> 50%% <ok>"},
      {"{n, plural, one {# it''s} other {'{x}' {name}}} €5",
       "[{n, plural, one {# îîţ''š} other {'{ẋ}' {name}}} €5~~~~]",
       "{n, plural, one {# <it>''<s>} other {'{<x>}' {name}}} €5"},
      {"{no message} <b>a</b> &amp; 1 < 2", "[{ñöö ɱééššåååĝé} <b>ååå</b> &amp; 1 < 2~~]",
       "{<no> <message>} <b><a></b> &amp; 1 < 2"},
      {R"(say \"no\"\n\\ \U0007)", R"([šååý \"ñööö\"\n\\ \U0007~~])",
       R"(<say> \"<no>\"\n\\ \U0007)"},
      {"a@b.example", "a@b.example", "a@b.example"},
  };
  for (const auto& [source, accented, marked] : rows) {
    fs::remove_all(folder_ / "OrvantaLocalizations");
    write("b/en.lproj/Localizable.strings", std::string("\"\\\"k\" = \"") + source + "\";");
    std::string turned =
        std::regex_replace(marked, std::regex("<([a-z]{2,}|[sxa])>"), "\u200F\u202E$1\u202C\u200F");
    for (const auto& [to, text] : {std::pair{"en-XA", accented}, {"ar-XB", turned.c_str()}}) {
      run(
          std::string("to=").append(to).append("; ov=\"${OV%% *} --bundle b --cache $PWD\"; $ov "
                                               "pseudo --to $to && $ov check && $ov dump "
                                               "--language $to"));
      EXPECT_THAT(out_, testing::EndsWith(std::string("\n\"\\\"k\" = \"") + text + "\"\n"))
          << source;
      EXPECT_EQ(status_, 0) << out_ << err_;
    }
  }
  run("$OV pseudo --to ar-XB && $OV pseudo --to en-XA && $OV check && $OV languages");
  EXPECT_THAT(out_, testing::ContainsRegex("\nen-XA +cache +38 +100 % +0 +0\n"));
  EXPECT_THAT(out_, testing::ContainsRegex("\nen-XA +downloaded +1.0.0 +- "));
}

TEST_F(Command, ForgesNoLineAndSendsNoEscapeToATerminal) {
  write("evil.json", R"({"x\nfr\twritten": {"a": {"b": {"zantorData": {"k": "v"}}}},
                        "fr": {"a": {"b": {"zantorData": {"k": "\\U001B[31mred\\U009B"}}}}})");
  run("$OV update --bundle-name a --namespace b evil.json");
  EXPECT_THAT(out_, testing::StartsWith("x\\nfr\\twritten\tfailed\t"));
  run("$OV dump --language fr");
  EXPECT_EQ(out_, "\"k\" = \"\\U001B[31mred\\U009B\"\n");
  run("$OV lookup --locales fr k");
  EXPECT_EQ(out_, "\x1B[31mred\xC2\x9B\n") << "to a file the text goes as it is";
  run("$OV --json lookup --locales fr k");
  EXPECT_THAT(out_, HasSubstr(R"("text": "\u001b[31mred\u009B")"));
  if (!runOnTerminal("$OV lookup --locales fr k")) {
    GTEST_SKIP() << "there are no pseudo-terminals";
  }
  EXPECT_EQ(out_, "\\U001B[31mred\\U009B\r\n") << "on a terminal";
}

TEST_F(Command, ListsTheFirstOfManyProblems) {
  std::string statements = "\"sound\" = \"statement\";\n";
  for (int count = 0; count < 3000; ++count) {
    statements += "\"no sign\" \"value\";\n";
  }
  write("many", statements);
  run("timeout 20 $OV dump many");
  EXPECT_EQ(status_, 0);
  EXPECT_EQ(std::count(err_.begin(), err_.end(), '\n'), 1001);
  EXPECT_THAT(err_, HasSubstr("many: 2000 further problems\n"));
}

}  // namespace

}  // namespace ovlocalize
