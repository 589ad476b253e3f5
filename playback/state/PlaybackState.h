#pragma once

#include "GSensorPoint.h"
#include "GpsPoint.h"

#include <QList>
#include <QString>
#include <QtGlobal>

// What the playback coordinator shares with the views: the recording that plays, where it
// stands, its cameras and telemetry. The coordinator (PlayerInterface) writes these values;
// the list, the panels, the chart, the map and the export dialogs read them without linking
// the player.
class PlaybackState {
public:
    enum PlayStatus { PlayIdle = 0, PlayRunning = 1, PlayPaused = 2, PlayStopped = 3 };

    static QString currentFile;
    static int playStatus;
    static double currentTime;
    static double currentPosition;
    static double totalTime;
    static int playChannelCount;
    static bool flipState[3];
    static int volume;
    // 1 = 0.5x, 2 = 1.0x (set when a recording starts), 3 = 1.5x, 4 = 2.0x.
    static int speedIndex;
    static bool muted;
    static bool stopRequested;
    static bool playRequested;
    static bool firstOpenDone;
    static bool telemetryPresent;
    static bool gpsPresent;
    static QList<GpsPoint> gpsList;
    static QList<GSensorPoint> gSensorList;

    // While a drive plays: where the recording that plays starts in the drive, and the
    // drive's length (ms); -1 and 0 otherwise. The panel's slider and times cover the drive.
    static qint64 driveOffsetMs;
    static qint64 driveLengthMs;
    static bool inDrive() { return driveOffsetMs >= 0; }
    // The play time and length the panel shows: the drive's while one plays.
    static double shownTime() { return inDrive() ? driveOffsetMs + currentTime : currentTime; }
    static double shownTotal() { return inDrive() ? double(driveLengthMs) : totalTime; }

    // A recording is open in the players, playing or paused.
    static bool hasRecording() { return playStatus == PlayRunning || playStatus == PlayPaused; }
};
