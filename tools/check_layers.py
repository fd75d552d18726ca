#!/usr/bin/env python3
"""Checks that the sources keep to the floors of the house.

A folder includes its own headers, those of lower floors, and those of rooms on its own floor as long as no two rooms
include each other in a loop; its library links what it includes. Toolkit and foreign libraries appear in named rooms
only. No two files include each other in a loop.
"""

import re
import sys
from pathlib import Path

# Folder and floor. A folder that is not named is on the floor of the nearest one above it that is.
FLOORS = {
    "base": 0,
    "json": 1,
    "platform": 1,
    "format": 2,
    "metafile": 2,
    "forms": 2,
    "widgets": 2,
    "support": 3,
    "login": 3,
    "binding": 4,
    "servers": 5,
    "elements": 5,
    "document": 6,
    "pages": 7,
    "pages/data": 7,
    "editor": 8,
    "posix": 9,
    "qt": 9,
    "apps": 10,
}

# Foreign headers and the folders that may include them; all others take the standard library alone.
FOREIGN = [
    (re.compile(r"Q[A-Z]\w*|Qt\w+/.*"), ("qt", "apps/editor", "apps/render", "apps/metafile")),
    (re.compile(r"(emf2svg|seccomp)\.h"), ("apps/metafile",)),
    (re.compile(r"nlohmann/.*"), ("json", "servers", "apps")),
    (re.compile(r"sodium\.h"), ("apps",)),
    (re.compile(r"(unistd|fcntl|termios|pwd|sys/\w+)\.h"), ("posix", "qt/ports", "apps")),
]

STANDARD = re.compile(r"[a-z_0-9]+")
INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]')
LIBRARY = re.compile(r"quor_(?:qt_)?library\(\s*([\w/]+)(?:\s+LINKS\s+([\w\s]+?))?\s*\)")


def is_within(folder, rooms):
    return any(folder == room or folder.startswith(room + "/") for room in rooms)


def floor_of(folder):
    while folder not in FLOORS:
        if "/" not in folder:
            return None
        folder = folder.rpartition("/")[0]
    return FLOORS[folder]


def find_loop(graph):
    """A list of nodes that lead back to the first of them, or None."""
    done, path = set(), []

    def visit(node):
        if node in path:
            return path[path.index(node):] + [node]
        if node in done:
            return None
        path.append(node)
        for target in sorted(graph.get(node, ())):
            loop = visit(target)
            if loop:
                return loop
        path.pop()
        done.add(node)
        return None

    for start in sorted(graph):
        loop = visit(start)
        if loop:
            return loop
    return None


def links_of(source):
    """For each library folder, the folders that its library reaches."""
    direct = {}
    for lists in source.rglob("CMakeLists.txt"):
        text = re.sub(r"#.*", "", lists.read_text())
        for folder, links in LIBRARY.findall(text):
            direct[folder] = set(links.split())
    by_library = {folder.replace("/", "_"): folder for folder in direct}

    def reach(folder, seen):
        for library in direct[folder]:
            target = by_library.get(library)
            if target and target not in seen:
                seen.add(target)
                reach(target, seen)
        return seen

    return {folder: reach(folder, set()) for folder in direct}


def check(source):
    faults, files, rooms = [], {}, {}
    links = links_of(source)
    for path in sorted([*source.rglob("*.h"), *source.rglob("*.cpp")]):
        name = path.relative_to(source).as_posix()
        folder = name.rpartition("/")[0]
        for number, line in enumerate(path.read_text().splitlines(), 1):
            found = INCLUDE.match(line)
            if not found:
                continue
            here, target = f"src/{name}:{number}", found.group(2)
            if found.group(1) == '"':
                if not (source / target).is_file():
                    faults.append(f"{here}: {target} is no file of src/ (paths are told from there)")
                    continue
                files.setdefault(name, set()).add(target)
                other = target.rpartition("/")[0]
                if other != folder:
                    rooms.setdefault(folder, set()).add(other)
                    check_floors(here, folder, other, target, links, faults)
            else:
                check_foreign(here, folder, target, faults)

    for graph, what in ((files, "files"), (rooms, "folders")):
        loop = find_loop(graph)
        if loop:
            faults.append(f"{what} that include each other in a loop: {' -> '.join(loop)}")
    return faults


def check_floors(here, folder, other, target, links, faults):
    floor, below = floor_of(folder), floor_of(other)
    if floor is None or below is None:
        faults.append(f"{here}: {folder if floor is None else other} is on no floor")
    elif below > floor:
        faults.append(f"{here}: {folder} (floor {floor}) includes {target} (floor {below})")
    elif folder in links and other in links and other not in links[folder]:
        faults.append(f"{here}: the library of {folder} does not link {other}, which it includes")


def check_foreign(here, folder, target, faults):
    for header, allowed in FOREIGN:
        if header.fullmatch(target):
            if not is_within(folder, allowed):
                faults.append(f"{here}: <{target}> may be included in {', '.join(allowed)} only")
            return
    if not STANDARD.fullmatch(target):
        faults.append(f"{here}: <{target}> is no header of the standard library")


def main():
    source = Path(sys.argv[1] if len(sys.argv) > 1 else "src").resolve()
    faults = check(source)
    print("\n".join(faults) if faults else "Every include keeps to the floors.")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
