"""Read any typedstream archive into the object graph of typedstream.py, without knowing its classes.

`decode(content)` gives the top-level groups with every identity kept, so that encoding them again with the
policy "plain" gives the same bytes for every archive that has each item in its shortest form. For checks and
for printing archives; damage is reported as TypedstreamError with its byte offset.
"""

from __future__ import annotations

import struct
import sys
from typing import Any

from typedstream import (
    END,
    FIRST_REFERENCE,
    HEADER,
    INT16,
    INT32,
    INT64,
    LIMITS,
    NEW,
    NIL,
    RAW,
    REAL,
    UNSIGNED,
    Class,
    Group,
    Object,
    TypedstreamError,
    split_types,
)


class Reader:
    """Reads any archive without knowing its classes. Every count is held against the bytes that are left."""

    MAX_DEPTH = 256

    def __init__(self, content: bytes):
        self._content = content
        self._at = 0
        self._strings: list[bytes] = []
        self._items: list[Any] = []
        self._depth = 0

    def groups(self) -> list[Group]:
        if self._take(len(HEADER)) != HEADER:
            raise TypedstreamError("not a typedstream archive", 0)
        # A level of nesting takes three Python calls.
        sys.setrecursionlimit(max(sys.getrecursionlimit(), 4 * self.MAX_DEPTH + 1000))
        groups = []
        while self._at < len(self._content):
            groups.append(self._group())
        return groups

    def _fail(self, message: str, offset: int | None = None):
        raise TypedstreamError(message, self._at if offset is None else offset)

    def _take(self, count: int) -> bytes:
        if count > len(self._content) - self._at:
            self._fail(f"the archive ends where {count} more bytes are expected")
        self._at += count
        return self._content[self._at - count : self._at]

    def _peek(self) -> int:
        if self._at >= len(self._content):
            self._fail("the archive ends too early")
        return self._content[self._at]

    def _integer(self, unsigned: bool = False) -> int:
        start = self._at
        head = self._take(1)[0]
        code = {INT16: "h", INT32: "i", INT64: "q"}.get(head)
        if code:
            code = code.upper() if unsigned else code
            return struct.unpack("<" + code, self._take(struct.calcsize("<" + code)))[0]
        if 0x80 <= head <= 0x91:
            self._fail(f"the tag {head:02x} where an integer is expected", start)
        return head if unsigned or head < 128 else head - 256

    def _reference(self, table: list) -> Any:
        start = self._at
        index = self._integer() - FIRST_REFERENCE
        if not 0 <= index < len(table):
            self._fail(f"a reference to item {index} of {len(table)}", start)
        return table[index]

    def _unshared(self) -> bytes | None:
        if self._peek() == NIL:
            self._at += 1
            return None
        return self._take(self._integer(unsigned=True))

    def _shared(self) -> bytes | None:
        head = self._peek()
        if head == NIL or head == NEW:
            self._at += 1
            if head == NIL:
                return None
            text = self._unshared()
            if text is None:
                self._fail("a shared string without text")
            self._strings.append(text)
            return text
        return self._reference(self._strings)

    def _text(self) -> str:
        start = self._at
        text = self._shared()
        if text is None:
            self._fail("nil where a type encoding or a name is expected", start)
        return text.decode("utf-8", "surrogateescape")

    def _group(self) -> Group:
        start = self._at
        encoding = self._text()
        try:
            types = split_types(encoding)
        except TypedstreamError as error:
            self._fail(str(error), start)
        return encoding, tuple([self._value(kind) for kind in types])

    def _value(self, kind: tuple) -> Any:
        code = kind[0]
        if code == "@":
            return self._object()
        if code in "fd":
            return self._real(code)
        if code in LIMITS:
            return self._whole(code)
        if code == "+":
            return self._unshared()
        if code == "*":
            return self._item(str, lambda: self._text())
        if code == "#":
            return self._class()
        if code in ":%":
            text = self._shared()
            return None if text is None else text.decode("utf-8", "surrogateescape")
        if code == "[" and kind[2][0] in RAW:
            return self._take(kind[1])
        if code == "[" and kind[1] > len(self._content) - self._at:
            self._fail(f"{kind[1]} elements in fewer bytes")
        parts = kind[1] if code == "{" else [kind[2]] * kind[1]
        return tuple([self._value(part) for part in parts])

    def _real(self, code: str) -> float:
        if self._peek() != REAL:
            return float(self._integer())
        self._at += 1
        return struct.unpack("<" + code, self._take(struct.calcsize("<" + code)))[0]

    def _whole(self, code: str) -> int:
        start = self._at
        if code in RAW:
            return struct.unpack("<b" if code == "c" else "<B", self._take(1))[0]
        value = self._integer(code in UNSIGNED)
        least, most = LIMITS[code]
        if not least <= value <= most:
            self._fail(f"{value} does not fit the type code {code}", start)
        return value

    def _item(self, expected: type, read) -> Any:
        """Nil, a reference to an item of the expected kind, or a new one that takes the next number."""
        start = self._at
        head = self._peek()
        if head == NIL:
            self._at += 1
            return None
        if head != NEW:
            item = self._reference(self._items)
            if not isinstance(item, expected):
                self._fail(f"a reference to something that is no {expected.__name__}", start)
            return item
        self._at += 1
        index = len(self._items)
        self._items.append(None)
        self._items[index] = read()
        return self._items[index]

    def _class(self) -> Class | None:
        return self._item(Class, lambda: Class(self._text(), self._integer(), self._class()))

    def _object(self) -> Object | None:
        return self._item(Object, self._new_object)

    def _new_object(self) -> Object:
        item = Object(None)
        self._items[-1] = item
        self._depth += 1
        if self._depth > self.MAX_DEPTH:
            self._fail("objects nested too deep")
        item.cls = self._class()
        if item.cls is None:
            self._fail("an object without class")
        item.groups = []
        while self._peek() != END:
            item.groups.append(self._group())
        self._at += 1
        self._depth -= 1
        return item


def decode(content: bytes) -> list[Group]:
    return Reader(bytes(content)).groups()
