#!/usr/bin/env python3
"""Makes what users are given: pack.py BUILDS-FOLDER PACKAGE-FOLDER

The zips for each width, and the SHA-256 sums of all. BUILDS-FOLDER holds windows-x64 and windows-x86. Nothing of this
machine or moment goes in: names stand in order, and every file has the time of the commit.
"""

import hashlib
import os
import pathlib
import re
import subprocess
import sys
import time
import zipfile

ROOT = pathlib.Path(__file__).resolve().parents[1]
WIDTHS = ("x64", "x86")


def version():
    """As shown to users: the first two numbers of the project's version."""
    return re.search(r"^project\(Tarvelon VERSION (\d+\.\d+)", (ROOT / "CMakeLists.txt").read_text(), re.M)[1]


def moment():
    """Seconds since 1970: when the commit was made, or for sources without a history when the version was last set."""
    if given := os.environ.get("SOURCE_DATE_EPOCH"):
        return int(given)
    told = subprocess.run(["git", "-C", ROOT, "log", "-1", "--format=%ct"], capture_output=True, text=True, check=False)
    return int(told.stdout) if told.returncode == 0 else int((ROOT / "CMakeLists.txt").stat().st_mtime)


def windows_text(path):
    """A text for the oldest of editors."""
    return path.read_text().replace("@VERSION@", version()).replace("\n", "\r\n").encode()


def program_files(builds, width):
    """What is laid beside each other: names, with slashes, to bytes."""
    files = {
        "TarvelonLow.exe": (builds / f"windows-{width}" / "TarvelonLow.exe").read_bytes(),
        "LICENSE.txt": windows_text(ROOT / "LICENSE"),
        "Read me.txt": windows_text(ROOT / "packaging" / "read-me.txt"),
    }
    for path in (ROOT / "help").rglob("*"):
        if path.is_file():
            files["Help/" + path.relative_to(ROOT / "help").as_posix()] = path.read_bytes()
    return files


def write_zip(path, files):
    with zipfile.ZipFile(path, "w") as pack:
        for name, content in sorted(files.items()):
            entry = zipfile.ZipInfo(name, time.gmtime(moment())[:6])
            entry.compress_type = zipfile.ZIP_DEFLATED
            entry.create_system = 0  # As packed by Windows, whose files have no modes.
            pack.writestr(entry, content, compresslevel=9)


def write_sums(folder):
    sums = [f"{hashlib.sha256(path.read_bytes()).hexdigest()}  {path.name}\n"
            for path in sorted(folder.iterdir()) if path.name != "SHA256SUMS"]
    (folder / "SHA256SUMS").write_text("".join(sums))


def main():
    builds, folder = (pathlib.Path(argument) for argument in sys.argv[1:])
    folder.mkdir(parents=True, exist_ok=True)
    for old in folder.iterdir():
        old.unlink()
    for width in WIDTHS:
        files = program_files(builds, width)
        write_zip(folder / f"Tarvelon-{version()}-{width}.zip",
                  {f"Tarvelon/{name}": content for name, content in files.items()})
    write_sums(folder)
    for path in sorted(folder.iterdir()):
        print(f"{path.stat().st_size:10} {path}")


if __name__ == "__main__":
    main()
