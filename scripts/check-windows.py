#!/usr/bin/env python3
"""Lets the Windows compiler read every source of ours, as far as the syntax goes, makes the resources of
the programs, and deploys and packs a stand-in for them.

check-windows.py [BUILD-FOLDER] [PART-OF-A-PATH]

mingw-w64 reads them with Windows' own headers and with the Qt headers of this machine, which take
their Windows branches by the compiler's macros. It needs a finished build, whose flags and generated
headers it uses.

Where MZ_WINDOWS_QT names a Qt 5.15 that was built for mingw-w64, and Wine is there, the programs and
tests are built with it in build-windows, deployed, packed and run, and the wait box is looked at.
Without these it says that nothing was run.
"""

import json
import os
import re
import shlex
import shutil
import subprocess
import sys
import tempfile
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
WINDOWS = ROOT / "packaging/windows"
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


def sources_of(entry):
    """The source that ENTRY compiles, or those that a unity build compiles as one."""
    source = Path(entry["file"])
    if source.parent.name != "Unity":
        return [source]
    return [Path(name) for name in re.findall(r'^#include "(.+)"$', source.read_text(encoding="utf-8"), re.M)]


def compilations(build, part):
    """The settings of each source of ours, one compilation a source."""
    database = json.loads((build / "compile_commands.json").read_text(encoding="utf-8"))
    found = {}
    for source, entry in ((source, entry) for entry in database for source in sources_of(entry)):
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


def headers_without_system(folder):
    """Headers of libraries that are headers alone, apart from the others of this machine."""
    (folder / "CLI").symlink_to("/usr/include/CLI")
    return ["-isystem", str(folder)]


def compiles(source, settings):
    return succeeds(source.relative_to(ROOT),
                    [COMPILER, "-std=c++17", "-fsyntax-only", *WARNINGS, *settings, str(source)])


def makes_resources(build):
    resources = sorted((build / "packaging").glob("*.rc"))
    with tempfile.TemporaryDirectory() as folder:
        good = [succeeds(file.name, [RESOURCE_COMPILER, str(file), "-O", "coff", "-o", f"{folder}/resource"])
                for file in resources]
    return bool(resources) and all(good)


def packs_stand_in():
    """Deploys and packs a program that needs the compiler's runtime and a plugin in place of Qt's."""
    with tempfile.TemporaryDirectory() as name:
        folder = Path(name)
        (folder / "main.cpp").write_text("#include <iostream>\nint main() { std::cout << 1; }\n", encoding="utf-8")
        (folder / "CMakeLists.txt").write_text(
            "cmake_minimum_required(VERSION 3.18)\nproject(stand_in CXX)\nadd_executable(mz6218 main.cpp)\n"
            "add_library(plugin MODULE main.cpp)\n"
            "install(TARGETS mz6218 RUNTIME DESTINATION bin COMPONENT portable)\n", encoding="utf-8")
        build, qt, target = folder / "build", folder / "qt", folder / "deployed"
        made = succeeds("the toolchain file", [
            "cmake", "-G", "Ninja", "-S", name, "-B", str(build),
            f"-DCMAKE_TOOLCHAIN_FILE={WINDOWS}/toolchain-mingw64.cmake"]) and succeeds(
            "a stand-in", ["cmake", "--build", str(build)])
        if not made:
            return False
        for plugin in re.findall(r"\w+/q?\w+\.dll", (WINDOWS / "deploy.py").read_text(encoding="utf-8")):
            (qt / "plugins" / plugin).parent.mkdir(parents=True, exist_ok=True)
            shutil.copy(build / "libplugin.dll", qt / "plugins" / plugin)
        (build / "bin").mkdir()
        (build / "bin/help.pdf").write_bytes(b"")
        good = succeeds("to be deployed", [str(WINDOWS / "deploy.py"), str(build), str(target), "--qt", str(qt)])
        for file in ("bin/libstdc++-6.dll", "bin/libwinpthread-1.dll", "licences/LGPL-3.txt"):
            if good and not (target / file).is_file():
                print(f"The deployed folder lacks {file}.", file=sys.stderr)
                good = False
        return good and succeeds("the installer", [str(WINDOWS / "installer.py"), str(target),
                                                   str(folder / "mz6218-stand-in.exe")])


class Wine:
    """Runs programs for Windows on a virtual screen, with drives and registry of its own."""

    def __init__(self, folder):
        self.folder = folder
        # DISPLAY stays set, as it may be for a user; what else decides on Qt's plugins goes.
        self.environment = {name: value for name, value in os.environ.items() if not name.startswith("QT_")}
        self.environment |= {"WINEPREFIX": str(folder), "WINEDEBUG": "-all", "WINEDLLOVERRIDES": "mscoree,mshtml="}

    def __call__(self, *command, **settings):
        """The outcome of COMMAND, whose words are text or paths, with its output."""
        return subprocess.run(["xvfb-run", "-a", *map(str, command)], text=True, check=False, timeout=1800,
                              env=self.environment | settings, stdout=subprocess.PIPE, stderr=subprocess.STDOUT)

    def starts(self, program, *options):
        return subprocess.Popen(["wine", program, *options], text=True, env=self.environment, stdout=subprocess.PIPE)

    def ends(self):
        """Waits for programs that others left running."""
        subprocess.run(["wineserver", "-w"], env=self.environment, check=False)


def fonts_in(folder):
    """Makes FOLDER, with the fonts that programs find without a screen, since Wine alone has none."""
    shutil.rmtree(folder, ignore_errors=True)
    folder.mkdir(parents=True)
    for pattern in ("DejaVu Sans", "DejaVu Sans:bold", "sans:lang=zh-cn"):
        match = subprocess.run(["fc-match", "-f", "%{file}", pattern], text=True, check=True, stdout=subprocess.PIPE)
        font = Path(match.stdout)
        if not (folder / font.name).exists():
            (folder / font.name).symlink_to(font)
    return folder


def passes_tests(wine, folder, qt):
    """Whether the tests in FOLDER pass; tells how many did, and what was skipped for which reason."""
    # Wine hands on Qt's variables by these names alone.
    tests = wine("ctest", "--test-dir", folder, "--output-on-failure", WINEQT_PLUGIN_PATH=f"Z:{qt}/plugins",
                 WINEQT_QPA_FONTDIR=f"Z:{fonts_in(folder / 'fonts')}",
                 WINEPATH=f"{folder / 'deployed/bin'};{qt}/bin")
    rows = (folder / "Testing/Temporary/LastTest.log").read_text(encoding="utf-8", errors="replace").splitlines()
    print(*[line for line in rows if line.startswith("SKIP")], sep="\n")
    counts = [[int(number) for number in re.findall(r"\d+", line)[:3]] for line in rows if line.startswith("Totals:")]
    passed, failed, skipped = (sum(column) for column in zip([0, 0, 0], *counts))
    print(f"Tests under Wine: {len(counts)} classes, {passed} rows passed, {failed} failed, {skipped} skipped.")
    return says("the tests", tests, "100% tests passed")


def says(what, outcome, wanted=""):
    """Whether a program under Wine succeeded and printed WANTED; otherwise tells what it printed."""
    good = outcome.returncode == 0 and wanted in outcome.stdout
    if not good:
        print(f"Under Wine, {what} fails ({outcome.returncode}):\n{outcome.stdout}", file=sys.stderr, flush=True)
    return good


def measures(wine, folder):
    """Whether the deployed programs measure at the simulated instrument, and read a sample."""
    simulator = wine.starts(folder / "bin/mz6218-sim.exe", "--port", "0", "--noise", "0", "--level", "-33")
    try:
        address = (simulator.stdout.readline().split() or ["nowhere"])[-1]
        return says("reading the power", wine("wine", folder / "bin/mz6218-cli.exe", "--lan", address, "read"),
                    "-33.00") and says("a sample's figures", wine(
                        "wine", folder / "bin/mz6218-patterns.exe", "--figures", folder / "samples/horn.csv"),
                        "horn.csv,")
    finally:
        simulator.kill()
        simulator.wait()
        # A desktop that the simulator brought up off the screen would show no later program.
        wine.ends()


def installs(wine, deployed):
    """Whether the installer brings programs that run, and the uninstaller leaves the user's files alone."""
    setup, place = wine.folder / "mz6218-setup-check.exe", wine.folder / "drive_c/MZ6218"
    # Wine of 64 bits alone runs no installer of 32 bits, which is what Windows gets.
    if not succeeds("the installer", [str(WINDOWS / "installer.py"), str(deployed), str(setup),
                                      "--target", "amd64-unicode"]):
        return False
    shutil.rmtree(place, ignore_errors=True)
    good = says("the installer", wine("wine", setup, "/S", "/D=C:\\MZ6218"))
    good = good and says("an installed program", wine("wine", place / "bin/mz6218-cli.exe", "--version"), "mz6218")
    record = place / "bin/DataRecord/2026-01-31.csv"
    if good:
        record.parent.mkdir()
        record.touch()
        good = says("the uninstaller", wine("wine", place / "uninstall.exe", "/S"))
        wine.ends()
    rest = [path for path in place.rglob("*") if path.is_file()]
    if good and rest != [record]:
        print(f"The uninstaller leaves {rest}.", file=sys.stderr)
        return False
    return good


def builds_and_deploys(build, folder, qt):
    if not (succeeds("to be configured", [
            "cmake", "-G", "Ninja", "-S", str(ROOT), "-B", str(folder), "-DCMAKE_BUILD_TYPE=Release",
            "-DCMAKE_UNITY_BUILD=ON", f"-DCMAKE_TOOLCHAIN_FILE={WINDOWS}/toolchain-mingw64.cmake",
            f"-DCMAKE_PREFIX_PATH={qt}"]) and succeeds("to be built", ["cmake", "--build", str(folder)])):
        return False
    shutil.copy(build / "bin/help.pdf", folder / "bin")
    shutil.rmtree(folder / "deployed", ignore_errors=True)
    return succeeds("to be deployed", [str(WINDOWS / "deploy.py"), str(folder), str(folder / "deployed"),
                                       "--qt", qt, "--strip"])


def runs(build):
    """Builds with the Qt for Windows, deploys, packs and runs, as far as that Qt and Wine are there."""
    qt = os.environ.get("MZ_WINDOWS_QT", "")
    if not qt or not shutil.which("wine"):
        print("Nothing was built against a Qt for Windows and nothing was run: "
              + ("there is no Wine." if qt else "MZ_WINDOWS_QT names none."))
        return True
    folder = ROOT / "build-windows"
    if not builds_and_deploys(build, folder, qt):
        return False
    wine, deployed = Wine(folder / "wine"), folder / "deployed"
    programs = sorted((deployed / "bin").glob("*.exe"))
    good = [says(program.name, wine("wine", program, "--version"), "1.") for program in programs]
    good.append(says("the examination", wine("wine", deployed / "bin/mz6218.exe", "--doctor"), "OK "))
    good.append(measures(wine, deployed))
    shutil.copy(folder / "bin/mz_waitbox.exe", deployed / "bin")
    good.append(says("the wait box", wine(ROOT / "scripts/look-at-wait-box.sh", "wine",
                                          deployed / "bin/mz_waitbox.exe")))
    (deployed / "bin/mz_waitbox.exe").unlink()
    good.append(installs(wine, deployed))
    good.append(passes_tests(wine, folder, qt))
    print(f"{good.count(True)} of {len(good)} runs under Wine are as they should be.")
    return all(good)


def main(build="build", part=""):
    build = Path(build).resolve()
    found = compilations(build, part)
    if not found:
        sys.exit(f"There is nothing to check in {build}.")
    with tempfile.TemporaryDirectory() as folder, ThreadPoolExecutor(os.cpu_count()) as pool:
        headers = headers_without_system(Path(folder))
        results = list(pool.map(lambda item: compiles(item[0], item[1] + headers), found.items()))
    print(f"{results.count(True)} of {len(results)} sources compile for Windows.")
    rest = bool(part) or all([makes_resources(build), packs_stand_in(), runs(build)])
    return 0 if rest and all(results) else 1


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:3]))
