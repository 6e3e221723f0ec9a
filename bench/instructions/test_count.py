"""count.py: what is read from callgrind, and which differences are told."""

import pathlib
import tempfile
import unittest

import count

PRINTED = """\
==123== Events    : Ir
==123== Collected : 1234000
==123==
"""


class Count(unittest.TestCase):
    def test_the_number_is_that_of_the_collected_events(self):
        self.assertEqual(count.collected(PRINTED), 1234000)
        self.assertIsNone(count.collected("==123== Events    : Ir\n"))

    def test_within_two_percent_nothing_is_told(self):
        kept = {"read": 1000.0, "write": 2000.0}
        self.assertEqual(count.differences(kept, {"read": 1019.0, "write": 1961.0}), [])

    def test_a_loss_is_told(self):
        self.assertEqual(
            count.differences({"read": 1000.0}, {"read": 1021.0}),
            ["read: 1021 instructions in place of 1000, +2.1%: slower than it was"],
        )

    def test_a_gain_asks_for_renewal(self):
        (line,) = count.differences({"read": 1000.0}, {"read": 979.0})
        self.assertIn("the list is to be renewed", line)

    def test_works_on_one_side_only_are_told(self):
        lines = count.differences({"gone": 10.0}, {"new": 20.0})
        self.assertEqual([line.split(":")[0] for line in lines], ["gone", "new"])

    def test_a_list_is_read_as_it_is_written(self):
        with tempfile.TemporaryDirectory() as folder:
            path = pathlib.Path(folder) / "list.txt"
            path.write_text(count.HEADER + "read 12.5\n", encoding="utf-8")
            self.assertEqual(count.read_list(path), {"read": 12.5})


if __name__ == "__main__":
    unittest.main()
