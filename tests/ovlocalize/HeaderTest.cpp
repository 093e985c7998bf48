#include "Command.h"

namespace ovlocalize {

namespace {

class Header : public Command {
 protected:
  void runWith(const std::string& table) {
    write("b/en.lproj/Localizable.strings", table);
    run("${OV%% *} --bundle b header --namespace n");
  }
};

TEST_F(Header, NamesConstantsAndFunctionsForKeys) {
  const std::tuple<const char*, const char*, const char*> rows[] = {
      {"dots", "a.b = x;", "\n/// \"x\"\ninline constexpr std::string_view a_b = \"a.b\";\n"},
      {"runs and ends", "\" Is it..? \" = x;", " Is_it = \" Is it..\\? \";"},
      {"a digit", "\"404\" = x;", " key_404 = "},
      {"a keyword", "class = x;", " key_class = "},
      {"the namespace itself", "messages = x;", " key_messages = "},
      {"beyond ASCII", "\"caf\u00E9 \\\"1\\\"\" = x;", " caf_1 = \"caf\\303\\251 \\\"1\\\"\";"},
      {"a text of two lines", R"("a" = "1\n\\";)", "\n/// \"1\\n\\\\\"\n"},
      {"a text that turns", "a = \"x\u202Ey\";", "\n/// \"xy\"\n"},
      {"plural and plain", "m = \"{n, plural, other {#}} {a}\";",
       " m(orvanta::Localizer& localizer, const orvanta::MessageValue& a_, "
       "const orvanta::NumberArgument& n_) {\n"
       "  return orvanta::localizedMessageForKey(localizer, \"m\", {{\"a\", a_}, "
       "{\"n\", n_.value()}});\n"},
      {"select", "m = \"{class, select, other {}}\";",
       " m(const orvanta::TextArgument& key_class_)"},
      {"positions", "m = \"{10}{9}\";", "& key_9_, const orvanta::MessageValue& key_10_)"},
  };
  for (const auto& [name, table, line] : rows) {
    runWith(table);
    EXPECT_THAT(out_, testing::HasSubstr(line)) << name << err_;
  }
}

TEST_F(Header, RefusesWhatHasNoName) {
  for (const auto& [table, message] :
       {std::pair("a.b = x; a_b = y;",
                  R"(the keys "a.b" and "a_b" would have one identifier, a_b)"),
        {"\"?\" = x;", "no identifier can be made of the key \"?\""},
        {"a = \"{n, plural, one {}}\";", "the message under \"a\" is malformed"},
        {"a = \"{x\u00E9} {x}\";", "two arguments of the message under \"a\""}}) {
    runWith(table);
    EXPECT_EQ(status_, 1);
    EXPECT_THAT(err_, testing::HasSubstr(message));
    EXPECT_EQ(out_, "");
  }
  run("$OV header --namespace a::int");
  EXPECT_THAT(err_, testing::HasSubstr("it is no namespace such as app::keys"));
}

}  // namespace

}  // namespace ovlocalize
