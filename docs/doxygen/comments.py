#!/usr/bin/env python3
"""Hands a header to Doxygen: comments in front of declarations, and behind one, are their
documentation.

- The first comment of a file is that of the file, and begins that of the class that the file is named
  after.
- A comment is about all declarations up to the next comment or blank line.
"""
import os
import re
import sys

COMMENT = re.compile(r"( *)//(?: (.*))?$")
# What has a body: members in it have comments of their own.
OPENING = re.compile(r" *(class|struct|enum|union|namespace|extern|template|#)\b|.*[{]$")
CLASS = re.compile(r"(?:class|struct) (?:AS_EXPORT )?(\w+)[^;]*$")


def escaped(text):
    return re.sub(r"([\\@<>#%&])", r"\\\1", text)


def documented(text, indentation):
    """The lines of a comment, without their slashes."""
    return [indentation + "/// " + escaped(line) for line in text]


def declarations(lines, start):
    """Where what a comment is about ends: behind the last of its declarations."""
    end = start
    while end < len(lines) and lines[end].strip() and not COMMENT.match(lines[end]):
        if re.match(r" *(\}|public:|private:|protected:)", lines[end]):
            break
        end += 1
    return end


def handed(lines, name):
    result = []
    about_file = []
    i = 0
    while i < len(lines):
        comment = COMMENT.match(lines[i])
        if comment:
            text = []
            while i < len(lines) and COMMENT.match(lines[i]):
                text.append(COMMENT.match(lines[i])[2] or "")
                i += 1
            if not about_file:
                about_file = text
                result += ["/// \\file"] + documented(text, "") + [""]
                continue
            known = CLASS.match(lines[i]) if i < len(lines) else None
            if known and known[1] == name:
                result += documented(about_file + [""], "")
            end = declarations(lines, i)
            is_group = i < end and not OPENING.match(lines[i])
            result += ["///@{"] if is_group else []
            result += documented(text, comment[1])
            if is_group:
                result += [behind(line) for line in lines[i:end]] + ["///@}"]
                i = end
            continue
        known = CLASS.match(lines[i])
        if known and known[1] == name and not result[-1].lstrip().startswith("///"):
            result += documented(about_file, "")
        result.append(behind(lines[i]))
        i += 1
    return result


def behind(line):
    """A comment behind a declaration is about that one."""
    parts = re.match(r"(.*[^ ].*?)  // (.*)$", line)
    if not parts or line.lstrip().startswith("#"):
        return line
    return f"{parts[1]}  ///< {escaped(parts[2])}"


def main():
    with open(sys.argv[1], encoding="utf-8") as header:
        lines = header.read().split("\n")
    name = os.path.basename(sys.argv[1]).removesuffix(".h")
    print("\n".join(handed(lines, name)))


main()
