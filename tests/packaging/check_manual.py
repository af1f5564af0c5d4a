"""Checks the manual: check_manual.py FOLDER. Tags are balanced, links lead somewhere, every page is reachable."""

import os
import sys
from html.parser import HTMLParser

EMPTY = {"meta", "br", "hr", "img"}


class Page(HTMLParser):
    def __init__(self, text):
        super().__init__()
        self.open, self.links, self.anchors, self.faults = [], [], set(), []
        self.feed(text)
        self.faults += [f"<{tag}> is never closed" for tag in self.open]

    def handle_starttag(self, tag, attrs):
        if tag not in EMPTY:
            self.open.append(tag)
        self.links += [value for name, value in attrs if name in ("href", "src")]
        self.anchors |= {value for name, value in attrs if name in ("id", "name")}

    def handle_endtag(self, tag):
        if not self.open or self.open.pop() != tag:
            self.faults.append(f"</{tag}> closes nothing, at line {self.getpos()[0]}")


folder = sys.argv[1]
pages = {}
for name in sorted(os.listdir(folder)):
    with open(os.path.join(folder, name), encoding="utf-8") as file:
        pages[name] = Page(file.read())
faults = [f"{name}: {fault}" for name, page in pages.items() for fault in page.faults]
reached, todo = set(), ["index.html"]
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
