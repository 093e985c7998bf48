"""Checks which rooms each file of the library depends on: by its includes, its forward declarations
and its friends.

usage: dependencies.py SOURCE_FOLDER
"""

import pathlib
import re
import sys

# A room by the beginning of its files' paths, and the rooms it stands on directly. The longest
# beginning that fits a path decides; the record of a language stands below the cache, although its
# folder is that of the Localizer.
ROOMS = {
    "Export.h": [],
    "text/": ["Export.h"],
    "strings/": ["text/"],
    "platform/": ["strings/"],
    "standard/": ["platform/"],
    "locale/LanguagePart.": ["platform/"],
    "locale/SystemInfo.": ["platform/"],
    "locale/Version.": ["Export.h"],
    "locale/OVLocale.": ["locale/LanguagePart."],
    "cache/": ["locale/OVLocale."],
    "locale/": ["cache/", "locale/SystemInfo.", "locale/Version."],
    "messages/": ["locale/"],
    "fonts/": ["locale/"],
    "controls/": ["fonts/"],
    "orvanta.h": ["controls/", "messages/"],
    "qt/": ["orvanta.h", "standard/"],
    "quick/": ["qt/"],
}
INCLUDE = re.compile(r'^#include [<"]([^>"]+)[>"]', re.M)
DECLARATION = re.compile(r"^\s*(?:friend\s+)?(?:class|struct|enum class)\s+(?:\w+::)*(\w+)\s*;", re.M)
DEFINITION = re.compile(
    r"^\s*(?:class|struct|enum class)\s+(?:[A-Z_]+\s+)?(\w+)(?:\s+final)?\s*(?::[^:;].*)?\{", re.M)
QT_HEADER = re.compile(r"Q[tA-Z]")


def room_of(file):
    return max((room for room in ROOMS if file.startswith(room)), key=len, default=None)


def below(room):
    """The room and all that it stands on."""
    return {room}.union(*(below(other) for other in ROOMS[room]))


def may_depend(file, other):
    return room_of(other) in below(room_of(file))


def reachable(file, includes, seen):
    for other in includes.get(file, []):
        if other not in seen:
            seen.add(other)
            reachable(other, includes, seen)
    return seen


def main():
    library = pathlib.Path(sys.argv[1]) / "orvanta"
    files = {p.relative_to(library).as_posix(): p.read_text()
             for p in library.rglob("*") if p.suffix in (".h", ".cpp")}
    included = {file: INCLUDE.findall(text) for file, text in files.items()}
    own = {file: [h.removeprefix("orvanta/") for h in headers if h.startswith("orvanta/")]
           for file, headers in included.items()}
    definitions = {}
    for file, text in files.items():
        for name in DEFINITION.findall(text):
            definitions.setdefault(name, []).append(file)

    faults = [f"{file} stands in no room" for file in files if room_of(file) is None]
    if len(files) < 20 or len(definitions) < 20:
        faults.append(f"only {len(files)} files, {len(definitions)} types were found")
    for file, text in files.items() if not faults else ():
        faults += [f"{file} includes {h}, which is missing" for h in own[file] if h not in files]
        faults += [f"{file} includes {h}" for h in own[file] if not may_depend(file, h)]
        if not file.startswith(("qt/", "quick/")):
            faults += [f"{file} includes {h}" for h in included[file] if QT_HEADER.match(h)]
        for name in DECLARATION.findall(text):
            where = definitions.get(name, [file])  # Else no type of this library.
            if not any(may_depend(file, other) for other in where):
                faults.append(f"{file} declares {name} of {where[0]}")
        if file in reachable(file, own, set()):
            faults.append(f"{file} includes itself")
    sys.exit("\n".join(faults) or 0)


main()
