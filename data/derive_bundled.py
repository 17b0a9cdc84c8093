#!/usr/bin/env python3
"""Makes the bundled data from their sources.

    derive_bundled.py SOURCES [TARGET]

SOURCES holds apt.dat.gz, nav.dat.gz, fix.dat.gz, awy.dat.gz, metar.dat.gz, land-50m.json.gz, countries-50m.json.gz
and wmm2025.txt (NOTICE says where they come from); the results go to TARGET, by default the folder of this script.
The airports keep their rows but for beacons, windsocks, signs, boundaries, traffic flows, pavement and painted lines;
the biggest airports keep pavement and the centrelines of their taxiways. Everything else is taken over as it is. The
same sources give the same bytes.
"""

import gzip
import math
import sys
from pathlib import Path

TAKEN_WHOLE = ["nav.dat", "fix.dat", "awy.dat", "metar.dat", "land-50m.json", "countries-50m.json"]
DETAILED_AIRPORTS = 300
# What a run of the Database Manager reads in all.
LARGEST_TOTAL = 12 * 1024 * 1024
DROPPED_ROWS = {b"14", b"18", b"19", b"20", b"21", b"1000", b"1001", b"1002", b"1003", b"1004", b"1100", b"1101", b"1204"}
NODE_ROWS = {b"111", b"112", b"113", b"114", b"115", b"116"}
CENTRELINES = {b"1", b"7", b"51", b"57"}


def read(path):
    with gzip.open(path, "rb") as file:
        return file.read()


def write(path, contents):
    with open(path, "wb") as file:
        with gzip.GzipFile(filename="", mode="wb", compresslevel=9, fileobj=file, mtime=0) as packed:
            packed.write(contents)
    return path.stat().st_size


def airports(text):
    """The head, the airports as lists of rows, and the closing row."""
    head, found = [], []
    for line in text.splitlines():
        row = line.split(None, 1)[0] if line.strip() else b""
        if row in (b"1", b"16", b"17"):
            found.append([line.rstrip()])
        elif row == b"99":
            break
        elif found:
            if row:
                found[-1].append(line.rstrip())
        else:
            head.append(line.rstrip())
    return head, found


def metres(lat1, lon1, lat2, lon2):
    north = (lat2 - lat1) * 111120
    east = (lon2 - lon1) * 111120 * math.cos(math.radians(lat1))
    return math.hypot(north, east)


def size_of(airport, ils):
    """Metres of runway, with 1500 m more for each ILS."""
    total = 1500 * ils.get(airport[0].split()[4], 0)
    for line in airport:
        field = line.split()
        if field[0] == b"100":
            total += metres(*(float(field[i]) for i in (9, 10, 18, 19)))
    return total


def shortened(field):
    """Six decimals are a tenth of a metre."""
    return b"%.6f" % float(field)


def node(line):
    field = line.split()
    points = 4 if field[0] in (b"112", b"114", b"116") else 2
    return b" ".join([field[0]] + [shortened(f) for f in field[1 : 1 + points]] + field[1 + points :])


def is_centreline(line):
    field = line.split()
    points = 4 if field[0] in (b"112", b"114", b"116") else 2
    return any(code in CENTRELINES for code in field[1 + points :])


def reduced(airport, detailed):
    has_network = any(line.split()[0] == b"1202" for line in airport)
    kept, shape = [], []
    shape_row = None

    def finish():
        if detailed and shape_row == b"110":
            kept.extend(shape)
        elif detailed and shape_row == b"120" and not has_network and any(is_centreline(l) for l in shape[1:]):
            kept.extend(shape)
        shape.clear()

    for line in airport:
        row = line.split()[0]
        if row in NODE_ROWS:
            if shape_row in (b"110", b"120"):
                shape.append(node(line))
            continue
        finish()
        shape_row = row if row in (b"110", b"120", b"130") else None
        if row == b"110":
            shape.append(b" ".join(line.split()[:4]))
        elif row == b"120":
            shape.append(row)
        elif row == b"10" and line.split()[3] == b"xxx":
            if detailed:
                kept.append(b" ".join(line.split()))
        elif row != b"130" and row not in DROPPED_ROWS:
            kept.append(line)
    finish()
    return kept


def bundle_airports(sources, target, room):
    head, found = airports(read(sources / "apt.dat.gz"))
    ils = {}
    for line in read(sources / "nav.dat.gz").splitlines():
        field = line.split()
        if len(field) > 9 and field[0] in (b"4", b"5"):
            ils[field[8]] = ils.get(field[8], 0) + 1
    order = sorted(range(len(found)), key=lambda i: (-size_of(found[i], ils), i))
    # As many of the biggest airports as fit, up to DETAILED_AIRPORTS.
    for count in range(DETAILED_AIRPORTS, -1, -20):
        detailed = set(order[:count])
        lines = list(head)
        for i, airport in enumerate(found):
            lines += [b""] + reduced(airport, i in detailed)
        size = write(target / "apt.dat.gz", b"\n".join(lines + [b"99", b""]))
        if size <= room:
            print(f"{len(found)} airports, {count} of them with pavement, {size} bytes")
            return
    sys.exit("the airports do not fit")


def main():
    if len(sys.argv) not in (2, 3):
        sys.exit(__doc__)
    sources = Path(sys.argv[1])
    target = Path(sys.argv[2]) if len(sys.argv) == 3 else Path(__file__).resolve().parent
    total = 0
    for name in TAKEN_WHOLE:
        total += write(target / f"{name}.gz", read(sources / f"{name}.gz"))
    model = (sources / "wmm2025.txt").read_bytes()
    (target / "wmm2025.txt").write_bytes(model)
    bundle_airports(sources, target, LARGEST_TOTAL - total - len(model) - 64 * 1024)


if __name__ == "__main__":
    main()
