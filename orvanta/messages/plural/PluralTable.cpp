// The plural rules of CLDR 41, written by generate_plural_rules.py: change that instead.
// Derived from data that is copyright of Unicode, Inc. (https://www.unicode.org/copyright.html).
#include <orvanta/messages/plural/PluralTable.h>

namespace orvanta {

namespace {

constexpr bool isIn(std::uint64_t value, std::uint64_t low, std::uint64_t high) {
  return value >= low && value <= high;
}

constexpr bool isIn(WholeNumber value, std::uint64_t low, std::uint64_t high) {
  return value.isWhole && isIn(value.digits, low, high);
}

PluralCategory alwaysOther(const PluralOperands& /*o*/) {
  return PluralCategory::other;
}

PluralCategory cardinalLikeAm(const PluralOperands& o) {
  if (o.i == 0 || o.n() == 1) {
    return PluralCategory::one;
  }
  return PluralCategory::other;
}

PluralCategory cardinalLikeFf(const PluralOperands& o) {
  if (o.i == 0 || o.i == 1) {
    return PluralCategory::one;
  }
  return PluralCategory::other;
}

PluralCategory cardinalLikeAst(const PluralOperands& o) {
  if (o.i == 1 && o.v == 0) {
    return PluralCategory::one;
  }
  return PluralCategory::other;
}

PluralCategory cardinalLikeSi(const PluralOperands& o) {
  if ((o.n() == 0 || o.n() == 1) || (o.i == 0 && o.f == 1)) {
    return PluralCategory::one;
  }
  return PluralCategory::other;
}

PluralCategory cardinalLikeAk(const PluralOperands& o) {
  if (isIn(o.n(), 0, 1)) {
    return PluralCategory::one;
  }
  return PluralCategory::other;
}

PluralCategory cardinalLikeTzm(const PluralOperands& o) {
  if (isIn(o.n(), 0, 1) || isIn(o.n(), 11, 99)) {
    return PluralCategory::one;
  }
  return PluralCategory::other;
}

PluralCategory cardinalLikeAf(const PluralOperands& o) {
  if (o.n() == 1) {
    return PluralCategory::one;
  }
  return PluralCategory::other;
}

PluralCategory cardinalLikeDa(const PluralOperands& o) {
  if (o.n() == 1 || (o.t != 0 && (o.i == 0 || o.i == 1))) {
    return PluralCategory::one;
  }
  return PluralCategory::other;
}

PluralCategory cardinalLikeIs(const PluralOperands& o) {
  if ((o.t == 0 && o.i % 10 == 1 && o.i % 100 != 11) || o.t != 0) {
    return PluralCategory::one;
  }
  return PluralCategory::other;
}

PluralCategory cardinalLikeMk(const PluralOperands& o) {
  if ((o.v == 0 && o.i % 10 == 1 && o.i % 100 != 11) || (o.f % 10 == 1 && o.f % 100 != 11)) {
    return PluralCategory::one;
  }
  return PluralCategory::other;
}

PluralCategory cardinalLikeCeb(const PluralOperands& o) {
  if ((o.v == 0 && (o.i == 1 || o.i == 2 || o.i == 3)) ||
      (o.v == 0 && o.i % 10 != 4 && o.i % 10 != 6 && o.i % 10 != 9) ||
      (o.v != 0 && o.f % 10 != 4 && o.f % 10 != 6 && o.f % 10 != 9)) {
    return PluralCategory::one;
  }
  return PluralCategory::other;
}

PluralCategory cardinalLikeLv(const PluralOperands& o) {
  if (o.n() % 10 == 0 || isIn(o.n() % 100, 11, 19) || (o.v == 2 && isIn(o.f % 100, 11, 19))) {
    return PluralCategory::zero;
  }
  if ((o.n() % 10 == 1 && o.n() % 100 != 11) || (o.v == 2 && o.f % 10 == 1 && o.f % 100 != 11) ||
      (o.v != 2 && o.f % 10 == 1)) {
    return PluralCategory::one;
  }
  return PluralCategory::other;
}

PluralCategory cardinalLikeLag(const PluralOperands& o) {
  if (o.n() == 0) {
    return PluralCategory::zero;
  }
  if ((o.i == 0 || o.i == 1) && o.n() != 0) {
    return PluralCategory::one;
  }
  return PluralCategory::other;
}

PluralCategory cardinalLikeKsh(const PluralOperands& o) {
  if (o.n() == 0) {
    return PluralCategory::zero;
  }
  if (o.n() == 1) {
    return PluralCategory::one;
  }
  return PluralCategory::other;
}

PluralCategory cardinalLikeIu(const PluralOperands& o) {
  if (o.n() == 1) {
    return PluralCategory::one;
  }
  if (o.n() == 2) {
    return PluralCategory::two;
  }
  return PluralCategory::other;
}

PluralCategory cardinalLikeShi(const PluralOperands& o) {
  if (o.i == 0 || o.n() == 1) {
    return PluralCategory::one;
  }
  if (isIn(o.n(), 2, 10)) {
    return PluralCategory::few;
  }
  return PluralCategory::other;
}

PluralCategory cardinalLikeMo(const PluralOperands& o) {
  if (o.i == 1 && o.v == 0) {
    return PluralCategory::one;
  }
  if (o.v != 0 || o.n() == 0 || isIn(o.n() % 100, 2, 19)) {
    return PluralCategory::few;
  }
  return PluralCategory::other;
}

PluralCategory cardinalLikeBs(const PluralOperands& o) {
  if ((o.v == 0 && o.i % 10 == 1 && o.i % 100 != 11) || (o.f % 10 == 1 && o.f % 100 != 11)) {
    return PluralCategory::one;
  }
  if ((o.v == 0 && isIn(o.i % 10, 2, 4) && !isIn(o.i % 100, 12, 14)) ||
      (isIn(o.f % 10, 2, 4) && !isIn(o.f % 100, 12, 14))) {
    return PluralCategory::few;
  }
  return PluralCategory::other;
}

PluralCategory cardinalLikeFr(const PluralOperands& o) {
  if (o.i == 0 || o.i == 1) {
    return PluralCategory::one;
  }
  if (o.i != 0 && o.i % 1000000 == 0 && o.v == 0) {
    return PluralCategory::many;
  }
  return PluralCategory::other;
}

PluralCategory cardinalLikePt(const PluralOperands& o) {
  if (isIn(o.i, 0, 1)) {
    return PluralCategory::one;
  }
  if (o.i != 0 && o.i % 1000000 == 0 && o.v == 0) {
    return PluralCategory::many;
  }
  return PluralCategory::other;
}

PluralCategory cardinalLikeIt(const PluralOperands& o) {
  if (o.i == 1 && o.v == 0) {
    return PluralCategory::one;
  }
  if (o.i != 0 && o.i % 1000000 == 0 && o.v == 0) {
    return PluralCategory::many;
  }
  return PluralCategory::other;
}

PluralCategory cardinalLikeEs(const PluralOperands& o) {
  if (o.n() == 1) {
    return PluralCategory::one;
  }
  if (o.i != 0 && o.i % 1000000 == 0 && o.v == 0) {
    return PluralCategory::many;
  }
  return PluralCategory::other;
}

PluralCategory cardinalLikeGd(const PluralOperands& o) {
  if ((o.n() == 1 || o.n() == 11)) {
    return PluralCategory::one;
  }
  if ((o.n() == 2 || o.n() == 12)) {
    return PluralCategory::two;
  }
  if ((isIn(o.n(), 3, 10) || isIn(o.n(), 13, 19))) {
    return PluralCategory::few;
  }
  return PluralCategory::other;
}

PluralCategory cardinalLikeSl(const PluralOperands& o) {
  if (o.v == 0 && o.i % 100 == 1) {
    return PluralCategory::one;
  }
  if (o.v == 0 && o.i % 100 == 2) {
    return PluralCategory::two;
  }
  if ((o.v == 0 && isIn(o.i % 100, 3, 4)) || o.v != 0) {
    return PluralCategory::few;
  }
  return PluralCategory::other;
}

PluralCategory cardinalLikeDsb(const PluralOperands& o) {
  if ((o.v == 0 && o.i % 100 == 1) || o.f % 100 == 1) {
    return PluralCategory::one;
  }
  if ((o.v == 0 && o.i % 100 == 2) || o.f % 100 == 2) {
    return PluralCategory::two;
  }
  if ((o.v == 0 && isIn(o.i % 100, 3, 4)) || isIn(o.f % 100, 3, 4)) {
    return PluralCategory::few;
  }
  return PluralCategory::other;
}

PluralCategory cardinalLikeHe(const PluralOperands& o) {
  if (o.i == 1 && o.v == 0) {
    return PluralCategory::one;
  }
  if (o.i == 2 && o.v == 0) {
    return PluralCategory::two;
  }
  if (o.v == 0 && !isIn(o.n(), 0, 10) && o.n() % 10 == 0) {
    return PluralCategory::many;
  }
  return PluralCategory::other;
}

PluralCategory cardinalLikeCs(const PluralOperands& o) {
  if (o.i == 1 && o.v == 0) {
    return PluralCategory::one;
  }
  if (isIn(o.i, 2, 4) && o.v == 0) {
    return PluralCategory::few;
  }
  if (o.v != 0) {
    return PluralCategory::many;
  }
  return PluralCategory::other;
}

PluralCategory cardinalLikePl(const PluralOperands& o) {
  if (o.i == 1 && o.v == 0) {
    return PluralCategory::one;
  }
  if (o.v == 0 && isIn(o.i % 10, 2, 4) && !isIn(o.i % 100, 12, 14)) {
    return PluralCategory::few;
  }
  if ((o.v == 0 && o.i != 1 && isIn(o.i % 10, 0, 1)) || (o.v == 0 && isIn(o.i % 10, 5, 9)) ||
      (o.v == 0 && isIn(o.i % 100, 12, 14))) {
    return PluralCategory::many;
  }
  return PluralCategory::other;
}

PluralCategory cardinalLikeBe(const PluralOperands& o) {
  if (o.n() % 10 == 1 && o.n() % 100 != 11) {
    return PluralCategory::one;
  }
  if (isIn(o.n() % 10, 2, 4) && !isIn(o.n() % 100, 12, 14)) {
    return PluralCategory::few;
  }
  if (o.n() % 10 == 0 || isIn(o.n() % 10, 5, 9) || isIn(o.n() % 100, 11, 14)) {
    return PluralCategory::many;
  }
  return PluralCategory::other;
}

PluralCategory cardinalLikeLt(const PluralOperands& o) {
  if (o.n() % 10 == 1 && !isIn(o.n() % 100, 11, 19)) {
    return PluralCategory::one;
  }
  if (isIn(o.n() % 10, 2, 9) && !isIn(o.n() % 100, 11, 19)) {
    return PluralCategory::few;
  }
  if (o.f != 0) {
    return PluralCategory::many;
  }
  return PluralCategory::other;
}

PluralCategory cardinalLikeMt(const PluralOperands& o) {
  if (o.n() == 1) {
    return PluralCategory::one;
  }
  if (o.n() == 0 || isIn(o.n() % 100, 2, 10)) {
    return PluralCategory::few;
  }
  if (isIn(o.n() % 100, 11, 19)) {
    return PluralCategory::many;
  }
  return PluralCategory::other;
}

PluralCategory cardinalLikeRu(const PluralOperands& o) {
  if (o.v == 0 && o.i % 10 == 1 && o.i % 100 != 11) {
    return PluralCategory::one;
  }
  if (o.v == 0 && isIn(o.i % 10, 2, 4) && !isIn(o.i % 100, 12, 14)) {
    return PluralCategory::few;
  }
  if ((o.v == 0 && o.i % 10 == 0) || (o.v == 0 && isIn(o.i % 10, 5, 9)) ||
      (o.v == 0 && isIn(o.i % 100, 11, 14))) {
    return PluralCategory::many;
  }
  return PluralCategory::other;
}

PluralCategory cardinalLikeBr(const PluralOperands& o) {
  if (o.n() % 10 == 1 && o.n() % 100 != 11 && o.n() % 100 != 71 && o.n() % 100 != 91) {
    return PluralCategory::one;
  }
  if (o.n() % 10 == 2 && o.n() % 100 != 12 && o.n() % 100 != 72 && o.n() % 100 != 92) {
    return PluralCategory::two;
  }
  if ((isIn(o.n() % 10, 3, 4) || o.n() % 10 == 9) && !isIn(o.n() % 100, 10, 19) &&
      !isIn(o.n() % 100, 70, 79) && !isIn(o.n() % 100, 90, 99)) {
    return PluralCategory::few;
  }
  if (o.n() != 0 && o.n() % 1000000 == 0) {
    return PluralCategory::many;
  }
  return PluralCategory::other;
}

PluralCategory cardinalLikeGa(const PluralOperands& o) {
  if (o.n() == 1) {
    return PluralCategory::one;
  }
  if (o.n() == 2) {
    return PluralCategory::two;
  }
  if (isIn(o.n(), 3, 6)) {
    return PluralCategory::few;
  }
  if (isIn(o.n(), 7, 10)) {
    return PluralCategory::many;
  }
  return PluralCategory::other;
}

PluralCategory cardinalLikeGv(const PluralOperands& o) {
  if (o.v == 0 && o.i % 10 == 1) {
    return PluralCategory::one;
  }
  if (o.v == 0 && o.i % 10 == 2) {
    return PluralCategory::two;
  }
  if (o.v == 0 && (o.i % 100 == 0 || o.i % 100 == 20 || o.i % 100 == 40 || o.i % 100 == 60 ||
                   o.i % 100 == 80)) {
    return PluralCategory::few;
  }
  if (o.v != 0) {
    return PluralCategory::many;
  }
  return PluralCategory::other;
}

PluralCategory cardinalLikeKw(const PluralOperands& o) {
  if (o.n() == 0) {
    return PluralCategory::zero;
  }
  if (o.n() == 1) {
    return PluralCategory::one;
  }
  if ((o.n() % 100 == 2 || o.n() % 100 == 22 || o.n() % 100 == 42 || o.n() % 100 == 62 ||
       o.n() % 100 == 82) ||
      (o.n() % 1000 == 0 && (isIn(o.n() % 100000, 1000, 20000) || o.n() % 100000 == 40000 ||
                             o.n() % 100000 == 60000 || o.n() % 100000 == 80000)) ||
      (o.n() != 0 && o.n() % 1000000 == 100000)) {
    return PluralCategory::two;
  }
  if ((o.n() % 100 == 3 || o.n() % 100 == 23 || o.n() % 100 == 43 || o.n() % 100 == 63 ||
       o.n() % 100 == 83)) {
    return PluralCategory::few;
  }
  if (o.n() != 1 && (o.n() % 100 == 1 || o.n() % 100 == 21 || o.n() % 100 == 41 ||
                     o.n() % 100 == 61 || o.n() % 100 == 81)) {
    return PluralCategory::many;
  }
  return PluralCategory::other;
}

PluralCategory cardinalLikeAr(const PluralOperands& o) {
  if (o.n() == 0) {
    return PluralCategory::zero;
  }
  if (o.n() == 1) {
    return PluralCategory::one;
  }
  if (o.n() == 2) {
    return PluralCategory::two;
  }
  if (isIn(o.n() % 100, 3, 10)) {
    return PluralCategory::few;
  }
  if (isIn(o.n() % 100, 11, 99)) {
    return PluralCategory::many;
  }
  return PluralCategory::other;
}

PluralCategory cardinalLikeCy(const PluralOperands& o) {
  if (o.n() == 0) {
    return PluralCategory::zero;
  }
  if (o.n() == 1) {
    return PluralCategory::one;
  }
  if (o.n() == 2) {
    return PluralCategory::two;
  }
  if (o.n() == 3) {
    return PluralCategory::few;
  }
  if (o.n() == 6) {
    return PluralCategory::many;
  }
  return PluralCategory::other;
}

PluralCategory ordinalLikeSv(const PluralOperands& o) {
  if ((o.n() % 10 == 1 || o.n() % 10 == 2) && o.n() % 100 != 11 && o.n() % 100 != 12) {
    return PluralCategory::one;
  }
  return PluralCategory::other;
}

PluralCategory ordinalLikeBal(const PluralOperands& o) {
  if (o.n() == 1) {
    return PluralCategory::one;
  }
  return PluralCategory::other;
}

PluralCategory ordinalLikeHu(const PluralOperands& o) {
  if ((o.n() == 1 || o.n() == 5)) {
    return PluralCategory::one;
  }
  return PluralCategory::other;
}

PluralCategory ordinalLikeNe(const PluralOperands& o) {
  if (isIn(o.n(), 1, 4)) {
    return PluralCategory::one;
  }
  return PluralCategory::other;
}

PluralCategory ordinalLikeBe(const PluralOperands& o) {
  if ((o.n() % 10 == 2 || o.n() % 10 == 3) && o.n() % 100 != 12 && o.n() % 100 != 13) {
    return PluralCategory::few;
  }
  return PluralCategory::other;
}

PluralCategory ordinalLikeUk(const PluralOperands& o) {
  if (o.n() % 10 == 3 && o.n() % 100 != 13) {
    return PluralCategory::few;
  }
  return PluralCategory::other;
}

PluralCategory ordinalLikeTk(const PluralOperands& o) {
  if ((o.n() % 10 == 6 || o.n() % 10 == 9) || o.n() == 10) {
    return PluralCategory::few;
  }
  return PluralCategory::other;
}

PluralCategory ordinalLikeKk(const PluralOperands& o) {
  if (o.n() % 10 == 6 || o.n() % 10 == 9 || (o.n() % 10 == 0 && o.n() != 0)) {
    return PluralCategory::many;
  }
  return PluralCategory::other;
}

PluralCategory ordinalLikeIt(const PluralOperands& o) {
  if ((o.n() == 11 || o.n() == 8 || o.n() == 80 || o.n() == 800)) {
    return PluralCategory::many;
  }
  return PluralCategory::other;
}

PluralCategory ordinalLikeLij(const PluralOperands& o) {
  if ((o.n() == 11 || o.n() == 8 || isIn(o.n(), 80, 89) || isIn(o.n(), 800, 899))) {
    return PluralCategory::many;
  }
  return PluralCategory::other;
}

PluralCategory ordinalLikeKa(const PluralOperands& o) {
  if (o.i == 1) {
    return PluralCategory::one;
  }
  if (o.i == 0 ||
      (isIn(o.i % 100, 2, 20) || o.i % 100 == 40 || o.i % 100 == 60 || o.i % 100 == 80)) {
    return PluralCategory::many;
  }
  return PluralCategory::other;
}

PluralCategory ordinalLikeSq(const PluralOperands& o) {
  if (o.n() == 1) {
    return PluralCategory::one;
  }
  if (o.n() % 10 == 4 && o.n() % 100 != 14) {
    return PluralCategory::many;
  }
  return PluralCategory::other;
}

PluralCategory ordinalLikeKw(const PluralOperands& o) {
  if (isIn(o.n(), 1, 4) ||
      (isIn(o.n() % 100, 1, 4) || isIn(o.n() % 100, 21, 24) || isIn(o.n() % 100, 41, 44) ||
       isIn(o.n() % 100, 61, 64) || isIn(o.n() % 100, 81, 84))) {
    return PluralCategory::one;
  }
  if (o.n() == 5 || o.n() % 100 == 5) {
    return PluralCategory::many;
  }
  return PluralCategory::other;
}

PluralCategory ordinalLikeEn(const PluralOperands& o) {
  if (o.n() % 10 == 1 && o.n() % 100 != 11) {
    return PluralCategory::one;
  }
  if (o.n() % 10 == 2 && o.n() % 100 != 12) {
    return PluralCategory::two;
  }
  if (o.n() % 10 == 3 && o.n() % 100 != 13) {
    return PluralCategory::few;
  }
  return PluralCategory::other;
}

PluralCategory ordinalLikeMr(const PluralOperands& o) {
  if (o.n() == 1) {
    return PluralCategory::one;
  }
  if ((o.n() == 2 || o.n() == 3)) {
    return PluralCategory::two;
  }
  if (o.n() == 4) {
    return PluralCategory::few;
  }
  return PluralCategory::other;
}

PluralCategory ordinalLikeGd(const PluralOperands& o) {
  if ((o.n() == 1 || o.n() == 11)) {
    return PluralCategory::one;
  }
  if ((o.n() == 2 || o.n() == 12)) {
    return PluralCategory::two;
  }
  if ((o.n() == 3 || o.n() == 13)) {
    return PluralCategory::few;
  }
  return PluralCategory::other;
}

PluralCategory ordinalLikeCa(const PluralOperands& o) {
  if ((o.n() == 1 || o.n() == 3)) {
    return PluralCategory::one;
  }
  if (o.n() == 2) {
    return PluralCategory::two;
  }
  if (o.n() == 4) {
    return PluralCategory::few;
  }
  return PluralCategory::other;
}

PluralCategory ordinalLikeMk(const PluralOperands& o) {
  if (o.i % 10 == 1 && o.i % 100 != 11) {
    return PluralCategory::one;
  }
  if (o.i % 10 == 2 && o.i % 100 != 12) {
    return PluralCategory::two;
  }
  if ((o.i % 10 == 7 || o.i % 10 == 8) && o.i % 100 != 17 && o.i % 100 != 18) {
    return PluralCategory::many;
  }
  return PluralCategory::other;
}

PluralCategory ordinalLikeAz(const PluralOperands& o) {
  if ((o.i % 10 == 1 || o.i % 10 == 2 || o.i % 10 == 5 || o.i % 10 == 7 || o.i % 10 == 8) ||
      (o.i % 100 == 20 || o.i % 100 == 50 || o.i % 100 == 70 || o.i % 100 == 80)) {
    return PluralCategory::one;
  }
  if ((o.i % 10 == 3 || o.i % 10 == 4) ||
      (o.i % 1000 == 100 || o.i % 1000 == 200 || o.i % 1000 == 300 || o.i % 1000 == 400 ||
       o.i % 1000 == 500 || o.i % 1000 == 600 || o.i % 1000 == 700 || o.i % 1000 == 800 ||
       o.i % 1000 == 900)) {
    return PluralCategory::few;
  }
  if (o.i == 0 || o.i % 10 == 6 || (o.i % 100 == 40 || o.i % 100 == 60 || o.i % 100 == 90)) {
    return PluralCategory::many;
  }
  return PluralCategory::other;
}

PluralCategory ordinalLikeGu(const PluralOperands& o) {
  if (o.n() == 1) {
    return PluralCategory::one;
  }
  if ((o.n() == 2 || o.n() == 3)) {
    return PluralCategory::two;
  }
  if (o.n() == 4) {
    return PluralCategory::few;
  }
  if (o.n() == 6) {
    return PluralCategory::many;
  }
  return PluralCategory::other;
}

PluralCategory ordinalLikeAs(const PluralOperands& o) {
  if ((o.n() == 1 || o.n() == 5 || o.n() == 7 || o.n() == 8 || o.n() == 9 || o.n() == 10)) {
    return PluralCategory::one;
  }
  if ((o.n() == 2 || o.n() == 3)) {
    return PluralCategory::two;
  }
  if (o.n() == 4) {
    return PluralCategory::few;
  }
  if (o.n() == 6) {
    return PluralCategory::many;
  }
  return PluralCategory::other;
}

PluralCategory ordinalLikeOr(const PluralOperands& o) {
  if ((o.n() == 1 || o.n() == 5 || isIn(o.n(), 7, 9))) {
    return PluralCategory::one;
  }
  if ((o.n() == 2 || o.n() == 3)) {
    return PluralCategory::two;
  }
  if (o.n() == 4) {
    return PluralCategory::few;
  }
  if (o.n() == 6) {
    return PluralCategory::many;
  }
  return PluralCategory::other;
}

PluralCategory ordinalLikeCy(const PluralOperands& o) {
  if ((o.n() == 0 || o.n() == 7 || o.n() == 8 || o.n() == 9)) {
    return PluralCategory::zero;
  }
  if (o.n() == 1) {
    return PluralCategory::one;
  }
  if (o.n() == 2) {
    return PluralCategory::two;
  }
  if ((o.n() == 3 || o.n() == 4)) {
    return PluralCategory::few;
  }
  if ((o.n() == 5 || o.n() == 6)) {
    return PluralCategory::many;
  }
  return PluralCategory::other;
}

// Sorted by locale.
constexpr PluralRow kRows[] = {
    {"af", cardinalLikeAf, alwaysOther},      {"ak", cardinalLikeAk, alwaysOther},
    {"am", cardinalLikeAm, alwaysOther},      {"an", cardinalLikeAf, alwaysOther},
    {"ar", cardinalLikeAr, alwaysOther},      {"ars", cardinalLikeAr, alwaysOther},
    {"as", cardinalLikeAm, ordinalLikeAs},    {"asa", cardinalLikeAf, alwaysOther},
    {"ast", cardinalLikeAst, alwaysOther},    {"az", cardinalLikeAf, ordinalLikeAz},
    {"bal", cardinalLikeAf, ordinalLikeBal},  {"be", cardinalLikeBe, ordinalLikeBe},
    {"bem", cardinalLikeAf, alwaysOther},     {"bez", cardinalLikeAf, alwaysOther},
    {"bg", cardinalLikeAf, alwaysOther},      {"bho", cardinalLikeAk, alwaysOther},
    {"bm", alwaysOther, alwaysOther},         {"bn", cardinalLikeAm, ordinalLikeAs},
    {"bo", alwaysOther, alwaysOther},         {"br", cardinalLikeBr, alwaysOther},
    {"brx", cardinalLikeAf, alwaysOther},     {"bs", cardinalLikeBs, alwaysOther},
    {"ca", cardinalLikeAst, ordinalLikeCa},   {"ce", cardinalLikeAf, alwaysOther},
    {"ceb", cardinalLikeCeb, alwaysOther},    {"cgg", cardinalLikeAf, alwaysOther},
    {"chr", cardinalLikeAf, alwaysOther},     {"ckb", cardinalLikeAf, alwaysOther},
    {"cs", cardinalLikeCs, alwaysOther},      {"cy", cardinalLikeCy, ordinalLikeCy},
    {"da", cardinalLikeDa, alwaysOther},      {"de", cardinalLikeAst, alwaysOther},
    {"doi", cardinalLikeAm, alwaysOther},     {"dsb", cardinalLikeDsb, alwaysOther},
    {"dv", cardinalLikeAf, alwaysOther},      {"dz", alwaysOther, alwaysOther},
    {"ee", cardinalLikeAf, alwaysOther},      {"el", cardinalLikeAf, alwaysOther},
    {"en", cardinalLikeAst, ordinalLikeEn},   {"eo", cardinalLikeAf, alwaysOther},
    {"es", cardinalLikeEs, alwaysOther},      {"et", cardinalLikeAst, alwaysOther},
    {"eu", cardinalLikeAf, alwaysOther},      {"fa", cardinalLikeAm, alwaysOther},
    {"ff", cardinalLikeFf, alwaysOther},      {"fi", cardinalLikeAst, alwaysOther},
    {"fil", cardinalLikeCeb, ordinalLikeBal}, {"fo", cardinalLikeAf, alwaysOther},
    {"fr", cardinalLikeFr, ordinalLikeBal},   {"fur", cardinalLikeAf, alwaysOther},
    {"fy", cardinalLikeAst, alwaysOther},     {"ga", cardinalLikeGa, ordinalLikeBal},
    {"gd", cardinalLikeGd, ordinalLikeGd},    {"gl", cardinalLikeAst, alwaysOther},
    {"gsw", cardinalLikeAf, alwaysOther},     {"gu", cardinalLikeAm, ordinalLikeGu},
    {"guw", cardinalLikeAk, alwaysOther},     {"gv", cardinalLikeGv, alwaysOther},
    {"ha", cardinalLikeAf, alwaysOther},      {"haw", cardinalLikeAf, alwaysOther},
    {"he", cardinalLikeHe, alwaysOther},      {"hi", cardinalLikeAm, ordinalLikeGu},
    {"hnj", alwaysOther, alwaysOther},        {"hr", cardinalLikeBs, alwaysOther},
    {"hsb", cardinalLikeDsb, alwaysOther},    {"hu", cardinalLikeAf, ordinalLikeHu},
    {"hy", cardinalLikeFf, ordinalLikeBal},   {"ia", cardinalLikeAst, alwaysOther},
    {"id", alwaysOther, alwaysOther},         {"ig", alwaysOther, alwaysOther},
    {"ii", alwaysOther, alwaysOther},         {"in", alwaysOther, alwaysOther},
    {"io", cardinalLikeAst, alwaysOther},     {"is", cardinalLikeIs, alwaysOther},
    {"it", cardinalLikeIt, ordinalLikeIt},    {"iu", cardinalLikeIu, alwaysOther},
    {"iw", cardinalLikeHe, alwaysOther},      {"ja", alwaysOther, alwaysOther},
    {"jbo", alwaysOther, alwaysOther},        {"jgo", cardinalLikeAf, alwaysOther},
    {"ji", cardinalLikeAst, alwaysOther},     {"jmc", cardinalLikeAf, alwaysOther},
    {"jv", alwaysOther, alwaysOther},         {"jw", alwaysOther, alwaysOther},
    {"ka", cardinalLikeAf, ordinalLikeKa},    {"kab", cardinalLikeFf, alwaysOther},
    {"kaj", cardinalLikeAf, alwaysOther},     {"kcg", cardinalLikeAf, alwaysOther},
    {"kde", alwaysOther, alwaysOther},        {"kea", alwaysOther, alwaysOther},
    {"kk", cardinalLikeAf, ordinalLikeKk},    {"kkj", cardinalLikeAf, alwaysOther},
    {"kl", cardinalLikeAf, alwaysOther},      {"km", alwaysOther, alwaysOther},
    {"kn", cardinalLikeAm, alwaysOther},      {"ko", alwaysOther, alwaysOther},
    {"ks", cardinalLikeAf, alwaysOther},      {"ksb", cardinalLikeAf, alwaysOther},
    {"ksh", cardinalLikeKsh, alwaysOther},    {"ku", cardinalLikeAf, alwaysOther},
    {"kw", cardinalLikeKw, ordinalLikeKw},    {"ky", cardinalLikeAf, alwaysOther},
    {"lag", cardinalLikeLag, alwaysOther},    {"lb", cardinalLikeAf, alwaysOther},
    {"lg", cardinalLikeAf, alwaysOther},      {"lij", cardinalLikeAst, ordinalLikeLij},
    {"lkt", alwaysOther, alwaysOther},        {"ln", cardinalLikeAk, alwaysOther},
    {"lo", alwaysOther, ordinalLikeBal},      {"lt", cardinalLikeLt, alwaysOther},
    {"lv", cardinalLikeLv, alwaysOther},      {"mas", cardinalLikeAf, alwaysOther},
    {"mg", cardinalLikeAk, alwaysOther},      {"mgo", cardinalLikeAf, alwaysOther},
    {"mk", cardinalLikeMk, ordinalLikeMk},    {"ml", cardinalLikeAf, alwaysOther},
    {"mn", cardinalLikeAf, alwaysOther},      {"mo", cardinalLikeMo, ordinalLikeBal},
    {"mr", cardinalLikeAf, ordinalLikeMr},    {"ms", alwaysOther, ordinalLikeBal},
    {"mt", cardinalLikeMt, alwaysOther},      {"my", alwaysOther, alwaysOther},
    {"nah", cardinalLikeAf, alwaysOther},     {"naq", cardinalLikeIu, alwaysOther},
    {"nb", cardinalLikeAf, alwaysOther},      {"nd", cardinalLikeAf, alwaysOther},
    {"ne", cardinalLikeAf, ordinalLikeNe},    {"nl", cardinalLikeAst, alwaysOther},
    {"nn", cardinalLikeAf, alwaysOther},      {"nnh", cardinalLikeAf, alwaysOther},
    {"no", cardinalLikeAf, alwaysOther},      {"nqo", alwaysOther, alwaysOther},
    {"nr", cardinalLikeAf, alwaysOther},      {"nso", cardinalLikeAk, alwaysOther},
    {"ny", cardinalLikeAf, alwaysOther},      {"nyn", cardinalLikeAf, alwaysOther},
    {"om", cardinalLikeAf, alwaysOther},      {"or", cardinalLikeAf, ordinalLikeOr},
    {"os", cardinalLikeAf, alwaysOther},      {"osa", alwaysOther, alwaysOther},
    {"pa", cardinalLikeAk, alwaysOther},      {"pap", cardinalLikeAf, alwaysOther},
    {"pcm", cardinalLikeAm, alwaysOther},     {"pl", cardinalLikePl, alwaysOther},
    {"prg", cardinalLikeLv, alwaysOther},     {"ps", cardinalLikeAf, alwaysOther},
    {"pt", cardinalLikePt, alwaysOther},      {"pt-PT", cardinalLikeIt, alwaysOther},
    {"rm", cardinalLikeAf, alwaysOther},      {"ro", cardinalLikeMo, ordinalLikeBal},
    {"rof", cardinalLikeAf, alwaysOther},     {"ru", cardinalLikeRu, alwaysOther},
    {"rwk", cardinalLikeAf, alwaysOther},     {"sah", alwaysOther, alwaysOther},
    {"saq", cardinalLikeAf, alwaysOther},     {"sat", cardinalLikeIu, alwaysOther},
    {"sc", cardinalLikeAst, ordinalLikeIt},   {"scn", cardinalLikeAst, ordinalLikeIt},
    {"sd", cardinalLikeAf, alwaysOther},      {"sdh", cardinalLikeAf, alwaysOther},
    {"se", cardinalLikeIu, alwaysOther},      {"seh", cardinalLikeAf, alwaysOther},
    {"ses", alwaysOther, alwaysOther},        {"sg", alwaysOther, alwaysOther},
    {"sh", cardinalLikeBs, alwaysOther},      {"shi", cardinalLikeShi, alwaysOther},
    {"si", cardinalLikeSi, alwaysOther},      {"sk", cardinalLikeCs, alwaysOther},
    {"sl", cardinalLikeSl, alwaysOther},      {"sma", cardinalLikeIu, alwaysOther},
    {"smi", cardinalLikeIu, alwaysOther},     {"smj", cardinalLikeIu, alwaysOther},
    {"smn", cardinalLikeIu, alwaysOther},     {"sms", cardinalLikeIu, alwaysOther},
    {"sn", cardinalLikeAf, alwaysOther},      {"so", cardinalLikeAf, alwaysOther},
    {"sq", cardinalLikeAf, ordinalLikeSq},    {"sr", cardinalLikeBs, alwaysOther},
    {"ss", cardinalLikeAf, alwaysOther},      {"ssy", cardinalLikeAf, alwaysOther},
    {"st", cardinalLikeAf, alwaysOther},      {"su", alwaysOther, alwaysOther},
    {"sv", cardinalLikeAst, ordinalLikeSv},   {"sw", cardinalLikeAst, alwaysOther},
    {"syr", cardinalLikeAf, alwaysOther},     {"ta", cardinalLikeAf, alwaysOther},
    {"te", cardinalLikeAf, alwaysOther},      {"teo", cardinalLikeAf, alwaysOther},
    {"th", alwaysOther, alwaysOther},         {"ti", cardinalLikeAk, alwaysOther},
    {"tig", cardinalLikeAf, alwaysOther},     {"tk", cardinalLikeAf, ordinalLikeTk},
    {"tl", cardinalLikeCeb, ordinalLikeBal},  {"tn", cardinalLikeAf, alwaysOther},
    {"to", alwaysOther, alwaysOther},         {"tpi", alwaysOther, alwaysOther},
    {"tr", cardinalLikeAf, alwaysOther},      {"ts", cardinalLikeAf, alwaysOther},
    {"tzm", cardinalLikeTzm, alwaysOther},    {"ug", cardinalLikeAf, alwaysOther},
    {"uk", cardinalLikeRu, ordinalLikeUk},    {"ur", cardinalLikeAst, alwaysOther},
    {"uz", cardinalLikeAf, alwaysOther},      {"ve", cardinalLikeAf, alwaysOther},
    {"vi", alwaysOther, ordinalLikeBal},      {"vo", cardinalLikeAf, alwaysOther},
    {"vun", cardinalLikeAf, alwaysOther},     {"wa", cardinalLikeAk, alwaysOther},
    {"wae", cardinalLikeAf, alwaysOther},     {"wo", alwaysOther, alwaysOther},
    {"xh", cardinalLikeAf, alwaysOther},      {"xog", cardinalLikeAf, alwaysOther},
    {"yi", cardinalLikeAst, alwaysOther},     {"yo", alwaysOther, alwaysOther},
    {"yue", alwaysOther, alwaysOther},        {"zh", alwaysOther, alwaysOther},
    {"zu", cardinalLikeAm, alwaysOther},
};

}  // namespace

std::span<const PluralRow> pluralTable() noexcept {
  return kRows;
}

}  // namespace orvanta
