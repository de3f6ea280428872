"""Documents of the Finance and CrossBorder families: the records run through the reports of the
procedure's template, several records can make one report element, and the catalogue lists the
report elements that were written."""

import sys
import xml.etree.ElementTree as ElementTree
from collections import Counter
from typing import NamedTuple

import filing
from csv_file import read_records
from definition import Conversion, Node


class Procedure(NamedTuple):
    proc_id: str
    proc_vr: str
    max_records: int
    reports: tuple  # (id, version) in the order of the forms
    folder: str


def finance_row(proc_id, max_records, *reports):
    return Procedure(proc_id, "231.0", max_records, reports, "Finance")


def crossborder_row(proc_id, max_records, *reports):
    return Procedure(proc_id, "240.0", max_records, reports, "CrossBorder")


PROCEDURES = {
    "101": finance_row("PGE2015", 1000, ("GEZ035", "1.0")),
    "102": finance_row("PGE2025", 1000, ("GEZ045", "1.0")),
    "103": finance_row("PGE2030", 1000, ("GEZ050", "5.0"), ("GEZ051", "5.0")),
    "104": finance_row("PGE2040", 1000, ("GEZ060", "3.0")),
    "105": finance_row("PGE2055", 1000, ("GEZ075", "1.0")),
    "106": finance_row("PGE2065", 1000, ("GEZ085", "1.0")),
    "107": finance_row("PGE2070", 1000, ("GEZ090", "4.0")),
    "108": finance_row("PGE2080", 1, ("GEZ100", "2.0")),
    "109": finance_row("PGE2095", 1000, ("GEZ555", "1.0")),
    "110": finance_row("PGE2105", 1000, ("GEZ565", "1.0")),
    "111": finance_row("PGE2115", 1000, ("GEZ620", "1.0"), ("GEZ621", "5.0")),
    "112": finance_row("PGE2125", 1000, ("GEZ585", "1.0")),
    "113": finance_row("PGE2135", 1000, ("GEZ595", "1.0")),
    "114": finance_row("PGE2140", 1000, ("GEZ600", "3.0")),
    "115": finance_row("PGE2150", 1000, ("GEZ610", "4.0")),
    "116": finance_row("PGE2160", 1, ("GEZ100", "2.0")),
    "201": finance_row("PGE1630", 1, ("GEZ740", "1.0")),
    "202": finance_row("PGE1640", 1000, ("GEZ750", "1.0")),
    "301": crossborder_row("PGE1650", 1000, ("GEZ850", "1.0")),
    "302": crossborder_row("PGE1660", 1000, ("GEZ860", "1.0")),
}

# One report of this procedure takes many records, and a record's first column may be empty.
MULTI_RECORD_TYPE_ID = "202"

IT_FIELDS = (
    ("ZEIMUSHO", (("gen:zeimusho_CD", "zeimusho_cd"),)),
    ("TEISYUTSU_DAY", (("gen:era", "teishutsu_era"), ("gen:yy", "teishutsu_year"),
                       ("gen:mm", "teishutsu_month"), ("gen:dd", "teishutsu_day"))),
    ("NOZEISHA_ID", "nozeisha_id"),
    ("NOZEISHA_BANGO", (("gen:kojinbango", "kojin_bango"), ("gen:hojinbango", "hojin_bango"))),
    ("NOZEISHA_NM", "nozeisha_nm"),
    ("NOZEISHA_ZIP", (("gen:zip1", "nozeisha_zip1"), ("gen:zip2", "nozeisha_zip2"))),
    ("NOZEISHA_ADR", "nozeisha_adr"),
    ("DAIHYO_NM", "daihyo_nm"),
    ("DAIRI_ID", "dairi_id"),
    ("DAIRI_NM", "dairi_nm"),
    ("DAIRI_ADR", "dairi_adr"),
    ("TETSUZUKI", (("procedure_CD", "tetsuzuki"),)),
)


def knows(proc_id):
    return any(procedure.proc_id == proc_id for procedure in PROCEDURES.values())


def hang(node, child):
    """Hangs the child below the node of its parent's name, the one defined last if there are
    several; False if there is none. Generations play no part."""
    if child.parent == node.name:
        node.children.append(child)
        return True
    return any(hang(inner, child) for inner in reversed(node.children))


class Report:
    """One form of a template, with the rows that its control attributes give it."""

    def __init__(self, report):
        def number(name):
            return int(report.get(name) or "0")

        self.proc_id, self.proc_vr = report.get("procId"), report.get("procVR")
        self.report_id, self.report_vr = report.get("reportId"), report.get("reportVR")
        self.start_row, self.end_row = number("startRow"), number("endRow")
        self.step_row = number("stepRow")
        self.trailer_row = 0  # the lowest negative row at which a trailer begins
        self.page = 0
        self.root = Node({"id": self.report_id})
        for item in report.iter("item"):
            node = Node(item)
            if not hang(self.root, node):
                sys.exit(f"no parent for {node.name}")
            if node.last_record == 1:
                self.trailer_row = min(self.trailer_row, node.start_row)

    def walked_rows(self, count):
        """The records of a report that is one of several."""
        if self.end_row == -1 or self.start_row == self.end_row == 0:
            return 1, count
        return self.start_row, self.end_row

    def body(self, conversion, index):
        return "".join(node.write(conversion, index) for node in self.root.children)


class Writer:
    """Writes the report elements of a document and keeps their ids."""

    def __init__(self, conversion, request):
        self.conversion = conversion
        self.request = request
        self.counts = Counter()
        self.report_ids = []

    def open_page(self, report):
        report.page += 1
        self.counts[report.report_id] += 1
        number = self.counts[report.report_id]
        self.report_ids.append(f"{report.report_id}-{number}")
        return filing.report_start(report, number, report.page, self.request)

    def write_in_turn(self, reports):
        """Each report takes its rows and hands over to the next one at the record behind them."""
        reports = list(reports)
        count = self.conversion.count
        text = ""
        start, end = reports[0].walked_rows(count)
        for index in range(count):
            if end >= 2 and index >= end:
                reports.pop(0)
                if not reports:
                    sys.exit("more records than the reports cover")
                start, end = reports[0].walked_rows(count)
            if start <= index + 1 <= end:
                text += self.write_record(reports[0], index)
        return text

    def write_record(self, report, index):
        body = report.body(self.conversion, index)
        if not body:
            return ""
        row, start, end, step = index + 1, report.start_row, report.end_row, report.step_row
        is_stepping = step != 0 and start <= index
        if start == 0 or row == start or is_stepping and (row - start) % step == 0:
            body = self.open_page(report) + body
        if (end == 0 or row in (end, self.conversion.count)
                or start != 0 and is_stepping and (row - start) % step == step - 1):
            body += f"</{report.report_id}>"
        return body

    def write_together(self, report):
        """The one report of a multi-record procedure, a page for each step of its rows; the rows of
        the trailer, the lowest of which is known to the report, stay on the page before them."""
        count = self.conversion.count
        start, end = self.conversion.row(report.start_row), self.conversion.row(report.end_row)
        if report.start_row == report.end_row == 0:
            start, end = 1, count
        return "".join(self.write_row(report, index) for index in range(count)
                       if start <= index + 1 <= end)

    def write_row(self, report, index):
        conversion = self.conversion
        row, count = index + 1, conversion.count
        if not conversion.is_in_range(report, index):
            return ""
        body = report.body(conversion, index)
        if not body and row != count:
            return ""
        start, step = report.start_row, report.step_row
        is_stepping = start != 0 and report.end_row != 0 and start <= index
        trailer = conversion.row(report.trailer_row) if report.trailer_row else count + 2
        opens = start in (0, row)
        opens |= is_stepping and (row - start) % step == 0 and trailer > row
        closes = report.end_row == 0 or conversion.row(report.end_row) == row or row == count
        closes |= is_stepping and (row - start) % step == step - 1 and trailer - 1 > row
        if opens:
            head = self.open_page(report)
            for node in report.root.children:
                if node.is_repeated:
                    head += "".join(node.write(conversion, fixed)
                                    for fixed in range(node.start_row - 1, node.end_row))
            body = head + body
        if closes:
            body += "".join(f"</{tag}>" for tag in reversed(conversion.open_tags))
            conversion.open_tags.clear()
            body += f"</{report.report_id}>"
        return body


def document(request, csv_path, bundle):
    for type_id, procedure in PROCEDURES.items():
        if procedure.proc_id == request["tetsuzuki"]:
            break
    is_multi_record = type_id == MULTI_RECORD_TYPE_ID
    records = read_records(csv_path, has_quotes=procedure.folder == "CrossBorder")
    assert records[0][0] == type_id
    assert len(records) <= procedure.max_records
    if not is_multi_record:
        records = [record for record in records if record[0]]

    template = bundle / procedure.folder / f"{procedure.proc_id}_tpl.xml"
    reports = [Report(report) for report in ElementTree.parse(template).getroot().iter("report")]
    assert tuple((report.report_id, report.report_vr) for report in reports) == procedure.reports
    assert all((report.proc_id, report.proc_vr) == (procedure.proc_id, procedure.proc_vr)
               for report in reports)

    it_text = filing.it_section(request, IT_FIELDS)
    conversion = Conversion(records, it_text)
    writer = Writer(conversion, request)
    text = writer.write_together(reports[0]) if is_multi_record else writer.write_in_turn(reports)
    return filing.document(procedure.proc_id, procedure.proc_vr, writer.report_ids, it_text, text)
