"""Small pictures for the demo registers, drawn here: a wreck under water, a card with lines of writing."""

from __future__ import annotations

import random
import struct
import zlib
from typing import Callable

import typedstream as ts

IMAGE = ts.Class("NSImage", 0, ts.OBJECT)
Pixel = tuple[int, int, int]


def png(width: int, height: int, pixel: Callable[[int, int], Pixel]) -> bytes:
    def chunk(kind: bytes, body: bytes) -> bytes:
        return struct.pack(">I", len(body)) + kind + body + struct.pack(">I", zlib.crc32(kind + body))

    rows = b"".join(b"\0" + bytes(part for x in range(width) for part in pixel(x, y)) for y in range(height))
    header = struct.pack(">IIBBBBB", width, height, 8, 2, 0, 0, 0)
    return b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header) + chunk(b"IDAT", zlib.compress(rows, 9)) + chunk(b"IEND", b"")


def image(content: bytes) -> ts.Object:
    return ts.Object(IMAGE, [("@", (ts.data(content),))])


def wreck(seed: int) -> ts.Object:
    """A dark hull with two masts, lying a little over, in water that darkens downwards."""
    rng = random.Random(seed)
    width, height, heel = 240, 160, rng.uniform(-0.25, 0.25)
    masts = (rng.randint(70, 100), rng.randint(140, 170))

    def pixel(x: int, y: int) -> Pixel:
        dx, dy = x - width / 2, y - 105
        along, up = dx + heel * dy, dy - heel * dx
        in_hull = 0 <= up <= 22 and abs(along) <= 85 - up * 1.3
        in_house = -16 <= up < 0 and -10 <= along <= 32
        in_mast = -62 <= up < 0 and any(abs(along + width / 2 - mast) <= 1.5 for mast in masts)
        if y > 132 + 5 * ((x * 7) % 13) / 13:
            return (58, 66, 60)
        if in_hull or in_house or in_mast:
            return (30, 44, 52)
        return (max(8, 40 - y // 5), 130 - y // 2, 170 - y // 2)

    return image(png(width, height, pixel))


def paper(seed: int) -> ts.Object:
    """A card with a coloured head, lines of writing and a stamp."""
    rng = random.Random(seed)
    width, height = 240, 152
    head = tuple(rng.randint(40, 170) for _ in range(3))
    lengths = [rng.randint(60, 190) for _ in range(8)]

    def pixel(x: int, y: int) -> Pixel:
        if x in (0, width - 1) or y in (0, height - 1):
            return (120, 120, 120)
        if y < 28:
            return head
        line, within = divmod(y - 42, 13)
        if 0 <= line < 8 and within < 5 and 16 <= x < 16 + lengths[line] and (x * 13 + line * 7) % 11 > 2:
            return (70, 70, 80)
        distance = ((x - 196) ** 2 + (y - 112) ** 2) ** 0.5
        if 20 <= distance <= 23 or (distance < 14 and (x + y) % 5 < 2):
            return (190, 60, 70)
        return (250, 248, 240)

    return image(png(width, height, pixel))
