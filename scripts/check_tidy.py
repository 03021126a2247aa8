#!/usr/bin/env python3
"""Fails, with the lines, when clang-tidy finds in src/ or tools/ what .clang-tidy asks for. Needs a configured build:

    scripts/check_tidy.py BUILD [--part I/N]

Nearly all that clang-tidy does for one source is read the headers of the library and walk through them, so sources that
are compiled alike are shown to it a dozen at once. What it says of a dozen is not believed: names that are private to
two sources clash there. Such a dozen is halved until it is clean or a single source, and only that is reported.
"""

import argparse
import json
import pathlib
import shlex
import subprocess
import sys
import tempfile

TOP = pathlib.Path(__file__).resolve().parent.parent
TIDY = "clang-tidy-16"
TOGETHER = 12


def flags_of(command: str) -> tuple[str, ...]:
    """What clang needs of the build's own command: where headers stand, and definitions."""
    words = shlex.split(command)
    flags = [word for word in words if word.startswith(("-I", "-D", "-fPI"))]
    for before, word in zip(words, words[1:]):
        if before == "-isystem":
            flags += [before, word]
    return tuple(flags)


def groups_of(build: pathlib.Path) -> list[tuple[tuple[str, ...], list[str]]]:
    """Sources of the project that the build compiles (not what another system alone needs), by flags, some at a time."""
    alike: dict[tuple[str, ...], list[str]] = {}
    seen = set()
    for entry in json.loads((build / "compile_commands.json").read_text()):
        file = entry["file"]
        if file in seen or not file.startswith((f"{TOP}/src/", f"{TOP}/tools/")):
            continue
        seen.add(file)
        alike.setdefault(flags_of(entry["command"]), []).append(file)
    return [(flags, sorted(files)[at:at + TOGETHER])
            for flags, files in alike.items() for at in range(0, len(files), TOGETHER)]


def tidy(files: list[str], flags: tuple[str, ...], folder: str) -> str:
    """What clang-tidy says about the sources, each as if it were alone; empty when all is well."""
    together = pathlib.Path(folder) / "together.cpp"
    together.write_text("".join(f'#include "{file}"\n' for file in files))
    asked = str(together) if len(files) > 1 else files[0]
    said = subprocess.run([TIDY, f"--config-file={TOP}/.clang-tidy", "--quiet", asked, "--", *flags],
                          capture_output=True, text=True)
    if said.returncode == 0:
        return ""
    if len(files) == 1:
        return said.stdout or said.stderr or f"{files[0]}: {TIDY} ended with {said.returncode}\n"
    half = len(files) // 2
    return tidy(files[:half], flags, folder) + tidy(files[half:], flags, folder)


def main() -> int:
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("build", type=pathlib.Path)
    parser.add_argument("--part", default="1/1", help="of the work, for several processors")
    asked = parser.parse_args()
    part, parts = (int(number) for number in asked.part.split("/"))

    groups = groups_of(asked.build)
    if not groups:
        sys.exit(f"no sources in {asked.build}")
    with tempfile.TemporaryDirectory() as folder:
        found = "".join(tidy(files, flags, folder) for flags, files in groups[part - 1::parts])
    print(found, end="")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
