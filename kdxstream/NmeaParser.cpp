#include "NmeaParser.h"

#include "TelemetryReading.h"

#include <cmath>
#include <cstring>

namespace kdx {
namespace {

constexpr int kMaxFields = 24;

struct Field {
    const char* begin;
    std::size_t size;
    bool empty() const { return size == 0; }
};

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

int hexValue(char c) {
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'A' && c <= 'F')
        return c - 'A' + 10;
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    return -1;
}

// A plain decimal: digits, optionally a dot and digits. Exact for the 15 digits a
// receiver writes: the digits make an integer, divided once by a power of ten.
bool parseDecimal(Field field, double& value) {
    if (field.empty() || field.size > 20)
        return false;
    std::uint64_t digits = 0;
    int count = 0;
    int fraction = -1;
    for (std::size_t i = 0; i < field.size; ++i) {
        const char c = field.begin[i];
        if (c == '.' && fraction < 0) {
            fraction = 0;
            continue;
        }
        if (!isDigit(c) || ++count > 18)
            return false;
        digits = digits * 10 + static_cast<std::uint64_t>(c - '0');
        if (fraction >= 0)
            ++fraction;
    }
    if (count == 0)
        return false;
    value = static_cast<double>(digits) / std::pow(10.0, fraction > 0 ? fraction : 0);
    return true;
}

bool parseUnsigned(Field field, int maxDigits, int& value) {
    if (field.empty() || field.size > static_cast<std::size_t>(maxDigits))
        return false;
    value = 0;
    for (std::size_t i = 0; i < field.size; ++i) {
        if (!isDigit(field.begin[i]))
            return false;
        value = value * 10 + (field.begin[i] - '0');
    }
    return true;
}

// [d]ddmm.mmmm: the last two digits before the dot and the fraction are minutes.
bool parseAngle(Field field, Field hemisphere, int maxDegrees, char positive, char negative,
                double& degrees) {
    const char* dot = static_cast<const char*>(std::memchr(field.begin, '.', field.size));
    if (dot == nullptr || dot - field.begin < 1 || hemisphere.size != 1)
        return false;
    const std::size_t whole = static_cast<std::size_t>(dot - field.begin);
    const std::size_t degreeDigits = whole > 2 ? whole - 2 : 0;
    int wholeDegrees = 0;
    if (degreeDigits > 0 && !parseUnsigned({field.begin, degreeDigits}, 3, wholeDegrees))
        return false;
    double minutes = 0;
    if (!parseDecimal({field.begin + degreeDigits, field.size - degreeDigits}, minutes) ||
        minutes >= 60 || field.size - whole < 2)
        return false;
    degrees = wholeDegrees + minutes / 60;
    if (degrees > maxDegrees)
        return false;
    if (hemisphere.begin[0] == negative)
        degrees = -degrees;
    else if (hemisphere.begin[0] != positive)
        return false;
    return true;
}

bool parseTime(Field field, int& timeOfDayMs) {
    int hms = 0;
    if (field.size < 6 || !parseUnsigned({field.begin, 6}, 6, hms))
        return false;
    double fraction = 0;
    if (field.size > 6) {
        if (field.begin[6] != '.' || !parseDecimal({field.begin + 6, field.size - 6}, fraction))
            return false;
    }
    const int hours = hms / 10000, minutes = hms / 100 % 100, seconds = hms % 100;
    if (hours > 23 || minutes > 59 || seconds > 60)
        return false;
    timeOfDayMs = ((hours * 60 + minutes) * 60 + seconds) * 1000 +
                  static_cast<int>(std::lround(fraction * 1000));
    return true;
}

// Days from 2000-01-01 to a civil date (proleptic Gregorian).
int daysSince2000(int year, int month, int day) {
    year -= month <= 2;
    const int era = (year >= 0 ? year : year - 399) / 400;
    const int yearOfEra = year - era * 400;
    const int dayOfYear = (153 * (month + (month > 2 ? -3 : 9)) + 2) / 5 + day - 1;
    const int dayOfEra = yearOfEra * 365 + yearOfEra / 4 - yearOfEra / 100 + dayOfYear;
    return era * 146097 + dayOfEra - 730425; // 730425: 2000-01-01 from 0000-03-01
}

bool parseDate(Field field, int& day) {
    int ddmmyy = 0;
    if (field.size != 6 || !parseUnsigned(field, 6, ddmmyy))
        return false;
    const int dd = ddmmyy / 10000, mm = ddmmyy / 100 % 100, yy = ddmmyy % 100;
    if (dd < 1 || dd > 31 || mm < 1 || mm > 12)
        return false;
    day = daysSince2000(yy >= 70 ? 1900 + yy : 2000 + yy, mm, dd);
    return true;
}

enum class Kind { None, Rmc, Gga };

// Splits a sentence ("$GPRMC,...*hh" without the line end) into fields after checking its
// checksum; fields[0] is the address.
Kind splitSentence(const char* begin, std::size_t size, Field* fields, int& count) {
    if (size < 7 || begin[0] != '$')
        return Kind::None;
    std::size_t end = size;
    const char* star = static_cast<const char*>(std::memchr(begin, '*', size));
    if (star != nullptr) {
        end = static_cast<std::size_t>(star - begin);
        if (size - end < 3)
            return Kind::None;
        const int high = hexValue(star[1]), low = hexValue(star[2]);
        if (high < 0 || low < 0)
            return Kind::None;
        unsigned checksum = 0;
        for (std::size_t i = 1; i < end; ++i)
            checksum ^= static_cast<unsigned char>(begin[i]);
        if (checksum != static_cast<unsigned>(high * 16 + low))
            return Kind::None;
    }
    count = 0;
    std::size_t start = 1;
    for (std::size_t i = 1; i <= end && count < kMaxFields; ++i) {
        if (i == end || begin[i] == ',') {
            fields[count++] = {begin + start, i - start};
            start = i + 1;
        }
    }
    const Field address = fields[0];
    if (address.size != 5 || address.begin[0] < 'A' || address.begin[0] > 'Z' ||
        address.begin[1] < 'A' || address.begin[1] > 'Z')
        return Kind::None;
    if (std::memcmp(address.begin + 2, "RMC", 3) == 0)
        return count >= 10 ? Kind::Rmc : Kind::None;
    if (std::memcmp(address.begin + 2, "GGA", 3) == 0)
        return count >= 8 ? Kind::Gga : Kind::None;
    return Kind::None;
}

bool readRmc(const Field* f, NmeaParser::Fix& fix) {
    if (!parseTime(f[1], fix.timeOfDayMs))
        return false;
    if (!f[9].empty() && !parseDate(f[9], fix.day))
        return false;
    // "A" is a valid fix, "V" a warning; some receivers leave the field empty with a fix.
    const bool valid = f[2].empty() || (f[2].size == 1 && f[2].begin[0] == 'A');
    if (valid && !f[3].empty() && parseAngle(f[3], f[4], 90, 'N', 'S', fix.latitude) &&
        parseAngle(f[5], f[6], 180, 'E', 'W', fix.longitude)) {
        fix.hasPosition = true;
        if (fix.fix == 0)
            fix.fix = gps::kFix3D;
    }
    double knots = 0;
    if (!f[7].empty() && parseDecimal(f[7], knots)) {
        fix.hasSpeed = true;
        fix.speedKmh = knots * kKnotInKmh;
    }
    return true;
}

bool readGga(const Field* f, NmeaParser::Fix& fix) {
    if (!parseTime(f[1], fix.timeOfDayMs))
        return false;
    int quality = 0;
    if (!f[6].empty() && !parseUnsigned(f[6], 1, quality))
        return false;
    int satellites = 0;
    if (!f[7].empty() && parseUnsigned(f[7], 2, satellites))
        fix.satellites = satellites;
    double latitude = 0, longitude = 0;
    if (quality >= 1 && parseAngle(f[2], f[3], 90, 'N', 'S', latitude) &&
        parseAngle(f[4], f[5], 180, 'E', 'W', longitude)) {
        fix.hasPosition = true;
        fix.latitude = latitude;
        fix.longitude = longitude;
        fix.fix = quality == 2 ? gps::kFixDifferential : gps::kFix3D;
    }
    return true;
}

// "[digits]" right before a sentence: the camera's millisecond clock.
std::int64_t timecodeBefore(const char* text, std::size_t dollar) {
    if (dollar < 3 || text[dollar - 1] != ']')
        return -1;
    std::size_t open = dollar - 1;
    std::int64_t value = 0, scale = 1;
    while (open > 0 && isDigit(text[open - 1]) && dollar - open < 19) {
        --open;
        value += (text[open] - '0') * scale;
        scale *= 10;
    }
    if (open == 0 || text[open - 1] != '[' || open == dollar - 1)
        return -1;
    return value;
}

} // namespace

std::int64_t NmeaParser::Fix::clockMs() const {
    if (timeOfDayMs < 0)
        return -1;
    return static_cast<std::int64_t>(day < 0 ? 0 : day) * 86400000 + timeOfDayMs;
}

void NmeaParser::parse(const char* text, std::size_t size, std::vector<Fix>& fixes) {
    if (text == nullptr)
        return;
    bool merging = false; // whether the last fix came from this text
    for (std::size_t at = 0; at < size; ++at) {
        if (text[at] != '$')
            continue;
        std::size_t end = at + 1;
        while (end < size && end - at < kMaxSentence && text[end] != '$' && text[end] != '\r' &&
               text[end] != '\n' && text[end] != '\0')
            ++end;
        Field fields[kMaxFields];
        int count = 0;
        const Kind kind = splitSentence(text + at, end - at, fields, count);
        if (kind == Kind::None)
            continue;
        Fix sentence;
        sentence.timecodeMs = timecodeBefore(text, at);
        if (!(kind == Kind::Rmc ? readRmc(fields, sentence) : readGga(fields, sentence)))
            continue;
        Fix* last = merging && !fixes.empty() ? &fixes.back() : nullptr;
        if (last != nullptr && last->timeOfDayMs == sentence.timeOfDayMs) {
            // The same moment: what one sentence lacks the other gives.
            if (!last->hasPosition && sentence.hasPosition) {
                last->hasPosition = true;
                last->latitude = sentence.latitude;
                last->longitude = sentence.longitude;
            }
            if (sentence.hasPosition && sentence.fix > last->fix)
                last->fix = sentence.fix;
            if (!last->hasSpeed && sentence.hasSpeed) {
                last->hasSpeed = true;
                last->speedKmh = sentence.speedKmh;
            }
            if (last->day < 0)
                last->day = sentence.day;
            if (last->satellites < 0)
                last->satellites = sentence.satellites;
            if (last->timecodeMs < 0)
                last->timecodeMs = sentence.timecodeMs;
        } else {
            fixes.push_back(sentence);
            merging = true;
        }
        at = end - 1;
    }
}

bool NmeaParser::containsSentence(const char* text, std::size_t size) {
    std::vector<Fix> fixes;
    parse(text, size, fixes);
    return !fixes.empty();
}

} // namespace kdx
