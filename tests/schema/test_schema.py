#!/usr/bin/env python3
"""Tests docs/configuration.schema.json: what is right is accepted, and what is wrong is refused where it is wrong.

    tests/schema/test_schema.py REPOSITORY

A file in data/wrong/ has one mistake, which its name tells. Beside it, in NAME.expected, stands what the validator says:
a line for each error, with its place and the keyword of the schema that is not met. The installations on which
`vyrcfd check` is tested are taken as well: the odd ones are right, and of the wrong ones those whose keys are.
"""

import json
import re
import sys
import unittest
from pathlib import Path

from jsonschema import Draft7Validator

ROOT = Path(sys.argv.pop(1))
SCHEMA = json.loads((ROOT / "docs" / "configuration.schema.json").read_text())
WRONG = Path(__file__).resolve().parent / "data" / "wrong"
CHECKED = ROOT / "tests" / "tool" / "data" / "check"

# Of what `vyrcfd check` finds, what needs no other item and no catalog to be found, beside wrong keys.
TOLD_BY_TEXT = (
    "autokey-empty", "blank-before-operator", "blanks-behind-operator", "condition-with-operator-of-another-language",
    "condition-with-operator-turned-round", "condition-in-words", "conditions-joined", "config-beside-default",
    "default-beside-value", "list-beside-default", "path-begins-with-slash", "path-beside-choices",
    "path-of-condition-begins-with-slash", "path-with-two-slashes", "tab-in-choice", "two-operators", "type-unknown",
    "type-unknown-of-automatic-default", "value-beside-choices", "value-in-quotation-marks")


def errors_in(document):
    """The innermost errors: of alternatives that all fail the schema tells only that they do."""
    return sorted(f"/{'/'.join(map(str, error.absolute_path))} {error.validator}"
                  for error in Draft7Validator(SCHEMA).iter_errors(document))


def read(file):
    return json.loads(file.read_text(encoding="utf-8"))


def configuration_files(folder):
    return [file for file in sorted(folder.rglob("*.json")) if not file.name.endswith(".catalog.json")]


class SchemaTest(unittest.TestCase):
    def test_it_is_a_schema_itself(self):
        Draft7Validator.check_schema(SCHEMA)

    def accepts_all(self, folder, least):
        files = configuration_files(folder)
        self.assertGreaterEqual(len(files), least)
        for file in files:
            with self.subTest(file=str(file.relative_to(ROOT))):
                self.assertEqual(errors_in(read(file)), [])

    def test_the_sample_is_accepted(self):
        self.accepts_all(ROOT / "samples" / "reffiles" / "VYRCfdApp", 17)

    def test_what_is_odd_but_right_is_accepted(self):
        self.accepts_all(CHECKED / "odd", 10)

    def test_what_is_wrong_is_refused_where_it_is_wrong(self):
        files = configuration_files(WRONG)
        self.assertGreaterEqual(len(files), 20)
        for file in files:
            with self.subTest(file=file.name):
                expected = file.with_suffix(".expected").read_text().splitlines()
                self.assertNotEqual(expected, [])
                self.assertEqual(errors_in(read(file)), expected)

    def test_wrong_keys_are_refused_as_the_tool_finds_them(self):
        refused = 0
        for folder in sorted((CHECKED / "wrong").iterdir()):
            found = (folder / "expected.txt").read_text(encoding="utf-8")
            if not re.search(r"\[(unknown-key|wrong-kind|bad-condition)\]$", found, re.MULTILINE):
                continue
            with self.subTest(folder=folder.name):
                self.assertTrue(any(errors_in(read(file)) for file in configuration_files(folder)))
                refused += 1
        self.assertGreaterEqual(refused, 10)

    def test_what_the_text_of_a_key_tells_is_refused_as_the_tool_finds_it(self):
        for name in TOLD_BY_TEXT:
            with self.subTest(folder=name):
                self.assertTrue(any(errors_in(read(file)) for file in configuration_files(CHECKED / "wrong" / name)))

    def test_every_key_is_explained(self):
        definitions = SCHEMA["definitions"]
        for owner in (SCHEMA, definitions["configuration"], definitions["item"]):
            for key, value in owner["properties"].items():
                with self.subTest(key=key):
                    self.assertIn("description", value)


if __name__ == "__main__":
    unittest.main()
