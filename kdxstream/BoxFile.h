#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

struct AVIOContext;

namespace kdx {

// The bytes of a recording, read by position and walked as MP4 boxes, beside the demuxer:
// other cameras keep telemetry where libavformat does not look (top-level boxes, blocks in
// the media data, a box of the movie header). A handle of its own, so that the demuxer's
// position is never disturbed.
class BoxFile {
public:
    struct Box {
        char type[5] = {0, 0, 0, 0, 0};
        std::int64_t offset = 0; // of the box header
        std::int64_t size = 0;   // header included
        int headerSize = 8;

        std::int64_t dataOffset() const { return offset + headerSize; }
        std::int64_t dataSize() const { return size - headerSize; }
        std::int64_t end() const { return offset + size; }
        bool is(const char* name) const;
    };

    // path as the demuxer takes it. Null when the file cannot be opened.
    static std::unique_ptr<BoxFile> open(const std::string& path);
    ~BoxFile();
    BoxFile(const BoxFile&) = delete;
    BoxFile& operator=(const BoxFile&) = delete;

    std::int64_t size() const { return m_size; }

    // Exactly size bytes at offset, or false.
    bool read(std::int64_t offset, void* buffer, std::size_t size);
    // Up to limit bytes at offset (fewer at the end of the file); empty when unreadable.
    std::vector<std::uint8_t> readUpTo(std::int64_t offset, std::size_t limit);

    // The boxes between start and end, in order. A box that runs past end (a file cut
    // short) is the last one, cut to end.
    std::vector<Box> boxes(std::int64_t start, std::int64_t end);
    // The file's top-level boxes, read once.
    const std::vector<Box>& topLevel();
    // The first box of a type among the children of parent (or at the top level for a null
    // parent), false when there is none.
    bool find(const Box* parent, const char* type, Box& found);

private:
    BoxFile(AVIOContext* io, std::int64_t size);

    AVIOContext* m_io;
    std::int64_t m_size;
    bool m_haveTopLevel = false;
    std::vector<Box> m_topLevel;
};

} // namespace kdx
