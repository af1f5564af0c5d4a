# SPDX-License-Identifier: GPL-3.0-or-later
"""Checks the manual: check_manual.py FOLDER README. Links lead somewhere, every page is reachable, every picture exists, has
alternative text and is used by a page; the pictures of README exist.
The distribution's link checker starts at one page and so never sees the page to which no link leads."""

import os
import re
import sys
from html.parser import HTMLParser


class Page(HTMLParser):
    def __init__(self, text):
        super().__init__()
        self.links, self.anchors, self.pictures = [], set(), []
        self.feed(text)

    def handle_starttag(self, tag, attrs):
        if tag == "img":
            self.pictures.append(dict(attrs))
        self.links += [value for name, value in attrs if name == "href"]
        self.anchors |= {value for name, value in attrs if name in ("id", "name")}


folder, readme = sys.argv[1:]
pages = {}
for name in sorted(name for name in os.listdir(folder) if name.endswith(".html")):
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

used = set()
for name, page in pages.items():
    for picture in page.pictures:
        used.add(picture["src"])
        if not picture.get("alt"):
            faults.append(f"{name}: {picture['src']} has no alternative text")
there = {"pictures/" + name for name in os.listdir(os.path.join(folder, "pictures"))}
faults += [f"{picture} is missing; scripts/pictures makes it" for picture in sorted(used - there)]
faults += [f"{picture} is on no page" for picture in sorted(there - used)]
with open(readme, encoding="utf-8") as file:
    for picture in re.findall(r"!\[[^\]]+\]\(([^)]+)\)", file.read()):
        if not os.path.exists(os.path.join(os.path.dirname(readme), picture)):
            faults.append(f"README: {picture} is missing")
print("\n".join(faults))
sys.exit(bool(faults))
