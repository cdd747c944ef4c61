#!/ usr / bin / python3
"""Draws a shapefile of lines with mapnik at 1600 by 1200: the whole, then 1 % of its area.

Prints "mapnik_whole_seconds" and "mapnik_part_seconds", each the median of some runs.
Usage: mapnik_render.py FILE.shp SIDE
"""
import statistics
import sys
import time

import mapnik

path, side = sys.argv[1], float(sys.argv[2])
canvas = mapnik.Map(1600, 1200)
canvas.background = mapnik.Color("black")
style, rule = mapnik.Style(), mapnik.Rule()
symbol = mapnik.LineSymbolizer()
symbol.stroke, symbol.stroke_width = mapnik.Color("white"), 1.0
rule.symbols.append(symbol)
style.rules.append(rule)
canvas.append_style("lines", style)
layer = mapnik.Layer("lines")
layer.datasource = mapnik.Shapefile(file=path)
layer.styles.append("lines")
canvas.layers.append(layer)


def seconds(box, runs):
    times = []
    for _ in range(runs):
        canvas.zoom_to_box(box)
        image = mapnik.Image(canvas.width, canvas.height)
        start = time.monotonic()
        mapnik.render(canvas, image)
        times.append(time.monotonic() - start)
    return statistics.median(times)


wide = side * 1600 / 1200
low = side * 0.45
print("mapnik_whole_seconds %.6g" % seconds(mapnik.Box2d(0, 0, wide, side), 3))
print("mapnik_part_seconds %.6g" % seconds(mapnik.Box2d(low, low, low + wide * 0.1, low + side * 0.1), 5))
