// Compiled with `clang++ -fsyntax-only -Xclang -verify -Wdangling`, which fails unless clang gives
// exactly the warnings that are expected here.

#include <string>
#include <string_view>

#include <orvanta/locale/LanguagePart.h>
#include <orvanta/platform/Calendar.h>
#include <orvanta/text/String.h>
#include <orvanta/text/TextHash.h>

using namespace orvanta;

String text();

void dangling() {
  const std::string_view view = text().view();
  // expected-warning@-1 {{will be destroyed}}
  const std::string_view part = languagePart(text().view());
  // expected-warning@-1 {{will be destroyed}}
  const HashedKey key(text().view());
  // expected-warning@-1 {{will be destroyed}}
  const String& name = platform::Locale("en").localeIdentifier();
  // expected-warning@-1 {{will be destroyed}}
}

void sound() {
  const String kept = text();
  const std::string_view view = kept.view();
  const std::string_view part = languagePart("en-GB");
  const String handle = languagePart(text());
  const String copied = platform::Locale("en").localeIdentifier();
  const std::size_t length = text().view().size();
}
