"""Runs tessaro-batch, the floor and the other programs turn by turn over the same photos and prints their ratios."""

import argparse
import datetime
import json
import os
import platform
import shutil
import statistics
import subprocess
import sys
import time
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
BIN = ROOT / "build/release/bin"
WORK = ROOT / "build/bench"
PHOTOS, MARK = WORK / "photos", WORK / "photos/mark.png"
DISTINCT = 8

# Each contender answers the commands for a list of photos and a folder for the results: one process over all files
# where the program can do that, else one a file.

CORNER = ["--text", "Tessaro Photographs", "--font", "Helvetica", "--color", "#FFFFFF", "--height", "4",
          "--anchor", "bottom-right", "--offset", "-2,-3"]
# At 8 % of the photo's height this text spans the width of a 3:2 photo.
WIDE = ["--text", "Tessaro Photographs, all rights are reserved", "--font", "Helvetica", "--color", "#FFFFFF",
        "--glow", "4,12,#000000", "--shadow", "45,6,12,80", "--height", "8", "--anchor", "center", "--offset", "0,0"]
TILED = ["--script", "Tessaro", "--font", "Helvetica", "--color", "#FFFFFF", "--height", "4", "--opacity", "40"]


def tessaro(*options):
    def commands(photos, out):
        listing = out.parent / (out.name + ".txt")
        listing.write_text("".join(f"{photo}\n" for photo in photos))
        return [[str(BIN / "tessaro-batch"), *options, "--quality", "85", "--output", str(out), f"@{listing}"]]
    return commands


def floor(photos, out):
    return [[str(BIN / "bench-floor"), str(out), *photos]]


def graphics_magick(photos, out):
    script = out.parent / (out.name + ".txt")
    script.write_text("".join(f"composite -gravity SouthEast -geometry +120+120 -quality 85 -sampling-factor 2x2 "
                              f"{MARK} {photo} {out / Path(photo).name}\n" for photo in photos))
    return [["gm", "batch", "-stop-on-error", "on", str(script)]]


def image_magick(photos, out):
    return [["composite", "-gravity", "SouthEast", "-geometry", "+120+120", "-quality", "85", "-sampling-factor",
             "4:2:0", str(MARK), photo, str(out / Path(photo).name)] for photo in photos]


def vipsthumbnail(photos, out):
    return [["vipsthumbnail", "--size", "2400x2400", "-o", f"{out}/%s.jpg[Q=85]", *photos]]


class Contender:
    def __init__(self, commands, photos, needs=None, once=False):
        self.commands, self.photos, self.needs, self.once = commands, photos, needs, once


CONTENDERS = {
    "corner text": Contender(tessaro(*CORNER), 16),
    "floor": Contender(floor, 16),
    "GraphicsMagick": Contender(graphics_magick, 16, needs="gm"),
    "ImageMagick": Contender(image_magick, 16, needs="composite"),
    "corner text, fitted": Contender(tessaro(*CORNER, "--resize", "fit=2400x2400"), 16),
    "vipsthumbnail": Contender(vipsthumbnail, 16, needs="vipsthumbnail"),
    "wide glow and shadow": Contender(tessaro(*WIDE), 16),
    "tiled text": Contender(tessaro(*TILED), 16),
    # Memory does not vary as time does, so the long list runs once.
    "20 photos": Contender(tessaro(*CORNER), 20, once=True),
    "1,000 photos": Contender(tessaro(*CORNER), 1000, once=True),
}

TIME, MEMORY = "time", "memory"

# Name, what is measured, contender, what it is divided by (a contender, or a plain number of MB), goal.
ROWS = [
    ("corner text / floor", TIME, "corner text", "floor", 0.55),
    ("corner text / GraphicsMagick", TIME, "corner text", "GraphicsMagick", 0.25),
    ("corner text / ImageMagick", TIME, "corner text", "ImageMagick", 0.30),
    ("fitted to 2400 / vipsthumbnail", TIME, "corner text, fitted", "vipsthumbnail", 0.70),
    ("wide glow and shadow / corner text", TIME, "wide glow and shadow", "corner text", 1.30),
    ("tiled text / corner text", TIME, "tiled text", "corner text", 1.25),
    ("peak memory, MB", MEMORY, "corner text", 1, 80 + 70 * (os.cpu_count() - 1)),
    ("memory, 1,000 / 20 photos", MEMORY, "1,000 photos", "20 photos", 1.03),
]


def make_photos():
    if len(list(PHOTOS.glob("photo-*.jpg"))) != DISTINCT or not MARK.exists():
        print(f"Making {DISTINCT} photos of 6000 x 4000 pixels")
        shutil.rmtree(PHOTOS, ignore_errors=True)
        made = PHOTOS.with_suffix(".new")
        subprocess.run([BIN / "bench-photos", made, str(DISTINCT)], check=True)
        made.rename(PHOTOS)


def photo_list(count):
    """Photos under names of their own, hard links to the distinct ones taken in turn."""
    folder = WORK / f"list-{count}"
    folder.mkdir(exist_ok=True)
    names = []
    for i in range(count):
        link = folder / f"photo-{i + 1:03}.jpg"
        link.unlink(missing_ok=True)
        os.link(PHOTOS / f"photo-{i % DISTINCT + 1}.jpg", link)
        names.append(str(link))
    return names


def measure_window():
    photos = photo_list(1000)
    command = [BIN / "bench-ui", Path(photos[0]).parent]
    if not os.environ.get("DISPLAY") and shutil.which("xvfb-run"):
        command = ["xvfb-run", "-a", "-s", "-screen 0 1600x1000x24", *command]
    return subprocess.run(command, check=False).returncode


def warm(photos):
    for photo in photos:
        Path(photo).read_bytes()


def measure(name):
    """Seconds over all commands, and the highest memory of one, in kilobytes; a text that tells what failed."""
    contender = CONTENDERS[name]
    photos, out = photo_list(contender.photos), WORK / "out"
    shutil.rmtree(out, ignore_errors=True)
    out.mkdir()
    commands = contender.commands(photos, out)
    warm(photos)
    seconds, peak = 0.0, 0
    for command in commands:
        with open(WORK / "messages.txt", "w+") as messages:
            start = time.perf_counter()
            child = subprocess.Popen(command, stdout=messages, stderr=messages, stdin=subprocess.DEVNULL)
            status, usage = os.wait4(child.pid, 0)[1:]
            seconds += time.perf_counter() - start
            child.returncode = os.waitstatus_to_exitcode(status)
            peak = max(peak, usage.ru_maxrss)
            if child.returncode:
                messages.seek(0)
                return f"{Path(command[0]).name} ended with {child.returncode}: {messages.read(300).strip()}"
    # A result of less than 50 kB holds no photo.
    written = [file for file in out.iterdir() if file.stat().st_size > 50_000]
    if len(written) != contender.photos:
        return f"{len(written)} of {contender.photos} photos were written"
    shutil.rmtree(out)
    return {"seconds": seconds, "peak_kb": peak}


def run(names, rounds):
    """The contenders take turns, so that a slow minute of the machine falls on all of them."""
    runs, failed = {name: [] for name in names}, {}
    for number in range(rounds):
        for name in names:
            if name in failed or (number and CONTENDERS[name].once):
                continue
            result = measure(name)
            if isinstance(result, str):
                failed[name] = result
                print(f"  {name}: {result}")
                continue
            runs[name].append(result)
            print(f"  round {number + 1}: {name}: {result['seconds']:.2f} s, {result['peak_kb'] / 1024:.0f} MB", flush=True)
    return runs, failed


def figures(runs, kind, name):
    """The best and the middle of a contender's runs."""
    if not isinstance(name, str):
        return name, name
    values = [entry["seconds"] if kind == TIME else entry["peak_kb"] / 1024 for entry in runs.get(name, [])]
    return (min(values), statistics.median(values)) if values else None


def ratios(rows, runs):
    results = []
    for row, kind, over, under, goal in rows:
        pair = figures(runs, kind, over), figures(runs, kind, under)
        entry = {"row": row, "goal": goal}
        if all(pair):
            entry["best"], entry["median"] = (a / b for a, b in zip(*pair))
        results.append(entry)
    return results


def print_table(results, runs):
    print(f"\n{'':36}{'best':>8}{'median':>8}{'goal':>10}")
    for entry in results:
        if "best" in entry:
            verdict = "" if entry["best"] <= entry["goal"] else "  missed"
            print(f"{entry['row']:36}{entry['best']:8.2f}{entry['median']:8.2f}{'<= %g' % entry['goal']:>10}{verdict}")
        else:
            print(f"{entry['row']:36}{'not measured':>16}{'<= %g' % entry['goal']:>10}")
    print("\nSeconds a photo, best of the rounds:")
    for name, entries in runs.items():
        if entries:
            print(f"  {name:34}{figures(runs, TIME, name)[0] / CONTENDERS[name].photos:8.3f}")


def machine():
    model = next((line.split(":")[1].strip() for line in open("/proc/cpuinfo") if line.startswith("model name")), "")
    memory = os.sysconf("SC_PAGE_SIZE") * os.sysconf("SC_PHYS_PAGES") / 2**30
    return {"host": platform.node(), "cpu": model, "cores": os.cpu_count(), "memory_gb": round(memory, 1),
            "system": platform.platform(), "load": os.getloadavg()}


def save(results, runs, failed, rounds, before):
    commit = subprocess.run(["git", "-c", "safe.directory=*", "-C", ROOT, "describe", "--always", "--dirty"],
                            capture_output=True, text=True).stdout.strip()
    now = datetime.datetime.now().astimezone()
    folder = ROOT / "bench-results"
    folder.mkdir(exist_ok=True)
    path = folder / f"{now:%Y-%m-%d-%H%M%S}.json"
    path.write_text(json.dumps({"date": now.isoformat(timespec="seconds"), "commit": commit, "machine": before,
                                "rounds": rounds, "rows": results, "runs": runs, "failed": failed}, indent=1) + "\n")
    print(f"\nRaw times: {path.relative_to(ROOT)}")


def chosen(rows):
    """The installed contenders of some rows, in the order of the table above."""
    wanted = {name for row in rows for name in row[2:4] if isinstance(name, str)}
    names = [name for name in CONTENDERS if name in wanted]
    missing = [name for name in names if CONTENDERS[name].needs and not shutil.which(CONTENDERS[name].needs)]
    for name in missing:
        print(f"{name} is not installed: its rows are left out")
    return [name for name in names if name not in missing]


def main():
    parser = argparse.ArgumentParser(prog="./bench", description=__doc__)
    parser.add_argument("--quick", action="store_true", help="two rounds instead of five")
    parser.add_argument("--rounds", type=int, help="how often each contender runs")
    parser.add_argument("--only", metavar="ROW", help="only the rows whose name contains this")
    parser.add_argument("--ui", action="store_true", help="the window instead, on 1,000 photos; takes a display or Xvfb")
    options = parser.parse_args()
    rounds = options.rounds or (2 if options.quick else 5)
    rows = [row for row in ROWS if not options.only or options.only in row[0]]
    if not rows:
        parser.error("no row is called so; there are: " + "; ".join(row[0] for row in ROWS))

    before = machine()
    WORK.mkdir(parents=True, exist_ok=True)
    make_photos()
    if options.ui:
        sys.exit(measure_window())
    runs, failed = run(chosen(rows), rounds)
    results = ratios(rows, runs)
    print_table(results, runs)
    save(results, runs, failed, rounds, before)
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
