#pragma once

#include "Drive.h"
#include "DriveRecording.h"
#include "TraceSample.h"

#include <QObject>
#include <QString>
#include <QVector>

// Plays a drive: its play list's recordings one after the other, the panel's slider and
// times over the whole drive (PlaybackState::driveOffsetMs, driveLengthMs). A seek lands in
// the recording that holds the moment; next and previous step by recording; the end of the
// last recording ends the drive. Without a drive, the panel's requests pass on to the
// coordinator and the list as they are. Playing anything else ends the drive.
class DrivePlayback : public QObject {
    Q_OBJECT
public:
    explicit DrivePlayback(QObject* parent = nullptr);

    bool isActive() const { return !m_drive.playList.isEmpty(); }
    const Drive& drive() const { return m_drive; }
    // Where in the drive a recording of the play list starts; -1 for others.
    qint64 offsetOf(int playIndex) const;

signals:
    // To the coordinator: stop what plays (1: for another recording), play a file, move
    // within the recording that plays.
    void stopRequested(int type);
    void playFile(const QString& path);
    void seekInRecording(int ms);
    // The incidents of the drive that plays (none when none plays), and their moments in
    // the drive for the slider.
    void incidentsChanged(const QVector<Incident>& incidents);
    void incidentMarks(const QVector<int>& driveMs);
    // The drive's route and incidents for the map; both empty when the drive ends.
    void driveRoute(const QVector<TraceSample>& route, const QVector<Incident>& incidents);
    // The drive's G-sensor readings on its time, for the chart; empty when the drive ends.
    void driveTrace(const QVector<TraceSample>& trace);
    // Without a drive: the panel's requests for the list.
    void forwardToList();
    void stepInList(int direction);
    // The drive's last recording ended; a step past its first or last recording.
    void ended();
    void noMore();

public slots:
    // Plays drive from its start, or from where record (an index into recordings) starts.
    void play(const Drive& drive, const QVector<DriveRecording>& recordings, int record,
              const QVector<TraceSample>& trace = {});
    // The panel's slider or chart: drive time while a drive plays, else recording time.
    void onSeek(int ms);
    // The recording that played ended: the drive's next one, or the list's.
    void onForward();
    // Next (1) or previous (0, -1) recording.
    void onStep(int direction);
    // A recording's data is set: the drive goes on with it, or ends when it is not the one
    // the drive asked for.
    void onRecordingSet();
    // The drive's incidents came (they are read in the background); for another drive
    // (key: DriveList's key of its play list) nothing changes.
    void setIncidents(const QString& playListKey, const QVector<Incident>& incidents,
                      const QVector<TraceSample>& trace);
    // Leaves the drive (the list was emptied, the card taken).
    void clear();

private:
    void open(int playIndex, qint64 atMs);
    void announceIncidents();

    Drive m_drive;
    QVector<TraceSample> m_trace;
    QVector<DriveRecording> m_recordings;
    int m_current = -1;
    QString m_expected;
    qint64 m_pendingSeekMs = 0;
};
