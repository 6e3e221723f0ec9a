"""include_rules.py on small trees that break its rules: each violation is found, with file and line."""

import contextlib
import io
import pathlib
import tempfile
import unittest

import include_rules

# A tree in which everything is right; the cases below add one file to it.
RIGHT = {
    "host/component/Root.h": "#include <cstdint>\n#include <string.h>\n",
    "host/text/Text.h": '#include "Root.h"\n',
    "VYRCfdModel/ProtectedInterfaces/Cursor.h": '#include "Text.h"\n',
    "VYRCfdModel/VYRCfdBase.m/src/Checks.h": "",
    "VYRCfdModel/VYRCfdBase.m/src/Cursor.cpp": '#include "Cursor.h"\n#include <vector>\n#include "Checks.h"\n',
    "standalone/include/Standalone.h": '#include "Root.h"\n',
    "standalone/text/Store.h": "",
    "standalone/document/Model.cpp": '#include "Store.h"\n#include "Standalone.h"\n#include <rapidjson/document.h>\n'
                                     "#include <sys/random.h>\n",
    "tools/vyrcfd/Commands.h": "",
    "tools/vyrcfd/main.cpp": '#include "Commands.h"\n#include "Cursor.h"\n#include "Standalone.h"\n'
                             "#include <CLI/CLI.hpp>\n",
    "tests/support/Fixture.h": '#include "Standalone.h"\n#include <gtest/gtest.h>\n',
    "tests/cursor/helpers/Table.h": "",
    "tests/support/TemporaryFolder.h": "#include <string>\n",
    "tests/contract/HostUnderTest.h": '#include "Root.h"\n',
    "tests/contract/text/TextTest.cpp": '#include "HostUnderTest.h"\n#include "TemporaryFolder.h"\n#include "Text.h"\n'
                                        "#include <gtest/gtest.h>\n",
    "tests/contract/StandaloneHostUnderTest.cpp": '#include "HostUnderTest.h"\n#include "Standalone.h"\n',
    "tests/cursor/Cursor_test.cpp": '#include "Fixture.h"\n#include "helpers/Table.h"\n#include "Root.h"\n',
}

# Name of the case, the file that is added, its text, the line of the violation and what is said of it.
WRONG = [
    ("host includes the module", "host/feature/Bad.h", '#include <map>\n#include "Cursor.h"\n', 2,
     "host/ may not include VYRCfdModel/ProtectedInterfaces/Cursor.h"),
    ("host includes the stand-alone host", "host/feature/Bad.h", '\n\n#include "Standalone.h"\n', 3,
     "host/ may not include standalone/include/Standalone.h"),
    ("host includes a library", "host/feature/Bad.h", "#include <rapidjson/document.h>\n", 1,
     "host/ may include the standard library only, not <rapidjson/document.h>"),
    ("host includes a system header", "host/feature/Bad.h", "#include <unistd.h>\n", 1,
     "host/ may include the standard library only, not <unistd.h>"),
    ("module includes the stand-alone host's face", "VYRCfdModel/VYRCfdBase.m/src/Bad.cpp",
     '#include "Cursor.h"\n#include "Standalone.h"\n', 2,
     "VYRCfdModel/ may not include standalone/include/Standalone.h"),
    ("module's face includes the stand-alone host's inside", "VYRCfdModel/ProtectedInterfaces/Bad.h",
     '#include "Store.h"\n', 1, "VYRCfdModel/ may not include standalone/text/Store.h"),
    ("module includes a library", "VYRCfdModel/VYRCfdBase.m/src/Bad.cpp", "#include <boost/any.hpp>\n", 1,
     "VYRCfdModel/ may include the standard library only, not <boost/any.hpp>"),
    ("module includes a tool", "VYRCfdModel/VYRCfdBase.m/src/Bad.cpp", '#include "Commands.h"\n', 1,
     "VYRCfdModel/ may not include tools/vyrcfd/Commands.h"),
    ("stand-alone host includes the module's face", "standalone/feature/Bad.cpp", '#include "Cursor.h"\n', 1,
     "standalone/ may not include VYRCfdModel/ProtectedInterfaces/Cursor.h"),
    ("stand-alone host includes the module in angle brackets", "standalone/feature/Bad.cpp",
     "#include <vector>\n#include <Cursor.h>\n", 2,
     "standalone/ may not include VYRCfdModel/ProtectedInterfaces/Cursor.h"),
    ("stand-alone host includes the module by a path", "standalone/feature/Bad.cpp",
     '#include "../../VYRCfdModel/VYRCfdBase.m/src/Checks.h"\n', 1,
     "standalone/ may not include VYRCfdModel/VYRCfdBase.m/src/Checks.h"),
    ("stand-alone host includes a test helper", "standalone/feature/Bad.cpp", '#include "Fixture.h"\n', 1,
     "standalone/ may not include tests/support/Fixture.h"),
    ("tool includes the stand-alone host's inside", "tools/vyrcfd/Bad.cpp", '#include "Store.h"\n', 1,
     "tools/ may not include standalone/text/Store.h"),
    ("tool includes the module's inside", "tools/vyrcfd/Bad.cpp", '#include "Checks.h"\n', 1,
     "tools/ may not include VYRCfdModel/VYRCfdBase.m/src/Checks.h"),
    ("tool includes another tool", "tools/other/Bad.cpp", '#include "Commands.h"\n', 1,
     "tools/ may not include tools/vyrcfd/Commands.h"),
    ("tool includes a test helper", "tools/vyrcfd/Bad.cpp", '#include "Fixture.h"\n', 1,
     "tools/ may not include tests/support/Fixture.h"),
    ("test includes the stand-alone host's inside", "tests/text/Bad_test.cpp", '#include "Store.h"\n', 1,
     "tests/ may not include standalone/text/Store.h"),
    ("test includes the inside by a path", "tests/text/Bad_test.cpp", '#include "../../standalone/text/Store.h"\n', 1,
     "tests/ may not include standalone/text/Store.h"),
    ("test includes the module's inside", "tests/text/Bad_test.cpp", '#include "Checks.h"\n', 1,
     "tests/ may not include VYRCfdModel/VYRCfdBase.m/src/Checks.h"),
    ("test includes another area", "tests/text/Bad_test.cpp", '#include "../cursor/helpers/Table.h"\n', 1,
     "tests/ may not include tests/cursor/helpers/Table.h"),
    ("test includes a tool", "tests/text/Bad_test.cpp", '#include "Commands.h"\n', 1,
     "tests/ may not include tools/vyrcfd/Commands.h"),
    ("contract suite includes the stand-alone host's face", "tests/contract/text/Bad.cpp",
     '#include "Text.h"\n#include "Standalone.h"\n', 2, "tests/ may not include standalone/include/Standalone.h"),
    ("contract suite's seam includes the stand-alone host's face", "tests/contract/Bad.h",
     '#include "Standalone.h"\n', 1, "tests/ may not include standalone/include/Standalone.h"),
    ("contract suite includes the module's face", "tests/contract/text/Bad.cpp", '#include "Cursor.h"\n', 1,
     "tests/ may not include VYRCfdModel/ProtectedInterfaces/Cursor.h"),
    ("contract suite includes a test helper", "tests/contract/text/Bad.cpp", '#include "Fixture.h"\n', 1,
     "tests/ may not include tests/support/Fixture.h"),
    ("implementation of the contract suite's seam includes the host's inside",
     "tests/contract/StandaloneHostUnderTest.cpp", '#include "Store.h"\n', 1,
     "tests/ may not include standalone/text/Store.h"),
    ("benchmark includes the stand-alone host's inside", "bench/cursor/Bad.cpp", '#include "Store.h"\n', 1,
     "bench/ may not include standalone/text/Store.h"),
    ("fuzz target includes the module's inside", "fuzz/cursor/Bad.cpp", '#include "Checks.h"\n', 1,
     "fuzz/ may not include VYRCfdModel/VYRCfdBase.m/src/Checks.h"),
    ("name that no file bears", "VYRCfdModel/VYRCfdBase.m/src/Bad.cpp", '#include "Curser.h"\n', 1,
     '"Curser.h" is no file of this tree'),
    ("macro", "host/feature/Bad.h", "#define HEADER <map>\n#include HEADER\n", 2,
     "an #include of a macro hides what is included"),
    ("include_next", "host/feature/Bad.h", "#include_next <map>\n", 1, "#include_next is not used here"),
    ("two public headers of one name", "standalone/include/Text.h", "", 1,
     'bears the name of host/text/Text.h, and both are included as "Text.h"'),
    ("blanks around the sharp sign", "host/feature/Bad.h", '  #  include   "Cursor.h"\n', 1,
     "host/ may not include VYRCfdModel/ProtectedInterfaces/Cursor.h"),
    ("behind a comment over lines", "host/feature/Bad.h", '/* one\n   two */ #include "Cursor.h" // three\n', 2,
     "host/ may not include VYRCfdModel/ProtectedInterfaces/Cursor.h"),
    ("on a continued line", "host/feature/Bad.h", '\n#include \\\n  "Cursor.h"\n', 2,
     "host/ may not include VYRCfdModel/ProtectedInterfaces/Cursor.h"),
    ("behind a continued line", "host/feature/Bad.h", '#define A \\\n  1\n#include "Cursor.h"\n', 3,
     "host/ may not include VYRCfdModel/ProtectedInterfaces/Cursor.h"),
    ("behind a string that looks like a comment", "host/feature/Bad.h", 'auto a = "/*";\n#include "Cursor.h"\n', 2,
     "host/ may not include VYRCfdModel/ProtectedInterfaces/Cursor.h"),
    ("without blank before the name", "host/feature/Bad.h", '#include"Cursor.h"\n', 1,
     "host/ may not include VYRCfdModel/ProtectedInterfaces/Cursor.h"),
]

# Name of the case, the file that is added, a text in which nothing is wrong.
NOT_AN_INCLUSION = [
    ("in a line comment", "host/feature/Good.h", '// #include "Cursor.h"\n'),
    ("in a comment over lines", "host/feature/Good.h", '/*\n#include "Cursor.h"\n*/\n'),
    ("in a raw string", "host/feature/Good.h", 'auto a = R"(\n#include "Cursor.h"\n)";\n'),
    ("in a string", "host/feature/Good.h", 'auto a = "#include \\"Cursor.h\\"";\n'),
    ("another directive", "host/feature/Good.h", "#define includes 1\n"),
]


@contextlib.contextmanager
def tree(files):
    """A tree of these files in a temporary folder."""
    with tempfile.TemporaryDirectory() as folder:
        root = pathlib.Path(folder).resolve()
        for path, text in files.items():
            (root / path).parent.mkdir(parents=True, exist_ok=True)
            (root / path).write_text(text, encoding="utf-8")
        yield root


def found_in(files):
    with tree(files) as root:
        found, _ = include_rules.violations(root)
    return [(file.as_posix(), line, text) for file, line, text in found]


class IncludeRules(unittest.TestCase):
    def test_right_tree_has_no_violation(self):
        self.assertEqual(found_in(RIGHT), [])

    def test_each_violation_is_found_alone_with_file_and_line(self):
        for name, path, text, line, message in WRONG:
            with self.subTest(name):
                self.assertEqual(found_in({**RIGHT, path: text}), [(path, line, message)])

    def test_what_only_looks_like_an_inclusion_is_passed_over(self):
        for name, path, text in NOT_AN_INCLUSION:
            with self.subTest(name):
                self.assertEqual(found_in({**RIGHT, path: text}), [])

    def test_every_violation_of_a_tree_is_found(self):
        files = {
            **RIGHT,
            "host/feature/Bad.h": '#include "Cursor.h"\n#include <unistd.h>\n',
            "tests/text/Bad_test.cpp": '#include "Store.h"\n',
        }
        self.assertEqual([(file, line) for file, line, _ in found_in(files)],
                         [("host/feature/Bad.h", 1), ("host/feature/Bad.h", 2), ("tests/text/Bad_test.cpp", 1)])

    def run_main(self, *arguments):
        output = io.StringIO()
        with contextlib.redirect_stdout(output), contextlib.redirect_stderr(output):
            status = include_rules.main(list(arguments))
        return status, output.getvalue()

    def test_main_prints_violations_and_fails(self):
        with tree({**RIGHT, "host/feature/Bad.h": '#include "Cursor.h"\n'}) as root:
            status, output = self.run_main(str(root))
        self.assertEqual(status, 1)
        self.assertEqual(
            output,
            "host/feature/Bad.h:1: host/ may not include VYRCfdModel/ProtectedInterfaces/Cursor.h\n"
            "18 files read, 1 violations\n",
        )

    def test_main_on_right_tree_succeeds(self):
        with tree(RIGHT) as root:
            self.assertEqual(self.run_main(str(root)), (0, "17 files read, 0 violations\n"))

    def test_main_on_tree_without_sources_is_wrong_use(self):
        with tree({"README.md": ""}) as root:
            self.assertEqual(self.run_main(str(root))[0], 2)


if __name__ == "__main__":
    unittest.main()
