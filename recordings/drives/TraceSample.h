#pragma once

#include <QtGlobal>

// One reading of a drive's telemetry: G-sensor in g (X forward, braking negative; Y to the
// right; Z up, about +1 at rest), the speed in km/h (negative without a position) and the
// position.
struct TraceSample {
    qint64 timeMs = 0; // from the start of the drive
    float x = 0;
    float y = 0;
    float z = 1;
    float speedKmh = -1;
    // Degrees; both 0 without a position.
    float latitude = 0;
    float longitude = 0;
};
