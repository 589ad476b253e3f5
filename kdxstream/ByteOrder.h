#pragma once

#include <cstdint>
#include <cstring>

namespace kdx {

// Fixed-width values at a byte position, in the byte order a layout prescribes; the caller
// has checked that the bytes are there.
namespace bytes {

inline std::uint32_t be32(const std::uint8_t* p) {
    return (std::uint32_t(p[0]) << 24) | (std::uint32_t(p[1]) << 16) | (std::uint32_t(p[2]) << 8) |
           p[3];
}
inline std::uint16_t be16(const std::uint8_t* p) {
    return static_cast<std::uint16_t>((p[0] << 8) | p[1]);
}
inline std::uint64_t be64(const std::uint8_t* p) {
    return (std::uint64_t(be32(p)) << 32) | be32(p + 4);
}
inline std::uint32_t le32(const std::uint8_t* p) {
    return (std::uint32_t(p[3]) << 24) | (std::uint32_t(p[2]) << 16) | (std::uint32_t(p[1]) << 8) |
           p[0];
}
inline float leFloat(const std::uint8_t* p) {
    const std::uint32_t bits = le32(p);
    float value;
    std::memcpy(&value, &bits, sizeof value);
    return value;
}
inline float beFloat(const std::uint8_t* p) {
    const std::uint32_t bits = be32(p);
    float value;
    std::memcpy(&value, &bits, sizeof value);
    return value;
}
inline double beDouble(const std::uint8_t* p) {
    const std::uint64_t bits = be64(p);
    double value;
    std::memcpy(&value, &bits, sizeof value);
    return value;
}

} // namespace bytes
} // namespace kdx
