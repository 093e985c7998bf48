#include "firsttext/Answer.h"

int main() {
  orvanta::bench::answer("nothing");
}
