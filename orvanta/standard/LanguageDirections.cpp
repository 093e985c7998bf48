#include <algorithm>
#include <iterator>

#include <orvanta/standard/LanguageDirections.h>

namespace orvanta::standard {

namespace {

// The codes of ISO 639-1, -2 and -3 whose likely script runs from right to left, sorted: CLDR 42
// (likelySubtags.xml, and languageAlias of supplementalMetadata.xml for codes such as "per" and
// "arb" that stand for another one), as ICU 72 answers for them.
//
// One deviation: "grc", Ancient Greek, is left out. CLDR gives it the Cypriot syllabary, which runs
// from right to left; text in it is set in Greek letters all the same.
constexpr std::string_view kRightToLeft[] = {
    "ae",  "aeb", "ajt", "apc", "apd", "ar",  "ara", "arb", "arc", "arq", "ars", "ary", "arz",
    "ave", "avl", "bal", "bcc", "bej", "bft", "bgn", "bqi", "brh", "cja", "ckb", "cld", "dcc",
    "dgl", "div", "drw", "dv",  "fa",  "fas", "fia", "fub", "gbz", "gjk", "gju", "glk", "gwc",
    "gwt", "haz", "he",  "heb", "hnd", "hno", "iw",  "ji",  "kas", "kby", "khw", "ks",  "kvx",
    "kxp", "kzh", "lad", "lah", "lki", "lrc", "luz", "mde", "mfa", "mki", "mvy", "myz", "mzn",
    "nqo", "oru", "ota", "otk", "oui", "pal", "pbu", "per", "pes", "phl", "phn", "pnb", "pra",
    "prd", "prs", "ps",  "pus", "rhg", "rmt", "scl", "sd",  "sdh", "shu", "skr", "smp", "snd",
    "sog", "swb", "syr", "tnf", "trw", "ug",  "uig", "ur",  "urd", "wni", "xco", "xld", "xmn",
    "xmr", "xna", "xpr", "xsa", "ydd", "yi",  "yid", "zdj"};

bool isSmallLetter(char character) {
  return character >= 'a' && character <= 'z';
}

}  // namespace

platform::LanguageDirection directionOfLanguage(std::string_view language) noexcept {
  if (language.size() < 2 || language.size() > 3 ||
      !std::all_of(language.begin(), language.end(), isSmallLetter)) {
    return platform::LanguageDirection::unknown;
  }
  return std::binary_search(std::begin(kRightToLeft), std::end(kRightToLeft), language)
             ? platform::LanguageDirection::rightToLeft
             : platform::LanguageDirection::leftToRight;
}

}  // namespace orvanta::standard
