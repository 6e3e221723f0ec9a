#!/usr/bin/env python3
"""Runs the sessions that documents print, and compares what they print.

    tests/docs/sessions.py [--renew] build/release/bin/vyrcfd DOCUMENT.md ...

A session is a fenced block marked "console": a command behind "$ ", going on in lines behind "> ", and below it what it
prints. Of what a line "..." stands for anything may be printed. A fenced block whose mark names a file behind the language,
as "json mine/catalogs/Mine.catalog.json", is that file. All blocks of a document are worked through in their order, by one
bash in one scratch folder, in which the repository's samples and schema lie as they do in the repository.

With --renew the documents are written anew with what is printed now; read the difference.
"""

import difflib
import os
import re
import shutil
import subprocess
import sys
import tempfile
import threading
from dataclasses import dataclass
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
FENCE = re.compile(r"^```(\S*) ?(\S*)$")
MARK = "\x01"
SECONDS = 60


@dataclass
class Step:
    """A command of a session with the lines that it is to print."""
    line: int
    command: list
    printed: list


class Shell:
    """A bash that keeps its folder, its variables and the last status from command to command."""

    def __init__(self, tool, folder):
        environment = {"PATH": f"{tool.parent}:{os.environ['PATH']}", "HOME": str(folder), "LC_ALL": "C.UTF-8",
                       "TERM": "dumb"}
        self.process = subprocess.Popen(["bash", "--noprofile", "--norc"], stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                                        stderr=subprocess.STDOUT, cwd=folder, env=environment, text=True)

    def run(self, command):
        """What the command prints, as lines."""
        self.process.stdin.write("{\n" + "\n".join(command) + "\n} </dev/null\n"
                                 f"last=$?; printf '{MARK}\\n'; (exit $last)\n")
        self.process.stdin.flush()
        watch = threading.Timer(SECONDS, self.process.kill)
        watch.start()
        text = ""
        while MARK not in text:
            line = self.process.stdout.readline()
            if not line:
                text += f"(the session has ended){MARK}"
            text += line
        watch.cancel()
        return text[:text.index(MARK)].splitlines()

    def close(self):
        self.process.stdin.close()
        self.process.wait()
        self.process.stdout.close()


def steps_of(lines, first):
    """The commands of a session's lines."""
    steps = []
    for number, line in enumerate(lines, first):
        if line.startswith("$ "):
            steps.append(Step(number, [line[2:]], []))
        elif not steps:
            sys.exit(f"line {number}: a session begins with a command")
        elif line.startswith("> ") and not steps[-1].printed:
            steps[-1].command.append(line[2:])
        else:
            steps[-1].printed.append(line)
    return steps


def matches(expected, printed):
    """Whether lines are as expected, where "..." stands for any number of them."""
    parts = "".join(".*" if line == "..." else re.escape(line) + "\n" for line in expected)
    return re.fullmatch(parts, "".join(line + "\n" for line in printed), re.DOTALL) is not None


def run_block(shell, lines, first, told):
    """The block with what is printed now where that is not what it says; `told` gets a difference for each."""
    renewed = []
    for step in steps_of(lines, first):
        renewed += ["$ " + step.command[0], *("> " + one for one in step.command[1:])]
        printed = [line.rstrip() for line in shell.run(step.command)]
        if matches(step.printed, printed):
            renewed += step.printed
            continue
        renewed += printed
        told.append([f"line {step.line}: $ {step.command[0]}",
                     *difflib.unified_diff(step.printed, printed, "the document", "this run", lineterm="", n=1)])
    return renewed


def work_through(text, folder, shell, told):
    """The document with its sessions renewed, and how many commands were run."""
    output, block, mark, first, count = [], [], None, 0, 0
    for number, line in enumerate(text.splitlines(), 1):
        fence = FENCE.match(line)
        if mark is None:
            mark, block, first = fence, [], number + 1
            output.append(line)
        elif line != "```":
            block.append(line)
        else:
            language, name = mark.groups()
            if language == "console":
                block = run_block(shell, block, first, told)
                count += sum(one.startswith("$ ") for one in block)
            elif name:
                (folder / name).parent.mkdir(parents=True, exist_ok=True)
                (folder / name).write_text("\n".join(block) + "\n")
            output += [*block, line]
            mark = None
    return "\n".join(output) + "\n", count


def check(tool, document, is_renewing):
    """Number of commands, and of those that print something else."""
    with tempfile.TemporaryDirectory() as name:
        folder = Path(name)
        shutil.copytree(ROOT / "samples", folder / "samples", ignore=shutil.ignore_patterns("__pycache__"))
        (folder / "docs").mkdir()
        shutil.copy(ROOT / "docs/configuration.schema.json", folder / "docs")
        shell = Shell(tool, folder)
        told = []
        renewed, count = work_through(document.read_text(), folder, shell, told)
        shell.close()
    for difference in told:
        print(f"{document.relative_to(ROOT)}:", *difference, sep="\n")
    if is_renewing:
        document.write_text(renewed)
    return count, len(told)


def main(arguments):
    is_renewing = arguments[:1] == ["--renew"]
    if is_renewing:
        arguments = arguments[1:]
    if len(arguments) < 2:
        sys.exit(__doc__)
    figures = [check(Path(arguments[0]).resolve(), Path(one).resolve(), is_renewing) for one in arguments[1:]]
    commands, wrong = (sum(column) for column in zip(*figures))
    print(f"{commands} commands in {len(figures)} documents, {wrong} print something else")
    # A document whose sessions are not found would pass in silence.
    sys.exit(0 if commands and not wrong else 1)


main(sys.argv[1:])
