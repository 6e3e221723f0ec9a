#!/usr/bin/env python3
"""Tests what is made from the command line's one description: the manual page, and the completion of bash, zsh and fish,
each in its own shell.

    tests/tool/interface.py build/release/bin/vyrcfd
"""

import os
import pty
import re
import select
import shutil
import signal
import subprocess
import sys
import tempfile
import time
import unittest
from pathlib import Path

TOOL = Path(sys.argv.pop(1)).resolve()
ROOT = Path(__file__).resolve().parents[2]
COMMANDS = ["apply", "show", "explain", "list", "check", "describe", "graph", "purge", "shell"]
MODEL = "samples/models/externalFlow.model.json"

# Lines as they are typed, and what the last word may become.
LINES = [
    ("vyrcfd ap", ["apply"]),
    ("vyrcfd interf", []),
    ("vyrcfd interface ", ["man", "bash", "zsh", "fish"]),
    ("vyrcfd interface b", ["bash"]),
    ("vyrcfd interface bash ", []),
    ("vyrcfd aply sh", []),
    ("vyrcfd ", COMMANDS),
    ("vyrcfd apply --out", ["--output"]),
    ("vyrcfd apply --installation samples --cat", ["--catalog"]),
    ("vyrcfd show --out", []),
    (f"vyrcfd show {MODEL} Sol", ["Solver.1", "Solver.1/"]),
    (f"vyrcfd apply {MODEL} Solver.1/freestr", ["Solver.1/freestream", "Solver.1/freestream/"]),
    # An attribute is no object.
    (f"vyrcfd apply {MODEL} Solver.1/iter", []),
    (f"vyrcfd explain {MODEL} Solver.1/iter", ["Solver.1/iterations"]),
    (f"vyrcfd apply {MODEL} Solver.1 externalF", ["externalFlow"]),
    ("vyrcfd --installation samples describe wallE", ["wallEnergy"]),
    ("vyrcfd --installation nowhere describe wallE", []),
    ("vyrcfd show samples/models/ext", [MODEL]),
    # No folder may be missing on the way to a model.
    ("vyrcfd show sampl", ["samples/"]),
    ("vyrcfd show samples/README", []),
    ("vyrcfd check samples/catalogs/Flow", ["samples/catalogs/FlowCommon.catalog.json"]),
    ("vyrcfd --installation sampl", ["samples/"]),
    ("vyrcfd list --installation samples/READ", []),
    (f"vyrcfd shell {MODEL} --file LICEN", ["LICENSE"]),
    ("vyrcfd --installation=samples describe wallE", ["wallEnergy"]),
]

BASH_DRIVER = r"""
source "$1"
# Cuts a line into words as bash does before it completes; none of ours has quotation marks.
read -r -a COMP_WORDS <<<"$2"
[[ $2 != *' ' ]] || COMP_WORDS+=("")
COMP_CWORD=$((${#COMP_WORDS[@]} - 1))
_vyrcfd
for one in "${COMPREPLY[@]}"; do
    # What readline adds to a folder where names of files are completed.
    [ ! -d "$one" ] || one+=/
    printf '%s\n' "$one"
done
"""


def run(arguments, **settings):
    result = subprocess.run(arguments, capture_output=True, text=True, cwd=ROOT, **settings)
    return result.stdout, result.stderr, result.returncode


class InterfaceTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = Path(tempfile.mkdtemp())
        # Shells read what is in this home and nothing else.
        cls.environment = {"PATH": f"{TOOL.parent}:/usr/bin:/bin", "HOME": str(cls.folder), "TERM": "dumb", "LC_ALL": "C.UTF-8",
                           "XDG_CONFIG_HOME": str(cls.folder), "XDG_DATA_HOME": str(cls.folder)}
        for what, name in [("man", "vyrcfd.1"), ("bash", "vyrcfd.bash"), ("zsh", "_vyrcfd"), ("fish", "vyrcfd.fish")]:
            text, errors, status = run([TOOL, "interface", what])
            assert (errors, status) == ("", 0), errors
            (cls.folder / name).write_text(text)

    @classmethod
    def tearDownClass(cls):
        shutil.rmtree(cls.folder)

    def test_manual_page_is_set_without_warnings(self):
        page = str(self.folder / "vyrcfd.1")
        self.assertEqual(run(["groff", "-ww", "-man", "-Tutf8", "-z", page]), ("", "", 0))
        text, errors, status = run(["man", "--warnings", "--local-file", page], env={**self.environment, "MANWIDTH": "80"})
        self.assertEqual((errors, status), ("", 0))
        self.assertLessEqual(max(map(len, text.splitlines())), 80)

    def test_manual_page_has_every_command_and_option(self):
        page = (self.folder / "vyrcfd.1").read_text().replace("\\-", "-").replace("\\fB", "").replace("\\fR", "")
        for command in COMMANDS:
            self.assertIn(f'.SS "vyrcfd {command} ', page)
            help_text, _, _ = run([TOOL, command, "--help"])
            options = re.findall(r"^  (-[^ ].*?)(?:  |$)", help_text, re.MULTILINE)
            self.assertGreaterEqual(len(options), 3, help_text)
            for option in options:
                self.assertIn(".TP\n" + option, page.replace("\\fI", ""))
        self.assertNotIn("interface complete", page)

    def test_help_ends_with_an_example_and_fits(self):
        for command in [[], *([one] for one in COMMANDS)]:
            text, errors, status = run([TOOL, *command, "--help"])
            self.assertEqual((errors, status), ("", 0))
            self.assertLessEqual(max(map(len, text.splitlines())), 80, command)
            # Not glued together by the lines being folded.
            self.assertRegex(text, r"\n\nExample:\n    .*vyrcfd .*\n\Z")

    def test_bash_completes(self):
        for line, expected in LINES:
            answer, errors, _ = run(["bash", "-c", BASH_DRIVER, "bash", self.folder / "vyrcfd.bash", line],
                                    env=self.environment)
            with self.subTest(line=line):
                self.assertEqual((answer.split(), errors), (expected, ""))

    def test_fish_completes(self):
        for line, expected in LINES:
            script = f"source {self.folder}/vyrcfd.fish; complete -C '{line}'"
            answer, errors, _ = run(["fish", "--no-config", "-c", script], env=self.environment)
            with self.subTest(line=line):
                self.assertEqual(([one.split("\t")[0] for one in answer.splitlines()], errors), (sorted(expected), ""))

    def test_zsh_reads_its_script(self):
        self.assertEqual(run(["zsh", "-n", self.folder / "_vyrcfd"]), ("", "", 0))

    @staticmethod
    def read(shown):
        """What stands on the terminal in the end: without bells, without escapes, and with what was taken back gone."""
        shown = re.sub(r"\x1b\[[0-9;?]*[A-Za-z]|\x1b[=>]|[\a\r]", "", shown)
        while "\b" in shown:
            shown = re.sub(r"[^\x08]?\x08", "", shown, count=1)
        return shown

    def typed(self, shell, keys, until):
        """What a shell on a terminal shows, in which somebody types, until it shows what is waited for."""
        process, terminal = pty.fork()
        if process == 0:
            os.chdir(ROOT)
            os.execvpe(shell[0], shell, self.environment)
        shown = ""
        end = time.monotonic() + 10
        try:
            while until not in self.read(shown) and time.monotonic() < end:
                if select.select([terminal], [], [], 0.1)[0]:
                    shown += os.read(terminal, 4096).decode(errors="replace")
                if "READY>" in shown and keys:
                    os.write(terminal, keys.encode())
                    keys = ""
        finally:
            # A shell does not leave a line that somebody has begun.
            os.kill(process, signal.SIGKILL)
            os.close(terminal)
            os.waitpid(process, 0)
        return self.read(shown)

    def test_terminals_complete_with_the_tabulator(self):
        bash = self.folder / "bashrc"
        bash.write_text(f"source {self.folder}/vyrcfd.bash\nPS1='READY>'\n")
        (self.folder / ".zshrc").write_text(f"fpath=({self.folder} $fpath)\nautoload -Uz compinit\ncompinit -u -D\nPS1='READY>'\n")
        shells = [["bash", "--noprofile", "--rcfile", str(bash), "-i"], ["zsh", "-o", "no_global_rcs", "-i"]]
        for shell in shells:
            for keys, until in [("vyrcfd ap\t", "vyrcfd apply "),
                                ("vyrcfd show sampl\tmod\text\tSol\t", f"vyrcfd show {MODEL} Solver.1"),
                                ("vyrcfd --installation=sampl\t describe wallE\t", " describe wallEnergy "),
                                ("vyrcfd apply --o\t", "--output ")]:
                with self.subTest(shell=shell[0], keys=keys):
                    self.assertIn(until, self.typed(shell, keys, until))


    def test_bash_completes_within_quotation_marks(self):
        model = self.folder / "odd.model.json"
        # A name with everything that bash takes for something else within one quotation mark or the other.
        model.write_text('{"model": 1, "catalogs": ["ExternalFlow"], "objects": [' +
                         '{"type": "ExternalFlowSolver", "name": "Fan B"}, ' +
                         '{"type": "ExternalFlowSolver", "name": "Odd \\\\ $HOME `date` it\'s"}]}')
        bash = self.folder / "quoting"
        bash.write_text(f"source {self.folder}/vyrcfd.bash\nPS1='READY>'\ncd {self.folder}\n")
        shell = ["bash", "--noprofile", "--rcfile", str(bash), "-i"]
        for keys, until in [('vyrcfd explain odd.model.json "Fan B/iterat\t', ' "Fan B/iterations" '),
                            ("vyrcfd explain odd.model.json 'Fan B/iterat\t", " 'Fan B/iterations' "),
                            ("vyrcfd explain odd.model.json Fan\\ B/iterat\t", " Fan\\ B/iterations "),
                            ('vyrcfd explain "odd.model.json" "Fan B/iterat\t', ' "Fan B/iterations" '),
                            ('vyrcfd explain odd.model.json "Odd\t', ' "Odd \\\\ \\$HOME \\`date\\` it\'s'),
                            ("vyrcfd explain odd.model.json 'Odd\t", " 'Odd \\ $HOME `date` it'\\''s")]:
            with self.subTest(keys=keys):
                self.assertIn(until, self.typed(shell, keys, until))


unittest.main()
