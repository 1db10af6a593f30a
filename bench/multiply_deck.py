#!/usr/bin/env python3
"""Makes a large QFX deck out of a small one, for the qfxview benchmark: the board's shapes,
nodes, traces, vias and linkages are repeated in a grid of copies, each copy's objects
renumbered and moved by the board's size, until the deck reaches the size asked for.
Usage: multiply_deck.py DECK MEGABYTES OUT"""
import re
import sys

NAME = re.compile(r"\b(Circle|Box|Polygon|Node|Trace|Via)(\d+)")
STRIDE = 1000000  # counters of copy k are k * STRIDE + the original counter


def sections(lines):
    """The deck cut into head, shape sections, layer lines, nodes, traces, vias, the rest
    of the package (padstacks) and what follows it (circuit and linkage)."""
    parts = {"head": [], "shapes": [], "layers": [], "nodes": [], "traces": [], "vias": [],
             "library": [], "circuit": [], "linkage": [], "tail": []}
    where = "head"
    section = None
    for i, line in enumerate(lines):
        if line.startswith(".Shape "):
            section = [line, []]
            parts["shapes"].append(section)
            where = "shape"
            continue
        if where == "shape":
            if line.startswith(".EndShape"):
                where = "layers"
            elif line.startswith("+"):
                section[1][-1].append(line)
            else:
                section[1].append([line])
            continue
        if line.startswith("Node"):
            where = "nodes"
        elif line.startswith("Trace"):
            where = "traces"
        elif line.startswith("Via"):
            where = "vias"
        elif line.startswith("*PadStack"):
            where = "library"
        elif line.startswith("* Circuit"):
            where = "circuit"
        elif line.startswith("* Linkage"):
            where = "linkage"
        elif line.startswith(".End") and where == "linkage" and line.strip() == ".End":
            where = "tail"
        elif where == "head" and (line.startswith(("Signal$", "Plane$", "Medium"))):
            where = "layers"
        parts[where if where != "shape" else "layers"].append(line)
    return parts


def extent(parts):
    xs, ys = [], []
    for line in parts["nodes"]:
        xs.append(float(re.search(r" X = (\S+)mm", line).group(1)))
        ys.append(float(re.search(r" Y = (\S+)mm", line).group(1)))
    return min(xs), max(xs), min(ys), max(ys)


def moved(text, dx, dy, kind):
    """Moves the lengths of a shape element: pairs for a polygon, centre for a circle,
    corner for a box."""
    numbers = re.findall(r"(-?\d\.\d+e[+-]\d+)mm", text)
    out = []
    for i, n in enumerate(numbers):
        v = float(n)
        if kind == "Polygon" or i < 2:
            v += dx if i % 2 == 0 else dy
        out.append("%emm" % v)
    it = iter(out)
    return re.sub(r"-?\d\.\d+e[+-]\d+mm", lambda m: next(it), text)


def copy(line, k, dx, dy):
    line = NAME.sub(lambda m: m.group(1) + str(k * STRIDE + int(m.group(2))), line)
    if line.startswith("Node"):
        line = re.sub(r" X = (\S+)mm", lambda m: " X = %.10emm" % (float(m.group(1)) + dx), line)
        line = re.sub(r" Y = (\S+)mm", lambda m: " Y = %.10emm" % (float(m.group(1)) + dy), line)
    return line


def main():
    deck, megabytes, out = sys.argv[1], float(sys.argv[2]), sys.argv[3]
    lines = open(deck).read().split("\n")
    parts = sections(lines)
    x0, x1, y0, y1 = extent(parts)
    width, height = (x1 - x0) * 1.1 + 1, (y1 - y0) * 1.1 + 1
    repeated = sum(len(l) + 1 for _, elements in parts["shapes"] for e in elements for l in e)
    repeated += sum(len(l) + 1 for key in ("nodes", "traces", "vias", "linkage") for l in parts[key])
    copies = max(1, int(megabytes * 1e6 / repeated))
    columns = max(1, int(copies ** 0.5))
    places = [((k % columns) * width, (k // columns) * height) for k in range(copies)]
    with open(out, "w") as f:
        w = lambda l: f.write(l + "\n")
        for l in parts["head"]:
            w(l)
        for header, elements in parts["shapes"]:
            w(header)
            for k, (dx, dy) in enumerate(places):
                for element in elements:
                    kind = NAME.match(element[0]).group(1)
                    text = moved("\n".join(element), dx, dy, kind)
                    w(NAME.sub(lambda m: m.group(1) + str(k * STRIDE + int(m.group(2))), text, 1))
            w(".EndShape")
        for l in parts["layers"]:
            w(l)
        for key in ("nodes", "traces", "vias"):
            for k, (dx, dy) in enumerate(places):
                for l in parts[key]:
                    if l:
                        w(copy(l, k, dx, dy))
        for key in ("library", "circuit"):
            for l in parts[key]:
                w(l)
        for k in range(copies):
            for l in parts["linkage"]:
                if k > 0 and l.startswith("*"):
                    continue
                if l.startswith(".Connect "):
                    word = l.split(" ")
                    l = " ".join([word[0], word[1] + "_%d" % k] + word[2:])
                elif l and not l.startswith((".", "*")):
                    l = copy(l, k, 0, 0)
                if l:
                    w(l)
        for l in parts["tail"]:
            w(l)
    print("%s: %d copies of %s" % (out, copies, deck))


main()
