#include "FreeGpsTelemetrySource.h"

#include "BoxFile.h"
#include "ByteOrder.h"
#include "FreeGpsBlock.h"
#include "TrackSamples.h"

extern "C" {
#include <libavformat/avformat.h>
}

#include <algorithm>
#include <climits>

namespace kdx {
namespace {

// A camera writes one block a second; a list longer than a day of them is damage.
constexpr std::uint32_t kMaxListed = 86400;
// What is searched of one gap for the start of a block.
constexpr std::size_t kGapSearch = 64u << 10;

// The byte ranges of the media data that a track's samples cover, merged and in order.
std::vector<std::pair<std::int64_t, std::int64_t>> coveredRanges(AVFormatContext* format) {
    std::vector<std::pair<std::int64_t, std::int64_t>> ranges;
    for (unsigned i = 0; i < format->nb_streams; ++i)
        for (const TrackSample& sample : TrackSamples::of(format->streams[i]))
            ranges.emplace_back(sample.offset, sample.offset + sample.size);
    std::sort(ranges.begin(), ranges.end());
    std::vector<std::pair<std::int64_t, std::int64_t>> merged;
    for (const auto& range : ranges) {
        if (!merged.empty() && range.first <= merged.back().second)
            merged.back().second = std::max(merged.back().second, range.second);
        else
            merged.push_back(range);
    }
    return merged;
}

// The first block in [start, end), searched for in the gap's first kGapSearch bytes.
bool blockIn(BoxFile& file, std::int64_t start, std::int64_t end,
             FreeGpsTelemetrySource::Block& block) {
    if (end - start < static_cast<std::int64_t>(FreeGpsBlock::kMinimumSize))
        return false;
    const std::vector<std::uint8_t> head = file.readUpTo(
        start, static_cast<std::size_t>(std::min<std::int64_t>(end - start, kGapSearch)));
    for (std::size_t at = 0; at + FreeGpsBlock::kHeaderSize <= head.size(); ++at) {
        if (head[at + 4] != 'f' || !FreeGpsBlock::isBlockStart(head.data() + at, head.size() - at))
            continue;
        const std::int64_t offset = start + static_cast<std::int64_t>(at);
        const std::int64_t declared = bytes::be32(head.data() + at);
        const std::int64_t size = std::min<std::int64_t>(
            declared >= static_cast<std::int64_t>(FreeGpsBlock::kMinimumSize) ? declared
                                                                              : end - offset,
            std::min<std::int64_t>(end - offset, FreeGpsBlock::kMaximumSize));
        if (size < static_cast<std::int64_t>(FreeGpsBlock::kMinimumSize))
            return false;
        block.offset = offset;
        block.size = static_cast<std::uint32_t>(size);
        return true;
    }
    return false;
}

} // namespace

std::vector<FreeGpsTelemetrySource::Block> FreeGpsTelemetrySource::listedBlocks(BoxFile& file) {
    std::vector<Block> blocks;
    BoxFile::Box moov, list;
    if (!file.find(nullptr, "moov", moov) || !file.find(&moov, "gps ", list) || list.dataSize() < 8)
        return blocks;
    const std::vector<std::uint8_t> data = file.readUpTo(
        list.dataOffset(),
        static_cast<std::size_t>(std::min<std::int64_t>(list.dataSize(), 8 + 8 * kMaxListed)));
    if (data.size() < 8)
        return blocks;
    // Version, count, then (offset, size) pairs; a count beyond the box is cut to it.
    const std::size_t count =
        std::min<std::size_t>(bytes::be32(data.data() + 4), (data.size() - 8) / 8);
    for (std::size_t i = 0; i < count; ++i) {
        Block block;
        block.offset = bytes::be32(data.data() + 8 + 8 * i);
        block.size = std::min<std::uint32_t>(bytes::be32(data.data() + 12 + 8 * i),
                                             FreeGpsBlock::kMaximumSize);
        if (block.size >= FreeGpsBlock::kMinimumSize)
            blocks.push_back(block);
    }
    std::sort(blocks.begin(), blocks.end(),
              [](const Block& a, const Block& b) { return a.offset < b.offset; });
    return blocks;
}

std::vector<FreeGpsTelemetrySource::Block>
FreeGpsTelemetrySource::unlistedBlocks(AVFormatContext* format, BoxFile& file, std::size_t limit) {
    std::vector<Block> blocks;
    const auto covered = coveredRanges(format);
    for (const BoxFile::Box& box : file.topLevel()) {
        if (!box.is("mdat"))
            continue;
        std::int64_t at = box.dataOffset();
        auto range = covered.begin();
        while (at < box.end() && blocks.size() < limit) {
            while (range != covered.end() && range->second <= at)
                ++range;
            if (range != covered.end() && range->first <= at) {
                at = range->second;
                continue;
            }
            const std::int64_t gapEnd =
                range != covered.end() ? std::min(range->first, box.end()) : box.end();
            Block block;
            if (blockIn(file, at, gapEnd, block)) {
                blocks.push_back(block);
                at = block.offset + block.size;
            } else {
                at = gapEnd;
            }
        }
    }
    return blocks;
}

std::unique_ptr<FreeGpsTelemetrySource>
FreeGpsTelemetrySource::create(AVFormatContext* format, std::shared_ptr<BoxFile> file,
                               std::int32_t spanMs) {
    if (format == nullptr || !file)
        return nullptr;
    std::vector<Block> blocks = listedBlocks(*file);
    const bool listed = !blocks.empty();
    if (listed) {
        std::uint8_t head[FreeGpsBlock::kHeaderSize];
        if (!file->read(blocks.front().offset, head, sizeof head) ||
            !FreeGpsBlock::isBlockStart(head, sizeof head))
            return nullptr;
    } else {
        // Only the first block is looked for now; the rest when the readings are wanted.
        blocks = unlistedBlocks(format, *file, 1);
        if (blocks.empty())
            return nullptr;
    }
    return std::unique_ptr<FreeGpsTelemetrySource>(
        new FreeGpsTelemetrySource(format, file, std::move(blocks), listed, spanMs));
}

FreeGpsTelemetrySource::FreeGpsTelemetrySource(AVFormatContext* format,
                                               std::shared_ptr<BoxFile> file,
                                               std::vector<Block> blocks, bool listed,
                                               std::int32_t spanMs)
    : ResampledTelemetrySource(spanMs), m_format(format), m_file(std::move(file)),
      m_blocks(std::move(blocks)), m_listed(listed) {}

std::int64_t FreeGpsTelemetrySource::timeOf(std::int64_t offset) const {
    const auto after = std::upper_bound(m_videoSamples.begin(), m_videoSamples.end(),
                                        std::make_pair(offset, std::int64_t(INT64_MAX)));
    if (after != m_videoSamples.end())
        return after->second;
    return m_videoSamples.empty() ? 0 : m_videoSamples.back().second;
}

int FreeGpsTelemetrySource::readAll(std::vector<TelemetryReading>& readings) {
    if (!m_listed)
        m_blocks = unlistedBlocks(m_format, *m_file, kMaxListed);
    // The first video track gives the blocks their time; without one, a block a second.
    for (unsigned i = 0; i < m_format->nb_streams && m_videoSamples.empty(); ++i) {
        const AVStream* stream = m_format->streams[i];
        if (stream->codecpar->codec_type != AVMEDIA_TYPE_VIDEO ||
            (stream->disposition & AV_DISPOSITION_ATTACHED_PIC) != 0)
            continue;
        for (const TrackSample& sample : TrackSamples::of(stream))
            m_videoSamples.emplace_back(sample.offset, sample.timeMs);
        std::sort(m_videoSamples.begin(), m_videoSamples.end());
    }
    int result = KDX_OK;
    std::vector<std::uint8_t> data;
    for (std::size_t i = 0; i < m_blocks.size(); ++i) {
        data.resize(m_blocks[i].size);
        if (!m_file->read(m_blocks[i].offset, data.data(), data.size())) {
            result = KDX_ERR_READ;
            continue;
        }
        TelemetryReading reading;
        if (!FreeGpsBlock::parse(data.data(), data.size(), reading))
            continue;
        reading.timeMs = m_videoSamples.empty() ? static_cast<std::int64_t>(i) * 1000
                                                : timeOf(m_blocks[i].offset);
        readings.push_back(reading);
    }
    return result;
}

} // namespace kdx
