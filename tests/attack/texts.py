#!/usr/bin/env python3
"""Definition files, CSV files and file names full of characters that hide, reorder or command.

    texts.py KZEKAMOK

Nothing that the program writes, in any format and language, may hold such a character raw; JSON still
tells the true names, and no cell of a spreadsheet is a formula.
"""

import csv
import io
import json
import os
import shutil
import subprocess
import sys
import tempfile
from xml.sax.saxutils import quoteattr

HIDDEN = ([chr(c) for c in range(0x7f, 0xa0)] + list("\u00ad\u061c\u180e\u200b\u200e\u200f\u2028\u2029"
          "\u202a\u202b\u202c\u202d\u202e\u2060\u2066\u2067\u2068\u2069\ufeff\ufff9\U000e0041"))
CONTROLS = [chr(c) for c in range(1, 0x20)]
FORMULAS = ["=1+1", "+1", "-1", "@SUM(A1)", "\t=1", "\r=1", "＝1", "＋1", "－1", "＠1"]
MARKUP = "</title></script><script>alert(1)</script><img src=x onerror=alert(1)>'\"&"
TEXT = "x" + "".join(HIDDEN) + "\t\r\n" + MARKUP + "|`$(id)"
# XML has no other control characters.
NAME = "n" + "".join(HIDDEN) + "".join(CONTROLS) + MARKUP.replace("/", "")[:40]


def definition():
    text = quoteattr(TEXT)
    lines = [f'<report id="001" columnNum="{len(FORMULAS) + 2}" procId={text} procVR={text}'
             f' reportId={text} reportVR={text} label={text}>']
    for number, label in enumerate([TEXT] + FORMULAS, start=2):
        label = quoteattr(label)
        lines.append(f'<item type="Normal" id={label} parent={text} column="{number}" label={label}>'
                     f'<valid id="contain" value={text}/><valid id={label} value={text}/>'
                     f'<valid id="length" max="1"/></item>')
    lines.append("</report>")
    for number, formula in enumerate(FORMULAS):
        lines.append(f'<report id="00{number}" columnNum="1" procId="P" reportId={quoteattr(formula)}'
                     f' label={quoteattr(formula)}/>')
    return ('<?xml version="1.0" encoding="UTF-8"?>\n<define>' + "\n".join(lines)
            + "</define>\n").encode()


class Attack:
    def __init__(self, program):
        self.program = program
        self.failures = 0
        os.mkdir("bundle")
        with open("bundle/KZEkaDefine.xml", "wb") as file:
            file.write(definition())
        shutil.copy(os.path.join(os.environ["KZEKAMOK_SAMPLES_DIR"], "PGE1630_fail.csv"), "plain.csv")
        os.mkdir(NAME[:60])
        # A name has at most 255 bytes.
        self.files = []
        for number, part in enumerate((NAME[:60], NAME[60:120])):
            path = f"{NAME[:60]}/{number}{part}".replace("\0", "")
            self.files.append(path + ".csv")
            with open(self.files[-1], "wb") as file:
                file.write(b"001," + b",".join([b"\x1b[31m\x81\x40x\x7f<b>"] * (len(FORMULAS) + 1)) + b"\r\n")
        with open("definition-of-nothing.csv", "wb") as file:
            file.write("=1+1,\u00ad".encode() + b"\xff\r\n")
        self.files.append("definition-of-nothing.csv")

    def fail(self, what):
        self.failures += 1
        print(f"FAILED: {what}")

    def run(self, *arguments):
        environment = dict(os.environ, KZEKAMOK_BUNDLE=os.path.abspath("bundle"), LC_ALL="C.UTF-8")
        done = subprocess.run([self.program, *arguments], env=environment, capture_output=True,
                              stdin=subprocess.DEVNULL, timeout=120, check=False)
        if done.returncode < 0 or done.returncode > 4:
            self.fail(f"{arguments!r} ends with {done.returncode}")
        self.expect_harmless(done.stdout, f"output of {arguments!r}"[:300])
        self.expect_harmless(done.stderr, f"complaints of {arguments!r}"[:300])
        return done.stdout

    def expect_harmless(self, output, what):
        try:
            text = output.decode()
        except UnicodeDecodeError as error:
            self.fail(f"{what}: no UTF-8: {error}")
            return
        raw = sorted({f"U+{ord(c):04X}" for c in text
                      if c in HIDDEN or (c in CONTROLS and c not in "\n\r")})
        if raw:
            self.fail(f"{what}: raw {', '.join(raw)}")
        if "<script>alert" in text and "<html" in text:
            self.fail(f"{what}: markup of a definition in a page")
        if "<img src=x" in text and "<html" in text:
            self.fail(f"{what}: markup of a definition in a page")

    def expect_json(self, output, what):
        try:
            return json.loads(output)
        except ValueError as error:
            self.fail(f"{what}: {error}")
            return None

    def reports(self, language):
        for form in ("text", "json", "sarif", "html"):
            output = self.run("check", "--format", form, "--lang", language, *self.files)
            if form in ("json", "sarif"):
                told = self.expect_json(output, f"check --format {form}")
                if form == "json" and told:
                    names = [file["file"] for file in told["files"]]
                    if names != self.files:
                        self.fail(f"JSON tells other names: {names!r}")
        output = self.run("check", "--format", "html", "--lang", language, self.files[0])
        self.run("convert", self.files[0], "-o", NAME[:50] + ".mok", "--lang", language)
        out = f"out-{language}"
        self.run("batch", NAME[:60], "-o", out, "-j", "1", "--check-only", "--lang", language)
        for name in ("report.json", "index.html"):
            with open(f"{out}/{name}", "rb") as file:
                self.expect_harmless(file.read(), name)

    def definitions(self, language):
        for form in ("markdown", "html", "csv"):
            output = self.run("layout", "001", "--format", form, "--lang", language)
            if form == "csv":
                self.expect_cells(output)
        self.run("layout", "--lang", language)
        self.run("layout", TEXT, "--lang", language)
        for form in ("markdown", "json"):
            output = self.run("rules", "001", "--format", form, "--lang", language)
            if form == "json":
                self.expect_json(output, "rules")
        for form in ("text", "json"):
            output = self.run("lint", "bundle", "--format", form, "--lang", language)
            if form == "json":
                self.expect_json(output, "lint")
        self.run("lint", TEXT, "--lang", language)
        self.run("explain", TEXT, "--lang", language)
        self.run(TEXT, "--" + TEXT, "--lang", language)

    def expect_cells(self, output):
        rows = list(csv.reader(io.StringIO(output.decode(), newline="")))
        if len(rows) != len(FORMULAS) + 3:
            self.fail(f"layout has {len(rows)} rows")
        for row in rows:
            for cell in row:
                if cell.startswith(("=", "+", "-", "@", "\t", "\r", "＝", "＋", "－", "＠")):
                    self.fail(f"a spreadsheet takes {cell!r} for a formula")

    def all(self):
        for language in ("en", "ja"):
            self.reports(language)
            self.definitions(language)


def main():
    program = os.path.abspath(sys.argv[1])
    before = os.getcwd()
    folder = tempfile.mkdtemp()
    os.chdir(folder)
    try:
        attack = Attack(program)
        attack.all()
    finally:
        os.chdir(before)
        shutil.rmtree(folder)
    sys.exit(1 if attack.failures else 0)


if __name__ == "__main__":
    main()
