"""Many simple dives, quickly made: a descent, a wandering bottom, an ascent, seven arrays of one length."""

from __future__ import annotations

import random
from itertools import accumulate
from typing import Any, Iterator

import plongee
import typedstream as ts

PLACES = ["Marseille", "Le Lavandou", "Trébeurden", "L’Estartit", "Hurghada", "Belle-Île"]
SITES = ["Tombant sud", "Roche ronde", "La Grotte", "Sec du large", "Pointe nord", "Le Plateau", "L’Arche"]
COUNTRIES = {"L’Estartit": ("Espagne", "ESP"), "Hurghada": ("Égypte", "EGY")}
BUDDIES = ["Karim", "Inès", "Solène, Yann", "Nadège", "Bastien, Inès"]

TENTHS = [n / 10 for n in range(3001)]
DAY = 86400


def _depths(rng: random.Random, samples: int, deepest: int) -> list[int]:
    """Tenths of a metre; the first and, if there are several, the last sample at the surface."""
    descent = max(1, samples // 20)
    ascent = max(1, samples // 5)
    bottom = max(0, samples - descent - ascent)
    steps = rng.choices((-3, -2, -1, 0, 0, 1, 2, 3), k=bottom)
    down = [deepest * i // descent for i in range(descent)]
    # A wander of some metres about the bottom, folded back below the greatest depth.
    flat = [deepest - abs(offset) % 40 for offset in accumulate(steps)]
    start = flat[-1] if flat else deepest
    up = [start * (ascent - 1 - i) // ascent for i in range(ascent)]
    return (down + flat + up)[:samples]


def _pressures(depths: list[int], start: int, end: int) -> list[int]:
    """Tenths of a bar, falling from start to end with the ambient pressure breathed at."""
    breathed = list(accumulate(depth + 100 for depth in depths))
    share = (start - end) * 10 / max(1, breathed[-1])
    return [start * 10 - int(amount * share) for amount in breathed]


def _marks(samples: int, places: range | list[int]) -> bytearray:
    marks = bytearray(samples)
    for place in places:
        if 0 <= place < samples:
            marks[place] = 1
    return marks


def _profile(rng: random.Random, samples: int, deepest: int, start: int, end: int) -> dict[str, Any]:
    depths = _depths(rng, samples, deepest)
    pressures = _pressures(depths, start, end)
    stop = range(samples - samples // 10, samples - samples // 20) if deepest > 300 else []
    fast = [samples - samples // 7 + i for i in range(2)] if rng.random() < 0.2 else []
    arrays = [
        ("d", [TENTHS[depth] for depth in depths]),
        ("i", _marks(samples, stop)),
        ("i", _marks(samples, fast)),
        ("i", _marks(samples, [samples - 1])),
        ("i", _marks(samples, [samples - samples // 20] if rng.random() < 0.02 else [])),
        ("i", _marks(samples, [])),
        ("d", [TENTHS[pressure] for pressure in pressures]),
    ]
    values = {name: ts.PackedArray(kind, marks) for name, (kind, marks) in zip(plongee.PROFILE, arrays)}
    return values | {"profondeur": max(depths) / 10}


def bulk_dives(count: int, samples: int) -> Iterator[ts.Object]:
    """`count` dives of `samples` samples each, the same on every run, from 1990 on."""
    rng = random.Random(19900101)
    day = plongee.seconds_of(1990, 1, 1)
    for number in range(1, count + 1):
        day += DAY * (number % 3 == 0)
        deepest, start, end = rng.randint(80, 450), rng.randint(190, 220), rng.randint(50, 80)
        lieu = rng.choice(PLACES)
        pays, code = COUNTRIES.get(lieu, ("France", "FRA"))
        texts = {"lieu": lieu, "site": rng.choice(SITES), "pays": pays, "countryCode": code}
        texts |= {"partenaires": rng.choice(BUDDIES), "surface": "--:--", "notes": f"Plongée n° {number}."}
        values: dict[str, Any] = {"profondeur": deepest / 10}
        values |= _profile(rng, samples, deepest, start, end) if samples else {}
        values |= {name: ts.string(text) for name, text in texts.items()}
        nitrox = rng.random() < 0.3
        values |= {
            "noPlongee": number,
            "date": ts.date(day),
            "heure": ts.date(plongee.seconds_of(2001, 1, 1, 9 + number % 3 * 3, rng.randrange(60))),
            "temps": max(1, samples * 10 // 60),
            "pressionDepart": start,
            "pressionFin": end,
            "volumeBloc": 15,
            "pressionBloc": 232,
            "gaz": int(nitrox),
            "o2Mix": 32 if nitrox else 21,
            "o2Mix_2": 21,
            "tempEau": rng.randint(8, 28),
            "tempAir": rng.randint(5, 32),
            "meteo": rng.randrange(4),
            "visibilite": rng.randrange(6),
            "courant": rng.randrange(4),
            "typePlongee": rng.choice((0, 1, 1, 1, 3, 9, 11, 12)),
            "deco": 2,
            "pAtm": 1013,
            "lestage": 6.0,
            "difficulte": rng.randrange(4),
        }
        yield plongee.record(values)
