#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <keys/SourceKeys.h>

namespace ovlocalize {

namespace {

using testing::ElementsAreArray;

// "key@line"; a computed key is "@line".
std::vector<std::string> written(const std::vector<KeyUse>& uses) {
  std::vector<std::string> keys;
  for (const KeyUse& use : uses) {
    keys.emplace_back(use.key + '@' + std::to_string(use.line));
  }
  return keys;
}

std::vector<std::string> keysOf(std::string_view source) {
  std::vector<KeyUse> uses;
  collectSourceKeys(source, "file", libraryKeyFunctions(), uses);
  return written(uses);
}

TEST(SourceKeys, AreTheLiteralsHandedToTheLibrary) {
  const std::tuple<const char*, const char*, std::vector<std::string>> rows[] = {
      {"plain", "\n l.localizedStringForKey(\"a.b\");", {"a.b@2"}},
      {"suffix", "localizedStringForKey(\"a\"_s)", {"a@1"}},
      {"wrapped", "localizedStringForKey(QStringLiteral(\"a\"))", {"a@1"}},
      {"brace", "localizedStringForKey(orvanta::String(\"a\" \"b\"))", {"ab@1"}},
      {"adjacent", "localizedStringForKey(\"a.\" // first\n  \"b\")", {"a.b@1"}},
      {"escapes", R"(localizedStringForKey("\"\x41\u00e9\101\n"))", {"\"A\u00e9A\n@1"}},
      {"raw", "localizedStringForKey(R\"x(a\")x\")", {"a\"@1"}},
      {"third argument", "localize(label, \"text\", \"k\", {{\"n\", 1}});", {"k@1"}},
      {"behind a setter", "localize(label, \"n\", [](T t, U) { f(t); }, \"k\");", {"k@1"}},
      {"nested",
       "localizedMessageForKey(\"m\", {{\"x\", localizedStringForKey(\"i\")}})",
       {"m@1", "i@1"}},
      {"behind a localizer",
       "localizedMessageForKey(l, \"m\", {}); localizedMessageForKey(l, k)",
       {"m@1", "@1"}},
      {"computed", "localizedStringForKey(prefix + \"a\")", {"@1"}},
      {"too few arguments", "localize(\"a\")", {}},
      {"comments", "// localizedStringForKey(\"a\")\n/* setKey(\"b\") */", {}},
      {"in a string", "f(\"localizedStringForKey(\\\"a\\\")\")", {}},
      {"another function", "tr(\"a\"); localizedStringForKeys(\"b\")", {}},
      {"QML", "text: Orvanta.text('a'); b: other.text(\"c\"); text(\"d\")", {"a@1"}},
      {"template literal", "Orvanta.text(`a`) + Orvanta.text(`b${c}`)", {"a@1", "@1"}},
      {"digit separator", "f(1'000); setKey(\"a\")", {"a@1"}},
      {"not closed", "setKey(\"a\n setKey(\"b\")", {"b@2"}},
  };
  for (const auto& [name, source, keys] : rows) {
    EXPECT_THAT(keysOf(source), ElementsAreArray(keys)) << name;
  }
}

TEST(SourceKeys, OfAFormAreTextsOfLocalizedWidgetsAndDynamicProperties) {
  std::vector<KeyUse> uses;
  collectFormKeys(R"(<ui version="4.0"><widget class="QDialog">
<property name="ovWindowTitle" stdset="0"><string>title</string></property>
<widget class="orvanta::qt::UILocalizedLabel"><property name="text"><string>a &amp; b</string></property></widget>
<widget class="QLabel"><property name="text"><string>no key</string></property>
<property name="ovItems" stdset="0"><stringlist><string>one</string><string>two</string></stringlist></property>
<property name="overflow"><string>no key</string></property></widget></widget></ui>)",
                  "form", uses);
  EXPECT_THAT(written(uses), ElementsAreArray({"title@2", "a & b@3", "one@5", "two@5"}));
  EXPECT_ANY_THROW(collectFormKeys("<ui><widget>", "broken", uses));
}

}  // namespace

}  // namespace ovlocalize
