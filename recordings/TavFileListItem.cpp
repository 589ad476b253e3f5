#include "TavFileListItem.h"

#include "EngineState.h"
#include "FileListLoader.h"
#include "FileListRemover.h"
#include "LengthProgressBar.h"
#include "LengthReading.h"
#include "PlaybackState.h"
#include "RecordingName.h"
#include "RecordingRows.h"
#include "StatusLog.h"
#include "TavPrompt.h"
#include "ThumbnailFeed.h"
#include "UiDescription.h"

#include <QAction>
#include <QDragEnterEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QScrollBar>
#include <QTimer>

namespace {

const char* const kListView = "TavFileListItem";

} // namespace

TavFileListItem::TavFileListItem(QWidget* parent)
    : TavTableWidget(parent), m_lengths(new LengthReading(this)),
      m_thumbs(new ThumbnailFeed(this, [this] { return m_lengths->isReading(); })),
      m_progress(
          new LengthProgressBar(horizontalHeader(), [this] { return m_lengths->isReading(); })),
      m_loader(new FileListLoader(*this)), m_remover(new FileListRemover(*this)) {
    logInfo("[TavFileListItem]: Enter TavFileListItem class.");
    // The one list of the program starts empty, every type shown.
    RecordingList::clear();
    RecordingList::setMask(kAllTypes);
    setColumnCount(ColumnCount);
    setContextMenuPolicy(Qt::CustomContextMenu);
    setAcceptDrops(true);
    viewport()->setAcceptDrops(true);
    setDragDropMode(QAbstractItemView::DropOnly);
    setDropIndicatorShown(false);
    setupUi();

    connect(m_thumbs, &ThumbnailFeed::thumbnailReady, this, [this](int row, const QString& path) {
        if (QTableWidgetItem* name = item(row, NameColumn))
            name->setToolTip(ThumbnailFeed::toolTip(path));
    });
    connect(m_lengths, &LengthReading::lengthsRead, this, &TavFileListItem::onLengthsRead);
    connect(m_lengths, &LengthReading::finished, this, &TavFileListItem::onLengthsFinished);
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this,
            &TavFileListItem::scheduleThumbnails);
    connect(this, &QWidget::customContextMenuRequested, this,
            &TavFileListItem::fileListShowContextMenu);
    connect(this, &TavFileListItem::onSendThreadStop, this, &TavFileListItem::stopItemInfoThread);
    onChangeLanguage();
}

TavFileListItem::~TavFileListItem() {
    m_lengths->cancel();
    stopItemInfoThread();
}

void TavFileListItem::setupUi() {
    UiDescription ui;
    ui.open(QString::fromLatin1(kListView));
    applyDescription(ui, QStringLiteral("fileList"));
    applyColumnWidth(ui, TypeColumn, QStringLiteral("columnType"));
    applyColumnWidth(ui, LengthColumn, QStringLiteral("columnLength"));
    horizontalHeader()->setSectionResizeMode(NameColumn, QHeaderView::Stretch);
    RecordingRows::installPainters(this, ui);

    const UiItem progress = ui.item(QStringLiteral("loadProgress"));
    m_progress->applyLook(QStringLiteral("loadProgress"), progress, progressStyleSheet(progress));

    const UiItem menu = ui.item(QStringLiteral("contextMenu"));
    m_menu = new QMenu(this);
    m_menu->setObjectName(QStringLiteral("fileListMenu"));
    m_menu->setFont(menu.font);
    m_menu->setStyleSheet(menuStyleSheet(menu));
    m_deleteAtList = m_menu->addAction(QString());
    m_deleteAtList->setObjectName(QStringLiteral("deleteAtList"));
    m_deleteFromDisk = m_menu->addAction(QString());
    m_deleteFromDisk->setObjectName(QStringLiteral("deleteFromDisk"));
    connect(m_deleteAtList, &QAction::triggered, this, &TavFileListItem::onDeleteSelectedAtList);
    connect(m_deleteFromDisk, &QAction::triggered, this,
            &TavFileListItem::onDeleteSelectedFromDisk);
}

void TavFileListItem::onChangeLanguage() {
    logDebug("TavFileListItem::onChangeLanguage");
    m_deleteAtList->setText(tr("  Delete at list"));
    m_deleteFromDisk->setText(tr("  Delete from disk"));
    //: Shown while the lengths of newly listed recordings are read: done / total.
    m_progress->setFormat(tr("Reading lengths %v / %m"));
}

// ---- Loading ----

void TavFileListItem::loadPaths(const QStringList& paths) {
    m_loader->loadPaths(paths);
}

void TavFileListItem::recvReqFileOpen() {
    logDebug("TavFileListItem::recvReqFileOpen");
    const QStringList paths = TavPrompt::openFiles(this, tr("Open file"), QStringLiteral("./"),
                                                   tr("Movie file (*.avi *.mp4)"));
    // A cancelled dialog is not an empty load: nothing to tell the user.
    if (!paths.isEmpty())
        m_loader->load(paths);
}

void TavFileListItem::onOpenFolderDlg() {
    logDebug("TavFileListItem::onOpenFolderDlg");
    if (PlaybackState::playStatus == PlaybackState::PlayRunning ||
        PlaybackState::playStatus == PlaybackState::PlayPaused)
        emit onSendStop(3);
    const QString folder = TavPrompt::openFolder(this, tr("Open Folder"));
    if (!folder.isEmpty())
        m_loader->loadFolder(folder);
}

void TavFileListItem::onReceiveFileList(const QStringList& paths) {
    logInfo("[TavFileListItem]: receive files from SDCard Control Widget.");
    resetList();
    m_loader->load(paths);
}

void TavFileListItem::onSortFile(int mask) {
    logDebug("TavFileListItem::onSortFile");
    RecordingList::setMask(mask);
    for (int row = 0; row < rowCount() && row < records.size(); ++row)
        setRowHidden(row, !passes(row));
    scheduleThumbnails();
}

// ---- Current recording and stepping ----

bool TavFileListItem::isPlayable(int index) {
    RecordingRecord& record = records[index];
    // A row played before its length came: its file is read now.
    if (record.durationText.isEmpty() && record.problem == RecordingName::NoProblem) {
        const RecordingName::Length length = RecordingName::readLength(record.filePath);
        record.problem = length.problem;
        record.durationMs = length.ms;
        RecordingRows::markProblem(this, index);
    }
    return record.problem == RecordingName::NoProblem;
}

void TavFileListItem::playItem(int index, bool tell) {
    logInfo("[TavFileListItem]: set connect play Item with other widget...");
    if (index < 0 || index >= records.size() || index >= rowCount()) {
        logError("[TavFileListItem]: no record at row %d.", index);
        Q_ASSERT_X(false, "TavFileListItem::playItem", "row out of range");
        return;
    }
    if (!isPlayable(index)) {
        logWarning("[TavFileListItem]: %s cannot be played (%d).",
                   records.at(index).filePath.toLocal8Bit().constData(), records.at(index).problem);
        if (tell)
            TavPrompt::inform(this, tr("This recording cannot be played.") + '\n' +
                                        RecordingName::problemText(records.at(index).problem));
        return;
    }
    setCurrent(index);
    selectRow(index);
    setCurrentCell(index, NameColumn, QItemSelectionModel::NoUpdate);
    scrollToItem(item(index, NameColumn), QAbstractItemView::EnsureVisible);
    emit onSendHideTypeList();
    emit doubleClickedItem(records.at(index).filePath);
    scheduleThumbnails();
    logInfo("Play item set complete!");
}

void TavFileListItem::onForwardItemSet() {
    logInfo("[TavFileListItem]: change select item to forward.");
    // Playback moves on by itself past rows that cannot be played, without a word.
    int next = nextRow();
    while (next >= 0 && !isPlayable(next))
        next = shownRowAfter(next);
    if (next < 0)
        onEndOfPlayback();
    else
        playItem(next);
}

void TavFileListItem::onEndOfPlayback() {
    // Playback ran to the end by itself: the player simply stays stopped at the logo. A
    // message box here would greet a user who walked away.
    logInfo("[TavFileListItem]: last item played.");
    emit onSendClear();
    emit onSendLogoSet(true);
    emit onSetBlockEvent(false);
}

void TavFileListItem::onChangePlayItem(int direction) {
    logInfo("[TavFileListItem]: change select item");
    const int target = direction > 0 ? nextRow() : previousRow();
    if (target < 0)
        onNoMoreItem();
    else
        playItem(target);
}

void TavFileListItem::onNoMoreItem() {
    logInfo("[TavFileListItem]: no Item.");
    // Reached after the player stopped to move on (a step back at the very start): with
    // nothing to move to, it stays stopped at the logo and takes input again. The player
    // blocks input right after asking to move on, so the release comes after that.
    if (!PlaybackState::hasRecording())
        emit onSendLogoSet(true);
    QTimer::singleShot(0, this, [this] { emit onSetBlockEvent(false); });
    TavPrompt::inform(this, tr("There is no item."));
}

void TavFileListItem::onSetFirstFile() {
    logDebug("TavFileListItem::onSetFirstFile");
    if (visibleRows.isEmpty()) {
        logInfo("[TavFileListItem]: no Item.");
        TavPrompt::inform(this, tr("There is no item."));
        return;
    }
    playItem(visibleRows.first());
}

int TavFileListItem::getCanPlayFileCount() {
    logDebug("TavFileListItem::getCanPlayFileCount");
    return visibleRows.size();
}

QString TavFileListItem::getLoadingFileName() {
    return m_thumbs->currentPath();
}

void TavFileListItem::onBlockEvent(bool block) {
    logDebug("TavFileListItem::onBlockEvent");
    m_blocked = block;
}

// ---- Removal ----

void TavFileListItem::resetPressState() {
    m_controlHeld = false;
    m_shiftHeld = false;
    onChangeSelectionMode();
}

void TavFileListItem::resetList() {
    emit onSendThreadStop();
    cancelLengthReader();
    clearContents();
    setRowCount(0);
    RecordingList::clear();
    resetPressState();
    m_thumbs->clearRequests();
    emit rowsChanged();
    emit onSendLogoSet(true);
    emit onSetBlockEvent(false);
}

void TavFileListItem::onDeleteAllFileAtList() {
    logInfo("[TavFileListItem]: delete all files at list.");
    resetList();
}

void TavFileListItem::dropRow(int row) {
    removeRow(row);
    removeRecord(row);
    emit rowsChanged();
}

void TavFileListItem::onDeleteCurrentFile() {
    logDebug("TavFileListItem::onDeleteCurrentFile");
    m_remover->deleteCurrent();
}

void TavFileListItem::onDeleteSelectedAtList() {
    m_remover->deleteSelected(false);
}

void TavFileListItem::onDeleteSelectedFromDisk() {
    m_remover->deleteSelected(true);
}

void TavFileListItem::fileListShowContextMenu(const QPoint& position) {
    logDebug("TavFileListItem::fileListShowContextMenu");
    if (m_blocked)
        return;
    m_menu->popup(viewport()->mapToGlobal(position));
}

// ---- Keyboard and mouse ----

void TavFileListItem::onChangeSelectionMode() {
    logDebug("TavFileListItem::onChangeSelectionMode");
    setSelectionMode(m_controlHeld || m_shiftHeld ? QAbstractItemView::ExtendedSelection
                                                  : QAbstractItemView::SingleSelection);
}

void TavFileListItem::keyPressEvent(QKeyEvent* event) {
    if (m_blocked) {
        event->ignore();
        return;
    }
    switch (event->key()) {
    case Qt::Key_Control:
    case Qt::Key_Shift:
        (event->key() == Qt::Key_Control ? m_controlHeld : m_shiftHeld) = true;
        onChangeSelectionMode();
        break;
    case Qt::Key_Delete:
        onDeleteSelectedAtList();
        return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        // The keyboard's double click.
        if (currentRow() >= 0 && !isRowHidden(currentRow()))
            chooseRow(currentRow());
        return;
    default:
        break;
    }
    TavTableWidget::keyPressEvent(event);
}

void TavFileListItem::keyReleaseEvent(QKeyEvent* event) {
    if (!m_blocked && (event->key() == Qt::Key_Control || event->key() == Qt::Key_Shift)) {
        (event->key() == Qt::Key_Control ? m_controlHeld : m_shiftHeld) = false;
        onChangeSelectionMode();
    }
    TavTableWidget::keyReleaseEvent(event);
}

void TavFileListItem::focusOutEvent(QFocusEvent* event) {
    // The release of a key held while focus left never arrives here.
    resetPressState();
    TavTableWidget::focusOutEvent(event);
}

void TavFileListItem::mousePressEvent(QMouseEvent* event) {
    emit onSendHideTypeList();
    TavTableWidget::mousePressEvent(event);
}

void TavFileListItem::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || m_blocked)
        return;
    logDebug("TavFileListItem::mouseDoubleClickEvent");
    if (PlaybackState::playStatus != PlaybackState::PlayStopped) {
        m_controlHeld = m_shiftHeld = false;
        onChangeSelectionMode();
        viewport()->update();
    }
    if (const QTableWidgetItem* clicked = itemAt(event->pos()))
        chooseRow(clicked->row());
}

void TavFileListItem::chooseRow(int row) {
    // While the engine is still taking a file, a second request would overlap it.
    if (EngineState::playerState == EngineState::FileSet)
        return;
    emit onSendStop(1);
    playItem(row);
}

void TavFileListItem::dragEnterEvent(QDragEnterEvent* event) {
    dragMoveEvent(event);
}

void TavFileListItem::dragMoveEvent(QDragMoveEvent* event) {
    if (event->mimeData()->hasUrls())
        event->acceptProposedAction();
    else
        event->ignore();
}

void TavFileListItem::dropEvent(QDropEvent* event) {
    takeDrop(event);
}

void TavFileListItem::takeDrop(QDropEvent* event) {
    logInfo("[TavFileListItem]: items are dropped in list.");
    m_loader->takeDrop(event);
}

void TavFileListItem::resizeEvent(QResizeEvent* event) {
    TavTableWidget::resizeEvent(event);
    scheduleThumbnails();
}

void TavFileListItem::updateGeometries() {
    TavTableWidget::updateGeometries();
    m_progress->fitStrip();
}

// ---- Lengths ----

void TavFileListItem::cancelLengthReader() {
    m_lengths->cancel();
    m_progress->showStrip(false);
}

void TavFileListItem::startLengthReader() {
    QStringList paths;
    for (const RecordingRecord& record : records)
        paths << record.filePath;
    m_progress->begin(paths.size());
    m_lengths->start(paths);
}

void TavFileListItem::onLengthsRead(int first, const QVector<RecordingName::Length>& lengths) {
    for (int k = 0; k < lengths.size() && first + k < m_lengths->total(); ++k)
        RecordingRows::setLength(this, indexOf(m_lengths->pathAt(first + k), first + k),
                                 lengths.at(k));
    m_progress->setValue(m_lengths->done());
    emit onSendReadProgress(m_lengths->done(), m_lengths->total());
}

void TavFileListItem::onLengthsFinished(qint64 elapsedMs) {
    logInfo("getFileTime elapsed time: %lld ms", static_cast<long long>(elapsedMs));
    m_progress->showStrip(false);
    scheduleThumbnails();
    emit onSendFinishReadFileTime();
}

void TavFileListItem::onFinishReadFileTime() {
    logInfo("onFinishReadFileTime");
    for (int i = 0; i < records.size() && i < rowCount(); ++i)
        RecordingRows::showLength(this, i);
}

// ---- Thumbnails ----

void TavFileListItem::scheduleThumbnails() {
    m_thumbs->schedule();
}

void TavFileListItem::onUpdateData(const QString& path, int index) {
    logDebug("TavFileListItem::onUpdateData");
    m_thumbs->onMade(path, index);
}

void TavFileListItem::stopItemInfoThread() {
    m_thumbs->stop();
}

void TavFileListItem::onFinishThread() {
    logInfo("[TavFileListItem]: onFinishThread");
    m_thumbs->stop();
}
