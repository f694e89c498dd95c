#!/usr/bin/env python3
"""Draws docs/architecture.svg: the folders of src in their layers, as the table in CONTRIBUTING.md has
them. An arrow says "may include"; what follows from other arrows is left out, so that the picture can be
read.

Boxes stand where they are put here; a new folder of the table has to be given its place.
"""
import checkIncludes

WIDTH, BOX, HEIGHT, STEP, TOP = 1000, 190, 54, 92, 56

# folder: (column's left edge, layer from the top, what it holds)
places = {
    "shell": (300, 0, "start-up, main window"),
    "cli": (560, 0, "kivzp-cli"),
    "database": (360, 1, "material database"),
    "update": (570, 1, "fetched, merged, in place"),
    "config": (780, 1, "configuration"),
    "orders": (360, 2, "register, offers, plan"),
    "bom": (150, 3, "BOM lists"),
    "firm": (700, 3, "firm register"),
    "order": (360, 4, "the order"),
    "dialogs": (570, 5, "dialogs of no subsystem"),
    "window": (780, 6, "editWindow, progress, log"),
    "commands": (780, 7, "undo history, edits"),
    "report": (150, 8, "pages, PDF"),
    "mail": (465, 8, "messages"),
    "tree": (780, 8, "cells, model, views"),
    "tools": (255, 9, "child processes"),
    "data": (570, 9, "records, files, schemas"),
    "store": (520, 7, "shared store"),
    "util": (412, 10, "numbers, text, prompts"),
}
layers = ["programs", "subsystems", "", "", "", "", "editing", "", "pages, cells", "records", "helpers"]
colours = {"core": "#d9ead3", "both": "#fff2cc", "gui": "#d0e0f5", "programs": "#eeeeee"}


def arrows(table):
    """The table's arrows without those that a way over other folders says already."""
    reach = {}
    for folder, may in table.items():  # every row stands below those that it names
        reach[folder] = set().union(*(reach[other] | {other} for other in may - {folder}))
    for folder, may in table.items():
        direct = may - {folder}
        for other in sorted(direct):
            if not any(other in reach[between] for between in direct):
                yield folder, other


def library(folder, core, gui):
    inside = [any(name.startswith(folder + "/") for name in names) for names in (core, gui)]
    return {(True, False): "core", (True, True): "both", (False, True): "gui"}.get(
        tuple(inside), "programs")


def text(x, y, words, size, extra=""):
    return f'<text x="{x}" y="{y}" font-size="{size}" {extra}>{words}</text>\n'


def draw():
    table = checkIncludes.read_table(checkIncludes.root / "CONTRIBUTING.md")
    table.pop("pch", None)
    build = (checkIncludes.src / "CMakeLists.txt").read_text(encoding="utf-8")
    core, gui = (checkIncludes.sources(name, build) for name in ("kivzp_core", "kivzp_gui"))
    bottom = TOP + len(layers) * STEP
    out = [f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {WIDTH} {bottom + 10}" '
           'font-family="Liberation Sans, Arial, sans-serif" fill="#222">\n'
           '<!-- drawn by tools/makeArchitecture.py -->\n'
           '<defs><marker id="head" markerWidth="9" markerHeight="8" refX="8" refY="4" orient="auto">'
           '<path d="M0,0 L9,4 L0,8 z" fill="#555"/></marker></defs>\n'
           '<rect width="100%" height="100%" fill="white"/>\n']
    for layer, name in enumerate(layers):
        if name:
            y = TOP + layer * STEP
            if layer:
                out.append(f'<path d="M10,{y - 20} H{WIDTH - 10}" stroke="#ccc" '
                           'stroke-dasharray="4 4"/>\n')
            out.append(text(14, y + 31, name, 15, 'fill="#777"'))
    sides = {}  # where the arrows of a box leave and arrive: side by side, in the order of the others
    pairs = list(arrows(table))
    for top, low in pairs:
        sides.setdefault((top, "below"), []).append(low)
        sides.setdefault((low, "above"), []).append(top)

    def place(folder, side, other):
        others = sorted(sides[folder, side], key=lambda name: places[name][0])
        share = (others.index(other) + 1) / (len(others) + 1)
        return places[folder][0] + BOX * share

    for top, low in pairs:
        y1 = TOP + places[top][1] * STEP + HEIGHT
        y2 = TOP + places[low][1] * STEP
        if y2 < y1:
            raise SystemExit(f"{low} has to stand below {top}")
        out.append(f'<path d="M{place(top, "below", low):.0f},{y1} L{place(low, "above", top):.0f},{y2}" '
                   'stroke="#555" stroke-width="1.4" marker-end="url(#head)"/>\n')
    for folder in table:
        x, layer, holds = places[folder]
        y = TOP + layer * STEP
        fill = colours[library(folder, core, gui) if layer else "programs"]
        out.append(f'<rect x="{x}" y="{y}" width="{BOX}" height="{HEIGHT}" rx="5" fill="{fill}" '
                   'stroke="#444"/>\n')
        middle = x + BOX / 2
        out.append(text(middle, y + 23, folder, 16, 'font-weight="bold" text-anchor="middle"'))
        out.append(text(middle, y + 42, holds, 13, 'text-anchor="middle"'))
    x = 150
    for kind, says in (("core", "kivzp_core: no widget"), ("gui", "kivzp_gui: widgets"),
                       ("both", "both: what needs a widget is in kivzp_gui"),
                       ("programs", "programs")):
        out.append(f'<rect x="{x}" y="16" width="16" height="16" fill="{colours[kind]}" '
                   'stroke="#444"/>\n')
        out.append(text(x + 22, 29, says, 13))
        x += 22 + 7 * len(says) + 14
    out.append("</svg>\n")
    (checkIncludes.root / "docs" / "architecture.svg").write_text("".join(out), encoding="utf-8")


draw()
