#!/usr/bin/env python3
"""A second, independent writer of filing documents: the plain rules of the base family's conversion
and nothing of the library's code. The golden documents come from here, so that a fault of the
library can't become its own expectation.

For each folder of tests/golden/ it reads request.json, the sample named there and the definition
file, and writes expected.mok: the document of a plain conversion on the request's day.

    tests/model/write_golden.py             write the documents
    tests/model/write_golden.py --check     write nothing; exit 1 if a document differs

What it leaves out, because no golden case holds it: row ranges that count from the end, tags left
open across records, cells with a CDATA section, comment or processing instruction (it stops at each
of these), and all checks. The request is taken to be a good one.

Needs Python 3.9 or newer and nothing else.
"""

import json
import sys
import unicodedata
import xml.etree.ElementTree as ElementTree
from pathlib import Path
from typing import NamedTuple

ROOT = Path(__file__).resolve().parents[2]
DEFINITION = ROOT / "resources" / "KZEkaMok.bundle" / "KZEkaDefine.xml"
GOLDEN = ROOT / "tests" / "golden"

SERVICE = "http://xml.luvia.example/XSD"
ROOT_ATTRIBUTES = (
    ("id", "DATA"),
    ("xmlns", SERVICE + "/gensen"),
    ("xmlns:gen", SERVICE + "/general"),
    ("xmlns:kyo", SERVICE + "/kyotsu"),
    ("xmlns:xsi", "http://www.w3.org/2001/XMLSchema-instance"),
)
RDF = "http://www.w3.org/1999/02/22-rdf-syntax-ns#"

# The IT section in the order of its elements: tag, then either the request's key of its own value
# or its children as (tag, key).
IT_ELEMENTS = (
    ("ZEIMUSHO", (("gen:zeimusho_CD", "zeimusho_cd"),)),
    ("NOZEISHA_ID", "nozeisha_id"),
    ("NOZEISHA_BANGO", (("gen:kojinbango", "kojin_bango"), ("gen:hojinbango", "hojin_bango"))),
    ("NOZEISHA_NM", "nozeisha_nm"),
    ("NOZEISHA_ADR", "nozeisha_adr"),
    ("DAIHYO_NM", "daihyo_nm"),
    ("DAIRI_ID", "dairi_id"),
    ("DAIRI_NM", "dairi_nm"),
    ("DAIRI_ADR", "dairi_adr"),
    ("TETSUZUKI", (("procedure_CD", "tetsuzuki"),)),
)


# --- text of the document, in the form of the XML library's serialiser -------------------------

def text(value):
    return value.replace("&", "&amp;").replace("<", "&lt;").replace(">", "&gt;")


def attribute(value):
    return value.replace("&", "&amp;").replace("<", "&lt;").replace('"', "&quot;")


def element(tag, body="", attributes=()):
    """An element with a body that is text of the document already; without a body an empty tag.
    The serialiser writes the declaration of the element's own namespace first and the other
    attributes by name."""
    own = "xmlns" + (":" + tag.partition(":")[0] if ":" in tag else "")
    ordered = sorted(attributes, key=lambda pair: (pair[0] != own, pair[0]))
    start = "<" + tag + "".join(f' {name}="{attribute(value)}"' for name, value in ordered)
    return f"{start}>{body}</{tag}>" if body else f"{start}/>"


# --- the CSV file ------------------------------------------------------------------------------

def is_blank(character):
    """White space of the trimming: the control characters and every kind of separator."""
    return (0x09 <= ord(character) <= 0x0D or ord(character) == 0x85
            or unicodedata.category(character).startswith("Z"))


def trim(value):
    start, end = 0, len(value)
    while start < end and is_blank(value[start]):
        start += 1
    while end > start and is_blank(value[end - 1]):
        end -= 1
    return value[start:end]


def read_records(path):
    """The records as lists of trimmed cells. Lines with an empty first column are left out."""
    content = path.read_bytes().decode("cp932")
    lines = content.replace("\r\n", "\n").replace("\r", "\n").split("\n")
    records = [[trim(cell) for cell in line.split(",")] for line in lines]
    for cell in (cell for record in records for cell in record):
        if any(token in cell for token in ("<![CDATA[", "<!--", "<?")):
            sys.exit(f"the model doesn't know blocks that pass unescaped: {cell}")
    return [record for record in records if record[0]]


# --- generation of a record --------------------------------------------------------------------

def is_reference_number(value):
    """14 digits, the last of which is right: 11 less the weighted sum's rest by 11, by its last
    digit."""
    if len(value) != 14 or not all(c in "0123456789" for c in value):
        return False
    weighted = sum(int(digit) * weight for digit, weight in zip(value[:13], range(14, 1, -1)))
    return int(value[13]) == (11 - weighted % 11) % 10


def is_minors(reference):
    return is_reference_number(reference) and reference[0] in "456789"


def has_old_contract(record):
    """Form 001: the date in columns 2 to 5 is not behind the last day of March of the fifth era's
    third year. Its parts are numbers here and needn't make a date."""
    era, year, month, day = (int(cell) for cell in record[1:5])
    return 1 <= era <= 4 or (era == 5 and (year, month, day) <= (3, 3, 31))


def generation(record):
    """`junior` or `senior`."""
    def cell(column):  # from 1
        return record[column - 1]

    def empty(*columns):
        return not any(cell(column) for column in columns)

    kind = cell(1)
    if kind == "001":
        is_senior = has_old_contract(record) and cell(23) != "" and cell(24) != ""
        return "senior" if is_senior else "junior"
    if kind == "002":
        return "junior" if is_minors(cell(19)) else "senior"
    if kind == "007":
        is_junior = is_minors(cell(24)) and empty(7, 19, 20, 21, 22, 28, 29)
        return "junior" if is_junior else "senior"
    if kind == "008":
        is_junior = is_minors(cell(19)) and empty(2, 14, 15, 16, 17)
        return "junior" if is_junior else "senior"
    if kind in ("003", "004", "005", "006", "009"):
        return "senior"
    sys.exit(f"the model doesn't know the generations of form {kind}")


# --- the definition ----------------------------------------------------------------------------

class Place(NamedTuple):
    """What a node is written for."""

    record: list
    number: int  # of the record, from 1
    count: int  # records of the file


class Node:
    def __init__(self, item):
        self.start_row = int(item.get("startRow", "0"))
        self.end_row = int(item.get("endRow", "0"))
        self.last_record = item.get("lastRecord") == "1"
        if self.start_row < 0 or self.end_row < 0:
            sys.exit("the model doesn't know rows that count from the end")
        self.kind = item.get("type")
        self.name = item.get("id")
        self.parent = item.get("parent", "")
        self.column = int(item.get("column", "0")) - 1  # from 0; -1 for none
        self.generation = item.get("generation", "")
        self.zero_suppress = item.get("zeroSuppress") == "true"
        self.children = []

    def locate(self, child, result):
        """Hangs the child below every fitting parent; 0 at the first exact fit, 1 if it hangs only
        under parents of a generation that it doesn't have itself, otherwise what came in."""
        if child.parent == self.name:
            if self.generation == child.generation or not self.generation:
                self.children.append(child)
                return 0
            if not child.generation:
                self.children.append(child)
                result = 1
        for node in reversed(list(self.children)):
            if node is not child:
                result = node.locate(child, result)
                if result == 0:
                    return 0
        return result

    def is_in_range(self, place):
        is_set = self.start_row != 0 and self.end_row != 0
        return not is_set or self.start_row <= place.number <= self.end_row

    def cell(self, place):
        return place.record[self.column] if 0 <= self.column < len(place.record) else ""

    def write(self, place):
        return getattr(self, "write_" + self.kind)(place)

    def write_Normal(self, place):
        if not self.is_in_range(place):
            return ""
        body = "".join(child.write(place) for child in self.children
                       if child.generation in ("", generation(place.record)))
        value = text(self.cell(place))
        if self.zero_suppress:
            value = value.lstrip("0")
        return element(self.name, value + body) if value or body else ""

    write_Kubun = write_Normal
    write_Date = write_Normal

    def write_TAG(self, place):
        if self.last_record and place.number != place.count:
            return ""
        if not self.is_in_range(place):
            # Groups inside would be looked for.
            if any(child.kind == "TAG" for child in self.children):
                sys.exit(f"the model doesn't know a group inside {self.name}")
            return ""
        # A child out of range leaves the tag open.
        if not all(child.is_in_range(place) for child in self.children):
            sys.exit(f"the model doesn't know tags left open: {self.name}")
        body = "".join(child.write(place) for child in self.children)
        return element(self.name, body) if body else ""

    def write_Zeimusho(self, place):
        body = "".join(child.write(place) for child in reversed(self.children))
        return element(self.name, body) if body else ""

    def write_Zip(self, place):
        value = self.cell(place)
        if len(value) < 7:
            return ""
        return element(self.name, element("gen:zip1", value[:3]) + element("gen:zip2", value[3:7]))

    def write_Bango(self, place):
        value = self.cell(place)
        if len(value) == 12:
            return element(self.name, element("gen:kojinbango", value))
        if len(value) == 13 and value[0] == "0":
            return element(self.name, element("gen:kojinbango", value[1:]))
        if len(value) == 13:
            return element(self.name, element("gen:hojinbango", value))
        return ""

    def write_IdRef(self, place):
        # In this family the nodes aren't told the IT section: every reference drops out.
        return ""


class Report:
    def __init__(self, type_id):
        for report in ElementTree.parse(DEFINITION).getroot():
            if report.tag == "report" and report.get("id") == type_id:
                break
        else:
            sys.exit(f"no form {type_id}")
        self.proc_id, self.proc_vr = report.get("procId"), report.get("procVR")
        self.report_id, self.report_vr = report.get("reportId"), report.get("reportVR")
        self.column_count = int(report.get("columnNum"))
        self.root = Node({"id": self.report_id})
        for item in report:
            if item.tag == "item" and self.root.locate(Node(item), -1) < 0:
                sys.exit(f"no parent for {item.get('id')}")

    def write(self, place, request):
        number = place.number
        body = "".join(node.write(place) for node in self.root.children)
        if not body:
            return ""
        start = (("VR", self.report_vr), ("id", f"{self.report_id}-{number}"), ("page", str(number)),
                 ("sakuseiDay", request["sakusei_day"]), ("sakuseiNM", request["nozeisha_nm"]),
                 ("softNM", request["soft_name"]))
        return element(self.report_id, body, start)


# --- the document ------------------------------------------------------------------------------

def it_section(request):
    body = ""
    for tag, source in IT_ELEMENTS:
        if isinstance(source, str):
            content = text(trim(request[source]))
        else:
            content = "".join(element(child, text(trim(request[key])))
                              for child, key in source if trim(request[key]))
        if content:
            body += element(tag, content, (("ID", tag),))
    return element("IT", body, (("VR", "1.3"), ("id", "IT")))


def catalog(report, count):
    items = "".join(
        element("rdf:li", element("rdf:description", "",
                                  (("about", f"#{report.report_id}-{number}"),)))
        for number in range(1, count + 1))
    sections = (element("SEND_DATA")
                + element("IT_SEC", element("rdf:description", "", (("about", "#IT"),)))
                + element("FORM_SEC", element("rdf:Seq", items))
                + element("TENPU_SEC") + element("XBRL_SEC") + element("XBRL2_1_SEC")
                + element("SOFUSHO_SEC"))
    description = element("rdf:description", sections, (("id", "REPORT"),))
    return element("CATALOG", element("rdf:RDF", description, (("xmlns:rdf", RDF),)),
                   (("id", "CATALOG"),))


def document(request):
    records = read_records(ROOT / "samples" / request["csv"])
    report = Report(records[0][0])
    assert request["tetsuzuki"] == report.proc_id
    assert all(len(record) == report.column_count and record[0] == records[0][0]
               for record in records)
    reports = "".join(report.write(Place(record, number, len(records)), request)
                      for number, record in enumerate(records, 1))
    contents = element("CONTENTS", it_section(request) + reports, (("id", "CONTENTS"),))
    procedure = element(report.proc_id, catalog(report, len(records)) + contents,
                        (("VR", report.proc_vr), ("id", report.proc_id)))
    return ('<?xml version="1.0" encoding="UTF-8" standalone="no" ?>'
            + element("DATA", procedure, ROOT_ATTRIBUTES))


def main():
    check = sys.argv[1:] == ["--check"]
    if sys.argv[1:] and not check:
        sys.exit(__doc__)
    differing = []
    for request_path in sorted(GOLDEN.glob("*/request.json")):
        request = json.loads(request_path.read_text(encoding="utf-8"))
        content = document(request).encode("utf-8")
        ElementTree.fromstring(content)  # well formed
        path = request_path.with_name("expected.mok")
        if check:
            if not path.is_file() or path.read_bytes() != content:
                differing.append(str(path.relative_to(ROOT)))
        else:
            path.write_bytes(content)
            print(f"{path.relative_to(ROOT)}: {len(content)} bytes")
    if differing:
        sys.exit("differs from the model's document: " + ", ".join(differing))


if __name__ == "__main__":
    main()
