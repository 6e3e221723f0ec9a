#!/usr/bin/env python3
"""Tests how the tool bears what happens around it: an interrupt in the middle of a save, a reader that goes away, and
somebody who waits at a terminal.

    tests/tool/robustness.py build/release/bin/vyrcfd
"""

import json
import os
import pty
import random
import select
import signal
import subprocess
import sys
import tempfile
import threading
import time
import unittest
from pathlib import Path

TOOL = Path(sys.argv.pop(1)).resolve()
ROOT = Path(__file__).resolve().parents[2]
MODEL = ROOT / "samples/models/externalFlow.model.json"
APPLY = [TOOL, "--installation", ROOT / "samples", "apply"]


def large_model(folder, copies):
    """The sample's objects many times over, each under a name of its own."""
    model = json.loads(MODEL.read_text())
    mesh = next(one for one in model["objects"] if one["type"] == "FlowMesh")
    mesh = {"type": mesh["type"],
            "values": {key: value for key, value in mesh["values"].items() if '"ref"' not in json.dumps(value)}}
    model["objects"] += [{**mesh, "name": f"Copy.{i}"} for i in range(copies)]
    file = folder / "large.model.json"
    file.write_text(json.dumps(model))
    return file


class RobustnessTest(unittest.TestCase):
    def setUp(self):
        self.scratch = tempfile.TemporaryDirectory()
        self.folder = Path(self.scratch.name)

    def tearDown(self):
        self.scratch.cleanup()

    def test_a_signal_leaves_the_old_file_or_the_new_one_and_nothing_besides(self):
        file = large_model(self.folder, 1500)
        old = file.read_bytes()
        command = [*APPLY, file, "Solver.1", "externalFlow", "-o", file]
        begin = time.monotonic()
        self.assertEqual(subprocess.run(command, capture_output=True).returncode, 0)
        duration = time.monotonic() - begin
        new = file.read_bytes()
        self.assertNotEqual(new, old)
        ends = set()
        chance = random.Random(1)
        signals = [signal.SIGINT, signal.SIGTERM, signal.SIGHUP]
        for i in range(30):
            file.write_bytes(old)
            process = subprocess.Popen(command, stdout=subprocess.DEVNULL, stderr=subprocess.PIPE)
            time.sleep(duration * chance.uniform(0.3, 1.1))
            process.send_signal(signals[i % len(signals)])
            errors = process.communicate()[1]
            ends.add(process.returncode)
            self.assertEqual(errors, b"")
            self.assertIn(file.read_bytes(), (old, new))
            self.assertEqual(os.listdir(self.folder), [file.name])
        self.assertLessEqual(ends, {0, *(-one for one in signals)})
        self.assertGreaterEqual(ends, {-one for one in signals})

    def test_interrupt_ends_a_save_into_a_pipe_that_nobody_reads(self):
        os.mkfifo(self.folder / "pipe")
        process = subprocess.Popen([*APPLY, MODEL, "Solver.1", "externalFlow", "-o", self.folder / "pipe"],
                                   stdout=subprocess.DEVNULL)
        time.sleep(0.5)
        self.assertIsNone(process.poll())
        process.send_signal(signal.SIGINT)
        self.assertEqual(process.wait(10), -signal.SIGINT)

    def test_head_of_an_answer_is_all_that_is_said(self):
        # Longer than what a pipe holds, so that the rest finds nobody.
        file = large_model(self.folder, 300)
        answer = subprocess.run(["bash", "-c", f"'{TOOL}' show '{file}' | head -n 1; echo ${{PIPESTATUS[0]}}"],
                                capture_output=True, text=True)
        self.assertEqual((answer.stderr, len(answer.stdout.splitlines()), answer.stdout.splitlines()[-1]), ("", 2, "141"))

    def shown_while_waiting(self, seconds):
        """Standard error, a terminal, of a run whose model is only there after a while; and its status."""
        pipe = self.folder / "slow.model.json"
        os.mkfifo(pipe)

        def feed():
            with open(pipe, "wb") as writer:
                time.sleep(seconds)
                writer.write(b'{"model": 1, "catalogs": ["VYRCfdBase"], "objects": []}')

        feeder = threading.Thread(target=feed, daemon=True)
        feeder.start()
        reader, writer = pty.openpty()
        process = subprocess.Popen([TOOL, "show", pipe], stdout=subprocess.DEVNULL, stderr=writer)
        os.close(writer)
        shown = b""
        while True:
            try:
                select.select([reader], [], [], 10)
                shown += os.read(reader, 4096)
            except OSError:
                break
        os.close(reader)
        feeder.join(10)
        return shown.decode(), process.wait(10)

    def test_long_work_is_told_of_on_a_terminal_and_erased(self):
        shown, status = self.shown_while_waiting(2)
        self.assertEqual(status, 0, shown)
        erase = "\r\x1b[K"
        lines = shown.split(erase)
        self.assertEqual((lines[0], lines[-1]), ("", ""))
        self.assertEqual(lines[1:-1], [f"Loading {self.folder}/slow.model.json ...{beat}" for beat in ["", " 1 s"]])

    def test_a_command_of_the_shell_that_takes_long_is_told_of(self):
        file = large_model(self.folder, 12000)
        reader, writer = pty.openpty()
        process = subprocess.Popen([TOOL, "shell", file], stdin=subprocess.PIPE, stdout=subprocess.DEVNULL, stderr=writer)
        os.close(writer)
        process.stdin.write(b"apply Solver.1 externalFlow\nundo\n")
        process.stdin.close()
        shown = b""
        while True:
            try:
                shown += os.read(reader, 4096)
            except OSError:
                break
        os.close(reader)
        self.assertEqual(process.wait(30), 0)
        self.assertIn(b"\r\x1b[Kapply Solver.1 externalFlow ...", shown)
        for line in shown.split(b"\n"):
            self.assertNotRegex(line, rb"\.\.\.(?! *\d* *s?\r)", "a note stands behind the line of progress")

    def test_short_work_is_not_told_of(self):
        self.assertEqual(self.shown_while_waiting(0.1), ("", 0))

    def test_long_work_is_told_of_on_terminals_only(self):
        file = large_model(self.folder, 6000)
        begin = time.monotonic()
        answer = subprocess.run([*APPLY, file, "Solver.1", "externalFlow"], capture_output=True, text=True)
        self.assertGreater(time.monotonic() - begin, 0.5, "too quick for this test")
        self.assertEqual((answer.returncode, answer.stderr), (0, ""))


unittest.main()
