// Arguments: FOLDER LANGUAGE KEY
#include <string>

#include <unicode/unistr.h>
#include <unicode/ures.h>

#include "firsttext/Answer.h"

int main(int /*count*/, char** words) {
  UErrorCode status = U_ZERO_ERROR;
  UResourceBundle* const bundle = ures_open(words[1], words[2], &status);
  std::int32_t length = 0;
  const UChar* const text = ures_getStringByKey(bundle, words[3], &length, &status);
  std::string utf8;
  if (U_SUCCESS(status)) {
    icu::UnicodeString(text, length).toUTF8String(utf8);
  }
  orvanta::bench::answer(utf8);
}
