#pragma once

#include <QString>
#include <QStringList>
#include <QtGlobal>

#include <array>

// One listed recording, as the file list keeps it: one row of the list.
struct RecordingRecord {
    int row = 0;
    QString fileName; // without folder
    QString filePath; // full path; identifies the record and is the file the player is given
    QString thumbPath;
    qint64 fileSize = 0;
    // The first entry is the file's suffix ("avi" or "mp4"); further entries are added when
    // a load hands over the same path again.
    std::array<QString, 4> suffixes;
    int suffixCount = 1;
    int type = 0;
    QString durationText;  // MM:SS once the length has been read
    qint64 durationMs = 0; // the same in milliseconds
    // A RecordingName::Problem once the file was found unplayable when its length was read.
    int problem = 0;

    // The files of the recording, front camera first: its MP4 channel files in one folder,
    // or the one file of a recording that keeps its cameras in one file (an MP4 with a video
    // track per camera, an AVI). filePath is the first of them. Deleting the row from the
    // disk removes them all.
    QStringList channelFiles;
    // The cameras the row plays: one per channel file, or for a one-file recording its video
    // tracks, known once its length has been read; 0 until then.
    int cameraCount = 0;
    // What the row shows (RecordingName::displayName): the recording's name, or another
    // camera's recording's start and type in the same layout.
    QString displayName;
    // What orders the rows (RecordingName::sortKey): the file name for the camera's own.
    QString sortKey;

    // A record for the file at path alone, at the given row, with its size read now.
    static RecordingRecord fromPath(const QString& path, int row);

    // Whether the row is a recording of channel files (counted by its files), rather than
    // a recording in one file (counted by its video tracks).
    bool hasChannelFiles() const;

    // The list's order: plain ascending comparison of the camera's own file names, which
    // sorts one folder's recordings by start time, then type and channel; other cameras'
    // recordings fall in by their start.
    friend bool operator<(const RecordingRecord& a, const RecordingRecord& b) {
        return a.sortKey < b.sortKey;
    }
};
