"""Reads files that are made to take time, memory, or other files than they should.

    hostile_files.py VYRCFD

Makes each file, lets the tool read it under limits of memory and time, and prints what that took, the worst last. Each
must end as the table says: refused with a line that holds the text, or read. Exit status: 0 if all do.
"""

import json
import os
import pathlib
import resource
import subprocess
import sys
import tempfile
import time

# Far above what any of them takes on a slow machine, and far below what they would take if they multiplied.
MOST_SECONDS = 20
MOST_BYTES = 1 << 30

# What the tool ends with when it has read a file.
READ = None

CONFIGURATION_FILES = """SolverConfigurations conditionsConfig_Flow conditionsConfig_Energy conditionsConfig_Turbulence
    conditionsConfig_Species conditionsConfig_Phase solverConfig_Flow solverConfig_Energy solverConfig_Turbulence
    solverConfig_MultiSpecies measurementsConfig solverConfig_Radiation conditionsConfig_Radiation
    conditionsConfig_ECooling solverConfig_MultiPhase meshFYEConfig""".split()

TYPES = {
    "catalog": "Hostile",
    "uses": ["VYRCfdBase"],
    "types": [
        {
            "name": "Solver",
            "base": "VYRCfdValues",
            "attributes": [
                {"name": "real", "kind": "real", "unit": "Pa"},
                {"name": "strings", "kind": "list", "of": "string"},
                {"name": "other", "kind": "reference"},
            ],
        }
    ],
}
SOLVER = {"type": "Solver", "name": "S", "id": 1, "values": {"real": 1, "other": {"ref": 1}}}


def model(objects, catalogs=()):
    return json.dumps({"model": 1, "catalogs": list(catalogs), "objects": objects})


def raw_model(objects):
    return '{"model": 1, "objects": [' + objects + "]}"


def choice(values):
    return model([{"type": "VYRCfdChoice", "name": "n", "values": values}])


def catalog(types):
    return json.dumps({"catalog": "c", "types": types})


def type_of_parts(name, part, count):
    parts = [{"name": f"a{i}", "kind": "component", "type": part} for i in range(count)]
    return {"name": name, "attributes": parts}


NESTED = '{"type": "VYRCfdChoice", "name": "n", "values": ' + '{"Data": {"type": "VYRCfdChoice", "values": ' * 20000

# Name, text of the model, what the refusal says.
MODELS = [
    ("open brackets", lambda: "[" * 1000000, "more than 1000 deep"),
    ("open objects", lambda: '{"a":' * 300000, "more than 1000 deep"),
    ("nested components", lambda: raw_model(NESTED + "{}" + "}}" * 20000 + "}"), "more than 1000 deep"),
    ("many objects", lambda: raw_model(",".join(['{"type":"VYRCfdValues","name":"n"}'] * 20000)), READ),
    ("one name for all", lambda: model(
        [{"type": "VYRCfdDefaultManagement", "name": "n", "values": {"configuration": [{"ref": "n"}]}}] * 5000),
     "several objects"),
    ("unknown keys", lambda: raw_model('{"type": "VYRCfdChoice", "name": "n", %s}' % ",".join(
        f'"k{i}": 1' for i in range(100000))), "unknown key"),
    ("unknown attributes", lambda: choice({f"k{i}": 1 for i in range(100000)}), "has no attribute"),
    ("a long type", lambda: model([{"type": "V" * 1000000, "name": "n"}]), "unknown type"),
    ("added attributes", lambda: model([{"type": "VYRCfdChoice", "name": "n", "added": {
        f"k{i}": {"kind": "real"} for i in range(20000)}}]), READ),
    ("many choices", lambda: choice({"choices": [f"c{i}" for i in range(50000)], "value": "c49999"}), READ),
    ("many references", lambda: model([{"type": "VYRCfdDefaultManagement", "name": "n", "id": 1, "values": {
        "configuration": [{"ref": 1}] * 50000}}]), READ),
    ("many digits", lambda: raw_model('{"type": "VYRCfdChoice", "name": "n", "values": {"value": %s}}' % ("1" * 1000000)),
     "too big"),
    ("a catalog above", lambda: model([], ["../secret"]), "unknown catalog"),
    ("a catalog anywhere", lambda: model([], [os.getcwd() + "/secret"]), "unknown catalog"),
    ("a catalog that is a folder's name", lambda: model([], [".."]), "unknown catalog"),
    ("a catalog whose name is cut", lambda: model([], ["../secret.catalog.json\0"]), "unknown catalog"),
    ("a catalog whose name is cut beside it", lambda: model([], ["beside\0"]), "unknown catalog"),
    ("a catalog that is a pipe", lambda: model([], ["Pipe"]), "unknown catalog"),
    ("a catalog that is a device", lambda: model([], ["Device"]), "unknown catalog"),
    ("a catalog that is a folder", lambda: model([], ["Folder"]), "unknown catalog"),
    ("a catalog that leads in a circle", lambda: model([], ["Circle"]), "unknown catalog"),
    ("many catalogs", lambda: model([], [f"c{i}" for i in range(100000)]), "unknown catalog"),
]

# Name, text of the catalog, what the refusal says.
CATALOGS = [
    ("many types", lambda: catalog([{"name": f"T{i}"} for i in range(10000)]), READ),
    ("many attributes", lambda: catalog([{"name": "T", "attributes": [
        {"name": f"a{i}", "kind": "real"} for i in range(20000)]}]), READ),
    ("a chain of bases", lambda: catalog(
        [{"name": f"T{i}", "base": f"T{i + 1}"} for i in range(1000)] + [{"name": "T1000"}]), READ),
    ("a circle of bases", lambda: catalog([{"name": f"T{i}", "base": f"T{(i + 1) % 2000}"} for i in range(2000)]),
     "derives from itself"),
    ("a circle of parts", lambda: catalog([type_of_parts(f"T{i}", f"T{(i + 1) % 2000}", 1) for i in range(2000)]),
     "contains itself"),
    ("parts that multiply", lambda: catalog(
        [type_of_parts(f"T{i}", f"T{i + 1}", 10) for i in range(20)] + [{"name": "T20"}]), "come into being"),
    ("a chain of parts", lambda: catalog(
        [type_of_parts(f"T{i}", f"T{i + 1}", 1) for i in range(5000)] + [{"name": "T5000"}]), "come into being"),
    ("many texts", lambda: catalog([{"name": "T", "attributes": [
        {"name": "e", "kind": "enumeration", "values": [f"t{i}" for i in range(50000)]}]}]), READ),
    ("a nested start-up", lambda: '{"catalog": "c", "types": [{"name": "T", "startup": %s}]}' % (
        '{"a": ' * 20000 + "{}" + "}" * 20000), "more than 1000 deep"),
    ("a start-up nested a little", lambda: '{"catalog": "c", "types": [{"name": "T", "startup": %s}]}' % (
        '{"a": ' * 900 + "{}" + "}" * 900), "more than 200 deep"),
]

# Name, items of the configuration "c" (and others with it), what the refusal says.
CONFIGURATIONS = [
    ("a long list", lambda: {"c": [{"path": "strings", "value": "a," * 100000, "list": True}]}, READ),
    ("a long list of other characters", lambda: {"c": [
        {"path": "strings", "value": "\u00e9," * 60000, "list": True}]}, READ),
    ("a long path that ends early", lambda: {"c": [{"path": "x/" * 200000, "config": "c"}]}, READ),
    ("a long condition", lambda: {"c": [{"config": "d", "condition": "real" + "<" * 500000 + "1"}], "d": []}, READ),
    ("a long number", lambda: {"c": [{"config": "d", "condition": "real==" + "1" * 500000}], "d": []}, READ),
    ("many items", lambda: {"c": [{"path": "real", "default": "1"}] * 5000}, READ),
    ("a circle", lambda: {"c": [{"config": "c"}]}, READ),
    ("configurations that multiply", lambda: {
        "c": [{"config": "c1"}] * 2, **{f"c{i}": [{"config": f"c{i + 1}"}] * 2 for i in range(1, 40)}}, READ),
    ("a circle with two branches", lambda: {"c": [{"config": "c"}, {"config": "c"}]}, READ),
]

# Name, script of the shell, what the refusal says.
SCRIPTS = [
    ("a long number as value", lambda: 'set S/real "%s"' % ("1" * 1000000), "is no real"),
    ("open brackets of a unit", lambda: 'set S/real "1 %s"' % ("(" * 100000), "is no real"),
    ("a product of units", lambda: 'set S/real "1 %s"' % ("Pa.m.m-1." * 2000 + "m"), "is no real"),
    ("prefixes of a unit", lambda: 'set S/real "1 %s"' % ("kilo" * 10000 + "Pa"), "is no real"),
    ("powers of a unit", lambda: 'set S/real "1 Pa^%s"' % ("2^" * 10000 + "1"), "is no real"),
    ("an open quotation mark", lambda: 'set S/real "' + "\\" * 1000000, "quotation mark"),
    ("many commands", lambda: "ls S\n" * 2000, READ),
]


def limits():
    resource.setrlimit(resource.RLIMIT_AS, (MOST_BYTES, MOST_BYTES))
    resource.setrlimit(resource.RLIMIT_CPU, (MOST_SECONDS, MOST_SECONDS))
    resource.setrlimit(resource.RLIMIT_CORE, (0, 0))


class Run:
    """One run of the tool, and what it took."""

    def __init__(self, name, arguments, folder, script=None):
        self.name = name
        begin = time.monotonic()
        with tempfile.TemporaryFile() as errors:
            process = subprocess.Popen(arguments, cwd=folder, stdin=subprocess.PIPE, stdout=subprocess.DEVNULL,
                                       stderr=errors, preexec_fn=limits)
            try:
                process.stdin.write((script or "").encode())
                process.stdin.close()
            except BrokenPipeError:
                pass
            # As wait does, with what the process has used.
            _, status, usage = os.wait4(process.pid, 0)
            process.returncode = os.waitstatus_to_exitcode(status)
            errors.seek(0)
            self.error = errors.read().decode(errors="replace")
        self.status = process.returncode
        self.seconds = time.monotonic() - begin
        self.megabytes = usage.ru_maxrss / 1024

    def fault(self, refusal):
        """What is wrong with how it ended, None if nothing."""
        if self.status not in (0, 1):
            return f"ended with {self.status}"
        if "internal error" in self.error:
            return "ended by an internal error"
        if refusal is READ:
            return None if self.status == 0 else f"was refused: {self.error[:200]}"
        if self.status == 0:
            return "was read"
        return None if refusal in self.error else f"was refused for another reason: {self.error[:200]}"


def installation(folder, configurations):
    files = folder / "installation" / "reffiles" / "VYRCfdApp"
    files.mkdir(parents=True, exist_ok=True)
    for name in CONFIGURATION_FILES:
        (files / f"{name}.json").write_text("{}")
    named = [{"name": name, "config": items} for name, items in configurations.items()]
    (files / f"{CONFIGURATION_FILES[0]}.json").write_text(json.dumps({"configurations": named}))
    return ["--installation", str(folder / "installation")]


def traps(folder):
    """What stands in place of a catalog, or beside the model under a catalog's name without its end."""
    (folder / "beside").write_text(json.dumps({"catalog": "beside\0", "types": []}))
    os.mkfifo(folder / "Pipe.catalog.json")
    os.symlink("/dev/zero", folder / "Device.catalog.json")
    (folder / "Folder.catalog.json").mkdir()
    os.symlink("Circle.catalog.json", folder / "Circle.catalog.json")


def runs(tool, folder):
    """Every run, with the refusal that is expected of it."""
    plain = installation(folder, {"c": []})
    (folder / "Hostile.catalog.json").write_text(json.dumps(TYPES))
    (folder / "secret.catalog.json").write_text("no catalog")
    inner = folder / "inner"
    inner.mkdir()
    traps(inner)
    solver = folder / "solver.model.json"
    solver.write_text(model([SOLVER], ["Hostile"]))
    file = inner / "hostile.json"
    for name, text, refusal in MODELS:
        file.write_text(text())
        yield Run(f"model: {name}", [tool, *plain, "show", str(file)], folder), refusal
    empty = folder / "empty.model.json"
    empty.write_text(model([]))
    for name, text, refusal in CATALOGS:
        file.write_text(text())
        yield Run(f"catalog: {name}", [tool, *plain, "--catalog", str(file), "show", str(empty)], folder), refusal
    for name, text, refusal in SCRIPTS:
        yield Run(f"script: {name}", [tool, *plain, "shell", str(solver)], folder, text()), refusal
    for name, configurations, refusal in CONFIGURATIONS:
        given = installation(folder, configurations())
        yield Run(f"configuration: {name}", [tool, *given, "apply", str(solver), "S", "c"], folder), refusal


def main(arguments):
    if len(arguments) != 1:
        print(__doc__, file=sys.stderr)
        return 2
    faults = 0
    done = []
    with tempfile.TemporaryDirectory() as folder:
        for run, refusal in runs(os.path.abspath(arguments[0]), pathlib.Path(folder)):
            fault = run.fault(refusal)
            done.append(run)
            if fault is not None:
                faults += 1
                print(f"FAILED {run.name}: {fault}")
    for run in sorted(done, key=lambda run: run.seconds):
        print(f"{run.seconds:7.2f} s {run.megabytes:7.1f} MB  {run.name}")
    worst = max(done, key=lambda run: run.seconds)
    largest = max(done, key=lambda run: run.megabytes)
    print(f"{len(done)} files, {faults} faults; slowest {worst.name}, {worst.seconds:.2f} s; "
          f"largest {largest.name}, {largest.megabytes:.0f} MB")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
