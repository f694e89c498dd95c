#!/usr/bin/env python3
"""Makes the sample data that ships with the program, and large databases for benchmarks.

Without arguments the whole sample set is written under the project's root: the configuration, four
material databases, the firm register, the BOM lists with their set file, and one order. With
"--size N FILE" one material database of N materials is written instead.

What is real: makers, part numbers, values, cases, ratings, CPV codes, addresses of datasheets.
What is made up here: prices, stock, dates, statuses, persons, targets, the companies that have an
example.com address, and the boards.

Every run writes the same bytes: nothing depends on the date, the machine or unseeded chance.
"""

import argparse
import contextlib
import os
import random
import sys
from dataclasses import dataclass, field
from pathlib import Path

XSI = "http://www.w3.org/2001/XMLSchema-instance"
TODAY = "24.11.2026"
ORDER_DATE = "16.11.2026"


# --- Writing -------------------------------------------------------------------------------------

TEXT_ESCAPES = {ord("&"): "&amp;", ord("<"): "&lt;", ord(">"): "&gt;", ord('"'): "&quot;"}
ATTRIBUTE_ESCAPES = TEXT_ESCAPES | {ord("\t"): "&#9;", ord("\n"): "&#10;", ord("\r"): "&#13;"}


class XmlWriter:
    """Writes XML byte for byte as the program saves it.

    So a sample file that is opened and saved unchanged stays the same, and shows no difference
    under version control: four spaces a level, <x></x> for an empty text, <x/> for an element
    that holds nothing at all.
    """

    def __init__(self, out):
        self._write = out.write
        self._open = []
        self._start_is_unfinished = False
        self._write('<?xml version="1.0" encoding="UTF-8"?>')

    def _new_line(self):
        if self._start_is_unfinished:
            self._write(">")
            self._start_is_unfinished = False
        self._write("\n" + "    " * len(self._open))

    def start(self, element, /, **attributes):
        self.start_with(element, attributes)

    def start_with(self, element, attributes):
        self._new_line()
        texts = (f' {key}="{str(value).translate(ATTRIBUTE_ESCAPES)}"'
                 for key, value in attributes.items())
        self._write(f"<{element}{''.join(texts)}")
        self._open.append(element)
        self._start_is_unfinished = True

    def end(self):
        element = self._open.pop()
        if self._start_is_unfinished:
            self._write("/>")
            self._start_is_unfinished = False
        else:
            self._write("\n" + "    " * len(self._open) + f"</{element}>")

    def empty(self, element, /, **attributes):
        self.start_with(element, attributes)
        self.end()

    def text(self, element, value):
        self._new_line()
        self._write(f"<{element}>{str(value).translate(TEXT_ESCAPES)}</{element}>")

    def comment(self, content):
        self._new_line()
        self._write(f"<!--{content}-->")

    def finish(self):
        while self._open:
            self.end()
        self._write("\n")


@contextlib.contextmanager
def document(path, root, version, schema="kiv_mat.xsd"):
    """Opens a file, writes the root element and hands out the writer.

    The text goes to a file beside the wanted one, which takes its place only when it is complete.
    """
    path = Path(path)
    path.parent.mkdir(parents=True, exist_ok=True)
    unfinished = path.with_name(path.name + ".part")
    try:
        with open(unfinished, "w", encoding="utf-8", newline="\n") as out:
            writer = XmlWriter(out)
            writer.start_with(root, {"xsi:noNamespaceSchemaLocation": schema, "xmlns:xsi": XSI,
                                     "xsi:type": version})
            yield writer
            writer.finish()
        os.replace(unfinished, path)
    except BaseException:
        unfinished.unlink(missing_ok=True)
        raise


# --- Records -------------------------------------------------------------------------------------

@dataclass(slots=True)
class Source:
    """A maker or a dealer of a material, with the number under which it sells it."""
    name: str
    part_no: str
    description: str = ""
    datasheet: str = ""


@dataclass(slots=True)
class Material:
    name: str
    price: float = 0.0
    description: str = ""
    value: str = ""
    case: str = ""
    power: str = ""
    voltage: str = ""
    current: str = ""
    tolerance: str = ""
    other: str = ""
    cpv: str = ""
    unit: str = "pcs."
    library: str = ""
    footprints: tuple = ()
    makers: list = field(default_factory=list)
    dealers: list = field(default_factory=list)
    ktm: str = ""
    average: float = 0.0
    stock: str = "0"
    active: str = "TAK"
    status: str = "ZIELONY"
    added: str = TODAY
    checked: str = "TAK"
    approved: str = "TAK"
    rohs: str = "TAK"
    rohs_risk: str = "NISKIE"
    comment: str = ""
    edited: str = "NIE"


@dataclass(slots=True)
class Group:
    name: str
    cpv: str
    place: str  # chapter and group number, the middle of the KTM: "01.02"
    materials: list


def money(amount):
    return f"{max(amount, 0.01):.2f}"


def write_sources(writer, list_name, name, sources):
    writer.start(list_name)
    for source in sources:
        writer.start(name)
        writer.text("name", source.name)
        writer.text("part_no", source.part_no)
        writer.text("description", source.description)
        writer.start("files")
        if source.datasheet:
            writer.empty("file", type="FILE_DATASHEET", name=source.datasheet)
        writer.end()
        writer.end()
    writer.end()


def write_material(writer, m):
    text = writer.text
    writer.start("material")
    text("d_ktm", m.ktm)
    text("d_cpv", m.cpv)
    text("d_name", m.name)
    text("d_description", m.description)
    text("d_value", m.value)
    text("d_case", m.case)
    text("d_power", m.power)
    text("d_voltage", m.voltage)
    text("d_current", m.current)
    text("d_tolerance", m.tolerance)
    text("d_otherParameters", m.other)
    text("d_price", money(m.price))
    text("d_averagePrice", money(m.average))
    text("d_inWarehouse", m.stock)
    text("d_unit", m.unit)
    text("d_active", m.active)
    text("d_libraryRef", m.library)
    for number in range(6):
        text("d_footprintRef" + (str(number + 1) if number else ""),
             m.footprints[number] if number < len(m.footprints) else "")
    text("d_quantity", "0")
    writer.start("information")
    text("status", m.status)
    text("added", m.added)
    text("checked", m.checked)
    text("approved", m.approved)
    text("rohs_required", m.rohs)
    text("rohs_probability", m.rohs_risk)
    text("comment", m.comment)
    text("edited", m.edited)
    writer.end()
    write_sources(writer, "manufacturers", "manufacturer", m.makers)
    write_sources(writer, "suppliers", "supplier", m.dealers)
    writer.end()


def write_group(writer, name, cpv, materials):
    writer.start("d_group", name=name, cpv=cpv)
    for material in materials:
        write_material(writer, material)
    writer.end()


@contextlib.contextmanager
def database(path, release):
    with document(path, "kiv_mat_database", "KIV_MAT_DATABASE_1") as writer:
        writer.text("update", TODAY)
        writer.text("server_release", release)
        writer.comment(" ")
        yield writer


def write_database(path, release, groups):
    with database(path, release) as writer:
        for group in groups:
            write_group(writer, group.name, group.cpv, group.materials)


# --- Store keeping: what a company adds to the facts of a part ------------------------------------

# Most parts are approved; the others wait for a check or are on their way out.
STATUSES = ("ZIELONY",) * 15 + ("NIEBIESKI", "NIEBIESKI", "FIOLETOWY", "SZARY", "SZARY", "")

COMMENTS = {
    "ZIELONY": ("", "", "", "", "Zalecany do nowych projektów", "Stan minimalny ustala magazyn",
                "Sprawdzony w produkcji seryjnej"),
    "NIEBIESKI": ("Nowy materiał, w trakcie oceny", "Próbki u konstruktora"),
    "FIOLETOWY": ("Tylko za zgodą kierownika projektu", "Zamówienie z długim terminem"),
    "SZARY": ("Do wyczerpania zapasu", "Wycofywany, nie stosować w nowych projektach"),
    "": ("",),
}

DEALERS = ("TME", "Mouser", "Digi-Key", "Farnell", "RS Components", "Maritex")

# Up to this unit price, as many are kept at most, counted in steps.
STOCK_LEVELS = ((0.10, 8000, 50), (1.0, 1500, 10), (10.0, 300, 1), (50.0, 60, 1), (1e9, 12, 1))


def pick(rng, choices):
    # Only random() is promised to give the same numbers in every Python version.
    return choices[int(rng.random() * len(choices))]


def stock_text(rng, price):
    if rng.random() < 0.07:
        return "0"
    for limit, most, step in STOCK_LEVELS:
        if price <= limit:
            return str(int(rng.random() * most / step) * step)
    return "0"


def keep_store(m, ktm, cpv, dealers=DEALERS):
    """Fills in what depends on the company and not on the part: index, prices, stock, status."""
    rng = random.Random(ktm)
    m.ktm = ktm
    m.cpv = m.cpv or cpv
    m.average = m.price * (0.88 + 0.24 * rng.random())
    m.stock = stock_text(rng, m.price)
    m.status = pick(rng, STATUSES)
    day, month, year = (first + int(rng.random() * count)
                        for first, count in ((1, 28), (1, 10), (2016, 11)))
    m.added = f"{day:02d}.{month:02d}.{year}"
    m.checked = "TAK" if m.status in ("ZIELONY", "FIOLETOWY", "NIEBIESKI") else "NIE"
    m.approved = "TAK" if m.status == "ZIELONY" else "NIE"
    m.active = "NIE" if m.status == "SZARY" else "TAK"
    m.comment = m.comment or pick(rng, COMMENTS[m.status])
    m.edited = "TAK" if rng.random() < 0.05 else "NIE"
    if dealers and not m.dealers:
        number = m.makers[0].part_no if m.makers else m.name
        first = int(rng.random() * len(dealers))
        count = min(1 + int(rng.random() * 3), len(dealers))
        m.dealers = [Source(dealers[(first + n) % len(dealers)], number) for n in range(count)]
    return m


def ktm_index(cpv, place, ordinal):
    """317111-01.02-00001: the class of goods, chapter and group of the store, row in the group."""
    return f"{cpv[:6]}-{place}-{ordinal:05d}"


# --- Facts: CPV codes ----------------------------------------------------------------------------

CPV = {
    "resistor": "31711131-0",        # Oporniki elektryczne
    "potentiometer": "31711130-3",   # Oporniki
    "capacitor": "31711151-6",       # Kondensatory stałe
    "component": "31711100-4",       # Elektroniczne elementy składowe
    "crystal": "31712360-1",         # Obsadzone kryształy piezoelektryczne
    "oscillator": "31712336-4",      # Oscylatory oparte na kryształach
    "diode": "31712340-5",           # Diody
    "led": "31712341-2",             # Diody świecące
    "signal diode": "31712342-9",    # Diody mikrofalowe lub o niewielkim sygnale
    "zener": "31712343-6",           # Diody Zenera
    "schottky": "31712344-3",        # Diody Schottky'ego
    "power diode": "31712347-4",     # Diody mocy lub diody słoneczne
    "transistor": "31712350-8",      # Tranzystory
    "mosfet": "31712353-9",          # Tranzystory polowe MOSFET
    "darlington": "31712355-3",      # Tranzystory bipolarne Darlingtona
    "bjt": "31712359-1",             # Tranzystory bipolarne złączowe (BJT)
    "optocoupler": "31712335-7",     # Odłączniki sprzężone optycznie
    "microprocessor": "31712116-6",  # Mikroprocesory
    "ic": "31712114-2",              # Zintegrowane obwody elektroniczne
    "eeprom": "30236123-0",          # Elektronicznie kasowalna pamięć tylko do odczytu (EEPROM)
    "converter": "31711120-0",       # Przetworniki
    "module": "31731100-0",          # Moduły
    "connector": "31224100-3",       # Wtyki i gniazda
    "coaxial connector": "31224200-4",  # Podłączenia koncentryczne
    "relay": "31711110-7",           # Przekaźniki
    "switch": "31221000-1",          # Przełączniki elektryczne
    "slide switch": "31214180-4",    # Przełączniki suwakowe
    "toggle switch": "31214170-1",   # Przełączniki dwustabilne
    "limit switch": "31214190-7",    # Wyłączniki krańcowe
    "fuse": "31211300-1",            # Bezpieczniki
    "fuse clip": "31211340-3",       # Zaciski bezpiecznikowe
    "surge": "31217000-0",           # Ochronniki przepięciowe
    "sensor": "30237475-9",          # Czujniki elektryczne
    "buzzer": "35121100-9",          # Brzęczyki
    "screw": "44531510-9",           # Śruby i wkręty
    "nut": "44531600-7",             # Nakrętki
    "washer": "44532200-0",          # Podkładki
    "spacer": "44531700-8",          # Wyroby gwintowane z żelaza lub stali
    "plastic": "19520000-7",         # Produkty z tworzyw sztucznych
    "enclosure": "31682100-1",       # Skrzynki elektryczne
    "sleeve": "44111530-5",          # Elektryczny osprzęt izolujący
    "wire": "31300000-9",            # Drut i kabel izolowany
    "cable": "31321210-7",           # Kabel niskiego napięcia
    "coaxial": "31330000-8",         # Kabel koncentryczny
    "signal cable": "31321700-9",    # Kable sygnalizacyjne
    "tape": "44424200-0",            # Taśma przylepna
    "solder": "44315310-7",          # Tworzywa do lutowania na miękko
    "alcohol": "24322500-2",         # Alkohol
    "lubricant": "24951120-2",       # Smar silikonowy
    "label": "30199760-5",           # Etykiety
    "harness": "31224400-6",         # Kable przyłączeniowe
    "transformer": "31174000-6",     # Transformatory układów zasilania
    "panel": "31682200-2",           # Panele przyrządowe
    "pcb": "31712320-9",             # Indywidualne obwody drukowane
    "courier": "64120000-3",         # Usługi kurierskie
    "repair": "50410000-2",          # Naprawa i konserwacja aparatury pomiarowej ...
}


# --- Facts: values and the makers' ways of writing them -------------------------------------------

E6 = (1.0, 1.5, 2.2, 3.3, 4.7, 6.8)
E12 = (1.0, 1.2, 1.5, 1.8, 2.2, 2.7, 3.3, 3.9, 4.7, 5.6, 6.8, 8.2)
E24 = (1.0, 1.1, 1.2, 1.3, 1.5, 1.6, 1.8, 2.0, 2.2, 2.4, 2.7, 3.0,
       3.3, 3.6, 3.9, 4.3, 4.7, 5.1, 5.6, 6.2, 6.8, 7.5, 8.2, 9.1)
E96 = tuple(round(10 ** (n / 96), 2) for n in range(96))


def decade_values(series, low, high):
    """All values of a series from low up to and without high."""
    values = []
    scale = 1e-12
    while scale < high:
        values += [float(f"{step * scale:.3g}") for step in series]
        scale *= 10
    return [value for value in values if low * 0.999 < value < high * 0.999]


def with_prefix(value, unit):
    """4700 and "Ω" give 4.7kΩ, 1e-7 and "F" give 100nF."""
    if value == 0:
        return "0" + unit
    for factor, prefix in ((1e6, "M"), (1e3, "k"), (1, ""), (1e-3, "m"), (1e-6, "µ"), (1e-9, "n"),
                           (1e-12, "p")):
        if prefix == "m" and unit == "F":
            continue  # nobody says millifarad: 1000µF
        if value >= factor * 0.9999:
            return f"{value / factor:.4g}{prefix}{unit}"
    return f"{value:g}{unit}"


def ohm_scale(ohms):
    for factor, letter in ((1e6, "M"), (1e3, "K")):
        if ohms >= factor:
            return ohms / factor, letter
    return ohms, "R"


def short_ohm_code(ohms):
    """4K7, 10K, 49R9: as Yageo and TE write it."""
    number, letter = ohm_scale(ohms)
    digits = f"{number:.4g}"
    return digits.replace(".", letter) if "." in digits else digits + letter


def long_ohm_code(ohms):
    """4K70, 10K0, 49R9: three digits and a letter, as Vishay and Stackpole write it."""
    number, letter = ohm_scale(ohms)
    return f"{number:#.3g}".replace(".", letter)


def digit_ohm_code(ohms):
    """4701, 1002, 49R9: three digits and the number of zeros, as Panasonic and others write it."""
    if ohms < 100:
        return f"{ohms:#.3g}".replace(".", "R")
    digits, exponent = f"{ohms:.2e}".split("e")
    return digits.replace(".", "") + str(int(exponent) - 2)


def three_digit_code(value, base):
    """104 for 100 nF with a base of 1 pF, 1R0 and 2R2 below ten."""
    count = value / base
    if count < 9.99:
        return f"{count:.1f}".replace(".", "R")
    digits, exponent = f"{count:.1e}".split("e")
    return digits.replace(".", "") + str(int(exponent) - 1)


# --- Facts: datasheets ---------------------------------------------------------------------------

# Addresses whose form the makers have kept for years. Where none is known for sure, a part has none.
DATASHEETS = {
    "ti": "https://www.ti.com/lit/ds/symlink/{}.pdf",
    "st": "https://www.st.com/resource/en/datasheet/{}.pdf",
    "nexperia": "https://assets.nexperia.com/documents/data-sheet/{}.pdf",
    "vishay": "https://www.vishay.com/docs/{}.pdf",
    "onsemi": "https://www.onsemi.com/pdf/datasheet/{}-d.pdf",
    "diodes": "https://www.diodes.com/assets/Datasheets/{}.pdf",
    "adi": "https://www.analog.com/media/en/technical-documentation/data-sheets/{}.pdf",
    "bourns": "https://www.bourns.com/docs/Product-Datasheets/{}.pdf",
    "murata": "https://search.murata.co.jp/Ceramy/image/img/A01X/G101/ENG/{}-01.pdf",
    "abracon": "https://abracon.com/Resonators/{}.pdf",
    "jst": "https://www.jst-mfg.com/product/pdf/eng/{}.pdf",
    "we": "https://www.we-online.com/components/products/datasheet/{}.pdf",
    "kemet": "https://content.kemet.com/datasheets/{}.pdf",
    "microchip": "https://ww1.microchip.com/downloads/en/DeviceDoc/{}.pdf",
    "espressif": "https://www.espressif.com/sites/default/files/documentation/{}.pdf",
    "hammond": "https://www.hammfg.com/files/parts/pdf/{}.pdf",
    "yageo rc": "https://www.yageo.com/upload/media/product/productsearch/datasheet/rchip/"
                "PYu-RC_Group_51_RoHS_L_12.pdf",
    "panasonic erj": "https://industrial.panasonic.com/cdbs/www-data/pdf/RDA0000/AOA0000C304.pdf",
}


def datasheet(short):
    """"ti:lm358" is the sheet lm358 in TI's form; a word without colon is an address of its own."""
    if not short or short.startswith("http"):
        return short
    kind, _, name = short.partition(":")
    return DATASHEETS[kind].format(name)


# --- Facts: the sample's parts -------------------------------------------------------------------

MAKERS = {
    "ADI": "Analog Devices", "AMS": "Advanced Monolithic Systems", "AOS": "Alpha & Omega Semiconductor",
    "AVX": "KYOCERA AVX", "Diodes": "Diodes Incorporated", "ST": "STMicroelectronics",
    "TI": "Texas Instruments", "TE": "TE Connectivity", "WE": "Würth Elektronik",
    "Samsung": "Samsung Electro-Mechanics", "Traco": "Traco Power", "Bosch": "Bosch Sensortec",
    "Allegro": "Allegro MicroSystems", "Phoenix": "Phoenix Contact", "SiLabs": "Silicon Labs",
    "Hammond": "Hammond Manufacturing",
}


def rows(text):
    """The lines of a table with "|" between the columns, each as {heading: text}."""
    lines = [[cell.strip() for cell in line.split("|")] for line in text.strip().splitlines()]
    headings = lines[0]
    for cells in lines[1:]:
        if len(cells) != len(headings):
            raise ValueError(f"{len(headings)} columns wanted: {cells}")
        yield dict(zip(headings, cells))


def sources(text, sheets, name):
    """"TI: LM358DR; onsemi: LM358DR2G"; a maker without number sells the part under its name."""
    found = []
    sheets = [sheet.strip() for sheet in sheets.split(";")]
    for number, entry in enumerate(filter(None, (part.strip() for part in text.split(";")))):
        maker, _, part_no = entry.partition(": ")
        sheet = datasheet(sheets[number]) if number < len(sheets) else ""
        found.append(Source(MAKERS.get(maker, maker), part_no or name, datasheet=sheet))
    return found


def parts(text, **defaults):
    """Materials from a table; a default stands for a column that is missing or a cell left empty."""
    found = []
    for row in rows(text):
        def cell(key):
            return row.get(key) or defaults.get(key, "")
        name, case = cell("name"), cell("case")
        footprints = cell("foot") or case.replace(" ", "_")
        found.append(Material(
            name=name, price=float(cell("price")), description=cell("what"), value=cell("value"),
            case=case, power=cell("power"), voltage=cell("voltage"), current=cell("current"),
            tolerance=cell("tol"), other=cell("other"), cpv=CPV[cell("cpv")] if cell("cpv") else "",
            unit=cell("unit") or "pcs.", library=cell("lib"),
            footprints=tuple(footprints.split(",")) if footprints else (),
            makers=sources(cell("maker"), cell("sheet"), name), rohs=cell("rohs") or "TAK",
            rohs_risk=cell("risk") or "NISKIE", comment=cell("comment")))
    return found


def resistors_0603():
    """The values every store keeps, from three makers of which any may be bought."""
    found = [Material("RC0603JR-070RL", 0.02, "Zwora 0Ω 0603, maks. 1A", "0Ω", "0603", "100mW", "",
                      "1A", "", library="RES", footprints=("R_0603", "R_0603_HS"),
                      makers=[Source("Yageo", "RC0603JR-070RL", datasheet=datasheet("yageo rc:")),
                              Source("Vishay", "CRCW06030000Z0EA",
                                     datasheet=datasheet("vishay:20035/dcrcwe3"))])]
    for ohms in (10, 22, 27, 33, 47, 49.9, 68, 100, 150, 220, 270, 330, 470, 560, 680,
                 1e3, 1.5e3, 1.8e3, 2.2e3, 2.7e3, 3.3e3, 4.7e3, 4.99e3, 5.1e3, 6.8e3, 8.2e3,
                 10e3, 12e3, 15e3, 22e3, 33e3, 47e3, 49.9e3, 68e3, 100e3, 220e3, 470e3, 1e6):
        name = f"RC0603FR-07{short_ohm_code(ohms)}L"
        value = with_prefix(ohms, "Ω")
        found.append(Material(
            name, 0.03, f"Rezystor grubowarstwowy {value} ±1% 0603", value, "0603", "100mW", "75V", "",
            "±1%", "100ppm/°C", library="RES", footprints=("R_0603", "R_0603_HS"),
            makers=[Source("Yageo", name, datasheet=datasheet("yageo rc:")),
                    Source("Vishay", f"CRCW0603{long_ohm_code(ohms)}FKEA",
                           datasheet=datasheet("vishay:20035/dcrcwe3")),
                    Source("Panasonic", f"ERJ-3EKF{digit_ohm_code(ohms)}V",
                           datasheet=datasheet("panasonic erj:"))]))
    return found


def resistors_0805():
    found = []
    for ohms in (10, 47, 100, 220, 330, 470, 1e3, 2.2e3, 4.7e3, 10e3, 22e3, 47e3, 100e3, 1e6):
        name = f"CRCW0805{long_ohm_code(ohms)}FKEA"
        value = with_prefix(ohms, "Ω")
        found.append(Material(
            name, 0.05, f"Rezystor grubowarstwowy {value} ±1% 0805", value, "0805", "125mW", "150V", "",
            "±1%", "100ppm/°C", library="RES", footprints=("R_0805", "R_0805_HS"),
            makers=[Source("Vishay", name, datasheet=datasheet("vishay:20035/dcrcwe3")),
                    Source("Yageo", f"RC0805FR-07{short_ohm_code(ohms)}L",
                           datasheet=datasheet("yageo rc:"))]))
    return found


def resistors_with_leads():
    found = []
    for ohms in (10, 100, 330, 470, 1e3, 2.2e3, 4.7e3, 10e3, 22e3, 47e3, 100e3, 1e6):
        name = f"MFR-25FBF52-{short_ohm_code(ohms)}"
        value = with_prefix(ohms, "Ω")
        found.append(Material(
            name, 0.12, f"Rezystor metalizowany {value} ±1% 0,25W", value, "0207", "250mW", "250V", "",
            "±1%", "100ppm/°C", library="RES", footprints=("R_0207_P10",),
            makers=[Source("Yageo", name)]))
    return found + parts(POTENTIOMETERS, cpv="potentiometer", lib="POT")


POTENTIOMETERS = """
name              | what                                        | value | case   | power | tol  | other          | price | maker  | sheet                | lib | cpv
3296W-1-102LF     | Potencjometr wieloobrotowy 25 obr., górny   | 1kΩ   | 3296W  | 500mW | ±10% | 100ppm/°C      | 5.60  | Bourns | bourns:3296          |     |
3296W-1-103LF     | Potencjometr wieloobrotowy 25 obr., górny   | 10kΩ  | 3296W  | 500mW | ±10% | 100ppm/°C      | 5.60  | Bourns | bourns:3296          |     |
3296W-1-104LF     | Potencjometr wieloobrotowy 25 obr., górny   | 100kΩ | 3296W  | 500mW | ±10% | 100ppm/°C      | 5.60  | Bourns | bourns:3296          |     |
3362P-1-103LF     | Potencjometr montażowy jednoobrotowy        | 10kΩ  | 3362P  | 500mW | ±10% | 100ppm/°C      | 3.90  | Bourns | bourns:3362          |     |
PTV09A-4025U-B103 | Potencjometr osiowy 9 mm, liniowy           | 10kΩ  | PTV09A | 50mW  | ±20% | charakterystyka B | 3.20 | Bourns | bourns:ptv09        |     |
WSL2512R0100FEA   | Rezystor pomiarowy (bocznik) 2512           | 10mΩ  | 2512   | 1W    | ±1%  | 75ppm/°C       | 2.70  | Vishay | vishay:30100/wsl     | RES | resistor
NTCLE100E3103JB0  | Termistor NTC, B25/85 = 3977K               | 10kΩ  | D5 P2.54 | 500mW | ±5% | NTC           | 1.90  | Vishay | vishay:29049/ntcle100 | NTC | resistor
"""

CERAMIC_CAPACITORS = """
name               | value | voltage | other | tol  | case | price | sheet                         | maker
GRM1885C1H100JA01D | 10pF  | 50V     | C0G   | ±5%  | 0603 | 0.06  |                               | Murata
GRM1885C1H150JA01D | 15pF  | 50V     | C0G   | ±5%  | 0603 | 0.06  |                               | Murata
GRM1885C1H180JA01D | 18pF  | 50V     | C0G   | ±5%  | 0603 | 0.06  |                               | Murata
GRM1885C1H220JA01D | 22pF  | 50V     | C0G   | ±5%  | 0603 | 0.06  |                               | Murata; Samsung: CL10C220JB8NNNC; Yageo: CC0603JRNPO9BN220
GRM1885C1H330JA01D | 33pF  | 50V     | C0G   | ±5%  | 0603 | 0.06  |                               | Murata
GRM1885C1H470JA01D | 47pF  | 50V     | C0G   | ±5%  | 0603 | 0.06  |                               | Murata
GRM1885C1H101JA01D | 100pF | 50V     | C0G   | ±5%  | 0603 | 0.07  |                               | Murata; Yageo: CC0603JRNPO9BN101
GRM1885C1H221JA01D | 220pF | 50V     | C0G   | ±5%  | 0603 | 0.08  |                               | Murata
GRM1885C1H471JA01D | 470pF | 50V     | C0G   | ±5%  | 0603 | 0.09  |                               | Murata
GRM1885C1H102JA01D | 1nF   | 50V     | C0G   | ±5%  | 0603 | 0.14  |                               | Murata
GRM188R71H102KA01D | 1nF   | 50V     | X7R   | ±10% | 0603 | 0.05  |                               | Murata; Samsung: CL10B102KB8NNNC
GRM188R71H103KA01D | 10nF  | 50V     | X7R   | ±10% | 0603 | 0.05  | murata:GRM188R71H103KA01      | Murata; Samsung: CL10B103KB8NNNC; Yageo: CC0603KRX7R9BB103
GRM188R71H473KA61D | 47nF  | 50V     | X7R   | ±10% | 0603 | 0.08  |                               | Murata
GRM188R71H104KA93D | 100nF | 50V     | X7R   | ±10% | 0603 | 0.07  | murata:GRM188R71H104KA93      | Murata; Samsung: CL10B104KB8NNNC; Yageo: CC0603KRX7R9BB104
GRM188R71E224KA88D | 220nF | 25V     | X7R   | ±10% | 0603 | 0.12  |                               | Murata
GRM188R71E474KA12D | 470nF | 25V     | X7R   | ±10% | 0603 | 0.18  |                               | Murata
GRM188R71E105KA12D | 1µF   | 25V     | X7R   | ±10% | 0603 | 0.22  |                               | Murata
CL10A105KB8NNNC    | 1µF   | 50V     | X5R   | ±10% | 0603 | 0.12  |                               | Samsung
GRM188R61A475KE15D | 4.7µF | 10V     | X5R   | ±10% | 0603 | 0.24  |                               | Murata
GRM188R61A106KE69D | 10µF  | 10V     | X5R   | ±10% | 0603 | 0.42  | murata:GRM188R61A106KE69      | Murata; Samsung: CL10A106KP8NNNC
GRM188R60J226MEA0D | 22µF  | 6.3V    | X5R   | ±20% | 0603 | 0.58  | murata:GRM188R60J226MEA0      | Murata
CL21B104KBCNNNC    | 100nF | 50V     | X7R   | ±10% | 0805 | 0.08  |                               | Samsung; Yageo: CC0805KRX7R9BB104
GRM21BR71H105KA12L | 1µF   | 50V     | X7R   | ±10% | 0805 | 0.34  | murata:GRM21BR71H105KA12      | Murata
CL21A106KAYNNNE    | 10µF  | 25V     | X5R   | ±10% | 0805 | 0.36  | ; murata:GRM21BR61E106KA73    | Samsung; Murata: GRM21BR61E106KA73L
GRM21BR60J476ME15L | 47µF  | 6.3V    | X5R   | ±20% | 0805 | 1.10  |                               | Murata
CL31A106KAHNNNE    | 10µF  | 25V     | X5R   | ±10% | 1206 | 0.40  |                               | Samsung
GRM31CR61E226KE15L | 22µF  | 25V     | X5R   | ±10% | 1206 | 1.35  |                               | Murata
GRM32ER71H106KA12L | 10µF  | 50V     | X7R   | ±10% | 1210 | 2.10  | murata:GRM32ER71H106KA12      | Murata
"""


def ceramic_capacitors():
    found = parts(CERAMIC_CAPACITORS, lib="CAP")
    for m in found:
        m.description = f"Kondensator ceramiczny {m.value} {m.voltage} {m.other} {m.case}"
        m.footprints = (f"C_{m.case}", f"C_{m.case}_HS")
    return found


OTHER_CAPACITORS = """
name               | what                                   | value  | voltage | tol  | case        | other          | price | maker     | sheet                | lib
UVR1H100MDD        | Kondensator elektrolityczny radialny   | 10µF   | 50V     | ±20% | D5 P2       | 85°C           | 0.18  | Nichicon  |                      |
UVR1E470MDD        | Kondensator elektrolityczny radialny   | 47µF   | 25V     | ±20% | D5 P2       | 85°C           | 0.20  | Nichicon  |                      |
UVR1V471MPD        | Kondensator elektrolityczny radialny   | 470µF  | 35V     | ±20% | D10 P5      | 85°C           | 0.85  | Nichicon  |                      |
UVR1E102MPD        | Kondensator elektrolityczny radialny   | 1000µF | 25V     | ±20% | D10 P5      | 85°C           | 0.95  | Nichicon  |                      |
EEU-FR1E101        | Kondensator elektrolityczny low ESR    | 100µF  | 25V     | ±20% | D6.3 P2.5   | 105°C          | 0.72  | Panasonic |                      |
EEU-FR1E471        | Kondensator elektrolityczny low ESR    | 470µF  | 25V     | ±20% | D10 P5      | 105°C          | 1.80  | Panasonic |                      |
EEU-FR1E102        | Kondensator elektrolityczny low ESR    | 1000µF | 25V     | ±20% | D10 P5      | 105°C          | 2.60  | Panasonic |                      |
EEE-FK1V100R       | Kondensator elektrolityczny SMD        | 10µF   | 35V     | ±20% | SMD         | 105°C          | 1.10  | Panasonic |                      |
EEE-FK1E101P       | Kondensator elektrolityczny SMD        | 100µF  | 25V     | ±20% | SMD         | 105°C          | 1.70  | Panasonic |                      |
T491A106K010AT     | Kondensator tantalowy SMD A            | 10µF   | 10V     | ±10% | A (3216-18) | MnO2           | 1.15  | KEMET     | kemet:KEM_T2005_T491 |
T491C226K016AT     | Kondensator tantalowy SMD C            | 22µF   | 16V     | ±10% | C (6032-28) | MnO2           | 2.30  | KEMET     | kemet:KEM_T2005_T491 |
TAJA106K016RNJ     | Kondensator tantalowy SMD A            | 10µF   | 16V     | ±10% | A (3216-18) | MnO2           | 1.05  | AVX       |                      |
TAJB226K010RNJ     | Kondensator tantalowy SMD B            | 22µF   | 10V     | ±10% | B (3528-21) | MnO2           | 1.25  | AVX       |                      |
MKS2D021001A00KSSD | Kondensator foliowy poliestrowy, RM5   | 10nF   | 100V    | ±10% | 7.2x2.5 P5  | PET            | 0.90  | WIMA      |                      | CAP
MKS2C031001A00KSSD | Kondensator foliowy poliestrowy, RM5   | 100nF  | 63V     | ±10% | 7.2x2.5 P5  | PET            | 0.95  | WIMA      |                      | CAP
MKS2C041001F00KSSD | Kondensator foliowy poliestrowy, RM5   | 1µF    | 63V     | ±10% | 7.2x5 P5    | PET            | 2.40  | WIMA      |                      | CAP
"""

INDUCTORS = """
name            | what                                  | value        | current | tol  | case    | other         | price | maker     | sheet               | lib
BLM18PG121SN1D  | Koralik ferrytowy, zasilanie          | 120Ω@100MHz  | 2A      | ±25% | 0603    |               | 0.18  | Murata    |                     | FERRITE
BLM18AG601SN1D  | Koralik ferrytowy, sygnały            | 600Ω@100MHz  | 500mA   | ±25% | 0603    |               | 0.16  | Murata    |                     | FERRITE
BLM21PG221SN1D  | Koralik ferrytowy, zasilanie          | 220Ω@100MHz  | 2A      | ±25% | 0805    |               | 0.28  | Murata    |                     | FERRITE
742792040       | Koralik ferrytowy WE-CBF              | 600Ω@100MHz  | 2A      | ±25% | 0805    |               | 0.65  | WE        | we:742792040        | FERRITE
DLW21SN900SQ2L  | Dławik skompensowany, linie USB       | 90Ω@100MHz   | 330mA   | ±25% | 0805    | 2 uzwojenia   | 1.80  | Murata    |                     | CMC
7447709100      | Dławik mocy ekranowany WE-PD          | 10µH         |         | ±20% | 1210    |               | 8.90  | WE        | we:7447709100       |
SRN4018-4R7M    | Dławik mocy półekranowany             | 4.7µH        |         | ±20% | SRN4018 |               | 1.20  | Bourns    | bourns:SRN4018      |
SRN6045-100M    | Dławik mocy półekranowany             | 10µH         |         | ±20% | SRN6045 |               | 1.60  | Bourns    | bourns:SRN6045      |
SRR1260-330M    | Dławik mocy ekranowany                | 33µH         |         | ±20% | SRR1260 |               | 5.40  | Bourns    | bourns:SRR1260      |
SRR1260-101M    | Dławik mocy ekranowany                | 100µH        |         | ±20% | SRR1260 |               | 5.40  | Bourns    | bourns:SRR1260      |
RLB0914-101KL   | Dławik radialny                       | 100µH        |         | ±10% | RLB0914 |               | 1.90  | Bourns    |                     |
XAL4020-222MEB  | Dławik mocy odlewany                  | 2.2µH        |         | ±20% | XAL4020 |               | 7.60  | Coilcraft |                     |
"""

CRYSTALS = """
name                    | what                                   | value     | case      | other   | price | maker   | sheet         | lib
ABLS-8.000MHZ-B4-T      | Rezonator kwarcowy HC-49 niski, SMD    | 8MHz      | HC-49S SMD | CL=18pF | 1.40 | Abracon | abracon:ABLS  |
ABLS-12.000MHZ-B4-T     | Rezonator kwarcowy HC-49 niski, SMD    | 12MHz     | HC-49S SMD | CL=18pF | 1.40 | Abracon | abracon:ABLS  |
ABLS-16.000MHZ-B4-T     | Rezonator kwarcowy HC-49 niski, SMD    | 16MHz     | HC-49S SMD | CL=18pF | 1.40 | Abracon | abracon:ABLS  |
ABM8G-12.000MHZ-18-D2Y-T | Rezonator kwarcowy SMD 3,2 x 2,5 mm   | 12MHz     | 3225-4    | CL=18pF | 2.90  | Abracon | abracon:ABM8G |
NX3225GD-8MHZ-STD-CRA-3 | Rezonator kwarcowy SMD 3,2 x 2,5 mm    | 8MHz      | 3225-2    | CL=8pF  | 3.80  | NDK     |               |
7M-25.000MAAJ-T         | Rezonator kwarcowy SMD 3,2 x 2,5 mm    | 25MHz     | 3225-4    | CL=18pF | 1.90  | TXC     |               |
ABS07-32.768KHZ-T       | Rezonator zegarkowy SMD 3,2 x 1,5 mm   | 32.768kHz | 3215-2    | CL=12.5pF | 2.40 | Abracon | abracon:ABS07 |
FC-135 32.7680KA-A3     | Rezonator zegarkowy SMD 3,2 x 1,5 mm   | 32.768kHz | 3215-2    | CL=12.5pF | 1.70 | Epson   |               |
CSTNE8M00G550000R0      | Rezonator ceramiczny z kondensatorami  | 8MHz      | 3213-3    | 33pF    | 1.10  | Murata  |               | RESONATOR
CSTNE16M0V530000R0      | Rezonator ceramiczny z kondensatorami  | 16MHz     | 3213-3    | 15pF    | 1.10  | Murata  |               | RESONATOR
"""

DIODES = """
name             | what                               | voltage | current | power | value | case    | price | maker                                 | sheet                       | lib      | cpv
1N4148           | Dioda impulsowa                    | 100V    | 200mA   | 500mW |       | DO-35   | 0.08  | Nexperia: 1N4148,113; Vishay: 1N4148-TAP | nexperia:1N4148_1N4448; vishay:81857/1n4148 | | signal diode
1N4148W-7-F      | Dioda impulsowa SMD                | 100V    | 300mA   | 400mW |       | SOD-123 | 0.12  | Diodes                                | diodes:ds30086              |          | signal diode
BAV99            | Para diod impulsowych, szeregowo   | 100V    | 215mA   | 250mW |       | SOT-23  | 0.14  | Nexperia: BAV99,215                   | nexperia:BAV99_SER          | DIODE2_S | signal diode
BAT54C           | Para diod Schottky'ego, wspólna katoda | 30V | 200mA   |       |       | SOT-23  | 0.16  | Nexperia: BAT54C,215                  | nexperia:BAT54_SER          | DIODE2_K | schottky
BAT54S           | Para diod Schottky'ego, szeregowo  | 30V     | 200mA   |       |       | SOT-23  | 0.16  | Nexperia: BAT54S,215                  | nexperia:BAT54_SER          | DIODE2_S | schottky
1N4001           | Dioda prostownicza                 | 50V     | 1A      |       |       | DO-41   | 0.12  | Vishay: 1N4001-E3/54                  | vishay:88503/1n4001         |          | power diode
1N4007           | Dioda prostownicza                 | 1000V   | 1A      |       |       | DO-41   | 0.13  | Vishay: 1N4007-E3/54; onsemi: 1N4007RLG | vishay:88503/1n4001; onsemi:1n4001 |   | power diode
1N5408           | Dioda prostownicza                 | 1000V   | 3A      |       |       | DO-201AD | 0.60 | Vishay: 1N5408-E3/54                  | vishay:88516/1n5400         |          | power diode
S1M              | Dioda prostownicza SMD             | 1000V   | 1A      |       |       | SMA     | 0.22  | Vishay: S1M-E3/61T                    |                             |          | power diode
1N5819           | Dioda Schottky'ego                 | 40V     | 1A      |       |       | DO-41   | 0.35  | onsemi: 1N5819G                       | onsemi:1n5817               | SCHOTTKY | schottky
1N5822           | Dioda Schottky'ego                 | 40V     | 3A      |       |       | DO-201AD | 0.75 | ST                                    |                             | SCHOTTKY | schottky
SS14             | Dioda Schottky'ego SMD             | 40V     | 1A      |       |       | SMA     | 0.30  | Vishay: SS14-E3/61T                   | vishay:88746/ss12           | SCHOTTKY | schottky
SS34             | Dioda Schottky'ego SMD             | 40V     | 3A      |       |       | SMC     | 0.70  | Vishay: SS34-E3/57T                   | vishay:88751/ss32           | SCHOTTKY | schottky
MBRS340T3G       | Dioda Schottky'ego SMD             | 40V     | 3A      |       |       | SMC     | 1.20  | onsemi                                | onsemi:mbrs340t3            | SCHOTTKY | schottky
BZX84-C3V3       | Dioda Zenera SMD                   | 3.3V    |         | 250mW | 3.3V  | SOT-23  | 0.14  | Nexperia: BZX84-C3V3,215              | nexperia:BZX84_SER          | ZENER    | zener
BZX84-C5V1       | Dioda Zenera SMD                   | 5.1V    |         | 250mW | 5.1V  | SOT-23  | 0.14  | Nexperia: BZX84-C5V1,215              | nexperia:BZX84_SER          | ZENER    | zener
BZX84-C12        | Dioda Zenera SMD                   | 12V     |         | 250mW | 12V   | SOT-23  | 0.14  | Nexperia: BZX84-C12,215               | nexperia:BZX84_SER          | ZENER    | zener
BZX55C5V1        | Dioda Zenera                       | 5.1V    |         | 500mW | 5.1V  | DO-35   | 0.18  | Vishay: BZX55C5V1-TAP                 |                             | ZENER    | zener
1N4733A          | Dioda Zenera                       | 5.1V    |         | 1.3W  | 5.1V  | DO-41   | 0.32  | Vishay: 1N4733A-TR                    | vishay:85816/1n4728a        | ZENER    | zener
1N4742A          | Dioda Zenera                       | 12V     |         | 1.3W  | 12V   | DO-41   | 0.32  | Vishay: 1N4742A-TR                    | vishay:85816/1n4728a        | ZENER    | zener
SMBJ5.0A         | Transil jednokierunkowy            | 5V      |         | 600W  |       | SMB     | 0.85  | Littelfuse                            |                             | TVS      | surge
SMAJ24A          | Transil jednokierunkowy            | 24V     |         | 400W  |       | SMA     | 0.80  | Littelfuse                            |                             | TVS      | surge
SMBJ24CA         | Transil dwukierunkowy              | 24V     |         | 600W  |       | SMB     | 0.90  | Littelfuse                            |                             | TVS_BI   | surge
USBLC6-2SC6      | Zabezpieczenie ESD linii USB       | 5.25V   |         |       |       | SOT-23-6 | 1.40 | ST                                    | st:usblc6-2                 | USBLC6   | surge
PRTR5V0U2X       | Zabezpieczenie ESD linii USB       | 5.5V    |         |       |       | SOT-143B | 0.95 | Nexperia: PRTR5V0U2X,215              | nexperia:PRTR5V0U2X         | PRTR5V0  | surge
DF04M-E3/45      | Mostek prostowniczy                | 400V    | 1A      |       |       | DFM     | 1.50  | Vishay                                | vishay:88571/dfm            | BRIDGE   | power diode
"""

TRANSISTORS = """
name        | what                                | voltage | current | power  | other          | case    | price | maker                        | sheet                   | lib    | cpv
BC547B      | Tranzystor NPN małej mocy           | 45V     | 100mA   | 500mW  | hFE 200-450    | TO-92   | 0.25  | onsemi: BC547BTA             | onsemi:bc550            | NPN    | bjt
BC557B      | Tranzystor PNP małej mocy           | 45V     | 100mA   | 500mW  |                | TO-92   | 0.25  | onsemi: BC557BTA             |                         | PNP    | bjt
BC337-25    | Tranzystor NPN                      | 45V     | 800mA   | 625mW  | hFE 160-400    | TO-92   | 0.30  | onsemi: BC33725TA            |                         | NPN    | bjt
2N3904      | Tranzystor NPN małej mocy           | 40V     | 200mA   | 625mW  |                | TO-92   | 0.28  | onsemi: 2N3904BU             | onsemi:pzt3904          | NPN    | bjt
2N3906      | Tranzystor PNP małej mocy           | 40V     | 200mA   | 625mW  |                | TO-92   | 0.28  | onsemi: 2N3906BU             |                         | PNP    | bjt
BC847B      | Tranzystor NPN małej mocy SMD       | 45V     | 100mA   | 250mW  | hFE 200-450    | SOT-23  | 0.09  | Nexperia: BC847B,215         | nexperia:BC847_SER      | NPN    | bjt
BC857B      | Tranzystor PNP małej mocy SMD       | 45V     | 100mA   | 250mW  | hFE 220-475    | SOT-23  | 0.09  | Nexperia: BC857B,215         |                         | PNP    | bjt
BC817-25    | Tranzystor NPN SMD                  | 45V     | 500mA   | 250mW  | hFE 160-400    | SOT-23  | 0.11  | Nexperia: BC817-25,215       | nexperia:BC817_SER      | NPN    | bjt
BC807-25    | Tranzystor PNP SMD                  | 45V     | 500mA   | 250mW  | hFE 160-400    | SOT-23  | 0.11  | Nexperia: BC807-25,215       | nexperia:BC807_SER      | PNP    | bjt
BD139-16    | Tranzystor NPN średniej mocy        | 80V     | 1.5A    | 12.5W  | hFE 100-250    | SOT-32  | 1.30  | ST                           | st:bd139                | NPN    | bjt
BD140-16    | Tranzystor PNP średniej mocy        | 80V     | 1.5A    | 12.5W  | hFE 100-250    | SOT-32  | 1.30  | ST                           | st:bd139                | PNP    | bjt
TIP120G     | Darlington NPN mocy                 | 60V     | 5A      | 65W    |                | TO-220  | 2.60  | onsemi                       | onsemi:tip120           | NPN_D  | darlington
2N7002      | Tranzystor MOSFET N SMD             | 60V     | 300mA   |        |                | SOT-23  | 0.18  | Nexperia: 2N7002,215         | nexperia:2N7002         | NMOS   | mosfet
2N7000      | Tranzystor MOSFET N                 | 60V     | 200mA   | 400mW  |                | TO-92   | 0.60  | onsemi                       |                         | NMOS   | mosfet
BSS138      | Tranzystor MOSFET N SMD             | 50V     | 220mA   | 360mW  |                | SOT-23  | 0.30  | onsemi                       | onsemi:bss138           | NMOS   | mosfet
BSS84       | Tranzystor MOSFET P SMD             | 50V     | 130mA   | 250mW  |                | SOT-23  | 0.30  | Nexperia: BSS84,215          | nexperia:BSS84          | PMOS   | mosfet
AO3400A     | Tranzystor MOSFET N SMD             | 30V     | 5.7A    | 1.4W   |                | SOT-23  | 0.55  | AOS                          |                         | NMOS   | mosfet
AO3401A     | Tranzystor MOSFET P SMD             | 30V     | 4A      | 1.4W   |                | SOT-23  | 0.55  | AOS                          |                         | PMOS   | mosfet
IRLML2502   | Tranzystor MOSFET N SMD             | 20V     | 4.2A    | 1.25W  | sterowany 2,5V | SOT-23  | 1.10  | Infineon: IRLML2502TRPBF     |                         | NMOS   | mosfet
IRLML6402   | Tranzystor MOSFET P SMD             | 20V     | 3.7A    | 1.3W   | sterowany 2,5V | SOT-23  | 1.15  | Infineon: IRLML6402TRPBF     |                         | PMOS   | mosfet
IRLZ44N     | Tranzystor MOSFET N mocy            | 55V     | 47A     | 110W   | sterowany 5V   | TO-220AB | 4.20 | Infineon: IRLZ44NPBF         |                         | NMOS   | mosfet
IRFZ44N     | Tranzystor MOSFET N mocy            | 55V     | 49A     | 94W    |                | TO-220AB | 3.60 | Infineon: IRFZ44NPBF         |                         | NMOS   | mosfet
IRF540N     | Tranzystor MOSFET N mocy            | 100V    | 33A     | 130W   |                | TO-220AB | 4.10 | Infineon: IRF540NPBF         |                         | NMOS   | mosfet
IRF9540N    | Tranzystor MOSFET P mocy            | 100V    | 23A     | 140W   |                | TO-220AB | 5.30 | Infineon: IRF9540NPBF        |                         | PMOS   | mosfet
"""

OPTOELECTRONICS = """
name             | what                                     | value    | voltage | current | case   | other       | price | maker                 | sheet                | lib      | cpv
150060GS75000    | Dioda LED SMD WL-SMCW                    | zielona  |         | 20mA    | 0603   |             | 0.55  | WE                    | we:150060GS75000     | LED      | led
150060RS75000    | Dioda LED SMD WL-SMCW                    | czerwona |         | 20mA    | 0603   |             | 0.55  | WE                    | we:150060RS75000     | LED      | led
150060YS75000    | Dioda LED SMD WL-SMCW                    | żółta    |         | 20mA    | 0603   |             | 0.55  | WE                    | we:150060YS75000     | LED      | led
150060BS75000    | Dioda LED SMD WL-SMCW                    | niebieska |        | 20mA    | 0603   |             | 0.60  | WE                    | we:150060BS75000     | LED      | led
LTST-C190GKT     | Dioda LED SMD                            | zielona  |         | 20mA    | 0603   |             | 0.30  | Lite-On               |                      | LED      | led
LTST-C190KRKT    | Dioda LED SMD                            | czerwona |         | 20mA    | 0603   |             | 0.30  | Lite-On               |                      | LED      | led
TLHR5400         | Dioda LED 5 mm                           | czerwona |         | 20mA    | LED 5mm |            | 0.60  | Vishay                |                      | LED      | led
TLHG5400         | Dioda LED 5 mm                           | zielona  |         | 20mA    | LED 5mm |            | 0.60  | Vishay                |                      | LED      | led
TSAL6200         | Nadajnik podczerwieni 5 mm               | 940nm    |         | 100mA   | LED 5mm |            | 1.10  | Vishay                | vishay:81010/tsal6200 | LED     | led
PC817X2NSZ9F     | Transoptor z fototranzystorem            |          | 80V     | 50mA    | DIP-4  | izolacja 5kV | 0.90 | Sharp; Lite-On: LTV-817 |                    | OPTO_NPN |
4N35             | Transoptor z fototranzystorem            |          | 30V     | 50mA    | DIP-6  | izolacja 5kV | 1.60 | Vishay                | vishay:81181/4n35    | OPTO_NPN |
SFH617A-3        | Transoptor z fototranzystorem            |          | 70V     | 50mA    | DIP-4  | CTR 100-200% | 1.50 | Vishay                | vishay:83740/sfh617a | OPTO_NPN |
MOC3021M         | Optotriak                                |          | 400V    |         | DIP-6  |             | 2.10  | onsemi                | onsemi:moc3023m      | OPTO_TRIAC |
MOC3041M         | Optotriak z detekcją przejścia przez zero |         | 400V    |         | DIP-6  |             | 2.70  | onsemi                | onsemi:moc3043m      | OPTO_TRIAC |
6N137            | Transoptor szybki 10 MBd                 |          | 5V      |         | DIP-8  |             | 4.30  | Vishay                | vishay:84732/6n137   | 6N137    |
HCPL-3120-000E   | Sterownik bramki IGBT i MOSFET           |          | 30V     | 2A      | DIP-8  |             | 12.80 | Broadcom              |                      | HCPL3120 |
"""

MICROCONTROLLERS = """
name             | what                                          | voltage     | case     | other                     | price  | maker         | sheet              | lib
STM32F103C8T6    | Mikrokontroler Cortex-M3 72 MHz               | 2.0-3.6V    | LQFP-48  | 64kB Flash, 20kB RAM      | 18.50  | ST            | st:stm32f103c8     | STM32F103Cx
STM32F030F4P6    | Mikrokontroler Cortex-M0 48 MHz               | 2.4-3.6V    | TSSOP-20 | 16kB Flash, 4kB RAM       | 6.20   | ST            | st:stm32f030f4     | STM32F030Fx
STM32F407VGT6    | Mikrokontroler Cortex-M4F 168 MHz             | 1.8-3.6V    | LQFP-100 | 1MB Flash, 192kB RAM      | 58.00  | ST            | st:stm32f407vg     | STM32F407Vx
STM32G031K8T6    | Mikrokontroler Cortex-M0+ 64 MHz              | 1.7-3.6V    | LQFP-32  | 64kB Flash, 8kB RAM       | 9.40   | ST            | st:stm32g031k8     | STM32G031Kx
STM32L051C8T6    | Mikrokontroler Cortex-M0+ 32 MHz, mały pobór  | 1.65-3.6V   | LQFP-48  | 64kB Flash, 8kB RAM       | 15.60  | ST            | st:stm32l051c8     | STM32L051Cx
STM32G474RET6    | Mikrokontroler Cortex-M4F 170 MHz             | 1.71-3.6V   | LQFP-64  | 512kB Flash, 128kB RAM    | 42.00  | ST            | st:stm32g474re     | STM32G474Rx
ATMEGA328P-PU    | Mikrokontroler AVR 20 MHz                     | 1.8-5.5V    | DIP-28   | 32kB Flash, 2kB RAM       | 14.90  | Microchip     | microchip:ATmega328_P%20AVR%20MCU%20with%20picoPower%20Technology%20Data%20Sheet%2040001984A | ATMEGA328P
ATMEGA328P-AU    | Mikrokontroler AVR 20 MHz                     | 1.8-5.5V    | TQFP-32  | 32kB Flash, 2kB RAM       | 13.20  | Microchip     | microchip:ATmega328_P%20AVR%20MCU%20with%20picoPower%20Technology%20Data%20Sheet%2040001984A | ATMEGA328P
ATMEGA2560-16AU  | Mikrokontroler AVR 16 MHz                     | 4.5-5.5V    | TQFP-100 | 256kB Flash, 8kB RAM      | 68.00  | Microchip     |                    | ATMEGA2560
ATTINY85-20PU    | Mikrokontroler AVR 20 MHz                     | 2.7-5.5V    | DIP-8    | 8kB Flash, 512B RAM       | 8.90   | Microchip     |                    | ATTINY85
PIC16F628A-I/P   | Mikrokontroler PIC 20 MHz                     | 3.0-5.5V    | DIP-18   | 3,5kB Flash, 224B RAM     | 13.80  | Microchip     |                    | PIC16F628A
PIC18F4550-I/P   | Mikrokontroler PIC z USB 48 MHz               | 4.2-5.5V    | DIP-40   | 32kB Flash, 2kB RAM       | 37.50  | Microchip     |                    | PIC18F4550
MSP430G2553IN20  | Mikrokontroler 16-bitowy 16 MHz               | 1.8-3.6V    | DIP-20   | 16kB Flash, 512B RAM      | 14.20  | TI            | ti:msp430g2553     | MSP430G2553
RP2040           | Mikrokontroler 2 x Cortex-M0+ 133 MHz         | 1.8-3.3V    | QFN-56   | 264kB RAM, Flash zewn.    | 4.80   | Raspberry Pi  | https://datasheets.raspberrypi.com/rp2040/rp2040-datasheet.pdf | RP2040
LPC1768FBD100    | Mikrokontroler Cortex-M3 100 MHz              | 2.4-3.6V    | LQFP-100 | 512kB Flash, 64kB RAM     | 61.00  | NXP           |                    | LPC1768
ESP32-WROOM-32E-N4 | Moduł Wi-Fi i Bluetooth, 2 rdzenie 240 MHz  | 3.0-3.6V    | ESP32-WROOM-32E | 4MB Flash, 520kB RAM | 16.40 | Espressif     | espressif:esp32-wroom-32e_esp32-wroom-32ue_datasheet_en | ESP32-WROOM-32E
"""

AMPLIFIERS = """
name          | what                                        | voltage   | case    | other                  | price | maker                                          | sheet          | lib
LM358DR       | Wzmacniacz operacyjny, podwójny             | 3-32V     | SOIC-8  | 2 kanały               | 0.95  | TI; onsemi: LM358DR2G; ST: LM358DT             | ti:lm358;;     | OPAMP2
LM358P        | Wzmacniacz operacyjny, podwójny             | 3-32V     | DIP-8   | 2 kanały               | 1.20  | TI                                             | ti:lm358       | OPAMP2
LM324DR       | Wzmacniacz operacyjny, poczwórny            | 3-32V     | SOIC-14 | 4 kanały               | 1.10  | TI                                             | ti:lm324       | OPAMP4
TL072CDR      | Wzmacniacz operacyjny JFET, podwójny        |           | SOIC-8  | 2 kanały               | 1.60  | TI; ST: TL072CDT                               | ti:tl072       | OPAMP2
TL072CP       | Wzmacniacz operacyjny JFET, podwójny        |           | DIP-8   | 2 kanały               | 1.90  | TI                                             | ti:tl072       | OPAMP2
TL074CDR      | Wzmacniacz operacyjny JFET, poczwórny       |           | SOIC-14 | 4 kanały               | 1.90  | TI                                             | ti:tl074       | OPAMP4
NE5532P       | Wzmacniacz audio o małych szumach           | ±5-15V    | DIP-8   | 2 kanały               | 2.60  | TI                                             | ti:ne5532      | OPAMP2
NE5532DR      | Wzmacniacz audio o małych szumach           | ±5-15V    | SOIC-8  | 2 kanały               | 2.10  | TI                                             | ti:ne5532      | OPAMP2
OPA2134PA     | Wzmacniacz audio JFET                       | ±2.5-18V  | DIP-8   | 2 kanały               | 17.40 | TI                                             | ti:opa2134     | OPAMP2
OPA2340UA     | Wzmacniacz rail-to-rail CMOS                | 2.7-5.5V  | SOIC-8  | 2 kanały               | 15.80 | TI                                             | ti:opa2340     | OPAMP2
MCP6002-I/SN  | Wzmacniacz rail-to-rail CMOS                | 1.8-6V    | SOIC-8  | 2 kanały, 1MHz         | 1.80  | Microchip                                      |                | OPAMP2
INA128P       | Wzmacniacz pomiarowy                        | ±2.25-18V | DIP-8   | G = 1-10000            | 38.00 | TI                                             | ti:ina128      | INA128
AD620ANZ      | Wzmacniacz pomiarowy                        | ±2.3-18V  | DIP-8   | G = 1-10000            | 49.00 | ADI                                            | adi:AD620      | AD620
LM386N-1/NOPB | Wzmacniacz mocy audio                       | 4-12V     | DIP-8   |                        | 5.90  | TI                                             | ti:lm386       | LM386
LM393DR       | Komparator podwójny                         | 2-36V     | SOIC-8  | wyjście OC             | 0.85  | TI; onsemi: LM393DR2G                          | ti:lm393       | COMP2
LM339DR       | Komparator poczwórny                        | 2-36V     | SOIC-14 | wyjście OC             | 1.05  | TI                                             | ti:lm339       | COMP4
LM311P        | Komparator różnicowy                        | 3.5-30V   | DIP-8   | wyjście OC             | 1.90  | TI                                             | ti:lm311       | LM311
"""

REGULATORS = """
name              | what                                         | value    | current | voltage | case    | price | maker         | sheet      | lib      | cpv
L7805CV           | Stabilizator liniowy +5V                     | 5V       | 1.5A    | 35V     | TO-220  | 1.90  | ST            | st:l78     | REG_78   |
L7812CV           | Stabilizator liniowy +12V                    | 12V      | 1.5A    | 35V     | TO-220  | 1.90  | ST            | st:l78     | REG_78   |
L7905CV           | Stabilizator liniowy -5V                     | -5V      | 1.5A    | -35V    | TO-220  | 2.10  | ST            | st:l79     | REG_79   |
LM7805CT/NOPB     | Stabilizator liniowy +5V                     | 5V       | 1.5A    | 35V     | TO-220  | 6.40  | TI            | ti:lm340   | REG_78   |
L78L05ACZ         | Stabilizator liniowy +5V małej mocy          | 5V       | 100mA   | 30V     | TO-92   | 0.90  | ST            | st:l78l    | REG_78   |
LM317T            | Stabilizator regulowany 1,2-37V              | 1.2-37V  | 1.5A    | 40V     | TO-220  | 2.30  | ST            | st:lm317   | LM317    |
LM317DCYR         | Stabilizator regulowany 1,2-37V              | 1.2-37V  | 1.5A    | 40V     | SOT-223 | 2.70  | TI            | ti:lm317   | LM317    |
AMS1117-3.3       | Stabilizator LDO 3,3V                        | 3.3V     | 1A      | 15V     | SOT-223 | 0.80  | AMS           | http://www.advanced-monolithic.com/pdf/ds1117.pdf | REG_1117 |
AMS1117-5.0       | Stabilizator LDO 5V                          | 5V       | 1A      | 15V     | SOT-223 | 0.80  | AMS           | http://www.advanced-monolithic.com/pdf/ds1117.pdf | REG_1117 |
LD1117V33         | Stabilizator LDO 3,3V                        | 3.3V     | 800mA   | 15V     | TO-220  | 2.40  | ST            | st:ld1117  | REG_1117 |
MCP1700-3302E/TO  | Stabilizator LDO 3,3V mikromocowy            | 3.3V     | 250mA   | 6V      | TO-92   | 2.20  | Microchip     |            | MCP1700  |
MCP1700T-3302E/TT | Stabilizator LDO 3,3V mikromocowy            | 3.3V     | 250mA   | 6V      | SOT-23  | 1.90  | Microchip     |            | MCP1700  |
LM2596S-5.0/NOPB  | Przetwornica obniżająca 5V 150 kHz           | 5V       | 3A      | 40V     | TO-263-5 | 22.50 | TI           | ti:lm2596  | LM2596   |
TPS54331DR        | Przetwornica obniżająca 570 kHz              |          | 3A      | 28V     | SOIC-8  | 6.80  | TI            | ti:tps54331 | TPS54331 |
TPS5430DDAR       | Przetwornica obniżająca 500 kHz              |          | 3A      | 36V     | HSOP-8  | 13.90 | TI            | ti:tps5430 | TPS5430  |
MC34063ADR        | Sterownik przetwornicy                       |          | 1.5A    | 40V     | SOIC-8  | 1.70  | TI            | ti:mc34063a | MC34063  |
TL431AIDBZR       | Źródło odniesienia regulowane                | 2.495V   | 100mA   | 36V     | SOT-23  | 0.70  | TI            | ti:tl431   | TL431    |
TSR 1-2450        | Przetwornica DC/DC zamiast 7805              | 5V       | 1A      | 36V     | SIP-3   | 21.00 | Traco         | https://www.tracopower.com/products/tsr1.pdf | TSR1 | converter
R-78E5.0-0.5      | Przetwornica DC/DC zamiast 7805              | 5V       | 500mA   | 28V     | SIP-3   | 11.50 | RECOM         |            | R78E     | converter
IRM-05-5          | Zasilacz do druku 85-264VAC                  | 5V       | 1A      |         | IRM-05  | 34.00 | MEAN WELL     | https://www.meanwell.com/productSeries.aspx?i=IRM-05 | ACDC | converter
"""

LOGIC = """
name            | what                                        | voltage    | case     | price | maker                    | sheet                 | lib
74HC00D         | 4 bramki NAND                               | 2-6V       | SOIC-14  | 0.75  | Nexperia: 74HC00D,653    | nexperia:74HC_HCT00   | 74HC00
74HC04D         | 6 inwerterów                                | 2-6V       | SOIC-14  | 0.75  | Nexperia: 74HC04D,653    | nexperia:74HC_HCT04   | 74HC04
74HC14D         | 6 inwerterów Schmitta                       | 2-6V       | SOIC-14  | 0.75  | Nexperia: 74HC14D,653    | nexperia:74HC_HCT14   | 74HC14
74HC74D         | 2 przerzutniki D                            | 2-6V       | SOIC-14  | 0.85  | Nexperia: 74HC74D,653    | nexperia:74HC_HCT74   | 74HC74
74HC138D        | Dekoder 3 na 8                              | 2-6V       | SOIC-16  | 0.95  | Nexperia: 74HC138D,653   | nexperia:74HC_HCT138  | 74HC138
74HC165D        | Rejestr przesuwny równoległo-szeregowy      | 2-6V       | SOIC-16  | 1.05  | Nexperia: 74HC165D,653   | nexperia:74HC_HCT165  | 74HC165
74HC245D        | Bufor dwukierunkowy 8 bitów                 | 2-6V       | SOIC-20  | 1.60  | Nexperia: 74HC245D,653   | nexperia:74HC_HCT245  | 74HC245
74HC595D        | Rejestr przesuwny z zatrzaskiem             | 2-6V       | SOIC-16  | 0.95  | Nexperia: 74HC595D,118   | nexperia:74HC_HCT595  | 74HC595
SN74HC595N      | Rejestr przesuwny z zatrzaskiem             | 2-6V       | DIP-16   | 2.10  | TI                       | ti:sn74hc595          | 74HC595
74HC4051D       | Multiplekser analogowy 8 na 1               | 2-10V      | SOIC-16  | 1.30  | Nexperia: 74HC4051D,653  | nexperia:74HC_HCT4051 | 74HC4051
CD4017BE        | Licznik Johnsona                            | 3-18V      | DIP-16   | 2.00  | TI                       | ti:cd4017b            | CD4017
CD4060BE        | Licznik 14-bitowy z oscylatorem             | 3-18V      | DIP-16   | 2.00  | TI                       | ti:cd4060b            | CD4060
CD4066BE        | 4 klucze analogowe                          | 3-18V      | DIP-14   | 2.20  | TI                       | ti:cd4066b            | CD4066
CD4093BE        | 4 bramki NAND Schmitta                      | 3-18V      | DIP-14   | 2.10  | TI                       | ti:cd4093b            | CD4093
SN74LVC1G17DBVR | Bufor Schmitta                              | 1.65-5.5V  | SOT-23-5 | 0.60  | TI                       | ti:sn74lvc1g17        | LVC1G17
TXB0104PWR      | Translator poziomów 4 bity                  | 1.2-5.5V   | TSSOP-14 | 4.40  | TI                       | ti:txb0104            | TXB0104
TXS0108EPWR     | Translator poziomów 8 bitów                 | 1.2-5.5V   | TSSOP-20 | 5.10  | TI                       | ti:txs0108e           | TXS0108E
NE555P          | Układ czasowy                               | 4.5-16V    | DIP-8    | 1.40  | TI                       | ti:ne555              | NE555
NE555DR         | Układ czasowy                               | 4.5-16V    | SOIC-8   | 1.10  | TI                       | ti:ne555              | NE555
ULN2003AN       | 7 kluczy Darlingtona 50V 500mA              | 50V        | DIP-16   | 2.30  | TI                       | ti:uln2003a           | ULN2003
ULN2803ADWR     | 8 kluczy Darlingtona 50V 500mA              | 50V        | SOIC-18  | 3.80  | TI                       | ti:uln2803a           | ULN2803
L298N           | Podwójny mostek H 46V 2A                    | 46V        | Multiwatt-15 | 19.50 | ST                   | st:l298               | L298
"""

INTERFACES = """
name                | what                                     | voltage    | case     | other              | price | maker         | sheet                       | lib       | cpv
MAX232DR            | Nadajnik-odbiornik RS-232                | 5V         | SOIC-16  | 2 + 2 linie        | 2.60  | TI            | ti:max232                   | MAX232    |
MAX3232IDR          | Nadajnik-odbiornik RS-232                | 3-5.5V     | SOIC-16  | 2 + 2 linie        | 4.20  | TI            | ti:max3232                  | MAX232    |
MAX485ESA+          | Nadajnik-odbiornik RS-485                | 5V         | SOIC-8   | 2,5Mb/s            | 14.20 | ADI           | adi:MAX1487-MAX491          | MAX485    |
SN65HVD230DR        | Nadajnik-odbiornik CAN                   | 3.3V       | SOIC-8   | 1Mb/s              | 8.70  | TI            | ti:sn65hvd230               | CAN_TRX   |
MCP2515-I/SO        | Sterownik CAN z SPI                      | 2.7-5.5V   | SOIC-18  | 10MHz              | 8.10  | Microchip     |                             | MCP2515   |
FT232RL-REEL        | Most USB-UART                            | 3.3-5.25V  | SSOP-28  |                    | 19.80 | FTDI          | https://ftdichip.com/wp-content/uploads/2020/08/DS_FT232R.pdf | FT232R |
CP2102N-A02-GQFN28R | Most USB-UART                            | 3.0-3.6V   | QFN-28   |                    | 12.30 | SiLabs        | https://www.silabs.com/documents/public/data-sheets/cp2102n-datasheet.pdf | CP2102N |
W5500               | Sterownik Ethernet z SPI                 | 3.3V       | LQFP-48  | 10/100Mb/s         | 14.00 | WIZnet        |                             | W5500     |
24LC256-I/SN        | Pamięć EEPROM I2C                        | 2.5-5.5V   | SOIC-8   | 256kb              | 3.40  | Microchip     |                             | EEPROM_I2C | eeprom
W25Q32JVSSIQ        | Pamięć Flash SPI                         | 2.7-3.6V   | SOIC-8W  | 32Mb               | 2.60  | Winbond       |                             | FLASH_SPI |
W25Q128JVSIQ        | Pamięć Flash SPI                         | 2.7-3.6V   | SOIC-8W  | 128Mb              | 5.20  | Winbond       |                             | FLASH_SPI |
DS3231SN#           | Zegar czasu rzeczywistego I2C            | 2.3-5.5V   | SOIC-16W | ±3,5ppm            | 39.00 | ADI           | adi:DS3231                  | DS3231    |
PCF8574T            | Ekspander I2C 8 linii                    | 2.5-6V     | SOIC-16W |                    | 5.60  | NXP: PCF8574T/3,518 |                       | PCF8574   |
MCP23017-E/SO       | Ekspander I2C 16 linii                   | 1.8-5.5V   | SOIC-28  |                    | 7.30  | Microchip     |                             | MCP23017  |
ADS1115IDGSR        | Przetwornik A/C 16 bitów I2C             | 2-5.5V     | VSSOP-10 | 4 wejścia, 860S/s  | 21.00 | TI            | ti:ads1115                  | ADS1115   | converter
MCP3008-I/P         | Przetwornik A/C 10 bitów SPI             | 2.7-5.5V   | DIP-16   | 8 wejść            | 13.10 | Microchip     |                             | MCP3008   | converter
DS18B20+            | Czujnik temperatury 1-Wire               | 3.0-5.5V   | TO-92    | ±0,5°C             | 15.70 | ADI           | adi:DS18B20                 | DS18B20   | sensor
LM35DZ/NOPB         | Czujnik temperatury 10mV/°C              | 4-30V      | TO-92    |                    | 10.90 | TI            | ti:lm35                     | LM35      | sensor
TMP102AIDRLR        | Czujnik temperatury I2C                  | 1.4-3.6V   | SOT-563  |                    | 4.60  | TI            | ti:tmp102                   | TMP102    | sensor
BME280              | Czujnik wilgotności, ciśnienia i temp.   | 1.71-3.6V  | LGA-8    |                    | 24.00 | Bosch         |                             | BME280    | sensor
ACS712ELCTR-05B-T   | Czujnik prądu Halla                      | 5V         | SOIC-8   | ±5A, 185mV/A       | 13.50 | Allegro       |                             | ACS712    | sensor
INA219AIDR          | Miernik prądu i mocy I2C                 | 3-5.5V     | SOIC-8   | szyna do 26V       | 11.80 | TI            | ti:ina219                   | INA219    | sensor
"""

CONNECTORS = """
name                  | what                                            | value | current | voltage | case     | price | maker     | sheet      | cpv
B2B-XH-A(LF)(SN)      | Złącze do druku XH 2,5 mm, proste               | 2     | 3A      | 250V    | XH P2.5  | 0.42  | JST       | jst:eXH    |
B3B-XH-A(LF)(SN)      | Złącze do druku XH 2,5 mm, proste               | 3     | 3A      | 250V    | XH P2.5  | 0.55  | JST       | jst:eXH    |
B4B-XH-A(LF)(SN)      | Złącze do druku XH 2,5 mm, proste               | 4     | 3A      | 250V    | XH P2.5  | 0.68  | JST       | jst:eXH    |
XHP-2                 | Obudowa wtyku XH 2,5 mm                         | 2     |         |         | kabel    | 0.22  | JST       | jst:eXH    |
SXH-001T-P0.6         | Styk zaciskany XH                               |       | 3A      |         | kabel    | 0.14  | JST       | jst:eXH    |
B2B-PH-K-S(LF)(SN)    | Złącze do druku PH 2,0 mm, proste               | 2     | 2A      | 100V    | PH P2.0  | 0.48  | JST       | jst:ePH    |
S2B-PH-SM4-TB(LF)(SN) | Złącze do druku PH 2,0 mm, SMD kątowe           | 2     | 2A      | 100V    | PH P2.0  | 1.60  | JST       | jst:ePH    |
BM04B-SRSS-TB(LF)(SN) | Złącze do druku SH 1,0 mm, SMD proste           | 4     | 1A      | 50V     | SH P1.0  | 1.90  | JST       | jst:eSH    |
22-23-2021            | Złącze do druku KK 254, proste                  | 2     |         | 250V    | KK P2.54 | 0.60  | Molex     |            |
22-23-2031            | Złącze do druku KK 254, proste                  | 3     |         | 250V    | KK P2.54 | 0.75  | Molex     |            |
43045-0400            | Złącze do druku Micro-Fit 3,0 mm, kątowe        | 4     |         |         | MF P3.0  | 4.20  | Molex     |            |
53261-0471            | Złącze do druku PicoBlade 1,25 mm, SMD kątowe   | 4     | 1A      |         | PB P1.25 | 2.60  | Molex     |            |
47346-0001            | Gniazdo USB micro B, SMD                        | 5     |         |         | USB-MICRO-B | 2.90 | Molex   |            |
61300211121           | Listwa kołkowa 2,54 mm, prosta                  | 1x2   | 3A      | 250V    | P2.54    | 0.35  | WE        | we:61300211121 |
61300311121           | Listwa kołkowa 2,54 mm, prosta                  | 1x3   | 3A      | 250V    | P2.54    | 0.45  | WE        | we:61300311121 |
61300411121           | Listwa kołkowa 2,54 mm, prosta                  | 1x4   | 3A      | 250V    | P2.54    | 0.60  | WE        | we:61300411121 |
61302011121           | Listwa kołkowa 2,54 mm, prosta                  | 1x20  | 3A      | 250V    | P2.54    | 2.70  | WE        | we:61302011121 |
61300621121           | Listwa kołkowa 2,54 mm, prosta                  | 2x3   | 3A      | 250V    | P2.54    | 0.95  | WE        | we:61300621121 |
61301021121           | Listwa kołkowa 2,54 mm, prosta                  | 2x5   | 3A      | 250V    | P2.54    | 1.50  | WE        | we:61301021121 |
691137710002          | Zacisk śrubowy do druku 5,0 mm                  | 2     |         |         | WR-TBL P5.0 | 1.90 | WE       | we:691137710002 |
1715721               | Zacisk śrubowy MKDS 1,5/ 2-5,08                 | 2     |         |         | MKDS P5.08 | 4.30 | Phoenix  |            |
1715734               | Zacisk śrubowy MKDS 1,5/ 3-5,08                 | 3     |         |         | MKDS P5.08 | 6.10 | Phoenix  |            |
1757242               | Złącze do druku MSTBA 2,5/ 2-G-5,08             | 2     | 12A     | 320V    | MSTBA P5.08 | 3.60 | Phoenix |            |
1757019               | Wtyk z zaciskiem MSTB 2,5/ 2-ST-5,08            | 2     | 12A     | 320V    | kabel    | 7.80  | Phoenix   |            |
292304-1              | Gniazdo USB B, kątowe                           | 4     |         |         | USB-B    | 3.70  | TE        |            |
USB4105-GF-A          | Gniazdo USB C 2.0, SMD                          | 16    |         |         | USB-C    | 3.90  | GCT       | https://gct.co/files/drawings/usb4105.pdf |
L77SDE09SA4CH4F       | Gniazdo D-Sub 9, żeńskie kątowe                 | 9     |         |         | DSUB-9   | 7.90  | Amphenol  |            |
FH12-10S-0.5SH(55)    | Złącze do taśmy FFC 0,5 mm                      | 10    | 500mA   | 50V     | FH12 P0.5 | 3.80 | Hirose    |            |
U.FL-R-SMT(10)        | Złącze współosiowe U.FL                         | 50Ω   |         |         | U.FL     | 2.70  | Hirose    |            | coaxial connector
PJ-102A               | Gniazdo zasilania DC 5,5 / 2,1 mm               |       |         | 24V     | DC-JACK  | 3.30  | CUI Devices |          |
SJ1-3523N             | Gniazdo jack 3,5 mm stereo                      | 3     |         |         | JACK-3.5 | 3.90  | CUI Devices |          |
"""

RELAYS_AND_SWITCHES = """
name                 | what                                        | voltage  | current | value | case        | price | maker      | sheet                 | lib     | cpv
SRD-05VDC-SL-C       | Przekaźnik do druku, 1 zestyk przełączny    | 5VDC     | 10A     | 1P    | SRD         | 2.90  | Songle     |                       | RELAY_1C |
G5LE-1 DC5           | Przekaźnik do druku, 1 zestyk przełączny    | 5VDC     | 10A     | 1P    | G5LE        | 6.20  | Omron      |                       | RELAY_1C |
TQ2-5V               | Przekaźnik sygnałowy, 2 zestyki przełączne  | 5VDC     | 1A      | 2P    | TQ2         | 9.80  | Panasonic  |                       | RELAY_2C |
36.11.9.012.4011     | Przekaźnik do druku, 1 zestyk przełączny    | 12VDC    | 10A     | 1P    | 36.11       | 7.40  | Finder     |                       | RELAY_1C |
40.52.9.024.0000     | Przekaźnik do druku, 2 zestyki przełączne   | 24VDC    | 8A      | 2P    | 40.52       | 21.50 | Finder     |                       | RELAY_2C |
RM84-2012-35-1012    | Przekaźnik do druku, 2 zestyki przełączne   | 12VDC    | 8A      | 2P    | RM84        | 11.20 | Relpol     |                       | RELAY_2C |
G3MB-202P DC5        | Przekaźnik półprzewodnikowy 240VAC          | 5VDC     | 2A      | SSR   | G3MB        | 24.00 | Omron      |                       | SSR     |
PTS645SM43SMTR92 LFS | Mikroprzycisk 6 x 6 mm SMD, wys. 4,3 mm     | 12VDC    | 50mA    |       | TACT-6x6    | 0.75  | C&K        |                       | SW_PUSH | switch
430182043816         | Mikroprzycisk 6 x 6 mm SMD, wys. 4,3 mm     | 12VDC    | 50mA    |       | TACT-6x6    | 1.60  | WE         | we:430182043816       | SW_PUSH | switch
B3F-1000             | Mikroprzycisk 6 x 6 mm, wys. 4,3 mm         | 24VDC    | 50mA    |       | TACT-6x6-TH | 1.40  | Omron      |                       | SW_PUSH | switch
OS102011MS2QN1       | Przełącznik suwakowy 1 x 2                  | 12VDC    | 100mA   |       | OS102       | 2.90  | C&K        |                       | SW_1P2T | slide switch
JS202011CQN          | Przełącznik suwakowy 2 x 2                  | 6VDC     | 300mA   |       | JS202       | 2.60  | C&K        |                       | SW_2P2T | slide switch
7101SYZQE            | Przełącznik dźwigniowy 1 x 2                |          |         |       | panel       | 18.40 | C&K        |                       | SW_1P2T | toggle switch
SS-5GL               | Mikrowyłącznik z dźwignią                   | 125VAC   | 5A      |       | SS-5        | 7.10  | Omron      |                       | SW_1P2T | limit switch
PEC11R-4215F-S0024   | Enkoder obrotowy 24 imp./obr. z przyciskiem | 5VDC     | 10mA    |       | PEC11R      | 9.60  | Bourns     | bourns:PEC11R         | ENCODER | switch
"""

FUSES = """
name              | what                                       | value  | voltage | case       | other          | price | maker      | sheet           | lib      | cpv
0217.500HXP       | Bezpiecznik 5 x 20 mm szybki               | 500mA  | 250VAC  | 5x20       | szkło          | 1.70  | Littelfuse |                 | FUSE     |
0217001.HXP       | Bezpiecznik 5 x 20 mm szybki               | 1A     | 250VAC  | 5x20       | szkło          | 1.70  | Littelfuse |                 | FUSE     |
0218002.HXP       | Bezpiecznik 5 x 20 mm zwłoczny             | 2A     | 250VAC  | 5x20       | szkło          | 2.10  | Littelfuse |                 | FUSE     |
0451001.MRL       | Bezpiecznik SMD szybki                     | 1A     | 125V    | 2410       |                | 2.40  | Littelfuse |                 | FUSE     |
MF-R050           | Bezpiecznik polimerowy                     | 500mA  | 60V     | MF-R050    | PTC            | 1.30  | Bourns     | bourns:mfr      | PTC      |
MF-R110           | Bezpiecznik polimerowy                     | 1.1A   | 30V     | MF-R110    | PTC            | 1.50  | Bourns     | bourns:mfr      | PTC      |
MF-MSMF050-2      | Bezpiecznik polimerowy SMD                 | 500mA  | 15V     | 1812       | PTC            | 1.40  | Bourns     | bourns:mfmsmf   | PTC      |
1206L050YR        | Bezpiecznik polimerowy SMD                 | 500mA  | 13.2V   | 1206       | PTC            | 1.20  | Littelfuse |                 | PTC      |
0031.8201         | Oprawka bezpiecznika 5 x 20 mm do druku    | 10A    | 500V    | OGN        |                | 3.80  | Schurter   |                 | FUSE     | fuse clip
B72210S0271K101   | Warystor S10K275                           | 430V   | 275VAC  | D10 P7.5   | 43J            | 1.30  | TDK        |                 | VARISTOR | surge
"""


def warehouse():
    """The groups of the store; chapters of the KTM: passives, semiconductors, circuits, the rest."""
    groups = [
        Group("Rezystory SMD 0603", CPV["resistor"], "01.01", resistors_0603()),
        Group("Rezystory SMD 0805", CPV["resistor"], "01.02", resistors_0805()),
        Group("Rezystory przewlekane, potencjometry i termistory", CPV["resistor"], "01.03",
              resistors_with_leads()),
        Group("Kondensatory ceramiczne", CPV["capacitor"], "01.04", ceramic_capacitors()),
        Group("Kondensatory elektrolityczne, tantalowe i foliowe", CPV["capacitor"], "01.05",
              parts(OTHER_CAPACITORS, lib="CAP_POL")),
        Group("Dławiki i koraliki ferrytowe", CPV["component"], "01.06", parts(INDUCTORS, lib="IND")),
        Group("Rezonatory kwarcowe i ceramiczne", CPV["crystal"], "01.07", parts(CRYSTALS, lib="XTAL")),
        Group("Diody", CPV["diode"], "02.01", parts(DIODES, lib="DIODE")),
        Group("Tranzystory", CPV["transistor"], "02.02", parts(TRANSISTORS)),
        Group("Diody LED i transoptory", CPV["optocoupler"], "02.03", parts(OPTOELECTRONICS)),
        Group("Mikrokontrolery", CPV["microprocessor"], "03.01", parts(MICROCONTROLLERS)),
        Group("Wzmacniacze i komparatory", CPV["ic"], "03.02", parts(AMPLIFIERS)),
        Group("Stabilizatory i przetwornice", CPV["ic"], "03.03", parts(REGULATORS)),
        Group("Układy logiczne i sterowniki mocy", CPV["ic"], "03.04", parts(LOGIC)),
        Group("Interfejsy, pamięci i czujniki", CPV["ic"], "03.05", parts(INTERFACES)),
        Group("Złącza", CPV["connector"], "04.01", parts(CONNECTORS, lib="CONN")),
        Group("Przekaźniki i przełączniki", CPV["relay"], "05.01", parts(RELAYS_AND_SWITCHES)),
        Group("Bezpieczniki i warystory", CPV["fuse"], "05.02", parts(FUSES)),
    ]
    for group in groups:
        for ordinal, material in enumerate(group.materials, 1):
            keep_store(material, ktm_index(group.cpv, group.place, ordinal), group.cpv)
    return groups


# --- The service, mechanics and author databases --------------------------------------------------

OWN_COMPANY = "Pracownia Elektroniki Sosna"
COURIER = "Kurier Modra Rzeka"
BOARD_MAKER = "Płytki Nadodrze"
SCREW_SHOP = "Brzozowski & Syn"
CABLE_SHOP = "Kablohurt Świder"

SHIPMENTS = (
    ("Przesyłka kurierska krajowa do 5 kg", 18.50),
    ("Przesyłka kurierska krajowa do 30 kg", 29.00),
    ("Przesyłka paletowa krajowa", 185.00),
    ("Przesyłka ekspresowa krajowa, doręczenie do 10:00", 64.00),
    ("Przesyłka kurierska UE do 5 kg", 79.00),
    ("Przesyłka kurierska UE do 30 kg", 168.00),
    ("Przesyłka lotnicza spoza UE do 5 kg", 240.00),
    ("Odbiór własny, koszt dojazdu", 95.00),
    ("Ubezpieczenie przesyłki", 12.00),
    ("Opakowanie i przygotowanie ładunku", 35.00),
)


def service_material(ktm, cpv, name, price, unit, dealer, description):
    return Material(name, price, description, cpv=cpv, unit=unit, ktm=ktm, average=price,
                    added="08.01.2024", rohs="NIE", dealers=[Source(dealer, ktm)])


def service():
    """The materials that stand for work and transport; the program knows them by their KTM."""
    board = service_material("SRV-001.100", CPV["pcb"], "Wykonanie płytki drukowanej", 420.00, "set",
                             BOARD_MAKER, "Obwód drukowany według dokumentacji zamawiającego")
    board.rohs = "TAK"
    return [
        Group("Transport", CPV["courier"], "", [
            service_material(f"SRV-000.10{number}", CPV["courier"], name, price, "set", COURIER,
                             f"Transport, pozycja {number + 1}")
            for number, (name, price) in enumerate(SHIPMENTS)]),
        Group("Płytki drukowane", CPV["pcb"], "", [board]),
        Group("Serwis i naprawy", CPV["repair"], "", [
            service_material("SRV-000.001", CPV["repair"], "Usługa serwisowa", 250.00, "pcs.",
                             OWN_COMPANY, "Naprawa lub kalibracja przyrządu, za sztukę")]),
    ]


SCREWS = """
name                      | what                                          | case     | value | other      | price | unit
ISO 4762 M2,5x8 A2        | Śruba z łbem walcowym, gniazdo sześciokątne    | M2,5x8   | M2,5  | stal A2-70 | 0.14  |
ISO 4762 M3x6 A2          | Śruba z łbem walcowym, gniazdo sześciokątne    | M3x6     | M3    | stal A2-70 | 0.09  |
ISO 4762 M3x8 A2          | Śruba z łbem walcowym, gniazdo sześciokątne    | M3x8     | M3    | stal A2-70 | 0.09  |
ISO 4762 M3x12 A2         | Śruba z łbem walcowym, gniazdo sześciokątne    | M3x12    | M3    | stal A2-70 | 0.11  |
ISO 4762 M4x10 A2         | Śruba z łbem walcowym, gniazdo sześciokątne    | M4x10    | M4    | stal A2-70 | 0.16  |
ISO 7045 M3x6 Zn          | Wkręt z łbem walcowym wypukłym, krzyżowy       | M3x6     | M3    | stal 4.8 Zn | 0.05 |
ISO 7046 M3x8 Zn          | Wkręt z łbem stożkowym, krzyżowy               | M3x8     | M3    | stal 4.8 Zn | 0.05 |
ISO 4017 M5x16 Zn         | Śruba z łbem sześciokątnym, gwint do łba       | M5x16    | M5    | stal 8.8 Zn | 0.18 |
"""

NUTS = """
name                      | what                                          | case     | value | other      | price | cpv
ISO 4032 M3 A2            | Nakrętka sześciokątna                          | M3       | M3    | stal A2    | 0.05  |
ISO 4032 M4 A2            | Nakrętka sześciokątna                          | M4       | M4    | stal A2    | 0.07  |
ISO 10511 M3 A2           | Nakrętka samohamowna niska                     | M3       | M3    | stal A2    | 0.14  |
ISO 7089 3 A2             | Podkładka płaska                               | M3       | M3    | stal A2    | 0.03  | washer
ISO 7089 4 A2             | Podkładka płaska                               | M4       | M4    | stal A2    | 0.04  | washer
DIN 127 B 3 A2            | Podkładka sprężysta                            | M3       | M3    | stal A2    | 0.04  | washer
"""

SPACERS = """
name                      | what                                          | case     | value | other            | price | cpv
Tuleja M3x10 FF           | Tuleja dystansowa sześciokątna, gwint wewn.    | M3x10    | M3    | mosiądz niklowany | 0.85 |
Tuleja M3x20 FF           | Tuleja dystansowa sześciokątna, gwint wewn.    | M3x20    | M3    | mosiądz niklowany | 1.25 |
Tuleja M3x10 MF PA        | Tuleja dystansowa sześciokątna, wewn. i zewn.  | M3x10    | M3    | poliamid         | 0.40  | plastic
"""

ENCLOSURES = """
name                      | what                                          | case           | other     | price | maker   | sheet
1590A                     | Obudowa aluminiowa odlewana                    | 92 x 38 x 31 mm | IP54     | 34.00 | Hammond | hammond:1590A
1590B                     | Obudowa aluminiowa odlewana                    | 112 x 60 x 31 mm | IP54    | 39.00 | Hammond | hammond:1590B
1590BB                    | Obudowa aluminiowa odlewana                    | 119 x 94 x 34 mm | IP54    | 52.00 | Hammond | hammond:1590BB
"""

CABLES = """
name                      | what                                          | value         | voltage  | other      | price | unit | cpv
Koszulka 1,6/0,8 czarna   | Koszulka termokurczliwa 2:1                    | 1,6/0,8 mm    |          | poliolefina | 1.10 | m    | sleeve
Koszulka 3,2/1,6 czarna   | Koszulka termokurczliwa 2:1                    | 3,2/1,6 mm    |          | poliolefina | 1.60 | m    | sleeve
Koszulka 6,4/3,2 czarna   | Koszulka termokurczliwa 2:1                    | 6,4/3,2 mm    |          | poliolefina | 2.90 | m    | sleeve
H05V-K 0,5 czarny         | Przewód jednożyłowy, linka                     | 0,5 mm²       | 300/500V | PVC        | 0.95  | m    | wire
H05V-K 0,5 czerwony       | Przewód jednożyłowy, linka                     | 0,5 mm²       | 300/500V | PVC        | 0.95  | m    | wire
H05V-K 0,75 czarny 100 m  | Przewód jednożyłowy, linka, krążek 100 m       | 0,75 mm²      | 300/500V | PVC        | 115.00 | reel | wire
LiYCY 4x0,25              | Przewód sterowniczy ekranowany                 | 4 x 0,25 mm²  |          | PVC, ekran Cu | 4.80 | m   | signal cable
RG174/U                   | Przewód koncentryczny 50Ω                      | 50Ω           |          | PVC        | 3.90  | m    | coaxial
"""

SUPPLIES = """
name                      | what                                          | value      | other        | price  | unit  | rohs | risk    | cpv
Spoiwo Sn60Pb40 0,7 mm    | Spoiwo lutownicze z topnikiem, ołowiowe        | 0,7 mm     | topnik 2,5 % | 210.00 | kg    | NIE  | WYSOKIE | solder
Spoiwo Sn99,3Cu0,7 0,8 mm | Spoiwo lutownicze z topnikiem, bezołowiowe     | 0,8 mm     | topnik 2,2 % | 265.00 | kg    |      |         | solder
Alkohol izopropylowy      | Do mycia płytek po lutowaniu                   | 99,8 %     | UWAGA: łatwopalny | 24.00 | liter | NIE | NISKIE | alcohol
Pasta termoprzewodząca    | Silikonowa, do radiatorów                      | 0,9 W/(m·K) |             | 0.12   | g     |      |         | lubricant
Taśma poliimidowa 12 mm   | Taśma samoprzylepna żaroodporna, rolka 33 m    | 12 mm      | do 260 °C    | 19.50  | reel  |      |         | tape
"""


def mechanics():
    groups = [
        (Group("Śruby i wkręty", CPV["screw"], "06.01", parts(SCREWS)), (SCREW_SHOP,)),
        (Group("Nakrętki i podkładki", CPV["nut"], "06.02", parts(NUTS)), (SCREW_SHOP,)),
        (Group("Tuleje dystansowe", CPV["spacer"], "06.03", parts(SPACERS)), (SCREW_SHOP, "TME")),
        (Group("Obudowy", CPV["enclosure"], "06.04", parts(ENCLOSURES)), DEALERS),
        (Group("Przewody i koszulki", CPV["wire"], "06.05", parts(CABLES)), (CABLE_SHOP,)),
        (Group("Materiały pomocnicze", CPV["solder"], "06.06", parts(SUPPLIES)), ("TME", "Farnell")),
    ]
    for group, dealers in groups:
        for ordinal, material in enumerate(group.materials, 1):
            material.footprints = ()
            keep_store(material, ktm_index(group.cpv, group.place, ordinal), group.cpv, dealers)
    return [group for group, _ in groups]


OWN_BOARDS = """
name         | what                                          | voltage | other                 | price
PES-ZL5      | Zasilacz liniowy 5 V, płytka zmontowana        | 9-15V   | uruchomiony           | 48.00
PES-STM103   | Moduł STM32F103, płytka zmontowana             | 5V      | program rozruchowy wgrany | 79.00
PES-USB232   | Konwerter RS-232/USB, płytka zmontowana        | 5V      | uruchomiony           | 66.00
PES-PRZEK4   | Sterownik przekaźników 4-kanałowy              | 12V     | uruchomiony           | 124.00
PES-PREAMP   | Przedwzmacniacz audio stereo                   | ±15V    | S/N > 90 dB           | 152.00
"""

OWN_PARTS = """
name         | what                                          | value        | other            | price | unit | cpv
PES-WXH2-200 | Wiązka 2-żyłowa z wtykami XHP-2                | 200 mm       | 2 x 0,25 mm²     | 4.20  |      | harness
PES-WXH4-300 | Wiązka 4-żyłowa z wtykami XH                   | 300 mm       | 4 x 0,25 mm²     | 6.80  |      | harness
PES-TS10     | Transformator sieciowy nawijany                | 2 x 12V 10VA | rdzeń EI48       | 58.00 |      | transformer
PES-PC-1590B | Płyta czołowa "LAB" do obudowy 1590B           | 112 x 60 mm  | aluminium 1,5 mm | 27.00 |      | panel
PES-ETYK     | Tabliczki znamionowe, arkusz 24 szt.           | 40 x 15 mm   | folia PET        | 9.50  | package | label
"""


def author():
    groups = [
        Group("Moduły własne", CPV["module"], "90.01", parts(OWN_BOARDS)),
        Group("Wiązki, transformatory i części własne", CPV["harness"], "90.02", parts(OWN_PARTS)),
    ]
    for group in groups:
        for ordinal, material in enumerate(group.materials, 1):
            material.makers = [Source(OWN_COMPANY, material.name)]
            keep_store(material, ktm_index(group.cpv, group.place, ordinal), group.cpv, ())
    return groups


# --- The firm register ----------------------------------------------------------------------------

FIRM_MAKERS = """
name                        | fullname                                  | homepage                               | status
Advanced Monolithic Systems | Advanced Monolithic Systems, Inc.          | http://www.advanced-monolithic.com     | NIEBIESKI
Allegro MicroSystems        | Allegro MicroSystems, Inc.                 | https://www.allegromicro.com           | ZIELONY
Alpha & Omega Semiconductor | Alpha & Omega Semiconductor Limited        | https://www.aosmd.com                  | NIEBIESKI
Abracon                     | Abracon LLC                                | https://abracon.com                    | ZIELONY
Amphenol                    | Amphenol Corporation                       | https://www.amphenol.com               | ZIELONY
Analog Devices              | Analog Devices, Inc.                       | https://www.analog.com                 | ZIELONY
Bosch Sensortec             | Bosch Sensortec GmbH                       | https://www.bosch-sensortec.com        | ZIELONY
Bourns                      | Bourns, Inc.                               | https://www.bourns.com                 | ZIELONY
Broadcom                    | Broadcom Inc.                              | https://www.broadcom.com               | ZIELONY
C&K                         | C&K Switches                               | https://www.ckswitches.com             | ZIELONY
Coilcraft                   | Coilcraft, Inc.                            | https://www.coilcraft.com              | NIEBIESKI
CUI Devices                 | CUI Devices                                | https://www.cuidevices.com             | NIEBIESKI
Diodes Incorporated         | Diodes Incorporated                        | https://www.diodes.com                 | ZIELONY
Epson                       | Seiko Epson Corporation                    | https://global.epson.com               | ZIELONY
Espressif                   | Espressif Systems (Shanghai) Co., Ltd.     | https://www.espressif.com              | ZIELONY
Finder                      | Finder S.p.A.                              | https://www.findernet.com              | ZIELONY
FTDI                        | Future Technology Devices International Ltd | https://ftdichip.com                  | ZIELONY
GCT                         | Global Connector Technology Ltd            | https://gct.co                         | NIEBIESKI
Hammond Manufacturing       | Hammond Manufacturing Ltd.                 | https://www.hammfg.com                 | ZIELONY
Hirose                      | Hirose Electric Co., Ltd.                  | https://www.hirose.com                 | ZIELONY
Infineon                    | Infineon Technologies AG                   | https://www.infineon.com               | ZIELONY
JST                         | J.S.T. Mfg. Co., Ltd.                      | https://www.jst-mfg.com                | ZIELONY
KEMET                       | KEMET Corporation                          | https://www.kemet.com                  | ZIELONY
KYOCERA AVX                 | KYOCERA AVX Components Corporation         | https://www.kyocera-avx.com            | ZIELONY
Lite-On                     | Lite-On Technology Corporation             | https://optoelectronics.liteon.com     | NIEBIESKI
Littelfuse                  | Littelfuse, Inc.                           | https://www.littelfuse.com             | ZIELONY
MEAN WELL                   | MEAN WELL Enterprises Co., Ltd.            | https://www.meanwell.com               | ZIELONY
Microchip                   | Microchip Technology Inc.                  | https://www.microchip.com              | ZIELONY
Molex                       | Molex, LLC                                 | https://www.molex.com                  | ZIELONY
Murata                      | Murata Manufacturing Co., Ltd.             | https://www.murata.com                 | ZIELONY
NDK                         | Nihon Dempa Kogyo Co., Ltd.                | https://www.ndk.com                    | NIEBIESKI
Nexperia                    | Nexperia B.V.                              | https://www.nexperia.com               | ZIELONY
Nichicon                    | Nichicon Corporation                       | https://www.nichicon.co.jp             | ZIELONY
NXP                         | NXP Semiconductors N.V.                    | https://www.nxp.com                    | ZIELONY
Omron                       | OMRON Corporation                          | https://components.omron.com           | ZIELONY
onsemi                      | ON Semiconductor Corporation               | https://www.onsemi.com                 | ZIELONY
Panasonic                   | Panasonic Industry Co., Ltd.               | https://industrial.panasonic.com       | ZIELONY
Phoenix Contact             | Phoenix Contact GmbH & Co. KG              | https://www.phoenixcontact.com         | ZIELONY
Raspberry Pi                | Raspberry Pi Ltd                           | https://www.raspberrypi.com            | ZIELONY
RECOM                       | RECOM Power GmbH                           | https://recom-power.com                | NIEBIESKI
Relpol                      | Relpol S.A.                                | https://www.relpol.com.pl              | ZIELONY
Samsung Electro-Mechanics   | Samsung Electro-Mechanics Co., Ltd.        | https://www.samsungsem.com             | ZIELONY
Schurter                    | SCHURTER Holding AG                        | https://www.schurter.com               | ZIELONY
Sharp                       | Sharp Corporation                          | https://global.sharp                   | SZARY
Silicon Labs                | Silicon Laboratories Inc.                  | https://www.silabs.com                 | ZIELONY
Songle                      | Ningbo Songle Relay Co., Ltd.              | http://www.songle.com                  | SZARY
STMicroelectronics          | STMicroelectronics N.V.                    | https://www.st.com                     | ZIELONY
TDK                         | TDK Corporation                            | https://www.tdk.com                    | ZIELONY
TE Connectivity             | TE Connectivity plc                        | https://www.te.com                     | ZIELONY
Texas Instruments           | Texas Instruments Incorporated             | https://www.ti.com                     | ZIELONY
Traco Power                 | Traco Electronic AG                        | https://www.tracopower.com             | ZIELONY
TXC                         | TXC Corporation                            | https://www.txccorp.com                | SZARY
Vishay                      | Vishay Intertechnology, Inc.               | https://www.vishay.com                 | ZIELONY
WIMA                        | WIMA GmbH & Co. KG                         | https://www.wima.de                    | ZIELONY
Winbond                     | Winbond Electronics Corporation            | https://www.winbond.com                | ZIELONY
WIZnet                      | WIZnet Co., Ltd.                           | https://wiznet.io                      | NIEBIESKI
Würth Elektronik            | Würth Elektronik eiSos GmbH & Co. KG       | https://www.we-online.com              | ZIELONY
Yageo                       | Yageo Corporation                          | https://www.yageo.com                  | ZIELONY
Pracownia Elektroniki Sosna | Pracownia Elektroniki Sosna Sp. z o.o.     | https://sosna.example.com              | ZIELONY
"""

FIRM_DEALERS = """
name                        | fullname                                       | business                       | homepage                      | status    | nip
TME                         | Transfer Multisort Elektronik Sp. z o.o.        | Dystrybutor elektroniki         | https://www.tme.eu            | ZIELONY   |
Mouser                      | Mouser Electronics, Inc.                        | Dystrybutor elektroniki         | https://www.mouser.com        | ZIELONY   |
Digi-Key                    | Digi-Key Electronics                            | Dystrybutor elektroniki         | https://www.digikey.com       | ZIELONY   |
Farnell                     | Farnell element14                               | Dystrybutor elektroniki         | https://pl.farnell.com        | ZIELONY   |
RS Components               | RS Components Sp. z o.o.                        | Dystrybutor elektroniki         | https://pl.rs-online.com      | NIEBIESKI |
Maritex                     | Maritex                                         | Dystrybutor elektroniki         | https://www.maritex.com.pl    | NIEBIESKI |
Brzozowski & Syn            | Hurtownia Śrub "Brzozowski & Syn" s.c.          | Elementy złączne                | https://brzozowski.example.com | ZIELONY  | 99910204
Kablohurt Świder            | Kablohurt Świder Sp. z o.o.                     | Przewody i osprzęt kablowy      | https://kablohurt.example.com | ZIELONY   | 99920318
Kurier Modra Rzeka          | Modra Rzeka Usługi Kurierskie Sp. z o.o.        | Przewóz przesyłek               | https://modra.example.com     | NIEBIESKI | 99930427
Płytki Nadodrze             | Płytki Nadodrze Obwody Drukowane Sp. z o.o.     | Produkcja obwodów drukowanych   | https://nadodrze.example.com  | ZIELONY   | 99940536
Pracownia Elektroniki Sosna | Pracownia Elektroniki Sosna Sp. z o.o.          | Projektowanie i serwis          | https://sosna.example.com     | ZIELONY   | 99950645
"""

NIP_WEIGHTS = (6, 5, 7, 2, 3, 4, 5, 6, 7)


def nip(beginning):
    """A tax number with a valid check digit from its first eight digits.

    The ninth is the first one that leaves a check digit below ten; numbers with ten are not issued.
    """
    for ninth in "123456789":
        digits = beginning + ninth
        check = sum(weight * int(digit) for weight, digit in zip(NIP_WEIGHTS, digits)) % 11
        if check < 10:
            return digits + str(check)
    raise ValueError(f"no tax number begins with {beginning}")


def write_firm_list(writer, list_name, table, used, business=""):
    known = {row["name"]: row for row in rows(table)}
    if known.keys() != used:
        raise ValueError(f"{list_name}: firms and materials differ in {sorted(known.keys() ^ used)}")
    writer.start(list_name)
    for number, (name, row) in enumerate(sorted(known.items(), key=lambda item: item[0].casefold())):
        writer.start("firm")
        writer.text("name", name)
        writer.text("fullname", row["fullname"])
        writer.text("status", row["status"])
        writer.text("business", row.get("business") or business)
        writer.text("homepage", row["homepage"])
        writer.text("awatar", 1 + number % 5)
        writer.text("nip", nip(row["nip"]) if row.get("nip") else "")
        writer.end()
    writer.end()


def write_firms(path, databases):
    materials = [m for groups in databases for group in groups for m in group.materials]
    with document(path, "kiv_mat_firm", "KIV_MAT_FIRM_1") as writer:
        writer.text("server_release", 11)
        write_firm_list(writer, "manufacturers", FIRM_MAKERS,
                        {source.name for m in materials for source in m.makers},
                        "Wytwórca elementów elektronicznych")
        write_firm_list(writer, "suppliers", FIRM_DEALERS,
                        {source.name for m in materials for source in m.dealers})


# --- BOM lists ------------------------------------------------------------------------------------

# Category, group, file, and the board's lines: material and where it sits on the board.
BOARDS = (
    ("Zasilanie", "Zasilacze liniowe", "zasilacz_liniowy_5v", """
        J1 J2      : 1715721
        FH1        : 0031.8201
        F1         : 0217.500HXP
        D1-D4      : 1N4007
        C1         : UVR1E102MPD
        C2 C3      : MKS2C031001A00KSSD
        U1         : L7805CV
        C4         : UVR1E470MDD
        R1         : MFR-25FBF52-330R
        D5         : TLHG5400
    """),
    ("Moduły cyfrowe", "Mikrokontrolery", "modul_stm32f103", """
        U1         : STM32F103C8T6
        U2         : AMS1117-3.3
        U3         : USBLC6-2SC6
        Y1         : ABLS-8.000MHZ-B4-T
        Y2         : ABS07-32.768KHZ-T
        C1 C2      : GRM1885C1H220JA01D
        C3 C4      : GRM1885C1H180JA01D
        C5-C10     : GRM188R71H104KA93D
        C11 C12    : CL21A106KAYNNNE
        R1 R2 R8   : RC0603FR-0710KL
        R3         : RC0603FR-071K5L
        R4 R5      : RC0603FR-0722RL
        R6 R7      : RC0603FR-071KL
        LD1        : 150060RS75000
        LD2        : 150060GS75000
        F1         : MF-MSMF050-2
        J1         : 47346-0001
        J2 J3      : 61302011121
        J4         : 61300411121
        SW1        : PTS645SM43SMTR92 LFS
    """),
    ("Moduły cyfrowe", "Interfejsy", "konwerter_rs232_usb", """
        U1         : FT232RL-REEL
        U2         : MAX3232IDR
        C1 C2 C4-C8 : GRM188R71H104KA93D
        C3         : GRM188R61A475KE15D
        C9 C10     : GRM1885C1H470JA01D
        FB1        : BLM18PG121SN1D
        R1 R2      : RC0603FR-0727RL
        R3 R4      : RC0603FR-07680RL
        LD1        : LTST-C190GKT
        LD2        : LTST-C190KRKT
        F1         : MF-MSMF050-2
        J1         : 292304-1
        J2         : L77SDE09SA4CH4F
    """),
    ("Moduły cyfrowe", "Interfejsy", "sterownik_przekaznikow", """
        U1         : ATMEGA328P-PU
        U2         : ULN2003AN
        U3-U6      : PC817X2NSZ9F
        U7         : L7805CV
        K1-K4      : SRD-05VDC-SL-C
        Y1         : ABLS-16.000MHZ-B4-T
        C1 C2      : GRM1885C1H220JA01D
        C3-C6      : GRM188R71H104KA93D
        C7         : UVR1V471MPD
        R1-R4      : MFR-25FBF52-2K2
        R5-R9      : MFR-25FBF52-10K
        R10-R13    : MFR-25FBF52-470R
        D1         : 1N4007
        LD1-LD4    : TLHR5400
        J1-J4      : 1715734
        J5 J6      : 1715721
        J7         : 61300621121
    """),
    ("Analogowe & audio", "Wzmacniacze", "przedwzmacniacz_audio", """
        U1 U2      : NE5532P
        C1-C4      : MKS2C041001F00KSSD
        C5-C8      : MKS2C031001A00KSSD
        C9-C12     : UVR1H100MDD
        R1-R4      : MFR-25FBF52-47K
        R5-R10     : MFR-25FBF52-10K
        R11 R12    : MFR-25FBF52-100R
        RV1 RV2    : PTV09A-4025U-B103
        J1 J2      : SJ1-3523N
        J3         : B3B-XH-A(LF)(SN)
        J4         : ? 317999-99.99-00001 Gniazdo RCA podwójne, pozłacane
    """),
)

# Kept as an empty place for the user's own boards.
EMPTY_BOARD_GROUPS = (("Zasilanie", "Przetwornice impulsowe"),)


def designators(text):
    """"C1 C4-C6" gives C1, C4, C5, C6."""
    found = []
    for word in text.split():
        first, _, last = word.partition("-")
        letters = first.rstrip("0123456789")
        if not last:
            found.append(first)
            continue
        for number in range(int(first[len(letters):]), int(last[len(letters):]) + 1):
            found.append(f"{letters}{number}")
    return found


def write_boards(folder, by_name, known_ktms):
    categories = {}
    for category, group, file_name, lines in BOARDS:
        categories.setdefault(category, {}).setdefault(group, []).append(f"boms/{file_name}.xml")
        with document(folder / "boms" / f"{file_name}.xml", "kiv_mat_bom", "KIV_MAT_BOM_1") as writer:
            writer.text("update", TODAY)
            writer.comment(" ")
            for line in lines.strip().splitlines():
                places, _, name = (part.strip() for part in line.partition(" : "))
                if name.startswith("? "):
                    # A part that was never entered: the program has to say so.
                    ktm, name = name[2:].split(" ", 1)
                    if ktm in known_ktms:
                        raise ValueError(f"{ktm} should be unknown")
                else:
                    ktm = by_name[name].ktm
                found = designators(places)
                writer.start("material")
                writer.text("d_ktm", ktm)
                writer.text("d_name", name)
                writer.text("d_quantity", len(found))
                writer.text("d_designator", ", ".join(found))
                writer.end()
    for category, group in EMPTY_BOARD_GROUPS:
        categories.setdefault(category, {}).setdefault(group, [])
    with document(folder / "boms.xml", "kiv_mat_boms", "KIV_MAT_BOMS_1", "kiv_mat_boms.xsd") as writer:
        writer.text("update", TODAY)
        writer.text("server_release", 9)
        writer.comment(" ")
        for category, groups in categories.items():
            writer.start("category", name=category)
            for group, files in groups.items():
                writer.start("group", name=group)
                for name in files:
                    writer.empty("file", type="FILE_XML", name=name)
                writer.end()
            writer.end()


# --- The configuration ----------------------------------------------------------------------------

PERSONS = """
type              | working_begin | position                     | etat | name                      | department              | mail            | phone
PERSON_AUTHOR     | 01.09.2014    | Starszy konstruktor           | 1    | Agnieszka Malinowska-Żak  | Dział Konstrukcyjny      | a.malinowska    | wew. 214
PERSON_AUTHOR     | 15.03.2019    | Konstruktor                   | 1    | Zbigniew "Zibi" Wrona     | Dział Konstrukcyjny      | z.wrona         | wew. 217
PERSON_AUTHOR     | 02.11.2022    | Programista systemów wbudowanych | 3/4 | Paweł Ćwikła             | Laboratorium R&D         | p.cwikla        | wew. 231
PERSON_APPROVED   | 01.02.2008    | Kierownik działu              | 1    | Halina Świątek            | Dział Konstrukcyjny      | h.swiatek       | wew. 201
PERSON_APPROVED   | 01.10.2011    | Główny technolog              | 1    | Tomasz Łabędź             | Produkcja & Serwis       | t.labedz        | wew. 305
PERSON_CONTRACTOR | 17.06.2016    | Specjalista ds. zakupów       | 1    | Ewa Grześkowiak           | Dział Zakupów            | e.grzeskowiak   | wew. 118
PERSON_CONTRACTOR | 04.01.2021    | Referent ds. zamówień publicznych | 1/2 | Krzysztof Jóźwiak       | Dział Zakupów            | k.jozwiak       | wew. 119
PERSON_ADMIN      | 01.07.2012    | Administrator baz danych      | 1    | Marek Dąb                 | Dział IT                 | m.dab           | wew. 150
"""

TARGETS = """
priorytet | name         | description
1         | 312-00012026 | Sterownik pompy – prototyp
1         | 312-00022026 | Sterownik pompy – seria próbna 20 szt.
2         | 312-00072026 | Zasilacz laboratoryjny < 30 V
2         | 315-00032026 | Modernizacja stanowiska testów "EMC-2"
3         | 318-00112026 | Serwis i naprawy gwarancyjne
4         | 900-00002026 | Magazyn – uzupełnienie zapasów
"""


def person(kind):
    return next(row for row in rows(PERSONS) if row["type"] == kind)


def person_option(kind):
    chosen = person(kind)
    return chosen["name"], f"tel. {chosen['phone']}"


# The captions are those of the program's option list, slips of the pen included.
CAPTIONS = {
    "EDIT_ZP": "Edycja ZP",
    "EDIT_CONFIG": "Edycja pliku konfiguracyjnego",
    "EDIT_DATABASE": "Edycja baz danych materiałów",
    "EDIT_FIRM": "Edycja bazy danych producentówi dostawców",
    "OPEN_REPORT_HTML": "Automatyczne otwieranie plików raportów",
    "FONT_NAME": "Nazwa czcionki",
    "FONT_SIZE": "Rozmiar czcionki",
    "THRESHOLD_LOW": "Próg dolny [%]",
    "THRESHOLD_AVERAGE": "Próg średni [%]",
    "THRESHOLD_HIGH": "Próg wysoki [%]",
    "ORDER_TARGET": "Zlecenie",
    "ORDER_DATE_ADD": "Termin realizacji ZP",
    "ORDER_NUMBER": "Numer ZP",
    "ORDER_DATE": "Data wystawienia ZP",
    "PERSON_AUTHOR": "Autor",
    "PERSON_APPROVED": "Osoba zatwierdzająca",
    "PERSON_CONTRACTOR": "Wykonujący",
    "PERSON_ADMIN": "Administrator",
    "FILE_CONFIG": "Plik konfiguracji",
    "FILE_DB_WAREHOUSE": "Plik bazy danych wearhouse",
    "FILE_DB_SERVICE": "Plik bazy danych service",
    "FILE_DB_AUTHOR": "Plik bazy danych author",
    "FILE_DB_MECHANICS": "Plik bazy danych mechanics",
    "FILE_FIRM": "Plik bazy producentów i dostawców",
    "FILE_BOMS": "Plik bazy danychplików bom",
    "FILE_NEWZP": "Nowe ZP",
    "FILE_LASTZP": "Ostatnie ZP",
    "LOAD_DB_WAREHOUSE": "Ładowanie bazy danych wearhouse",
    "LOAD_DB_SERVICE": "Ładowanie bazy danych service",
    "LOAD_DB_AUTHOR": "Ładowanie bazy danych author",
    "LOAD_DB_MECHANICS": "Ładowanie bazy danych mechaniki",
    "LOAD_BOMS": "Ładowanie bazy danych plików bom",
    "SERVER_NAME": "",
    "SERVER_USER_NAME": "",
    "SERVER_USER_PASSWORD": "",
}

# Not named here and so left to the program: EMAIL_MAPI, which works by being there, and PATH_BACKUP,
# whose default depends on the machine.
OPTIONS = """
EDIT_ZP              | TAK
EDIT_CONFIG          | TAK
EDIT_DATABASE        | TAK
EDIT_FIRM            | TAK
OPEN_REPORT_HTML     | NIE
FONT_NAME            | Arial
FONT_SIZE            | 14 | px
THRESHOLD_LOW        | 25 | %
THRESHOLD_AVERAGE    | 50 | %
THRESHOLD_HIGH       | 75 | %
ORDER_TARGET         | xxx-xxxxxxxx
ORDER_DATE_ADD       | 14 | days
ORDER_NUMBER         | ZP/13/2026
ORDER_DATE           | 24.11.2026
PERSON_AUTHOR        |
PERSON_APPROVED      |
PERSON_CONTRACTOR    |
PERSON_ADMIN         |
FILE_CONFIG          | _config/kiv_mat_config.xml
FILE_DB_WAREHOUSE    | _files/db_warehouse.xml
FILE_DB_SERVICE      | _files/db_service.xml
FILE_DB_AUTHOR       | _files/db_author.xml
FILE_DB_MECHANICS    | _files/db_mechanics.xml
FILE_FIRM            | _files/firms.xml
FILE_BOMS            | _files/boms.xml
FILE_NEWZP           | _zp/zp_new.xml
FILE_LASTZP          | _zp/zp_0.xml
LOAD_DB_WAREHOUSE    | TAK
LOAD_DB_SERVICE      | TAK
LOAD_DB_AUTHOR       | TAK
LOAD_DB_MECHANICS    | TAK
LOAD_BOMS            | TAK
SERVER_NAME          |
SERVER_USER_NAME     |
SERVER_USER_PASSWORD |
"""


def write_option(writer, kind, value1, value2="", unit=""):
    writer.empty("option", editable="YES", type=kind, value1=value1, value2=value2, unit=unit,
                 description=CAPTIONS[kind])


def write_config(path):
    with document(path, "kiv_config", "KIV_CONFIG_1", "kiv.xsd") as writer:
        writer.start("options")
        for line in OPTIONS.strip().splitlines():
            kind, value, *unit = (cell.strip() for cell in line.split("|"))
            if kind.startswith("PERSON_"):
                write_option(writer, kind, *person_option(kind))
            else:
                write_option(writer, kind, value, unit=unit[0] if unit else "")
        writer.end()
        writer.start("persons")
        for row in rows(PERSONS):
            row["link"] = f"mailto:{row['mail']}@example.com"
            writer.empty("person", **{key: row[key] for key in (
                "type", "working_begin", "position", "etat", "name", "department", "link", "phone")})
        writer.end()
        writer.start("targets")
        for row in rows(TARGETS):
            writer.empty("target", priorytet=row["priorytet"], type="ORDER_TARGET", name=row["name"],
                         description=row["description"])
        writer.end()


# --- The order ------------------------------------------------------------------------------------

# "wait" is the day on which the part is needed, or NIE when it need not be waited for.
ORDER_LINES = """
material           | quantity | target       | wait       | delivery             | invoice              | attentions
STM32F103C8T6      | 25       | 312-00012026 | 30.11.2026 | ZAM/331/2026 17.11.2026 |                   | Tylko oryginał ST, bez układów "zgodnych"
AMS1117-3.3        | 25       | 312-00012026 | 30.11.2026 | ZAM/331/2026 17.11.2026 |                   |
ABLS-8.000MHZ-B4-T | 25       | 312-00012026 | 30.11.2026 | ZAM/331/2026 17.11.2026 |                   |
GRM188R71H104KA93D | 4000     | 900-00002026 | NIE        | ZAM/332/2026 17.11.2026 | FV 1182/11/2026 20.11.2026 | Pełna rolka
RC0603FR-0710KL    | 5000     | 900-00002026 | 30.11.2026 | ZAM/332/2026 17.11.2026 | FV 1182/11/2026 20.11.2026 | Pełna rolka
RC0603FR-074K7L    | 5000     | 900-00002026 | 30.11.2026 | ZAM/332/2026 17.11.2026 | FV 1182/11/2026 20.11.2026 |
WSL2512R0100FEA    | 60       | 312-00022026 | 11.12.2026 |                      |                      | R = 10 mΩ ±1 %, TCR <= 75 ppm/°C & obciążalność >= 1 W
LM358DR            | 100      | 900-00002026 | 30.11.2026 |                      |                      |
LM2596S-5.0/NOPB   | 20       | 312-00022026 | 11.12.2026 |                      |                      | Nie zamawiać zamienników XL2596
SRR1260-330M       | 20       | 312-00022026 | 11.12.2026 |                      |                      |
SS34               | 50       | 312-00022026 | 11.12.2026 |                      |                      |
IRLZ44N            | 40       | 312-00072026 | 15.12.2026 |                      |                      | Jedna partia (ten sam "date code")
PC817X2NSZ9F       | 80       | 312-00012026 |            |                      |                      |
SRD-05VDC-SL-C     | 24       | 312-00012026 |            |                      |                      |
1715734            | 48       | 312-00012026 |            |                      |                      | Kolor zielony
0217.500HXP        | 100      | 318-00112026 |            |                      |                      |
ISO 4762 M3x8 A2   | 500      | 900-00002026 |            |                      |                      |
Spoiwo Sn60Pb40 0,7 mm | 2    | 318-00112026 |            |                      |                      | Do napraw wyrobów sprzed 2006 r. – wyłączenie RoHS
RG174/U            | 25       | 315-00032026 | 15.12.2026 |                      |                      | Jeden odcinek <25 m>
Wykonanie płytki drukowanej | 1 | 312-00012026 | 30.11.2026 |                    |                      | FR-4 1,6 mm, 2 warstwy, 25 szt.; pliki "pompa_rev_B"
Przesyłka kurierska krajowa do 5 kg | 1 | 900-00002026 |  |                      |                      |
"""

# A price typed in by hand the Polish way; the program reads both forms.
PRICE_WITH_COMMA = "LM2596S-5.0/NOPB"

ORDER_ATTENTIONS = """\
<p>Proszę o realizację zamówienia w terminie <b>do 30.11.2026</b>; pozycje z późniejszą datą mogą \
przyjść osobną dostawą.</p>
<ul>
<li>Materiały fabrycznie nowe, w oryginalnych opakowaniach &amp; z etykietą producenta.</li>
<li>Zamienniki <b>tylko</b> po uzgodnieniu z autorem zamówienia.</li>
<li>Deklaracje RoHS dołączyć do dostawy (nie dotyczy spoiwa ołowiowego).</li>
</ul>
<p>Dokumenty: numer ZP/12/2026 na fakturze i liście przewozowym.</p>"""


def write_order(path, by_name):
    with document(path, "kiv_mat_zp", "KIV_MAT_ZP_1") as writer:
        writer.start("options")
        for kind in ("PERSON_AUTHOR", "PERSON_APPROVED", "PERSON_CONTRACTOR"):
            write_option(writer, kind, *person_option(kind))
        write_option(writer, "ORDER_TARGET", "312-00012026")
        write_option(writer, "ORDER_NUMBER", "ZP/12/2026")
        write_option(writer, "ORDER_DATE", ORDER_DATE)
        writer.end()
        writer.start("order_items")
        for number, row in enumerate(rows(ORDER_LINES), 1):
            m = by_name[row["material"]]
            price = money(m.price)
            writer.start("order_item")
            writer.text("index", number)
            writer.text("name", m.name)
            writer.text("price", price.replace(".", ",") if m.name == PRICE_WITH_COMMA else price)
            writer.text("average_price", money(m.average))
            writer.text("in_warehouse", m.stock)
            writer.text("quantity", row["quantity"])
            writer.text("unit", m.unit)
            writer.text("wait", row["wait"])
            writer.text("description", m.description)
            writer.text("rohs_required", m.rohs)
            writer.text("target", row["target"])
            writer.text("ktm", m.ktm)
            writer.text("cpv", m.cpv)
            writer.text("delivery", row["delivery"])
            writer.text("invoice", row["invoice"])
            writer.text("attentions", row["attentions"])
            writer.end()
        writer.end()
        writer.text("attentions", ORDER_ATTENTIONS)


# --- The large database ---------------------------------------------------------------------------

# Part numbers follow the makers' schemes; not every combination of value, voltage and size is made,
# so some parts exist here alone.

@dataclass(slots=True)
class Family:
    """A group of the large database, and the function that yields its materials one by one."""
    name: str
    cpv: str
    make: object


def chip_footprints(letter, size):
    return f"{letter}_{size}", f"{letter}_{size}_HS", f"{letter}_{size}_L"


CHIP_RATINGS = {"0402": ("63mW", "50V", 0.02), "0603": ("100mW", "75V", 0.03),
                "0805": ("125mW", "150V", 0.05), "1206": ("250mW", "200V", 0.08),
                "1210": ("500mW", "200V", 0.22), "2512": ("1W", "200V", 0.60)}
PANASONIC_SIZES = {"0402": ("2RK", "X"), "0603": ("3EK", "V"), "0805": ("6EN", "V"),
                   "1206": ("8EN", "V"), "1210": ("14N", "U"), "2512": ("1TN", "U")}
KOA_SIZES = {"0402": "1E", "0603": "1J", "0805": "2A", "1206": "2B", "1210": "2E", "2512": "3A"}
ROHM_SIZES = {"0402": "01MZPF", "0603": "03EZPFX", "0805": "10EZPF", "1206": "18EZPF"}

CHIP_RESISTORS = (  # maker, series, tolerance, values, price factor, sizes, part number
    ("Yageo", "RC", "±1%", E96, 1.0, CHIP_RATINGS, lambda s, r: f"RC{s}FR-07{short_ohm_code(r)}L"),
    ("Yageo", "RC", "±5%", E24, 0.8, CHIP_RATINGS, lambda s, r: f"RC{s}JR-07{short_ohm_code(r)}L"),
    ("Yageo", "AC", "±1%", E96, 1.6, CHIP_RATINGS, lambda s, r: f"AC{s}FR-07{short_ohm_code(r)}L"),
    ("Yageo", "RT", "±0.1%", E96, 12, ROHM_SIZES, lambda s, r: f"RT{s}BRD07{short_ohm_code(r)}L"),
    ("Vishay", "CRCW", "±1%", E96, 1.2, CHIP_RATINGS, lambda s, r: f"CRCW{s}{long_ohm_code(r)}FKEA"),
    ("Vishay", "CRCW", "±5%", E24, 1.0, CHIP_RATINGS, lambda s, r: f"CRCW{s}{long_ohm_code(r)}JNEA"),
    ("Vishay", "TNPW", "±0.1%", E96, 14, ROHM_SIZES, lambda s, r: f"TNPW{s}{long_ohm_code(r)}BEEA"),
    ("Panasonic", "ERJ", "±1%", E96, 1.3, CHIP_RATINGS,
     lambda s, r: f"ERJ-{PANASONIC_SIZES[s][0]}F{digit_ohm_code(r)}{PANASONIC_SIZES[s][1]}"),
    ("Panasonic", "ERA", "±0.1%", E96, 13, ROHM_SIZES,
     lambda s, r: f"ERA-{PANASONIC_SIZES[s][0][0]}AEB{digit_ohm_code(r)}V"),
    ("KOA Speer", "RK73H", "±1%", E96, 1.3, CHIP_RATINGS,
     lambda s, r: f"RK73H{KOA_SIZES[s]}TTD{digit_ohm_code(r)}F"),
    ("KOA Speer", "RK73B", "±5%", E24, 1.0, CHIP_RATINGS,
     lambda s, r: f"RK73B{KOA_SIZES[s]}TTD{three_digit_code(r, 1)}J"),
    ("Bourns", "CR", "±1%", E96, 1.1, CHIP_RATINGS, lambda s, r: f"CR{s}-FX-{digit_ohm_code(r)}ELF"),
    ("Stackpole", "RMCF", "±1%", E96, 0.9, CHIP_RATINGS, lambda s, r: f"RMCF{s}FT{long_ohm_code(r)}"),
    ("ROHM", "MCR", "±1%", E96, 1.2, ROHM_SIZES,
     lambda s, r: f"MCR{ROHM_SIZES[s]}{digit_ohm_code(r)}"),
    ("TE Connectivity", "CRGCQ", "±1%", E96, 1.1, CHIP_RATINGS,
     lambda s, r: f"CRGCQ{s}F{short_ohm_code(r)}"),
)

LEADED_RESISTORS = (  # maker, series, power, voltage, price, part number
    ("Yageo", "MFR-25", "250mW", "250V", 0.12, lambda r: f"MFR-25FBF52-{short_ohm_code(r)}"),
    ("Yageo", "MFR-50", "500mW", "350V", 0.20, lambda r: f"MFR-50FBF52-{short_ohm_code(r)}"),
    ("Vishay", "MRS25", "600mW", "350V", 0.30, lambda r: f"MRS25000C{digit_ohm_code(r)}FCT00"),
    ("Vishay", "MBB0207", "600mW", "350V", 0.45, lambda r: f"MBB02070C{digit_ohm_code(r)}FCT00"),
    ("TE Connectivity", "LR1F", "600mW", "350V", 0.25, lambda r: f"LR1F{short_ohm_code(r)}"),
)


def resistor_families():
    def leaded(maker, power, voltage, price, number, values):
        for ohms in values:
            name, value = number(ohms), with_prefix(ohms, "Ω")
            yield Material(name, price, f"Rezystor metalizowany {value} ±1% {power}", value, "0207", power,
                           voltage, "", "±1%", "50ppm/°C", library="RES",
                           footprints=("R_0207_P10", "R_0207_V"), makers=[Source(maker, name)])

    def make(maker, tolerance, factor, size, number, values):
        power, voltage, price = CHIP_RATINGS[size]
        sheet = {"Yageo": "yageo rc:", "Vishay": "vishay:20035/dcrcwe3",
                 "Panasonic": "panasonic erj:"}.get(maker, "")
        for ohms in values:
            name, value = number(size, ohms), with_prefix(ohms, "Ω")
            yield Material(name, price * factor, f"Rezystor {value} {tolerance} {power} {size}", value,
                           size, power, voltage, "", tolerance, "100ppm/°C", library="RES",
                           footprints=chip_footprints("R", size),
                           makers=[Source(maker, name, datasheet=datasheet(sheet))])

    for maker, series, tolerance, steps, factor, sizes, number in CHIP_RESISTORS:
        ranges = ((1, 10e6),) if steps is E24 else ((1, 100), (100, 10e3), (10e3, 10e6))
        for size in sizes:
            for low, high in ranges:
                values = decade_values(steps, low, high)
                yield Family(f"Rezystory SMD {size} {tolerance} {maker} {series}, "
                             f"{with_prefix(values[0], 'Ω')} do {with_prefix(values[-1], 'Ω')}",
                             CPV["resistor"],
                             lambda arguments=(maker, tolerance, factor, size, number, values):
                             make(*arguments))
    for maker, series, power, voltage, price, number in LEADED_RESISTORS:
        for low, high in ((1, 100), (100, 10e3), (10e3, 1.1e6)):
            values = decade_values(E96, low, high)
            yield Family(f"Rezystory przewlekane ±1% {maker} {series}, {with_prefix(values[0], 'Ω')} "
                         f"do {with_prefix(values[-1], 'Ω')}", CPV["resistor"],
                         lambda arguments=(maker, power, voltage, price, number, values):
                         leaded(*arguments))


EIA_VOLTAGES = {4: "0G", 6.3: "0J", 10: "1A", 16: "1C", 25: "1E", 35: "1V", 50: "1H", 63: "1J",
                100: "2A"}
CERAMIC_RANGES = {  # smallest value and, by size, the first one too large
    "C0G": (1e-12, {"0402": 1e-9, "0603": 4.7e-9, "0805": 22e-9, "1206": 100e-9, "1210": 220e-9}),
    "X7R": (100e-12, {"0402": 220e-9, "0603": 2.2e-6, "0805": 10e-6, "1206": 22e-6, "1210": 47e-6}),
    "X5R": (10e-9, {"0402": 10e-6, "0603": 22e-6, "0805": 47e-6, "1206": 100e-6, "1210": 100e-6}),
}
CERAMIC_VOLTAGES = {"C0G": (25, 50, 100), "X7R": (10, 16, 25, 50, 100), "X5R": (6.3, 10, 16, 25, 50)}

# maker: size, dielectric, voltage, and the form in which they make a part number with value "c"
# (three digits) and tolerance "t"
CERAMIC_CODES = {
    "Murata": ({"0402": "155", "0603": "188", "0805": "21B", "1206": "31M", "1210": "32D"},
               {"C0G": "5C", "X7R": "R7", "X5R": "R6"}, EIA_VOLTAGES, "GRM{s}{d}{v}{c}{t}A01D"),
    "Samsung Electro-Mechanics": (
        {"0402": "05", "0603": "10", "0805": "21", "1206": "31", "1210": "32"},
        {"C0G": "C", "X7R": "B", "X5R": "A"},
        {6.3: "Q", 10: "P", 16: "O", 25: "A", 50: "B", 100: "C"}, "CL{s}{d}{c}{t}{v}8NNNC"),
    "Yageo": ({size: size for size in CHIP_RATINGS},
              {"C0G": "NPO", "X7R": "X7R", "X5R": "X5R"},
              {6.3: "5", 10: "6", 16: "7", 25: "8", 50: "9", 100: "0"}, "CC{s}{t}R{d}{v}BB{c}"),
    "TDK": ({"0402": "1005", "0603": "1608", "0805": "2012", "1206": "3216", "1210": "3225"},
            {"C0G": "C0G", "X7R": "X7R", "X5R": "X5R"}, EIA_VOLTAGES, "C{s}{d}{v}{c}{t}080AA"),
    "KEMET": ({size: size for size in CHIP_RATINGS}, {"C0G": "G", "X7R": "R", "X5R": "P"},
              {6.3: "9", 10: "8", 16: "4", 25: "3", 50: "5", 100: "1"}, "C{s}C{c}{t}{v}{d}ACTU"),
    "KYOCERA AVX": ({size: size for size in CHIP_RATINGS}, {"C0G": "A", "X7R": "C", "X5R": "D"},
                    {6.3: "6", 10: "Z", 16: "Y", 25: "3", 50: "5", 100: "1"},
                    "{s}{v}{d}{c}{t}AT2A"),
    "Walsin": ({size: size for size in CHIP_RATINGS}, {"C0G": "N", "X7R": "B", "X5R": "X"},
               {6.3: "6R3", 10: "100", 16: "160", 25: "250", 50: "500", 100: "101"},
               "{s}{d}{c}{t}{v}CT"),
}


def ceramic_families():
    def make(maker, size, dielectric):
        sizes, dielectrics, voltages, form = CERAMIC_CODES[maker]
        lowest, limits = CERAMIC_RANGES[dielectric]
        letter, tolerance = ("J", "±5%") if dielectric == "C0G" else ("K", "±10%")
        for farads in decade_values(E12, lowest, limits[size]):
            for volts in CERAMIC_VOLTAGES[dielectric]:
                name = form.format(s=sizes[size], d=dielectrics[dielectric], v=voltages[volts],
                                   c=three_digit_code(farads, 1e-12), t=letter)
                value = with_prefix(farads, "F")
                yield Material(name, 0.03 + 60e3 * farads * (1 + volts / 50),
                               f"Kondensator ceramiczny {value} {volts}V {dielectric} {size}", value,
                               size, "", f"{volts}V", "", tolerance, dielectric, library="CAP",
                               footprints=chip_footprints("C", size), makers=[Source(maker, name)])

    for maker in CERAMIC_CODES:
        for dielectric, (_, limits) in CERAMIC_RANGES.items():
            for size in limits:
                yield Family(f"Kondensatory ceramiczne {size} {dielectric} {maker}", CPV["capacitor"],
                             lambda arguments=(maker, size, dielectric): make(*arguments))


ELECTROLYTICS = (
    ("Panasonic", "EEU-FR", "EEU-FR{v}{c}"), ("Panasonic", "EEU-FC", "EEU-FC{v}{c}"),
    ("Panasonic", "EEU-FM", "EEU-FM{v}{c}"), ("Panasonic", "EEE-FK", "EEE-FK{v}{c}P"),
    ("Panasonic", "EEE-FT", "EEE-FT{v}{c}AP"), ("Nichicon", "UVR", "UVR{v}{c}MDD"),
    ("Nichicon", "UPW", "UPW{v}{c}MPD"), ("Nichicon", "UHE", "UHE{v}{c}MPD"),
    ("Nichicon", "UWT", "UWT{v}{c}MCL1GS"),
)
TANTALS = (("KYOCERA AVX", "TAJ", "TAJ{case}{c}K{v:03d}RNJ", ""),
           ("KEMET", "T491", "T491{case}{c}K{v:03d}AT", "kemet:KEM_T2005_T491"))


def polar_capacitor_families():
    def electrolytic(maker, form):
        for farads in decade_values(E6, 1e-6, 15e-3):
            for volts in (6.3, 10, 16, 25, 35, 50, 63, 100):
                name = form.format(v=EIA_VOLTAGES[volts], c=three_digit_code(farads, 1e-6))
                value = with_prefix(farads, "F")
                yield Material(name, 0.15 + 900 * farads * (1 + volts / 20),
                               f"Kondensator elektrolityczny {value} {volts}V ±20% 105°C", value,
                               "SMD" if name.startswith(("EEE", "UWT")) else "radialny", "",
                               f"{volts}V", "", "±20%", "105°C", library="CAP_POL",
                               footprints=("CAP_POL",), makers=[Source(maker, name)])

    def tantal(maker, form, case, sheet):
        for farads in decade_values(E6, 0.1e-6, 680e-6):
            for volts in (4, 6.3, 10, 16, 20, 25, 35):
                name = form.format(case=case, c=three_digit_code(farads, 1e-12), v=int(volts))
                value = with_prefix(farads, "F")
                yield Material(name, 0.80 + 9e3 * farads * (1 + volts / 20),
                               f"Kondensator tantalowy {value} {volts}V ±10% obudowa {case}", value,
                               case, "", f"{volts}V", "", "±10%", "MnO2", library="CAP_POL",
                               footprints=(f"CT_{case}", f"CT_{case}_HS"),
                               makers=[Source(maker, name, datasheet=datasheet(sheet))])

    for maker, series, form in ELECTROLYTICS:
        yield Family(f"Kondensatory elektrolityczne {maker} {series}", CPV["capacitor"],
                     lambda arguments=(maker, form): electrolytic(*arguments))
    for maker, series, form, sheet in TANTALS:
        for case in "ABCD":
            yield Family(f"Kondensatory tantalowe {case} {maker} {series}", CPV["capacitor"],
                         lambda arguments=(maker, form, case, sheet): tantal(*arguments))


INDUCTOR_SERIES = (  # maker, series, sizes, part number, lowest and highest value, base of the code
    ("Bourns", "SRN", ("3015", "4018", "5040", "6045", "8040"), "SRN{size}-{c}M", 1e-6, 1e-3),
    ("Bourns", "SRR", ("4018", "5028", "6028", "1208", "1260"), "SRR{size}-{c}M", 1e-6, 1e-3),
    ("Bourns", "SRP", ("2512", "4020", "5030", "7028", "1265"), "SRP{size}A-{c}M", 0.1e-6, 100e-6),
    ("Coilcraft", "MSS", ("5131", "6132", "7341", "1038", "1260"), "MSS{size}-{k}MLB", 1e-6, 1e-3),
    ("Coilcraft", "XAL", ("4020", "4040", "5030", "6060", "7070"), "XAL{size}-{k}MEB", 0.1e-6, 100e-6),
    ("TDK", "VLS", ("2012", "3012", "4012", "5045", "6045"), "VLS{size}EX-{c}M", 1e-6, 100e-6),
)


def inductor_families():
    def make(maker, sizes, form, low, high):
        for size in sizes:
            for henries in decade_values(E12, low, high):
                code = three_digit_code(henries, 1e-6)
                if "{k}" in form:  # counted in nanohenries: 333 is 33 µH
                    code = three_digit_code(henries, 1e-9)
                elif henries < 0.99e-6:
                    code = f"R{round(henries * 1e8):02d}"
                name, value = form.format(size=size, c=code, k=code), with_prefix(henries, "H")
                yield Material(name, 1.10 + int(size[:2]) / 25, f"Dławik mocy SMD {value} ±20%", value,
                               size, "", "", "", "±20%", "ekranowany", library="IND",
                               footprints=(f"L_{size}", f"L_{size}_HS"),
                               makers=[Source(maker, name)])

    for maker, series, sizes, form, low, high in INDUCTOR_SERIES:
        yield Family(f"Dławiki mocy {maker} {series}", CPV["component"],
                     lambda arguments=(maker, sizes, form, low, high): make(*arguments))


FREQUENCIES = (4, 4.096, 4.9152, 5, 6, 7.3728, 8, 8.192, 9.8304, 10, 11.0592, 12, 12.288, 13.56, 14.31818,
               14.7456, 15, 16, 16.384, 18, 18.432, 19.2, 19.6608, 20, 22.1184, 24, 24.576, 25, 26, 27,
               27.12, 28.63636, 30, 32, 33.3333, 36, 38.4, 40, 48, 50)


def crystal_families():
    def make(series, case):
        for megahertz in FREQUENCIES:
            for load in (8, 10, 12, 18, 20):
                name = f"{series}-{max(f'{megahertz:.3f}', f'{megahertz:g}', key=len)}MHZ-{load}-B4-T"
                yield Material(name, 1.90, f"Rezonator kwarcowy {megahertz:g}MHz, CL = {load}pF",
                               f"{megahertz:g}MHz", case, other=f"CL={load}pF", library="XTAL",
                               footprints=(f"XTAL_{case}",),
                               makers=[Source("Abracon", name, datasheet=datasheet(f"abracon:{series}"))])

    for series, case in (("ABLS", "HC-49S"), ("ABM3B", "5032"), ("ABM7", "6035"), ("ABM8", "3225"),
                         ("ABM8G", "3225"), ("ABM10", "2520")):
        yield Family(f"Rezonatory kwarcowe {case} Abracon {series}", CPV["crystal"],
                     lambda arguments=(series, case): make(*arguments))


ZENERS = (("Nexperia", "BZX84", "SOT-23", "250mW", "BZX84-{t}{v},215"),
          ("Nexperia", "BZX384", "SOD-323", "300mW", "BZX384-{t}{v},115"),
          ("Nexperia", "BZX585", "SOD-523", "300mW", "BZX585-{t}{v},115"),
          ("Nexperia", "BZV55", "SOD-80C", "500mW", "BZV55-{t}{v},115"),
          ("Nexperia", "BZX79", "DO-35", "400mW", "BZX79-{t}{v},113"),
          ("Vishay", "BZX55", "DO-35", "500mW", "BZX55{t}{v}-TAP"),
          ("Vishay", "BZX85", "DO-41", "1.3W", "BZX85{t}{v}-TR"))
TVS_VOLTAGES = ("5.0 6.0 6.5 7.0 7.5 8.0 8.5 9.0 10 11 12 13 14 15 16 17 18 20 22 24 26 28 30 33 36 40 43 45 "
                "48 51 54 58 60 64 70 75 78 85 90 100 110 120 130 150 160 170").split()
TVS_SERIES = (("SMAJ", "SMA", "400W", 0.70), ("SMBJ", "SMB", "600W", 0.85), ("SMCJ", "SMC", "1500W", 1.60),
              ("SMDJ", "SMC", "3000W", 3.40))
TVS_MAKERS = (("Littelfuse", ""), ("Vishay", "-E3/52"), ("Diodes Incorporated", "-13-F"))


def diode_families():
    def zener(maker, case, power, form):
        for grade, tolerance in (("B", "±2%"), ("C", "±5%")):
            for volts in decade_values(E24, 2.4, 80):
                code = f"{volts:g}" if volts >= 10 else f"{volts:.1f}".replace(".", "V")
                name = form.format(t=grade, v=code)
                yield Material(name, 0.16, f"Dioda Zenera {volts:g}V {tolerance} {power}", f"{volts:g}V",
                               case, power, f"{volts:g}V", "", tolerance, library="ZENER",
                               footprints=(case, f"{case}_HS"), makers=[Source(maker, name)])

    def suppressor(series, case, power, price):
        for maker, ending in TVS_MAKERS:
            for volts in TVS_VOLTAGES:
                for ways, what in (("A", "jednokierunkowy"), ("CA", "dwukierunkowy")):
                    name = f"{series}{volts}{ways}{ending}"
                    yield Material(name, price, f"Transil {what} {volts}V {power}", f"{volts}V", case,
                                   power, f"{volts}V", other=what, library="TVS",
                                   footprints=(case, f"{case}_HS"), makers=[Source(maker, name)])

    for maker, series, case, power, form in ZENERS:
        yield Family(f"Diody Zenera {case} {maker} {series}", CPV["zener"],
                     lambda arguments=(maker, case, power, form): zener(*arguments))
    for series, case, power, price in TVS_SERIES:
        yield Family(f"Transile {power} {series}", CPV["surge"],
                     lambda arguments=(series, case, power, price): suppressor(*arguments))


LOGIC_FUNCTIONS = ("00 02 04 08 10 11 14 20 21 27 30 32 42 74 86 125 126 132 138 139 151 153 157 158 161 163 "
                   "164 165 166 174 175 193 240 241 244 245 257 259 273 367 373 374 393 541 573 574 "
                   "595").split()
LOGIC_KINDS = (("HC", "2-6V"), ("HCT", "4.5-5.5V"), ("AC", "2-6V"), ("ACT", "4.5-5.5V"), ("AHC", "2-5.5V"),
               ("AHCT", "4.5-5.5V"), ("LS", "4.75-5.25V"), ("F", "4.5-5.5V"), ("LV", "2-5.5V"),
               ("LVC", "1.65-3.6V"))
LOGIC_CASES = (("N", "DIP"), ("DR", "SOIC"), ("PWR", "TSSOP"), ("NSR", "SOP"))

STM32 = (  # line, core, part numbers up to the pin count
    ("F0", "Cortex-M0", "F030 F031 F042 F051 F072 F091"), ("F1", "Cortex-M3", "F100 F101 F102 F103 F105"),
    ("F3", "Cortex-M4F", "F301 F302 F303 F334 F373"), ("F4", "Cortex-M4F", "F401 F405 F407 F411 F446"),
    ("G0", "Cortex-M0+", "G030 G031 G071 G0B1"), ("G4", "Cortex-M4F", "G431 G441 G474 G491"),
    ("L0", "Cortex-M0+", "L011 L031 L051 L053 L073"), ("L4", "Cortex-M4F", "L412 L431 L433 L452 L476"),
    ("H7", "Cortex-M7", "H723 H743 H750 H7A3"))
STM32_PINS = (("F", 20), ("K", 32), ("C", 48), ("R", 64), ("V", 100), ("Z", 144))
STM32_FLASH = (("6", 32), ("8", 64), ("B", 128), ("C", 256), ("E", 512))

REGULATOR_SERIES = (
    ("Microchip", "MCP1700T-{d}02E/TT", "SOT-23", 6), ("Microchip", "MCP1702T-{d}02E/CB", "SOT-23A", 13),
    ("TI", "TLV702{d}DBVR", "SOT-23-5", 5.5), ("TI", "TLV713{d}PDBVR", "SOT-23-5", 5.5),
    ("Torex", "XC6206P{d}2MR-G", "SOT-23", 6), ("Diodes", "AP2112K-{v}TRG1", "SOT-23-5", 6))


def circuit_families():
    def logic(kind, voltage):
        for function in LOGIC_FUNCTIONS:
            for ending, case in LOGIC_CASES:
                name = f"SN74{kind}{function}{ending}"
                sheet = datasheet(f"ti:sn74{kind.lower()}{function}")
                yield Material(name, 1.40, f"Układ logiczny 74{kind}{function}, obudowa {case}", "", case,
                               "", voltage, library=f"74{kind}{function}", footprints=(case, f"{case}_HS"),
                               makers=[Source("Texas Instruments", name, datasheet=sheet)])

    def microcontrollers(core, models):
        for model in models:
            for pin_letter, pins in STM32_PINS:
                for flash_letter, kilobytes in STM32_FLASH:
                    for package, case in (("T", "LQFP"), ("U", "UFQFPN")):
                        name = f"STM32{model}{pin_letter}{flash_letter}{package}6"
                        yield Material(name, 4 + pins / 6 + kilobytes / 16,
                                       f"Mikrokontroler {core}, {kilobytes}kB Flash, {pins} wyprowadzeń",
                                       "", f"{case}-{pins}", "", "2-3.6V", other=f"{kilobytes}kB Flash",
                                       library=f"STM32{model}{pin_letter}x", footprints=(f"{case}-{pins}",),
                                       makers=[Source("STMicroelectronics", name)])

    def regulators(series):
        for maker, form, case, highest in series:
            for tenths in range(12, 51):
                name = form.format(d=tenths, v=tenths / 10)
                yield Material(name, 1.20, f"Stabilizator LDO {tenths / 10}V, {case}", f"{tenths / 10}V", case,
                               "", f"{highest}V", library="REG_LDO", footprints=(case, f"{case}_HS"),
                               makers=[Source(MAKERS.get(maker, maker), name)])

    for kind, voltage in LOGIC_KINDS:
        yield Family(f"Układy logiczne 74{kind}", CPV["ic"],
                     lambda arguments=(kind, voltage): logic(*arguments))
    for line, core, models in STM32:
        yield Family(f"Mikrokontrolery STM32{line}", CPV["microprocessor"],
                     lambda arguments=(core, models.split()): microcontrollers(*arguments))
    yield Family("Stabilizatory LDO", CPV["ic"], lambda: regulators(REGULATOR_SERIES))


SAMTEC_SERIES = (("TSW", 2.54), ("SSW", 2.54), ("TSM", 2.54), ("SSM", 2.54), ("HTSW", 2.54), ("ESQ", 2.54),
                 ("BCS", 2.54), ("SSQ", 2.54), ("TMM", 2.0), ("SQT", 2.0), ("MMT", 2.0), ("SMM", 2.0),
                 ("TMS", 1.27), ("FTS", 1.27), ("SFM", 1.27), ("TFM", 1.27))
JST_FORMS = (("XH", 2.5, "B{n}B-XH-A(LF)(SN)"), ("XH", 2.5, "S{n}B-XH-A(LF)(SN)"), ("XH", 2.5, "XHP-{n}"),
             ("PH", 2.0, "B{n}B-PH-K-S(LF)(SN)"), ("PH", 2.0, "S{n}B-PH-K-S(LF)(SN)"), ("PH", 2.0, "PHR-{n}"),
             ("EH", 2.5, "B{n}B-EH-A(LF)(SN)"), ("EH", 2.5, "S{n}B-EH(LF)(SN)"), ("EH", 2.5, "EHR-{n}"),
             ("ZH", 1.5, "B{n}B-ZR(LF)(SN)"), ("ZH", 1.5, "S{n}B-ZR(LF)(SN)"), ("ZH", 1.5, "ZHR-{n}"))


def connector_families():
    def headers(series, pitch, count, letter):
        for positions in range(2, 37):
            for lead in ("01", "02"):
                for plating, what in (("G", "złocone"), ("L", "częściowo złocone"), ("T", "cynowane")):
                    name = f"{series}-1{positions:02d}-{lead}-{plating}-{letter}"
                    yield Material(name, 0.60 + 0.22 * positions * count,
                                   f"Złącze {pitch} mm, {count} x {positions}, styki {what}",
                                   f"{count}x{positions}", f"{series} P{pitch}", "", "", "3A", "", what,
                                   library=f"CONN_{count}x{positions}",
                                   footprints=(f"{series}_{count}x{positions}",),
                                   makers=[Source("Samtec", name)])

    def jst():
        for series, pitch, form in JST_FORMS:
            for positions in range(2, 17):
                number = f"{positions:02d}" if form.startswith("ZHR") else str(positions)
                name = form.format(n=number)
                yield Material(name, 0.20 + 0.09 * positions, f"Złącze {series} {pitch} mm, {positions} styków",
                               str(positions), f"{series} P{pitch}", library=f"CONN_1x{positions}",
                               footprints=(f"{series}_1x{positions}",),
                               makers=[Source("JST", name, datasheet=datasheet(f"jst:e{series}"))])

    for series, pitch in SAMTEC_SERIES:
        for count, letter, what in ((1, "S", "jednorzędowe"), (2, "D", "dwurzędowe")):
            yield Family(f"Złącza {pitch} mm {what} Samtec {series}", CPV["connector"],
                         lambda arguments=(series, pitch, count, letter): headers(*arguments))
    yield Family("Złącza JST", CPV["connector"], jst)


FINDER_SERIES = (("34.51", "6A", 1), ("36.11", "10A", 1), ("40.31", "10A", 1), ("40.51", "10A", 1),
                 ("40.52", "8A", 2), ("40.61", "16A", 1), ("41.31", "12A", 1), ("41.52", "8A", 2),
                 ("41.61", "16A", 1), ("43.41", "10A", 1), ("44.52", "6A", 2), ("46.52", "8A", 2),
                 ("46.61", "16A", 1), ("55.32", "10A", 2), ("55.34", "7A", 4))
FUSE_RATINGS = (".032 .040 .050 .063 .080 .100 .125 .160 .200 .250 .315 .400 .500 .630 .800 001. 1.25 01.6 002. "
                "02.5 3.15 004. 005. 06.3 008. 010.").split()
FUSE_SERIES = (("0213", "zwłoczny"), ("0215", "zwłoczny, ceramiczny"), ("0216", "szybki, ceramiczny"),
               ("0217", "szybki"), ("0218", "zwłoczny"), ("0219", "zwłoczny"))


def relay_and_fuse_families():
    def relays(series, current, poles):
        for kind, unit, coils in (("8", "VAC", (6, 12, 24, 48, 60, 110, 120, 230, 240)),
                                  ("9", "VDC", (5, 6, 7, 9, 12, 14, 18, 21, 24, 28, 36, 48, 60, 90, 110, 125))):
            for volts in coils:
                for contacts in ("0000", "0001", "0300", "4000", "4001", "5000"):
                    name = f"{series}.{kind}.{volts:03d}.{contacts}"
                    yield Material(name, 14 + 5 * poles, f"Przekaźnik {poles}P {current}, cewka {volts}{unit}",
                                   f"{poles}P", series, "", f"{volts}{unit}", current,
                                   library=f"RELAY_{poles}C", footprints=(f"RELAY_{series}",),
                                   makers=[Source("Finder", name)])

    def fuses(series, what):
        for rating in FUSE_RATINGS:
            for ending in ("HXP", "MXP", "MXEP", "HXF11P"):
                name = f"{series}{rating}{ending}"
                yield Material(name, 1.80, f"Bezpiecznik 5 x 20 mm {what} {float(rating):g}A", f"{float(rating):g}A",
                               "5x20", "", "250VAC", f"{float(rating):g}A", other=what, library="FUSE",
                               footprints=("FUSE_5x20",), makers=[Source("Littelfuse", name)])

    for series, current, poles in FINDER_SERIES:
        yield Family(f"Przekaźniki {current} Finder {series}", CPV["relay"],
                     lambda arguments=(series, current, poles): relays(*arguments))
    for series, what in FUSE_SERIES:
        yield Family(f"Bezpieczniki 5 x 20 mm {what} Littelfuse {series}", CPV["fuse"],
                     lambda arguments=(series, what): fuses(*arguments))


SCREW_KINDS = (("ISO 4762", "Śruby z łbem walcowym imbusowe"), ("ISO 4014", "Śruby z łbem sześciokątnym"),
               ("ISO 4017", "Śruby z gwintem do łba"), ("ISO 7045", "Wkręty z łbem walcowym wypukłym"),
               ("ISO 7046", "Wkręty z łbem stożkowym"), ("ISO 7047", "Wkręty z łbem soczewkowym"),
               ("ISO 7380", "Śruby z łbem kulistym"), ("ISO 10642", "Śruby stożkowe imbusowe"),
               ("ISO 2009", "Wkręty stożkowe z rowkiem"), ("ISO 1207", "Wkręty walcowe z rowkiem"))
SCREW_STEELS = (("8.8 Zn", 1.0), ("A2-70", 1.7), ("A4-80", 2.6), ("PA66", 1.3))
SCREW_THREADS = (2, 2.5, 3, 4, 5, 6, 8, 10)
SCREW_LENGTHS = (4, 5, 6, 8, 10, 12, 14, 16, 18, 20, 25, 30, 35, 40, 45, 50, 55, 60, 70, 80, 90, 100)
COLOURS = ("biały", "brązowy", "zielony", "żółty", "szary", "różowy", "niebieski", "czerwony", "czarny",
           "fioletowy", "zielono-żółty")
WIRES = (("H05V-K", "300/500V"), ("H05V-U", "300/500V"), ("H07V-K", "450/750V"), ("H07V-U", "450/750V"),
         ("H05Z-K", "300/500V"), ("H07Z-K", "450/750V"))
CABLES_BY_CORES = ("LiYY", "LiYCY", "LiYCY-P", "LiHH", "LiHCH", "YSLY", "YSLY-JZ", "YSLYCY", "JZ-500", "H05VV-F")
SLEEVES = ("poliolefina 2:1", "poliolefina 3:1 z klejem", "PVDF 2:1", "silikon 2:1")


def hardware_families():
    def screws(standard, what, steel, factor):
        for thread in SCREW_THREADS:
            for length in SCREW_LENGTHS:
                name = f"{standard} M{thread:g}x{length} {steel}"
                yield Material(name, factor * (0.03 + thread * thread * (length + 5) / 4000),
                               f"{what} M{thread:g}x{length}, {steel}", f"M{thread:g}", f"M{thread:g}x{length}",
                               other=steel)

    def coloured(kind, what, sizes, voltage, price):
        for size in sizes:
            for colour in COLOURS:
                for metres in (1, 100):
                    name = f"{kind} {size} {colour}" + (f" {metres} m" if metres > 1 else "")
                    yield Material(name, price * metres * (0.5 + float(size.split("/")[0])),
                                   f"{what} {size}, {colour}", size, voltage=voltage, other=colour,
                                   unit="reel" if metres > 1 else "m")

    def cables(kind):
        for cores in (2, 3, 4, 5, 6, 7, 8, 10, 12, 14, 16, 18, 20, 25):
            for section in (0.14, 0.25, 0.34, 0.5, 0.75, 1, 1.5, 2.5):
                for metres in (1, 100):
                    name = f"{kind} {cores}x{section:g}" + (f" {metres} m" if metres > 1 else "")
                    yield Material(name, metres * (0.6 + 0.9 * cores * section),
                                   f"Przewód wielożyłowy {kind}, {cores} x {section:g} mm²",
                                   f"{cores} x {section:g} mm²", voltage="300/500V",
                                   unit="reel" if metres > 1 else "m")

    for standard, what in SCREW_KINDS:
        for steel, factor in SCREW_STEELS:
            yield Family(f"{what} {standard}, {steel}", CPV["screw"],
                         lambda arguments=(standard, what, steel, factor): screws(*arguments))
    for kind, voltage in WIRES:
        sizes = ("0.5", "0.75", "1", "1.5", "2.5", "4", "6", "10", "16", "25")
        yield Family(f"Przewody jednożyłowe {kind}", CPV["wire"],
                     lambda arguments=(kind, "Przewód jednożyłowy", sizes, voltage, 0.9): coloured(*arguments))
    for kind in CABLES_BY_CORES:
        yield Family(f"Przewody wielożyłowe {kind}", CPV["signal cable"], lambda kind=kind: cables(kind))
    for kind in SLEEVES:
        sizes = ("1.2/0.6", "1.6/0.8", "2.4/1.2", "3.2/1.6", "4.8/2.4", "6.4/3.2", "9.5/4.8", "12.7/6.4",
                 "19/9.5", "25.4/12.7")
        yield Family(f"Koszulki termokurczliwe {kind}", CPV["sleeve"],
                     lambda arguments=(f"Koszulka {kind}", "Koszulka termokurczliwa", sizes, "", 0.5):
                     coloured(*arguments))


def all_families():
    for families in (resistor_families, ceramic_families, polar_capacitor_families, inductor_families,
                     crystal_families, diode_families, circuit_families, connector_families,
                     relay_and_fuse_families, hardware_families):
        yield from families()


def plan_large(size):
    """Which families a database of that size has, and how many materials each: about 200 a group."""
    families = list(all_families())
    capacities = [sum(1 for _ in family.make()) for family in families]
    if size > sum(capacities):
        raise ValueError(f"at most {sum(capacities)} different materials can be made")
    count = min(len(families), max(min(size, 10), round(size / 200)))
    while True:
        chosen = [number * len(families) // count for number in range(count)]
        capacity = sum(capacities[number] for number in chosen)
        if capacity >= size:
            break
        count += 1
    quotas = [capacities[number] * size // capacity for number in chosen]
    missing = size - sum(quotas)
    for place, number in enumerate(chosen):
        if missing and quotas[place] < capacities[number]:
            quotas[place] += 1
            missing -= 1
    return [(families[number], capacities[number], quota) for number, quota in zip(chosen, quotas) if quota]


def spread(materials, capacity, quota):
    """So many of the materials, evenly spaced."""
    taken = 0
    for position, material in enumerate(materials):
        if taken < quota and position == taken * capacity // quota:
            taken += 1
            yield material


def write_large(path, size):
    """One group after the other goes to the disk: memory does not grow with the size."""
    plan = plan_large(size)
    with database(path, 1) as writer:
        for number, (family, capacity, quota) in enumerate(plan):
            # Chapters from 10 on are free of the sample's own.
            place = f"{10 + number // 100:02d}.{number % 100:02d}"
            materials = spread(family.make(), capacity, quota)
            write_group(writer, family.name, family.cpv,
                        (keep_store(material, ktm_index(family.cpv, place, ordinal), family.cpv)
                         for ordinal, material in enumerate(materials, 1)))
    return len(plan)


# --- The sample set -------------------------------------------------------------------------------

def index_by_name(databases):
    """All materials by name; a name or KTM that stands twice would make the sample ambiguous."""
    materials = [m for groups in databases for group in groups for m in group.materials]
    by_name = {m.name: m for m in materials}
    ktms = {m.ktm for m in materials}
    if len(by_name) != len(materials) or len(ktms) != len(materials):
        raise ValueError("a name or a KTM is used twice")
    return by_name, ktms


def approve_ordered(by_name):
    """What the sample order orders may be ordered."""
    for row in rows(ORDER_LINES):
        m = by_name[row["material"]]
        if m.status in ("", "SZARY"):
            m.status, m.checked, m.approved, m.active = "NIEBIESKI", "TAK", "NIE", "TAK"
            m.comment = ""


def write_sample(root):
    databases = {"warehouse": (warehouse(), 128), "service": (service(), 6), "mechanics": (mechanics(), 31),
                 "author": (author(), 4)}
    groups_of_all = [groups for groups, _ in databases.values()]
    by_name, ktms = index_by_name(groups_of_all)
    approve_ordered(by_name)
    files = root / "_files"
    for name, (groups, release) in databases.items():
        write_database(files / f"db_{name}.xml", release, groups)
        print(f"{files / f'db_{name}.xml'}: {sum(len(g.materials) for g in groups)} materials "
              f"in {len(groups)} groups")
    write_firms(files / "firms.xml", groups_of_all)
    write_boards(files, by_name, ktms)
    write_config(root / "_config" / "kiv_mat_config.xml")
    write_order(root / "_zp" / "zp_0.xml", by_name)
    print(f"{files / 'firms.xml'}, {files / 'boms.xml'} with {len(BOARDS)} boards, "
          f"{root / '_config' / 'kiv_mat_config.xml'}, {root / '_zp' / 'zp_0.xml'}")


def positive(text):
    number = int(text)
    if number < 1:
        raise argparse.ArgumentTypeError("a number from 1 on is wanted")
    return number


def main():
    parser = argparse.ArgumentParser(
        description="Makes the sample data that ships with the program: configuration, material databases, "
                    "firm register, BOM lists and one order. Files of the same names are replaced.")
    parser.add_argument("--out", metavar="DIR", type=Path, default=Path(__file__).resolve().parent.parent,
                        help="folder that gets _config, _files and _zp (default: the project's root)")
    parser.add_argument("--size", metavar="N", type=positive,
                        help="make one material database of N materials for benchmarks instead; wants FILE")
    parser.add_argument("file", metavar="FILE", type=Path, nargs="?", help="where the database of --size goes")
    arguments = parser.parse_args()
    if (arguments.size is None) != (arguments.file is None):
        parser.error("--size N and FILE belong together")
    try:
        if arguments.size is None:
            write_sample(arguments.out)
        else:
            groups = write_large(arguments.file, arguments.size)
            print(f"{arguments.file}: {arguments.size} materials in {groups} groups")
    except (OSError, ValueError) as error:
        sys.exit(f"{parser.prog}: {error}")


if __name__ == "__main__":
    main()
