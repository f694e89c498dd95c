#!/usr/bin/env python3
"""Recomputes the comparison of offers, what is proposed, chosen and parted, and compares all of it with kivzp-cli.

    recomputeOffers.py KIVZP_CLI PROGRAM_FOLDER

On made-up orders and offers, always the same ones: exact fractions, breaks, minima and multiples, currencies, gross
prices, offers that have expired; the fewest firms by trying all sets of them. One offer is brought in from a CSV file.
"""
import datetime
import itertools
import json
import math
import random
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as xml
from fractions import Fraction
from pathlib import Path
from xml.sax.saxutils import quoteattr

TODAY = datetime.date.today()
SCHEMA = ('xsi:noNamespaceSchemaLocation="{}" xmlns:xsi="http://www.w3.org/2001/XMLSchema-instance" '
          'xsi:type="{}"')
LINE_FIELDS = ("index name price average_price in_warehouse quantity unit wait description rohs_required target ktm cpv "
               "delivery invoice attentions").split()
faults = 0
compared = 0


def check(what, wanted, got):
    global faults, compared
    compared += 1
    if wanted != got:
        faults += 1
        print(f"  {what}: recomputed {wanted}, kivzp-cli {got}")


def half_up(value, decimals=6):
    scaled = value * 10 ** decimals
    return Fraction(math.floor(scaled + Fraction(1, 2)), 10 ** decimals)


def text(value):
    value = Fraction(value)
    digits = str(value.numerator * 10 ** 6 // value.denominator).rjust(7, "0")
    result = (digits[:-6] + "." + digits[-6:]).rstrip("0").rstrip(".")
    assert Fraction(result) == value, value
    return result


# --- What is made up

def random_order(dice):
    lines = []
    for i in range(dice.randint(3, 9)):
        for _ in range(dice.choice((1, 1, 2))):
            lines.append({"ktm": f"K-{i}", "quantity": Fraction(dice.randint(1, 4000), dice.choice((1, 1, 1, 4)))})
    dice.shuffle(lines)
    return lines


def random_row(dice):
    prices, quantity, price = [], Fraction(dice.choice((1, 1, 1, 10, 50))), Fraction(dice.randint(1, 300000), 10000)
    for _ in range(dice.randint(1, 4)):
        prices.append((quantity, price))
        quantity += dice.randint(1, 900)
        price = half_up(price * Fraction(dice.randint(50, 99), 100), 5)
        if price <= 0:
            break
    some = lambda values: Fraction(dice.choice(values)) if dice.random() < 0.4 else None
    return {"prices": prices, "minimum": some((1, 5, 100, 500)), "multiple": some((1, 10, 25, Fraction(1, 2))),
            "lead": dice.randint(1, 60) if dice.random() < 0.7 else None}


def random_offers(dice, keys, count):
    offers = []
    for i in range(count):
        currency, rate = dice.choice((("PLN", None), ("PLN", None), ("EUR", "4.3125"), ("USD", "3.65012")))
        offers.append({"firm": f"Firm {chr(65 + i)}", "currency": currency, "rate": rate, "gross": dice.random() < 0.3,
                       "vat": dice.choice((None, "23", "8", "5.5")), "lead": dice.choice((None, 7, 21)),
                       "validity": TODAY + datetime.timedelta(dice.choice((-1, 0, 0, 1, 30))),
                       "rows": {key: random_row(dice) for key in keys if dice.random() < 0.7}})
    return offers


def prices_text(prices):
    return "; ".join(f"{text(quantity)}: {text(price)}" for quantity, price in prices)


def write_order(path, lines):
    with open(path, "w", encoding="utf-8") as file:
        file.write(f'<kiv_mat_zp {SCHEMA.format("kiv_mat.xsd", "KIV_MAT_ZP_1")}>\n<options>')
        for key, value in (("ORDER_NUMBER", "ZP/7/2026"), ("ORDER_DATE", "01.06.2026")):
            file.write(f'<option editable="YES" type="{key}" value1="{value}" value2="" unit="" description=""/>')
        file.write("</options>\n<order_items>\n")
        for i, line in enumerate(lines):
            values = {"index": str(i + 1), "name": line["ktm"], "ktm": line["ktm"], "quantity": text(line["quantity"]),
                      "price": "1.00", "unit": "pcs.", "rohs_required": "TAK"}
            fields = "".join(f"<{f}>{values.get(f, '')}</{f}>" for f in LINE_FIELDS)
            file.write(f"<order_item>{fields}</order_item>\n")
        file.write("</order_items>\n<attentions></attentions>\n</kiv_mat_zp>\n")


def write_offers(path, offers):
    path.parent.mkdir(parents=True, exist_ok=True)
    say = lambda value: quoteattr("" if value is None else text(value) if isinstance(value, Fraction) else str(value))
    with open(path, "w", encoding="utf-8") as file:
        file.write(f'<kiv_mat_offers {SCHEMA.format("kiv_mat_offers.xsd", "KIV_MAT_OFFERS_1")}>\n')
        file.write("<order_number>ZP/7/2026</order_number>\n")
        for offer in offers:
            file.write(f'<offer firm={say(offer["firm"])} nip="" request="" received="2026.06.01" '
                       f'currency={say(offer["currency"])} rate={say(offer["rate"])} rate_date="" '
                       f'gross="{"TAK" if offer["gross"] else "NIE"}" vat={say(offer["vat"])} '
                       f'lead_time={say(offer["lead"])} validity="{offer["validity"]:%Y.%m.%d}" remarks="" file="">\n')
            for key, row in offer["rows"].items():
                file.write(f'<offered key={say(key)} prices={say(prices_text(row["prices"]))} '
                           f'minimum={say(row["minimum"])} multiple={say(row["multiple"])} lead_time={say(row["lead"])} '
                           f'remarks=""/>\n')
            file.write("</offer>\n")
        file.write("</kiv_mat_offers>\n")


# --- What it comes to

def tax_of(net, percent):
    """As an invoice has it, in whole grosz."""
    return half_up(half_up(net, 2) * percent / 100, 2)


def vat_of(offer, usual=Fraction(8)):
    return usual if offer["vat"] is None else Fraction(offer["vat"])


def cell_of(need, offer, row):
    bought = max(need, row["minimum"] or need)
    if row["multiple"]:
        bought = math.ceil(bought / row["multiple"]) * row["multiple"]
    counting = [price for quantity, price in row["prices"] if quantity <= bought or quantity == 1]
    if not counting:
        return None
    price = counting[-1] * Fraction(offer["rate"] or 1)
    if offer["gross"]:
        price = price * 100 / (100 + vat_of(offer))
    price = half_up(price)
    return {"price": price, "bought": bought, "cost": bought * price, "lead": row["lead"] or offer["lead"]}


def table_of(lines, offers):
    needs = {}
    for line in lines:
        needs[line["ktm"]] = needs.get(line["ktm"], 0) + line["quantity"]
    table = {}
    for key, need in needs.items():
        for i, offer in enumerate(offers):
            if key in offer["rows"]:
                cell = cell_of(need, offer, offer["rows"][key])
                if cell:
                    table[key, i] = cell
    return needs, table


def rank(table, key, i):
    cell = table[key, i]
    return cell["cost"], cell["lead"] or 10 ** 9, i


def cheapest(needs, table, usable):
    chosen = {}
    for key in needs:
        own = [i for i in usable if (key, i) in table]
        chosen[key] = min(own, key=lambda i: rank(table, key, i)) if own else None
    return chosen


def total(table, chosen):
    return sum(table[key, i]["cost"] for key, i in chosen.items() if i is not None)


def covered(chosen):
    return sum(i is not None for i in chosen.values())


def proposals(needs, table, offers, days, within):
    usable = [i for i, offer in enumerate(offers) if offer["validity"] >= TODAY]
    best = cheapest(needs, table, usable)
    yield "cheapest", [], best

    one = {i: cheapest(needs, table, [i]) for i in usable}
    one = {i: chosen for i, chosen in one.items() if covered(chosen)}
    longest = lambda i: max([table[k, i]["lead"] or 0 for k in needs if (k, i) in table]) or 10 ** 9
    if one:
        first = min(one, key=lambda i: (-covered(one[i]), total(table, one[i]), longest(i), i))
        yield "one", [], one[first]

    limit = total(table, best) * (100 + within) / 100
    for size in range(1, len(usable) + 1):
        sets = [cheapest(needs, table, some) for some in itertools.combinations(usable, size)]
        sets = [some for some in sets if covered(some) == covered(best) and total(table, some) <= limit]
        if sets:
            # Of sets that cost the same any may be proposed: their size and total are compared.
            yield "fewest", ["--within", text(within)], min(sets, key=lambda some: total(table, some))
            break

    soon = {at: cell for at, cell in table.items() if cell["lead"] and cell["lead"] <= days}
    until = TODAY + datetime.timedelta(days)
    yield "date", ["--until", f"{until:%d.%m.%Y}"], cheapest(needs, soon, usable)


# --- The comparison with the program

def call(cli, folder, *arguments, code=0):
    done = subprocess.run([str(cli), "--language", "en", "offers", *map(str, arguments)], cwd=folder,
                          capture_output=True, text=True)
    if done.returncode != code:
        sys.exit(f"offers {' '.join(map(str, arguments))} ended with {done.returncode}: {done.stderr}")
    return done.stdout


def check_table(needs, table, offers, answer):
    check("materials", list(needs), [one["key"] for one in answer["materials"]])
    check("firms", [one["firm"] for one in offers], [one["firm"] for one in answer["firms"]])
    for material in answer["materials"]:
        key = material["key"]
        check(key, needs[key], Fraction(material["quantity"]))
        for i, got in enumerate(material["offers"]):
            cell = table.get((key, i))
            check(f"{key} of {i} offered", cell is not None, got["offered"])
            if cell and got["offered"]:
                check(f"{key} of {i}", [cell[name] for name in ("price", "bought", "cost")],
                      [Fraction(got[name]) for name in ("price", "bought", "cost")])
                check(f"{key} of {i} lead time", cell["lead"], got["lead_time"])
    for i, got in enumerate(answer["firms"]):
        net = sum(cell["cost"] for (_, firm), cell in table.items() if firm == i)
        check(f"total of {i}", [net, tax_of(net, vat_of(offers[i]))], [Fraction(got["net"]), Fraction(got["tax"])])


def check_proposal(by, table, offers, chosen, answer):
    names = {one["key"]: one["chosen"] for one in answer["materials"]}
    wanted = {key: "" if i is None else offers[i]["firm"] for key, i in chosen.items()}
    if by == "fewest":
        check("number of firms", len({one for one in wanted.values() if one}), len(answer["chosen_firms"]))
    else:
        check(f"chosen by {by}", wanted, names)
        net = {}
        for key, i in chosen.items():
            if i is not None:
                net[i] = net.get(i, 0) + table[key, i]["cost"]
        tax = sum(tax_of(amount, vat_of(offers[i])) for i, amount in net.items())
        check(f"tax by {by}", tax, Fraction(answer["tax"]))
        check(f"gross by {by}", half_up(sum(net.values()), 2) + tax, Fraction(answer["gross"]))
    check(f"total by {by}", total(table, chosen), Fraction(answer["net"]))
    check(f"missing by {by}", [key for key, i in chosen.items() if i is None], answer["missing"])


def lines_of(path):
    return [{name: line.findtext(name) for name in ("ktm", "quantity", "price")}
            for line in xml.parse(path).iter("order_item")]


def check_choice(cli, folder, order, lines, needs, table, chosen, offers):
    call(cli, folder, "choose", order, "--vat", 8, "--reason", "recomputed")
    got, last = lines_of(order), {line["ktm"]: i for i, line in enumerate(lines)}
    for i, line in enumerate(lines):
        key, firm = line["ktm"], chosen[line["ktm"]]
        price, quantity = Fraction(1), line["quantity"]
        if firm is not None:
            price = table[key, firm]["price"]
            if last[key] == i:
                quantity += max(table[key, firm]["bought"] - needs[key], 0)
        check(f"line {i + 1}", [key, price, quantity],
              [got[i]["ktm"], Fraction(got[i]["price"]), Fraction(got[i]["quantity"])])

    firms = {offers[i]["firm"] for i in chosen.values() if i is not None}
    if len(firms) + (None in chosen.values()) < 2:
        call(cli, folder, "split", order, code=1)
        return
    parts = call(cli, folder, "split", order).split("\n")[:-1]
    check("parts", len(firms) + (None in chosen.values()), len(parts))
    seen = []
    for part in parts:
        inside = lines_of(part)
        seen += inside
        firm = {chosen[line["ktm"]] for line in inside}
        check(f"firms of {part}", 1, len(firm))
    order_of = lambda line: (line["ktm"], line["quantity"], line["price"])
    check("lines of all parts", sorted(got, key=order_of), sorted(seen, key=order_of))


def check_import(cli, folder, order, offers):
    """The last offer comes as a price list, with a comma and the quantities beside the prices."""
    offer = offers[-1]
    if not offer["rows"]:
        return
    most = max(len(row["prices"]) for row in offer["rows"].values())
    comma = lambda value: "" if value is None else text(Fraction(value)).replace(".", ",")
    rows = [["KTM", "MOQ", "SPQ", "Lead time"] + ["From", "Price"] * most]
    for key, row in offer["rows"].items():
        cells = [cell for pair in row["prices"] for cell in map(comma, pair)]
        rows.append([key, comma(row["minimum"]), comma(row["multiple"]), comma(row["lead"])] + cells
                    + [""] * (2 * most - len(cells)))
    source = folder / "prices.csv"
    source.write_text("\n".join(";".join(row) for row in rows) + "\n", encoding="utf-8")
    options = ["--firm", offer["firm"], "--currency", offer["currency"], "--replace"]
    for name, value in (("rate", offer["rate"]), ("vat", offer["vat"]), ("lead-time", offer["lead"])):
        options += [f"--{name}", value] if value else []
    options += ["--gross"] if offer["gross"] else []
    options += ["--received", "01.06.2026", "--validity", f"{offer['validity']:%Y-%m-%d}"]
    call(cli, folder, "import", order, source, *options)


def main():
    cli, program = Path(sys.argv[1]).resolve(), Path(sys.argv[2]).resolve()
    with tempfile.TemporaryDirectory() as name:
        folder = Path(name)
        shutil.copytree(program / "_validator", folder / "_validator")
        shutil.copytree(program / "_config", folder / "_config")
        shutil.copy(cli, folder / "kivzp-cli")
        cli = folder / "kivzp-cli"
        for number in range(12):
            dice = random.Random(number)
            lines = random_order(dice)
            offers = random_offers(dice, sorted({line["ktm"] for line in lines}), dice.randint(1, 6))
            order = folder / f"zp{number}" / "zp_7.xml"
            order.parent.mkdir()
            write_order(order, lines)
            write_offers(order.parent / "offers" / "zp_7" / "offers.xml", offers)
            check_import(cli, folder, order, offers)
            needs, table = table_of(lines, offers)
            chosen = None
            for by, options, wanted in proposals(needs, table, offers, dice.randint(1, 40), Fraction(dice.choice((0, 5, 40)))):
                answer = json.loads(call(cli, folder, "compare", order, "--by", by, "--vat", 8, "--json", *options))
                check_table(needs, table, offers, answer)
                check_proposal(by, table, offers, wanted, answer)
                chosen = wanted if by == "cheapest" else chosen
            if covered(chosen):
                check_choice(cli, folder, order, lines, needs, table, chosen, offers)
    print(f"{compared} values compared, {faults} differ")
    sys.exit(1 if faults or not compared else 0)


if __name__ == "__main__":
    main()
