#pragma once

// The status log: one time-stamped line per call appended to playerStatus.txt in the data
// folder. A normal exit deletes the file, so it survives only a crash or a kill.
//
// Each writer takes a printf-style 8-bit format. Callers that log a QString pass
// text.toLocal8Bit() as the format. The writers may be called from any thread.

#if defined(__GNUC__)
#define TAVORIC_PRINTF(fmt, args) __attribute__((format(printf, fmt, args)))
#else
#define TAVORIC_PRINTF(fmt, args)
#endif

void logError(const char* format, ...) TAVORIC_PRINTF(1, 2);
void logWarning(const char* format, ...) TAVORIC_PRINTF(1, 2);
void logInfo(const char* format, ...) TAVORIC_PRINTF(1, 2);
void logLine(const char* format, ...) TAVORIC_PRINTF(1, 2);
void logDebug(const char* format, ...) TAVORIC_PRINTF(1, 2);
