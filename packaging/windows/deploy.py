#!/usr/bin/env python3
"""Makes the folder that runs on Windows, and that the installer packs, of a build for Windows.

deploy.py BUILD TARGET --qt PREFIX [--licences FOLDER] [--strip]

Installs the portable layout of BUILD into TARGET, then puts beside the programs what they import, by
and by: Qt's libraries from PREFIX, the compiler's runtime from the compiler that the build names, and
the plugins that Qt loads by itself. It runs on Linux and on Windows alike.

The licences of Qt and of the runtime come from the folder that --licences names, or on Debian from
the packages of the same sources. Without any it fails, since what it makes is to be given away.
"""

import argparse
import os
import re
import shutil
import subprocess
import sys
from pathlib import Path

PLUGINS = ("platforms/qwindows.dll", "styles/qwindowsvistastyle.dll", "imageformats/qgif.dll",
           "imageformats/qico.dll", "imageformats/qjpeg.dll", "printsupport/windowsprintersupport.dll")
DEBIAN_NOTICES = ("libqt5core5a", "libqt5gui5", "libqt5charts5", "libqt5serialport5", "libqt5network5",
                  "gcc-mingw-w64-base", "mingw-w64-common")
COMMON_LICENCES = ("GPL-2", "GPL-3", "LGPL-2.1", "LGPL-3", "GFDL-1.3")


def output_of(*command):
    return subprocess.run(list(map(str, command)), stdout=subprocess.PIPE, text=True, check=True).stdout


def cached(build, name):
    """What the build folder's cache says of NAME; empty when it says nothing."""
    found = re.search(rf"^{name}:\w+=(.*)$", (build / "CMakeCache.txt").read_text(encoding="utf-8"), re.M)
    return found.group(1) if found else ""


class Libraries:
    """Finds the libraries that a program imports."""

    def __init__(self, folders, compiler, objdump):
        self.folders = [Path(folder) for folder in folders]
        self.compiler = compiler
        self.objdump = objdump

    def imports(self, program):
        return re.findall(r"^\s*DLL Name: (\S+)", output_of(self.objdump, "-p", program), re.M)

    def find(self, name):
        """Where the library NAME is that goes along; None when it is a part of Windows."""
        for folder in self.folders:
            if (folder / name).is_file():
                return folder / name
        runtime = Path(output_of(self.compiler, f"-print-file-name={name}").strip())
        if runtime.is_file():
            return runtime
        if self.is_of_windows(name):
            return None
        sys.exit(f"Nothing holds {name}, which the programs need.")

    def is_of_windows(self, name):
        if os.name == "nt":
            return (Path(os.environ["SystemRoot"]) / "System32" / name).is_file()
        # The compiler has an import library for each library of the system.
        stem = re.sub(r"\.(dll|drv)$", "", name.lower())
        return name.lower().startswith("api-ms-win-") or any(
            Path(output_of(self.compiler, f"-print-file-name=lib{form}.a").strip()).is_file()
            for form in (stem, name.lower()))

    def needed_by(self, programs):
        """Every library that PROGRAMS need beside them, without those that stand there already."""
        waiting, needed, seen = list(programs), {}, set()
        while waiting:
            for name in self.imports(waiting.pop()):
                if name.lower() in seen:
                    continue
                seen.add(name.lower())
                library = self.find(name)
                if library:
                    needed[name] = library
                    waiting.append(library)
        return needed


def copy_licences(target, folder):
    licences = target / "licences"
    licences.mkdir(exist_ok=True)
    if folder:
        shutil.copytree(folder, licences, dirs_exist_ok=True)
        return
    notices = [Path("/usr/share/doc") / package / "copyright" for package in DEBIAN_NOTICES]
    missing = [str(notice) for notice in notices if not notice.is_file()]
    if missing:
        sys.exit(f"Name the licences of Qt and of the compiler's runtime with --licences: there is no {missing[0]}.")
    for notice in notices:
        shutil.copy(notice, licences / f"{notice.parent.name}.txt")
    for name in COMMON_LICENCES:
        shutil.copy(Path("/usr/share/common-licenses") / name, licences / f"{name}.txt")


def copy_texts(target, qt):
    """Qt's own texts in Chinese, of the same Qt or of this machine's."""
    for folder in (qt / "translations", Path("/usr/share/qt5/translations")):
        if (folder / "qtbase_zh_CN.qm").is_file():
            (target / "bin/translations").mkdir(exist_ok=True)
            shutil.copy(folder / "qtbase_zh_CN.qm", target / "bin/translations")
            return
    print("There is no qtbase_zh_CN.qm: Qt's own dialogs will stay English.", file=sys.stderr)


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("build", type=Path)
    parser.add_argument("target", type=Path)
    parser.add_argument("--qt", type=Path, required=True, help="the Qt that the build was made with")
    parser.add_argument("--licences", type=Path, help="folder with the licences of Qt and of the runtime")
    parser.add_argument("--strip", action="store_true", help="take the symbols out of programs and libraries")
    options = parser.parse_args()
    target = options.target

    if not (options.build / "bin/help.pdf").is_file():
        sys.exit(f"There is no manual: put help.pdf of a build for this machine into {options.build / 'bin'}.")
    subprocess.run(["cmake", "--install", options.build, "--prefix", target, "--component", "portable"],
                   check=True, stdout=subprocess.DEVNULL)
    programs = sorted((target / "bin").glob("*.exe"))
    for plugin in PLUGINS:
        goal = target / "bin" / plugin
        goal.parent.mkdir(exist_ok=True)
        shutil.copy(options.qt / "plugins" / plugin, goal)
        programs.append(goal)

    libraries = Libraries([options.qt / "bin", options.qt / "lib"], cached(options.build, "CMAKE_CXX_COMPILER"),
                          cached(options.build, "CMAKE_OBJDUMP"))
    for name, library in libraries.needed_by(programs).items():
        shutil.copy(library, target / "bin" / name)
        programs.append(target / "bin" / name)
    if options.strip:
        subprocess.run([cached(options.build, "CMAKE_STRIP"), "--strip-unneeded", *programs], check=True)
    copy_texts(target, options.qt)
    copy_licences(target, options.licences)
    print(f"Deployed into {target}: {len(programs)} programs and libraries.")


if __name__ == "__main__":
    main()
