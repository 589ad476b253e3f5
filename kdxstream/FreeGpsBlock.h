#pragma once

#include "TelemetryReading.h"

#include <cstddef>
#include <cstdint>

namespace kdx {

// One "freeGPS " block of a Novatek-based dash camera (docs/telemetry-format.md): a
// 32-KiB block in the media data holding one GPS reading, in one of three layouts. The
// layout is told by markers the others cannot have, so that no layout's block is read as
// another's: the camera's clock as 14 digits at byte 52 (NMEA text), the "IQS" firmware
// tag at byte 16 (integers), the status and hemisphere letters at byte 72 with a valid
// date (floats).
class FreeGpsBlock {
public:
    enum class Layout { None, Float, Integer, NmeaText };

    static constexpr std::size_t kHeaderSize = 12;  // size, then "freeGPS "
    static constexpr std::size_t kMinimumSize = 92; // a block with one reading
    static constexpr std::size_t kMaximumSize = 1 << 20;

    // Whether bytes start a block: a big-endian size, then "freeGPS ".
    static bool isBlockStart(const std::uint8_t* data, std::size_t size);
    static Layout layoutOf(const std::uint8_t* data, std::size_t size);

    // The block's reading (position with speed, and the acceleration where the layout has
    // one), without its time. False for a block without a valid fix or of no known layout.
    static bool parse(const std::uint8_t* data, std::size_t size, TelemetryReading& reading);
};

} // namespace kdx
