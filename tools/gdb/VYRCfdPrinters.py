"""Pretty printers for gdb: the host's strings, lists and handles, cursors and conditions.

    (gdb) source VYRCfdPrinters.py

They read memory only and call nothing, so they work on a core file as well, and a print changes nothing. What stands in
an object behind an interface is its host's business: of it the class and the address are shown.
"""

import re

import gdb
import gdb.printing


def text_of(string):
    """An ORXUnicodeString as a Python string. What is no UTF-8 is shown as escapes."""
    size = int(string["m_bytes"])
    inlined = string["m_text"]["inlined"]
    inlined_bytes = inlined.type.range()[1] + 1
    start = inlined[0].address if size < inlined_bytes else string["m_text"]["heap"]
    data = bytes(gdb.selected_inferior().read_memory(int(start), size)) if size else b""
    return data.decode("utf-8", "backslashreplace")


def quoted(text):
    escaped = text.replace("\\", "\\\\").replace('"', '\\"')
    return '"' + "".join(c if c.isprintable() else f"\\u{{{ord(c):x}}}" for c in escaped) + '"'


def class_of(pointer):
    """Name of the class whose table an object has. The symbol tells it also where a library has no debug information,
    for which gdb itself would only warn; in a stripped library the interface is all that is known."""
    table = int(pointer.cast(gdb.lookup_type("unsigned long").pointer()).dereference())
    symbol = re.match(r"vtable for (.*?)(?: \+ \d+)? in section ", gdb.execute(f"info symbol {table:#x}", to_string=True))
    return symbol.group(1) if symbol else str(pointer.type.target().unqualified())


def component(pointer):
    """What a pointer to an interface points at: its class and the address."""
    address = int(pointer)
    if address == 0:
        return "null"
    try:
        return f"{class_of(pointer)} at {address:#x}"
    except gdb.MemoryError:
        return f"no object at {address:#x}"


def entries_of(vector):
    """The entries of a std::vector."""
    implementation = vector["_M_impl"]
    entry = implementation["_M_start"]
    while entry != implementation["_M_finish"]:
        yield entry.dereference()
        entry += 1


class StringPrinter:
    def __init__(self, value):
        self.value = value

    def to_string(self):
        return quoted(text_of(self.value))


class NarrowStringPrinter:
    def __init__(self, value):
        self.value = value

    def to_string(self):
        return self.value["m_text"]


class HandlePrinter:
    def __init__(self, value):
        self.value = value

    def to_string(self):
        return component(self.value["m_pointer"])


class ListPrinter:
    """Positions count from 1, as they do in the program."""

    def __init__(self, value):
        self.value = value

    def to_string(self):
        return f"list of {sum(1 for _ in entries_of(self.value['m_entries']))}"

    def children(self):
        for position, entry in enumerate(entries_of(self.value["m_entries"]), 1):
            yield f"[{position}]", entry


def cursor_text(cursor):
    access = cursor["_spAttr"]["m_pointer"]
    key = cursor["_spKey"]["m_pointer"]
    error = text_of(cursor["_error"])
    if error:
        return f"error cursor {quoted(error)}"
    if int(access) == 0:
        return "empty cursor"
    if int(key) == 0:
        return f"object cursor, {component(access)}"
    return f"attribute cursor, {component(access)}, key {component(key)}"


class CursorPrinter:
    def __init__(self, value):
        self.value = value

    def to_string(self):
        return cursor_text(self.value)


class ConditionPrinter:
    def __init__(self, value):
        self.value = value

    def to_string(self):
        error = text_of(self.value["_error"])
        what = f"broken condition {quoted(error)}" if error else f"condition {quoted(text_of(self.value['_condition']))}"
        return f"{what} on {cursor_text(self.value['_access'])}"


def printers():
    collection = gdb.printing.RegexpCollectionPrettyPrinter("VYRCfd")
    for name, expression, printer in (
        ("string", "^ORXUnicodeString$", StringPrinter),
        ("narrow string", "^ORXString$", NarrowStringPrinter),
        ("handle", "^ORXHandle<.*>$", HandlePrinter),
        ("list", "^(ORXListVal(ORXUnicodeString|ORXBaseUnknown_var)|ORXRawColldouble)$", ListPrinter),
        ("cursor", "^VYRCfdObjectAccess$", CursorPrinter),
        ("condition", "^VYRCfdObjectCondition$", ConditionPrinter),
    ):
        collection.add_printer(name, expression, printer)
    return collection


# Sourced again, the new ones take the place of the old.
gdb.printing.register_pretty_printer(None, printers(), replace=True)
