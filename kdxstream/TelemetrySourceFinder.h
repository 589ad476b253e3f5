#pragma once

#include "TelemetrySource.h"

#include <memory>
#include <string>

struct AVFormatContext;

namespace kdx {

// Picks the telemetry source of an opened recording by probing it. Our own timed-text track
// is told by the header alone; the layouts of other cameras are probed in turn with a few
// small reads (a track's first samples, the top-level boxes, the first gap of the media
// data), most specific first, so that opening a recording for its length stays cheap.
class TelemetrySourceFinder {
public:
    // The recording's telemetry, or null when it carries none this library understands.
    // The source reads through format, which must outlive it. path: the file as the demuxer
    // opened it; spanMs: the recording's length, which resampled sources cover.
    static std::unique_ptr<TelemetrySource> find(AVFormatContext* format, const std::string& path,
                                                 std::int32_t spanMs);
};

} // namespace kdx
