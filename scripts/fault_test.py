#!/usr/bin/env python3
"""Lets the system calls of one save fail, one after the other, and looks at what is left.

Whatever fails, the file has to be wholly the old or wholly the new version, and the program's exit status
has to tell which. Then the same on disks that are too small and on a read-only one, where such can be made.
"""

import argparse
import collections
import os
import re
import subprocess
import sys
import tempfile

import save_versions as versions

ERRORS = {
    "write": ["ENOSPC", "EIO", "EDQUOT", "EFBIG"],
    "pwrite64": ["ENOSPC", "EIO"],
    "fsync": ["EIO", "ENOSPC", "EINVAL"],
    "syncfs": ["EIO"],
    "rename": ["EIO", "EACCES"],
    "renameat": ["EIO", "EACCES", "ENOSPC"],
    "renameat2": ["EIO", "EACCES"],
    "linkat": ["EIO", "EPERM", "EMLINK"],
    "unlinkat": ["EIO"],
    "close": ["EIO", "ENOSPC"],
    "openat": ["EACCES", "ENOSPC", "EMFILE"],
    "read": ["EIO"],
    "fstat": ["EIO"],
    "newfstatat": ["EIO"],
    "fchmod": ["EIO", "EPERM"],
    "fchown": ["EPERM"],
    "flock": ["ENOLCK"],
    "fcntl": ["EMFILE"],
    "readlink": ["EIO"],
    "faccessat2": ["EROFS", "EACCES"],
    "getdents64": ["EIO"],
}
SAVED, UNCHANGED, UNCONFIRMED, UNREPORTED = 0, 1, 2, 3


class Place:
    """A folder with version 1 in it (and version 0 as its backup), made new for every fault."""

    def __init__(self, program, size, folder):
        self.program = program
        self.size = size
        self.folder = folder
        self.path = os.path.join(folder, "dives")
        self.old = versions.version(1, size)
        self.older = versions.version(0, size)

    def prepare(self):
        for name in os.listdir(self.folder):
            os.remove(os.path.join(self.folder, name))
        for path, content in ((self.path, self.old), (self.path + "~", self.older)):
            with open(path, "wb") as file:
                file.write(content)

    def save(self, before=()):
        return versions.save(self.program, self.path, self.size, 2, 1, before)

    def contradiction(self, status):
        """What is on the disk although `status` says otherwise; None when they agree."""
        try:
            current = versions.version_at(self.path, self.size)
            backup = versions.version_at(self.path + "~", self.size)
        except versions.BrokenFile as broken:
            return str(broken)
        if status < 0:
            return f"the program was ended by signal {-status}"
        expected = 2 if status in (SAVED, UNCONFIRMED, UNREPORTED) else 1
        if current != expected:
            return f"exit status {status}, but version {current} is in place"
        if backup not in ((1,) if expected == 2 else (0, 1)):
            return f"exit status {status}, but the backup is version {backup}"
        return None


def trace(place, log):
    """One save without faults: its system calls by name, and the log's lines."""
    place.prepare()
    status = place.save(["strace", "-f", "-o", log]).returncode
    if status != SAVED:
        sys.exit(f"a save without faults ended with status {status}")
    with open(log, encoding="utf-8", errors="replace") as file:
        lines = [line.split(None, 1)[1] for line in file if len(line.split(None, 1)) == 2]
    names = (re.match(r"(\w+)\(", line) for line in lines)
    return collections.Counter(match.group(1) for match in names if match), lines


def check_order(lines):
    """The new version is flushed before it gets its name, and the folder after that."""
    interesting = [line for line in lines if re.match(r"(fsync|syncfs|renameat2?|rename)\(", line)]
    steps = [line.split("(")[0] for line in interesting]
    last_rename = max(i for i, step in enumerate(steps) if step.startswith("rename"))
    scratch = re.search(r'"(\.sargan-\w+)"', interesting[last_rename]).group(1)
    opened = next(line for line in lines if line.startswith("openat") and scratch in line)
    descriptor = opened.rsplit("= ", 1)[1].strip()
    flushed = lines.index(next(line for line in lines if line.startswith(f"fsync({descriptor})")))
    writes = [i for i, line in enumerate(lines) if line.startswith(f"write({descriptor},")]
    renamed = lines.index(interesting[last_rename])
    if not (writes and max(writes) < flushed < renamed and steps[last_rename + 1:] == ["fsync"]):
        sys.exit("the calls are in the wrong order: " + ", ".join(steps))
    print("order: " + ", ".join(steps))


def inject(place, call, error, occurrence):
    place.prepare()
    fault = f"inject={call}:error={error}:when={occurrence}"
    log = os.devnull
    result = place.save(["strace", "-f", "-o", log, "-e", f"trace={call}", "-e", fault])
    problem = place.contradiction(result.returncode)
    if not problem and len(versions.temporaries(place.folder)) > (1 if call in ("unlinkat",) else 0):
        problem = "temporary files are left"
    if problem:
        sys.exit(f"{call} number {occurrence} fails with {error}: {problem}\n{result.stderr}")
    return result.returncode


def inject_all(place, counts):
    total = collections.Counter()
    for call, errors in ERRORS.items():
        statuses = collections.Counter(
            inject(place, call, error, occurrence)
            for error in errors
            for occurrence in range(1, counts[call] + 1))
        if statuses:
            print(f"{call:12} {counts[call]:4} calls, {', '.join(errors)}: " + describe(statuses))
        total += statuses
    print(f"injected: {sum(total.values())} faults, " + describe(total))


def describe(statuses):
    words = {SAVED: "saved", UNCHANGED: "refused, unchanged", UNCONFIRMED: "in place, not confirmed",
             UNREPORTED: "saved, report failed", 127: "program did not start, unchanged"}
    return ", ".join(f"{count} {words.get(status, f'status {status}')}"
                     for status, count in sorted(statuses.items()))


def mount(folder, *how):
    command = ["mount", *how, folder]
    return subprocess.run(command, capture_output=True, check=False).returncode == 0


def small_disks(program, size, parent):
    """Disks that hold the old version and all, some or none of the new one."""
    folder = os.path.join(parent, "disk")
    os.mkdir(folder)
    page = 4096
    needed = 3 * ((size + page - 1) // page) * page  # older, old and new
    coarse = [needed - size + step * size // 20 for step in range(1, 20)]
    fine = [needed + step * page for step in range(-40, 41)]
    statuses = collections.Counter()
    for room in coarse + fine:
        if not mount(folder, "-t", "tmpfs", "-o", f"size={room // 1024}k", "tmpfs"):
            print("small disks: not run, no disk can be mounted here")
            return
        try:
            place = Place(program, size, folder)
            place.prepare()
            status = place.save().returncode
            problem = place.contradiction(status)
            if not problem and versions.temporaries(folder):
                problem = "temporary files are left"
            statuses[status] += 1
        finally:
            subprocess.run(["umount", folder], check=True)
        if problem:
            sys.exit(f"disk of {room} bytes: {problem}")
    print(f"small disks: {sum(statuses.values())} sizes, " + describe(statuses))


def read_only_disk(program, size, parent):
    folder = os.path.join(parent, "read-only")
    os.mkdir(folder)
    if not mount(folder, "-t", "tmpfs", "tmpfs"):
        print("read-only disk: not run, no disk can be mounted here")
        return
    try:
        place = Place(program, size, folder)
        place.prepare()
        mount(folder, "-o", "remount,ro")
        result = place.save()
        problem = place.contradiction(result.returncode)
    finally:
        subprocess.run(["umount", folder], check=True)
    if problem or result.returncode != UNCHANGED or "read-only" not in result.stderr:
        sys.exit(f"read-only disk: status {result.returncode}, {problem}, {result.stderr}")
    print("read-only disk: refused, unchanged")


def main():
    arguments = argparse.ArgumentParser(description=__doc__)
    arguments.add_argument("--program", required=True, help="the built save_stress")
    arguments.add_argument("--size", type=int, default=50_000_000, help="bytes of each version")
    arguments.add_argument("--folder", help="where to save (default: the system's temporary folder)")
    options = arguments.parse_args()
    with tempfile.TemporaryDirectory(dir=options.folder) as parent:
        folder = os.path.join(parent, "documents")
        os.mkdir(folder)
        place = Place(options.program, options.size, folder)
        counts, lines = trace(place, os.path.join(parent, "log"))
        check_order(lines)
        inject_all(place, counts)
        small_disks(options.program, options.size, parent)
        read_only_disk(options.program, options.size, parent)


if __name__ == "__main__":
    main()
