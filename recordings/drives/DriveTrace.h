#pragma once

#include "Drive.h"
#include "DriveRecording.h"
#include "IncidentDetector.h"
#include "TraceSample.h"

#include <QString>
#include <QVector>

// A drive's telemetry as one trace on the drive's time, read from its recordings' files,
// and the incidents of the drive.
class DriveTrace {
public:
    // The G-sensor readings (with the speed where a position was known) of one recording,
    // timed from its start. Empty for a file without telemetry or one that cannot be read.
    static QVector<TraceSample> readRecording(const QString& path);

    // The readings of the drive's play list, one after the other on the drive's time; where
    // two recordings share moments, the first one's readings are kept.
    static QVector<TraceSample> read(const Drive& drive, const QVector<DriveRecording>& recordings);

    // The positions of a trace, one a second at most: the drive's route for a map.
    static QVector<TraceSample> route(const QVector<TraceSample>& trace);

    // The drive's incidents: those found in its trace, and the camera's own event
    // recordings. An event recording whose time holds a found incident marks that incident
    // (byCamera) instead of adding one; one that holds none adds a camera event at its
    // largest horizontal reading (or at its start, without telemetry).
    static QVector<Incident> incidents(const Drive& drive,
                                       const QVector<DriveRecording>& recordings,
                                       const QVector<TraceSample>& trace,
                                       const IncidentDetector::Thresholds& thresholds);
};
