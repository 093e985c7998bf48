#!/usr/bin/env python3
"""Writes PluralTable.cpp from CLDR's plural rules: generate_plural_rules.py > PluralTable.cpp

Needs clang-format, and Debian's unicode-cldr-core or the folder "common" of CLDR as an argument.
"""
import re
import subprocess
import sys
import xml.etree.ElementTree as ElementTree
from pathlib import Path

COMMON = "/usr/share/unicode/cldr/common"
CATEGORIES = ("zero", "one", "two", "few", "many", "other")


def relation(text):
    """One relation of a rule as a C++ expression, or True or False where it is constant."""
    match = re.fullmatch(r"([nivwftce])(?: % (\d+))? (!?=) ([\d.,]+)", text)
    if not match:
        sys.exit(f"not a relation: {text}")
    operand, modulus, operator, ranges = match.groups()
    ranges = [tuple(map(int, (r.split("..") * 2)[:2])) for r in ranges.split(",")]
    negated = operator == "!="
    if operand in "ce":  # The exponent of a compact notation such as 1.2M, which is never used here.
        return any(low <= 0 <= high for low, high in ranges) != negated
    value = f"o.{operand}" + ("()" if operand == "n" else "") + (f" % {modulus}" if modulus else "")
    tests = [
        (f"{value} != {low}" if negated else f"{value} == {low}") if low == high
        else ("!" if negated else "") + f"isIn({value}, {low}, {high})"
        for low, high in ranges
    ]
    if negated or len(tests) == 1:
        return " && ".join(tests)
    return "(" + " || ".join(tests) + ")"


def condition(rule):
    """A rule without its samples as a C++ expression."""
    alternatives = []
    for alternative in rule.split(" or "):
        relations = [relation(text.strip()) for text in alternative.split(" and ")]
        if False in relations:
            continue
        relations = [text for text in relations if text is not True]
        alternatives.append(" && ".join(relations))
    if len(alternatives) == 1:
        return re.sub(r"^\(([^()]*)\)$", r"\1", alternatives[0])
    return " || ".join(f"({text})" if " && " in text else text for text in alternatives)


def read(path):
    """The rules of every locale, as a tuple of (category, condition) without "other"."""
    rules = {}
    for group in ElementTree.parse(path).iter("pluralRules"):
        cases = []
        for rule in group.iter("pluralRule"):
            if rule.get("count") != "other":
                cases.append((rule.get("count"), condition(rule.text.split("@")[0].strip())))
        assert all(category in CATEGORIES for category, _ in cases)
        for locale in group.get("locales").split():
            rules[locale.replace("_", "-")] = tuple(cases)
    return rules


def functions(prefix, rules, out):
    """Writes a function for each set of rules; gives the functions' names by set."""
    names = {(): "alwaysOther"}
    for locale, cases in rules.items():
        if cases in names:
            continue
        names[cases] = f"{prefix}Like" + locale.title().replace("-", "")
        out.append(f"PluralCategory {names[cases]}(const PluralOperands& o) {{")
        for category, text in cases:
            out.append(f"  if ({text}) {{")
            out.append(f"    return PluralCategory::{category};")
            out.append("  }")
        out.append("  return PluralCategory::other;")
        out.append("}")
        out.append("")
    return names


def main():
    common = Path(sys.argv[1] if len(sys.argv) > 1 else COMMON)
    dtd = (common / "dtd/ldmlSupplemental.dtd").read_text()
    version = re.search(r'cldrVersion CDATA #FIXED "([^"]+)"', dtd).group(1)
    cardinals = read(common / "supplemental/plurals.xml")
    ordinals = read(common / "supplemental/ordinals.xml")
    out = [
        f"// The plural rules of CLDR {version}, written by generate_plural_rules.py: change that instead.",
        "// Derived from data that is copyright of Unicode, Inc. (https://www.unicode.org/copyright.html).",
        "#include <orvanta/messages/plural/PluralTable.h>",
        "",
        "namespace orvanta {",
        "",
        "namespace {",
        "",
        "constexpr bool isIn(std::uint64_t value, std::uint64_t low, std::uint64_t high) {",
        "  return value >= low && value <= high;",
        "}",
        "",
        "constexpr bool isIn(WholeNumber value, std::uint64_t low, std::uint64_t high) {",
        "  return value.isWhole && isIn(value.digits, low, high);",
        "}",
        "",
        "PluralCategory alwaysOther(const PluralOperands& /*o*/) {",
        "  return PluralCategory::other;",
        "}",
        "",
    ]
    cardinal_names = functions("cardinal", cardinals, out)
    ordinal_names = functions("ordinal", ordinals, out)
    out.append("// Sorted by locale.")
    out.append("constexpr PluralRow kRows[] = {")
    for locale in sorted(set(cardinals) | set(ordinals)):
        if locale == "root":
            continue
        names = cardinal_names[cardinals.get(locale, ())], ordinal_names[ordinals.get(locale, ())]
        out.append(f'    {{"{locale}", {names[0]}, {names[1]}}},')
    out += [
        "};",
        "",
        "}  // namespace",
        "",
        "std::span<const PluralRow> pluralTable() noexcept {",
        "  return kRows;",
        "}",
        "",
        "}  // namespace orvanta",
    ]
    style = ["clang-format", f"--assume-filename={Path(__file__).with_name('PluralTable.cpp')}"]
    subprocess.run(style, input="\n".join(out) + "\n", text=True, check=True)


main()
