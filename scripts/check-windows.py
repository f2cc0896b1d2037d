#!/usr/bin/env python3
"""Lets the Windows compiler read every source of ours, as far as the syntax goes, and makes the
resources of the programs and an installer of a stand-in for them.

check-windows.py [BUILD-FOLDER] [PART-OF-A-PATH]

mingw-w64 reads them with Windows' own headers and with the Qt headers of this machine, which take
their Windows branches by the compiler's macros. It needs a finished build, whose flags and generated
headers it uses.
"""

import json
import os
import shlex
import subprocess
import sys
import tempfile
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
COMPILER = "x86_64-w64-mingw32-g++-posix"
RESOURCE_COMPILER = "x86_64-w64-mingw32-windres"
# CMake adds the first two, and the campaigns, for Unix alone; the last source includes a peer's header
# that Debian alone brings.
UNIX_ONLY = {"ptylink.cpp", "fakeinstrument.cpp", "qcpchart.cpp"}
UNIX_ONLY_FOLDER = ROOT / "campaigns"
WARNINGS = ["-Wall", "-Wextra", "-Werror"]


def settings_of(command):
    """What of a compilation's command decides on what the compiler sees."""
    words = iter(shlex.split(command))
    for word in words:
        if word.startswith(("-D", "-I")):
            yield word
        elif word == "-isystem":
            yield from (word, next(words))


def compilations(build, part):
    """The settings of each source of ours, one compilation a source."""
    database = json.loads((build / "compile_commands.json").read_text(encoding="utf-8"))
    found = {}
    for entry in database:
        source = Path(entry["file"])
        ours = source.is_relative_to(ROOT) and not source.is_relative_to(build)
        for_unix = source.name in UNIX_ONLY or source.is_relative_to(UNIX_ONLY_FOLDER)
        if ours and not for_unix and part in str(source):
            found[source] = list(settings_of(entry["command"]))
    return found


def succeeds(what, command):
    result = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, check=False)
    if result.returncode != 0:
        print(f"Windows refuses {what}:\n{result.stdout}", file=sys.stderr, flush=True)
    return result.returncode == 0


def compiles(source, settings):
    return succeeds(source.relative_to(ROOT),
                    [COMPILER, "-std=c++17", "-fsyntax-only", *WARNINGS, *settings, str(source)])


def packs(build):
    """Makes the resources of the programs and the installer."""
    resources = sorted((build / "packaging").glob("*.rc"))
    with tempfile.TemporaryDirectory() as folder:
        good = [succeeds(file.name, [RESOURCE_COMPILER, str(file), "-O", "coff", "-o", f"{folder}/resource"])
                for file in resources]
        good.append(succeeds("the installer", [
            "makensis", "-WX", "-DVERSION=1.0.0", f"-DSOURCE={ROOT}/packaging/windows",
            f"-DOUTPUT={folder}/mz6218-setup.exe", str(ROOT / "packaging/windows/mz6218.nsi")]))
    return bool(resources) and all(good)


def main(build="build", part=""):
    found = compilations(Path(build).resolve(), part)
    if not found:
        sys.exit(f"There is nothing to check in {build}.")
    with ThreadPoolExecutor(os.cpu_count()) as pool:
        results = list(pool.map(compiles, found.keys(), found.values()))
    print(f"{results.count(True)} of {len(results)} sources compile for Windows.")
    packed = bool(part) or packs(Path(build).resolve())
    return 0 if packed and all(results) else 1


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:3]))
