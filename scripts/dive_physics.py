"""A simulated dive: depth, tank pressure and the marks a dive computer would set, sample by sample.

Sixteen tissue compartments with the published ZH-L16C half-times and coefficients for nitrogen and helium, and
gradient factors, tell the decompression stops. Metres, bar, litres, seconds; pressure rises 1 bar each 10 m.
"""

from __future__ import annotations

import math
import random
from dataclasses import dataclass, field

NITROGEN_HALF_TIMES = (5, 8, 12.5, 18.5, 27, 38.3, 54.3, 77, 109, 146, 187, 239, 305, 390, 498, 635)
NITROGEN_A = (1.1696, 1.0, 0.8618, 0.7562, 0.62, 0.5043, 0.441, 0.4)
NITROGEN_A += (0.375, 0.35, 0.3295, 0.3065, 0.2835, 0.261, 0.248, 0.2327)
NITROGEN_B = (0.5578, 0.6514, 0.7222, 0.7825, 0.8126, 0.8434, 0.8693, 0.891)
NITROGEN_B += (0.9092, 0.9222, 0.9319, 0.9403, 0.9477, 0.9544, 0.9602, 0.9653)
HELIUM_HALF_TIMES = (1.88, 3.02, 4.72, 6.99, 10.21, 14.48, 20.53, 29.11)
HELIUM_HALF_TIMES += (41.2, 55.19, 70.69, 90.34, 115.29, 147.42, 188.24, 240.03)
HELIUM_A = (1.6189, 1.383, 1.1919, 1.0458, 0.922, 0.8205, 0.7305, 0.6502)
HELIUM_A += (0.595, 0.5545, 0.5333, 0.5189, 0.5181, 0.5176, 0.5172, 0.5119)
HELIUM_B = (0.477, 0.5747, 0.6527, 0.7223, 0.7582, 0.7957, 0.8279, 0.8553)
HELIUM_B += (0.8757, 0.8903, 0.8997, 0.9073, 0.9122, 0.9171, 0.9217, 0.9267)

WATER_VAPOUR = 0.0627  # bar in the lungs
DESCENT, WORKING_ASCENT, ASCENT, LAST_ASCENT, FAST_ASCENT = 18.0, 6.0, 9.5, 6.0, 15.0  # m/min
ASCENT_WARNING = 11.0  # m/min
AT_SURFACE = 0.3  # m
STOP_STEP, SAFETY_STOP, SAFETY_SECONDS, SAFETY_FROM = 3.0, 5.0, 180, 12.0


@dataclass(frozen=True)
class Gas:
    o2: int  # per cent
    he: int = 0

    def inert(self, ambient: float) -> tuple[float, float]:
        """Nitrogen and helium pressure breathed at an ambient pressure."""
        dry = ambient - WATER_VAPOUR
        return dry * (100 - self.o2 - self.he) / 100, dry * self.he / 100


@dataclass
class Tank:
    gas: Gas
    litres: float
    pressure: float
    switch_depth: float = math.inf  # on the way up, breathed from this depth


@dataclass
class Plan:
    legs: list[tuple[float, float]]  # depth, minutes spent going there and being there
    tanks: list[Tank]  # the first is the bottom gas
    interval: int = 10  # seconds between two samples
    sac: float = 17  # litres a minute at the surface
    surface_pressure: float = 1.013
    gf_low: float = 0.4
    gf_high: float = 0.85
    too_fast: bool = False  # hurries a part of the ascent
    breaks_ceiling: bool = False  # drifts above a stop once


@dataclass
class Dive:
    depths: list[float] = field(default_factory=list)
    pressures: list[float] = field(default_factory=list)
    stop_marks: list[int] = field(default_factory=list)
    fast_marks: list[int] = field(default_factory=list)
    surface_marks: list[int] = field(default_factory=list)
    ceiling_marks: list[int] = field(default_factory=list)
    gas_marks: list[int] = field(default_factory=list)
    stops: dict[float, tuple[float, Gas]] = field(default_factory=dict)  # depth -> seconds, gas
    seconds: int = 0
    ascent_seconds: int = 0

    @property
    def max_depth(self) -> float:
        return max(self.depths)


class Tissues:
    def __init__(self, surface_pressure: float):
        self._surface = surface_pressure
        nitrogen, _ = Gas(21).inert(surface_pressure)
        self._loads = [(nitrogen, 0.0)] * 16
        self._factors: dict[int, list[tuple[float, float]]] = {}

    def breathe(self, gas: Gas, depth: float, seconds: int) -> None:
        if seconds not in self._factors:
            half_times = zip(NITROGEN_HALF_TIMES, HELIUM_HALF_TIMES)
            self._factors[seconds] = [
                (1 - 2 ** (-seconds / 60 / n2), 1 - 2 ** (-seconds / 60 / he)) for n2, he in half_times
            ]
        n2, he = gas.inert(self._surface + depth / 10)
        self._loads = [
            (load_n2 + (n2 - load_n2) * k_n2, load_he + (he - load_he) * k_he)
            for (load_n2, load_he), (k_n2, k_he) in zip(self._loads, self._factors[seconds])
        ]

    def ceiling(self, gradient: float) -> float:
        """The shallowest depth allowed with this share of the supersaturation limits; 0 is the surface."""
        deepest = 0.0
        for at, (n2, he) in enumerate(self._loads):
            total = n2 + he
            a = (NITROGEN_A[at] * n2 + HELIUM_A[at] * he) / total
            b = (NITROGEN_B[at] * n2 + HELIUM_B[at] * he) / total
            tolerated = (total - a * gradient) / (gradient / b + 1 - gradient)
            deepest = max(deepest, (tolerated - self._surface) * 10)
        return deepest


class Diver:
    """Carries out one plan in small steps. A mark stays set until the next sample takes it."""

    def __init__(self, plan: Plan, rng: random.Random):
        self._plan = plan
        self._rng = rng
        self._step = min(plan.interval, 10)
        self._tissues = Tissues(plan.surface_pressure)
        self._tank = plan.tanks[0]
        self._depth = 0.0
        self._wander = 0.0
        self._first_stop = 0.0
        self._marks = {"stop": 0, "gas": 0, "ceiling": 0, "fast": 0}
        self._dive = Dive()

    def dive(self) -> Dive:
        self._sample()
        for depth, minutes in self._plan.legs:
            self._swim(depth, minutes)
        bottom = self._dive.seconds
        self._ascend()
        self._dive.ascent_seconds = self._dive.seconds - bottom
        return self._dive

    def _swim(self, depth: float, minutes: float) -> None:
        for _ in range(round(minutes * 60 / self._step)):
            # A slow wander above the planned depth, which is never exceeded.
            self._wander = max(0.0, min(1.5, self._wander * 0.97 + self._rng.uniform(-0.15, 0.16)))
            self._move(max(depth - self._wander, 1.0), DESCENT, WORKING_ASCENT)

    def _ascend(self) -> None:
        deepest = self._dive.max_depth
        safety = SAFETY_SECONDS if deepest >= SAFETY_FROM else 0  # left out after a stop that was owed
        start = self._depth
        hurry_between = (start * 0.8, start * 0.45) if self._plan.too_fast else (0, 0)
        drift = 2 if self._plan.breaks_ceiling else 0
        while self._depth > 0 and self._dive.seconds < 6 * 3600:
            stop = self._stop_depth()
            goal = stop or (SAFETY_STOP if safety > 0 else 0.0)
            if self._depth > goal + 0.6 or goal == 0:
                hurries = hurry_between[0] > self._depth > hurry_between[1]
                slow = LAST_ASCENT if self._depth <= 6 else ASCENT
                self._move(goal, DESCENT, FAST_ASCENT if hurries else slow)
                continue
            if stop:
                safety = 0
                drifts = drift > 0 and self._dive.stops.get(stop, (0, None))[0] > 90
                drift -= drifts
                self._hold(stop, stop - 1.1 if drifts else stop + self._rng.uniform(0, 0.4))
            else:
                safety -= self._step
                self._move(SAFETY_STOP + self._rng.uniform(-0.3, 0.5), 6, 6)

    def _hold(self, stop: float, goal: float) -> None:
        seconds, _ = self._dive.stops.get(stop, (0, None))
        self._dive.stops[stop] = (seconds + self._step, self._tank.gas)
        self._marks["stop"] = 1
        self._marks["ceiling"] |= int(goal < stop - 0.5)
        self._move(goal, 6, 8)

    def _stop_depth(self) -> float:
        """The stop the diver owes now, a multiple of the stop step, or 0."""
        plan = self._plan
        if not self._first_stop:
            self._first_stop = self._round_up(self._tissues.ceiling(plan.gf_low))
        if not self._first_stop:
            return 0.0
        stop = self._round_up(self._tissues.ceiling(plan.gf_high))
        while stop < self._first_stop:
            gradient = plan.gf_high + (plan.gf_low - plan.gf_high) * stop / self._first_stop
            if self._tissues.ceiling(gradient) <= stop:
                break
            stop += STOP_STEP
        return stop

    @staticmethod
    def _round_up(depth: float) -> float:
        return math.ceil(max(0.0, depth) / STOP_STEP - 1e-9) * STOP_STEP

    def _move(self, goal: float, down_rate: float, up_rate: float) -> None:
        minutes = self._step / 60
        before = self._depth
        self._depth = max(min(goal, before + down_rate * minutes), before - up_rate * minutes)
        if self._depth < AT_SURFACE:
            self._depth = 0.0
        self._marks["fast"] |= int((before - self._depth) / minutes > ASCENT_WARNING)
        self._breathe((before + self._depth) / 2, minutes, rising=self._depth < before)
        self._dive.seconds += self._step
        if self._depth == 0:  # the last sample comes at the end of its interval like every other
            self._dive.seconds += -self._dive.seconds % self._plan.interval
        if self._dive.seconds % self._plan.interval == 0:
            self._sample()

    def _breathe(self, depth: float, minutes: float, rising: bool) -> None:
        if rising:
            for tank in self._plan.tanks[1:]:
                if self._depth <= tank.switch_depth + 0.5 and tank.switch_depth < self._tank.switch_depth:
                    self._tank = tank
                    self._marks["gas"] = 1
        ambient = self._plan.surface_pressure + depth / 10
        breathed = self._plan.sac * self._rng.uniform(0.85, 1.15)
        self._tank.pressure -= breathed * ambient * minutes / self._tank.litres
        self._tissues.breathe(self._tank.gas, depth, self._step)

    def _sample(self) -> None:
        dive, marks = self._dive, self._marks
        dive.depths.append(round(self._depth, 1))
        dive.pressures.append(round(self._plan.tanks[0].pressure, 1))
        dive.stop_marks.append(marks["stop"])
        dive.fast_marks.append(marks["fast"])
        dive.surface_marks.append(int(self._depth == 0 and dive.seconds > 0))
        dive.ceiling_marks.append(marks["ceiling"])
        dive.gas_marks.append(marks["gas"])
        self._marks = dict.fromkeys(marks, 0)


def simulate(plan: Plan, rng: random.Random) -> Dive:
    """Carries out the plan; the tanks of the plan are emptied as they are breathed."""
    return Diver(plan, rng).dive()
