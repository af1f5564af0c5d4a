#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Kills each action that changes files at every system call that does so, and lets every file-system call fail.

Whatever happens, the next start of the program must find the data folder wholly as it was or wholly as the
undisturbed action leaves it. Usage: killed_actions.py PROGRAM KIND, where PROGRAM is killed_action. Exit code
77: this system has no strace, or does not let it trace.

killed_actions.py PROGRAM KIND COUNT takes no strace and ends each action COUNT times or more at random moments. With TALLYWICK_EMULATOR
in the environment that command runs PROGRAM.
"""

import collections
import datetime
import itertools
import os
import pathlib
import random
import re
import shutil
import statistics
import subprocess
import sys
import tempfile
import time
import zipfile

EMULATOR = os.environ.get("TALLYWICK_EMULATOR", "").split()
PROGRAM = [*EMULATOR, sys.argv[1]]
ACTIONS = {"selection": ["done-10", "done-1", "select", "open"], "files": ["maintain", "receive", "publish"],
           "by-hand": ["by-hand-" + change for change in ("remove", "move", "keep", "bring-back", "undo")],
           "draws": ["fetch", "add-draw", "remove-draw"], "restore": ["restore"], "backup": ["backup"]}[sys.argv[2]]
# What mends the traces of an action: the next start of the program, or the same command again.
MENDING = collections.defaultdict(lambda: "recover", publish="publish", restore="mend-restore", backup="backup-next")
# A kill anywhere else leaves what one at the next of these does; an open changes something where it creates its file.
CHANGES = {"openat", "write", "rename", "unlink", "unlinkat", "mkdir", "rmdir", "symlink", "ftruncate"}
# What a full disk, a folder without permission and a broken disk answer, and the runtime error it becomes; in turn.
FAILURES = {"openat": {"EACCES": "70", "ENOSPC": "61"}, "write": {"ENOSPC": "61", "EDQUOT": "61"},
            "fsync": {"ENOSPC": "61", "EIO": "57"}, "rename": {"EACCES": "70", "EROFS": "70"}, "unlink": {"EIO": "57"},
            "close": {"EIO": "57"}, "getdents64": {"EIO": "57"}}
REPEATED = {"openat", "close", "getdents64"}
ENVIRONMENT = dict(os.environ, ASAN_OPTIONS="detect_leaks=0")
PWR, MEG = pathlib.Path("QzrNumbers/QZR6PWR"), pathlib.Path("QzrNumbers/QZR6MEG")
COMMITTED, JOURNAL = PWR / "QZR6PWR1.Ply", PWR / "TALLYWICK.JNL"

memory = "/dev/shm" if os.path.isdir("/dev/shm") else None
scratch = pathlib.Path(tempfile.mkdtemp(prefix="tallywick-killed-", dir=memory))
folder = scratch / "data"


def record(*fields):
    return ",".join(f'"{field}"' for field in fields) + "\r\n"


def play(date, first):
    return record(date, first, "11", "23", "42", "60", "07", "1110101")


def starting_files():
    days = [datetime.date(2026, 11, 1) + datetime.timedelta(n) for n in range(90)]
    draw = record("11", "18", "2026", *["07"] * 7)
    files = {
        "QZRNUM22.DTE": "".join(record(f"{day:%m}", f"{day:%d}", f"{day:%Y}", "day", "n", day.isoweekday()) for day in days),
        COMMITTED: play("11-18-2026", "01") + play("11-21-2026", "02"),
        PWR / "QZR6PWR1.Sav": play("11-16-2026", "03"),
        PWR / "QZR6PWR2.Ply": play("11-11-1111", "00") + play("11-14-2026", "04"),
        PWR / "QZR6PWR2 2026-11-01 120000.Ply": play("11-07-2026", "09"),
        PWR / "QZR6PWR7.Ply": play("11-21-2026", "05") + play("11-23-2026", "06") + play("11-23-2026", "08"),
        PWR / "QZRNUM72.Dat": record(*["07"] * 18), PWR / "QzrPwr.Win": record(*["7"] * 5), MEG / "QzrMeg.Win": record(*["7"] * 5),
    }
    return files | {game / name: draw for game in (PWR, MEG) for name in ("QZRNUM6.Dat", "QZRNUM62.Dat")}


def lay_out(files):
    shutil.rmtree(folder, ignore_errors=True)
    for name, text in files.items():
        (folder / name).parent.mkdir(parents=True, exist_ok=True)
        (folder / name).write_bytes(text.encode() if isinstance(text, str) else text)


def files_now():
    """The files but for locks."""
    return {file.relative_to(folder): file.read_bytes() for file in folder.rglob("*") if file.is_file() and file.suffix != ".LCK"}


def state():
    """The files; the dates of copies are taken out of their names, and copies of one file are together."""
    found = collections.defaultdict(list)
    for name, text in files_now().items():
        if name.suffix == ".zip":  # its bytes depend on the time
            archive = zipfile.ZipFile(folder / name)
            text = together(*(entry.encode() + archive.read(entry) for entry in archive.namelist()))
            # On Windows it is the folder that others cannot read.
            check(EMULATOR or (folder / name).stat().st_mode & 0o77 == 0, f"{name} can be read by all")
        found[pathlib.Path(re.sub(r"\d{4}-\d\d-\d\d \d{6}", "DATE", str(name)))].append(text)
    return {name: together(*texts) for name, texts in found.items()}


def together(*texts):
    return b"".join(sorted(texts))


def served(files):
    """What a client of the published tree finds."""
    return {name: text for name, text in files.items() if name.parent.name == "Qzr6"}


def run(action, *tracing):
    command = [*tracing, *PROGRAM, str(folder), action]
    return subprocess.run(command, env=ENVIRONMENT, capture_output=True, text=True)


def run_disturbed(action, call, how, number):
    # With this option, which saves half the time, strace sends no signals.
    quick = ["--seccomp-bpf"] if how.startswith("error") else []
    return run(action, "strace", "-f", *quick, "-o", "/dev/null", "-e", f"trace={call}", "-e",
               f"inject={call}:{how}:when={number}")


def calls_of(action):
    """The calls that concern the folder's files in their order: (name, its number among the calls of that name, line)."""
    run(action, "strace", "-y", "-o", str(scratch / "log"))
    counts, calls = collections.Counter(), []
    for line in (scratch / "log").read_text().splitlines():
        call = line.partition("(")[0]
        counts[call] += 1
        if str(folder) in line.replace(f'"{folder}", "', '"', 1).partition(" = ")[0]:
            calls.append((call, counts[call], line))
    return calls


def check(condition, what):
    if not condition:
        sys.exit(f"FAILED: {what}\nthe folder is left in {scratch}")


def kill_everywhere(action, start, outcomes):
    """Kills at each change, starts the program again, and compares; returns how many kills there were."""
    lay_out(start)
    places = [(call, number) for call, number, line in calls_of(action)
              if call in CHANGES and (call != "openat" or "O_CREAT" in line)]
    for call, number in places:
        lay_out(start)
        killed = run_disturbed(action, call, "signal=KILL", number).returncode != 0
        check(killed, f"{action} was not killed at {call} {number}")
        check(served(state()) in map(served, (start, *outcomes)), f"{action}, killed at {call} {number}: served half made")
        check(run(MENDING[action]).returncode == 0, f"{action}, killed at {call} {number}: no recovery")
        check(state() in outcomes, f"{action}, killed at {call} {number}")
    return len(places)


def fail_everywhere(action, start, outcomes):
    lay_out(start)
    before, failures = state(), 0
    errors = {call: itertools.cycle(each.items()) for call, each in FAILURES.items()}
    repeated, written, places = collections.Counter(), set(), []
    for call, number, line in calls_of(action):
        # A folder is searched in the same way again and again; every fifth of such calls is enough. What was only read
        # may be closed as it likes.
        same = re.sub(r"\d+<", "<", line).partition(" = ")[0]
        repeated[same] += 1
        path = re.search(r'[<"](/[^>"]*)[>"]', line.replace(os.getcwd(), ""))[1]
        written |= {path} if "O_CREAT" in line else set()
        if call not in errors or (call in REPEATED and repeated[same] % 5 != 1) or (call == "close" and path not in written):
            continue
        places.append((call, number))
    # The changes of a kind are made by the same calls: after the first action each takes its turn at every third.
    turn = ACTIONS.index(action)
    for call, number in places if turn == 0 else places[turn % 3::3]:
        error, reported = next(errors[call])
        lay_out(start)
        ended = run_disturbed(action, call, f"error={error}", number)
        left = state()
        what = f"{action}, {error} at {call} {number}"
        # Where the change is made, what could not be tidied up goes at the next start.
        if left not in outcomes:
            check(run(MENDING[action]).returncode == 0, what + ": no recovery")
        if ended.returncode == 0:
            check(state() == outcomes[-1], what + ": passed over, and not done")
            continue
        failures += 1
        check(ended.stdout.strip() == reported, f"{what}: reported {ended.stdout!r}")
        check(call != "write" or left == before, what + ": something changed")
        check(state() in outcomes, what + ": neither before nor after")
    return failures


def times():
    """What a look at the folder tells of changes, without opening a file."""
    found = {}
    for place, _, names in os.walk(folder):
        for name in names:
            try:
                found[place, name] = os.stat(os.path.join(place, name)).st_mtime_ns
            except FileNotFoundError:
                pass
    return found


def span_of_changes(action, start):
    """When the undisturbed action begins and ends to change files, in seconds after its announcement."""
    lay_out(start)
    before = last = times()
    first = end = None
    with subprocess.Popen([*PROGRAM, str(folder), action, "announced"], stdout=subprocess.PIPE) as process:
        process.stdout.readline()
        began = time.monotonic()
        while process.poll() is None:
            now = times()
            if now != last:
                end = time.monotonic() - began
                first = end if first is None else first
            last = now
    return (first, end) if first is not None else (0, time.monotonic() - began)


def end_at_random(action, count, start, outcomes):
    """Ends the action at `count` random moments while it changes files, and at up to four times as many until every fourth
    found it half made; starts the program again, and compares."""
    spans = [span_of_changes(action, start) for _ in range(7)]
    first, last = (statistics.median(ends) for ends in zip(*spans))
    found = collections.Counter()
    while found.total() < count or (found["between"] * 4 < count and found.total() < 4 * count):
        lay_out(start)
        moment = random.uniform(first, last)
        with subprocess.Popen([*PROGRAM, str(folder), action, "announced"], stdout=subprocess.PIPE) as process:
            process.stdout.readline()
            time.sleep(moment)
            process.kill()
        files = state()
        where = "before" if files == outcomes[0] else "after" if files == outcomes[-1] else "between"
        found[where] += 1
        # Nobody looks at the folder now, and the computer is not as busy as it was: the span follows what is found.
        if where == "after":
            first, last = first * 0.95, (3 * last + moment) / 4
        elif where == "before":
            first, last = (3 * first + moment) / 4, last * 1.05
        what = f"{action}, ended at random, number {found.total()}"
        check(run(MENDING[action]).returncode == 0, what + ": no recovery")
        check(state() in outcomes, what)
    print(f"{action}: {found.total()} ends, at last from {first * 1000:.1f} to {last * 1000:.1f} ms; found {dict(found)}, nothing lost",
          flush=True)


def prepare(action):
    """What the action starts with, and what it may leave: what there was before, and what it does."""
    lay_out(starting_files())
    if action == "publish":
        check(run("publish").returncode == 0, "nothing is published")
        (folder / PWR / "QZRNUM6.Dat").write_text(record("11", "21", "2026", *["08"] * 7), newline="")
    notes = {"fetch": "SAMPLE.TXT", "remove-draw": "TALLYWICK.TYP"}
    if action in notes:
        text = (folder / PWR / "QZRNUM6.Dat").read_bytes() if action == "remove-draw" else b""
        (folder / PWR / notes[action]).write_bytes(text)
    if action in ("restore", "backup"):
        for where, dated in (("book", "11-18-2026"), ("backup", "11-16-2026")):
            (folder / where / PWR).mkdir(parents=True)
            for name in (COMMITTED.name, "QZR6PWR2.Ply"):
                (folder / where / PWR / name).write_text(play(dated, name[7:8]), newline="")
    start, before = files_now(), state()
    check(run(action).returncode == 0, f"{action} fails undisturbed")
    after = state()
    check(before != after, f"{action} does nothing")
    for name in (COMMITTED, PWR / "QZR6PWR2.Ply"):
        check(all(play in b"".join(after.values()) for play in before[name].splitlines()), f"{action} takes a play away")
    return start, (after,) if MENDING[action] == action else (before, after)


def test_action(action):
    start, outcomes = prepare(action)
    kills, failures = kill_everywhere(action, start, outcomes), fail_everywhere(action, start, outcomes)
    check(kills > 3 and failures > 5, f"{action}: only {kills} kills and {failures} failures")
    print(f"{action}: {kills} kills and {failures} failures, nothing lost")
    return outcomes[-1]


def test_order_on_disk():
    """What a cut of the power may undo: no change of names comes before the bytes and names that it builds on."""
    lay_out(starting_files())
    game = re.escape(str(folder / PWR))
    # Files whose bytes, and those whose names, are not yet on the disk.
    bytes_pending, names_pending, renamed = set(), set(), []
    for _, _, line in calls_of("done-10"):
        if made := re.match(rf'openat\(.*"({game}/.*)", O_WRONLY\|O_CREAT', line):
            bytes_pending.add(made[1])
            names_pending.add(made[1])
        elif synced := re.match(rf"fsync\(\d+<({game}.*)>\) = 0", line):
            bytes_pending.discard(synced[1])
            if synced[1] == str(folder / PWR):
                names_pending.clear()
        elif taken := re.match(rf'rename\("({game}/.*)", "({game}/.*)"\) = 0', line):
            check(not bytes_pending and names_pending <= {taken[1]}, f"too early: {line}")
            names_pending = {taken[2]}
            renamed.append(pathlib.Path(taken[2]).name)
        elif line.startswith("unlink("):
            check(not names_pending, f"too early: {line}")
    check(len(renamed) == 5 and renamed[0] == JOURNAL.name, f"taken over: {renamed}")


def test_recovery(done):
    """Recovery can itself be killed anywhere: what Done left half made is finished, or set aside, by the one after."""
    lay_out(starting_files())
    run_disturbed("done-10", "rename", "signal=KILL", 3)
    half_made = state()
    check(half_made.keys() > done.keys(), "Done was not killed half-way")
    copies = PWR / "QZR6PWR1 DATE.Ply"
    changed = play("11-18-2026", "09").encode()
    before = {name: text for name, text in half_made.items() if name != JOURNAL and name.suffix != ".tw~"}
    aside = {name.with_name(f"{name.stem} DATE{name.suffix}"): done[name]
             for name in (PWR / "QZR6PWR1.Sav", PWR / "QZR6PWR7.Ply")}
    for what, start, after in [
            ("half made", half_made, done),
            ("changed since", half_made | {COMMITTED: changed}, done | {copies: together(done[copies], changed)}),
            ("no journal of ours", half_made | {JOURNAL: b"../x"},
             before | aside | {copies: together(done[copies], done[COMMITTED]),
                               PWR / "TALLYWICK not carried out DATE.JNL": b"../x"})]:
        kills = kill_everywhere("recover", start, (after,))
        print(f"recovery, {what}: {kills} kills, nothing lost")


def main():
    for count in sys.argv[3:]:
        for action in ACTIONS:
            end_at_random(action, int(count), *prepare(action))
        shutil.rmtree(scratch)
        return 0
    if shutil.which("strace") is None or run("nothing", "strace", "-o", "/dev/null").returncode != 0:
        print("SKIPPED: no strace here, or it is not permitted to trace")
        return 77
    after = {action: test_action(action) for action in ACTIONS}
    if "done-10" in after:
        test_order_on_disk()
        test_recovery(after["done-10"])
    shutil.rmtree(scratch)
    return 0


sys.exit(main())
