"""The golden logbooks: dives whose every value tells which slot it came from, in every archive version."""

from __future__ import annotations

from typing import Any, Callable, Iterator

import plongee
import typedstream as ts
from plongee import PONIES, PROFILE, seconds_of

Values = dict[str, Any]
Archive = tuple[str, bytes, dict | None]

LONG_TEXT = "Descente le long du tombant, puis retour par le canyon à 18 m. " * 6
VERY_LONG_TEXT = "Journal de bord. " * 2000  # its length takes four bytes


def distinct_integer(place: int, number: int) -> int:
    """Another value for every slot and record, in one, two and four bytes, of both signs."""
    value = 150 * number + place + 1
    if place % 7 == 0:
        return 100000 * (place + 1) + number
    return -value if place % 5 == 0 else value


def distinct_date(place: int, number: int) -> ts.Object:
    return ts.date(seconds_of(2003 + number, 1 + place % 12, 1 + place % 28, place % 24, number * 7 % 60, place % 60))


def distinct_array(place: int, number: int) -> ts.Object:
    """Arrays of different lengths and values; depth and pressure are doubles, flags are integers."""
    if PROFILE[place] in ("profilProfondeur", "PRESS_Data"):
        return ts.PackedArray("d", [0.0, 100 * place + number + 0.1, 3.0 + place, 17.5, 3.0 + place])
    return ts.PackedArray("i", [0] * place + [1, 10 * place + number, 0])


def distinct_text(name: str, number: int) -> ts.Object:
    return ts.string(f"{name} n° {number}" if len(name) % 3 == 0 else f"{name} {number}")


def full_dive(version: int, number: int, **changes: Any) -> Values:
    values: Values = {}
    for place, (name, kind) in enumerate(plongee.slots(version)):
        values[name] = {
            "array": lambda: distinct_array(place, number),
            "string": lambda: distinct_text(name, number),
            "date": lambda: distinct_date(place, number),
            "i": lambda: distinct_integer(place, number),
            "f": lambda: ts.to_float32(place + number + 0.3),
            "bits": lambda: 1.5 * place + number,
        }[kind]()
    for place, pony in enumerate(PONIES):
        if pony in values:
            values[pony] = 9000 + 10 * number + place
    for name in changes.keys() - values.keys():
        raise KeyError(name)
    values |= changes
    _demand_distinct(version, values)
    return values


def _demand_distinct(version: int, values: Values) -> None:
    numbers = [values[name] for name, kind in plongee.slots(version) if kind == "i" and name not in PONIES]
    texts = [plongee.as_text(values[name]) for name, kind in plongee.slots(version) if kind == "string"]
    texts = [text for text in texts if text]
    reals = [values[name] for name, kind in plongee.slots(version) if kind in ("f", "bits")]
    for kind in (numbers, texts, reals):
        if len(set(kind)) != len(kind):
            raise ValueError("two slots of one record with the same value")


def pony_dive(version: int, number: int, ponies: list[int]) -> Values:
    return full_dive(version, number, **dict(zip(PONIES, ponies, strict=True)))


def absent_dive() -> Values:
    """No object at all, every number 0."""
    return {}


def empty_dive(version: int, number: int) -> Values:
    values = full_dive(version, number)
    for name, kind in plongee.slots(version):
        if kind == "string":
            values[name] = ts.string("")
        elif kind == "array":
            values[name] = ts.array([])
    return values


def text_dive(version: int, number: int) -> Values:
    """Texts beyond ASCII, long ones, one with a zero character, a mutable one, one instance in two fields."""
    shared = ts.string("Grotte à Corail")
    values = full_dive(version, number)
    values |= {
        "lieu": shared,
        "structure": shared,
        "site": ts.string("水中洞窟 Ωμέγα"),
        "pays": ts.string("Île d’Yeu"),
        "countryCode": ts.string("é"),
        "gps": ts.string("48°51,500' N 002°21,000' E"),
        "partenaires": ts.string("Zoé\r\nAnaïs\tand \"Bob\" \\ /", mutable=True),
        "epaves": ts.string("e\u0301 and \u00e9 differ"),
        "bateau": ts.string("🐙🤿"),
        "surface": ts.string("a\x00b"),
        "notes": ts.string(LONG_TEXT, mutable=True),
        "equip_1": ts.string("eight 8."),
        "equip_2": ts.string("seven 7"),
        "equip_3": ts.string("seven 7"),
        "equip_4": ts.string("seven 7", mutable=True),
        "serie": ts.string(" "),
    }
    return values


def one_sample_dive(version: int, number: int) -> Values:
    values = full_dive(version, number)
    for place, name in enumerate(PROFILE):
        kind = "d" if name in ("profilProfondeur", "PRESS_Data") else "i"
        values[name] = ts.array([ts.number(kind, place if place % 2 else 0)])
    return values


def mixed_numbers_dive(version: int, number: int) -> Values:
    """Arrays of several number types, and dates with a fraction of a second."""
    fraction = ts.number("d", 33.35)

    def numbers(*pairs: tuple[str, float]) -> ts.Object:
        return ts.array(ts.number(kind, value) for kind, value in pairs)

    values = full_dive(version, number)
    values |= {
        "profilProfondeur": ts.array(
            [ts.number(*pair) for pair in (("d", 0), ("d", 12.3), ("f", 4.5), ("i", 7), ("d", 18), ("q", 21))]
            + [fraction, ts.number("d", 33.35), fraction, ts.number("f", 0), ts.number("d", -0.5)]
        ),
        "ASC_Flag": numbers(("i", 0), ("q", 1), ("c", 1), ("c", 0), ("i", 1), ("q", 0), ("q", 1)),
        "SLOW_Flag": numbers(("q", 0), ("q", 1), ("q", 1), ("q", 5_000_000_000), ("q", -3)),
        "SURF_Flag": numbers(("c", 0), ("c", 1), ("c", 1), ("c", 0)),
        "CEIL_Flag": numbers(("i", -1), ("i", 40000), ("i", -2147483648), ("i", 2147483647)),
        "GAZ_Flag": ts.array([ts.number("i", 2)] * 3, mutable=False),
        "PRESS_Data": numbers(("d", 200), ("f", 198.625), ("i", 190), ("d", 1e10), ("d", 2**31), ("f", 2)),
        "date": ts.date(seconds_of(2016, 6, 7, 14, 30, 0.25)),
        "heure": ts.date(seconds_of(2001, 1, 1, 9, 5, 59.5)),
    }
    return values


def extreme_dive(version: int, number: int) -> Values:
    values = full_dive(version, number)
    values |= {
        "noPlongee": 2147483647,
        "coeff": -2147483648,
        "pmBm": -111,
        "temps": 127,
        "altitude": -128,
        "pAtm": 32768,
        "deco": -110,
        "meteo": 32767,
        "ventSecteur": -32768,
        "ventForce": -32769,
        "profondeur": 3.4028234663852886e38,
        "flow": ts.to_float32(1e-45),
        "lestage": -0.0,
        "decoDepth_Level_1": ts.to_float32(9.1),
        "decoDepth_Level_2": -4.5,
        "decoDepth_Level_3": ts.to_float32(1e-45),
        "decoDepth_Level_4": ts.to_float32(16777217 / 3),
    }
    return values


# ---- dates

DATES = [
    ("winter, midnight", seconds_of(2016, 1, 15)),
    ("summer, midnight", seconds_of(2016, 7, 15)),
    ("first second of summer time", seconds_of(2016, 3, 27, 3)),
    ("last second before it", seconds_of(2016, 3, 27, 3) - 1),
    ("second pass of the hour that is there twice", seconds_of(2016, 10, 30, 3) - 1800),
    ("before the reference date", seconds_of(1999, 12, 31, 23, 59, 59)),
    ("the reference date", 0.0),
    ("half a second before it", -0.5),
    ("no date given", seconds_of(1900, 1, 1)),
    ("no time given", seconds_of(2001, 1, 1)),
    ("before 1970", seconds_of(1951, 6, 15, 12)),
    ("after 2038", seconds_of(2044, 2, 29, 12, 0, 0.125)),
]


def dates_dive(index: int) -> Values:
    note, seconds = DATES[index]
    return {"noPlongee": index + 1, "date": ts.date(seconds), "notes": ts.string(note)}


# ---- objects of classes the program does not know

ATTRIBUTED = ts.Class("NSAttributedString", 0, ts.OBJECT)
CALENDAR_DATE = ts.Class("NSCalendarDate", 0, ts.DATE)
TIME_ZONE = ts.Class("NSTimeZone", 0, ts.OBJECT)
DECIMAL = ts.Class("NSDecimalNumber", 0, ts.NUMBER)


def _attributed(text: str) -> ts.Object:
    attributes = ts.dictionary([(ts.string("NSColor"), ts.color(0.75, 0, 0.25))])
    return ts.Object(ATTRIBUTED, [("@", (ts.string(text),)), ("iI", (1, len(text))), ("@", (attributes,))])


def _calendar_date(seconds: float) -> ts.Object:
    zone = ts.Object(TIME_ZONE, [("@", (ts.string("Europe/Paris"),))])
    return ts.Object(CALENDAR_DATE, [("d", (seconds,)), ("@", (zone,)), ("@", (ts.string("%d/%m/%Y"),))])


def _opaque_decimal(exponent: int, digits: list[int]) -> ts.Object:
    """A decimal number that does not begin as a number does; what it is worth cannot be told."""
    return ts.Object(DECIMAL, [("cCCC", (exponent, 1, 0, 1)), ("[4S]", (tuple(digits),))])


def _plain_decimal(value: float) -> ts.Object:
    return ts.Object(DECIMAL, [("*", ("d",)), ("d", (value,))])


def unknown_objects_dive(version: int, number: int) -> Values:
    decimal = _opaque_decimal(-1, [123, 0, 0, 0])
    depths = [ts.number("d", 0), ts.number("d", 4.25), decimal, _plain_decimal(6.75), decimal, ts.number("d", 3)]
    values = full_dive(version, number)
    values |= {
        "notes": _attributed("Texte en couleur"),
        "date": _calendar_date(seconds_of(2011, 9, 3)),
        "profilProfondeur": ts.array(depths),
        "ASC_Flag": ts.array([ts.number("i", 1), _opaque_decimal(0, [1, 2, 3, 65535])]),
    }
    return values


# ---- the archives


def _logbook(
    name: str, version: int, dives: list[Values], policy: str = "current", again: int | None = None
) -> Iterator[Archive]:
    """One archive and its expectation, and what becomes of it when it is saved again by the program. With
    `again`, the dive of that index stands a second time at the end."""
    records = [plongee.record(values, version) for values in dives]
    saved = [plongee.record(plongee.resaved(values, version)) for values in dives]
    decoded = [plongee.expected(values, version) for values in dives]
    if again is not None:
        records.append(records[again])
        decoded.append(decoded[again])
        saved.append(saved[again])
    expectation = {"type": plongee.DOCUMENT_TYPE, "class": plongee.CLASS}
    expectation |= {"version": version if records else None, "records": decoded}
    yield f"{name}.carnet", ts.encode(ts.array(records), policy), expectation
    yield f"resaved-{name}.carnet", ts.encode(ts.array(saved)), None


def _old_logbook(version: int, policy: str) -> Iterator[Archive]:
    dives = [
        pony_dive(version, 0, [12, 7, 3, 200, 201, 202, 50, 51, 52]),
        pony_dive(version, 1, [0] * 9),
        pony_dive(version, 2, [-1, -2, -3, -200, -201, -202, -50, -51, -52]),
        pony_dive(version, 3, [1, 0, -1, 0, 1, 210, -70, 0, 1]),
        absent_dive(),
        absent_dive() | {"volPony3": 9, "pressDepartPony1": 180, "pressFinPony2": 40},
        empty_dive(version, 4),
        text_dive(version, 5),
        mixed_numbers_dive(version, 6),
    ]
    return _logbook(f"plongee-v{version}", version, dives, policy, again=1)


def _current_dives(version: int) -> list[Values]:
    makers: list[Callable[[int, int], Values]] = [
        full_dive,
        lambda *_: absent_dive(),
        empty_dive,
        text_dive,
        one_sample_dive,
        mixed_numbers_dive,
        extreme_dive,
    ]
    return [make(version, number) for number, make in enumerate(makers)]


def logbooks() -> Iterator[Archive]:
    yield from _logbook("plongee-v27", 27, _current_dives(27), again=0)
    yield from _logbook("plongee-v27-unmerged", 27, _current_dives(27), "plain", again=0)
    for version, policy in ((26, "current"), (25, "current"), (24, "plain"), (23, "plain"), (20, "plain")):
        yield from _old_logbook(version, policy)
    yield from _logbook("plongee-v27-dates", 27, [dates_dive(index) for index in range(len(DATES))])
    yield from _logbook("plongee-v27-unknown-objects", 27, [unknown_objects_dive(27, 0), full_dive(27, 1)])
    yield from _logbook("plongee-v27-long-text", 27, [{"noPlongee": 1, "notes": ts.string(VERY_LONG_TEXT)}])
    yield from _logbook("empty", 27, [])
