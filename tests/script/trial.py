#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Searches, counts and winning-ticket checks on random draws, against a count with sets of integers that shares no code with
theirs. trial.py PROGRAM"""
import datetime, itertools, json, pathlib, random, subprocess, sys, tempfile

import transcript


def has(draw, numbers, size=6):
    return set(numbers) <= set(draw[1][:size])


def wins(play, draw):
    return len(set(play[1][:5]) & set(draw[1][:5])) >= 3 or play[1][5] == draw[1][5]


def trial(program, folder, code, search, white, extra):
    rng = random.Random(code)
    numbers = lambda: ['%02d' % n for n in sorted(rng.sample(range(1, white + 1), 5))] + ['%02d' % rng.randint(1, extra)]
    days = [day.strftime('%m-%d-%Y') for day in transcript.draw_days(datetime.date(2026, 6, 15), range(1, 8), 400)]
    draws = [(day, numbers()) for day in days[::2]]
    plays = [(rng.choice(days), numbers()) for _ in range(300)]
    plays += [(draw[0], draw[1][:n] + numbers()[n:]) for n, draw in enumerate(draws[:3], 2)]
    plays.append((days[-1], numbers()))
    here = folder / 'QzrNumbers' / ('QZR6' + code)
    for name in 'QZRNUM6.Dat', 'QZRNUM62.Dat':
        (here / name).write_text(transcript.quoted(day.split('-') + balls + ['2'] for day, balls in draws), newline='')
    (here / ('QZR6%s2.Ply' % code)).write_text(transcript.quoted([day] + balls + ['0'] for day, balls in plays), newline='')

    lines, expected = ['click ' + ('Command7' if code == 'PWR' else 'Command4')], []

    def expect(command, show, *wanted):
        lines.extend(command + ['show ' + show])
        expected.extend(wanted)
    won = [play for play in plays if any(play[0] == draw[0] and wins(play, draw) for draw in draws)]
    expect([], 'List2', [play[0] for play in won if play is not plays[-1]])
    for source, size in itertools.product(range(0, len(draws), 41), (2, 3)):
        for marks in itertools.combinations(range(6), size):
            chosen = [draws[source][1][place] for place in marks if marks != (1, 3, 4) or place != 4]
            found = [draw[0] for draw in draws if has(draw, chosen, 5 if marks in ((0, 1, 2), (0, 1, 3)) else 6)]
            expect(['choose Combo4 %d' % source, 'click Command37'] + ['click Command3%d' % (place + 1) for place in marks] +
                   ['click ' + search], 'List8 Label25', found, '%d  Times.' % len(found))
    for number in ('%02d' % n for n in range(1, white + 1)):
        found = [draw[0] for draw in draws if has(draw, [number])]
        expect(['type Combo3 ' + ' ' * 15 + number, 'click Command29', 'click Command30'], 'List7 Label24', found,
               '%s Played: %d Times' % (number, len(found)))
    latest = [n for n, play in enumerate(plays, 1) if wins(play, draws[0])]
    expect(['click Option1', 'click Command47'], 'List11',
           [text for n in latest for text in (plays[n - 1][0], plays[n - 1][0], '')])
    expect(['click Option2', 'click Command47'], 'List11', [play[0] for play in won])

    run = subprocess.run([*transcript.THROUGH, program, '--folder', folder, '--now', transcript.NOW], input='\n'.join(lines), capture_output=True, text=True)
    shown = [entry for entry in map(json.loads, run.stdout.splitlines()) if 'name' in entry]
    for entry, wanted in zip(shown, expected):
        texts = [item[1:11].strip() for item in entry['items']] if 'items' in entry else entry['caption']
        if texts != wanted if 'items' in entry else not texts.endswith(wanted):
            sys.exit('%s %s: %s, and not %s' % (code, entry['name'], texts, wanted))
    if run.returncode or len(shown) != len(expected) or len(won) < 20 or len(latest) < 5:
        sys.exit('the trial of %s was cut short: %d of %d outputs, %d and %d winners\n%s' % (code, len(shown), len(expected), len(won), len(latest), run.stderr))


with tempfile.TemporaryDirectory() as scratch:
    transcript.mkbook(pathlib.Path(scratch))
    trial(sys.argv[1], pathlib.Path(scratch), 'PWR', 'Command38', 25, 9)
    trial(sys.argv[1], pathlib.Path(scratch), 'MEG', 'Command25', 30, 9)
