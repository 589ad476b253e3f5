#pragma once

#include "RecordingList.h"
#include "RecordingName.h"
#include "RecordingRecord.h"
#include "TavTableWidget.h"
#include "ThumbnailFeed.h"

#include <QStringList>
#include <QVector>

#include <memory>

class FileListLoader;
class FileListRemover;
class LengthProgressBar;
class LengthReading;
class QAction;
class QMenu;

// The table of recordings beside the player: one row per recording with its type icon, its
// name with the number of its cameras, and its length. A recording of one MP4 file per
// camera is one row, whichever of its files were loaded; the player opens all of them from
// the row's file. It admits only names that pass RecordingName::isSupportedName, keeps the
// process-wide record array that the player and the export dialogs read, filters rows by
// type, and chooses what plays: double click, next, previous, the first file. Deleting a
// row removes it from the list or, with all its files, from the disk. FileListLoader does
// the loading and FileListRemover the deleting.
//
// Choosing a row to play sets currentIndex, selects and shows the row and emits
// doubleClickedItem() with the row's file, which the main window connects to the
// coordinator's checkFileReady(); what plays is the coordinator's to say
// (PlaybackState::currentFile).
//
// Lengths are read by pool threads after a many-file load and arrive in chunks, with the
// video tracks that count a one-file recording's cameras; a progress bar in the list's
// header strip shows how far it got. Thumbnails (row tool tips) come from a ThumbnailFeed
// for the rows on screen, as they come into view.
class QDropEvent;

class TavFileListItem : public TavTableWidget, public RecordingList {
    Q_OBJECT
public:
    enum Column { TypeColumn = 0, NameColumn = 1, LengthColumn = 2, ColumnCount = 3 };

    explicit TavFileListItem(QWidget* parent = nullptr);
    ~TavFileListItem() override;

    // Files and folders from a drop or the command line. A folder gives its files, as the
    // open-folder dialog does; the result is loaded like a drop.
    void loadPaths(const QStringList& paths);

    // Lists the local files and folders of a drop, on the list or elsewhere in the window,
    // once the drop has returned.
    void takeDrop(QDropEvent* event);

signals:
    // The recording the user (or playback moving on) chose to play: its front file.
    void doubleClickedItem(const QString& file);
    void onSendPause();
    void onSendStop(int type);
    void onSendHideTypeList();
    void onSendClear();
    void onSendRefreshFilter();
    void onSendThreadStop();
    void onSendLogoSet(bool show);
    void onSetBlockEvent(bool block);
    void onSendFinishReadFileTime();
    // Lengths read so far of the current load; done == total when finished.
    void onSendReadProgress(int done, int total);
    // Rows went (deleted, or the list emptied); loads end with onSendRefreshFilter.
    void rowsChanged();

public slots:
    void recvReqFileOpen();
    void onReceiveFileList(const QStringList& paths);
    void onChangeSelectionMode();
    void onSortFile(int mask);
    void fileListShowContextMenu(const QPoint& position);
    // End of playback: moves on to the next shown row. After the last one nothing more is
    // played and no message is shown; the player stays stopped at the logo.
    void onForwardItemSet();
    // Next (direction 1) or previous (0 or -1) shown row, asked for by the user; at an end
    // the user is told "There is no item.".
    void onChangePlayItem(int direction);
    // Playback ran to its end by itself: the player stays stopped at the logo.
    void onEndOfPlayback();
    // A step past the first or last row: the user is told "There is no item.".
    void onNoMoreItem();
    void onDeleteAllFileAtList();
    void onDeleteCurrentFile();
    void onUpdateData(const QString& path, int index);
    void onFinishThread();
    void onSetFirstFile();
    void onBlockEvent(bool block);
    int getCanPlayFileCount();
    QString getLoadingFileName();
    void onFinishReadFileTime();
    void onOpenFolderDlg();
    void onChangeLanguage();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void updateGeometries() override;

private slots:
    void onDeleteSelectedAtList();
    void onDeleteSelectedFromDisk();

public:
    // For the loader and the remover, which change the recordings: the rows of the table
    // follow them.
    // Takes a record and its table row out of the list.
    void dropRow(int row);
    // Thumbnails are asked for anew (a load replaced the rows).
    void clearThumbnailRequests() { m_thumbs->clearRequests(); }
    void resetList();
    void resetPressState();
    void stopItemInfoThread();
    void startLengthReader();
    void cancelLengthReader();
    void scheduleThumbnails();
    bool isReadingThumbnails() const { return m_thumbs->isBusy(); }

private:
    void setupUi();
    // Plays the row; one whose file cannot be played is not handed on, and the user is told
    // why when tell is set.
    void playItem(int index, bool tell = true);
    // Whether the row's file can be played, read now when its length has not come yet.
    bool isPlayable(int index);
    // A row chosen by double click or Enter: stops what plays, then plays the row.
    void chooseRow(int row);
    void onLengthsRead(int first, const QVector<RecordingName::Length>& lengths);
    void onLengthsFinished(qint64 elapsedMs);

    bool m_controlHeld = false;
    bool m_shiftHeld = false;
    bool m_blocked = false;
    QMenu* m_menu = nullptr;
    QAction* m_deleteAtList = nullptr;
    QAction* m_deleteFromDisk = nullptr;
    LengthReading* m_lengths;
    ThumbnailFeed* m_thumbs;
    LengthProgressBar* m_progress;
    std::unique_ptr<FileListLoader> m_loader;
    std::unique_ptr<FileListRemover> m_remover;
};
