#pragma once

#include <QString>
#include <QtGlobal>

#include <array>

// One listed recording, as the file list keeps it.
struct RecordingRecord {
    int row = 0;
    QString fileName; // without folder
    QString filePath; // full path; identifies the record
    QString thumbPath;
    qint64 fileSize = 0;
    // The first entry is the file's suffix ("avi" or "mp4"); further entries are added when
    // a load hands over the same path again.
    std::array<QString, 4> suffixes;
    int suffixCount = 1;
    int type = 0;
    QString durationText; // MM:SS once the length has been read

    // A record for the file at path, at the given row, with its size read now.
    static RecordingRecord fromPath(const QString& path, int row);

    // The list's order: plain ascending comparison of the file names, which sorts one
    // folder's recordings by start time, then type and channel.
    friend bool operator<(const RecordingRecord& a, const RecordingRecord& b) {
        return a.fileName < b.fileName;
    }
};
