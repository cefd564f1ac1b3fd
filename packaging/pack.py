#!/usr/bin/env python3
"""Makes what users are given: pack.py BUILDS-FOLDER PACKAGE-FOLDER

The zips for each width, the installer, the check for a Windows at hand, and the SHA-256 sums of all. BUILDS-FOLDER
holds windows-x64 and windows-x86. Nothing of this machine or moment goes in: names stand in order, and every file has
the time of the commit.
"""

import hashlib
import os
import pathlib
import re
import shutil
import struct
import subprocess
import sys
import tempfile
import time
import zipfile

from check_kit import kit_files

ROOT = pathlib.Path(__file__).resolve().parents[1]
WIDTHS = ("x64", "x86")


def version():
    """As shown to users: the first two numbers of the project's version."""
    return re.search(r"^project\(Tarvelon VERSION (\d+\.\d+)", (ROOT / "CMakeLists.txt").read_text(), re.M)[1]


def moment():
    """Seconds since 1970: when the commit was made, or for sources without a history when the version was last set."""
    if given := os.environ.get("SOURCE_DATE_EPOCH"):
        return int(given)
    # The one who packs need not be the owner of the sources.
    told = subprocess.run(["git", "-c", "safe.directory=*", "-C", ROOT, "log", "-1", "--format=%ct"],
                          capture_output=True, text=True, check=False)
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


def icon_pixels(icon, side):
    """The icon's picture of that size: rows from the top, each of (blue, green, red, opacity)."""
    for at in range(6, 6 + 16 * int.from_bytes(icon[4:6], "little"), 16):
        if icon[at] == side:
            start = int.from_bytes(icon[at + 12:at + 16], "little") + 40
            rows = [icon[start + 4 * side * y:start + 4 * side * (y + 1)] for y in range(side)]
            return [[row[x:x + 4] for x in range(0, 4 * side, 4)] for row in reversed(rows)]
    raise ValueError(f"the icon has no picture of {side} pixels")


def bitmap(width, height, colour, pixels, left, top):
    """A BMP file of one colour, blue first, with a picture laid on it."""
    ground = [[colour] * width for _ in range(height)]
    for y, row in enumerate(pixels):
        for x, (*point, opacity) in enumerate(row):
            ground[top + y][left + x] = tuple(
                (over * opacity + under * (255 - opacity)) // 255 for over, under in zip(point, colour))
    rows = [b"".join(bytes(point) for point in row) + bytes(-3 * width % 4) for row in reversed(ground)]
    body = b"".join(rows)
    return struct.pack("<2sIHHIIiiHHIIiiII", b"BM", 54 + len(body), 0, 0, 54, 40, width, height, 1, 24, 0, len(body),
                       2835, 2835, 0, 0) + body


def stage_installer(builds, stage):
    """Puts together what setup.nsi takes in: the files, the lists of them, the pictures. Gives the size in KB."""
    files = {}
    for width in WIDTHS:
        common = program_files(builds, width)
        files[f"{width}/TarvelonLow.exe"] = common.pop("TarvelonLow.exe")
    del common["Read me.txt"]
    icon = (ROOT / "packaging" / "pictures" / "application.ico").read_bytes()
    files |= common | {
        "application.ico": icon,
        "header.bmp": bitmap(150, 57, (255, 255, 255), icon_pixels(icon, 48), 98, 4),
        "side.bmp": bitmap(164, 314, (84, 56, 32), icon_pixels(icon, 64), 50, 60),
    }
    folders = sorted({str(pathlib.PurePosixPath(name).parent) for name in common})
    lay, take = [], []
    for folder in folders:
        place = "$INSTDIR" if folder == "." else "$INSTDIR\\" + folder.replace("/", "\\")
        lay.append(f'SetOutPath "{place}"')
        for name in sorted(common):
            if str(pathlib.PurePosixPath(name).parent) == folder:
                lay.append(f'File "{stage / name}"')
                take.append(f'Delete "{place}\\{pathlib.PurePosixPath(name).name}"')
    take += [f'RMDir "$INSTDIR\\{folder}"'.replace("/", "\\") for folder in reversed(folders) if folder != "."]
    files["lay.nsh"], files["take.nsh"] = ("\n".join(lines).encode() for lines in (lay, take))
    for name, content in files.items():
        path = stage / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(content)
        os.utime(path, (moment(), moment()))
    return (sum(map(len, common.values())) + len(files["x64/TarvelonLow.exe"])) // 1024


def write_installer(path, builds, width="x86"):
    """WIDTH is that of the installer itself, which carries both programs."""
    maker = dict(re.findall(r'const char\* (\w+) = "(.*)"', (ROOT / "core" / "maker.h").read_text()))
    with tempfile.TemporaryDirectory() as stage:
        size = stage_installer(builds, pathlib.Path(stage))
        given = {"VERSION": version(), "FULL_VERSION": version() + ".0.0", "MAKER": maker["name"],
                 "WEB_PAGE": maker["webPage"], "STAGE": stage, "SIZE": size, "OUTPUT": path.resolve(), "WIDTH": width}
        told = subprocess.run(["makensis", "-V2", "-WX", *(f"-D{name}={text}" for name, text in given.items()),
                               ROOT / "packaging" / "setup.nsi"], capture_output=True, text=True, check=False)
    if told.returncode:
        sys.exit(told.stdout + told.stderr)


def write_sums(folder):
    sums = [f"{hashlib.sha256(path.read_bytes()).hexdigest()}  {path.name}\n"
            for path in sorted(folder.iterdir()) if path.name != "SHA256SUMS"]
    (folder / "SHA256SUMS").write_text("".join(sums))


def main():
    builds, folder = (pathlib.Path(argument) for argument in sys.argv[1:])
    # Also what somebody has unpacked there to look at.
    shutil.rmtree(folder, ignore_errors=True)
    folder.mkdir(parents=True)
    for width in WIDTHS:
        files = program_files(builds, width)
        write_zip(folder / f"Tarvelon-{version()}-{width}.zip",
                  {f"Tarvelon/{name}": content for name, content in files.items()})
        write_zip(folder / f"Tarvelon-{version()}-check-{width}.zip",
                  {f"Tarvelon check/{name}": content
                   for name, content in kit_files(builds, width, files, windows_text).items()})
    write_installer(folder / f"Tarvelon-{version()}-setup.exe", builds)
    write_sums(folder)
    for path in sorted(folder.iterdir()):
        print(f"{path.stat().st_size:10} {path}")


if __name__ == "__main__":
    main()
