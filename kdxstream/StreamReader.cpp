#include "StreamReader.h"

#include "Milliseconds.h"
#include "TelemetrySourceFinder.h"

extern "C" {
#include <libavformat/avformat.h>
}

#include <algorithm>
#include <cctype>
#include <cerrno>
#include <climits>
#include <cstring>

namespace kdx {
namespace {

bool endsWithNoCase(const char* text, const char* suffix) {
    const std::size_t n = std::strlen(text);
    const std::size_t m = std::strlen(suffix);
    if (n < m)
        return false;
    for (std::size_t i = 0; i < m; ++i)
        if (std::tolower(static_cast<unsigned char>(text[n - m + i])) != suffix[i])
            return false;
    return true;
}

// Recordings are named by what they hold; naming the demuxer up front saves probing the
// first bytes against every format libavformat knows, a third of the cost of an open.
const char* demuxerForName(const char* path) {
    for (const char* suffix : {".mp4", ".mov", ".m4v"})
        if (endsWithNoCase(path, suffix))
            return "mov";
    if (endsWithNoCase(path, ".avi"))
        return "avi";
    return nullptr;
}

std::int32_t clampToInt32(std::int64_t value) {
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(value, INT32_MIN, INT32_MAX));
}

bool isCoverPicture(const AVStream* stream) {
    return (stream->disposition & AV_DISPOSITION_ATTACHED_PIC) != 0;
}

} // namespace

StreamReader::~StreamReader() {
    m_telemetry.reset();
    avformat_close_input(&m_format);
}

int StreamReader::openAs(const char* path, const char* formatName) {
    const AVInputFormat* format = formatName ? av_find_input_format(formatName) : nullptr;
    AVDictionary* options = nullptr;
    // Recordings are local files: no network or nested protocols, whatever the path says.
    av_dict_set(&options, "protocol_whitelist", "file", 0);
    if (formatName != nullptr && std::strcmp(formatName, "mov") == 0) {
        av_dict_set(&options, "ignore_chapters", "1", 0);
        // Applying edit lists rebuilds every track's index and costs a fifth of an open.
        // They trim encoder delay off the video and sound, which this reader never hands
        // out, and the closing empty sample off a timed-text track, which is skipped as a
        // gap anyway. Lengths come from the movie header.
        av_dict_set(&options, "ignore_editlist", "1", 0);
    }
    // Deliberately no avformat_find_stream_info(): it decodes frames of every stream, which
    // costs milliseconds, and the header already has the lengths and the stream types.
    const int result = avformat_open_input(&m_format, path, format, &options);
    av_dict_free(&options);
    return result;
}

int StreamReader::open(const char* path) {
    const char* named = demuxerForName(path);
    int result = openAs(path, named);
    if (result < 0 && named != nullptr && result != AVERROR(ENOENT) && result != AVERROR(EACCES))
        result = openAs(path, nullptr); // the name may not tell the truth
    if (result < 0) {
        char reason[AV_ERROR_MAX_STRING_SIZE] = {};
        av_strerror(result, reason, sizeof reason);
        KDX_Trace("kdxstream: cannot open the recording (%s)", reason);
        return KDX_ERR_OPEN;
    }
    m_telemetry = TelemetrySourceFinder::find(m_format, path, totalRangeMs());
    return KDX_OK;
}

std::int32_t StreamReader::totalRangeMs() const {
    // The MP4 movie header and the AVI main header give the length directly; otherwise take
    // the longest stream.
    if (m_format->duration != AV_NOPTS_VALUE && m_format->duration > 0)
        return clampToInt32(av_rescale(m_format->duration, 1000, AV_TIME_BASE));
    std::int64_t longest = 0;
    for (unsigned i = 0; i < m_format->nb_streams; ++i) {
        const AVStream* stream = m_format->streams[i];
        if (stream->duration == AV_NOPTS_VALUE || stream->duration <= 0)
            continue;
        longest = std::max(longest, toMilliseconds(stream->duration, stream->time_base));
    }
    return clampToInt32(longest);
}

std::int32_t StreamReader::startTimeMs() const {
    std::int64_t earliest = INT64_MAX;
    for (unsigned i = 0; i < m_format->nb_streams; ++i) {
        const AVStream* stream = m_format->streams[i];
        if (stream->start_time != AV_NOPTS_VALUE)
            earliest = std::min(earliest, toMilliseconds(stream->start_time, stream->time_base));
    }
    return earliest == INT64_MAX ? 0 : clampToInt32(earliest);
}

int StreamReader::fillInfo(KDXInfo& info) const {
    std::memset(&info, 0, sizeof info);
    int media = 0;
    for (unsigned i = 0; i < m_format->nb_streams; ++i) {
        const AVStream* stream = m_format->streams[i];
        switch (stream->codecpar->codec_type) {
        case AVMEDIA_TYPE_VIDEO:
            if (!isCoverPicture(stream)) {
                ++info.videoCount;
                ++media;
            }
            break;
        case AVMEDIA_TYPE_AUDIO:
            ++info.audioCount;
            ++media;
            break;
        case AVMEDIA_TYPE_SUBTITLE:
            ++media;
            break;
        default:
            break;
        }
    }
    if (media == 0) {
        KDX_Trace("kdxstream: the recording holds no audio, video or text stream");
        return KDX_ERR_NO_STREAMS;
    }

    info.recordSize = KDX_INFO_SIZE;
    info.totalRangeMs = totalRangeMs();
    info.startTimeMs = startTimeMs();
    std::strncpy(info.containerName, m_format->iformat->name, sizeof info.containerName - 1);

    KDXTrackInfo& telemetry = info.tracks[KDX_TELEMETRY_TRACK];
    telemetry.frameSize = KDX_TEXT_FRAME_SIZE;
    telemetry.kind = KDX_FRAME_TEXT;
    if (m_telemetry) {
        telemetry.frameCount = m_telemetry->sampleCount();
        telemetry.durationMs = m_telemetry->durationMs();
        info.textDataPresent = telemetry.frameCount > 0 ? 1 : 0;
        std::strncpy(info.telemetryKind, m_telemetry->kind(), sizeof info.telemetryKind - 1);
    }
    return KDX_OK;
}

int StreamReader::readFrame(KDXFrameDescriptor& descriptor) {
    if (descriptor.track != KDX_TELEMETRY_TRACK || descriptor.kind != KDX_FRAME_TEXT)
        return KDX_ERR_TRACK;
    if (descriptor.buffer == nullptr)
        return KDX_ERR_ARGUMENT;
    if (descriptor.bufferSize < KDX_TEXT_FRAME_SIZE)
        return KDX_ERR_BUFFER;
    if (!m_telemetry)
        return KDX_ERR_END;

    KDXTextFrame frame;
    std::memset(&frame, 0, sizeof frame);
    const int result = m_telemetry->next(frame);
    if (result != KDX_OK)
        return result;
    // The caller's buffer need not be aligned for the frame's fields.
    std::memcpy(descriptor.buffer, &frame, sizeof frame);
    descriptor.dataSize = sizeof frame;
    descriptor.timeMs = frame.timeMs;
    descriptor.durationMs = frame.durationMs;
    descriptor.sequence = ++m_sequence;
    descriptor.flags = 0;
    return KDX_OK;
}

} // namespace kdx
