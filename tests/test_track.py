#!/usr/bin/python3
"""Track files as other tools read them: the command-line tool's GPX read by gpxpy, KML and
GeoJSON by GDAL's ogrinfo, CSV by Python's csv; points and times compared with the telemetry
the demo recordings were made with, which ffmpeg reads back from their subtitle tracks.

    test_track.py TAVORIC_CLI DEMO_FOLDER
"""
import csv
import datetime
import os
import re
import subprocess
import sys
import tempfile

import gpxpy

cli, demo = sys.argv[1], sys.argv[2]
failures = []


def check(ok, message):
    print(("ok    " if ok else "FAIL  ") + message)
    if not ok:
        failures.append(message)


def telemetry():
    """Every reading of the drive's recordings as (camera clock, lat, lon, speed, gx), from
    the subtitle track of each front file, on the clock of the recording's name."""
    readings = []
    for name in sorted(os.listdir(demo)):
        if not re.match(r"20240612_08\d{4}_[A-Z]{3}_[14]\.mp4$", name):
            continue
        start = datetime.datetime.strptime(name[:15], "%Y%m%d_%H%M%S")
        srt = subprocess.run(["ffmpeg", "-v", "error", "-i", os.path.join(demo, name), "-map",
                              "0:s:0", "-f", "srt", "-"], capture_output=True, text=True,
                             check=True).stdout
        for block in srt.strip().split("\n\n"):
            lines = block.splitlines()
            h, m, s = lines[1].split(" --> ")[0].replace(",", ".").split(":")
            at = start + datetime.timedelta(hours=int(h), minutes=int(m), seconds=float(s))
            g = re.search(r"G=([-+.\d]+),([-+.\d]+),([-+.\d]+)", lines[2])
            gps = re.search(r"GPS=([-.\d]+),([-.\d]+)", lines[2])
            speed = re.search(r"SPD=([.\d]+)", lines[2])
            readings.append((at, float(gps.group(1)) if gps else None,
                             float(gps.group(2)) if gps else None,
                             float(speed.group(1)) if speed else None, float(g.group(1))))
    return readings


def run(*args):
    return subprocess.run([cli] + list(args), capture_output=True, text=True, timeout=120)


readings = telemetry()
first = datetime.datetime(2024, 6, 12, 8, 15, 2)
# 80 to 100 s into the drive: the camera's event recording, with the hard braking.
wanted = [r for r in readings
          if datetime.timedelta(seconds=80) <= r[0] - first <= datetime.timedelta(seconds=100)]
located = [r for r in wanted if r[1] is not None]

with tempfile.TemporaryDirectory() as out:
    gpx_path = os.path.join(out, "range.gpx")
    done = run("track", "--format", "gpx", "--from", "80", "--to", "100", "-o", gpx_path, demo)
    check(done.returncode == 0, "gpx written (%d %s)" % (done.returncode, done.stderr.strip()))
    with open(gpx_path) as source:
        track = gpxpy.parse(source)
    points = [p for t in track.tracks for s in t.segments for p in s.points]
    check(len(points) == len(located), "gpx: %d points, the telemetry has %d with a position"
          % (len(points), len(located)))
    worst = max(max(abs(p.latitude - r[1]), abs(p.longitude - r[2]),
                    abs((p.time.replace(tzinfo=None) - r[0]).total_seconds()))
                for p, r in zip(points, located))
    # Positions travel as 32-bit floats in the telemetry frames: 4e-6 degrees (0.4 m) at most.
    check(worst < 5e-6, "gpx: every point where and when the telemetry has it (worst %.2g)" % worst)
    speeds = [float(e.text) for p in points for e in p.extensions if e.tag.endswith("speed")]
    check(len(speeds) == len(points) and all(abs(s - r[3]) < 0.06 for s, r in zip(speeds, located)),
          "gpx: the speed in the extension of each point")

    # The whole drive: the route (broken in the tunnel) and the braking as a point.
    for kind in ("kml", "geojson"):
        path = os.path.join(out, "drive." + kind)
        done = run("track", "--format", kind, "-o", path, demo)
        check(done.returncode == 0, "%s written" % kind)
        info = subprocess.run(["ogrinfo", "-ro", "-al", path], capture_output=True, text=True).stdout
        lines = re.findall(r"^\s+((?:MULTI)?LINESTRING|POINT) \(", info, re.M)
        check(sorted(set(lines)) in (["LINESTRING", "POINT"], ["MULTILINESTRING", "POINT"]) and
              lines.count("POINT") == 1,
              "%s: ogrinfo reads the route and one incident (%s)" % (kind, lines))
        routes = re.findall(r"^\s+(?:MULTI)?LINESTRING (.*)$", info, re.M)
        coordinates = [c for route in routes for c in re.findall(r"-?\d+\.\d+ -?\d+\.\d+", route)]
        drive_located = [r for r in readings if r[1] is not None]
        check(len(coordinates) == len(drive_located),
              "%s: the route has the drive's %d positions (%d)"
              % (kind, len(drive_located), len(coordinates)))

    csv_path = os.path.join(out, "range.csv")
    done = run("track", "--format", "csv", "--from", "80", "--to", "100", "-o", csv_path, demo)
    with open(csv_path, newline="") as source:
        rows = list(csv.DictReader(source))
    check(done.returncode == 0 and list(rows[0].keys()) ==
          ["time", "latitude", "longitude", "speed_kmh", "x", "y", "z"], "csv: the header")
    check(len(rows) == len(wanted), "csv: every reading of the range (%d of %d)" % (len(rows), len(wanted)))
    check(all("," not in v and re.match(r"^-?\d+\.\d+$|^$", v)
              for row in rows for k, v in row.items() if k != "time"), "csv: dot decimals")
    check(all(abs(float(row["x"]) - r[4]) < 0.0006 for row, r in zip(rows, wanted)),
          "csv: the G-sensor's X of each reading")

    # A parking recording has no position: a message, no file.
    empty = os.path.join(out, "none.gpx")
    done = run("track", "--format", "gpx", "-o", empty, os.path.join(demo, "20240612_123000_PRK_1.mp4"))
    check(done.returncode == 1 and "no GPS position" in done.stderr and not os.path.exists(empty),
          "no position: exit 1, a message and no file (%d, %s)" % (done.returncode, done.stderr.strip()))
    done = run("track", "--format", "shp", "-o", empty, demo)
    check(done.returncode == 2, "an unknown format is a usage error")

if failures:
    sys.exit("%d checks failed" % len(failures))
