#!/usr/bin/env python3
"""Writes what is new, from CHANGELOG.md, as Debian's tools want to read it.

    packaging/linux/debian_changelog.py --version V --contact "Name <address>" CHANGELOG.md OUTPUT
"""

import argparse
import os
import re
import textwrap
from datetime import datetime, timezone
from email.utils import format_datetime
from pathlib import Path


def newest(text):
    """The points of the first chapter, each on one line."""
    chapter = re.split(r"^## .*$", text, flags=re.MULTILINE)[1]
    points = re.split(r"^- ", chapter, flags=re.MULTILINE)[1:]
    return [re.sub(r"\s+", " ", re.sub(r"[*`]", "", point.split("\n\n")[0])).strip() for point in points]


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--version", required=True)
    parser.add_argument("--contact", required=True)
    parser.add_argument("changelog", type=Path)
    parser.add_argument("output", type=Path)
    given = parser.parse_args()

    when = int(os.environ.get("SOURCE_DATE_EPOCH", given.changelog.stat().st_mtime))
    lines = [f"tavelo ({given.version}) unstable; urgency=medium", ""]
    for point in newest(given.changelog.read_text(encoding="utf-8")):
        lines += textwrap.wrap(point, 76, initial_indent="  * ", subsequent_indent="    ")
    lines += ["", f" -- {given.contact}  {format_datetime(datetime.fromtimestamp(when, timezone.utc))}", ""]
    given.output.write_text("\n".join(lines), encoding="utf-8")


if __name__ == "__main__":
    main()
