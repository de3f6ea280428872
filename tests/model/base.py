"""Documents of the base family: a report for each record, a catalogue item for each record."""

import sys
import xml.etree.ElementTree as ElementTree

import filing
from csv_file import read_records
from definition import Conversion, Node
from serialiser import element

# The IT section in the order of its elements: tag, then either the request's key of its own value
# or its children as (tag, key).
IT_FIELDS = (
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


# --- the form ----------------------------------------------------------------------------------

def locate(node, child, result):
    """Hangs the child below every fitting parent; 0 at the first exact fit, 1 if it hangs only
    under parents of a generation that it doesn't have itself, otherwise what came in."""
    if child.parent == node.name:
        if node.generation == child.generation or not node.generation:
            node.children.append(child)
            return 0
        if not child.generation:
            node.children.append(child)
            result = 1
    for inner in reversed(list(node.children)):
        if inner is not child:
            result = locate(inner, child, result)
            if result == 0:
                return 0
    return result


class Report:
    def __init__(self, definition, type_id):
        for report in ElementTree.parse(definition).getroot():
            if report.tag == "report" and report.get("id") == type_id:
                break
        else:
            sys.exit(f"no form {type_id}")
        self.proc_id, self.proc_vr = report.get("procId"), report.get("procVR")
        self.report_id, self.report_vr = report.get("reportId"), report.get("reportVR")
        self.column_count = int(report.get("columnNum"))
        self.root = Node({"id": self.report_id})
        for item in report:
            if item.tag == "item" and locate(self.root, Node(item), -1) < 0:
                sys.exit(f"no parent for {item.get('id')}")

    def write(self, conversion, index, request):
        body = "".join(node.write(conversion, index) for node in self.root.children)
        if not body:
            return ""
        start = filing.report_start(self, index + 1, index + 1, request)
        return f"{start}{body}</{self.report_id}>"


def document(request, csv_path, bundle):
    records = [record for record in read_records(csv_path) if record[0]]
    report = Report(bundle / "KZEkaDefine.xml", records[0][0])
    assert request["tetsuzuki"] == report.proc_id
    assert all(len(record) == report.column_count and record[0] == records[0][0]
               for record in records)
    # In this family the nodes aren't told the IT section: every reference drops out.
    conversion = Conversion(records, generation=generation)
    reports = "".join(report.write(conversion, index, request) for index in range(len(records)))
    if conversion.open_tags:
        sys.exit(f"nothing closes {conversion.open_tags} in this family")
    report_ids = [f"{report.report_id}-{number}" for number in range(1, len(records) + 1)]
    return filing.document(report.proc_id, report.proc_vr, report_ids,
                           filing.it_section(request, IT_FIELDS), reports)
