#!/usr/bin/env python3
"""summary.py FOLDER: what kroky.json, tempo.json, konverze.json and start.json in FOLDER say, beside what is
aimed at; then kroky-calc.json and konverze-calc.json beside them."""
import json
import os
import sys

# Benchmark: (median, 99th percentile) aimed at, in ms; None where nothing is set.
AIMS = {"cmdDalsi": (8, 16), "cmdJakDal": (8, 16), "cmdJakDal 250": (8, None), "Timer1": (8, 16), "cmdTah": (16, None)}
AIM_DRIFT_MS = 10
AIM_CONVERSION = (500, 1000)  # grips of seven tones, ms
AIM_START_MS = 150
AIM_RESIDENT_MB = 60
# LibreOffice Calc as the spreadsheet, medians in ms.
AIMS_CALC = {"cmdDalsi": 50, "cmdJakDal": 50, "cmdJakDal 250": 6, "Timer1": 50, "cmdTah": 10, "konverze": 1000,
             "start": 3000}


def read(folder, name):
    path = os.path.join(folder, name)
    if not os.path.exists(path):
        return None
    with open(path) as source:
        return json.load(source)


def verdict(values, aims):
    pairs = list(zip(values, aims))
    missed = any(aim is not None and value > aim for value, aim in pairs)
    aimed = any(aim is not None for _, aim in pairs)
    return "" if not aimed else "missed" if missed else "reached"


def steps(results):
    context = results["context"]
    print(f"From the click to the painted frames of both windows, ms "
          f"({context['platform']}, main window {context['main_window']})")
    print(f"{'command':<14}{'grips':>6}{'median':>9}{'p99':>9}{'max':>9}{'logic':>9}{'paint':>9}"
          f"{'display':>9}{'cpu p99':>9}  aim")
    for result in results["benchmarks"]:
        command, grips = result["name"].split("/")[:2]
        if result.get("error_occurred"):
            print(f"{command:<14}{grips:>6}  {result['error_message']}")
            continue
        median, p99 = result["total_median_ms"], result["total_p99_ms"]
        parts = [median, p99, result["total_max_ms"], result["logic_median_ms"], result["paint_median_ms"],
                 result["display_median_ms"], result["cpu_p99_ms"]]
        aims = AIMS.get(command, (None, None))
        print(f"{command:<14}{grips:>6}" + "".join(f"{part:9.2f}" for part in parts) +
              "  " + verdict((median, p99), aims))


def tempo(results):
    print(f"Automatic stepping in real time: {results['steps']} steps at {results['interval_ms']} ms")
    print(f"  drift over the whole {results['drift_ms']:.3f} ms  {verdict((abs(results['drift_ms']),), (AIM_DRIFT_MS,))}")
    print(f"  a step comes late by {results['late_median_ms']:.2f} (median), {results['late_p99_ms']:.2f} (p99), "
          f"{results['late_max_ms']:.2f} ms at most; {results['grips']} grips reached, {results['painted']} painted")


def conversion(results):
    print("A song of seven-tone grips into another key, from the click to the box that says so")
    print(f"{'grips':>6}{'median ms':>12}{'max ms':>12}{'ms a grip':>12}  aim")
    for result in results["benchmarks"]:
        grips = int(result["name"].split("/")[1])
        if result.get("error_occurred"):
            print(f"{grips:>6}  {result['error_message']}")
            continue
        median = result["total_median_ms"]
        aim = AIM_CONVERSION[1] if grips == AIM_CONVERSION[0] else None
        print(f"{grips:>6}{median:12.1f}{result['total_max_ms']:12.1f}{result['row_median_ms']:12.3f}  "
              + verdict((median,), (aim,)))


def start(results):
    print("Start to first painted window (others: first mapped window) and resident memory, medians")
    print(f"{'program':<14}{'ms':>9}{'slowest':>9}{'MB':>9}{'turns':>7}  aim")
    for name, median in results["programs"].items():
        aims = (AIM_START_MS, AIM_RESIDENT_MB) if name == "Zvonika" else (None, None)
        print(f"{name:<14}{median['first_paint']:9.1f}{median['slowest']:9.1f}{median['rss_mb']:9.1f}{median['turns']:7}  "
              + verdict((median["first_paint"], median["rss_mb"]), aims))
    for name, median in results["programs"].items():
        if "marks" in median:
            print(f"  {name}: " + ", ".join(f"{stage} {ms:.1f}" for stage, ms in median["marks"].items())
                  + f"; processor {median['cpu']:.1f}")
    for what in ("missing", "failed"):
        if results[what]:
            print(f"  {what}: {', '.join(results[what])}")


def benchmarks(results):
    """Medians and slowest of each benchmark by name and grips, in ms; those that failed are left out."""
    return {tuple(result["name"].split("/")[:2]): (result["total_median_ms"], result["total_max_ms"])
            for result in (results or {"benchmarks": []})["benchmarks"] if not result.get("error_occurred")}


def side_by_side(folder):
    """The built-in spreadsheet and Calc; of Calc the calls and this program's own painting."""
    rows = []
    for name in ("kroky", "konverze"):
        own, calc = (benchmarks(read(folder, f"{name}{which}.json")) for which in ("", "-calc"))
        rows += [(*key, own.get(key), calc[key]) for key in calc]
    programs = (read(folder, "start.json") or {"programs": {}})["programs"]
    if "Zvonika, Calc" in programs:
        times = [(programs[name]["first_paint"], programs[name]["slowest"]) for name in ("Zvonika", "Zvonika, Calc")]
        rows.append(("start", "-", *times))
    if not rows:
        return
    print("The built-in spreadsheet and LibreOffice Calc, ms")
    print(f"{'':<14}{'grips':>6}{'built-in':>10}{'Calc':>10}{'Calc max':>10}  aim")
    for name, grips, own, calc in rows:
        print(f"{name:<14}{grips:>6}{own[0] if own else float('nan'):10.1f}{calc[0]:10.1f}{calc[1]:10.1f}  "
              + verdict((calc[0],), (AIMS_CALC.get(name),)))


def main():
    folder = sys.argv[1]
    for name, show in (("kroky.json", steps), ("tempo.json", tempo), ("konverze.json", conversion),
                       ("start.json", start)):
        results = read(folder, name)
        if results:
            show(results)
            print()
    side_by_side(folder)


if __name__ == "__main__":
    main()
