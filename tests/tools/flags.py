#!/usr/bin/env python3
"""Holds --help, the man page and the completion of lmsdp against each other: flags.py LMSDP MAN_PAGE COMPLETION"""

import re
import subprocess
import sys

FLAG = re.compile(r"(?<![\w-])--?[a-z][a-z-]*")


def helped(lmsdp, command):
    """The flags and commands that the help of a command tells."""
    text = subprocess.run([lmsdp] + command + ["--help"], capture_output=True, text=True, check=True).stdout
    flags = {flag for line in text.split("\n") if line.startswith("  -") for flag in FLAG.findall(line[:30])}
    commands = re.findall(r"^  (\w+)", text.partition("Subcommands:")[2], re.M)
    return flags, commands


def manned(page):
    """The flags below each heading of a command, as the tags of its paragraphs tell them."""
    sections = re.split(r"^\.SS lmsdp ?", page.partition(".SH COMMANDS")[2].partition("\n.SH ")[0], flags=re.M)
    return {section.split("\n", 1)[0]: {flag for tag in re.findall(r"^\.TP\n(.*)", section, re.M)
                                       for flag in FLAG.findall(tag.replace("\\-", "-"))}
            for section in sections[1:]}


def completed(file, command):
    """What bash offers behind a command for a word that begins with a hyphen."""
    words = ["lmsdp"] + command + ["-"]
    script = (f'. "{file}"; COMP_WORDS=({" ".join(words)}); COMP_CWORD={len(words) - 1}; _lmsdp; '
              'printf "%s\\n" "${COMPREPLY[@]}"')
    return set(subprocess.run(["bash", "-c", script], capture_output=True, text=True, check=True).stdout.split())


def main():
    lmsdp, man, completion = sys.argv[1:]
    with open(man, encoding="utf-8") as file:
        page = file.read()
    man_flags = manned(page)
    _, commands = helped(lmsdp, [])
    faults = [] if set(man_flags) == set(commands) | {""} else [f"commands: {commands}, man page: {list(man_flags)}"]
    for command in [[]] + [[name] for name in commands]:
        name = " ".join(command)
        flags = helped(lmsdp, command)[0]
        for source, seen in (("man page", man_flags.get(name, set())), ("completion", completed(completion, command))):
            if seen != flags:
                faults.append(f"lmsdp {name}: {source} has {sorted(seen)}, --help has {sorted(flags)}")
    synopsis = set(FLAG.findall(page.partition(".SH SYNOPSIS")[2].partition(".SH")[0].replace("\\-", "-")))
    known = set().union(*man_flags.values())
    if not synopsis <= known:
        faults.append(f"synopsis: {sorted(synopsis - known)}")
    print("\n".join(faults))
    return 1 if faults or len(commands) < 5 else 0


if __name__ == "__main__":
    sys.exit(main())
