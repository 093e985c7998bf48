// Compile-time properties of the text types, and the results of a few expressions.

#include <concepts>
#include <functional>
#include <sstream>
#include <unordered_set>

#include <gtest/gtest.h>

#include <orvanta/text/Dictionary.h>
#include <orvanta/text/String.h>
#include <orvanta/text/StringList.h>
#include <orvanta/text/StringsPayload.h>
#include <orvanta/text/URL.h>

namespace orvanta {
namespace {

// Constant initialisation: no code runs at start-up or, for the `constexpr` ones, at exit.
constexpr String kAbsent;
constexpr String kLiteral = "text";
constexpr String kView = std::string_view("text");
constexpr String kEmpty = String::fromStatic({});
constinit const URL kNoURL;

static_assert(kAbsent.isAbsent() && kAbsent.empty() && kAbsent == nullptr);
static_assert(kEmpty.isPresent() && kEmpty.empty() && kEmpty == "" && kEmpty != kAbsent);
static_assert(kLiteral == kView && kLiteral == "text"_s && kLiteral.size() == 4);
static_assert(kAbsent < kEmpty && kEmpty < kLiteral && kLiteral < "texts"_s && "T"_s < kLiteral);
static_assert(!String(static_cast<const char*>(nullptr)).isPresent());

template <typename Other>
constexpr bool compares() {
  return requires(const String& text, const Other& other) {
    { text == other } -> std::same_as<bool>;
    { other == text } -> std::same_as<bool>;
    { text != other } -> std::same_as<bool>;
    { text < other } -> std::same_as<bool>;
    { other <= text } -> std::same_as<bool>;
    { text <=> other } -> std::same_as<std::strong_ordering>;
    { other <=> text } -> std::same_as<std::strong_ordering>;
  };
}
static_assert(compares<String>() && compares<std::string>() && compares<std::string_view>() &&
              compares<char[5]>() && compares<const char*>());
static_assert(kLiteral == std::string_view("text") && std::string_view("u") > kLiteral);
static_assert("text" == kLiteral && kAbsent < "" && kAbsent != std::string_view());

// Operations whose result would dangle do not compile on a temporary. `Object` is a value or a
// reference.
template <typename Object>
constexpr bool givesEntries = requires(Object object) {
  std::forward<Object>(object).entries();
};
template <typename Object>
constexpr bool givesBegin = requires(Object object) {
  std::forward<Object>(object).begin();
};
template <typename Object, typename Key>
constexpr bool finds = requires(Object object, const Key& key) {
  std::forward<Object>(object).find(key);
};
template <typename Object>
constexpr bool leadsIn = requires(Object object) {
  std::forward<Object>(object).valueForKey("k");
}
|| requires(Object object) {
  std::forward<Object>(object).valueForKeyPath("k.l");
};

using Numbers = Dictionary<int>;
static_assert(givesBegin<Numbers&> && !givesBegin<Numbers> && !givesBegin<const Numbers>);
static_assert(finds<Numbers&, String> && finds<Numbers&, std::string> && finds<Numbers&, char[2]> &&
              finds<Numbers&, std::string_view> && finds<Numbers&, HashedKey>);
static_assert(!finds<Numbers, String> && !finds<Numbers, std::string> && !finds<Numbers, char[2]> &&
              !finds<Numbers, std::string_view> && !finds<Numbers, HashedKey>);
static_assert(givesBegin<StringList&> && !givesBegin<StringList> && !givesBegin<const StringList>);
static_assert(givesEntries<StringsPayload&> && !givesEntries<StringsPayload>);
static_assert(leadsIn<StringsPayload&> && !leadsIn<StringsPayload>);

// On a temporary, parts are returned by value.
static_assert(std::same_as<decltype(std::declval<StringList>()[0]), String>);
static_assert(std::same_as<decltype(std::declval<StringList>().front()), String>);
static_assert(std::same_as<decltype(std::declval<URL>().absoluteString()), String>);
static_assert(std::same_as<decltype(std::declval<StringsPayload>().text()), String>);

// Moves do not throw, and numbers and flags do not convert to texts.
static_assert(std::is_nothrow_move_constructible_v<StringsPayload> &&
              std::is_nothrow_move_assignable_v<StringsPayload>);
static_assert(!std::convertible_to<int, String> && !std::convertible_to<bool, String> &&
              !std::convertible_to<int, StringsPayload> && !std::convertible_to<String, URL>);

TEST(TextTypes, EqualTextsHashAlikeAndAreFoundUnderOneHash) {
  const std::unordered_set<String> set = {"a", std::string("b"), kEmpty};
  EXPECT_EQ(set.count("a"_s) + set.count(String("b")) + set.count(""), 3U);
  EXPECT_EQ(set.count(nullptr), 0U) << "absent is not empty";
  EXPECT_NE(std::hash<String>()("a"), std::hash<String>()("b"));
}

TEST(TextTypes, ADictionaryIsAskedWithAnyText) {
  const Numbers numbers = {{"one", 1}, {"", 0}, {"one", 2}};
  EXPECT_EQ(numbers.size(), 2U);
  ASSERT_NE(numbers.find("one"), nullptr);
  EXPECT_EQ(*numbers.find(String("one")), 1) << "the first of several counts";
  EXPECT_TRUE(numbers.contains(std::string("one")) && numbers.contains(kEmpty));
  EXPECT_TRUE(Numbers(numbers).contains("one"));
  EXPECT_FALSE(numbers.contains("two"));
  EXPECT_FALSE(numbers.contains(kAbsent)) << "absent is not empty";
  EXPECT_EQ(std::distance(numbers.begin(), numbers.end()), 2);
  const Numbers absent;
  EXPECT_TRUE(absent.isAbsent() && absent.empty());
  EXPECT_EQ(absent.begin(), absent.end());
  EXPECT_FALSE(absent.contains(""));
  EXPECT_TRUE(Numbers(Numbers::Map()).isPresent());
}

template <typename Value>
std::string written(const Value& value) {
  std::ostringstream out;
  out << value;
  return out.str();
}

TEST(TextTypes, AreWritten) {
  EXPECT_EQ(written(kLiteral), "text");
  EXPECT_EQ(written(kAbsent), "(absent)");
  EXPECT_EQ(written(StringList{"a", kAbsent, ""}), "[a, (absent), ]");
  EXPECT_EQ(written(StringList()), "(absent)");
  EXPECT_EQ(written(URL::URLWithString("file:///a%20b")), "file:///a%20b");
  EXPECT_EQ(written(URL()), "(absent)");
  EXPECT_TRUE(kNoURL.empty() && !URL::URLWithString("x").empty());
}

}  // namespace
}  // namespace orvanta
