#!/usr/bin/env python3
"""Recomputes the order that several boards make together, and what is short of stock, and compares both with kivzp-cli.

    recomputeOrder.py KIVZP_CLI PROGRAM_FOLDER

On the boards and the database that ship, and, when KIVZP_REAL_DATA is set, on real ones. Straight on the XML, with
exact fractions: needs summed over all boards, what gets lost by case, whole packages by unit, what is reserved for
other boards.
"""
import gzip
import math
import os
import re
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as xml
from fractions import Fraction
from pathlib import Path

ATTRITION = {"0402": (5, 10), "0603": (3, 0), "*": (1, 1)}  # percent, at least
MULTIPLE = {"pcs.": 5, "m": 2}
ATTRITION_TEXT = "0402: 5% 10; 0603: 3%; *: 1% 1"
MULTIPLE_TEXT = "pcs.: 5; m: 2"
RESERVED_SETS = 3

faults = 0


def number(text):
    text = (text or "").strip().replace(",", ".")
    return Fraction(text) if re.fullmatch(r"[+-]?\d+(\.\d*)?|[+-]?\.\d+", text) else None


def up(value, step):
    return Fraction(math.ceil(value / step)) * step


def materials_of(path):
    found = {}
    for element in xml.parse(path).iter("material"):
        ktm = element.findtext("d_ktm") or ""
        if ktm and ktm not in found:
            found[ktm] = element
    return found


def needs_of(boards, materials):
    needs = {}
    for path, sets in boards:
        for line in xml.parse(path).iter("material"):
            ktm, quantity = line.findtext("d_ktm") or "", number(line.findtext("d_quantity"))
            if ktm in materials and quantity is not None and quantity >= 0:
                needs[ktm] = needs.get(ktm, 0) + quantity * sets
    return needs


def unit_of(material):
    unit = (material.findtext("d_unit") or "").strip()
    return {"": "pcs.", "szt.": "pcs.", "szt": "pcs.", "pcs": "pcs."}.get(unit, unit)


def extra_of(material, need):
    if need == 0:
        return Fraction(0)
    case = re.sub(r"\s+", " ", (material.findtext("d_case") or "").strip()).lower()
    percent, least = ATTRITION.get(case, ATTRITION["*"])
    extra = max(need * percent / 100, Fraction(least))
    return up(extra, 1) if unit_of(material) == "pcs." else extra


def call(cli, folder, *arguments):
    return subprocess.run([str(folder / "kivzp-cli"), *map(str, arguments)], cwd=folder, capture_output=True, text=True)


def compare(what, wanted, got):
    global faults
    wrong = sorted(k for k in wanted.keys() | got.keys() if wanted.get(k) != got.get(k))
    print(f"{what}: {len(wanted)} materials, {len(wrong)} differ")
    for ktm in wrong[:10]:
        print(f"  {ktm}: recomputed {wanted.get(ktm)}, kivzp-cli {got.get(ktm)}")
    faults += len(wrong)
    if not wanted:
        print("  nothing was compared")
        faults += 1


def check(cli, database, boards, folder):
    materials = materials_of(database)
    plain = needs_of(boards, materials)
    whole = {k: need + extra_of(materials[k], need) for k, need in plain.items()}
    ordered = {k: up(amount, MULTIPLE.get(unit_of(materials[k]), 1)) if MULTIPLE.get(unit_of(materials[k])) else amount
               for k, amount in whole.items()}
    arguments = [f"{path}={sets}" for path, sets in boards] + ["-d", database]

    order = folder / "order.xml"
    done = call(cli, folder, "bom-order", *arguments, "-o", order)
    if done.returncode != 0:
        sys.exit(f"bom-order ended with {done.returncode}: {done.stderr}")
    lines = {line.findtext("ktm"): line for line in xml.parse(order).iter("order_item")}
    got = {k: number(line.findtext("quantity")) for k, line in lines.items()}
    compare("ordered", {k: v for k, v in ordered.items() if v > 0}, got)

    def amount(price, quantity):
        price = number(price)
        return price * quantity if price is not None else 0
    ours = sum(amount(materials[k].findtext("d_price"), v) for k, v in ordered.items())
    theirs = sum(amount(line.findtext("price"), got[k]) for k, line in lines.items())
    compare("sum", {"price": ours}, {"price": theirs})

    # The first board is reserved for; the others then find less of the stock.
    reservations = folder / "reservations.xml"
    reservations.unlink(missing_ok=True)
    done = call(cli, folder, "bom-reserve", f"{boards[0][0]}={RESERVED_SETS}", "-d", database, "-r", reservations)
    if done.returncode != 0:
        sys.exit(f"bom-reserve ended with {done.returncode}: {done.stderr}")
    reserved = {k: need + extra_of(materials[k], need)
                for k, need in needs_of([(boards[0][0], RESERVED_SETS)], materials).items()}
    short = {}
    for ktm, need in needs_of(boards[1:], materials).items():
        stock = number(materials[ktm].findtext("d_inWarehouse")) or Fraction(0)
        missing = need - max(Fraction(0), stock - reserved.get(ktm, 0))
        if missing > 0:
            short[ktm] = missing
    done = call(cli, folder, "bom-shortage", *arguments[1:], "-r", reservations)
    got = {}
    for row in done.stdout.splitlines():
        cells = row.split("\t")
        if cells[5] == "Yes":
            got[cells[0]] = number(cells[4])
    compare("short", short, got)


def configured(program, folder):
    """A folder of the program whose configuration has the rules."""
    shutil.copytree(program / "_validator", folder / "_validator")
    shutil.copytree(program / "_config", folder / "_config")
    path = folder / "_config" / "kiv_mat_config.xml"
    text = path.read_text(encoding="utf-8")
    for key, value in (("BOM_ATTRITION", ATTRITION_TEXT), ("BOM_MULTIPLE", MULTIPLE_TEXT)):
        option = f'<option editable="YES" type="{key}" value1="{value}" value2="" unit="" description=""/>'
        text = re.sub(rf'<option [^>]*type="{key}"[^>]*/>', "", text).replace("</options>", option + "</options>", 1)
    path.write_text(text, encoding="utf-8")


def main():
    cli, program = Path(sys.argv[1]).resolve(), Path(sys.argv[2]).resolve()
    with tempfile.TemporaryDirectory() as name:
        folder = Path(name)
        shutil.copy(cli, folder / "kivzp-cli")
        configured(program, folder)
        boards = sorted((program / "_files" / "boms").glob("*.xml"))[:3]
        check(cli, program / "_files" / "db_warehouse.xml", list(zip(boards, (7, 3, 12))), folder)
        real = os.environ.get("KIVZP_REAL_DATA")
        if real:
            database = folder / "db_real.xml"
            with gzip.open(Path(real) / "db_real.xml.gz") as packed, open(database, "wb") as plain:
                shutil.copyfileobj(packed, plain)
            boards = [Path(real) / "boms" / f"{board}.xml"
                      for board in ("antmicro_jetson_nano_baseboard_1.4.7", "glasgow_revC2", "glasgow_revC3")]
            check(cli, database, list(zip(boards, (10, 25, 5))), folder)
    sys.exit(1 if faults else 0)


if __name__ == "__main__":
    main()
