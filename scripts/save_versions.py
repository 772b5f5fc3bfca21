"""What the kill test and the fault test know about the program save_stress and the files it saves."""

import os
import subprocess

BLOCK = 65536
TEMPORARY = ".sargan-"


def version(number, size):
    """The content of version `number`, worked out independently of the program."""
    blocks = []
    for block in range((size + BLOCK - 1) // BLOCK):
        line = b"version %d block %d\n" % (number, block)
        length = min(BLOCK, size - block * BLOCK)
        blocks.append((line * (BLOCK // len(line) + 1))[:length])
    return b"".join(blocks)


class BrokenFile(Exception):
    """A file that is no version as a whole."""


def version_at(path, size):
    """The number of the version that stands at `path`, None when there is no file."""
    try:
        with open(path, "rb") as file:
            content = file.read()
    except FileNotFoundError:
        return None
    words = content[:64].split()
    if len(words) < 2 or words[0] != b"version" or not words[1].isdigit():
        raise BrokenFile(f"{path} ({len(content)} bytes) does not begin like a version")
    number = int(words[1])
    if content != version(number, size):
        raise BrokenFile(f"{path} ({len(content)} bytes) begins like version {number} but is not it")
    return number


def temporaries(folder):
    return [name for name in os.listdir(folder) if name.startswith(TEMPORARY)]


def save(program, path, size, first, count=1, before=()):
    """Runs the program to its end; `before` is what stands before it on the command line."""
    command = [*before, program, path, str(size), str(first), str(count)]
    return subprocess.run(command, capture_output=True, text=True, timeout=300, check=False)
