#!/usr/bin/env python3
"""Runs the table of cases through the library's boundaries and compares what comes back.

    run_cases.py [--report FILE.xml] DRIVER...

A driver is a program that takes requests through one boundary; Boundary.h tells how it is talked
to. It is started anew for each case, as what the library keeps lives as long as the process. All
drivers must give the expected five fields, and so the same. The report has the number of cases in
the form of GoogleTest. Exit status: 0 all as expected, 1 not so, 2 usage.

A case of cases.json:

    name     what it shows
    files    file of the case's folder: sample that it is a copy of
    bundle   "missing": the resource folder isn't there; otherwise the library finds its own
    steps    the requests in their order:
      call      operation
      key       key of an EL operation
      csv, mok  paths; "{work}" is the case's folder; null: omitted
      data      text of CsvWrite
      filer     golden case whose request has the filer's fields; null: all omitted
      change    fields that differ from that
      expect    the fields of the result, those that aren't named being empty: a text, or
                  {"file": FILE}  the text of a file of the project
                  {"document": GOLDEN, "soft_name": NAME}  a golden document of today, with another
                                                           software name if one is given
      written   what the request's file holds afterwards: {"text": TEXT}, {"document": GOLDEN}, or
                null if there is no file

Needs Python 3.9 or newer and nothing else.
"""

import argparse
import datetime
import json
import os
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
FIELDS = ("Result", "DetailErrorInfo", "RecordCount", "ProcId", "MokData")
SHOWN = 300  # characters of a field that a failure message shows
SECONDS = 300  # for one case, under sanitizers on a busy machine

FILER = ("zeimusho_cd nozeisha_id kojin_bango hojin_bango nozeisha_nm nozeisha_adr daihyo_nm "
         "dairi_id dairi_nm dairi_adr tetsuzuki").split()
DAY = "teishutsu_era teishutsu_year teishutsu_month teishutsu_day".split()
ZIP = "nozeisha_zip1 nozeisha_zip2".split()

# The arguments of the conversions behind the paths or the key, in their order.
BASE_PLAIN = FILER + ["soft_name"]
BASE_EL = FILER
FINANCE = FILER + DAY + ["soft_name"] + ZIP
CROSSBORDER = (FILER[:1] + DAY + FILER[1:5] + ZIP + FILER[5:] + ["soft_name"])

ARGUMENTS = {
    "CsvWrite": ["csv", "data"],
    "Terminate": [],
    "CsvConvMok": ["csv", "mok"] + BASE_PLAIN,
    "ELCsvConvMok": ["key"] + BASE_EL,
    "CsvConvMokFinance": ["csv", "mok"] + FINANCE,
    "ELCsvConvMokFinance": ["key"] + FINANCE,
    "CsvConvMokCrossBorder": ["csv", "mok"] + CROSSBORDER,
    "ELCsvConvMokCrossBorder": ["key"] + CROSSBORDER,
}
for strFamily in ("", "Finance", "CrossBorder"):
    ARGUMENTS["CsvCheck" + strFamily] = ["csv"]
    ARGUMENTS["ELCsvCheck" + strFamily] = ["csv", "key"]


def escape(value):
    if value is None:
        return "\\N"
    text = str(value)
    for plain, escaped in (("\\", "\\\\"), ("\t", "\\t"), ("\n", "\\n"), ("\r", "\\r")):
        text = text.replace(plain, escaped)
    return text


def unescape(text):
    letters = {"t": "\t", "n": "\n", "r": "\r", "\\": "\\"}
    parts = []
    at = 0
    while at < len(text):
        if text[at] == "\\":
            at += 1
            parts.append(letters[text[at]])
        else:
            parts.append(text[at])
        at += 1
    return "".join(parts)


def golden(name):
    folder = ROOT / "tests" / "golden" / name
    request = json.loads((folder / "request.json").read_text(encoding="utf-8"))
    return request, (folder / "expected.mok").read_bytes().decode("utf-8")


def expected_text(value, days):
    """The texts of which one is wanted: a run across midnight has two days."""
    if isinstance(value, str):
        return [value]
    if "text" in value:
        return [value["text"]]
    if "file" in value:
        return [(ROOT / value["file"]).read_text(encoding="utf-8").strip()]
    request, document = golden(value["document"])
    soft_name = value.get("soft_name", request["soft_name"])
    document = document.replace(f'softNM="{request["soft_name"]}"', f'softNM="{soft_name}"')
    made_on = f'sakuseiDay="{request["sakusei_day"]}"'
    return [document.replace(made_on, f'sakuseiDay="{day}"') for day in days]


def in_work(text, work):
    return text.replace("{work}", str(work)) if isinstance(text, str) else text


def request_line(step, work):
    values = {}
    if step.get("filer"):
        values, _ = golden(step["filer"])
        values = dict(values)
    values.update(step.get("change", {}))
    for name in ("csv", "mok", "data", "key"):
        values.pop(name, None)
        if name in step:
            values[name] = in_work(step[name], work)
    words = [escape(values.get(name)) for name in ARGUMENTS[step["call"]]]
    return "\t".join([step["call"]] + words) + "\n"


def run_driver(driver, case, work):
    """The lines of the driver's answers, and its exit status."""
    home = work / "home"
    home.mkdir()
    for name, sample in case.get("files", {}).items():
        shutil.copyfile(ROOT / "samples" / sample, work / name)
    environment = dict(os.environ, HOME=str(home))
    environment.pop("KZEKAMOK_BUNDLE", None)
    if case.get("bundle") == "missing":
        environment["KZEKAMOK_BUNDLE"] = str(work / "missing.bundle")
    lines = "".join(request_line(step, work) for step in case["steps"])
    done = subprocess.run([driver], input=lines.encode("utf-8"), stdout=subprocess.PIPE,
                          env=environment, timeout=SECONDS, check=False)
    return done.stdout.decode("utf-8").split("\n")[:-1], done.returncode


def field_problems(step, answer, days):
    if answer == "\\N":
        yield "the result is null"
        return
    fields = [unescape(text) for text in answer.split("\t")]
    if len(fields) != len(FIELDS):
        yield f"not an answer: {answer[:SHOWN]}"
        return
    for name, text in zip(FIELDS, fields):
        wanted = expected_text(step["expect"].get(name, ""), days)
        if text not in wanted:
            yield f"{name} is {text[:SHOWN]!r}, not {wanted[-1][:SHOWN]!r}"


def file_problems(step, work, days):
    if "written" not in step:
        return
    path = Path(in_work(step["mok"] if "mok" in step else step["csv"], work))
    if step["written"] is None:
        if path.exists():
            yield f"{path.name} was written"
    elif not path.exists():
        yield f"{path.name} wasn't written"
    elif path.read_bytes().decode("utf-8") not in expected_text(step["written"], days):
        yield f"{path.name} holds something else"


def problems(driver, case):
    with tempfile.TemporaryDirectory(prefix="kzekamok-") as folder:
        work = Path(folder)
        days = [datetime.date.today().isoformat()]
        answers, status = run_driver(driver, case, work)
        days.append(datetime.date.today().isoformat())
        if status != 0:
            yield f"the driver ended with {status}"
        if len(answers) != len(case["steps"]):
            yield f"{len(answers)} answers to {len(case['steps'])} requests"
            return
        for number, (step, answer) in enumerate(zip(case["steps"], answers), 1):
            found = [*field_problems(step, answer, days), *file_problems(step, work, days)]
            yield from (f"request {number}, {step['call']}: {text}" for text in found)


def main():
    parser = argparse.ArgumentParser(description="Runs the table of cases through drivers.")
    parser.add_argument("--report", type=Path, help="where the number of cases is written")
    parser.add_argument("drivers", nargs="+", metavar="DRIVER")
    options = parser.parse_args()
    cases = json.loads((Path(__file__).parent / "cases.json").read_text(encoding="utf-8"))
    failures = 0
    for driver in options.drivers:
        for case in cases:
            found = list(problems(driver, case))
            failures += bool(found)
            for text in found:
                print(f"{Path(driver).name}: {case['name']}: {text}")
    total = len(cases) * len(options.drivers)
    print(f"{total} cases, {failures} failed")
    if options.report:
        options.report.parent.mkdir(parents=True, exist_ok=True)
        options.report.write_text(
            f'<testsuites tests="{total}" failures="{failures}" disabled="0">\n</testsuites>\n',
            encoding="utf-8")
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
