// libFuzzer entry for the telemetry sample parser: any bytes are refused or read in bounds.
#include "TelemetrySampleParser.h"

#include <cmath>
#include <cstdlib>
#include <cstring>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    // A copy of exactly the input's size, so that any read past it is caught.
    std::vector<std::uint8_t> sample(data, data + size);
    KDXTextFrame frame;
    std::memset(&frame, 0, sizeof frame);
    const auto result =
        kdx::TelemetrySampleParser::parseMovTextSample(sample.data(), sample.size(), frame);
    if (result == kdx::TelemetrySampleParser::Reading) {
        // What the parser promises for every reading it gives.
        const bool finite = std::isfinite(frame.gSensorX) && std::isfinite(frame.gSensorY) &&
                            std::isfinite(frame.gSensorZ) && std::isfinite(frame.speed);
        if (!finite || std::fabs(frame.latitude) > 90.0f || std::fabs(frame.longitude) > 180.0f ||
            frame.speed < 0.0f || frame.gpsFlags > 15u)
            std::abort();
    }
    return 0;
}
