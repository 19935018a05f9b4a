#!/usr/bin/env python3
"""Time from process start to the first window, and resident memory, program by program in turns.

start.py BIN_FOLDER [--turns N] [--json FILE]    (inside a running display with a window manager)

The program and an empty window of the same toolkit report their first painted frame themselves; of the others,
where they are installed, the first mapped window counts, which flatters them.
"""
import argparse
import json
import os
import shutil
import signal
import statistics
import subprocess
import tempfile
import time

PATIENCE = 30  # seconds until a start counts as failed
AT_REST = 2  # seconds after its first window until a foreign program's memory is read
PEERS = {"TuxGuitar": ["tuxguitar"], "MuseScore 3": ["mscore3", "musescore3"]}


def probe(command, folder):
    """Runs a program that measures itself; its report."""
    environment = dict(os.environ, ZVONIKA_BENCH_START=str(time.monotonic_ns()))
    done = subprocess.run([*command, folder], env=environment, capture_output=True, text=True,
                          timeout=PATIENCE, check=True)
    return json.loads(done.stdout.strip().splitlines()[-1])


def warm_probe(command, folder):
    """The same right after a start that is not counted: what others leave in the caches of so large a program varies."""
    probe(command, folder)
    return probe(command, folder)


def mapped_windows():
    found = subprocess.run(["xdotool", "search", "--onlyvisible", "--name", ".*"],
                           capture_output=True, text=True, timeout=PATIENCE)
    return set(found.stdout.split())


def process_group_rss(group):
    """Resident megabytes of every process in a group."""
    total = 0
    for entry in os.listdir("/proc"):
        if not entry.isdigit():
            continue
        try:
            if os.getpgid(int(entry)) != group:
                continue
            with open(f"/proc/{entry}/status") as status:
                total += sum(int(line.split()[1]) for line in status if line.startswith("VmRSS:"))
        except (ProcessLookupError, FileNotFoundError, PermissionError):
            continue
    return total / 1024


def end_group(process):
    for sign in (signal.SIGTERM, signal.SIGKILL):
        try:
            os.killpg(process.pid, sign)
            process.wait(timeout=5)
        except (ProcessLookupError, subprocess.TimeoutExpired):
            continue


def first_window(command, folder):
    """Starts a foreign program and watches the display until a new window is mapped."""
    before = mapped_windows()
    # A home of its own for each turn: one of them refuses to start beside what its last run has left there.
    home = tempfile.mkdtemp(dir=folder)
    environment = dict(os.environ, HOME=home, XDG_CONFIG_HOME=home,
                       JAVA_TOOL_OPTIONS=f"-Duser.home={home} -Djava.io.tmpdir={home}")
    start = time.monotonic()
    process = subprocess.Popen(command, env=environment, stdout=subprocess.DEVNULL,
                               stderr=subprocess.DEVNULL, start_new_session=True)
    try:
        while time.monotonic() - start < PATIENCE:
            if mapped_windows() - before:
                elapsed = (time.monotonic() - start) * 1000
                time.sleep(AT_REST)
                return {"first_paint": elapsed, "rss_mb": process_group_rss(process.pid)}
            if process.poll() is not None:
                return None
            time.sleep(0.005)
        return None
    finally:
        end_group(process)
        while mapped_windows() - before and time.monotonic() - start < PATIENCE:
            time.sleep(0.05)


def candidates(bin_folder):
    """Name, how it is measured, command; and the names of what is not installed."""
    own = os.path.join(bin_folder, "start_probe")
    found = [("Zvonika", probe, [own]),
             ("empty window", probe, [os.path.join(bin_folder, "empty_window")])]
    missing = []
    if shutil.which("soffice"):
        # Its first instance is started and ended, and the second is there, before the window is painted.
        found.append(("Zvonika, Calc", warm_probe, [own, "--tabulka=libreoffice"]))
    else:
        missing.append("LibreOffice")
    for name, commands in PEERS.items():
        command = next(filter(None, map(shutil.which, commands)), None)
        if command and shutil.which("xdotool"):
            found.append((name, first_window, [command]))
        else:
            missing.append(name)
    return found, missing


def measure(programs, turns, folder):
    """The reports of each program. The first turn warms the caches and is not counted."""
    results = {name: [] for name, _, _ in programs}
    for turn in range(turns + 1):
        for name, how, command in programs:
            report = how(command, folder)
            if report and turn:
                results[name].append(report)
    return results


def summary(reports):
    medians = {key: statistics.median(report[key] for report in reports) for key in ("first_paint", "rss_mb")}
    medians["slowest"] = max(report["first_paint"] for report in reports)
    medians["turns"] = len(reports)
    if "marks" in reports[0]:
        medians["cpu"] = statistics.median(report["cpu"] for report in reports)
        medians["marks"] = {stage: statistics.median(report["marks"][stage] for report in reports)
                            for stage in reports[0]["marks"]}
    return medians


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("bin_folder")
    parser.add_argument("--turns", type=int, default=15)
    parser.add_argument("--json")
    arguments = parser.parse_args()
    programs, missing = candidates(arguments.bin_folder)
    with tempfile.TemporaryDirectory() as folder:
        os.makedirs(folder + "/domov/Dokumenty/Heligonka/Zvonika")
        results = measure(programs, arguments.turns, folder)
    report = {"programs": {name: summary(reports) for name, reports in results.items() if reports},
              "missing": missing, "failed": [name for name, reports in results.items() if not reports]}
    if arguments.json:
        with open(arguments.json, "w") as out:
            json.dump(report, out, indent=1)
    else:
        print(json.dumps(report, indent=1))


if __name__ == "__main__":
    main()
