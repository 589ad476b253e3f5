#pragma once

#include "TrackTelemetrySource.h"

namespace kdx {

// Telemetry of action cameras: a GPMF metadata track (sample entry "gpmd"), one sample a
// second holding the second's GPS positions (GPS5 or GPS9) and accelerations (ACCL).
class GpmfTelemetrySource : public TrackTelemetrySource {
public:
    // The source of the recording's GPMF track, or null when it has none (a "gpmd" track
    // whose first sample is no GPMF, as some dash cameras write, is not taken).
    static std::unique_ptr<GpmfTelemetrySource>
    create(AVFormatContext* format, std::shared_ptr<BoxFile> file, std::int32_t spanMs);

    const char* kind() const override { return "GPMF"; }

protected:
    void readSample(const TrackSample& sample, const std::uint8_t* data, std::size_t size,
                    std::vector<TelemetryReading>& readings) override;

private:
    using TrackTelemetrySource::TrackTelemetrySource;
};

} // namespace kdx
