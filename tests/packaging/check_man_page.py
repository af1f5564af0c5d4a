# SPDX-License-Identifier: GPL-3.0-or-later
"""Checks that a program's man page and its --help tell the same options: check_man_page.py PROGRAM PAGE."""

import re
import subprocess
import sys

program, page = sys.argv[1:]
told = subprocess.run([program, "--help"], capture_output=True, text=True, check=True).stdout
with open(page, encoding="utf-8") as file:
    written = file.read().replace("\\-", "-")
in_help = set(re.findall(r"(?<![\w-])--[a-z][a-z-]+", told))
in_page = set(re.findall(r"(?<![\w-])--[a-z][a-z-]+", written))
for option in sorted(in_help - in_page):
    print(f"{page} does not tell of {option}")
for option in sorted(in_page - in_help):
    print(f"{program} --help does not tell of {option}")
sys.exit(in_help != in_page)
