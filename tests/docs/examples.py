#!/usr/bin/env python3
"""The programs that a document shows in pieces.

    examples.py extract DOCUMENT FOLDER         writes each into the folder: the blocks marked "cpp NAME", put together
    examples.py check DOCUMENT NAME COMMAND...  runs the command, whose output must be the block marked "text NAME"
    examples.py renew DOCUMENT NAME COMMAND...  writes that block anew
"""

import re
import subprocess
import sys
from pathlib import Path

BLOCK = r"^```{0} {1}\n(.*?)^```$"


def extract(document, folder):
    text = Path(document).read_text()
    names = set(re.findall(r"^```cpp (\S+)$", text, re.MULTILINE))
    if not names or re.search(r"^```(cpp|c\+\+)$", text, re.MULTILINE):
        sys.exit(f"{document} has an example without a name, or none")
    for name in names:
        blocks = re.findall(BLOCK.format("cpp", re.escape(name)), text, re.MULTILINE | re.DOTALL)
        program, file = "\n".join(blocks), Path(folder) / name
        # A file that stays as it is need not be compiled again.
        if not file.exists() or file.read_text() != program:
            file.write_text(program)


def run(document, name, command, is_renewing):
    text = Path(document).read_text()
    expected = re.search(BLOCK.format("text", re.escape(name)), text, re.MULTILINE | re.DOTALL)
    if not expected:
        sys.exit(f"{document} does not say what {name} prints")
    result = subprocess.run(command, capture_output=True, text=True)
    if is_renewing:
        Path(document).write_text(text[:expected.start(1)] + result.stdout + text[expected.end(1):])
    elif (result.stdout, result.stderr, result.returncode) != (expected[1], "", 0):
        sys.exit(f"status {result.returncode}\n{result.stderr}--- the document\n{expected[1]}--- this run\n{result.stdout}")


def main(arguments):
    if len(arguments) == 3 and arguments[0] == "extract":
        extract(*arguments[1:])
    elif len(arguments) > 3 and arguments[0] in ("check", "renew"):
        run(arguments[1], arguments[2], arguments[3:], arguments[0] == "renew")
    else:
        sys.exit(__doc__)


main(sys.argv[1:])
