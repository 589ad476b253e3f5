#pragma once

#include "kdxstream.h"

#include <cstdint>

namespace kdx {

// Where a recording's telemetry readings come from. There is one implementation per way a
// camera stores them (our timed-text track; GPMF tracks, freeGPS blocks and NMEA sentences
// of other cameras), chosen by TelemetrySourceFinder.
class TelemetrySource {
public:
    virtual ~TelemetrySource() = default;

    // Samples the recording holds. Samples that are not readings are skipped while reading,
    // so this is an upper bound on what next() delivers.
    virtual std::uint32_t sampleCount() const = 0;

    virtual std::int32_t durationMs() const = 0;

    // The next reading, in time order: KDX_OK with the frame's time and reading fields
    // filled, KDX_ERR_END after the last one, KDX_ERR_READ when the file cannot be read.
    virtual int next(KDXTextFrame& frame) = 0;

    // A short name of the layout ("timed text", "GPMF", ...), for trace lines and tests.
    virtual const char* kind() const = 0;
};

} // namespace kdx
