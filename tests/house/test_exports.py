"""exports.py: which lines of nm count, and what check and renew say and do."""

import contextlib
import io
import pathlib
import tempfile
import unittest
from unittest import mock

import exports

NM_OUTPUT = """\
0000000000001300 T VYRCfdThing::Do(int) const
0000000000001200 T VYRCfdThing::VYRCfdThing(ORXUnicodeString const&)
0000000000001200 T VYRCfdThing::VYRCfdThing(ORXUnicodeString const&)
0000000000004000 D vtable for VYRCfdThing
0000000000002000 R typeinfo name for VYRCfdThing
0000000000005000 B VYRCfdThing::s_count
0000000000001310 T non-virtual thunk to VYRCfdThing::Do(int)
0000000000001400 W std::vector<int, std::allocator<int> >::push_back(int&&)
0000000000001500 W ORXUnicodeString::IsEmpty() const
0000000000004100 V vtable for ORXHandle<ORXISpecObject>
0000000000005100 u VYRCfdThing::Instance()::only
0000000000005200 B __odr_asan_gen__ZN11VYRCfdThing7s_countE
0000000000005300 B __bss_start
0000000000001000 T _init
                 U ORXGetEnv(char const*)
"""

NAMES = [
    "VYRCfdThing::Do(int) const",
    "VYRCfdThing::VYRCfdThing(ORXUnicodeString const&)",
    "VYRCfdThing::s_count",
    "non-virtual thunk to VYRCfdThing::Do(int)",
]


class Exports(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.library = pathlib.Path(folder.name) / "libThing.so"
        self.library.touch()
        self.list = pathlib.Path(folder.name) / "exports.txt"

    def run_main(self, job, *arguments, names=NAMES):
        output = io.StringIO()
        with mock.patch.object(exports, "read_library", return_value=list(names)), \
                contextlib.redirect_stdout(output), contextlib.redirect_stderr(output):
            status = exports.main([job, *arguments, "--list", str(self.list), str(self.library)])
        return status, output.getvalue()

    def write_list(self, names):
        self.list.write_text("".join(name + "\n" for name in names), encoding="utf-8")

    def test_strong_symbols_count_once_and_sorted(self):
        self.assertEqual(exports.exported(NM_OUTPUT), NAMES)

    def test_inline_functions_that_programs_link_with_count(self):
        output = "0000000000001600 W VYRCfdObjectAccess::~VYRCfdObjectAccess()\n0000000000001700 W Other::~Other()\n"
        self.assertEqual(exports.exported(output), ["VYRCfdObjectAccess::~VYRCfdObjectAccess()"])

    def test_optional_functions_of_a_host_count(self):
        output = "0000000000001800 W ORXGetSpecAttrShortcuts()\n0000000000001900 W ORXGetOthers()\n"
        self.assertEqual(exports.exported(output), ["ORXGetSpecAttrShortcuts()"])

    def test_each_library_has_the_list_of_its_name(self):
        for name in ("libThing.so", "libThing.so.0.1", "lib/libThing.so.0.1.0"):
            with self.subTest(name):
                self.assertEqual(exports.list_of(pathlib.Path(name)), exports.LISTS / "Thing.txt")

    def test_check_on_equal_list_succeeds(self):
        self.write_list(NAMES)
        self.assertEqual(self.run_main("check"), (0, "4 exported names, as listed\n"))

    def test_check_names_what_is_missing_and_what_is_new(self):
        self.write_list(NAMES[1:] + ["zebra()"])
        status, output = self.run_main("check")
        self.assertEqual(status, 1)
        self.assertIn("\n+ VYRCfdThing::Do(int) const\n- zebra()\n", output)

    def test_check_without_list_says_so(self):
        status, output = self.run_main("check")
        self.assertEqual(status, 1)
        self.assertIn("The list of exported names, exports.txt, is missing.", output)

    def test_check_of_library_that_exports_nothing_fails_on_empty_list_too(self):
        self.write_list([])
        self.assertEqual(self.run_main("check", names=[]),
                         (1, "libThing.so exports nothing: the export macro has no effect\n"))

    def test_renew_shows_the_difference_and_writes_nothing(self):
        self.write_list(NAMES[:-1])
        status, output = self.run_main("renew")
        self.assertEqual(status, 1)
        self.assertTrue(output.startswith("+ non-virtual thunk to VYRCfdThing::Do(int)\nNothing written."))
        self.assertEqual(exports.read_list(self.list), NAMES[:-1])

    def test_renew_with_write_writes_a_list_that_check_accepts(self):
        self.assertEqual(self.run_main("renew", "--write")[0], 0)
        self.assertEqual(self.run_main("check")[0], 0)

    def test_library_that_is_not_there_is_wrong_use(self):
        self.library.unlink()
        self.assertEqual(self.run_main("check")[0], 2)


if __name__ == "__main__":
    unittest.main()
