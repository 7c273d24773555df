#!/usr/bin/env python3
"""Holds what `lmsdp check` tells of many bodies against what `lmsdp normalize` makes of them: check_agrees.py LMSDP

The bodies are put together at random, always the same ones, from lines that are fine and lines that are not.
"""

import json
import pathlib
import random
import re
import subprocess
import sys
import tempfile

BODIES = 200
ORIGIN = "o=alice 2890844526 2890844526 IN IP4 192.0.2.1"
SESSION = [ORIGIN, "s=call", "s= ", "i=words", "u=http://x", "e=a@b", "p=+1 2", "c=IN IP4 192.0.2.1",
           "b=AS:64", "a=tool:x"]
BEHIND_TIMES = ["z=2882844526 -1h 2898848070 0", "k=prompt", "a=tool:x", "a=sendrecv"]
TIMES = ["t=0 0", "t=7 0"]
MEDIA = ["m=audio 49170 RTP/AVP 0", "m=audio 5/2 RTP/AVP 0 8"]
UNDER_MEDIA = ["i=words", "c=IN IP4 192.0.2.1", "b=AS:64", "k=prompt", "a=ptime:20", "a=rtpmap:0 PCMU/8000",
               "a=rtpmap:8 PCMA/8000/1"]
ODD = [ORIGIN + " ", "o=- 1 2 IN IP4", "s=", "i=", "b=AS:abc", "b=AS:064", "m=audio abc RTP/AVP 0", "m=audio 5",
       "m=audio 5 RTP/AVP 0 ", "a=rtpmap:0 X/8000/2/3", "a=rtpmap:7 X", "a=crypto:1 AES_CM_128_HMAC_SHA1_80 inline:abcdef",
       "a=crypto:1 X inline:abcdef KDR=1", "t=0", "t=0 0 0", "y=1", "v=0", "", "  ", "x", "  a=ptime:20", "a=x ", "r=7d 1h",
       "m=audio", "p=1", "k=clear:", "e=(x)", "e=a@b (A)", "z=1 0", "os=odd", "a=nul:\0x"]
LINE_ENDS = ["\r\n"] * 8 + ["\n", "\r"]


def some(rng, tidy, pool, least, most):
    lines = [rng.choice(pool) for _ in range(rng.randint(least, most))]
    return sorted(lines, key=pool.index) if tidy or rng.random() < 0.6 else lines


def make_body(rng):
    """Half of the bodies are tidy but for one odd line, so that it is found alone."""
    tidy = rng.random() < 0.5
    lines = ["v=0"] + some(rng, tidy, SESSION[:-1] if tidy else SESSION, 1, 5) + some(rng, tidy, TIMES, 1, 1)
    lines += some(rng, tidy, ["r=7d 1h 0"], 0, 1) + some(rng, tidy, BEHIND_TIMES, 0, 2)
    for _ in range(rng.randint(0, 3)):
        lines += [rng.choice(MEDIA)] + some(rng, tidy, UNDER_MEDIA, 0, 4)
    for _ in range(1 if tidy else rng.choice([0, 0, 1, 2])):
        lines.insert(rng.randint(1, len(lines)), rng.choice(ODD))
    ends = ["\r\n" if tidy or rng.random() < 0.8 else rng.choice(LINE_ENDS) for _ in lines]
    if not tidy and rng.random() < 0.1:
        ends[-1] = ""
    return "".join(line + end for line, end in zip(lines, ends)).encode()


def text_lines(body):
    return re.split("\r\n|\r|\n", body.decode())


def place_faults(body, findings):
    """Each finding stands at a line and a column that are there."""
    lines = text_lines(body)
    for finding in findings:
        text = lines[finding["line"] - 1] if finding["line"] <= len(lines) else None
        if text is None or not 1 <= finding["column"] <= len(text) + 1:
            yield f"place of {finding}"


def change_faults(body, findings, output):
    """A body without errors comes back as its findings tell."""
    lines = text_lines(body)
    back = list(lines)
    for finding in findings:
        if "written" in finding:
            back[finding["line"] - 1] = finding["written"]
    seen = text_lines(output)[:-1]
    if sorted("\r\n".join(line for line in back if line.strip()).split("\r\n")) != sorted(seen):
        yield "a line is lost, or changed in silence"
    moves = [f for f in findings if "changes its place" in f["message"]]
    if not moves and "\r\n".join(line for line in back if line.strip()).split("\r\n") != seen:
        yield "a line changes its place in silence"
    for finding in moves:
        in_front = back[int(finding["message"].rsplit(" ", 1)[1]) - 1]
        moved = back[finding["line"] - 1]
        if f"{in_front}\r\n{moved}\r\n" not in output.decode():
            yield f"place of {finding}"


def faults_of(body, findings, normal):
    output = normal.stdout
    if (not findings) != (normal.returncode == 0 and output == body):
        yield "silent, and not written as it was" if not findings else "findings, and written as it was"
    if any("class" in finding for finding in findings) != (normal.returncode == 1):
        yield "one refuses, the other does not"
    yield from place_faults(body, findings)
    if normal.returncode == 0 and all(finding["severity"] == "note" for finding in findings):
        yield from change_faults(body, findings, output)


def main():
    lmsdp = str(pathlib.Path(sys.argv[1]).resolve())
    rng = random.Random(4566)
    bodies = [make_body(rng) for _ in range(BODIES)]
    failed = silent = refused = 0
    with tempfile.TemporaryDirectory() as folder:
        for number, body in enumerate(bodies):
            (pathlib.Path(folder) / f"{number:04}.sdp").write_bytes(body)
        checked = subprocess.run([lmsdp, "check", "--json", "--show-keys", folder], capture_output=True, check=False)
        for body, entry in zip(bodies, json.loads(checked.stdout)["bodies"], strict=True):
            normal = subprocess.run([lmsdp, "normalize", entry["file"]], capture_output=True, check=False)
            silent += not entry["findings"]
            refused += normal.returncode == 1
            for fault in faults_of(body, entry["findings"], normal):
                failed += 1
                print(f"{fault}\n  {body}\n  {normal.stdout}\n  {entry['findings']}")
    print(f"{BODIES} bodies, {silent} clean, {refused} refused, {failed} faults")
    enough = silent > BODIES // 20 and refused > BODIES // 10 and silent + refused < BODIES * 9 // 10
    return 0 if failed == 0 and enough else 1


if __name__ == "__main__":
    sys.exit(main())
