"""The CSV file of a filing as records of trimmed cells."""

import sys
import unicodedata


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


def split(content, has_quotes):
    """All lines as lists of raw cells, blank lines included. With quotes a cell that begins with a
    quotation mark runs up to the single mark that ends it, line ends and commas and all; what
    stands behind that mark still belongs to the cell."""
    lines, line, cell = [], [], ""
    is_quoted, at_start, index = False, True, 0
    while index < len(content):
        character = content[index]
        index += 1
        if is_quoted:
            if character != '"':
                cell += character
            elif content[index:index + 1] == '"':
                cell += '"'
                index += 1
            else:
                is_quoted = False
            continue
        if character == '"' and has_quotes and at_start:
            is_quoted, at_start = True, False
            continue
        at_start = character in ",\r\n"
        if not at_start:
            cell += character
            continue
        line.append(cell)
        cell = ""
        if character == ",":
            continue
        if character == "\r" and content[index:index + 1] == "\n":
            index += 1
        lines.append(line)
        line = []
    lines.append(line + [cell])
    return lines


def read_records(path, has_quotes=False):
    """The records in the order of the file; blank lines give none."""
    lines = split(path.read_bytes().decode("cp932"), has_quotes)
    records = [[trim(cell) for cell in line] for line in lines]
    for cell in (cell for record in records for cell in record):
        if any(token in cell for token in ("<![CDATA[", "<!--", "<?")):
            sys.exit(f"the model doesn't know blocks that pass unescaped: {cell}")
    return [record for record in records if record != [""]]
