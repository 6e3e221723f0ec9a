"""Every header of host/ has its group in the contract suite.

    covers_headers.py HOST SUITE

For each header HOST/room/Name.h there is a file SUITE/room/NameTest.cpp. Exit status: 0 all covered, 1 some not, 2
wrong use or nothing to read.
"""

import pathlib
import sys

# Headers without anything that runs.
WITHOUT_BEHAVIOUR = {"component/ORXExport.h"}


def uncovered(host, suite):
    """The headers below `host` that have no group below `suite`, and the number of headers."""
    headers = sorted(path.relative_to(host) for path in host.rglob("*.h"))
    missing = [
        header.as_posix()
        for header in headers
        if header.as_posix() not in WITHOUT_BEHAVIOUR
        and not (suite / header.parent / f"{header.stem}Test.cpp").is_file()
    ]
    return missing, len(headers)


def main(arguments):
    if len(arguments) != 2 or not all(pathlib.Path(argument).is_dir() for argument in arguments):
        print("usage: covers_headers.py HOST SUITE", file=sys.stderr)
        return 2
    missing, read = uncovered(pathlib.Path(arguments[0]), pathlib.Path(arguments[1]))
    if read == 0:
        print(f"covers_headers.py: no header below {arguments[0]}", file=sys.stderr)
        return 2
    for header in missing:
        print(f"host/{header}: no group in the contract suite")
    print(f"{read} headers, {len(missing)} without a group")
    return 1 if missing else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
