#pragma once

#include "ResampledTelemetrySource.h"

#include <memory>

struct AVFormatContext;

namespace kdx {

class BoxFile;

// Telemetry of Novatek-based dash cameras: one "freeGPS " block a second in the media data,
// between the video and sound samples. The blocks are listed by the movie header's "gps "
// box where the camera writes one; otherwise they are the gaps of the media data that no
// track's samples cover. A block's time is that of the first video sample written after it,
// since the camera writes each block as its second of video is recorded.
class FreeGpsTelemetrySource : public ResampledTelemetrySource {
public:
    struct Block {
        std::int64_t offset = 0;
        std::uint32_t size = 0;
    };

    static std::unique_ptr<FreeGpsTelemetrySource>
    create(AVFormatContext* format, std::shared_ptr<BoxFile> file, std::int32_t spanMs);

    const char* kind() const override { return "freeGPS"; }

protected:
    int readAll(std::vector<TelemetryReading>& readings) override;

private:
    FreeGpsTelemetrySource(AVFormatContext* format, std::shared_ptr<BoxFile> file,
                           std::vector<Block> blocks, bool listed, std::int32_t spanMs);

    // The blocks the "gps " box lists; empty without one.
    static std::vector<Block> listedBlocks(BoxFile& file);
    // The blocks in the gaps of the media data, up to limit of them.
    static std::vector<Block> unlistedBlocks(AVFormatContext* format, BoxFile& file,
                                             std::size_t limit);
    std::int64_t timeOf(std::int64_t offset) const;

    AVFormatContext* m_format;
    std::shared_ptr<BoxFile> m_file;
    std::vector<Block> m_blocks;
    bool m_listed; // found through the "gps " box (else m_blocks holds the first block only)
    std::vector<std::pair<std::int64_t, std::int64_t>> m_videoSamples; // offset, time (ms)
};

} // namespace kdx
