#include "TrackSamples.h"

#include "Milliseconds.h"

extern "C" {
#include <libavformat/avformat.h>
}

#include <algorithm>
#include <climits>

namespace kdx {

std::vector<TrackSample> TrackSamples::of(const AVStream* stream) {
    std::vector<TrackSample> samples;
    AVStream* indexed = const_cast<AVStream*>(stream);
    const int count = avformat_index_get_entries_count(indexed);
    samples.reserve(static_cast<std::size_t>(std::max(count, 0)));
    for (int i = 0; i < count; ++i) {
        const AVIndexEntry* entry = avformat_index_get_entry(indexed, i);
        if (entry == nullptr || entry->pos < 0 || entry->size <= 0)
            continue;
        TrackSample sample;
        sample.offset = entry->pos;
        sample.size = static_cast<std::uint32_t>(entry->size);
        sample.timeMs = entry->timestamp != AV_NOPTS_VALUE
                            ? toMilliseconds(entry->timestamp, stream->time_base)
                            : 0;
        samples.push_back(sample);
    }
    std::stable_sort(
        samples.begin(), samples.end(),
        [](const TrackSample& a, const TrackSample& b) { return a.timeMs < b.timeMs; });
    const std::int64_t end = stream->duration != AV_NOPTS_VALUE && stream->duration > 0
                                 ? toMilliseconds(stream->duration, stream->time_base)
                                 : 0;
    for (std::size_t i = 0; i < samples.size(); ++i) {
        std::int64_t gap = 0;
        if (i + 1 < samples.size())
            gap = samples[i + 1].timeMs - samples[i].timeMs;
        else if (end > samples[i].timeMs)
            gap = end - samples[i].timeMs;
        else if (i > 0)
            gap = samples[i].timeMs - samples[i - 1].timeMs;
        samples[i].durationMs =
            static_cast<std::uint32_t>(std::clamp<std::int64_t>(gap, 0, INT32_MAX));
    }
    return samples;
}

} // namespace kdx
