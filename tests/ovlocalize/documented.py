"""Runs the commands of a page's console blocks and compares what they print.

usage: documented.py PAGE OVLOCALIZE FOLDER...

The commands run one after the other in one new folder, which holds a copy of each FOLDER. A line
"..." of the page stands for any lines, "..." in a line for anything.
"""

import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile


def main():
    page, command, *folders = map(pathlib.Path, sys.argv[1:])
    blocks = re.findall(r"^```console\n(.*?)^```$", page.read_text(), re.MULTILINE | re.DOTALL)
    steps = [step for block in blocks for step in re.split(r"^\$ ", block, flags=re.MULTILINE)[1:]]
    if not steps:
        sys.exit(f"{page} shows no command")
    with tempfile.TemporaryDirectory() as work:
        for folder in folders:
            shutil.copytree(folder, pathlib.Path(work) / folder.name)
        path = f"{command.parent}:{os.environ['PATH']}"
        for step in steps:
            line, _, shown = step.partition("\n")
            ran = subprocess.run(["bash", "-c", line], cwd=work, env={**os.environ, "PATH": path},
                                 stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)
            pattern = "".join(r"(?:.*\n)*?" if text == "...\n" else
                              re.escape(text).replace(re.escape("..."), ".*")
                              for text in shown.splitlines(keepends=True))
            if not re.fullmatch(pattern, ran.stdout):
                sys.exit(f"{page}: `{line}` prints\n{ran.stdout}instead of\n{shown}")


main()
