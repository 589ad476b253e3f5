#pragma once

extern "C" {
#include <libavutil/mathematics.h>
#include <libavutil/rational.h>
}

#include <cstdint>

namespace kdx {

// A timestamp or duration of a stream, in its time base, as milliseconds.
inline std::int64_t toMilliseconds(std::int64_t value, AVRational timeBase) {
    return av_rescale_q(value, timeBase, AVRational{1, 1000});
}

} // namespace kdx
