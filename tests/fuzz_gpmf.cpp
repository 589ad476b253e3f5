// libFuzzer entry for the GPMF parser: any bytes are read or refused in bounds, readings in
// range, and frames made of them.
#include "GpmfParser.h"
#include "ReadingGrid.h"

#include <cmath>
#include <cstdlib>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::vector<std::uint8_t> sample(data, data + size);
    kdx::GpmfParser::Sample parsed;
    if (!kdx::GpmfParser::parse(sample.data(), sample.size(), parsed))
        return 0;
    std::vector<kdx::TelemetryReading> readings;
    for (kdx::TelemetryReading reading : parsed.positions) {
        if (std::fabs(reading.latitude) > 90 || std::fabs(reading.longitude) > 180 ||
            !(reading.speedKmh >= 0) || reading.gpsFlags > 15u)
            std::abort();
        reading.timeMs = static_cast<std::int64_t>(readings.size()) * 37;
        readings.push_back(reading);
    }
    for (kdx::TelemetryReading reading : parsed.accelerations) {
        for (float g : reading.gSensor)
            if (!std::isfinite(g) || std::fabs(g) > 64)
                std::abort();
        reading.timeMs = static_cast<std::int64_t>(readings.size()) * 11;
        readings.push_back(reading);
    }
    kdx::ReadingGrid::setDurations(readings);
    kdx::ReadingGrid frames(&readings, 5000);
    KDXTextFrame frame;
    while (frames.next(frame))
        if (!std::isfinite(frame.gSensorX) || std::fabs(frame.latitude) > 90.0f)
            std::abort();
    return 0;
}
