#!/usr/bin/env python3
"""The check's own test: every include listed here must be denied by check.py, and must not compile.

usage: breaches.py SOURCE_DIR COMPILE_COMMANDS
The compiler is asked with the very command that the build compiles the file with. So that a failure means what it says,
each file must also be able to include its own header.
"""
import concurrent.futures
import json
import os
import pathlib
import re
import shlex
import subprocess
import sys

import check

# file, a header that it may include, a header that it must not
BREACHES = [
    ("song/SongSheet.cpp", "song/SongSheet.h", "board/TrebleBoard.h"),
    ("board/TrebleBoard.cpp", "board/TrebleBoard.h", "song/Grip.h"),
    ("board/BassBoard.cpp", "board/BassBoard.h", "spreadsheet/SpreadsheetApplication.h"),
    ("spreadsheet/embedded/Session.cpp", "spreadsheet/embedded/Session.h", "spreadsheet/libreoffice/Profile.h"),
    ("spreadsheet/libreoffice/Profile.cpp", "spreadsheet/libreoffice/Profile.h", "spreadsheet/embedded/Session.h"),
    ("spreadsheet/xls/Workbook.cpp", "spreadsheet/xls/Workbook.h", "theory/Key.h"),
    ("spreadsheet/xls/Workbook.cpp", "spreadsheet/xls/Workbook.h", "platform/RuntimeError.h"),
    ("platform/HomeDrive.cpp", "platform/HomeDrive.h", "spreadsheet/xls/Workbook.h"),
    ("theory/Tonavox12.cpp", "theory/Tonavox12.h", "spreadsheet/xls/Workbook.h"),
    ("theory/Tonavox12.cpp", "theory/Tonavox12.h", "platform/HomeDrive.h"),
    ("conversion/Konverze.cpp", "conversion/Konverze.h", "aids/ZmenaCesty.h"),
    ("conversion/Konverze.cpp", "conversion/Konverze.h", "spreadsheet/embedded/EmbeddedApplication.h"),
    ("aids/ui/FrmNastaveni.cpp", "aids/ui/FrmNastaveni.h", "conversion/Konverze.h"),
    ("playing/stepping/Navigace.cpp", "playing/stepping/Navigace.h", "playing/recording/ZapisHmatu.h"),
    ("playing/recording/ZapisHmatu.cpp", "playing/recording/ZapisHmatu.h", "playing/song/ZivotPisne.h"),
    ("playing/song/ZivotPisne.cpp", "playing/song/ZivotPisne.h", "app/Program.h"),
    ("playing/stepping/Navigace.cpp", "playing/stepping/Navigace.h", "song/ui/PasWidget.h"),
]


def command_for(entry, output):
    """The compiler's call for this file, reading the source from standard input and stopping behind the preprocessor."""
    words, skip, command = shlex.split(entry["command"]), 0, []
    for word in words:
        if skip:
            skip -= 1
        elif word in ("-o", "-c", "-include", "-Xclang"):
            skip = 1
        else:
            command.append(word)
    return [*command, "-E", "-x", "c++", "-", "-o", output]


def compiles(entry, header):
    result = subprocess.run(command_for(entry, os.devnull), input=f'#include "{header}"\n', text=True, capture_output=True,
                            cwd=entry["directory"])
    if result.returncode and "No such file" not in result.stderr:
        sys.exit(f"{header}: the compiler fails for another reason:\n{result.stderr}")
    return result.returncode == 0


def faults(root, commands, breach):
    path, allowed, forbidden = breach
    if not (root / forbidden).exists():
        yield f"{forbidden} is not there any more: mend this list"
    if check.why_denied(path, allowed):
        yield f"{path} may not even include {allowed}"
    if not check.why_denied(path, forbidden):
        yield f"{path} includes {forbidden}, and check.py finds nothing"
    entry = commands[str((root / path).resolve())]
    if not compiles(entry, allowed):
        yield f"{path} does not compile with {allowed}"
    if compiles(entry, forbidden):
        yield f"{path} compiles with {forbidden}"


def sources(entry):
    """What the call compiles: one file, or several that are compiled as one."""
    path = pathlib.Path(entry["file"])
    if path.parent.name != "Unity":
        return [path]
    return [pathlib.Path(name) for name in re.findall(r'#include "(.+\.cpp)"', path.read_text(encoding="utf-8"))]


def main():
    root = pathlib.Path(sys.argv[1])
    commands = {str(path.resolve()): entry
                for entry in json.loads(pathlib.Path(sys.argv[2]).read_text(encoding="utf-8")) for path in sources(entry)}
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        found = [fault for rows in pool.map(lambda breach: list(faults(root, commands, breach)), BREACHES) for fault in rows]
    print("\n".join(found))
    print(f"{len(BREACHES)} breaches tried, {len(found)} faults")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
