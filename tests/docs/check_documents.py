#!/usr/bin/env python3
"""Holds the documents against the files that they show, link to and run.

    check_documents.py                    links and code blocks
    check_documents.py KZEKAMOK           the commands of console blocks as well

Looks at the Markdown files of the root and of docs/. An HTML comment on the line before a code
block, or with a blank line between, tells where the block comes from; paths count from the root:

    <!-- file: PATH -->           the whole file; a .csv file is Shift_JIS
    <!-- part of: PATH -->        lines of the file, one behind the other; their indent may differ
    <!-- document: PATH -->       an XML document, whatever its line ends and indents. Comments in
                                  the block are notes, and a line of "…" stands for anything.
    <!-- run -->                  lines "$ COMMAND" and what they print. The commands of a document
                                  run in one shell, in a folder that has docs/, resources/ and
                                  samples/, with KZEKAMOK as kzekamok and scripts/kzekamok. A line
                                  of "…" stands for any lines, "…" in a line for anything there.

With KZEKAMOK what GENERATED names is compared with what the program writes, too.

NAME.ja.md is NAME.md in Japanese: it has the same marked blocks, runs the same commands (in
Japanese) and has as many headings of each level.
"""

import os
import re
import subprocess
import sys
import tempfile
import textwrap
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent.parent
MARK = re.compile(
    r"^<!-- (file|part of|document|run)(?:: (\S+))? -->\n\n?```(\w+)\n(.*?)^```$",
    re.MULTILINE | re.DOTALL,
)
ANY_MARK = re.compile(r"^<!-- (?:file|part of|document|run)\b", re.MULTILINE)
CODE = re.compile(r"^```.*?^```$|`[^`\n]*`", re.MULTILINE | re.DOTALL)
LINK = re.compile(r"\]\(([^)\s]+)\)")
HEADING = re.compile(r"^#+ (.+)$", re.MULTILINE)
END_OF_COMMAND = "-- end of command --"
# Documents that the program writes, with the arguments for it.
GENERATED = {"docs/check-items.md": ["rules", "--format", "markdown", "--lang", "en"]}


def documents():
    return sorted([*ROOT.glob("*.md"), *(ROOT / "docs").glob("*.md")])


def read(path):
    return path.read_bytes().decode("cp932" if path.suffix == ".csv" else "utf-8").replace("\r", "")


def without_white_space(document):
    """On one line; line ends within a tag become blanks."""
    document = re.sub(r"<!--.*?-->", "", document, flags=re.DOTALL).strip()
    return re.sub(r"\s*\n\s*", " ", re.sub(r">\s+<", "><", document))


def is_part(block, whole):
    """The block's lines stand in the file one behind the other, moved sideways or not."""
    wanted = textwrap.dedent(block).splitlines()
    lines = whole.splitlines()
    return any(
        textwrap.dedent("\n".join(lines[start : start + len(wanted)])).splitlines() == wanted
        for start in range(len(lines) - len(wanted) + 1)
    )


def is_document(block, whole):
    """The parts between lines of "…" stand in the document in their order."""
    whole = without_white_space(whole)
    position = 0
    for part in re.split(r"^\s*…\s*$", block, flags=re.MULTILINE):
        part = without_white_space(part)
        found = whole.find(part, position)
        if found < 0:
            return False
        position = found + len(part)
    return True


def block_problem(kind, source, block):
    path = ROOT / source
    if not path.is_file():
        return f"no such file: {source}"
    same = {
        "file": lambda: block == read(path),
        "part of": lambda: is_part(block, read(path)),
        "document": lambda: is_document(block, read(path)),
    }[kind]()
    return None if same else f"a code block differs from {source}:\n{block}"


def anchors(path):
    """The fragments that headings have."""
    return {
        re.sub(r"[^\w\- ]", "", heading.strip().lower()).replace(" ", "-")
        for heading in HEADING.findall(CODE.sub(lambda code: code.group().strip("`"), read(path)))
    }


def link_problems(document):
    for target in LINK.findall(CODE.sub("", read(document))):
        if re.match(r"\w+:", target):
            continue
        name, _, fragment = target.partition("#")
        path = (document.parent / name).resolve() if name else document
        if not path.exists():
            yield f"a link leads nowhere: {target}"
        elif fragment and fragment not in anchors(path):
            yield f"no such heading: {target}"


def commands(block):
    """Pairs of a command and what it prints."""
    for entry in re.split(r"^\$ ", block, flags=re.MULTILINE)[1:]:
        lines = entry.splitlines(keepends=True)
        command = lines.pop(0)
        while command.endswith("\\\n"):
            command += lines.pop(0)
        yield command, "".join(lines).strip("\n")


def is_printed(expected, actual):
    """A "…" of the document stands for what is left out."""
    parts = re.split(r"(^…\n?|…)", expected, flags=re.MULTILINE)
    pattern = "".join({"…\n": "(?:.*\n)*", "…": ".*"}.get(part) or re.escape(part)
                      for part in parts)
    if expected.endswith("\n…"):
        pattern = pattern[: -len(".*")] + "(?:.*\n?)*"
    return re.fullmatch(pattern, actual) is not None


def language(document):
    """The environment that makes kzekamok speak the document's language."""
    return {"LC_CTYPE": "C.UTF-8", "LANG": "ja" if document.name.endswith(".ja.md") else "C"}


def run_problems(document, blocks, program):
    """Runs the commands of a document and compares what they print."""
    wanted = [pair for block in blocks for pair in commands(block)]
    script = "".join(f"{command}echo '{END_OF_COMMAND}'\n" for command, _ in wanted)
    with tempfile.TemporaryDirectory() as folder:
        work = Path(folder)
        for name in ("docs", "resources", "samples"):
            (work / name).symlink_to(ROOT / name)
        for name in ("bin", "scripts"):
            (work / name).mkdir()
            (work / name / "kzekamok").symlink_to(Path(program).resolve())
        environment = dict(os.environ, **language(document), HOME=folder,
                           PATH=f"{work / 'bin'}:{os.environ['PATH']}")
        for name in ("KZEKAMOK_BUNDLE", "LC_ALL", "LC_MESSAGES"):
            environment.pop(name, None)
        run = subprocess.run(["bash"], input=script, cwd=work, env=environment, encoding="utf-8",
                             stdout=subprocess.PIPE, stderr=subprocess.STDOUT, check=False)
    printed = run.stdout.split(END_OF_COMMAND + "\n")
    if len(printed) != len(wanted) + 1:
        yield "not every command came to its end"
    for (command, expected), actual in zip(wanted, printed):
        if not is_printed(expected, actual.strip("\n")):
            yield f"$ {command}expected:\n{expected}\nprinted:\n{actual}"


def generated_problems(program):
    for name, arguments in GENERATED.items():
        written = subprocess.run([program, *arguments], stdout=subprocess.PIPE, check=True).stdout
        if written.decode("utf-8") != read(ROOT / name):
            yield f"{name} is not what the program writes: kzekamok {' '.join(arguments)} > {name}"


def outline(text):
    """What a translation has in common with the document."""
    blocks = MARK.findall(text)
    return {
        "marked blocks": [block[:3] for block in blocks],
        "commands": [command for kind, _, _, block in blocks if kind == "run"
                     for command, _ in commands(block)],
        "headings": re.findall(r"^#+(?= )", CODE.sub("", text), re.MULTILINE),
    }


def translation_problems(document):
    original = outline(read(document.with_name(document.name.replace(".ja.md", ".md"))))
    for what, value in outline(read(document)).items():
        if value != original[what]:
            yield f"other {what} than in the original:\n  {value}\n  {original[what]}"


def main():
    program = sys.argv[1] if sys.argv[1:] else None
    problems = list(generated_problems(program)) if program else []
    count = 0
    for document in documents():
        name = document.relative_to(ROOT)
        text = read(document)
        blocks = MARK.findall(text)
        if len(blocks) != len(ANY_MARK.findall(text)):
            problems.append(f"{name}: a mark without a code block behind it")
        count += len(blocks)
        found = list(link_problems(document))
        found += filter(None, (block_problem(kind, source, block)
                               for kind, source, _, block in blocks if kind != "run"))
        runs = [block for kind, _, _, block in blocks if kind == "run"]
        if program and runs:
            found += run_problems(document, runs, program)
        if name.name.endswith(".ja.md"):
            found += translation_problems(document)
        problems += [f"{name}: {problem}" for problem in found]
    if not count:
        problems.append("no document has a marked code block")
    if problems:
        sys.exit("\n".join(problems))


if __name__ == "__main__":
    main()
