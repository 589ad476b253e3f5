// The C entry points: argument checks, path conversion and the record layouts.
#include "kdxstream.h"

#include "StreamReader.h"

#include <cstddef>
#include <new>
#include <string>

// Callers address these records by byte offset; the layouts must never move.
static_assert(sizeof(KDXInfo) == KDX_INFO_SIZE, "information record size");
static_assert(offsetof(KDXInfo, totalRangeMs) == 4, "total range");
static_assert(offsetof(KDXInfo, videoCount) == 16, "video count");
static_assert(offsetof(KDXInfo, textDataPresent) == 20, "text flag");
static_assert(offsetof(KDXInfo, telemetryKind) == 56, "telemetry kind");
static_assert(offsetof(KDXInfo, tracks) == 6376, "track table");
static_assert(sizeof(KDXTrackInfo) == 36, "track table entry");
static_assert(offsetof(KDXTrackInfo, frameSize) == 0, "track frame size");
static_assert(offsetof(KDXTrackInfo, frameCount) == 12, "track frame count");
static_assert(sizeof(KDXFrameDescriptor) == KDX_FRAME_DESCRIPTOR_SIZE, "descriptor size");
static_assert(offsetof(KDXFrameDescriptor, buffer) == 0, "descriptor buffer");
static_assert(offsetof(KDXFrameDescriptor, bufferSize) == 12, "descriptor buffer size");
static_assert(offsetof(KDXFrameDescriptor, track) == 36, "descriptor track");
static_assert(offsetof(KDXFrameDescriptor, kind) == 40, "descriptor kind");
static_assert(sizeof(KDXTextFrame) == KDX_TEXT_FRAME_SIZE, "text frame size");
static_assert(offsetof(KDXTextFrame, gSensorX) == 40, "G-sensor X");
static_assert(offsetof(KDXTextFrame, gSensorY) == 44, "G-sensor Y");
static_assert(offsetof(KDXTextFrame, gSensorZ) == 48, "G-sensor Z");
static_assert(offsetof(KDXTextFrame, gpsFlags) == 52, "GPS flags");
static_assert(offsetof(KDXTextFrame, speed) == 56, "speed");
static_assert(offsetof(KDXTextFrame, latitude) == 60, "latitude");
static_assert(offsetof(KDXTextFrame, longitude) == 64, "longitude");
static_assert(sizeof(float) == 4, "32-bit floats");

struct KDXReader {
    kdx::StreamReader stream;
};

namespace {

// UTF-16 to UTF-8, for libavformat, which takes UTF-8 file names on Windows. Unpaired
// surrogates become U+FFFD.
std::string toUtf8(const uint16_t* text) {
    std::string out;
    for (const uint16_t* p = text; *p != 0; ++p) {
        char32_t c = *p;
        if (c >= 0xD800 && c <= 0xDBFF && p[1] >= 0xDC00 && p[1] <= 0xDFFF) {
            c = 0x10000 + ((c - 0xD800) << 10) + (p[1] - 0xDC00);
            ++p;
        } else if (c >= 0xD800 && c <= 0xDFFF) {
            c = 0xFFFD;
        }
        if (c < 0x80) {
            out += static_cast<char>(c);
        } else if (c < 0x800) {
            out += static_cast<char>(0xC0 | (c >> 6));
            out += static_cast<char>(0x80 | (c & 0x3F));
        } else if (c < 0x10000) {
            out += static_cast<char>(0xE0 | (c >> 12));
            out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
            out += static_cast<char>(0x80 | (c & 0x3F));
        } else {
            out += static_cast<char>(0xF0 | (c >> 18));
            out += static_cast<char>(0x80 | ((c >> 12) & 0x3F));
            out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
            out += static_cast<char>(0x80 | (c & 0x3F));
        }
    }
    return out;
}

// The path as libavformat wants it: UTF-8 on Windows, where the 8-bit path would be in the
// ANSI code page and lose characters; the file system's own bytes elsewhere.
std::string pathFor(const KDXOpenParams& params) {
#if defined(_WIN32)
    if (params.pathUtf16 != nullptr)
        return toUtf8(params.pathUtf16);
    return params.path8 != nullptr ? std::string(params.path8) : std::string();
#else
    if (params.path8 != nullptr)
        return std::string(params.path8);
    return params.pathUtf16 != nullptr ? toUtf8(params.pathUtf16) : std::string();
#endif
}

} // namespace

extern "C" int KDXReaderOpen(KDXReader** reader, const KDXOpenParams* params) {
    if (reader == nullptr)
        return KDX_ERR_ARGUMENT;
    *reader = nullptr;
    if (params == nullptr)
        return KDX_ERR_ARGUMENT;
    const std::string path = pathFor(*params);
    if (path.empty())
        return KDX_ERR_ARGUMENT;
    KDXReader* opened = new (std::nothrow) KDXReader;
    if (opened == nullptr)
        return KDX_ERR_NO_MEMORY;
    const int result = opened->stream.open(path.c_str());
    if (result != KDX_OK) {
        delete opened;
        return result;
    }
    *reader = opened;
    return KDX_OK;
}

extern "C" int KDXReaderGetInfo(KDXReader* reader, KDXInfo* info) {
    if (reader == nullptr || info == nullptr)
        return KDX_ERR_ARGUMENT;
    return reader->stream.fillInfo(*info);
}

extern "C" int KDXReaderReadFrame(KDXReader* reader, KDXFrameDescriptor* descriptor) {
    if (reader == nullptr || descriptor == nullptr)
        return KDX_ERR_ARGUMENT;
    return reader->stream.readFrame(*descriptor);
}

extern "C" int KDXReaderClose(KDXReader* reader) {
    delete reader;
    return KDX_OK;
}
