# SPDX-License-Identifier: GPL-3.0-or-later
"""The searches and counts as commands of other tools. A draw is ten fields, its numbers are fields 4 to 9; the records of
Double Play have eighteen fields and are read in tens, as the program reads them."""
import sys
import typing

DOUBLE_PLAY_FIELDS = 18



class Search(typing.NamedTuple):
    """The draws that have all these numbers among their first balls."""
    numbers: tuple
    balls: int = 6


AWK = """BEGIN { count = split(wanted, number, " ") }
{ gsub("\\"", ""); all = 1
  for (k = 1; k <= count && all; ++k) { all = 0; for (i = 4; i <= last; ++i) if ($i == number[k] "") { all = 1; break } }
  found += all }
END { print found + 0 }"""

AWK_IN_TENS = """BEGIN { count = split(wanted, number, " ") }
{ gsub("\\"", "")
  for (i = 1; i <= NF; ++i) { at = fields++ % 10
    if (at >= 3 && at < last) for (k = 1; k <= count; ++k) if ($i == number[k] "") has[k] = 1
    if (at == 9) { all = 1; for (k = 1; k <= count; ++k) if (!has[k]) all = 0; found += all; delete has } } }
END { print found + 0 }"""

PYTHON = """import csv, itertools, sys
rows = csv.reader(open(sys.argv[1], newline=""))
{tens}
print(sum(1 for row in rows if {condition}))"""

TENS = "rows = zip(*[itertools.chain.from_iterable(rows)] * 10)"


def awk(file, search, in_tens):
    return ["awk", "-F,", "-v", "wanted=" + " ".join(search.numbers), "-v", f"last={3 + search.balls}",
            AWK_IN_TENS if in_tens else AWK, file]


def python(file, search, in_tens):
    condition = " and ".join(f"'{number}' in row[3:{3 + search.balls}]" for number in search.numbers)
    return [sys.executable, "-c", PYTHON.format(tens=TENS if in_tens else "", condition=condition), file]


def query(search, in_tens):
    if not in_tens:
        balls = ", ".join(f"f{4 + ball}" for ball in range(search.balls))
        return "select count(*) from draws where " + " and ".join(f"'{number}' in ({balls})" for number in search.numbers) + ";"
    texts = ", ".join(f"'{number}'" for number in search.numbers)
    fields = " union all ".join(
        f"select (rowid - 1) * {DOUBLE_PLAY_FIELDS} + {field - 1} as place, f{field} as value from draws where f{field} in ({texts})"
        for field in range(1, DOUBLE_PLAY_FIELDS + 1))
    return (f"select count(*) from (select place / 10 from ({fields}) where place % 10 between 3 and {2 + search.balls} "
            f"group by place / 10 having count(distinct value) = {len(search.numbers)});")


def sqlite(file, searches, in_tens):
    """The script that imports the file and answers each search with a line, behind which comes that of its time."""
    fields = ", ".join(f"f{number}" for number in range(1, (DOUBLE_PLAY_FIELDS if in_tens else 10) + 1))
    return "\n".join([f"create table draws({fields});", ".mode csv", f".import '{file}' draws", ".timer on"] +
                     [query(search, in_tens) for search in searches]) + "\n"


def sqlite_answers(output):
    """The tally and the milliseconds of each search."""
    lines = output.splitlines()
    return [(tally, sum(float(word) for word in timed.split()[5::2]) * 1000) for tally, timed in zip(lines[::2], lines[1::2])]
