#!/usr/bin/env python3
"""Holds the layers of docs/architecture.md against the includes of src/ and host/.

check_layers.py ROOT

The document's tables under "## Layers" have a row for each layer, the highest first; the last column
names its files, relative to the folder that stands in the table's first heading, as patterns without
endings. A file may include those of its own layer and of layers below. No file may include itself
on whatever way; a header and its source count as one.
"""
import collections
import fnmatch
import pathlib
import re
import sys
import tempfile

DOCUMENT = "docs/architecture.md"


def read_layers(root):
    """The layers of each folder: {"src": [(name, [pattern, ...]), ...]}, the highest first."""
    text = (root / DOCUMENT).read_text(encoding="utf-8")
    part = re.search(r"^## Layers\n(.*?)(?=^## |\Z)", text, re.M | re.S)
    if not part:
        sys.exit(f"{DOCUMENT} has no heading \"## Layers\"")
    layers = {}
    folder = None
    for line in part[1].splitlines():
        heading = re.match(r"\| Layer of `(\w+)/` \|", line)
        if heading:
            folder = heading[1]
            layers[folder] = []
        elif not line.startswith("|"):
            folder = None
        elif folder and not line.startswith("|---"):
            cells = [cell.strip() for cell in line.strip("|").split("|")]
            layers[folder].append((cells[0], re.findall(r"`([^`]+)`", cells[-1])))
    return layers


def units(root, folder):
    """The files of a folder by their path without ending."""
    found = collections.defaultdict(list)
    for path in sorted((root / folder).rglob("*")):
        if path.suffix in (".h", ".cpp"):
            found[str(path.relative_to(root / folder).with_suffix(""))].append(path)
    return found


def layer_of(unit, layers):
    """The place of the one layer that names a unit, or None."""
    places = [place for place, (_, patterns) in enumerate(layers)
              if any(fnmatch.fnmatchcase(unit, pattern) for pattern in patterns)]
    exact = [place for place in places if unit in layers[place][1]]
    if len(exact) == 1:
        return exact[0]
    return places[0] if len(places) == 1 else None


def included(root, folder, found):
    """What each unit includes of the same folder: {unit: {unit, ...}}."""
    graph = {}
    for unit, paths in found.items():
        graph[unit] = set()
        for path in paths:
            for name in re.findall(r'^\s*#include "([^"]+)"', path.read_text(encoding="utf-8"), re.M):
                for base in (root / folder, path.parent):
                    target = (base / name).resolve()
                    if target.exists() and (root / folder).resolve() in target.parents:
                        other = str(target.relative_to((root / folder).resolve()).with_suffix(""))
                        if other != unit:
                            graph[unit].add(other)
                        break
    return graph


def circles(graph):
    """The groups of units that include each other on some way."""
    place, low, stack, on_stack, groups = {}, {}, [], set(), []

    def visit(unit):
        place[unit] = low[unit] = len(place)
        stack.append(unit)
        on_stack.add(unit)
        for other in sorted(graph.get(unit, ())):
            if other not in place:
                visit(other)
                low[unit] = min(low[unit], low[other])
            elif other in on_stack:
                low[unit] = min(low[unit], place[other])
        if low[unit] == place[unit]:
            group = []
            while not group or group[-1] != unit:
                group.append(stack.pop())
                on_stack.discard(group[-1])
            if len(group) > 1:
                groups.append(sorted(group))

    sys.setrecursionlimit(10000)
    for unit in sorted(graph):
        if unit not in place:
            visit(unit)
    return groups


def findings(root):
    told = []
    for folder, layers in read_layers(root).items():
        found = units(root, folder)
        graph = included(root, folder, found)
        place = {unit: layer_of(unit, layers) for unit in found}
        for unit in sorted(found):
            if place[unit] is None:
                told.append(f"{folder}/{unit} is in no layer, or in several")
        for unit, others in sorted(graph.items()):
            for other in sorted(others):
                if place[unit] is not None and place.get(other) is not None and \
                        place[other] < place[unit]:
                    told.append(f"{folder}/{unit} ({layers[place[unit]][0]}) includes "
                                f"{folder}/{other} ({layers[place[other]][0]}), which is above it")
        for group in circles(graph):
            told.append("these include each other: " + ", ".join(f"{folder}/{u}" for u in group))
        for name, patterns in layers:
            for pattern in patterns:
                if not any(fnmatch.fnmatchcase(unit, pattern) for unit in found):
                    told.append(f"{folder}: nothing is called {pattern} (layer {name})")
    return told


def prove():
    """Each kind of fault is found in a tree made for it."""
    table = ("## Layers\n\n| Layer of `src/` | Files |\n|---|---|\n"
             "| upper | `up/*` |\n| lower | `low/*`, `Base` |\n\n## Next\n")
    cases = [
        ({"up/A.h": '#include "low/B.h"\n', "low/B.h": "", "Base.h": ""}, []),
        ({"up/A.h": "", "low/B.cpp": '#include "up/A.h"\n', "Base.h": ""},
         ["src/low/B (lower) includes src/up/A (upper), which is above it"]),
        ({"up/A.h": '#include "C.h"\n', "up/C.cpp": '#include "up/A.h"\n', "up/C.h": "",
          "low/B.h": "", "Base.h": ""}, ["these include each other: src/up/A, src/up/C"]),
        ({"up/A.h": "", "low/B.h": "", "Base.h": "", "Stray.h": ""},
         ["src/Stray is in no layer, or in several"]),
        ({"up/A.h": "", "low/B.h": ""}, ["src: nothing is called Base (layer lower)"]),
    ]
    for files, expected in cases:
        with tempfile.TemporaryDirectory() as name:
            root = pathlib.Path(name)
            (root / "docs").mkdir()
            (root / DOCUMENT).write_text(table, encoding="utf-8")
            for path, text in files.items():
                (root / "src" / path).parent.mkdir(parents=True, exist_ok=True)
                (root / "src" / path).write_text(text, encoding="utf-8")
            if findings(root) != expected:
                sys.exit(f"expected {expected}, found {findings(root)}")


def main():
    prove()
    root = pathlib.Path(sys.argv[1])
    layers = read_layers(root)
    if sorted(layers) != ["host", "src"]:
        sys.exit(f"{DOCUMENT} has to tell the layers of src/ and of host/")
    told = findings(root)
    for line in told:
        print(line)
    sys.exit(1 if told else 0)


if __name__ == "__main__":
    main()
