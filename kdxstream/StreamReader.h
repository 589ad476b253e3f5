#pragma once

#include "TelemetrySource.h"
#include "kdxstream.h"

#include <memory>

struct AVFormatContext;

namespace kdx {

// What a KDXReader handle holds: one opened recording. Only the container header is read
// on opening; telemetry samples are read as frames are asked for.
class StreamReader {
public:
    StreamReader() = default;
    ~StreamReader();
    StreamReader(const StreamReader&) = delete;
    StreamReader& operator=(const StreamReader&) = delete;

    // path is UTF-8 on Windows and in the file system's encoding elsewhere, as libavformat
    // takes it.
    int open(const char* path);
    int fillInfo(KDXInfo& info) const;
    int readFrame(KDXFrameDescriptor& descriptor);

    // The recording's telemetry, null without; for tests and tools that want the readings
    // themselves rather than the player's frames.
    TelemetrySource* telemetry() const { return m_telemetry.get(); }

private:
    int openAs(const char* path, const char* formatName);
    std::int32_t totalRangeMs() const;
    std::int32_t startTimeMs() const;

    AVFormatContext* m_format = nullptr;
    std::unique_ptr<TelemetrySource> m_telemetry;
    std::uint32_t m_sequence = 0;
};

} // namespace kdx
