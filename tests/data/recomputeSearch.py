#!/usr/bin/env python3
"""Recomputes what searches find and compares the numbers with those of kivzp-cli.

    recomputeSearch.py KIVZP_CLI DATABASE.xml[.gz]...

Takes the databases in KIVZP_REAL_DATA, too, when it is set. Written after docs/search.md alone, with another way
to read numbers and queries, straight on the XML.
"""

import gzip
import json
import math
import os
import re
import shutil
import subprocess
import sys
import tempfile
import unicodedata
import xml.etree.ElementTree as xml

QUERIES = """
rezystor 0603
KONDENSATOR 100nF
"smd 0603"
case:0603
case:=0603
case:"" value:""
case:0603|0805|1206
!case:0603|0805
kondensator|cewka !status:szary
status:green
!status:zielony|niebieski
status:=violet price:<1
value:4k7
value:4,7 kΩ
4k7
100 nF 50V
value:1k..10k case:0603
value:..10 case:0402
value:10uF.. voltage:>=25V
value:4k7±5%
value:100n+-20%
10k
1210
power:1/4
power:1/4W
power:>=1W
power:62.5mW
power:0.2..1/3W
1/10W
price:<0,10
price:1..2 stock:>1000
price:> 10
stock:0
stock:""
average:>=100
tolerance:<=1%
tolerance:±1
tolerance:"1%"
voltage:3,3V|3.3
voltage:>100 V current:<1A
current:300mA
manufacturer:texas
maker:="Texas Instruments"
producent:"vishay dale"|yageo
supplier:rs part:rc0603
group:rezystory power:..100mW
grupa:kondensatory opis:x7r
name:lm358|tl072
ktm:317111 !value:1k..100k
description:"surface mount"
opis:zlacze
active:no
active:yes !approved:yes
edited:t
unit:="pcs."
added:2021
library:r_us footprint:0603
cpv:31711
comment:oporniki
other:""
R47
0R1
!!
"0.100
value:>1M value:<10M
voltage:6V|10V|16V status:grey
"""

NAMES = {
    "name": "name nazwa", "ktm": "ktm index indeks", "part": "part partno pn numer", "value": "value wartosc",
    "case": "case package obudowa", "description": "description desc opis", "power": "power moc",
    "voltage": "voltage napiecie", "current": "current prad", "tolerance": "tolerance tolerancja",
    "other": "other inne", "manufacturer": "manufacturer maker producent", "supplier": "supplier dostawca",
    "group": "group grupa", "cpv": "cpv", "comment": "comment komentarz", "status": "status",
    "library": "library biblioteka", "footprint": "footprint", "price": "price cena", "average": "average srednia",
    "stock": "stock warehouse stan magazyn", "unit": "unit jednostka", "active": "active aktywny", "rohs": "rohs",
    "checked": "checked sprawdzony", "approved": "approved zatwierdzony", "edited": "edited edytowany",
    "added": "added dodany"}
FIELDS = {name: field for field, names in NAMES.items() for name in names.split()}
MEASURES = {"value", "power", "voltage", "current", "tolerance"}
NUMBERS = {"price", "average", "stock"}
BY_NAME_ONLY = NUMBERS | {"unit", "active", "rohs", "checked", "approved", "edited", "added"}
ANY_WORD = [field for field in NAMES if field not in BY_NAME_ONLY]
COLOURS = {"green": "zielony", "grey": "szary", "gray": "szary", "blue": "niebieski", "violet": "fioletowy",
           "purple": "fioletowy"}
YES_NO = {"tak": "tak", "nie": "nie", "yes": "tak", "no": "nie"}
ELEMENTS = {"name": "d_name", "ktm": "d_ktm", "value": "d_value", "case": "d_case", "description": "d_description",
            "power": "d_power", "voltage": "d_voltage", "current": "d_current", "tolerance": "d_tolerance",
            "other": "d_otherParameters", "cpv": "d_cpv", "comment": "information/comment",
            "status": "information/status", "library": "d_libraryRef", "price": "d_price",
            "average": "d_averagePrice", "stock": "d_inWarehouse", "unit": "d_unit", "active": "d_active",
            "rohs": "information/rohs_required", "checked": "information/checked",
            "approved": "information/approved", "edited": "information/edited", "added": "information/added"}

LETTERS = str.maketrans({"ł": "l", "ø": "o", "đ": "d", "ı": "i", "æ": "ae", "œ": "oe", "×": "x", "μ": "u", "ω": "ohm",
                         "⁄": "/", **{dash: "-" for dash in "‐‑‒–—−"}})


def fold(text):
    text = unicodedata.normalize("NFKD", text).casefold().translate(LETTERS)
    return " ".join("".join(c for c in text if unicodedata.category(c) not in ("Mn", "Me")).split())


# --- Numbers ---

PREFIX = {"p": 1e-12, "n": 1e-9, "u": 1e-6, "µ": 1e-6, "μ": 1e-6, "m": 1e-3, "k": 1e3, "K": 1e3, "M": 1e6, "G": 1e9,
          "T": 1e12}
UNITS = {"ohms": "ohm", "ohm": "ohm", "r": "ohm", "ω": "ohm", "farad": "F", "f": "F", "h": "H", "hz": "Hz", "vdc": "V",
         "vac": "V", "v": "V", "ah": "Ah", "a": "A", "w": "W", "%": "%", "pln": "zl", "zł": "zl"}
UNIT = "(?i:ohms?|[Ωω\u2126]|farad|hz|vdc|vac|ah|pln|zł|[rfhvaw%])"
WHOLE = r"\d+(?:\s\d{3}(?!\d))*"
NUMBER = re.compile(rf"""\s*(?:(?:±|\+/-)\s*)?(?P<sign>[-+−])?
    (?: (?P<numerator>{WHOLE})/(?P<denominator>\d+)(?=\s*[wW](?!\w))
      | (?P<first>{WHOLE})?(?P<letter>[pnuµμmkKMGT]|(?i:[rva]))(?P<decimals>\d+)
      | (?P<point>(?:{WHOLE})?\.\d+|{WHOLE},\d+)
      | (?P<whole>{WHOLE}) )
    (?P<tail>\s*(?:(?P<prefix>[pnuµμmkKMGT])(?P<prefixed>{UNIT})?|(?P<unit>{UNIT}))(?!\w))?""", re.VERBOSE)


class Quantity:
    def __init__(self, found):
        digits = lambda name: re.sub(r"\s", "", found[name] or "")
        factor, unit = 1, None
        self.bare = False
        if found["numerator"]:
            value = float(digits("numerator")) / float(digits("denominator"))
        elif found["letter"]:
            value = float((digits("first") or "0") + "." + digits("decimals"))
            factor = PREFIX.get(found["letter"], 1)
            if found["letter"] not in PREFIX:
                unit = UNITS[found["letter"].lower()]
        elif found["point"]:
            value = float(digits("point").replace(",", "."))
        else:
            value = float(digits("whole"))
            self.bare = not found["tail"]
        tail = found["prefixed"] or found["unit"]
        if tail:
            unit = UNITS[tail.replace("\u2126", "ω").lower()]
        if found["prefix"]:
            factor = 1e6 if found["prefix"] == "m" and unit == "Hz" else PREFIX[found["prefix"]]
        self.value = value * factor * (-1 if found["sign"] in ("-", "−") else 1)
        self.unit = unit

    def fits(self, other):
        return not self.unit or not other.unit or self.unit == other.unit

    def equals(self, other):
        return math.isclose(self.value, other.value, rel_tol=1e-12)


def read_number(text, whole=True):
    """The number that the text is, or, when not the whole, that it begins with."""
    found = NUMBER.match(text)
    if not found:
        return None
    # Only R may lead, and a prefix or unit in the place of the point leaves no room for another prefix.
    if found["letter"] and not found["first"] and found["letter"] not in "rR":
        return None
    rest = text[found.end():]
    if rest.strip() and (whole or not (rest[0].isspace() or rest[0] in "/,;(±[")):
        return None
    number = Quantity(found)
    if number.bare and re.match(r"0\d", found["whole"]):
        return None
    return number


def as_written(field, text):
    return text + "W" if field == "power" and re.search(r"\d/\d", text) and text[-1].isdigit() else text


# --- Materials ---

def texts_of(material, group):
    texts = {}
    for field, path in ELEMENTS.items():
        texts[field] = [material.findtext(path) or ""]
    for field, path in (("manufacturer", "manufacturers/manufacturer"), ("supplier", "suppliers/supplier")):
        texts[field] = [s.findtext(part) or "" for s in material.findall(path) for part in ("name", "description")]
    texts["part"] = [number.text or "" for number in material.iter("part_no")]
    texts["footprint"] = [material.findtext("d_footprintRef" + n) or "" for n in ("", "2", "3", "4", "5", "6")]
    texts["group"] = [group]
    return texts


class Material:
    def __init__(self, element, group):
        texts = texts_of(element, group)
        self.numbers = {field: read_number(as_written(field, texts[field][0]), False)
                        for field in MEASURES | NUMBERS}
        self.texts = {field: [t for t in map(fold, all_of) if t] for field, all_of in texts.items()}


def materials_of(path):
    opened = gzip.open(path) if path.endswith(".gz") else open(path, "rb")
    with opened as file:
        root = xml.parse(file).getroot()
    return [Material(m, group.get("name") or "") for group in root.iter("d_group") for m in group.findall("material")]


# --- Queries: each becomes a list of (negated, [condition, ...]), a condition being a function of a material ---

TOKEN = re.compile(r'(?P<gap>[\s|]*)(?P<no>!(?!!))?(?:(?P<field>[^\W\d_]+):(?!//))?(?P<value>(?:"[^"]*"?|[^\s|"])*)')
SIGN = re.compile(r"(>=|<=|>|<|=)?(.*)", re.DOTALL)
COMPARED = {">=": lambda a, b: a.value > b.value or a.equals(b), "<=": lambda a, b: a.value < b.value or a.equals(b),
            ">": lambda a, b: a.value > b.value and not a.equals(b),
            "<": lambda a, b: a.value < b.value and not a.equals(b), "=": Quantity.equals, "": Quantity.equals}


def contains(texts, words):
    return any(word in text for text in texts for word in words)


def word_condition(value, quoted):
    words = [fold(value)]
    if not quoted and re.search(r"\d\s+\S", value):
        words.append(fold(re.sub(r"\s", "", value)))
    number = None if quoted else read_number(value)

    def meets(material):
        if any(contains(material.texts[field], words) for field in ANY_WORD):
            return True
        return number is not None and any(
            material.numbers[field] and number.fits(material.numbers[field])
            and number.equals(material.numbers[field]) for field in MEASURES)
    return meets


def range_of(field, value):
    """The first and last number, either None when it is left open; or nothing when the value is no range."""
    if ".." in value:
        return tuple(read_number(as_written(field, part)) if part.strip() else None for part in value.split("..", 1))
    parts = re.split(r"(?<=.)(?:±|\+/-|\+-)", value, maxsplit=1)
    if len(parts) == 2:
        middle, percent = read_number(parts[0]), read_number(parts[1])
        low, high = read_number(parts[0]), read_number(parts[0])
        low.value -= abs(middle.value) * percent.value / 100
        high.value += abs(middle.value) * percent.value / 100
        return low, high
    return None


def field_condition(field, value, quoted, sign):
    folded = fold(value)
    if not folded:
        return lambda material: not material.texts[field]
    limits = range_of(field, value) if field in MEASURES | NUMBERS and not quoted and not sign else None
    if limits:
        def between(material):
            number = material.numbers[field]
            return number is not None and all(
                limit is None or (number.fits(limit) and COMPARED[relation](number, limit))
                for limit, relation in zip(limits, (">=", "<=")))
        return between
    wanted = read_number(as_written(field, value)) if field in MEASURES | NUMBERS else None
    words = [folded]
    if field == "status" and folded in COLOURS:
        words.append(COLOURS[folded])
    if field in ("active", "rohs", "checked", "approved", "edited"):
        words += [stored for typed, stored in YES_NO.items() if typed.startswith(folded)]

    def meets(material):
        number = material.numbers.get(field)
        if wanted and (number or sign in (">", ">=", "<", "<=")):
            return number is not None and number.fits(wanted) and COMPARED[sign](number, wanted)
        if field in NUMBERS and number:
            return False
        texts = material.texts[field]
        return any(t in words for t in texts) if sign == "=" else contains(texts, words)
    return meets


def conditions_of(query):
    tokens = []
    for found in TOKEN.finditer(query):
        if not (found["value"] or found["field"]):
            continue
        raw, no, bar = found["value"], bool(found["no"]), "|" in found["gap"] and bool(tokens)
        before, quote, _ = raw.partition('"')
        field = found["field"] or (tokens[-1]["field"] if bar else None)
        if bar and no:
            raw, no = "!" + raw, False
        signed = SIGN.match(before if quote else raw)
        sign = signed[1] or "" if field and (not quote or not signed[2]) else ""
        value = raw.replace('"', "")[len(sign):]
        tokens.append({"field": field, "own": bool(found["field"]), "value": value, "sign": sign,
                       "quoted": bool(quote), "no": tokens[-1]["no"] if bar else no, "bar": bar})
    # What a blank parts that belongs together.
    joined = []
    for token in tokens:
        last = joined[-1] if joined else None
        plain = last and not (token["own"] or token["quoted"] or token["bar"] or token["no"] or last["quoted"])
        if plain and last["sign"] and not last["value"]:
            last["value"] = token["value"]
        elif (plain and (number := read_number(last["value"])) and not number.unit
              and not token["value"][0].isdigit() and (both := read_number(last["value"] + token["value"]))
              and both.unit):
            last["value"] += ("" if last["field"] else " ") + token["value"]
        else:
            joined.append(token)
    groups = []
    for token in joined:
        if token["field"] and not token["value"] and not token["quoted"]:
            continue
        field = FIELDS[fold(token["field"])] if token["field"] else None
        made = (field_condition(field, token["value"], token["quoted"], token["sign"]) if field
                else word_condition(token["value"], token["quoted"]))
        if token["bar"]:
            groups[-1][1].append(made)
        else:
            groups.append((token["no"], [made]))
    return groups


def count(materials, query):
    groups = conditions_of(query)
    return sum(all(any(meets(m) for meets in all_of) != negated for negated, all_of in groups) for m in materials)


def found_by(cli, database, query):
    done = subprocess.run([cli, "find", "--json", "-n", "1", "-d", database, "--", query], capture_output=True,
                          text=True)
    return json.loads(done.stdout)["total"] if done.returncode in (0, 1) and done.stdout else done.stderr.strip()


def main():
    cli, *databases = sys.argv[1:]
    real = os.environ.get("KIVZP_REAL_DATA")
    if real:
        databases += [os.path.join(real, name) for name in ("db_real.xml.gz", "db_small.xml", "db_service.xml")]
    faults, compared, some = 0, 0, 0
    with tempfile.TemporaryDirectory() as folder:
        # The program finds its schemas beside itself.
        source = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
        shutil.copytree(os.path.join(source, "_validator"), os.path.join(folder, "_validator"))
        os.mkdir(os.path.join(folder, "_config"))
        cli = shutil.copy(cli, folder)
        for path in databases:
            materials = materials_of(path)
            if path.endswith(".gz"):
                plain = os.path.join(folder, os.path.basename(path)[:-3])
                with gzip.open(path) as packed, open(plain, "wb") as unpacked:
                    unpacked.write(packed.read())
                path = plain
            for query in QUERIES.strip().splitlines():
                expected, found = count(materials, query), found_by(cli, path, query)
                compared += 1
                some += expected > 0
                if expected != found:
                    faults += 1
                    print(f"{os.path.basename(path)}: {query}: {found}, recomputed {expected}")
    print(f"{compared} searches compared, {some} of them find something, {faults} differ")
    return faults > 0 or some == 0


if __name__ == "__main__":
    sys.exit(main())
