#!/usr/bin/env python3
"""Builds the manual as a site: make_site.py FOLDER. Gathers the pages of the checkout and those of the interfaces, and runs Sphinx,
which takes every warning, a broken link among them, for an error."""

import os
import shutil
import subprocess
import sys
from pathlib import Path

import catalogue
import check_links
import make_api

ROOT = catalogue.ROOT
SITE = ROOT / "tools/site"
FAMILIES = [f"docs/functions/{family}" for family, *_ in make_api.make_reference.FAMILIES]
NOTES = [f"docs/notes/{path.stem}" for path in sorted((ROOT / "docs/notes").glob("*.md"))]

# The sections of the site: page, title, what it says, pages.
SECTIONS = [
    ("guide", "Guide", "How to use the library from each language.",
     ["docs/using", "docs/cpp", "docs/python", "docs/tool", "docs/faq", "examples/README"]),
    ("functions", "Functions", "What each function computes, how exact and how fast it is.",
     ["docs/reference", "docs/names", "docs/accuracy", "docs/properties", "docs/performance", "docs/performance-a2",
      "docs/performance-p0", "docs/performance-p0-v3", "docs/special-arguments", *FAMILIES]),
    ("api", "Interfaces", "The functions as C, C++ and Python declare them.", ["api/c", "api/cpp", "api/python"]),
    ("develop", "Development", "How it is built and why it works.",
     ["docs/architecture", "docs/adding-a-function", "CONTRIBUTING", "CHANGELOG", *NOTES]),
]


def listing(title, remark, names):
    return f"# {title}\n\n{remark}\n\n" + "```{toctree}\n:maxdepth: 1\n\n" + "\n".join(f"/{name}" for name in names) + "\n```\n"


def index(readme):
    return readme + "\n```{toctree}\n:hidden:\n\n" + "\n".join(f"/{page}" for page, *_ in SECTIONS) + "\n```\n"


def staged(target, source):
    """Where a file of the checkout stands among the gathered pages; files that are no pages stand in `files`."""
    relative = target.relative_to(ROOT)
    if target == ROOT / "README.md":
        return source / "index.md"
    if target.is_dir():
        return source / "develop.md" if target == ROOT / "docs/notes" else None
    if target.suffix == ".md" or relative.parts[:2] in (("docs", "data"), ("docs", "images")):
        return source / relative
    return source / "files" / relative


def gathered(path, source):
    """A page with its links leading to what is gathered."""
    place = staged(path, source)

    def link(match):
        mark, text, target = match.groups()
        if ":" in target.split("/")[0] or target.startswith("#"):
            return match[0]
        file, anchor = check_links.split(path, target)
        to = staged(file, source)
        if to is None:
            return text  # a folder that has no page
        if not to.exists() and file.is_file() and file.suffix != ".md":
            to.parent.mkdir(parents=True, exist_ok=True)
            shutil.copy(file, to)
        name = os.path.relpath(to, place.parent)
        return f"{mark}[{text}]({name}{'#' + anchor if anchor else ''})"

    parts, last = [], 0
    text = path.read_text()
    for fence in check_links.FENCE.finditer(text):
        parts += [check_links.LINK.sub(link, text[last:fence.start()]), fence[0]]
        last = fence.end()
    parts.append(check_links.LINK.sub(link, text[last:]))
    return "".join(parts)


def gather(source):
    shutil.rmtree(source, ignore_errors=True)
    shutil.copytree(SITE, source)
    version = next(line for line in (ROOT / "CMakeLists.txt").read_text().splitlines() if line.startswith("project(")).split()[2]
    (source / "version").write_text(version + "\n")
    for folder in ("docs/functions", "docs/notes", "examples", "api"):
        (source / folder).mkdir(parents=True)
    for page, title, remark, names in SECTIONS:
        (source / f"{page}.md").write_text(listing(title, remark, names))
    shutil.copytree(ROOT / "docs/images", source / "docs/images")
    for path in check_links.pages():
        text = gathered(path, source)
        place = staged(path, source)
        place.parent.mkdir(parents=True, exist_ok=True)
        place.write_text(index(text) if place.name == "index.md" else text)
    (source / "api/c.rst").write_text(make_api.c_page(ROOT / "include"))
    (source / "api/cpp.rst").write_text(make_api.cpp_page())
    (source / "api/python.rst").write_text(make_api.python_page())


def main():
    if len(sys.argv) != 2:
        catalogue.fail("usage: make_site.py FOLDER")
    folder = Path(sys.argv[1]).resolve()
    broken = list(check_links.complaints())
    if broken:
        catalogue.fail("\n".join(["broken links", *broken]))
    source, html = folder / "source", folder / "html"
    gather(source)
    jobs = str(os.cpu_count() or 1)
    done = subprocess.run([sys.executable, "-m", "sphinx", "-q", "-W", "--keep-going", "-j", jobs, "-b", "html", "-d", folder / "trees",
                           source, html])
    if done.returncode == 0:
        print(f"{html / 'index.html'}")
    return done.returncode


if __name__ == "__main__":
    sys.exit(main())
