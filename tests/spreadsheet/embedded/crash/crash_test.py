#!/usr/bin/python3
"""Cuts runs of the built-in spreadsheet off, lets the disk fail under them and runs two at a time.

usage: crash_test.py SONG_SESSION PART      PART: kill | fault | full | two

kill   ends the process before each system call that changes a file, in every step of a session and of its
       recovery. Each time the song must come back with everything that was acknowledged, and with nothing else
       but the step that was under way; an independent reader must read the same from the file afterwards.
fault  lets each such call of a save fail with ENOSPC, EIO, EACCES and EROFS: error 1004, the old file as it
       was, no temporary file left, and the song can be saved elsewhere.
full   the same on a file system that is really full.
two    two processes on one song.

Prints what was tried; 77 where the system allows no tracing
or no mounting.
"""
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

import xlrd

HELPER = sys.argv[1]
SKIPPED = 77

# What changes a file. Between two of these calls nothing on the disk changes.
CHANGING = """write pwrite64 writev pwritev fsync fdatasync rename renameat renameat2 unlink unlinkat ftruncate
truncate fchmod fchmodat chmod fchown fchownat chown mkdir mkdirat link linkat symlink symlinkat openat open
creat flock""".split()


class Room:
    """A song in a folder of its own, and the folder of the journals. It can be put back to an earlier state, in
    the same place: journals know their song by its path."""

    def __init__(self, root):
        self.root = pathlib.Path(root)
        self.folder = self.root / "písně"
        self.song = self.folder / "Kočka.xls"
        self.journals = self.root / "záznamy"
        self.kept = self.root.with_name(self.root.name + ".kept")
        self.folder.mkdir(parents=True)

    def keep(self):
        shutil.copytree(self.root, self.kept, symlinks=True)

    def put_back(self):
        shutil.rmtree(self.root)
        shutil.copytree(self.kept, self.root, symlinks=True)

    def files(self):
        return sorted(p.name for p in self.folder.iterdir())

    def pending(self):
        return [p.name for p in self.journals.iterdir() if p.is_file()] if self.journals.exists() else []


class Outcome:
    """What a run has told."""

    def __init__(self, text):
        lines = text.split("\n")[:-1]  # a line that is not whole was not told
        self.acks = [line.split(" ", 2)[2] for line in lines if line.startswith("ack ")]
        self.refused = [line.split(" ", 3) for line in lines if line.startswith("refused ")]
        self.asked = [line[6:] for line in lines if line.startswith("asked ")]
        self.trouble = [line[8:] for line in lines if line.startswith("trouble ")]


def command(room, steps, answer="yes"):
    return [HELPER, str(room.journals), str(room.song), answer, *steps]


def run(room, steps, answer="yes", strace=()):
    tracer = ["strace", "-qq", "-o", str(room.root / "trace"), *strace] if strace else []
    done = subprocess.run(tracer + command(room, steps, answer), stdout=subprocess.PIPE, stderr=subprocess.DEVNULL,
                          timeout=60)
    return Outcome(done.stdout.decode())


def trace(room, steps):
    """Runs to the end; the calls that change files as (name, its number among those of this name, line)."""
    outcome = run(room, steps, strace=["-y", "-s", "256", "-e", "trace=" + ",".join(CHANGING)])
    counts, calls = {}, []
    for line in (room.root / "trace").read_text(errors="replace").split("\n"):
        name = line.split("(", 1)[0]
        if name not in CHANGING:
            continue
        counts[name] = counts.get(name, 0) + 1
        if name in ("openat", "open") and "O_CREAT" not in line:
            continue
        calls.append((name, counts[name], line))
    return outcome, calls


def cells_in(path):
    """All cells of a file as the helper writes them, by a reader that is not ours."""
    found = []
    for sheet in xlrd.open_workbook(path).sheets():
        for row in range(sheet.nrows):
            for column in range(sheet.ncols):
                value = sheet.cell_value(row, column)
                if value != "":
                    found.append(f"{sheet.name}!{xlrd.colname(column)}{row + 1}={value}")
    return "|".join(found)


def check(condition, *what):
    if not condition:
        print("FAILED:", *what)
        sys.exit(1)


RECORDING = ["start", "open", "grip:B2:e, g,", "set:I2:Tah", "save", "grip:B3:f,", "type:A2:Koč", "undo", "type:A2:Kočka",
             "insert", "rename:Tonavox XII", "save", "set:W3:C dur"]
NEVER_SAVED = ["start", "new", "grip:B1:e, g,", "set:I1:Tlak", "saveas", "set:W1:G dur", "save"]
RECOVERING = ["start", "open", "set:B9:po pádu", "save"]


def make_song(room):
    made = run(room, ["new", "grip:B1:c, e,", "set:I1:Tah", "saveas", "close"])
    check(len(made.acks) == 5, "no song made", made.refused)


def recovered(room, context):
    """Opens what the last run has left; its cells."""
    before = cells_in(room.song) if room.song.exists() else ""
    back = run(room, ["start", "open"])
    state = back.acks[-1] if back.acks else ""
    for question in back.asked:
        check("neuložen" in question, context, "another question than that of the recovery:", question)
    check(bool(back.asked) == (state != before), context, "asked without need, or not asked:", back.asked)
    if not state and not room.song.exists():
        return state
    steps = ["start", "open", "save" if room.song.exists() else "saveas"]
    check(run(room, steps).acks[-1] == state, context, "another state at the second opening")
    check(cells_in(room.song) == state, context, "the file holds", cells_in(room.song), "instead of", state)
    leftovers = [n for n in room.files() if n not in (room.song.name, ".~Kočka.xls.zamek")]
    check(not leftovers and not room.pending(), context, "left behind:", leftovers, room.pending())
    return state


def kill_part(work):
    kills = 0
    for name, steps, prepare in (("recording", RECORDING, ()), ("never saved", NEVER_SAVED, None),
                                 ("recovering", RECOVERING, RECORDING)):
        room = Room(work / name)
        if prepare is not None:
            make_song(room)
        first = run(room, prepare).acks[-1] if prepare else cells_in(room.song) if room.song.exists() else ""
        room.keep()
        clean, calls = trace(room, steps)
        check(len(clean.acks) == len(steps), name, "does not run:", clean.refused)
        states = [first] + clean.acks
        for call, number, line in calls:
            kill_at(room, steps, states, (call, number), f"{name}, killed at {line[:150]}\n")
            kills += 1
    print(f"{kills} kills survived")
    order_of_a_save(work)


def kill_at(room, steps, states, place, context):
    call, number = place
    room.put_back()
    cut = run(room, steps, strace=["-e", f"trace={call}", "-e", f"inject={call}:signal=KILL:when={number}"])
    done = len(cut.acks)
    check(done < len(steps), context, "was not killed")
    opened = any(states[1:done + 1]) or not any(states[:1])
    allowed = states[done:done + 2] if opened else states[:1]
    state = recovered(room, context)
    check(state in allowed, context, "acknowledged:", states[done], "but found:", state)


def order_of_a_save(work):
    """A power cut at any moment is harmless only in this order."""
    room = Room(work / "order")
    make_song(room)
    _, calls = trace(room, ["open", "set:B5:x", "save"])
    text = "\n".join(line for _, _, line in calls)
    wanted = (r"pwrite64\(\d+<[^>]*journal>.*f(data)?sync\(\d+<[^>]*journal>\).*write\(1<[^\n]*ack 1.*"
              r"f(data)?sync\(\d+<[^>]*journal>\).*write\(\d+<[^>]*tmp>.*fsync\(\d+<[^>]*tmp>\).*"
              r"rename\([^\n]*tmp[^\n]*\).*fsync\(\d+<[^>]*>\).*unlink\([^\n]*journal.*write\(1<[^\n]*ack 2")
    check(re.search(wanted, text, re.S), "not written in the order that a power cut needs:\n" + text)
    print("order of journal, file and folder is right")


def fault_part(work):
    room = Room(work / "room")
    make_song(room)
    room.keep()
    old = room.song.read_bytes()
    steps = ["open", "set:B2:g,", "save"]
    _, calls = trace(room, steps)
    start = next(i for i, c in enumerate(calls) if c[0] == "write" and "ack 1" in c[2])
    cases = [(c, error) for c in calls[start + 1:] if "(1<" not in c[2]
             for error in ("ENOSPC", "EIO", "EACCES", "EROFS")]
    refusals = sum(fault_at(room, steps, old, c, error) for c, error in cases)
    needed = [c for c, _ in cases if ".tmp" in c[2] and c[0] in ("openat", "write", "fsync", "rename")]
    check(refusals >= len(needed), refusals, "refusals of", len(needed))
    print(f"{len(cases)} failures injected, {refusals} saves refused")
    unprotected(room)


def unprotected(room):
    """Whatever fails between a change and its safety on the disk is told, the folder's flush too."""
    steps = ["open", "set:B2:g,", "trouble"]
    room.put_back()
    clean, calls = trace(room, steps)
    check(clean.trouble == [""], "trouble without a failure:", clean.trouble)
    record = [c for c in calls if "znamy" in c[2] and c[0] in ("openat", "pwrite64", "fsync", "fdatasync", "mkdir")]
    flushed = [c for c in record if c[0] == "fsync"]
    check(len(flushed) == 2 and ".journal" not in flushed[1][2], "file and folder are not flushed:", flushed)
    for call, number, line in record:
        room.put_back()
        told = run(room, steps, strace=["-e", f"trace={call}", "-e", f"inject={call}:error=EIO:when={number}"]).trouble
        check(told and told[0].startswith("Změny nejsou zajištěny proti výpadku"), f"EIO at {line}", told)
    print(f"{len(record)} failures of the journal told")


def fault_at(room, steps, old, place, error):
    call, number, line = place
    context, other = f"{error} at {line[:150]}\n", room.folder / "záloha.xls"
    room.put_back()
    done = run(room, steps + [f"saveas:{other}"],
               strace=["-e", f"trace={call}", "-e", f"inject={call}:error={error}:when={number}"])
    wanted = done.acks[1]
    if done.refused:
        check(done.refused[0][2] == "1004", context, done.refused)
        # When the folder cannot be flushed, the new file is in its place, whole, but not safe from a power cut.
        check(room.song.read_bytes() == old or call == "fsync" and cells_in(room.song) == wanted, context,
              "the old file is not as it was")
    else:
        check(cells_in(room.song) == wanted, context, "told as saved, but is not")
    check(cells_in(other) == wanted, context, "not saved elsewhere")
    leftovers = [n for n in room.files() if n.endswith(".tmp")]
    check(not leftovers or call.startswith("unlink"), context, "left behind:", leftovers)
    return bool(done.refused)


def full_part(work):
    place = work / "disk"
    place.mkdir()
    if subprocess.run(["mount", "-t", "tmpfs", "-o", "size=200k", "none", place], stderr=subprocess.DEVNULL).returncode:
        print("SKIPPED: no file system may be mounted here")
        sys.exit(SKIPPED)
    try:
        room = Room(place / "room")
        make_song(room)
        with subprocess.Popen(command(room, ["open", "wait", "set:B2:g,", "save", "wait", "set:B3:h,", "save", "close"]),
                              stdin=subprocess.PIPE, stdout=subprocess.PIPE) as session:
            filler = place / "filler"
            told = session.stdout.readline()
            with open(filler, "wb", buffering=0) as full:
                try:
                    while True:
                        full.write(b"x" * 512)
                except OSError:
                    pass
            old = room.song.read_bytes()
            session.stdin.write(b"\n")
            session.stdin.flush()
            for _ in range(3):
                told += session.stdout.readline()
            check(b"refused 3 1004" in told, "not refused:", told.decode())
            check(room.song.read_bytes() == old, "the old file is not as it was")
            check(room.files() == [".~Kočka.xls.zamek", room.song.name], room.files())
            filler.unlink()
            rest, _ = session.communicate(b"\n", timeout=60)
        outcome = Outcome((told + rest).decode())
        check(len(outcome.acks) == 7, "not saved when there was room again:", outcome.refused)
        check(cells_in(room.song).endswith("B2=g,|List1!B3=h,"), cells_in(room.song))
        print("a full disk: refused with 1004, saved when there was room again")
    finally:
        subprocess.run(["umount", place], check=False)


class Live:
    """A run that goes on step by step."""

    def __init__(self, room, steps, answer):
        self.process = subprocess.Popen(command(room, [s for step in steps for s in ("wait", step)], answer),
                                        stdin=subprocess.PIPE, stdout=subprocess.PIPE)

    def step(self):
        """Does the next step; the line about it and the questions before."""
        self.process.stdin.write(b"\n")
        self.process.stdin.flush()
        self.process.stdout.readline()  # of the waiting
        asked = []
        while True:
            line = self.process.stdout.readline().decode()
            if not line.startswith("asked "):
                return line, asked
            asked.append(line)

    def kill(self):
        self.process.kill()
        self.process.wait()


def two_part(work):
    room = Room(work / "room")
    make_song(room)
    first = Live(room, ["start", "open", "set:B2:první", "save", "new", "set:B1:nikdy"], "no")
    first.step()
    first.step()
    first.step()
    turned_down = Live(room, ["start", "open"], "no")
    turned_down.step()
    line, asked = turned_down.step()
    check("refused" in line and "1004" in line and str(first.process.pid) in line, line)
    check(len(asked) == 1 and "má už otevřený někdo jiný" in asked[0], asked)
    turned_down.kill()

    second = Live(room, ["start", "open", "set:B3:druhá", "save"], "yes")
    check(second.step()[1] == [], "asked about what is in use")
    line, asked = second.step()
    check(line.startswith("ack") and len(asked) == 1, line, asked)
    second.step()
    line, asked = second.step()
    check(line.startswith("ack") and not asked, line, asked)
    saved = room.song.read_bytes()
    line, asked = first.step()
    check("refused" in line and "1004" in line, "wrote over what the other one had saved:", line)
    check(len(asked) == 1 and "mezitím změnil jiný program" in asked[0], asked)
    check(room.song.read_bytes() == saved, "the file is not as the other one saved it")
    second.kill()
    first.step()
    first.step()
    first.kill()

    last = run(room, ["start", "open"])
    check(len(last.asked) == 2 and "dosud neuloženém" in last.asked[0] and "Pozor" in last.asked[1], last.asked)
    check("B2=první" in last.acks[1] and "B3=druhá" in last.acks[1], last.acks)
    print("two processes: lock, refusal, changed file and both journals are told of")


def main():
    part = {"kill": kill_part, "fault": fault_part, "full": full_part, "two": two_part}[sys.argv[2]]
    if part in (kill_part, fault_part):
        probe = subprocess.run(["strace", "-qq", "-o", "/dev/null", "true"], stderr=subprocess.DEVNULL) if shutil.which(
            "strace") else None
        if not probe or probe.returncode:
            print("SKIPPED: strace is missing or may not trace here")
            sys.exit(SKIPPED)
    with tempfile.TemporaryDirectory() as work:
        part(pathlib.Path(work))


main()
