#include "NmeaFixReadings.h"

namespace kdx {

TelemetryReading NmeaFixReadings::readingOf(const NmeaParser::Fix& fix) {
    TelemetryReading reading;
    reading.fields = KDX_FIELD_POSITION;
    reading.latitude = fix.latitude;
    reading.longitude = fix.longitude;
    reading.gpsFlags = gps::flags(fix.fix, fix.satellites);
    if (fix.hasSpeed) {
        reading.fields |= KDX_FIELD_SPEED;
        reading.speedKmh = fix.speedKmh;
    }
    return reading;
}

void NmeaFixReadings::append(const std::vector<NmeaParser::Fix>& fixes, std::int64_t start,
                             std::int64_t originClockMs, std::vector<TelemetryReading>& readings) {
    for (const NmeaParser::Fix& fix : fixes) {
        if (!fix.hasPosition)
            continue;
        TelemetryReading reading = readingOf(fix);
        const std::int64_t clock = fix.clockMs();
        reading.timeMs = start + (clock >= 0 && originClockMs >= 0 ? clock - originClockMs : 0);
        readings.push_back(reading);
    }
}

} // namespace kdx
