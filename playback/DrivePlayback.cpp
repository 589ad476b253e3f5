#include "DrivePlayback.h"

#include "DriveGrouper.h"
#include "DriveTrace.h"
#include "PlaybackState.h"
#include "StatusLog.h"

#include <QDir>

DrivePlayback::DrivePlayback(QObject* parent) : QObject(parent) {}

qint64 DrivePlayback::offsetOf(int playIndex) const {
    if (playIndex < 0 || playIndex >= m_drive.playList.size())
        return -1;
    return m_recordings.at(m_drive.playList.at(playIndex)).startMs - m_drive.startMs;
}

void DrivePlayback::play(const Drive& drive, const QVector<DriveRecording>& recordings, int record,
                         const QVector<TraceSample>& trace) {
    if (drive.playList.isEmpty())
        return;
    m_drive = drive;
    m_recordings = recordings;
    m_trace = trace;
    logInfo("[DrivePlayback]: drive of %d recordings, %lld ms", int(drive.playList.size()),
            static_cast<long long>(drive.lengthMs()));
    announceIncidents();
    if (record < 0 || record >= recordings.size()) {
        open(0, 0);
        return;
    }
    // A recording the play list leaves out (an event recording over the loop) plays as the
    // moments it holds in the recordings that are played.
    onSeek(int(recordings.at(record).startMs - drive.startMs));
}

void DrivePlayback::open(int playIndex, qint64 atMs) {
    m_current = playIndex;
    const DriveRecording& recording = m_recordings.at(m_drive.playList.at(playIndex));
    m_expected = QDir::cleanPath(recording.path);
    m_pendingSeekMs = atMs;
    PlaybackState::driveOffsetMs = offsetOf(playIndex);
    PlaybackState::driveLengthMs = m_drive.lengthMs();
    emit stopRequested(1);
    emit playFile(recording.path);
}

void DrivePlayback::onSeek(int ms) {
    if (!isActive()) {
        emit seekInRecording(ms);
        return;
    }
    // The last recording that starts at or before the moment holds it (or the gap after it).
    int target = 0;
    for (int i = 0; i < m_drive.playList.size(); ++i)
        if (offsetOf(i) <= ms)
            target = i;
    const qint64 within = qMax<qint64>(0, ms - offsetOf(target));
    const qint64 length = m_recordings.at(m_drive.playList.at(target)).durationMs;
    if (target == m_current && PlaybackState::hasRecording()) {
        emit seekInRecording(int(qMin(within, qMax<qint64>(0, length - 1))));
        return;
    }
    open(target, qMin(within, qMax<qint64>(0, length - 1000)));
}

void DrivePlayback::onForward() {
    if (!isActive()) {
        emit forwardToList();
        return;
    }
    if (m_current + 1 < m_drive.playList.size()) {
        open(m_current + 1, 0);
        return;
    }
    logInfo("[DrivePlayback]: the drive ended.");
    clear();
    emit ended();
}

void DrivePlayback::onStep(int direction) {
    if (!isActive()) {
        emit stepInList(direction);
        return;
    }
    const int target = direction > 0 ? m_current + 1 : m_current - 1;
    if (target < 0 || target >= m_drive.playList.size()) {
        emit noMore();
        return;
    }
    open(target, 0);
}

void DrivePlayback::onRecordingSet() {
    if (!isActive())
        return;
    if (QDir::cleanPath(PlaybackState::currentFile) != m_expected) {
        clear();
        return;
    }
    if (m_pendingSeekMs > 0) {
        const int at = int(m_pendingSeekMs);
        m_pendingSeekMs = 0;
        emit seekInRecording(at);
    }
}

void DrivePlayback::setIncidents(const QString& playListKey, const QVector<Incident>& incidents,
                                 const QVector<TraceSample>& trace) {
    const QString key = DriveGrouper::playListKey(m_drive, m_recordings);
    if (!isActive() || key != playListKey)
        return;
    m_drive.incidents = incidents;
    m_trace = trace;
    announceIncidents();
}

void DrivePlayback::announceIncidents() {
    QVector<int> marks;
    for (const Incident& incident : m_drive.incidents)
        marks << int(incident.timeMs);
    emit incidentsChanged(m_drive.incidents);
    emit incidentMarks(marks);
    emit driveRoute(DriveTrace::route(m_trace), m_drive.incidents);
    emit driveTrace(m_trace);
}

void DrivePlayback::clear() {
    const bool had = isActive();
    m_drive = Drive();
    m_recordings.clear();
    m_trace.clear();
    m_current = -1;
    m_expected.clear();
    m_pendingSeekMs = 0;
    PlaybackState::driveOffsetMs = -1;
    PlaybackState::driveLengthMs = 0;
    if (had)
        announceIncidents();
}
