#!/usr/bin/env python3
"""Lets sipp place 50 calls, one after the other, with the example that answers them: sip_calls.py ANSWERER"""

import shutil
import subprocess
import sys
import tempfile

SKIPPED = 77
CALLS = 50


def main():
    if shutil.which("sipp") is None:
        print("skipped: sipp is not installed (Debian package sip-tester)")
        return SKIPPED
    answerer = subprocess.Popen([sys.argv[1], "0"], stdout=subprocess.PIPE, text=True)
    try:
        port = answerer.stdout.readline().split()[-1]
        with tempfile.TemporaryDirectory() as folder:
            sipp = subprocess.run(
                ["sipp", "-sn", "uac", f"127.0.0.1:{port}", "-i", "127.0.0.1", "-m", str(CALLS), "-l", "1", "-r",
                 "1000", "-rp", "1000", "-d", "10", "-timeout", "50s", "-timeout_error", "-nostdin", "-trace_stat",
                 "-stf", "statistics.csv", "-fd", "1"],
                cwd=folder, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, check=False)
            with open(f"{folder}/statistics.csv", encoding="ascii") as statistics:
                rows = [line.rstrip("\n").split(";") for line in statistics]
    finally:
        answerer.terminate()
        calls = answerer.communicate(timeout=10)[0].splitlines()
    last = dict(zip(rows[0], rows[-1]))
    seen = {"sipp ended with": sipp.returncode, "calls that went well": int(last["SuccessfulCall(C)"]),
            "calls that failed": int(last["FailedCall(C)"])}
    print(seen, "offers that were read:", len(calls))
    # On a busy machine an offer may be sent, and read, more than once.
    if list(seen.values()) != [0, CALLS, 0] or len(calls) < CALLS:
        print(sipp.stdout)
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
