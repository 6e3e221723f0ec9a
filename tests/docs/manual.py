#!/usr/bin/env python3
"""Tests that the manual's chapter of messages has all that the module can report, and every kind of finding, and that the
links of documents lead somewhere.

    tests/docs/manual.py REPOSITORY
"""

import re
import subprocess
import sys
import unittest
from pathlib import Path

ROOT = Path(sys.argv.pop(1))
CHAPTER = (ROOT / "docs/manual/messages.md").read_text()


def told():
    """What stands in the first columns of the chapter's tables."""
    columns = [re.match(r"\| ((?:\\\||[^|])*) \|", line) for line in CHAPTER.splitlines()]
    return {text.replace("\\|", "|") for column in columns if column for text in re.findall("`([^`]*)`", column[1])}


class MessagesTest(unittest.TestCase):
    def test_every_report_has_a_row(self):
        lines = subprocess.run([sys.executable, "-B", ROOT / "tests/reports/collect.py", "list", ROOT / "VYRCfdModel"],
                               capture_output=True, text=True, check=True).stdout.splitlines()
        # Texts in words stand without the marks that they have in the sources.
        texts = {re.sub(r'^"(.*?)(?:\\n)?"$', r"\1", line.split("\t")[2]) for line in lines}
        self.assertGreater(len(texts), 100)
        self.assertEqual(sorted(texts - told()), [])

    def test_every_report_of_the_chapter_is_one(self):
        reports = CHAPTER[CHAPTER.index("### Applying a configuration"):CHAPTER.index("### What a cursor says")]
        sources = "".join(file.read_text() for file in sorted((ROOT / "VYRCfdModel").rglob("*.cpp")))
        rows = [line.split(" | ")[0] for line in reports.replace("\\|", "\0").splitlines() if line.startswith("| `")]
        for text in (text.replace("\0", "|") for row in rows for text in re.findall("`([^`]*)`", row)):
            self.assertIn(text, sources)

    def test_every_kind_of_finding_has_a_row(self):
        kinds = set(re.findall(r'return "([a-z]+-[a-z-]+|cycle)"', (ROOT / "tools/vyrcfd/check/Finding.cpp").read_text()))
        self.assertGreater(len(kinds), 15)
        self.assertEqual(sorted(kinds - told()), [])


def heading_names(document):
    """By which names a document's headings are linked to."""
    headings = re.findall(r"^#+ (.*)$", document.read_text(), re.MULTILINE)
    return {re.sub(r"[^\w\- ]", "", heading).strip().lower().replace(" ", "-") for heading in headings}


class LinksTest(unittest.TestCase):
    def test_links_lead_somewhere(self):
        count = 0
        for document in [ROOT / "README.md", ROOT / "CONTRIBUTING.md", *sorted((ROOT / "docs").rglob("*.md"))]:
            for link in re.findall(r"\]\(([^)\s]+)\)", document.read_text()):
                if link.startswith("http"):
                    continue
                count += 1
                path, _, heading = link.partition("#")
                target = document.parent / path if path else document
                with self.subTest(document=document.name, link=link):
                    self.assertTrue(target.exists())
                    self.assertTrue(not heading or heading in heading_names(target))
        self.assertGreater(count, 20)

    def test_every_chapter_is_linked_to(self):
        manual = ROOT / "docs/manual"
        linked = set(re.findall(r"\]\(([^)#]+\.md)", (manual / "README.md").read_text()))
        self.assertEqual({file.name for file in manual.glob("*.md")} - linked, {"README.md"})


unittest.main()
