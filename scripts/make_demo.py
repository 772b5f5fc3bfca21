#!/usr/bin/env python3
"""Make the demo logbook resources/demo/logbook.carnet, or with --dives a logbook of any size.

The demo is the same on every run. The large logbooks hold plausible but simpler dives, quickly made, for
benchmarks and tests of size.
"""

from __future__ import annotations

import argparse
import datetime
import math
import pathlib
import random
import sys
import time
from typing import Any, Iterator

import plongee
import typedstream as ts
from bulk_dives import bulk_dives
from demo_dives import COMPUTER, PHOTO, PLACES, ROWS, TEK, Row
from dive_physics import Dive, Gas, Plan, Tank, simulate

DEMO = pathlib.Path(__file__).resolve().parent.parent / "resources" / "demo" / "logbook.carnet"

INTERVALS = {0: 10, 1: 20, 2: 30, 3: 60, 4: 120, 5: 4, 6: 5, 7: 5}  # seconds by sampling code
AIR, NITROX, TRIMIX = 0, 1, 2
STEEL, ALUMINIUM = 0, 1
SERVICE_PRESSURE = {STEEL: 232, ALUMINIUM: 207}  # bar
DOUBLE_TANK = 24  # litres, from where on a dive counts as technical
RESERVE = 40  # bar that must be left


def local_midnight(date: datetime.date) -> ts.Object:
    return ts.date(plongee.seconds_of(date.year, date.month, date.day))


def time_of_day(hour: int, minute: int) -> ts.Object:
    return ts.date(plongee.seconds_of(2001, 1, 1, hour, minute))


def profile(dive: Dive) -> dict[str, ts.Object]:
    arrays = [
        ("profilProfondeur", "d", dive.depths),
        ("ASC_Flag", "i", dive.stop_marks),
        ("SLOW_Flag", "i", dive.fast_marks),
        ("SURF_Flag", "i", dive.surface_marks),
        ("CEIL_Flag", "i", dive.ceiling_marks),
        ("GAZ_Flag", "i", dive.gas_marks),
        ("PRESS_Data", "d", dive.pressures),
    ]
    return {name: ts.PackedArray(kind, values) for name, kind, values in arrays}


def plan_of(row: Row, surface_pressure: float) -> Plan:
    tanks = [Tank(Gas(row.o2, row.he), row.litres, float(row.start))]
    tanks += [Tank(Gas(o2), litres, float(bar), depth) for o2, litres, bar, depth in row.stages]
    technical = bool(row.stages)
    return Plan(
        legs=row.legs,
        tanks=tanks,
        interval=INTERVALS[row.interval],
        sac=row.sac,
        surface_pressure=surface_pressure,
        gf_low=0.30 if technical else 0.40,
        gf_high=0.80 if technical else 0.95,
        too_fast=row.too_fast,
        breaks_ceiling=row.breaks_ceiling,
    )


def tank_values(row: Row, plan: Plan) -> dict[str, int]:
    gas = TRIMIX if row.he else NITROX if row.o2 > 21 else AIR
    material = ALUMINIUM if row.place in ("hurghada", "rangiroa") else STEEL
    values = {"alliageBloc": material, "pressionBloc": SERVICE_PRESSURE[material], "volumeBloc": row.litres, "gaz": gas}
    values |= {"pressionDepart": row.start, "pressionFin": math.floor(plan.tanks[0].pressure)}
    values |= {"o2Mix": row.o2, "heMix": row.he, "o2Mix_2": 21}
    for n, ((o2, litres, bar, _), tank) in enumerate(zip(row.stages, plan.tanks[1:]), start=1):
        values |= {f"volBailout{n}": round(litres), f"pressDepartBailout{n}": bar, f"O2Bailout{n}": o2}
        values[f"pressFinBailout{n}"] = math.floor(tank.pressure)
    if min(tank.pressure for tank in plan.tanks) < RESERVE:
        raise ValueError(f"{row.date} {row.site}: out of gas, {[round(tank.pressure) for tank in plan.tanks]} bar")
    return values


def deco_values(row: Row, dive: Dive) -> dict[str, Any]:
    values: dict[str, Any] = {"deco": row.deco, "deco_TTS": math.ceil(dive.ascent_seconds / 60)}
    for n in range(1, 7):
        depth = 3.0 * n
        seconds, gas = dive.stops.get(depth, (0, Gas(0)))
        values[f"decoDepth_Level_{n}"] = depth
        values[f"decoTime_Level_{n}"] = math.ceil(seconds / 60)
        values[f"decoO2_Level_{n}"], values[f"decoHe_Level_{n}"] = gas.o2, gas.he
    technical = bool(row.stages)
    if row.deco == COMPUTER:
        values |= {"lowGF": 30 if technical else 40, "highGF": 80 if technical else 95}
    values["decoSoftName"] = ts.string("Tableur du club" if technical else "-")
    values["decoAlgoType"] = ts.string("ZH-L16C" if technical else "-")
    values["decoConservatism"] = ts.string("30/80" if technical else "-")
    values["runtime"] = ts.string(runtime(row, dive) if technical else "")
    return values


def runtime(row: Row, dive: Dive) -> str:
    """The planned stops, deepest first: depth, time at the stop, gas."""
    lines = [f"{row.legs[0][0]:g} m : {row.legs[0][1]:g} min."]
    for depth, (seconds, gas) in sorted(dive.stops.items(), reverse=True):
        lines.append(f"{depth:g} m : {math.ceil(seconds / 60)} min. (O2 {gas.o2} %)")
    return "\n".join(lines)


def place_values(row: Row) -> dict[str, Any]:
    place = PLACES[row.place]
    texts = {
        "lieu": place.lieu,
        "site": row.site,
        "pays": place.pays,
        "countryCode": place.code,
        "gps": place.gps,
        "partenaires": row.buddies,
        "epaves": row.wreck,
        "structure": place.club,
        "bateau": row.boat,
        "notes": row.notes,
    }
    values: dict[str, Any] = {name: ts.string(text) for name, text in texts.items()}
    return values | {"gpsSystem": 1, "altitude": place.altitude}


def condition_values(row: Row, rng: random.Random) -> dict[str, int]:
    sector, force = row.wind
    if row.boat and not force:
        sector, force = rng.randint(1, 8), rng.randint(1, 3)
    return {
        "coeff": row.coefficient,
        "pmBm": row.tide,
        "meteo": row.weather,
        "ventSecteur": sector,
        "ventForce": force + 1 if force else 0,
        "visibilite": row.visibility,
        "courant": row.current,
        "typePlongee": row.kind,
        "nocturne": int(row.night),
        "tempEau": row.water,
        "tempAir": row.air,
        "difficulte": row.difficulty,
        "inoubliable": int(row.unforgettable),
    }


def equipment_values(row: Row) -> dict[str, Any]:
    bag = ["Détendeur principal", "Gilet stabilisateur" if not row.stages else "Plaque et bloc dorsal double"]
    bag += ["Parachute de palier et dévidoir"] if row.date >= "2012" else []
    bag += ["Phare principal", "Lampe de secours"] if row.night or row.stages or row.wreck else []
    bag += ["Appareil photo"] if row.kind == PHOTO else []
    bag += [f"Bloc de déco Nx {o2}" if o2 < 100 else "Bloc d’oxygène" for o2, *_ in row.stages]
    values: dict[str, Any] = {name: ts.string("") for name in plongee.levels("equip_", 12)}
    values |= {f"equip_{n}": ts.string(item) for n, item in enumerate(bag, start=1)}
    computer = ("Marsouin", "Marsouin M2", "M2-04417") if row.date >= "2012" else ("", "", "")
    values |= {name: ts.string(text) for name, text in zip(("fabricant", "ordinateur", "serie"), computer)}
    technical = row.kind == TEK or row.litres >= DOUBLE_TANK
    values |= {"combinaison": row.suit, "lestage": row.weight, "configuration": int(technical)}
    return values | {"sodaType": ts.string(""), "samplingRate": row.interval}


def surface_interval(previous_end: datetime.datetime | None, start: datetime.datetime) -> str:
    """Hours and minutes since the last dive of the same day."""
    if not previous_end or previous_end.date() != start.date():
        return "--:--"
    minutes = int((start - previous_end).total_seconds() // 60)
    return f"{minutes // 60:02d}:{minutes % 60:02d}"


def demo_dives() -> Iterator[ts.Object]:
    rng = random.Random(20160607)
    previous_end = None
    for number, row in enumerate(ROWS, start=1):
        start = datetime.datetime.fromisoformat(f"{row.date}T{row.time}")
        hectopascal = round(rng.uniform(1008, 1026) * math.exp(-PLACES[row.place].altitude / 8430))
        plan = plan_of(row, hectopascal / 1000)
        dive = simulate(plan, rng)
        minutes = math.ceil(dive.seconds / 60)
        values = profile(dive) | tank_values(row, plan) | deco_values(row, dive)
        values |= place_values(row) | condition_values(row, rng) | equipment_values(row)
        values |= {"noPlongee": number, "pAtm": hectopascal, "profondeur": dive.max_depth, "temps": minutes}
        values |= {"date": local_midnight(start.date()), "heure": time_of_day(start.hour, start.minute)}
        values["surface"] = ts.string(surface_interval(previous_end, start))
        previous_end = start + datetime.timedelta(minutes=minutes)
        yield plongee.record(values)


def main() -> int:
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--dives", type=int, help="make a logbook of this many simple dives")
    parser.add_argument("--samples", type=int, default=400, help="samples in each of the seven arrays")
    parser.add_argument("--plain", action="store_true", help="every number in full, as older systems write")
    parser.add_argument("-o", "--output", type=pathlib.Path, default=DEMO)
    arguments = parser.parse_args()
    if arguments.dives is not None and arguments.output == DEMO:
        parser.error("--dives needs -o")
    started = time.monotonic()
    if arguments.dives is None:
        dives, count = demo_dives(), len(ROWS)
    else:
        dives, count = bulk_dives(arguments.dives, arguments.samples), arguments.dives
    content = ts.encode(ts.streamed_array(count, dives), "plain" if arguments.plain else "current")
    arguments.output.parent.mkdir(parents=True, exist_ok=True)
    arguments.output.write_bytes(content)
    print(f"{count} dives, {len(content)} bytes, {time.monotonic() - started:.1f} s")
    return 0


if __name__ == "__main__":
    sys.exit(main())
