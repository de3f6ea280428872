"""The tag tree of a definition file, and how each kind of node writes a record."""

import sys

from serialiser import element, escape


class Conversion:
    """The records of one document and what its nodes share while they are written."""

    def __init__(self, records, it_section="", generation=lambda record: ""):
        self.records = records
        self.it_section = it_section  # as assembled; empty if references are to find nothing
        self.generation = generation  # of a record: `junior`, `senior` or nothing
        self.open_tags = []  # tags opened at some record and not closed yet, the outermost first

    @property
    def count(self):
        return len(self.records)

    def cell(self, index, column):
        record = self.records[index] if 0 <= index < self.count else []
        return record[column] if 0 <= column < len(record) else ""

    def row(self, number):
        """A row of a definition, from 1; negative ones count from the last record, which is -1."""
        return number + self.count + 1 if number < 0 else number

    def is_in_range(self, node, index):
        if node.start_row == 0 or node.end_row == 0:
            return True
        return self.row(node.start_row) <= index + 1 <= self.row(node.end_row)


class Node:
    def __init__(self, item):
        def number(name):
            return int(item.get(name) or "0")

        self.kind = item.get("type", "")
        self.name = item.get("id", "")
        self.parent = item.get("parent", "")
        self.column = max(number("column"), 0) - 1  # from 0; -1 for none
        self.generation = item.get("generation", "")
        self.value = item.get("value", "")
        self.start_row = number("startRow")
        self.end_row = number("endRow")
        self.last_record = number("lastRecord")
        self.is_repeated = item.get("repeatTopTag") == "1"
        self.zero_suppress = item.get("zeroSuppress") == "true"
        self.children = []

    def write(self, conversion, index):
        """The node's text for the record at this index, from 0."""
        return getattr(self, "write_" + self.kind)(conversion, index)

    def write_Normal(self, conversion, index):
        # The rows as they stand: one that counts from the end is never reached.
        if self.start_row != 0 and self.end_row != 0 \
                and not self.start_row <= index + 1 <= self.end_row:
            return ""
        generation = conversion.generation(conversion.records[index])
        body = "".join(child.write(conversion, index) for child in self.children
                       if child.generation in ("", generation))
        value = escape(conversion.cell(index, self.column))
        if self.zero_suppress:
            value = value.lstrip("0")
        return element(self.name, value + body) if value or body else ""

    write_Kubun = write_Normal
    write_Date = write_Normal

    def write_TAG(self, conversion, index):
        return self.write_group(conversion, index, False)

    def write_group(self, conversion, index, is_sought):
        """A group writes itself at the records of its range. At the others the groups inside are
        sought, and these write themselves where the range is theirs: their outer group may have
        been left open."""
        if self.last_record == 1 and index + 1 != conversion.count:
            return ""
        has_range = self.start_row != 0 and self.end_row != 0
        if has_range or is_sought:
            if not has_range or not conversion.is_in_range(self, index):
                return "".join(child.write_group(conversion, index, True)
                               for child in self.children if child.kind == "TAG")
        body, is_closed = "", True
        for child in self.children:
            body += child.write(conversion, index)
            is_closed = conversion.is_in_range(child, index)
            if not is_closed:
                break
        if not body:
            return ""
        if is_closed:
            return element(self.name, body)
        conversion.open_tags.append(self.name)
        return f"<{self.name}>{body}"

    def write_Zeimusho(self, conversion, index):
        body = "".join(child.write(conversion, index) for child in reversed(self.children))
        return element(self.name, body) if body else ""

    def write_Zip(self, conversion, index):
        value = conversion.cell(index, self.column)
        if not (value.isascii() and value.isalnum() or value == ""):
            sys.exit(f"the model counts characters in a postal code, not bytes: {value}")
        if len(value) < 7:
            return ""
        return element(self.name, element("gen:zip1", value[:3]) + element("gen:zip2", value[3:7]))

    def write_Bango(self, conversion, index):
        value = conversion.cell(index, self.column)
        if not (value.isascii() and value.isalnum() or value == ""):
            sys.exit(f"the model counts characters in a number, not bytes: {value}")
        if len(value) == 12:
            return element(self.name, element("gen:kojinbango", value))
        if len(value) == 13 and value[0] == "0":
            return element(self.name, element("gen:kojinbango", value[1:]))
        if len(value) == 13:
            return element(self.name, element("gen:hojinbango", value))
        return ""

    def write_IdRef(self, conversion, index):
        """A reference to a field of the IT section, dropped if the field isn't there. It names the
        field whatever the record holds."""
        field = f'<{self.value} ID="{self.value}">'
        if not self.value or field not in conversion.it_section:
            return ""
        return f'<{self.name} IDREF="{self.value}"></{self.name}>'
