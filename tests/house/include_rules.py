"""Who may include whom.

    include_rules.py ROOT

Reads every source file of the tree below ROOT and prints one line, `file:line: text`, for each #include that its room
may not have. Exit status: 0 none, 1 some, 2 wrong use or nothing to read.

The rules, one row a room, are in ROOMS below. What an #include names is told from where the file lies: beside the
including file first, as the compiler does, then in the folders that the including file's room may see, then anywhere
in the tree.
"""

import pathlib
import re
import sys

SOURCE_SUFFIXES = {".h", ".hh", ".hpp", ".hxx", ".inl", ".ipp", ".inc", ".c", ".cc", ".cpp", ".cxx"}

# The public faces: what anybody outside may see.
HOST = "host"
MODULE_FACE = "VYRCfdModel/ProtectedInterfaces"
STANDALONE_FACE = "standalone/include"
PUBLIC_FACES = (HOST, MODULE_FACE, STANDALONE_FACE)

STANDARD = "the standard library"
ANY_LIBRARY = "any library"

# Room, what of this tree it may include, what it may include in angle brackets. OWN stands for the folder directly
# below the room (tools/<tool>, tests/<area>), since neighbours there do not know each other.
OWN = "own folder"
ROOMS = {
    "host": ((HOST,), STANDARD),
    "VYRCfdModel": ((HOST, "VYRCfdModel"), STANDARD),
    "standalone": ((HOST, "standalone"), ANY_LIBRARY),
    "tools": (PUBLIC_FACES + (OWN,), ANY_LIBRARY),
    "tests": (PUBLIC_FACES + (OWN, "tests/support"), ANY_LIBRARY),
    # One program, in folders.
    "bench": (PUBLIC_FACES + ("bench",), ANY_LIBRARY),
    # The tool is a program: what it reads from others can be driven from inside only.
    "fuzz": (PUBLIC_FACES + (OWN, "tools/vyrcfd"), ANY_LIBRARY),
}

# Folders below a room that may include less than the room, and the files there that are excepted. The contract suite
# knows no host but through its seam, which one file implements; of the helpers it takes those that know none either.
NARROWER = {
    "tests/contract": ((HOST, OWN, "tests/support/NumberTexts.h", "tests/support/TemporaryFolder.h"),
                       {"tests/contract/StandaloneHostUnderTest.cpp"}),
    # Another host, and a program on it.
    "tests/secondhost": ((HOST, MODULE_FACE, OWN, "tests/contract/HostUnderTest.h"), set()),
}

STANDARD_HEADERS = frozenset(
    """
    algorithm any array atomic barrier bit bitset cassert cctype cerrno cfenv cfloat charconv chrono cinttypes climits
    clocale cmath codecvt compare complex concepts condition_variable coroutine csetjmp csignal cstdarg cstddef cstdint
    cstdio cstdlib cstring ctime cuchar cwchar cwctype deque exception execution filesystem format forward_list fstream
    functional future initializer_list iomanip ios iosfwd iostream istream iterator latch limits list locale map memory
    memory_resource mutex new numbers numeric optional ostream queue random ranges ratio regex scoped_allocator
    semaphore set shared_mutex source_location span sstream stack stdexcept stop_token streambuf string string_view
    strstream syncstream system_error thread tuple type_traits typeindex typeinfo unordered_map unordered_set utility
    valarray variant vector version
    assert.h complex.h ctype.h errno.h fenv.h float.h inttypes.h iso646.h limits.h locale.h math.h setjmp.h signal.h
    stdalign.h stdarg.h stdatomic.h stdbool.h stddef.h stdint.h stdio.h stdlib.h string.h tgmath.h time.h uchar.h
    wchar.h wctype.h
    """.split()
)

# Comments and literals, so that an #include in one of them does not count; a literal stays, being what is included.
COMMENT_OR_LITERAL = re.compile(
    r"""
      //(?:[^\n\\]|\\[^\n]|\\\n)*                        # a comment to the end of the line
    | /\*.*?\*/                                          # a comment over lines
    | R"(?P<mark>[^()\\\s]{0,16})\(.*?\)(?P=mark)"       # a raw string
    | "(?:[^"\\\n]|\\.)*"                                # a string
    | '(?:[^'\\\n]|\\.)*'                                # a character
    """,
    re.VERBOSE | re.DOTALL,
)
DIRECTIVE = re.compile(r"^[ \t]*(?:\#|%:)[ \t]*(?P<kind>include_next|include|import)\b[ \t]*(?P<what>.*?)[ \t]*$",
                       re.MULTILINE)
QUOTED = re.compile(r'^"([^"]+)"$')
ANGLED = re.compile(r"^<([^>]+)>$")


def without_comments(text):
    """The text with comments and raw strings made blank and continued lines joined; line numbers stay."""

    def blank(match):
        found = match.group(0)
        if found.startswith(("//", "/*", 'R"')):
            return " " + "\n" * found.count("\n")
        return found

    text = COMMENT_OR_LITERAL.sub(blank, text)
    # What a joined line takes is given back as empty lines behind it.
    joined = []
    owed = 0
    for line in text.split("\n"):
        if line.endswith("\\"):
            joined.append(line[:-1])
            owed += 1
        else:
            joined.append(line + "\n" * (owed + 1))
            owed = 0
    return "".join(joined)


def includes(text):
    """(line, directive, name or None, is in angle brackets) of every inclusion; the name is None for a macro."""
    text = without_comments(text)
    for match in DIRECTIVE.finditer(text):
        line = text.count("\n", 0, match.start("kind")) + 1
        quoted = QUOTED.match(match.group("what"))
        angled = ANGLED.match(match.group("what"))
        name = (quoted or angled).group(1) if quoted or angled else None
        yield line, match.group("kind"), name, angled is not None


def is_below(path, folder):
    return path.parts[: len(folder.parts)] == folder.parts


class Tree:
    """The source files below a root, by their paths relative to it."""

    def __init__(self, root):
        self.root = root
        self.files = sorted(
            path.relative_to(root)
            for room in ROOMS
            for path in (root / room).rglob("*")
            if path.suffix in SOURCE_SUFFIXES and path.is_file()
        )
        self.by_name = {}
        for path in self.files:
            self.by_name.setdefault(path.name, []).append(path)

    def candidates(self, name):
        """The files that `name` could mean for some include folder: those whose path ends in it."""
        wanted = pathlib.PurePosixPath(name)
        return [
            path for path in self.by_name.get(wanted.name, []) if path.parts[-len(wanted.parts):] == wanted.parts
        ]

    def beside(self, file, name):
        """The file that `name` means relative to the folder of `file`, None if there is none."""
        target = (self.root / file.parent / name).resolve()
        if not target.is_file() or not target.is_relative_to(self.root):
            return None
        return target.relative_to(self.root)


def allowed_folders(file):
    """The folders of the tree that `file` may include from."""
    own = pathlib.Path(*file.parts[:2]) if len(file.parts) > 2 else pathlib.Path(file.parts[0])
    allowed = ROOMS[file.parts[0]][0]
    narrower, excepted = NARROWER.get(own.as_posix(), (allowed, ()))
    if file.as_posix() not in excepted:
        allowed = narrower
    return [own if folder == OWN else pathlib.Path(folder) for folder in allowed]


def judge(tree, file, directive, name, is_angled):
    """What is wrong with one inclusion, None if nothing."""
    if directive != "include":
        return f"#{directive} is not used here"
    if name is None:
        return "an #include of a macro hides what is included"

    allowed = allowed_folders(file)
    room = file.parts[0]
    target = None if is_angled else tree.beside(file, name)
    if target is None:
        candidates = tree.candidates(name)
        permitted = [path for path in candidates if any(is_below(path, folder) for folder in allowed)]
        target = (permitted or candidates or [None])[0]

    if target is not None:
        if any(is_below(target, folder) for folder in allowed):
            return None
        return f"{room}/ may not include {target.as_posix()}"
    if not is_angled:
        return f'"{name}" is no file of this tree'
    if ROOMS[room][1] == STANDARD and name not in STANDARD_HEADERS:
        return f"{room}/ may include {STANDARD} only, not <{name}>"
    return None


def ambiguous_headers(tree):
    """Headers of the public faces that bear one name: included flat, only one of them can be reached."""
    faces = [pathlib.Path(face) for face in PUBLIC_FACES]
    for name, paths in sorted(tree.by_name.items()):
        public = [path for path in paths if any(is_below(path, face) for face in faces)]
        for later in public[1:]:
            yield later, 1, f"bears the name of {public[0].as_posix()}, and both are included as \"{name}\""


def violations(root):
    """(file, line, text) of everything that breaks a rule below `root`, and the number of files read."""
    tree = Tree(root)
    found = []
    for file in tree.files:
        text = (root / file).read_text(encoding="utf-8", errors="replace")
        for line, directive, name, is_angled in includes(text):
            wrong = judge(tree, file, directive, name, is_angled)
            if wrong is not None:
                found.append((file, line, wrong))
    found.extend(ambiguous_headers(tree))
    return found, len(tree.files)


def main(arguments):
    if len(arguments) != 1 or not pathlib.Path(arguments[0]).is_dir():
        print("usage: include_rules.py ROOT", file=sys.stderr)
        return 2
    found, read = violations(pathlib.Path(arguments[0]).resolve())
    if read == 0:
        print(f"include_rules.py: no source file below {arguments[0]}", file=sys.stderr)
        return 2
    for file, line, text in found:
        print(f"{file.as_posix()}:{line}: {text}")
    print(f"{read} files read, {len(found)} violations")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
