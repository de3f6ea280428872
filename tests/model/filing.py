"""The frame that the documents of all families share."""

import sys

from csv_file import trim
from serialiser import element, escape, serialise, start_tag

SERVICE = "http://xml.luvia.example/XSD"
ROOT_ATTRIBUTES = (
    ("id", "DATA"),
    ("xmlns", SERVICE + "/gensen"),
    ("xmlns:gen", SERVICE + "/general"),
    ("xmlns:kyo", SERVICE + "/kyotsu"),
    ("xmlns:xsi", "http://www.w3.org/2001/XMLSchema-instance"),
)
RDF = "http://www.w3.org/1999/02/22-rdf-syntax-ns#"


def it_section(request, fields):
    """The request's values in the order of the fields; a field without a value drops out. A field
    is its tag and either the request's key of its own value or its children as (tag, key)."""
    body = ""
    for tag, source in fields:
        if isinstance(source, str):
            content = escape(trim(request[source]))
        else:
            content = "".join(element(child, escape(trim(request[key])))
                              for child, key in source if trim(request[key]))
        if content:
            body += element(tag, content, (("ID", tag),))
    return element("IT", body, (("VR", "1.3"), ("id", "IT")))


def report_start(report, number, page, request):
    tag = start_tag(report.report_id, (
        ("VR", report.report_vr), ("id", f"{report.report_id}-{number}"), ("page", str(page)),
        ("sakuseiDay", request["sakusei_day"]), ("sakuseiNM", trim(request["nozeisha_nm"])),
        ("softNM", trim(request["soft_name"]))))
    if len(tag.encode("utf-8")) > 499:
        sys.exit(f"the model doesn't know start tags that are cut: {tag}")
    return tag


def catalog(report_ids):
    items = "".join(
        element("rdf:li", element("rdf:description", "", (("about", f"#{report_id}"),)))
        for report_id in report_ids)
    sections = (element("SEND_DATA")
                + element("IT_SEC", element("rdf:description", "", (("about", "#IT"),)))
                + element("FORM_SEC", element("rdf:Seq", items))
                + element("TENPU_SEC") + element("XBRL_SEC") + element("XBRL2_1_SEC")
                + element("SOFUSHO_SEC"))
    description = element("rdf:description", sections, (("id", "REPORT"),))
    return element("CATALOG", element("rdf:RDF", description, (("xmlns:rdf", RDF),)),
                   (("id", "CATALOG"),))


def document(proc_id, proc_vr, report_ids, it_text, reports):
    """The whole document as the library writes it."""
    contents = element("CONTENTS", it_text + reports, (("id", "CONTENTS"),))
    procedure = element(proc_id, catalog(report_ids) + contents,
                        (("VR", proc_vr), ("id", proc_id)))
    return serialise(element("DATA", procedure, ROOT_ATTRIBUTES))
