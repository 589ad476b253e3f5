#ifndef KDXSTREAM_H
#define KDXSTREAM_H

/*
 * kdxstream: reads the length, the video count and the telemetry of a dash-camera recording.
 *
 * A plain C interface so that any caller (C, C++, another language through its FFI) can use
 * it. The records below have fixed byte layouts; callers that predate this header address
 * their fields by byte offset, so the offsets never move. Every multi-byte field is in the
 * machine's byte order, which is little-endian on every platform we build for.
 *
 * Use:
 *     KDXReader* reader = 0;
 *     KDXOpenParams params = {0};
 *     params.path8 = "/cards/DCIM/20240612_081502_INF_1.mp4";
 *     if (KDXReaderOpen(&reader, &params) < 0) ...
 *     KDXInfo info;                              zeroed by the caller, filled by the library
 *     KDXReaderGetInfo(reader, &info);
 *     for each of info.tracks[0].frameCount frames:
 *         descriptor = {buffer of info.tracks[0].frameSize bytes, its size, track 0, kind 3}
 *         KDXReaderReadFrame(reader, &descriptor)  ->  buffer holds one KDXTextFrame
 *     KDXReaderClose(reader);
 *
 * A reader handle is used by one thread at a time; different handles are independent.
 */

#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/* Results. Every call returns KDX_OK or one of the negative codes. */
#define KDX_OK 0
#define KDX_ERR_ARGUMENT (-1)   /* a null handle, record or path */
#define KDX_ERR_OPEN (-2)       /* the file is missing, unreadable or not a recording */
#define KDX_ERR_NO_MEMORY (-3)  /* an allocation failed */
#define KDX_ERR_READ (-4)       /* reading the file failed part-way */
#define KDX_ERR_TRACK (-5)      /* no such track, or a frame kind the track does not hold */
#define KDX_ERR_BUFFER (-6)     /* the caller's frame buffer is smaller than the track's frames */
#define KDX_ERR_END (-7)        /* the track has no further frame */
#define KDX_ERR_NO_STREAMS (-8) /* the container holds no audio, video or text stream */

/* Frame kinds. */
#define KDX_FRAME_TEXT 3

/* Track 0 of every recording is its telemetry track; it is empty (zero frames) when the
 * recording carries no telemetry. The remaining table entries are reserved. */
#define KDX_TELEMETRY_TRACK 0
#define KDX_MAX_TRACKS 5

#define KDX_INFO_SIZE 6584
#define KDX_FRAME_DESCRIPTOR_SIZE 56
#define KDX_TEXT_FRAME_SIZE 128

/* Bits of KDXTextFrame.fields: which values the reading carried. */
#define KDX_FIELD_GSENSOR 0x1u
#define KDX_FIELD_POSITION 0x2u /* not set for a reading without a GPS fix */
#define KDX_FIELD_SPEED 0x4u

/* What KDXReaderOpen takes. Either path may be null; the UTF-16 path is preferred on
 * Windows, the 8-bit path (in the file system's own encoding) everywhere else. */
typedef struct KDXOpenParams {
    const uint16_t* pathUtf16; /* NUL-terminated */
    void* reserved[3];         /* zero */
    void* info;                /* the caller's KDXInfo buffer; informational only */
    const char* path8;         /* NUL-terminated */
} KDXOpenParams;

/* One entry of the track table: 36 bytes. */
typedef struct KDXTrackInfo {
    uint32_t frameSize;  /* +0: bytes a caller's buffer needs for one frame */
    uint32_t kind;       /* +4: KDX_FRAME_TEXT for the telemetry track */
    int32_t durationMs;  /* +8: length of the track */
    uint32_t frameCount; /* +12: samples in the track; see KDXReaderReadFrame */
    uint8_t reserved[20];
} KDXTrackInfo;

/* The information record: 6,584 bytes. */
typedef struct KDXInfo {
    uint32_t recordSize;     /* 0: KDX_INFO_SIZE */
    int32_t totalRangeMs;    /* 4: length of the recording in milliseconds */
    int32_t startTimeMs;     /* 8: presentation time of the first sample */
    int32_t audioCount;      /* 12: number of audio streams */
    int32_t videoCount;      /* 16: number of video streams (cover pictures not counted) */
    int32_t textDataPresent; /* 20: non-zero when track 0 holds telemetry */
    char containerName[32];  /* 24: the demuxer's short name, NUL-terminated */
    char telemetryKind[32];  /* 56: where the telemetry was found ("GPMF", "freeGPS", ...),
                                NUL-terminated; empty without telemetry */
    uint8_t reserved1[6288]; /* 88 */
    KDXTrackInfo tracks[KDX_MAX_TRACKS]; /* 6376 */
    uint8_t reserved2[28];               /* 6556 */
} KDXInfo;

/* What KDXReaderReadFrame takes and fills: 56 bytes. The caller sets buffer, bufferSize,
 * track and kind; the library fills the rest. */
typedef struct KDXFrameDescriptor {
    union {
        void* buffer;        /* 0 */
        uint64_t bufferSlot; /* keeps the layout on 32-bit targets */
    };
    uint32_t dataSize;   /* 8: bytes written into buffer */
    uint32_t bufferSize; /* 12 */
    int64_t timeMs;      /* 16: presentation time of the frame */
    uint32_t durationMs; /* 24 */
    uint32_t sequence;   /* 28: 1 for the first frame read from the track */
    uint32_t reserved0;  /* 32 */
    uint32_t track;      /* 36 */
    uint32_t kind;       /* 40 */
    uint32_t flags;      /* 44: reserved, zero */
    uint64_t reserved1;  /* 48 */
} KDXFrameDescriptor;

/* The contents of one telemetry frame buffer: 128 bytes. A reading without a GPS fix has
 * latitude and longitude 0. */
typedef struct KDXTextFrame {
    int64_t timeMs;      /* 0 */
    uint32_t durationMs; /* 8 */
    uint32_t fields;     /* 12: KDX_FIELD_* bits */
    uint8_t reserved0[24];
    float gSensorX;    /* 40: acceleration in g */
    float gSensorY;    /* 44 */
    float gSensorZ;    /* 48 */
    uint32_t gpsFlags; /* 52: bits 0-1 fix quality, bits 2-3 satellite class */
    float speed;       /* 56: km/h */
    float latitude;    /* 60: degrees, north positive */
    float longitude;   /* 64: degrees, east positive */
    uint8_t reserved1[60];
} KDXTextFrame;

typedef struct KDXReader KDXReader;

/* Opens a recording. On success *reader is a new handle; on failure it is set to null. */
int KDXReaderOpen(KDXReader** reader, const KDXOpenParams* params);

/* Fills info (all of it; the caller need not zero it). */
int KDXReaderGetInfo(KDXReader* reader, KDXInfo* info);

/* Reads the next frame of descriptor->track into descriptor->buffer. Telemetry samples
 * that cannot be read as readings are skipped, so a track can end (KDX_ERR_END) before
 * frameCount frames have been read. */
int KDXReaderReadFrame(KDXReader* reader, KDXFrameDescriptor* descriptor);

/* Closes the file and frees the handle; a null handle is ignored. */
int KDXReaderClose(KDXReader* reader);

/* Trace lines: the library describes what went wrong through KDX_Trace, which hands each
 * formatted line (no line end) to the sink the application installed. Without a sink the
 * lines are dropped. Both may be called from any thread. */
typedef void (*KDXTraceSink)(const char* line);
void KDX_SetTraceSink(KDXTraceSink sink);
void KDX_Trace(const char* format, ...)
#if defined(__GNUC__)
    __attribute__((format(printf, 1, 2)))
#endif
    ;

#ifdef __cplusplus
}
#endif

#endif
