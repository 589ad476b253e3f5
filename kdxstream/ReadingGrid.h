#pragma once

#include "TelemetryReading.h"
#include "kdxstream.h"

#include <cstdint>
#include <vector>

namespace kdx {

// Puts readings of any rate on the frames the player uses: one frame every 100 ms from the
// start of the recording to its end, as the camera's own telemetry comes. The chart and the
// map find a frame by its share of the recording's length, so foreign telemetry, which
// comes at 1 Hz, 18 Hz or 200 Hz, is brought to that same step.
//
// A frame's acceleration is the mean of the readings within its 100 ms; without one, the
// last reading before it stands for as long as that reading lasts. Its position is the last
// position with a fix read up to its end, held for as long as that position lasts but never
// longer than kMaxHoldMs (a receiver that stops reporting has lost its fix). Positions are
// never interpolated: the map shows where the receiver said the car was.
class ReadingGrid {
public:
    static constexpr std::int64_t kStepMs = 100;
    static constexpr std::uint32_t kMaxHoldMs = 2000;

    // readings in time order; spanMs: the recording's length (frames cover it all).
    ReadingGrid(const std::vector<TelemetryReading>* readings, std::int32_t spanMs);

    static std::uint32_t frameCount(std::int32_t spanMs);

    // The next frame: true with frame filled, false after the last.
    bool next(KDXTextFrame& frame);

    // Sets each reading's duration: the time to the next reading of the same kind, the
    // last one of a kind lasting as long as the one before it (1 s when it is alone).
    static void setDurations(std::vector<TelemetryReading>& readings);

private:
    bool holds(const TelemetryReading& reading, std::int64_t at) const;

    const std::vector<TelemetryReading>* m_readings;
    std::uint32_t m_count;
    std::uint32_t m_index = 0;
    std::size_t m_cursor = 0; // first reading not yet before the current frame
    long m_lastGSensor = -1;  // last acceleration before the current frame
    long m_lastPosition = -1; // last position with a fix before the current frame
};

} // namespace kdx
