#include "DriveList.h"

#include "RecordingList.h"
#include "RecordingRecord.h"

#include <QDateTime>

QVector<DriveRecording> DriveList::recordings;
QVector<Drive> DriveList::drives;
DriveGrouper::Rules DriveList::rules;
IncidentDetector::Thresholds DriveList::thresholds;
QHash<QString, QVector<Incident>> DriveList::s_incidents;
QHash<QString, QVector<TraceSample>> DriveList::s_traces;

qint64 DriveList::startOf(const QString& displayName) {
    QDateTime start =
        QDateTime::fromString(displayName.left(15), QStringLiteral("yyyyMMdd_HHmmss"));
    if (!start.isValid())
        return -1;
    start.setTimeSpec(Qt::UTC);
    return start.toMSecsSinceEpoch();
}

DriveRecording DriveList::recordingOf(const RecordingRecord& record) {
    DriveRecording made;
    made.path = record.filePath;
    made.startMs = startOf(record.displayName);
    made.durationMs = record.durationMs;
    made.type = record.type;
    made.problem = record.problem;
    // A recording whose length is not known yet (or whose start no name gives) cannot be
    // placed: it stays out of the drives until it can.
    if (made.startMs < 0 || (made.durationMs == 0 && made.problem == 0))
        made.problem = -1;
    return made;
}

void DriveList::setRules(int gapSeconds, int thresholdPercent) {
    rules.maxGapMs = qint64(qMax(1, gapSeconds)) * 1000;
    const IncidentDetector::Thresholds published;
    const float scale = float(qBound(10, thresholdPercent, 1000)) / 100.0f;
    IncidentDetector::Thresholds scaled = published;
    scaled.brakingG = published.brakingG * scale;
    scaled.accelerationG = published.accelerationG * scale;
    scaled.turnG = published.turnG * scale;
    scaled.impactG = published.impactG * scale;
    if (scaled.brakingG != thresholds.brakingG)
        s_incidents.clear();
    thresholds = scaled;
}

void DriveList::rebuild() {
    recordings.clear();
    recordings.reserve(RecordingList::records.size());
    for (const RecordingRecord& record : RecordingList::records)
        recordings.append(recordingOf(record));
    drives = DriveGrouper::group(recordings, rules);
    for (Drive& drive : drives)
        drive.incidents = s_incidents.value(key(drive));
}

bool DriveList::passes(const Drive& drive) {
    for (int index : drive.recordings)
        if (RecordingList::passes(index))
            return true;
    return false;
}

int DriveList::driveOf(int record) {
    for (int i = 0; i < drives.size(); ++i)
        if (drives.at(i).recordings.contains(record) || drives.at(i).skipped.contains(record))
            return i;
    return -1;
}

QString DriveList::key(const Drive& drive, const QVector<DriveRecording>& from) {
    return DriveGrouper::playListKey(drive, from);
}

void DriveList::setIncidents(const QString& key, const QVector<Incident>& incidents,
                             const QVector<TraceSample>& trace) {
    s_incidents.insert(key, incidents);
    s_traces.insert(key, trace);
    for (Drive& drive : drives)
        if (DriveList::key(drive) == key)
            drive.incidents = incidents;
}

void DriveList::clear() {
    recordings.clear();
    drives.clear();
    s_incidents.clear();
    s_traces.clear();
}
