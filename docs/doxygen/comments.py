#!/usr/bin/env python3
"""Hands a header to Doxygen: comments in front of a declaration, and behind one, are its
documentation. The first comment of a file is that of the file."""
import re
import sys


def escaped(text):
    return re.sub(r"([\\@<>#%&])", r"\\\1", text).replace("::", "::")


def main():
    first = True
    in_file_comment = False
    for line in open(sys.argv[1], encoding="utf-8"):
        line = line.rstrip("\n")
        comment = re.match(r"( *)//(?: (.*))?$", line)
        if comment:
            if first:
                print("/// \\file")
                first = False
                in_file_comment = True
            # Lists stand out: " - " begins a member.
            print(comment[1] + "/// " + escaped(comment[2] or ""))
            continue
        if in_file_comment:
            in_file_comment = False
            print()
        behind = re.match(r"(.*[^ ].*?)  // (.*)$", line)
        if behind and not line.lstrip().startswith("#"):
            print(f"{behind[1]}  ///< {escaped(behind[2])}")
        else:
            print(line)


main()
