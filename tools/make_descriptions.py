#!/usr/bin/env python3
"""Writes the functions' descriptions as C++ initialisers for the command line tool: make_descriptions.py FILE."""

import json
import sys

import catalogue


def main():
    lines = []
    for title, entry in sorted(catalogue.descriptions().items()):
        fields = [title, entry["summary"], entry["domain"], "; ".join(entry["special"]),
                  "; ".join(entry.get("statuses", ["always ok"]))]
        lines.append("{" + ", ".join(json.dumps(field) for field in fields) + "},\n")
    with open(sys.argv[1], "w") as file:
        file.writelines(lines)


if __name__ == "__main__":
    main()
