#include "FileListRemover.h"

#include "ItemInfoThread.h"
#include "PlaybackState.h"
#include "RecordingBatch.h"
#include "StatusLog.h"
#include "TavFileListItem.h"
#include "TavPrompt.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QItemSelectionModel>

#include <algorithm>
#include <functional>

FileListRemover::FileListRemover(TavFileListItem& list) : m_list(list) {}

QList<int> FileListRemover::selectedRows() const {
    QList<int> rows;
    for (const QModelIndex& index : m_list.selectionModel()->selectedRows())
        // A range selected with Shift may span rows the filter hides; those stay.
        if (!m_list.isRowHidden(index.row()) && index.row() < RecordingList::records.size())
            rows << index.row();
    std::sort(rows.begin(), rows.end());
    return rows;
}

void FileListRemover::deleteCurrent() {
    if (!RecordingList::hasCurrent()) {
        logInfo("[TavFileListItem]: no Item.");
        return;
    }
    emit m_list.onSendStop(3);
    m_list.dropRow(RecordingList::currentIndex);
    m_list.resetPressState();
    emit m_list.onSetBlockEvent(false);
}

void FileListRemover::deleteSelected(bool fromDisk) {
    const QList<int> rows = selectedRows();
    if (rows.isEmpty()) {
        logInfo("No Select Items");
        return;
    }
    const bool currentSelected =
        RecordingList::hasCurrent() && rows.contains(RecordingList::currentIndex);
    const int status = PlaybackState::playStatus;
    if (status == PlaybackState::PlayRunning)
        emit m_list.onSendPause();
    const QString question =
        fromDisk ? TavFileListItem::tr("Do you want to delete the selected files at disk?")
                 : TavFileListItem::tr("Do you want to delete the selected files at list?");
    if (!TavPrompt::ask(&m_list, question)) {
        logInfo("Select No");
        return;
    }
    if (!fromDisk) {
        if (currentSelected && status != PlaybackState::PlayIdle &&
            status != PlaybackState::PlayStopped)
            emit m_list.onSendStop(3);
    } else {
        if (m_list.isReadingThumbnails()) {
            logInfo("[TavFileListItem] Stop Thread");
            emit m_list.onSendThreadStop();
        }
        if (currentSelected && status != PlaybackState::PlayIdle) {
            logInfo("[TavFileListItem] SendStop 4");
            emit m_list.onSendStop(4);
        }
    }
    removeRows(rows, fromDisk);
    emit m_list.onSetBlockEvent(false);
}

void FileListRemover::removeRows(QList<int> rows, bool fromDisk) {
    const QString loading = m_list.getLoadingFileName();
    bool keptLoading = false;
    QStringList left;
    // From the bottom up, so that the rows still to go keep their numbers.
    std::sort(rows.begin(), rows.end(), std::greater<int>());
    for (int row : rows) {
        const RecordingRecord record = RecordingList::records.at(row);
        if (!fromDisk && !loading.isEmpty() && record.channelFiles.contains(loading)) {
            keptLoading = true;
            continue;
        }
        m_list.removeRow(row);
        RecordingList::records.remove(row);
        // A failed delete still drops the row: the user asked for it to go.
        if (fromDisk)
            left << deleteFiles(record);
    }
    RecordingList::renumber();
    emit m_list.rowsChanged();
    if (keptLoading)
        TavPrompt::inform(&m_list,
                          TavFileListItem::tr("This File is loading now.. Please try later"));
    if (!left.isEmpty())
        reportFilesLeft(left);
}

QStringList FileListRemover::deleteFiles(const RecordingRecord& record) {
    // What the player would open now, not only what was there when the row was made: a
    // camera's file written or copied in later belongs to the recording too.
    QStringList files = record.channelFiles;
    for (const QString& file : RecordingBatch::filesOnDisk(record.filePath))
        if (!files.contains(file))
            files << file;
    QStringList left;
    for (const QString& file : files) {
        // A file someone else removed meanwhile is gone as the user wanted.
        if (QFile::remove(file) || !QFileInfo::exists(file))
            continue;
        logWarning("[TavFileListItem]: Can not delete %s", file.toLocal8Bit().constData());
        left << file;
    }
    if (!record.thumbPath.isEmpty())
        QFile::remove(record.thumbPath);
    return left;
}

void FileListRemover::reportFilesLeft(QStringList files) {
    files.sort();
    QStringList lines;
    for (int i = 0; i < files.size() && i < kNamedFailures; ++i)
        lines << QDir::toNativeSeparators(files.at(i));
    if (files.size() > kNamedFailures)
        //: Ends the list of files that could not be deleted when it is too long to show.
        lines << TavFileListItem::tr("and %1 more").arg(files.size() - kNamedFailures);
    //: %1: the files, one per line.
    TavPrompt::inform(&m_list, TavFileListItem::tr("These files could not be deleted:\n%1")
                                   .arg(lines.join(QLatin1Char('\n'))));
}
