#!/usr/bin/env python3
"""Looks into the finished program file: executable.py FILE

Size, protection flags, and imports: only the system's own libraries, and for the 32-bit program only calls that are in
Windows XP with Service Pack 2. The list of them stands beside this script.
"""

import pathlib
import re
import subprocess
import sys
import tempfile

MOST_BYTES = 1 << 20
HIGH_ENTROPY, RELOCATABLE, NO_EXECUTE = 0x20, 0x40, 0x100


def known_calls():
    """Names of calls by the DLL that has them."""
    known = {}
    for line in (pathlib.Path(__file__).parent / "xp_calls.txt").read_text().splitlines():
        if line and not line.startswith("#"):
            library, names = line.split(":", 1)
            known.setdefault(library, set()).update(names.split())
    return known


def imports(dump):
    library = None
    for line in dump.splitlines():
        if match := re.match(r"\s*DLL Name: (\S+)", line):
            library = match[1].lower()
        elif match := re.match(r"\t[0-9a-f]+\s+(?:<none>\s+)?(?:[0-9a-f]+\s+)?(\S+)$", line):
            if library:
                yield library, match[1]
        elif library and not line.strip():
            library = None


def faults(path):
    dump = subprocess.run(["objdump", "-p", path], check=True, capture_output=True, text=True).stdout
    is_64_bit = "pei-x86-64" in dump

    with tempfile.TemporaryDirectory() as folder:
        stripped = pathlib.Path(folder) / "stripped.exe"
        prefix = "x86_64" if is_64_bit else "i686"
        subprocess.run([f"{prefix}-w64-mingw32-strip", "-o", stripped, path], check=True)
        size = stripped.stat().st_size
    if size > MOST_BYTES:
        yield f"{size} bytes stripped, more than {MOST_BYTES}"

    flags = int(re.search(r"^DllCharacteristics\s+([0-9a-f]+)", dump, re.M)[1], 16)
    wanted = {"relocatable": RELOCATABLE, "data not executable": NO_EXECUTE}
    if is_64_bit:
        wanted["high-entropy addresses"] = HIGH_ENTROPY
    for name, flag in wanted.items():
        if not flags & flag:
            yield f"not marked: {name}"
    subsystem = re.search(r"^MajorSubsystemVersion\s+(\d+)", dump, re.M)[1]
    if not is_64_bit and int(subsystem) > 4:
        yield f"marked for Windows {subsystem}.0 and later"
    if "relocations stripped" in dump:
        yield "no relocations left to move it by"

    known, seen = known_calls(), 0
    for library, name in imports(dump):
        seen += 1
        if library not in known:
            yield f"{library} is not one of the system's own libraries"
        elif not is_64_bit and name not in known[library]:
            yield f"{name} of {library} is not known to be in Windows XP; see tests/checks/xp_calls.txt"
    if not seen:
        yield "no imports found; has the output of objdump changed?"


def main():
    found = list(dict.fromkeys(faults(sys.argv[1])))
    for fault in found:
        print(f"{sys.argv[1]}: {fault}")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
