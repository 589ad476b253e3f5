#pragma once

#include "Drive.h"
#include "DriveGrouper.h"
#include "DriveRecording.h"
#include "IncidentDetector.h"

#include <QHash>
#include <QString>
#include <QVector>

struct RecordingRecord;

// The list's recordings taken as drives, without the window that shows them: one
// DriveRecording per listed record (same index), the drives and parking spans they make,
// and the incidents of each drive once its telemetry has been read. Process-wide, as the
// recording list is.
class DriveList {
public:
    static QVector<DriveRecording> recordings;
    static QVector<Drive> drives;
    // The program settings' gap and thresholds.
    static DriveGrouper::Rules rules;
    static IncidentDetector::Thresholds thresholds;

    // The gap that still continues a drive, and the incident thresholds as a percentage of
    // the published ones; incidents read with other thresholds are forgotten.
    static void setRules(int gapSeconds, int thresholdPercent);
    // Drives made anew from the recording list; incidents already read are kept.
    static void rebuild();
    // A listed recording as drives see it: its start from the name the list shows.
    static DriveRecording recordingOf(const RecordingRecord& record);
    // The camera's clock at the start of a recording whose shown name leads with
    // YYYYMMDD_HHMMSS; -1 when it does not.
    static qint64 startOf(const QString& displayName);

    // Whether the type filter in force leaves any of the drive's recordings shown.
    static bool passes(const Drive& drive);
    // The drive a record belongs to (played or skipped), -1 for none.
    static int driveOf(int record);

    // What identifies a drive's incidents: its play list's files.
    static QString key(const Drive& drive) { return key(drive, recordings); }
    static QString key(const Drive& drive, const QVector<DriveRecording>& from);
    static bool hasIncidents(const Drive& drive) { return s_incidents.contains(key(drive)); }
    static void setIncidents(const QString& key, const QVector<Incident>& incidents,
                             const QVector<TraceSample>& trace = {});
    // The drive's telemetry on its time (DriveTrace::read), once it has been read.
    static QVector<TraceSample> trace(const Drive& drive) { return s_traces.value(key(drive)); }
    // Forgets every drive and incident (a new list).
    static void clear();

private:
    static QHash<QString, QVector<Incident>> s_incidents;
    static QHash<QString, QVector<TraceSample>> s_traces;
};
