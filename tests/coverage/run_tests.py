"""Runs the tests for their coverage: whole programs, where ctest runs each test in a process of its own.

    run_tests.py TESTS PROFILES    what "ctest --show-only=json-v1" prints, and the folder of the profiles

Reading and writing the counters of both libraries takes a process longer than most tests do. So each program runs all
that is to run in one environment at once. A test that fails among the others, or that ends its program, is run again
alone, as ctest does; only that counts. Prints the tests that fail, and the figures as its last line. Exit status 1
when one fails.
"""

import concurrent.futures
import json
import os
import re
import subprocess
import sys

# What is not run here: pattern of the names, and why.
LEFT_OUT = [
    (r"house\.|contract\.covers_headers|reports\.|bench\.", "scripts that run nothing of the libraries here"),
    (r"fuzz\.", "what only inputs of the engine reach is not looked at closely"),
    (r"tool_test\..*_OntoFullDisk_", "the limit of a file's size stops the writing of the counters as well, which says so"),
    (r"load_order_test\.", "the writing of the counters stands among what runs at the end, which these list"),
]

PROGRAM_SECONDS = 600
TEST_SECONDS = 180


class Group:
    """Tests of one program in one environment."""

    def __init__(self, program, environment, folder):
        self.program = program
        self.environment = environment
        self.folder = folder
        self.filters = []


def properties_of(test):
    return {each["name"]: each["value"] for each in test.get("properties", [])}


def filter_of(command):
    """The one test that a command of a GoogleTest program runs; None for any other command."""
    for argument in command:
        if argument.startswith("--gtest_filter="):
            return argument[len("--gtest_filter="):]
    return None


def collect(tests):
    """Groups of tests, commands that stand alone, and how many tests are left out."""
    groups = {}
    alone = []
    left_out = 0
    for test in tests:
        if any(re.match(pattern, test["name"]) for pattern, _ in LEFT_OUT):
            left_out += 1
            continue
        if "command" not in test:
            sys.exit(f"{test['name']}: its program has not been built")
        properties = properties_of(test)
        environment = tuple(each for each in properties.get("ENVIRONMENT", []) if each)
        folder = properties.get("WORKING_DIRECTORY", ".")
        single = filter_of(test["command"])
        if single is None:
            alone.append((test["name"], test["command"], environment, folder))
            continue
        key = (test["command"][0], environment)
        groups.setdefault(key, Group(test["command"][0], environment, folder)).filters.append(single)
    return list(groups.values()), alone, left_out


def run(command, environment, folder, seconds):
    """True when it exits with 0, and what it printed."""
    variables = {**os.environ, **dict(each.split("=", 1) for each in environment)}
    try:
        done = subprocess.run(command, env=variables, cwd=folder, timeout=seconds, stdin=subprocess.DEVNULL,
                              stdout=subprocess.PIPE, stderr=subprocess.STDOUT, check=False)
        return done.returncode == 0, done.stdout.decode("utf-8", "replace")
    except subprocess.TimeoutExpired as expired:
        return False, (expired.stdout or b"").decode("utf-8", "replace") + f"\nno end after {seconds} s"


def failed_of(results, filters):
    """The tests that did not pass, as far as the program came to write that; else all."""
    try:
        with open(results, encoding="utf-8") as file:
            suites = json.load(file)["testsuites"]
    except (OSError, ValueError, KeyError):
        return list(filters)
    passed = {f"{suite['name']}.{test['name']}" for suite in suites for test in suite["testsuite"]
              if test.get("status") == "RUN" and not test.get("failures")}
    return [each for each in filters if each not in passed]


def run_group(group, number, profiles):
    """(names run alone, [(name, output) of those that fail])"""
    results = os.path.join(profiles, f"group{number}.json")
    flags = os.path.join(profiles, f"group{number}.flags")
    with open(flags, "w", encoding="utf-8") as file:
        file.write("--gtest_filter=" + ":".join(group.filters) + "\n")
    command = [group.program, "--gtest_flagfile=" + flags, "--gtest_output=json:" + results,
               "--gtest_also_run_disabled_tests", "--gtest_brief=1"]
    passed, _ = run(command, group.environment, group.folder, PROGRAM_SECONDS)
    again = [] if passed else failed_of(results, group.filters)
    failures = []
    for single in again:
        command = [group.program, "--gtest_filter=" + single, "--gtest_also_run_disabled_tests"]
        passed, output = run(command, group.environment, group.folder, TEST_SECONDS)
        if not passed:
            failures.append((f"{os.path.basename(group.program)}.{single}", output))
    return [f"{os.path.basename(group.program)}.{single}" for single in again], failures


def run_alone(test):
    name, command, environment, folder = test
    passed, output = run(command, environment, folder, TEST_SECONDS)
    return [], [] if passed else [(name, output)]


def main():
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    profiles = sys.argv[2]
    with open(sys.argv[1], encoding="utf-8") as file:
        groups, alone, left_out = collect(json.load(file)["tests"])
    # The counters are added up in as many files a library, so that processes seldom wait for each other.
    os.environ["LLVM_PROFILE_FILE"] = os.path.join(profiles, "%4m.profraw")
    again, failures = [], []
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        # The longest programs first.
        order = sorted(enumerate(groups), key=lambda each: -len(each[1].filters))
        running = [pool.submit(run_group, group, number, profiles) for number, group in order]
        running += [pool.submit(run_alone, test) for test in alone]
        for each in running:
            repeated, failed = each.result()
            again += repeated
            failures += failed
    for name in again:
        print(f"run alone: {name}")
    for name, output in failures:
        print(f"FAILED: {name}\n" + "\n".join(output.splitlines()[-15:]))
    tests = sum(len(group.filters) for group in groups) + len(alone)
    print(f"{tests} tests in {len(groups) + len(alone)} processes, {len(again)} run again alone, "
          f"{left_out} left out, {len(failures)} failed")
    sys.exit(1 if failures or tests == 0 else 0)


if __name__ == "__main__":
    main()
