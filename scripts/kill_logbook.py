#!/usr/bin/env python3
"""Kills the program at random moments while it saves a logbook, and looks at what is left.

    kill_logbook.py PROGRAM LOGBOOK [KILLS]

Works on a copy. Each round changes one dive through the command line and kills the program after a random
time. The file must then open, and hold wholly the old or the new version: the new one whenever the program
said that it was done. Exits with 1 when that was ever not so.
"""

import json
import pathlib
import random
import shutil
import subprocess
import sys
import tempfile
import time


def note_of(program, file):
    """The note of dive 0, or None when the file does not open."""
    shown = subprocess.run([program, "form", file, "--row", "0", "--json"], capture_output=True)
    if shown.returncode != 0:
        print(shown.stderr.decode(), file=sys.stderr)
        return None
    return json.loads(shown.stdout)["controls"]["notesField"]["text"]


def main():
    program, logbook = sys.argv[1:3]
    kills = int(sys.argv[3]) if len(sys.argv) > 3 else 1000
    random.seed(20160607)
    with tempfile.TemporaryDirectory() as folder:
        file = str(pathlib.Path(folder) / "killed.carnet")
        shutil.copyfile(logbook, file)

        def save(note):
            return subprocess.Popen([program, "set", file, "--row", "0", f"notes={note}"],
                                    stdout=subprocess.DEVNULL, stderr=subprocess.PIPE)

        start = time.monotonic()
        if save("version 0").wait() != 0:
            sys.exit("the first save failed")
        whole = time.monotonic() - start
        print(f"one save of {pathlib.Path(file).stat().st_size / 1e6:.1f} MB takes {whole:.2f} s", flush=True)

        standing, killed, old, new, finished, leftovers = "version 0", 0, 0, 0, 0, 0
        for round_ in range(1, kills + 1):
            wanted = f"version {round_}"
            saving = save(wanted)
            try:
                saving.wait(timeout=random.uniform(0, whole * 1.05))
            except subprocess.TimeoutExpired:
                saving.kill()
                killed += 1
            said_done = saving.wait() == 0
            found = note_of(program, file)
            if found not in (standing, wanted) or (said_done and found != wanted):
                sys.exit(f"round {round_}: expected {standing!r} or {wanted!r}, found {found!r}, "
                         f"the program {'said that it was done' if said_done else 'was killed'}")
            old += found == standing
            new += found == wanted and not said_done
            finished += said_done
            standing = found
            leftovers = max(leftovers, len(list(pathlib.Path(folder).iterdir())))
        backup = note_of(program, file + "~")
        print(f"{kills} rounds, {killed} killed: {old} left the old version, {new} the new one, "
              f"{finished} were done before the kill; 0 broken, at most {leftovers} files in the folder, "
              f"the backup {'opens' if backup is not None else 'DOES NOT OPEN'}")
        sys.exit(0 if backup is not None else 1)


if __name__ == "__main__":
    main()
