#include "ResampledTelemetrySource.h"

#include <algorithm>

namespace kdx {

ResampledTelemetrySource::ResampledTelemetrySource(std::int32_t spanMs) : m_spanMs(spanMs) {}

std::uint32_t ResampledTelemetrySource::sampleCount() const {
    return ReadingGrid::frameCount(m_spanMs);
}

std::int32_t ResampledTelemetrySource::durationMs() const {
    return m_spanMs;
}

void ResampledTelemetrySource::readOnce() {
    if (m_read)
        return;
    m_read = true;
    m_readResult = readAll(m_readings);
    std::stable_sort(
        m_readings.begin(), m_readings.end(),
        [](const TelemetryReading& a, const TelemetryReading& b) { return a.timeMs < b.timeMs; });
    ReadingGrid::setDurations(m_readings);
    if (m_readResult != KDX_OK)
        KDX_Trace("kdxstream: %s telemetry could not be read to its end (%zu readings)", kind(),
                  m_readings.size());
}

const std::vector<TelemetryReading>& ResampledTelemetrySource::readings() {
    readOnce();
    return m_readings;
}

int ResampledTelemetrySource::readResult() {
    readOnce();
    return m_readResult;
}

int ResampledTelemetrySource::next(KDXTextFrame& frame) {
    readOnce();
    if (!m_grid)
        m_grid.reset(new ReadingGrid(&m_readings, m_spanMs));
    // A file that could not be read to its end still gives the frames of the readings it
    // had; what is missing is a stretch without values, not an error for the whole track.
    return m_grid->next(frame) ? KDX_OK : KDX_ERR_END;
}

} // namespace kdx
