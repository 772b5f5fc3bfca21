"""What `typedstream.py` does when it is run: test the writer and the reader, or print archives."""

from __future__ import annotations

import argparse
import pathlib
import struct
import sys
from typing import Any

import typedstream as ts
from typedstream_reader import decode

# One array holding one record of class Demo, version 27, byte by byte from the rules of the format: number
# arrays, small and wider integers, a date, nil, a string used twice, reals with and without fraction.
WORKED_EXAMPLE = """
04 0b 73 74 72 65 61 6d 74 79 70 65 64 81 e8 03 84 01 40 84 84 84 0e 4e 53 4d 75 74 61 62 6c 65 41 72 72 61
79 00 84 84 07 4e 53 41 72 72 61 79 00 84 84 08 4e 53 4f 62 6a 65 63 74 00 85 84 01 69 01 92 84 84 84 04 44
65 6d 6f 1b 95 92 84 93 96 01 92 84 84 84 08 4e 53 4e 75 6d 62 65 72 00 84 84 07 4e 53 56 61 6c 75 65 00 95
84 01 2a 84 84 01 64 9b 00 86 86 92 84 93 96 01 92 84 9a 9a 84 96 96 00 86 86 96 01 96 81 c8 00 92 84 84 84
06 4e 53 44 61 74 65 00 95 9b 83 00 00 00 00 00 00 e0 3f 86 92 85 92 84 84 84 08 4e 53 53 74 72 69 6e 67 01
95 84 01 2b 05 c3 89 74 c3 a9 86 92 a2 84 01 66 83 00 00 90 40 9f 03 96 82 00 00 90 40 86 86
"""


def worked_example() -> ts.Object:
    summer = ts.string("Été")
    bits = struct.unpack("<i", struct.pack("<f", 4.5))[0]
    groups = [
        ("@", (ts.array([ts.number("d", 0.0)]),)),
        ("@", (ts.array([ts.number("i", 0)]),)),
        ("i", (1,)),
        ("i", (200,)),
        ("@", (ts.date(0.5),)),
        ("@", (None,)),
        ("@", (summer,)),
        ("@", (summer,)),
        ("f", (4.5,)),
        ("f", (3.0,)),
        ("i", (bits,)),
    ]
    return ts.array([ts.record("Demo", 27, groups)])


# The graphs of the archives from another system that a check folder may hold, by file name.
FOREIGN = {
    "NSMutableArray": lambda: ts.array([ts.string("x"), ts.number("q", 2)]),
    "NSString": lambda: ts.string("Hello, world"),
    "NSDate": lambda: ts.date(21692800),
    "NumberDouble": lambda: ts.number("d", 100.5),
    "NSDictionary": lambda: ts.dictionary(
        [(ts.string("k2"), ts.string("v")), (ts.string("k1"), ts.number("q", 1))]
    ),
}

# type code, value, the bytes of its group after the type reference
SCALARS = [
    ("i", 0, "00"),
    ("i", 127, "7f"),
    ("i", 128, "81 80 00"),
    ("i", -110, "92"),
    ("i", -111, "81 91 ff"),
    ("i", -128, "81 80 ff"),
    ("i", 32767, "81 ff 7f"),
    ("i", 32768, "82 00 80 00 00"),
    ("i", -32768, "81 00 80"),
    ("i", -32769, "82 ff 7f ff ff"),
    ("i", -(2**31), "82 00 00 00 80"),
    ("q", -9000000000, "87 00 e6 8e e7 fd ff ff ff"),
    ("I", 145, "81 91 00"),
    ("I", 65535, "82 ff ff 00 00"),
    ("c", -1, "ff"),
    ("C", 200, "c8"),
    ("f", 3.5, "83 00 00 60 40"),
    ("f", 65535.0, "82 ff ff 00 00"),
    ("d", -5.0, "fb"),
    ("d", -0.0, "83 00 00 00 00 00 00 00 80"),
    ("d", 2147483647.0, "82 ff ff ff 7f"),
    ("d", 2147483648.0, "83 00 00 00 00 00 00 e0 41"),
    ("d", float("inf"), "83 00 00 00 00 00 00 f0 7f"),
]


class Checks:
    def __init__(self):
        self.failed = 0
        self.done = 0

    def same(self, name: str, made: bytes, expected: bytes) -> None:
        self.done += 1
        if bytes(made) == bytes(expected):
            return
        self.failed += 1
        print(f"differs: {name}\n  made     {made[:400].hex(' ')}\n  expected {expected[:400].hex(' ')}")

    def refused(self, name: str, content: bytes) -> None:
        self.done += 1
        try:
            decode(content)
        except ts.TypedstreamError:
            return
        self.failed += 1
        print(f"not refused: {name}")


def _check_scalars(checks: Checks) -> None:
    for kind, value, body in SCALARS:
        expected = ts.HEADER + bytes([ts.NEW, 1, ord(kind)]) + bytes.fromhex(body)
        checks.same(f"{kind} {value}", ts.encode_groups([(kind, (value,))]), expected)
        checks.same(f"{kind} {value} read", ts.encode_groups(decode(expected)), expected)


def _check_packed(checks: Checks) -> None:
    """An array in packed form has the bytes of the same array number by number."""
    rows = [
        ("d", [0.0, 1.5, 2.0, 1.5, 0.0]),
        ("d", [3.25, 1.5, 0.0, 2.0]),
        ("d", [7.0, 3.25, 9.0, 7.0]),
        ("f", [0.1, 4.0, 0.1]),
        ("i", [0, 1, 1, 0, 70000, -120]),
        ("q", [2**40, 0, 2**40]),
        ("c", [1, 0, 0]),
        ("d", []),
        ("i", [value % 300 for value in range(700)]),
        ("d", [2.0, 1.5, 3.25]),
    ]
    for policy in ("current", "plain"):
        packed = ts.array(ts.PackedArray(kind, values) for kind, values in rows)
        single = ts.array(ts.array(ts.number(kind, v) for v in values) for kind, values in rows)
        checks.same(f"packed arrays, {policy}", ts.encode(packed, policy), ts.encode(single, policy))


def _check_sharing(checks: Checks) -> None:
    """How many numbers and strings stand in full, told by the size of the object table."""
    def items(objects, policy: str) -> int:
        writer = ts.Writer(policy)
        writer.group("@", (ts.array(objects()),))
        return writer._item_count

    rows = [
        (lambda: [ts.number("d", 2.0), ts.number("d", 2.0)], 1, 2),
        (lambda: [ts.number("d", 2.5), ts.number("d", 2.5)], 2, 2),
        (lambda: [ts.number("c", 1), ts.number("c", 1)], 1, 2),
        (lambda: [ts.string("1234567"), ts.string("1234567")], 1, 2),
        (lambda: [ts.string("12345678"), ts.string("12345678")], 2, 2),
        (lambda: [ts.string("é"), ts.string("é")], 2, 2),
        (lambda: [ts.string("a", mutable=True), ts.string("a", mutable=True)], 2, 2),
        (lambda: [ts.date(5)] * 2, 1, 1),
    ]
    for index, (objects, current, plain) in enumerate(rows):
        for policy, count in (("current", current), ("plain", plain)):
            alone = items(lambda: objects()[:1], policy)
            made = items(objects, policy) - alone + 1
            checks.same(f"sharing row {index}, {policy}", bytes([made]), bytes([count]))


def _check_damage(checks: Checks, content: bytes) -> None:
    for length in range(len(ts.HEADER) + 1, len(content)):
        checks.refused(f"cut to {length} bytes", content[:length])


def check(folder: pathlib.Path | None) -> int:
    checks = Checks()
    example = bytes.fromhex(WORKED_EXAMPLE)
    checks.same("worked example", ts.encode(worked_example()), example)
    checks.same("worked example read and written", ts.encode_groups(decode(example), "plain"), example)
    _check_scalars(checks)
    _check_packed(checks)
    _check_sharing(checks)
    _check_damage(checks, example)
    if folder:
        files = [path for path in sorted(folder.iterdir()) if path.read_bytes().startswith(ts.HEADER)]
        for path in files:
            content = path.read_bytes()
            checks.same(f"{path.name} read and written", ts.encode_groups(decode(content), "plain"), content)
            if path.name in FOREIGN:
                checks.same(f"{path.name} built", ts.encode(FOREIGN[path.name]()), content)
        missing = FOREIGN.keys() - {path.name for path in files}
        if missing:
            checks.failed += 1
            print(f"not in {folder}: {', '.join(sorted(missing))}")
    print(f"{checks.done} checks, {checks.failed} failed")
    return 1 if checks.failed else 0


def _dump(value: Any, indent: str, seen: set[int]) -> None:
    if not isinstance(value, ts.Object):
        print(f"{indent}{value!r}")
        return
    label = f"{indent}{' : '.join(value.cls.chain())} v{value.cls.version}"
    if value.serial in seen:
        print(f"{label} (again)")
        return
    seen.add(value.serial)
    print(label)
    for encoding, values in value.groups:
        for part in values:
            if isinstance(part, ts.Object):
                _dump(part, indent + "  ", seen)
            else:
                print(f"{indent}  {encoding} {part!r}")


def main() -> int:
    parser = argparse.ArgumentParser(prog="typedstream.py", description="Print or check typedstream archives.")
    parser.add_argument("--check", nargs="?", const="", metavar="DIR", help="test the module (against DIR)")
    parser.add_argument("files", nargs="*", type=pathlib.Path)
    arguments = parser.parse_args()
    if arguments.check is not None:
        return check(pathlib.Path(arguments.check) if arguments.check else None)
    for path in arguments.files:
        print(path)
        for _, values in decode(path.read_bytes()):
            for value in values:
                _dump(value, "  ", set())
    return 0
