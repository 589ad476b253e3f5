#include "NmeaTextTelemetrySource.h"

#include "BoxFile.h"
#include "ByteOrder.h"
#include "NmeaFixReadings.h"
#include "NmeaParser.h"

extern "C" {
#include <libavformat/avformat.h>
}

#include <algorithm>

namespace kdx {
namespace {

constexpr std::uint32_t kMaxSampleSize = 64u << 10;
// Samples looked at before a track counts as no NMEA track: cameras start writing
// sentences with the first second, empty ones at most before the first fix.
constexpr std::size_t kProbedSamples = 5;

bool isTextTrack(const AVStream* stream) {
    return stream->codecpar->codec_type == AVMEDIA_TYPE_SUBTITLE &&
           stream->codecpar->codec_id == AV_CODEC_ID_MOV_TEXT;
}

// A sample's text: timed-text samples start with the text's 16-bit length.
void textOf(const std::uint8_t* data, std::size_t dataSize, const char*& text, std::size_t& size) {
    text = reinterpret_cast<const char*>(data);
    size = dataSize;
    if (size >= 2 && bytes::be16(data) <= size - 2) {
        size = bytes::be16(data);
        text += 2;
    }
}

} // namespace

std::unique_ptr<NmeaTextTelemetrySource>
NmeaTextTelemetrySource::create(AVFormatContext* format, std::shared_ptr<BoxFile> file,
                                std::int32_t spanMs) {
    if (format == nullptr || !file)
        return nullptr;
    std::vector<std::uint8_t> data;
    for (unsigned i = 0; i < format->nb_streams; ++i) {
        if (!isTextTrack(format->streams[i]))
            continue;
        const std::vector<TrackSample> samples = TrackSamples::of(format->streams[i]);
        for (std::size_t k = 0; k < samples.size() && k < kProbedSamples; ++k) {
            const char* text = nullptr;
            std::size_t size = 0;
            if (!sampleData(*file, samples[k], kMaxSampleSize, data))
                continue;
            textOf(data.data(), data.size(), text, size);
            if (NmeaParser::containsSentence(text, size))
                return std::unique_ptr<NmeaTextTelemetrySource>(new NmeaTextTelemetrySource(
                    format, static_cast<int>(i), file, spanMs, kMaxSampleSize));
        }
    }
    return nullptr;
}

void NmeaTextTelemetrySource::readSample(const TrackSample& sample, const std::uint8_t* data,
                                         std::size_t dataSize,
                                         std::vector<TelemetryReading>& readings) {
    const char* text = nullptr;
    std::size_t size = 0;
    textOf(data, dataSize, text, size);
    std::vector<NmeaParser::Fix> fixes;
    NmeaParser::parse(text, size, fixes);
    if (fixes.empty())
        return;
    // A sample holding several moments spreads them by the receiver's clock, within the
    // sample.
    const std::size_t first = readings.size();
    NmeaFixReadings::append(fixes, sample.timeMs, fixes.front().clockMs(), readings);
    const std::int64_t last =
        sample.timeMs + std::max<std::int64_t>(0, std::int64_t(sample.durationMs) - 1);
    for (std::size_t k = first; k < readings.size(); ++k)
        readings[k].timeMs = std::clamp<std::int64_t>(readings[k].timeMs, sample.timeMs, last);
}

} // namespace kdx
