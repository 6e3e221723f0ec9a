"""Which reports the sources can make, and whether the table of reports has them all.

    collect.py list SOURCES                     the reports, as "KIND<tab>FUNCTION<tab>TEXT" lines
    collect.py check SOURCES PROGRAM            the table of the test program against them

SOURCES is the folder of the module. Reports are made by the check macros of VYRCfdChecks.h, of which the source text of
the argument is what a report shows. Many checks stand in helpers that report under the name of the operation which
uses them; the helpers hand that name on, and it is followed here. Exit status: 0 all have a row, 1 some have none or a
row has no text or no test, 2 wrong use.
"""

import argparse
import os
import pathlib
import re
import subprocess
import sys
import tempfile

CHECKS_HEADER = "VYRCfdChecks.h"
KINDS = {"ASSERT": "assertion", "CHECK": "failed call", "FAIL": "error"}
CALL = re.compile(r"\bVYRCFD_(ASSERT|CHECK|FAIL)(_FOR|_TEXT)?\s*\(")
OWN_NAME = "VYRCFD_FUNCTION"
IDENTIFIER = re.compile(r"[A-Za-z_]\w*\Z")


class Unreadable(Exception):
    """A source that this cannot make sense of. It is an error, since a report could hide there."""


def without_comments(text):
    """The text with blanks in the place of comments; line ends stay where they are."""
    pattern = re.compile(r"//[^\n]*|/\*.*?\*/|\"(?:\\.|[^\"\\\n])*\"|'(?:\\.|[^'\\\n])*'", re.S)

    def blank(match):
        found = match.group(0)
        return found if found[0] in "\"'" else re.sub(r"[^\n]", " ", found)

    return pattern.sub(blank, text)


def arguments(text, start):
    """The arguments of a call whose bracket opens just before `start`: their texts, and where the call ends."""
    depth = 0
    parts = [""]
    at = start
    while at < len(text):
        character = text[at]
        if character in "\"'":
            end = at + 1
            while text[end] != character:
                end += 2 if text[end] == "\\" else 1
            parts[-1] += text[at:end + 1]
            at = end + 1
            continue
        if character in "([{":
            depth += 1
        elif character in ")]}":
            if depth == 0:
                return parts, at + 1
            depth -= 1
        if character == "," and depth == 0:
            parts.append("")
        else:
            parts[-1] += character
        at += 1
    raise Unreadable("a call that does not end")


def source_text(parts):
    """What the preprocessor makes of arguments that it turns into text."""
    return re.sub(r"\s+", " ", ",".join(parts)).strip()


class Function:
    """One function definition: its qualified name, its parameters and its body."""

    def __init__(self, name, parameters, body):
        self.name = name
        self.parameters = parameters
        self.body = body


# A definition begins in the first column; so does the brace that ends it. The formatter sees to that.
DEFINITION = re.compile(
    r"^(?:template[^\n]*>\s)?(?!namespace|class|struct|enum|using|constexpr|#|\}|\{)[^\n;{}#]*?"
    r"(?P<name>(?:\w+(?:<[^<>]*>)?::)*~?(?:operator\s?[^\s(]+|\w+))\((?P<parameters>[^;{}]*)\)(?P<rest>[^;{}]*(?:\{[^\n]*\})?[^;{}]*?)\n\{\n(?P<body>.*?)^\}",
    re.S | re.M)


def functions(text):
    return [Function(re.sub(r"\s+", " ", m["name"]), m["parameters"], m["body"]) for m in DEFINITION.finditer(text)]


def constants(text):
    """Texts that have a name in the file."""
    return dict(re.findall(r"constexpr const char\* (\w+) = \"([^\"]*)\";", text))


class Sources:
    """All definitions of the module, and under which names the helpers among them report."""

    def __init__(self, folder):
        self.functions = []
        self.reports = set()
        self.count = 0
        texts = {}
        for path in sorted(folder.rglob("*")):
            if path.suffix in (".cpp", ".h") and path.name != CHECKS_HEADER:
                texts[path] = without_comments(path.read_text(encoding="utf-8"))
        if not texts:
            raise Unreadable(f"no sources in {folder}")
        for path, text in texts.items():
            own = functions(text)
            self._hold(path, text, own)
            known = constants(text)
            self.functions += [(function, known) for function in own]
        for function, known in self.functions:
            self._collect(function, known)

    @staticmethod
    def _hold(path, text, own):
        """Each check of a file stands in a function that was found, or the file is not understood."""
        inside = sum(len(CALL.findall(function.body)) for function in own)
        if inside != len(CALL.findall(text)):
            raise Unreadable(f"{path}: {len(CALL.findall(text)) - inside} checks stand in no function that I can find")
        direct = re.findall(r"VYRFeaErrorManager::Create\w*", text)
        if direct:
            raise Unreadable(f"{path}: {direct[0]} is called past the checks")

    def _collect(self, function, known):
        for match in CALL.finditer(function.body):
            kind, form = match[1], match[2]
            parts, _ = arguments(function.body, match.end())
            name = OWN_NAME
            if form:
                name = parts.pop(0).strip()
            if form == "_TEXT":
                text = parts[0].strip().strip('"')
            elif kind == "FAIL":
                text = parts[0].strip()
            else:
                text = source_text(parts)
            self.count += 1
            for reporter in self._reporters(function, name, known, ()):
                self.reports.add((KINDS[kind], reporter, text))

    def _reporters(self, function, name, known, visited):
        """The functions under whose names a check in `function` reports, which names its reporter `name`."""
        if name == OWN_NAME:
            return {function.name}
        if name in known:
            return {known[name]}
        if not IDENTIFIER.match(name):
            raise Unreadable(f"{function.name} reports under {name}")
        if (function.name, name) in visited:
            return set()
        visited += ((function.name, name),)
        if name.startswith("m_"):
            return self._constructed_with(function, visited)
        if not re.search(r"\bconst char\* " + name + r"\b", function.parameters):
            raise Unreadable(f"{function.name} reports under {name}, which it is not given")
        position = [part.split()[-1] for part in function.parameters.split(",")].index(name)
        return self._callers(function.name.split("::")[-1], position, visited)

    def _constructed_with(self, function, visited):
        """A class that keeps the name of its user: from wherever it is made, as a variable or only for the moment."""
        kept = function.name.split("::")[0]
        found = set()
        for maker, known in self.functions:
            for match in re.finditer(r"(?<![\w:])" + re.escape(kept) + r"(?: \w+)?\(", maker.body):
                parts, _ = arguments(maker.body, match.end())
                if OWN_NAME in [part.strip() for part in parts]:
                    found |= self._reporters(maker, OWN_NAME, known, visited)
        if not found:
            raise Unreadable(f"nobody makes a {kept}")
        return found

    def _callers(self, called, position, visited):
        found = set()
        for function, known in self.functions:
            for match in re.finditer(r"(?<![\w:])" + re.escape(called) + r"\(", function.body):
                parts, _ = arguments(function.body, match.end())
                if position < len(parts):
                    found |= self._reporters(function, parts[position].strip(), known, visited)
        if not found:
            raise Unreadable(f"nobody calls {called}")
        return found


def read_table(program):
    """The rows of the test program: (kind, function, source text) to whether it is proved, or why it cannot be."""
    with tempfile.TemporaryDirectory() as folder:
        file = pathlib.Path(folder) / "table.txt"
        subprocess.run([program, "--gtest_filter=ReportTable.*", "--gtest_brief=1"], check=True,
                       stdout=subprocess.DEVNULL, env={**os.environ, "VYR_REPORT_TABLE": str(file)})
        return [line.split("\t") for line in file.read_text(encoding="utf-8").splitlines()]


def compare(reports, rows, write):
    """Prints what is missing and the figures. True when nothing is."""
    listed = {tuple(row[:3]) for row in rows}
    unreachable = [row for row in rows if row[3] == "unreachable"]
    untested = [row for row in rows if row[3] == "untested"]
    missing = sorted(reports - listed)
    stale = sorted(listed - reports)
    for kind, function, text in missing:
        write(f"no row: {kind} {text} of {function}")
    for kind, function, text in stale:
        write(f"no such check: {kind} {text} of {function}")
    for kind, function, text, *_ in untested:
        write(f"no test: {kind} {text} of {function}")
    for kind, function, text, _, reason in unreachable:
        write(f"unreachable: {kind} {text} of {function}: {reason}")
    write(f"{len(rows)} rows, {len(untested)} without a test, {len(missing)} texts without a row, "
          f"{len(stale)} rows without a text, {len(unreachable)} unreachable")
    return not (missing or stale or untested) and bool(rows)


def main(argv):
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("job", choices=["list", "check"])
    parser.add_argument("sources", type=pathlib.Path)
    parser.add_argument("program", nargs="?")
    options = parser.parse_args(argv)
    if not options.sources.is_dir() or (options.job == "check") != (options.program is not None):
        parser.print_usage(sys.stderr)
        return 2
    try:
        sources = Sources(options.sources)
    except Unreadable as error:
        print(f"cannot read the sources: {error}")
        return 1
    if options.job == "list":
        for report in sorted(sources.reports, key=lambda report: (report[1], report[0], report[2])):
            print("\t".join(report))
        return 0
    return 0 if compare(sources.reports, read_table(options.program), print) else 1


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
