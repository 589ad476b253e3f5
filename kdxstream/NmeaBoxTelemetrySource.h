#pragma once

#include "ResampledTelemetrySource.h"

#include <memory>

namespace kdx {

class BoxFile;

// Telemetry as an NMEA log in a top-level box: a "udat" box holding the recording's
// sentences, or a "free" box whose "gps " child holds them, each line after the camera's
// millisecond clock in brackets, with the clock at the start of the recording in the
// "sttm" child. Readings are placed by those clocks, or without them by the receiver's.
class NmeaBoxTelemetrySource : public ResampledTelemetrySource {
public:
    static std::unique_ptr<NmeaBoxTelemetrySource> create(std::shared_ptr<BoxFile> file,
                                                          std::int32_t spanMs);

    const char* kind() const override { return "NMEA box"; }

protected:
    int readAll(std::vector<TelemetryReading>& readings) override;

private:
    NmeaBoxTelemetrySource(std::shared_ptr<BoxFile> file, std::int64_t logOffset,
                           std::int64_t logSize, std::int64_t startClockMs, std::int32_t spanMs);

    std::shared_ptr<BoxFile> m_file;
    std::int64_t m_logOffset;
    std::int64_t m_logSize;
    std::int64_t m_startClockMs; // "sttm", -1 without
};

} // namespace kdx
