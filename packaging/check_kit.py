"""The check for those who have a Windows at hand: its programs, check.cmd, and what tells about them."""

import pathlib
import subprocess
import tempfile

HERE = pathlib.Path(__file__).resolve().parent / "check"
STRIP = {"x64": "x86_64-w64-mingw32-strip", "x86": "i686-w64-mingw32-strip"}
PROGRAMS = ("tests/contract/contract_test.exe", "tests/contract/contract_en-US.exe", "tests/contract/contract_ja-JP.exe",
            "tests/e2e/e2e.exe", "tests/e2e/recording_scanner.exe", "tests/view/view_test.exe",
            "tools/check/check.exe", "tools/screens.exe")


def stripped(program, width):
    """The program's bytes without names for debuggers, and as else without the time of day."""
    with tempfile.TemporaryDirectory() as folder:
        copy = pathlib.Path(folder) / program.name
        subprocess.run([STRIP[width], "-p", "-o", copy, program], check=True)
        return copy.read_bytes()


def kit_files(builds, width, program_files, windows_text):
    """Names, with slashes, to bytes. PROGRAM_FILES is what users are given; WINDOWS_TEXT reads a text."""
    build = builds / f"windows-{width}"
    files = {f"programs/{name}": content for name, content in program_files.items()
             if name == "TarvelonLow.exe" or name.startswith("Help/")}
    files |= {f"programs/{pathlib.PurePosixPath(name).name}": stripped(build / name, width) for name in PROGRAMS}
    files["check.cmd"] = windows_text(HERE / "check.cmd")
    files["Read me.txt"] = windows_text(HERE / "read-me.txt")
    files["LICENSE.txt"] = program_files["LICENSE.txt"]
    return files
