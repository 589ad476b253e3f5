// libFuzzer entry for freeGPS blocks: one layout or refused, read in bounds, readings in range.
#include "FreeGpsBlock.h"

#include <cmath>
#include <cstdlib>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::vector<std::uint8_t> block(data, data + size);
    kdx::TelemetryReading reading;
    const auto layout = kdx::FreeGpsBlock::layoutOf(block.data(), block.size());
    if (!kdx::FreeGpsBlock::parse(block.data(), block.size(), reading))
        return 0;
    if (layout == kdx::FreeGpsBlock::Layout::None || !reading.hasPosition() ||
        std::fabs(reading.latitude) > 90 || std::fabs(reading.longitude) > 180 ||
        !(reading.speedKmh >= 0) || reading.gpsFlags > 15u)
        std::abort();
    for (float g : reading.gSensor)
        if (!std::isfinite(g) || std::fabs(g) > 64)
            std::abort();
    return 0;
}
