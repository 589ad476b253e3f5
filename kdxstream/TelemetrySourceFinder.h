#pragma once

#include "TelemetrySource.h"

#include <memory>

struct AVFormatContext;

namespace kdx {

// Picks the telemetry source of an opened recording from what its header declares. Looks
// at the header only; nothing is read from the file.
class TelemetrySourceFinder {
public:
    // The recording's telemetry, or null when it carries none this library understands.
    // The source reads through format, which must outlive it.
    static std::unique_ptr<TelemetrySource> find(AVFormatContext* format);
};

} // namespace kdx
