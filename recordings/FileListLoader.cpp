#include "FileListLoader.h"

#include "NameSchemes.h"
#include "PlaybackState.h"
#include "RecordingBatch.h"
#include "RecordingName.h"
#include "RecordingRows.h"
#include "StatusLog.h"
#include "TavFileListItem.h"
#include "TavPrompt.h"

#include <QDir>
#include <QDropEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QTimer>
#include <QUrl>

#include <algorithm>

FileListLoader::FileListLoader(TavFileListItem& list) : m_list(list) {}

QStringList FileListLoader::folderFiles(const QString& folder, QSet<QString>* listed) {
    QStringList files = filesOf(QDir(folder), listed);
    // Many cameras keep their recordings in folders named after the type ("Normal", "Event",
    // "Parking", "Manual"): the files of those folders are the folder's recordings too.
    const QDir dir(folder);
    for (const QString& name : dir.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name)) {
        if (name.size() >= 3 && NameSchemes::typeOfWord(name) != 0)
            files << filesOf(QDir(dir.absoluteFilePath(name)), listed);
    }
    return files;
}

QStringList FileListLoader::filesOf(const QDir& dir, QSet<QString>* listed) {
    QStringList files;
    for (const QString& name : dir.entryList(QDir::Files, QDir::Unsorted))
        files << dir.absoluteFilePath(name);
    if (!files.isEmpty())
        listed->insert(RecordingBatch::folderOf(files.first()));
    return files;
}

void FileListLoader::loadPaths(const QStringList& paths) {
    QStringList files;
    QSet<QString> listed;
    bool folder = false;
    for (const QString& path : paths) {
        const QFileInfo info(path);
        if (!info.isDir()) {
            files << info.absoluteFilePath();
            continue;
        }
        folder = true;
        files << folderFiles(info.absoluteFilePath(), &listed);
    }
    // A folder replaces the list as the open-folder dialog does, so it stops what plays.
    if (folder && (PlaybackState::playStatus == PlaybackState::PlayRunning ||
                   PlaybackState::playStatus == PlaybackState::PlayPaused))
        emit m_list.onSendStop(3);
    load(files, listed);
}

void FileListLoader::loadFolder(const QString& folder) {
    QSet<QString> listed;
    const QStringList files = folderFiles(folder, &listed);
    if (!files.isEmpty())
        load(files, listed);
}

void FileListLoader::load(const QStringList& paths, const QSet<QString>& listedFolders) {
    logDebug("TavFileListItem::onLoadItem");
    if (m_list.rowCount() == 0) {
        RecordingList::clear();
    }
    if (paths.isEmpty()) {
        logInfo("[TavFileListItem]: no Item.");
        TavPrompt::inform(&m_list, TavFileListItem::tr("There is no item."));
        return;
    }
    bool rejected = false;
    const QVector<RecordingRecord> batch =
        RecordingBatch::fromPaths(paths, listedFolders, &rejected);
    if (batch.size() == 1) {
        // One recording, as one file or as its channel files together, is added to the list
        // (whatever else the load held that is no recording).
        if (isListed(batch.first())) {
            logInfo("[TavFileListItem]: Some files were loaded already.");
            TavPrompt::inform(&m_list, TavFileListItem::tr("Item is exist!"));
            return;
        }
        append(batch.first());
    } else if (!batch.isEmpty()) {
        // Nothing usable leaves the list as it was rather than empty.
        replaceWith(batch);
    }
    m_list.scheduleThumbnails();
    if (rejected) {
        logInfo("[TavFileListItem]: Unsupported Files.");
        TavPrompt::inform(
            &m_list, TavFileListItem::tr("Item format is different with our service supproted!"));
        return;
    }
    logInfo("[TavFileListItem]: Load File Complete.");
    emit m_list.onSendRefreshFilter();
}

bool FileListLoader::isListed(const RecordingRecord& record) {
    const QString key = RecordingBatch::recordingKey(record.filePath);
    return std::any_of(RecordingList::records.cbegin(), RecordingList::records.cend(),
                       [&](const RecordingRecord& listed) {
                           return RecordingBatch::recordingKey(listed.filePath) == key;
                       });
}

void FileListLoader::append(RecordingRecord record) {
    record.row = m_list.rowCount();
    // One row's length is read at once; one reading gives a one-file recording's cameras too.
    const RecordingName::Length length = RecordingName::readLength(record.filePath);
    record.durationText = length.text;
    record.durationMs = length.ms;
    record.problem = length.problem;
    if (!record.hasChannelFiles())
        record.cameraCount = length.videoCount;
    RecordingList::records.append(record);
    m_list.insertRow(record.row);
    RecordingRows::fill(&m_list, record.row, record);
    RecordingList::rebuildVisibleRows();
}

void FileListLoader::replaceWith(const QVector<RecordingRecord>& batch) {
    m_list.cancelLengthReader();
    m_list.clearThumbnailRequests();
    RecordingList::records = batch;
    m_list.setUpdatesEnabled(false);
    m_list.clearContents();
    m_list.setRowCount(batch.size());
    for (int i = 0; i < batch.size(); ++i)
        RecordingRows::fill(&m_list, i, batch[i]);
    m_list.setUpdatesEnabled(true);
    RecordingList::rebuildVisibleRows();
    m_list.startLengthReader();
}

void FileListLoader::takeDrop(QDropEvent* event) {
    QStringList paths;
    for (const QUrl& url : event->mimeData()->urls())
        if (url.isLocalFile())
            paths << url.toLocalFile();
    event->acceptProposedAction();
    QTimer::singleShot(0, &m_list, [this, paths] { loadPaths(paths); });
}
