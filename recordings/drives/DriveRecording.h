#pragma once

#include <QString>
#include <QtGlobal>

// One recording as drives see it: when it started by the camera's clock, how long it is,
// of which kind, and whether it can be played.
struct DriveRecording {
    QString path;
    // The camera's clock at the start, in milliseconds since 1970 read as if the clock were
    // UTC (cameras write local time without a zone; kept as written, a drive over midnight
    // or a change of daylight saving time stays one timeline).
    qint64 startMs = 0;
    // 0 when the file cannot be read.
    qint64 durationMs = 0;
    // RecordingName::Type: 1 Infinity, 2 Event, 3 Parking, 4 User, 0 unknown.
    int type = 0;
    // RecordingName::Problem; 0 when the recording can be played.
    int problem = 0;

    static constexpr int kParking = 3;
    static constexpr int kEvent = 2;
    static constexpr int kUser = 4;

    qint64 endMs() const { return startMs + durationMs; }
    bool playable() const { return problem == 0 && durationMs > 0; }
    // A recording the camera made on its own (an impact, a press of its button), which may
    // overlap the loop recording of the same moments.
    bool isMarked() const { return type == kEvent || type == kUser; }
};
