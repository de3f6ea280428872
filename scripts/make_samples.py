#!/usr/bin/env python3
"""Writes the samples: for each form a passing and a failing CSV, the detail table that the failing
one must give, and the notes that explain each of its entries.

The records stand in sample_forms/: the base family's in base.py, every other procedure's in a
module of its own. The expected errors are stated there by hand, row by row, next to the cell that
is spoilt; nothing is taken from the library's output. All persons, companies, places and numbers
are invented; only the check digits are real arithmetic.

    scripts/make_samples.py             write the files in samples/
    scripts/make_samples.py --check     write nothing; exit 1 if a file differs

Needs Python 3.9 or newer and nothing else.
"""

import importlib
import sys
from pathlib import Path

sys.dont_write_bytecode = True

from sample_forms import base  # noqa: E402
from sample_forms.common import ElsewhereEntry  # noqa: E402

SAMPLES = Path(__file__).resolve().parent.parent / "samples"

# The modules of the Finance and CrossBorder procedures. Each has FORM, passing() and failing();
# more(), if there is one, gives further files: the ending behind the form's name and its records.
PROCEDURES = (
    "pge1630",
    "pge1640",
    "pge1650",
    "pge1660",
    "pge2015",
    "pge2025",
    "pge2030",
    "pge2040",
    "pge2055",
    "pge2065",
    "pge2070",
    "pge2080",
    "pge2095",
    "pge2105",
    "pge2115",
    "pge2125",
    "pge2135",
    "pge2140",
    "pge2150",
    "pge2160",
)

BASE_INTRODUCTION = (
    "`{form}_fail.detail` is the exact detail table. Each line here explains one record of the",
    "file. Records and columns count from 1.",
)
PROCEDURE_INTRODUCTION = (
    "`{form}_fail.detail` is the exact detail table. Each line here explains one line of the file.",
    "Records and columns count from 1; an empty line isn't a record. Equal entries stand once.",
)


def csv_bytes(records):
    lines = ["" if r is None else ",".join(r[c] for c in sorted(r)) for r in records]
    return "".join(line + "\r\n" for line in lines).encode("cp932")


def entry_text(record, entry):
    if isinstance(entry, ElsewhereEntry):
        record, entry = entry
    *columns, code = entry
    position = f"{columns[0]:05d}" if len(columns) == 1 else f"{columns[0]:02d}:{columns[1]:02d}"
    return f"{record:04d}-{position}-HE{99999 if code == 36 else 70000 + code}E"


def numbered(rows, empty_lines_count):
    """The rows with their record numbers; None for an empty line that isn't a record."""
    number = 0
    for record, entries, why in rows:
        if record is None and not empty_lines_count:
            yield None, entries, why
        else:
            number += 1
            yield number, entries, why


def detail_text(numbered_rows, is_aligned):
    texts = [entry_text(number, entry) for number, entries, _ in numbered_rows for entry in entries]
    return ",".join(dict.fromkeys(texts) if is_aligned else texts) + "\n"


def notes_text(form, introduction, numbered_rows):
    lines = [
        f"# What {form}_fail.csv must give",
        "",
        *(line.format(form=form) for line in introduction),
        "",
        "| Record | Errors | Why |",
        "|---|---|---|",
    ]
    for number, entries, why in numbered_rows:
        errors = " ".join(f"`{entry_text(number, entry)}`" for entry in entries) or "none"
        lines.append(f"| {'–' if number is None else number} | {errors} | {why} |")
    return "\n".join(lines) + "\n"


def sample_files(form, passing, failing, is_base):
    rows = failing()
    numbered_rows = list(numbered(rows, empty_lines_count=is_base))
    introduction = BASE_INTRODUCTION if is_base else PROCEDURE_INTRODUCTION
    return {
        f"{form}_pass.csv": csv_bytes(passing()),
        f"{form}_fail.csv": csv_bytes([record for record, _, _ in rows]),
        f"{form}_fail.detail": detail_text(numbered_rows, is_aligned=not is_base).encode(),
        f"{form}_fail.notes.md": notes_text(form, introduction, numbered_rows).encode(),
    }


def all_files():
    files = {}
    for form, passing, failing in base.FORMS:
        files.update(sample_files(form, passing, failing, is_base=True))
    for module_name in PROCEDURES:
        module = importlib.import_module("sample_forms." + module_name)
        files.update(sample_files(module.FORM, module.passing, module.failing, is_base=False))
        if hasattr(module, "more"):
            files.update({module.FORM + ending: csv_bytes(records)
                          for ending, records in module.more().items()})
    return files


def main():
    check = sys.argv[1:] == ["--check"]
    if sys.argv[1:] and not check:
        sys.exit(__doc__)
    differing = []
    for file_name, content in all_files().items():
        path = SAMPLES / file_name
        if check:
            if not path.is_file() or path.read_bytes() != content:
                differing.append(file_name)
        else:
            path.write_bytes(content)
            print(f"samples/{file_name}: {len(content)} bytes")
    if differing:
        sys.exit("differs from what this script makes: " + ", ".join(differing))


if __name__ == "__main__":
    main()
