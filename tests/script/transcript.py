#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Runs one script of tallywick-script on a small record book and compares what happens with its transcript.

transcript.py PROGRAM NAME.script... [--accept]

The transcript, NAME.expected, repeats the script's lines, each followed by what it prints; a list has one item a line, a long
one only its first and last items. --accept writes it anew: read every changed line before it is checked in.

Lines that begin with #! are for this driver: `write FILE` writes the records that follow (separated by ` | `), `remove FILE`
removes a file, `cat FILE` prints it as it is now. Those before the script's first line run before the program starts. A FILE
with a folder is below QzrNumbers; a + in its name is a blank."""
import argparse, datetime, difflib, json, os, pathlib, re, subprocess, sys, tempfile

# What runs the program where this system does not.
THROUGH = os.environ.get('TALLYWICK_EMULATOR', '').split()
NOW = '06-16-2026 12:00:00'  # a Tuesday


def draw_days(last, weekdays, count):
    """So many days backwards from `last`, each on one of the weekdays (Monday is 1)."""
    day = last
    while count:
        if day.isoweekday() in weekdays:
            yield day
            count -= 1
        day -= datetime.timedelta(1)


def draw(n, white, extra):
    """Five ascending numbers up to `white`, and one up to `extra`."""
    return ['%02d' % b for b in sorted((11 * n + 17 * k) % white + 1 for k in range(5))] + ['%02d' % (7 * n % extra + 1)]


def quoted(rows):
    return ''.join(','.join('"%s"' % field for field in row) + '\r\n' for row in rows)


# The newest draws, with the tenth field: each white ball of the first is repeated by another one of the next five, one of them as
# an extra ball and one as a tenth field.
POWERBALL = ['04 10 23 41 66 20 2', '04 11 23 30 52 07 3', '01 12 33 40 55 06 10', '02 14 28 36 61 23 2',
             '05 08 41 44 69 26 4', '03 17 29 48 66 12 2']
MEGA_MILLIONS = ['09 12 33 54 70 24 ', '12 13 34 55 61 09 ']
DOUBLE_PLAY = ['10 23 50 61 62 7', '10 11 12 13 14 15', '16 23 24 25 26 01']
PLAYS = {  # main numbers, extra ball, decade pattern
    'PWR/QZR6PWR1.Ply': ['06-15-2026 04 10 23 50 51 09 1110020', '06-15-2026 07 08 31 32 60 02 2002001',
                         '06-17-2026 01 02 03 04 05 06 5000000', '06-20-2026 11 22 33 44 55 26 0111110'],
    'PWR/QZR6PWR2.Ply': ['06-15-2026 04 10 23 50 51 09 1110020', '06-15-2026 01 02 03 05 06 20 5000000',
                         '06-13-2026 04 10 11 41 69 01 1200101', '11-11-1111 04 10 23 41 66 21 1110101',
                         '06-14-2026 04 10 23 41 66 21 1110101', '06-10-2026 01 12 33 40 63 02 1101101',
                         '06-08-2026 02 14 28 37 62 23 1111001'],
    'MEG/QZR6MEG1.Ply': ['06-16-2026 09 12 33 71 72 01 11010002'],
    'MEG/QZR6MEG2.Ply': ['06-12-2026 01 02 03 04 05 24 50000000', '06-09-2026 12 13 14 55 79 01 03000101',
                         '06-05-2026 40 41 42 43 44 03 00005000']}


def mkbook(folder):
    """Both games with 120 draws. The second copy of the history has another extra ball in its newest draw, so that a list shows
    which copy it comes from; the third draw's amount has blanks around it, the first amount one before it."""
    games = {'PWR': (POWERBALL, datetime.date(2026, 6, 15), (1, 3, 6), 69, 26, [' 40', '250', ' 230 ', ' 40 ', '12', '99']),
             'MEG': (MEGA_MILLIONS, datetime.date(2026, 6, 12), (2, 5), 70, 24, ['12', '40', '30'])}
    for code, (newest, last, weekdays, white, extra, amounts) in games.items():
        here = folder / 'QzrNumbers' / ('QZR6' + code)
        here.mkdir(parents=True)
        days = [day.strftime('%m %d %Y').split() for day in draw_days(last, weekdays, 120)]
        rows = [day + (newest[n].split(' ') if n < len(newest) else draw(n, white, extra) + [str(n % 3 + 2)])
                for n, day in enumerate(days)]
        (here / 'QZRNUM6.Dat').write_text(quoted(rows), newline='')
        if code == 'PWR':
            doubles = [row + [''] + (DOUBLE_PLAY[n].split() if n < 3 else draw(2 * n, 69, 26)) + [''] for n, row in enumerate(rows)]
            (here / 'QZRNUM72.Dat').write_text(quoted(doubles), newline='')
        rows[0] = rows[0][:8] + ['21', rows[0][9]]
        (here / 'QZRNUM62.Dat').write_text(quoted(rows), newline='')
        wins = [day + [amount, str(n % 3)] for n, (day, amount) in enumerate(zip(days, amounts))]
        (here / ('Qzr%s.Win' % code.capitalize())).write_text(quoted(wins), newline='')
    for name, plays in PLAYS.items():
        (folder / 'QzrNumbers' / ('QZR6' + name)).write_text(quoted(play.split() for play in plays), newline='')
    (folder / 'QzrNumbers/QZR6PWR/QZR6PWR9.Sel').write_text(quoted([['07 11 23 31 44 09'], ['Anna, 2nd']]), newline='')
    (folder / 'QzrNumbers/PlyNumbers').mkdir()
    days = [datetime.date(2026, 6, 1) + datetime.timedelta(n) for n in range(60)]
    calendar = [day.strftime('%m %d %Y').split() + ['', '', str(day.isoweekday())] for day in days]
    (folder / 'QZRNUM22.DTE').write_text(quoted(calendar), newline='')
    (folder / 'PWF.TXT').write_text('secret\r\n')
    (folder / 'PWF2.TXT').write_text('reader\r\n')


def shortened(items, mark='... %d more'):
    items = [json.dumps(item, ensure_ascii=False) if not isinstance(item, str) or mark[0] == '.' else item for item in items]
    return items if len(items) <= 20 else items[:3] + [mark % (len(items) - 5)] + items[-2:]


def rendered(line):
    """A printed line; the items of a list or chart each on a line of its own."""
    try:
        shown = json.loads(line)
    except ValueError:
        return line
    items = shown.get('items', shown.get('bars')) if isinstance(shown, dict) else None
    if not items:
        return json.dumps(shown, ensure_ascii=False)
    head, tail = json.dumps({key: '@' if value is items else value for key, value in shown.items()}, ensure_ascii=False).split('"@"')
    return '\n'.join([head + '['] + ['  ' + item for item in shortened(items)] + [']' + tail])


class Run:
    def __init__(self, program, folder):
        self.program, self.folder, self.process, self.text = program, folder, None, []
        self.sent = []  # the script's line of each line that the program got
        self.errors = open(folder / 'stderr', 'w+', encoding='utf-8')

    def path(self, name):
        return self.folder / ('QzrNumbers/' + name if '/' in name else name)

    def direct(self, verb, rest):
        name, _, records = rest.partition(' ')
        name = name.replace('+', ' ')
        if verb == 'write':
            self.path(name).parent.mkdir(parents=True, exist_ok=True)
            self.path(name).write_text(''.join(record + '\r\n' for record in records.split(' | ') if record), newline='')
        elif verb == 'remove':
            self.path(name).unlink()
        elif verb == 'cat':
            lines = self.path(name).read_bytes().decode().split('\r\n') if self.path(name).exists() else ['(missing)', '']
            self.text += ['| ' + line for line in shortened(lines[:-1] + ([lines[-1] + '(no line end)'] if lines[-1] else []), '%d more')]
        else:
            sys.exit('no such directive: ' + verb)

    def command(self, number, line):
        if self.process is None:
            start = [*THROUGH, self.program, '--folder', str(self.folder), '--now', NOW, '--seed', '1', '--source', 'server']
            self.process = subprocess.Popen(start, stdin=subprocess.PIPE, stdout=subprocess.PIPE, stderr=self.errors, encoding='utf-8')
        # What `windows` prints ends what the line prints.
        self.sent += [number] if line == 'windows' else [number, number]
        try:
            self.process.stdin.write(line + '\n' + ('windows\n' if line != 'windows' else ''))
            self.process.stdin.flush()
        except BrokenPipeError:
            pass
        for printed in iter(self.process.stdout.readline, ''):
            ends = printed.startswith('{"windows":')
            if not ends or line == 'windows':
                self.text.append(rendered(printed.rstrip('\n')))
            if ends:
                return

    def end(self):
        self.process.communicate()
        self.errors.seek(0)
        for line in self.errors:
            line = re.sub(r'(?<=: line )\d+', lambda found: str(self.sent[int(found[0]) - 1]), line.rstrip())
            # On Windows its paths have a drive and back slashes.
            book = r'(?:[A-Z]:)?' + r'[\\/]'.join(re.escape(part) for part in str(self.folder).split('/'))
            self.text.append('stderr: ' + re.sub(book + r'([\w\\/]*)', lambda found: 'BOOK' + found[1].replace('\\', '/'), line))
        self.text.append('exit code %d' % self.process.returncode)
        return '\n'.join(self.text) + '\n'


def transcript(program, script):
    with tempfile.TemporaryDirectory(ignore_cleanup_errors=True) as scratch:
        run = Run(program, pathlib.Path(scratch))
        mkbook(run.folder)
        for number, line in enumerate(script.read_text(encoding='utf-8').splitlines(), 1):
            run.text.append('> ' + line if line and line[0] != '#' else line)
            if line.startswith('#!'):
                run.direct(*line[2:].strip().split(' ', 1))
            elif line and line[0] != '#':
                run.command(number, line)
        return run.end()


def main():
    options = argparse.ArgumentParser(description='Compares what tallywick-script does with transcripts.')
    options.add_argument('program')
    options.add_argument('scripts', nargs='+', type=pathlib.Path)
    options.add_argument('--accept', action='store_true', help='write the transcripts anew')
    given = options.parse_args()
    differs = False
    for script in given.scripts:
        actual, expected = transcript(given.program, script), script.with_suffix('.expected')
        if given.accept:
            expected.write_text(actual, encoding='utf-8')
            continue
        wanted = expected.read_text(encoding='utf-8') if expected.exists() else ''
        sys.stdout.writelines(difflib.unified_diff(wanted.splitlines(True), actual.splitlines(True), expected.name, 'now'))
        differs |= actual != wanted
    return differs


if __name__ == '__main__':
    sys.exit(main())
