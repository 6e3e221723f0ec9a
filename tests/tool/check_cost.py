#!/usr/bin/env python3
"""Prints what `vyrcfd check` costs on installations of growing size: copies of the sample's configurations under other
names, in the same sixteen files, with catalogs that list the copies as the sample's list the originals.

    tests/tool/check_cost.py build/release/bin/vyrcfd [ITEMS ...]

With --wrong every item has a mistake: a default's path, or a reference to nothing. With --within SECONDS it fails where the
largest takes longer of the processor, or where an item of it costs more than twice as much as one of the smallest.
"""

import json
import resource
import subprocess
import sys
import tempfile
import time
from pathlib import Path

SAMPLES = Path(__file__).resolve().parents[2] / "samples"
CONFIGURATIONS = "reffiles/VYRCfdApp"
SLOPE_FILE = "SolverConfigurations_dxSlope.json"
SIZES = [6250, 12500, 25000, 50000]
RUNS = 3


def renamed(name, copy):
    return name if copy == 0 else f"{name}_{copy}"


def item_copy(item, copy, is_wrong):
    item = dict(item)
    if "config" in item:
        item["config"] = renamed(item["config"], copy) + ("X" if is_wrong else "")
    if is_wrong and "default" in item and "choices" not in item:
        item["path"] += f"X{copy}"
    return item


def write_configurations(folder, items, is_wrong):
    """Whole copies of the sample until there are as many items."""
    documents = {file.name: json.loads(file.read_text()) for file in sorted((SAMPLES / CONFIGURATIONS).glob("*.json"))
                 if file.name != SLOPE_FILE}
    each = sum(len(one["config"]) for document in documents.values() for one in document["configurations"])
    copies = max(1, round(items / each))
    (folder / CONFIGURATIONS).mkdir(parents=True)
    for name, document in documents.items():
        configurations = [
            {"name": renamed(one["name"], copy),
             "config": [item_copy(item, copy, is_wrong) for item in one["config"]]}
            for copy in range(copies) for one in document["configurations"]]
        (folder / CONFIGURATIONS / name).write_text(json.dumps({"configurations": configurations}, indent=2))
    return copies, copies * each


def write_catalogs(folder, copies):
    (folder / "catalogs").mkdir()
    for file in (SAMPLES / "catalogs").glob("*.json"):
        catalog = json.loads(file.read_text())
        for type_ in catalog["types"]:
            if "configurations" in type_:
                type_["configurations"] = [renamed(name, copy) for copy in range(copies)
                                           for name in type_["configurations"]]
        (folder / "catalogs" / file.name).write_text(json.dumps(catalog))


def processor_seconds():
    usage = resource.getrusage(resource.RUSAGE_CHILDREN)
    return usage.ru_utime + usage.ru_stime


def check(tool, folder):
    """Seconds of the fastest run, by the clock and of the processor, and its last line."""
    runs = []
    for _ in range(RUNS):
        begin, processor = time.perf_counter(), processor_seconds()
        run = subprocess.run([tool, "--installation", folder, "check"], capture_output=True, text=True)
        runs.append((time.perf_counter() - begin, processor_seconds() - processor))
    return min(one for one, _ in runs), min(other for _, other in runs), (run.stdout.splitlines() or [run.stderr])[-1]


def main(arguments):
    is_wrong = "--wrong" in arguments
    limit = float("inf")
    if "--within" in arguments[:-1]:
        at = arguments.index("--within")
        limit = float(arguments[at + 1])
        del arguments[at:at + 2]
    arguments = [argument for argument in arguments if argument != "--wrong"]
    if not arguments:
        sys.exit(__doc__)
    costs = []
    for items in [int(argument) for argument in arguments[1:]] or SIZES:
        with tempfile.TemporaryDirectory() as name:
            folder = Path(name)
            copies, items = write_configurations(folder, items, is_wrong)
            write_catalogs(folder, copies)
            seconds, processor, summary = check(arguments[0], folder)
        costs.append(processor / items)
        print(f"{items:7} items  {seconds:5.2f} s, {processor:5.2f} s of the processor, "
              f"{processor / items * 1e6:5.1f} us an item: {summary}")
    if limit != float("inf") and (processor > limit or costs[-1] > 2 * costs[0]):
        sys.exit(f"too slow: {processor:.2f} s of the processor, an item {costs[-1] / costs[0]:.1f} times as much as in the smallest")


main(sys.argv[1:])
