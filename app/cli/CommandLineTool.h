#pragma once

#include "DriveRecording.h"
#include "RecordingRecord.h"

#include <QJsonObject>
#include <QStringList>
#include <QVector>

#include <cstdio>

// tavoric-cli: what the viewer knows of recordings, without a window or a display.
//
//   tavoric-cli info PATH...     each recording: length, cameras, telemetry, positions
//   tavoric-cli drives PATH...   the drives and parking spans, with their incidents
//   tavoric-cli track --format gpx|kml|csv|geojson [--from S] [--to S] -o FILE PATH...
//                                the recordings' track as a file (S: seconds from the start
//                                of the first recording)
//
// PATH: recordings, or folders searched with their subfolders. One JSON document on standard
// output. Exit status: 0 done, 1 nothing could be read, 2 a usage error. Progress goes to
// standard error when that is a terminal. -j N reads N recordings at a time.
class CommandLineTool {
public:
    enum Exit { Done = 0, NothingRead = 1, UsageError = 2 };

    static int run(int argc, char** argv);

    // One recording as "info" describes it.
    struct Facts {
        RecordingRecord record;
        qint64 lengthMs = 0;
        int cameras = 0;
        int problem = 0;
        QString telemetryKind;
        int readings = 0;
        int positions = 0;
    };

    // The recordings among paths (folders searched with their subfolders), one per
    // recording as the viewer's list has them, in the list's order.
    static QVector<RecordingRecord> collect(const QStringList& paths);
    // Reads a recording's header, and its telemetry's readings and positions when
    // countReadings is set (drives and track read the telemetry in their own trace).
    static Facts read(const RecordingRecord& record, bool countReadings);
    // The camera's clock as ISO 8601 without a zone (cameras keep no zone).
    static QString isoTime(qint64 ms);

private:
    static int info(const QStringList& paths, int jobs);
    static int drives(const QStringList& paths, int jobs);
    struct TrackRequest {
        QString format;
        double fromS = 0;
        double toS = -1;
        QString output;
    };
    static int track(const QStringList& paths, int jobs, const TrackRequest& request);
    static QVector<Facts> readAll(const QVector<RecordingRecord>& records, int jobs,
                                  bool countReadings);
    static QJsonObject describe(const Facts& facts);
    static void usage(std::FILE* to, const QString& command);
};
