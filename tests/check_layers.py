#!/usr/bin/env python3
"""Checks the link graph of the program's libraries as CMake builds it: no cycle, the lower
layers (process-wide values and status log, what plays, UI descriptions, platform code,
stream library, name rules) reach no library above them, and the views that only read what
plays (the list, export, the chart and the map) reach neither the video engine nor libvlc, and
the libraries a command-line tool builds on (drives, telemetry, the stream library) reach no
widgets.
Exits 1 naming the offending path otherwise.

    check_layers.py SOURCE_DIR SCRATCH_DIR
"""
import os
import re
import shutil
import subprocess
import sys

PREFIX = "tavoric_"
LOWER = {"tavoric_core", "tavoric_playstate", "tavoric_ui", "tavoric_platform",
         "tavoric_kdxstream", "tavoric_names"}
# Libraries that must not reach the engine or libvlc, and what counts as either.
VIEWS = {"tavoric_recordings", "tavoric_export", "tavoric_telemetry_views"}
ENGINE = ("tavoric_engine", "LIBVLC", "vlc")
# Libraries the command-line tool builds on: no widget, no window system.
HEADLESS = {"tavoric_drives", "tavoric_telemetry", "tavoric_kdxstream"}
WIDGETS = ("Qt5::Widgets", "Qt5::Gui", "tavoric_ui")


def read_graph(dot_path):
    """The project's libraries and their direct links, from CMake's dot file (executables,
    which sit on top, are left out)."""
    with open(dot_path, encoding="utf-8") as dot:
        lines = dot.readlines()
    names = dict(m.groups() for m in map(re.compile(r'^\s*"(node\d+)" \[ label = "([^"]+)"').match,
                                         lines) if m)
    edges = {}
    for match in filter(None, map(re.compile(r'^\s*"(node\d+)" -> "(node\d+)"').match, lines)):
        source, target = names.get(match.group(1)), names.get(match.group(2))
        if source and target and source.startswith(PREFIX):
            edges.setdefault(source, set()).add(target)
    return {name for name in names.values() if name.startswith(PREFIX)}, edges


def find_cycle(libraries, edges):
    """A list of libraries forming a cycle, or None."""
    state, stack = {}, []

    def visit(library):
        state[library] = "open"
        stack.append(library)
        for target in sorted(edges.get(library, ())):
            if state.get(target) == "open":
                return stack[stack.index(target):] + [target]
            found = visit(target) if target not in state else None
            if found:
                return found
        stack.pop()
        state[library] = "done"
        return None

    for library in sorted(libraries):
        found = visit(library) if library not in state else None
        if found:
            return found
    return None


def reach(library, edges, forbidden):
    """A path from library to a node for which forbidden(node) holds, or None."""
    seen, paths = set(), [[library]]
    while paths:
        path = paths.pop()
        for target in sorted(edges.get(path[-1], ())):
            if forbidden(target):
                return path + [target]
            if target not in seen:
                seen.add(target)
                paths.append(path + [target])
    return None


def reach_above(library, edges):
    """A path from a lower library to one of the project's above the lower layers, or None."""
    return reach(library, edges, lambda node: node.startswith(PREFIX) and node not in LOWER)


def reach_engine(library, edges):
    """A path from a view to the video engine or libvlc, or None."""
    return reach(library, edges, lambda node: any(name in node for name in ENGINE))


def reach_widgets(library, edges):
    """A path from a library without windows to widgets, or None."""
    return reach(library, edges, lambda node: any(name in node for name in WIDGETS))


def main():
    source, scratch = sys.argv[1], sys.argv[2]
    shutil.rmtree(scratch, ignore_errors=True)
    os.makedirs(scratch)
    dot = os.path.join(scratch, "libraries.dot")
    generator = ["-G", "Ninja"] if shutil.which("ninja") else []
    configure = subprocess.run(["cmake", "-S", source, "-B", scratch, "--graphviz=" + dot] +
                               generator, stdout=subprocess.DEVNULL, stderr=subprocess.PIPE,
                               text=True)
    if configure.returncode != 0:
        sys.exit("check_layers: cmake failed:\n" + configure.stderr)
    libraries, edges = read_graph(dot)
    missing = (LOWER | VIEWS | HEADLESS | {"tavoric_engine"}) - libraries
    if missing or len(libraries) < 8:
        sys.exit("check_layers: the graph lacks libraries it must have: %s (found %s)" %
                 (sorted(missing), sorted(libraries)))
    ours = {name: {t for t in targets if t.startswith(PREFIX)} for name, targets in edges.items()}
    cycle = find_cycle(libraries, ours)
    failures = ["cycle: " + " -> ".join(cycle)] if cycle else []
    failures += ["lower library links upwards: " + " -> ".join(path)
                 for path in filter(None, (reach_above(lib, edges) for lib in sorted(LOWER)))]
    failures += ["a view reaches the video engine: " + " -> ".join(path)
                 for path in filter(None, (reach_engine(lib, edges) for lib in sorted(VIEWS)))]
    failures += ["a library without windows reaches widgets: " + " -> ".join(path)
                 for path in filter(None, (reach_widgets(lib, edges) for lib in sorted(HEADLESS)))]
    for library in sorted(libraries):
        print("%-24s -> %s" % (library, ", ".join(sorted(ours.get(library, ()))) or "-"))
    if failures:
        sys.exit("\n".join(failures))
    print("%d libraries, no cycle, lower layers link only lower layers, views not the engine, "
          "the command-line tool's libraries no widgets" % len(libraries))


if __name__ == "__main__":
    main()
