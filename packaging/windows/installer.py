#!/usr/bin/env python3
"""Packs the installer for Windows of a folder that deploy.py made.

installer.py FOLDER OUTPUT.exe [--version VERSION] [--target TARGET]

The installer puts in exactly the files of FOLDER, and the uninstaller takes out exactly these: what
else lies in the folders then is the user's.
"""

import argparse
import re
import subprocess
import tempfile
from pathlib import Path

SCRIPT = Path(__file__).resolve().parent / "mz6218.nsi"


def windows(path):
    return str(path).replace("/", "\\")


def lists_of(folder):
    """The two macros that the script includes: what goes in, and what goes out, folders last."""
    files = sorted(path.relative_to(folder) for path in folder.rglob("*") if path.is_file())
    folders = sorted({parent for file in files for parent in file.parents if parent != Path(".")})
    lines = ["!macro INSTALL_FILES"]
    for place in [Path("."), *folders]:
        lines.append(f'    SetOutPath "{windows(Path("$INSTDIR") / place)}"')
        lines += [f'    File "{folder / file}"' for file in files if file.parent == place]
    lines += ["!macroend", "!macro REMOVE_FILES"]
    lines += [f'    Delete "$INSTDIR\\{windows(file)}"' for file in files]
    lines += [f'    RMDir "$INSTDIR\\{windows(place)}"' for place in reversed(folders)]
    return "\n".join([*lines, "!macroend", ""])


def version_of_project():
    text = (SCRIPT.parents[2] / "CMakeLists.txt").read_text(encoding="utf-8")
    return re.search(r"project\(mz6218 VERSION ([0-9.]+)", text).group(1)


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("folder", type=Path)
    parser.add_argument("output", type=Path)
    parser.add_argument("--version", default=version_of_project())
    parser.add_argument("--target", default="x86-unicode", help="what the installer itself runs on, as NSIS names it")
    options = parser.parse_args()
    if not (options.folder / "bin/mz6218.exe").is_file():
        parser.error(f"There is no bin/mz6218.exe in {options.folder}.")
    with tempfile.TemporaryDirectory() as place:
        lists = Path(place) / "files.nsh"
        lists.write_text(lists_of(options.folder.resolve()), encoding="utf-8")
        subprocess.run(["makensis", "-V2", "-WX", "-INPUTCHARSET", "UTF8", f"-DVERSION={options.version}",
                        f"-DTARGET={options.target}", f"-DFILES={lists}", f"-DOUTPUT={options.output.resolve()}",
                        str(SCRIPT)], check=True)


if __name__ == "__main__":
    main()
