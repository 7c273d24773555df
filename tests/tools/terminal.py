#!/usr/bin/env python3
"""Lets `lmsdp check` print to a terminal and to a pipe: colours and the progress bar belong to the first alone, and a
bar only to work that takes longer than a second: terminal.py LMSDP"""

import os
import pathlib
import pty
import subprocess
import sys
import tempfile
import threading
import time

DATA = pathlib.Path(__file__).resolve().parent / "data"
BODY = b"v=0\r\no=- 1 1 IN IP4 192.0.2.1\r\ns=x\r\nt=0 0\r\nm=audio 5004 RTP/AVP 0\r\n"
PATIENCE = 1.3


def on_terminal(command, **variables):
    """What a command prints to a terminal."""
    inherited = {name: value for name, value in os.environ.items() if name != "NO_COLOR"}
    environment = inherited | {"TERM": "xterm"} | variables
    parent, child = pty.openpty()
    process = subprocess.Popen(command, stdout=child, stderr=child, stdin=subprocess.DEVNULL, env=environment)
    os.close(child)
    printed = b""
    try:
        while block := os.read(parent, 65536):
            printed += block
    except OSError:
        pass  # the terminal is gone when the command is
    process.wait(timeout=60)
    os.close(parent)
    return printed


def feed(pipe):
    """Gives a body to whoever reads the pipe, after a while."""
    def work():
        time.sleep(PATIENCE)
        pipe.write_bytes(BODY)
    threading.Thread(target=work, daemon=True).start()


def main():
    lmsdp = sys.argv[1]
    short = [lmsdp, "check", str(DATA / "tree")]
    piped = subprocess.run(short, capture_output=True, check=False)
    with tempfile.TemporaryDirectory() as folder:
        slow = pathlib.Path(folder) / "slow"
        os.mkfifo(slow)
        command = [lmsdp, "check", str(DATA / "tree"), str(slow)]
        feed(slow)
        long = on_terminal(command)
        feed(slow)
        long_piped = subprocess.run(command, capture_output=True, check=False)
    checks = {
        "colours on a terminal": b"\x1b[1;31merror:\x1b[0m" in on_terminal(short),
        "no colours where the user wants none": b"\x1b" not in on_terminal(short, NO_COLOR="1"),
        "no colours in a pipe": b"\x1b" not in piped.stdout + piped.stderr and b"error:" in piped.stdout,
        "a bar for long work": b"\r[########################################] 4/4" in long,
        "the bar is taken away": b"\r\x1b[Kbodies: 4, clean: 2, errors: 1, notes: 4" in long,
        "no bar for short work": b"[#" not in on_terminal(short),
        "no bar in a pipe": long_piped.stderr == b"" and b"\r" not in long_piped.stdout,
    }
    for name, holds in checks.items():
        print(f"{name}: {holds}")
    return 0 if all(checks.values()) else 1


if __name__ == "__main__":
    sys.exit(main())
