#include "TrackTelemetrySource.h"

#include "BoxFile.h"

extern "C" {
#include <libavformat/avformat.h>
}

namespace kdx {

TrackTelemetrySource::TrackTelemetrySource(AVFormatContext* format, int stream,
                                           std::shared_ptr<BoxFile> file, std::int32_t spanMs,
                                           std::uint32_t maxSampleSize)
    : ResampledTelemetrySource(spanMs), m_format(format), m_stream(stream), m_file(std::move(file)),
      m_maxSampleSize(maxSampleSize) {}

bool TrackTelemetrySource::sampleData(BoxFile& file, const TrackSample& sample,
                                      std::uint32_t maxSampleSize,
                                      std::vector<std::uint8_t>& data) {
    if (sample.size > maxSampleSize)
        return false;
    data.resize(sample.size);
    return file.read(sample.offset, data.data(), data.size());
}

int TrackTelemetrySource::readAll(std::vector<TelemetryReading>& readings) {
    int result = KDX_OK;
    std::vector<std::uint8_t> data;
    for (const TrackSample& sample : TrackSamples::of(m_format->streams[m_stream])) {
        // An oversized sample is damage and skipped; one that cannot be read means the file
        // ends early.
        if (sample.size > m_maxSampleSize)
            continue;
        if (!sampleData(*m_file, sample, m_maxSampleSize, data)) {
            result = KDX_ERR_READ;
            continue;
        }
        readSample(sample, data.data(), data.size(), readings);
    }
    return result;
}

} // namespace kdx
