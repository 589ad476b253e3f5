#!/usr/bin/env python3
"""Checks the link graph of the program's libraries, as CMake builds it.

    check_layers.py SOURCE_DIR SCRATCH_DIR

Configures the source tree once more into SCRATCH_DIR with --graphviz and reads the graph:
the libraries must form layers with no cycle, and the lower layers (the process-wide values
and status log, the UI descriptions, the platform code, the stream library, the recording
name rules) must not reach any library above them. Exits 1 and names the offending path otherwise.
"""
import os
import re
import shutil
import subprocess
import sys

PREFIX = "tavoric_"
LOWER = {"tavoric_core", "tavoric_ui", "tavoric_platform", "tavoric_kdxstream", "tavoric_names"}


def read_graph(dot_path):
    """The project's libraries and their direct links, from CMake's dot file."""
    names = {}
    edges = {}
    node = re.compile(r'^\s*"(node\d+)" \[ label = "([^"]+)"')
    edge = re.compile(r'^\s*"(node\d+)" -> "(node\d+)"')
    with open(dot_path, encoding="utf-8") as dot:
        lines = dot.readlines()
    for line in lines:
        match = node.match(line)
        if match:
            names[match.group(1)] = match.group(2)
    for line in lines:
        match = edge.match(line)
        if not match:
            continue
        source, target = names.get(match.group(1)), names.get(match.group(2))
        if source and target and source.startswith(PREFIX) and target.startswith(PREFIX):
            edges.setdefault(source, set()).add(target)
    libraries = {name for name in names.values() if name.startswith(PREFIX)}
    # Executables (the program, tests, benchmarks) sit on top and are not part of the layers.
    return libraries, edges


def find_cycle(libraries, edges):
    """A list of libraries forming a cycle, or None."""
    state = {}
    stack = []

    def visit(library):
        state[library] = "open"
        stack.append(library)
        for target in sorted(edges.get(library, ())):
            if state.get(target) == "open":
                return stack[stack.index(target):] + [target]
            if target not in state:
                found = visit(target)
                if found:
                    return found
        stack.pop()
        state[library] = "done"
        return None

    for library in sorted(libraries):
        if library not in state:
            found = visit(library)
            if found:
                return found
    return None


def reach_above(library, edges):
    """A path from a lower library to one above the lower layers, or None."""
    seen = set()
    paths = [[library]]
    while paths:
        path = paths.pop()
        for target in sorted(edges.get(path[-1], ())):
            if target not in LOWER:
                return path + [target]
            if target not in seen:
                seen.add(target)
                paths.append(path + [target])
    return None


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
    missing = LOWER - libraries
    if missing or len(libraries) < 8:
        sys.exit("check_layers: the graph lacks libraries it must have: %s (found %s)" %
                 (sorted(missing), sorted(libraries)))

    failures = []
    cycle = find_cycle(libraries, edges)
    if cycle:
        failures.append("cycle: " + " -> ".join(cycle))
    for library in sorted(LOWER):
        path = reach_above(library, edges)
        if path:
            failures.append("lower library links upwards: " + " -> ".join(path))
    for library in sorted(libraries):
        print("%-22s -> %s" % (library, ", ".join(sorted(edges.get(library, ()))) or "-"))
    if failures:
        print("\n".join(failures))
        sys.exit(1)
    print("%d libraries, no cycle, lower layers link only lower layers" % len(libraries))


if __name__ == "__main__":
    main()
