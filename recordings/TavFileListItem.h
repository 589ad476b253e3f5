#pragma once

#include "RecordingRecord.h"
#include "TavTableWidget.h"

#include <QSet>
#include <QStringList>
#include <QVector>

class ItemInfoThread;
class LengthReading;
class QAction;
class QMenu;
class QProgressBar;
class QTimer;
class TypeIconDelegate;

// The table of recordings beside the player: one row per recording with its type icon, file
// name and length. It admits only names that pass RecordingName::isSupportedName, keeps the
// process-wide record array that the player and the export dialogs read, filters rows by
// type, and chooses what plays: double click, next, previous, the first file. Deleting a
// row removes it from the list or from the disk.
//
// Choosing a row to play sets PlayerInterface::currentFile and currentIndex, selects and
// shows the row and emits doubleClickedItem(), which the main window connects to the
// coordinator's checkFileReady().
//
// Lengths are read by pool threads after a many-file load and arrive in chunks; a progress
// bar in the list's header strip shows how far it got. Thumbnails (row tool tips) are made by
// an ItemInfoThread for the rows on screen, as they come into view.
class QDropEvent;

class TavFileListItem : public TavTableWidget {
    Q_OBJECT
public:
    enum Column { TypeColumn = 0, NameColumn = 1, LengthColumn = 2, ColumnCount = 3 };

    // Process-wide, one instance: every listed recording in display order, and the rows
    // (record row numbers) that the type filter leaves shown, in display order.
    static QVector<RecordingRecord> records;
    static QVector<int> visibleRows;
    // The record being played; 0 after a reset.
    static int currentIndex;

    explicit TavFileListItem(QWidget* parent = nullptr);
    ~TavFileListItem() override;

    // Files and folders from a drop or the command line. A folder gives its files, as the
    // open-folder dialog does; the result is loaded like a drop.
    void loadPaths(const QStringList& paths);

    // Lists the local files and folders of a drop, on the list or elsewhere in the window,
    // once the drop has returned.
    void takeDrop(QDropEvent* event);

    // Where the current recording stands among visibleRows; -1 when the filter hides it or
    // nothing is current.
    int currentPosition() const { return m_position; }
    // The type mask last applied by onSortFile (15 at start: every type).
    int typeMask() const { return m_mask; }
    // The filter bit of a type letter: "I" 1, "E" 2, "P" 4, "U" 8; 0 for anything else.
    static int typeBit(const QString& letter);

signals:
    void doubleClickedItem();
    void onSendPause();
    void onSendStop(int type);
    void onSendHideTypeList();
    void onSendLoadMap();
    void onSendUpdateMap();
    void onSendClear();
    void onSendRefreshFilter();
    void onSendThreadStop();
    void onSendLogoSet(bool show);
    void onSetBlockEvent(bool block);
    void onPlayFileNow();
    void onSendFinishReadFileTime();
    // Lengths read so far of the current load; done == total when finished.
    void onSendReadProgress(int done, int total);

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

private:
    void setupUi();
    // A folder's files (not its folders), unsorted, as absolute paths.
    static QStringList folderFiles(const QString& folder);
    void onLoadItem(const QStringList& paths);
    void onRemoveFile(int row);
    void onRenumber();
    void resetList();
    void resetPressState();
    void fillRow(int row, const RecordingRecord& record);
    bool rowPassesMask(int row) const;
    void rebuildVisibleRows();
    void syncCurrent();
    bool hasCurrent() const;
    int nextRow() const;
    int previousRow() const;
    void playItem(int index);
    // A row chosen by double click or Enter: stops what plays, then plays the row.
    void chooseRow(int row);
    QList<int> selectedRecordRows() const;
    void deleteSelected(bool fromDisk);
    void removeRows(QList<int> rows, bool fromDisk);
    void stopItemInfoThread();
    void startLengthReader();
    void cancelLengthReader();
    void onLengthsRead(int first, const QStringList& texts);
    void onLengthsFinished(qint64 elapsedMs);
    int recordIndexOf(const QString& path, int hint) const;
    void scheduleThumbnails();
    void requestThumbnails();
    void showProgress(bool show);

    bool m_controlHeld = false;
    bool m_shiftHeld = false;
    bool m_blocked = false;
    int m_position = -1;
    int m_mask = 15;
    QMenu* m_menu = nullptr;
    QAction* m_deleteAtList = nullptr;
    QAction* m_deleteFromDisk = nullptr;
    ItemInfoThread* m_itemInfo = nullptr;
    QSet<QString> m_thumbRequested;
    QTimer* m_thumbTimer;
    TypeIconDelegate* m_typeDelegate = nullptr;
    QProgressBar* m_progress;
    QTimer* m_progressTimer;
    LengthReading* m_lengths;
};
