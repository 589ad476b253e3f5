#include "TelemetrySourceFinder.h"

#include "TimedTextTelemetrySource.h"

namespace kdx {

std::unique_ptr<TelemetrySource> TelemetrySourceFinder::find(AVFormatContext* format) {
    // Further sources are tried here in turn, most specific first.
    return TimedTextTelemetrySource::create(format);
}

} // namespace kdx
