#pragma once

#include "ReadingGrid.h"
#include "TelemetryReading.h"
#include "TelemetrySource.h"

#include <memory>
#include <vector>

namespace kdx {

// A source whose readings come at their own rate, put on the player's 100 ms frames by a
// ReadingGrid over the whole recording. The file is read once, when the first frame (or the
// list of readings) is asked for; opening a recording only to learn its length reads
// nothing of it.
class ResampledTelemetrySource : public TelemetrySource {
public:
    // Frames: one per 100 ms of the recording, whatever the file holds.
    std::uint32_t sampleCount() const override;
    std::int32_t durationMs() const override;
    int next(KDXTextFrame& frame) override;

    // Every reading the file holds, in time order, with its duration set. What was read
    // before a read failure is kept; readResult() tells whether one happened.
    const std::vector<TelemetryReading>& readings();
    int readResult();

protected:
    explicit ResampledTelemetrySource(std::int32_t spanMs);

    // Appends the file's readings (any order; they are sorted afterwards) with their time.
    // Returns KDX_OK, or KDX_ERR_READ when the file could not be read to its end.
    virtual int readAll(std::vector<TelemetryReading>& readings) = 0;

private:
    void readOnce();

    std::int32_t m_spanMs;
    bool m_read = false;
    int m_readResult = KDX_OK;
    std::vector<TelemetryReading> m_readings;
    std::unique_ptr<ReadingGrid> m_grid;
};

} // namespace kdx
