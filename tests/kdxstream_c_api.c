/* The stream library's header compiled as C: its record layouts and a whole read.
 * Usage: kdxstream_c_api <recording with 40 telemetry samples> */
#include "kdxstream.h"

#include <stddef.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

_Static_assert(sizeof(KDXInfo) == 6584, "information record");
_Static_assert(offsetof(KDXInfo, totalRangeMs) == 4, "total range");
_Static_assert(offsetof(KDXInfo, videoCount) == 16, "video count");
_Static_assert(offsetof(KDXInfo, textDataPresent) == 20, "text flag");
_Static_assert(offsetof(KDXInfo, tracks) + offsetof(KDXTrackInfo, frameSize) == 6376, "size");
_Static_assert(offsetof(KDXInfo, tracks) + offsetof(KDXTrackInfo, frameCount) == 6388, "count");
_Static_assert(sizeof(KDXTrackInfo) == 36, "track entry");
_Static_assert(sizeof(KDXFrameDescriptor) == 56, "descriptor");
_Static_assert(offsetof(KDXFrameDescriptor, bufferSize) == 12, "buffer size");
_Static_assert(offsetof(KDXFrameDescriptor, track) == 36, "track");
_Static_assert(offsetof(KDXFrameDescriptor, kind) == 40, "kind");
_Static_assert(offsetof(KDXTextFrame, gSensorX) == 40, "G-sensor");
_Static_assert(offsetof(KDXTextFrame, longitude) == 64, "longitude");

static int fail(const char* what) {
    fprintf(stderr, "FAIL: %s\n", what);
    return 1;
}

int main(int argc, char** argv) {
    KDXReader* reader = NULL;
    KDXOpenParams params;
    KDXInfo info;
    unsigned frames = 0;
    if (argc != 2)
        return fail("usage");
    memset(&params, 0, sizeof params);
    params.path8 = argv[1];
    if (KDXReaderOpen(&reader, &params) != KDX_OK)
        return fail("open");
    if (KDXReaderGetInfo(reader, &info) != KDX_OK || info.tracks[0].frameCount != 40)
        return fail("info");
    for (;;) {
        unsigned char* buffer = malloc(info.tracks[0].frameSize);
        KDXFrameDescriptor descriptor;
        int result;
        memset(&descriptor, 0, sizeof descriptor);
        descriptor.buffer = buffer;
        descriptor.bufferSize = info.tracks[0].frameSize;
        descriptor.track = KDX_TELEMETRY_TRACK;
        descriptor.kind = KDX_FRAME_TEXT;
        result = KDXReaderReadFrame(reader, &descriptor);
        free(buffer);
        if (result == KDX_ERR_END)
            break;
        if (result != KDX_OK)
            return fail("frame");
        ++frames;
    }
    KDXReaderClose(reader);
    if (frames != 40)
        return fail("frame count");
    printf("PASS: %u frames\n", frames);
    return 0;
}
