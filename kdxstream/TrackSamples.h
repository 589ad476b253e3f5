#pragma once

#include <cstdint>
#include <vector>

struct AVStream;

namespace kdx {

// Where a track's samples lie in the file and when they play, from the demuxer's index:
// sources that read a whole track read its samples directly, without demuxing the others.
struct TrackSample {
    std::int64_t offset = 0;
    std::uint32_t size = 0;
    std::int64_t timeMs = 0;
    std::uint32_t durationMs = 0;
};

class TrackSamples {
public:
    // The samples of a stream in time order; the last one lasts to the stream's end (or as
    // long as the one before it).
    static std::vector<TrackSample> of(const AVStream* stream);
};

} // namespace kdx
