#!/usr/bin/env python3
"""Holds the folders to the layers that docs/architecture.md draws: layers.py

Each line of the drawing names one layer's folders in backticks. A file includes from its own folder and from those
in lines below; every folder with product code is drawn.
"""

import pathlib
import re
import sys

NOT_PRODUCT = {"tests", "tools", "bench", "build", "cmake"}


def drawn_layers(page):
    drawing = re.search(r"<!-- layers -->\n(.*?)<!-- /layers -->", page.read_text(), re.S)[1]
    folders = [re.findall(r"`([\w/]+)`", line.split("|")[1]) for line in drawing.splitlines() if "`" in line]
    return {folder: level for level, line in enumerate(folders) for folder in line}


def main():
    root = pathlib.Path(__file__).parents[2]
    level = drawn_layers(root / "docs/architecture.md")
    faults, seen = [], 0
    for path in sorted(root.glob("**/*.[ch]*")):
        file = path.relative_to(root)
        if path.suffix not in (".h", ".cpp") or file.parts[0] in NOT_PRODUCT:
            continue
        own = str(file.parent)
        if own not in level:
            faults.append(f"{file}: the folder {own} is in no layer")
            continue
        for include in re.findall(r'^#include "(.+)"', path.read_text(), re.M):
            seen += 1
            folder = str(pathlib.PurePath(include).parent)
            if folder != own and level.get(folder, -1) <= level[own]:
                faults.append(f"{file}: {include} is not below {own}")
    for fault in faults:
        print(fault)
    return 1 if faults or not seen else 0


if __name__ == "__main__":
    sys.exit(main())
