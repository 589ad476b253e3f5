// libFuzzer entry for the NMEA parser: any text gives fixes in range or none, read in bounds.
#include "NmeaParser.h"

#include <cmath>
#include <cstdlib>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::vector<char> text(data, data + size);
    std::vector<kdx::NmeaParser::Fix> fixes;
    kdx::NmeaParser::parse(text.data(), text.size(), fixes);
    for (const kdx::NmeaParser::Fix& fix : fixes) {
        if (fix.timeOfDayMs < 0 || fix.timeOfDayMs > 86401000 || fix.fix > 3u)
            std::abort();
        if (fix.hasPosition && (std::fabs(fix.latitude) > 90 || std::fabs(fix.longitude) > 180))
            std::abort();
        if (fix.hasSpeed && !(fix.speedKmh >= 0 && std::isfinite(fix.speedKmh)))
            std::abort();
    }
    return 0;
}
