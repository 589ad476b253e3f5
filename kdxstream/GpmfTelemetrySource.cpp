#include "GpmfTelemetrySource.h"

#include "BoxFile.h"
#include "GpmfParser.h"

extern "C" {
#include <libavformat/avformat.h>
}

namespace kdx {
namespace {

// A second of GPMF is a few kilobytes; anything far larger is damage.
constexpr std::uint32_t kMaxSampleSize = 4u << 20;

bool isGpmdTrack(const AVStream* stream) {
    return stream->codecpar->codec_tag == MKTAG('g', 'p', 'm', 'd');
}

// Spreads a sample's readings evenly over its duration, as the camera took them.
void place(std::vector<TelemetryReading>& from, const TrackSample& sample,
           std::vector<TelemetryReading>& readings) {
    for (std::size_t i = 0; i < from.size(); ++i) {
        from[i].timeMs = sample.timeMs + static_cast<std::int64_t>(sample.durationMs) *
                                             static_cast<std::int64_t>(i) /
                                             static_cast<std::int64_t>(from.size());
        readings.push_back(from[i]);
    }
}

} // namespace

std::unique_ptr<GpmfTelemetrySource> GpmfTelemetrySource::create(AVFormatContext* format,
                                                                 std::shared_ptr<BoxFile> file,
                                                                 std::int32_t spanMs) {
    if (format == nullptr || !file)
        return nullptr;
    std::vector<std::uint8_t> data;
    for (unsigned i = 0; i < format->nb_streams; ++i) {
        if (!isGpmdTrack(format->streams[i]))
            continue;
        // The first sample that can be read tells whether the track is GPMF.
        for (const TrackSample& sample : TrackSamples::of(format->streams[i])) {
            if (!sampleData(*file, sample, kMaxSampleSize, data))
                continue;
            if (!GpmfParser::looksLikeGpmf(data.data(), data.size()))
                break;
            return std::unique_ptr<GpmfTelemetrySource>(
                new GpmfTelemetrySource(format, static_cast<int>(i), file, spanMs, kMaxSampleSize));
        }
    }
    return nullptr;
}

void GpmfTelemetrySource::readSample(const TrackSample& sample, const std::uint8_t* data,
                                     std::size_t size, std::vector<TelemetryReading>& readings) {
    GpmfParser::Sample parsed;
    if (!GpmfParser::parse(data, size, parsed))
        return;
    place(parsed.positions, sample, readings);
    place(parsed.accelerations, sample, readings);
}

} // namespace kdx
