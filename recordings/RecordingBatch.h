#pragma once

#include "RecordingRecord.h"

#include <QSet>
#include <QStringList>
#include <QVector>

// The records of a load, before they reach the list: one per recording. The channel files
// of one recording (ChannelFiles: "_1.mp4" to "_3.mp4" with one stem, or another camera's
// names that differ in their channel letter or digit, in one folder) make one record,
// because the player opens all of them from any one; a recording kept in one file (an MP4
// with a track per camera) and every AVI of the camera (the player opens such an AVI alone,
// so grouping would hide a camera) make one record each.
class RecordingBatch {
public:
    // One record per recording among the paths that pass RecordingName::isSupportedName, in
    // name order and numbered 0..n-1. A record's channel files are all that are on disk,
    // also those the paths leave out; those are looked for on disk unless their folder is in
    // listedFolders (folders, as folderOf gives them, whose every file is among the paths).
    // A path given again right after itself makes no second record: its last three
    // characters go to the record's next suffix entry instead. rejected tells whether any
    // path failed the name check.
    static QVector<RecordingRecord> fromPaths(const QStringList& paths,
                                              const QSet<QString>& listedFolders, bool* rejected);

    // What two paths of one recording share: the folder and name without the channel of a
    // channel file; any other file is a recording of its own, its path.
    static QString recordingKey(const QString& path);

    // The folder of a path, with its final separator.
    static QString folderOf(const QString& path);

    // The files of the recording at path as they are on disk now: every channel file of a
    // channel recording, the file itself for any other recording.
    static QStringList filesOnDisk(const QString& path);
};
