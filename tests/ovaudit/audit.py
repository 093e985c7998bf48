"""Audits a form with faults of each kind, and one without; with "qml", QML files like them.

usage: audit.py OVAUDIT FOLDER [qml]
"""

import json
import pathlib
import subprocess
import sys
import tempfile

audit, folder = map(pathlib.Path, sys.argv[1:3])
bundle = folder / "bundle"
qml = "qml" in sys.argv[3:]
FAULTS = """ar cut outsideLabel, ar side leftLabel, de cut button, de cut cutLabel, de cut field,
de cut firstLabel, de cut outsideLabel, de cut pageLabel, de cut wrappedLabel, de glyph glyphLabel,
de glyph tipField, de overlap firstLabel""".replace("\n", " ").split(", ")


def run(*arguments):
    command = [audit, "--json", "--font", "DejaVu Sans,11", *map(str, arguments)]
    ran = subprocess.run(command, capture_output=True, text=True)
    found = json.loads(ran.stdout)["findings"] if ran.stdout else ran.stderr
    return ran.returncode, sorted(f"{f['language']} {f['rule']} {f['widget']}" for f in found) \
        if ran.stdout else found


def expect(row, result, status, found):
    if result != (status, found):
        sys.exit(f"{row}: {result} instead of {(status, found)}")


with tempfile.TemporaryDirectory() as pictures:
    faults = folder / "faults.ui"
    expect("faults", run("--pictures", pictures, faults, bundle), 1, FAULTS)
    if sorted(path.stem for path in pathlib.Path(pictures).iterdir()) != ["ar", "ar-2", "de", "de-2", "en", "en-2"]:
        sys.exit("a picture is missing")
expect("sound", run(folder / "sound.ui", bundle), 0, [])
if qml:
    # An item is as large as its text and has no bound properties.
    faults_in_qml = sorted({*FAULTS, "de cut elidedLabel"} -
                           {"de cut firstLabel", "de cut pageLabel", "de glyph tipField",
                            "ar cut outsideLabel"})
    expect("QML", run(folder / "faults.qml", bundle), 1, faults_in_qml)
    expect("sound QML", run(folder / "sound.qml", bundle), 0, [])
expect("only", run("--only", "ar", "--ignore", "cut:outsideLabel", faults, bundle), 1, FAULTS[1:2])
expect("ignored", run("--ignore", "cut,glyph", "--ignore", "leftLabel,overlap", faults, bundle), 0, [])
for row, arguments, message in (
    ("no file", (bundle, bundle), "bundle cannot be read"),
    ("no form", (folder / "audit.py", bundle), "audit.py is no form: "),
    ("no QML", ("no.qml", bundle), "no.qml cannot be " + ("loaded: file:" if qml else "audited")),
    ("no bundle", (faults, "no"), "no such bundle folder: no"),
    ("no language", ("--only", "fr", faults, bundle), "no table for the language fr"),
    ("no languages", (faults, folder), "no languages in the folder"),
):
    status, error = run(*arguments)
    if status != 1 or message not in error or error.count("\n") != 1:
        sys.exit(f"{row}: {status} {error}")
