#include "TavFileListItem.h"

#include "CameraCountDelegate.h"
#include "FileListLoader.h"
#include "FileListRemover.h"
#include "ItemInfoThread.h"
#include "LengthReading.h"
#include "PlaybackState.h"
#include "RecordingName.h"
#include "StatusLog.h"
#include "TavPrompt.h"
#include "TypeIconDelegate.h"
#include "UiApplier.h"
#include "UiDescription.h"
#include "EngineState.h"

#include <QAction>
#include <QColor>
#include <QDragEnterEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QProgressBar>
#include <QScrollBar>
#include <QTimer>
#include <QUrl>

#include <algorithm>

namespace {

// A reading that ends sooner than this never shows the progress bar, so short loads do not
// flicker.
constexpr int kProgressDelayMs = 300;
// Scrolling asks for thumbnails once it settles, not on every pixel.
constexpr int kThumbnailDelayMs = 150;

const char* const kListView = "TavFileListItem";

} // namespace

TavFileListItem::TavFileListItem(QWidget* parent)
    : TavTableWidget(parent), m_thumbTimer(new QTimer(this)),
      m_progress(new QProgressBar(horizontalHeader())), m_progressTimer(new QTimer(this)),
      m_lengths(new LengthReading(this)), m_loader(new FileListLoader(*this)),
      m_remover(new FileListRemover(*this)) {
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

    m_thumbTimer->setSingleShot(true);
    m_thumbTimer->setInterval(kThumbnailDelayMs);
    m_progressTimer->setSingleShot(true);
    m_progressTimer->setInterval(kProgressDelayMs);
    connect(m_thumbTimer, &QTimer::timeout, this, &TavFileListItem::requestThumbnails);
    connect(m_progressTimer, &QTimer::timeout, this,
            [this] { showProgress(m_lengths->isReading()); });
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
    const UiItem icon = ui.item(QStringLiteral("typeIcon"));
    m_typeDelegate = new TypeIconDelegate(icon.size.isValid() ? icon.size : QSize(16, 16), this);
    setItemDelegateForColumn(TypeColumn, m_typeDelegate);
    const UiItem count = ui.item(QStringLiteral("cameraCount"));
    CameraCountDelegate::Look look;
    look.iconPath = ui.imageFolder() + count.image[UiItem::Default];
    if (count.size.isValid())
        look.iconSize = count.size;
    look.font = count.font;
    look.color = QColor(count.textColor[UiItem::Default]);
    look.selectedColor = QColor(count.textColor[UiItem::Select]);
    m_nameDelegate = new CameraCountDelegate(look, this);
    setItemDelegateForColumn(NameColumn, m_nameDelegate);

    const UiItem progress = ui.item(QStringLiteral("loadProgress"));
    UiApplier::apply(m_progress, QStringLiteral("loadProgress"), progress,
                     progressStyleSheet(progress));
    m_progress->hide();
    // The bar sits on the table's header, which shows only while lengths are read; its
    // font gives the header its height.
    horizontalHeader()->setFont(progress.font);

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
        onLoadItem(paths);
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
    onLoadItem(paths);
}

void TavFileListItem::onLoadItem(const QStringList& paths) {
    m_loader->load(paths);
}

QString TavFileListItem::thumbnailToolTip(const QString& path) {
    return QStringLiteral("<img src=\"%1\">").arg(path.toHtmlEscaped());
}

// ---- Type filter ----

void TavFileListItem::onSortFile(int mask) {
    logDebug("TavFileListItem::onSortFile");
    RecordingList::setMask(mask);
    for (int row = 0; row < rowCount() && row < records.size(); ++row)
        setRowHidden(row, !passes(row));
    scheduleThumbnails();
}

// ---- Current recording and stepping ----

// With nothing current both directions start at the first shown row.
void TavFileListItem::markProblem(int row) {
    if (row < 0 || row >= records.size())
        return;
    const RecordingRecord& record = records.at(row);
    if (record.problem == RecordingName::NoProblem)
        return;
    const QString reason = RecordingName::problemText(record.problem);
    for (int column = 0; column < ColumnCount; ++column) {
        if (QTableWidgetItem* cell = item(row, column)) {
            cell->setForeground(QColor(0xe0, 0x6c, 0x6c));
            if (column != NameColumn || record.thumbPath.isEmpty())
                cell->setToolTip(reason);
        }
    }
    if (QTableWidgetItem* length = item(row, LengthColumn))
        length->setText(QStringLiteral("--:--"));
}

bool TavFileListItem::isPlayable(int index) {
    RecordingRecord& record = records[index];
    // A row played before its length came: its file is read now.
    if (record.durationText.isEmpty() && record.problem == RecordingName::NoProblem) {
        const RecordingName::Length length = RecordingName::readLength(record.filePath);
        record.problem = length.problem;
        markProblem(index);
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
    while (next >= 0 && !isPlayable(next)) {
        const auto later = std::find_if(visibleRows.cbegin(), visibleRows.cend(),
                                        [next](int row) { return row > next; });
        next = later == visibleRows.cend() ? -1 : *later;
    }
    if (next < 0) {
        // Playback ran to the end of the last shown row by itself: the player simply stays
        // stopped at the logo. A message box here would greet a user who walked away.
        logInfo("[TavFileListItem]: last item played.");
        emit onSendClear();
        emit onSendLogoSet(true);
        emit onSetBlockEvent(false);
        return;
    }
    playItem(next);
}

void TavFileListItem::onChangePlayItem(int direction) {
    logInfo("[TavFileListItem]: change select item");
    const int target = direction > 0 ? nextRow() : previousRow();
    if (target < 0) {
        logInfo("[TavFileListItem]: no Item.");
        // Reached after the player stopped to move on (a step back at the very start): with
        // nothing to move to, it stays stopped at the logo and takes input again. The player
        // blocks input right after asking to move on, so the release comes after that.
        if (PlaybackState::playStatus != PlaybackState::PlayRunning &&
            PlaybackState::playStatus != PlaybackState::PlayPaused)
            emit onSendLogoSet(true);
        QTimer::singleShot(0, this, [this] { emit onSetBlockEvent(false); });
        TavPrompt::inform(this, tr("There is no item."));
        return;
    }
    playItem(target);
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

bool TavFileListItem::isReadingThumbnails() const {
    return m_itemInfo != nullptr && m_itemInfo->isBusy();
}

QString TavFileListItem::getLoadingFileName() {
    return m_itemInfo != nullptr ? m_itemInfo->currentPath() : QString();
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
    m_thumbRequested.clear();
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
}

void TavFileListItem::onDeleteCurrentFile() {
    logDebug("TavFileListItem::onDeleteCurrentFile");
    if (!hasCurrent()) {
        logInfo("[TavFileListItem]: no Item.");
        return;
    }
    emit onSendStop(3);
    dropRow(RecordingList::currentIndex);
    resetPressState();
    emit onSetBlockEvent(false);
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
    QStringList paths;
    for (const QUrl& url : event->mimeData()->urls())
        if (url.isLocalFile())
            paths << url.toLocalFile();
    event->acceptProposedAction();
    // Loaded once the drop has returned: a message box inside the drop would hold the
    // dragging application too.
    QTimer::singleShot(0, this, [this, paths] { loadPaths(paths); });
}

void TavFileListItem::resizeEvent(QResizeEvent* event) {
    TavTableWidget::resizeEvent(event);
    scheduleThumbnails();
}

void TavFileListItem::updateGeometries() {
    TavTableWidget::updateGeometries();
    m_progress->setGeometry(horizontalHeader()->rect());
}

// ---- Lengths ----

void TavFileListItem::cancelLengthReader() {
    m_lengths->cancel();
    showProgress(false);
}

void TavFileListItem::startLengthReader() {
    QStringList paths;
    for (const RecordingRecord& record : records)
        paths << record.filePath;
    m_progress->setRange(0, paths.size());
    m_progress->setValue(0);
    m_progressTimer->start();
    m_lengths->start(paths);
}

void TavFileListItem::onLengthsRead(int first, const QStringList& texts,
                                    const QVector<int>& videoCounts, const QVector<int>& problems) {
    for (int k = 0; k < texts.size() && first + k < m_lengths->total(); ++k) {
        const int index = indexOf(m_lengths->pathAt(first + k), first + k);
        if (index < 0)
            continue;
        records[index].durationText = texts.at(k);
        if (QTableWidgetItem* length = item(index, LengthColumn))
            length->setText(texts.at(k));
        setVideoCount(index, videoCounts.value(k));
        records[index].problem = problems.value(k);
        markProblem(index);
    }
    m_progress->setValue(m_lengths->done());
    emit onSendReadProgress(m_lengths->done(), m_lengths->total());
}

void TavFileListItem::onLengthsFinished(qint64 elapsedMs) {
    logInfo("getFileTime elapsed time: %lld ms", static_cast<long long>(elapsedMs));
    showProgress(false);
    scheduleThumbnails();
    emit onSendFinishReadFileTime();
}

void TavFileListItem::setVideoCount(int index, int videoCount) {
    RecordingRecord& record = records[index];
    // A recording of channel files counts its files, which are what the player opens.
    if (record.hasChannelFiles() || record.cameraCount == videoCount)
        return;
    record.cameraCount = videoCount;
    if (QTableWidgetItem* name = item(index, NameColumn))
        name->setData(CameraCountDelegate::kCameraCountRole, videoCount);
}

void TavFileListItem::onFinishReadFileTime() {
    logInfo("onFinishReadFileTime");
    for (int i = 0; i < records.size() && i < rowCount(); ++i)
        if (QTableWidgetItem* length = item(i, LengthColumn)) {
            length->setText(records.at(i).durationText);
            length->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
            markProblem(i);
        }
}

void TavFileListItem::showProgress(bool show) {
    const bool shown = show && m_progress->isEnabled();
    horizontalHeader()->setVisible(shown);
    m_progress->setVisible(shown);
    m_progress->setGeometry(horizontalHeader()->rect());
}

// ---- Thumbnails ----

void TavFileListItem::scheduleThumbnails() {
    if (!records.isEmpty())
        m_thumbTimer->start();
}

void TavFileListItem::requestThumbnails() {
    // Lengths go first (a column, not a tool tip); the end of their reading asks again.
    if (records.isEmpty() || rowCount() == 0 || m_lengths->isReading())
        return;
    // The rows on screen; rowAt gives -1 above the first and below the last row.
    const int first = qMax(0, rowAt(0));
    const int bottom = rowAt(viewport()->height() - 1);
    const int last = bottom < 0 ? rowCount() - 1 : bottom;
    QVector<ItemInfoThread::Job> jobs;
    auto ask = [&](int row) {
        if (row < 0 || row >= records.size() || isRowHidden(row))
            return;
        const RecordingRecord& record = records.at(row);
        if (record.thumbPath.isEmpty() && !m_thumbRequested.contains(record.filePath)) {
            m_thumbRequested.insert(record.filePath);
            jobs.append({record.filePath, row});
        }
    };
    if (hasCurrent())
        ask(RecordingList::currentIndex);
    for (int row = first; row <= last && row < records.size(); ++row)
        ask(row);
    if (jobs.isEmpty())
        return;
    if (m_itemInfo == nullptr) {
        m_itemInfo = new ItemInfoThread(this);
        connect(m_itemInfo, &ItemInfoThread::onSendUpdateThumbnail, this,
                &TavFileListItem::onUpdateData, Qt::QueuedConnection);
    }
    m_itemInfo->addJobs(jobs);
}

void TavFileListItem::onUpdateData(const QString& path, int index) {
    logDebug("TavFileListItem::onUpdateData");
    // Rows may have moved since the thumbnail was asked for; the thumbnail's name tells
    // whose it is.
    int found = -1;
    if (index >= 0 && index < records.size() &&
        ItemInfoThread::thumbnailPath(records.at(index).filePath) == path)
        found = index;
    for (int i = 0; found < 0 && i < records.size(); ++i)
        if (ItemInfoThread::thumbnailPath(records.at(i).filePath) == path)
            found = i;
    if (found < 0) {
        logWarning("[TavFileListItem]: thumbnail of a removed row.");
        return;
    }
    records[found].thumbPath = path;
    if (QTableWidgetItem* name = item(found, NameColumn))
        name->setToolTip(thumbnailToolTip(path));
}

void TavFileListItem::stopItemInfoThread() {
    if (m_itemInfo == nullptr)
        return;
    m_itemInfo->stop();
    // stop() kills a running ffmpeg, so the thread ends within a few milliseconds.
    m_itemInfo->wait();
    delete m_itemInfo;
    m_itemInfo = nullptr;
    // Whatever was asked for and not made yet is asked for again by the next thread.
    m_thumbRequested.clear();
}

void TavFileListItem::onFinishThread() {
    logInfo("[TavFileListItem]: onFinishThread");
    if (m_itemInfo != nullptr)
        m_itemInfo->exit(0);
    stopItemInfoThread();
}
