#!/usr/bin/python3
"""Writes biff5.xls, record by record: no program at hand writes that version.

Usage: make_biff5.py TARGET_FOLDER
The song sheet of the other fixtures in code page 1250, with a chart sheet before the second worksheet. Needs xlwt for
the container alone.
"""
import os
import struct
import sys

from xlwt.CompoundDoc import XlsDoc

SYLLABLES = ["Koč", "ka", "le", "ze", "dí", "rou,"]
TONES = ["c1", "d1", "e1", "f1", "g1", "g1"]
NUMBERS = [0.5, -1.25, 1e300, 1234567.891, 0.1, -536870912.0]
TRUTHS = [True, False, True, False, True, True]
GENERAL, BOLD_YELLOW = 15, 16


def record(kind, *parts):
    data = b"".join(parts)
    return struct.pack("<HH", kind, len(data)) + data


def words(*values):
    return struct.pack("<%dH" % len(values), *values)


def short(text):
    raw = text.encode("cp1250")
    return bytes([len(raw)]) + raw


def long(text):
    raw = text.encode("cp1250")
    return words(len(raw)) + raw


def bof(substream):
    return record(0x809, words(0x0500, substream, 0x0DBB, 0x07CC))


def font(weight, name="Arial"):
    return record(0x31, words(200, 0, 0x7FFF, weight, 0), bytes([0, 0, 238, 0]), short(name))


def xf(font_index, number_format, is_style, used, area=0x20C0, border=0):
    return record(0xE0, words(font_index, number_format, 0xFFF5 if is_style else 0x0001), bytes([0x20, used]),
                  struct.pack("<II", area, border))


def cell(kind, row, column, contents, xf_index=GENERAL):
    return record(kind, words(row, column, xf_index), contents)


def label(row, column, text, xf_index=GENERAL):
    return cell(0x204, row, column, long(text), xf_index)


def formula(row, column, result, tokens, xf_index=GENERAL):
    if not isinstance(result, bytes):
        result = struct.pack("<d", result)
    return cell(0x06, row, column, result + words(0) + bytes(4) + words(len(tokens)) + tokens, xf_index)


def reference(row, column):
    return b"\x44" + words(0xC000 | row) + bytes([column])


TEXT_RESULT = bytes(6) + b"\xFF\xFF"


def song_rows():
    out = b""
    for row, syllable in enumerate(SYLLABLES):
        out += record(0x208, words(row, 0, 6, 255, 0, 0, 0x0100, GENERAL))
    for row, syllable in enumerate(SYLLABLES):
        out += label(row, 0, syllable) + label(row, 1, TONES[row])
        out += cell(0x27E, row, 2, struct.pack("<I", (row + 1) << 2 | 2))
        out += cell(0x203, row, 3, struct.pack("<d", NUMBERS[row]))
        out += cell(0x205, row, 4, bytes([TRUTHS[row], 0]))
    # =SUM(C1:C6); =A1&"ř"; =IF(C1>0;A2;"ne"); =Jméno (a defined name, which is not kept)
    out += formula(9, 0, 21.0, b"\x25" + words(0xC000, 0xC005) + b"\x02\x02" + b"\x22\x01" + words(4), BOLD_YELLOW)
    out += formula(9, 1, TEXT_RESULT, reference(0, 0) + b"\x17" + short("ř") + b"\x08")
    out += record(0x207, long("Kočř"))
    condition = reference(0, 2) + b"\x1E" + words(0) + b"\x0D"
    yes, no = reference(1, 0), b"\x17" + short("ne")
    jump = b"\x19\x08"
    branch = b"\x19\x02" + words(len(yes) + 4) + yes + jump + words(len(no) + 7) + no + jump + words(3)
    out += formula(9, 2, TEXT_RESULT, condition + branch + b"\x42\x03" + words(1))
    out += record(0x207, long("ka"))
    out += formula(9, 3, 5.0, b"\x23" + words(1) + bytes(12))
    out += record(0xD6, words(13, 0, GENERAL), long("netučně"), b"\x01", bytes([2, 1]))
    out += record(0xBD, words(14, 0, GENERAL), struct.pack("<I", 7 << 2 | 2), words(GENERAL),
                  struct.pack("<I", 8 << 2 | 2), words(1))
    out += record(0xBE, words(15, 0, BOLD_YELLOW, BOLD_YELLOW, 1))
    return out


def sheet(cells, rows, selection):
    out = bof(0x10) + record(0x20B, bytes(12)) + record(0x14, short("&CPíseň")) + record(0x15)
    out += record(0x1B, words(1, 5)) + record(0x55, words(8))
    out += record(0x7D, words(0, 0, 6000, GENERAL, 2, 0)) + record(0x7D, words(3, 3, 2500, BOLD_YELLOW, 2, 0))
    out += record(0x200, words(0, rows, 0, 6, 0)) + cells
    out += record(0x23E, words(0x06B6 if selection else 0x00B6, 0, 0), bytes(4))
    out += record(0x1D, b"\x03", words(*(selection or (0, 0)), 0, 1, 0, 0), b"\x00\x00") + record(0x0A)
    return out


def globals_head():
    out = bof(5) + record(0x42, words(1250)) + record(0x3D, words(0, 0, 0x4000, 0x2500, 0x38, 2, 2, 1, 600))
    out += record(0x22, words(0)) + font(400) * 3 + font(400, "Písmo") + font(700)
    out += record(0x41E, words(164), short('0.00" Kč"'))
    out += xf(0, 0, True, 0) + xf(0, 0, True, 0xF4) * 14 + xf(0, 0, False, 0)
    # bold, own number format, yellow pattern, thin line on the left and a thick one below
    out += xf(5, 164, False, 0xFC, 13 | 65 << 7 | 1 << 16 | 5 << 22 | 10 << 25, 1 << 3 | 12 << 16)
    return out + record(0x293, b"\x00\x80\x00\xFF") + record(0x293, words(0x0010), short("Nápěv"))


def main():
    names = [("Píseň", 0), ("Graf", 2), ("Druhý", 0)]
    bodies = [sheet(song_rows(), 16, (4, 1)), bof(0x20) + record(0x203, bytes(14)) + record(0x0A),
              sheet(label(0, 0, "druhý list"), 1, None)]
    head = globals_head()
    position = len(head) + sum(len(record(0x85, bytes(6), short(name))) for name, _ in names) + 4
    for (name, kind), body in zip(names, bodies):
        head += record(0x85, struct.pack("<IBB", position, 0, kind), short(name))
        position += len(body)
    path = os.path.join(sys.argv[1], "biff5.xls")
    XlsDoc().save(path, head + record(0x0A) + b"".join(bodies))
    with open(path, "r+b") as file:
        data = file.read()
        old = "Workbook".encode("utf-16-le") + bytes(48) + words(18)
        new = "Book".encode("utf-16-le") + bytes(56) + words(10)
        assert data.count(old) == 1
        file.seek(0)
        file.write(data.replace(old, new))


if __name__ == "__main__":
    main()
