#!/usr/bin/env python3
"""Completes command lines with definition files and file names made to run commands.

    completion.py KZEKAMOK

An interactive bash and zsh (where it is there) are typed into, through a terminal of their own, as a
person would: a line, Tab, Enter. Every hostile text would make the file `canary`.
"""

import os
import pty
import select
import shutil
import signal
import subprocess
import sys
import tempfile
import time
from xml.sax.saxutils import quoteattr

HOSTILE = [
    "$(>canary)",
    "0$(>canary)",
    "$(touch${IFS}canary)",
    "`>canary`",
    "0`>canary`",
    ";>canary;",
    "0;>canary",
    "|tee canary",
    "&&>canary",
    "<(>canary)",
    "=(>canary)",
    "*",
    "?",
    "[0-9]*",
    "{>canary,x}",
    "'\";>canary;'\"",
    "0\n>canary\n",
    "0\r>canary\r",
    "$((a[$(>canary)]))",
    "${a:-$(>canary)}",
    "${(e):-'$(>canary)'}",
    "*(e:'>canary':)",
    "x(+canary)",
    "~[$(>canary)]",
    "%{$(>canary)%}",
    "-o;>canary",
    "\x1b]0;x\x07",
    "\u202e0;>canary",
    "0:$(>canary)",
    "0\\;>canary",
]
SECONDS = 60  # for one answer of a shell
# Each key starts the program, and one with sanitizers starts slowly: there a third of the lines, another
# for each command, as the program's part is the same list whatever the line.
STEP = 3 if os.environ.get("KZEKAMOK_SLOW_BUILD") else 1
BEGINNINGS = ["", "0", "$", "\\$", "\\`", "\\;", "*", "x", "{", "\\<", "\u202e"]


def definition():
    """One honest report, and one for each hostile text, which is type id, label and all else."""
    reports = ['<report id="001" columnNum="1" procId="PGE5010" procVR="1.0" reportId="R"'
               ' label="honest"><item type="Normal" id="T" parent="R" column="1"/></report>']
    for text in HOSTILE:
        # Character references keep line ends and tabs; other control characters XML has none for.
        if any(ord(c) < 32 and c not in "\t\r\n" for c in text):
            continue
        value = quoteattr(text)
        reports.append(f'<report id={value} columnNum="1" procId={value} procVR="1.0"'
                       f' reportId={value} label={value}>'
                       f'<item type="Normal" id={value} parent={value} column="1" label={value}/>'
                       '</report>')
    return '<?xml version="1.0" encoding="UTF-8"?>\n<define>' + "\n".join(reports) + "</define>\n"


class Shell:
    """An interactive shell in a terminal of its own."""

    def __init__(self, arguments, environment, setup):
        self.pid, self.terminal = pty.fork()
        if self.pid == 0:
            os.execvpe(arguments[0], arguments, environment)
        self.asked = 0
        self.enter(setup)

    def enter(self, line):
        """Types the line, Enter, and waits until the shell has done it. Returns what was shown."""
        os.write(self.terminal, line.encode() + b"\r")
        self.asked += 1
        # The echo of the question doesn't look like its answer.
        os.write(self.terminal, f"\recho DONE$((0))-{self.asked}-\r".encode())
        answer = f"DONE0-{self.asked}-".encode()
        shown = b""
        end = time.monotonic() + SECONDS
        while answer not in shown and time.monotonic() < end:
            if select.select([self.terminal], [], [], 1)[0]:
                try:
                    shown += os.read(self.terminal, 65536)
                except OSError:
                    break
        if answer not in shown:
            raise RuntimeError(f"no answer to {line!r}: {shown!r}")
        return shown.decode(errors="replace")

    def end(self):
        os.kill(self.pid, signal.SIGKILL)
        os.waitpid(self.pid, 0)
        os.close(self.terminal)


class Attack:
    def __init__(self, program, folder):
        self.folder = folder
        self.failures = 0
        os.mkdir("bin")
        os.symlink(program, "bin/kzekamok")
        self.environment = {
            "PATH": f"{folder}/bin:/usr/bin:/bin", "HOME": folder, "TERM": "dumb", "LC_ALL": "C.UTF-8",
            "KZEKAMOK_BUNDLE": f"{folder}/bundle", "KZEKAMOK_LANG": "en",
        }
        os.mkdir("bundle")
        with open("bundle/KZEkaDefine.xml", "w", encoding="utf-8", newline="") as file:
            file.write(definition())
        for number, text in enumerate(HOSTILE):
            # A folder with one file of a hostile name, and one with a folder of that name.
            os.makedirs(f"file{number}")
            self.touch(f"file{number}/{text}.csv")
            os.makedirs(f"folder{number}/{text}")
            self.touch(f"folder{number}/{text}/a.csv")
        # Found by the globs among the type ids.
        self.touch("$(>canary)")
        self.touch("0`>canary`")

    @staticmethod
    def touch(path):
        with open(path, "w", encoding="utf-8"):
            pass

    def expect(self, holds, what):
        if not holds:
            self.failures += 1
            print(f"FAILED: {what}")

    def script(self, shell):
        return subprocess.run(["bin/kzekamok", "completion", shell], env=self.environment,
                              check=True, capture_output=True).stdout

    def try_line(self, shell, name, line):
        shell.enter(line)
        found = [path for path in ("canary", "bundle/canary") if os.path.exists(path)]
        self.expect(not found, f"{name} ran a command for {line!r}")
        for path in found:
            os.remove(path)

    def try_all(self, shell, name):
        shown = shell.enter("kzekamok layout 00\t")
        self.expect("# Type 001: honest" in shown, f"{name} completes the honest type id: {shown!r}")
        for place, command in enumerate(("layout", "rules", "new", "lint --type")):
            for begin in BEGINNINGS[place % STEP::STEP]:
                self.try_line(shell, name, f"kzekamok {command} {begin}\t\t\t")
            # zsh closes a quote by itself.
            for quote in "'\"" if name == "bash" else "":
                self.try_line(shell, name, f"kzekamok {command} {quote}\t\t{quote}")
        for number in range(0, len(HOSTILE), STEP):
            self.try_line(shell, name, f"kzekamok check file{number}/\t\t")
            self.try_line(shell, name, f"kzekamok check folder{number}/\t\t\t\t")
            self.try_line(shell, name, f"kzekamok check a.csv --output=folder{number}/\t\t\t\t")
            self.try_line(shell, name, f"kzekamok batch folder{number}/\t\t\t")

    def run(self):
        with open("kzekamok.bash", "wb") as file:
            file.write(self.script("bash"))
        bash = Shell(["bash", "--norc", "--noprofile", "-i"], self.environment,
                     "bind 'set bell-style none'; bind 'set enable-bracketed-paste off'; "
                     "bind 'set page-completions off'; bind 'set completion-query-items 100000'; "
                     "source ./kzekamok.bash; set +H")
        try:
            self.try_all(bash, "bash")
        finally:
            bash.end()
        if not shutil.which("zsh"):
            print("zsh is not there: not tried")
            return
        os.mkdir("functions")
        with open("functions/_kzekamok", "wb") as file:
            file.write(self.script("zsh"))
        zsh = Shell(["zsh", "-f", "-i"], self.environment,
                    "unsetopt zle_bracketed_paste prompt_cr; fpath=($PWD/functions $fpath); "
                    "autoload -Uz compinit; compinit -D -u; setopt no_beep no_list_beep; LISTMAX=1000")
        try:
            self.try_all(zsh, "zsh")
        finally:
            zsh.end()


def main():
    program = os.path.abspath(sys.argv[1])
    before = os.getcwd()
    folder = tempfile.mkdtemp()
    os.chdir(folder)
    try:
        attack = Attack(program, folder)
        attack.run()
    finally:
        os.chdir(before)
        shutil.rmtree(folder)
    sys.exit(1 if attack.failures else 0)


if __name__ == "__main__":
    main()
