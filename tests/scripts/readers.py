# SPDX-License-Identifier: MIT
"""Reads the output of the program with independent readers.

readers.py CORVEX PROJECT FOLDER

Builds the project into FOLDER. Reads the stored values of the build with PyQt and compares them with the output
of `corvex config-dump`. Reads the exported tables with Python's csv module.
"""
import csv
import importlib
import io
import json
import math
import subprocess
import sys

corvex, project, folder = sys.argv[1:]


def run(*arguments):
    return subprocess.run((corvex,) + arguments, check=True, capture_output=True).stdout.decode()


def import_qt():
    for package in ("PyQt5", "PyQt6"):
        try:
            gui = importlib.import_module(package + ".QtGui")
            return importlib.import_module(package + ".QtCore"), gui
        except ImportError:
            continue
    print("skipped: neither PyQt5 nor PyQt6 is installed")
    sys.exit()


core, gui = import_qt()


def read_stored(path):
    file = core.QFile(path)
    assert file.open(core.QIODevice.OpenModeFlag.ReadOnly), path
    stream = core.QDataStream(file)
    stream.setVersion(core.QDataStream.Version.Qt_4_7)
    value = stream.readQVariant()
    assert stream.status() == core.QDataStream.Status.Ok and stream.atEnd(), path
    return value


def differences(path, stored, shown):
    if isinstance(stored, dict):
        if not isinstance(shown, dict) or sorted(stored) != sorted(shown):
            yield f"{path}: {sorted(stored)} is shown as {shown}"
            return
        for key in stored:
            yield from differences(f"{path}/{key}", stored[key], shown[key])
        return
    if isinstance(stored, gui.QColor):
        stored = stored.name(gui.QColor.NameFormat.HexArgb).upper()
    if isinstance(stored, float) and isinstance(shown, (int, float)):
        same = math.isclose(stored, shown, rel_tol=1e-6)
    else:
        same = type(stored) is type(shown) and stored == shown
    if not same:
        yield f"{path}: {stored!r} is shown as {shown!r}"


run("build", project, "-o", folder)
problems = []
values = 0
for name in ("config", "canConfig", "bacConfig"):
    file = f"{folder}/project/{name}.kdrc"
    stored = read_stored(file)
    values += len(stored)
    problems += differences(name, stored, json.loads(run("config-dump", "--json", file)))
assert values >= 11, "keys are missing"

for kind, separator in (("variables", ","), ("modbus", ",")):
    table = list(csv.DictReader(io.StringIO(run("export", kind, project), newline=""), strict=True))
    assert table, kind
    problems += [f"{kind}: {row}" for row in table if None in row or None in row.values()]

print("\n".join(problems) or "all readers agree")
sys.exit(1 if problems else 0)
