"""Archives that are sound as archives but no logbook: reading them must fail as a whole, with a reason."""

from __future__ import annotations

from typing import Any, Callable, Iterator

import plongee
import typedstream as ts

DIVE = {"noPlongee": 7, "lieu": ts.string("Port-Cros"), "date": ts.date(5e8)}


def _foreign_record(chain: ts.Class) -> ts.Object:
    return ts.Object(chain, plongee.record(DIVE).groups)


def _changed(change: Callable[[list], Any]) -> ts.Object:
    """A logbook of a good dive and one whose groups were changed."""
    damaged = plongee.record(DIVE)
    change(damaged.groups)
    return ts.array([plongee.record(DIVE), damaged])


def _slot(name: str) -> int:
    return [slot for slot, _ in plongee.slots(plongee.CURRENT_VERSION)].index(name)


def _replaced(name: str, encoding: str, *values: Any) -> ts.Object:
    at = _slot(name)
    return _changed(lambda groups: groups.__setitem__(at, (encoding, values)))


def _roots() -> dict[str, tuple[ts.Object | None, str]]:
    foo = ts.Class("Foo", 27, ts.OBJECT)
    middle = ts.Class("Plongee", 27, ts.Class("Foo", 1, ts.OBJECT))
    dive = plongee.record(DIVE)
    gap = ts.array([ts.number("d", 3), None, ts.number("d", 4)])
    words = ts.array([ts.number("d", 3), ts.string("4.5")])
    return {
        "root-nil": (None, "the root is nil"),
        "root-string": (ts.string("Plongee"), "the root is a string"),
        "root-dive": (dive, "the root is a record and no array of records"),
        "root-dictionary": (ts.dictionary([(ts.string("1"), dive)]), "the root is a dictionary"),
        "class-foo": (ts.array([_foreign_record(foo)]), "the record is of class Foo"),
        "class-foo-second": (ts.array([dive, _foreign_record(foo)]), "the second record is of class Foo"),
        "chain-foo": (ts.array([_foreign_record(middle)]), "Plongee derives from Foo"),
        "nil-element": (ts.array([dive, None]), "the second record is nil"),
        "string-element": (ts.array([dive, ts.string("Plongee")]), "the second record is a string"),
        "slot-missing": (_changed(lambda groups: groups.pop()), "the second record lacks its last slot"),
        "slot-missing-inside": (
            _changed(lambda groups: groups.pop(_slot("gpsSystem"))),
            "an object stands where gpsSystem is expected",
        ),
        "slot-too-many": (_changed(lambda groups: groups.append(("i", (1,)))), "a group after the last slot"),
        "real-for-integer": (_replaced("noPlongee", "f", 7.5), "noPlongee is a real"),
        "integer-for-real": (_replaced("profondeur", "i", 30), "profondeur is an integer"),
        "integer-for-text": (_replaced("lieu", "i", 30), "lieu is an integer"),
        "wider-integer": (_replaced("temps", "q", 30), "temps is of another integer type"),
        "two-values": (_replaced("temps", "ii", 30, 0), "two values in the group of temps"),
        "date-for-text": (_replaced("lieu", "@", ts.date(1)), "lieu is a date"),
        "text-for-date": (_replaced("date", "@", ts.string("7/6/2016")), "date is a string"),
        "text-for-array": (_replaced("ASC_Flag", "@", ts.string("0")), "ASC_Flag is a string"),
        "nil-in-array": (_replaced("profilProfondeur", "@", gap), "nil among the depths"),
        "text-in-array": (_replaced("profilProfondeur", "@", words), "a string among the depths"),
    }


def refused() -> Iterator[tuple[str, bytes, dict]]:
    for name, (root, reason) in _roots().items():
        yield f"refused-{name}.carnet", ts.encode(root), {"type": plongee.DOCUMENT_TYPE, "refused": reason}
    twice = ts.encode_groups([("@", (ts.array([plongee.record(DIVE)]),)), ("i", (1,))])
    yield "refused-second-root.carnet", twice, {
        "type": plongee.DOCUMENT_TYPE,
        "refused": "a further group after the root",
    }
