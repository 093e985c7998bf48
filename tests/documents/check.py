"""Checks what README.md and docs/ say against the tree.

usage: check.py SOURCE_FOLDER COMPILE_COMMANDS

- A code block of C++, CMake or QML names the file that it is taken from behind its language, and its
  lines stand there one below the other, indentation and a test's EXPECT_ and ASSERT_ lines aside. A
  block with a function `main` is that whole file. A source file named so is one that is compiled.
- A block of another kind may name a file, which it then equals.
- Links lead to files and headings that exist.
- Tests that docs/guarantees.md names exist.
"""

import json
import pathlib
import re
import sys

MUST_NAME_A_FILE = {"cpp", "cmake", "qml"}
TEST = r"\b(?:TYPED_)?TEST(?:_F|_P)?\((\w+),\s*(\w+)\)"


def bare(lines):
    stripped = (line.strip() for line in lines)
    return [line for line in stripped if line and not re.match(r"(EXPECT|ASSERT)_", line)]


def blocks(text):
    """The (info string, lines, line number) of each fenced block."""
    info, found, start = None, [], 0
    for number, line in enumerate(text.splitlines(), 1):
        if line.lstrip().startswith("```"):
            if info is None:
                info, lines, start = line.strip()[3:], [], number
            else:
                found.append((info, lines, start))
                info = None
        elif info is not None:
            lines.append(line)
    return found


def wrong_with_block(root, info, lines, compiled):
    language, _, name = info.partition(" ")
    if not name:
        return "names no file that it is taken from" if language in MUST_NAME_A_FILE else None
    if not (root / name).is_file():
        return f"is taken from {name}, which is not there"
    needs_qt = re.search("/q(t|uick)/", name)
    if name.endswith(".cpp") and not needs_qt and name not in compiled:
        return f"is taken from {name}, which is not compiled"
    source = (root / name).read_text().splitlines()
    if language not in MUST_NAME_A_FILE or any("int main(" in line for line in lines):
        return None if lines == source else f"differs from {name}"
    source, shown = bare(source), bare(lines)
    if any(source[at:at + len(shown)] == shown for at in range(len(source))):
        return None
    return f"does not stand in {name}"


def anchors(text):
    headings = re.findall(r"^#+ (.*)$", text, re.MULTILINE)
    return {re.sub(r"[^\w\- ]", "", h.lower()).replace(" ", "-") for h in headings}


def wrong_links(page, text):
    for target in re.findall(r"\]\(([^)\s]+)\)", text):
        path, _, anchor = target.partition("#")
        if re.match(r"[a-z]+:", path):
            continue
        file = page.parent / path if path else page
        if not file.exists():
            yield f"links to {target}, which is not there"
        elif anchor and anchor not in anchors(file.read_text()):
            yield f"links to {target}: no such heading"


def tests_of(root):
    names = set()
    files = [*(root / "tests").rglob("*"), root / "cmake/Documentation.cmake"]
    for file in files:
        if file.suffix in (".cpp", ".h"):
            text = file.read_text()
            names |= {f"{suite}.{name}" for suite, name in re.findall(TEST, text)}
            if file.parent.name in ("qt", "quick"):  # A class of the file's name, with slots.
                slots = re.findall(r"^  (?:static )?void (\w+)\(\)", text, re.MULTILINE)
                names |= {f"{file.stem}.{slot}" for slot in slots}
        elif file.name == "CMakeLists.txt" or file.suffix == ".cmake":
            text = file.read_text()
            names |= set(re.findall(r"add_test\(NAME (\w+)", text))
            names |= {"Consumer" + n for n in re.findall(r"orvanta_add_consumer_test\((\w+)", text)}
    return names


def promises_of(root):
    """The (promise, test) pairs of the tables in docs/guarantees.md."""
    rows = re.findall(r"^\| ([^-].*) \| (.*) \|$", (root / "docs/guarantees.md").read_text(), re.M)
    for promise, cell in rows:
        if cell != "test":
            yield from ((promise, test) for test in re.findall(r"`([^`]+)`", cell) or [""])


def main():
    root = pathlib.Path(sys.argv[1])
    compiled = {pathlib.Path(entry["file"]).relative_to(root).as_posix()
                for entry in json.loads(pathlib.Path(sys.argv[2]).read_text())
                if pathlib.Path(entry["file"]).is_relative_to(root)}
    problems, shown = [], 0
    for page in sorted([*root.glob("*.md"), *root.glob("docs/*.md"), *root.glob("fuzz/*.md")]):
        text, name = page.read_text(), page.relative_to(root)
        for info, lines, at in blocks(text):
            shown += len(lines)
            problem = wrong_with_block(root, info, lines, compiled)
            if problem:
                problems.append(f"{name}:{at}: the block {problem}")
        problems += [f"{name}: {problem}" for problem in wrong_links(page, text)]
    known, promises = tests_of(root), list(promises_of(root))
    problems += [f"docs/guarantees.md: no test {test!r} for: {promise}"
                 for promise, test in promises if test not in known]
    if shown < 100 or len(promises) < 20:
        problems.append(f"read {shown} lines of code and {len(promises)} promises only")
    if problems:
        sys.exit("\n".join(problems))


main()
