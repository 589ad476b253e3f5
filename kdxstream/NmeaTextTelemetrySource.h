#pragma once

#include "TrackTelemetrySource.h"

namespace kdx {

// Telemetry as NMEA sentences in a text track (QuickTime "text") or a subtitle track
// ("tx3g"): the samples, a second apart, each hold the second's $..RMC and $..GGA.
class NmeaTextTelemetrySource : public TrackTelemetrySource {
public:
    // The source of the first text or subtitle track whose first samples hold NMEA
    // sentences; null when there is none.
    static std::unique_ptr<NmeaTextTelemetrySource>
    create(AVFormatContext* format, std::shared_ptr<BoxFile> file, std::int32_t spanMs);

    const char* kind() const override { return "NMEA text"; }

protected:
    void readSample(const TrackSample& sample, const std::uint8_t* data, std::size_t size,
                    std::vector<TelemetryReading>& readings) override;

private:
    using TrackTelemetrySource::TrackTelemetrySource;
};

} // namespace kdx
