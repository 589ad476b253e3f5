#pragma once

#include "kdxstream.h"

#include <cstdint>

namespace kdx {

// One reading as a file stores it, before it is put on the player's frames: a position, an
// acceleration, or both, at its own time. Positions keep double precision so that what a
// source read can be compared digit for digit with other readers.
struct TelemetryReading {
    std::int64_t timeMs = 0;      // within the recording
    std::uint32_t durationMs = 0; // until the next reading of the same kind; set by the source
    std::uint32_t fields = 0;     // KDX_FIELD_* bits
    double latitude = 0;          // degrees, north positive
    double longitude = 0;         // degrees, east positive
    double speedKmh = 0;
    std::uint32_t gpsFlags = 0;   // fix quality in bits 0-1, satellite class in bits 2-3
    float gSensor[3] = {0, 0, 0}; // g

    bool hasPosition() const { return (fields & KDX_FIELD_POSITION) != 0; }
    bool hasGSensor() const { return (fields & KDX_FIELD_GSENSOR) != 0; }
    // A position the receiver vouches for (GPMF keeps writing its last position without a
    // fix; such readings are kept but not shown).
    bool hasFix() const { return hasPosition() && (gpsFlags & 3u) != 0; }
};

// The GPS flags of a frame, as docs/telemetry-format.md defines them.
namespace gps {
constexpr std::uint32_t kFix2D = 1;
constexpr std::uint32_t kFix3D = 2;
constexpr std::uint32_t kFixDifferential = 3;

// Satellite class (bits 2-3) of a satellite count; 0 when the count is unknown (< 0).
inline std::uint32_t satelliteClass(int satellites) {
    if (satellites < 0)
        return 0;
    return satellites < 4 ? 1u : satellites < 8 ? 2u : 3u;
}
inline std::uint32_t flags(std::uint32_t fix, int satellites) {
    return (fix & 3u) | (satelliteClass(satellites) << 2);
}
} // namespace gps

constexpr double kKnotInKmh = 1.852;
constexpr double kMetrePerSecondInKmh = 3.6;
constexpr double kStandardGravity = 9.80665; // m/s² in one g

} // namespace kdx
