#!/usr/bin/env python3
"""Tells Doxygen what the headers here say by their form. Prints the header FILE with every line where it was.

    docs/docstrings.py FILE

A docstring holds for the overloads right below the declaration that it is of. What is of one form everywhere - handles,
identifiers of interfaces, copies - says what it is by its form.
"""

import re
import sys

FORMS = [(re.compile(form), text) for form, text in (
    (r"using (\w+)_var = ORXHandle<\1>;", r"Counted handle of \1."),
    (r"extern (?:\w+ )*const IID IID_(\w+);|inline constexpr (?:IID|GUID) IID_(\w+)", r"Identifies \g<1>."),
    (r"static const IID& ClassId\(\)", "Identifier of this interface."),
    (r"static ORXMetaClass\* MetaObject\(\)", "Meta class of this class; borrowed, valid until the process ends."),
    (r"static ORXISpecAttrKey\* GetKeyVYRCfd(Choice|DefaultManagement|Values)(\w+)\(",
     r"Key of `\2` of VYRCfd\1; borrowed, valid until the process ends. Null for an object of a foreign type."),
    (r"static constexpr const char\* InterfaceName", "Name of the interface."),
    (r"int Size\(\) const", "Number of entries."),
    (r".* operator\[\]\(int iPosition\)", "The entry at a position, counted from 1."),
    (r"void Append\(", "Adds an entry behind the last."),
    (r"operator const char\*\(\) const", "The same as `CastToCharPtr`."),
    (r"(?:constexpr )?(\w+)\(const \1&(?: \w+)?\)", "Copies."),
    (r"(?:constexpr )?(\w+)\(\1&&(?: \w+)?\)", "Moves; of the source only its end or an assignment is left."),
    (r"(\w+)& operator=\((?:const )?\1&(?: \w+)?\)", "Copies."),
    (r"(\w+)& operator=\(\1&&(?: \w+)?\)", "Moves; of the source only its end or an assignment is left."),
)]
SCOPES = re.compile(r"(template <[^;]*> )?(class|struct|enum|namespace|union|extern \"C\")\b[^;]*$")
COMMENT = re.compile(r"\s*(///|//|/\*\*|/\*|\*)")


def text_of(lines):
    """The words of a docstring, in one line; without its parameters, which others need not have."""
    words = [re.sub(r"^\s*(///?|/\*\*|\*/|\*(?!/))?\s?", "", line).replace("*/", "") for line in lines]
    text = " ".join(word.strip() for word in words).strip()
    return re.sub(r"@t?param .*?(?=@|$)", "", text).strip()


def form_of(code):
    for form, text in FORMS:
        match = form.match(code)
        if match:
            return match.expand(text)
    return None


def name_of(code):
    """What is declared, if it is a function."""
    match = re.search(r"(operator *(?:\(\)|[^(]+?)|~?\w+) ?\(", code)
    return match and match[1]


class Header:
    def __init__(self):
        self.docstring, self.name = None, None  # what holds from here on, and for which name
        self.gathered = []  # lines of the docstring that is being read
        self.is_block = False  # within /** ... */
        self.is_template = False  # the line before was the head of a template
        self.is_declaration = False  # whether a declaration is being read, and how deep its brackets are
        self.depth = 0

    def comment(self, line):
        """Takes a line of a comment."""
        self.gathered.append(line)
        self.is_block = "*/" not in line and (self.is_block or line.lstrip().startswith("/*"))

    def begin(self, line):
        """The first line of a declaration, with what is found to say of it."""
        code = line.lstrip()
        name, text = name_of(code), None
        if self.gathered and self.gathered[0].lstrip().startswith(("///", "/**")):
            self.docstring, self.name = text_of(self.gathered), name
            if re.search(r"@[{}]|@file|@name", self.docstring):
                self.docstring = None
        else:
            text = form_of(code) or (self.docstring if name and name == self.name else None)
        self.gathered = []
        if SCOPES.match(code):
            self.docstring = text = None
        if "= delete" in code:
            text = None
        return f"/** {text} */ {line}" if text else line

    def line(self, line):
        code = line.strip()
        if not self.is_declaration and (self.is_block or COMMENT.match(line)):
            self.comment(line)
            return line
        if not code:
            if not self.is_declaration:
                self.docstring, self.gathered = None, []
            return line
        if not self.is_declaration:
            # What a class derives from has been part of its first line.
            if re.match(r"[#{}]|:[^:]|(public|protected|private):", code):
                self.docstring, self.gathered = None, []
                return line
            if re.fullmatch(r"template <.*>", code):
                # A docstring has its place in front of it.
                self.is_template = True
                return line
            begun = self.begin(line)
            line = line if self.is_template else begun
            self.is_template = False
            if SCOPES.match(code):
                # What is inside is read like what is outside.
                return line
            self.is_declaration, self.depth = True, 0
        bare = re.sub(r'"(\\.|[^"\\])*"|//.*|/\*.*?\*/', "", code)
        self.depth += sum(bare.count(one) for one in "({") - sum(bare.count(one) for one in ")}")
        if self.depth == 0 and re.search(r"[;}]$", bare):
            self.is_declaration = False
        return line


def main(arguments):
    if len(arguments) != 1:
        sys.exit(__doc__)
    header = Header()
    with open(arguments[0], encoding="utf-8") as file:
        print("\n".join(header.line(line) for line in file.read().splitlines()))


main(sys.argv[1:])
