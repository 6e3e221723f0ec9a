"""What continuous integration runs, and what it makes of it: .ci/run, with a stand-in for ./test."""

import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

SCRIPT = pathlib.Path(sys.argv.pop(1))

# ./test writes one line a build; each run leaves its arguments in `calls`, and its last line is not the last of all.
STAND_IN = """#!/bin/sh
cd "$(dirname "$0")" || exit 9
echo "$*" >>calls
case ${{1-}} in
    package) echo "package told"; exit {package} ;;
    docs) echo "docs told"; echo "docs complained" >&2; exit {docs} ;;
esac
mkdir -p build
printf '{summary}' >build/test-summary
exit {status}
"""

# Name of the case, ./test's summary and status, those of package and docs, the closing line, the exit status.
BOTH = "release 5 0 1\\nasan-ubsan 4 0 0\\n"
CASES = [
    ("all pass", BOTH, 0, 0, 0, "11 passed, 0 failed", 0),
    ("a test fails", "release 4 1 0\\nasan-ubsan 4 0 0\\n", 1, 0, 0, "10 passed, 1 failed", 1),
    ("the packages fail", BOTH, 0, 1, 0, "10 passed, 1 failed", 1),
    ("the documents fail", BOTH, 0, 0, 3, "10 passed, 1 failed", 1),
    ("all fail", "release 0 1 0\\n", 7, 1, 1, "0 passed, 3 failed", 7),
    ("no summary", "", 0, 0, 0, "2 passed, 1 failed", 1),
    ("no test was run", "release 0 0 0\\n", 0, 0, 0, "2 passed, 1 failed", 1),
    ("a failure that no number tells", BOTH, 4, 0, 0, "11 passed, 0 failed", 4),
]


class CiTest(unittest.TestCase):
    def run_script(self, arguments, **values):
        with tempfile.TemporaryDirectory() as name:
            root = pathlib.Path(name)
            (root / ".ci").mkdir()
            shutil.copy(SCRIPT, root / ".ci/run")
            (root / "test").write_text(STAND_IN.format(**values))
            (root / "test").chmod(0o755)
            result = subprocess.run([root / ".ci/run", *arguments], stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)
            return result.stdout.splitlines(), result.returncode, (root / "calls").read_text().splitlines()

    def test_cases(self):
        for name, summary, status, package, docs, line, exit_status in CASES:
            with self.subTest(name):
                lines, result, calls = self.run_script([], summary=summary, status=status, package=package, docs=docs)
                self.assertEqual((lines[-1], result), (line, exit_status))
                self.assertEqual(calls, ["", "package", "docs"])

    def test_arguments_are_those_of_the_tests(self):
        _, _, calls = self.run_script(["quick"], summary=BOTH, status=0, package=0, docs=0)
        self.assertEqual(calls, ["quick", "package", "docs"])


unittest.main()
