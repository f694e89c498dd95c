#!/usr/bin/env python3
"""Draws the program's icons and start-up pictures into resources/icons/, one SVG file each.

Without arguments all drawings are written. With "--sheet FILE.svg" a contact sheet of them is
written instead: every drawing at 16, 24 and 64 pixels on white, grey and dark; look at it after
every change, with "rsvg-convert FILE.svg -o FILE.png".

How the family is kept together:
- Icons stand on a grid of 24 units. Lines are 1.6 to 2 units wide and lie on whole units where they
  can, which keeps them sharp in a tool bar of 24 pixels.
- Lines are slate and accents blue. Green adds or confirms, red takes away or warns of an error,
  amber asks for attention. No meaning rests on colour alone: a badge carries a glyph, too.
- Every layer has a white rim, invisible on white paper, that keeps slate lines visible on a dark
  desktop and parts a badge from what it lies on.
- The build renders a drawing at the size its name ends with (folder_128), else at 48 pixels.

Every run writes the same bytes.
"""

import argparse
import math
from dataclasses import dataclass
from pathlib import Path
from xml.sax.saxutils import escape

ICONS = Path(__file__).resolve().parent.parent / "resources" / "icons"

SLATE = "#37475A"
BLUE = "#1F6FB5"
TINT = "#DCE8F4"
WHITE = "#FFFFFF"
GREY = "#8A949E"
GREEN = "#2E9E4F"
VIOLET = "#7B3FB0"
RED = "#C8372D"
AMBER = "#E0961A"

LINE = 1.8    # outlines of things
DETAIL = 1.6  # what is drawn inside them
BOLD = 2.4    # glyphs and arrows that stand alone
RIM = 0.8     # how far the white rim reaches beyond a line


# --- Shapes, layers and groups -------------------------------------------------------------------

@dataclass(frozen=True)
class Shape:
    d: str
    fill: str = "none"
    stroke: str = "none"
    width: float = 0
    has_rim: bool = True
    extra: str = ""  # further attributes

    def svg(self):
        fill = "" if self.fill == "none" else f' fill="{self.fill}"'
        stroke = ""
        if self.stroke != "none":
            stroke = f' stroke="{self.stroke}" stroke-width="{num(self.width)}"'
        return f'<path d="{self.d}"{fill}{stroke}{self.extra}/>'


@dataclass(frozen=True)
class Layer:
    """Shapes with one white rim behind all of them."""
    shapes: tuple

    def svg(self):
        rims = {}
        for shape in self.shapes:
            if shape.has_rim:
                rims.setdefault((shape.width, shape.extra), []).append(shape.d)
        rim = [Shape("".join(paths), "none", WHITE, width + 2 * RIM, extra=extra)
               for (width, extra), paths in rims.items()]
        return "\n".join(shape.svg() for shape in (*rim, *self.shapes))


@dataclass(frozen=True)
class Group:
    """Layers, moved, turned or scaled together."""
    transform: str
    layers: tuple

    def svg(self):
        inner = "\n".join(layer.svg() for layer in self.layers)
        return f'<g transform="{self.transform}">\n{inner}\n</g>'


@dataclass(frozen=True)
class Raw:
    """What only the start-up pictures need: texts, gradients."""
    text: str

    def svg(self):
        return self.text


def layer(*shapes):
    return Layer(shapes)


def group(transform, *layers):
    return Group(transform, layers)


def area(d, fill=TINT, stroke=SLATE, width=LINE):
    return Shape(d, fill, stroke, width)


def line(d, stroke=SLATE, width=LINE):
    return Shape(d, "none", stroke, width)


def solid(d, fill=SLATE):
    return Shape(d, fill)


def inside(shape, extra=""):
    """The same shape without a rim, for what lies on another shape."""
    return Shape(shape.d, shape.fill, shape.stroke, shape.width, False, shape.extra + extra)


def ink(d, stroke=SLATE, width=DETAIL):
    return inside(line(d, stroke, width))


def paint(d, fill=BLUE):
    return inside(solid(d, fill))


# --- Paths ---------------------------------------------------------------------------------------

def num(value):
    return f"{round(value, 2) + 0:g}"


def points(*pairs):
    return "M" + "L".join(f"{num(x)} {num(y)}" for x, y in pairs)


def polygon(*pairs):
    return points(*pairs) + "z"


def rect(x, y, w, h, r=1.0):
    x, y, w, h = x + r, y, w - 2 * r, h - 2 * r
    if r == 0:
        return f"M{num(x)} {num(y)}h{num(w)}v{num(h)}h{num(-w)}z"
    corner = f"a{num(r)} {num(r)} 0 0 1 "
    return (f"M{num(x)} {num(y)}h{num(w)}{corner}{num(r)} {num(r)}v{num(h)}"
            f"{corner}{num(-r)} {num(r)}h{num(-w)}{corner}{num(-r)} {num(-r)}v{num(-h)}"
            f"{corner}{num(r)} {num(-r)}z")


def ellipse(x, y, rx, ry):
    arc = f"a{num(rx)} {num(ry)} 0 1 0 "
    return f"M{num(x - rx)} {num(y)}{arc}{num(2 * rx)} 0{arc}{num(-2 * rx)} 0z"


def circle(x, y, r):
    return ellipse(x, y, r, r)


def polar(x, y, r, degrees):
    """A point on a circle; 0 degrees is to the right, 90 downward."""
    angle = math.radians(degrees)
    return x + r * math.cos(angle), y + r * math.sin(angle)


def arc(x, y, r, start, end):
    """Clockwise from start to end, in degrees."""
    (x1, y1), (x2, y2) = polar(x, y, r, start), polar(x, y, r, end)
    large = int((end - start) % 360 > 180)
    return f"M{num(x1)} {num(y1)}A{num(r)} {num(r)} 0 {large} 1 {num(x2)} {num(y2)}"


def star(x, y, outer, inner, count=5, start=-90):
    step = 180 / count
    return polygon(*(polar(x, y, inner if i % 2 else outer, start + i * step)
                     for i in range(2 * count)))


def gear(x, y, outer, inner, teeth=8):
    corners = []
    for tooth in range(teeth):
        middle = tooth * 360 / teeth
        corners += [polar(x, y, inner, middle - 15), polar(x, y, outer, middle - 10),
                    polar(x, y, outer, middle + 10), polar(x, y, inner, middle + 15)]
    return polygon(*corners)


def head(x, y, degrees, size=4.2, colour=BLUE):
    """The filled head of an arrow with its tip at x, y."""
    back_x, back_y = polar(x, y, size, degrees + 180)
    left = polar(back_x, back_y, size, degrees - 90)
    right = polar(back_x, back_y, size, degrees + 90)
    return area(polygon((x, y), left, right), colour, colour, 1)


# Letters in a cell of 4 by 6 units, as lines.
LETTERS = {
    "B": "M0 0v6h2.3a1.6 1.6 0 0 0 0-3.2H0M0 0h2a1.4 1.4 0 0 1 0 2.8",
    "C": "M4 1.3A2 2 0 0 0 0 2v2a2 2 0 0 0 4 .7",
    "D": "M0 0v6h1a3 3 0 0 0 0-6z",
    "F": "M4 0H0v6M0 3h3.2",
    "I": "M.8 0v6",
    "K": "M0 0v6M4 0L0 3.6M1.4 2.4L4.2 6",
    "L": "M0 0v6h3.8",
    "M": "M0 6V0l2.2 3.4L4.4 0v6",
    "P": "M0 6V0h2.2a1.8 1.8 0 0 1 0 3.6H0",
    "Q": "M2 0a2 2 0 0 1 2 2v2a2 2 0 0 1-4 0V2a2 2 0 0 1 2-2zM2.6 4.2L4.2 6.2",
    "S": "M3.8 1C3.4.3 2.8 0 2 0 .9 0 .2.6.2 1.5c0 2 3.7 1 3.7 3C3.9 5.4 3.1 6 2 6 1.2 6 .5 5.7.1 5",
    "V": "M0 0l2.1 6L4.2 0",
    "X": "M0 0l4.2 6M4.2 0L0 6",
    "Z": "M0 0h4.2L0 6h4.2",
    "1": "M.8 1.2L2.4 0v6",
    "2": "M.1 1.4C.4.5 1.1 0 2 0c2.3 0 2.4 2.1 1 3.4L.1 6H4",
    "3": "M.2 0h3.6L1.8 2.5c1.3-.2 2.2.6 2.2 1.7 0 2-2.8 2.4-4 .9",
}


def letters(text, x, y, height, step, colour=WHITE, width=DETAIL):
    """The text with its top left corner at x, y; step is from one letter to the next."""
    scale = height / 6
    return [inside(line(LETTERS[letter], colour, width / scale),
                   f' transform="translate({num(x + i * step)} {num(y)}) scale({num(scale)})"')
            for i, letter in enumerate(text)]


# --- Badges --------------------------------------------------------------------------------------

# Glyphs around 0, 0 that fit into a disc of radius 5.
PLUS = "M0-2.6v5.2M-2.6 0h5.2"
MINUS = "M-2.6 0h5.2"
CROSS = "M-1.9-1.9l3.8 3.8M1.9-1.9l-3.8 3.8"
TICK = "M-2.6.2l1.8 1.9 3.4-4"
BANG = "M0-3v3.2M0 2.8v.05"
INFO = "M0-.4v3.2M0-2.9v.05"
QUERY = "M-1.7-1.5a1.75 1.75 0 1 1 2.7 1.6C.3.5 0 .8 0 1.2M0 3.1v.05"
RIGHT = "M-2.8 0h5M.2-2.3L2.5 0 .2 2.3"
DOWN = "M0-2.8v5M-2.3.2L0 2.5 2.3.2"
OUT = "M-2 2L1.8-1.8M-1.4-2.1h3.4v3.5"
CHEVRON_RIGHT = "M-.9-2.4L1.5 0-.9 2.4"
CHEVRON_DOWN = "M-2.4-.9L0 1.5 2.4-.9"
ROWS = "M-2.2-2h4.4M-2.2 0h4.4M-2.2 2h4.4"
CLOCK = "M0-2.9V0l1.9 1.3"


def disc(glyph, colour, ink_colour=WHITE, width=1.9):
    return layer(solid(circle(0, 0, 5.2), colour), ink(glyph, ink_colour, width))


def badge(glyph, colour, ink_colour=WHITE, x=17.2, y=17.2, width=1.9):
    return group(f"translate({num(x)} {num(y)})", disc(glyph, colour, ink_colour, width))


# White on amber is too faint.
def attention(glyph=BANG):
    return badge(glyph, AMBER, "#2A3643", width=2.1)


def pencil_badge():
    return layer(area("M12.2 22l.9-4 6.3-6.3a1.6 1.6 0 0 1 2.2 0l.9.9a1.6 1.6 0 0 1 0 2.2L16.2 21.1z",
                      BLUE, BLUE, 1.2),
                 ink("M17.9 13.2l3.1 3.1", WHITE, 1))


# --- Things --------------------------------------------------------------------------------------

def sheet(*details, stroke=SLATE):
    return layer(area("M14 2H6a1 1 0 0 0-1 1v18a1 1 0 0 0 1 1h12a1 1 0 0 0 1-1V7z", WHITE, stroke),
                 inside(area("M14 2v4.2a.8.8 0 0 0 .8.8H19z", TINT, stroke, DETAIL)), *details)


def text_rows(colour=BLUE):
    return ink("M8.5 11h7M8.5 14.5h7M8.5 18h4.5", colour)


def band(text, colour):
    """A caption across a thing: the kind of a file."""
    return layer(solid(rect(1.4, 10, 21.2, 10.6, 1.4), colour),
                 *letters(text, 3.6, 12.1, 6.4, 6.2, WHITE, 1.8))


def chip(body=BLUE, pins=SLATE, mark=WHITE):
    """An electronic element."""
    return layer(line("M3 7h4M3 12h4M3 17h4M17 7h4M17 12h4M17 17h4", pins),
                 area(rect(7, 3, 10, 18, 1.2), body, pins), paint(circle(10.4, 6.4, 1.3), mark))


def folder():
    return layer(area("M2 18V5.5a1 1 0 0 1 1-1h6l2.4 2.5H21a1 1 0 0 1 1 1V18z", BLUE),
                 area(rect(2, 10, 20, 10.5), TINT))


def open_folder():
    return layer(area("M2 19.5V5a1 1 0 0 1 1-1h5.6L11 6.5h7a1 1 0 0 1 1 1V12z", BLUE),
                 area("M2 20l3.3-8.4a1 1 0 0 1 .9-.6h15.2a.8.8 0 0 1 .7 1.1l-2.9 7.3"
                      "a1 1 0 0 1-.9.6z", TINT))


def floppy():
    return layer(area("M3 4a1 1 0 0 1 1-1h13l4 4v13a1 1 0 0 1-1 1H4a1 1 0 0 1-1-1z", TINT),
                 paint("M7.5 3.8h8v4.4h-8z"),
                 inside(area("M7 21v-7.2h10V21z", WHITE, SLATE, DETAIL)))


def magnifier(*details):
    return layer(line("M15.4 15.4L21 21", BLUE, 3), area(circle(10, 10, 7), TINT), *details)


def clipboard(*details):
    return layer(area(rect(3, 4, 15, 18), TINT), area(rect(7, 2, 7, 4), BLUE, BLUE, 1.2), *details)


def scissors():
    return layer(line("M6 2.8l9 12.6M18 2.8L9 15.4", SLATE, 2),
                 line(circle(6.8, 18, 2.9) + circle(17.2, 18, 2.9), BLUE, 2.1))


def two_sheets():
    return [layer(area(rect(3, 2, 12, 15), TINT)),
            layer(area(rect(9, 7, 12, 15), WHITE), ink("M12 11.5h6M12 14.5h6M12 17.5h3.5", BLUE))]


def box():
    """A closed parcel."""
    return layer(area("M3 8.5l2.4-4.2A1 1 0 0 1 6.3 3.8h11.4a1 1 0 0 1 .9.5L21 8.5V20a1 1 0 0 1-1 1H4"
                      "a1 1 0 0 1-1-1z", TINT),
                 ink("M3 8.5h18", SLATE), paint("M9.4 4.6h5.2l.6 9h-6.4z"))


def bin_of(top):
    """A stock bin that is full up to the given height."""
    return layer(area("M3 3v17a1 1 0 0 0 1 1h16a1 1 0 0 0 1-1V3", WHITE),
                 paint(f"M5.2 {num(top)}h13.6V18.8H5.2z"))


def two_boxes(ticks):
    boxes = [area(rect(3, y, 8.4, 8.4, 1.2), WHITE, width=1.5) for y in (2.8, 12.8)]
    return [layer(*boxes, *([ink(ticks, BLUE, 1.9)] if ticks else []), line("M15 7h6M15 17h6", SLATE, 2))]


def truck(body=TINT, cab=BLUE, stroke=SLATE, glass=WHITE):
    return layer(area(rect(1.8, 6, 12.2, 11.5), body, stroke),
                 area("M14 9.5h4.1a1 1 0 0 1 .8.4l3 3.9a1 1 0 0 1 .2.6v2.1a1 1 0 0 1-1 1H14z",
                      cab, stroke),
                 paint("M16 11.3h1.7l1.6 2.1H16z", glass),
                 area(circle(6.5, 18, 2.3) + circle(17.3, 18, 2.3), WHITE, stroke))


def factory(body, stroke, window):
    return layer(area("M2 20.5V9.2L8 13V9.2l6 3.8L14.8 4a1 1 0 0 1 1-.9h2.4a1 1 0 0 1 1 .9"
                      "L20.6 20.5a.5.5 0 0 1-.5.5H2.5a.5.5 0 0 1-.5-.5z", body, stroke),
                 ink("M5.4 17h1.4M10 17h1.4", window, 2.2))


def cylinder(*details):
    return layer(area("M4 5.2v13.6C4 20.6 7.6 22 12 22s8-1.4 8-3.2V5.2z", TINT),
                 ink("M4 12c0 1.8 3.6 3.2 8 3.2s8-1.4 8-3.2", BLUE),
                 area(ellipse(12, 5.2, 8, 3.2), WHITE), *details)


def table():
    return layer(area(rect(2.5, 4, 19, 16), WHITE),
                 paint("M3.2 4.9h17.6v4H3.2z"),
                 ink("M3 9.3h18M3 14.6h18M9.2 9.3v10", SLATE, 1.4))


def bubble(*details):
    """A remark."""
    return layer(area("M4 3h16a2 2 0 0 1 2 2v10a2 2 0 0 1-2 2h-7.5L7.5 21.5V17H4a2 2 0 0 1-2-2V5"
                      "a2 2 0 0 1 2-2z", WHITE), *details)


def tag():
    return layer(area("M3 4.2A1.2 1.2 0 0 1 4.2 3H11a1.5 1.5 0 0 1 1.1.4l8.4 8.4a1.5 1.5 0 0 1 0 2.1"
                      "l-6.6 6.6a1.5 1.5 0 0 1-2.1 0L3.4 12.1A1.5 1.5 0 0 1 3 11z", TINT),
                 inside(area(circle(7.6, 7.6, 1.6), WHITE, BLUE, DETAIL)))


def bom_rows():
    return [paint(rect(7.6, y, 3, 3, .4)) for y in (9, 13.2, 17.4)] + [
        ink("M13.2 10.5h3M13.2 14.7h3M13.2 18.9h3", SLATE)]


def bom(*details):
    """A list of elements."""
    return sheet(*bom_rows(), *details)


def chain(first=SLATE, second=BLUE):
    return group("rotate(-45 12 12)",
                 layer(line(rect(.5, 8.4, 12.6, 7.2, 3.6), first, 2.2)),
                 layer(line(rect(10.9, 8.4, 12.6, 7.2, 3.6), second, 2.2)))


def big_disc(glyph, colour):
    return group("translate(12 12) scale(1.85)",
                 layer(solid(circle(0, 0, 5.2), colour), ink(glyph, WHITE, 1.4)))


def mark():
    """The sign of the program: an element on an order, which is called ZP."""
    return [layer(area("M13.6 1.9H6.5a1 1 0 0 0-1 1v18.2a1 1 0 0 0 1 1h11a1 1 0 0 0 1-1V6.8z", WHITE),
                  inside(area("M13.6 1.9v4.1a.8.8 0 0 0 .8.8h4.1z", TINT, SLATE, 1.4)),
                  ink("M8 5.4h3", BLUE, 1.4)),
            layer(line("M1.6 11.8h3M1.6 16.2h3M19.4 11.8h3M19.4 16.2h3", SLATE, 1.8),
                  area(rect(3.8, 9.2, 16.4, 9.6, 1.2), BLUE),
                  *letters("ZP", 6.4, 11, 6, 6.9, WHITE, 2.1))]


# --- The icons -----------------------------------------------------------------------------------

def lamp(colour, glyph):
    return layer(solid(circle(12, 12, 9.6), colour), glyph)


def status_marks():
    return {
        "led_gray": [layer(area(circle(12, 12, 8.4), WHITE, GREY, 2.4),
                           ink("M8.2 12h7.6", GREY, 2.6))],
        "led_blue": [lamp(BLUE, paint(circle(12, 12, 3.7), WHITE))],
        "led_green": [lamp(GREEN, ink("M7.2 12.4l3.3 3.4 6.3-7.3", WHITE, 2.8))],
        "led_purple": [lamp(VIOLET, ink("M9.2 8.2v7.6M14.8 8.2v7.6", WHITE, 2.9))],
        "led_red": [lamp(RED, ink("M8.3 8.3l7.4 7.4M15.7 8.3l-7.4 7.4", WHITE, 2.8))],
        "line_known": [chip(), badge(TICK, GREEN)],
        "line_unknown": [chip(WHITE, GREY, GREY), attention(QUERY)],
        "line_short": [bin_of(13.5), attention()],
        "line_enough": [bin_of(5), badge(TICK, GREEN)],
    }


# The status of a firm: the fuller the thing, the further the status; colour says the same.
FIRM_STATUSES = {
    "grey": (GREY, WHITE, GREY, WHITE),
    "blue": (BLUE, "#A9CBEA", BLUE, WHITE),
    "green": (GREEN, GREEN, "#1D6E36", WHITE),
}


def firm_icons():
    icons = {}
    for word, (colour, body, stroke, window) in FIRM_STATUSES.items():
        panes = stroke if body == WHITE else window
        icons[f"zp_add_manufacturer_{word}_128"] = [
            factory(body, stroke, panes), badge(PLUS, colour)]
        icons[f"zp_add_supplier_{word}_128"] = [
            group("translate(0 1.8)", truck(body, body, stroke, panes)),
            badge(PLUS, colour, x=17.4, y=6.4)]
    return icons


def data_icons():
    return {
        "system_error_trans_128": [
            layer(area("M8.2 2.6h7.6l5.6 5.6v7.6l-5.6 5.6H8.2l-5.6-5.6V8.2z", RED, RED, 1.6),
                  ink("M8.4 8.4l7.2 7.2M15.6 8.4l-7.2 7.2", WHITE, 2.6))],
        "data_copy_128": two_sheets(),
        "zp_open_link_128": [chain(), badge(OUT, BLUE)],
        "data_open_element2_128": [chip(), pencil_badge()],
        "data_copy_element2_128": [group("scale(.74)", chip(WHITE, SLATE, SLATE)),
                                   group("translate(6.6 6.4) scale(.74)", chip())],
        "data_cut_128": [scissors()],
        "data_past_element2_128": [clipboard(),
                                   group("translate(8.6 8.4) scale(.62)", chip())],
        "data_new_element2_128": [chip(), badge(PLUS, GREEN)],
        "zp_cpv_edit_128": [group("translate(-.8 -1.4) scale(.88)", sheet(), band("CPV", SLATE)),
                            pencil_badge()],
        "zp_open_group_128": [folder(), badge(PLUS, GREEN)],
        "data_group_expanded1_128": [open_folder(), badge(CHEVRON_DOWN, BLUE)],
        "data_group_collapsed1_128": [folder(), badge(CHEVRON_RIGHT, BLUE)],
        "data_insert_to_bom_128": [bom(), badge(DOWN, GREEN)],
        "folder_128": [folder()],
        "file_xml_128": [sheet(), band("XML", BLUE)],
        "zp_quantity_128": [
            layer(area(rect(2, 5, 20, 14, 1.6), WHITE),
                  *letters("12", 4.2, 8.6, 6.8, 4.8, BLUE, 2),
                  ink("M15.5 5.4v13.2", SLATE, 1.4),
                  paint("M18.7 7.6l2.3 3.2h-4.6zM18.7 16.4l-2.3-3.2H21z", SLATE))],
        "dialog_bom2_128": [
            layer(area(rect(2, 3, 20, 18, 1.4), WHITE), paint("M2.9 4h18.2v3.6H2.9z"),
                  ink("M2.5 8h19", SLATE, 1.4),
                  *[paint(rect(5, y, 2.8, 2.8, .4)) for y in (10, 14.4)],
                  paint(rect(5, 14.4, 2.8, 2.8, .4)),
                  ink("M10.6 11.4h8M10.6 15.8h8", SLATE))],
    }


def hat():
    return layer(area("M4.2 7.4C4 3.4 7 1 10.4 1.3c2 .2 3.4 1.4 4 3.2l-2 .2-.8-1c.6 1.4.5 2.6.2 3.7z",
                      RED, "#8E231B", .7))


def egg(colour=AMBER):
    return layer(area("M12 2c4.6 0 8.4 6.6 8.4 11.6A8.4 8.4 0 0 1 12 22a8.4 8.4 0 0 1-8.4-8.4"
                      "C3.6 8.6 7.4 2 12 2z", colour, SLATE, 2),
                 ink("M4.6 11.4l2.9 2.4 3-2.4 3 2.4 3-2.4 2.9 2.4M5 17.4h14", WHITE, 2))


def logos():
    return {
        "logo_kiv_zp_128": mark(),
        "logo_kiv_zp_christmas_128": [*mark(), hat()],
        "logo_kiv_zp_christmas3_128": [*mark(), group("translate(12.4 12) scale(.45)", egg())],
    }


def arrow_back(colour=BLUE):
    return layer(line("M8 9h6a5.4 5.4 0 0 1 0 10.8H8", colour, 2.6), head(2.6, 9, 180, 5.4, colour))


def mirrored(*layers):
    return group("matrix(-1 0 0 1 24 0)", *layers)


def upside_down(*layers):
    return group("matrix(1 0 0 -1 0 24)", *layers)


def lines_of_text(*rows):
    return layer(line("".join(f"M{num(x)} {y}h{num(width)}"
                              for (x, width), y in zip(rows, (4.5, 9.5, 14.5, 19.5))), SLATE, 2))


def action_icons():
    vertical_arrow_out = layer(line("M12 8.4V6", BLUE, 2.4), head(12, 2.4, -90, 4.4))
    vertical_arrow_in = layer(line("M12 2.6v3", BLUE, 2.4), head(12, 9, 90, 4.2))
    middle = layer(line("M3.5 12h17", SLATE, 2))
    return {
        # files
        "action_new": [sheet(), badge(PLUS, GREEN)],
        "action_open": [open_folder()],
        "action_save": [floppy()],
        "action_save_as": [floppy(), pencil_badge()],
        "action_print": [
            layer(area("M7 9V2.8h10V9", WHITE), area(rect(2, 8, 20, 9.4, 1.4), TINT),
                  paint(circle(18.4, 11.2, 1.2)), area("M6.6 14h10.8v7.4H6.6z", WHITE),
                  ink("M9.4 17.7h5.2", BLUE))],
        "action_pdf": [sheet(), band("PDF", RED)],
        "action_xlsx": [sheet(), band("XLS", GREEN)],
        "action_sqlite": [cylinder(), band("SQL", BLUE)],
        "action_send": [
            layer(area("M21.5 2.8L2.8 10l7.2 4 3.9 7.2z", TINT, BLUE, 2),
                  ink("M21 3.4L10 14", BLUE, 1.8))],
        "action_mail": [
            layer(area(rect(2, 5, 20, 14.5, 1.2), TINT),
                  inside(area("M2.8 6l8.4 7.2a1.2 1.2 0 0 0 1.6 0L21.2 6", WHITE, BLUE, 1.8)),
                  inside(line(rect(2, 5, 20, 14.5, 1.2))))],
        "action_archive": [
            layer(area(rect(3.6, 8, 16.8, 13), TINT), area(rect(2, 3, 20, 5.6), BLUE),
                  ink("M9.8 12.8h4.4", SLATE, 2))],
        "action_database": [cylinder()],
        "action_log": [
            sheet(text_rows()),
            group("translate(17.2 17.2)", layer(area(circle(0, 0, 4.6), WHITE, SLATE, 1.7),
                                                ink(CLOCK, BLUE, 1.6)))],
        "action_errors": [sheet(text_rows()), badge(BANG, RED, width=2.1)],
        "action_report": [
            sheet(paint("M8 10.6h2.2v3.6H8zM11 8.6h2.2v5.6H11zM14 11.6h2.2v2.6H14z"),
                  ink("M8 16.4h8M8 19h5.5", SLATE, 1.4))],
        "action_report_short": [
            layer(area("M13.8 2H6a1 1 0 0 0-1 1v16.8l2.3-2.4 2.4 2.4 2.3-2.4 2.3 2.4 2.4-2.4"
                       "L19 19.8V7z", WHITE),
                  inside(area("M14 2v4.2a.8.8 0 0 0 .8.8H19z", TINT, SLATE, DETAIL)),
                  ink("M8.5 10.6h7M8.5 14h4.5", BLUE))],
        "action_preview": [
            layer(area("M2 12c2.8-4.9 6.2-7.2 10-7.2S19.2 7.1 22 12c-2.8 4.9-6.2 7.2-10 7.2"
                       "S4.8 16.9 2 12z", WHITE),
                  paint(circle(12, 12, 4.2)), paint(circle(13.4, 10.6, 1.3), WHITE))],
        # editing
        "action_edit": [
            layer(area("M2.8 21.2l1.3-5.4L16.2 3.7a2 2 0 0 1 2.8 0l1.3 1.3a2 2 0 0 1 0 2.8"
                       "L8.2 19.9z", TINT),
                  paint("M14.4 6.7l2.4-2.4a1.1 1.1 0 0 1 1.6 0l1.3 1.3a1.1 1.1 0 0 1 0 1.6"
                        "l-2.4 2.4z"),
                  ink("M13.6 6.3l4.1 4.1", SLATE, 1.4), paint("M2.4 21.6l.8-3.5 2.7 2.7z", SLATE))],
        "action_undo": [arrow_back()],
        "action_redo": [mirrored(arrow_back())],
        "action_cut": [scissors()],
        "action_copy": two_sheets(),
        "action_paste": [
            clipboard(),
            layer(area(rect(10, 10, 11.5, 12), WHITE), ink("M13 14h5.5M13 17.8h5.5", BLUE))],
        "action_duplicate": [
            layer(area(rect(2.6, 2.6, 13, 13), TINT)),
            layer(area(rect(8.4, 8.4, 13, 13), WHITE), ink("M14.9 11.7v6.4M11.7 14.9h6.4", BLUE, 2.2))],
        "action_delete": [
            layer(area("M5 6.2l.9 14a1.5 1.5 0 0 0 1.5 1.4h9.2a1.5 1.5 0 0 0 1.5-1.4l.9-14z", TINT),
                  ink("M10 10.6v6.6M14 10.6v6.6", SLATE),
                  line("M3.2 6h17.6M9 5.6V3.8a1 1 0 0 1 1-1h4a1 1 0 0 1 1 1v1.8", RED, 2.2))],
        "action_clear": [
            layer(line("M9 21.2h12"),
                  area("M12.9 4l7.3 7.3a1.4 1.4 0 0 1 0 2l-7.9 7.9H8.3l-4.7-4.7a1.4 1.4 0 0 1 0-2"
                       "L12.9 4z", WHITE),
                  area("M8 9.1l4.9-5.1a1.4 1.4 0 0 1 2 0l5.3 5.3a1.4 1.4 0 0 1 0 2L15.3 16.4z",
                       BLUE))],
        "action_empty": [
            layer(area(rect(4, 2.5, 16, 19, 1.2), WHITE, WHITE, .1),
                  Shape(rect(4, 2.5, 16, 19, 1.2), "none", SLATE, 2, True,
                        ' stroke-dasharray="2.6 3.23"'))],
        "action_move_up": [
            layer(line("M4 15h16M4 20h16", SLATE, 2)),
            layer(line("M12 11V7", BLUE, 2.6), head(12, 2.2, -90, 5.4))],
        "action_move_down": [
            layer(line("M4 4h16M4 9h16", SLATE, 2)),
            layer(line("M12 13v4", BLUE, 2.6), head(12, 21.8, 90, 5.4))],
        "action_fill_down": [
            layer(area(rect(5, 2.5, 14, 6.5), BLUE),
                  area(rect(5, 9, 14, 12.5), WHITE), ink("M5.6 15.2h12.8", SLATE, 1.4)),
            layer(line("M12 6v7", SLATE, 2.4), head(12, 19, 90, 5, SLATE))],
        "action_add_row": [table(), badge(PLUS, GREEN)],
        "action_merge": [
            layer(line("M3 19h2.5c4.5 0 4.5-7 9-7", SLATE, BOLD)),
            layer(line("M3 5h2.5c4.5 0 4.5 7 9 7h2", BLUE, BOLD), head(22, 12, 0, 5.2))],
        "action_replace": [
            layer(line("M4 8h11", SLATE, BOLD), head(21, 8, 0, 5.2, SLATE)),
            layer(line("M20 16H9", BLUE, BOLD), head(3, 16, 180, 5.2))],
        "action_set": [
            layer(area(rect(2.5, 4, 17.5, 17.5, 1.6), WHITE)),
            layer(line("M7 11.6l4.4 4.6L21.2 4.4", BLUE, 3))],
        "action_mark": [
            layer(area(rect(4, 4, 16, 16, 1.6), WHITE), ink("M8 12l3 3.2 5.4-6.6", BLUE, 2.6))],
        "action_mark_all": two_boxes("M5.6 6.6l1.5 1.6 2.8-3.4M5.6 16.6l1.5 1.6 2.8-3.4"),
        "action_mark_none": two_boxes(""),
        "action_equal": [layer(line("M4 8.5h16M4 15.5h16", SLATE, BOLD))],
        "action_default": [layer(area(star(12, 12.6, 10.2, 4.5), AMBER, SLATE, 1.7))],
        "action_filter": [
            layer(area("M2.8 4h18.4L14 12.4v6.8l-4 2.2v-9z", TINT),
                  paint("M11 12.2h2v6.4l-2 1.1z"))],
        # finding and looking
        "action_find": [magnifier()],
        "action_find_next": [mirrored(magnifier()), badge(RIGHT, BLUE)],
        "action_zoom_in": [magnifier(ink("M10 6.6v6.8M6.6 10h6.8", BLUE, 2.2))],
        "action_zoom_out": [magnifier(ink("M6.6 10h6.8", BLUE, 2.2))],
        "action_expand": [vertical_arrow_out, upside_down(vertical_arrow_out), middle],
        "action_collapse": [middle, vertical_arrow_in, upside_down(vertical_arrow_in)],
        "action_refresh": [
            layer(line(arc(12, 12, 7.6, 195, 320), SLATE, BOLD), head(20.6, 9.8, 68, 4.6, SLATE)),
            layer(line(arc(12, 12, 7.6, 15, 140), BLUE, BOLD), head(3.4, 14.2, 248, 4.6))],
        # order
        "action_quantities": [box(), badge("M-1.2-2.8L-2-.0v.0M-2.7-1.1h5.4M-2.7 1.1h5.4"
                                           "M-.8-2.8l-.6 5.6M1.4-2.8L.8 2.8", BLUE, width=1.3)],
        "action_dates": [
            layer(area(rect(2.8, 4, 18.4, 17.4, 1.4), WHITE), paint("M3.7 5h16.6v4.6H3.7z"),
                  ink("M3 10h18", SLATE, 1.4), line("M8 2.4v4M16 2.4v4", SLATE, 2),
                  ink("M7.4 13.6h.8M11.6 13.6h.8M15.8 13.6h.8M7.4 17.6h.8M11.6 17.6h.8", SLATE, 2),
                  ink("M15.8 17.6h.8", RED, 2.4))],
        "action_descriptions": [bubble(ink("M6.4 7.6h11.2M6.4 12.2h7", BLUE, 1.9))],
        "action_attentions": [
            bubble(ink("M12 6.6v4", "#2A3643", 2.6), ink("M12 14v.05", "#2A3643", 2.7))],
        "action_rohs": [
            layer(area("M20.6 3C10 2.6 3.6 7.4 3.6 14.4c0 3.2 2 5.4 5 5.4 7.4 0 12-6.8 12-16.8z",
                       "#BFE3C9", GREEN, 2),
                  line("M2.8 21.6C5.4 16.4 9.4 12 14.6 9.4", SLATE))],
        "action_units": [
            group("rotate(-45 12 12)",
                  layer(area(rect(1, 7.6, 22, 8.8, .8), TINT),
                        ink("M4.8 8v3M8.4 8v4.6M15.6 8v4.6M19.2 8v3", SLATE),
                        ink("M12 8v5.4", BLUE, 2)))],
        "action_targets": [
            layer(area(circle(11, 13, 8.6), WHITE), inside(line(circle(11, 13, 4.6), BLUE, 2)),
                  paint(circle(11, 13, 1.7))),
            layer(line("M11 13l7.4-7.4", SLATE, 1.8),
                  area("M17.2 6.8V3.6l2.6-2 .6 2.2 2.2.6-2 2.6z", AMBER, SLATE, 1.2))],
        "action_sum": [layer(line("M18 6.8V4H6.4l7 8-7 8H18v-2.8", BLUE, 2.6))],
        "action_clear_price": [tag(), badge(CROSS, RED)],
        "action_from_bom": [bom(), badge(RIGHT, BLUE)],
        "action_add_material": [box(), badge(PLUS, GREEN)],
        "action_reserve": [box(), badge(CLOCK, BLUE)],
        "action_built": [box(), badge(OUT, GREEN)],
        "action_shipment": [truck()],
        "action_basket": [
            layer(area("M4 10.5h16l-1.6 9a1 1 0 0 1-1 .8H6.6a1 1 0 0 1-1-.8z", TINT),
                  area("M2.5 8h19v2.8h-19z", BLUE), ink("M7.5 8l3-4.5M16.5 8l-3-4.5"),
                  ink("M9 13.5v3.8M12 13.5v3.8M15 13.5v3.8"))],
        "action_pcb": [
            layer(area(rect(2.2, 3.5, 19.6, 17, 1.4), GREEN),
                  ink("M6.4 8h4.2l3 3v4.8M17.6 8v4.2M6.4 16h3", WHITE),
                  paint(circle(6.4, 8, 1.7) + circle(17.6, 8, 1.7) + circle(6.4, 16, 1.7)
                        + circle(13.6, 16, 1.7), WHITE))],
        "action_firm": [
            layer(area(rect(14, 9.5, 7.5, 12, .8), TINT), area(rect(3, 2.5, 11.5, 19, .8), WHITE),
                  paint("M5.8 5.6H8v2.2H5.8zM9.6 5.6h2.2v2.2H9.6zM5.8 9.8H8V12H5.8zM9.6 9.8h2.2V12"
                        "H9.6zM5.8 14H8v2.2H5.8zM9.6 14h2.2v2.2H9.6z"),
                  ink("M17.9 13.4v.6M17.9 17.2v.6", BLUE, 2))],
        "action_bom": [bom()],
        "action_parse": [
            layer(line("M8.4 3C5.6 3 5.2 4.2 5.2 6v2.8c0 2-.8 3.2-2.4 3.2 1.6 0 2.4 1.2 2.4 3.2V18"
                       "c0 1.8.4 3 3.2 3M15.6 3c2.8 0 3.2 1.2 3.2 3v2.8c0 2 .8 3.2 2.4 3.2"
                       "-1.6 0-2.4 1.2-2.4 3.2V18c0 1.8-.4 3-3.2 3", SLATE, 2),
                  line("M9.6 8.6h4.8M9.6 12h4.8M9.6 15.4h2.4", BLUE, 1.8))],
        "action_cpv": [sheet(), band("CPV", SLATE)],
        "action_link": [chain()],
        "action_links": [chain(), badge(ROWS, BLUE, width=1.4)],
        "action_examine": [chain(), badge(QUERY, BLUE)],
        "action_fetch": [sheet(text_rows()), badge(DOWN, GREEN)],
        "action_local_copy": [sheet(text_rows()), badge(OUT, BLUE)],
        "action_groups": [
            layer(line("M12 8.4v7M5.8 16v-3.6h12.4V16", SLATE),
                  area(rect(8, 2.5, 8, 6), BLUE),
                  area(rect(2, 15.5, 7.6, 6), TINT), area(rect(14.4, 15.5, 7.6, 6), TINT))],
        # program
        "action_config": [
            layer(area(gear(12, 12, 10, 7.2), TINT),
                  inside(area(circle(12, 12, 3.2), WHITE, BLUE, 2)))],
        "action_update": [
            layer(line("M3.6 15.5v4a1.6 1.6 0 0 0 1.6 1.6h13.6a1.6 1.6 0 0 0 1.6-1.6v-4", SLATE, 2.2),
                  line("M12 3.2v8", BLUE, 2.8), head(12, 16.4, 90, 5.4))],
        "action_help": [big_disc(QUERY, BLUE)],
        "action_about": [*mark(), badge(INFO, BLUE, x=18, y=18)],
        "action_information": [big_disc(INFO, BLUE)],
        "action_exit": [
            layer(area("M14.5 2.8H5a1.2 1.2 0 0 0-1.2 1.2v16A1.2 1.2 0 0 0 5 21.2h9.5", TINT),
                  line("M9.5 12h7", BLUE, 2.6), head(22, 12, 0, 5))],
        "action_close": [layer(line("M5.2 5.2l13.6 13.6M18.8 5.2L5.2 18.8", RED, 3))],
        # formatted text
        "action_bold": [
            layer(line("M7 4v16h6.4a4.3 4.3 0 0 0 0-8.6H7M7 4h5.2a3.7 3.7 0 0 1 0 7.4", SLATE, 3.2))],
        "action_italic": [layer(line("M10 4h8M6 20h8M14.4 4L9.6 20", SLATE, 2.2))],
        "action_underline": [
            layer(line("M6.5 3v7.4a5.5 5.5 0 0 0 11 0V3", SLATE, 2.4), line("M4.5 20.8h15", BLUE, 2.2))],
        "action_colour": [
            layer(line("M6.4 15.4L12 2.8l5.6 12.6M8.4 11.2h7.2", SLATE, 2.3),
                  solid("M3 18.4h6v4H3z", RED), solid("M9 18.4h6v4H9z", GREEN),
                  solid("M15 18.4h6v4h-6z", BLUE))],
        "action_list": [
            layer(line("M9.5 5h11.5M9.5 12h11.5M9.5 19h11.5", SLATE, 2),
                  solid(circle(4.4, 5, 2) + circle(4.4, 12, 2) + circle(4.4, 19, 2), BLUE))],
        "action_checks": [
            layer(line("M10.5 5h10.5M10.5 12h10.5M10.5 19h4", SLATE, 2)),
            layer(line("M2.6 4.8l2 2 3.4-4", GREEN, 2), line("M2.8 10.2l4 4M6.8 10.2l-4 4", RED, 2),
                  line("M2.6 18.8l2 2 3.4-4", GREEN, 2))],
        "action_list_numbered": [
            layer(line("M10.5 5h10.5M10.5 12h10.5M10.5 19h10.5", SLATE, 2)),
            layer(*[letter for digit, y in zip("123", (2.4, 9.4, 16.4))
                    for letter in letters(digit, 3, y, 5.2, 0, BLUE, 1.6)])],
        "action_align_left": [lines_of_text((3, 18), (3, 11), (3, 18), (3, 11))],
        "action_align_center": [lines_of_text((3, 18), (6.5, 11), (3, 18), (6.5, 11))],
        "action_align_right": [lines_of_text((3, 18), (10, 11), (3, 18), (10, 11))],
    }


# --- Start-up pictures ---------------------------------------------------------------------------

# The progress bar is painted over the groove: 32 to 227 across, 168 to 183 down.
def splash_card(sky, *decoration, logo=None):
    """A card of 256 by 256 with the program's mark, the groove of the progress bar and its name."""
    name = [glyph for letter, x, colour in (("K", 64, SLATE), ("I", 90, SLATE), ("V", 103, SLATE),
                                            ("Z", 143, BLUE), ("P", 171, BLUE))
            for glyph in letters(letter, x, 206, 27, 0, colour, 5)]
    return [Raw(f'<path d="{rect(2, 2, 252, 252, 26)}" fill="{sky}" stroke="{SLATE}"'
                ' stroke-width="3"/>'),
            *decoration,
            Group("translate(56 10) scale(6)", tuple(logo or mark())),
            Raw(f'<path d="{rect(27, 163, 202, 26, 6)}" fill="{WHITE}" stroke="{SLATE}"'
                ' stroke-width="2"/>'),
            layer(*name)]


def placed(x, y, scale, *layers, turn=0):
    return Group(f"translate({num(x)} {num(y)}) rotate({turn}) scale({num(scale)})", layers)


def snowflake():
    arm = "M12 12V2M12 5.4L9 3M12 5.4L15 3"
    return layer(*[Shape(arm, "none", BLUE, 1.5, False, f' transform="rotate({turn} 12 12)"')
                   for turn in range(0, 360, 60)])


def sun():
    rays = "".join(points(polar(12, 12, 8, turn), polar(12, 12, 11, turn))
                   for turn in range(0, 360, 45))
    return layer(line(rays, AMBER, 2), area(circle(12, 12, 5.4), "#F6C560", AMBER, 1.6))


def waves():
    wave = "c8-9 22-9 30 0s22 9 30 0 22-9 30 0 22 9 30 0 22-9 30 0 22 9 30 0 22-9 30 0"
    return layer(Shape(f"M23 150{wave}", "none", BLUE, 4, False),
                 Shape(f"M23 138{wave}", "none", "#6FA8D6", 4, False))


def tulip(colour):
    return layer(line("M12 11v11M12 19c-3 0-5-1.6-5.6-4.6M12 19c3 0 5-1.6 5.6-4.6", GREEN, 2),
                 area("M7 2.4l2.6 2.4L12 1.8l2.4 3L17 2.4V8a5 5 0 0 1-10 0z", colour, SLATE, 1.4))


def startup_pictures():
    flakes = [placed(x, y, scale, snowflake())
              for x, y, scale in ((14, 16, 1.7), (196, 12, 1.9), (10, 84, 1.3), (212, 74, 1.4),
                                  (26, 126, 1), (196, 122, 1.2))]
    spring = [placed(8, 86, 2.8, egg(AMBER)), placed(180, 88, 2.8, egg(BLUE)),
              placed(14, 22, 2, tulip(RED)), placed(194, 22, 2, tulip(VIOLET))]
    summer = [placed(8, 10, 2.6, sun()), waves()]
    trip = [placed(8, 10, 2.6, sun()), placed(14, 98, 2, tulip(RED)),
            placed(194, 98, 2, tulip(AMBER)),
            placed(200, 18, 1.8, layer(area("M4 13a4 4 0 0 1 .4-8A5.4 5.4 0 0 1 14.6 4 4.6 4.6 0 0 1"
                                            " 19 13z", WHITE, "#6FA8D6", 1.4)))]
    school = [placed(10, 20, 2.2, layer(area("M4 20l1-4.6L16.4 4a2 2 0 0 1 2.8 0L20 4.8a2 2 0 0 1 0 2.8"
                                             "L8.6 19z", AMBER), ink("M14.4 6l3.6 3.6", SLATE))),
              placed(192, 18, 2.2, layer(area("M3 5.4c3-1.4 6-1.4 9 .4 3-1.8 6-1.8 9-.4V19c-3-1.4-6-1.4-9"
                                              " .4-3-1.8-6-1.8-9-.4z", WHITE),
                                         ink("M12 5.8v13.6", SLATE),
                                         ink("M5.4 9c1.6-.5 3-.4 4.4.3M5.4 12.6c1.6-.5 3-.4 4.4.3", BLUE))),
              placed(10, 100, 2.2, layer(area("M3 21V5l16 16z", TINT), ink("M7 17v-3.6l3.6 3.6z", SLATE)))]
    return {
        "startup_logo_256": splash_card("#EEF4FA"),
        "startup_christmas_logo_256": splash_card("#E4EFF9", *flakes, logo=[*mark(), hat()]),
        "startup_christmas_3_logo_256": splash_card("#F4F8EA", *spring),
        "startup_vacation_logo_256": splash_card("#EAF6FC", *summer),
        "startup_vacation_2_logo_256": splash_card("#EFF8F0", *trip),
        "startup_back_to_school_logo_256": splash_card("#FBF4E6", *school),
    }


# --- Writing -------------------------------------------------------------------------------------

def drawings():
    """Every drawing by its name: the side of its grid and its layers."""
    icons = {**status_marks(), **firm_icons(), **data_icons(), **logos(), **action_icons()}
    return {**{name: (24, layers) for name, layers in icons.items()},
            **{name: (256, layers) for name, layers in startup_pictures().items()}}


def size_of(name):
    """The size of a picture in pixels, as the build takes it from the name."""
    last = name.rsplit("_", 1)[-1]
    return int(last) if last.isdigit() else 48


def svg(name, grid, layers, place=""):
    size = size_of(name)
    place = place or f'width="{size}" height="{size}"'
    inner = "\n".join(item.svg() for item in layers)
    return (f'<svg xmlns="http://www.w3.org/2000/svg" {place} viewBox="0 0 {grid} {grid}" fill="none"'
            f' stroke-linecap="round" stroke-linejoin="round">\n{inner}\n</svg>\n')


def write_all():
    ICONS.mkdir(parents=True, exist_ok=True)
    for name, (grid, layers) in drawings().items():
        (ICONS / f"{name}.svg").write_text(svg(name, grid, layers), encoding="utf-8", newline="\n")


def write_sheet(path):
    columns, cell_height = 4, 74
    sizes = (16, 24, 64)
    backgrounds = ("#FFFFFF", "#D6D6D6", "#2B2B2B")
    ground_width = sum(sizes) + 10 * len(sizes) + 10
    name_width = 190
    cell_width = name_width + len(backgrounds) * ground_width
    parts = []
    every = drawings()
    rows = -(-len(every) // columns)
    for i, (name, (grid, layers)) in enumerate(every.items()):
        left, top = i // rows * cell_width, i % rows * cell_height
        parts.append(f'<text x="{left + 6}" y="{top + 40}" font-size="12" fill="#000"'
                     f' font-family="Liberation Sans">{escape(name)}</text>')
        for ground, colour in enumerate(backgrounds):
            x = left + name_width + ground * ground_width
            parts.append(f'<path d="M{x} {top}h{ground_width}v{cell_height}h-{ground_width}z"'
                         f' fill="{colour}"/>')
            for size in sizes:
                x += 10
                y = top + (cell_height - size) // 2
                parts.append(svg(name, grid, layers,
                                 f'x="{x}" y="{y}" width="{size}" height="{size}"'))
                x += size
    width, height = columns * cell_width, rows * cell_height
    Path(path).write_text(
        f'<svg xmlns="http://www.w3.org/2000/svg" width="{width}" height="{height}">\n'
        f'<path d="M0 0h{width}v{height}H0z" fill="#F0F0F0"/>\n' + "\n".join(parts) + "\n</svg>\n",
        encoding="utf-8", newline="\n")


def main():
    parser = argparse.ArgumentParser(description="Draws the program's icons and start-up pictures.")
    parser.add_argument("--sheet", metavar="FILE", help="write a contact sheet of all instead")
    arguments = parser.parse_args()
    if arguments.sheet:
        write_sheet(arguments.sheet)
    else:
        write_all()


if __name__ == "__main__":
    main()
