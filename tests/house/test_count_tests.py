"""count_tests.py: what counts as passed, failed and skipped in ctest's results."""

import contextlib
import io
import pathlib
import tempfile
import unittest

import count_tests

PASSED = '<testcase name="a" status="run"/>'
FAILED = '<testcase name="b" status="fail"><failure message="Failed"/></testcase>'
NO_PROGRAM = '<testcase name="c" status="notrun"><skipped message="Unable to find executable"/></testcase>'
SKIPPED = '<testcase name="d" status="notrun"><skipped message="SKIP_REGULAR_EXPRESSION_MATCHED"/></testcase>'
DISABLED = '<testcase name="e" status="disabled"><skipped message="Disabled"/></testcase>'

TOGETHER_PASSED = '<testcase name="p.together.0" status="run"/>'
TOGETHER_FAILED = '<testcase name="p.together.0" status="fail"><failure message="Failed"/></testcase>'
ONE_PASSED = '<testcase name="a" status="run" result="completed"/>'
ONE_FAILED = '<testcase name="b" status="run" result="completed"><failure message="no"/></testcase>'
ONE_SKIPPED = '<testcase name="c" status="run" result="skipped"><skipped message="s"/></testcase>'
ONE_DISABLED = '<testcase name="d" status="notrun" result="suppressed"/>'

# Name of the case, the process, what it left (None: nothing), the line that is printed, the exit status.
CASES_TOGETHER = [
    ("all passed", TOGETHER_PASSED, [ONE_PASSED, ONE_PASSED], "dev 3 0 0\n", 0),
    ("one failed", TOGETHER_FAILED, [ONE_PASSED, ONE_FAILED], "dev 2 1 0\n", 1),
    ("one skipped, one disabled", TOGETHER_PASSED, [ONE_PASSED, ONE_SKIPPED, ONE_DISABLED], "dev 2 0 1\n", 0),
    ("failed at its end", TOGETHER_FAILED, [ONE_PASSED, ONE_PASSED], "dev 3 1 0\n", 1),
    ("passed, and a test failed", TOGETHER_PASSED, [ONE_PASSED, ONE_FAILED], "dev 2 1 0\n", 1),
    ("left nothing", TOGETHER_PASSED, None, "dev 1 1 0\n", 1),
    ("no test ran", TOGETHER_PASSED, [], "dev 1 1 0\n", 1),
]

# Name of the case, the test cases in the results, the line that is printed, the exit status.
CASES = [
    ("all passed", [PASSED, PASSED], "dev 2 0 0\n", 0),
    ("one failed", [PASSED, FAILED], "dev 1 1 0\n", 1),
    ("one without its program", [PASSED, NO_PROGRAM], "dev 1 1 0\n", 1),
    ("skipped and disabled", [PASSED, SKIPPED, DISABLED], "dev 1 0 2\n", 0),
    ("no test", [], "dev 0 1 0\n", 1),
    ("only skipped", [SKIPPED], "dev 0 1 1\n", 1),
]


class CountTests(unittest.TestCase):
    def run_main(self, text, together=None):
        with tempfile.TemporaryDirectory() as folder:
            results = pathlib.Path(folder) / "results.xml"
            if text is not None:
                results.write_text(text, encoding="utf-8")
            if together is not None:
                (results.parent / "test-results").mkdir()
                (results.parent / "test-results/p.together.0.xml").write_text(together, encoding="utf-8")
            output = io.StringIO()
            with contextlib.redirect_stdout(output):
                status = count_tests.main(["dev", str(results)])
        return output.getvalue(), status

    def test_cases(self):
        for name, cases, line, status in CASES:
            with self.subTest(name):
                self.assertEqual(self.run_main(f"<testsuite>{''.join(cases)}</testsuite>"), (line, status))

    def test_cases_together(self):
        for name, process, cases, line, status in CASES_TOGETHER:
            with self.subTest(name):
                left = None if cases is None else f"<testsuites><testsuite>{''.join(cases)}</testsuite></testsuites>"
                self.assertEqual(self.run_main(f"<testsuite>{PASSED}{process}</testsuite>", left), (line, status))

    def test_results_that_are_not_there_or_broken_are_a_failure(self):
        for text in (None, "<testsuite><testcase"):
            with self.subTest(text):
                self.assertEqual(self.run_main(text), ("dev 0 1 0\n", 1))


if __name__ == "__main__":
    unittest.main()
