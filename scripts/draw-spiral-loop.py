#!/usr/bin/env python3
"""Draws the spiral binding loop pictures of the sample catalogue.

One loop of the wire spiral, upright, on a transparent background: the picture that
the library scales to a product's loopWidth x loopHeight and repeats along the binding
edge. One picture per wire colour named in the sample products' "loopImages".

Usage: scripts/draw-spiral-loop.py [THUMBNAILS_DIR]   (default: data/sample/thumbnails)
Only the Python standard library is used, so the pictures can be redrawn anywhere.
"""

import math
import os
import struct
import sys
import zlib

WIDTH, HEIGHT = 54, 150
SUPERSAMPLE = 4
WIRE_HALF_WIDTH = 4.0

# File name -> (dark, light) RGB of the wire.
VARIANTS = {
    "spiralbinding-one-loop-vertical.png": ((92, 96, 104), (236, 240, 246)),
    "spiralbinding-one-loop-vertical-gold.png": ((120, 88, 24), (250, 226, 150)),
    "spiralbinding-one-loop-vertical-black.png": ((12, 12, 14), (110, 112, 118)),
}


def wire_sample(x, y):
    """Coverage (0..1) and shade (0..1) of the wire at one point of the picture."""
    cx, cy = WIDTH / 2.0, HEIGHT / 2.0
    a = WIDTH / 2.0 - WIRE_HALF_WIDTH - 1.0
    b = HEIGHT / 2.0 - WIRE_HALF_WIDTH - 1.0
    dx, dy = x - cx, y - cy
    r = math.hypot(dx / a, dy / b)
    if r == 0.0:
        return 0.0, 0.0
    # Distance to the ellipse, to first order: (r - 1) / |grad r|.
    gx, gy = dx / (a * a * r), dy / (b * b * r)
    distance = (r - 1.0) / math.hypot(gx, gy)
    if abs(distance) > WIRE_HALF_WIDTH:
        return 0.0, 0.0
    # Round wire: bright along its middle, darker at its edges.
    across = distance / WIRE_HALF_WIDTH
    shade = math.cos(across * math.pi / 2.0) ** 1.5
    # The left half of the loop runs behind the paper and catches less light.
    if dx < 0:
        shade *= 0.55
    return 1.0, shade


def render(dark, light):
    rows = []
    n = SUPERSAMPLE
    for py in range(HEIGHT):
        row = bytearray([0])  # filter type "none"
        for px in range(WIDTH):
            coverage = shade_sum = 0.0
            for sy in range(n):
                for sx in range(n):
                    c, s = wire_sample(px + (sx + 0.5) / n, py + (sy + 0.5) / n)
                    coverage += c
                    shade_sum += s * c
            if coverage == 0.0:
                row += bytes(4)
                continue
            shade = shade_sum / coverage
            alpha = coverage / (n * n)
            rgb = [round(d + (l - d) * shade) for d, l in zip(dark, light)]
            row += bytes(rgb + [round(alpha * 255)])
        rows.append(bytes(row))
    return b"".join(rows)


def chunk(kind, data):
    body = kind + data
    return struct.pack(">I", len(data)) + body + struct.pack(">I", zlib.crc32(body) & 0xFFFFFFFF)


def write_png(path, pixels):
    header = struct.pack(">IIBBBBB", WIDTH, HEIGHT, 8, 6, 0, 0, 0)  # 8-bit RGBA
    with open(path, "wb") as f:
        f.write(b"\x89PNG\r\n\x1a\n")
        f.write(chunk(b"IHDR", header))
        f.write(chunk(b"IDAT", zlib.compress(pixels, 9)))
        f.write(chunk(b"IEND", b""))


def main():
    target = sys.argv[1] if len(sys.argv) > 1 else os.path.join("data", "sample", "thumbnails")
    os.makedirs(target, exist_ok=True)
    for name, (dark, light) in VARIANTS.items():
        path = os.path.join(target, name)
        write_png(path, render(dark, light))
        print(path)


if __name__ == "__main__":
    main()
