#include "DriveTrace.h"

#include "KDXData.h"

#include <QFileInfo>

#include <algorithm>
#include <cmath>
#include <cstring>

QVector<TraceSample> DriveTrace::readRecording(const QString& path) {
    QVector<TraceSample> samples;
    if (QFileInfo(path).size() == 0)
        return samples;
    alignas(8) unsigned char info[KDXData::kInfoSize];
    KDXData reader(info);
    if (reader.KDX_Open(path) != 0) {
        reader.KDX_Close();
        return samples;
    }
    reader.KDX_GetTextData(nullptr, 0);
    const int count = reader.KDX_GetTextDataTotalCount();
    samples.reserve(count);
    for (int i = 0; i < count; ++i) {
        const float* buffer = reader.KDX_GetTextDataFrame(i);
        if (buffer == nullptr)
            continue;
        KDXTextFrame frame;
        std::memcpy(&frame, buffer, sizeof frame);
        if ((frame.fields & KDX_FIELD_GSENSOR) == 0)
            continue;
        TraceSample sample;
        sample.timeMs = frame.timeMs;
        sample.x = frame.gSensorX;
        sample.y = frame.gSensorY;
        sample.z = frame.gSensorZ;
        const bool located =
            (frame.fields & KDX_FIELD_POSITION) != 0 && (frame.fields & KDX_FIELD_SPEED) != 0;
        sample.speedKmh = located ? frame.speed : -1.0f;
        if (located) {
            sample.latitude = frame.latitude;
            sample.longitude = frame.longitude;
        }
        samples.append(sample);
    }
    reader.KDX_TextDataFree();
    reader.KDX_Close();
    return samples;
}

QVector<TraceSample> DriveTrace::read(const Drive& drive,
                                      const QVector<DriveRecording>& recordings) {
    QVector<TraceSample> trace;
    for (int index : drive.playList) {
        const DriveRecording& recording = recordings.at(index);
        const qint64 offset = recording.startMs - drive.startMs;
        for (TraceSample sample : readRecording(recording.path)) {
            sample.timeMs += offset;
            if (trace.isEmpty() || sample.timeMs > trace.constLast().timeMs)
                trace.append(sample);
        }
    }
    return trace;
}

QVector<TraceSample> DriveTrace::route(const QVector<TraceSample>& trace) {
    QVector<TraceSample> points;
    for (const TraceSample& sample : trace) {
        if (sample.latitude == 0 && sample.longitude == 0)
            continue;
        if (points.isEmpty() || sample.timeMs >= points.constLast().timeMs + 1000)
            points.append(sample);
    }
    return points;
}

QVector<Incident> DriveTrace::incidents(const Drive& drive,
                                        const QVector<DriveRecording>& recordings,
                                        const QVector<TraceSample>& trace,
                                        const IncidentDetector::Thresholds& thresholds) {
    QVector<Incident> found = IncidentDetector::detect(trace, thresholds);
    for (int index : drive.recordings) {
        const DriveRecording& recording = recordings.at(index);
        if (recording.type != DriveRecording::kEvent)
            continue;
        const qint64 from = recording.startMs - drive.startMs;
        const qint64 to = from + recording.durationMs;
        bool marked = false;
        for (Incident& incident : found) {
            if (incident.kind != Incident::CameraEvent && incident.timeMs >= from &&
                incident.timeMs <= to) {
                incident.byCamera = true;
                marked = true;
            }
        }
        if (marked)
            continue;
        Incident event;
        event.kind = Incident::CameraEvent;
        event.timeMs = from;
        event.byCamera = true;
        for (const TraceSample& sample : readRecording(recording.path)) {
            const float level = std::hypot(sample.x, sample.y);
            if (std::isfinite(level) && level > event.peakG) {
                event.peakG = level;
                event.timeMs = from + sample.timeMs;
                event.speedKmh = sample.speedKmh;
                event.latitude = sample.latitude;
                event.longitude = sample.longitude;
            }
        }
        found.append(event);
    }
    std::stable_sort(found.begin(), found.end(),
                     [](const Incident& a, const Incident& b) { return a.timeMs < b.timeMs; });
    return found;
}
