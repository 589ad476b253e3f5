#pragma once

#include "TelemetrySource.h"

#include <memory>

struct AVFormatContext;
struct AVPacket;

namespace kdx {

// Telemetry stored as a timed-text track, one sample per reading, in the syntax of
// docs/telemetry-format.md. The track is told from ordinary subtitles by its handler name.
class TimedTextTelemetrySource : public TelemetrySource {
public:
    static constexpr const char* kHandlerName = "Telemetry";

    // The source for the recording's telemetry track, or null when it has none.
    static std::unique_ptr<TimedTextTelemetrySource> create(AVFormatContext* format);

    ~TimedTextTelemetrySource() override;
    TimedTextTelemetrySource(const TimedTextTelemetrySource&) = delete;
    TimedTextTelemetrySource& operator=(const TimedTextTelemetrySource&) = delete;

    std::uint32_t sampleCount() const override;
    std::int32_t durationMs() const override;
    int next(KDXTextFrame& frame) override;
    const char* kind() const override { return "timed text"; }

private:
    TimedTextTelemetrySource(AVFormatContext* format, int streamIndex);
    void startReading();
    void reportSkipped();

    AVFormatContext* m_format;
    int m_streamIndex;
    AVPacket* m_packet = nullptr;
    bool m_started = false;
    std::uint32_t m_skipped = 0;
};

} // namespace kdx
