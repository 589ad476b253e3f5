#pragma once

#include "ResampledTelemetrySource.h"
#include "TrackSamples.h"

#include <memory>

struct AVFormatContext;

namespace kdx {

class BoxFile;

// A resampled source that reads one track of the recording sample by sample: each sample's
// bytes are read directly from the file where the demuxer's index puts them.
class TrackTelemetrySource : public ResampledTelemetrySource {
protected:
    TrackTelemetrySource(AVFormatContext* format, int stream, std::shared_ptr<BoxFile> file,
                         std::int32_t spanMs, std::uint32_t maxSampleSize);

    // Appends the readings of one sample, timed within it.
    virtual void readSample(const TrackSample& sample, const std::uint8_t* data, std::size_t size,
                            std::vector<TelemetryReading>& readings) = 0;

    // The bytes of a sample no larger than maxSampleSize; false when it is larger or cannot
    // be read (beyond the end of a file cut short).
    static bool sampleData(BoxFile& file, const TrackSample& sample, std::uint32_t maxSampleSize,
                           std::vector<std::uint8_t>& data);

private:
    int readAll(std::vector<TelemetryReading>& readings) final;

    AVFormatContext* m_format;
    int m_stream;
    std::shared_ptr<BoxFile> m_file;
    std::uint32_t m_maxSampleSize;
};

} // namespace kdx
