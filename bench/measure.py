#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Measures the programs and writes the figures: `measure.py PROGRAMS WORK-FOLDER DOCUMENT [PART…]`; scripts/benchmarks runs
it. The parts are functions of this file; all where none is named.

What is compared is run in turn, over and over, with the files in the page cache, and of each the best run counts. The
times are processor times, since a machine is seldom idle: what is measured waits for nothing else."""
import datetime
import os
import pathlib
import platform
import random
import shutil
import subprocess
import sys
import tempfile

PROGRAMS, WORK, DOCUMENT = (pathlib.Path(argument).resolve() for argument in sys.argv[1:4])
SOURCES = pathlib.Path(__file__).resolve().parent.parent
ENVIRONMENT = os.environ | {"QT_QPA_PLATFORM": "offscreen", "LC_ALL": "C.UTF-8", "XDG_CONFIG_HOME": str(WORK / "config")}
SHAPES = ["quoted", "bare", "mixed"]
MILLION = 1_000_000
lines = []


class Run:
    """What a process took: milliseconds of the processor and of the clock, the most memory in KiB."""

    def __init__(self, command, text=""):
        with tempfile.TemporaryFile() as output, tempfile.TemporaryFile() as read:
            read.write(text.encode())
            read.seek(0)
            self.process = subprocess.Popen(command, stdin=read, stdout=output, stderr=subprocess.PIPE, env=ENVIRONMENT)
            errors = self.process.stderr.read()
            _, status, usage = os.wait4(self.process.pid, 0)
            self.process.returncode = os.waitstatus_to_exitcode(status)
            output.seek(0)
            self.output = output.read().decode()
        if self.process.returncode != 0:
            sys.exit(f"{command} ended with {self.process.returncode}: {errors.decode()}")
        self.time = (usage.ru_utime + usage.ru_stime) * 1000
        self.memory = usage.ru_maxrss


def in_turn(commands, rounds):
    """The best run of each command, a dictionary like `commands`, whose values are commands or functions."""
    best = {}
    for _ in range(rounds):
        for name, command in commands.items():
            run = command() if callable(command) else Run(command)
            if name not in best or run.time < best[name].time:
                best[name] = run
    return best


def write(*texts):
    lines.extend(texts)


def table(heads, rows):
    write("| " + " | ".join(heads) + " |", "|" + "---|" * len(heads))
    write(*("| " + " | ".join(str(cell) for cell in row) + " |" for row in rows), "")


def ms(time):
    return f"{time:.1f}" if time < 100 else f"{time:.0f}"


def times(time, other):
    return f"{time / other:.1f}"


def program(name):
    return str(PROGRAMS / name)


def folder(draws, shape="quoted"):
    """A record book of so many draws of one shape, each with its amount; the plays are the sample's, and at 2,000 the
    draws as well."""
    made = WORK / f"{shape}-{draws}"
    if made.exists():
        return made
    Run([program("tallywick-setup"), str(made)])
    if draws > 2000:
        Run([program("tallywick_search_once"), "make", str(made), str(draws), str(SHAPES.index(shape))])
        for code, name in [("PWR", "QzrPwr.Win"), ("MEG", "QzrMeg.Win")]:
            with open(draws_of(made, code), encoding="ascii") as history, open(draws_of(made, code, name), "w", encoding="ascii") as amounts:
                amounts.writelines(",".join(line.split(",")[:3]) + ',"40","0"\r\n' for line in history)
    return made


def draws_of(book, game="PWR", name="QZRNUM62.Dat"):
    return str(book / "QzrNumbers" / f"QZR6{game}" / name)


def machine():
    model = next((line.split(":")[1].strip() for line in open("/proc/cpuinfo") if line.startswith("model name")), platform.machine())
    version = Run(["c++", "--version"]).output.splitlines()[0]
    commit = Run(["git", "-C", str(SOURCES), "describe", "--always", "--dirty"]).output.strip()
    load = ", ".join(f"{value:.1f}" for value in os.getloadavg())
    write(f"- {datetime.date.today()}, {commit}, {os.cpu_count()} processors: {model}; {version}",
          f"- the load meanwhile (1, 5, 15 minutes before the beginning): {load}", "")


def windows():
    book = folder(2000)
    best = in_turn({"empty": [program("tallywick_empty_window")], "own": [program("tallywick_window_actions"), str(book)]}, 25)
    empty, own = best["empty"], best["own"]
    write("## The window at 2,000 draws", "",
          "From the start of the process until the window is painted, and the most memory meanwhile, beside an empty window of "
          "the toolkit of the same size. Goals: 1.3 times its time, 30 MiB more.", "")
    table(["", "ms", "MiB"], [["empty window", ms(empty.time), f"{empty.memory / 1024:.0f}"],
                              ["main window", ms(own.time), f"{own.memory / 1024:.0f}"],
                              ["", times(own.time, empty.time) + " times", f"+{(own.memory - empty.memory) / 1024:.0f}"]])


def actions():
    """With windows where the desktop program is built."""
    book = folder(2000)
    programs = [name for name in ["tallywick_model_actions", "tallywick_window_actions"] if (PROGRAMS / name).exists()]
    measured = {}
    for name in programs:
        copy = WORK / "actions"
        shutil.rmtree(copy, ignore_errors=True)
        shutil.copytree(book, copy)
        for line in Run([program(name), str(copy), "15"]).output.splitlines():
            action, first, later = line.split("\t")
            measured.setdefault(action, []).extend([int(first) / 1000, int(later) / 1000])
    write("## Every action at 2,000 draws", "",
          "In milliseconds, without a window, and with one until all that changed is painted. Goal: none over 5 ms.", "")
    table(["action", "first", "later", "in the window, first", "later"][:1 + 2 * len(programs)],
          [[action] + [f"{time:.2f}" for time in row] for action, row in measured.items()])


SEARCHES = {"two": "two numbers", "three": "three numbers", "mega-millions": "two of Mega Millions",
            "have-played": "count, have played", "one": "count, played", "have-played-plays": "count, own plays"}


def searches():
    write("## Searches and counts at a million draws", "",
          "The first press is a whole process, with its start; later presses are timed inside of it. In times of `wc -l` on the same "
          "file. Goal: 3.", "")
    rows = []
    for shape in SHAPES + ["double"]:
        book = folder(MILLION, "quoted" if shape == "double" else shape)
        file = draws_of(book, name="QZRNUM72.Dat" if shape == "double" else "QZRNUM62.Dat")
        names = {"double": "two of Double Play"} if shape == "double" else SEARCHES
        commands = {"wc": ["wc", "-l", file]}
        for name in names:
            commands[name] = [program("tallywick_search_once"), name, str(book)]
        best = in_turn(commands, 15)
        wc = best["wc"].time
        for name, text in names.items():
            later = int(Run(commands[name] + ["15"]).output.splitlines()[1]) / 1000
            rows.append([shape, text, ms(wc), ms(best[name].time), times(best[name].time, wc), ms(later), times(later, wc)])
    table(["file", "search", "wc ms", "first ms", "times", "later ms", "times"], rows)


def other_tools():
    fields = ", ".join(f"f{number}" for number in range(1, 11))
    balls = ["f4", "f5", "f6", "f7", "f8"]
    two = " and ".join(f"({' or '.join(f'{ball}={number}' for ball in balls + ['f9'])})" for number in ["'07'", "'19'"])
    script = f"create table draws({fields});\n.mode csv\n.import '%s' draws\nselect count(*) from draws where {two};\n"
    awk = ('{ gsub("\\"", ""); a = b = 0; for (i = 4; i <= 9; ++i) { if ($i == "07") a = 1; if ($i == "19") b = 1 } '
           "if (a && b) ++found } END { print found }")
    python = ("import csv, sys\nprint(sum(1 for row in csv.reader(open(sys.argv[1], newline='')) "
              "if '07' in row[3:9] and '19' in row[3:9]))")
    rows = []
    for shape in SHAPES:
        book = folder(MILLION, shape)
        file = draws_of(book)
        best = in_turn({"tallywick": [program("tallywick_search_once"), "two", str(book)],
                        "sqlite3": lambda file=file: Run(["sqlite3", ":memory:"], script % file),
                        "awk": ["awk", "-F,", awk, file], "python": [sys.executable, "-c", python, file]}, 2)
        found = {run.output.split()[-1] for name, run in best.items() if name != "tallywick"}
        found.add(best["tallywick"].output.split()[-2])
        if len(found) != 1:
            sys.exit(f"the tools do not agree: {found}")
        own = best["tallywick"].time
        rows.append([shape] + [f"{ms(best[name].time)} ({times(best[name].time, own)})" for name in ["tallywick", "sqlite3", "awk", "python"]])
    write("## The same search by other tools", "",
          "Draws with 07 and 19 among their six numbers; milliseconds, and times of this program's. All find the same number.", "")
    table(["file", "this program", "sqlite3, import and query", "awk", "Python's csv"], rows)


def start_up():
    rows = []
    for draws in [2000, 200_000, MILLION]:
        book = folder(draws)
        read = [draws_of(book, name=name) for name in ["QZRNUM6.Dat", "QZRNUM62.Dat", "QzrPwr.Win", "QZR6PWR1.Ply", "QZR6PWR2.Ply"]]
        best = in_turn({"wc": ["wc", "-l"] + read, "script": [program("tallywick-script"), "--folder", str(book)],
                        "version": [program("tallywick-script"), "--version"]}, 9)
        wc, own, bare = best["wc"].time, best["script"].time, best["version"].time
        rows.append([f"{draws:,}", ms(wc), ms(own), times(own, wc), ms(own - bare), f"{best['script'].memory / 1024:.0f}"])
    write("## Start-up", "",
          "`tallywick-script` with an empty script: all that the window shows is read and listed. Beside `wc -l` of the files that are read, "
          "and without what the process takes to start (`--version`). Goal at a million: 10 times.", "")
    table(["draws", "wc ms", "ms", "times", "without the process ms", "MiB"], rows)


def merge():
    """The second import of an export with one new row, and with none."""
    rows = export_rows()
    book, export = WORK / "merge", WORK / "export.csv"
    def import_all(count):
        export.write_text("Draw Date,Winning Numbers,Multiplier\n" + "".join(rows[-count:]))
        return Run([program("tallywick-setup"), str(book), "--powerball", str(export), "--now", "11-20-2026 12:00:00"])
    shutil.rmtree(book, ignore_errors=True)
    first = import_all(len(rows) - 1)
    one = import_all(len(rows))
    again = min((import_all(len(rows)) for _ in range(9)), key=lambda run: run.time)
    wc = in_turn({"wc": ["wc", "-l", str(export)]}, 9)["wc"]
    bare = in_turn({"version": [program("tallywick-setup"), "--version"]}, 9)["version"]
    write("## Merge of an export", "", f"`tallywick-setup --powerball` with {len(rows):,} draws, of which the process by itself takes "
          f"{ms(bare.time)} ms (`wc -l` {ms(wc.time)} ms).", "")
    table(["", "ms"], [["into a new folder", ms(first.time)], ["with one new draw", ms(one.time)], ["with nothing new", ms(again.time)]])


def export_rows():
    """PowerBall draws by the rules of their dates, the newest first; numbers that every era has."""
    chance = random.Random(7)
    rows = []
    day = datetime.date(2026, 11, 18)
    while day >= datetime.date(2010, 2, 3):
        weekdays = (0, 2, 5) if day >= datetime.date(2021, 8, 23) else (2, 5)
        if day.weekday() in weekdays:
            white = sorted(chance.sample(range(1, 60), 5))
            numbers = " ".join(f"{number:02}" for number in white + [chance.randint(1, 26)])
            rows.append(f"{day:%m/%d/%Y},{numbers},2\n")
        day -= datetime.timedelta(1)
    return rows


def main():
    WORK.mkdir(parents=True, exist_ok=True)
    (WORK / "config").mkdir(exist_ok=True)
    template = (SOURCES / "bench" / "benchmarks.head.md").read_text(encoding="utf-8")
    write(template)
    machine()
    for part in [windows, actions, searches, other_tools, start_up, merge]:
        if len(sys.argv) == 4 or part.__name__ in sys.argv[4:]:
            print(part.__name__, flush=True)
            part()
    write((SOURCES / "bench" / "benchmarks.tail.md").read_text(encoding="utf-8").rstrip())
    DOCUMENT.write_text("\n".join(lines) + "\n", encoding="utf-8")


main()
