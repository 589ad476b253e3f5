#!/usr/bin/env python3
"""Makes dash-camera recordings with the ffmpeg program.

    make_recordings.py demo  DIR          the demo set the viewer starts on
    make_recordings.py test  DIR          tiny media and bad files for the test suite
    make_recordings.py bench DIR [-n N]   media for the benchmarks in bench/
    make_recordings.py playback DIR       one colour per channel (and small bar-coded channels
                                          in DIR/steps), for the player's tests
    make_recordings.py sync DIR           three 1080p channels whose frames carry their number
    make_recordings.py export DIR         a one-minute recording of three camera files at a
                                          camera's sizes and bit rates, for the export benchmark
    make_recordings.py foreign DIR        other cameras' telemetry layouts and names
                                          (tools/foreign_sets.py)
    make_recordings.py foreign-bench DIR  a three-minute recording per layout of other cameras

Telemetry is written as a timed-text track in the syntax of docs/telemetry-format.md. A
folder that already holds the output of the same version of this script is left alone.
"""

import argparse
import concurrent.futures
import hashlib
import math
import os
import random
import shutil
import subprocess
import sys
import tempfile
from datetime import datetime, timezone

import foreign_sets

PERIOD_MS = 100  # one telemetry reading every 100 ms
FFMPEG = os.environ.get("FFMPEG", "ffmpeg")
X264 = ["-c:v", "libx264", "-preset", "ultrafast", "-pix_fmt", "yuv420p"]
TELEMETRY_TRACK = ["-c:s", "mov_text", "-metadata:s:s:0", "handler_name=Telemetry",
                   "-disposition:s:0", "0"]
FONT = "Noto Sans"

# --- telemetry ---------------------------------------------------------------------------

class Reading:
    """One telemetry reading. lat/lon None means no GPS fix."""

    def __init__(self, gx, gy, gz, lat=None, lon=None, speed=None, fix=None, sats=None):
        self.g = (gx, gy, gz)
        self.lat, self.lon, self.speed = lat, lon, speed
        self.fix, self.sats = fix, sats

    def text(self):
        parts = ["G=%+.3f,%+.3f,%+.3f" % self.g]
        if self.lat is None:
            parts.append("GPS=-")
            parts.append("FIX=0,0")
        else:
            parts.append("GPS=%.6f,%.6f" % (self.lat, self.lon))
            parts.append("SPD=%.1f" % self.speed)
            parts.append("FIX=%d,%d" % (self.fix, self.sats))
        return " ".join(parts)


def srt_time(ms):
    return "%02d:%02d:%02d,%03d" % (ms // 3600000, ms // 60000 % 60, ms // 1000 % 60, ms % 1000)


def write_srt(path, texts, period_ms=PERIOD_MS):
    """One cue per sample, back to back from 0; a None leaves a gap instead of a sample."""
    with open(path, "w", encoding="ascii") as out:
        for i, text in enumerate(texts):
            if text is None:
                continue
            start = i * period_ms
            out.write("%d\n%s --> %s\n%s\n\n" % (i + 1, srt_time(start), srt_time(start + period_ms), text))

# A drive of a few kilometres through town, as (latitude, longitude) corners of the road.
ROUTE = [
    (37.485344, 127.116230), (37.485210, 127.121800), (37.487600, 127.122150),
    (37.490100, 127.122600), (37.491200, 127.115800), (37.489300, 127.113700),
    (37.487000, 127.111200), (37.485900, 127.113500), (37.485344, 127.116230),
]
# Target speed (km/h) over the drive's time (s); straight lines between the points.
SPEED_PLAN = [
    (0, 0), (3, 0), (14, 48), (30, 52), (36, 30), (40, 38), (55, 60), (70, 62), (80, 55),
    (88.0, 56), (89.6, 0), (94, 0), (100, 25), (115, 50), (128, 45), (135, 20), (140, 35),
    (160, 50), (175, 40), (180, 30), (240, 45),
]
TUNNEL = (55.0, 70.0)       # no GPS fix in here
HARD_BRAKE_AT = 88.0        # the event recording's reason
METRES_PER_DEG_LAT = 111320.0


class Drive:
    """Simulates the demo drive: position along ROUTE, speed, G-sensor, GPS quality."""

    def __init__(self, seconds, seed=20240612):
        self.rng = random.Random(seed)
        cos_lat = math.cos(math.radians(ROUTE[0][0]))
        self.points = [((lon - ROUTE[0][1]) * METRES_PER_DEG_LAT * cos_lat,
                        (lat - ROUTE[0][0]) * METRES_PER_DEG_LAT) for lat, lon in ROUTE]
        self.cos_lat = cos_lat
        self.cumulative = [0.0]
        for a, b in zip(self.points, self.points[1:]):
            self.cumulative.append(self.cumulative[-1] + math.dist(a, b))
        steps = int(seconds * 1000 / PERIOD_MS) + 1
        self.speeds = [self.plan_speed(i * PERIOD_MS / 1000) for i in range(steps)]
        self.distance = [0.0]
        for i in range(1, steps):
            mean = (self.speeds[i - 1] + self.speeds[i]) / 2 / 3.6
            self.distance.append(self.distance[-1] + mean * PERIOD_MS / 1000)

    @staticmethod
    def plan_speed(t):
        for (t0, v0), (t1, v1) in zip(SPEED_PLAN, SPEED_PLAN[1:]):
            if t0 <= t <= t1:
                return v0 + (v1 - v0) * (t - t0) / (t1 - t0) if t1 > t0 else v1
        return SPEED_PLAN[-1][1]

    def position(self, s):
        s %= self.cumulative[-1]
        for i in range(len(self.points) - 1):
            if s <= self.cumulative[i + 1]:
                (x0, y0), (x1, y1) = self.points[i], self.points[i + 1]
                f = (s - self.cumulative[i]) / (self.cumulative[i + 1] - self.cumulative[i])
                return x0 + (x1 - x0) * f, y0 + (y1 - y0) * f
        return self.points[-1]

    def heading(self, s):
        (x0, y0), (x1, y1) = self.position(s - 0.5), self.position(s + 0.5)
        return math.atan2(y1 - y0, x1 - x0)

    def reading(self, i):
        t = i * PERIOD_MS / 1000
        n = len(self.speeds) - 1
        v = self.speeds[i] / 3.6
        dv = (self.speeds[min(i + 1, n)] - self.speeds[max(i - 1, 0)]) / 3.6
        dt = (min(i + 1, n) - max(i - 1, 0)) * PERIOD_MS / 1000
        forward = dv / dt / 9.81
        # The nose dives as the brakes bite: a short extra peak on top of the deceleration.
        if HARD_BRAKE_AT <= t < HARD_BRAKE_AT + 0.4:
            forward -= 0.35 * math.sin(math.pi * (t - HARD_BRAKE_AT) / 0.4)
        s = self.distance[i]
        turn = self.heading(s + 12.5) - self.heading(s - 12.5)
        turn = (turn + math.pi) % (2 * math.pi) - math.pi
        lateral = max(-0.45, min(0.45, v * v * turn / 25.0 / 9.81))
        noise = 0.004 + 0.004 * min(v, 15) / 15
        gx = forward + self.rng.gauss(0, noise)
        gy = -lateral + self.rng.gauss(0, noise)
        gz = 1.0 + self.rng.gauss(0, 2 * noise)
        if TUNNEL[0] <= t < TUNNEL[1]:
            return Reading(gx, gy, gz)
        x, y = self.position(s)
        lat = ROUTE[0][0] + y / METRES_PER_DEG_LAT + self.rng.gauss(0, 0.000002)
        lon = ROUTE[0][1] + x / (METRES_PER_DEG_LAT * self.cos_lat) + self.rng.gauss(0, 0.000002)
        # Coming out of the tunnel the receiver needs a few seconds for a full fix.
        regained = TUNNEL[1] <= t < TUNNEL[1] + 3
        return Reading(gx, gy, gz, lat, lon, self.speeds[i], 1 if regained else 2,
                       1 if regained else 3)

    def texts(self, start_s, seconds):
        first = int(start_s * 1000 / PERIOD_MS)
        return [self.reading(first + k).text() for k in range(int(seconds * 1000 / PERIOD_MS))]

# --- pictures ----------------------------------------------------------------------------

def run(args, **kwargs):
    subprocess.run([FFMPEG, "-nostdin", "-hide_banner", "-loglevel", "error", "-y"] + args,
                   check=True, **kwargs)


def clock_text(epoch):
    return r"%{pts\:gmtime\:" + str(epoch) + r"\:%Y-%m-%d %H\\\:%M\\\:%S}"


def epoch_of(name):
    stamp = datetime.strptime(name[:15], "%Y%m%d_%H%M%S").replace(tzinfo=timezone.utc)
    return int(stamp.timestamp())


def road_picture(path, width, height):
    """A still of the road ahead: sky, grass and a widening road with edge lines."""
    horizon = int(height * 0.42)
    road = "(Y-%d)/%d" % (horizon, height - horizon)      # 0 at the horizon, 1 at the bottom
    half = "(W*0.02+W*0.56*%s)" % road                      # half the road's width
    dx = "abs(X-W/2)"
    sky = "lt(Y,%d)" % horizon
    edge = "lt(abs(%s-%s*0.93),W*0.004+W*0.006*%s)" % (dx, half, road)
    on_road = "lt(%s,%s)" % (dx, half)

    def channel(sky_v, road_v, edge_v, grass_v):
        return "if(%s,%s,if(%s,%s,if(%s,%s,%s)))" % (
            sky, sky_v, edge, edge_v, on_road, road_v, grass_v)

    grass_shade = "+14*sin(X/7)*sin(Y/5)"
    expr = {
        "r": channel("120+60*Y/%d" % horizon, "92", "235", "74" + grass_shade),
        "g": channel("170+50*Y/%d" % horizon, "98", "235", "118" + grass_shade),
        "b": channel("225+20*Y/%d" % horizon, "106", "225", "62" + grass_shade),
    }
    run(["-f", "lavfi", "-i", "color=c=black:s=%dx%d:d=1,format=rgb24" % (width, height),
         "-vf", "geq=r='%s':g='%s':b='%s'" % (expr["r"], expr["g"], expr["b"]),
         "-frames:v", "1", path])


# The passing lane marks repeat every 1/0.9 s and the trees every 1/0.45 s: 200 frames at
# 30 fps (6 2/3 s) hold whole periods of both, so a clip of them loops without a seam.
ROAD_LOOP_FRAMES = 200


def road_filter(width, height, towards_camera=True):
    """Filter graph from the road still [0:v] to [road]: lane marks and trees passing by."""
    horizon = int(height * 0.42)
    depth = height - horizon
    marks, trees = 4, 3
    lines = ["color=c=white:s=%dx%d:r=30[mark]" % (max(2, width // 120), max(4, height // 18)),
             "color=c=0x2f5a2a:s=%dx%d:r=30[tree]" % (max(3, width // 40), max(6, height // 7)),
             "[mark]split=%d%s" % (marks, "".join("[m%d]" % k for k in range(marks))),
             "[tree]split=%d%s" % (2 * trees, "".join("[t%d]" % k for k in range(2 * trees))),
             "[0:v]fps=30[base]"]
    overlays = []
    for k in range(marks):
        f = "mod(t*0.9+%d/%d,1)" % (k, marks)
        if not towards_camera:
            f = "(1-%s)" % f
        overlays.append(("[m%d]" % k, "(W-w)/2", "%d+%d*%s*%s-h/2" % (horizon, depth, f, f)))
    for k in range(2 * trees):
        f = "mod(t*0.45+%d/%d,1)" % (k // 2, trees)
        if not towards_camera:
            f = "(1-%s)" % f
        side = "-" if k % 2 == 0 else "+"
        overlays.append(("[t%d]" % k, "W/2%s(W*0.7*%s*%s)-w/2" % (side, f, f),
                         "%d+%d*%s*%s-h" % (horizon, depth, f, f)))
    current = "base"
    for k, (source, x, y) in enumerate(overlays):
        lines.append("[%s]%soverlay=x='%s':y='%s':shortest=1[o%d]" % (current, source, x, y, k))
        current = "o%d" % k
    lines.append("[%s]null[road]" % current)
    return ";".join(lines)


def caption_filter(source, height, label, epoch, output):
    """From the road pictures [source] to [output]: the channel name and the recording clock,
    the clock counting from the file's first frame."""
    size = max(8, height // 22)
    box = "fontcolor=white:box=1:boxcolor=black@0.45:boxborderw=4"
    return ("[%s]setpts=N/30/TB,drawtext=font=%s:fontsize=%d:%s:x=10:y=10:text='%s',"
            "drawtext=font=%s:fontsize=%d:%s:x=w-tw-10:y=h-th-10:text='%s',format=yuv420p[%s]"
            % (source, FONT, size, box, label, FONT, size, box, clock_text(epoch), output))


class Pictures:
    """Caches the road stills and the looping road clips by size in a scratch folder."""

    def __init__(self, scratch):
        self.scratch = scratch
        self.made = {}

    def still(self, width, height):
        key = ("still", width, height)
        if key not in self.made:
            path = os.path.join(self.scratch, "road_%dx%d.png" % (width, height))
            road_picture(path, width, height)
            self.made[key] = path
        return self.made[key]

    def road(self, width, height, moving=True, towards_camera=True):
        """Input arguments of an endless road: the passing road as a clip played in a loop,
        or the still road of a parked car."""
        still = self.still(width, height)
        if not moving:
            return ["-loop", "1", "-framerate", "30", "-i", still]
        key = ("loop", width, height, towards_camera)
        if key not in self.made:
            path = os.path.join(self.scratch, "road_%dx%d_%s.mkv" %
                                (width, height, "on" if towards_camera else "off"))
            run(["-loop", "1", "-framerate", "30", "-i", still, "-filter_complex",
                 road_filter(width, height, towards_camera), "-map", "[road]",
                 "-frames:v", str(ROAD_LOOP_FRAMES), "-c:v", "libx264", "-preset", "ultrafast",
                 "-qp", "0", path])
            self.made[key] = path
        return ["-stream_loop", "-1", "-i", self.made[key]]


CHANNELS = [("FRONT", 1280, 720, True), ("REAR 1", 640, 360, False), ("REAR 2", 640, 360, False)]


def engine_noise(seconds):
    return ["-f", "lavfi", "-t", str(seconds), "-i",
            "anoisesrc=c=brown:a=0.06:r=44100:seed=7,lowpass=f=500,volume=2"]


def make_channel_file(pictures, path, channel, seconds, telemetry, moving=True, audio=True,
                      quality=("-crf", "30")):
    label, width, height, forward = CHANNELS[channel]
    name = os.path.basename(path)
    args = pictures.road(width, height, moving, forward)
    inputs = 1
    audio_input = srt_input = None
    if audio:
        args += engine_noise(seconds)
        audio_input, inputs = inputs, inputs + 1
    if telemetry is not None:
        srt = os.path.join(pictures.scratch, name + ".srt")
        write_srt(srt, telemetry)
        args += ["-i", srt]
        srt_input, inputs = inputs, inputs + 1
    args += ["-filter_complex", caption_filter("0:v", height, label, epoch_of(name), "v"),
             "-map", "[v]"]
    if audio_input is not None:
        args += ["-map", "%d:a" % audio_input, "-c:a", "aac", "-b:a", "64k", "-ac", "1"]
    if srt_input is not None:
        args += ["-map", "%d:s" % srt_input] + TELEMETRY_TRACK
    args += X264 + list(quality) + ["-g", "30", "-t", str(seconds), path]
    run(args)


def make_single_file(pictures, path, seconds, telemetry):
    """All three cameras as three video tracks of one MP4, one audio track, telemetry."""
    name = os.path.basename(path)
    args = []
    graphs = []
    for channel, (label, width, height, forward) in enumerate(CHANNELS):
        args += pictures.road(width, height, True, forward)
        graphs.append(caption_filter("%d:v" % channel, height, label, epoch_of(name),
                                     "c%d" % channel))
    args += engine_noise(seconds)
    srt = os.path.join(pictures.scratch, name + ".srt")
    write_srt(srt, telemetry)
    args += ["-i", srt, "-filter_complex", ";".join(graphs)]
    for channel in range(3):
        args += ["-map", "[c%d]" % channel]
    args += ["-map", "3:a", "-map", "4:s", "-c:a", "aac", "-b:a", "64k", "-ac", "1"]
    args += TELEMETRY_TRACK + X264 + ["-crf", "30", "-g", "30", "-t", str(seconds), path]
    run(args)


def make_avi(pictures, path, seconds):
    """An AVI recording: MPEG-4 part 2 video and PCM sound, as older cameras write."""
    label, width, height, forward = CHANNELS[0]
    args = pictures.road(width, height, False) + engine_noise(seconds)
    args += ["-filter_complex", caption_filter("0:v", height, label,
                                               epoch_of(os.path.basename(path)), "v"),
             "-map", "[v]", "-map", "1:a", "-c:v", "mpeg4", "-q:v", "6", "-c:a", "pcm_s16le",
             "-ar", "22050", "-ac", "1", "-t", str(seconds), path]
    run(args)

# --- the three sets ----------------------------------------------------------------------

def make_demo(folder, scratch):
    """Eight recordings of one morning: a continuous three-minute drive cut into the
    camera's segments, then two parking recordings."""
    pictures = Pictures(scratch)
    drive = Drive(180)
    # (name stem, channels or "single", start within the drive (s), length (s))
    drive_recordings = [
        ("20240612_081502_INF", 3, 0, 40),
        ("20240612_081542_INF", 3, 40, 40),     # through the tunnel: no fix for 15 s
        ("20240612_081622_EVT", 3, 80, 20),     # hard braking 8 s in
        ("20240612_081642_INF", 2, 100, 30),    # front and one rear camera
        ("20240612_081712_USR", 1, 130, 20),    # front camera only
        ("20240612_081732_INF", "single", 150, 30),
    ]
    # The road clips first (the files share them), then the files two or more at a time.
    for _, width, height, forward in CHANNELS:
        pictures.road(width, height, True, forward)
    pictures.still(*CHANNELS[0][1:3])
    jobs = []
    for stem, channels, start, seconds in drive_recordings:
        texts = drive.texts(start, seconds)
        if channels == "single":
            path = os.path.join(folder, stem + "_4.mp4")
            jobs.append((path, make_single_file, (pictures, path, seconds, texts), {}))
            continue
        for channel in range(channels):
            path = os.path.join(folder, "%s_%d.mp4" % (stem, channel + 1))
            jobs.append((path, make_channel_file, (pictures, path, channel, seconds, texts),
                         {"audio": channel == 0}))
    # Parked: no telemetry at all, then an AVI from the parking monitor.
    path = os.path.join(folder, "20240612_123000_PRK_1.mp4")
    jobs.append((path, make_channel_file, (pictures, path, 0, 20, None), {"moving": False}))
    path = os.path.join(folder, "20240612_123100_PRK_1.avi")
    jobs.append((path, make_avi, (pictures, path, 20), {}))

    def make(job):
        path, function, args, kwargs = job
        function(*args, **kwargs)
        print("  " + os.path.basename(path), flush=True)
    with concurrent.futures.ThreadPoolExecutor(max(2, os.cpu_count() or 1)) as pool:
        for _ in pool.map(make, jobs):  # raises the first failure
            pass


def test_reading(i):
    """The test pattern: every value follows from the sample number, so tests can name
    exact numbers. Samples 20-24 have no fix; sample 12 is a hard-braking spike."""
    gx = -1.25 if i == 12 else 0.01 * i
    if 20 <= i <= 24:
        return Reading(gx, -0.02 * i, 1.0 + 0.001 * i)
    weak = i == 30
    return Reading(gx, -0.02 * i, 1.0 + 0.001 * i, 37.4853 + 0.0001 * i, 127.1162 + 0.0002 * i,
                   1.5 * i, 1 if weak else 2, 1 if weak else 3)

# Malformed samples among good ones; the good ones carry G-sensor X = sample number / 100.
MALFORMED = {
    2: "garbage text",
    4: "G=0.1,0.2 GPS=-",
    6: "G=0.1,0.2,0.3 GPS=91.0,127.0",
    7: "G=1e3,0,0 GPS=-",
    9: "GPS=37.0,127.0 SPD=3",
    10: "G=0,0,0 G=0,0,0 GPS=-",
    12: "G=nan,0,0 GPS=-",
    14: "G=0,0,0 GPS=37.1,127.1 FIX=4,0",
}


def tiny_video(width=160, height=90, rate=10):
    return ["-f", "lavfi", "-i", "testsrc2=s=%dx%d:r=%d" % (width, height, rate)]


def make_test(folder, scratch):
    def path(name):
        return os.path.join(folder, name)

    def srt(name, texts, period_ms=PERIOD_MS):
        file = os.path.join(scratch, name + ".srt")
        write_srt(file, texts, period_ms)
        return file

    pattern = [test_reading(i).text() for i in range(40)]
    quick = X264 + ["-g", "10"]
    tone = ["-f", "lavfi", "-i", "sine=f=440:r=8000"]

    # A split recording: the front file carries the telemetry; the rear files are plain.
    run(tiny_video() + tone + ["-i", srt("front", pattern), "-map", "0:v", "-map", "1:a",
                               "-map", "2:s", "-c:a", "aac", "-b:a", "16k"] + TELEMETRY_TRACK +
        quick + ["-t", "4", path("20240101_120000_INF_1.mp4")])
    for channel in (2, 3):
        run(tiny_video() + quick + ["-t", "4", path("20240101_120000_INF_%d.mp4" % channel)])
    # The same recording with the header first, for a file cut inside its media data.
    run(["-i", path("20240101_120000_INF_1.mp4"), "-map", "0", "-c", "copy",
         "-movflags", "+faststart", path("faststart.mp4")])

    # All cameras in one file: three video tracks, one audio track, telemetry.
    run(tiny_video() + tiny_video(96, 54) + tiny_video(96, 54) + tone +
        ["-i", srt("single", pattern[:30]), "-map", "0:v", "-map", "1:v", "-map", "2:v",
         "-map", "3:a", "-map", "4:s", "-c:a", "aac", "-b:a", "16k"] + TELEMETRY_TRACK + quick +
        ["-t", "3", path("20240101_120100_EVT_4.mp4")])

    # No telemetry: an AVI and an MP4.
    run(tiny_video() + tone + ["-c:v", "mpeg4", "-c:a", "pcm_s16le", "-t", "3",
                               path("20240101_120200_PRK_1.avi")])
    run(tiny_video() + quick + ["-t", "3", path("20240101_120300_USR_1.mp4")])

    # Readings as an ordinary subtitle track: not telemetry, whatever the text says.
    run(tiny_video() + ["-i", srt("subtitles", pattern[:10]), "-map", "0:v", "-map", "1:s",
                        "-c:s", "mov_text"] + quick + ["-t", "1", path("subtitles.mp4")])

    # Malformed samples among good ones.
    texts = [MALFORMED.get(i, "G=%.2f,0,1 GPS=37.5,127.1 SPD=10" % (i / 100)) for i in range(20)]
    texts[11] += " ALT=35.2"  # unknown fields are skipped, the reading kept
    run(tiny_video() + ["-i", srt("malformed", texts), "-map", "0:v", "-map", "1:s"] +
        TELEMETRY_TRACK + quick + ["-t", "2", path("malformed.mp4")])

    # A gap in the track (no readings from 0.5 to 0.7 s): the muxer fills it with an empty
    # sample, which is not a reading.
    texts = ["G=%.2f,0,1 GPS=-" % (i / 100) for i in range(10)]
    texts[5] = texts[6] = None
    run(tiny_video() + ["-i", srt("gap", texts), "-map", "0:v", "-map", "1:s"] +
        TELEMETRY_TRACK + quick + ["-t", "1", path("gap.mp4")])

    # Lengths: 65:07, 101:05 (one picture a second) and 59.999 s (telemetry outlasting the
    # video by 999 ms).
    for seconds, name in ((3907, "length_65m07s.mp4"), (6065, "length_101m05s.mp4")):
        run(["-f", "lavfi", "-i", "color=c=gray:s=32x32:r=1:d=%d" % seconds] + X264 +
            ["-g", "600", "-bf", "0", path(name)])
    run(["-f", "lavfi", "-i", "color=c=gray:s=32x32:r=1:d=59", "-i",
         srt("length", ["G=0,0,1 GPS=-"], 59999), "-map", "0:v", "-map", "1:s"] +
        TELEMETRY_TRACK + X264 + ["-bf", "0", path("length_59999ms.mp4")])

    # A file with sound only.
    run(tone + ["-c:a", "aac", "-b:a", "16k", "-t", "2", path("audio_only.mp4")])

    # Bad files.
    open(path("empty.mp4"), "wb").close()
    with open(path("20240101_120000_INF_1.mp4"), "rb") as source:
        data = source.read()
    with open(path("truncated_moov.mp4"), "wb") as out:
        out.write(data[: len(data) // 2])  # the header is at the end: cut off
    with open(path("faststart.mp4"), "rb") as source:
        data = source.read()
    with open(path("truncated_data.mp4"), "wb") as out:
        out.write(data[: len(data) * 6 // 10])
    with open(path("not_video.mp4"), "w", encoding="ascii") as out:
        out.write("These are notes, not a recording.\n" * 20)
    with open(path("random.mp4"), "wb") as out:
        out.write(random.Random(5).randbytes(65536))
    with open(path("no_streams.mp4"), "wb") as out:
        out.write(no_streams_mp4())
    os.makedirs(path("folder.mp4"), exist_ok=True)


def box(kind, payload):
    return (8 + len(payload)).to_bytes(4, "big") + kind + payload


def no_streams_mp4():
    """A well-formed MP4 header that declares no tracks."""
    mvhd = bytes(4) + bytes(8) + (1000).to_bytes(4, "big") + (5000).to_bytes(4, "big") + \
        (0x00010000).to_bytes(4, "big") + (0x0100).to_bytes(2, "big") + bytes(10) + \
        b"".join(v.to_bytes(4, "big") for v in (0x10000, 0, 0, 0, 0x10000, 0, 0, 0, 0x40000000)) + \
        bytes(24) + (2).to_bytes(4, "big")
    return box(b"ftyp", b"isom" + (512).to_bytes(4, "big") + b"isommp41") + \
        box(b"moov", box(b"mvhd", mvhd))


def make_bench(folder, scratch, copies):
    """Copies for the length benchmark and a three-minute drive for the telemetry benchmark.
    The copies have the sample tables of a one-minute 30 fps camera file with 48 kHz sound
    and 10 Hz telemetry, but near-empty pictures, so that thousands of them stay small; the
    header, which is all a length reader reads, is as large as a real camera file's."""
    drive = Drive(180)
    one_minute = os.path.join(scratch, "one_minute.mp4")
    minute_srt = os.path.join(scratch, "minute.srt")
    write_srt(minute_srt, drive.texts(0, 60))
    run(["-f", "lavfi", "-i", "color=c=gray:s=64x36:r=30:d=60",
         "-f", "lavfi", "-t", "60", "-i", "anullsrc=r=48000:cl=mono", "-i", minute_srt,
         "-map", "0:v", "-map", "1:a", "-map", "2:s", "-c:a", "aac", "-b:a", "32k"] +
        TELEMETRY_TRACK + X264 + ["-g", "30", one_minute])
    lengths = os.path.join(folder, "lengths")
    os.makedirs(lengths)
    for k in range(copies):
        # One recording a minute, a day's worth per month field.
        name = "2024%02d13_%02d%02d00_INF_1.mp4" % (1 + k // 1440 % 12, k // 60 % 24, k % 60)
        shutil.copyfile(one_minute, os.path.join(lengths, name))
    path = os.path.join(folder, "20240612_100000_INF_1.mp4")
    make_channel_file(Pictures(scratch), path, 0, 180, drive.texts(0, 180),
                      quality=("-crf", "28"))

# --- the player's sets ----------------------------------------------------------------------

def coloured_channel(colour, seconds, path):
    """A channel filled with one colour, its frame number in a left corner: a snapshot tells
    which channel a player shows and whether a frame step moved on, and a mirrored picture
    has the number on the right. The front camera's number is at the top, the rear cameras'
    at the bottom, where the scenes' own buttons and panels do not cover it."""
    y = "10" if colour == "red" else "h-th-10"
    run(["-f", "lavfi", "-i", "color=c=%s:s=320x180:r=30:d=%d" % (colour, seconds),
         "-vf", "drawtext=font='%s':text='%%{n}':fontsize=40:fontcolor=white:x=10:y=%s"
         % (FONT, y)] + X264 + ["-g", "15", path])


def make_playback(folder, scratch):
    def path(name):
        return os.path.join(folder, name)

    colours = ("red", "lime", "blue")
    for channel, colour in enumerate(colours, 1):
        coloured_channel(colour, 5, path("20240301_090000_INF_%d.mp4" % channel))
    # Front and third camera only: the third file must play in the second player.
    coloured_channel("red", 4, path("20240301_091000_EVT_1.mp4"))
    coloured_channel("blue", 4, path("20240301_091000_EVT_3.mp4"))
    # All three cameras as the tracks of one file, with sound.
    parts = []
    for colour in colours:
        parts.append(os.path.join(scratch, colour + ".mp4"))
        coloured_channel(colour, 4, parts[-1])
    run(["-i", parts[0], "-i", parts[1], "-i", parts[2], "-f", "lavfi", "-i", "sine=d=4",
         "-map", "0:v", "-map", "1:v", "-map", "2:v", "-map", "3:a", "-c:v", "copy",
         "-c:a", "aac", "-shortest", path("20240301_092000_USR_4.mp4")])
    # A drive for playing across recordings, in a folder of its own: four-second recordings
    # one after the other, each recording's cameras in colours of their own (a screen grab
    # tells which recording plays), one in the middle that cannot be read; then a recording
    # after a gap, and a parking recording.
    drive = path("drive")
    os.makedirs(drive)
    palette = (("red", "lime", "blue"), ("yellow", "cyan", "magenta"), None,
               ("white", "orange", "purple"))
    for k, colours in enumerate(palette):
        stem = os.path.join(drive, "20240301_0930%02d_INF" % (k * 4))
        if colours is None:
            with open(stem + "_1.mp4", "wb") as broken:
                broken.write(b"not a recording\n" * 64)
            continue
        for channel, colour in enumerate(colours, 1):
            coloured_channel(colour, 4, "%s_%d.mp4" % (stem, channel))
    coloured_channel("red", 4, os.path.join(drive, "20240301_093200_INF_1.mp4"))
    coloured_channel("red", 4, os.path.join(drive, "20240301_094000_PRK_1.mp4"))
    # Small bar-coded channels for checks of the channels' step, in a folder of their own so
    # that they are not among the recordings a test lists.
    os.makedirs(path("steps"))
    bar_coded_channels(path("steps"), 320, 180, 20, audio=True)


def bar_coded_channels(folder, width, height, seconds, audio=False):
    """Three channels at 30 fps whose top rows (64 of 1080) carry the frame number as 16
    black or white bars (bit 0 at the left), so a screen grab tells which frame each scene
    shows. With audio, the front channel has sound, as a camera's does."""
    bars = "geq=lum='255*mod(floor(N/pow(2,floor(X*16/W))),2)':cb=128:cr=128"
    jobs = []
    for channel in (1, 2, 3):
        sound = ["-f", "lavfi", "-i", "sine=d=%d" % seconds] if audio and channel == 1 else []
        jobs.append(subprocess.Popen(
            [FFMPEG, "-nostdin", "-v", "error", "-y",
             "-f", "lavfi", "-i", "testsrc2=s=%dx%d:r=30:d=%d" % (width, height, seconds),
             "-f", "lavfi", "-i", "nullsrc=s=%dx%d:r=30:d=%d" % (width, max(8, height * 64 // 1080),
                                                                 seconds)] + sound +
            ["-filter_complex", "[1]%s[bar];[0][bar]overlay=0:0" % bars,
             "-c:v", "libx264", "-preset", "veryfast", "-pix_fmt", "yuv420p", "-g", "30"] +
            (["-c:a", "aac", "-shortest"] if sound else []) +
            [os.path.join(folder, "20240701_090000_INF_%d.mp4" % channel)]))
    for job in jobs:
        if job.wait() != 0:
            sys.exit("make_recordings: ffmpeg failed making the bar-coded recordings")


def make_sync(folder, scratch):
    """Three 1080p channels of 25 s, their frame numbers as bar codes."""
    bar_coded_channels(folder, 1920, 1080, 25)


def make_export(folder, scratch):
    """One minute of a front camera at 1080p (8 Mbit/s, with sound and telemetry) and two
    rear cameras at 720p (4 Mbit/s): what a copy of a real recording reads and writes."""
    drive = Drive(60)
    srt = os.path.join(scratch, "minute.srt")
    write_srt(srt, drive.texts(0, 60))
    for channel, size, rate in ((1, "1920x1080", "8M"), (2, "1280x720", "4M"),
                                (3, "1280x720", "4M")):
        sound = ["-f", "lavfi", "-t", "60", "-i", "sine=f=220:r=48000",
                 "-i", srt] if channel == 1 else []
        maps = ["-map", "0:v", "-map", "1:a", "-map", "2:s", "-c:a", "aac", "-b:a", "64k"] + \
            TELEMETRY_TRACK if channel == 1 else []
        run(["-f", "lavfi", "-i", "testsrc2=s=%s:r=30:d=60" % size] + sound + maps + X264 +
            ["-b:v", rate, "-g", "30",
             os.path.join(folder, "20240612_120000_INF_%d.mp4" % channel)])


# --- entry -------------------------------------------------------------------------------

def script_version():
    digest = hashlib.sha1()
    here = os.path.dirname(os.path.abspath(__file__))
    for name in (os.path.basename(__file__), "foreign_sets.py", "mp4_boxes.py",
                 "telemetry_layouts.py"):
        with open(os.path.join(here, name), "rb") as source:
            digest.update(source.read())
    return digest.hexdigest()


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("set", choices=["demo", "test", "bench", "playback", "sync", "export",
                                        "foreign", "foreign-bench"])
    parser.add_argument("folder")
    parser.add_argument("-n", "--copies", type=int, default=2000,
                        help="bench: recordings for the length benchmark")
    options = parser.parse_args()

    folder = os.path.abspath(options.folder)
    stamp = os.path.join(folder, ".made-by")
    version = "%s %s %d\n" % (script_version(), options.set, options.copies)
    if os.path.exists(stamp) and open(stamp).read() == version:
        return 0
    if shutil.which(FFMPEG) is None:
        sys.exit("make_recordings: the ffmpeg program is needed")
    if os.path.isdir(folder):
        # Only a folder this script made is replaced; anything else is left alone.
        if not os.path.exists(stamp) and os.listdir(folder):
            sys.exit("make_recordings: %s is not empty and was not made here" % folder)
        shutil.rmtree(folder)
    os.makedirs(folder)
    with open(stamp, "w") as out:
        out.write("incomplete\n")  # marks the folder as ours until it is complete
    print("Making the %s recordings in %s" % (options.set, folder), flush=True)
    with tempfile.TemporaryDirectory(prefix="recordings-") as scratch:
        if options.set == "demo":
            make_demo(folder, scratch)
        elif options.set == "test":
            make_test(folder, scratch)
        elif options.set == "playback":
            make_playback(folder, scratch)
        elif options.set == "sync":
            make_sync(folder, scratch)
        elif options.set == "export":
            make_export(folder, scratch)
        elif options.set == "foreign":
            foreign_sets.make_foreign(sys.modules[__name__], folder, scratch)
        elif options.set == "foreign-bench":
            foreign_sets.make_foreign_bench(sys.modules[__name__], folder, scratch)
        else:
            make_bench(folder, scratch, options.copies)
    with open(stamp, "w") as out:
        out.write(version)
    return 0


if __name__ == "__main__":
    sys.exit(main())
