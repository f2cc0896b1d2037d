#!/usr/bin/env python3
"""Keeps the two translation sources complete.

translations.py update [--lupdate PROGRAM]
    Brings lx_cn.ts and lx_en.ts up to date with the sources. English is filled from the sources;
    Chinese texts that are new stay marked as unfinished until a person translates them.
translations.py check [--lupdate PROGRAM]
    Changes nothing; fails and names every text that is missing, unfinished, no longer used, or whose
    translation lost a placeholder, a mnemonic or an outer blank.
"""

import argparse
import re
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
FOLDER = ROOT / "src" / "resources" / "translations"
LANGUAGES = {"lx_cn.ts": "zh_CN", "lx_en.ts": "en"}
# The simulator is a command-line program for developers and speaks English only.
SOURCES = ["src", "patterns", "sweep"]


def extract(lupdate, target, language, keep_unused):
    """Runs lupdate over the sources into the file target; returns what it complained about."""
    command = [lupdate, "-silent", "-locations", "none", "-source-language", "en",
               "-target-language", language, "-extensions", "cpp,h,ui"]
    if not keep_unused:
        command.append("-no-obsolete")
    command += ["-I", str(ROOT / "src"), "-I", str(ROOT), *(str(ROOT / folder) for folder in SOURCES)]
    result = subprocess.run([*command, "-ts", str(target)], capture_output=True, text=True, check=False)
    if result.returncode != 0:
        sys.exit(f"lupdate failed: {result.stderr}")
    return [line for line in result.stderr.splitlines() if line.strip()]


def fill_from_source(path):
    """Finishes every open message of the file with its own source text."""
    def finish(message):
        source = re.search(r"<source>(.*?)</source>", message.group(0), re.DOTALL).group(1)
        if 'numerus="yes"' in message.group(0):
            text = re.sub(r"<numerusform>.*?</numerusform>", lambda _: f"<numerusform>{source}</numerusform>",
                          message.group(0), flags=re.DOTALL)
            return text.replace('<translation type="unfinished">', "<translation>")
        return re.sub(r'<translation type="unfinished">.*?</translation>',
                      lambda _: f"<translation>{source}</translation>", message.group(0), flags=re.DOTALL)

    text = path.read_text(encoding="utf-8")
    text = re.sub(r"<message[^>]*>.*?</message>",
                  lambda m: finish(m) if 'type="unfinished"' in m.group(0) else m.group(0),
                  text, flags=re.DOTALL)
    path.write_text(text, encoding="utf-8", newline="\n")


def outer_blanks(text):
    return text[:len(text) - len(text.lstrip())], text[len(text.rstrip()):]


def faults_of(source, translation):
    """What is wrong with one finished translation."""
    def marks(text):
        return sorted(set(re.findall(r"%L?\d+|%n", text)))

    if not translation.strip():
        yield "is empty"
    if marks(source) != marks(translation):
        yield "has other placeholders than its source"
    if len(re.findall(r"&(?=\w)", source)) != len(re.findall(r"&(?=\w)", translation)):
        yield "has another number of mnemonics than its source"
    if outer_blanks(source) != outer_blanks(translation):
        yield "begins or ends with other blanks than its source"


def complaints_about(path):
    for context in ElementTree.parse(path).getroot().iter("context"):
        for message in context.iter("message"):
            source = message.findtext("source") or ""
            place = f'{path.name}: {context.findtext("name")}: "{source}"'
            translation = message.find("translation")
            kind = translation.get("type", "")
            if kind == "unfinished":
                yield f"{place} is not translated"
            elif kind:
                yield f"{place} is used nowhere any more"
            else:
                forms = [form.text or "" for form in translation.iter("numerusform")] or [translation.text or ""]
                for form in forms:
                    yield from (f"{place} {fault}" for fault in faults_of(source, form))


def update(lupdate):
    for name, language in LANGUAGES.items():
        for line in extract(lupdate, FOLDER / name, language, keep_unused=False):
            print(line, file=sys.stderr)
    fill_from_source(FOLDER / "lx_en.ts")
    open_texts = [line for name in LANGUAGES for line in complaints_about(FOLDER / name)]
    for line in open_texts:
        print(line)
    print(f"{len(open_texts)} texts to look at.")
    return 0


def check(lupdate):
    complaints = []
    with tempfile.TemporaryDirectory() as folder:
        for name, language in LANGUAGES.items():
            copy = Path(folder) / name
            shutil.copy(FOLDER / name, copy)
            complaints += extract(lupdate, copy, language, keep_unused=True)
            complaints += complaints_about(copy)
    for line in dict.fromkeys(complaints):
        print(line, file=sys.stderr)
    if complaints:
        print("The translations are not complete: run scripts/update-translations.sh, translate what it "
              "lists, and build again.", file=sys.stderr)
    return 1 if complaints else 0


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("task", choices=["update", "check"])
    parser.add_argument("--lupdate", default=shutil.which("lupdate", path="/usr/lib/qt5/bin") or "lupdate")
    arguments = parser.parse_args()
    return {"update": update, "check": check}[arguments.task](arguments.lupdate)


if __name__ == "__main__":
    sys.exit(main())
