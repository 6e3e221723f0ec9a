"""What the libraries export.

    exports.py check [--nm NM] [--list FILE] LIBRARY
    exports.py renew [--nm NM] [--list FILE] [--write] LIBRARY

Compares the names that a shared library exports, demangled, with a checked-in list, and prints the difference. Where no
other list is given it is that of the library's name, exports/NAME.txt.
`renew` also writes the list, but only with --write: read the difference first, since each line of it is a promise to
others that is made or broken. Exit status: 0 equal or written, 1 different, 2 wrong use.

Weak and unique symbols are left out: which inline functions, template instances and tables of the host's and the
standard library's classes a library happens to carry is up to the compiler and its optimiser, and nobody links with
them; a few that stand below are told apart. Tables and type information of classes are left out by name, since g++
makes them weak and clang does not; so is what sanitizers add.
"""

import argparse
import difflib
import pathlib
import re
import subprocess
import sys

LISTS = pathlib.Path(__file__).resolve().parent / "exports"

TABLES = ("vtable for ", "VTT for ", "construction vtable for ", "typeinfo for ", "typeinfo name for ")
# nm's letters for what is defined once and for all: code, data, constants, zeroed data, small data, absolute.
STRONG = frozenset("TDRBGSA")
# Promised although weak: inline functions of exported classes that were not always inline, with which programs link; and
# what a host need not offer, which is declared weak.
PROMISED = frozenset(
    {
        "ORXGetSpecAttrShortcuts()",
        "VYRCfdObjectAccess::VYRCfdObjectAccess(VYRCfdObjectAccess const&)",
        "VYRCfdObjectAccess::~VYRCfdObjectAccess()",
    }
)
# Made by the linker, and by the address sanitizer for each global.
NOT_OURS = ("__odr_asan", "__asan", "__ubsan", "__sanitizer", "_init", "_fini", "_edata", "_end", "__bss_start")


def exported(nm_output):
    """The exported names in what `nm -DC --defined-only` prints: sorted, each once."""
    names = set()
    for line in nm_output.splitlines():
        # "0000000000001139 T Class::Function(int) const": the name may hold blanks.
        parts = line.split(" ", 2)
        if len(parts) != 3 or not (parts[1] in STRONG or (parts[1] == "W" and parts[2] in PROMISED)):
            continue
        # Constructors and destructors come in several variants of one demangled name; versions are not used here.
        if not parts[2].startswith(NOT_OURS + TABLES):
            names.add(parts[2])
    return sorted(names)


def read_library(nm, library):
    return exported(
        subprocess.run([nm, "-DC", "--defined-only", str(library)], check=True, capture_output=True, text=True).stdout
    )


def list_of(library):
    """The list of a library, by its name: that of lib/libThing.so.0.1 is exports/Thing.txt."""
    return LISTS / (re.sub(r"^lib|\.so.*$", "", library.name) + ".txt")


def read_list(path):
    return [line for line in path.read_text(encoding="utf-8").splitlines() if line]


def difference(listed, names):
    """Lines "- name" for what is listed and not exported, "+ name" for the other way round."""
    return [line for line in difflib.ndiff(listed, names) if line.startswith(("- ", "+ "))]


def main(arguments):
    parser = argparse.ArgumentParser(description="Compare a library's exported names with a checked-in list.")
    parser.add_argument("job", choices=["check", "renew"])
    parser.add_argument("--nm", default="nm")
    parser.add_argument("--list", type=pathlib.Path)
    parser.add_argument("--write", action="store_true", help="with renew: write the list")
    parser.add_argument("library", type=pathlib.Path)
    options = parser.parse_args(arguments)

    if not options.library.is_file():
        print(f"{options.library}: no such library; build it first", file=sys.stderr)
        return 2
    names = read_library(options.nm, options.library)
    path = options.list or list_of(options.library)
    is_missing = not path.is_file()
    changes = difference([] if is_missing else read_list(path), names)

    if options.job == "renew":
        print("\n".join(changes) if changes else f"{path.name} is up to date")
        if options.write:
            path.write_text("".join(name + "\n" for name in names), encoding="utf-8")
            print(f"{path.name} written: {len(names)} names")
            return 0
        if changes:
            print("Nothing written. If every line of the difference is meant, run this again with --write.")
        return 1 if changes else 0

    if is_missing:
        print(f"The list of exported names, {path.name}, is missing.")
        print("Make it with: python3 tests/house/exports.py renew --write LIBRARY")
        return 1
    if not names:
        print(f"{options.library.name} exports nothing: the export macro has no effect")
        return 1
    if changes:
        print(f"{options.library.name} does not export what {path.name} lists (- listed only, + exported only):")
        print("\n".join(changes))
        print("If this is meant: python3 tests/house/exports.py renew LIBRARY")
        return 1
    print(f"{len(names)} exported names, as listed")
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
