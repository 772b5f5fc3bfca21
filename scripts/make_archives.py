#!/usr/bin/env python3
"""Make the golden archives in tests/data/archives: logbooks of every archive version that reads differently,
archives with odd but legal contents, archives that must be refused, and the registers of every version.

Beside each archive stands a JSON file with what a reader must make of it, worked out here and never by the
program. In one record every number and text differs from every other, so that a slot dropped, doubled or
swapped shows. The result is the same on every run; `--check` compares it with the files that are there.

{"type", "class", "version", "records": [{field: value}]}. Dates are local (Europe/Paris), ISO 8601; absent is
null; reals in the shortest form that reads back as the same float32; an array element that is no readable number
is null. Archives to be refused: {"refused": reason}. An archive named "resaved-..." stands alone: it is, byte for
byte, what the program writes after it has read the archive of that name.
"""

from __future__ import annotations

import argparse
import json
import pathlib
import sys
from typing import Any

import archive_registers
import typedstream as ts
from archive_dives import logbooks
from archive_refused import refused
from typedstream_reader import decode

FOLDER = pathlib.Path(__file__).resolve().parent.parent / "tests" / "data" / "archives"


def to_json(value: Any, indent: str = "") -> str:
    """JSON with one line for each field or slot list: short enough to read and to compare by eye."""
    deeper = indent + " "
    if isinstance(value, dict):
        lines = [f"{deeper}{json.dumps(key)}: {to_json(item, deeper)}" for key, item in value.items()]
        return "{\n" + ",\n".join(lines) + f"\n{indent}}}" if lines else "{}"
    if isinstance(value, list) and value and isinstance(value[0], dict | list):
        lines = [f"{deeper}{to_json(item, deeper)}" for item in value]
        return "[\n" + ",\n".join(lines) + f"\n{indent}]"
    return json.dumps(value, ensure_ascii=False, allow_nan=False)


def all_files() -> dict[str, bytes]:
    files: dict[str, bytes] = {}
    for name, content, expectation in [*logbooks(), *archive_registers.registers(), *refused()]:
        if name in files:
            raise ValueError(f"two archives named {name}")
        # Whatever the archive holds, it must at least be one that can be read and written back unchanged.
        if "refused" not in (expectation or {}) and ts.encode_groups(decode(content), "plain") != content:
            raise ValueError(f"{name} does not come back unchanged")
        files[name] = bytes(content)
        if expectation is None:
            continue
        files[name.rsplit(".", 1)[0] + ".json"] = (to_json(expectation) + "\n").encode()
    return files


def check(files: dict[str, bytes]) -> int:
    there = {path.name for path in FOLDER.iterdir()} if FOLDER.is_dir() else set()
    wrong = sorted(there ^ files.keys())
    wrong += [name for name in files if name in there and (FOLDER / name).read_bytes() != files[name]]
    for name in wrong:
        print(f"not as made: {name}")
    print(f"{len(files)} files, {len(wrong)} differ")
    return 1 if wrong else 0


def main() -> int:
    parser = argparse.ArgumentParser(description="Make the golden archives of the tests.")
    parser.add_argument("--check", action="store_true", help="write nothing, compare with what is there")
    arguments = parser.parse_args()
    files = all_files()
    if arguments.check:
        return check(files)
    FOLDER.mkdir(parents=True, exist_ok=True)
    for name, content in files.items():
        (FOLDER / name).write_bytes(content)
    print(f"{len(files)} files, {sum(map(len, files.values()))} bytes")
    return 0


if __name__ == "__main__":
    sys.exit(main())
