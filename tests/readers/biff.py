"""A workbook stream (BIFF8, [MS-XLS]) as records and cells: the checker's own reading, apart from the engine."""
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
        self.sheets, self.tail, self.strings, self.formats = [], b"", [], []
        at, depth, table = 0, 0, []
        while at + 4 <= len(stream):
            kind, size = struct.unpack_from("<HH", stream, at)
            if depth == 0 and kind != BOF:
                break
            data = stream[at + 4:at + 4 + size]
            if depth == 0:
                self.sheets.append(Sheet())
                self.sheets[-1].at = at
            depth += (kind == BOF) - (kind == EOF)
            if kind == SST or (table and table[-1].at + 4 + len(table[-1].data) == at and kind == CONTINUE):
                table.append(Record(at, kind, data))
                if kind == SST:
                    self.sheets[0].frame.append("shared strings")
            else:
                self._take(self.sheets[-1], Record(at, kind, data), depth)
            at += 4 + size
        self.tail = stream[at:]
        self.counts, self.strings = shared_strings([record.data for record in table])
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

    def __init__(self, chunks):
        self.chunks, self.at = list(chunks), 0

    def bytes(self, count):
        out = b""
        while len(out) < count:
            if self.at == len(self.chunks[0]):
                self.next_chunk()
            step = min(count - len(out), len(self.chunks[0]) - self.at)
            out += self.chunks[0][self.at:self.at + step]
            self.at += step
        return out

    def next_chunk(self):
        self.chunks.pop(0)
        self.at = 0

    def text(self, length, wide):
        """The width of the characters is said anew at the head of each Continue record."""
        out = b""
        while length:
            if self.at == len(self.chunks[0]):
                self.next_chunk()
                wide = self.bytes(1)[0] & 1
            step = min(length, (len(self.chunks[0]) - self.at) // (1 + wide))
            if step == 0:
                raise ValueError("half a character at the end of a record")
            piece = self.bytes(step * (1 + wide))
            out += piece if wide else piece.decode("latin-1").encode("utf-16-le")
            length -= step
        return out.decode("utf-16-le", "surrogatepass")


def shared_strings(chunks):
    """((references, strings) as promised, [(text, formatting runs, phonetic data)])."""
    if not chunks:
        return (0, 0), []
    source, out = Chunks(chunks), []
    counts = struct.unpack("<II", source.bytes(8))
    for _ in range(counts[1]):
        length, flags = struct.unpack("<HB", source.bytes(3))
        runs = struct.unpack("<H", source.bytes(2))[0] if flags & 8 else 0
        phonetic = struct.unpack("<I", source.bytes(4))[0] if flags & 4 else 0
        out.append((source.text(length, flags & 1), source.bytes(4 * runs), source.bytes(phonetic)))
    return counts, out
