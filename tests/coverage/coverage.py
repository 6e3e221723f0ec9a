"""Compares what the tests have run with what they must run.

    coverage.py EXCLUDED LCOV...    the checked-in list of exceptions, and what llvm-cov exports for each library

Every line of EXCLUDED that is not empty and no comment is "FILE | SOURCE TEXT | REASON": the lines of that file whose
text, without blanks around it, is the source text need not run, nor their branches; "*" is every line. A line that does
run is no exception, so that the list cannot grow old.

Prints what falls short, the figures, and the summary as its last line. Exit status 1 when a goal is missed.
"""

import sys
from collections import defaultdict

# Folder, and the least share of lines and of branches in percent; None for no goal.
GOALS = [("VYRCfdModel/", 100.0, 97.0), ("standalone/", 95.0, None)]


class Source:
    """What is known of one source file: how often its lines ran, and the branches of each."""

    def __init__(self):
        self.lines = defaultdict(int)
        self.branches = defaultdict(list)


def read_lcov(path, sources, root):
    name = None
    with open(path, encoding="utf-8") as lcov:
        for record in lcov:
            key, _, value = record.rstrip("\n").partition(":")
            if key == "SF":
                name = value[len(root):] if value.startswith(root) else value
            elif key == "DA":
                line, count = value.split(",")[:2]
                sources[name].lines[int(line)] += int(count)
            elif key == "BRDA":
                line, _, _, taken = value.split(",")
                sources[name].branches[int(line)].append(0 if taken == "-" else int(taken))


def read_exceptions(path):
    exceptions = []
    with open(path, encoding="utf-8") as listed:
        for number, line in enumerate(listed, 1):
            if not line.strip() or line.startswith("#"):
                continue
            fields = [field.strip() for field in line.split(" | ")]
            if len(fields) != 3 or not all(fields):
                sys.exit(f"{path}:{number}: not FILE | SOURCE TEXT | REASON")
            exceptions.append((number, fields[0], fields[1]))
    return exceptions


def excluded_lines(path, exceptions, sources, root):
    """Lines of each file that need not run, and complaints about exceptions that are none."""
    excluded = defaultdict(set)
    complaints = []
    for number, name, text in exceptions:
        if name not in sources:
            complaints.append(f"{path}:{number}: no such source file: {name}")
            continue
        with open(root + name, encoding="utf-8") as source:
            places = {place for place, line in enumerate(source, 1) if text in ("*", line.strip())}
        source = sources[name]
        idle = {place for place in places if source.lines.get(place) == 0 or 0 in source.branches.get(place, [])}
        if not places:
            complaints.append(f"{path}:{number}: no such line in {name}: {text}")
        elif not idle:
            complaints.append(f"{path}:{number}: it runs, and is no exception any more: {name}: {text}")
        excluded[name] |= idle
    return excluded, complaints


def share(ran, all_of_them):
    return 100.0 * ran / all_of_them if all_of_them else 100.0


def judge(folder, line_goal, branch_goal, sources, excluded):
    """Prints what did not run in a folder. Returns its figures and whether they suffice."""
    lines = [0, 0]
    branches = [0, 0]
    for name in sorted(sources):
        if not name.startswith(folder):
            continue
        source = sources[name]
        for place in sorted(source.lines):
            if place in excluded[name]:
                continue
            lines[0] += source.lines[place] > 0
            lines[1] += 1
            if source.lines[place] == 0:
                print(f"{name}:{place}: does not run")
            for taken in source.branches.get(place, []):
                branches[0] += taken > 0
                branches[1] += 1
                if branch_goal is not None and taken == 0 and source.lines[place] > 0:
                    print(f"{name}:{place}: a branch is never taken")
    if lines[1] == 0:
        return f"{folder}: nothing was measured", False
    line_share, branch_share = share(*lines), share(*branches)
    enough = line_share >= line_goal and (branch_goal is None or branch_share >= branch_goal)
    figures = f"{folder} {line_share:.2f} % of {lines[1]} lines (goal {line_goal:g})"
    figures += f", {branch_share:.2f} % of {branches[1]} branches"
    if branch_goal is not None:
        figures += f" (goal {branch_goal:g})"
    return figures, enough


def main():
    if len(sys.argv) < 3:
        sys.exit(__doc__)
    root = __file__[: -len("tests/coverage/coverage.py")]
    sources = defaultdict(Source)
    for path in sys.argv[2:]:
        read_lcov(path, sources, root)
    excluded, complaints = excluded_lines(sys.argv[1], read_exceptions(sys.argv[1]), sources, root)
    results = [judge(folder, lines, branches, sources, excluded) for folder, lines, branches in GOALS]
    for complaint in complaints:
        print(complaint)
    passed = not complaints and all(enough for _, enough in results)
    for figures, _ in results:
        print(figures)
    count = sum(len(places) for places in excluded.values())
    print(f"{'PASSED' if passed else 'FAILED'} - coverage: " + "; ".join(figures for figures, _ in results) +
          f"; {count} lines left out with a reason")
    sys.exit(0 if passed else 1)


main()
