// Arguments: FOLDER LANGUAGE KEY
#include <clocale>
#include <cstdlib>

#include <libintl.h>

#include "firsttext/Answer.h"

int main(int /*count*/, char** words) {
  std::setlocale(LC_ALL, "C.UTF-8");
  setenv("LANGUAGE", words[2], 1);
  bindtextdomain("first", words[1]);
  bind_textdomain_codeset("first", "UTF-8");
  orvanta::bench::answer(dgettext("first", words[3]));
}
