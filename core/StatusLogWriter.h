#pragma once

#include <cstdarg>
#include <cstddef>
#include <string>

// Formats and appends status log lines. The five log writers are thin entries into this.
class StatusLogWriter {
public:
    enum Level { Error = 0, Warning = 1, Info = 2, Line = 3, Debug = 4 };

    // Size of the message buffer, terminating NUL included; longer messages are cut.
    static constexpr std::size_t kMessageBufferSize = 1024;

    static void write(Level level, const char* format, va_list args);

    // Builds the complete line for a message at the given wall-clock time: "HH:MM:SS.mmm",
    // the level marker and the message, ending in a single line feed.
    static std::string formatLine(Level level, const char* message, long long epochMilliseconds);

    static const char* marker(Level level);
};
