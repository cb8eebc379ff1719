# The manual as a site. tools/make_site.py gathers the pages and builds it.
import re
from pathlib import Path

project = "lumVM"
author = "lumVM"
copyright = "the lumVM developers"
source = Path(__file__).resolve().parent
release = version = (source / "version").read_text().strip() if (source / "version").exists() else ""

extensions = ["myst_parser"]
source_suffix = {".md": "markdown", ".rst": "restructuredtext"}
exclude_patterns = ["files"]
myst_heading_anchors = 4
myst_enable_extensions = []
suppress_warnings = ["myst.header"]
primary_domain = None
highlight_language = "none"
nitpicky = False

html_theme = "pydata_sphinx_theme"
html_title = "lumVM"
html_static_path = ["_static"]
html_css_files = ["site.css"]
html_show_sourcelink = False
html_copy_source = False
html_show_sphinx = False
html_theme_options = {"show_prev_next": False, "show_toc_level": 2, "navigation_depth": 3, "logo_link": "index"}
html_sidebars = {"index": []}
pygments_style = "friendly"
