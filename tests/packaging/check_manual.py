# SPDX-License-Identifier: GPL-3.0-or-later
"""Checks the manual: check_manual.py FOLDER. Links lead somewhere, every page is reachable.
The distribution's link checker starts at one page and so never sees the page to which no link leads."""

import os
import sys
from html.parser import HTMLParser


class Page(HTMLParser):
    def __init__(self, text):
        super().__init__()
        self.links, self.anchors = [], set()
        self.feed(text)

    def handle_starttag(self, tag, attrs):
        self.links += [value for name, value in attrs if name in ("href", "src")]
        self.anchors |= {value for name, value in attrs if name in ("id", "name")}


folder = sys.argv[1]
pages = {}
for name in sorted(os.listdir(folder)):
    with open(os.path.join(folder, name), encoding="utf-8") as file:
        pages[name] = Page(file.read())
reached, todo, faults = set(), ["index.html"], []
while todo:
    name = todo.pop()
    if name in reached or name not in pages:
        continue
    reached.add(name)
    for link in pages[name].links:
        target, _, anchor = link.partition("#")
        target = target or name
        if target not in pages or (anchor and anchor not in pages[target].anchors):
            faults.append(f"{name}: {link} leads nowhere")
        todo.append(target)
faults += [f"{name} cannot be reached" for name in pages if name not in reached]
print("\n".join(faults))
sys.exit(bool(faults))
