#!/usr/bin/python3
"""Takes files of other programs through open and save and looks at every byte, record and cell that comes back.

Usage: corpus.py CORPUS_ROUNDTRIP FOLDER_OF_FILES FOLDER_WITH_SHEETJS
Without a change the file must come back as it was. After changes every other stream and every record that does not
have to change must be as it was, in order, and other programs (xlrd, LibreOffice, Gnumeric, SheetJS) must see the
changed cells changed and nothing else. Programs that are not installed are named; ends with 77 when nothing can be checked.
"""
import concurrent.futures
import fnmatch
import glob
import os
import subprocess
import sys
import tempfile

try:
    import olefile
    import xlrd
except ImportError as missing:
    print("SKIPPED: %s is not installed" % missing.name)
    sys.exit(77)

sys.dont_write_bytecode = True
HERE = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, os.path.join(HERE, "..", "song", "xls"))
import biff
import changes as editing
import foreign_readers
import readers

NAMES = ("xlrd", "LibreOffice", "Gnumeric", "SheetJS")
faults = []


def complain(case, what, expected, found):
    faults.append("%s: %s: expected %.300r, found %.300r" % (case, what, expected, found))


class Case:
    """One file of the corpus and its two offspring."""

    def __init__(self, path, work):
        self.name = os.path.basename(path)[:-4]
        self.old, self.same, self.new = (os.path.join(work, kind + "-" + self.name + ".xls") for kind in ("old", "same", "new"))
        with open(path, "rb") as source, open(self.old, "wb") as copy:
            copy.write(source.read())
        self.before = biff.Book(readers.workbook_stream(self.old))
        self.changes = editing.choose(self.before)

    def run(self, tool):
        listing = self.new + ".txt"
        with open(listing, "w", encoding="utf-8") as out:
            for where, what in self.changes.items():
                out.write("%d %d %d %s\n" % (*where, what))
        done = subprocess.run([tool, self.old, listing, self.same, self.new], stderr=subprocess.PIPE, text=True)
        if done.returncode:
            complain(self.name, "open and save", "no error", done.stderr)
            return False
        self.after = biff.Book(readers.workbook_stream(self.new))
        return True

    def formulas(self, sheet):
        return {cell.key for cell in self.before.worksheets[sheet].cells if cell.kind == biff.FORMULA}


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
    old, new = streams(case.old), streams(case.new)
    for name in sorted(set(old) | set(new)):
        if old.get(name) != new.get(name):
            complain(case.name, "stream " + name, old.get(name), new.get(name))
    for what, expected, found in editing.compare(case.before, case.after, case.changes):
        complain(case.name, what, expected, found)
    check_offsets(case)


def check_offsets(case):
    """Sheet offsets, row blocks and the index of the shared strings; pairs that the file itself splits may stay so."""
    foreign_readers.faults.clear()
    foreign_readers.shared_string_starts(foreign_readers.records(readers.workbook_stream(case.old)))
    splits = len(foreign_readers.faults)
    foreign_readers.check_structure(case.new, case.old, olefile)
    for fault in foreign_readers.faults[splits:]:
        if splits and "surrogate" in fault:
            splits -= 1
        else:
            complain(case.name, "structure", "none", fault)


def same_value(value, what):
    if what[0] == "n":
        try:
            return abs(float(value) - float(what[1:])) < 1e-12
        except (TypeError, ValueError):
            return False
    return value == what[1:] if what[0] == "t" and what[1:] else value is None


def check_reading(case, reader, old, new, calculates):
    """What a program reads from the changed file is what it reads from the file as it was, and the changes."""
    if len(old) != len(new):
        complain(case.name, reader + ", sheets", len(old), len(new))
        return 0
    for number, (before, after) in enumerate(zip(old, new)):
        formulas = case.formulas(number) if calculates else set()
        for key in sorted(set(before) | set(after)):
            if (number, *key) in case.changes or before.get(key) == after.get(key):
                continue
            if key not in formulas or (key in before) != (key in after):
                complain(case.name, "%s, sheet %d, cell %d,%d" % (reader, number, *key), before.get(key), after.get(key))
    for (number, *key), what in case.changes.items():
        if not same_value(new[number].get(tuple(key)), what):
            complain(case.name, "%s, sheet %d, changed cell %d,%d" % (reader, number, *key), what, new[number].get(tuple(key)))
    return sum(map(len, new))


LOOKS = ("merged_cells", "cell_note_map", "rich_text_runlist_map", "colinfo_map", "hyperlink_list", "visibility", "has_pane_record",
         "horz_split_pos", "vert_split_pos", "header_str" if hasattr(xlrd.sheet.Sheet, "header_str") else "name")


def looks(book):
    """What xlrd knows besides values: formats, names, merged cells, comments, frozen panes ..."""
    plain = lambda thing: {k: v for k, v in vars(thing).items() if not isinstance(v, xlrd.book.Book) and k != "book"}
    deep = lambda thing: repr(plain(thing)) if hasattr(thing, "__dict__") else repr(thing)
    out = {"names": [deep(name.raw_formula) + name.name for name in book.name_obj_list], "formats": len(book.xf_list),
           "fonts": len(book.font_list)}
    for number, sheet in enumerate(book.sheets()):
        for attribute in LOOKS:
            value = getattr(sheet, attribute)
            if isinstance(value, dict):
                value = {key: deep(item) for key, item in value.items()}
            out["%d %s" % (number, attribute)] = value if isinstance(value, (dict, str, int)) else [deep(item) for item in value]
        out["%d formats" % number] = {(r, c): sheet.cell_xf_index(r, c) for r in range(sheet.nrows) for c in range(sheet.row_len(r))}
    return out


def check_looks(case):
    old = looks(readers.book(case.old, formatting_info=True))
    new = looks(xlrd.open_workbook(case.new, formatting_info=True))
    for what, value in old.items():
        found = new.get(what)
        if isinstance(value, dict):
            own = {key[1:] for key in case.changes if what.startswith("%d " % key[0])}
            value = {key: item for key, item in value.items() if key not in own}
            found = {key: item for key, item in found.items() if key not in own and (what.endswith("list_map") or key in value)}
        if value != found:
            complain(case.name, "xlrd, " + what, value, found)


def report(found, known):
    """1 when there are faults that are not known, or known ones that are gone."""
    with open(known, encoding="utf-8") as lines:
        patterns = [line.rstrip("\n") for line in lines if line.strip() and line[0] != "#"]
    fresh = [fault for fault in found if not any(fnmatch.fnmatchcase(fault, pattern) for pattern in patterns)]
    gone = [pattern for pattern in patterns if not fnmatch.filter(found, pattern)]
    print("%d known faults" % (len(found) - len(fresh)))
    print("\n".join(fresh[:60]) or "no others")
    for pattern in gone:
        print("no longer seen, to be taken out of known.txt: " + pattern)
    return 1 if fresh or gone else 0


def check_readers(cases, modules, work):
    """All programs at once, each over all files."""
    paths = [path for case in cases for path in (case.old, case.new)]
    found = {name: (read, calculates) for name, read, calculates in readers.installed(modules)}
    with concurrent.futures.ThreadPoolExecutor() as pool:
        running = {name: pool.submit(read, paths, work) for name, (read, _) in found.items()}
        for name in NAMES:
            if name not in found:
                print("SKIPPED: %s is not installed" % name)
                continue
            tables = running[name].result()
            cells = sum(check_reading(case, name, tables[case.old], tables[case.new], found[name][1]) for case in cases)
            print("%s: %d cells" % (name, cells))


def main():
    tool, folder, modules = sys.argv[1:4]
    with tempfile.TemporaryDirectory() as work:
        cases = [Case(path, work) for path in sorted(glob.glob(os.path.join(folder, "*.xls")))]
        cases = [case for case in cases if case.run(tool)]
        for case in cases:
            check_bytes(case)
            check_looks(case)
        print("%d files, %d cells changed, %d records that must not change" % (
            len(cases), sum(len(case.changes) for case in cases), sum(len(s.frame) for case in cases for s in case.before.sheets)))
        check_readers(cases, modules, work)
    return report(faults, os.path.join(HERE, "known.txt")) or not cases


if __name__ == "__main__":
    sys.exit(main())
