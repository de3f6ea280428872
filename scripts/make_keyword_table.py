#!/usr/bin/env python3
"""Writes docs/keywords-by-form.md: which check keyword each form of the definition file uses.

    scripts/make_keyword_table.py             write the table
    scripts/make_keyword_table.py --check     write nothing; exit 1 if the table differs

Needs Python 3.9 or newer and nothing else.
"""

import re
import sys
import xml.etree.ElementTree as ElementTree
from collections import Counter
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
DEFINITION = ROOT / "resources" / "KZEkaMok.bundle" / "KZEkaDefine.xml"
KEYWORD_SOURCE = ROOT / "src" / "validator" / "KZCEkaValidItemFactory.cpp"
TABLE = ROOT / "docs" / "keywords-by-form.md"

# They look at a path of a request, which no column holds.
ARGUMENT_KEYWORDS = ("existpath", "extension")


def known_keywords():
    """The keywords of the library's table, sorted without regard to case."""
    source = KEYWORD_SOURCE.read_text(encoding="utf-8")
    return sorted(set(re.findall(r'\{\s*"(\w+)",\s*Make<', source)), key=str.lower)


def uses(report):
    """Counts of `valid` and of `outer` elements by keyword."""
    return [Counter(element.get("id") for element in report.iter(tag)) for tag in ("valid", "outer")]


def cell(checks, conditions):
    """`3`, `3+1` or `+1`: checks and, behind the plus, conditions."""
    return (str(checks) if checks else "") + (f"+{conditions}" if conditions else "")


def table():
    reports = ElementTree.parse(DEFINITION).getroot().findall("report")
    counts = {report.get("id"): uses(report) for report in reports}
    used = set().union(*(counter for pair in counts.values() for counter in pair))
    keywords = known_keywords()
    if not used <= set(keywords):
        sys.exit("unknown keywords: " + ", ".join(sorted(used - set(keywords))))
    missing = [keyword for keyword in keywords if keyword not in used]
    if missing != sorted(ARGUMENT_KEYWORDS):
        sys.exit("not used by any form: " + ", ".join(missing))
    lines = [
        "# Check keywords by form",
        "",
        "How often each form of `KZEkaDefine.xml` uses each keyword: as a check (`valid`) and, behind a",
        "plus, as a condition of another check (`outer`). `scripts/make_keyword_table.py` writes this",
        "file.",
        "",
        "| Keyword | " + " | ".join(counts) + " |",
        "|---|" + "---|" * len(counts),
    ]
    for keyword in keywords:
        if keyword not in used:
            continue
        cells = (cell(valid[keyword], outer[keyword]) for valid, outer in counts.values())
        lines.append(f"| `{keyword}` | " + " | ".join(cells) + " |")
    lines += [
        "",
        f"These are {len(used)} of the {len(keywords)} keywords. "
        + " and ".join(f"`{keyword}`" for keyword in missing)
        + " look at the path of a file or",
        "folder that a request names: they check arguments, and no form has a column for them.",
    ]
    return "\n".join(lines) + "\n"


def main():
    check = sys.argv[1:] == ["--check"]
    if sys.argv[1:] and not check:
        sys.exit(__doc__)
    content = table()
    if not check:
        TABLE.write_text(content, encoding="utf-8")
    elif not TABLE.is_file() or TABLE.read_text(encoding="utf-8") != content:
        sys.exit(f"differs from the definition file: {TABLE.relative_to(ROOT)}")


if __name__ == "__main__":
    main()
