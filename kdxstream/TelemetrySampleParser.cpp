#include "TelemetrySampleParser.h"

#include <cmath>
#include <cstring>

namespace kdx {
namespace {

bool isBlank(char c) {
    return c == ' ' || c == '\t';
}

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

// A view of part of the sample; the parser never copies.
struct Span {
    const char* begin;
    const char* end;

    std::size_t size() const { return static_cast<std::size_t>(end - begin); }
    bool equals(const char* text) const {
        const std::size_t n = std::strlen(text);
        return size() == n && std::memcmp(begin, text, n) == 0;
    }
};

// Decimal numbers only: [+-] 1-6 digits [. 1-9 digits]. No exponent, no "inf" or "nan", and
// no locale: a comma always separates values.
bool parseNumber(Span span, double& value) {
    const char* p = span.begin;
    bool negative = false;
    if (p != span.end && (*p == '+' || *p == '-')) {
        negative = *p == '-';
        ++p;
    }
    double whole = 0;
    int wholeDigits = 0;
    while (p != span.end && isDigit(*p)) {
        whole = whole * 10 + (*p - '0');
        ++p;
        if (++wholeDigits > 6)
            return false;
    }
    if (wholeDigits == 0)
        return false;
    double fraction = 0;
    double scale = 1;
    if (p != span.end && *p == '.') {
        ++p;
        int fractionDigits = 0;
        while (p != span.end && isDigit(*p)) {
            fraction = fraction * 10 + (*p - '0');
            scale *= 10;
            ++p;
            if (++fractionDigits > 9)
                return false;
        }
        if (fractionDigits == 0)
            return false;
    }
    if (p != span.end)
        return false;
    value = whole + fraction / scale;
    if (negative)
        value = -value;
    return true;
}

// Splits a value at commas into exactly `count` numbers, each within [low, high].
bool parseNumbers(Span value, int count, double low, double high, double* out) {
    const char* p = value.begin;
    for (int i = 0; i < count; ++i) {
        const char* comma = p;
        while (comma != value.end && *comma != ',')
            ++comma;
        const bool last = i == count - 1;
        if (last != (comma == value.end))
            return false;
        if (!parseNumber({p, comma}, out[i]) || out[i] < low || out[i] > high)
            return false;
        p = last ? comma : comma + 1;
    }
    return true;
}

bool parseFlags(Span value, std::uint32_t& flags) {
    if (value.size() != 3 || value.begin[1] != ',')
        return false;
    const char quality = value.begin[0];
    const char satellites = value.begin[2];
    if (quality < '0' || quality > '3' || satellites < '0' || satellites > '3')
        return false;
    flags = static_cast<std::uint32_t>(quality - '0') |
            (static_cast<std::uint32_t>(satellites - '0') << 2);
    return true;
}

bool isKey(Span key) {
    if (key.size() == 0 || key.size() > 8 || !(key.begin[0] >= 'A' && key.begin[0] <= 'Z'))
        return false;
    for (const char* p = key.begin; p != key.end; ++p)
        if (!((*p >= 'A' && *p <= 'Z') || isDigit(*p)))
            return false;
    return true;
}

} // namespace

TelemetrySampleParser::Result TelemetrySampleParser::parseText(const char* text, std::size_t length,
                                                               KDXTextFrame& frame) {
    if (length > kMaxTextLength)
        return Malformed;
    const char* p = text;
    const char* end = text + length;
    // A line end may close the sample; nothing may follow it.
    while (end != p && (end[-1] == '\n' || end[-1] == '\r'))
        --end;
    while (p != end && isBlank(*p))
        ++p;
    while (end != p && isBlank(end[-1]))
        --end;
    if (p == end)
        return length == 0 ? Empty : Malformed;

    bool haveG = false, haveGps = false, haveSpeed = false, haveFlags = false;
    bool hasPosition = false;
    double g[3] = {0, 0, 0};
    double position[2] = {0, 0};
    double speed = 0;
    std::uint32_t flags = 0;

    while (p != end) {
        const char* fieldEnd = p;
        while (fieldEnd != end && !isBlank(*fieldEnd))
            ++fieldEnd;
        const char* equals = static_cast<const char*>(std::memchr(p, '=', fieldEnd - p));
        if (equals == nullptr)
            return Malformed;
        const Span key{p, equals};
        const Span value{equals + 1, fieldEnd};
        if (!isKey(key))
            return Malformed;

        if (key.equals("G")) {
            if (haveG || !parseNumbers(value, 3, -64.0, 64.0, g))
                return Malformed;
            haveG = true;
        } else if (key.equals("GPS")) {
            if (haveGps)
                return Malformed;
            haveGps = true;
            if (!value.equals("-")) {
                // Longitude's range first, then latitude's narrower one.
                if (!parseNumbers(value, 2, -180.0, 180.0, position) ||
                    std::fabs(position[0]) > 90.0)
                    return Malformed;
                hasPosition = true;
            }
        } else if (key.equals("SPD")) {
            if (haveSpeed || !parseNumbers(value, 1, 0.0, 1000.0, &speed))
                return Malformed;
            haveSpeed = true;
        } else if (key.equals("FIX")) {
            if (haveFlags || !parseFlags(value, flags))
                return Malformed;
            haveFlags = true;
        } else if (value.size() == 0) {
            return Malformed; // unknown keys are skipped, but must still look like fields
        }

        p = fieldEnd;
        while (p != end && isBlank(*p))
            ++p;
    }
    if (!haveG || !haveGps)
        return Malformed;

    if (!haveFlags)
        flags = hasPosition ? 2u : 0u;
    frame.fields = KDX_FIELD_GSENSOR | (hasPosition ? KDX_FIELD_POSITION : 0u) |
                   (haveSpeed ? KDX_FIELD_SPEED : 0u);
    frame.gSensorX = static_cast<float>(g[0]);
    frame.gSensorY = static_cast<float>(g[1]);
    frame.gSensorZ = static_cast<float>(g[2]);
    frame.gpsFlags = flags;
    frame.speed = static_cast<float>(speed);
    frame.latitude = static_cast<float>(position[0]);
    frame.longitude = static_cast<float>(position[1]);
    return Reading;
}

TelemetrySampleParser::Result TelemetrySampleParser::parseMovTextSample(const std::uint8_t* data,
                                                                        std::size_t size,
                                                                        KDXTextFrame& frame) {
    if (data == nullptr || size < 2)
        return Malformed;
    const std::size_t textLength = (std::size_t(data[0]) << 8) | data[1];
    if (textLength > size - 2)
        return Malformed;
    return parseText(reinterpret_cast<const char*>(data + 2), textLength, frame);
}

} // namespace kdx
