#include "GpmfParser.h"

#include "ByteOrder.h"

#include <cmath>
#include <cstring>
#include <string>

namespace kdx {
namespace {

constexpr int kMaxDepth = 4; // DEVC > STRM > values; a little room for nesting beyond
constexpr std::size_t kMaxScales = 32;

struct Entry {
    char key[4];
    char type;
    std::size_t structSize;
    std::size_t repeat;
    const std::uint8_t* data;
    std::size_t dataSize;
};

// The next entry at p; false when the header or the data does not fit.
bool readEntry(const std::uint8_t* p, std::size_t left, Entry& entry, std::size_t& advance) {
    if (left < 8)
        return false;
    std::memcpy(entry.key, p, 4);
    entry.type = static_cast<char>(p[4]);
    entry.structSize = p[5];
    entry.repeat = bytes::be16(p + 6);
    entry.dataSize = entry.structSize * entry.repeat;
    const std::size_t padded = (entry.dataSize + 3) & ~std::size_t(3);
    if (padded > left - 8)
        return false;
    entry.data = p + 8;
    advance = 8 + padded;
    return true;
}

bool keyIs(const Entry& entry, const char* key) {
    return std::memcmp(entry.key, key, 4) == 0;
}

// The width of a value type, 0 for types that are not numbers.
std::size_t widthOf(char type) {
    switch (type) {
    case 'b':
    case 'B':
        return 1;
    case 's':
    case 'S':
        return 2;
    case 'l':
    case 'L':
    case 'f':
    case 'q':
        return 4;
    case 'd':
    case 'j':
    case 'J':
    case 'Q':
        return 8;
    default:
        return 0;
    }
}

double valueAt(char type, const std::uint8_t* p) {
    switch (type) {
    case 'b':
        return static_cast<std::int8_t>(p[0]);
    case 'B':
        return p[0];
    case 's':
        return static_cast<std::int16_t>(bytes::be16(p));
    case 'S':
        return bytes::be16(p);
    case 'l':
        return static_cast<std::int32_t>(bytes::be32(p));
    case 'L':
        return bytes::be32(p);
    case 'f':
        return bytes::beFloat(p);
    case 'q':
        return static_cast<std::int32_t>(bytes::be32(p)) / 65536.0;
    case 'd':
        return bytes::beDouble(p);
    case 'j':
        return static_cast<double>(static_cast<std::int64_t>(bytes::be64(p)));
    case 'J':
        return static_cast<double>(bytes::be64(p));
    case 'Q':
        return static_cast<std::int64_t>(bytes::be64(p)) / 4294967296.0;
    default:
        return 0;
    }
}

// What the entries before a stream's data said about it.
struct StreamState {
    double scales[kMaxScales];
    std::size_t scaleCount = 0;
    std::string complexType; // TYPE: the element types of a '?' structure
    std::string orientation; // ORIN: which camera axis each ACCL value is
    int gpsFix = -1;         // GPSF: 0 none, 2 2-D, 3 3-D; -1 not said
};

// The values of one structure (one reading) of an entry, scaled. False when the entry's
// layout cannot be read as numbers.
bool structValues(const Entry& entry, const StreamState& state, std::size_t index, double* values,
                  std::size_t wanted) {
    const std::uint8_t* p = entry.data + index * entry.structSize;
    std::size_t offset = 0;
    for (std::size_t k = 0; k < wanted; ++k) {
        const char type = entry.type == '?'
                              ? (k < state.complexType.size() ? state.complexType[k] : '\0')
                              : entry.type;
        const std::size_t width = widthOf(type);
        if (width == 0 || offset + width > entry.structSize)
            return false;
        double value = valueAt(type, p + offset);
        offset += width;
        if (state.scaleCount > 0) {
            const double scale = state.scales[k % state.scaleCount];
            if (scale == 0)
                return false;
            value /= scale;
        }
        values[k] = value;
    }
    return true;
}

std::uint32_t fixFlag(int gpsFix) {
    return gpsFix == 3 ? gps::kFix3D : gpsFix == 2 ? gps::kFix2D : 0u;
}

void addPosition(GpmfParser::Sample& sample, double latitude, double longitude,
                 double speedMetresPerSecond, std::uint32_t fix) {
    if (!std::isfinite(latitude) || !std::isfinite(longitude) || std::fabs(latitude) > 90 ||
        std::fabs(longitude) > 180 || !std::isfinite(speedMetresPerSecond))
        return;
    TelemetryReading reading;
    reading.fields = KDX_FIELD_POSITION | KDX_FIELD_SPEED;
    reading.latitude = latitude;
    reading.longitude = longitude;
    reading.speedKmh = std::fabs(speedMetresPerSecond) * kMetrePerSecondInKmh;
    reading.gpsFlags = gps::flags(fix, -1);
    sample.positions.push_back(reading);
}

void readGps5(const Entry& entry, const StreamState& state, GpmfParser::Sample& sample) {
    // Latitude, longitude, altitude, 2-D speed, 3-D speed.
    double values[5];
    // Without GPSF the stream gives no fix state: a position is taken as a fix.
    const std::uint32_t fix = state.gpsFix < 0 ? gps::kFix3D : fixFlag(state.gpsFix);
    for (std::size_t i = 0; i < entry.repeat; ++i)
        if (structValues(entry, state, i, values, 5))
            addPosition(sample, values[0], values[1], values[3], fix);
}

void readGps9(const Entry& entry, const StreamState& state, GpmfParser::Sample& sample) {
    // Latitude, longitude, altitude, 2-D speed, 3-D speed, days, seconds, DOP, fix.
    double values[9];
    for (std::size_t i = 0; i < entry.repeat; ++i)
        if (structValues(entry, state, i, values, 9))
            addPosition(sample, values[0], values[1], values[3], fixFlag(int(values[8])));
}

// Which of X, Y, Z (0-2) a stored value is, and its sign, from ORIN; the stored order
// without one.
bool axisOf(const std::string& orientation, std::size_t index, int& axis, double& sign) {
    if (orientation.size() != 3) {
        axis = static_cast<int>(index);
        sign = 1;
        return true;
    }
    const char letter = orientation[index];
    const char upper = (letter >= 'x' && letter <= 'z') ? static_cast<char>(letter - 32) : letter;
    if (upper < 'X' || upper > 'Z')
        return false;
    axis = upper - 'X';
    sign = letter == upper ? 1 : -1;
    return true;
}

void readAccl(const Entry& entry, const StreamState& state, GpmfParser::Sample& sample) {
    double values[3];
    int axes[3];
    double signs[3];
    for (std::size_t k = 0; k < 3; ++k)
        if (!axisOf(state.orientation, k, axes[k], signs[k]))
            return;
    if (axes[0] == axes[1] || axes[1] == axes[2] || axes[0] == axes[2])
        return;
    for (std::size_t i = 0; i < entry.repeat; ++i) {
        if (!structValues(entry, state, i, values, 3))
            continue;
        TelemetryReading reading;
        bool plausible = true;
        for (std::size_t k = 0; k < 3; ++k) {
            // m/s² to g; a sensor reads a few g, a damaged value anything.
            const double g = signs[k] * values[k] / kStandardGravity;
            plausible = plausible && std::isfinite(g) && std::fabs(g) <= 64;
            reading.gSensor[axes[k]] = static_cast<float>(g);
        }
        if (!plausible)
            continue;
        reading.fields = KDX_FIELD_GSENSOR;
        sample.accelerations.push_back(reading);
    }
}

std::string textOf(const Entry& entry) {
    std::string text(reinterpret_cast<const char*>(entry.data), entry.dataSize);
    const std::size_t end = text.find('\0');
    return end == std::string::npos ? text : text.substr(0, end);
}

bool walk(const std::uint8_t* p, std::size_t size, int depth, GpmfParser::Sample& sample) {
    if (depth > kMaxDepth)
        return false;
    StreamState state;
    std::size_t advance = 0;
    for (std::size_t at = 0; at + 8 <= size; at += advance) {
        Entry entry;
        if (!readEntry(p + at, size - at, entry, advance))
            return false;
        if (entry.type == '\0') {
            if (!walk(entry.data, entry.dataSize, depth + 1, sample))
                return false;
        } else if (keyIs(entry, "SCAL")) {
            const std::size_t width = widthOf(entry.type);
            state.scaleCount = 0;
            for (std::size_t i = 0; width > 0 && i < entry.repeat && i < kMaxScales; ++i)
                if (entry.structSize >= width)
                    state.scales[state.scaleCount++] =
                        valueAt(entry.type, entry.data + i * entry.structSize);
        } else if (keyIs(entry, "TYPE") && entry.type == 'c') {
            state.complexType = textOf(entry);
        } else if (keyIs(entry, "ORIN") && entry.type == 'c') {
            state.orientation = textOf(entry);
        } else if (keyIs(entry, "GPSF") && widthOf(entry.type) > 0 &&
                   entry.dataSize >= widthOf(entry.type)) {
            state.gpsFix = static_cast<int>(valueAt(entry.type, entry.data));
        } else if (keyIs(entry, "GPS5")) {
            readGps5(entry, state, sample);
        } else if (keyIs(entry, "GPS9")) {
            readGps9(entry, state, sample);
        } else if (keyIs(entry, "ACCL")) {
            readAccl(entry, state, sample);
        }
    }
    return true;
}

} // namespace

bool GpmfParser::looksLikeGpmf(const std::uint8_t* data, std::size_t size) {
    Entry entry;
    std::size_t advance = 0;
    return data != nullptr && readEntry(data, size, entry, advance) && keyIs(entry, "DEVC") &&
           entry.type == '\0';
}

bool GpmfParser::parse(const std::uint8_t* data, std::size_t size, Sample& sample) {
    if (!looksLikeGpmf(data, size))
        return false;
    // Devices follow one another; one that is damaged ends the sample, keeping what came
    // before it.
    walk(data, size, 0, sample);
    return true;
}

} // namespace kdx
