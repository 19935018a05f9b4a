"""Which cells of a workbook the checker changes, and what must have become of the records then."""
import struct

import biff

TEXT = "změněno ✓ 𝄞"
OLD_VERSION = {(0, 0, 0): "tŽluť 𝄞", (0, 16, 3): "n0.123", (0, 9, 3): "n5"}  # the last: a formula of a name, which is not kept
LONG = "dlouhý řádek 🎵 " * 700


def choose(book):
    """{(worksheet, row, column): "n" and a number, "t" and a text, or "-"}: one of each kind that the file offers."""
    first = book.worksheets[0]
    if not first.cells:
        return {(0, 0, 0): "n1", (0, 4, 2): "tprvní", (0, 40, 0): "n-1.25"}
    cells, changes = first.by_key(), {}
    ordered = [cells[key] for key in sorted(cells)]

    def put(cell, what):
        if cell and (0, *cell.key) not in changes:
            changes[(0, *cell.key)] = what

    def at(found, index):
        return found[index] if -len(found) <= index < len(found) else None

    texts = [c for c in ordered if c.kind in (biff.LABELSST, biff.LABEL, biff.RSTRING)]
    numbers = [c for c in ordered if c.kind in (biff.NUMBER, biff.RK) and c.run[1] == 1]
    numbers = [c for c in numbers if c.format == numbers[0].format]  # no dates: some programs show them as such
    inside = {kind: [c for c in ordered if c.kind == kind and 0 < c.run[0] < c.run[1] - 1] for kind in (biff.RK, biff.BLANK)}
    formulas = [c for c in ordered if c.kind == biff.FORMULA and not in_array(first, c)]
    for found, index, what in ((texts, 1, "t" + TEXT), (texts, 3, "-"), (texts, 4, "t" + LONG), (texts, -1, book.value(at(texts, 0))),
                               (numbers, 0, "n0.1"), (numbers, -1, "n7"), (numbers, len(numbers) // 2, "t"),  # the empty text
                               (inside[biff.RK], 0, "tuvnitř"), (inside[biff.RK], -1, "n0.1"), (inside[biff.RK], 2, "-"),
                               (inside[biff.BLANK], 0, "n5"), (inside[biff.BLANK], -1, "tuvnitř")):
        put(at(found, index), what)
    for cell in formulas[:1]:
        neighbour = (cell.key[0], cell.key[1] + 1)
        if neighbour not in cells or cells[neighbour].kind != biff.FORMULA:
            changes[(0, *neighbour)] = "n2.5"
    if len(formulas) > 1:
        put(formulas[-1], "tmísto vzorce")
    rows, columns = ordered[-1].key[0], max(c.key[1] for c in ordered if c.kind != biff.BLANK)
    changes.update({(0, rows + 3, 1): "tnový řádek", (0, rows + 40, 0): "n40", (0, 5, columns + 3): "tvedle",
                    (0, 0, columns + 1): "n-1.25"})
    if len(book.worksheets) > 1:
        changes.update({(1, 5, 3): "tdruhý list", (1, 0, 0): "n1"})
    return changes


def samples():
    """Names and cells of workbooks that the engine itself makes."""
    yield "empty", {}
    for rows in (1, 65, 300):
        yield "made%d" % rows, {(0, row, column): what for row in range(rows) for column, what in enumerate((
            "tPříliš " + "ř" * (row % 60), "tc1" if row % 3 else "tdis2", "n%d" % (row - 20), "n%r" % (row / 3),
            "b%d" % (row % 2), "n%r" % (1e300 / (row + 1)) if row % 5 else "e42", "-" if row % 4 else "t𝄞 nota 🎵",
            "n%r" % (row * 0.01) if row % 7 else "tlatin é" + "x" * row * 9))}


def in_array(sheet, cell):
    """Cells of array formulas over several cells can only be changed together."""
    for holder in sheet.cells:
        for kind, data in holder.tail:
            if kind in (biff.ARRAY, biff.TABLE):
                top, bottom, left, right = struct.unpack_from("<HHBB", data)
                if top <= cell.key[0] <= bottom and left <= cell.key[1] <= right:
                    return True
    return False


def wanted(what):
    """As Book.value tells it."""
    return float(what[1:]) if what[0] == "n" else what


def compare(old, new, changes):
    """Yields what differs from `old` although the changes do not ask for it."""
    if old.tail != new.tail:
        yield "bytes behind the last record", len(old.tail), len(new.tail)
    if len(old.sheets) != len(new.sheets):
        yield "substreams", len(old.sheets), len(new.sheets)
        return
    yield from compare_strings(old, new, changes)
    for number, (before, after) in enumerate(zip(old.sheets, new.sheets)):
        index = old.worksheets.index(before) if before in old.worksheets else None
        own = {key[1:]: what for key, what in changes.items() if key[0] == index}
        for fault in compare_sheet(old, new, before, after, own):
            yield ("substream %d: %s" % (number, fault[0]),) + fault[1:]


def compare_strings(old, new, changes):
    if new.strings[:len(old.strings)] != old.strings:
        yield "shared strings that were there", len(old.strings), len(new.strings)
    fresh = [text for text, runs, phonetic in new.strings[len(old.strings):]]
    known = {text for text, runs, phonetic in old.strings if not runs and not phonetic}
    asked = {what[1:] for what in changes.values() if what[0] == "t"} - known
    if sorted(fresh) != sorted(asked):
        yield "new shared strings", sorted(asked), sorted(fresh)


def compare_sheet(old, new, before, after, changes):
    yield from compare_frames(before, after, changes)
    has_formulas = any(cell.kind == biff.FORMULA for cell in before.cells)
    if after.uncalced != (before.uncalced or has_formulas):
        yield "mark for calculating anew", has_formulas, after.uncalced
    unchanged = [[c._replace(run=None) for c in sheet.cells if c.key not in changes] for sheet in (before, after)]
    if unchanged[0] != unchanged[1]:
        odd = [pair for pair in zip(*unchanged) if pair[0] != pair[1]][:1]
        yield "cells that nobody changed", len(unchanged[0]), (len(unchanged[1]), odd)
    keys = [[c.key for c in sheet.cells] for sheet in (before, after)]
    if keys[0] == sorted(keys[0]) and keys[1] != sorted(keys[1]):
        yield "order of cells", "sorted", "not"
    yield from compare_changed(old, new, before, after, changes)
    yield from compare_rows(before, after, changes)


def compare_frames(before, after, changes):
    frame = list(after.frame)
    for marker in ("cells", "shared strings"):  # the first cell of a sheet, the first shared string of a book
        if marker in frame and marker not in before.frame:
            frame.remove(marker)
    if frame != before.frame:
        at = next((i for i, (a, b) in enumerate(zip(before.frame, frame)) if a != b), min(len(frame), len(before.frame)))
        yield "record %d of the others" % at, before.frame[at:at + 1], frame[at:at + 1]


def compare_changed(old, new, before, after, changes):
    cells, theirs = before.by_key(), after.by_key()
    for key, what in changes.items():
        cell = theirs.get(key)
        if new.value(cell) != wanted(what):
            yield "cell %d,%d" % key, what, new.value(cell)
        if cell is None:
            if key in cells:
                yield "cell %d,%d that keeps its format" % key, "a Blank record", None
            continue
        if cell.format != format_of(old, before, cells.get(key), key):
            yield "format of cell %d,%d" % key, format_of(old, before, cells.get(key), key), cell.format
        if cell.tail:
            yield "behind cell %d,%d" % key, (), cell.tail


def format_of(book, sheet, cell, key):
    if cell:
        return cell.format
    row = sheet.rows.get(key[0])
    candidates = [struct.unpack_from("<H", row, 14)[0] & 0xFFF] if row and row[12] & 0x80 else []
    candidates.append(sheet.columns.get(key[1], book.default_format()))
    # A cell with the format of a style is damage to some programs.
    return next((xf for xf in candidates if xf < len(book.formats) and not book.formats[xf] & 4), book.default_format())


def compare_rows(before, after, changes):
    fresh = {key for key, what in changes.items() if what != "-"} - set(before.by_key())
    rows = {row for row, _ in fresh}
    for row in sorted(set(before.rows) | set(after.rows)):
        was, now = before.rows.get(row), after.rows.get(row)
        if was and now and row in rows:  # may reach further now
            was, now = was[:2] + was[6:], now[:2] + now[6:]
        if was != now and not (was is None and row in rows):
            yield "row %d" % row, was, now
    if before.dimensions and not fresh and before.dimensions != after.dimensions:
        yield "dimensions", before.dimensions, after.dimensions
    if after.dimensions:
        top, bottom, left, right = after.dimensions
        for row, column in fresh:
            if not (top <= row < bottom and left <= column < right):
                yield "dimensions", (row, column), after.dimensions
