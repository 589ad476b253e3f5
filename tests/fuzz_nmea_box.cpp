// libFuzzer entry for the NMEA box source: any file, walked as boxes, gives readings in range.
#include "BoxFile.h"
#include "NmeaBoxTelemetrySource.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <unistd.h>

namespace {

std::string scratchFile() {
    char path[] = "/tmp/fuzz_nmea_box_XXXXXX";
    const int fd = mkstemp(path);
    if (fd >= 0)
        close(fd);
    return path;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const std::string path = scratchFile();
    FILE* out = std::fopen(path.c_str(), "wb");
    if (out == nullptr)
        return 0;
    std::fwrite(data, 1, size, out);
    std::fclose(out);
    std::shared_ptr<kdx::BoxFile> file = kdx::BoxFile::open(path);
    if (!file)
        return 0;
    auto source = kdx::NmeaBoxTelemetrySource::create(file, 3000);
    if (!source)
        return 0;
    for (const kdx::TelemetryReading& reading : source->readings())
        if (std::fabs(reading.latitude) > 90 || std::fabs(reading.longitude) > 180 ||
            reading.timeMs < 0)
            std::abort();
    KDXTextFrame frame;
    int frames = 0;
    while (source->next(frame) == KDX_OK)
        ++frames;
    if (frames != 30)
        std::abort();
    return 0;
}
