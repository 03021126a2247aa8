#!/usr/bin/env python3
"""Checks that the includes below src/ run one way, from a room to itself or to a room above it in this list.

Also: the toolkit is included by the windows (frm*), platform/ and main.cpp alone, a room with a front door is entered
by it, every own include is written from src/ and exists, and no file includes itself in a circle.
"""

import re
import sys
from pathlib import Path

SRC = Path(__file__).resolve().parent.parent / "src"

# Top to bottom: a file may include its own room and the rooms before it.
ROOMS = ["basis", "workbook", "schedule/record", "vocabulary", "schedule", "app", "excel", "ui/display", "ui/main",
         "ui/settings"]

# The one header of a room that other rooms may include.
FRONT_DOORS = {"workbook": "workbook/workbook.h"}

# The seams on the toolkit know the abstract classes and the program's value, not the rules that use them.
PLATFORM_MAY_INCLUDE = {"basis", "schedule/record", "app", "excel", "platform"}

INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]', re.MULTILINE)
TOOLKIT = re.compile(r"^(Q[A-Z]\w*|Qt\w*/.*)$")


def room_of(path):
    """The room of a path relative to src/: the longest folder of the list; "main" for the program's own file."""
    folder = path.rpartition("/")[0]
    if folder == "":
        return "main"
    if folder.split("/")[0] == "platform":
        return "platform"
    while folder and folder not in ROOMS:
        folder = folder.rpartition("/")[0]
    return folder or None


def is_window(path):
    return path.rpartition("/")[2].startswith("frm")


def may_use_toolkit(path):
    return is_window(path) or room_of(path) in ("platform", "main")


def may_include(path, target):
    room, target_room = room_of(path), room_of(target)
    if room != target_room and target != FRONT_DOORS.get(target_room, target):
        return False
    if room == "main":
        return True
    if room == "platform":
        return target_room in PLATFORM_MAY_INCLUDE
    if target_room == "platform":
        return is_window(path)
    if target_room == "main" or ROOMS.index(target_room) > ROOMS.index(room):
        return False
    return is_window(path) or not is_window(target)


def circles(graph):
    """One line for every circle met in a depth-first walk."""
    state, trail, found = {}, [], []

    def visit(node):
        state[node] = "open"
        trail.append(node)
        for target in graph.get(node, ()):
            if state.get(target) == "open":
                found.append("circle: " + " -> ".join(trail[trail.index(target):] + [target]))
            elif target not in state:
                visit(target)
        trail.pop()
        state[node] = "done"

    for node in sorted(graph):
        if node not in state:
            visit(node)
    return found


def check(files):
    """`files` maps a path relative to src/ to its text. Returns the complaints."""
    complaints, graph = [], {}
    for path in sorted(files):
        if room_of(path) is None:
            complaints.append(f"{path}: stands in no room of the house")
            continue
        own = []
        for kind, target in INCLUDE.findall(files[path]):
            if kind == "<":
                if TOOLKIT.match(target) and not may_use_toolkit(path):
                    complaints.append(f"{path}: includes the toolkit ({target})")
            elif target.endswith(".moc"):
                continue
            elif target not in files:
                complaints.append(f'{path}: "{target}" is no file below src/')
            else:
                own.append(target)
                if not may_include(path, target):
                    complaints.append(f"{path}: may not include {target}")
        graph[path] = own
    return complaints + circles(graph)


def self_test():
    """The check is worth something only when it complains: one example of every complaint."""
    header = "#pragma once\n"
    house = {"basis/text.h": header, "ui/main/frmTavelo.h": header, "platform/pixels.h": header, "app/a.h": header,
             "workbook/workbook.h": header, "workbook/xls/x.h": header}
    cases = {
        '#include "app/a.h"': "basis/x.cpp",
        '#include "ui/main/frmTavelo.h"': "ui/main/rules.cpp",
        '#include "platform/pixels.h"': "excel/x.cpp",
        '#include <QWidget>': "ui/main/rules.cpp",
        '#include <QtCore/QString>': "app/x.cpp",
        '#include "text.h"': "basis/x.cpp",
        '#include "loop/x.h"': "loop/x.h",
        '#include "basis/ring.h"': "basis/ring.h",
        '#include "workbook/xls/x.h"': "excel/x.cpp",
        '#include "workbook/workbook.h"': "basis/x.cpp",
    }
    for include, path in cases.items():
        assert check(house | {path: include + "\n"}), f"{path} with {include} went unnoticed"
    allowed = {
        "excel/x.cpp": '#include "workbook/workbook.h"\n',
        "workbook/x.cpp": '#include "workbook/xls/x.h"\n#include "basis/text.h"\n',
        "ui/main/frmOther.cpp": '#include "platform/pixels.h"\n#include <QWidget>\n#include "basis/text.h"\n',
        "platform/x.cpp": '#include <QFont>\n#include "basis/text.h"\n',
        "main.cpp": '#include "ui/main/frmTavelo.h"\n#include "platform/pixels.h"\n',
    }
    assert not check(house | allowed), check(house | allowed)


def main():
    self_test()
    files = {str(path.relative_to(SRC)): path.read_text(encoding="utf-8")
             for path in SRC.rglob("*") if path.suffix in (".cpp", ".h")}
    complaints = check(files)
    print("\n".join(complaints) or f"{len(files)} files: every include runs one way")
    return 1 if complaints else 0


if __name__ == "__main__":
    sys.exit(main())
