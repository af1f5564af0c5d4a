#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Measures the programs and writes the figures; scripts/benchmarks runs it. The parts are functions of this file; all where
none is named. Why a goal is missed is in benchmarks.tail.md, in a paragraph whose bold title is the goal's; it ends with 1
where a goal that is missed has none.

What is compared is run in turn, over and over, with the files in the page cache, and of each the best run counts. The
times are processor times, since a machine is seldom idle: what is measured waits for nothing else."""
import argparse
import datetime
import os
import pathlib
import platform
import random
import re
import shutil
import subprocess
import sys
import tempfile

import other_tools as tools

parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
for name in ["programs", "work", "document"]:
    parser.add_argument(name, type=lambda path: pathlib.Path(path).resolve())
parser.add_argument("parts", nargs="*", metavar="PART")
parser.add_argument("--draws", type=int, default=1_000_000, help="in the largest record books, instead of a million")
options = parser.parse_args()
PROGRAMS, WORK, DOCUMENT = options.programs, options.work, options.document
SOURCES = pathlib.Path(__file__).resolve().parent.parent
ENVIRONMENT = os.environ | {"QT_QPA_PLATFORM": "offscreen", "LC_ALL": "C.UTF-8", "XDG_CONFIG_HOME": str(WORK / "config")}
SHAPES = ["quoted", "bare", "mixed"]
SAMPLE = 2000
SIZES = [SAMPLE, options.draws // 5, options.draws]
lines = []
missed = set()


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


def goal(title, is_reached):
    """`title` is that of the paragraph which says why the goal is missed."""
    if not is_reached:
        missed.add(title)


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
    Run([program("tallywick-setup"), str(made), "--now", "11-18-2026 12:00:00"])
    for note in made.glob("QzrNumbers/*/SAMPLE.TXT"):
        note.unlink()  # In the windows the draws are as real ones.
    if draws > SAMPLE:
        Run([program("tallywick_search_once"), "make", str(made), str(draws), str(SHAPES.index(shape))])
        for code, name in [("PWR", "QzrPwr.Win"), ("MEG", "QzrMeg.Win")]:
            with (open(draws_of(made, code), encoding="ascii") as history,
                  open(draws_of(made, code, name), "w", encoding="ascii") as amounts):
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
    """The goals are for the sample."""
    rows = []
    for draws in SIZES:
        book = folder(draws)
        best = in_turn({"empty": [program("tallywick_empty_window")], "own": [program("tallywick_window_actions"), str(book)]},
                       25 if draws == SAMPLE else 9)
        empty, own = best["empty"], best["own"]
        if draws == SAMPLE:
            goal("The window", own.time <= 1.3 * empty.time)
            goal("The window's memory", own.memory - empty.memory <= 30 * 1024)
        rows.append([f"{draws:,}", ms(empty.time), ms(own.time), times(own.time, empty.time), f"{empty.memory / 1024:.0f}",
                     f"{own.memory / 1024:.0f}", f"+{(own.memory - empty.memory) / 1024:.0f}"])
    write("## The window", "",
          "From the start of the process until the window is painted, and the most memory meanwhile, beside an empty window of "
          f"the toolkit of the same size. Goals at {SAMPLE:,} draws: 1.3 times its time, 30 MiB more.", "")
    table(["draws", "empty window ms", "main window ms", "times", "empty MiB", "main MiB", ""], rows)


def action_times(name, *arguments):
    """What the program says of each action in a copy of the sample: milliseconds, the first time and later."""
    copy = WORK / "actions"
    shutil.rmtree(copy, ignore_errors=True)
    shutil.copytree(folder(SAMPLE), copy)
    split = (line.split("\t") for line in Run([program(name), str(copy), *arguments]).output.splitlines())
    return {action: [int(first) / 1000, int(later) / 1000] for action, first, later in split}


def actions():
    """With windows where the desktop program is built."""
    plain = action_times("tallywick_model_actions", "15")
    goal("Actions without a window", max(max(row) for row in plain.values()) <= 5)
    measured = {action: list(row) for action, row in plain.items()}
    heads = ["action", "first", "later"]
    if (PROGRAMS / "tallywick_window_actions").exists():
        shown = action_times("tallywick_window_actions", "15") | action_times("tallywick_window_actions", "8", "walk")
        goal("Actions in the window", max(max(row) for row in shown.values()) <= 5)
        measured = {action: plain.get(action, []) + row for action, row in shown.items()}
        heads += ["in the window, first", "later"]
    write(f"## Every action at {SAMPLE:,} draws", "",
          "In milliseconds, without a window, and with one until all that changed is painted; the last ones are done in the windows "
          "alone. Goal: none over 5 ms.", "")
    table(heads, [[action] + [""] * (len(heads) - 1 - len(row)) + [f"{time:.2f}" for time in row] for action, row in measured.items()])


TWO, THREE, ONE = tools.Search(("07", "19")), tools.Search(("07", "19", "33"), 5), tools.Search(("07",))
# The text of the page, the game, what is searched for; a count is of one number. The program leaves the extra ball out where
# the first three numbers are marked.
SEARCHES = {"two": ("two numbers", "PWR", TWO), "three": ("three numbers", "PWR", THREE),
            "mega-millions": ("two of Mega Millions", "MEG", TWO), "have-played": ("count, have played", "PWR", ONE),
            "one": ("count, played", "PWR", ONE), "have-played-plays": ("count, own plays", "PWR", ONE)}
DOUBLE_PLAY = {"double": ("two of Double Play", "PWR", TWO)}
MISSED = {"quoted": "{} in quoted records", "bare": "{} in records without quotes",
          "mixed": "{} in records of several lengths", "double": "{} of Double Play"}


def searched(shape):
    """The record book, its searches, and the file of each game."""
    is_double = shape == "double"
    book = folder(options.draws, "quoted" if is_double else shape)
    files = {game: draws_of(book, game, "QZRNUM72.Dat" if is_double else "QZRNUM62.Dat") for game in ["PWR", "MEG"]}
    return book, DOUBLE_PLAY if is_double else SEARCHES, files


def searches():
    write(f"## Searches and counts at {options.draws:,} draws", "",
          "The first press is a whole process, with its start; later presses are timed inside of it. In times of `wc -l` on the same "
          "file. Goal: 3.", "")
    rows = []
    for shape in SHAPES + ["double"]:
        book, kinds, files = searched(shape)
        commands = {"wc": ["wc", "-l", files["PWR"]]}
        for name in kinds:
            commands[name] = [program("tallywick_search_once"), name, str(book)]
        best = in_turn(commands, 15)
        wc = best["wc"].time
        for name, (text, _, search) in kinds.items():
            later = int(Run(commands[name] + ["15"]).output.splitlines()[1]) / 1000
            rows.append([shape, text, ms(wc), ms(best[name].time), times(best[name].time, wc), ms(later), times(later, wc)])
            kind = "Counts" if search is ONE else "Searches"
            goal(MISSED[shape].format(kind), round(max(best[name].time, later) / wc, 1) <= 3)
    table(["file", "search", "wc ms", "first ms", "times", "later ms", "times"], rows)


def others_of(file, searches_of_file, in_tens):
    """What each search finds, and what it takes the other tools, the import into sqlite3 first."""
    script = Run(["sqlite3", ":memory:"], tools.sqlite(file, searches_of_file, in_tens))
    answers = tools.sqlite_answers(script.output)
    imported = script.time - sum(time for _, time in answers)
    found = {}
    for search, (tally, query) in zip(searches_of_file, answers, strict=True):
        awk, python = (Run(tool(file, search, in_tens)) for tool in [tools.awk, tools.python])
        if {awk.output.split()[-1], python.output.split()[-1]} != {tally}:
            sys.exit(f"the tools do not agree on {search} in {file}: {tally}, {awk.output} {python.output}")
        found[search] = (tally, [imported, query, awk.time, python.time])
    return found


def other_tools():
    rows = []
    for shape in SHAPES + ["double"]:
        book, kinds, files = searched(shape)
        others = {game: others_of(files[game], list(dict.fromkeys(search for _, its, search in kinds.values() if its == game)),
                                  shape == "double") for game in {game for _, game, _ in kinds.values()}}
        best = in_turn({name: [program("tallywick_search_once"), name, str(book)] for name in kinds}, 3)
        for name, (text, game, search) in kinds.items():
            tally, taken = others[game][search]
            if best[name].output.split()[-2] != tally:
                sys.exit(f"{name} in {shape}: {best[name].output}, but the other tools find {tally}")
            own = best[name].time
            rows.append([shape, text, tally, ms(own)] + [f"{ms(time)} ({times(time, own)})" for time in taken])
    write("## The same by other tools", "",
          "Milliseconds of whole processes, and times of this program's; sqlite3 imports a file once and answers all its queries. A count "
          "is of one number, which each of the tools counts once. All find the same number of draws.", "")
    table(["file", "search", "found", "this program", "sqlite3, import", "sqlite3, query", "awk", "Python's csv"], rows)


def start_up():
    rows = []
    for draws in SIZES:
        book = folder(draws)
        read = [draws_of(book, name=name) for name in ["QZRNUM6.Dat", "QZRNUM62.Dat", "QzrPwr.Win", "QZR6PWR1.Ply", "QZR6PWR2.Ply"]]
        best = in_turn({"wc": ["wc", "-l"] + read, "script": [program("tallywick-script"), "--folder", str(book)],
                        "version": [program("tallywick-script"), "--version"]}, 9)
        wc, own, bare = best["wc"].time, best["script"].time, best["version"].time
        if draws == options.draws:
            goal("Start-up", round(own / wc, 1) <= 10)
        rows.append([f"{draws:,}", ms(wc), ms(own), times(own, wc), ms(own - bare), f"{best['script'].memory / 1024:.0f}"])
    write("## Start-up", "",
          "`tallywick-script` with an empty script: all that the window shows is read and listed. Beside `wc -l` of the files that are "
          "read, and without what the process takes to start (`--version`). "
          f"Goal at {options.draws:,}: 10 times.", "")
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


def explain():
    """Writes why goals are missed, and returns those of which the page does not know."""
    text = (SOURCES / "bench" / "benchmarks.tail.md").read_text(encoding="utf-8")
    head, *reasons = re.split(r"^(?=- \*\*)", text, flags=re.MULTILINE)
    reasons = {re.match(r"- \*\*(.*?)\.?\*\*", reason)[1]: reason.rstrip() for reason in reasons}
    if missed:
        write(head.rstrip(), "", *(reason for title, reason in reasons.items() if title in missed))
    return sorted(missed - reasons.keys())


def main():
    WORK.mkdir(parents=True, exist_ok=True)
    (WORK / "config").mkdir(exist_ok=True)
    template = (SOURCES / "bench" / "benchmarks.head.md").read_text(encoding="utf-8")
    write(template)
    machine()
    for part in [windows, actions, searches, other_tools, start_up, merge]:
        if not options.parts or part.__name__ in options.parts:
            print(part.__name__, flush=True)
            part()
    unexplained = explain()
    DOCUMENT.write_text("\n".join(lines).rstrip() + "\n", encoding="utf-8")
    if unexplained:
        sys.exit(f"benchmarks.tail.md does not say why these goals are missed: {', '.join(unexplained)}")


main()
