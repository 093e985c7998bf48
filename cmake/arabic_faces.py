"""Makes the library's two Arabic faces out of a Kufi family of an open licence.

Glyphs and layout stay as they are; the faces get names of their own, in a name table that toolkits
which group faces by family and those which group them by the legacy names both tell apart. The
licence text goes with them, headed by the copyright record of the fonts, as the licence asks.
"""

import argparse
import pathlib
import sys

from fontTools.ttLib import TTFont

FAMILY = "CorbetSansKufiArabic"
BOLD = FAMILY + "-Bold"

COPYRIGHT, TRADEMARK, LICENCE = 0, 7, 13
UNIQUE_ID = 3

# Name records by their numbers: legacy family and style, full and PostScript name, family and style.
NAMES = {
    "Regular": {1: FAMILY, 2: "Regular", 4: FAMILY, 6: FAMILY, 16: FAMILY, 17: "Regular"},
    "Bold": {1: FAMILY, 2: "Bold", 4: BOLD, 6: BOLD, 16: BOLD, 17: "Bold"},
}

# Whatever else carries the source's name: the trademark record, names for old systems, the
# families of optical sizes, the prefix of a variable font's instances.
DROPPED_NAMES = {TRADEMARK, 18, 20, 21, 22, 25}

WINDOWS_UNICODE_ENGLISH = (3, 1, 0x409)


def renamed(source, style):
    # A time stamp would make every build another font.
    font = TTFont(source, recalcTimestamp=False)
    if "fvar" in font:
        sys.exit(f"{source}: a variable font; static faces are needed")
    records = font["name"]
    names = dict(NAMES[style])
    names[UNIQUE_ID] = f"{font['head'].fontRevision:.3f};{names[6]}"
    records.names = [r for r in records.names if r.nameID not in DROPPED_NAMES | names.keys()]
    for number, text in names.items():
        records.setName(text, number, *WINDOWS_UNICODE_ENGLISH)
    if "DSIG" in font:
        del font["DSIG"]
    return font


def record(font, number, source):
    text = font["name"].getDebugName(number)
    if not text:
        sys.exit(f"{source}: no name record {number}, which the licence has to travel in")
    return text


def main():
    arguments = argparse.ArgumentParser()
    arguments.add_argument("--regular", required=True, type=pathlib.Path)
    arguments.add_argument("--bold", required=True, type=pathlib.Path)
    arguments.add_argument("--licence", required=True, type=pathlib.Path)
    arguments.add_argument("--output", required=True, type=pathlib.Path)
    options = arguments.parse_args()
    options.output.mkdir(parents=True, exist_ok=True)

    notices = []
    for style, source in ("Regular", options.regular), ("Bold", options.bold):
        font = renamed(source, style)
        if "SIL Open Font License" not in record(font, LICENCE, source):
            sys.exit(f"{source}: not under the SIL Open Font License")
        notice = record(font, COPYRIGHT, source)
        if notice not in notices:
            notices.append(notice)
        font.save(options.output / f"{FAMILY}-{style}.ttf")
    licence = options.licence.read_text(encoding="utf-8")
    (options.output / "OFL.txt").write_text("\n".join([*notices, "", licence]), encoding="utf-8")


main()
