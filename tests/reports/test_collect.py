"""collect.py: which texts it finds, under which functions, and what it says of a table."""

import pathlib
import tempfile
import unittest

import collect

SOURCE = '''\
#include "VYRCfdChecks.h"

namespace
{
constexpr const char* Name = "Thing::Run";
} // namespace

Thing::Thing() : m_count(0), m_name{"x"}
{
    VYRCFD_ENTER(10);
}

HRESULT Thing::Do(const Text& iName,
                  int iCount) const
{
    VYRCFD_ENTER(20);
    // VYRCFD_ASSERT(commented);
    VYRCFD_ASSERT(iCount > 0);
    VYRCFD_CHECK(Load(iName,
                      "a // b", ','));
    if (iCount > 1)
        VYRCFD_FAIL("Bad %s, (really)\\n", iName);
    return CheckSize(VYRCFD_FUNCTION, iCount);
}

HRESULT Thing::Other() const
{
    return Outer(7, VYRCFD_FUNCTION);
}

HRESULT Thing::Outer(int iCount, const char* iFunction) const
{
    return CheckSize(iFunction, iCount);
}

HRESULT Thing::CheckSize(const char* iFunction, int size) const
{
    const auto ask = [&]() -> HRESULT {
        VYRCFD_ASSERT_FOR(iFunction, size < 9 || size == Macro(1, 2));
        return S_OK;
    };
    return ask();
}

Thing::operator bool() const
{
    VYRCFD_RESET();
    VYRCFD_ASSERT_TEXT(VYRCFD_FUNCTION, "m_it", !m_it.IsNull());
    return true;
}

HRESULT Run::Go()
{
    VYRCFD_CHECK_FOR(Name, Step());
    return S_OK;
}

HRESULT Walk::Step()
{
    VYRCFD_FAIL_FOR(m_function, _error);
}

HRESULT Maker::Make()
{
    Walk walk(*this, VYRCFD_FUNCTION);
    return walk.Step();
}

HRESULT Moment::Go()
{
    VYRCFD_FAIL_FOR(m_function, _late);
}

HRESULT Passer::Make()
{
    return Moment(VYRCFD_FUNCTION, *this).Go();
}
'''

REPORTS = {
    ("assertion", "Thing::Do", "iCount > 0"),
    ("failed call", "Thing::Do", "Load(iName, \"a // b\", ',')"),
    ("error", "Thing::Do", '"Bad %s, (really)\\n"'),
    ("assertion", "Thing::Do", "size < 9 || size == Macro(1, 2)"),
    ("assertion", "Thing::Other", "size < 9 || size == Macro(1, 2)"),
    ("assertion", "Thing::operator bool", "m_it"),
    ("failed call", "Thing::Run", "Step()"),
    ("error", "Maker::Make", "_error"),
    ("error", "Passer::Make", "_late"),
}


class Collect(unittest.TestCase):
    def reports_of(self, source):
        with tempfile.TemporaryDirectory() as folder:
            (pathlib.Path(folder) / "Thing.cpp").write_text(source, encoding="utf-8")
            return collect.Sources(pathlib.Path(folder)).reports

    def say(self, reports, rows):
        said = []
        return collect.compare(reports, rows, said.append), said

    def test_every_form_is_found_under_the_function_that_it_reports_for(self):
        self.assertEqual(self.reports_of(SOURCE), REPORTS)

    def test_check_outside_of_every_function_is_an_error(self):
        with self.assertRaises(collect.Unreadable):
            self.reports_of("    VYRCFD_ASSERT(lost);\n")

    def test_report_past_the_checks_is_an_error(self):
        with self.assertRaises(collect.Unreadable):
            self.reports_of("void Thing::Do()\n{\n    VYRFeaErrorManager::CreateError(a, b, 1, c);\n}\n")

    def test_helper_that_nobody_calls_is_an_error(self):
        with self.assertRaises(collect.Unreadable):
            self.reports_of("HRESULT Thing::Check(const char* iFunction)\n{\n    VYRCFD_ASSERT_FOR(iFunction, a);\n}\n")

    def test_no_sources_is_an_error(self):
        with tempfile.TemporaryDirectory() as folder, self.assertRaises(collect.Unreadable):
            collect.Sources(pathlib.Path(folder))

    def test_table_with_all_texts_holds(self):
        rows = [[*report, "tested", ""] for report in REPORTS]
        self.assertEqual(self.say(REPORTS, rows), (True, [
            "9 rows, 0 without a test, 0 texts without a row, 0 rows without a text, 0 unreachable"]))

    def test_each_lack_is_named(self):
        for rows, line in [([], "no row: assertion a of F"),
                           ([["assertion", "F", "a", "untested", ""]], "no test: assertion a of F"),
                           ([["assertion", "F", "a", "tested", ""], ["assertion", "F", "b", "tested", ""]],
                            "no such check: assertion b of F")]:
            holds, said = self.say({("assertion", "F", "a")}, rows)
            self.assertFalse(holds)
            self.assertIn(line, said)

    def test_unreachable_row_is_listed_with_its_reason_and_holds(self):
        holds, said = self.say({("assertion", "F", "a")}, [["assertion", "F", "a", "unreachable", "Never."]])
        self.assertTrue(holds)
        self.assertEqual(said[0], "unreachable: assertion a of F: Never.")
        self.assertTrue(said[-1].endswith(", 1 unreachable"))


if __name__ == "__main__":
    unittest.main()
