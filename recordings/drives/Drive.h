#pragma once

#include "Incident.h"

#include <QVector>
#include <QtGlobal>

// Consecutive recordings of one camera taken as one drive, or a span of parking recordings.
// Indices are into the list of DriveRecording the drives were made from.
struct Drive {
    enum Kind { Driving, Parking };

    Kind kind = Driving;
    // The first recording's start and the last one's end, by the camera's clock.
    qint64 startMs = 0;
    qint64 endMs = 0;
    // Its playable recordings in time order, event and manual recordings among them.
    QVector<int> recordings;
    // What plays, in order: the recordings that bring new moments (an event recording
    // that repeats moments the loop recording holds is not played again).
    QVector<int> playList;
    // Recordings of its time that cannot be played: not part of it, the drive plays past.
    QVector<int> skipped;
    QVector<Incident> incidents;

    qint64 lengthMs() const { return endMs - startMs; }
};
