#!/usr/bin/env python3
"""Every operation of the three headers says that requests can't run side by side.

check_threads.py FOLDER_OF_THE_PROJECT

A host's author reads the comment of the operation that he calls, and seldom that of the class.
"""
import os
import re
import sys

SENTENCE = "Never two requests at once: on two threads they crash."
OPERATIONS = [family.format(name) for family, names in (
    ("{}", ("CsvCheck", "CsvConvMok", "ELCsvCheck", "ELCsvConvMok", "CsvWrite", "Terminate")),
    ("{}Finance", ("CsvCheck", "CsvConvMok", "ELCsvCheck", "ELCsvConvMok")),
    ("{}CrossBorder", ("CsvCheck", "CsvConvMok", "ELCsvCheck", "ELCsvConvMok")))
    for name in names]
HEADERS = {
    "include/KZEkaMok/KZICsvConvMokEka.h": r"\b{}\(",
    "include/KZEkaMok/KZEkaMokC.h": r"\bKZEkaMok_{}\(",
    "objc/include/KZEkaMok/KZEkaMokObjC.h": r"^- \([^)]*\){}[:;]",
}


def comment_before(lines, number):
    """The lines of the comment that ends right before the line of that number."""
    begin = number
    while begin > 0 and lines[begin - 1].lstrip().startswith("///"):
        begin -= 1
    return " ".join(line.strip(" /") for line in lines[begin:number])


def main():
    missing = []
    for header, pattern in HEADERS.items():
        with open(os.path.join(sys.argv[1], header), encoding="utf-8") as file:
            lines = file.read().splitlines()
        for operation in OPERATIONS:
            declared = re.compile(pattern.format(operation))
            places = [n for n, line in enumerate(lines)
                      if declared.search(line) and not line.lstrip().startswith("///")]
            if len(places) != 1:
                missing.append(f"{header}: {operation} is declared {len(places)} times")
            elif SENTENCE not in comment_before(lines, places[0]):
                missing.append(f"{header}: {operation} doesn't say: {SENTENCE}")
    print("\n".join(missing))
    return 1 if missing else 0


if __name__ == "__main__":
    sys.exit(main())
