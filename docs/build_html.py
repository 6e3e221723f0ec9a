#!/usr/bin/env python3
"""Builds the manual, as HTML, with the documents that it leads to. Needs cmark-gfm.

    docs/build_html.py FOLDER
"""

import html
import re
import shutil
import subprocess
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parents[1]
DOCUMENTS = [*sorted((ROOT / "docs/manual").glob("*.md")), ROOT / "README.md", ROOT / "CONTRIBUTING.md",
             ROOT / "CHANGELOG.md", ROOT / "SECURITY.md", ROOT / "samples/README.md"]
# What documents show or lead to.
FILES = [*sorted((ROOT / "docs/manual").glob("*.svg")), ROOT / "LICENSE"]
PAGE = """<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width">
<title>{title}</title>
<style>
body {{ max-width: 52em; margin: 2em auto; padding: 0 1em; font: 16px/1.5 Helvetica, Arial, sans-serif; color: #111; }}
pre {{ background: #f4f4f1; padding: .7em 1em; overflow-x: auto; font-size: 13px; line-height: 1.4; }}
code {{ font-size: 90%; }}
pre code {{ font-size: 100%; }}
table {{ border-collapse: collapse; }}
th, td {{ border: 1px solid #ccc; padding: .3em .6em; text-align: left; vertical-align: top; }}
img {{ max-width: 100%; }}
</style>
</head>
<body>
{body}</body>
</html>
"""


def with_names(body):
    """The headings with the names that links give them."""
    def named(heading):
        text = html.unescape(re.sub(r"<[^>]*>", "", heading[2]))
        name = re.sub(r"[^\w\- ]", "", text).strip().lower().replace(" ", "-")
        return f'<h{heading[1]} id="{html.escape(name)}">{heading[2]}</h{heading[1]}>'
    return re.sub(r"<h([1-6])>(.*?)</h\1>", named, body)


def page(document):
    body = subprocess.run(["cmark-gfm", "--extension", "table", document], capture_output=True, text=True, check=True).stdout
    title = html.unescape(re.sub(r"<[^>]*>", "", re.search(r"<h1>(.*?)</h1>", body)[1]))
    # Pages lead to pages.
    body = re.sub(r'(href="(?!https?:)[^"#]*)\.md(["#])', r"\1.html\2", with_names(body))
    return PAGE.format(title=html.escape(title), body=body)


def main(arguments):
    if len(arguments) != 1:
        sys.exit(__doc__)
    folder = Path(arguments[0])
    for file in [*DOCUMENTS, *FILES]:
        target = folder / file.relative_to(ROOT)
        target.parent.mkdir(parents=True, exist_ok=True)
        if file.suffix == ".md":
            target.with_suffix(".html").write_text(page(file))
        else:
            shutil.copy(file, target)
    print(folder / "docs/manual/README.html")


main(sys.argv[1:])
