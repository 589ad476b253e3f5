#!/usr/bin/env python3
"""The command-line tool as a script uses it: the demo set's recordings and drives read back
with Python's own JSON parser and compared with what the demo was made with; exit statuses
for a folder of nothing readable and for usage errors.

    test_cli.py TAVORIC_CLI DEMO_FOLDER
"""
import json
import os
import shutil
import subprocess
import sys
import tempfile

cli, demo = sys.argv[1], sys.argv[2]
failures = []


def check(ok, message):
    print(("ok    " if ok else "FAIL  ") + message)
    if not ok:
        failures.append(message)


def run(*args):
    done = subprocess.run([cli] + list(args), capture_output=True, text=True, timeout=120)
    return done.returncode, done.stdout, done.stderr


# Each recording: the demo's eight, with their cameras, lengths and GPS positions.
code, out, err = run("info", "-j", "2", demo)
check(code == 0, "info exits 0 (%d: %s)" % (code, err.strip()))
recordings = {os.path.basename(r["path"]): r for r in json.loads(out)["recordings"]}
check(len(recordings) == 8, "info lists the demo's 8 recordings (%d)" % len(recordings))
expected = {  # name: cameras, length in s, type, positions (10 a second with a fix)
    "20240612_081502_INF_1.mp4": (3, 40, "infinity", 400),
    "20240612_081542_INF_1.mp4": (3, 40, "infinity", 250),  # 15 s in a tunnel
    "20240612_081622_EVT_1.mp4": (3, 20, "event", 200),
    "20240612_081642_INF_1.mp4": (2, 30, "infinity", 300),
    "20240612_081712_USR_1.mp4": (1, 20, "user", 200),
    "20240612_081732_INF_4.mp4": (3, 30, "infinity", 300),
    "20240612_123000_PRK_1.mp4": (1, 20, "parking", 0),
}
for name, (cameras, length, kind, positions) in expected.items():
    r = recordings.get(name, {})
    got = (r.get("cameras"), round(r.get("length_s", -1)), r.get("type"), r.get("positions"))
    check(got == (cameras, length, kind, positions), "%s: %s" % (name, got))
check(recordings["20240612_081502_INF_1.mp4"]["start"] == "2024-06-12T08:15:02" and
      recordings["20240612_081502_INF_1.mp4"]["telemetry"] == "timed text",
      "start time and telemetry source of the first")
check(recordings["20240612_123000_PRK_1.mp4"]["telemetry"] is None, "a recording without telemetry says so")

# Drives: one drive of six recordings with the hard braking 88 s in, one parking span.
code, out, err = run("drives", demo)
check(code == 0, "drives exits 0 (%d: %s)" % (code, err.strip()))
drives = json.loads(out)["drives"]
check([(d["kind"], len(d["recordings"])) for d in drives] == [("driving", 6), ("parking", 2)],
      "one drive and one parking span: %s" % [(d["kind"], len(d["recordings"])) for d in drives])
drive = drives[0]
check((drive["start"], drive["end"]) == ("2024-06-12T08:15:02", "2024-06-12T08:18:02"),
      "the drive's start and end: %s - %s" % (drive["start"], drive["end"]))
incidents = drive["incidents"]
check(len(incidents) == 1 and incidents[0]["kind"] == "harsh_braking" and
      incidents[0]["time"] in ("2024-06-12T08:16:30", "2024-06-12T08:16:31") and
      incidents[0]["peak_g"] > 0.9 and incidents[0]["camera_event"] is True,
      "the braking, marked by the camera's event recording: %s" % incidents)

# Nothing readable: 1, with an empty but valid document; usage errors: 2; --help: 0.
with tempfile.TemporaryDirectory() as folder:
    with open(os.path.join(folder, "20240612_081502_INF_1.mp4"), "w") as broken:
        broken.write("not a recording\n" * 40)
    code, out, _ = run("info", folder)
    doc = json.loads(out)
    check(code == 1 and len(doc["recordings"]) == 1 and doc["recordings"][0]["problem"],
          "an unreadable recording: exit 1 and its problem named (%d, %s)" % (code, doc))
    code, out, _ = run("drives", folder)
    check(code == 1 and json.loads(out) == {"drives": []}, "no drive: exit 1 (%d)" % code)
for args in (["frobnicate", demo], ["info"], ["info", "-j", "0", demo], ["drives", "--bogus", demo], []):
    code, _, err = run(*args)
    check(code == 2 and err.strip() != "", "usage error %s: exit 2 with a message (%d)" % (args, code))
for args in (["--help"], ["info", "--help"], ["drives", "--help"]):
    code, out, _ = run(*args)
    check(code == 0 and "Usage: tavoric-cli" in out, "%s: exit 0 with usage" % args)

if failures:
    sys.exit("%d checks failed" % len(failures))
