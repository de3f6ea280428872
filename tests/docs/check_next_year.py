#!/usr/bin/env python3
"""Checks and converts the worked example of docs/definition-files.md with the shared library.

    check_next_year.py LIBRARY WORK_FOLDER

The resource folder is a copy of the repository's with the example's two definition files in place
of their namesakes. expected.xml has line ends for the reader, and a day of its own in sakuseiDay.
"""

import os
import re
import shutil
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent.parent
EXAMPLE = ROOT / "docs" / "examples" / "next-year"
KEY = 1

sys.dont_write_bytecode = True
sys.path.insert(0, str(ROOT / "examples" / "python"))

from check_and_convert import Library  # noqa: E402


def make_bundle(folder):
    shutil.rmtree(folder, ignore_errors=True)
    shutil.copytree(ROOT / "resources" / "KZEkaMok.bundle", folder)
    for path in (EXAMPLE / "Finance").iterdir():
        if not (folder / "Finance" / path.name).is_file():
            sys.exit(f"not a definition file of the resource folder: {path.name}")
        shutil.copy(path, folder / "Finance")
    return folder


def one_line(document):
    """Without the white space between elements and with one day for all."""
    document = re.sub(r">\s+<", "><", document.strip())
    return re.sub(r'sakuseiDay="\d{4}-\d\d-\d\d"', 'sakuseiDay=""', document)


def expect(actual, expected, what):
    if actual != expected:
        sys.exit(f"{what}:\n  expected: {expected}\n  got:      {actual}")


def main():
    library_path, work = sys.argv[1:]
    os.environ["KZEKAMOK_BUNDLE"] = str(make_bundle(Path(work) / "next.bundle"))
    library = Library(library_path)

    failed = library.call("CsvCheckFinance", str(EXAMPLE / "fail.csv"))
    expect(failed["Result"], "E_FAIL", "result of fail.csv")
    expect(failed["DetailErrorInfo"], (EXAMPLE / "fail.detail").read_text().strip(), "its errors")

    checked = library.call("ELCsvCheckFinance", str(EXAMPLE / "pass.csv"), KEY)
    expect((checked["Result"], checked["DetailErrorInfo"]), ("S_OK", ""), "result of pass.csv")
    expect((checked["ProcId"], checked["RecordCount"]), ("PGE2095", "2"), "procedure and records")
    document = library.call(
        "ELCsvConvMokFinance", KEY, "90101", "9900000000000017", None, None, "見本商店",
        "紙原県見本市例町１丁目２番３号", None, None, None, None, "PGE2095", "5", "10", "1", "31",
        "KZEkaMok", None, None)
    expect((document["Result"], document["DetailErrorInfo"]), ("S_OK", ""), "its conversion")
    expected = (EXAMPLE / "expected.xml").read_text(encoding="utf-8")
    expect(one_line(document["MokData"]), one_line(expected), "document")
    library.terminate()


if __name__ == "__main__":
    main()
