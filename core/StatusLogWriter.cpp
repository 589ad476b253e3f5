#include "StatusLogWriter.h"

#include "AppGlobals.h"
#include "AppendFile.h"
#include "StatusLog.h"

#include <QDir>

#include <chrono>
#include <cstdio>
#include <ctime>

namespace {

std::tm localTime(std::time_t seconds) {
    std::tm result{};
#if defined(_WIN32)
    localtime_s(&result, &seconds);
#else
    localtime_r(&seconds, &result);
#endif
    return result;
}

} // namespace

const char* StatusLogWriter::marker(Level level) {
    switch (level) {
    case Error:
        return ":: [e] ";
    case Warning:
        return ":: [w] ";
    case Info:
        return ":: [i] ";
    case Line:
        return ":: [l] ";
    case Debug:
        break;
    }
    return ":: [d] ";
}

std::string StatusLogWriter::formatLine(Level level, const char* message,
                                        long long epochMilliseconds) {
    const std::tm tm = localTime(static_cast<std::time_t>(epochMilliseconds / 1000));
    char clock[16];
    std::strftime(clock, sizeof clock, "%H:%M:%S", &tm);
    char millis[8];
    std::snprintf(millis, sizeof millis, ".%03d", static_cast<int>(epochMilliseconds % 1000));

    std::string line;
    line.reserve(32 + kMessageBufferSize);
    line.append(clock).append(millis).append(marker(level)).append(message).push_back('\n');
    return line;
}

void StatusLogWriter::write(Level level, const char* format, va_list args) {
    if (AppGlobals::logLevel < level || format == nullptr)
        return;
    char message[kMessageBufferSize];
    if (std::vsnprintf(message, sizeof message, format, args) < 0)
        message[0] = '\0';

    const auto now = std::chrono::system_clock::now().time_since_epoch();
    const std::string line = formatLine(
        level, message, std::chrono::duration_cast<std::chrono::milliseconds>(now).count());

    const QByteArray path = QDir::toNativeSeparators(AppGlobals::statusLogPath()).toLocal8Bit();
    // A line that cannot be written is lost; logging must never disturb the caller.
    platform::appendToFile(path.constData(), line.data(), line.size());
}

#define TAVORIC_LOG_WRITER(name, level)                                                            \
    void name(const char* format, ...) {                                                           \
        va_list args;                                                                              \
        va_start(args, format);                                                                    \
        StatusLogWriter::write(level, format, args);                                               \
        va_end(args);                                                                              \
    }

TAVORIC_LOG_WRITER(logError, StatusLogWriter::Error)
TAVORIC_LOG_WRITER(logWarning, StatusLogWriter::Warning)
TAVORIC_LOG_WRITER(logInfo, StatusLogWriter::Info)
TAVORIC_LOG_WRITER(logLine, StatusLogWriter::Line)
TAVORIC_LOG_WRITER(logDebug, StatusLogWriter::Debug)
