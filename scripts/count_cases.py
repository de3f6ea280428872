#!/usr/bin/env python3
"""Counts the cases of one run of ctest, and tells what failed.

    count_cases.py BUILD

BUILD/ctest.xml has ctest's entries; BUILD/tests/results/ENTRY.xml the single cases of an entry, where it
wrote such a report. An entry without one is one case. The first line on standard output is "PASSED FAILED
SKIPPED"; after it stands each failure: its name and the end of what it said.
"""

import pathlib
import sys
import xml.etree.ElementTree

LINES_OF_A_FAILURE = 25


def end_of(text):
    """The last lines of an output, set in."""
    return "\n".join("    " + line for line in text.strip().splitlines()[-LINES_OF_A_FAILURE:])


def cases_of(report):
    """Name, verdict and text of each case of a report; nothing if the program broke off while it wrote.

    Some programs write how many there were, and tell what failed in their output alone."""
    try:
        root = xml.etree.ElementTree.parse(report).getroot()
    except xml.etree.ElementTree.ParseError:
        return
    cases = list(root.iter("testcase"))
    if not cases:
        failed = int(root.get("failures"))
        yield from [(root.tag, "passed", "")] * (int(root.get("tests")) - failed)
        yield from [(root.tag, "failed", "")] * failed
    for case in cases:
        failures = [failure.get("message") or failure.text or "" for failure in case.iter("failure")]
        verdict = "passed"
        if failures:
            verdict = "failed"
        elif case.get("result") in ("skipped", "suppressed") or case.find("skipped") is not None:
            verdict = "skipped"
        yield f"{case.get('classname')}.{case.get('name')}", verdict, "\n".join(failures)


def cases_of_entry(entry, report):
    """The same for one entry of ctest."""
    output = entry.findtext("system-out") or ""
    cases = [(name, verdict, text or output) for name, verdict, text in cases_of(report)] if report.exists() else []
    verdict = "passed" if entry.get("status") == "run" else "failed"
    skipped = entry.find("skipped")
    if skipped is not None and "SKIP_RETURN_CODE" in (skipped.get("message") or ""):
        verdict = "skipped"
    broke_off = verdict == "failed" and all(case[1] != "failed" for case in cases)
    if not cases or broke_off:
        cases.append((entry.get("name"), verdict, output))
    return cases


def main():
    build = pathlib.Path(sys.argv[1])
    counts = {"passed": 0, "failed": 0, "skipped": 0}
    failures = []
    for entry in xml.etree.ElementTree.parse(build / "ctest.xml").getroot().iter("testcase"):
        for name, verdict, text in cases_of_entry(entry, build / "tests/results" / f"{entry.get('name')}.xml"):
            counts[verdict] += 1
            if verdict == "failed":
                failures.append(f"{entry.get('name')}: {name}\n{end_of(text)}")
    print(counts["passed"], counts["failed"], counts["skipped"])
    print("\n".join(failures))


main()
