#!/usr/bin/env python3
"""Runs clang-tidy over the product's sources: lint.py STAMP-FOLDER BUILD-FOLDER...

Each source is looked at as the first of the builds that has it compiles it, all those of a folder that are compiled
alike in one go, one behind the other, since most of the work goes into the headers. A folder that passed leaves a stamp keyed on everything
that could change the outcome, and is not looked at again until one of those things changes.
"""

import collections
import concurrent.futures
import functools
import hashlib
import json
import os
import pathlib
import re
import shlex
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
        source = pathlib.Path(command["file"])
        in_one = re.findall(r'^#include "(.*)"', source.read_text(), re.M) if source.parent.name == "Unity" else [source]
        for path in map(pathlib.Path, in_one):
            if path.is_relative_to(root) and path.relative_to(root).parts[0] not in NOT_PRODUCT:
                yield path, command["command"]


def ways(command):
    """How a source is compiled: the compiler, and what it is told apart from the names of files."""
    compiler, *words = (word for word in shlex.split(command) if pathlib.Path(word).name != "ccache")
    kept, words = [], iter(words)
    for word in words:
        if word in ("-o", "-c", "-MF", "-MT"):
            next(words)
        elif word != "-MD":
            kept.append(word)
    return compiler, tuple(kept)


def in_one_file(texts):
    """The texts one behind the other, line by line, without what an earlier one has included already."""
    included, lines = set(), []
    for text in texts:
        own = text.splitlines(keepends=True)
        lines += ["\n" if line in included else line for line in own]
        included.update(line for line in own if line.startswith("#include"))
    return "".join(lines)


@functools.lru_cache
def arguments_for(compiler):
    """What clang has to be told to see what a compiler for another system sees."""
    if "mingw" not in compiler:
        return []
    told = subprocess.run([compiler, "-E", "-v", "-x", "c++", "/dev/null"], check=True, capture_output=True, text=True)
    folders = [line.strip() for line in told.stderr.splitlines() if line.startswith(" /") and "cc1plus" not in line]
    # All but the compiler's own headers, which clang has its own of.
    others = [folder for folder in folders if not re.search(r"/gcc/[^/]*/[^/]*/include(-fixed)?$", folder)]
    system = [word for folder in others for word in ("-isystem", folder)]
    return ["--target=x86_64-w64-mingw32", "-Wno-ignored-attributes", *system]


def main():
    stamps, *builds = (pathlib.Path(argument).resolve() for argument in sys.argv[1:])
    root = pathlib.Path.cwd()
    stamps.mkdir(parents=True, exist_ok=True)
    headers = [path for path in sorted(root.rglob("*.h")) if path.relative_to(root).parts[0] != "build"]
    version = subprocess.run(["clang-tidy", "--version"], check=True, capture_output=True).stdout
    shared = digest(version, (root / ".clang-tidy").read_bytes(), *(path.read_bytes() for path in headers))

    def lint(folder, compiler, options, paths):
        key = digest(shared.encode(), repr((folder, compiler, options)).encode(), *(path.read_bytes() for path in paths))
        stamp, whole = stamps / key, stamps / f"{key}.cpp"
        if stamp.exists():
            return None
        texts = [path.read_text() for path in paths]
        whole.write_text(in_one_file(texts))
        run = subprocess.run(["clang-tidy", "--quiet", whole, "--", *options, *arguments_for(compiler),
                              "-Wno-unknown-warning-option"], capture_output=True, text=True)
        if run.returncode == 0:
            stamp.touch()
            return None
        origins = [f"{path}:{line}:" for path, text in zip(paths, texts) for line in range(1, text.count("\n") + 1)]
        findings = run.stdout or run.stderr
        return re.sub(rf"{whole}:(\d+):", lambda place: origins[int(place[1]) - 1], findings)

    seen, groups = set(), collections.defaultdict(list)
    for build in builds:
        for path, command in product_commands(root, build):
            if path not in seen:
                seen.add(path)
                groups[(str(path.parent), *ways(command))].append(path)
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        turns = sorted(groups.items(), key=lambda group: -len(group[1]))
        findings = [text for text in pool.map(lambda group: lint(*group[0], group[1]), turns) if text is not None]
    print("".join(findings), end="")
    print(f"{len(seen)} sources in {len(groups)} groups, {len(findings)} with findings")
    return 1 if findings or not seen else 0


if __name__ == "__main__":
    sys.exit(main())
