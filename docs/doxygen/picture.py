#!/usr/bin/env python3
"""Draws what a command prints, as a terminal would show it.

usage: COMMAND | picture.py "COMMAND" > FILE.svg"""
import html
import sys


def main():
    command = sys.argv[1]
    lines = ["$ " + command] + sys.stdin.read().splitlines()
    width = 8.05 * max(len(line) for line in lines) + 32
    height = 18 * len(lines) + 28
    print(f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {width:.0f} {height}" '
          f'width="{width:.0f}" height="{height}" font-family="monospace" font-size="13.4">')
    print(f"<title>{html.escape(command)}</title>")
    print('<rect width="100%" height="100%" rx="8" fill="#161b22"/>')
    for number, line in enumerate(lines):
        color = "#7ee787" if number == 0 else "#79c0ff" if line.isupper() else "#e6edf3"
        print(f'<text x="16" y="{28 + 18 * number}" fill="{color}" xml:space="preserve">'
              f"{html.escape(line, quote=False)}</text>")
    print("</svg>")


main()
