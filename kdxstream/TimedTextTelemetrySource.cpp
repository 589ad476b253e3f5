#include "TimedTextTelemetrySource.h"

#include "Milliseconds.h"
#include "TelemetrySampleParser.h"

extern "C" {
#include <libavformat/avformat.h>
}

#include <climits>
#include <cstring>

namespace kdx {

std::unique_ptr<TimedTextTelemetrySource>
TimedTextTelemetrySource::create(AVFormatContext* format) {
    if (format == nullptr)
        return nullptr;
    for (unsigned i = 0; i < format->nb_streams; ++i) {
        const AVStream* stream = format->streams[i];
        if (stream->codecpar->codec_type != AVMEDIA_TYPE_SUBTITLE ||
            stream->codecpar->codec_id != AV_CODEC_ID_MOV_TEXT)
            continue;
        const AVDictionaryEntry* handler =
            av_dict_get(stream->metadata, "handler_name", nullptr, 0);
        if (handler != nullptr && std::strcmp(handler->value, kHandlerName) == 0) {
            std::unique_ptr<TimedTextTelemetrySource> source(
                new TimedTextTelemetrySource(format, static_cast<int>(i)));
            if (source->m_packet == nullptr)
                return nullptr;
            return source;
        }
    }
    return nullptr;
}

TimedTextTelemetrySource::TimedTextTelemetrySource(AVFormatContext* format, int streamIndex)
    : m_format(format), m_streamIndex(streamIndex), m_packet(av_packet_alloc()) {}

TimedTextTelemetrySource::~TimedTextTelemetrySource() {
    av_packet_free(&m_packet);
}

std::uint32_t TimedTextTelemetrySource::sampleCount() const {
    AVStream* stream = m_format->streams[m_streamIndex];
    // The index lists every sample. Empty ones (a bare 2-byte length of 0) are gaps, and
    // the muxer closes every timed-text track with one; they are not readings.
    const int indexed = avformat_index_get_entries_count(stream);
    if (indexed <= 0)
        return stream->nb_frames > 0 && stream->nb_frames <= UINT32_MAX
                   ? static_cast<std::uint32_t>(stream->nb_frames)
                   : 0;
    std::uint32_t samples = 0;
    for (int i = 0; i < indexed; ++i)
        if (avformat_index_get_entry(stream, i)->size > 2)
            ++samples;
    return samples;
}

std::int32_t TimedTextTelemetrySource::durationMs() const {
    const AVStream* stream = m_format->streams[m_streamIndex];
    if (stream->duration == AV_NOPTS_VALUE || stream->duration <= 0)
        return 0;
    const std::int64_t ms = toMilliseconds(stream->duration, stream->time_base);
    return ms > INT32_MAX ? INT32_MAX : static_cast<std::int32_t>(ms);
}

void TimedTextTelemetrySource::startReading() {
    m_started = true;
    // Only the telemetry samples are wanted: the demuxer then skips every video and audio
    // sample without reading it.
    for (unsigned i = 0; i < m_format->nb_streams; ++i)
        if (static_cast<int>(i) != m_streamIndex)
            m_format->streams[i]->discard = AVDISCARD_ALL;
    // The samples are small and lie far apart between the video samples; filling the
    // 32 KiB read buffer for each of them would copy megabytes to use a few kilobytes.
    if (m_format->pb != nullptr)
        m_format->pb->direct = 1;
}

void TimedTextTelemetrySource::reportSkipped() {
    if (m_skipped > 0)
        KDX_Trace("kdxstream: %u telemetry samples were not readings and were skipped", m_skipped);
    m_skipped = 0;
}

int TimedTextTelemetrySource::next(KDXTextFrame& frame) {
    if (!m_started)
        startReading();
    const AVStream* stream = m_format->streams[m_streamIndex];
    for (;;) {
        const int result = av_read_frame(m_format, m_packet);
        if (result == AVERROR_EOF) {
            reportSkipped();
            return KDX_ERR_END;
        }
        if (result < 0) {
            char reason[AV_ERROR_MAX_STRING_SIZE] = {};
            av_strerror(result, reason, sizeof reason);
            KDX_Trace("kdxstream: reading telemetry failed (%s)", reason);
            reportSkipped();
            return KDX_ERR_READ;
        }
        if (m_packet->stream_index != m_streamIndex) {
            av_packet_unref(m_packet);
            continue;
        }
        const TelemetrySampleParser::Result parsed =
            TelemetrySampleParser::parseMovTextSample(m_packet->data, m_packet->size, frame);
        if (parsed == TelemetrySampleParser::Reading) {
            const std::int64_t pts =
                m_packet->pts != AV_NOPTS_VALUE ? m_packet->pts : m_packet->dts;
            frame.timeMs = pts != AV_NOPTS_VALUE ? toMilliseconds(pts, stream->time_base) : 0;
            const std::int64_t duration = toMilliseconds(m_packet->duration, stream->time_base);
            frame.durationMs =
                duration > 0 && duration <= UINT32_MAX ? static_cast<std::uint32_t>(duration) : 0;
            av_packet_unref(m_packet);
            return KDX_OK;
        }
        if (parsed == TelemetrySampleParser::Malformed)
            ++m_skipped;
        av_packet_unref(m_packet);
    }
}

} // namespace kdx
