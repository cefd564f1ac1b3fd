#!/usr/bin/env python3
"""Runs clang-tidy over the product's sources: lint.py STAMP-FOLDER BUILD-FOLDER...

Each source is looked at as the first of the builds that has it compiles it. One that passed leaves a stamp keyed on
everything that could change the outcome, and is not looked at again until one of those things changes.
"""

import concurrent.futures
import functools
import hashlib
import json
import os
import pathlib
import re
import subprocess
import sys

NOT_PRODUCT = {"tests", "tools", "bench", "build"}


def digest(*parts):
    whole = hashlib.sha256()
    for part in parts:
        whole.update(hashlib.sha256(part).digest())
    return whole.hexdigest()


def product_commands(root, build):
    for command in json.loads((build / "compile_commands.json").read_text()):
        path = pathlib.Path(command["file"])
        if path.is_relative_to(root) and path.relative_to(root).parts[0] not in NOT_PRODUCT:
            yield path, command["command"]


@functools.lru_cache
def arguments_for(compiler):
    """What clang has to be told to see what a compiler for another system sees."""
    if "mingw" not in compiler:
        return []
    told = subprocess.run([compiler, "-E", "-v", "-x", "c++", "/dev/null"], check=True, capture_output=True, text=True)
    folders = [line.strip() for line in told.stderr.splitlines() if line.startswith(" /") and "cc1plus" not in line]
    # All but the compiler's own headers, which clang has its own of.
    others = [folder for folder in folders if not re.search(r"/gcc/[^/]*/[^/]*/include(-fixed)?$", folder)]
    system = [f"--extra-arg={word}" for folder in others for word in ("-isystem", folder)]
    return ["--extra-arg=--target=x86_64-w64-mingw32", "--extra-arg=-Wno-ignored-attributes", *system]


def main():
    stamps, *builds = (pathlib.Path(argument).resolve() for argument in sys.argv[1:])
    root = pathlib.Path.cwd()
    stamps.mkdir(parents=True, exist_ok=True)
    headers = [path for path in sorted(root.rglob("*.h")) if path.relative_to(root).parts[0] != "build"]
    version = subprocess.run(["clang-tidy", "--version"], check=True, capture_output=True).stdout
    shared = digest(version, (root / ".clang-tidy").read_bytes(), *(path.read_bytes() for path in headers))

    def lint(path, build, command):
        stamp = stamps / digest(shared.encode(), command.encode(), path.read_bytes())
        if stamp.exists():
            return None
        tidy = ["clang-tidy", "--quiet", "--extra-arg=-Wno-unknown-warning-option", "-p", build]
        run = subprocess.run([*tidy, *arguments_for(command.split()[0]), path], capture_output=True, text=True)
        if run.returncode == 0:
            stamp.touch()
            return None
        return run.stdout + (run.stderr if not run.stdout else "")

    commands = {}
    for build in builds:
        for path, command in product_commands(root, build):
            commands.setdefault(path, (path, build, command))
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        findings = [text for text in pool.map(lambda source: lint(*source), commands.values()) if text is not None]
    print("".join(findings), end="")
    print(f"{len(commands)} sources, {len(findings)} with findings")
    return 1 if findings or not commands else 0


if __name__ == "__main__":
    sys.exit(main())
