#pragma once

#include "kdxstream.h"

#include <cstddef>
#include <cstdint>

namespace kdx {

// Reads one telemetry sample of the timed-text syntax (docs/telemetry-format.md) into the
// reading fields of a text frame. Never reads past the given length and never allocates,
// so it is safe on any bytes a file may hold.
class TelemetrySampleParser {
public:
    enum Result {
        Reading,   // a complete reading; frame filled
        Empty,     // an empty sample (a gap in the track), not a reading
        Malformed, // anything else; frame contents unspecified
    };

    // One line of sample text, without the timed-text framing. A trailing line end and
    // surrounding blanks are allowed.
    static Result parseText(const char* text, std::size_t length, KDXTextFrame& frame);

    // A whole MP4 timed-text sample: a 16-bit big-endian text length, the text, then
    // optional style boxes, which are ignored.
    static Result parseMovTextSample(const std::uint8_t* data, std::size_t size,
                                     KDXTextFrame& frame);

    // Longest sample text accepted; real samples are under 100 bytes.
    static constexpr std::size_t kMaxTextLength = 512;
};

} // namespace kdx
