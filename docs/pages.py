#!/usr/bin/env python3
"""Makes HTML of the documents, and follows the links of what it made.

    docs/pages.py FOLDER          writes the pages into the folder, which it empties
    docs/pages.py --check FOLDER  only follows the links of the pages that are there

The pages lie in the folder as the documents do in the repository, so that links between them stay as they are, but for
their endings. Other files that are linked to are copied. Exit status 0 only when every link and picture is there.
"""

import html
import os
import re
import shutil
import subprocess
import sys
from html.parser import HTMLParser
from pathlib import Path
from urllib.parse import unquote, urlsplit

ROOT = Path(__file__).resolve().parents[1]
MANUAL = ROOT / "docs/manual"
DOCUMENTS = [*sorted(MANUAL.glob("*.md")), ROOT / "README.md", ROOT / "CONTRIBUTING.md", ROOT / "CHANGELOG.md",
             ROOT / "SECURITY.md", ROOT / "samples/README.md"]

PAGE = """<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width, initial-scale=1">
<title>{title}</title>
<link rel="stylesheet" href="{up}docs/manual.css">
</head>
<body>
<nav>
{chapters}
</nav>
<main>
{body}</main>
</body>
</html>
"""

FRONT = """<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<meta http-equiv="refresh" content="0; url=docs/manual/README.html">
<title>VYRCfdBase</title>
</head>
<body><a href="docs/manual/README.html">The manual of VYRCfdBase</a></body>
</html>
"""


def page_of(document):
    """Where the page of a document lies below the folder."""
    return document.relative_to(ROOT).with_suffix(".html")


def chapters():
    """The chapters in the order in which the first page names them, each with its title."""
    names = dict.fromkeys(re.findall(r"\]\(([a-z-]+\.md)\)", (MANUAL / "README.md").read_text()))
    # One that is not there is told of where the links are followed.
    for file in filter(Path.is_file, (MANUAL / "README.md", *(MANUAL / name for name in names))):
        yield file, re.search(r"^# (.*)$", file.read_text(), re.MULTILINE)[1]


def with_names(body):
    """Gives each heading the name by which it is linked to: its words, joined by "-"."""
    taken = {}

    def heading(match):
        level, content = match.groups()
        words = html.unescape(re.sub(r"<[^>]*>", "", content))
        name = re.sub(r"[^\w\- ]", "", words).strip().lower().replace(" ", "-")
        count = taken[name] = taken.get(name, -1) + 1
        return f'<h{level} id="{name}{f"-{count}" if count else ""}">{content}</h{level}>'

    return re.sub(r"<h([1-6])>(.*?)</h\1>", heading, body, flags=re.DOTALL)


def linked(body, document, folder):
    """Leads links of documents to their pages, and brings the other files that the document links to."""
    def link(match):
        address = html.unescape(match[2])
        parts = urlsplit(address)
        target = (document.parent / unquote(parts.path)).resolve()
        if parts.scheme or not parts.path:
            return match[0]
        if target in DOCUMENTS:
            return f'{match[1]}="{re.sub(r"[.]md(?=#|$)", ".html", match[2])}"'
        if target.is_file() and target.is_relative_to(ROOT):
            copy = folder / target.relative_to(ROOT)
            copy.parent.mkdir(parents=True, exist_ok=True)
            shutil.copy(target, copy)
        return match[0]

    return re.sub(r'\b(href|src)="([^"]*)"', link, body)


def write_page(document, folder, contents):
    page = folder / page_of(document)
    body = subprocess.run(["cmark-gfm", "--unsafe", "-e", "table", "-e", "strikethrough", document], check=True,
                          capture_output=True, text=True).stdout
    body = linked(with_names(body), document, folder)
    entries = []
    for chapter, title in contents:
        address = os.path.relpath(folder / page_of(chapter), page.parent)
        here = ' class="here"' if chapter == document else ""
        entries.append(f'<a href="{address}"{here}>{html.escape(title.replace("`", ""))}</a>')
    reference = folder.parent / "reference/index.html"
    if reference.is_file():
        entries.append(f'<a href="{os.path.relpath(reference, page.parent)}">Reference of the headers</a>')
    title = re.search(r"<h1[^>]*>(.*?)</h1>", body, re.DOTALL)
    page.parent.mkdir(parents=True, exist_ok=True)
    page.write_text(PAGE.format(title=re.sub(r"<[^>]*>", "", title[1]) if title else document.name, body=body,
                                chapters="\n".join(entries), up=os.path.relpath(folder, page.parent) + "/"))


def write(folder):
    shutil.rmtree(folder, ignore_errors=True)
    folder.mkdir(parents=True)
    contents = list(chapters())
    for document in DOCUMENTS:
        write_page(document, folder, contents)
    shutil.copy(ROOT / "docs/manual.css", folder / "docs/manual.css")
    (folder / "index.html").write_text(FRONT)


class Page(HTMLParser):
    """What a page can be linked to by, and what it links to."""

    def __init__(self, file):
        super().__init__()
        self.names, self.links, self.pictures = set(), [], 0
        self.feed(file.read_text())

    def handle_starttag(self, tag, attributes):
        for key, value in attributes:
            if key == "id":
                self.names.add(value)
            elif key in ("href", "src"):
                self.links.append((self.getpos()[0], value))
        self.pictures += tag == "img"


def check(folder):
    """Follows all links but those to the outside; tells of those that lead nowhere."""
    pages = {file: Page(file) for file in sorted(folder.rglob("*.html"))}
    links = broken = 0
    for file, page in pages.items():
        for line, link in page.links:
            parts = urlsplit(link)
            if parts.scheme:
                continue
            links += 1
            target = (file.parent / unquote(parts.path)).resolve() if parts.path else file
            if not target.is_file() or parts.fragment and parts.fragment not in pages[target].names:
                broken += 1
                print(f"{file.relative_to(folder)}:{line}: {link} leads nowhere")
    pictures = sum(page.pictures for page in pages.values())
    print(f"{len(pages)} pages, {links} links, {pictures} pictures, {broken} broken")
    # Pages without links or pictures are not what was meant to be made.
    return not broken and links > len(pages) and pictures > 0


def main(arguments):
    is_check = arguments[:1] == ["--check"]
    if len(arguments) != 1 + is_check:
        sys.exit(__doc__)
    folder = Path(arguments[-1]).resolve()
    if not is_check:
        write(folder)
    sys.exit(0 if check(folder) else 1)


main(sys.argv[1:])
