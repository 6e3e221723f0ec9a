"""How many instructions our side of the benchmark's first rows takes.

    count.py check PROGRAM             compares with bench/instructions.txt
    count.py renew PROGRAM [--write]   shows what would change; --write takes it

Counted by callgrind, so the result does not depend on what else the machine does. Both more and fewer instructions than
kept are a difference: what was gained is only kept if the list says so.
"""

import argparse
import os
import pathlib
import re
import subprocess
import sys

DEFAULT_LIST = pathlib.Path(__file__).resolve().parent.parent / "instructions.txt"
TIMES = 1000
TOLERANCE = 0.02
HEADER = """\
# Instructions of doing each work once: the mean of 1,000, compared with 2 % tolerance.
# Renew with: python3 bench/instructions/count.py renew --write build/release/bin/vyrcfd_instructions
"""
# The C library picks its string functions by the processor. Its plain ones are the same everywhere. Symbols are bound
# at the start, so that no call pays for the first one.
ENVIRONMENT = {
    "LD_BIND_NOW": "1",
    "GLIBC_TUNABLES": "glibc.cpu.hwcaps="
    "-AVX2,-AVX512F,-AVX512VL,-ERMS,-FSRM,-BMI2,-SSSE3,-SSE4_2,-AVX_Fast_Unaligned_Load",
}


def collected(text):
    """The number of instructions in what callgrind prints; None if there is none."""
    found = re.search(r"^==\d+== Collected : (\d+)", text, re.MULTILINE)
    return int(found[1]) if found else None


def works(program):
    answer = subprocess.run([program], capture_output=True, text=True, check=True)
    return answer.stdout.split()


def count(valgrind, program, work):
    """Instructions of doing the work once."""
    command = [
        valgrind,
        "--tool=callgrind",
        "--toggle-collect=BenchCounted",
        "--callgrind-out-file=/dev/null",
        program,
        work,
        str(TIMES),
    ]
    answer = subprocess.run(command, capture_output=True, text=True, env={**os.environ, **ENVIRONMENT})
    number = collected(answer.stderr)
    if answer.returncode != 0 or not number:
        raise RuntimeError(f"{work} is not counted:\n{answer.stderr}")
    return number / TIMES


def read_list(path):
    """{work: instructions}"""
    kept = {}
    for line in path.read_text(encoding="utf-8").splitlines():
        if line.strip() and not line.startswith("#"):
            work, number = line.split()
            kept[work] = float(number)
    return kept


def differences(kept, counted):
    """A line for each work that is not as kept."""
    lines = []
    for work in sorted(kept.keys() - counted.keys()):
        lines.append(f"{work}: kept, but no longer counted; the list is to be renewed")
    for work, number in counted.items():
        if work not in kept:
            lines.append(f"{work}: {number:.0f}, not kept; the list is to be renewed")
            continue
        change = number / kept[work] - 1
        what = f"{work}: {number:.0f} instructions in place of {kept[work]:.0f}, {change:+.1%}"
        if change > TOLERANCE:
            lines.append(f"{what}: slower than it was")
        elif change < -TOLERANCE:
            lines.append(f"{what}: a gain; the list is to be renewed, so that it is not lost again")
    return lines


def main(arguments):
    parser = argparse.ArgumentParser(description="Compare instruction counts with a checked-in list.")
    parser.add_argument("job", choices=["check", "renew"])
    parser.add_argument("--valgrind", default="valgrind")
    parser.add_argument("--list", type=pathlib.Path, default=DEFAULT_LIST)
    parser.add_argument("--write", action="store_true", help="with renew: write the list")
    parser.add_argument("program", type=pathlib.Path)
    options = parser.parse_args(arguments)

    if not options.program.is_file():
        print(f"{options.program}: no such program; build vyrcfd_instructions first", file=sys.stderr)
        return 2
    counted = {work: count(options.valgrind, options.program, work) for work in works(options.program)}
    if not counted:
        print("nothing was counted", file=sys.stderr)
        return 2
    kept = read_list(options.list) if options.list.is_file() else {}
    changes = differences(kept, counted)
    for line in changes:
        print(line)

    if options.job == "renew" and options.write:
        lines = "".join(f"{work} {number:.1f}\n" for work, number in counted.items())
        options.list.write_text(HEADER + lines, encoding="utf-8")
        print(f"{options.list.name} written: {len(counted)} works")
        return 0
    if not changes:
        print(f"{len(counted)} works take the instructions that are kept")
        return 0
    print("If this is meant: python3 bench/instructions/count.py renew --write PROGRAM")
    return 1


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
