"""Counts the tests of one ctest run.

    count_tests.py NAME RESULTS

Reads what `ctest --output-junit` wrote and prints "NAME PASSED FAILED SKIPPED". A test that did not run is a failure,
unless it skipped itself or is disabled; so is a run that left no results or ran no test. Exit status: 0 no failure,
1 some.
"""

import pathlib
import sys
import xml.etree.ElementTree as ElementTree

# ctest's words for a test that asked to be skipped; any other test that was not run has no program or no fixture.
SKIPPED_ITSELF = {"SKIP_RETURN_CODE", "SKIP_REGULAR_EXPRESSION_MATCHED"}


def count(text):
    """(passed, failed, skipped) of the results in `text`."""
    passed = failed = skipped = 0
    for case in ElementTree.fromstring(text).iter("testcase"):
        status = case.get("status")
        reason = case.find("skipped")
        if status == "run":
            passed += 1
        elif status == "disabled" or (reason is not None and reason.get("message") in SKIPPED_ITSELF):
            skipped += 1
        else:
            failed += 1
    return passed, failed, skipped


def main(arguments):
    name, results = arguments
    try:
        passed, failed, skipped = count(pathlib.Path(results).read_text(encoding="utf-8", errors="replace"))
    except (OSError, ElementTree.ParseError):
        passed, failed, skipped = 0, 1, 0
    if passed + failed == 0:
        failed = 1
    print(name, passed, failed, skipped)
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
