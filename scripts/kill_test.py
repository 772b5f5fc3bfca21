#!/usr/bin/env python3
"""Kills a program that saves one file over and over, at random moments, and looks at what is left.

After every kill the file has to be, byte for byte, the version that was last reported as saved or the one
after it, the backup has to be a whole version too, and temporary files must not pile up.
"""

import argparse
import os
import random
import subprocess
import sys
import tempfile
import time

import save_versions as versions

MOST_TEMPORARIES = 2  # the new version, and the second name on its way to be the backup


def run_and_kill(program, path, size, first, delay):
    """Starts saving at version `first`, kills after `delay` seconds; the versions reported as saved."""
    with subprocess.Popen([program, path, str(size), str(first)], stdout=subprocess.PIPE) as process:
        time.sleep(delay)
        process.kill()
        reported = process.stdout.read().split()
        process.wait()
    if process.returncode != -9:
        raise versions.BrokenFile(f"the program ended by itself with status {process.returncode}")
    return [int(number) for number in reported]


def check(path, size, last_reported, first):
    """The version in place; raises when file, backup or folder are not as they may be."""
    current = versions.version_at(path, size)
    if current is None:
        if last_reported:
            raise versions.BrokenFile(f"version {last_reported} was reported, but there is no file")
        current = 0
    if current not in (last_reported, last_reported + 1):
        raise versions.BrokenFile(f"version {last_reported} was reported, version {current} is in place")
    backup = versions.version_at(path + "~", size)
    # Equal: killed when the backup was made and the new version not yet in place.
    if (current > 1 or backup is not None) and backup not in (current - 1, current):
        raise versions.BrokenFile(f"the backup of version {current} is version {backup} (from {first})")
    left = versions.temporaries(os.path.dirname(path))
    if len(left) > MOST_TEMPORARIES:
        raise versions.BrokenFile(f"temporary files pile up: {left}")
    return current, len(left), backup == current


def time_of_two_saves(program, folder, size):
    path = os.path.join(folder, "calibration")
    begin = time.monotonic()
    versions.save(program, path, size, 1, 2)
    elapsed = time.monotonic() - begin
    for name in os.listdir(folder):
        os.remove(os.path.join(folder, name))
    return elapsed


def main():
    arguments = argparse.ArgumentParser(description=__doc__)
    arguments.add_argument("--program", required=True, help="the built save_stress")
    arguments.add_argument("--kills", type=int, default=1000)
    arguments.add_argument("--size", type=int, default=50_000_000, help="bytes of each version")
    arguments.add_argument("--folder", help="where to save (default: the system's temporary folder)")
    arguments.add_argument("--seed", type=int, default=random.randrange(1 << 30))
    options = arguments.parse_args()

    moments = random.Random(options.seed)
    seen = {"in place but not reported": 0, "temporary left": 0, "between backup and rename": 0}
    saved = 0
    with tempfile.TemporaryDirectory(dir=options.folder) as folder:
        path = os.path.join(folder, "dives")
        longest = 2 * time_of_two_saves(options.program, folder, options.size)
        print(f"seed {options.seed}, kills within {longest * 1000:.0f} ms of the start")
        current = 0
        for kill in range(1, options.kills + 1):
            first = current + 1
            reported = run_and_kill(options.program, path, options.size, first, moments.uniform(0, longest))
            saved += len(reported)
            try:
                last = reported[-1] if reported else current
                current, left, between = check(path, options.size, last, first)
            except versions.BrokenFile as broken:
                sys.exit(f"kill {kill}: {broken}")
            seen["in place but not reported"] += current > last
            seen["temporary left"] += left > 0
            seen["between backup and rename"] += between
        versions.save(options.program, path, options.size, current + 1, 2)
        names = sorted(os.listdir(folder))
        if names != ["dives", "dives~"]:
            sys.exit(f"a save without a kill left {names}")
    print(f"{options.kills} kills, {saved} saves reported, every file whole; "
          + ", ".join(f"{what}: {count}" for what, count in seen.items()))


if __name__ == "__main__":
    main()
