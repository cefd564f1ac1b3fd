#!/usr/bin/env python3
"""Installs, upgrades, starts and removes the program as users do, under Wine: check.py BUILDS-FOLDER

In a Windows of its own, below BUILDS-FOLDER. Wine for 64-bit programs runs no installer of 32 bits, so that here the
same one is made for 64.
"""

import os
import pathlib
import shutil
import stat
import subprocess
import sys
import tempfile
import time
import zipfile

sys.dont_write_bytecode = True
ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "packaging"))
import pack  # pylint: disable=wrong-import-position

BUILDS = pathlib.Path(sys.argv[1]).resolve()
WORK = BUILDS / "package-check"
PREFIX = WORK / "wine"
DRIVE = PREFIX / "drive_c"
BOXES = BUILDS / "windows-x64" / "tools" / "boxes.exe"
ENTRY = r"Software\Microsoft\Windows\CurrentVersion\Uninstall\Tarvelon"
FIRST_RUN = "This is your first time using Tarvelon."
NO_TO_ALL = ("No", "OK", "No", "OK")


def wine(*command, before=()):
    """What a Windows program prints and ends with."""
    with tempfile.TemporaryFile() as said:
        code = subprocess.run([*before, ROOT / "tools" / "wine-run", "64", PREFIX, *command], stdout=said,
                              stderr=subprocess.DEVNULL, timeout=300, check=False).returncode
        said.seek(0)
        return said.read().decode(errors="replace").replace("\r", ""), code


def windows_path(path):
    return "Z:" + str(path).replace("/", "\\")


def expect(holds, what):
    if not holds:
        raise AssertionError(what)


def files_in(folder):
    return {path.relative_to(folder).as_posix(): path.read_bytes() for path in folder.rglob("*") if path.is_file()}


def entry(root):
    """The entry in Apps: names to values."""
    lines = wine("reg", "query", root + "\\" + ENTRY)[0].splitlines()
    return dict(line.split(None, 2)[::2] for line in lines if "REG_" in line)


def comes_true(holds):
    """Uninstallers go on in a copy of theirs."""
    end = time.monotonic() + 60
    while not holds() and time.monotonic() < end:
        time.sleep(0.2)
    return holds()


def same_bytes_twice():
    sums = []
    for folder in ("once", "again"):
        subprocess.run([sys.executable, ROOT / "packaging" / "pack.py", BUILDS, WORK / folder], check=True,
                       stdout=subprocess.DEVNULL)
        sums.append((WORK / folder / "SHA256SUMS").read_text())
    expect(sums[0] == sums[1], f"packed twice, the same gives\n{sums[0]}and\n{sums[1]}")
    for program in BUILDS.glob("windows-x*/TarvelonLow.exe"):
        expect(str(ROOT).encode() not in program.read_bytes(), f"{program} tells where it was built")


def each_zip_has_its_width():
    for width, machine in (("x64", 0x8664), ("x86", 0x14C)):
        with zipfile.ZipFile(WORK / "once" / f"Tarvelon-{pack.version()}-{width}.zip") as packed:
            program = packed.read("Tarvelon/TarvelonLow.exe")
        at = int.from_bytes(program[60:64], "little") + 4
        expect(int.from_bytes(program[at:at + 2], "little") == machine, f"the program for {width} is of another width")


def zip_starts_anywhere():
    folder = WORK / "Ein Ordner, \u0444\u0430\u0439\u043b\u044b \u00e4\u00f6"
    with zipfile.ZipFile(WORK / "once" / f"Tarvelon-{pack.version()}-x64.zip") as packed:
        packed.extractall(folder)
    program = folder / "Tarvelon" / "TarvelonLow.exe"
    said, code = wine(BOXES, windows_path(program), "", *NO_TO_ALL, "see Tarvelon")
    expect(code == 0 and said.startswith(FIRST_RUN), said)
    expect((program.parent / "Data" / "Registry.dat").is_file(), f"no data in {folder}")

    before = files_in(folder)
    writable = [path for path in (folder, *folder.rglob("*"))]
    for path in writable:
        path.chmod(path.stat().st_mode & ~0o222)
    # Not even the super-user writes there, without the power to pass over permissions.
    powerless = ("setpriv", "--bounding-set=-dac_override", "--inh-caps=-dac_override") if os.getuid() == 0 else ()
    try:
        said, code = wine(BOXES, windows_path(program), "/r", "OK", *NO_TO_ALL, "OK", before=powerless)
    finally:
        for path in writable:
            path.chmod(path.stat().st_mode | stat.S_IWUSR)
    expect(code == 0 and said.startswith("Tarvelon cannot write to its data folder:\n" +
                                         windows_path(program.parent / "Data") + "\\\n"), said)
    expect(files_in(folder) == before, "a folder that cannot be written was changed")


def older_setup():
    """An installer of the version before, which had a page that went since."""
    now, files = pack.version, pack.program_files
    pack.version = lambda: "1.9"
    pack.program_files = lambda *given: files(*given) | {"Help/gone.html": b"gone"}
    try:
        pack.write_installer(WORK / "Tarvelon-1.9-setup.exe", BUILDS, "x64")
    finally:
        pack.version, pack.program_files = now, files
    return windows_path(WORK / "Tarvelon-1.9-setup.exe")


def one_user(setup):
    user = next(folder for folder in (DRIVE / "users").iterdir() if (folder / "Desktop").is_dir() and
                folder.name != "Public")
    link = user / "Desktop" / "SecureShutDown.lnk"
    start_ups = [start / "Microsoft/Windows/Start Menu/Programs/StartUp/Tarvelon.lnk"
                 for start in (user / "AppData/Roaming", DRIVE / "ProgramData")]
    home = DRIVE / "Else where"
    # The folder has to stand without quotation marks.
    said, _ = wine(BOXES, older_setup(), r"/S /Desktop /D=C:\Else where", "end")
    expect(said == "code 0\n" and home.is_dir(), said)
    expect(entry("HKCU")["DisplayVersion"] == "1.9" and link.is_file(), "no entry or link")

    for folder, reason in ((r"Z:\proc\x", "Nothing can be written to"), (r"C:\windows\win.ini\x", "There can be no")):
        said, code = wine(setup, "/S", "/AllUsers", "/D=" + folder)
        expect(code == 1 and said.startswith(reason), said)
    refused = (f"run {setup}|/S", r"run C:\Else where\Uninstall.exe|/S _?=C:\Else where")
    said, _ = wine(BOXES, r"C:\Else where\TarvelonLow.exe", "", "No", *refused)
    expect(said.startswith(FIRST_RUN), said)
    expect(said.count("code 1") == 2, "not refused while it runs: " + said)

    data = files_in(home / "Data")
    for start_up in start_ups:
        start_up.parent.mkdir(parents=True, exist_ok=True)
        shutil.copy(link, start_up)
    expect(wine(setup, "/S") == ("", 0), "the upgrade fails")
    told = entry("HKCU")
    expect(told["DisplayVersion"] == pack.version() and told["Publisher"] == "Quillfen" and
           int(told["EstimatedSize"], 16) > 500 and told["InstallLocation"] == r"C:\Else where", told)
    expect(files_in(home / "Data") == data, "the upgrade changes the data")
    expect(link.is_file() and all(map(os.path.isfile, start_ups)), "the upgrade takes links of the user")
    laid = set(files_in(home)) - {"Data/" + name for name in data} - {"Uninstall.exe"}
    expect(laid == set(pack.program_files(BUILDS, "x64")) - {"Read me.txt"}, f"laid down: {laid}")

    foreign = link.read_bytes()
    (home / "of the user.txt").write_text("")
    expect(wine(r"C:\Else where\Uninstall.exe", "/S")[1] == 0, "no uninstalling")
    expect(comes_true(lambda: not (home / "Uninstall.exe").exists()) and comes_true(lambda: not link.exists()),
           "not uninstalled")
    left = set(files_in(home))
    expect(left == {"Data/" + name for name in data} | {"of the user.txt"}, f"left behind: {left}")
    expect(not any(map(os.path.exists, start_ups)), "links are left behind")
    expect(not entry("HKCU"), "the entry is left behind")
    # Of a copy in another folder.
    start_ups[0].write_bytes(foreign)
    return start_ups[0]


def all_users(setup, foreign):
    home = DRIVE / "Program Files" / "Tarvelon"
    expect(wine(setup, "/S", "/AllUsers") == ("", 0), "not installed for all")
    expect(entry("HKLM")["DisplayName"] == "Tarvelon" and not entry("HKCU"), "no entry for all")
    menu = DRIVE / "ProgramData/Microsoft/Windows/Start Menu/Programs/Tarvelon.lnk"
    expect(menu.is_file(), "not in the start menu")
    said, _ = wine(BOXES, r"C:\Program Files\Tarvelon\TarvelonLow.exe", "", *NO_TO_ALL, "see Tarvelon")
    expect(said.startswith(FIRST_RUN) and (home / "Data" / "Tarvelon.dat").is_file(), said)
    expect(wine(r"C:\Program Files\Tarvelon\Uninstall.exe", "/S", "/Data")[1] == 0, "no uninstalling")
    expect(comes_true(lambda: not home.exists() and not menu.exists()), "something is left behind")
    expect(foreign.is_file(), "the link of another copy is taken")


def main():
    shutil.rmtree(WORK, ignore_errors=True)
    WORK.mkdir(parents=True)
    same_bytes_twice()
    each_zip_has_its_width()
    os.environ.pop("DISPLAY", None)
    subprocess.run(["bash", "-euc", '. "$0/tools/wine-session"; make_prefix "$1"', ROOT, PREFIX], check=True)
    zip_starts_anywhere()
    # With a display of its own Windows goes on from one program to the next, as uninstallers need it.
    with subprocess.Popen(["Xvfb", "-displayfd", "1", "-screen", "0", "1280x1024x24", "-nolisten", "tcp"], text=True,
                          stdout=subprocess.PIPE, stderr=subprocess.DEVNULL) as display:
        os.environ["DISPLAY"] = ":" + display.stdout.readline().strip()
        try:
            setup = WORK / "Tarvelon-x64-setup.exe"
            pack.write_installer(setup, BUILDS, "x64")
            all_users(windows_path(setup), one_user(windows_path(setup)))
        finally:
            # Without one, its end is waited for.
            del os.environ["DISPLAY"]
            wine("wineboot", "--kill")
            display.terminate()


if __name__ == "__main__":
    try:
        main()
    except AssertionError as fault:
        sys.exit(f"check.py: {fault}")
