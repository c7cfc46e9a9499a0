"""The worked example of the help page many-units.html, carried out word for word."""

import html
import os
import pathlib
import re
import subprocess
import sys
import tempfile

import program
from program import ROOT, Test, main

PAGE = ROOT / "Resources/homepage/many-units.html"


def steps():
    """The files and the sessions of the page, in their order: name of a file or None, and text."""
    page = PAGE.read_text(encoding="utf-8")
    found = re.findall(r'<pre class="(file|session)"(?: id="([^"]+)")?>(.*?)</pre>', page, re.DOTALL)
    return [(name if kind == "file" else None, html.unescape(text)) for kind, name, text in found]


def session(text):
    """The command lines of a session, each with what is printed before the next one."""
    parts = re.split(r"^\$ (.*)\n", text, flags=re.MULTILINE)
    return list(zip(parts[1::2], parts[2::2]))


def printed_by(command):
    """What a terminal shows of it: data and sentences in their order."""
    path = f"{pathlib.Path(program.PROGRAM).parent}:{os.environ['PATH']}"
    done = subprocess.run(["sh", "-c", command], stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                          stderr=subprocess.STDOUT, text=True, check=False,
                          env=program.environment(PATH=path))
    return done.stdout.replace("\r\n", "\n")


def performed():
    """The page's steps with what is really printed."""
    for name, text in steps():
        if name is not None:
            pathlib.Path(name).write_text(text, encoding="utf-8")
        else:
            for command, printed in session(text):
                yield command, printed, printed_by(command)


class WorkedExample(Test):
    def test_prints_what_the_page_says(self):
        with tempfile.TemporaryDirectory() as folder:
            os.chdir(folder)
            commands = []
            for command, printed, really in performed():
                self.assertEqual(really, printed, command)
                commands.append(command.split()[1])
            os.chdir("/")
        self.assertEqual(commands, ["discover", "plan", "plan", "apply", "report.csv", "apply",
                                    "revert"])


if __name__ == "__main__":
    if sys.argv[1:] == ["--print"]:
        os.chdir(tempfile.mkdtemp())
        for line, _, output in performed():
            print(f"$ {line}\n{output}", end="")
    else:
        main()
