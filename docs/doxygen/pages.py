#!/usr/bin/env python3
"""Hands a page to Doxygen: words behind the language of a code block are for tests, links to a
page by a path lead to the page, those to the schemas to the page made of them, and those to what is no
page of the site are left out."""
import os
import re
import sys

PAGES = {"index.md", "five-minutes.md", "commands.md", "model.md", "dictionary.md", "services.md",
         "lifetime.md", "errors.md", "safety.md", "formats.md", "lint.md", "import.md", "design.md",
         "tool.md", "diff.md", "report.md", "generate.md", "generate-csharp.md",
         "generate-idl.md", "generate-java.md", "generate-markdown.md",
         "CONTRIBUTING.md", "SECURITY.md"}


def label(page):
    return "page_" + re.sub(r"[^a-z]", "_", page.removesuffix(".md").lower())


def link(match):
    text, target = match[1], match[2]
    page = os.path.basename(target.split("#")[0].rstrip("/"))
    page = "formats.md" if page == "schema" else page
    if re.match(r"https?:", target) or target.startswith("#"):
        return match[0]
    return f"[{text}](@ref {label(page)})" if page in PAGES else text


def main():
    name = os.path.basename(sys.argv[1])
    in_code = False
    for number, line in enumerate(open(sys.argv[1], encoding="utf-8")):
        line = line.rstrip("\n")
        if line.startswith("```"):
            in_code = not in_code
            language = line[3:].split(" ")[0]
            print("```" + {"console": "", "text": "", "": ""}.get(language, language))
        elif in_code:
            print(line)
        elif number == 0 and line.startswith("# "):
            print(line if name == "index.md" else f"{line} {{#{label(name)}}}")
        else:
            parts = re.split(r"(`[^`]*`)", line)
            for i in range(0, len(parts), 2):
                parts[i] = re.sub(r"(?<!!)\[([^\]]*)\]\(([^)]*)\)", link, parts[i])
            print("".join(parts))


main()
