"""Counts the tests of one ctest run.

    count_tests.py NAME RESULTS

Reads what `ctest --output-junit` wrote and prints "NAME PASSED FAILED SKIPPED". A test that did not run is a failure,
unless it skipped itself or is disabled; so is a run that left no results or ran no test. Where tests ran together in
one process, they are counted as GoogleTest has left them in test-results/ beside RESULTS; a process that left nothing
there, ran no test, or failed although its tests passed, is a failure. Exit status: 0 no failure, 1 some.
"""

import collections
import pathlib
import re
import sys
import xml.etree.ElementTree as ElementTree

# ctest's words for a test that asked to be skipped; any other test that was not run has no program or no fixture.
SKIPPED_ITSELF = {"SKIP_RETURN_CODE", "SKIP_REGULAR_EXPRESSION_MATCHED"}


TOGETHER = re.compile(r"\.together\.[0-9]+$")


def outcome(case):
    """What became of a test of ctest."""
    status = case.get("status")
    reason = case.find("skipped")
    if status == "run":
        return "passed"
    if status == "disabled" or (reason is not None and reason.get("message") in SKIPPED_ITSELF):
        return "skipped"
    return "failed"


def outcomes_together(process, results):
    """What became of the tests of one process."""
    cases = [case for case in ElementTree.fromstring(results).iter("testcase") if case.get("result") != "suppressed"]
    outcomes = [
        "failed" if case.find("failure") is not None else "skipped" if case.get("result") == "skipped" else "passed"
        for case in cases
    ]
    # What GoogleTest does not see, as what is found at the end of the process, or a filter that fits nothing any more.
    if not outcomes or (process == "failed" and "failed" not in outcomes):
        outcomes.append("failed")
    return outcomes


def count(text, folder):
    """How many passed, failed and were skipped of the results in `text`."""
    counts = collections.Counter()
    for case in ElementTree.fromstring(text).iter("testcase"):
        if not TOGETHER.search(case.get("name")):
            counts[outcome(case)] += 1
            continue
        results = folder / (case.get("name") + ".xml")
        try:
            counts.update(outcomes_together(outcome(case), results.read_text(encoding="utf-8", errors="replace")))
        except (OSError, ElementTree.ParseError):
            counts["failed"] += 1
    return counts


def main(arguments):
    name, results = arguments
    path = pathlib.Path(results)
    try:
        counts = count(path.read_text(encoding="utf-8", errors="replace"), path.parent / "test-results")
    except (OSError, ElementTree.ParseError):
        counts = collections.Counter()
    if counts["passed"] + counts["failed"] == 0:
        counts["failed"] = 1
    print(name, counts["passed"], counts["failed"], counts["skipped"])
    return 1 if counts["failed"] else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
