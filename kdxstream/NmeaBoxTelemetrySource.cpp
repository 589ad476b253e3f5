#include "NmeaBoxTelemetrySource.h"

#include "BoxFile.h"
#include "ByteOrder.h"
#include "NmeaFixReadings.h"
#include "NmeaParser.h"

#include <algorithm>

namespace kdx {
namespace {

// A log of an hour at 10 Hz is a few megabytes.
constexpr std::size_t kMaxLog = 32u << 20;
// What is read to decide whether a box holds a log.
constexpr std::size_t kProbeSize = 16u << 10;

} // namespace

std::unique_ptr<NmeaBoxTelemetrySource>
NmeaBoxTelemetrySource::create(std::shared_ptr<BoxFile> file, std::int32_t spanMs) {
    if (!file)
        return nullptr;
    for (const BoxFile::Box& box : file->topLevel()) {
        std::int64_t offset = -1, size = 0, start = -1;
        if (box.is("udat")) {
            offset = box.dataOffset();
            size = box.dataSize();
        } else if (box.is("free")) {
            // Only a "free" box made of boxes, one of them a log; most are padding.
            BoxFile::Box log, clock;
            if (!file->find(&box, "gps ", log))
                continue;
            offset = log.dataOffset();
            size = log.dataSize();
            std::uint8_t value[8];
            if (file->find(&box, "sttm", clock) && clock.dataSize() >= 8 &&
                file->read(clock.dataOffset(), value, sizeof value))
                start = static_cast<std::int64_t>(bytes::be64(value) & 0x7fffffffffffffffULL);
        } else {
            continue;
        }
        const std::vector<std::uint8_t> head = file->readUpTo(
            offset, static_cast<std::size_t>(std::min<std::int64_t>(size, kProbeSize)));
        if (NmeaParser::containsSentence(reinterpret_cast<const char*>(head.data()), head.size()))
            return std::unique_ptr<NmeaBoxTelemetrySource>(
                new NmeaBoxTelemetrySource(file, offset, size, start, spanMs));
    }
    return nullptr;
}

NmeaBoxTelemetrySource::NmeaBoxTelemetrySource(std::shared_ptr<BoxFile> file,
                                               std::int64_t logOffset, std::int64_t logSize,
                                               std::int64_t startClockMs, std::int32_t spanMs)
    : ResampledTelemetrySource(spanMs), m_file(std::move(file)), m_logOffset(logOffset),
      m_logSize(logSize), m_startClockMs(startClockMs) {}

int NmeaBoxTelemetrySource::readAll(std::vector<TelemetryReading>& readings) {
    const std::size_t wanted = static_cast<std::size_t>(std::min<std::int64_t>(m_logSize, kMaxLog));
    const std::vector<std::uint8_t> log = m_file->readUpTo(m_logOffset, wanted);
    std::vector<NmeaParser::Fix> fixes;
    NmeaParser::parse(reinterpret_cast<const char*>(log.data()), log.size(), fixes);

    // The camera's clock places a fix where it has one; the receiver's clock otherwise,
    // counted from the first fix.
    std::int64_t firstTimecode = -1, firstClock = -1;
    for (const NmeaParser::Fix& fix : fixes) {
        if (firstTimecode < 0 && fix.timecodeMs >= 0)
            firstTimecode = fix.timecodeMs;
        if (firstClock < 0 && fix.clockMs() >= 0)
            firstClock = fix.clockMs();
    }
    const std::int64_t origin = m_startClockMs >= 0 ? m_startClockMs : firstTimecode;
    for (const NmeaParser::Fix& fix : fixes) {
        if (!fix.hasPosition)
            continue;
        TelemetryReading reading = NmeaFixReadings::readingOf(fix);
        if (fix.timecodeMs >= 0 && origin >= 0)
            reading.timeMs = fix.timecodeMs - origin;
        else if (fix.clockMs() >= 0 && firstClock >= 0)
            reading.timeMs = fix.clockMs() - firstClock;
        if (reading.timeMs >= 0)
            readings.push_back(reading);
    }
    return log.size() == static_cast<std::size_t>(m_logSize) || log.size() == kMaxLog
               ? KDX_OK
               : KDX_ERR_READ;
}

} // namespace kdx
