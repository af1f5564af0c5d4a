#!/usr/bin/env python3
"""Kills Select, Done, the opening of a selection window and changes of the plays by hand at every file-system call, and
lets every call fail.

Whatever happens, the next start of the program must find the game folder wholly as it was or wholly as the
undisturbed action leaves it. Usage: killed_actions.py PROGRAM selection|by-hand, where PROGRAM is selection_action. Exit
code 77: this system has no strace, or does not let it trace.
"""

import collections
import datetime
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

PROGRAM = sys.argv[1]
SELECTION = ["open", "select", "done-1", "done-keep", "done-10"]
BY_HAND = ["remove", "move", "keep", "bring-back", "undo"]
KILLED_AT = ["openat", "read", "write", "fsync", "flock", "getdents64", "rename", "unlink", "close"]
# What a full disk, a folder without permission and a broken disk answer, and the runtime error it becomes.
FAILURES = [("openat", "EACCES", "70"), ("openat", "ENOSPC", "61"), ("write", "ENOSPC", "61"),
            ("write", "EDQUOT", "61"), ("fsync", "ENOSPC", "61"), ("fsync", "EIO", "57"), ("rename", "EACCES", "70"),
            ("rename", "EROFS", "70"), ("unlink", "EIO", "57"), ("close", "EIO", "57"), ("getdents64", "EIO", "57")]
ENVIRONMENT = dict(os.environ, ASAN_OPTIONS="detect_leaks=0")
GAME = pathlib.Path("QzrNumbers", "QZR6PWR")

scratch = pathlib.Path(tempfile.mkdtemp(prefix="tallywick-killed-"))
folder = scratch / "data"


def record(*fields):
    return ",".join(f'"{field}"' for field in fields) + "\r\n"


def play(date, first):
    return record(date, first, "11", "23", "42", "60", "07", "1110101")


def starting_files():
    day = datetime.date(2026, 11, 1)
    calendar = ""
    for _ in range(90):
        calendar += record(f"{day:%m}", f"{day:%d}", f"{day:%Y}", "day", "n", day.isoweekday())
        day += datetime.timedelta(days=1)
    return {
        "QZRNUM22.DTE": calendar,
        GAME / "QZR6PWR1.Ply": play("11-18-2026", "01") + play("11-18-2026", "02"),
        GAME / "QZR6PWR1.Sav": play("11-16-2026", "03"),
        GAME / "QZR6PWR2.Ply": play("11-11-1111", "00") + play("11-14-2026", "04"),
        GAME / "QZR6PWR2 2026-11-01 120000.Ply": play("11-07-2026", "09"),
        GAME / "QZRNUM6.Dat": record("11", "18", "2026", "01", "02", "03", "04", "05", "06", "2"),
        GAME / "QZRNUM72.Dat": "",
        GAME / "QZR6PWR7.Ply": play("11-21-2026", "05") + play("11-23-2026", "06") + play("11-23-2026", "08"),
    }


def lay_out(files):
    shutil.rmtree(folder, ignore_errors=True)
    (folder / GAME).mkdir(parents=True)
    for name, text in files.items():
        (folder / name).write_bytes(text.encode() if isinstance(text, str) else text)


def state():
    """The files but for locks; the dates of copies are taken out of their names, and copies of one file are together."""
    found = collections.defaultdict(list)
    for file in folder.rglob("*"):
        if file.is_file() and file.suffix != ".LCK":
            name = re.sub(r"\d{4}-\d\d-\d\d \d{6}", "DATE", str(file.relative_to(folder)))
            found[pathlib.Path(name)].append(file.read_bytes())
    return {name: together(*texts) for name, texts in found.items()}


def together(*texts):
    return b"".join(sorted(texts))


def run(action, *tracing):
    command = [*tracing, PROGRAM, str(folder), action]
    return subprocess.run(command, env=ENVIRONMENT, capture_output=True, text=True)


def run_disturbed(action, call, how, number):
    return run(action, "strace", "-f", "-o", "/dev/null", "-e", f"trace={call}", "-e",
               f"inject={call}:{how}:when={number}")


def calls_of(action):
    """How often the action makes each call."""
    log = scratch / "log"
    run(action, "strace", "-o", str(log))
    return collections.Counter(re.findall(r"^(\w+)\(", log.read_text(), re.MULTILINE))


def check(condition, what):
    if not condition:
        sys.exit(f"FAILED: {what}\nthe folder is left in {scratch}")


def numbers_of(action, call, loading):
    """The numbers of the calls that the action makes itself, after those of the program's loading."""
    return range(loading[call] + 1, calls_of(action)[call] + 1)


def kill_everywhere(action, start, outcomes, loading):
    """Kills at each call, starts the program again, and compares; returns how many kills there were."""
    kills = 0
    for call in KILLED_AT:
        lay_out(start)
        for number in numbers_of(action, call, loading):
            lay_out(start)
            killed = run_disturbed(action, call, "signal=KILL", number).returncode != 0
            check(killed, f"{action} was not killed at {call} {number}")
            kills += 1
            check(run("recover").returncode == 0, f"{action}, killed at {call} {number}: no recovery")
            check(state() in outcomes, f"{action}, killed at {call} {number}")
    return kills


def fail_everywhere(action, start, after, loading):
    failures = 0
    for call, error, told in FAILURES:
        lay_out(start)
        for number in numbers_of(action, call, loading):
            lay_out(start)
            before = state()
            ended = run_disturbed(action, call, f"error={error}", number)
            what = f"{action}, {error} at {call} {number}"
            if ended.returncode == 0:
                # The change is made; what could not be tidied up goes at the next start.
                check(run("recover").returncode == 0, what + ": no recovery")
                check(state() == after, what + ": passed over, and not done")
                continue
            failures += 1
            check(ended.stdout.strip() == told, f"{what}: told {ended.stdout!r}")
            check(call != "write" or state() == before, what + ": something changed")
            check(run("recover").returncode == 0, what + ": no recovery")
            check(state() in (before, after), what + ": neither before nor after")
    return failures


def test_action(action, loading):
    start = starting_files()
    lay_out(start)
    before = state()
    check(run(action).returncode == 0, f"{action} fails undisturbed")
    after = state()
    check(before != after, f"{action} does nothing")
    kept = before[GAME / "QZR6PWR2.Ply"] == after[GAME / "QZR6PWR2.Ply"]
    check(kept or action in BY_HAND, f"{action} changes the history")
    plays = before[GAME / "QZR6PWR1.Ply"] + before[GAME / "QZR6PWR2.Ply"]
    check(all(play in b"".join(after.values()) for play in plays.splitlines()), f"{action} takes a play away")
    kills = kill_everywhere(action, start, (before, after), loading)
    failures = fail_everywhere(action, start, after, loading)
    check(kills > 30 and failures > 20, f"{action}: only {kills} kills and {failures} failures")
    print(f"{action}: {kills} kills and {failures} failures, nothing lost")
    return after


def test_order_on_disk():
    """What a cut of the power may undo: no change of names comes before the bytes and names that it builds on."""
    lay_out(starting_files())
    log = scratch / "log"
    run("done-10", "strace", "-y", "-o", str(log), "-e", "trace=openat,fsync,rename,unlink")
    game = re.escape(str(folder / GAME))
    # Files whose bytes, and those whose names, are not yet on the disk.
    bytes_pending, names_pending, renamed = set(), set(), []
    for line in log.read_text().splitlines():
        if made := re.match(rf'openat\(.*"({game}/.*)", O_WRONLY\|O_CREAT', line):
            bytes_pending.add(made[1])
            names_pending.add(made[1])
        elif synced := re.match(rf"fsync\(\d+<({game}.*)>\) = 0", line):
            bytes_pending.discard(synced[1])
            if synced[1] == str(folder / GAME):
                names_pending.clear()
        elif taken := re.match(rf'rename\("({game}/.*)", "({game}/.*)"\) = 0', line):
            check(not bytes_pending and names_pending <= {taken[1]}, f"too early: {line}")
            names_pending = {taken[2]}
            renamed.append(pathlib.Path(taken[2]).name)
        elif line.startswith("unlink("):
            check(not names_pending, f"too early: {line}")
    check(len(renamed) == 5 and renamed[0] == "TALLYWICK.JNL", f"taken over: {renamed}")


def test_recovery(done, loading):
    """Recovery can itself be killed anywhere: what Done left half made is finished, or set aside, by the one after."""
    lay_out(starting_files())
    run_disturbed("done-10", "rename", "signal=KILL", 3)
    half_made = state()
    check(half_made.keys() > done.keys(), "Done was not killed half-way")
    committed, journal = GAME / "QZR6PWR1.Ply", GAME / "TALLYWICK.JNL"
    copies = GAME / "QZR6PWR1 DATE.Ply"
    changed = play("11-18-2026", "09").encode()
    before = {name: text for name, text in half_made.items() if name != journal and name.suffix != ".tw~"}
    aside = {name.with_name(f"{name.stem} DATE{name.suffix}"): done[name]
             for name in (GAME / "QZR6PWR1.Sav", GAME / "QZR6PWR7.Ply")}
    for what, start, after in [
            ("half made", half_made, done),
            ("changed since", half_made | {committed: changed}, done | {copies: together(done[copies], changed)}),
            ("no journal of ours", half_made | {journal: b"../x"},
             before | aside | {copies: together(done[copies], done[committed]),
                               GAME / "TALLYWICK not carried out DATE.JNL": b"../x"})]:
        kills = kill_everywhere("recover", start, (after,), loading)
        print(f"recovery, {what}: {kills} kills, nothing lost")


def main():
    if shutil.which("strace") is None or run("nothing", "strace", "-o", "/dev/null").returncode != 0:
        print("SKIPPED: no strace here, or it is not permitted to trace")
        return 77
    lay_out(starting_files())
    loading = calls_of("nothing")
    after = {action: test_action(action, loading) for action in (BY_HAND if sys.argv[2] == "by-hand" else SELECTION)}
    if "done-10" in after:
        test_order_on_disk()
        test_recovery(after["done-10"], loading)
    shutil.rmtree(scratch)
    return 0


sys.exit(main())
