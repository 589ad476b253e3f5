#include "FreeGpsBlock.h"

#include "ByteOrder.h"
#include "NmeaFixReadings.h"
#include "NmeaParser.h"

#include <cmath>
#include <cstring>
#include <vector>

namespace kdx {
namespace {

constexpr std::size_t kClock = 48;        // hour, minute, second, year, month, day: 6 x uint32
constexpr std::size_t kStatus = 72;       // 'A' or 'V', then 'N'/'S', 'E'/'W'
constexpr std::size_t kValues = 76;       // latitude, longitude, speed (, track / altitude)
constexpr std::size_t kCameraClock = 52;  // NMEA text layout: YYYYMMDDHHMMSS
constexpr std::size_t kAcceleration = 68; // NMEA text layout: 3 x int32, 1/256 g
constexpr std::size_t kSentences = 80;

bool hasFixLetters(const std::uint8_t* data) {
    return (data[kStatus] == 'A' || data[kStatus] == 'V') &&
           (data[kStatus + 1] == 'N' || data[kStatus + 1] == 'S') &&
           (data[kStatus + 2] == 'E' || data[kStatus + 2] == 'W');
}

bool hasValidClock(const std::uint8_t* data) {
    const std::uint32_t hour = bytes::le32(data + kClock), minute = bytes::le32(data + kClock + 4),
                        second = bytes::le32(data + kClock + 8),
                        month = bytes::le32(data + kClock + 16),
                        day = bytes::le32(data + kClock + 20);
    return hour < 24 && minute < 60 && second < 61 && month >= 1 && month <= 12 && day >= 1 &&
           day <= 31;
}

bool hasCameraClock(const std::uint8_t* data) {
    for (std::size_t i = 0; i < 14; ++i)
        if (data[kCameraClock + i] < '0' || data[kCameraClock + i] > '9')
            return false;
    return true;
}

// [d]ddmm.mmmm as a number to degrees.
double fromDegreesMinutes(double value) {
    const double degrees = std::trunc(value / 100);
    return degrees + (value - degrees * 100) / 60;
}

bool setPosition(TelemetryReading& reading, double latitude, double longitude, double speedKmh,
                 const std::uint8_t* letters) {
    if (!std::isfinite(latitude) || !std::isfinite(longitude) || !std::isfinite(speedKmh) ||
        latitude < 0 || latitude > 90 || longitude < 0 || longitude > 180 || speedKmh < 0 ||
        speedKmh > 2000)
        return false;
    reading.fields = KDX_FIELD_POSITION | KDX_FIELD_SPEED;
    reading.latitude = letters[0] == 'S' ? -latitude : latitude;
    reading.longitude = letters[1] == 'W' ? -longitude : longitude;
    reading.speedKmh = speedKmh;
    reading.gpsFlags = gps::flags(gps::kFix3D, -1);
    return true;
}

bool parseNmeaText(const std::uint8_t* data, std::size_t size, TelemetryReading& reading) {
    std::vector<NmeaParser::Fix> fixes;
    NmeaParser::parse(reinterpret_cast<const char*>(data + kSentences), size - kSentences, fixes);
    if (fixes.empty() || !fixes.front().hasPosition)
        return false;
    reading = NmeaFixReadings::readingOf(fixes.front());
    bool plausible = true;
    float g[3];
    for (int axis = 0; axis < 3; ++axis) {
        g[axis] = static_cast<std::int32_t>(bytes::le32(data + kAcceleration + 4 * axis)) / 256.0f;
        plausible = plausible && std::fabs(g[axis]) <= 64;
    }
    if (plausible) {
        reading.fields |= KDX_FIELD_GSENSOR;
        std::memcpy(reading.gSensor, g, sizeof g);
    }
    return true;
}

} // namespace

bool FreeGpsBlock::isBlockStart(const std::uint8_t* data, std::size_t size) {
    return data != nullptr && size >= kHeaderSize && std::memcmp(data + 4, "freeGPS ", 8) == 0;
}

FreeGpsBlock::Layout FreeGpsBlock::layoutOf(const std::uint8_t* data, std::size_t size) {
    if (!isBlockStart(data, size) || size < kMinimumSize)
        return Layout::None;
    if (hasCameraClock(data))
        return Layout::NmeaText;
    if (!hasFixLetters(data) || data[kStatus + 3] != 0 || !hasValidClock(data))
        return Layout::None;
    return std::memcmp(data + 16, "IQS", 3) == 0 ? Layout::Integer : Layout::Float;
}

bool FreeGpsBlock::parse(const std::uint8_t* data, std::size_t size, TelemetryReading& reading) {
    reading = TelemetryReading();
    switch (layoutOf(data, size)) {
    case Layout::NmeaText:
        return parseNmeaText(data, size, reading);
    case Layout::Float:
        // Floats: [d]ddmm.mmmm and knots.
        return data[kStatus] == 'A' &&
               setPosition(reading, fromDegreesMinutes(bytes::leFloat(data + kValues)),
                           fromDegreesMinutes(bytes::leFloat(data + kValues + 4)),
                           double(bytes::leFloat(data + kValues + 8)) * kKnotInKmh,
                           data + kStatus + 1);
    case Layout::Integer: {
        // Integers: degrees x 1e7 without sign (the letters give it) and m/s x 100.
        const auto value = [&](std::size_t at) {
            return static_cast<double>(static_cast<std::int32_t>(bytes::le32(data + kValues + at)));
        };
        return data[kStatus] == 'A' &&
               setPosition(reading, std::fabs(value(0)) / 1e7, std::fabs(value(4)) / 1e7,
                           value(8) / 100 * kMetrePerSecondInKmh, data + kStatus + 1);
    }
    case Layout::None:
        break;
    }
    return false;
}

} // namespace kdx
