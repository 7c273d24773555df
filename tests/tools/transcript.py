#!/usr/bin/env python3
"""Runs the commands of a transcript and compares what they print: transcript.py [--update] LMSDP TRANSCRIPT

A transcript has commands behind "$ ", each followed by its standard output, its standard error behind "2> ", and its
exit status in brackets unless that is 0. A carriage return shows as \\r; any other byte that is not printable, as
\\xNN; a last line without its end has \\c behind it. Commands run in the folder `data`; `< FILE` gives standard input. Lines in front
of the first command are remarks. With --update the transcript is written anew.
"""

import difflib
import pathlib
import shlex
import subprocess
import sys

DATA = pathlib.Path(__file__).resolve().parent / "data"


def character(c):
    if c == "\r":
        return "\\r"
    return c if c == "\n" or c.isprintable() else "".join(f"\\x{byte:02x}" for byte in c.encode())


def shown(output, prefix):
    text = "".join(character(c) for c in output.decode("utf-8", "backslashreplace"))
    if text and not text.endswith("\n"):
        text += "\\c\n"
    return [prefix + line for line in text.split("\n")[:-1]]


def run(lmsdp, command):
    words = shlex.split(command)
    source = subprocess.DEVNULL
    if "<" in words:
        place = words.index("<")
        source = open(DATA / words[place + 1], "rb")
        del words[place:place + 2]
    result = subprocess.run([lmsdp] + words[1:], cwd=DATA, stdin=source, capture_output=True, timeout=60, check=False)
    status = [f"[{result.returncode}]"] if result.returncode != 0 else []
    return shown(result.stdout, "") + shown(result.stderr, "2> ") + status


def main():
    update = sys.argv[1] == "--update"
    lmsdp, file = sys.argv[-2:]
    lines = pathlib.Path(file).read_text(encoding="utf-8").split("\n")[:-1]
    commands = [line for line in lines if line.startswith("$ ")]
    seen = lines[:lines.index(commands[0])]
    for command in commands:
        seen += [command] + run(str(pathlib.Path(lmsdp).resolve()), command[2:])
    if update:
        pathlib.Path(file).write_text("\n".join(seen) + "\n", encoding="utf-8")
        return 0
    sys.stdout.writelines(line + "\n" for line in difflib.unified_diff(lines, seen, "wanted", "seen", lineterm=""))
    return 0 if seen == lines else 1


if __name__ == "__main__":
    sys.exit(main())
