#!/usr/bin/python3
"""Takes workbooks through open and save and looks at every byte, record and cell that comes back.

Usage: corpus.py CORPUS_ROUNDTRIP FOLDER_WITH_SHEETJS FOLDER_OF_FILES ...
The workbooks: those of other programs in the folders, and some that the engine makes itself from a listing. Without a
change a file must come back as it was. After changes every other stream and every record that does not have to change
must be as it was, in order, and other programs (xlrd, LibreOffice, Gnumeric, SheetJS) must see the changed cells changed
and nothing else. Programs that are not installed are named; ends with 77 when nothing can be checked.
"""
import glob
import os
import subprocess
import sys
import tempfile

sys.dont_write_bytecode = True
HERE = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, os.path.join(HERE, "..", "..", "readers"))
import readers
import biff
import changes as editing
import olefile

faults = []


def complain(case, what, expected, found):
    faults.append("%s: %s: expected %.300r, found %.300r" % (case, what, expected, found))


class Case:
    """One workbook and its two offspring."""

    def __init__(self, name, work):
        self.name = name
        self.old, self.same, self.new = (os.path.join(work, kind + "-" + name + ".xls") for kind in ("old", "same", "new"))

    def run(self, tool, source, target, changes):
        listing = self.new + ".txt"
        with open(listing, "w", encoding="utf-8") as out:
            out.writelines("%d %d %d %s\n" % (*where, what) for where, what in changes.items())
        done = subprocess.run([tool, source, listing, self.same, target], stderr=subprocess.PIPE, text=True)
        if done.returncode:
            complain(self.name, "open and save", "no error", done.stderr)
        return done.returncode == 0

    def made(self, tool, cells):
        self.content = cells
        settings = {(0, 0, 0): "rPíseň č. 1", (0, 0, 2): "w3000", (0, 2, 1): "a"}
        return all(self.run(tool, source, self.old, changes)
                   for source, changes in (("new", cells), (self.old, settings))) and self.changed(tool)

    def copied(self, tool, path):
        self.content = {}
        with open(path, "rb") as source, open(self.old, "wb") as copy:
            copy.write(source.read())
        return self.changed(tool)

    def changed(self, tool):
        # Of the old version, whose records all become others, only the cells are compared.
        self.is_old_version = not olefile.OleFileIO(self.old).exists("Workbook")
        self.before = None if self.is_old_version else biff.Book(readers.workbook_stream(self.old))
        self.changes = editing.choose(self.before) if self.before else editing.OLD_VERSION
        if not self.run(tool, self.old, self.new, self.changes):
            return False
        self.after = biff.Book(readers.workbook_stream(self.new))
        return True

    def formulas(self, sheet):
        return {cell.key for cell in (self.before or self.after).worksheets[sheet].cells if cell.kind == biff.FORMULA}


def streams(path):
    """Everything of the container but the workbook stream: names, contents, classes and times."""
    with olefile.OleFileIO(path) as container:
        found = {}
        for name in container.listdir(streams=True, storages=True):
            entry = container.direntries[container._find(name)]
            data = container.openstream(name).read() if entry.entry_type == olefile.STGTY_STREAM and name != ["Workbook"] else None
            found["/".join(name)] = (entry.entry_type, entry.clsid, entry.dwUserFlags, entry.createTime, entry.modifyTime, data)
        return found


def check_bytes(case):
    with open(case.old, "rb") as old, open(case.same, "rb") as same:
        if old.read() != same.read():
            complain(case.name, "saved without a change", "the same bytes", "others")
    for fault in biff.offset_faults(case.after, case.before):
        complain(case.name, *fault)
    if case.is_old_version:
        return
    old, new = streams(case.old), streams(case.new)
    for name in sorted(set(old) | set(new)):
        if old.get(name) != new.get(name):
            complain(case.name, "stream " + name, old.get(name), new.get(name))
    for fault in editing.compare(case.before, case.after, case.changes):
        complain(case.name, *fault)


def check_reading(case, reader, old, new, calculates):
    """What a program reads from the changed file is what it reads from the file as it was, and the changes."""
    if len(old) != len(new):
        return complain(case.name, reader + ", sheets", len(old), len(new))
    for number, (before, after) in enumerate(zip(old, new)):
        formulas = case.formulas(number) if calculates else set()
        for key in sorted(set(before) | set(after)):
            if (number, *key) in case.changes or before.get(key) == after.get(key):
                continue
            if key not in formulas or (key in before) != (key in after):
                complain(case.name, "%s, sheet %d, cell %d,%d" % (reader, number, *key), before.get(key), after.get(key))
    for wanted, sheets in ((case.content, old), (case.changes, new)):
        for (number, *key), what in wanted.items():
            found = sheets[number].get(tuple(key))
            if not readers.is_value(found, what):
                complain(case.name, "%s, sheet %d, cell %d,%d set" % (reader, number, *key), what, found)
    held = sum(what not in ("t", "-") for what in case.content.values())
    if case.content and held != len(old[0]):
        complain(case.name, reader + ", cells", held, len(old[0]))


def main():
    tool, modules, *folders = sys.argv[1:]
    with tempfile.TemporaryDirectory() as work:
        cases = []
        for path in sorted(path for folder in folders for path in glob.glob(os.path.join(folder, "*.xls"))):
            case = Case(os.path.basename(path)[:-4], work)
            cases += [case] if case.copied(tool, path) else []
        for name, cells in editing.samples():
            case = Case(name, work)
            cases += [case] if case.made(tool, cells) else []
        for case in cases:
            check_bytes(case)
        print("%d files, %d cells changed, %d records that must not change" % (
            len(cases), sum(len(case.changes) for case in cases),
            sum(len(s.frame) for case in cases if case.before for s in case.before.sheets)))
        for name, calculates, tables in readers.read_with_all([path for c in cases for path in (c.old, c.new)], work, modules):
            for case in cases:
                check_reading(case, name, tables[case.old], tables[case.new], calculates)
    print("\n".join(faults[:60]) or "no faults")
    return 1 if faults or not cases else 0


if __name__ == "__main__":
    sys.exit(main())
