#!/usr/bin/env python3
"""Makes the manual a page for a browser, with its pictures beside it.

    packaging/manual.py [--cmark cmark-gfm] docs/handleiding.md FOLDER

Writes FOLDER/handleiding.html and FOLDER/beelden/. The page needs no network.
"""

import argparse
import html
import re
import shutil
import subprocess
from pathlib import Path


def anchor(title):
    return re.sub(r"[^a-z0-9]+", "-", title.lower()).strip("-")


def page(body, css):
    """The whole page: a heading of the second level gets an anchor and a line in the list at the top."""
    chapters = []

    def heading(match):
        title = html.unescape(re.sub(r"<[^>]+>", "", match[1]))
        chapters.append((anchor(title), title))
        return f'<h2 id="{anchor(title)}">{match[1]}</h2>'

    body = re.sub(r"<h2>(.*?)</h2>", heading, body)
    contents = "".join(f'<li><a href="#{name}">{html.escape(title)}</a></li>' for name, title in chapters)
    top, end, rest = body.partition("</h1>")
    return (f'<!DOCTYPE html>\n<html lang="nl">\n<head>\n<meta charset="utf-8">\n<title>Tavelo - Handleiding</title>\n'
            f"<style>\n{css}</style>\n</head>\n<body>\n{top}{end}\n<nav><ul>{contents}</ul></nav>{rest}</body>\n</html>\n")


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--cmark", default="cmark-gfm")
    parser.add_argument("manual", type=Path)
    parser.add_argument("folder", type=Path)
    given = parser.parse_args()

    body = subprocess.run([given.cmark, "--extension", "table", given.manual], check=True, capture_output=True,
                          encoding="utf-8").stdout
    css = Path(__file__).with_name("manual.css").read_text(encoding="utf-8")
    given.folder.mkdir(parents=True, exist_ok=True)
    shutil.copytree(given.manual.parent / "beelden", given.folder / "beelden", dirs_exist_ok=True)
    missing = [name for name in re.findall(r'<img src="([^"]+)"', body) if not (given.folder / name).is_file()]
    if missing:
        raise SystemExit(f"the manual shows pictures that are not there: {', '.join(missing)}")
    (given.folder / "handleiding.html").write_text(page(body, css), encoding="utf-8")


if __name__ == "__main__":
    main()
