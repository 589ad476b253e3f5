#pragma once

#include "RecordingRecord.h"

#include <QDir>
#include <QSet>
#include <QStringList>
#include <QVector>

class QDropEvent;
class TavFileListItem;

// How the file list takes recordings in: the paths of a drop, the dialogs, a folder or the
// card list become rows, one per recording (RecordingBatch puts a recording's channel files
// together). Paths that make up one recording are added to the list, unless that recording
// is listed already; paths of several recordings replace the list. It works on the list's
// table and process-wide arrays on the list's behalf.
class FileListLoader {
public:
    explicit FileListLoader(TavFileListItem& list);

    // Files and folders: a folder gives its files, as the open-folder dialog does, and like
    // that dialog stops what plays.
    void loadPaths(const QStringList& paths);
    // The local files and folders of a drop, loaded once the drop has returned (a message
    // box inside the drop would hold the dragging application too).
    void takeDrop(QDropEvent* event);
    // The files of a folder chosen in the open-folder dialog.
    void loadFolder(const QString& folder);
    // The common loader. listedFolders: the folders (RecordingBatch::folderOf) whose every
    // file is among the paths, so that no channel file of theirs needs to be looked for.
    void load(const QStringList& paths, const QSet<QString>& listedFolders = {});

private:
    // A folder's files, unsorted, as absolute paths, with those of its type folders
    // ("Event", "Parking", ...); each folder that gave files is added to listed.
    static QStringList folderFiles(const QString& folder, QSet<QString>* listed);
    // One folder's files alone.
    static QStringList filesOf(const QDir& dir, QSet<QString>* listed);
    // Whether the recording has a row already, under any of its channel files.
    static bool isListed(const RecordingRecord& record);
    void append(RecordingRecord record);
    void replaceWith(const QVector<RecordingRecord>& batch);

    TavFileListItem& m_list;
};
