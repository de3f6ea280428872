#!/usr/bin/env python3
"""docs/security.md names tests that exist, and every script that attacks the program."""

import re
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
PAGE = "docs/security.md"


def main():
    page = (ROOT / PAGE).read_text(encoding="utf-8")
    words = set(re.findall(r"`([^`\s]+)`", page))
    scripts = {f"attack.{path.stem}" for path in (ROOT / "tests/attack").iterdir()
               if path.suffix in (".sh", ".py")}
    listed = (ROOT / "tests/attack/CMakeLists.txt").read_text(encoding="utf-8")
    told = {word for word in words if word.startswith("attack.")} - {"attack.NAME"}
    sources = "\n".join(path.read_text(encoding="utf-8") for path in (ROOT / "tests").rglob("*.cpp"))
    tests = set(re.findall(r"\bTEST(?:_F|_P)?\(\s*(\w+),\s*(\w+)\)", sources))
    names = {suite for suite, _ in tests} | {f"{suite}.{test}" for suite, test in tests}

    problems = [f"{PAGE} names {word}, which tests/attack/ doesn't have" for word in told - scripts]
    problems += [f"{PAGE} doesn't name {script}" for script in scripts - told]
    problems += [f"tests/attack/CMakeLists.txt doesn't list {path.name}"
                 for path in (ROOT / "tests/attack").iterdir()
                 if path.suffix in (".sh", ".py") and path.name not in listed]
    problems += [f"{PAGE} names {word}, which no test is called"
                 for word in words
                 if re.fullmatch(r"\w+Test(\.\w+)?", word) and word not in names | {"Suite.Test"}]
    if not told or not names:
        problems.append("nothing was compared")
    if problems:
        sys.exit("\n".join(sorted(problems)))


if __name__ == "__main__":
    main()
