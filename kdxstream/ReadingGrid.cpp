#include "ReadingGrid.h"

#include <algorithm>
#include <cstring>

namespace kdx {

ReadingGrid::ReadingGrid(const std::vector<TelemetryReading>* readings, std::int32_t spanMs)
    : m_readings(readings), m_count(frameCount(spanMs)) {}

std::uint32_t ReadingGrid::frameCount(std::int32_t spanMs) {
    return spanMs <= 0 ? 0u : static_cast<std::uint32_t>((spanMs + kStepMs - 1) / kStepMs);
}

bool ReadingGrid::holds(const TelemetryReading& reading, std::int64_t at) const {
    const std::uint32_t hold =
        reading.hasPosition() ? std::min(reading.durationMs, kMaxHoldMs) : reading.durationMs;
    return reading.timeMs + static_cast<std::int64_t>(hold) > at;
}

bool ReadingGrid::next(KDXTextFrame& frame) {
    if (m_index >= m_count)
        return false;
    const std::int64_t start = static_cast<std::int64_t>(m_index) * kStepMs;
    const std::int64_t end = start + kStepMs;
    ++m_index;
    std::memset(&frame, 0, sizeof frame);
    frame.timeMs = start;
    frame.durationMs = static_cast<std::uint32_t>(kStepMs);

    const std::vector<TelemetryReading>& readings = *m_readings;
    double sum[3] = {0, 0, 0};
    int gCount = 0;
    // Readings before the frame (an unsorted source may deliver late ones) only update what
    // holds; those within it are averaged.
    for (; m_cursor < readings.size() && readings[m_cursor].timeMs < end; ++m_cursor) {
        const TelemetryReading& reading = readings[m_cursor];
        if (reading.hasGSensor()) {
            if (reading.timeMs >= start) {
                for (int axis = 0; axis < 3; ++axis)
                    sum[axis] += reading.gSensor[axis];
                ++gCount;
            }
            m_lastGSensor = static_cast<long>(m_cursor);
        }
        if (reading.hasFix())
            m_lastPosition = static_cast<long>(m_cursor);
    }
    if (gCount > 0) {
        frame.fields |= KDX_FIELD_GSENSOR;
        frame.gSensorX = static_cast<float>(sum[0] / gCount);
        frame.gSensorY = static_cast<float>(sum[1] / gCount);
        frame.gSensorZ = static_cast<float>(sum[2] / gCount);
    } else if (m_lastGSensor >= 0 && holds(readings[m_lastGSensor], start)) {
        const TelemetryReading& held = readings[m_lastGSensor];
        frame.fields |= KDX_FIELD_GSENSOR;
        frame.gSensorX = held.gSensor[0];
        frame.gSensorY = held.gSensor[1];
        frame.gSensorZ = held.gSensor[2];
    }
    if (m_lastPosition >= 0 && holds(readings[m_lastPosition], start)) {
        const TelemetryReading& position = readings[m_lastPosition];
        frame.fields |= KDX_FIELD_POSITION;
        frame.latitude = static_cast<float>(position.latitude);
        frame.longitude = static_cast<float>(position.longitude);
        frame.gpsFlags = position.gpsFlags;
        if (position.fields & KDX_FIELD_SPEED) {
            frame.fields |= KDX_FIELD_SPEED;
            frame.speed = static_cast<float>(position.speedKmh);
        }
    }
    return true;
}

void ReadingGrid::setDurations(std::vector<TelemetryReading>& readings) {
    for (const std::uint32_t kind : {KDX_FIELD_POSITION, KDX_FIELD_GSENSOR}) {
        long previous = -1;
        std::uint32_t lastGap = 1000;
        for (std::size_t i = 0; i < readings.size(); ++i) {
            if ((readings[i].fields & kind) == 0)
                continue;
            if (previous >= 0) {
                const std::int64_t gap = readings[i].timeMs - readings[previous].timeMs;
                lastGap = gap > 0
                              ? static_cast<std::uint32_t>(std::min<std::int64_t>(gap, UINT32_MAX))
                              : 0;
                readings[previous].durationMs = std::max(readings[previous].durationMs, lastGap);
            }
            previous = static_cast<long>(i);
        }
        if (previous >= 0)
            readings[previous].durationMs = std::max(readings[previous].durationMs, lastGap);
    }
}

} // namespace kdx
