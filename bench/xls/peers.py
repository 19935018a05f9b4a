#!/usr/bin/env python3
"""Editing a song file, whole processes, beside every other program that is installed; writes a Markdown table.

peers.py BIN_FOLDER [--turns N] [--readers FOLDER_WITH_NODE_MODULES] [--out FILE.md]

Every program opens the same file, changes ten cells and saves under another name; freexl only reads. The programs take
turns, so that whatever else the computer does meets them all. Medians; memory is the peak of the process that works.
"""
import argparse
import glob
import os
import shutil
import statistics
import subprocess
import sys
import tempfile
import time

HERE = os.path.dirname(os.path.abspath(__file__))
SIZES = (500, 60000)
PATIENCE = 300
PORT = "21973"
AIMS = {("edit", 500): (0.02, 15), ("edit", 60000): (0.25, 100)}


def measured(command):
    """Seconds, processor seconds and peak MiB of a process. Its peak comes from GNU time, which starts it: started from
    here, it would count what this script holds."""
    with tempfile.NamedTemporaryFile("r") as peak:
        start = time.monotonic()
        process = subprocess.Popen(["/usr/bin/time", "-f", "%M", "-o", peak.name, *command],
                                   stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        _, status, usage = os.wait4(process.pid, 0)
        seconds = time.monotonic() - start
        if status != 0:
            raise RuntimeError("%s ended with %d" % (command[0], status))
        return seconds, usage.ru_utime + usage.ru_stime, int(peak.read()) / 1024


class Program:
    def __init__(self, name, task, command):
        self.name, self.task, self.command = name, task, command
        self.results = {size: [] for size in SIZES}

    def run(self, size, song, copy):
        self.results[size].append(measured(self.command(song, copy)))


class Calc(Program):
    """Already running; its own memory counts, not that of the script that drives it."""

    def __init__(self, work):
        super().__init__("LibreOffice, running", "edit",
                         lambda song, copy: ["/usr/bin/python3", HERE + "/calc.py", PORT, song, copy])
        self.server = subprocess.Popen(
            ["soffice", "-env:UserInstallation=file://" + work + "/profile", "--headless", "--norestore",
             "--accept=socket,host=localhost,port=%s;urp;" % PORT], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        for _ in range(60):
            if subprocess.run(["/usr/bin/python3", HERE + "/calc.py", PORT], stderr=subprocess.DEVNULL).returncode == 0:
                return
            time.sleep(1)  # until it listens
        raise RuntimeError("LibreOffice does not listen")

    def memory(self):
        peaks = []
        for status in glob.glob("/proc/[0-9]*/status"):
            try:
                with open(status) as file:
                    fields = dict(line.split(":", 1) for line in file if ":" in line)
            except OSError:
                continue
            if fields["Name"].strip() == "soffice.bin" and "VmHWM" in fields:
                peaks.append(int(fields["VmHWM"].split()[0]) / 1024)
        return max(peaks, default=0)

    def run(self, size, song, copy):
        seconds, cpu, _ = measured(self.command(song, copy))
        self.results[size].append((seconds, cpu, self.memory()))

    def close(self):
        subprocess.run(["/usr/bin/python3", HERE + "/calc.py", PORT, "quit"], stderr=subprocess.DEVNULL)
        self.server.wait(60)


def has_module(*names):
    code = "import " + ", ".join(names)
    return subprocess.run(["/usr/bin/python3", "-c", code], stderr=subprocess.DEVNULL).returncode == 0


def poi(work):
    jars = ":".join(glob.glob("/usr/share/java/poi.jar") + glob.glob("/usr/share/java/commons-*.jar"))
    if not shutil.which("javac") or "poi.jar" not in jars:
        return None
    subprocess.run(["javac", "-encoding", "UTF-8", "-cp", jars, "-d", work, HERE + "/Poi.java"], check=True)
    return Program("Apache POI (Java)", "edit", lambda song, copy: ["java", "-cp", jars + ":" + work, "Poi", song, copy])


def programs(binaries, readers, work):
    ours = binaries + "/edit_song"
    found = [Program("**this engine**", "edit", lambda song, copy: [ours, "edit", song, copy]),
             Program("**this engine**", "read", lambda song, copy: [ours, "read", song])]
    missing = []

    def offer(name, available, program):
        made = program() if available else None
        found.append(made) if made else missing.append(name)

    offer("freexl", os.path.exists(binaries + "/freexl_read"),
          lambda: Program("freexl", "read", lambda song, copy: [binaries + "/freexl_read", song]))
    offer("ssconvert", shutil.which("ssconvert"),
          lambda: Program("ssconvert", "edit", lambda song, copy: ["ssconvert", *changes_for(song), song, copy]))
    offer("xlrd and xlwt", has_module("xlrd", "xlwt"), lambda: Program(
        "xlrd + xlwt (Python), values copied", "edit",
        lambda song, copy: ["/usr/bin/python3", HERE + "/xlwt_copy.py", song, copy]))
    offer("Apache POI", shutil.which("java"), lambda: poi(work))
    offer("SheetJS", shutil.which("node") and os.path.isdir(readers + "/xlsx"), lambda: Program(
        "SheetJS (Node)", "edit", lambda song, copy: ["node", HERE + "/sheetjs.js", readers, song, copy]))
    offer("LibreOffice", shutil.which("soffice") and has_module("uno"), lambda: Calc(work))
    return found, missing


def changes_for(song):
    rows = int(os.path.basename(song)[4:-4])
    return ["--set=%s%d=zmena%d" % ("ABC"[i % 3], i * (rows // 10) + 1, i) for i in range(10)]


def median(program, size):
    return tuple(statistics.median(values) for values in zip(*program.results[size]))


def cells(program, size, ours):
    if not program.results[size]:
        return "failed", "", ""
    seconds, cpu, memory = median(program, size)
    ratio = "" if program is ours else "%.1f ×" % (seconds / median(ours, size)[0])
    aim = AIMS.get((program.task, size)) if program is ours else None
    verdict = "" if not aim else " ✓" if seconds <= aim[0] and memory <= aim[1] else " (aim %g s, %d MiB)" % aim
    return "%.4f" % seconds, "%.4f" % cpu, "%.0f%s%s" % (memory, verdict, " | " + ratio if ratio else " | 1")


def table(found, task):
    head = "| Program | " + " | ".join("%d rows: s | processor s | MiB | ratio" % size for size in SIZES) + " |\n"
    lines = head + "|" + " --- |" * (1 + 4 * len(SIZES)) + "\n"
    ours = next(p for p in found if p.task == task)
    for program in [p for p in found if p.task == task]:
        lines += "| " + program.name
        for size in SIZES:
            figures = cells(program, size, ours)
            lines += " | " + (" | ".join(figures) if figures[1] else "failed | | |")
        lines += " |\n"
    return lines


def report(found, missing, turns):
    text = "Open, change ten cells, save: whole processes, medians of %d turns.\n\n" % turns + table(found, "edit")
    text += "\nRead every cell.\n\n" + table(found, "read")
    if missing:
        text += "\nNot installed: " + ", ".join(missing) + ".\n"
    return text


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("binaries")
    parser.add_argument("--turns", type=int, default=5)
    parser.add_argument("--readers", default="build/readers/node_modules")
    parser.add_argument("--out")
    options = parser.parse_args()
    with tempfile.TemporaryDirectory() as work:
        found, missing = programs(os.path.abspath(options.binaries), os.path.abspath(options.readers), work)
        for size in SIZES:
            song, copy = "%s/song%d.xls" % (work, size), work + "/copy.xls"
            subprocess.run([options.binaries + "/edit_song", "make", str(size), song], check=True)
            for _ in range(options.turns):
                for program in found:
                    try:
                        program.run(size, song, copy)
                    except RuntimeError as failure:
                        print(failure, file=sys.stderr)
        for program in found:
            if isinstance(program, Calc):
                program.close()
    text = report(found, missing, options.turns)
    print(text)
    if options.out:
        with open(options.out, "w", encoding="utf-8") as out:
            out.write(text)


if __name__ == "__main__":
    main()
