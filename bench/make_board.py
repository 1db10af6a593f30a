#!/usr/bin/env python3
"""Writes a synthetic NDD board of about the given size, the same bytes for the same arguments.

The board is made like a real one: components in clusters (an IC with passives around it) on a
six-conductor stack, nets routed on the top layer and through vias on inner layers, arcs in some
routes, a ground plane with an outline of many points and an antipad void around every foreign
via, and a power plane split into regions of several nets, each with its own voids.

  make_board.py --mb 100 --seed 1 OUT.ndd
  make_board.py --mb 8 --slit-plane 136000 680 OUT.ndd   # ground plane as one ring with keyhole
                                                          # slits to its voids
  make_board.py --nets 70000 --mb 20 OUT.ndd              # at least that many nets
"""
import argparse
import math
import random

MM = 100000  # NDD length units per mm (TN)
CELL = 16 * MM  # one cluster per cell
POWER_NETS = ["VCC", "V3P3", "V1P8", "V1P2"]
LAYERS = [("signal", "TOP"), ("power", "GND"), ("signal", "IN1"), ("signal", "IN2"),
          ("power", "PWR"), ("signal", "BOTTOM")]
BYTES_PER_CLUSTER = 20500  # measured on generated boards; only steers the cluster count


class Board:
    def __init__(self, rng, clusters, extra_nets):
        self.rng = rng
        self.cols = max(1, int(math.ceil(math.sqrt(clusters))))
        self.rows = max(1, int(math.ceil(clusters / self.cols)))
        self.clusters = clusters
        self.width = self.cols * CELL + 4 * MM
        self.height = self.rows * CELL + 4 * MM
        self.extra_nets = extra_nets
        self.comps = []  # (ref, package, part, x, y, rot, side, [net per pin])
        self.traces = []  # text lines
        self.vias = []  # (x, y, net)
        self.net_count = 0
        self.pours = []  # (x, y, first via, end via) of each cluster's pour

    def new_net(self):
        self.net_count += 1
        return "N%06d" % self.net_count

    def power_net(self, x):
        # The power plane is split into vertical strips, one power net each.
        strip = int(x * len(POWER_NETS) / self.width)
        return POWER_NETS[min(strip, len(POWER_NETS) - 1)]

    def trace(self, layer, width, x0, y0, x1, y1, net):
        if (x0, y0) != (x1, y1):
            self.traces.append('%%trace "%s" %d %d %d %d %d "%s";' % (layer, width, x0, y0, x1, y1, net))

    def route(self, layer, width, x0, y0, x1, y1, net):
        """A staircase route of a few steps, now and then with a half-circle detour."""
        r = self.rng
        steps = r.randint(2, 6)
        for k in range(steps):
            xs = x0 + (x1 - x0) * (k + 1) // steps
            ys = y0 + (y1 - y0) * (k + 1) // steps
            if abs(xs - x0) > 2 * MM and r.random() < 0.3:
                d = (MM // 2) * (1 if xs > x0 else -1)
                xm = x0 + (xs - x0) // 2
                self.trace(layer, width, x0, y0, xm, y0, net)
                self.traces.append('%%arc_trace "%s" %d %d %d %d %d %d %d "%s";' %
                                   (layer, width, xm, y0, xm + d, y0 + abs(d), xm + 2 * d, y0, net))
                self.trace(layer, width, xm + 2 * d, y0, xs, y0, net)
            else:
                self.trace(layer, width, x0, y0, xs, y0, net)
            self.trace(layer, width, xs, y0, xs, ys, net)
            x0, y0 = xs, ys

    def via(self, x, y, net):
        self.vias.append((x, y, net))

    def cluster(self, index, cx, cy):
        r = self.rng
        ic = "U%d" % (index + 1)
        ic_nets = [None] * 16
        ic_nets[7] = "GND"
        ic_nets[15] = self.power_net(cx)
        pins = []
        for k in range(16):
            side = -1 if k < 8 else 1
            row = k if k < 8 else 15 - k
            pins.append((int(cx + side * 350000), int(cy + (row - 3.5) * 127000)))
        ends = []
        first = len(self.vias)
        for n, pin in enumerate((0, 1, 2, 3, 4, 8, 9, 10, 11, 12)):
            net = self.new_net()
            ic_nets[pin] = net
            px, py = pins[pin]
            side = -1 if pin < 8 else 1
            ang = r.uniform(-0.9, 0.9)
            dist = r.uniform(3.5, 6.5) * MM
            rx = int(cx + side * dist * math.cos(ang))
            ry = int(cy + dist * math.sin(ang))
            ref = ("R" if n % 2 else "C") + "%d" % (index * 10 + n + 1)
            part = "RES" if n % 2 else "CAP"
            far = r.random() < 0.1
            other = self.new_net() if far else ("GND" if part == "CAP" else self.power_net(rx))
            self.comps.append((ref, "CHIP0603", part, rx, ry, 0, "%topplace", [net, other]))
            self.route("TOP", 15000, px, py, rx - 80000, ry, net)
            if far:
                ends.append((rx + 80000, ry, other))
            else:
                vx, vy = rx + 80000, ry + 90000
                self.trace("TOP", 20000, rx + 80000, ry, vx, vy, other)
                self.via(vx, vy, other)
        for pin in (5, 6, 13, 14):
            ic_nets[pin] = self.new_net()
            ends.append(pins[pin] + (ic_nets[pin],))
        self.comps.append((ic, "SOIC16", "IC16", cx, cy, 0, "%topplace", ic_nets))
        for k in (7, 15):
            px, py = pins[k]
            side = -1 if k < 8 else 1
            vx, vy = int(px + side * 120000), int(py)
            self.trace("TOP", 25000, px, py, vx, vy, ic_nets[k])
            self.via(vx, vy, ic_nets[k])
        # Ground stitching in a ring around the cluster.
        for k in range(48):
            a = 2 * math.pi * k / 48
            self.via(int(cx + 7.2 * MM * math.cos(a)), int(cy + 7.2 * MM * math.sin(a)), "GND")
        self.pours.append((cx, cy, first, len(self.vias)))
        return ends

    def long_route(self, a, b):
        """From pin a of one cluster to pin b of another, through two vias and an inner layer."""
        (ax, ay, net), (bx, by, _) = a, b
        layer = "IN1" if self.rng.random() < 0.5 else "IN2"
        avx, avy = ax, ay - 100000
        bvx, bvy = bx, by + 100000
        self.trace("TOP", 12000, ax, ay, avx, avy, net)
        self.via(avx, avy, net)
        self.route(layer, 12000, avx, avy, bvx, bvy, net)
        self.via(bvx, bvy, net)
        self.trace("TOP", 12000, bvx, bvy, bx, by, net)

    def build(self):
        r = self.rng
        ends = []
        for i in range(self.clusters):
            cx = 2 * MM + (i % self.cols) * CELL + CELL // 2 + r.randint(-MM, MM)
            cy = 2 * MM + (i // self.cols) * CELL + CELL // 2 + r.randint(-MM, MM)
            ends.extend(self.cluster(i, cx, cy))
        # The far ends of the passives: each pairs with one in a neighbouring cluster, and both
        # take the first one's net.
        for k in range(0, len(ends) - 1, 2):
            a, b = ends[k], ends[k + 1]
            self.rename_pin(b[2], a[2])
            self.long_route(a, (b[0], b[1], a[2]))
        # Test points, one small net each, to reach a wanted net count.
        i = 0
        while self.net_count < self.extra_nets:
            net = self.new_net()
            x = 2 * MM + (i * 7919 * 1000) % (self.width - 4 * MM)
            y = MM + (i * 104729 * 10) % (self.height - 2 * MM)
            i += 1
            self.trace("BOTTOM", 10000, x, y, x + 300000, y, net)
            self.via(x + 300000, y, net)

    def rename_pin(self, old, new):
        for k in range(len(self.comps) - 1, -1, -1):
            c = self.comps[k]
            if old in c[7]:
                c[7][c[7].index(old)] = new
                return


def header(out, board):
    out.write("# Generated board: %d clusters, seed-made.\n" % board.clusters)
    out.write("%length TN;\n%capacitance pF;\n%resistance ohm;\n%inductance nH;\n%voltage V;\n")
    out.write("%aliasprop\nICX_VALUE \"VALUE\"\nICX_PART_NUMBER \"PART_NUMBER\"\n")
    out.write('%part "IC16" %powerport "VCC" "VCC" "16"\n  "GND" "GND" "8";\n')
    out.write('%part "RES"\n%part "CAP"\n')
    out.write('%dielectric_material "FR4" 4.3;\n%conductor_material "COPPER" %resistivity 0.5;\n')
    for k, (kind, name) in enumerate(LAYERS):
        if k:
            out.write('%%dielectric "D%d" "x" "FR4" 12000;\n' % k)
        out.write('%%%s "%s" "%d" "x" 3500 "COPPER";\n' % (kind, name, k + 1))
    out.write("%board_outline\n%polygon")
    write_points(out, outline_points(board, 4 * MM))
    out.write(";\n")


def write_points(out, points):
    for k, (x, y) in enumerate(points):
        out.write(("\n" if k % 6 == 0 else " ") + "%d %d" % (x, y))


def outline_points(board, pitch):
    """The board's edge with a shallow zig-zag, so that no point is collinear with its
    neighbours: a long outline, counter-clockwise."""
    w, h = board.width, board.height
    pts = []
    def edge(x0, y0, x1, y1, nx, ny):
        n = max(2, int(math.hypot(x1 - x0, y1 - y0) / pitch))
        for k in range(n):
            off = 3000 if k % 2 else 0
            pts.append((x0 + (x1 - x0) * k // n + nx * off, y0 + (y1 - y0) * k // n + ny * off))
    edge(0, 0, w, 0, 0, 1)
    edge(w, 0, w, h, -1, 0)
    edge(w, h, 0, h, 0, -1)
    edge(0, h, 0, 0, 1, 0)
    return pts


def library(out):
    out.write('%paddef "C50"\n  %begin_boundary\n    %outline\n    %circle 0 0 25000;\n'
              '  %end_boundary\n%end_paddef;\n')
    out.write('%paddef "C80"\n  %begin_boundary\n    %outline\n    %circle 0 0 40000;\n'
              '  %end_boundary\n%end_paddef;\n')
    out.write('%paddef "R60X40"\n  %begin_boundary\n    %outline\n'
              '    %rectangle -30000 -20000 30000 20000;\n  %end_boundary\n%end_paddef;\n')
    out.write('%padstackdef "VIA20"\n  %padstacktype "%thruhole"\n  %drill 20000;\n'
              '  %liblayer "%all_layers"\n    %pad 0 0 "C50";\n    %antipad 0 0 "C80";\n'
              '%end_padstackdef;\n')
    out.write('%padstackdef "SMD60X40"\n  %padstacktype "%surface"\n  %liblayer "%toppad"\n'
              '    %pad 0 0 "R60X40";\n%end_padstackdef;\n')


def packages(out):
    out.write('%packagedef "SOIC16"\n%pinloc\n')
    for k in range(16):
        side = -1 if k < 8 else 1
        row = k if k < 8 else 15 - k
        out.write('  "%d" "SMD60X40" %d %d 0;\n' % (k + 1, side * 350000, (row - 3.5) * 127000))
    out.write("%package_drc_bound -450000 -550000 450000 550000;\n")
    out.write('%packagedef "CHIP0603"\n%pinloc "1" "SMD60X40" -80000 0 0;\n'
              '%pinloc "2" "SMD60X40" 80000 0 0;\n%package_drc_bound -120000 -50000 120000 50000;\n')


def components(out, board):
    out.write("# Nets section.\n")
    for ref, _, _, _, _, _, _, nets in board.comps:
        for k, net in enumerate(nets):
            out.write('%%port "%s-%d" "%s";\n' % (ref, k + 1, net))
    out.write("# Vias section.\n")
    for x, y, net in board.vias:
        out.write('%%via "VIA20" %d %d 0 "%s";\n' % (x, y, net))
    packages(out)
    out.write("# Placement section.\n")
    for ref, pkg, part, x, y, rot, side, _ in board.comps:
        out.write('%%partinst "%s" "%s" %d %d %d %s ;\n' % (ref, pkg, x, y, rot, side))
        if part != "IC16":
            out.write('%%prop "ICX_VALUE" "%s 10K"\n' % part)
    out.write("# Gate/Connectivity section.\n")
    for ref, _, part, _, _, _, _, nets in board.comps:
        out.write('%%gate "%s-A"\n%%prop "ICX_REF_DES" "%s"\n%%prop "PART_NUMBER" "%s"\n' %
                  (ref, ref, part))
        for k, net in enumerate(nets):
            out.write('%%port "%d" "%s"\n%%prop "ICX_PIN_NUMBER" "%d"\n' % (k + 1, net, k + 1))


def antipads(out, board, keep):
    for x, y, net in board.vias:
        if keep(x, y, net):
            out.write("%%cutout\n%%circle %d %d 40000 ;\n" % (x, y))


def planes(out, board, slit_plane):
    out.write("# Board Geometry section.\n")
    if slit_plane:
        slit_ground(out, board, *slit_plane)
    else:
        out.write('%fill_area "GND" "GND";\n%begin_boundary\n%outline\n%polygon')
        write_points(out, outline_points(board, MM // 2))
        out.write(";\n")
        antipads(out, board, lambda x, y, net: net != "GND")
        out.write("%end_boundary\n")
    # A ground pour under each cluster on the bottom layer, with a void around its other vias.
    for cx, cy, first, end in board.pours:
        out.write('%fill_area "BOTTOM" "GND";\n%begin_boundary\n%outline\n%polygon')
        write_points(out, [(int(cx + 6.8 * MM * math.cos(a) * (1 + 0.01 * (k % 2))),
                            int(cy + 6.8 * MM * math.sin(a) * (1 + 0.01 * (k % 2))))
                           for k, a in ((k, 2 * math.pi * k / 200) for k in range(200))])
        out.write(";\n")
        for x, y, net in board.vias[first:end]:
            if net != "GND" and math.hypot(x - cx, y - cy) < 6.5 * MM:
                out.write("%%cutout\n%%circle %d %d 40000 ;\n" % (x, y))
        out.write("%end_boundary\n")
    strip = board.width // len(POWER_NETS)
    for k, net in enumerate(POWER_NETS):
        x0, x1 = k * strip + 20000, (k + 1) * strip - 20000
        out.write('%%fill_area "PWR" "%s";\n%%begin_boundary\n%%outline\n' % net)
        out.write("%%rectangle %d %d %d %d;\n" % (x0, 20000, x1, board.height - 20000))
        antipads(out, board, lambda x, y, n: x0 < x < x1 and n != net)
        out.write("%end_boundary\n")


def slit_ground(out, board, points, voids):
    """The ground plane as one ring that reaches each of its voids through a keyhole slit from
    the top edge, as some exporters write planes."""
    r = board.rng
    w, h = board.width, board.height
    ring_points = 48
    # Voids stand in slots of 0.6 mm, so that no slit crosses another void.
    slots = range(4 * MM // 60000, (w - 4 * MM) // 60000)
    void_x = sorted(r.sample(slots, min(voids, len(slots))), reverse=True)
    edge_points = max(8, points - voids * (ring_points + 3))
    pitch = max(2000, (2 * w + 2 * h) // edge_points)
    def zig(x0, y0, x1, y1, nx, ny):
        n = max(2, int(math.hypot(x1 - x0, y1 - y0) / pitch))
        return [(x0 + (x1 - x0) * k // n + nx * (3000 if k % 2 else 0),
                 y0 + (y1 - y0) * k // n + ny * (3000 if k % 2 else 0)) for k in range(n)]
    pts = zig(0, 0, w, 0, 0, 1) + zig(w, 0, w, h, -1, 0)
    x = w
    for vx in void_x:
        vx *= 60000
        pts += zig(x, h, vx, h, 0, -1)[:-1] if x - vx > 2 * pitch else []
        vy = r.randint(3 * MM, h - 3 * MM)
        rad = r.randint(10000, 25000)
        top = (vx, vy + rad)
        pts += [(vx, h - 20000), top]
        # Round the void clockwise (the ring runs the other way), back to its top.
        for k in range(1, ring_points):
            a = math.pi / 2 + 2 * math.pi * k / ring_points
            pts.append((int(vx + rad * math.cos(a)), int(vy + rad * math.sin(a))))
        pts += [top, (vx, h - 20000)]
        x = vx
    pts += zig(x, h, 0, h, 0, -1)[1:] + zig(0, h, 0, 0, 1, 0)
    out.write('%fill_area "GND" "GND";\n%begin_boundary\n%outline\n%polygon')
    write_points(out, pts)
    out.write(";\n%end_boundary\n")


def main():
    p = argparse.ArgumentParser(description=__doc__.split("\n")[0])
    p.add_argument("--mb", type=float, default=10.0, help="approximate size in MB")
    p.add_argument("--seed", type=int, default=1)
    p.add_argument("--nets", type=int, default=0, help="at least this many nets")
    p.add_argument("--slit-plane", type=int, nargs=2, metavar=("POINTS", "VOIDS"))
    p.add_argument("output")
    a = p.parse_args()
    clusters = max(1, int(a.mb * 1e6 / BYTES_PER_CLUSTER))
    board = Board(random.Random(a.seed), clusters, a.nets)
    board.build()
    with open(a.output, "w", buffering=1 << 20) as out:
        header(out, board)
        library(out)
        components(out, board)
        out.write("# Traces section.\n")
        out.write("\n".join(board.traces))
        out.write("\n")
        planes(out, board, a.slit_plane)


if __name__ == "__main__":
    main()
