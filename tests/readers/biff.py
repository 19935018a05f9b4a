"""A workbook stream (BIFF8, [MS-XLS]) as records and cells, and whether its offsets hold: the checkers' own reading, apart
from the engine."""
import struct
from collections import namedtuple

Record = namedtuple("Record", "at kind data")
Cell = namedtuple("Cell", "key kind format body tail run")  # run: place within a record of several cells and its length

BOF, EOF, BOUNDSHEET, XF = 0x809, 0x0A, 0x85, 0xE0
FORMULA, MULRK, MULBLANK, RSTRING, LABELSST = 0x06, 0xBD, 0xBE, 0xD6, 0xFD
BLANK, NUMBER, LABEL, BOOLERR, RK = 0x201, 0x203, 0x204, 0x205, 0x27E
CELLS = {FORMULA, MULRK, MULBLANK, RSTRING, LABELSST, BLANK, NUMBER, LABEL, BOOLERR, RK}
STRING, SHRFMLA, ARRAY, TABLE, CONTINUE = 0x207, 0x4BC, 0x221, 0x236, 0x3C
FOLLOWERS = {STRING, SHRFMLA, ARRAY, TABLE, CONTINUE}
ROW, DBCELL, INDEX, DIMENSIONS, UNCALCED, COLINFO = 0x208, 0xD7, 0x20B, 0x200, 0x5E, 0x7D
SST, EXTSST = 0xFC, 0xFF


class Sheet:
    """One outermost substream. `frame` holds what no change of a cell may touch, in order; "cells" stands for a
    run of rows and cells."""

    def __init__(self):
        self.at, self.frame, self.cells, self.rows, self.columns = 0, [], [], {}, {}
        self.dimensions, self.uncalced, self.name, self.is_worksheet = None, False, None, False

    def by_key(self):
        return {cell.key: cell for cell in self.cells}  # of duplicates the later counts


class Book:
    def __init__(self, stream):
        self.sheets, self.tail, self.formats, self.records = [], b"", [], []
        at, depth, table = 0, 0, []
        while at + 4 <= len(stream):
            kind, size = struct.unpack_from("<HH", stream, at)
            if depth == 0 and kind != BOF:
                break
            data = stream[at + 4:at + 4 + size]
            kind = FORMULA if kind in (0x206, 0x406) else kind  # numbers of older versions, kept by some writers
            self.records.append(Record(at, kind, data))
            if depth == 0:
                self.sheets.append(Sheet())
                self.sheets[-1].at = at
            depth += (kind == BOF) - (kind == EOF)
            if kind == SST or (table and table[-1].at + 4 + len(table[-1].data) == at and kind == CONTINUE):
                table.append(self.records[-1])
                if kind == SST:
                    self.sheets[0].frame.append("shared strings")
            else:
                self._take(self.sheets[-1], self.records[-1], depth)
            at += 4 + size
        self.tail = stream[at:]
        self._take_strings(table)
        self._name_sheets()

    def _take(self, sheet, record, depth):
        kind, data, frame = record.kind, record.data, sheet.frame
        in_cells = bool(frame) and frame[-1] == "cells" and depth == 1
        if depth == 1 and (kind in CELLS or kind in (ROW, DBCELL) or (in_cells and kind in FOLLOWERS)):
            if not in_cells:
                frame.append("cells")
            take_cells(sheet, kind, data)
        elif depth == 1 and kind == DIMENSIONS:
            sheet.dimensions = struct.unpack_from("<IIHH", data)
            frame.append("dimensions")
        elif depth == 1 and kind == UNCALCED:
            sheet.uncalced = True
        elif depth == 1 and kind in (INDEX, EXTSST):
            frame.append("offsets %x" % kind)
        else:
            frame.append((kind, data))
            if depth == 1 and kind == COLINFO:
                first, last, _, xf = struct.unpack_from("<HHHH", data)
                sheet.columns.update((column, xf) for column in range(first, last + 1))
            if kind == XF:
                self.formats.append(struct.unpack_from("<HHH", data)[2])

    def _name_sheets(self):
        """Replaces the offsets of BoundSheet records by the number of the substream they tell of."""
        frame = self.sheets[0].frame
        numbers = {sheet.at: number for number, sheet in enumerate(self.sheets)}
        for i, record in enumerate(frame):
            if record[0] == BOUNDSHEET:
                number = numbers.get(struct.unpack_from("<I", record[1])[0])
                frame[i] = (BOUNDSHEET, number, record[1][4:])
                if number is not None:
                    self.sheets[number].is_worksheet = record[1][5] == 0
        self.worksheets = [self.sheets[r[1]] for r in frame if r[0] == BOUNDSHEET and self.sheets[r[1]].is_worksheet]

    def _take_strings(self, table):
        """`counts`: references and texts as promised; `strings`: (text, formatting runs, phonetic data); `starts`: where."""
        self.counts, self.strings, self.starts, self.split_pairs = (0, 0), [], [], 0
        if not table:
            return
        source = Chunks(table)
        self.counts = struct.unpack("<II", source.bytes(8))
        for _ in range(self.counts[1]):
            self.starts.append(source.place())
            length, flags = struct.unpack("<HB", source.bytes(3))
            runs = struct.unpack("<H", source.bytes(2))[0] if flags & 8 else 0
            phonetic = struct.unpack("<I", source.bytes(4))[0] if flags & 4 else 0
            self.strings.append((source.text(length, flags & 1), source.bytes(4 * runs), source.bytes(phonetic)))
        self.split_pairs = source.split_pairs

    def default_format(self):
        """The first format that is of cells and not of a style."""
        return next((i for i, flags in enumerate(self.formats) if not flags & 4), 15)

    def value(self, cell):
        """The cell's contents as the listing of changes writes them; None for what changes never leave behind."""
        if cell is None or cell.kind == BLANK:
            return "-"
        if cell.kind == NUMBER:
            return struct.unpack("<d", cell.body)[0]
        if cell.kind == RK:
            return rk_number(struct.unpack("<I", cell.body)[0])
        if cell.kind == LABELSST:
            return "t" + self.strings[struct.unpack("<I", cell.body)[0]][0]
        if cell.kind in (LABEL, RSTRING):
            length, flags = struct.unpack_from("<HB", cell.body)
            width = 2 if flags & 1 else 1
            return "t" + cell.body[3:3 + length * width].decode("utf-16-le" if width == 2 else "latin-1", "surrogatepass")
        return None


def rk_number(rk):
    if rk & 2:
        number = float((rk >> 2) - (1 << 30 if rk >> 31 else 0))
    else:
        number, = struct.unpack("<d", struct.pack("<Q", (rk & 0xFFFFFFFC) << 32))
    return number / 100 if rk & 1 else number


def take_cells(sheet, kind, data):
    if kind == ROW:
        sheet.rows[struct.unpack_from("<H", data)[0]] = data
    elif kind in FOLLOWERS:
        if sheet.cells:
            sheet.cells[-1] = sheet.cells[-1]._replace(tail=sheet.cells[-1].tail + ((kind, data),))
    elif kind in (MULRK, MULBLANK):
        row, first = struct.unpack_from("<HH", data)
        step = 6 if kind == MULRK else 2
        count = (len(data) - 6) // step
        for i in range(count):
            xf, = struct.unpack_from("<H", data, 4 + i * step)
            body = data[6 + i * step:4 + (i + 1) * step]
            sheet.cells.append(Cell((row, first + i), RK if kind == MULRK else BLANK, xf, body, (), (i, count)))
    elif kind != DBCELL:
        row, column, xf = struct.unpack_from("<HHH", data)
        sheet.cells.append(Cell((row, column), kind, xf, data[6:], (), (0, 1)))


class Chunks:
    """The bytes of a record and its Continue records."""

    def __init__(self, records):
        self.records, self.at, self.split_pairs = list(records), 0, 0

    def rest(self):
        return len(self.records[0].data) - self.at

    def place(self):
        """Offset in the stream, and within the record and its head."""
        if not self.rest():
            self.next_record()
        return self.records[0].at + 4 + self.at, 4 + self.at

    def bytes(self, count):
        out = b""
        while len(out) < count:
            if not self.rest():
                self.next_record()
            step = min(count - len(out), self.rest())
            out += self.records[0].data[self.at:self.at + step]
            self.at += step
        return out

    def next_record(self):
        self.records.pop(0)
        self.at = 0

    def text(self, length, wide):
        """The width of the characters is said anew at the head of each Continue record."""
        out = b""
        while length:
            if not self.rest():
                self.next_record()
                wide = self.bytes(1)[0] & 1
                self.split_pairs += bool(out) and out[-1] >> 2 == 0x36
            step = min(length, self.rest() // (1 + wide))
            if step == 0:
                raise ValueError("half a character at the end of a record")
            piece = self.bytes(step * (1 + wide))
            out += piece if wide else piece.decode("latin-1").encode("utf-16-le")
            length -= step
        return out.decode("utf-16-le", "surrogatepass")


def offset_faults(new, old=None):
    """Yields what is wrong with the offsets and counts of a book; row blocks that `old` has described in the same words and
    pairs of surrogates that it splits itself are its own."""
    kinds = {record.at: record.kind for record in new.records}
    foreign = {record.data for record in old.records if record.kind == DBCELL} if old else ()
    references = sum(record.kind == LABELSST for record in new.records)
    if new.strings and new.counts[0] != references:
        yield "references to shared strings", references, new.counts[0]
    if new.split_pairs > (old.split_pairs if old else 0):
        yield "surrogate pairs", "whole", "split"
    block = []
    for at, kind, data in new.records:
        if len(data) > 8224:
            yield "length of record at %d" % at, 8224, len(data)
        if kind == BOUNDSHEET and kinds.get(struct.unpack_from("<I", data)[0]) != BOF:
            yield "BoundSheet at %d" % at, "a Bof record", None
        if kind == INDEX and any(kinds.get(place) != DBCELL for place, in struct.iter_unpack("<I", data[16:])):
            yield "Index at %d" % at, "DbCell records", data[16:]
        if kind == EXTSST and len(data) > 2:
            entries = [entry[:2] for entry in struct.iter_unpack("<IHH", data[2:])]
            if entries != new.starts[::struct.unpack_from("<H", data)[0]]:
                yield "ExtSst", new.starts[:3], entries[:3]
        if kind == ROW or kind in CELLS:
            block.append((at, kind, struct.unpack_from("<H", data)[0]))
        if kind == DBCELL:
            wanted, found = block_places(at, data, block)
            if data not in foreign and wanted != found:
                yield "DbCell at %d" % at, wanted[:4], found[:4]
            block = []


def block_places(at, data, block):
    """Where a block's first Row record and each row's first cell stand, and where its DbCell record says so."""
    firsts = {}
    for place, kind, row in block:
        if kind in CELLS:
            firsts.setdefault(row, place)
    found = [at - struct.unpack_from("<I", data)[0]]
    place = found[0] + 20
    for delta, in struct.iter_unpack("<H", data[4:]):
        place += delta
        found.append(place & 0xFFFFFFFF)
    return [block[0][0] if block else None] + [firsts[row] for row in sorted(firsts)], found
