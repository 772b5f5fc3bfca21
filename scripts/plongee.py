"""The dive record `Plongee` for the scripts: its fields, its archive order in every version, and what a reader
must make of it. Shares nothing with the program, which is tested against what is built from here."""

from __future__ import annotations

import datetime
import struct
from typing import Any
from zoneinfo import ZoneInfo

import typedstream as ts

CLASS, CURRENT_VERSION, DOCUMENT_TYPE = "Plongee", 27, "Carnet de plongee"

LOCAL_ZONE = ZoneInfo("Europe/Paris")
EPOCH = datetime.datetime(2001, 1, 1, tzinfo=datetime.timezone.utc)

PROFILE = ["profilProfondeur", "ASC_Flag", "SLOW_Flag", "SURF_Flag", "CEIL_Flag", "GAZ_Flag", "PRESS_Data"]


def levels(stem: str, count: int = 6, suffix: str = "") -> list[str]:
    return [f"{stem}{n}{suffix}" for n in range(1, count + 1)]


PONIES = levels("volPony", 3) + levels("pressDepartPony", 3) + levels("pressFinPony", 3)

# Every field in declaration order by kind: array, i (int32), f (float32), string, date.
FIELDS: list[tuple[str, str]] = [(name, "array") for name in PROFILE]


def _declare(kind: str, *names: str) -> None:
    FIELDS.extend((name, kind) for name in names)


_declare("i", "noPlongee", "coeff", "pmBm")
_declare("date", "date", "heure")
_declare("string", "lieu", "site", "pays", "countryCode", "gps")
_declare("i", "gpsSystem")
_declare("string", "partenaires", "epaves", "structure", "bateau")
_declare("i", "meteo", "ventSecteur", "ventForce", "visibilite", "courant", "typePlongee", "nocturne", "tempEau")
_declare("i", "tempAir", "difficulte")
_declare("string", "surface")
_declare("i", "inoubliable", "etranger")
_declare("string", "notes")
_declare("f", "profondeur")
_declare("i", "temps", "altitude", "pAtm", "deco")
_declare("string", "decoSoftName", "decoAlgoType", "decoConservatism", "runtime")
_declare("i", "deco_TTS", "highGF", "lowGF", *levels("deco_Level_", suffix="_sw"))
_declare("i", *levels("decoO2_Level_"), *levels("decoHe_Level_"))
_declare("f", *levels("decoDepth_Level_"))
_declare("i", *levels("decoTime_Level_"))
for _name in ("alliageBloc", "volumeBloc", "pressionBloc", "pressionDepart", "pressionFin", "gaz", "o2Mix", "heMix"):
    _declare("i", _name, _name + "_2")
for _name in ("volBailout", "pressDepartBailout", "pressFinBailout", "O2Bailout", "HeBailout"):
    _declare("i", *levels(_name, 3))
_declare("i", *PONIES, "rebreather")
_declare("f", "flow")
_declare("string", "sodaType")
_declare("i", "ppO2", "lowSetpoint", "combinaison")
_declare("f", "lestage")
_declare("i", "configuration")
_declare("string", "fabricant", "ordinateur", "serie")
_declare("i", "samplingRate", "computerMode")
_declare("string", *levels("equip_", 12))


def slots(version: int) -> list[tuple[str, str]]:
    """The fields of an archive of this version in file order. The kind "bits" is a float32 whose 32 bits stand
    in the file as an int32."""
    stages = 6 if version >= 25 else 5
    tanks = 3 if version >= 27 else 2
    order: list[tuple[str, str]] = []

    def add(kind: str, *names: str, since: int = 0, until: int = 99) -> None:
        if since <= version <= until:
            order.extend((name, kind) for name in names)

    add("array", *PROFILE)
    add("i", "noPlongee", "coeff", "pmBm")
    add("date", "date")
    add("string", "lieu", "site", "pays", "countryCode", "gps")
    add("i", "gpsSystem")
    add("string", "partenaires", "epaves", "structure", "bateau", "surface")
    add("date", "heure")
    add("f", "profondeur")
    add("i", "temps", "altitude")
    add("i", "pAtm", since=26)
    add("i", "deco")
    add("i", "deco_TTS", since=24)
    # The old switches were never in numerical order.
    add("i", *(f"deco_Level_{n}_sw" for n in (3, 2, 1, 4, 5)), until=26)
    add("i", "deco_Level_6_sw", since=25, until=26)
    add("i", *levels("decoO2_Level_", stages), *levels("decoHe_Level_", stages))
    add("bits", *levels("decoDepth_Level_", stages))
    add("i", *levels("decoTime_Level_", stages))
    add("i", *PONIES, until=26)
    for stem in ("volBailout", "pressDepartBailout", "pressFinBailout", "O2Bailout", "HeBailout"):
        add("i", *levels(stem, tanks))
    add("i", "alliageBloc", "volumeBloc", "pressionBloc", "pressionDepart", "pressionFin", "gaz")
    add("f", "flow")
    add("string", "sodaType", since=27)
    add("i", "o2Mix", "heMix", "alliageBloc_2", "volumeBloc_2", "pressionBloc_2", "pressionDepart_2")
    add("i", "pressionFin_2", "gaz_2", "o2Mix_2", "heMix_2", "ppO2")
    add("i", "lowSetpoint", since=25)
    add("string", "decoSoftName", "decoAlgoType", "decoConservatism")
    add("i", "highGF", "lowGF", since=25)
    add("string", "runtime")
    add("i", "meteo", "ventSecteur", "ventForce", "visibilite", "courant", "typePlongee", "nocturne")
    add("i", "tempEau", "tempAir", "inoubliable", "combinaison")
    add("string", "fabricant", "ordinateur", "serie")
    add("i", "samplingRate")
    add("string", *levels("equip_", 12))
    add("i", "rebreather")
    add("f", "lestage")
    add("i", "configuration")
    add("string", "notes")
    add("i", "difficulte")
    return order


TYPE_CODES = {"array": "@", "string": "@", "date": "@", "i": "i", "bits": "i", "f": "f"}


def record(values: dict[str, Any], version: int = CURRENT_VERSION) -> ts.Object:
    """The archived dive. `values` holds, for each slot of the version, an Object or None, or a number; a slot
    without value is nil or 0."""
    groups = []
    for name, kind in slots(version):
        code = TYPE_CODES[kind]
        value = values.get(name, None if code == "@" else 0)
        if kind == "bits":
            value = struct.unpack("<i", struct.pack("<f", value))[0]
        groups.append((code, (value,)))
    return ts.record(CLASS, version, groups)


def expected(values: dict[str, Any], version: int = CURRENT_VERSION) -> dict[str, Any]:
    """Every field as a reader must decode it from `record(values, version)`, ready for JSON."""
    decoded = {name: 0 if kind in "if" else None for name, kind in FIELDS}
    for name, kind in slots(version):
        decoded[name] = READ_AS[kind](values.get(name, None if TYPE_CODES[kind] == "@" else 0))
    if version < 27:
        # The pony tanks became the bail-out tanks.
        for pony in PONIES:
            if decoded[pony] >= 1:
                decoded[pony.replace("Pony", "Bailout")] = decoded[pony]
    return decoded


def resaved(values: dict[str, Any], version: int = CURRENT_VERSION) -> dict[str, Any]:
    """The values that a dive read from `record(values, version)` has when it is saved again, as the current
    version: every text and date an instance of its own and of the plain class, every list mutable, what is read
    as a number a new plain number. Objects of other classes stay the instances that they are."""
    read = dict(values)
    if version < 27:
        for pony in PONIES:
            if values.get(pony, 0) >= 1:
                read[pony.replace("Pony", "Bailout")] = values[pony]
    return {name: _resaved_value(read[name]) for name, _ in slots(CURRENT_VERSION) if name in read}


def _resaved_value(value: Any) -> Any:
    if isinstance(value, ts.PackedArray):
        return ts.PackedArray(value.kind, value.values)
    if not isinstance(value, ts.Object):
        return value
    if value.cls in (ts.STRING, ts.MUTABLE_STRING):
        return ts.string(value.groups[0][1][0].decode())
    if value.cls == ts.DATE:
        return ts.date(value.groups[0][1][0])
    if value.cls in (ts.ARRAY, ts.MUTABLE_ARRAY):
        return ts.array([_resaved_value(element[0]) for _, element in value.groups[1:]])
    if "NSNumber" in value.cls.chain() and as_number(value) is not None:
        return ts.number(value.groups[0][1][0], value.groups[1][1][0])
    return value


# ---- what a reader makes of archived values


def as_text(item: ts.Object | None) -> str | None:
    if item is None or "NSString" not in item.cls.chain():
        return None
    return item.groups[0][1][0].decode()


def as_local_time(item: ts.Object | None) -> str | None:
    """The local date and time of a date object of any class, ISO 8601 with seconds and, if any, a fraction."""
    if item is None or "NSDate" not in item.cls.chain():
        return None
    (encoding, (seconds,)), *_ = item.groups
    return local_time(seconds) if encoding == "d" else None


def local_time(seconds: float) -> str:
    moment = (EPOCH + datetime.timedelta(seconds=seconds)).astimezone(LOCAL_ZONE)
    text = moment.replace(tzinfo=None).isoformat()
    return text.rstrip("0") if moment.microsecond else text


def seconds_of(year: int, month: int, day: int, hour: int = 0, minute: int = 0, second: float = 0) -> float:
    """Seconds since 2001-01-01 00:00 UTC of a local date and time."""
    moment = datetime.datetime(year, month, day, hour, minute, tzinfo=LOCAL_ZONE)
    return (moment.astimezone(datetime.timezone.utc) - EPOCH).total_seconds() + second


def as_numbers(item: ts.Object | None) -> list | None:
    """The numbers of an array; an element that is no readable number gives None."""
    if item is None:
        return None
    if isinstance(item, ts.PackedArray):
        return [short_double(value) for value in item.values]
    return [as_number(values[0]) for encoding, values in item.groups[1:]]


def as_number(item: ts.Object) -> float | None:
    readable = "NSNumber" in item.cls.chain() and len(item.groups) >= 2 and item.groups[0][0] == "*"
    return short_double(item.groups[1][1][0]) if readable else None


def short_double(value: float) -> float:
    return int(value) if isinstance(value, float) and ts.is_whole(value) else value


def short_float(value: float) -> float:
    """The decimal number with the fewest digits that reads back as the same float32."""
    value = ts.to_float32(value)
    if ts.is_whole(value):
        return int(value)
    for digits in range(1, 9):
        shortened = float(f"{value:.{digits}g}")
        try:
            if ts.to_float32(shortened) == value:
                return shortened
        except OverflowError:  # rounded up beyond the greatest float32
            continue
    return float(f"{value:.9g}")  # nine digits always do


READ_AS = {
    "array": as_numbers,
    "string": as_text,
    "date": as_local_time,
    "i": int,
    "f": short_float,
    "bits": short_float,
}
