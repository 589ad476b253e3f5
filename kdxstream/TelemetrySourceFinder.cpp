#include "TelemetrySourceFinder.h"

#include "BoxFile.h"
#include "FreeGpsTelemetrySource.h"
#include "GpmfTelemetrySource.h"
#include "NmeaBoxTelemetrySource.h"
#include "NmeaTextTelemetrySource.h"
#include "TimedTextTelemetrySource.h"

extern "C" {
#include <libavformat/avformat.h>
}

#include <cstring>

namespace kdx {

std::unique_ptr<TelemetrySource>
TelemetrySourceFinder::find(AVFormatContext* format, const std::string& path, std::int32_t spanMs) {
    if (format == nullptr)
        return nullptr;
    if (auto own = TimedTextTelemetrySource::create(format))
        return own;
    // Other cameras' layouts live in MP4 and QuickTime files.
    if (format->iformat == nullptr || std::strstr(format->iformat->name, "mp4") == nullptr)
        return nullptr;
    std::shared_ptr<BoxFile> file = BoxFile::open(path);
    if (!file)
        return nullptr;
    std::unique_ptr<TelemetrySource> found;
    // Tracks declare what they are; boxes are found by their type; blocks in the media data
    // are looked for last, as they cost a look at the gaps between the samples.
    if (!(found = GpmfTelemetrySource::create(format, file, spanMs)) &&
        !(found = NmeaTextTelemetrySource::create(format, file, spanMs)) &&
        !(found = NmeaBoxTelemetrySource::create(file, spanMs)))
        found = FreeGpsTelemetrySource::create(format, file, spanMs);
    return found;
}

} // namespace kdx
