"""Telemetry as other cameras store it, for the test and benchmark media.

Each writer takes fixes (GPS readings) and accelerations in plain units and returns the
bytes a camera would write: GPMF samples (GPS5, GPS9, ACCL), Novatek "freeGPS " blocks in
their float, integer and NMEA-text variants, NMEA sentences. docs/telemetry-format.md
describes every layout. Standard library only.
"""

import math
import struct
from datetime import timedelta

G = 9.80665               # m/s2 in one g
KNOT_KMH = 1.852
FREEGPS_BLOCK = 0x8000    # every block a Novatek camera writes is 32 KiB
ACCL_SCALE = 418          # a GoPro's ACCL scale: counts per m/s2


class Fix:
    """One GPS reading: seconds into the recording, UTC time, degrees, km/h, degrees, m."""

    def __init__(self, t, utc, lat, lon, speed, track=0.0, alt=0.0, valid=True, sats=9):
        self.t, self.utc = t, utc
        self.lat, self.lon, self.speed, self.track, self.alt = lat, lon, speed, track, alt
        self.valid, self.sats = valid, sats


class Accel:
    """One accelerometer reading in g: seconds into the recording, x, y, z."""

    def __init__(self, t, x, y, z):
        self.t, self.x, self.y, self.z = t, x, y, z


# --- NMEA ----------------------------------------------------------------------------------

def nmea(body):
    checksum = 0
    for c in body.encode("ascii"):
        checksum ^= c
    return "$%s*%02X\r\n" % (body, checksum)


def nmea_angle(value, degree_digits):
    """Degrees to NMEA's [d]ddmm.mmmm and the hemisphere letter's sign."""
    value = abs(value)
    degrees = int(value)
    minutes = (value - degrees) * 60
    text = "%0*d%07.4f" % (degree_digits, degrees, minutes)
    if text[degree_digits:degree_digits + 2] == "60":  # rounding reached a whole degree
        text = "%0*d%07.4f" % (degree_digits, degrees + 1, 0.0)
    return text


def rmc(fix, talker="GP"):
    lat = nmea_angle(fix.lat, 2) if fix.valid else ""
    lon = nmea_angle(fix.lon, 3) if fix.valid else ""
    return nmea("%sRMC,%s,%s,%s,%s,%s,%s,%.1f,%.1f,%s,,,%s" % (
        talker, fix.utc.strftime("%H%M%S.00"), "A" if fix.valid else "V",
        lat, ("N" if fix.lat >= 0 else "S") if fix.valid else "",
        lon, ("E" if fix.lon >= 0 else "W") if fix.valid else "",
        fix.speed / KNOT_KMH, fix.track, fix.utc.strftime("%d%m%y"), "A" if fix.valid else "N"))


def gga(fix, talker="GP"):
    if not fix.valid:
        return nmea("%sGGA,%s,,,,,0,00,,,M,,M,," % (talker, fix.utc.strftime("%H%M%S.00")))
    return nmea("%sGGA,%s,%s,%s,%s,%s,1,%02d,0.9,%.1f,M,0.0,M,," % (
        talker, fix.utc.strftime("%H%M%S.00"), nmea_angle(fix.lat, 2),
        "N" if fix.lat >= 0 else "S", nmea_angle(fix.lon, 3), "E" if fix.lon >= 0 else "W",
        fix.sats, fix.alt))


# --- GPMF ----------------------------------------------------------------------------------

def klv(key, kind, size, repeat, data):
    """One GPMF entry: key, type, structure size, repeat, data padded to 32 bits."""
    return key + kind + struct.pack(">BH", size, repeat) + data + bytes(-len(data) % 4)


def nest(key, *entries):
    data = b"".join(entries)
    return klv(key, b"\0", 1, len(data), data)


def text_entry(key, text):
    data = text.encode("ascii")
    return klv(key, b"c", len(data), 1, data)


def gpmf_sample(fixes, accels, gps9=False, start_utc=None, orientation=None):
    """One second of GPMF: a device with an accelerometer stream and a GPS stream."""
    streams = []
    if accels:
        values = b"".join(struct.pack(">3h", *(int(round(v * G * ACCL_SCALE))
                                                for v in (a.x, a.y, a.z))) for a in accels)
        entries = [klv(b"TSMP", b"L", 4, 1, struct.pack(">I", len(accels))),
                   text_entry(b"STNM", "Accelerometer"), text_entry(b"SIUN", "m/s2")]
        if orientation:
            entries.append(text_entry(b"ORIN", orientation))
        entries += [klv(b"SCAL", b"s", 2, 1, struct.pack(">h", ACCL_SCALE)),
                    klv(b"ACCL", b"s", 6, len(accels), values)]
        streams.append(nest(b"STRM", *entries))
    if fixes:
        fix_kind = 3 if all(f.valid for f in fixes) else 0
        if gps9:
            scales = (10000000, 10000000, 1000, 1000, 100, 1, 1000, 100, 1)
            rows = []
            for f in fixes:
                days = (f.utc.date() - f.utc.date().replace(year=2000, month=1, day=1)).days
                seconds = f.utc.hour * 3600 + f.utc.minute * 60 + f.utc.second + \
                    f.utc.microsecond / 1e6
                rows.append(struct.pack(">7l2H", round(f.lat * 1e7), round(f.lon * 1e7),
                                        round(f.alt * 1000), round(f.speed / 3.6 * 1000),
                                        round(f.speed / 3.6 * 100), days, round(seconds * 1000),
                                        90, 3 if f.valid else 0))
            entries = [text_entry(b"STNM", "GPS (Lat., Long., Alt., 2D, 3D, days, secs, DOP, fix)"),
                       klv(b"SCAL", b"l", 4, len(scales), struct.pack(">9l", *scales)),
                       text_entry(b"TYPE", "lllllllSS"),
                       klv(b"GPS9", b"?", 32, len(rows), b"".join(rows))]
        else:
            scales = (10000000, 10000000, 1000, 1000, 100)
            rows = [struct.pack(">5l", round(f.lat * 1e7), round(f.lon * 1e7), round(f.alt * 1000),
                                round(f.speed / 3.6 * 1000), round(f.speed / 3.6 * 100))
                    for f in fixes]
            utc = (start_utc or fixes[0].utc).strftime("%y%m%d%H%M%S.000").encode("ascii")
            entries = [text_entry(b"STNM", "GPS (Lat., Long., Alt., 2D speed, 3D speed)"),
                       klv(b"GPSF", b"L", 4, 1, struct.pack(">I", fix_kind)),
                       klv(b"GPSU", b"U", 16, 1, utc),
                       klv(b"GPSP", b"S", 2, 1, struct.pack(">H", 90)),
                       klv(b"SCAL", b"l", 4, len(scales), struct.pack(">5l", *scales)),
                       klv(b"GPS5", b"l", 20, len(rows), b"".join(rows))]
        streams.append(nest(b"STRM", klv(b"TSMP", b"L", 4, 1, struct.pack(">I", len(fixes))),
                            *entries))
    return nest(b"DEVC", klv(b"DVID", b"L", 4, 1, struct.pack(">I", 1)),
                text_entry(b"DVNM", "Camera"), *streams)


GPMD_SAMPLE_ENTRY = struct.pack(">I4s6sHI", 20, b"gpmd", bytes(6), 1, 0)


# --- freeGPS -------------------------------------------------------------------------------

def _freegps_head(marker=0x4C):
    block = bytearray(FREEGPS_BLOCK)
    block[0:12] = struct.pack(">I", FREEGPS_BLOCK) + b"freeGPS "
    block[12:16] = struct.pack("<I", marker)
    return block


def _clock(block, fix):
    u = fix.utc
    block[48:72] = struct.pack("<6I", u.hour, u.minute, u.second, u.year - 2000, u.month, u.day)
    block[72:75] = (b"A" if fix.valid else b"V") + (b"N" if fix.lat >= 0 else b"S") + \
        (b"E" if fix.lon >= 0 else b"W")


def ddmm(value):
    value = abs(value)
    degrees = int(value)
    return degrees * 100 + (value - degrees) * 60


def freegps_float(fix):
    """The float variant: positions as [d]ddmm.mmmm and the speed in knots, float32."""
    block = _freegps_head()
    _clock(block, fix)
    block[76:92] = struct.pack("<4f", ddmm(fix.lat), ddmm(fix.lon), fix.speed / KNOT_KMH, fix.track)
    return bytes(block)


def freegps_integer(fix):
    """The integer variant ("IQS" firmware): degrees x 1e7 and m/s x 100, int32."""
    block = _freegps_head()
    block[16:32] = b"IQS_A7_20150417\0"
    _clock(block, fix)
    block[76:92] = struct.pack("<3lf", round(abs(fix.lat) * 1e7), round(abs(fix.lon) * 1e7),
                               round(fix.speed / 3.6 * 100), fix.alt * 1000)
    return bytes(block)


def freegps_nmea(fix, accel, local_offset=timedelta(hours=9)):
    """The NMEA-text variant: the camera's clock as digits, accelerations x 256, then the
    sentences of the second."""
    block = _freegps_head(0x140)
    block[52:66] = (fix.utc + local_offset).strftime("%Y%m%d%H%M%S").encode("ascii")
    block[68:80] = struct.pack("<3l", *(int(round(v * 256)) for v in (accel.x, accel.y, accel.z)))
    sentences = (rmc(fix) + gga(fix)).encode("ascii")
    block[80:80 + len(sentences)] = sentences
    return bytes(block)


def gps_box(offsets):
    """moov/'gps ': where the blocks are (version, count, then offset and size pairs)."""
    return b"".join([struct.pack(">I", 8 + 8 + 8 * len(offsets)), b"gps ",
                     struct.pack(">II", 0x101, len(offsets))] +
                    [struct.pack(">II", o, FREEGPS_BLOCK) for o in offsets])


def nmea_log_line(fix, start_ms):
    """One second of a 'free'/'gps ' log: the camera's millisecond clock, then sentences."""
    stamp = "[%d]" % (start_ms + round(fix.t * 1000))
    return stamp + rmc(fix) + stamp + gga(fix)


def bearing(a, b):
    dy = b.lat - a.lat
    dx = (b.lon - a.lon) * math.cos(math.radians(a.lat))
    return math.degrees(math.atan2(dx, dy)) % 360
