#!/usr/bin/python3
"""Kills the program, its spreadsheet or both at random moments, many times, and counts what of a song is lost.

usage: kills.py SONG_RUN embedded|calc COUNT [SEED]

Each run goes on with the song that the one before has left. A grip that was told as recorded must come back
letter by letter in its row, once; the row that was being recorded may come back whole, in part or not at all, and
nothing else may be there. Calc needs a screen: DISPLAY, without a window manager will do.
"""
import collections
import os
import pathlib
import random
import re
import signal
import subprocess
import sys
import tempfile
import threading
import time

HELPER, BACK_END, COUNT = sys.argv[1], sys.argv[2], int(sys.argv[3])
CHANCE = random.Random(int(sys.argv[4]) if len(sys.argv) > 4 else None)
LONGEST_SONG = 150
PATIENCE = 120


def offices(state):
    """The processes of the office whose profile lies in this state."""
    found = []
    for folder in pathlib.Path("/proc").glob("[0-9]*"):
        try:
            command = (folder / "cmdline").read_bytes().split(b"\0")
        except OSError:
            continue
        if command[0].endswith(b"soffice.bin") and any(str(state).encode() in word for word in command):
            found.append(int(folder.name))
    return found


def end(process, number):
    try:
        os.kill(process, number)
    except ProcessLookupError:
        pass


class Run:
    """One run of the helper, whose lines are taken as they come."""

    def __init__(self, state, song, first):
        self.state, self.rows, self.acks, self.asked, self.end, self.whole = state, {}, {}, [], "", False
        self.ready, self.recorded = threading.Event(), threading.Event()
        self.process = subprocess.Popen([HELPER, BACK_END, str(state), str(song), str(first)],
                                        stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
        self.reader = threading.Thread(target=self.read)
        self.reader.start()

    def read(self):
        for raw in self.process.stdout:
            line = raw.decode()
            if not line.endswith("\n"):
                return  # was not told
            word, _, rest = line.rstrip("\n").partition(" ")
            if word in ("row", "ack"):
                number, _, cells = rest.partition(" ")
                (self.rows if word == "row" else self.acks)[int(number)] = cells
            elif word == "asked":
                self.asked.append(rest)
            elif word == "end":
                self.end = rest
            elif word == "ready":
                self.whole = True
                self.ready.set()
        self.ready.set()

    def kill(self, whom, number):
        targets = [self.process.pid] if whom in ("program", "both") else []
        if whom in ("calc", "both"):
            targets += offices(self.state)
        CHANCE.shuffle(targets)
        for process in targets:
            end(process, number)

    def wait(self):
        self.reader.join(PATIENCE)
        self.process.wait(PATIENCE)
        limit = time.monotonic() + PATIENCE
        while offices(self.state) and time.monotonic() < limit:
            time.sleep(0.02)


class Song:
    """What the player knows of the song."""

    def __init__(self, path):
        self.path, self.recorded = path, {}

    def check(self, rows, tally):
        """Compares what has come back; the rows that count from now on."""
        for number, cells in self.recorded.items():
            if rows.get(number) != cells:
                tally["lost"] += 1
                print(f"LOST: row {number} was {cells}, is {rows.get(number)}")
        grips = collections.Counter(re.sub(r"\|+$", "", cells) for cells in rows.values())
        for cells, times in grips.items():
            if times > 1:
                tally["doubled"] += 1
                print(f"DOUBLED: {cells}")
        beyond = sorted(set(rows) - set(self.recorded))
        under_way = max(self.recorded, default=0) + 1
        if any(number != under_way for number in beyond):
            tally["foreign"] += 1
            print(f"NOT RECORDED BY ANYBODY: rows {beyond}")
        tally["whole, not told"] += any(cells.count("|") and self.is_whole(cells) for n, cells in rows.items() if n in beyond)
        tally["in part"] += any(not self.is_whole(cells) for n, cells in rows.items() if n in beyond)

    @staticmethod
    def is_whole(cells):
        parts = cells.split("|")
        return all(parts[column] for column in (1, 8, 12, 21, 22))


def main():
    tally, kinds = collections.Counter(), collections.Counter()
    with tempfile.TemporaryDirectory() as work:
        state = pathlib.Path(work) / "stav"
        song, songs, begun = None, 0, time.monotonic()
        for number in range(COUNT + 1):
            if song is None or max(song.recorded, default=0) > LONGEST_SONG:
                songs += 1
                song = Song(pathlib.Path(work) / f"Písnička {songs}.xls")
            run = Run(state, song.path, max(song.recorded, default=0) + 1)
            whom = CHANCE.choice(["program", "calc", "both"] if BACK_END == "calc" else ["program"])
            how = CHANCE.choice([signal.SIGKILL, signal.SIGKILL, signal.SIGKILL, signal.SIGTERM])
            last = number == COUNT
            if CHANCE.random() < 0.75 or last:
                run.ready.wait(PATIENCE)
                if not last:
                    time.sleep(CHANCE.uniform(0, 1.5 if BACK_END == "calc" else 0.3))
            else:
                time.sleep(CHANCE.uniform(0, 2.5 if BACK_END == "calc" else 0.1))
            came = run.whole and run.process.poll() is None
            run.kill("both" if last else whom, how)
            run.wait()
            if run.whole:
                song.check(run.rows, tally)
                # A row that came back without having been told is recorded from now on, or again.
                song.recorded.update(run.acks)
                tally["checked"] += 1
            if not last:
                kinds[f"{whom}, {how.name}, {'recording' if came else 'opening'}"] += 1
            tally["grips"] += len(run.acks)
            tally["offered"] += len(run.asked)
            if run.end and not run.end.startswith("91"):
                print("END:", run.end)
        print(f"{COUNT} kills in {time.monotonic() - begun:.0f} s:", dict(kinds))
        print(f"{songs} songs, {tally['grips']} grips recorded, {tally['checked']} times looked at, {tally['offered']} boxes")
        print(f"lost {tally['lost']}, doubled {tally['doubled']}, foreign {tally['foreign']}; under way when killed: "
              f"{tally['whole, not told']} came back whole, {tally['in part']} in part")
    return 1 if tally["lost"] or tally["doubled"] or tally["foreign"] or tally["in part"] else 0


sys.exit(main())
