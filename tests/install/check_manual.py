#!/usr/bin/env python3
"""Compares the manual page of kzekamok with its help texts.

check_manual.py KZEKAMOK PAGE VERSION

Every subcommand that the help tells has its subsection under COMMANDS and stands in the synopsis.
Every option that a subcommand's help tells is described in that subsection or under OPTIONS. There
it is one of the program itself, or the subsection names it, or it stands below a heading that the
subsection names. Nothing is described that the help doesn't tell.
"""
import os
import re
import subprocess
import sys

# "  -o,--output OUT.mok REQUIRED": the names, before the first blank.
OPTION_LINE = re.compile(r"^ {1,8}(-[^ ]+)(?: |$)")
OPTION = re.compile(r"(?<![\w-])(--[a-z][a-z0-9-]*|-[A-Za-z0-9])(?![\w-])")
SUBCOMMAND_LINE = re.compile(r"^  ([a-z][a-z0-9-]*)(?:  |$)")


def help_text(program, *words):
    environment = {**os.environ, "LC_ALL": "C"}
    return subprocess.run([program, *words, "--help"], env=environment, check=True,
                          capture_output=True, encoding="utf-8").stdout


def told_options(text):
    """The names of the options of a help text, without its examples."""
    names = set()
    for line in text.splitlines():
        match = OPTION_LINE.match(line)
        if match:
            names.update(OPTION.findall(match.group(1).replace(",", " ")))
    return names


def told_subcommands(text):
    names = []
    inside = False
    for line in text.splitlines():
        if line.endswith(":") and not line.startswith(" "):
            inside = line == "Subcommands:"
        elif inside:
            match = SUBCOMMAND_LINE.match(line)
            if match:
                names.append(match.group(1))
    return names


def plain(line):
    """A line of the page without macros, fonts and escapes."""
    line = re.sub(r"\\f(?:\(..|\[[^]]*\]|.)", "", line)
    line = line.replace("\\-", "-").replace("\\&", "").replace("\\|", "").replace("\\(dq", '"')
    if line.startswith("."):
        # Alternating fonts join their words, which may be quoted.
        macro, _, words = line.partition(" ")
        quoted = [a or b for a, b in re.findall(r'"([^"]*)"|([^ "]+)', words)]
        joint = "" if macro in (".BR", ".RB", ".BI", ".IB", ".IR", ".RI") else " "
        return joint.join(quoted)
    return line


class Part:
    """A section or a subsection: all its text, and the options that tag a paragraph of it."""

    def __init__(self):
        self.text = ""
        self.described = set()

    def names_option(self, option):
        return option in OPTION.findall(self.text)

    def names_heading(self, heading):
        return heading.lower() in " ".join(self.text.split()).lower()


def read_page(path):
    """The parts by name: a section's heading; for a subsection that of its section, a slash, and
    its heading, of which "kzekamok NAME" counts alone."""
    parts = {}
    part = Part()
    tagged = False
    heading = None
    section = None
    with open(path, encoding="utf-8") as page:
        lines = page.read().splitlines()
    for line in lines:
        if line.startswith('.\\"'):
            continue
        if line.startswith(".TH "):
            heading = line
        elif line.startswith((".SH ", ".SS ")):
            words = plain(line).split()
            if line.startswith(".SH "):
                section = name = " ".join(words)
            else:
                name = section + "/" + " ".join(words[:2] if words[0] == "kzekamok" else words)
            part = parts.setdefault(name, Part())
        elif line.startswith((".TP", ".TQ")):
            tagged = True
            continue
        else:
            text = plain(line)
            part.text += text + "\n"
            if tagged:
                part.described.update(OPTION.findall(text))
        tagged = False
    return heading, parts


def main():
    program, page, version = sys.argv[1:]
    heading, parts = read_page(page)
    problems = []

    if f'"KZEkaMok {version}"' not in (heading or ""):
        problems.append(f"the heading doesn't tell version {version}: {heading}")
    common = parts["OPTIONS"]
    groups = {name.partition("/")[2]: part for name, part in parts.items()
              if name.startswith("OPTIONS/")}
    main_help = help_text(program)
    program_options = told_options(main_help)
    subcommands = told_subcommands(main_help)
    # The help has another form than this script knows if it finds fewer than these.
    if not {"check", "convert"} <= set(subcommands) or "--version" not in program_options:
        problems.append(f"help not understood: {subcommands}, {program_options}")
    for option in sorted(program_options - common.described):
        problems.append(f"OPTIONS doesn't describe {option}")

    all_told = set(program_options)
    for name in subcommands:
        title = f"COMMANDS/kzekamok {name}"
        if not re.search(rf"^kzekamok {re.escape(name)}$", parts["SYNOPSIS"].text, re.M):
            problems.append(f"SYNOPSIS lacks {name}")
        if title not in parts:
            problems.append(f"COMMANDS has no subsection for {name}")
            continue
        told = told_options(help_text(program, name))
        all_told |= told
        if "--help" not in told:
            problems.append(f"help of {name} not understood: {told}")
        part = parts[title]
        shared = {option for option in common.described
                  if option in program_options or part.names_option(option)}
        for heading, group in groups.items():
            if part.names_heading(heading):
                shared |= group.described
        for option in sorted(told - part.described - shared):
            problems.append(f"{title} doesn't describe {option}")
        for option in sorted(shared - told - program_options):
            problems.append(f"{title} refers to {option}, which it doesn't have")
        for option in sorted(part.described - told):
            problems.append(f"{title} describes {option}, which it doesn't have")
    for option in sorted(common.described - all_told):
        problems.append(f"OPTIONS describes {option}, which no help tells")
    for title in parts:
        if title.startswith("COMMANDS/") and title.split()[-1] not in subcommands:
            problems.append(f"there is no subcommand of the subsection {title}")

    for problem in problems:
        print(problem, file=sys.stderr)
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
