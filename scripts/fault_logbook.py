#!/usr/bin/env python3
"""Lets the system calls of the whole program fail, one after the other, while it changes a logbook.

    fault_logbook.py PROGRAM LOGBOOK

Works on a copy. Each round changes one dive through the command line under strace, which lets one call fail.
The file must then be, byte for byte, the old or the new version: the new one whenever the program said that
it was done, and whenever it did not, it has to say why. Exits with 1 when that was ever not so.
"""

import os
import re
import subprocess
import sys
import tempfile

from fault_test import ERRORS

# Calls that a program also makes by the hundred while it starts: only the last ones are let fail.
COMMON = {"openat", "close", "read", "fstat", "newfstatat", "fcntl", "readlink", "getdents64", "write"}
LAST = 40


class Bench:
    def __init__(self, program, logbook, folder):
        self.program = program
        self.folder = folder
        self.file = os.path.join(folder, "dives.carnet")
        with open(logbook, "rb") as source:
            self.old = source.read()
        self.prepare()
        if self.change([]).returncode != 0:
            sys.exit("the change fails without any fault")
        self.new = self.content()

    def prepare(self):
        for name in os.listdir(self.folder):
            os.remove(os.path.join(self.folder, name))
        with open(self.file, "wb") as file:
            file.write(self.old)

    def content(self):
        with open(self.file, "rb") as file:
            return file.read()

    def change(self, prefix):
        command = [self.program, "set", self.file, "--row", "0", "notes=another version"]
        return subprocess.run(prefix + command, capture_output=True, timeout=120)

    def counts(self):
        trace = os.path.join(tempfile.gettempdir(), f"faults-{os.getpid()}.trace")
        self.prepare()
        self.change(["strace", "-f", "-o", trace, "-e", "trace=" + ",".join("?" + call for call in ERRORS)])
        found = dict.fromkeys(ERRORS, 0)
        with open(trace, errors="replace") as lines:
            for line in lines:
                match = re.match(r"\d+ +(\w+)\(", line)
                if match and match[1] in found:
                    found[match[1]] += 1
        os.remove(trace)
        return found

    def fault(self, call, error, number):
        """What is wrong with the outcome; None when all is well, and whether the new version stands."""
        self.prepare()
        inject = f"inject={call}:error={error}:when={number}"
        done = self.change(["strace", "-f", "-o", "/dev/null", "-e", "trace=" + call, "-e", inject])
        content = self.content() if os.path.exists(self.file) else None
        said_done = done.returncode == 0
        if content not in (self.old, self.new):
            return "the file is neither the old nor the new version"
        if said_done and content != self.new:
            return "the program said that it was done, but the file is the old version"
        if not said_done and not done.stderr.strip():
            return f"the program ended with {done.returncode} and without a word"
        # What fails before the program itself runs is the loader's to tell.
        if done.returncode not in (0, 1) and b"loading shared libraries" not in done.stderr:
            return f"the program ended with {done.returncode}"
        return None


def main():
    program, logbook = sys.argv[1:3]
    bad, rounds, told = 0, 0, 0
    with tempfile.TemporaryDirectory() as folder:
        bench = Bench(program, logbook, folder)
        counts = bench.counts()
        for call, errors in ERRORS.items():
            first = max(1, counts[call] - LAST + 1) if call in COMMON else 1
            for number in range(first, counts[call] + 1):
                for error in errors:
                    problem = bench.fault(call, error, number)
                    rounds += 1
                    if problem:
                        bad += 1
                        print(f"{call} {number} {error}: {problem}", flush=True)
                    told += bench.content() == bench.old
        print(f"{rounds} faults, {told} left the old version, {rounds - told} the new one, {bad} wrong")
    sys.exit(1 if bad else 0)


if __name__ == "__main__":
    main()
