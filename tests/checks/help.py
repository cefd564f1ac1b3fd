#!/usr/bin/env python3
"""Holds the pages of the help together: help.py

Every link and picture leads to something, each page is well formed and marks itself in a navigation that lists all.
"""

import html.parser
import pathlib
import sys

HELP = pathlib.Path(__file__).parents[2] / "help"
EMPTY = {"meta", "link", "img", "br"}


class Page(html.parser.HTMLParser):
    def __init__(self, path):
        super().__init__()
        self.open, self.ids, self.links, self.listed, self.marked, self.faults = [], [], [], set(), [], []
        self.feed(path.read_text())

    def handle_starttag(self, tag, attributes):
        given = dict(attributes)
        self.ids += [given["id"]] if "id" in given else []
        self.links += [given[name] for name in ("href", "src") if name in given]
        self.listed |= {given.get("href")} if tag == "a" and "nav" in self.open else set()
        self.marked += [given["href"]] if "aria-current" in given else []
        self.faults += ["a picture without words"] if tag == "img" and not given.get("alt") else []
        self.open += [] if tag in EMPTY else [tag]

    def handle_endtag(self, tag):
        if not self.open or self.open.pop() != tag:
            self.faults.append(f"</{tag}> in line {self.getpos()[0]} closes something else")


def faults():
    pages = {path.name: Page(path) for path in HELP.glob("*.html")}
    for name, page in pages.items():
        yield from (f"{name}: {fault}" for fault in page.faults + [f"<{tag}> is left open" for tag in page.open])
        if page.listed != set(pages) or page.marked != [name] or len(set(page.ids)) != len(page.ids):
            yield f"{name}: lists other pages, marks another one, or has an id twice"
        for link in page.links:
            file, _, anchor = link.partition("#")
            if not (HELP / (file or name)).is_file() or anchor and anchor not in pages[file or name].ids:
                yield f"{name}: {link} leads nowhere"
    used = {link for page in pages.values() for link in page.links}
    yield from (f"{path.name} is on no page" for path in HELP.glob("pictures/*") if f"pictures/{path.name}" not in used)


if __name__ == "__main__":
    sys.exit("\n".join(faults()) or 0)
