#!/usr/bin/env python3
"""Checks the sample installation: configuration files, catalogs and models, each by itself and against the others.

A development aid until `vyrcfd check` exists; it goes when the tool can do its work.

    samples/check.py            check the files beside this script; exit 1 if there are findings
    samples/check.py --prove    break copies of the files in memory, one way at a time; exit 1 if a break goes unseen

Paths that run through references and lists of objects have no declared type, so they are followed on the sample
models: at least one object of the configured type must have such a target. The data object of a Choice is of the types
that its start-up declares for its choices, whether or not a model holds one.
"""

import copy
import itertools
import json
import re
import sys
from dataclasses import dataclass, field
from pathlib import Path

CONFIG_FOLDER = "reffiles/VYRCfdApp/"
MAIN_FILE, SLOPE_FILE = "SolverConfigurations.json", "SolverConfigurations_dxSlope.json"
OTHER_FILES = [
    "conditionsConfig_Flow.json", "conditionsConfig_Energy.json", "conditionsConfig_Turbulence.json",
    "conditionsConfig_Species.json", "conditionsConfig_Phase.json", "solverConfig_Flow.json",
    "solverConfig_Energy.json", "solverConfig_Turbulence.json", "solverConfig_MultiSpecies.json",
    "measurementsConfig.json", "solverConfig_Radiation.json", "conditionsConfig_Radiation.json",
    "conditionsConfig_ECooling.json", "solverConfig_MultiPhase.json", "meshFYEConfig.json"]

SCALARS = {"real", "integer", "boolean", "enumeration", "string"}
KINDS = SCALARS | {"component", "reference", "list"}
OPERATORS = ["==", "!=", "<=", ">=", "<", ">", "="]  # in the order in which a condition is searched for them
ITEM_SHAPES = {  # keys that an item must hold, and keys that it may hold
    "values": ({"path", "value", "list"}, set()),
    "default": ({"path", "type", "default"}, {"defaultAutoKey"}),
    "nested": ({"path", "config"}, {"condition"}),
    "choice": ({"choices", "default"}, {"Startups", "display"})}  # a path would only shape the record
ATTRIBUTE_KEYS = {"name", "kind", "default", "values", "type", "of", "unit", "optional"}
CHOICE = "VYRCfdChoice"
HOST_TYPES = {
    "VYRCfdValues": [{"name": "defaultManagement", "kind": "component", "type": "VYRCfdDefaultManagement"}],
    CHOICE: [{"name": name, "kind": "string"} for name in ("value", "dataName", "display")]
            + [{"name": name, "kind": "list", "of": "string"} for name in ("choices", "Startups")]
            + [{"name": "Data", "kind": "component"},
               {"name": "defaultManagement", "kind": "component", "type": "VYRCfdDefaultManagement"}],
    "VYRCfdDefaultManagement": [{"name": "configuration", "kind": "list", "of": "reference"}],
    "VYRCfdConfigItem": [{"name": name, "kind": "string"}
                         for name in ("type", "path", "default", "defaultAutoKey", "condition", "config")]}


# --- reading ---------------------------------------------------------------------------------------------------------

def unique_keys(pairs):
    keys = [key for key, _ in pairs]
    for key in keys:
        if keys.count(key) > 1:
            raise ValueError(f'key "{key}" stands twice in one object')
    return dict(pairs)


def no_constant(text):
    raise ValueError(f"{text} is not valid JSON")


def read_files(root, findings):
    documents = {}
    for path in sorted(root.rglob("*.json")):
        name = path.relative_to(root).as_posix()
        try:
            documents[name] = json.loads(path.read_text(encoding="utf-8"), object_pairs_hook=unique_keys,
                                         parse_constant=no_constant)
        except ValueError as error:
            findings.append(f"{name}: {error}")
    return documents


# --- values ----------------------------------------------------------------------------------------------------------

REAL = r"[+-]?(\d+\.?\d*|\.\d+)([eE][+-]?\d+)?"


def text_fits(text, attribute):
    """Whether a default's text is a value of the attribute's kind, now and when it is read from its record: records
    know no units, and give no booleans and no enumerations."""
    kind = attribute["kind"]
    if kind == "integer":
        return bool(re.fullmatch(r"[+-]?\d+", text)) and -2**31 <= int(text) < 2**31
    if kind == "real":
        return bool(re.fullmatch(REAL, text))
    return kind == "string"


def value_fits(value, kind, attribute):
    """Whether a JSON value is a value of the scalar kind; null is the unset value."""
    if value is None:
        return True
    if kind == "real":
        return isinstance(value, (int, float)) and not isinstance(value, bool) or \
            isinstance(value, str) and "unit" in attribute and bool(re.fullmatch(REAL + r" \S.*", value))
    if kind == "integer":
        return isinstance(value, int) and not isinstance(value, bool) and -2**31 <= value < 2**31
    if kind == "boolean":
        return isinstance(value, bool)
    if kind == "enumeration":
        return value in attribute.get("values", [])
    return isinstance(value, str)


# --- Choices ---------------------------------------------------------------------------------------------------------

def tokens_of(text):
    """The entries of a comma list; blanks go, also those inside an entry."""
    return [token.replace(" ", "") for token in text.split(",")]


def pairs_of(startup):
    """A Choice's choices with their startups, as its start-up declares them; "" for a choice without data."""
    choices, startups = startup.get("choices") or [], startup.get("Startups") or []
    return list(zip(choices, startups or [""] * len(choices)))


def holding(pairs, condition):
    """The pairs of a Choice under which a condition on its value may hold; all of them under any other condition."""
    path, operator, right = parse_condition(condition) or ("", "", "")
    if path != "value" or operator not in ("==", "=", "!="):
        return pairs
    return [(choice, startup) for choice, startup in pairs if (choice == right) == (operator != "!=")]


def check_choice_lists(where, choices, startups, default, types, catalogs, findings):
    """What holds of the lists of a Choice wherever they are given. Startups are of the types of the catalogs."""
    if not all(isinstance(text, str) for text in choices + startups + [default]):
        findings.append(f"{where}: choices, Startups and the value are texts")
        return
    for choice in choices:
        if not choice or re.search(r"[ ,]", choice):
            findings.append(f'{where}: choice "{choice}" is empty, or holds a blank or a comma')
        elif choices.count(choice) > 1:
            findings.append(f'{where}: choice "{choice}" stands twice')
    if startups and len(startups) != len(choices):
        findings.append(f"{where}: {len(choices)} choices and {len(startups)} Startups")
    if startups and not any(startups):
        findings.append(f"{where}: no choice has data, so there should be no Startups")
    for startup in startups:
        if startup and (startup not in types.own or types.catalog.get(startup, "VYRCfdBase") not in catalogs):
            findings.append(f'{where}: startup "{startup}" is no declared type')
        elif startup and not types.derives(startup, "VYRCfdValues"):
            findings.append(f'{where}: startup "{startup}" has no default management, so its data cannot be configured')
    if default not in choices:
        findings.append(f'{where}: "{default}" is none of the choices')


# --- catalogs --------------------------------------------------------------------------------------------------------

class Types:
    """The feature types of all catalogs, with what the host brings."""

    def __init__(self, documents, findings):
        self.findings = findings
        self.bases = {name: "" for name in HOST_TYPES}
        self.own = {name: {a["name"]: a for a in attributes} for name, attributes in HOST_TYPES.items()}
        self.startups = {}  # type -> its own "startup"
        self.managed = set()
        self.prototypes = {}
        self.meant = {}    # type -> configurations that are meant for it
        self.catalog = {}  # type -> catalog
        self.uses = {"VYRCfdBase": []}
        declared = {}
        for file, document in documents.items():
            if file.startswith("catalogs/"):
                self.read_catalog(file, document, declared)
        for name, (file, entry) in declared.items():
            self.check_type(file, name, entry)

    def read_catalog(self, file, document, declared):
        catalog = document.get("catalog", "")
        if set(document) != {"catalog", "uses", "types"} or file != f"catalogs/{catalog}.catalog.json":
            self.findings.append(f'{file}: a catalog holds "catalog" (its file\'s name), "uses" and "types"')
        self.uses[catalog] = document.get("uses", [])
        for entry in document.get("types", []):
            name = entry.get("name", "")
            if not name or re.search(r"[ ,]", name) or name in self.own:
                self.findings.append(f'{file}: bad or repeated type name "{name}"')
                continue
            declared[name] = (file, entry)
            self.catalog[name] = catalog
            self.bases[name] = entry.get("base", "")
            self.own[name] = {a.get("name", ""): a for a in entry.get("attributes", [])}
            self.meant[name] = entry.get("configurations", [])
            self.startups[name] = entry.get("startup", {})
            if entry.get("manager"):
                self.managed.add(name)

    def chain(self, name):
        while name:
            yield name
            name = self.bases.get(name, "")

    def derives(self, name, base):
        return base in self.chain(name)

    def attributes(self, name):
        merged = {}
        for one in reversed(list(self.chain(name))):
            merged.update(self.own.get(one, {}))
        return merged

    def is_managed(self, name):
        return any(one in self.managed for one in self.chain(name))

    def prototype(self, name):
        """The start-up of a type: values by attribute, start-ups by component."""
        if name not in self.prototypes:
            self.prototypes[name] = {}  # what a type that contains itself finds of itself
            values = copy.deepcopy(self.prototype(self.bases[name])) if self.bases.get(name) else {}
            for label, attribute in self.own.get(name, {}).items():
                if attribute.get("kind") == "component":
                    values[label] = copy.deepcopy(self.prototype(attribute.get("type", "")))
                else:
                    values[label] = attribute.get("default")
            self.overlay(values, self.startups.get(name, {}))
            self.prototypes[name] = values
        return self.prototypes[name]

    def overlay(self, values, startup):
        for key, value in startup.items():
            if isinstance(value, dict) and isinstance(values.get(key), dict):
                self.overlay(values[key], value)
            else:
                values[key] = value

    def visible(self, catalog):
        """The catalogs that a catalog knows: itself and what it uses, directly or not."""
        seen, open_ = set(), [catalog]
        while open_:
            one = open_.pop()
            if one not in seen:
                seen.add(one)
                open_ += self.uses.get(one, [])
        return seen

    def known_from(self, name, catalog):
        return name in self.own and self.catalog.get(name, "VYRCfdBase") in self.visible(catalog)

    def check_type(self, file, name, entry):
        where = f"{file}: {name}"
        if not set(entry) <= {"name", "base", "attributes", "startup", "configurations", "manager"}:
            self.findings.append(f"{where}: unknown keys {sorted(entry)}")
        if "manager" in entry and (entry["manager"] is not True or not self.derives(name, CHOICE)):
            self.findings.append(f'{where}: "manager" is true, and for types that derive from "{CHOICE}"')
        if not self.known_from(self.bases[name], self.catalog[name]):
            self.findings.append(f'{where}: base "{self.bases[name]}" is not known here')
            self.bases[name] = ""
        elif not self.derives(name, "VYRCfdValues") and not self.derives(name, CHOICE):
            self.findings.append(f"{where}: has no default management, so it cannot be configured")
        names = [a.get("name", "") for a in entry.get("attributes", [])]
        inherited = self.attributes(self.bases[name])
        for attribute in entry.get("attributes", []):
            label = attribute.get("name", "")
            if names.count(label) > 1 or label in inherited:
                self.findings.append(f'{where}: attribute "{label}" is declared twice')
            self.check_attribute(f"{where}.{label}", attribute, self.catalog[name])
        self.check_containment(where, name, [name])
        self.check_startup(where, name, entry.get("startup", {}))
        if self.derives(name, CHOICE) and self.prototype(name).get("choices"):
            self.check_choice(where, name, self.prototype(name), self.catalog[name])
        self.check_choices_inside(where, name, self.prototype(name), [name])

    def check_choices_inside(self, where, name, startup, trail):
        """The Choices that come with an object of a type, with the start-ups that its owner declares for them."""
        for label, attribute in self.attributes(name).items():
            part = attribute.get("type", "") if attribute.get("kind") == "component" else ""
            if not part or part in trail or not isinstance(startup.get(label), dict):
                continue
            if self.derives(part, CHOICE):
                self.check_choice(f"{where}.{label}", part, startup[label], self.catalog[trail[0]])
            self.check_choices_inside(f"{where}.{label}", part, startup[label], trail + [part])

    def check_choice(self, where, name, startup, catalog):
        choices, startups = startup.get("choices") or [], startup.get("Startups") or []
        if not isinstance(choices, list) or not isinstance(startups, list):
            return  # found already, as no value of its kind
        if not choices:
            self.findings.append(f"{where}: a Choice that declares no choices")
        else:
            check_choice_lists(where, choices, startups, startup.get("value"), self, self.visible(catalog),
                               self.findings)
        if not startup.get("display"):
            self.findings.append(f"{where}: a Choice without a display text")

    def check_attribute(self, where, attribute, catalog):
        name, kind = attribute.get("name", ""), attribute.get("kind", "")
        if not re.fullmatch(r"[a-z][A-Za-z0-9]*", name) or name.endswith(("_isset", "_isauto")):
            self.findings.append(f"{where}: bad attribute name")
        if not set(attribute) <= ATTRIBUTE_KEYS or kind not in KINDS:
            self.findings.append(f"{where}: unknown key or kind")
            return
        entry_kind = attribute.get("of", "") if kind == "list" else kind
        if ("of" in attribute) != (kind == "list") or entry_kind not in KINDS - {"list"}:
            self.findings.append(f'{where}: "of" names the kind of a list\'s entries')
            return
        values = attribute.get("values")
        if (values is not None) != (entry_kind == "enumeration") or len(values or []) != len(set(values or [])):
            self.findings.append(f'{where}: an enumeration, and nothing else, has "values", each once')
            return
        unit = attribute.get("unit", "-")
        if ("unit" in attribute and entry_kind != "real") or not isinstance(unit, str) or not unit.strip():
            self.findings.append(f'{where}: "unit" is a text, and for reals')
        if attribute.get("optional", True) is not True or ("optional" in attribute and kind == "component"):
            self.findings.append(f'{where}: "optional" is true, and for everything but components')
        if "type" in attribute and not (kind == "component" and self.known_from(attribute["type"], catalog)):
            self.findings.append(f'{where}: type "{attribute["type"]}" is not known here')
        if "default" in attribute:
            self.check_value(where, attribute["default"], attribute)

    def check_value(self, where, value, attribute):
        """A default or a start-up value of a scalar or of a list of scalars."""
        kind = attribute["kind"]
        entries, kind = (value, attribute["of"]) if kind == "list" else ([value], kind)
        if not isinstance(entries, list) or kind not in SCALARS or \
                not all(value_fits(entry, kind, attribute) for entry in entries):
            self.findings.append(f"{where}: {json.dumps(value)} is no value of kind {attribute['kind']}")

    def check_containment(self, where, name, trail):
        for attribute in self.attributes(name).values():
            part = attribute.get("type", "") if attribute.get("kind") == "component" else ""
            if part in trail:
                self.findings.append(f"{where}: contains itself by {' > '.join(trail + [part])}")
            elif part:
                self.check_containment(where, part, trail + [part])

    def check_startup(self, where, name, startup):
        attributes = self.attributes(name)
        for key, value in startup.items():
            attribute = attributes.get(key)
            if attribute is None:
                self.findings.append(f'{where}: start-up of unknown attribute "{key}"')
            elif attribute["kind"] == "component" and isinstance(value, dict):
                self.check_startup(f"{where}.{key}", attribute.get("type", ""), value)
            else:
                self.check_value(f"{where}.{key}", value, attribute)


# --- models ----------------------------------------------------------------------------------------------------------

class Model:
    """One model file; its objects keep their JSON form."""

    def __init__(self, file, document, types, findings):
        self.file, self.types, self.findings = file, types, findings
        if set(document) != {"model", "catalogs", "objects"} or document.get("model") != 1:
            findings.append(f'{file}: a model holds "model": 1, "catalogs" and "objects"')
        self.known = set()
        for catalog in document.get("catalogs", []):
            if catalog not in types.uses:
                findings.append(f'{file}: unknown catalog "{catalog}"')
            self.known |= types.visible(catalog)
        self.objects = document.get("objects", [])
        ids = [o["id"] for o in self.objects if "id" in o]
        if len(ids) != len(set(ids)) or not all(type(i) is int for i in ids):
            findings.append(f"{file}: ids are numbers, each given once")
        for one in self.objects:
            type_ = one.get("type", "")
            self.check_object(f"{file}: {one.get('name', '')}", one, type_, types.prototype(type_))

    def target(self, reference):
        """The one object that a reference names by id, identifier or name, or None."""
        ref = reference.get("ref") if isinstance(reference, dict) else None
        keys = ("id",) if type(ref) is int else ("identifier", "name")
        hits = [o for o in self.objects if any(o.get(key) == ref for key in keys)]
        return hits[0] if ref is not None and len(hits) == 1 else None

    def check_object(self, where, one, declared, startup):
        """@param startup what the owner declares for a component of the type that it has declared"""
        type_ = one.get("type", declared)
        if type_ != declared:
            startup = self.types.prototype(type_)
        if not set(one) <= {"type", "name", "alias", "identifier", "id", "values", "added"}:
            self.findings.append(f"{where}: unknown keys {sorted(one)}")
        if type_ not in self.types.own or self.types.catalog.get(type_, "VYRCfdBase") not in self.known:
            self.findings.append(f'{where}: type "{type_}" is not in the catalogs of the model')
            return
        attributes = self.types.attributes(type_)
        self.check_added(where, one.get("added", {}), attributes)
        for name, value in one.get("values", {}).items():
            if name not in attributes:
                self.findings.append(f'{where}: {type_} has no attribute "{name}"')
            elif attributes[name].get("optional"):
                self.findings.append(f'{where}: "{name}" is optional, so its value belongs to "added"')
            elif name != "defaultManagement":
                self.check_value(f"{where}.{name}", value, attributes[name], startup.get(name))
        if self.types.derives(type_, "VYRCfdValues"):
            self.check_flags(where, one, attributes, attributes)
        elif self.types.derives(type_, CHOICE):
            self.check_flags(where, one, attributes, ("value",))
            self.check_choice(where, one.get("values", {}), startup)

    def check_added(self, where, added, attributes):
        """Nothing but optional attributes is added to the sample's objects; flags stand in their default management."""
        for name, content in added.items():
            attribute = attributes.get(name, {})
            if not attribute.get("optional") or set(content) != {"kind", "value"} or \
                    content["kind"] != attribute["kind"]:
                self.findings.append(f'{where}: "{name}" in "added" is no optional attribute of its kind')
            else:
                self.check_value(f"{where}.{name}", content["value"], attribute, None)

    def check_column(self, where, column, attribute):
        """A table column stands where the catalog names no type."""
        rows = column["column"]
        are_numbers = isinstance(rows, list) and all(value_fits(row, "real", {}) and row is not None for row in rows)
        if "type" in attribute or set(column) != {"column"} or not are_numbers:
            self.findings.append(f"{where}: no table column, which is a list of numbers in place of an object")

    def check_choice(self, where, values, startup):
        """The lists of a model's Choice are those of its start-up unless it states its own."""
        pairs = dict(pairs_of({**startup, **values}))
        value = values.get("value", startup.get("value"))
        if value not in pairs:
            self.findings.append(f'{where}: "{value}" is none of the choices')
        elif isinstance(values.get("Data"), dict) and values["Data"].get("type", "") != pairs[value]:
            self.findings.append(f'{where}: the data object of "{value}" is of type "{pairs[value]}"')

    def check_value(self, where, value, attribute, startup):
        kind = attribute["kind"]
        entries, kind = (value, attribute["of"]) if kind == "list" else ([value], kind)
        if not isinstance(entries, list):
            self.findings.append(f"{where}: not a list")
            return
        for entry in entries:
            if kind == "component":
                if isinstance(entry, dict) and "column" in entry:
                    self.check_column(where, entry, attribute)
                elif isinstance(entry, dict):
                    self.check_object(where, entry, attribute.get("type", ""), startup or {})
                else:
                    self.findings.append(f"{where}: not an object")
            elif kind == "reference":
                if self.target(entry) is None:
                    self.findings.append(f"{where}: {json.dumps(entry)} does not name one object")
            elif not value_fits(entry, kind, attribute):
                self.findings.append(f"{where}: {json.dumps(entry)} is no value of kind {kind}")

    def check_flags(self, where, one, attributes, flagged):
        """What somebody wrote carries a set flag; components come with their owner and carry none."""
        values = {**one.get("values", {}), **one.get("added", {})}
        flags = values.get("defaultManagement", {}).get("added", {})
        for flag, content in flags.items():
            name = re.sub("_(isset|isauto)$", "", flag)
            if name == flag or name not in attributes or content.get("kind") != "boolean" or \
                    not isinstance(content.get("value"), bool):
                self.findings.append(f'{where}: "{flag}" is no flag of an attribute')
        for name in values:
            written = name in flagged and attributes[name].get("kind", "component") != "component"
            if written and flags.get(name + "_isset", {}).get("value") is not True:
                self.findings.append(f'{where}: "{name}" has a value but no set flag')


# --- configurations --------------------------------------------------------------------------------------------------

def check_shapes(file, document, findings):
    if set(document) != {"configurations"} or not isinstance(document["configurations"], list):
        findings.append(f'{file}: a configuration file holds the array "configurations"')
        return
    for configuration in document["configurations"]:
        if set(configuration) != {"name", "config"} or not configuration["config"]:
            findings.append(f'{file}: a configuration holds "name" and "config", the items')
            continue
        for number, item in enumerate(configuration["config"], 1):
            where = f"{file}: {configuration['name']}, item {number}"
            if item_kind(item) is None:
                findings.append(f"{where}: no known kind of item has the keys {sorted(item)}")
            for key, value in item.items():
                if (value is not True) if key == "list" else not (isinstance(value, str) and value):
                    findings.append(f'{where}: "{key}" does nothing with {json.dumps(value)}')


def item_kind(item):
    for kind, (must, may) in ITEM_SHAPES.items():
        if must <= set(item) <= must | may:
            return kind
    return None


def parse_condition(text):
    """(path, operator, right side), or None for a text that is no condition."""
    for operator in OPERATORS:
        position = text.find(operator)
        if position > 0:
            right = text[position + len(operator):]
            return (text[:position], operator, right) if right else None
    return None


def exclude_each_other(first, second):
    """Whether two conditions, each with the path of its object, compare one path with different texts."""
    one, two = parse_condition(first[1]), parse_condition(second[1])
    return bool(one and two and first[0] == second[0] and one[0] == two[0] and one[2] != two[2]
                and {one[1], two[1]} <= {"=", "=="})


@dataclass
class Place:
    """What a path has reached: an object type with the sample objects there, a list of objects, or an attribute."""
    type: str = ""
    objects: list = field(default_factory=list)  # (model, object)
    rows: list = None                            # per owner, the (model, object) entries of a list
    attribute: dict = None
    startup: dict = field(default_factory=dict)  # of the object; of the owner for an attribute


class Walk:
    """Follows one configuration, and those it applies, on one type."""

    def __init__(self, types, models, configurations, findings):
        self.types, self.models, self.configurations, self.findings = types, models, configurations, findings
        self.reached = set()
        self.led = {}  # conditional item -> whether it has led somewhere on any type

    def start(self, name, type_):
        objects = [(m, o) for m in self.models for o in m.objects if self.types.derives(o.get("type", ""), type_)]
        self.applied = {}  # path -> per application, the conditions it hangs on
        self.visit(name, Place(type_, objects, startup=self.types.prototype(type_)), "", [], [])
        for path, ways in self.applied.items():
            if any(not any(exclude_each_other(a, b) for a in one for b in two)
                   for one, two in itertools.combinations(ways, 2)):
                self.findings.append(f'{name} on {type_}: "{path}" is configured twice; the last records stand alone')

    def visit(self, name, place, path, trail, conditions):
        where = f"{' > '.join(trail + [name])} on {place.type}"
        if name in trail:
            self.findings.append(f"{where}: cycle")
            return
        self.reached.add(name)
        defaults = set()
        for item in self.configurations[name]:
            kind = item_kind(item)
            if kind == "values":
                self.check_values_item(where, item, place)
            elif kind == "default":
                if item["path"] in defaults:
                    self.findings.append(f'{where}: two defaults for "{item["path"]}"')
                defaults.add(item["path"])
                self.check_default_item(where, item, place)
            elif kind == "choice":
                self.check_choice_item(where, item, place)
                self.check_shared_data(where, self.configurations[name], place)
            elif kind == "nested":
                self.follow_nested(where, item, place, path, trail + [name], conditions)

    def check_choice_item(self, where, item, place):
        """The lists are written one after the other, with an update in between: a Choice item for startups gives the
        declared lists, so that the update pairs them rightly. A manager takes some of the choices."""
        if not self.types.derives(place.type, CHOICE):
            self.findings.append(f"{where}: choices are for Choices")
            return
        choices, startups = tokens_of(item["choices"]), tokens_of(item.get("Startups", ""))
        for entry in (item["choices"] + "," + item.get("Startups", "")).split(","):
            if " " in entry.strip():
                self.findings.append(f'{where}: blank inside "{entry.strip()}"')
        given = startups if "Startups" in item else []
        check_choice_lists(where, choices, given, item["default"], self.types, set(self.types.uses), self.findings)
        declared = pairs_of(place.startup)
        for choice in choices:
            if choice not in dict(declared):
                self.findings.append(f'{where}: "{choice}" is no declared choice')
        has_data = any(startup for _, startup in declared)
        if given and list(zip(choices, given)) != declared:
            self.findings.append(f"{where}: choices and Startups are not those that are declared")
        elif not given and not self.types.is_managed(place.type):
            self.findings.append(f"{where}: without Startups, and {place.type} has no manager")
        elif not given and has_data and len(choices) != len(declared):
            self.findings.append(f"{where}: leaves out choices of a Choice with startups, which reports in between")

    def check_shared_data(self, where, items, place):
        """A choice that takes the data object over from one that is configured is configured itself."""
        pairs = pairs_of(place.startup)
        configured = {choice for item in items if item.get("path") == "Data"
                      for choice, _ in holding(pairs, item.get("condition", ""))}
        for choice, startup in pairs:
            if startup and choice not in configured and \
                    any(other in configured and startup == same for other, same in pairs):
                self.findings.append(f'{where}: "{choice}" would keep the data of the choice before, so configured')

    def check_values_item(self, where, item, place):
        attribute = self.types.attributes(place.type).get(item["path"], {})
        if (attribute.get("kind"), attribute.get("of")) != ("list", "string"):
            self.findings.append(f'{where}: "{item["path"]}" is no list of strings')
        for token in item["value"].split(","):
            if not token.strip() or " " in token.strip():
                self.findings.append(f'{where}: empty entry, or blank inside one, in "{item["value"]}"')

    def check_default_item(self, where, item, place):
        attribute = self.types.attributes(place.type).get(item["path"])
        if attribute is None or attribute["kind"] not in SCALARS:
            self.findings.append(f'{where}: "{item["path"]}" is no attribute that can have a default')
        elif item["type"] != attribute["kind"]:
            self.findings.append(f'{where}: "{item["path"]}" is of kind {attribute["kind"]}, not {item["type"]}')
        elif "defaultAutoKey" in item and any(item["path"] in o.get("values", {}) for _, o in place.objects):
            self.findings.append(f'{where}: "{item["path"]}" is set in a model; a second application takes that back')
        elif not text_fits(item["default"], attribute):
            self.findings.append(f'{where}: "{item["default"]}" is no {attribute["kind"]} for "{item["path"]}"')

    def follow_nested(self, where, item, place, path, trail, conditions):
        if item["config"] not in self.configurations:
            self.findings.append(f'{where}: unknown configuration "{item["config"]}"')
            return
        held = place
        if "condition" in item:
            self.check_condition(where, item["condition"], place)
            conditions = conditions + [(path, item["condition"])]
            if self.types.derives(place.type, CHOICE):
                pairs = holding(pairs_of(place.startup), item["condition"])
                held = Place(place.type, place.objects, startup={
                    **place.startup, "choices": [c for c, _ in pairs], "Startups": [s for _, s in pairs]})
        targets = [t for t in self.resolve(held, item["path"]) if t.type]
        if "condition" in item:  # may lack its target here, as long as it has one somewhere
            key = (trail[-1], item["path"])
            self.led[key] = self.led.get(key, False) or bool(targets)
        elif not targets:
            self.findings.append(f'{where}: "{item["path"]}" leads to no object')
        full = path + "/" + item["path"]
        self.applied.setdefault(full, []).append(conditions)
        for target in targets:
            self.visit(item["config"], target, full, trail, conditions)

    def check_condition(self, where, text, place):
        parsed = parse_condition(text)
        if parsed is None or " " in parsed[0] + parsed[2][:1]:
            self.findings.append(f'{where}: bad condition "{text}"')
            return
        path, operator, right = parsed
        attributes = [t.attribute for t in self.resolve(place, path) if t.attribute]
        if not attributes:
            self.findings.append(f'{where}: condition "{text}" reads no attribute')
        for attribute in attributes:
            kind = attribute["kind"]
            good = {"real": bool(re.match(r"[+-]?\.?\d", right)), "integer": bool(re.fullmatch(r"[+-]?\d+", right)),
                    "enumeration": right.isdigit() and 1 <= int(right) <= len(attribute.get("values", [])),
                    "boolean": (operator, right) == ("==", "true"),
                    "string": operator in ("==", "=", "!=")}
            if not good.get(kind, False):
                self.findings.append(f'{where}: condition "{text}" does not fit an attribute of kind {kind}')
        for target in self.resolve(place, path):
            is_value = target.attribute is not None and target.attribute["name"] == "value"
            declared = pairs_of(target.startup) if is_value else []
            if declared and right not in dict(declared):
                self.findings.append(f'{where}: condition "{text}" compares with what is no choice')

    def resolve(self, place, path):
        places = [place]
        for name in path.split("/"):
            places = [after for before in places for after in self.step(before, name)]
        return places

    def step(self, place, name):
        if place.rows is not None:
            return self.by_type([hit for row in place.rows for hit in self.find(row, name)])
        attribute = self.types.attributes(place.type).get(name) if place.type else None
        if self.types.derives(place.type, CHOICE) and (attribute is None or name == "Data"):
            return self.data_of(place, name)
        if attribute is None:
            return []
        kind, entry_kind = attribute["kind"], attribute.get("of")
        held = [(m, o["values"][name]) for m, o in place.objects if o.get("values", {}).get(name) is not None]
        if kind == "component":
            return [Place(attribute.get("type", ""), held, startup=place.startup.get(name) or {})]
        if kind == "reference":
            return self.by_type([(m, m.target(value)) for m, value in held])
        if entry_kind == "component":
            return [Place(rows=[[(m, o) for o in value] for m, value in held])]
        if entry_kind == "reference":
            return [Place(rows=[[(m, m.target(o)) for o in value] for m, value in held])]
        return [Place(attribute=attribute, startup=place.startup)]

    def data_of(self, place, name):
        """The data object of a Choice, under "Data" or the name of the choice that it belongs to."""
        types = dict.fromkeys(s for c, s in pairs_of(place.startup) if s and name in ("Data", c))
        data = [(m, o["values"]["Data"]) for m, o in place.objects if o.get("values", {}).get("Data") is not None]
        return [Place(type_, [(m, o) for m, o in data if o.get("type") == type_], startup=self.types.prototype(type_))
                for type_ in types]

    @staticmethod
    def find(row, name):
        """The entry of a list that a name means: display name before name, before type, before position."""
        entries = [(m, o) for m, o in row if o is not None]
        for key in ("alias", "name", "type"):
            for entry in entries:
                if entry[1].get(key) == name:
                    return [entry]
        return [row[int(name) - 1]] if name.isdigit() and 1 <= int(name) <= len(row) else []

    def by_type(self, objects):
        groups = {}
        for model, one in objects:
            if one is not None:
                groups.setdefault(one.get("type", ""), []).append((model, one))
        return [Place(type_, group, startup=self.types.prototype(type_)) for type_, group in groups.items()]


def check_configurations(documents, types, models, findings):
    names = {}
    for main in (MAIN_FILE, SLOPE_FILE):
        configurations = {}
        for file in [main] + OTHER_FILES:
            if CONFIG_FOLDER + file not in documents:
                findings.append(f"{file}: missing")
                continue
            for configuration in documents[CONFIG_FOLDER + file].get("configurations", []):
                name = configuration.get("name", "")
                if name in configurations:
                    findings.append(f'{file}: "{name}" is defined before; this definition is never used')
                configurations.setdefault(name, configuration.get("config", []))
        names[main] = set(configurations)
        walk = Walk(types, models, configurations, findings)
        for type_, meant in types.meant.items():
            for name in meant:
                if name in configurations:
                    walk.start(name, type_)
                else:
                    findings.append(f'{type_}: unknown configuration "{name}"')
        for (name, path), led in walk.led.items():
            if not led:
                findings.append(f'{name}: "{path}" leads to no object on any type')
        for name in sorted(set(configurations) - walk.reached):
            findings.append(f'{main}: "{name}" is meant for no type and applied by no other')
    if names[MAIN_FILE] != names[SLOPE_FILE]:
        findings.append(f"{MAIN_FILE} and {SLOPE_FILE} define different names: "
                        f"{sorted(names[MAIN_FILE] ^ names[SLOPE_FILE])}")


def check(documents):
    """All findings about the parsed files, each once."""
    findings = []
    for file, document in documents.items():
        if file.startswith(CONFIG_FOLDER):
            check_shapes(file, document, findings)
    types = Types(documents, findings)
    models = [Model(file, document, types, findings)
              for file, document in documents.items() if file.startswith("models/")]
    if not models:
        findings.append("no models")
    check_configurations(documents, types, models, findings)
    return list(dict.fromkeys(findings))


# --- proof that the check can fail -----------------------------------------------------------------------------------

def configuration_of(documents, name):
    for file, document in documents.items():
        for configuration in document.get("configurations", []) if file.startswith(CONFIG_FOLDER) else []:
            if configuration["name"] == name and SLOPE_FILE not in file:
                return configuration
    raise KeyError(name)


def item_of(documents, name, **keys):
    return next(i for i in configuration_of(documents, name)["config"] if keys.items() <= i.items())


def type_of(documents, name):
    return next(t for f, d in documents.items() if f.startswith("catalogs/") for t in d["types"] if t["name"] == name)


def attribute_of(documents, type_, name):
    return next(a for a in type_of(documents, type_)["attributes"] if a["name"] == name)


def declared(documents, name):
    return type_of(documents, name)["startup"]


def choice_item(documents, name):
    return next(item for item in configuration_of(documents, name)["config"] if "choices" in item)


def column_of(documents):
    fan = object_of(documents, "internalFlow", "Fan.1")
    return fan["values"]["operation"]["values"]["Data"]["values"]["pressureRises"]


def object_of(documents, model, name):
    return next(o for o in documents[f"models/{model}.model.json"]["objects"] if o["name"] == name)


BREAKS = [  # what is broken, what the finding must say
    (lambda d: d.pop(CONFIG_FOLDER + "conditionsConfig_Phase.json"), "conditionsConfig_Phase.json: missing"),
    (lambda d: item_of(d, "externalFlow", path="iterations").update(default="many"), "is no integer"),
    (lambda d: item_of(d, "steadyTimeMarching", path="cflNumber").update(default="ten"), "is no real"),
    (lambda d: item_of(d, "steadyTimeMarching", path="cflNumber").update(type="integer"), "is of kind real"),
    (lambda d: item_of(d, "externalFlow", path="iterations").update(path="iteration"), "can have a default"),
    (lambda d: item_of(d, "externalFlow", path="iterations").update(path="output/screenInterval"),
     "can have a default"),
    (lambda d: item_of(d, "externalFlow", path="iterations").update(defualt="1"), "no known kind of item"),
    (lambda d: item_of(d, "externalFlow", path="reportedCoefficients").update(list=False), "does nothing"),
    (lambda d: item_of(d, "externalFlow", path="reportedCoefficients").update(value="LIFT,,DRAG"), "empty entry"),
    (lambda d: item_of(d, "externalFlow", path="reportedCoefficients").update(path="caseName"), "no list of strings"),
    (lambda d: item_of(d, "externalFlow", path="fluid").update(config="airPropertys"), "unknown configuration"),
    (lambda d: item_of(d, "externalFlow", path="fluid").update(path="fluids"), "leads to no object"),
    (lambda d: item_of(d, "externalFlow", path="fluid").update(path="caseName"), "leads to no object"),
    (lambda d: item_of(d, "externalFlow", path="fluid").update(path="turbulence"), "can have a default"),
    (lambda d: item_of(d, "externalFlow", condition="dimension==3").update(condition="dimension"), "bad condition"),
    (lambda d: item_of(d, "externalFlow", condition="dimension==3").update(condition="dimension == 3"),
     "bad condition"),
    (lambda d: item_of(d, "externalFlow", condition="dimension==3").update(condition="dimension==flat"),
     "does not fit"),
    (lambda d: item_of(d, "externalFlow", condition="dimension==3").update(condition="dimensions==3"),
     "reads no attribute"),
    (lambda d: item_of(d, "externalFlow", condition="dimension==3").update(condition="caseName>a"), "does not fit"),
    (lambda d: item_of(d, "externalFlow", condition="dimension==3").pop("condition"), "configured twice"),
    (lambda d: configuration_of(d, "externalFlow")["config"].append({"path": "fluid", "config": "airProperties"}),
     "configured twice"),
    (lambda d: item_of(d, "airViscosity", config="sutherlandAir").update(config="airViscosity"), "cycle"),
    (lambda d: configuration_of(d, "inlet").update(name="outlet"), "is defined before"),
    (lambda d: configuration_of(d, "outlet").update(name="outflow"), 'OutletCondition: unknown configuration "outlet"'),
    (lambda d: configuration_of(d, "inlet")["config"].append({"path": "massFlowRate", "type": "real", "default": "1"})
     or type_of(d, "InletCondition").update(configurations=[]), "meant for no type"),
    (lambda d: configuration_of(d, "flowConvergence").update(name="convergence"), "define different names"),
    (lambda d: attribute_of(d, "FlowSolver", "unitSystem").update(default="CGS"), "is no value of kind enumeration"),
    (lambda d: type_of(d, "FluidModel")["attributes"][1].update(kind="float"), "unknown key or kind"),
    (lambda d: type_of(d, "FluidModel")["attributes"][1].update(name="gas/constant"), "bad attribute name"),
    (lambda d: type_of(d, "FluidModel").update(base="VYRCfdConfigItem"), "no default management"),
    (lambda d: type_of(d, "FluidModel").update(base="FreestreamConditions"), "is not known here"),
    (lambda d: type_of(d, "CflAdaptation")["attributes"].append(
        {"name": "marching", "kind": "component", "type": "TimeMarching"}), "contains itself"),
    (lambda d: type_of(d, "InternalFlowSolver")["startup"]["fluid"].update(viscosities=1), "start-up of unknown"),
    (lambda d: type_of(d, "ForceMonitor")["attributes"].append({"name": "surfaces", "kind": "string"}),
     "declared twice"),
    (lambda d: object_of(d, "externalFlow", "Solver.1")["values"].update(iterations=1.5), "no value of kind integer"),
    (lambda d: object_of(d, "externalFlow", "Solver.1")["values"].update(iteration=1), "has no attribute"),
    (lambda d: object_of(d, "externalFlow", "Solver.1")["values"].update(dimension=2), "no set flag"),
    (lambda d: object_of(d, "externalFlow", "Solver.1")["values"].update(mesh={"ref": 70}), "does not name one object"),
    (lambda d: object_of(d, "externalFlow", "Solver.1")["values"]["freestream"]["values"].update(freestreamMach="fast"),
     "no value of kind real"),
    (lambda d: object_of(d, "externalFlow", "Solver.1")["values"]["defaultManagement"]["added"].update(
        iteration_isset={"kind": "boolean", "value": True}), "is no flag"),
    (lambda d: object_of(d, "externalFlow", "FarField.1").update(type="InletCondition"), "not in the catalogs"),
    (lambda d: object_of(d, "externalFlow", "Mesh.1").update(id=1), "ids are numbers"),
    (lambda d: object_of(d, "internalFlow", "Wall.2").update(alias="Heater"), "leads to no object on any type"),
    # defaults that come back otherwise from their records
    (lambda d: item_of(d, "refinementZone", path="radius").update(default="150 mm"), "is no real"),
    (lambda d: configuration_of(d, "multigridAcceleration")["config"].append(
        {"path": "multigridCycle", "type": "enumeration", "default": "W_CYCLE"}), "is no enumeration"),
    (lambda d: configuration_of(d, "cflAdaptation")["config"].append(
        {"path": "enabled", "type": "boolean", "default": "true"}), "is no boolean"),
    (lambda d: item_of(d, "referenceValues", path="referenceArea").update(defaultAutoKey="fromGeometry"),
     "a second application takes that back"),
    # units
    (lambda d: attribute_of(d, "RefinementZone", "radius").update(unit=""), '"unit" is a text, and for reals'),
    (lambda d: attribute_of(d, "RefinementZone", "radius").update(unit=1), '"unit" is a text, and for reals'),
    (lambda d: attribute_of(d, "Multigrid", "preSmoothing").update(unit="m"), '"unit" is a text, and for reals'),
    (lambda d: attribute_of(d, "RefinementZone", "cellSize").pop("unit"), '"20 mm" is no value of kind real'),
    (lambda d: attribute_of(d, "RefinementZone", "cellSize").update(default="fine"), '"fine" is no value of kind real'),
    (lambda d: attribute_of(d, "FlowMesh", "boxLengths").update(default=["1 m", "m"]), "is no value of kind list"),
    (lambda d: object_of(d, "externalFlow", "Mesh.1")["values"]["zones"][0]["values"].update(radius="mm 100"),
     "no value of kind real"),
    (lambda d: object_of(d, "externalFlow", "Mesh.1")["values"].update(growthRate="1.2 m"), "no value of kind real"),
    # optional attributes
    (lambda d: attribute_of(d, "FlowSolver", "remark").update(optional=False), '"optional" is true'),
    (lambda d: attribute_of(d, "FlowSolver", "fluid").update(optional=True), '"optional" is true'),
    (lambda d: attribute_of(d, "FlowSolver", "remark").pop("optional"), '"remark" in "added" is no optional'),
    (lambda d: attribute_of(d, "FlowSolver", "remark").update(kind="real"), '"remark" in "added" is no optional'),
    (lambda d: object_of(d, "externalFlow", "Symmetry.1")["values"].update(comment="x"), "is optional, so its value"),
    (lambda d: object_of(d, "externalFlow", "Symmetry.1")["added"].update(note={"kind": "string", "value": "x"}),
     '"note" in "added" is no optional'),
    (lambda d: object_of(d, "externalFlow", "Symmetry.1")["added"]["comment"].update(value=1),
     "no value of kind string"),
    (lambda d: object_of(d, "externalFlow", "Symmetry.1")["values"]["defaultManagement"]["added"].pop("comment_isset"),
     '"comment" has a value but no set flag'),
    (lambda d: object_of(d, "internalFlow", "Solver.1")["added"]["solutionMesh"].update(value={"ref": 70}),
     "does not name one object"),
    # table columns
    (lambda d: column_of(d).update(column=[1.0, "2"]), "no table column"),
    (lambda d: column_of(d).update(column=1.0), "no table column"),
    (lambda d: column_of(d).update(type="FanCurve"), "no table column"),
    (lambda d: attribute_of(d, "FanCurve", "pressureRises").update(type="FanCurve"), "no table column"),
    # lists of every kind
    (lambda d: attribute_of(d, "MeshDeformation", "fixedDirections").update(default=[0, 1, 0]),
     "is no value of kind list"),
    (lambda d: object_of(d, "internalFlow", "Solver.1")["values"].update(surfaceAverages=["MASS"]),
     "no value of kind enumeration"),
    (lambda d: attribute_of(d, "FlowSolver", "surfaceAverages").pop("values"), "nothing else, has"),
    # Choices in catalogs
    (lambda d: declared(d, "TurbulenceModelChoice")["choices"].pop(), "7 choices and 8 Startups"),
    (lambda d: declared(d, "TurbulenceModelChoice")["choices"].__setitem__(1, "SST"), 'choice "SST" stands twice'),
    (lambda d: declared(d, "TurbulenceModelChoice")["choices"].__setitem__(1, "S A"), 'choice "S A" is empty, or'),
    (lambda d: declared(d, "TransitionModelChoice")["choices"].append(""), 'choice "" is empty, or'),
    (lambda d: declared(d, "TransitionModelChoice")["choices"].append("A,B"), 'choice "A,B" is empty, or'),
    (lambda d: declared(d, "TransitionModelChoice").update(Startups=["", "", ""]), "no choice has data"),
    (lambda d: declared(d, "TransitionModelChoice").update(value="none"), '"none" is none of the choices'),
    (lambda d: declared(d, "TransitionModelChoice").pop("display"), "without a display text"),
    (lambda d: declared(d, "TransitionModelChoice").pop("choices"), "turbulence.transition: a Choice that declares no"),
    (lambda d: declared(d, "TransitionModelChoice").update(choices="NONE"), "is no value of kind list"),
    (lambda d: declared(d, "TransitionModelChoice").update(choices=[1]), "is no value of kind list"),
    (lambda d: declared(d, "TransitionModelChoice").update(value=1), "is no value of kind string"),
    (lambda d: declared(d, "TurbulenceModelChoice")["Startups"].__setitem__(1, "SpalartAlmaras"),
     'startup "SpalartAlmaras" is no declared type'),
    (lambda d: declared(d, "TurbulenceModelChoice")["Startups"].__setitem__(1, "InletEnergy"),
     'startup "InletEnergy" is no declared type'),
    (lambda d: declared(d, "TurbulenceModelChoice")["Startups"].__setitem__(1, "VYRCfdConfigItem"),
     "so its data cannot be configured"),
    (lambda d: type_of(d, "FluidModel").pop("startup"), "FluidModel.viscosity: a Choice that declares no choices"),
    (lambda d: type_of(d, "InternalFlowSolver")["startup"]["fluid"]["viscosity"].update(value="WATER"),
     'InternalFlowSolver.fluid.viscosity: "WATER" is none of the choices'),
    (lambda d: type_of(d, "TransitionModelChoice").update(manager=False), '"manager" is true'),
    (lambda d: type_of(d, "FluidModel").update(manager=True), '"manager" is true'),
    # Choices in models
    (lambda d: object_of(d, "internalFlow", "Solver.1")["values"]["linearSolver"]["values"].update(value="GMRES"),
     '"GMRES" is none of the choices'),
    (lambda d: object_of(d, "internalFlow", "Solver.1")["values"]["energy"]["values"].update(value="adiabatic"),
     'the data object of "adiabatic" is of type "EnergyEquation"'),
    (lambda d: object_of(d, "internalFlow", "Solver.1")["values"]["energy"]["values"]["Data"].pop("type"),
     'type "" is not in the catalogs'),
    (lambda d: object_of(d, "internalFlow", "Solver.1")["values"]["energy"]["values"].pop("defaultManagement"),
     '"value" has a value but no set flag'),
    (lambda d: object_of(d, "internalFlow", "Solver.1")["values"]["energy"]["values"]["Data"]["values"].update(
        referenceTemperature=300.0), "no set flag"),
    # Choice items
    (lambda d: choice_item(d, "turbulenceModel").update(choices="NONE, SA"), "2 choices and 8 Startups"),
    (lambda d: choice_item(d, "turbulenceModel").update(Startups="NONE, SpalartAllmaras"), "8 choices and 2 Startups"),
    (lambda d: choice_item(d, "energyEquation").update(choices="off, adiabatic, adiabatic"), "stands twice"),
    (lambda d: choice_item(d, "energyEquation").update(choices="off, adiabatic, heatTransfer,"), 'choice "" is empty'),
    (lambda d: choice_item(d, "energyEquation").update(choices="off, adiabatic, heat Transfer"),
     'blank inside "heat Transfer"'),
    (lambda d: choice_item(d, "energyEquation").update(Startups=", EnergyEquation, Heat Transfer"),
     'blank inside "Heat Transfer"'),
    (lambda d: choice_item(d, "energyEquation").update(Startups=", EnergyEquation, HeatTransport"),
     'startup "HeatTransport" is no declared type'),
    (lambda d: choice_item(d, "energyEquation").update(Startups=", HeatTransfer, EnergyEquation"),
     "are not those that are declared"),
    (lambda d: choice_item(d, "energyEquation").update(choices="off, heatTransfer, adiabatic"),
     "are not those that are declared"),
    (lambda d: choice_item(d, "energyEquation").update(choices="none, adiabatic, heatTransfer"),
     '"none" is no declared choice'),
    (lambda d: choice_item(d, "energyEquation").update(default="on"), '"on" is none of the choices'),
    (lambda d: choice_item(d, "energyEquation").pop("default"), "no known kind of item"),
    (lambda d: choice_item(d, "energyEquation").update(path="energy"), "no known kind of item"),
    (lambda d: choice_item(d, "energyEquation").update(display=""), "does nothing"),
    (lambda d: choice_item(d, "energyEquation").pop("Startups"), "and VYRCfdChoice has no manager"),
    (lambda d: type_of(d, "TransitionModelChoice").pop("manager"), "and TransitionModelChoice has no manager"),
    (lambda d: choice_item(d, "transportTransition").update(choices="NONE, LM, SM"), '"SM" is no declared choice'),
    (lambda d: choice_item(d, "implicitLinearSolver").update(choices="FGMRES, BCGSTAB") or
     choice_item(d, "implicitLinearSolver").pop("Startups"), "which reports in between"),
    (lambda d: configuration_of(d, "adiabaticEnergy")["config"].append({"choices": "a, b", "default": "a"}),
     "choices are for Choices"),
    (lambda d: item_of(d, "energyEquation", config="heatTransfer").update(condition="value==heat"),
     "compares with what is no choice"),
    (lambda d: item_of(d, "externalFlow", condition="turbulence/model/value!=NONE").update(
        condition="turbulence/model/value!=LAMINAR"), "compares with what is no choice"),
    (lambda d: item_of(d, "energyEquation", config="heatTransfer").update(path="data"), "leads to no object on any"),
    (lambda d: item_of(d, "energyEquation", config="heatTransfer").update(path="adiabatic"),
     "leads to no object on any"),
    (lambda d: item_of(d, "energyEquation", config="heatTransfer").update(condition="value==adiabatic"),
     "configured twice"),
    (lambda d: configuration_of(d, "solidMaterial")["config"].remove(
        item_of(d, "solidMaterial", condition="value==SILICON")), "would keep the data of the choice before"),
    (lambda d: item_of(d, "turbulenceModel", condition="value==SA").update(config="shearStressTransport"),
     '"a1" is no attribute that can have a default'),
    (lambda d: item_of(d, "energyEquation", config="heatTransfer").pop("condition"),
     '"referenceTemperature" is no attribute that can have a default'),
    (lambda d: item_of(d, "energyEquation", config="heatTransfer").update(condition="value!=adiabatic") or
     declared(d, "FlowSolver")["energy"]["Startups"].__setitem__(0, "EnergyEquation"),
     '"referenceTemperature" is no attribute that can have a default'),
]


def prove(documents):
    unseen = 0
    for number, (damage, expected) in enumerate(BREAKS, 1):
        broken = copy.deepcopy(documents)
        damage(broken)
        findings = check(broken)
        seen = any(expected in finding for finding in findings)
        unseen += not seen
        print(f"{'seen  ' if seen else 'UNSEEN'} {number:2} {expected}")
        if not seen:
            print("\n".join("          " + finding for finding in findings))
    for text in ('{"a": 1, "a": 2}', '{"a": NaN}', '{"a": 1,}'):
        try:
            json.loads(text, object_pairs_hook=unique_keys, parse_constant=no_constant)
            unseen += 1
            print(f"UNSEEN    {text}")
        except ValueError:
            print(f"seen      {text}")
    return unseen


def main(arguments):
    if arguments not in ([], ["--prove"]):
        print(__doc__, file=sys.stderr)
        return 2
    findings = []
    documents = read_files(Path(__file__).resolve().parent, findings)
    findings = findings or check(documents)  # what cannot be read would only be missed everywhere else
    for finding in findings:
        print(finding)
    if findings:
        return 1
    if arguments:
        return 1 if prove(documents) else 0
    print(f"{len(documents)} files, no findings")
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
