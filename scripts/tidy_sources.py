#!/usr/bin/env python3
"""Lists the sources that clang-tidy has to look at, one a line, by absolute path.

    tidy_sources.py ROOT BUILD [BASE]

Of the compile commands in BUILD: all sources of src/ and host/. With BASE, the commit at which all of
them were clean: those that differ from it, and those that include a file that does, on whatever way
(what BUILD hasn't compiled yet counts as different). All of them again, if the checks themselves have
changed or git doesn't know the commit. What was chosen is told on the standard error stream.
"""

import json
import pathlib
import re
import subprocess
import sys

FOLDERS = ("src", "host")


def git(root, *arguments):
    """The lines that git prints, or None if it fails."""
    run = subprocess.run(["git", "-C", root, *arguments], capture_output=True, text=True, check=False)
    return run.stdout.splitlines() if run.returncode == 0 else None


def changed_files(root, base):
    """Paths of what differs from the commit, or None if that can't be told."""
    tracked = git(root, "diff", "--name-only", base, "--")
    untracked = git(root, "ls-files", "--others", "--exclude-standard")
    if tracked is None or untracked is None:
        return None
    return {(root / name).resolve() for name in tracked + untracked}


def dependencies(build):
    """For each object the files that it was compiled from."""
    run = subprocess.run(["ninja", "-C", build, "-t", "deps"], capture_output=True, text=True, check=False)
    found = {}
    for line in run.stdout.splitlines():
        if line.startswith("    "):
            found[name].add((build / line.strip()).resolve())
        elif line:
            name = line.split(":")[0]
            found[name] = set()
    return found


def main():
    root, build = (pathlib.Path(argument).resolve() for argument in sys.argv[1:3])
    base = sys.argv[3] if len(sys.argv) > 3 else ""
    commands = json.loads((build / "compile_commands.json").read_text(encoding="utf-8"))
    sources = {}
    for command in commands:
        path = (build / command["file"]).resolve()
        if path.suffix == ".cpp" and any(path.is_relative_to(root / folder) for folder in FOLDERS):
            sources[path] = re.search(r" -o (\S+)", command["command"])[1]
    chosen = set(sources)
    changed = changed_files(root, base) if base else None
    if changed is None:
        reason = f"git doesn't know the commit {base}" if base else "as asked"
    elif any(path.name == ".clang-tidy" for path in changed):
        reason = "the checks have changed"
    else:
        reason = f"changed since {base[:10]}"
        compiled = dependencies(build)
        chosen = {path for path, output in sources.items()
                  if path in changed or not compiled.get(output) or compiled[output] & changed}
    print(f"{len(chosen)} of {len(sources)} sources: {reason}", file=sys.stderr)
    for path in sorted(chosen):
        print(path)


main()
