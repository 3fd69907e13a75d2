#!/usr/bin/env python3
"""Draws the chart buttons' icons (32 x 32 PNG, antialiased by 4 x 4 supersampling).

    python3 scripts/make_chart_icons.py xcomponents/qml/chart

curvesetting.png: a magnifier (the search dialog); curverestore.png: a circular
arrow (back to the whole span, also the XY chart's zoom undone).
"""
import math
import struct
import sys
import zlib

SIZE = 32
SS = 4


def png(path, pixels):
    raw = b"".join(b"\x00" + bytes(sum((list(p) for p in row), [])) for row in pixels)
    def chunk(tag, data):
        return struct.pack(">I", len(data)) + tag + data + struct.pack(">I", zlib.crc32(tag + data) & 0xFFFFFFFF)
    with open(path, "wb") as f:
        f.write(b"\x89PNG\r\n\x1a\n")
        f.write(chunk(b"IHDR", struct.pack(">IIBBBBB", SIZE, SIZE, 8, 6, 0, 0, 0)))
        f.write(chunk(b"IDAT", zlib.compress(raw, 9)))
        f.write(chunk(b"IEND", b""))


def seg_dist(px, py, ax, ay, bx, by):
    dx, dy = bx - ax, by - ay
    t = max(0.0, min(1.0, ((px - ax) * dx + (py - ay) * dy) / (dx * dx + dy * dy)))
    return math.hypot(px - ax - t * dx, py - ay - t * dy)


def in_triangle(px, py, a, b, c):
    def side(p1, p2):
        return (px - p2[0]) * (p1[1] - p2[1]) - (p1[0] - p2[0]) * (py - p2[1])
    d1, d2, d3 = side(a, b), side(b, c), side(c, a)
    return not ((d1 < 0 or d2 < 0 or d3 < 0) and (d1 > 0 or d2 > 0 or d3 > 0))


def frame(px, py):
    """The button's rounded square: (fill, border) hits."""
    r = 6.0
    cx = min(max(px, 1 + r), 31 - r)
    cy = min(max(py, 1 + r), 31 - r)
    d = math.hypot(px - cx, py - cy)
    inside = 1 <= px <= 31 and 1 <= py <= 31 and d <= r
    border = inside and (d >= r - 2 or px < 3 or px > 29 or py < 3 or py > 29) and (
        d >= r - 2 if (px < 1 + r or px > 31 - r) and (py < 1 + r or py > 31 - r) else (px < 3 or px > 29 or py < 3 or py > 29))
    return inside, border


def render(shape):
    rows = []
    for y in range(SIZE):
        row = []
        for x in range(SIZE):
            acc = [0.0, 0.0, 0.0, 0.0]
            for sy in range(SS):
                for sx in range(SS):
                    px = x + (sx + 0.5) / SS
                    py = y + (sy + 0.5) / SS
                    colour = None
                    inside, border = frame(px, py)
                    if inside:
                        colour = (0x5A, 0x65, 0x70) if border else (0xF4, 0xF6, 0xF8)
                        hit = shape(px, py)
                        if hit and not border:
                            colour = hit
                    if colour:
                        acc[0] += colour[0]
                        acc[1] += colour[1]
                        acc[2] += colour[2]
                        acc[3] += 255
            n = SS * SS
            a = acc[3] / n
            if a == 0:
                row.append((0, 0, 0, 0))
            else:
                k = acc[3] / 255
                row.append((round(acc[0] / k), round(acc[1] / k), round(acc[2] / k), round(a)))
        rows.append(row)
    return rows


def magnifier(px, py):
    blue = (0x2C, 0x6F, 0xB7)
    if abs(math.hypot(px - 14, py - 14) - 7) <= 1.5:
        return blue
    if seg_dist(px, py, 19, 19, 25, 25) <= 2:
        return blue
    return None


def restore(px, py):
    green = (0x2C, 0x7A, 0x3A)
    d = math.hypot(px - 16, py - 17)
    angle = math.degrees(math.atan2(py - 17, px - 16)) % 360
    if abs(d - 8) <= 1.5 and not (200 <= angle <= 268):
        return green
    if in_triangle(px, py, (13, 4.5), (21, 9), (13, 13.5)):
        return green
    return None


def main():
    out = sys.argv[1] if len(sys.argv) > 1 else "."
    png(out + "/curvesetting.png", render(magnifier))
    png(out + "/curverestore.png", render(restore))


if __name__ == "__main__":
    main()
