#!/usr/bin/env python3
"""Makes the data of the sample map: an invented piece of a shelf, with nothing real in it.

    make-gulf.py            writes the files beside this one
    make-gulf.py --check    exits 0 only when the files on disk are what would be written

The map lies in the plane of NAD27 / Louisiana South (US survey feet); the files hold latitudes and
longitudes on NAD27, as such data usually come. The same rule gives the same files, byte for byte.
"""

import csv
import io
import json
import math
import pathlib
import random
import sys

FOLDER = pathlib.Path(__file__).resolve().parent

# --- The plane: Lambert conformal conic with two parallels on the ellipsoid of Clarke 1866. ---

A, E = 20925832.164, math.sqrt(0.006768657997291094)  # US survey feet
LAT1, LAT2, LAT0, LON0 = map(math.radians, (29 + 18 / 60, 30 + 42 / 60, 28 + 40 / 60, -(91 + 20 / 60)))
EASTING = 2000000.0


def _m(lat):
    return math.cos(lat) / math.sqrt(1 - (E * math.sin(lat)) ** 2)


def _t(lat):
    s = E * math.sin(lat)
    return math.tan(math.pi / 4 - lat / 2) / ((1 - s) / (1 + s)) ** (E / 2)


N = (math.log(_m(LAT1)) - math.log(_m(LAT2))) / (math.log(_t(LAT1)) - math.log(_t(LAT2)))
F = _m(LAT1) / (N * _t(LAT1) ** N)
RHO0 = A * F * _t(LAT0) ** N


def position(x, y):
    """Longitude and latitude of a point of the plane, to a hundredth of a foot."""
    x, y = x - EASTING, RHO0 - y
    rho = math.hypot(x, y)
    t = (rho / (A * F)) ** (1 / N)
    lat = math.pi / 2 - 2 * math.atan(t)
    for _ in range(10):
        s = E * math.sin(lat)
        lat = math.pi / 2 - 2 * math.atan(t * ((1 - s) / (1 + s)) ** (E / 2))
    return [round(math.degrees(LON0 + math.atan2(x, y) / N), 7), round(math.degrees(lat), 7)]


# --- What lies where, in feet of the plane. ---

X1, Y1, X2, Y2 = 1880000, 10000, 2120000, 180000  # the map
MILE = 5280.0
BLOCK = 3 * MILE
COLUMNS, ROWS = 7, 6          # blocks of each area
GRID_X, GRID_Y = 1889120, 20000
AREAS = [("HB", "Heron Bank"), ("TS", "Tern Shoal")]


def shore(x):
    """Northing of the shoreline: a bay in the west, a delta lobe in the east."""
    u = (x - X1) / (X2 - X1)
    y = 150000 + 5200 * math.sin(2 * math.pi * (1.3 * u + 0.1)) + 2300 * math.sin(14.3 * u + 1)
    y += 700 * math.sin(61 * u) + 420 * math.sin(113 * u + 2) + 230 * math.sin(211 * u)
    y += 9000 * math.exp(-(((u - 0.27) / 0.07) ** 2)) - 11500 * math.exp(-(((u - 0.74) / 0.09) ** 2))
    return y


def shoreline():
    return [(x, shore(x)) for x in range(X1 - 20000, X2 + 20001, 800)]


def islands():
    """Barrier islands before the bay."""
    rings = []
    for index, (cx, half) in enumerate([(1926000, 6400), (1944500, 8200), (1964000, 4600)]):
        ring = []
        for i in range(48):
            a = 2 * math.pi * i / 48
            x = cx + half * math.cos(a)
            wave = 240 * math.sin(5 * a + index) + 150 * math.sin(9 * a)
            ring.append((x, 139500 - 900 * index + (1150 + wave) * math.sin(a) + 600 * math.sin((x - cx) / half * 2)))
        rings.append(ring + ring[:1])
    return rings


def blocks():
    """Blocks of 3 x 3 miles, numbered to and fro from the north-west corner of each area."""
    for area, (code, name) in enumerate(AREAS):
        for row in range(ROWS):
            for step in range(COLUMNS):
                column = step if row % 2 == 0 else COLUMNS - 1 - step
                x = GRID_X + (area * COLUMNS + column) * BLOCK
                y = GRID_Y + (ROWS - row) * BLOCK
                yield code, 101 + row * COLUMNS + step, x, y


PLATFORMS = [  # name, type, easting, northing of its block column, row in blocks, place in it
    ("A", "FIXED", 1.45, 2.40), ("B", "FIXED", 3.30, 3.55), ("C", "CAIS", 5.60, 1.50),
    ("D", "FIXED", 5.35, 4.55), ("E", "WP", 2.25, 5.30), ("F", "FIXED", 8.45, 2.55),
    ("G", "TLP", 10.55, 0.60), ("H", "FIXED", 9.60, 4.40), ("J", "FIXED", 12.40, 3.45),
    ("K", "CAIS", 11.55, 5.45), ("L", "SPAR", 7.50, 0.55), ("M", "FIXED", 12.55, 1.40),
]
WELLS_AT = [8, 8, 3, 7, 3, 9, 6, 8, 8, 4, 5, 7]  # of each platform
WILDCATS = 44
KINDS = ["OIL", "OIL", "GAS", "OILGAS", "OIL", "GAS", "SIOIL", "WINJ", "ABOIL", "COND"]
LONE_KINDS = ["DA", "DA", "PLUG", "DRYOIL", "DA", "ABGAS", "LOC", "DRYGAS", "TEMP", "DA", "SHOW"]


def platform(index):
    name, kind, column, row = PLATFORMS[index]
    return GRID_X + column * BLOCK, GRID_Y + row * BLOCK


def block_at(x, y):
    for code, number, left, top in blocks():
        if left <= x < left + BLOCK and top - BLOCK <= y < top:
            return code, number
    return "", 0


def wells():
    """Wells drilled out from the platforms, then wildcats between them."""
    rng = random.Random(27)
    taken, number = [], 0
    for index, count in enumerate(WELLS_AT):
        px, py = platform(index)
        first = rng.uniform(0, 360)
        for i in range(count):
            angle = math.radians(first + 360 * i / count + rng.uniform(-9, 9))
            reach = rng.uniform(3900, 6500)
            x, y = px + reach * math.cos(angle), py + reach * math.sin(angle)
            taken.append((x, y))
            number += 1
            yield number, f"{PLATFORMS[index][0]}-{i + 1}", KINDS[(number * 7 + index) % len(KINDS)], (px, py), (x, y)
    taken += [platform(i) for i in range(len(PLATFORMS))]
    made = 0
    while made < WILDCATS:
        x = rng.uniform(GRID_X + 1500, GRID_X + 2 * COLUMNS * BLOCK - 1500)
        y = rng.uniform(GRID_Y + 1500, GRID_Y + ROWS * BLOCK - 1500)
        if min(math.hypot(x - a, y - b) for a, b in taken) < 4600:
            continue
        if (x - GRID_X) % BLOCK < 5200 and (GRID_Y - y) % BLOCK < 3600:
            continue  # the corner belongs to the block's number
        taken.append((x, y))
        made += 1
        number += 1
        yield number, str(made), LONE_KINDS[made % len(LONE_KINDS)], (x, y), (x, y)


PIPES = [  # segment, inches, product, way by platforms, then on to the shore or a platform
    ("4101", 16, "OIL", ["G", "F", "H", "shore 2030000"]),
    ("4102", 12, "GAS", ["L", "F"]),
    ("4103", 20, "GAS", ["M", "J", "K", "shore 2087000"]),
    ("4104", 8, "OIL", ["C", "D", "B"]),
    ("4105", 12, "OIL", ["A", "B", "E", "shore 1903000"]),
    ("4106", 6, "GAS", ["D", "H"]),
]


def pipe_way(stops):
    names = [p[0] for p in PLATFORMS]
    way = []
    for stop in stops:
        if stop.startswith("shore"):
            x = float(stop.split()[1])
            way.append((way[-1][0] + (x - way[-1][0]) * 0.35, 122000))
            way.append((x, shore(x) + 600))
        else:
            point = platform(names.index(stop))
            if way:
                ax, ay = way[-1]
                way.append(((ax + point[0]) / 2 + (point[1] - ay) * 0.06, (ay + point[1]) / 2 - (point[0] - ax) * 0.06))
            way.append(point)
    return way


def shotpoints():
    """One line from the south-west to the north-east, a shotpoint every 660 feet, bent a little."""
    x, y, heading = 1894000.0, 33000.0, math.radians(21.0)
    for i in range(301):
        yield 1001 + i, x, y
        bend = heading + math.radians(2.6 * math.sin(i / 47))
        x, y = x + 660 * math.cos(bend), y + 660 * math.sin(bend)


def contours():
    """Water depths in feet: smooth lines that follow the shore at growing distance."""
    for depth, away in [(30, 21000), (60, 47000), (120, 78000), (200, 108000)]:
        line = []
        for x in range(X1 - 8000, X2 + 8001, 2400):
            smooth = sum(shore(x + d) for d in range(-24000, 24001, 6000)) / 9
            wave = 2600 * math.sin(x / 21000 + depth) + 1300 * math.sin(x / 9100 + 2 * depth)
            line.append((x, smooth - away + wave))
        yield depth, line


# --- The files. ---


def collection(features):
    return json.dumps({"type": "FeatureCollection", "features": features}, indent=None,
                      separators=(",", ":")).replace('{"type":"Feature"', '\n{"type":"Feature"') + "\n"


def feature(shape, coordinates, **properties):
    return {"type": "Feature", "properties": properties,
            "geometry": {"type": shape, "coordinates": coordinates}}


def line(points):
    return [position(x, y) for x, y in points]


def table(head, rows):
    out = io.StringIO()
    writer = csv.writer(out, lineterminator="\n")
    writer.writerow(head)
    writer.writerows(rows)
    return out.getvalue()


def shore_file():
    coast = shoreline()
    land = coast + [(X2 + 20000, Y2 + 20000), (X1 - 20000, Y2 + 20000), coast[0]]
    features = [feature("Polygon", [line(land)], name="mainland")]
    features += [feature("Polygon", [line(ring)], name="island") for ring in islands()]
    return collection(features)


def coast_file():
    features = [feature("LineString", line(shoreline()))]
    features += [feature("LineString", line(ring)) for ring in islands()]
    return collection(features)


def boundary_file():
    """A state line along a river, and two county lines."""
    river = [(1998000 + 2600 * math.sin(i / 3.0) + 900 * math.sin(i), shore(1998000) + 1500 * i) for i in range(30)]
    west = [(1938000, shore(1938000)), (1938000, 168000), (1921000, 168000), (1921000, 205000)]
    east = [(2058000, shore(2058000)), (2061000, 163000), (2061000, 205000)]
    return collection([
        feature("LineString", line(river), kind="state"),
        feature("LineString", line([river[0], (1997500, Y1 - 5000)]), kind="sea"),
        feature("LineString", line(west), kind="county"),
        feature("LineString", line(east), kind="county"),
    ])


def three_mile_file():
    smooth = [(x, sum(shore(x + d) for d in range(-9000, 9001, 3000)) / 7 - 3 * MILE) for x in range(X1 - 8000, X2 + 8001, 1600)]
    return collection([feature("LineString", line(smooth), name="three-mile line")])


def names_file():
    rows = [("state", "STATE OF MARLAND", 1953000, 174500), ("state", "STATE OF OSTRAVIA", 2030000, 174500),
            ("county", "Sedge County", 1898500, 161500), ("county", "Reed County", 1972000, 167500),
            ("county", "Willet County", 2028000, 162500), ("county", "Plover County", 2096000, 164500),
            ("area", AREAS[0][1].upper(), GRID_X + 3.5 * BLOCK, GRID_Y + ROWS * BLOCK + 4200),
            ("area", AREAS[1][1].upper(), GRID_X + 10.5 * BLOCK, GRID_Y + ROWS * BLOCK + 4200),
            ("town", "Port Curlew", 1903000, shore(1903000) + 1500), ("town", "Sandpiper", 2032500, shore(2032500) + 1400),
            ("town", "Avocet Landing", 2087000, shore(2087000) + 1700)]
    return table(["KIND", "NAME", "LON", "LAT"],
                 [[kind, name, *(f"{v:.7f}" for v in position(x, y))] for kind, name, x, y in rows])


def status_of(code, number):
    key = (number * 37 + (0 if code == "HB" else 11)) % 12
    return ["PROD", "OPEN", "PRIMRY", "UNIT", "OPEN", "PROD", "OPEN", "PRIMRY", "OPEN", "SOP", "OPEN", "UNIT"][key]


def blocks_file():
    drilled = {block_at(x, y) for _, _, _, _, (x, y) in wells()}
    features = []
    for code, number, x, y in blocks():
        corners = [(x, y), (x, y - BLOCK), (x + BLOCK, y - BLOCK), (x + BLOCK, y), (x, y)]
        status = status_of(code, number)
        if (code, number) in drilled and status == "OPEN":
            status = "PRIMRY"
        # Every fifth block of the second area carries an extension, as where two surveys meet.
        extension = "A" if code == "TS" and number % 5 == 0 else ""
        features.append(feature("Polygon", [line(corners)], area=code, block=str(number),
                                ext=extension, status=status, lease=f"Z{(number * 53 + ord(code[0]) * 7) % 9000 + 1000:05d}"))
    return collection(features)


def areas_file():
    features = []
    for index, (code, name) in enumerate(AREAS):
        x, y = GRID_X + index * COLUMNS * BLOCK, GRID_Y
        w, h = COLUMNS * BLOCK, ROWS * BLOCK
        ring = [(x, y), (x + w, y), (x + w, y + h), (x, y + h), (x, y)]
        features.append(feature("Polygon", [line(ring)], code=code, name=name))
    return collection(features)


def wells_file():
    rows = []
    for number, name, kind, surface, bottom in wells():
        rows.append([f"99{100 + (number % 7):03d}{number:05d}00", name, kind,
                     *(f"{v:.7f}" for v in position(*bottom)), *(f"{v:.7f}" for v in position(*surface))])
    return table(["API", "NAME", "KIND", "LON", "LAT", "SURF_LON", "SURF_LAT"], rows)


def platforms_file():
    rows = []
    for index, (name, kind, _, _) in enumerate(PLATFORMS):
        x, y = platform(index)
        code, number = block_at(x, y)
        rows.append([name, kind, code, number, *(f"{v:.7f}" for v in position(x, y))])
    return table(["NAME", "TYPE", "AREA", "BLOCK", "LON", "LAT"], rows)


def pipes_file():
    return collection([feature("LineString", line(pipe_way(stops)), segment=segment,
                               inches=str(inches), product=product)
                       for segment, inches, product, stops in PIPES])


def seismic_file():
    return table(["LINE", "SP", "LON", "LAT"],
                 [["K-27", number, *(f"{v:.7f}" for v in position(x, y))] for number, x, y in shotpoints()])


def contours_file():
    return collection([feature("LineString", line(points), depth=str(depth)) for depth, points in contours()])


FILES = {
    "land.geojson": shore_file, "coast.geojson": coast_file, "boundaries.geojson": boundary_file,
    "three-mile.geojson": three_mile_file, "names.csv": names_file, "areas.geojson": areas_file,
    "blocks.geojson": blocks_file, "wells.csv": wells_file, "platforms.csv": platforms_file,
    "pipelines.geojson": pipes_file, "seismic.csv": seismic_file, "depth.geojson": contours_file,
}


def main():
    check = sys.argv[1:] == ["--check"]
    for name, make in FILES.items():
        text = make().encode("utf-8")
        path = FOLDER / name
        if check:
            if not path.exists() or path.read_bytes() != text:
                sys.exit(f"{path} differs from what this rule makes")
        else:
            path.write_bytes(text)


if __name__ == "__main__":
    main()
