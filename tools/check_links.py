#!/usr/bin/env python3
"""Checks the links between the pages: every file that one names is there, and has the heading that it names."""

import functools
import re
import sys
from pathlib import Path

import catalogue

LINK = re.compile(r"(!?)\[((?:[^\[\]]|\[[^\]]*\])*)\]\(([^()\s]+)\)")
FENCE = re.compile(r"^(```|~~~).*?^\1", re.M | re.S)


def pages():
    root = catalogue.ROOT
    return sorted([*root.glob("*.md"), *root.glob("docs/**/*.md"), *root.glob("examples/*.md")])


def without_code(text):
    """The text with its blocks of code emptied, lines and all else in place."""
    return FENCE.sub(lambda match: "\n" * match[0].count("\n"), text)


@functools.cache
def anchors(path):
    """The anchors of the headings, as GitHub and MyST make them: a second one of a name has -1 behind it."""
    found = {}
    result = set()
    for line in without_code(path.read_text()).splitlines():
        if re.match(r"#{1,6} ", line):
            title = re.sub(r"[`*]|\[([^\]]*)\]\([^)]*\)", r"\1", line.lstrip("#").strip())
            slug = re.sub(r"[^\w\- ]", "", title.lower()).replace(" ", "-")
            result.add(f"{slug}-{found[slug]}" if slug in found else slug)
            found[slug] = found.get(slug, 0) + 1
    return result


def links(path):
    """(line, target) of all links of a page to other files or headings."""
    for number, line in enumerate(without_code(path.read_text()).splitlines(), 1):
        for match in LINK.finditer(line):
            if not re.match(r"[a-z]+:", match[3]):
                yield number, match[3]


def split(path, target):
    """The file that a link of a page leads to, and the heading."""
    name, _, anchor = target.partition("#")
    return (path.parent / name).resolve() if name else path, anchor


def complaints():
    for path in pages():
        for number, target in links(path):
            file, anchor = split(path, target)
            where = f"{path.relative_to(catalogue.ROOT)}:{number}: {target}"
            if not file.exists():
                yield f"{where}: there is no such file"
            elif anchor and (file.suffix != ".md" or anchor not in anchors(file)):
                yield f"{where}: there is no such heading"


def main():
    found = list(complaints())
    print("\n".join(found + [f"{len(pages())} pages, {sum(1 for page in pages() for _ in links(page))} links, {len(found)} broken"]))
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
