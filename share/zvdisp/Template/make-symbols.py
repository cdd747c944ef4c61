#!/usr/bin/env python3
"""Draws the symbol library: master.sym, welsym.tab, shotsym.tab and symmap.tab beside this file.

    make-symbols.py            writes the four files
    make-symbols.py --check    exits 0 only when the files on disk are what would be written
    make-symbols.py --list     prints every number with its description and its names

Conventions of every symbol:
  - It is drawn about (0, 0), and its body is 1.0 across (a well's circle has the radius 0.5), so a
    symbol item's scale is its size in map units. Ticks and arrows reach to about 0.95 from the
    centre. North arrows and other furniture lie within a box 2.0 high.
  - What points somewhere points to the east (towards +X) at the degree 0.
  - Areas are filled and have their outline drawn over them: with a fill colour of its own a symbol
    shows the area in that colour and the outline in the item's.
  - The ends of a seismic line's number are 1.0 high, the gap between the two rules.
  - Letters are lines, not texts, so they turn and scale like the rest. A variable text marks where
    a host may set a value beside the symbol.
  - Angles of arcs are multiples of 10 degrees, the step in which a screen draws them.

The records carry one-based attributes: every member has the width, the type and the colour 1, which
is the only colour of circles and arcs that a load and a save keep.
"""

import math
import pathlib
import sys

FOLDER = pathlib.Path(__file__).resolve().parent

# --- Shapes: every function gives a list, so that shapes are joined by "+". ---


def line(*points):
    return [("line", points)]


def loop(*points):
    return line(*points, points[0])


def area(*points):
    return [("area", points + points[:1])] + loop(*points)


def ring(radius=0.5, x=0.0, y=0.0):
    return [("circle", x, y, radius, "F")]


def disc(radius=0.5, x=0.0, y=0.0):
    return [("circle", x, y, radius, "T")] + ring(radius, x, y)


def arc(radius, start, end, x=0.0, y=0.0):
    return [("arc", x, y, radius, start, end)]


def variable_text(x, y, height, label):
    return [("text", x, y, height, label)]


def polar(radius, degrees, x=0.0, y=0.0):
    angle = math.radians(degrees)
    return x + radius * math.cos(angle), y + radius * math.sin(angle)


def sweep(radius, start, end, x=0.0, y=0.0):
    """The points of an arc, a point every 10 degrees or less."""
    steps = max(1, math.ceil(abs(end - start) / 10 - 1e-9))
    return tuple(polar(radius, start + (end - start) * i / steps, x, y) for i in range(steps + 1))


def round_area(radius, start, end, x=0.0, y=0.0):
    """The area between an arc and its chord."""
    return area(*sweep(radius, start, end, x, y))


def box(x1, y1, x2, y2):
    return (x1, y1), (x2, y1), (x2, y2), (x1, y2)


def spokes(angles, inner=0.5, outer=0.82):
    return [shape for a in angles for shape in line(polar(inner, a), polar(outer, a))]


def through(degrees, reach=0.85):
    return line(polar(reach, degrees + 180), polar(reach, degrees))


def head(tip, degrees, length=0.28, half=0.11):
    """A filled arrow head whose point stands at `tip`."""
    x, y = polar(length, degrees + 180, *tip)
    return area(tip, polar(half, degrees + 90, x, y), polar(half, degrees - 90, x, y))


def arrow(start, degrees, length, head_length=0.28, half=0.11):
    tip = polar(length, degrees, *start)
    neck = polar(length - head_length, degrees, *start)
    return line(start, neck) + head(tip, degrees, head_length, half)


def regular(corners, radius=0.5, first=90.0):
    return tuple(polar(radius, first + 360.0 * i / corners) for i in range(corners))


def star(points, outer=0.5, inner=0.2, first=90.0):
    step = 180.0 / points
    return tuple(polar(inner if i % 2 else outer, first + step * i) for i in range(2 * points))


def mirror(shapes):
    """The same lines with left and right exchanged."""
    return [(kind, tuple((-x, y) for x, y in points)) for kind, points in shapes]


LETTERS = {
    "H": (((0, 0), (0, 1)), ((1, 0), (1, 1)), ((0, .5), (1, .5))),
    "M": (((0, 0), (0, 1), (.5, .4), (1, 1), (1, 0)),),
    "N": (((0, 0), (0, 1), (1, 0), (1, 1)),),
    "T": (((0, 1), (1, 1)), ((.5, 1), (.5, 0))),
}


def letter(name, x, y, height):
    """A letter whose foot stands centred on (x, y)."""
    width = height * 0.7
    return [shape for stroke in LETTERS[name]
            for shape in line(*((x + (u - .5) * width, y + v * height) for u, v in stroke))]


# --- Wells. ---

CARDINAL = (0, 90, 180, 270)
EIGHT = tuple(range(0, 360, 45))
PLUGGED, BAR, UPRIGHT, ARROW = 45, 0, 90, 315  # directions of the line through a well

PLUG = through(PLUGGED)
BROKEN_RING = [shape for k in range(6) for shape in arc(0.5, 60 * k + 10, 60 * k + 50)]
DRY = ring() + spokes(CARDINAL, outer=0.88)
LOWER_HALF = round_area(0.5, 180, 360)
INNER_DOT = disc(0.12)
DERRICK = line((-.24, -.26), (0, .34), (.24, -.26)) + line((-.12, .04), (.12, .04))
INNER_SQUARE = loop(*box(-.2, -.2, .2, .2))
STRATA = line((-.42, .25), (.42, .25)) + line((-.5, 0), (.5, 0)) + line((-.42, -.25), (.42, -.25))
KICK = line(polar(.5, 315), (.62, -.62), (.95, -.62))
GAS_FAN = spokes((30, 60, 120, 150), outer=0.72)
RELIEF = arrow((-.9, .6), math.degrees(math.atan2(-.6, .9)), math.hypot(.9, .6))


def split_disc(degrees, gap=0.13):
    """A filled circle with a channel through it, in which a line can be seen."""
    edge = math.degrees(math.asin(gap / 0.5))
    return (round_area(0.5, degrees + edge, degrees + 180 - edge)
            + round_area(0.5, degrees + 180 + edge, degrees + 360 - edge))


def producer(oil=False, gas=False, half=False, cut=None):
    """A producing well; `cut` is the direction of a line through it (and of its missing rays)."""
    body = ring()
    if oil:
        body = disc() if cut is None else split_disc(cut)
    elif half:
        body = ring() + LOWER_HALF
    rays = [a for a in EIGHT if cut is None or (a - cut) % 180] if gas else []
    return body + spokes(rays)


def crossed(degrees, **kind):
    return producer(cut=degrees, **kind) + through(degrees, 0.92)


def pierced(degrees, **kind):
    """A well with an arrow through it."""
    return producer(cut=degrees, **kind) + arrow(polar(.95, degrees + 180), degrees, 1.9)


OIL, GAS = dict(oil=True), dict(gas=True)
OIL_GAS, CONDENSATE = dict(oil=True, gas=True), dict(half=True, gas=True)

WELLS = {
    1: ("Permitted well, application to drill", BROKEN_RING),
    2: ("Drilling well, active", ring() + DERRICK),
    3: ("Drilling suspended", ring() + DERRICK + through(BAR)),
    4: ("Completed well, product not stated", ring() + disc(0.28)),
    5: ("Temporarily abandoned well", ring() + through(BAR)),
    6: ("Plugged and abandoned well", ring() + PLUG),
    7: ("Cancelled well, not drilled", BROKEN_RING + line((-.35, -.35), (.35, .35))
        + line((-.35, .35), (.35, -.35))),
    8: ("Sidetracked well", ring() + KICK),
    9: ("Approved sidetrack, not drilled", BROKEN_RING + KICK),
    10: ("Bypassed well", ring() + arc(0.75, 310, 410)),
    11: ("Core test", ring() + INNER_SQUARE),
    12: ("Stratigraphic test", ring() + STRATA),
    13: ("Volume chamber well", ring() + ring(0.28)),
    14: ("Relief well", ring() + RELIEF),
    15: ("Exploratory well (wildcat)", ring() + INNER_DOT),
    16: ("Exploratory well, plugged and abandoned", ring() + INNER_DOT + PLUG),
    17: ("Exploratory well, completed", ring() + disc(0.28) + ring(0.72)),
    18: ("Exploratory well, temporarily abandoned", ring() + INNER_DOT + through(BAR)),
    19: ("Exploratory well, sidetracked", ring() + INNER_DOT + KICK),
    20: ("Core test, plugged and abandoned", ring() + INNER_SQUARE + PLUG),
    21: ("Stratigraphic test, plugged and abandoned", ring() + STRATA + PLUG),
    22: ("Relief well, plugged and abandoned", ring() + RELIEF + PLUG),
    51: ("Well location", ring()),
    52: ("Abandoned location, never drilled", BROKEN_RING + PLUG),
    53: ("Shut-in well, product not stated", ring() + through(UPRIGHT)),
    54: ("Dry and abandoned well", DRY),
    55: ("Junked and abandoned well", DRY + line((-.35, -.35), (.35, .35))
         + line((-.35, .35), (.35, -.35))),
    56: ("Oil well", producer(**OIL)),
    57: ("Gas well", producer(**GAS)),
    58: ("Oil and gas well", producer(**OIL_GAS)),
    59: ("Gas-condensate well", producer(**CONDENSATE)),
    60: ("Abandoned oil well", crossed(PLUGGED, **OIL)),
    61: ("Abandoned gas well", crossed(PLUGGED, **GAS)),
    62: ("Abandoned oil and gas well", crossed(PLUGGED, **OIL_GAS)),
    63: ("Abandoned gas-condensate well", crossed(PLUGGED, **CONDENSATE)),
    64: ("Suspended oil well", crossed(BAR, **OIL)),
    65: ("Suspended gas well", crossed(BAR, **GAS)),
    66: ("Shut-in oil well", crossed(UPRIGHT, **OIL)),
    67: ("Shut-in gas well", crossed(UPRIGHT, **GAS)),
    68: ("Well of unknown type, location only", ring() + line((-.2, 0), (.2, 0))
         + line((0, -.2), (0, .2))),
    69: ("Dry and abandoned, show of oil", DRY + LOWER_HALF),
    70: ("Dry and abandoned, show of gas", DRY + GAS_FAN),
    71: ("Dry and abandoned, show of oil and gas", DRY + LOWER_HALF + GAS_FAN),
    72: ("Water injection well", pierced(ARROW)),
    73: ("Gas injection well", pierced(ARROW, **GAS)),
    74: ("Oil well converted to injection", pierced(ARROW, **OIL)),
    75: ("Abandoned injection well", pierced(ARROW) + PLUG),
    76: ("Salt-water disposal well", pierced(270)),
    77: ("Water supply well", pierced(90)),
    78: ("Service well", ring() + loop((0, .28), (.28, 0), (0, -.28), (-.28, 0))),
    79: ("Observation well", ring() + disc(0.09)
         + loop(*sweep(.42, 30, 150, 0, -.21), *sweep(.42, 210, 330, 0, .21))),
    80: ("Gas storage well", producer(**GAS) + ring(0.25)),
    81: ("Directional well, arrow towards the bottom hole", ring()
         + arrow((.5, 0), 0, .45, .2, .1)),
    82: ("Bottom-hole location", ring(0.25) + line((-.35, -.35), (.35, .35))
         + line((-.35, .35), (.35, -.35))),
    83: ("Horizontal well, bar at the bottom hole", ring() + line((.5, 0), (.95, 0))
         + line((.95, -.16), (.95, .16))),
    84: ("Multilateral well", ring() + line((.95, .32), (.5, 0), (.95, -.32))
         + line((.5, 0), (.95, 0))),
    85: ("Geothermal well", ring() + [shape for x in (-.2, 0, .2) for shape in
                                      line((x, -.26), (x + .07, -.09), (x - .07, .09), (x, .26))]),
    86: ("Oil show, well not completed", ring() + LOWER_HALF),
    87: ("Platform well slot", loop(*box(-.5, -.5, .5, .5)) + ring(0.32)),
}

# --- Shotpoints and the ends of seismic line numbers. The rules meet a right end at x = -0.5. ---

ROUND_END = line((-.5, .5), *sweep(.5, 90, -90), (-.5, -.5))
SQUARE_END = line((-.5, .5), (.3, .5), (.3, -.5), (-.5, -.5))
POINTED_END = line((-.5, .5), (0, .5), (.5, 0), (0, -.5), (-.5, -.5))
NOTCHED_END = line((-.5, .5), (.5, .5), (.1, 0), (.5, -.5), (-.5, -.5))

SHOTPOINTS = {
    200: ("Line number, left end, round", mirror(ROUND_END)),
    201: ("Line number, right end, round", ROUND_END),
    202: ("Line number, left end, square", mirror(SQUARE_END)),
    203: ("Line number, right end, square", SQUARE_END),
    204: ("Line number, left end, pointed", mirror(POINTED_END)),
    205: ("Line number, right end, pointed", POINTED_END),
    206: ("Line number, left end, notched", mirror(NOTCHED_END)),
    207: ("Line number, right end, notched", NOTCHED_END),
    210: ("Shotpoint, open circle", ring()),
    211: ("Shotpoint, filled circle", disc()),
    212: ("Shotpoint, small dot", disc(0.25)),
    213: ("Shotpoint, tick across the line", line((0, -.5), (0, .5))),
    214: ("Shotpoint, cross", line((-.5, 0), (.5, 0)) + line((0, -.5), (0, .5))),
    215: ("Shotpoint, diagonal cross", line((-.4, -.4), (.4, .4)) + line((-.4, .4), (.4, -.4))),
    216: ("First or last shotpoint of a line", ring() + line((-.5, 0), (.5, 0))
          + line((0, -.5), (0, .5))),
    217: ("Labelled shotpoint, its number beside it", ring() + disc(0.14)
          + variable_text(0.0, 0.7, 0.6, "SHOTPOINT")),
    218: ("Tie point of two lines", loop((0, .5), (.5, 0), (0, -.5), (-.5, 0)) + disc(0.14)),
    219: ("Receiver station", loop((0, -.5), (.45, .3), (-.45, .3))),
}

# --- Everything else. ---


def compass_point(degrees, reach, half):
    """A point of a compass rose: the left half is filled, the right half is open."""
    tip, left = polar(reach, degrees), polar(half, degrees + 45)
    right = polar(half, degrees - 45)
    return area((0, 0), tip, left) + line((0, 0), right, tip)


NORTH_ARROWS = {
    23: ("North arrow, plain", line((0, -1), (0, .3))
         + area((0, .62), (-.17, .1), (0, .22), (.17, .1)) + letter("N", 0, .72, .28)),
    24: ("North arrow, half filled", area((0, .62), (-.34, -1), (0, -.72))
         + line((0, .62), (.34, -1), (0, -.72)) + letter("N", 0, .72, .28)),
    25: ("North arrow in a ring", line(*sweep(.6, 0, 360, 0, -.3))
         + area((0, .55), (-.28, -.75), (0, -.58)) + line((0, .55), (.28, -.75), (0, -.58))
         + letter("N", 0, .66, .3)),
    26: ("Compass rose", [s for a in (45, 135, 225, 315) for s in compass_point(a, .5, .16)]
         + [s for a in CARDINAL for s in compass_point(a, .78, .2)] + letter("N", 0, .84, .2)),
    500: ("Compass needle with north", area((0, .62), (-.16, -.15), (.16, -.15))
          + line((-.16, -.15), (0, -.95), (.16, -.15)) + letter("N", 0, .72, .28)),
    501: ("True and magnetic north", line((0, -1), (0, .45)) + area(*(
        (x, y + .6) for x, y in star(5, .16, .065))) + letter("T", 0, .84, .16)
          + line((0, -1), (.38, .5)) + line((.38, .5), (.43, .26)) + letter("M", .46, .58, .16)),
}

MARKS = {
    27: ("Cross", line((-.5, 0), (.5, 0)) + line((0, -.5), (0, .5))),
    28: ("Diagonal cross", line((-.4, -.4), (.4, .4)) + line((-.4, .4), (.4, -.4))),
    29: ("Asterisk", [s for a in (30, 90, 150) for s in through(a, .5)]),
    30: ("Square, open", loop(*box(-.45, -.45, .45, .45))),
    31: ("Square, filled", area(*box(-.45, -.45, .45, .45))),
    32: ("Triangle, open", loop(*regular(3, .55))),
    33: ("Triangle, filled", area(*regular(3, .55))),
    34: ("Triangle on its point, open", loop(*regular(3, .55, 270))),
    35: ("Triangle on its point, filled", area(*regular(3, .55, 270))),
    36: ("Diamond, open", loop(*regular(4))),
    37: ("Diamond, filled", area(*regular(4))),
    38: ("Star, open", loop(*star(5, .55, .21))),
    39: ("Star, filled", area(*star(5, .55, .21))),
    40: ("Hexagon, open", loop(*regular(6))),
    41: ("Hexagon, filled", area(*regular(6))),
    42: ("Dot", disc(0.2)),
    43: ("Arrow head, filled", head((.5, 0), 0, 1.0, .4)),
    44: ("Arrow head, open", line((-.5, .4), (.5, 0), (-.5, -.4))),
    45: ("Arrow", arrow((-.5, 0), 0, 1.0, .35, .14)),
    46: ("Arrow with two heads", line((-.22, 0), (.22, 0)) + head((.5, 0), 0, .28, .13)
         + head((-.5, 0), 180, .28, .13)),
    47: ("Circle with a cross", ring() + line((-.5, 0), (.5, 0)) + line((0, -.5), (0, .5))),
    48: ("Square with a cross", loop(*box(-.45, -.45, .45, .45)) + line((-.45, 0), (.45, 0))
         + line((0, -.45), (0, .45))),
    49: ("Plus, filled", area(*((x * .5, y * .5) for x, y in (
        (-.3, 1), (.3, 1), (.3, .3), (1, .3), (1, -.3), (.3, -.3),
        (.3, -1), (-.3, -1), (-.3, -.3), (-1, -.3), (-1, .3), (-.3, .3))))),
    50: ("Check mark", line((-.45, .05), (-.12, -.4), (.5, .45))),
}

BOW_TIE = loop((-.5, .3), (.5, -.3), (.5, .3), (-.5, -.3))

PIPELINES = {
    510: ("Pipeline valve, open", BOW_TIE),
    511: ("Pipeline valve, closed", area((-.5, .3), (0, 0), (-.5, -.3))
          + area((.5, .3), (0, 0), (.5, -.3))),
    512: ("Pipeline check valve", area((-.5, .3), (.4, 0), (-.5, -.3))
          + line((.4, -.3), (.4, .3))),
    513: ("Pipeline riser", ring() + line((-.5, 0), (0, 0), (0, .9)) + head((0, .9), 90)),
    514: ("Pipeline tie-in", line((-.5, 0), (.5, 0)) + line((0, 0), (0, -.5)) + disc(0.16)),
    515: ("Compressor or pump station", ring() + loop((.5, 0), polar(.5, 120), polar(.5, 240))),
    516: ("Meter station", ring() + letter("M", 0, -.24, .48)),
    517: ("Pig launcher or receiver", line((-.5, 0), (-.2, 0)) + loop((-.2, .12), (0, .26),
          (.5, .26), (.5, -.26), (0, -.26), (-.2, -.12))),
    518: ("Pipeline end, capped", line((-.5, 0), (.2, 0)) + area(*box(.2, -.3, .34, .3))),
    519: ("Flow direction", head((.4, 0), 0, .8, .3)),
    520: ("Tank", loop(*box(-.4, -.45, .4, .25)) + line(*((x, y * .45) for x, y in sweep(
        .4, 180, 0, 0, .555)))),
    521: ("Tank battery", ring(.24, -.26, .26) + ring(.24, .26, .26) + ring(.24, -.26, -.26)
          + ring(.24, .26, -.26)),
    522: ("Refinery or gas plant", area((-.5, -.45), (-.5, .1), (-.2, -.1), (-.2, .1), (.1, -.1),
          (.1, .1), (.2, .1), (.2, .55), (.36, .55), (.36, .1), (.5, .1), (.5, -.45))),
    523: ("Loading terminal", ring(.2) + ring() + line((.5, 0), (.9, 0))),
    524: ("Pipeline crossing", line((-.5, 0), (-.2, 0), *sweep(.2, 180, 0), (.5, 0))
          + line((0, -.5), (0, .5))),
}

WAVES = line((-.5, -.42), (-.3, -.32), (-.1, -.42), (.1, -.32), (.3, -.42), (.5, -.32))

HAZARDS = {
    530: ("Shipwreck", line((-.5, 0), (.5, 0)) + line((-.25, -.2), (-.25, .2))
          + line((0, -.35), (0, .35)) + line((.25, -.2), (.25, .2))),
    531: ("Obstruction", BROKEN_RING + disc(0.08)),
    532: ("Rock", line((-.4, 0), (.4, 0)) + line((0, -.4), (0, .4)) + disc(.05, .25, .25)
          + disc(.05, -.25, .25) + disc(.05, .25, -.25) + disc(.05, -.25, -.25)),
    533: ("Buoy", loop((0, .6), (.2, .15), (0, -.3), (-.2, .15)) + disc(0.1, 0, -.4)),
    534: ("Light", area(*star(5, .3, .12)) + area((.25, .2), (.75, .45), (.62, .72))),
    535: ("Anchorage", ring(.11, 0, .44) + line((0, .33), (0, -.5)) + line((-.22, .18), (.22, .18))
          + line((-.52, -.2), (-.42, -.05), (-.28, -.14))
          + line(*sweep(.45, 200, 340, 0, -.05)) + line((.52, -.2), (.42, -.05), (.28, -.14))),
    536: ("Gas seep", ring(.12, -.18, -.35) + ring(.16, .14, -.05) + ring(.2, -.12, .35)),
    537: ("Mud volcano", line((-.5, -.35), (-.12, .3), (.12, .3), (.5, -.35)) + disc(.07, 0, .5)),
}

SURVEY = {
    540: ("Bench mark, its elevation beside it", loop(*regular(3, .55)) + disc(0.08)
          + variable_text(0.65, -0.2, 0.5, "ELEVATION")),
    541: ("Triangulation station", loop(*regular(3, .55)) + line((-.2, -.02), (.2, -.02))
          + line((0, -.22), (0, .18))),
    542: ("Survey monument, found", area(*box(-.3, -.3, .3, .3)) + ring()),
    543: ("Section corner", line((-.5, 0), (.5, 0)) + line((0, -.5), (0, .5)) + disc(0.16)),
    544: ("Satellite positioning station", ring(.2) + disc(.06) + line((-.5, 0), (-.2, 0))
          + line((.2, 0), (.5, 0)) + line((0, -.5), (0, -.2)) + line((0, .2), (0, .5))),
    545: ("Tide gauge", line((0, -.32), (0, .5)) + line((0, .5), (.16, .5))
          + line((0, .3), (.1, .3)) + line((0, .1), (.16, .1)) + WAVES),
    546: ("Grid tick", line((-.5, 0), (.5, 0)) + line((0, -.5), (0, .5))),
    547: ("Location pin", area((0, -.5), *sweep(.3, 330, 570, 0, .2))),
}

GEOLOGY = {
    550: ("Strike and dip of beds", line((0, -.5), (0, .5)) + line((0, 0), (.25, 0))),
    551: ("Horizontal beds", ring() + line((-.5, 0), (.5, 0)) + line((0, -.5), (0, .5))),
    552: ("Vertical beds", line((0, -.5), (0, .5)) + line((-.2, 0), (.2, 0))),
    553: ("Anticline, dips away from the axis", line((0, -.5), (0, .5))
          + arrow((0, 0), 0, .5, .2, .09) + arrow((0, 0), 180, .5, .2, .09)),
    554: ("Syncline, dips towards the axis", line((0, -.5), (0, .5))
          + arrow((.5, 0), 180, .47, .2, .09) + arrow((-.5, 0), 0, .47, .2, .09)),
    555: ("Down-thrown side of a fault", round_area(.25, -90, 90) + line((0, -.5), (0, .5))),
    556: ("Thrust fault tooth", area((0, .3), (.5, 0), (0, -.3)) + line((0, -.5), (0, .5))),
    560: ("Heliport", ring() + letter("H", 0, -.25, .5)),
    561: ("Town", ring(.35) + disc(.12)),
    562: ("Harbour", ring() + line((0, .3), (0, -.32)) + line((-.15, .18), (.15, .18))
          + line(*sweep(.26, 200, 340, 0, -.06))),
}

SEABED = line((-.5, -.5), (.5, -.5))


def hull():
    return area((-.7, -.2), (.4, -.2), (.75, 0), (.4, .2), (-.7, .2))


PLATFORMS = {
    600: ("Platform, fixed", area(*box(-.4, -.4, .4, .4))),
    601: ("Caisson", loop(*box(-.4, -.4, .4, .4)) + disc(0.22)),
    602: ("Well protector", loop(*box(-.4, -.4, .4, .4)) + line((-.4, -.4), (.4, .4))
          + line((-.4, .4), (.4, -.4))),
    603: ("Compliant tower", line((-.24, -.5), (-.12, .25)) + line((.24, -.5), (.12, .25))
          + line((-.24, -.5), (.19, -.2), (-.15, .08), (.12, .25))
          + area(*box(-.3, .25, .3, .5)) + SEABED),
    604: ("Tension-leg platform", area(*box(-.5, .1, .5, .45)) + line((-.36, .1), (-.36, -.5))
          + line((.36, .1), (.36, -.5)) + SEABED),
    605: ("Spar", area(*box(-.13, -.3, .13, .28)) + area(*box(-.36, .28, .36, .5))
          + line((-.13, -.12), (-.5, -.5)) + line((.13, -.12), (.5, -.5)) + SEABED),
    606: ("Semi-submersible", area(*box(-.5, .15, .5, .45)) + line((-.3, .15), (-.3, -.2))
          + line((.3, .15), (.3, -.2)) + area(*box(-.5, -.42, -.1, -.2))
          + area(*box(.1, -.42, .5, -.2))),
    607: ("Floating production and storage vessel", hull() + line((-.45, .2), (-.45, .5))
          + line((-.15, .2), (-.15, .4), (.15, .4), (.15, .2))),
    608: ("Mobile production unit", area(*regular(3, .4)) + [s for x, y in regular(3, .55)
                                                           for s in ring(.12, x, y)]),
    609: ("Drill ship", hull() + line((-.2, .2), (0, .75), (.2, .2))
          + line((-.11, .45), (.11, .45))),
    610: ("Subsea well", ring() + area((0, -.3), (.28, .2), (-.28, .2))),
    611: ("Subsea manifold", loop(*box(-.45, -.45, .45, .45)) + [
        s for x in (-.2, .2) for y in (-.2, .2) for s in disc(.09, x, y)]),
    612: ("Subsea template", loop(*box(-.6, -.25, .6, .25)) + [
        s for x in (-.36, 0, .36) for s in ring(.14, x)]),
    613: ("Small tension-leg platform", area(*box(-.3, .1, .3, .4)) + line((0, .1), (0, -.5))
          + line((-.3, .1), (-.3, -.5)) + line((.3, .1), (.3, -.5)) + SEABED),
    614: ("Platform with a helideck", loop(*box(-.5, -.5, .5, .5)) + ring(.4)
          + letter("H", 0, -.2, .4)),
    615: ("Platform, removed", loop(*box(-.4, -.4, .4, .4)) + line((-.62, -.62), (.62, .62))),
    616: ("Jack-up rig", loop(*regular(3, .5)) + [
        s for x, y in regular(3, .5) for s in area(*box(x - .1, y - .1, x + .1, y + .1))]),
    617: ("Flare", line((0, -.5), (0, .05)) + area((0, .05), (.17, .25), (.12, .38), (.05, .3),
          (0, .6), (-.14, .35), (-.16, .22))),
}

HALO = disc(0.7)

COLOURED = {
    701: ("Oil well, disc in the fill colour", disc()),
    702: ("Gas well, disc in the fill colour", disc(0.36) + ring() + spokes(EIGHT)),
    703: ("Oil and gas well, disc in the fill colour", disc() + spokes(EIGHT)),
    704: ("Gas-condensate well, half in the fill colour", producer(**CONDENSATE)),
    705: ("Discovery, star in the fill colour", area(*star(5, .42, .17)) + ring()),
    706: ("Dry and abandoned well, centre in the fill colour", disc(0.3) + DRY),
    707: ("Injection well, disc in the fill colour", pierced(ARROW, **OIL)),
    708: ("Plugged well, centre in the fill colour", disc(0.3) + ring() + PLUG),
    709: ("Prospect, diamond in the fill colour", area(*regular(4, .6))),
    710: ("Highlight behind a well, disc in the fill colour", HALO),
    711: ("Highlight around a well", ring(.7) + ring(.78)),
    712: ("Flag in the fill colour", line((-.3, -.5), (-.3, .5)) + area((-.3, .5), (.45, .28),
          (-.3, .06))),
}

MASTER = {**NORTH_ARROWS, **MARKS, **PIPELINES, **HAZARDS, **SURVEY, **GEOLOGY, **PLATFORMS,
          **COLOURED}

# --- Names: codes of the offshore borehole and structure files, and plain words. ---

STATUS = {  # borehole status -> symbol
    "APD": 1, "AST": 9, "BP": 10, "CNL": 7, "COM": 4, "CT": 11,
    "DRL": 2, "DSI": 3, "PA": 6, "ST": 8, "TA": 5, "VCW": 13,
}
TYPE = {"C": 11, "D": 51, "E": 15, "N": 68, "O": 68, "R": 14, "S": 12}  # well type -> symbol
TYPE_AND_STATUS = {  # where the type changes the symbol of a status
    "C-PA": 20, "C-COM": 11, "S-PA": 21, "S-COM": 12, "R-PA": 22, "R-COM": 14,
    "E-COM": 17, "E-PA": 16, "E-ST": 19, "E-TA": 18,
}
STRUCTURE = {
    "FIXED": 600, "CAIS": 601, "WP": 602, "CTOWER": 603, "TLP": 604, "SPAR": 605, "SEMI": 606,
    "FPSO": 607, "MOPU": 608, "DSHIP": 609, "UCOMP": 610, "SSMNF": 611, "SSTMP": 612, "MTLP": 613,
    "JACKUP": 616,
}
WORDS = {
    "LOC": 51, "PERMIT": 1, "ABDLOC": 52, "DRY": 54, "DA": 54, "JA": 55, "OIL": 56, "GAS": 57,
    "OILGAS": 58, "COND": 59, "ABOIL": 60, "ABGAS": 61, "ABOG": 62, "ABCOND": 63, "SUSOIL": 64,
    "SUSGAS": 65, "SIOIL": 66, "SIGAS": 67, "SI": 53, "SHUTIN": 53, "UNKNWN": 68, "DRYOIL": 69,
    "DRYGAS": 70, "DRYOG": 71, "INJ": 72, "WINJ": 72, "GINJ": 73, "OILINJ": 74, "ABINJ": 75,
    "SWD": 76, "WATER": 77, "WSW": 77, "SVC": 78, "OBS": 79, "GSTOR": 80, "DIR": 81, "BHL": 82,
    "HORIZ": 83, "MULTI": 84, "GEOTH": 85, "SHOW": 86, "SLOT": 87, "SUSP": 3, "SUS": 3, "TEMP": 5,
    "PLUG": 6, "WILD": 15, "SHOT": 210, "RECVR": 219,
}


def names():
    """The groups of symmap.tab: a heading and its names."""
    both = {f"{t}-{s}": TYPE_AND_STATUS.get(f"{t}-{s}", STATUS[s]) for t in TYPE for s in STATUS}
    yield "plain words", WORDS
    yield "borehole status", STATUS
    yield "well type", TYPE
    yield "well type and borehole status", both
    yield "offshore structure type", STRUCTURE


# --- Records: lines of 80 columns. ---


def number(value, decimals, width):
    """A number in its field; a negative zero is written as zero."""
    text = f"{value:.{decimals}f}"
    if float(text) == 0.0:
        text = text.lstrip("-")
    return text.rjust(width)


def coordinate(value):
    return number(value, 8, 21)


def record_head(tag, symbol, code):
    return f"{tag}{symbol:3d}{code:2d} 999"


STYLE = "LW:  1LT:  1COL:  1"


def vertices(points, first, second, further):
    """The lines of a polyline or polygon: `first` and `second` lack the coordinates."""
    yield f"{first}X:{coordinate(points[0][0])}"
    yield f"{second}Y:{coordinate(points[0][1])}"
    for x, y in points[1:]:
        yield f"{further}X:{coordinate(x)}Y:{coordinate(y)}"


def line_record(symbol, points):
    return vertices(points, record_head("COV:", symbol, 13) + STYLE, "", "COV2:  14")


def area_record(symbol, points):
    return vertices(points, record_head("POL:", symbol, 7) + STYLE + "FIL:T", "", "POL2:   8")


def circle_record(symbol, x, y, radius, fill):
    yield record_head("CIR:", symbol, 2) + STYLE + f"FIL:{fill}X:{coordinate(x)}"
    yield f"Y:{coordinate(y)}RAD:{number(radius, 5, 15)}"


def arc_record(symbol, x, y, radius, start, end):
    yield record_head("ARC:", symbol, 1) + STYLE + f"FIL:FX:{coordinate(x)}"
    yield (f"Y:{coordinate(y)}RAD:{number(radius, 5, 15)}"
           f"DGS:{number(start, 4, 9)}DGD:{number(end - start, 4, 9)}")


def text_record(symbol, x, y, height, label):
    yield (record_head("VTX:", symbol, 19) + " " * 12 + f"COL:  1ANG:{number(0.0, 4, 9)}"
           f"HT:{number(height, 5, 15)}HJ:lVJ:a")
    yield f"X:{coordinate(x)}Y:{coordinate(y)}"
    yield f"TXT:{symbol:3d}22NUM:{len(label):2d}"
    yield label


RECORDS = {"line": line_record, "area": area_record, "circle": circle_record, "arc": arc_record,
           "text": text_record}


def symbol_lines(symbol, description, shapes):
    yield f" SYMBOL # {symbol:4d}"
    for kind, *values in sorted(shapes, key=lambda shape: shape[0] == "text"):
        for record in RECORDS[kind](symbol, *values):
            yield record.ljust(80)
    yield f"CTX:{symbol:3d}23NUM:{len(description):2d}".ljust(80)
    yield description.ljust(80)
    yield f"EOF:{symbol:3d}20".ljust(80)


def symbol_file(symbols):
    return [text for key in sorted(symbols) for text in symbol_lines(key, *symbols[key])]


def name_file():
    yield "c Symbols by name: 6 columns name, 11 columns discarded, 3 columns number, a remark."
    library = {**WELLS, **SHOTPOINTS, **MASTER}
    for heading, group in names():
        yield f"c {heading}"
        for name in sorted(group):
            yield f"{name:6s}{'':11s}{group[name]:3d}  {library[group[name]][0]}"


# --- The four files. ---


def verify():
    """Stops at a number, a description or a name that the formats cannot hold."""
    groups = (WELLS, SHOTPOINTS, NORTH_ARROWS, MARKS, PIPELINES, HAZARDS, SURVEY, GEOLOGY,
              PLATFORMS, COLOURED)
    numbers = [key for group in groups for key in group]
    assert len(set(numbers)) == len(numbers), "a number stands twice"
    assert all(0 < key < 1000 for key in numbers), "a number is out of range"
    texts = [text for group in groups for text, _ in group.values()]
    assert all(len(text) <= 68 and text.isascii() for text in texts), "a description is too long"
    assert len(set(texts)) == len(texts), "a description stands twice"
    words = [name for _, group in names() for name in group]
    assert len(set(words)) == len(words), "a name stands twice"
    assert all(len(name) <= 6 and name == name.upper() for name in words), "a name is not a key"


def files():
    verify()
    lines = {"welsym.tab": symbol_file(WELLS), "shotsym.tab": symbol_file(SHOTPOINTS),
             "master.sym": symbol_file(MASTER), "symmap.tab": name_file()}
    return {name: "".join(text + "\r\n" for text in rows).encode("ascii")
            for name, rows in lines.items()}


def is_current(name, content):
    path = FOLDER / name
    current = path.is_file() and path.read_bytes() == content
    if not current:
        print(f"{path}: not what make-symbols.py makes", file=sys.stderr)
    return current


def write():
    for name, content in files().items():
        (FOLDER / name).write_bytes(content)
    return 0


def check():
    return 0 if all([is_current(*entry) for entry in files().items()]) else 1


def list_symbols():
    verify()
    words = {}
    for _, group in names():
        for name, symbol in group.items():
            words.setdefault(symbol, []).append(name)
    for symbol, (description, _) in sorted({**WELLS, **SHOTPOINTS, **MASTER}.items()):
        print(f"{symbol:4d}  {description:52s}{' '.join(words.get(symbol, []))}".rstrip())
    return 0


VERBS = {(): write, ("--check",): check, ("--list",): list_symbols}


def main(arguments):
    verb = VERBS.get(tuple(arguments))
    if verb is None:
        print(f"usage: {sys.argv[0]} [--check | --list]", file=sys.stderr)
        return 2
    return verb()


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
