#pragma once

#include "RecordingRecord.h"

#include <QList>
#include <QStringList>

class TavFileListItem;

// Deleting the file list's selected rows, from the list or from the disk, after the user
// has said yes. A row is a recording: from the disk goes every channel file of it, and its
// thumbnail. A file that cannot be deleted does not keep its row; the user is told which
// files are left. It works on the list's table and process-wide arrays on the list's
// behalf.
class FileListRemover {
public:
    // At most this many paths are named in the message about files left on disk.
    static constexpr int kNamedFailures = 10;

    explicit FileListRemover(TavFileListItem& list);

    void deleteSelected(bool fromDisk);
    // The panel's delete: the playing recording leaves the list (not the disk), without a
    // question.
    void deleteCurrent();

    // Deletes a recording's files and its thumbnail; returns the files still on disk.
    static QStringList deleteFiles(const RecordingRecord& record);

private:
    // The selected rows the filter shows, in ascending order.
    QList<int> selectedRows() const;
    void removeRows(QList<int> rows, bool fromDisk);
    void reportFilesLeft(QStringList files);

    TavFileListItem& m_list;
};
