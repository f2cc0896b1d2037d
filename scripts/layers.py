#!/usr/bin/env python3
"""Holds the sources to the layers that the build declares.

usage: layers.py check LIST   fails when a source includes what its target does not link, and when
                              files include each other in a circle
       layers.py draw LIST    prints the programs, the layers and their links as a Mermaid diagram
       layers.py drawn LIST   fails when docs/architecture.md shows another diagram

LIST is layers.txt of a build folder: "target|libraries|sources" a line.
"""
import re
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
INCLUDE = re.compile(r'^\s*#\s*include\s+"([^"]+)"', re.MULTILINE)


def read_layers(path):
    """Libraries and sources of each target."""
    links, sources = {}, {}
    for line in Path(path).read_text(encoding="utf-8").splitlines():
        target, libraries, files = line.split("|")
        links[target] = libraries.split(";")
        sources[target] = files.split(";")
    return links, sources


def reachable(links, target):
    """The targets whose headers a target may include: its own, what it links, and what these link."""
    found, waiting = set(), [target]
    while waiting:
        current = waiting.pop()
        if current not in found and current in links:
            found.add(current)
            waiting += links[current]
    return found


def resolve(source, name, owners):
    """The file that an include means, as a path from the root; nothing for a generated one."""
    for folder in (Path(source).parent, Path("src"), Path(".")):
        candidate = (folder / name).as_posix()
        if candidate in owners or (ROOT / candidate).is_file():
            return candidate
    return None


def circles(graph):
    """Each circle once, as the list of its units."""
    state, path, found = {}, [], []

    def visit(unit):
        state[unit] = "open"
        path.append(unit)
        for following in sorted(graph.get(unit, ())):
            if state.get(following) == "open":
                found.append(path[path.index(following):] + [following])
            elif following not in state:
                visit(following)
        path.pop()
        state[unit] = "done"

    for unit in sorted(graph):
        if unit not in state:
            visit(unit)
    return found


def check(path):
    links, sources = read_layers(path)
    owners = {source: target for target, files in sources.items() for source in files}
    errors, graph = [], {}
    for source, target in owners.items():
        if not source.endswith((".h", ".cpp")):
            continue
        allowed = reachable(links, target)
        for name in INCLUDE.findall((ROOT / source).read_text(encoding="utf-8")):
            included = resolve(source, name, owners)
            if included is None:
                continue
            owner = owners.get(included)
            if owner is None:
                errors.append(f"{source}: \"{name}\" belongs to no layer")
            elif owner not in allowed:
                errors.append(f"{source}: \"{name}\" belongs to {owner}, which {target} does not link")
            unit, other = (str(Path(file).with_suffix("")) for file in (source, included))
            if unit != other:
                graph.setdefault(unit, set()).add(other)
    errors += ["in a circle: " + " > ".join(circle) for circle in circles(graph)]
    for error in errors:
        print(error, file=sys.stderr)
    return 1 if errors else 0


def diagram(path):
    links, _ = read_layers(path)
    programs = [target for target in links if target.startswith("mz6218")]
    shown = set().union(*(reachable(links, program) for program in programs))
    lines = ["graph TD"]
    for target in sorted(shown):
        # A link that follows from another one is left out.
        own = [library for library in links[target] if library in links]
        indirect = {far for near in own for far in reachable(links, near) - {near}}
        lines += [f"    {target} --> {library}" for library in own if library not in indirect]
    return "\n".join(lines) + "\n"


def draw(path):
    print(diagram(path), end="")
    return 0


def drawn(path):
    page = ROOT / "docs" / "architecture.md"
    if f"```mermaid\n{diagram(path)}```" in page.read_text(encoding="utf-8"):
        return 0
    print(f"{page.name} shows other layers than there are; scripts/layers.py draw prints them.",
          file=sys.stderr)
    return 1


def main(arguments):
    commands = {"check": check, "draw": draw, "drawn": drawn}
    if len(arguments) != 2 or arguments[0] not in commands:
        print(__doc__.strip(), file=sys.stderr)
        return 2
    return commands[arguments[0]](arguments[1])


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
