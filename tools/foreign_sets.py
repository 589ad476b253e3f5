"""Recordings of other cameras, for the tests and the benchmarks.

    foreign  DIR   telemetry/: one small file per layout of docs/telemetry-format.md, and
                   files that look like one layout but are not, or are damaged;
                   cameras/: a folder of recordings named by other cameras' schemes, with
                   their channels, types and telemetry, for the list and the player
    foreign-bench DIR   a three-minute recording per layout

make_recordings.py calls these with itself as `kit` (ffmpeg, the road pictures, the drive).
"""

import os
import random
import struct
from datetime import datetime, timedelta, timezone

import mp4_boxes as mb
import telemetry_layouts as tl

START = datetime(2024, 6, 12, 8, 15, 2, tzinfo=timezone.utc)
GPMF_HANDLER = b"GoPro MET"


# --- readings --------------------------------------------------------------------------------

def pattern_fix(i, rate, valid=True):
    """The test pattern: every value follows from the reading's number."""
    t = i / rate
    return tl.Fix(t, START + timedelta(seconds=t), 37.4853 + 0.0001 * i, 127.1162 + 0.0002 * i,
                  1.5 * i, (10 * i) % 360, 30 + i, valid=valid)


def pattern_accel(i, rate):
    return tl.Accel(i / rate, 0.01 * i, -0.02 * i, 1 + 0.001 * i)


def drive_fixes(drive, start_s, seconds, rate, utc0):
    """The demo drive's GPS at rate (1 or 10 per second) from start_s on."""
    step = 10 // rate
    fixes = []
    first = int(start_s * 10)
    for k in range(0, int(seconds * 10), step):
        r = drive.reading(first + k)
        t = k / 10
        if r.lat is None:
            fixes.append(tl.Fix(t, utc0 + timedelta(seconds=t), 0.0, 0.0, 0.0, valid=False))
            continue
        fixes.append(tl.Fix(t, utc0 + timedelta(seconds=t), r.lat, r.lon, r.speed, alt=35.0,
                            sats=9 if r.sats >= 3 else 3))
    for a, b in zip(fixes, fixes[1:]):
        if a.valid and b.valid and (a.lat, a.lon) != (b.lat, b.lon):
            a.track = b.track = tl.bearing(a, b)
    return fixes


def drive_accels(drive, start_s, seconds, rate, seed=3):
    """The drive's G-sensor at rate per second: the 10 Hz trace with a sensor's noise."""
    rng = random.Random(seed)
    first = int(start_s * 10)
    out = []
    for k in range(int(seconds * rate)):
        r = drive.reading(first + k * 10 // rate)
        out.append(tl.Accel(k / rate, *(v + rng.gauss(0, 0.01) for v in r.g)))
    return out


# --- layouts into files --------------------------------------------------------------------

def per_second(items, seconds):
    return [[x for x in items if s <= x.t < s + 1] for s in range(seconds)]


def gpmf_track(fixes, accels, seconds, gps9=False, orientation=None):
    samples = [(tl.gpmf_sample(f, a, gps9=gps9, orientation=orientation), 1000)
               for f, a in zip(per_second(fixes, seconds), per_second(accels, seconds))]
    return mb.NewTrack(b"meta", tl.GPMD_SAMPLE_ENTRY, samples, 1000, GPMF_HANDLER)


def with_gpmf(base, target, fixes, accels, seconds, **options):
    moov_first = options.pop("moov_first", False)
    mb.rebuild(base, target, tracks=[gpmf_track(fixes, accels, seconds, **options)],
               moov_first=moov_first)


def with_freegps(base, target, blocks, listed, moov_first=False):
    mb.rebuild(base, target, blocks=[(b[0], b[1]) for b in blocks],
               moov_boxes=tl.gps_box if listed else None, moov_first=moov_first)


def nmea_samples(fixes, seconds):
    return ["".join(tl.rmc(f) + tl.gga(f) for f in group)
            for group in per_second(fixes, seconds)]


def with_nmea_text(kit, base, target, fixes, seconds, scratch):
    """A text track (.mov: QuickTime "text") or a subtitle track (.mp4: "tx3g")."""
    srt = os.path.join(scratch, os.path.basename(target) + ".srt")
    kit.write_srt(srt, [s.strip() for s in nmea_samples(fixes, seconds)], 1000)
    kit.run(["-i", base, "-i", srt, "-map", "0", "-map", "1", "-c", "copy", "-c:s", "mov_text",
             "-metadata:s:s:0", "handler_name=GPS", target])


def udat_box(fixes):
    return mb.box(b"udat", "".join(tl.rmc(f) + tl.gga(f) for f in fixes).encode("ascii"))


def free_log_box(fixes, start_ms):
    log = "".join(tl.nmea_log_line(f, start_ms) for f in fixes).encode("ascii")
    return mb.box(b"free", mb.box(b"sttm", struct.pack(">Q", start_ms)) + mb.box(b"gps ", log))


def with_boxes(base, target, boxes):
    mb.rebuild(base, target, top_boxes=boxes)


def cut(path, target, share):
    with open(path, "rb") as source:
        data = source.read()
    with open(target, "wb") as out:
        out.write(data[:int(len(data) * share)])


# --- the test set ----------------------------------------------------------------------------

def make_foreign(kit, folder, scratch):
    telemetry = os.path.join(folder, "telemetry")
    os.makedirs(telemetry)

    def path(name):
        return os.path.join(telemetry, name)

    seconds = 4
    base = os.path.join(scratch, "base.mp4")
    kit.run(kit.tiny_video() + ["-f", "lavfi", "-i", "sine=f=440:r=8000", "-c:a", "aac",
                                "-b:a", "16k"] + kit.X264 + ["-g", "10", "-t", str(seconds), base])

    # GPMF: 10 positions and 20 accelerations a second; GPS9 loses its fix for half a second
    # and names its axes.
    fixes = [pattern_fix(i, 10) for i in range(seconds * 10)]
    accels = [pattern_accel(i, 20) for i in range(seconds * 20)]
    with_gpmf(base, path("gpmf_gps5.mp4"), fixes, accels, seconds)
    fixes9 = [pattern_fix(i, 10, valid=not 25 <= i < 30) for i in range(seconds * 10)]
    with_gpmf(base, path("gpmf_gps9.mp4"), fixes9, accels, seconds, gps9=True,
              orientation="ZXY")

    # freeGPS: a block a second; the float camera loses its fix in the third second.
    once = [pattern_fix(i * 10, 10, valid=i != 2) for i in range(seconds)]
    with_freegps(base, path("freegps_float.mp4"), [(f.t, tl.freegps_float(f)) for f in once], True)
    with_freegps(base, path("freegps_integer.mp4"),
                 [(f.t, tl.freegps_integer(f)) for f in once if f.valid], False)
    with_freegps(base, path("freegps_nmea.mp4"),
                 [(f.t, tl.freegps_nmea(f, pattern_accel(i * 20, 20))) for i, f in enumerate(once)],
                 True)

    # NMEA in a text track, a subtitle track and top-level boxes; no fix in the second second.
    nmea = [pattern_fix(i * 10, 10, valid=i != 1) for i in range(seconds)]
    with_nmea_text(kit, base, path("nmea_text.mov"), nmea, seconds, scratch)
    with_nmea_text(kit, base, path("nmea_subtitle.mp4"), nmea, seconds, scratch)
    with_boxes(base, path("nmea_udat.mp4"), [udat_box(nmea)])
    with_boxes(base, path("nmea_free.mp4"), [free_log_box(nmea, 1718180102000)])

    # Lookalikes: each holds one layout's bytes where another layout is looked for.
    mb.rebuild(base, path("lookalike_gpmd_freegps.mp4"), tracks=[mb.NewTrack(
        b"meta", tl.GPMD_SAMPLE_ENTRY, [(tl.freegps_float(f), 1000) for f in once], 1000,
        GPMF_HANDLER)])
    gpmf_bytes = tl.gpmf_sample(fixes[:10], accels[:20])
    with_boxes(base, path("lookalike_udat_gpmf.mp4"), [mb.box(b"udat", gpmf_bytes)])
    mb.rebuild(base, path("lookalike_gap_gpmf.mp4"), blocks=[(1.0, gpmf_bytes)])
    mb.rebuild(base, path("lookalike_gap_nmea.mp4"),
               blocks=[(float(s), nmea_samples(nmea, seconds)[s].encode("ascii").ljust(4096, b"\0"))
                       for s in range(seconds)])
    with_boxes(base, path("lookalike_free_padding.mp4"),
               [mb.box(b"free", bytes(64)), mb.box(b"free", mb.box(b"gps ", gpmf_bytes))])

    # Damage: cut files (header first, so that they open) and blocks that were overwritten.
    with_gpmf(base, os.path.join(scratch, "gpmf_first.mp4"), fixes, accels, seconds,
              moov_first=True)
    cut(os.path.join(scratch, "gpmf_first.mp4"), path("truncated_gpmf.mp4"), 0.6)
    rng = random.Random(16)
    samples = [(tl.gpmf_sample(f, a), 1000)
               for f, a in zip(per_second(fixes, seconds), per_second(accels, seconds))]
    damaged = bytearray(samples[1][0])
    damaged[40:] = rng.randbytes(len(damaged) - 40)           # the second second is noise
    samples[1] = (bytes(damaged), 1000)
    damaged = bytearray(samples[3][0])
    damaged[len(damaged) // 2:] = rng.randbytes(len(damaged) - len(damaged) // 2)
    samples[3] = (bytes(damaged), 1000)                       # the last one half noise
    mb.rebuild(base, path("corrupt_gpmf.mp4"),
               tracks=[mb.NewTrack(b"meta", tl.GPMD_SAMPLE_ENTRY, samples, 1000, GPMF_HANDLER)])
    with_freegps(base, os.path.join(scratch, "freegps_first.mp4"),
                 [(f.t, tl.freegps_float(f)) for f in once], True, moov_first=True)
    cut(os.path.join(scratch, "freegps_first.mp4"), path("truncated_freegps.mp4"), 0.55)
    blocks = [(f.t, bytearray(tl.freegps_float(f))) for f in once]
    blocks[1][1][12:] = rng.randbytes(len(blocks[1][1]) - 12)  # noise after the header
    blocks[3][1][76:92] = struct.pack("<4f", float("nan"), 1e30, -5.0, 0.0)  # impossible values
    with_freegps(base, path("corrupt_freegps.mp4"), [(t, bytes(b)) for t, b in blocks], True)
    bad = nmea_samples(nmea, seconds)
    bad[2] = bad[2].replace("*", "*0", 1)                      # a broken checksum
    bad[3] = bad[3][:25]                                       # a sentence cut short
    srt = os.path.join(scratch, "corrupt.srt")
    kit.write_srt(srt, [s.strip() for s in bad], 1000)
    kit.run(["-i", base, "-i", srt, "-map", "0", "-map", "1", "-c", "copy", "-c:s", "mov_text",
             path("corrupt_nmea_text.mov")])
    with_boxes(base, os.path.join(scratch, "udat_last.mp4"), [udat_box(nmea)])
    with open(os.path.join(scratch, "udat_last.mp4"), "rb") as source:
        data = source.read()
    with open(path("truncated_udat.mp4"), "wb") as out:
        out.write(data[:len(data) - 150])                      # the log's last sentences

    make_cameras(kit, os.path.join(folder, "cameras"), scratch)


# --- a folder of other cameras' recordings ---------------------------------------------------

# (folder, file names by channel, start within the drive (s), length (s), telemetry layout)
CAMERAS = [
    ("Normal", ["2024_0612_081502_001F.MP4", "2024_0612_081502_001R.MP4"], 0, 12, "freegps_float"),
    ("Normal", ["NO20240612-081514-000002F.MP4", "NO20240612-081514-000002R.MP4"], 12, 12,
     "nmea_subtitle"),
    ("Normal", ["REC_2024_06_12_08_15_26_F.MP4", "REC_2024_06_12_08_15_26_R.MP4",
                "REC_2024_06_12_08_15_26_I.MP4"], 24, 12, "freegps_nmea"),
    ("Normal", ["20240612_081538_1.mp4", "20240612_081538_2.mp4"], 36, 12, "nmea_udat"),
    ("Normal", ["2024_0612_081550_005F.MP4"], 48, 12, "freegps_integer"),
    ("Normal", ["20240612-081602.MOV"], 60, 12, "nmea_text"),
    ("Event", ["20240612_081614_EF.mp4", "20240612_081614_ER.mp4"], 72, 12, "nmea_free"),
    ("Parking", ["PARK_2024_06_12_12_30_00_F.MP4"], None, 8, None),
    ("Action", ["GH010123.MP4"], 84, 12, "gpmf_gps5"),
    ("Action", ["GX010124.MP4"], 96, 12, "gpmf_gps9"),
]


def camera_video(kit, pictures, target, channel, seconds, epoch, moving, creation=None):
    label, width, height, forward = kit.CHANNELS[channel]
    width, height = (320, 180) if channel == 0 else (224, 126)
    args = pictures.road(width, height, moving, forward)
    if channel == 0:
        args += kit.engine_noise(seconds)
    args += ["-filter_complex", kit.caption_filter("0:v", height, label, epoch, "v"),
             "-map", "[v]"]
    if channel == 0:
        args += ["-map", "1:a", "-c:a", "aac", "-b:a", "48k", "-ac", "1"]
    if creation is not None:
        args += ["-metadata", "creation_time=" + creation.strftime("%Y-%m-%dT%H:%M:%SZ")]
    run_args = args + kit.X264 + ["-crf", "30", "-g", "30", "-t", str(seconds), target]
    kit.run(run_args)


def add_telemetry(kit, layout, base, target, fixes, accels, seconds, scratch):
    once = [f for f in fixes if abs(f.t - round(f.t)) < 1e-6]
    if layout.startswith("gpmf"):
        with_gpmf(base, target, fixes, accels, seconds, gps9=layout == "gpmf_gps9")
    elif layout == "freegps_float":
        with_freegps(base, target, [(f.t, tl.freegps_float(f)) for f in once], True)
    elif layout == "freegps_integer":
        with_freegps(base, target, [(f.t, tl.freegps_integer(f)) for f in once], False)
    elif layout == "freegps_nmea":
        g = {round(a.t, 3): a for a in accels}
        with_freegps(base, target, [(f.t, tl.freegps_nmea(f, g.get(round(f.t, 3), accels[0])))
                                    for f in once], True)
    elif layout in ("nmea_text", "nmea_subtitle"):
        with_nmea_text(kit, base, target, once, seconds, scratch)
    elif layout == "nmea_udat":
        with_boxes(base, target, [udat_box(once)])
    elif layout == "nmea_free":
        with_boxes(base, target, [free_log_box(once, 1718180102000)])


def make_cameras(kit, folder, scratch):
    pictures = kit.Pictures(scratch)
    drive = kit.Drive(120)
    for sub, names, start, seconds, layout in CAMERAS:
        os.makedirs(os.path.join(folder, sub), exist_ok=True)
        begin = START + timedelta(seconds=start if start is not None else 4 * 3600)
        for channel, name in enumerate(names):
            target = os.path.join(folder, sub, name)
            print("  " + os.path.join(sub, name), flush=True)
            creation = begin if name.startswith("G") else None
            plain = os.path.join(scratch, "plain_" + name) if channel == 0 and layout else target
            camera_video(kit, pictures, plain, channel, seconds, int(begin.timestamp()),
                         start is not None, creation)
            if plain != target:
                fixes = drive_fixes(drive, start, seconds, 10, begin)
                accels = drive_accels(drive, start, seconds, 100)
                add_telemetry(kit, layout, plain, target, fixes, accels, seconds, scratch)


# --- benchmark set ---------------------------------------------------------------------------

BENCH_LAYOUTS = ["gpmf_gps5", "gpmf_gps9", "freegps_float", "freegps_integer", "freegps_nmea",
                 "nmea_text", "nmea_subtitle", "nmea_udat", "nmea_free"]


def make_foreign_bench(kit, folder, scratch):
    """Three minutes of a drive per layout; the pictures are near-empty (the benchmark reads
    telemetry), with 30 fps video and 48 kHz sound for a camera file's sample tables."""
    seconds = 180
    base = os.path.join(scratch, "three_minutes.mp4")
    kit.run(["-f", "lavfi", "-i", "color=c=gray:s=64x36:r=30:d=%d" % seconds,
             "-f", "lavfi", "-t", str(seconds), "-i", "anullsrc=r=48000:cl=mono",
             "-c:a", "aac", "-b:a", "32k"] + kit.X264 + ["-g", "30", base])
    drive = kit.Drive(seconds)
    fixes = drive_fixes(drive, 0, seconds, 10, START)
    accels = drive_accels(drive, 0, seconds, 200)
    for layout in BENCH_LAYOUTS:
        target = os.path.join(folder, layout + (".mov" if layout == "nmea_text" else ".mp4"))
        print("  " + os.path.basename(target), flush=True)
        add_telemetry(kit, layout, base, target, fixes, accels, seconds, scratch)
