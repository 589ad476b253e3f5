#pragma once

#include "TelemetryReading.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace kdx {

// Reads one sample of a GPMF metadata track (docs/telemetry-format.md): key-length-value
// entries, devices (DEVC) holding streams (STRM), each stream's scale (SCAL), type (TYPE)
// and orientation (ORIN) applying to its data. Positions come from GPS5 and GPS9, the
// acceleration from ACCL. Never reads past the given bytes and never trusts a length.
class GpmfParser {
public:
    // The readings of one sample, without times: the caller spreads each list over the
    // sample's duration, as the camera wrote them at an even rate.
    struct Sample {
        std::vector<TelemetryReading> positions;
        std::vector<TelemetryReading> accelerations;
    };

    // Whether bytes start as a GPMF sample does: a DEVC container that fits.
    static bool looksLikeGpmf(const std::uint8_t* data, std::size_t size);

    // Appends the sample's readings. False when the bytes are no GPMF sample; a damaged
    // stream inside one gives the readings before the damage.
    static bool parse(const std::uint8_t* data, std::size_t size, Sample& sample);
};

} // namespace kdx
