#!/usr/bin/env python3
"""Writes docs/messages.md: the catalogue of messages with what each asks a filer to do.

    scripts/make_message_table.py             write the table
    scripts/make_message_table.py --check     write nothing; exit 1 if the table differs

The texts come from src/EkaMsgTable.cpp, the advice from host/rules/Advice.cpp. Needs Python 3.9 or newer
and nothing else.
"""

import re
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
TEXT_SOURCE = ROOT / "src" / "EkaMsgTable.cpp"
ADVICE_SOURCE = ROOT / "host" / "rules" / "Advice.cpp"
TABLE = ROOT / "docs" / "messages.md"

# A row begins with its code; texts follow, each of one or several literals side by side.
ROW = re.compile(r"\{\s*(HE\d{5}E)\s*,(.*?)\}\s*,\s*(?=\{\s*HE|\};)", re.DOTALL)
TEXT = re.compile(r'"(?:[^"\\]|\\.)*"(?:\s*"(?:[^"\\]|\\.)*")*')
LITERAL = re.compile(r'"((?:[^"\\]|\\.)*)"')

INTRODUCTION = """\
# Messages

What the library tells of an error is a place and a code: see [the detail table](data-formats.md).
The texts stand here and in `kzekamok`. `scripts/make_message_table.py` writes this file from the
sources.

| Code | Text | What is wrong and what to do |
|---|---|---|
"""


def rows(path):
    """The texts of each row by code, in the order of the file."""
    found = {}
    for code, rest in ROW.findall(path.read_text(encoding="utf-8")):
        texts = ["".join(LITERAL.findall(text)) for text in TEXT.findall(rest)]
        found[code] = [text.replace('\\"', '"') for text in texts if text != code]
    return found


def table():
    texts = rows(TEXT_SOURCE)
    advice = rows(ADVICE_SOURCE)
    if not texts or list(texts) != list(advice):
        sys.exit("the codes of the texts and of the advice differ")
    if any(len(found) != 1 for found in texts.values()) or not all(advice.values()):
        sys.exit("a row has no text, or more than one")
    lines = [
        f"| `{code}` | {texts[code][0]} | {'<br>'.join(advice[code])} |".replace("\\n", " ")
        for code in texts
    ]
    return INTRODUCTION + "\n".join(lines) + "\n"


def main():
    check = sys.argv[1:] == ["--check"]
    if sys.argv[1:] and not check:
        sys.exit(__doc__)
    content = table()
    if not check:
        TABLE.write_text(content, encoding="utf-8")
    elif not TABLE.is_file() or TABLE.read_text(encoding="utf-8") != content:
        sys.exit(f"differs from the sources: {TABLE.relative_to(ROOT)}")


if __name__ == "__main__":
    main()
