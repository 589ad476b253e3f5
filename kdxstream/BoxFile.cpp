#include "BoxFile.h"

extern "C" {
#include <libavformat/avio.h>
#include <libavutil/dict.h>
}

#include <algorithm>
#include <cstring>

namespace kdx {
namespace {

std::uint32_t bigEndian32(const std::uint8_t* p) {
    return (std::uint32_t(p[0]) << 24) | (std::uint32_t(p[1]) << 16) | (std::uint32_t(p[2]) << 8) |
           p[3];
}

// A file this size is no recording a camera wrote; box walks stop at it.
constexpr std::size_t kMaxBoxes = 100000;

} // namespace

bool BoxFile::Box::is(const char* name) const {
    return std::memcmp(type, name, 4) == 0;
}

std::unique_ptr<BoxFile> BoxFile::open(const std::string& path) {
    AVIOContext* io = nullptr;
    AVDictionary* options = nullptr;
    av_dict_set(&options, "protocol_whitelist", "file", 0);
    const int result = avio_open2(&io, path.c_str(), AVIO_FLAG_READ, nullptr, &options);
    av_dict_free(&options);
    if (result < 0 || io == nullptr)
        return nullptr;
    const std::int64_t size = avio_size(io);
    if (size < 0) {
        avio_closep(&io);
        return nullptr;
    }
    return std::unique_ptr<BoxFile>(new BoxFile(io, size));
}

BoxFile::BoxFile(AVIOContext* io, std::int64_t size) : m_io(io), m_size(size) {}

BoxFile::~BoxFile() {
    avio_closep(&m_io);
}

bool BoxFile::read(std::int64_t offset, void* buffer, std::size_t size) {
    if (offset < 0 || size > static_cast<std::size_t>(INT32_MAX) ||
        offset > m_size - static_cast<std::int64_t>(size))
        return false;
    if (avio_seek(m_io, offset, SEEK_SET) != offset)
        return false;
    return avio_read(m_io, static_cast<unsigned char*>(buffer), static_cast<int>(size)) ==
           static_cast<int>(size);
}

std::vector<std::uint8_t> BoxFile::readUpTo(std::int64_t offset, std::size_t limit) {
    std::vector<std::uint8_t> data;
    if (offset < 0 || offset >= m_size)
        return data;
    const std::int64_t left = m_size - offset;
    data.resize(
        static_cast<std::size_t>(std::min<std::int64_t>(left, static_cast<std::int64_t>(limit))));
    if (!read(offset, data.data(), data.size()))
        data.clear();
    return data;
}

std::vector<BoxFile::Box> BoxFile::boxes(std::int64_t start, std::int64_t end) {
    std::vector<Box> found;
    end = std::min(end, m_size);
    while (start + 8 <= end && found.size() < kMaxBoxes) {
        std::uint8_t header[16];
        if (!read(start, header, 8))
            break;
        Box box;
        std::memcpy(box.type, header + 4, 4);
        box.offset = start;
        std::uint64_t size = bigEndian32(header);
        if (size == 1) {
            if (start + 16 > end || !read(start + 8, header + 8, 8))
                break;
            size = (std::uint64_t(bigEndian32(header + 8)) << 32) | bigEndian32(header + 12);
            box.headerSize = 16;
        } else if (size == 0) {
            size = static_cast<std::uint64_t>(end - start); // to the end of its parent
        }
        if (size < static_cast<std::uint64_t>(box.headerSize))
            break;
        if (size > static_cast<std::uint64_t>(end - start)) {
            // A file cut short: its last box keeps what is there.
            box.size = end - start;
            found.push_back(box);
            break;
        }
        box.size = static_cast<std::int64_t>(size);
        found.push_back(box);
        start += box.size;
    }
    return found;
}

const std::vector<BoxFile::Box>& BoxFile::topLevel() {
    if (!m_haveTopLevel) {
        m_topLevel = boxes(0, m_size);
        m_haveTopLevel = true;
    }
    return m_topLevel;
}

bool BoxFile::find(const Box* parent, const char* type, Box& found) {
    const std::vector<Box> children =
        parent != nullptr ? boxes(parent->dataOffset(), parent->end()) : topLevel();
    for (const Box& box : children)
        if (box.is(type)) {
            found = box;
            return true;
        }
    return false;
}

} // namespace kdx
