#pragma once

#include "NmeaParser.h"
#include "TelemetryReading.h"

#include <vector>

namespace kdx {

// NMEA fixes as readings: the position and speed of every fix that has a position.
class NmeaFixReadings {
public:
    // Appends one reading per fix with a position, at start plus the fix's distance on the
    // receiver's clock from origin (a fix without a clock at start).
    static void append(const std::vector<NmeaParser::Fix>& fixes, std::int64_t start,
                       std::int64_t originClockMs, std::vector<TelemetryReading>& readings);

    static TelemetryReading readingOf(const NmeaParser::Fix& fix);
};

} // namespace kdx
