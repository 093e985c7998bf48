#include <gtest/gtest.h>

#include <orvanta/text/StringsPayload.h>

namespace orvanta {
namespace {

// Every entry in order, without recursion: "key=text", "key{", "}", "key?" for nothing.
std::string flattened(const StringsPayload& payload) {
  std::string out;
  std::vector<std::pair<const StringsPayload*, std::size_t>> path = {{&payload, 0}};
  while (!path.empty()) {
    auto& [dictionary, next] = path.back();
    if (next == dictionary->entries().size()) {
      out += '}';
      path.pop_back();
      continue;
    }
    const auto& [key, value] = dictionary->entries()[next++];
    out += key.view();
    if (value.isDictionary()) {
      out += '{';
      path.emplace_back(&value, 0);
    } else {
      out += value.isText() ? "=" + value.text().str() + " " : "?";
    }
  }
  return out;
}

StringsPayload small() {
  StringsPayload b;
  b.add("c", "1");
  b.add("d", std::string("2"));
  StringsPayload a;
  a.add("first", StringsPayload());
  a.add("b", std::move(b));
  a.add("none", nullptr);
  a.add("empty", StringsPayload::dictionary());
  StringsPayload payload;
  payload.add("a", std::move(a));
  payload.add("c", "");
  return payload;
}

TEST(StringsPayload, IsBuiltCopiedAndMovedAsAValue) {
  const std::string kSmall = "a{first?b{c=1 d=2 }none?empty{}}c= ";
  StringsPayload payload = small();
  StringsPayload copy = payload;
  copy.add("late", "3");
  EXPECT_EQ(flattened(payload), kSmall + "}") << "copies are independent";
  payload = copy;
  EXPECT_EQ(flattened(payload), kSmall + "late=3 }");
  payload = std::move(copy = small());
  EXPECT_EQ(flattened(payload), kSmall + "}");
  StringsPayload text = "text";
  EXPECT_EQ(text.text(), "text");
  text.add("k", text);
  EXPECT_TRUE(text.isDictionary() && text.text().isAbsent());
  const StringsPayload moved = std::move(text);
  EXPECT_EQ(flattened(moved), "k=text }");
}

TEST(StringsPayload, ResolvesPaths) {
  StringsPayload payload = small();
  payload.add("twice", "1");
  payload.add("twice", "2");
  payload.add("", StringsPayload::dictionary({{"", "dots"}}));
  const std::pair<const char*, const char*> rows[] = {
      // Null: no value.
      {"a.b.d", "2"},       {"c", ""},           {"twice", "2"},
      {".", "dots"},        {"a.b.d.", nullptr}, {"a.x", nullptr},
      {"a.b.d.x", nullptr}, {"x.b", nullptr},    {"a..b", nullptr}};
  for (const auto& [path, text] : rows) {
    const StringsPayload* value = payload.valueForKeyPath(path);
    EXPECT_EQ(value == nullptr ? String() : value->text(), text) << path;
  }
}

// Recursion would overflow the stack at these depths.
TEST(StringsPayload, MayBeNestedWithoutLimit) {
  constexpr int kLevels = 200'000;
  // Where the nested value stands among its neighbours.
  for (const char* order : {"n", "tn", "nt", "sns"}) {
    StringsPayload payload = "deepest";
    for (int level = 0; level < kLevels; ++level) {
      StringsPayload outer;
      for (const char* kind = order; *kind != '\0'; ++kind) {
        outer.add("k", *kind == 'n'   ? std::exchange(payload, {})
                       : *kind == 't' ? StringsPayload("t")
                                      : StringsPayload::dictionary({{"s", "s"}}));
      }
      payload = std::move(outer);
    }
    StringsPayload copy = payload;
    payload = {};
    const StringsPayload moved = std::move(copy);
    int depth = 0;
    const StringsPayload* value = &moved;
    while (value->isDictionary()) {
      const auto& entries = value->entries();
      value = &entries[std::string_view(order).find('n')].second;
      ++depth;
    }
    EXPECT_EQ(depth, kLevels) << order;
    EXPECT_EQ(value->text(), "deepest") << order;
  }
}

}  // namespace
}  // namespace orvanta
