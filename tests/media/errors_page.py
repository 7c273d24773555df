#!/usr/bin/env python3
"""The examples of docs/errors.md as rows of C++: errors_page.py PAGE
Its headings held against the messages in the sources: errors_page.py PAGE SOURCES"""

import pathlib
import re
import sys

# No call leads to these, so they have no example.
GUARDS = {"Unknown error in LmSdpEmailField::serialize()", "Unknown error in LmSdpPhoneField::serialize()",
          "No Media Streams to create Media Descriptions from"}
# Scope names, log lines, assertions and pieces of a body are no messages.
OTHERS = re.compile(r'// |TraceScope|<<|append\(|scope =|Assertion\(')
SHORTEST = 16


def sections(page):
    """Each heading with its classes, and the language and the text of the example of each."""
    for heading, section in re.findall(r"^### `([^\n]*)`\n(.*?)(?=^##|\Z)", page, re.M | re.S):
        yield heading, re.findall(r"^Class: `(\w+)`\n(?:\n```(\w+)\n(.*?)^```)?", section, re.M | re.S)


def print_rows(page):
    for heading, examples in sections(page):
        for thrown, language, text in examples:
            action = text if language == "cpp" else f'readAndWrite(R"({text})");'
            if text:
                print(f'{{"{heading}", "{thrown}", [] {{ {action} }}}},')


def messages(sources):
    """Every longer text with a blank in it."""
    for source in pathlib.Path(sources).rglob("*.cpp"):
        for line in source.read_text(encoding="utf-8").split("\n"):
            texts = [] if OTHERS.search(line) else re.findall(r'"((?:[^"\\]|\\.)*)"', line)
            yield from (text for text in texts if len(text) >= SHORTEST and " " in text)


def compare(page, sources):
    found = set(messages(sources))
    headings = {heading for heading, _ in sections(page)}
    silent = {heading for heading, examples in sections(page) if not all(text for _, _, text in examples)}
    faults = [f"without a section: {text}" for text in found - headings]
    faults += [f"in no source: {text}" for text in headings - found]
    faults += [f"has an example, or should have one: {text}" for text in silent ^ GUARDS]
    print(f"{len(found)} messages", *faults, sep="\n")
    return 1 if faults or len(found) < 70 else 0


def main():
    page = pathlib.Path(sys.argv[1]).read_text(encoding="utf-8")
    return compare(page, sys.argv[2]) if len(sys.argv) > 2 else print_rows(page)


if __name__ == "__main__":
    sys.exit(main())
