"""MP4 surgery for the test media: adds tracks, blocks and boxes to a file ffmpeg made.

Other cameras keep their telemetry where ffmpeg cannot put it: a metadata track of their own
('gpmd'), blocks inside the media data that no track points at (Novatek's "freeGPS "), boxes
at the top level ('udat', 'free'). rebuild() writes such a file from one of ffmpeg's: the
media data is laid out again with the new samples and blocks between the existing chunks,
at the place their time belongs (as a camera writes them while it records), and every
track's chunk offsets are moved to match.

Standard library only.
"""

import struct

MOVIE_TIMESCALE_FALLBACK = 1000


def box(kind, payload):
    return struct.pack(">I", 8 + len(payload)) + kind + payload


def full_box(kind, version, flags, payload):
    return box(kind, struct.pack(">I", (version << 24) | flags) + payload)


def read_boxes(data, start, end):
    """(type, offset, size, header size) of the boxes between start and end."""
    boxes = []
    while start + 8 <= end:
        size, kind = struct.unpack(">I4s", data[start:start + 8])
        header = 8
        if size == 1:
            size = struct.unpack(">Q", data[start + 8:start + 16])[0]
            header = 16
        elif size == 0:
            size = end - start
        if size < header or start + size > end:
            break
        boxes.append((kind, start, size, header))
        start += size
    return boxes


def child(data, parent, kind):
    for found in read_boxes(data, parent[1] + parent[3], parent[1] + parent[2]):
        if found[0] == kind:
            return found
    return None


def path(data, parent, *kinds):
    for kind in kinds:
        parent = child(data, parent, kind)
        if parent is None:
            return None
    return parent


def payload(data, found, skip=0):
    return data[found[1] + found[3] + skip:found[1] + found[2]]


class Track:
    """What rebuild() needs of an existing track: its chunks, with their time."""

    def __init__(self, data, trak):
        stbl = path(data, trak, b"mdia", b"minf", b"stbl")
        mdhd = path(data, trak, b"mdia", b"mdhd")
        body = payload(data, mdhd)
        self.timescale = struct.unpack(">I", body[12:16] if body[0] == 0 else body[20:24])[0]
        stts = payload(data, child(data, stbl, b"stts"), 4)
        stsc = payload(data, child(data, stbl, b"stsc"), 4)
        stsz = payload(data, child(data, stbl, b"stsz"), 4)
        self.offset_box = child(data, stbl, b"stco") or child(data, stbl, b"co64")
        wide = self.offset_box[0] == b"co64"
        chunks = payload(data, self.offset_box, 4)
        count = struct.unpack(">I", chunks[:4])[0]
        self.chunk_offsets = list(struct.unpack(">%d%s" % (count, "Q" if wide else "I"),
                                                chunks[4:4 + count * (8 if wide else 4)]))
        uniform, samples = struct.unpack(">II", stsz[:8])
        sizes = [uniform] * samples if uniform else \
            list(struct.unpack(">%dI" % samples, stsz[8:8 + 4 * samples]))
        times = []
        entries = struct.unpack(">I", stts[:4])[0]
        clock = 0
        for k in range(entries):
            run, delta = struct.unpack(">II", stts[4 + 8 * k:12 + 8 * k])
            for _ in range(run):
                times.append(clock)
                clock += delta
        runs = struct.unpack(">I", stsc[:4])[0]
        table = [struct.unpack(">III", stsc[4 + 12 * k:16 + 12 * k]) for k in range(runs)]
        # Chunk i (0-based): (offset, byte count, time of its first sample in seconds)
        self.chunks = []
        sample = 0
        for i, offset in enumerate(self.chunk_offsets):
            per_chunk = 0
            for first, count_in_chunk, _ in table:
                if first - 1 <= i:
                    per_chunk = count_in_chunk
            size = sum(sizes[sample:sample + per_chunk])
            time = times[sample] / self.timescale if sample < len(times) else clock / self.timescale
            self.chunks.append((offset, size, time))
            sample += per_chunk


class NewTrack:
    """A track to add: samples (bytes, duration in timescale units) from time 0."""

    def __init__(self, handler, sample_entry, samples, timescale=1000, name=b"",
                 media_header=None):
        self.handler = handler
        self.sample_entry = sample_entry
        self.samples = samples
        self.timescale = timescale
        self.name = name
        self.media_header = media_header if media_header is not None else \
            full_box(b"nmhd", 0, 0, b"")
        self.offsets = []

    def times(self):
        clock = 0
        for data, duration in self.samples:
            yield clock / self.timescale
            clock += duration

    def trak(self, track_id, movie_timescale):
        duration = sum(d for _, d in self.samples)
        movie_duration = duration * movie_timescale // self.timescale
        matrix = struct.pack(">9I", 0x10000, 0, 0, 0, 0x10000, 0, 0, 0, 0x40000000)
        tkhd = full_box(b"tkhd", 0, 3, struct.pack(">IIIII", 0, 0, track_id, 0, movie_duration) +
                        bytes(8) + struct.pack(">hhhH", 0, 0, 0, 0) + matrix + bytes(8))
        mdhd = full_box(b"mdhd", 0, 0, struct.pack(">IIIIHH", 0, 0, self.timescale, duration,
                                                   0x55C4, 0))
        hdlr = full_box(b"hdlr", 0, 0, bytes(4) + self.handler + bytes(12) + self.name + b"\0")
        dinf = box(b"dinf", full_box(b"dref", 0, 0, struct.pack(">I", 1) +
                                     full_box(b"url ", 0, 1, b"")))
        stsd = full_box(b"stsd", 0, 0, struct.pack(">I", 1) + self.sample_entry)
        runs = []
        for _, d in self.samples:
            if runs and runs[-1][1] == d:
                runs[-1][0] += 1
            else:
                runs.append([1, d])
        stts = full_box(b"stts", 0, 0, struct.pack(">I", len(runs)) +
                        b"".join(struct.pack(">II", n, d) for n, d in runs))
        stsc = full_box(b"stsc", 0, 0, struct.pack(">IIII", 1, 1, 1, 1))
        stsz = full_box(b"stsz", 0, 0, struct.pack(">II", 0, len(self.samples)) +
                        b"".join(struct.pack(">I", len(s)) for s, _ in self.samples))
        stco = full_box(b"stco", 0, 0, struct.pack(">I", len(self.offsets)) +
                        b"".join(struct.pack(">I", o) for o in self.offsets))
        stbl = box(b"stbl", stsd + stts + stsc + stsz + stco)
        minf = box(b"minf", self.media_header + dinf + stbl)
        return box(b"trak", tkhd + box(b"mdia", mdhd + hdlr + minf))


def rebuild(source, target, blocks=(), tracks=(), moov_boxes=None, top_boxes=(),
            before_mdat=(), moov_first=False):
    """Writes target from source with:
    blocks      (time in s, bytes): data in the media data that no track points at;
    tracks      NewTrack objects, their samples laid out like blocks;
    moov_boxes  a function of the blocks' file offsets giving boxes for 'moov' (after 'mvhd');
    top_boxes   boxes after everything else;  before_mdat  boxes between 'ftyp' and 'mdat';
    moov_first  the header before the media data, so that a cut file keeps its header.
    Returns the blocks' file offsets."""
    with open(source, "rb") as f:
        data = f.read()
    top = read_boxes(data, 0, len(data))
    moov = next(b for b in top if b[0] == b"moov")
    existing = [Track(data, t) for t in read_boxes(data, moov[1] + 8, moov[1] + moov[2])
                if t[0] == b"trak"]

    # Everything the media data will hold, in file order: the existing chunks as they lie,
    # each new item before the first chunk of the first track whose time is not earlier
    # than its own.
    chunks = sorted(((offset, size, time, t, i) for t, track in enumerate(existing)
                     for i, (offset, size, time) in enumerate(track.chunks)), key=lambda c: c[0])
    items = [(time, data_, ("block", k)) for k, (time, data_) in enumerate(blocks)]
    for n, track in enumerate(tracks):
        items += [(time, s, ("sample", n, k))
                  for k, (time, (s, _)) in enumerate(zip(track.times(), track.samples))]
    items.sort(key=lambda item: item[0])
    head = b"".join(data[b[1]:b[1] + b[2]] for b in top if b[0] == b"ftyp")
    head += b"".join(before_mdat)

    def lay_out(start):
        body = bytearray()
        block_offsets = [0] * len(blocks)
        chunk_offsets = [list(t.chunk_offsets) for t in existing]
        for track in tracks:
            track.offsets = [0] * len(track.samples)

        def place(item):
            kind = item[2]
            if kind[0] == "block":
                block_offsets[kind[1]] = start + len(body)
            else:
                tracks[kind[1]].offsets[kind[2]] = start + len(body)
            body.extend(item[1])

        pending = 0
        for offset, size, time, t, i in chunks:
            # The first track (the video) sets the pace: sound chunks run ahead of it.
            while t == 0 and pending < len(items) and items[pending][0] <= time:
                place(items[pending])
                pending += 1
            chunk_offsets[t][i] = start + len(body)
            body.extend(data[offset:offset + size])
        for item in items[pending:]:
            place(item)
        return body, block_offsets, chunk_offsets

    def header(block_offsets, chunk_offsets):
        moov_data = bytearray(data[moov[1]:moov[1] + moov[2]])
        for track, offsets in zip(existing, chunk_offsets):
            kind, where, size, box_header = track.offset_box
            wide = kind == b"co64"
            packed = struct.pack(">%d%s" % (len(offsets), "Q" if wide else "I"), *offsets)
            at = where - moov[1] + box_header + 8
            moov_data[at:at + len(packed)] = packed
        mvhd = child(data, moov, b"mvhd")
        fields = payload(data, mvhd)
        movie_timescale = struct.unpack(">I", fields[12:16])[0] or MOVIE_TIMESCALE_FALLBACK
        next_id = struct.unpack(">I", fields[-4:])[0]
        for track in tracks:
            moov_data += track.trak(next_id, movie_timescale)
            next_id += 1
        at = mvhd[1] - moov[1] + mvhd[2] - 4
        moov_data[at:at + 4] = struct.pack(">I", next_id)
        if moov_boxes is not None:
            # Right after the movie header, before any track: readers take a box there for
            # the movie's own, not a track's.
            at = mvhd[1] - moov[1] + mvhd[2]
            moov_data[at:at] = moov_boxes(block_offsets)
        moov_data[0:4] = struct.pack(">I", len(moov_data))
        return bytes(moov_data)

    start = len(head) + 8
    body, block_offsets, chunk_offsets = lay_out(start)
    moov_data = header(block_offsets, chunk_offsets)
    if moov_first:
        # The header's size does not depend on the offsets it holds.
        start = len(head) + len(moov_data) + 8
        body, block_offsets, chunk_offsets = lay_out(start)
        moov_data = header(block_offsets, chunk_offsets)
    with open(target, "wb") as out:
        out.write(head)
        if moov_first:
            out.write(moov_data)
        out.write(struct.pack(">I", 8 + len(body)) + b"mdat")
        out.write(body)
        if not moov_first:
            out.write(moov_data)
        for extra_box in top_boxes:
            out.write(extra_box)
    return block_offsets
