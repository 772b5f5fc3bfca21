"""The golden archives of the registers: every class in every version that reads differently, two records with
every slot filled and some at the edges, and what the program makes of them when it saves them again."""

from __future__ import annotations

import struct
import zlib
from typing import Any, Iterator

import plongee
import typedstream as ts
from plongee import seconds_of
from register_classes import LAST, REGISTERS, Register, Slot, Values, as_json, read, record, shared_bearing

Archive = tuple[str, bytes, dict | None]


# ---- small pictures


def tiny_png(red: int, green: int, blue: int) -> bytes:
    """A PNG of one pixel."""

    def chunk(kind: bytes, body: bytes) -> bytes:
        return struct.pack(">I", len(body)) + kind + body + struct.pack(">I", zlib.crc32(kind + body))

    header = struct.pack(">IIBBBBB", 1, 1, 8, 2, 0, 0, 0)
    pixels = zlib.compress(bytes([0, red, green, blue]), 9)
    return b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header) + chunk(b"IDAT", pixels) + chunk(b"IEND", b"")


def tiny_tiff(red: int, green: int, blue: int) -> bytes:
    """A little-endian TIFF of one pixel: header, directory, the three bits-per-sample numbers, the pixel."""
    short, long = 3, 4
    directory_at, entry_count = 8, 9
    depths_at = directory_at + 2 + 12 * entry_count + 4
    pixel_at = depths_at + 6
    entries = [
        (256, short, 1, 1),  # width
        (257, short, 1, 1),  # height
        (258, short, 3, depths_at),  # bits per sample
        (259, short, 1, 1),  # not compressed
        (262, short, 1, 2),  # RGB
        (273, long, 1, pixel_at),  # strip offset
        (277, short, 1, 3),  # samples per pixel
        (278, short, 1, 1),  # rows per strip
        (279, long, 1, 3),  # strip byte count
    ]
    body = b"II*\x00" + struct.pack("<I", directory_at) + struct.pack("<H", entry_count)
    body += b"".join(struct.pack("<HHII", *entry) for entry in entries) + struct.pack("<I", 0)
    return body + struct.pack("<HHH", 8, 8, 8) + bytes([red, green, blue])


IMAGE = ts.Class("NSImage", 0, ts.OBJECT)
BITMAP = ts.Class("NSBitmapImageRep", 0, ts.Class("NSImageRep", 0, ts.OBJECT))


def image_around(content: bytes, nested: bool) -> ts.Object:
    """An image object with encoded picture bytes somewhere inside; readers find them by their first bytes."""
    if nested:
        count = len(content)
        picture = ts.Object(BITMAP, [("cc", (1, 0)), ("i", (count,)), (f"[{count}c]", (content,))])
        return ts.Object(IMAGE, [("ff", (1.0, 1.0)), ("@", (ts.array([picture]),))])
    return ts.Object(IMAGE, [("@", (ts.string("Apercu"),)), ("@", (ts.data(content),))])


# ---- the records

# What stands in a text slot that was to become something else.
OLD_DATES = ("5/3/2010", "17/12/2009", "vers 1998", "31/2/2011")


def _filled(slot: Slot, place: int, number: int) -> Any:
    """A value of one slot, unlike every other of its record."""
    if slot.kind == "i":
        value = 100000 * place if place % 6 == 5 else 100 * number + place
        return value * (-1 if place % 9 == 4 else 1) + number
    if slot.kind == "f":
        return ts.to_float32(100 * number + place + (0 if place % 4 == 3 else 0.3))
    if slot.kind == "date":
        return seconds_of(2005 + number, 1 + place % 12, 1 + place % 28, place % 24, 7 * number, place % 60)
    if slot.kind == "image":
        content = (tiny_png if number else tiny_tiff)(200, 10 * number, place)
        return image_around(content, nested=number == 1)
    if slot.name == "dateAchatMatos":
        return OLD_DATES[number]
    return f"{slot.name} {number}" if place % 3 else f"{slot.name} « {number} »"


def _edge(slot: Slot, place: int, number: int) -> Any:
    """Empty and short texts, the greatest and the smallest numbers, dates before and after all others."""
    if slot.kind == "i":
        greatest = 2**24 if slot.until < LAST else 2**31 - 1  # what was a whole number then is a float32 now
        return (-(2**31), greatest, -128, 32768, -1, 0)[(place + number) % 6]
    if slot.kind == "f":
        return (-1.0, -0.0, 3.4028234663852886e38, ts.to_float32(1e-45), -0.5, 0.0)[(place + number) % 6]
    if slot.kind == "date":
        return (seconds_of(1900, 1, 1), 0.0, seconds_of(2044, 2, 29, 12, 0, 0.125), -0.5)[(place + number) % 4]
    if slot.kind == "image":
        return image_around(tiny_png(1, 2, place), nested=True)
    if slot.name == "dateAchatMatos":
        return OLD_DATES[number]
    return ("", "seven 7", "水中 Ω\r\n\t\"", "seven 7", "a\x00b")[(place + number) % 5]


def _values(register: Register, version: int, make: Any, number: int) -> Values:
    slots = register.in_version(version)
    values = {slot.name: make(slot, place, number) for place, slot in enumerate(slots)}
    if make is _filled:
        for wanted in ("i", "f", "string", "date"):
            of_kind = [values[slot.name] for slot in slots if slot.kind == wanted]
            if len(set(of_kind)) != len(of_kind):
                raise ValueError(f"two slots of {register.cls} with the same value")
    return values


def _archive(
    register: Register, name: str, version: int, records: list[Values], policy: str, again: int | None = None
) -> Iterator[Archive]:
    """One archive with its expectation, and what it is when the program saves it again. With `again`, the record
    of that index stands a second time at the end."""
    decoded = [read(register, values, version) for values in records]
    archived = [record(register, values, version) for values in records]
    is_wreck = register.cls == "Epaves"
    saved = [record(register, shared_bearing(fields) if is_wreck else fields) for fields in decoded]
    expectation = {"type": register.type_name, "class": register.cls, "version": version}
    expectation["records"] = [as_json(register, fields) for fields in decoded]
    for rows in (archived, saved, expectation["records"]):
        if again is not None:
            rows.append(rows[again])
    yield f"{name}.{register.stem}", ts.encode(ts.array(archived), policy), expectation
    yield f"resaved-{name}.{register.stem}", ts.encode(ts.array(saved)), None


def registers() -> Iterator[Archive]:
    for register in REGISTERS:
        current = register.version
        name = f"{register.stem}-v{current}"
        yield from _archive(
            register, name, current, [_values(register, current, _filled, number) for number in range(2)], "current"
        )
        edges = [_values(register, current, _edge, number) for number in range(6)]
        yield from _archive(register, f"{name}-edges", current, [{}, *edges], "current", again=1)
        for version in register.old_versions:
            records = [_values(register, version, _filled, number) for number in range(2)]
            records += [{}, *(_values(register, version, _edge, number) for number in (2, 3))]
            yield from _archive(register, f"{register.stem}-v{version}", version, records, "plain", again=1)
