// Trace lines of the library, handed to whatever sink the application installed; the
// library itself never writes files or consoles.
#include "kdxstream.h"

#include <atomic>
#include <cstdarg>
#include <cstdio>

namespace {

std::atomic<KDXTraceSink> traceSink{nullptr};

} // namespace

extern "C" void KDX_SetTraceSink(KDXTraceSink sink) {
    traceSink.store(sink);
}

extern "C" void KDX_Trace(const char* format, ...) {
    const KDXTraceSink sink = traceSink.load();
    if (sink == nullptr || format == nullptr)
        return;
    char line[512];
    va_list args;
    va_start(args, format);
    if (std::vsnprintf(line, sizeof line, format, args) < 0)
        line[0] = '\0';
    va_end(args);
    sink(line);
}
