#!/usr/bin/env python3
"""Write typedstream archives, the file format of Sargan's documents.

This module shares no code with the program: archives made here are what the program's own reader and
writer are tested against. Standard library only.

Build a graph of `Object`s (helpers: string, number, array, date, data, color, dictionary, record)
and call `encode(root)`. Two references to one Object are one instance in the file; two Objects are two
instances however equal they are, unless the policy merges them:

    "current"  as current 64-bit systems write: whole numbers and booleans one copy for each type code and
               value, immutable strings of at most seven ASCII characters one copy for each text
    "plain"    as older systems write: only the same instance is shared

Run as a program: `typedstream.py --check [DIR]` tests this module and the reader beside it, also against the
archives in DIR made by another system when it is given; `typedstream.py FILE...` prints archives as text.
"""

from __future__ import annotations

import itertools
import math
import struct
import sys
from dataclasses import dataclass
from functools import lru_cache
from typing import Any, Iterable, Iterator

HEADER = b"\x04\x0bstreamtyped\x81\xe8\x03"

# Head bytes -128..-111 are tags; every other head byte is a small integer or a reference.
INT16, INT32, REAL, NEW, NIL, END, INT64 = 0x81, 0x82, 0x83, 0x84, 0x85, 0x86, 0x87
FIRST_REFERENCE = -110
INT32_MIN, INT32_MAX = -(2**31), 2**31 - 1

SIGNED, UNSIGNED, RAW = "silq", "SILQ", "cCB"
LIMITS = {code: (-(2 ** (8 * size - 1)), 2 ** (8 * size - 1) - 1) for code, size in zip("csilq", (1, 2, 4, 4, 8))}
LIMITS |= {code: (0, 2 ** (8 * size) - 1) for code, size in zip("CSILQB", (1, 2, 4, 4, 8, 1))}


class TypedstreamError(ValueError):
    """A damaged archive, or a value that cannot be written; `offset` counts bytes from the file's start."""

    def __init__(self, message: str, offset: int | None = None):
        super().__init__(message if offset is None else f"byte {offset}: {message}")
        self.offset = offset


# ---- the object graph


@dataclass(frozen=True)
class Class:
    """A class as an archive knows it: its name, its version and its superclass."""

    name: str
    version: int = 0
    parent: Class | None = None

    def chain(self) -> list[str]:
        return [self.name] + (self.parent.chain() if self.parent else [])


Group = tuple[str, tuple]  # type encoding, values: what one encode call writes

_serial = itertools.count()


class Object:
    """One instance: its class and its groups.

    `groups` may be any iterable of groups; it is walked once when the object is written, so a generator
    streams a large array. `merge` is the key under which equal values become one copy, or None.
    """

    __slots__ = ("cls", "groups", "merge", "serial")

    def __init__(self, cls: Class | None, groups: Iterable[Group] = (), merge: tuple | None = None):
        self.cls = cls
        self.groups = groups
        self.merge = merge
        self.serial = next(_serial)  # the identity; unlike id() it is never used again


class PackedArray(Object):
    """An NSMutableArray of numbers of one type code, each its own instance; written much faster than
    array([number(...), ...]), with the same bytes. Values are finite; a negative zero becomes zero."""

    __slots__ = ("kind", "values")

    def __init__(self, kind: str, values: Iterable):
        super().__init__(MUTABLE_ARRAY)
        self.kind = kind
        self.values = [value + 0.0 for value in values] if kind in "fd" else list(values)
        if kind == "f":
            self.values = [to_float32(value) for value in self.values]


OBJECT = Class("NSObject")
STRING = Class("NSString", 1, OBJECT)
MUTABLE_STRING = Class("NSMutableString", 1, STRING)
ARRAY = Class("NSArray", 0, OBJECT)
MUTABLE_ARRAY = Class("NSMutableArray", 0, ARRAY)
DICTIONARY = Class("NSDictionary", 0, OBJECT)
MUTABLE_DICTIONARY = Class("NSMutableDictionary", 0, DICTIONARY)
VALUE = Class("NSValue", 0, OBJECT)
NUMBER = Class("NSNumber", 0, VALUE)
DATE = Class("NSDate", 0, OBJECT)
DATA = Class("NSData", 0, OBJECT)
MUTABLE_DATA = Class("NSMutableData", 0, DATA)
COLOR = Class("NSColor", 0, OBJECT)


def string(text: str, mutable: bool = False) -> Object:
    merge = ("string", text) if not mutable and len(text) <= 7 and text.isascii() else None
    return Object(MUTABLE_STRING if mutable else STRING, [("+", (text.encode(),))], merge)


def number(kind: str, value: float) -> Object:
    """A number of type code `kind`: i, q, f, d, c (a boolean) and the other integer codes."""
    if kind == "f":
        value = to_float32(value)
    return Object(NUMBER, [("*", (kind,)), (kind, (value,))], _number_key(kind, value))


def array(items: Iterable[Object | None], mutable: bool = True) -> Object:
    items = list(items)
    groups = [("i", (len(items),))] + [("@", (item,)) for item in items]
    return Object(MUTABLE_ARRAY if mutable else ARRAY, groups)


def streamed_array(count: int, items: Iterator[Object], mutable: bool = True) -> Object:
    """An array whose items are made while it is written; there must be `count` of them."""
    groups = itertools.chain([("i", (count,))], (("@", (item,)) for item in items))
    return Object(MUTABLE_ARRAY if mutable else ARRAY, groups)


def date(seconds: float) -> Object:
    """A date by its seconds since 2001-01-01 00:00 UTC."""
    return Object(DATE, [("d", (float(seconds),))])


def data(content: bytes, mutable: bool = False) -> Object:
    groups = [("i", (len(content),)), (f"[{len(content)}c]", (content,))]
    return Object(MUTABLE_DATA if mutable else DATA, groups)


def color(red: float, green: float, blue: float, alpha: float = 1.0) -> Object:
    """A colour in the calibrated RGB space, parts 0 to 1."""
    return Object(COLOR, [("c", (1,)), ("ffff", (red, green, blue, alpha))])


def dictionary(pairs: Iterable[tuple[Object, Object]], mutable: bool = False) -> Object:
    pairs = list(pairs)
    groups: list[Group] = [("i", (len(pairs),))]
    for key, value in pairs:
        groups += [("@", (key,)), ("@", (value,))]
    return Object(MUTABLE_DICTIONARY if mutable else DICTIONARY, groups)


def record(name: str, version: int, groups: Iterable[Group]) -> Object:
    return Object(Class(name, version, OBJECT), list(groups))


def _bytes_of(text: str) -> bytes:
    return text.encode("utf-8", "surrogateescape")


def to_float32(value: float) -> float:
    return struct.unpack("<f", struct.pack("<f", value))[0]


def is_whole(value: float) -> bool:
    """Whether a real value is written in the integer form: whole, within 32 bits, not negative zero."""
    return (
        INT32_MIN <= value <= INT32_MAX
        and value == math.floor(value)
        and not (value == 0 and math.copysign(1, value) < 0)
    )


def _number_key(kind: str, value: float) -> tuple | None:
    if kind in "fd" and not is_whole(value):
        return None
    return ("number", kind, int(value))


# ---- type encodings


@lru_cache(maxsize=None)
def split_types(encoding: str) -> tuple[tuple, ...]:
    """The types of a group: ("i",) for a plain one, ("[", count, type), ("{", types)."""
    types = []
    at = 0
    while at < len(encoding):
        kind, at = _one_type(encoding, at, 0)
        types.append(kind)
    if not types:
        raise TypedstreamError("an empty type encoding")
    return tuple(types)


def _one_type(encoding: str, at: int, depth: int) -> tuple[tuple, int]:
    if depth > 16:
        raise TypedstreamError(f"types nested too deep in {encoding!r}")
    first = encoding[at : at + 1]
    if first and first in SIGNED + UNSIGNED + RAW + "fd@#*+:%":
        return (first,), at + 1
    if first == "[":
        digits = at + 1
        while digits < len(encoding) and encoding[digits].isdigit():
            digits += 1
        element, end = _one_type(encoding, digits, depth + 1)
        if digits > at + 1 and encoding[end : end + 1] == "]":
            return ("[", int(encoding[at + 1 : digits]), element), end + 1
    if first == "{":
        fields = []
        end = encoding.find("=", at) + 1
        while end and end < len(encoding):
            if encoding[end] == "}":
                return ("{", tuple(fields)), end + 1
            field, end = _one_type(encoding, end, depth + 1)
            fields.append(field)
    raise TypedstreamError(f"a type encoding that cannot be understood: {encoding!r}")


# ---- writing


def _integer(value: int, unsigned: bool = False) -> bytes:
    """The narrowest form of an integer. Unsigned values have no one-byte form from 128 on."""
    if unsigned and value > 2**63 - 1:
        return struct.pack("<BQ", INT64, value)
    if FIRST_REFERENCE <= value <= 127:
        return struct.pack("<b", value)
    if -(2**15) <= value < 2**15:
        return struct.pack("<Bh", INT16, value)
    if INT32_MIN <= value <= INT32_MAX:
        return struct.pack("<Bi", INT32, value)
    return struct.pack("<Bq", INT64, value)


def _real(kind: str, value: float) -> bytes:
    if kind == "f":
        value = to_float32(value)
    return _integer(int(value)) if is_whole(value) else struct.pack(f"<B{kind}", REAL, value)


def _number_body(kind: str, value: float) -> bytes:
    if kind in "fd":
        return _real(kind, value)
    least, most = LIMITS[kind]
    if not least <= value <= most:
        raise TypedstreamError(f"{value} does not fit the type code {kind}")
    return bytes([value & 0xFF]) if kind in RAW else _integer(value, kind in UNSIGNED)


class Writer:
    """One archive being written. After the groups, `data()` is the whole file."""

    def __init__(self, policy: str = "current"):
        if policy not in ("current", "plain"):
            raise ValueError(f"no such policy: {policy}")
        self._merging = policy == "current"
        self._out = bytearray(HEADER)
        self._strings: dict[bytes, int] = {}  # type encodings, class names, texts of C strings
        self._items: dict[Any, int] = {}  # objects by serial or merge key, classes, C strings
        self._item_count = 0
        self._cells: dict[str, dict] = {}  # for each type code: value -> bytes of its "@" group
        self._in_full: dict[str, dict] = {}  # for each type code: value -> 1 if that takes an item number

    def data(self) -> bytearray:
        return self._out

    def group(self, encoding: str, values: Iterable) -> None:
        self._shared(_bytes_of(encoding))
        for kind, value in zip(split_types(encoding), values, strict=True):
            self._value(kind, value)

    def _value(self, kind: tuple, value: Any) -> None:
        code = kind[0]
        if code == "@":
            self._object(value)
        elif code in "fd" or code in LIMITS:
            self._out += _number_body(code, value)
        elif code == "+":
            self._unshared(value)
        elif code == "*":
            self._c_string(value)
        elif code in ":%":
            self._shared(None if value is None else _bytes_of(value))
        elif code == "#":
            self._class(value)
        elif code == "[" and kind[2][0] in RAW:
            self._bytes(kind[1], value)
        else:
            parts = kind[1] if code == "{" else itertools.repeat(kind[2], kind[1])
            for part, field in zip(parts, value, strict=True):
                self._value(part, field)

    def _bytes(self, count: int, value: bytes) -> None:
        if len(value) != count:
            raise TypedstreamError(f"{len(value)} bytes where {count} are told")
        self._out += value

    def _unshared(self, value: bytes | None) -> None:
        if value is None:
            self._out.append(NIL)
        else:
            self._out += _integer(len(value), unsigned=True) + value

    def _shared(self, text: bytes | None) -> None:
        if text is None:
            self._out.append(NIL)
        elif text in self._strings:
            self._out += _integer(self._strings[text] + FIRST_REFERENCE)
        else:
            self._strings[text] = len(self._strings)
            self._out.append(NEW)
            self._unshared(text)

    def _known(self, key: Any) -> bool:
        """Writes nil or a back reference if that is all there is to write; else numbers a new item."""
        if key is None:
            self._out.append(NIL)
            return True
        if key in self._items:
            self._out += _integer(self._items[key] + FIRST_REFERENCE)
            return True
        self._items[key] = self._item_count
        self._item_count += 1
        self._out.append(NEW)
        return False

    def _c_string(self, text: str | None) -> None:
        if not self._known(None if text is None else ("C string", text)):
            self._shared(_bytes_of(text))

    def _class(self, cls: Class | None) -> None:
        if not self._known(cls):
            self._shared(_bytes_of(cls.name))
            self._out += _integer(cls.version)
            self._class(cls.parent)

    def _object(self, item: Object | None) -> None:
        if self._known(self._identity(item)):
            return
        self._class(item.cls)
        if isinstance(item, PackedArray):
            self.group("i", (len(item.values),))
            self._packed(item.kind, item.values)
        else:
            for encoding, values in item.groups:
                self.group(encoding, values)
        self._out.append(END)

    def _identity(self, item: Object | None) -> Any:
        if item is None:
            return None
        return item.merge if self._merging and item.merge else item.serial

    # Number arrays: once one number of a type code has been written, every further one has the same bytes
    # before its value, and a merged value is the same reference each time. So the bytes of each value are
    # kept in a dictionary and an array is one join over it, unless it brings a value to be merged for the
    # first time, whose reference depends on where it stands.

    def _packed(self, kind: str, values: list) -> None:
        cells = self._cells.setdefault(kind, {})
        in_full = self._in_full.setdefault(kind, {})
        distinct = set(values)
        fresh = distinct - cells.keys()
        if fresh and (not cells or any(self._is_merged(kind, value) for value in fresh)):
            for value in values:
                self._packed_number(kind, value)
            return
        for value in fresh:
            self._keep_cell(kind, value)
        self._out += b"".join(map(cells.__getitem__, values))
        if any(map(in_full.__getitem__, distinct)):
            self._item_count += sum(map(in_full.__getitem__, values))

    def _packed_number(self, kind: str, value: float) -> None:
        cell = self._cells[kind].get(value)
        if cell is None:
            self.group("@", (number(kind, value),))
            self._keep_cell(kind, value)
        else:
            self._out += cell
            self._item_count += self._in_full[kind][value]

    def _is_merged(self, kind: str, value: float) -> bool:
        return self._merging and _number_key(kind, value) is not None

    def _keep_cell(self, kind: str, value: float) -> None:
        merged = self._is_merged(kind, value)
        self._in_full[kind][value] = 0 if merged else 1
        if merged:
            cell = self._string_reference("@") + self._item_reference(_number_key(kind, value))
        else:
            head = [self._string_reference("@"), bytes([NEW]), self._item_reference(NUMBER)]
            head += [self._string_reference("*"), self._item_reference(("C string", kind))]
            cell = b"".join(head) + self._string_reference(kind) + _number_body(kind, value) + bytes([END])
        self._cells[kind][value] = cell

    def _string_reference(self, text: str) -> bytes:
        return _integer(self._strings[_bytes_of(text)] + FIRST_REFERENCE)

    def _item_reference(self, key: Any) -> bytes:
        return _integer(self._items[key] + FIRST_REFERENCE)


def encode(root: Object | None, policy: str = "current") -> bytearray:
    return encode_groups([("@", (root,))], policy)


def encode_groups(groups: Iterable[Group], policy: str = "current") -> bytearray:
    writer = Writer(policy)
    for encoding, values in groups:
        writer.group(encoding, values)
    return writer.data()


if __name__ == "__main__":
    import typedstream_check

    sys.exit(typedstream_check.main())
