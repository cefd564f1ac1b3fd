#!/usr/bin/env python3
"""Holds to the project's version, which the rest is made from, those texts that name it by themselves: version.py"""

import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).parents[2]
PLACES = {
    "packaging/tarvelon.manifest": r'name="Quillfen\.Tarvelon" version="(\d+\.\d+)\.\d+\.\d+"',
    "ui/start_controls.h": r'"Version: (\d+\.\d+)"',
    "help/index.html": r"help of version (\d+\.\d+)\.",
    "README.md": r"Tarvelon-(\d+\.\d+)-setup\.exe",
}


def named(file, pattern):
    return set(re.findall(pattern, (ROOT / file).read_text()))


if __name__ == "__main__":
    project = named("CMakeLists.txt", r"project\(Tarvelon VERSION (\d+\.\d+)\.\d+ ")
    sys.exit("\n".join(f"{file} names version {found or 'none'}, not {project}" for file, pattern in PLACES.items()
                       if (found := named(file, pattern)) != project) or 0)
