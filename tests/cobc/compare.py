#!/usr/bin/env python3
"""Makes random data divisions, has GnuCOBOL and the tool's import lay them out, and tells where the
two differ.

usage: compare.py TOOL [--programs N] [--seed N]

Sizes are those of the compiler's symbol listing (cobc -t FILE -ftsymbols), compared for every item,
groups included: an item that stands elsewhere shows in the size of its group or of one above. What is
known to differ, each with its reason, is in the table DIFFERENCES and is not told.

Items in tables are not SYNCHRONIZED here: where the entries of a table end, GnuCOBOL 3.1 takes slack
of one of its items into account, not of all, and its second entry is off the boundary then.
"""

import argparse
import pathlib
import random
import re
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree

# What does not come up: (what the entry's clauses match, why).
DIFFERENCES = [
    (r"E[+-]99", "GnuCOBOL 3.1 counts external floating point one byte short"),
    (r"\bN\(", "GnuCOBOL 3.1 has one byte for a digit of USAGE NATIONAL"),
]

CLAUSES = [
    "PIC X({small})", "PIC A({small})", "PIC XXBXX", "PIC ZZ9.99-", "PIC $$,$$9.99CR", "PIC 9({digits})",
    "PIC S9({few})V99", "PIC 9(5)PP", "PIC VPP99", "PIC S9(4) SIGN LEADING SEPARATE",
    "PIC S9(4) TRAILING", "PIC S9({digits}) COMP", "PIC 9({digits}) COMP-5", "PIC S9({digits}) COMP-3",
    "PIC 9({digits}) COMP-X", "PIC 9({few}) COMP-6", "PIC X({few}) COMP-X", "COMP-1", "COMP-2",
    "FLOAT-LONG", "USAGE INDEX", "USAGE POINTER", "BINARY-CHAR UNSIGNED", "BINARY-SHORT",
    "BINARY-LONG", "BINARY-DOUBLE", "PIC S9({digits}) COMP SYNC", "PIC 9({digits}) BINARY SYNC",
    "PIC 9({digits}) COMP-5 SYNC", "COMP-1 SYNC", "COMP-2 SYNC", "POINTER SYNC",
]


class Division:
    """A data division and the names of its items, which are unique."""

    def __init__(self, numbers):
        self.numbers = numbers
        self.lines = []
        self.count = 0
        for _ in range(12):
            self.add_group(1, "", 0)

    def name(self):
        self.count += 1
        return f"N{self.count}"

    def add_group(self, level, clauses, depth, in_table=False):
        name = self.name()
        self.lines.append(f"{level:02} {name}{clauses}.")
        last = None
        for _ in range(self.numbers.randint(1, 6)):
            redefined = last if last and self.numbers.random() < 0.15 else None
            added = self.add(level + 1, depth + 1, redefined, in_table)
            last = redefined or added
        return name

    def add(self, level, depth, redefined, in_table):
        clauses = f" REDEFINES {redefined}" if redefined else ""
        is_table = not redefined and self.numbers.random() < 0.2
        if is_table:
            clauses += f" OCCURS {self.numbers.randint(1, 5)} TIMES"
        if depth < 5 and self.numbers.random() < 0.35:
            name = self.add_group(level, clauses, depth, in_table or is_table)
        else:
            name = self.name()
            clause = self.numbers.choice(CLAUSES)
            if in_table:
                clause = clause.removesuffix(" SYNC")
            clause = clause.format(
                small=self.numbers.randint(1, 9), few=self.numbers.randint(1, 7),
                digits=self.numbers.randint(1, 18))
            self.lines.append(f"{level:02} {name}{clauses} {clause}.")
        return None if is_table else name

    def text(self):
        head = ["IDENTIFICATION DIVISION.", "PROGRAM-ID. P.", "DATA DIVISION.",
                "WORKING-STORAGE SECTION."]
        return "".join(f"       {line}\n" for line in
                       head + self.lines + ["PROCEDURE DIVISION.", "    GOBACK."])


def compiled_sizes(source, folder):
    listing = folder / "p.lst"
    done = subprocess.run(["cobc", "-std=default", "-flarger-redefines-ok", "-fsyntax-only", "-w",
                           "-t", str(listing), "-ftsymbols", str(source)],
                          capture_output=True, text=True, check=False)
    if done.returncode != 0:
        raise RuntimeError("cobc refused what was made for it:\n" + done.stderr)
    sizes = {}
    for line in listing.read_text().splitlines():
        row = re.match(r"(\d{5,}) ([A-Z-]+) +\d\d +(N\d+)(?:.*OCCURS (\d+))?", line)
        if row:
            # Of groups and pointers it tells the size of the whole table.
            is_whole = row[4] and row[2] in ("GROUP", "POINTER", "INDEX")
            sizes[row[3]] = int(row[1]) // (int(row[4]) if is_whole else 1)
    return sizes


def imported_sizes(tool, source, folder):
    dictionary = folder / "p.xml"
    subprocess.run([tool, "import", "--dialect", "gnucobol", str(source), "-o", str(dictionary)],
                   check=True, capture_output=True)
    return {item.get("name"): int(item.get("length")) for item in ElementTree.parse(dictionary).iter()
            if item.get("length")}


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("tool")
    parser.add_argument("--programs", type=int, default=100)
    parser.add_argument("--seed", type=int, default=1)
    options = parser.parse_args()
    compared = differing = 0
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        source = folder / "p.cbl"
        for seed in range(options.seed, options.seed + options.programs):
            division = Division(random.Random(seed))
            source.write_text(division.text())
            ours = imported_sizes(options.tool, source, folder)
            theirs = compiled_sizes(source, folder)
            if set(ours) != set(theirs):
                sys.exit(f"seed {seed}: the items are not the same: {set(ours) ^ set(theirs)}")
            for item, size in theirs.items():
                compared += 1
                if ours[item] == size:
                    continue
                line = next(line for line in division.lines if line.split()[1].rstrip(".") == item)
                if any(re.search(pattern, line) for pattern, _ in DIFFERENCES):
                    continue
                differing += 1
                print(f"seed {seed}: {line} has {ours[item]} bytes here and {size} there")
    print(f"{compared} items compared, {differing} differ")
    return 1 if differing else 0


if __name__ == "__main__":
    sys.exit(main())
