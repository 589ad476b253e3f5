#include "MainWindow.h"

#include "AppGlobals.h"
#include "AppStartup.h"
#include "CardSession.h"
#include "DriveListView.h"
#include "ExportSession.h"
#include "Frameless.h"
#include "IncidentListView.h"
#include "LanguageView.h"
#include "MapView.h"
#include "PlayControlView.h"
#include "PlayScreenWindow.h"
#include "PlayerInterface.h"
#include "PlayerShortcuts.h"
#include "ServiceSession.h"
#include "SettingOptProgram.h"
#include "StatusLog.h"
#include "SubPlayerWindow.h"
#include "SubSceneBackWidget.h"
#include "TavFileComboBox.h"
#include "TavFileListItem.h"
#include "TavShortcutTable.h"
#include "TavTypeButton.h"
#include "TavTypeList.h"
#include "TavWidget.h"
#include "TopBar.h"
#include "ViewWiring.h"
#include "WaitPlayLogo.h"

#include <QDir>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QPushButton>
#include <QStackedWidget>
#include <QWidget>

#include <cstdlib>

MainWindow::MainWindow(QWidget* parent) : QMainWindow(parent) {
    logInfo("[MainWindow]: Enter MainWindow class.");
    hide();
    m_service = new ServiceSession(this);

    AppStartup::readPlayerValues();

    m_agreementAccepted = AppStartup::agreementAccepted(this, &MainWindow::onAgreeDlgFinished);
    if (!m_agreementAccepted) {
        logInfo("User disagree to use privacy information for program");
        AppGlobals::settings->sync();
        std::exit(0);
    }

    logInfo("Start to set UI");
    // Borderless: moved and resized by its own edges, its states kept here.
    m_frame = new Frameless(this);
    setAcceptDrops(true);
    m_parts.build(this);
    onShowTypeMask(15);
    // The type pop-up closes on a click anywhere else, the scenes and panels that keep their
    // clicks to themselves included.
    qApp->installEventFilter(this);
    QMetaObject::connectSlotsByName(this);
    connectViews();

    m_frame->placeCentred(QSize(kInitialWidth, kInitialHeight));
    onShowFilelist();
    onUpdateMonitorSize(true);
    logDebug("create mainWindow success");
}

MainWindow::~MainWindow() {
    logInfo("[MainWindow]: Close Application.");
    if (m_saveSettings && SettingOptProgram::keepsSettings())
        AppStartup::saveValues(geometry());
    delete m_frame;
    m_frame = nullptr;
    // The thumbnail worker stops before its folder goes.
    emit onSendStopItemThread();
    logInfo("[MainWindow]: Delete Thumbs...");
    AppStartup::removeDataFolderLeftovers();
    logInfo("Destruct complete!");

    // The coordinator stops its engine before the scenes it draws into go away.
    delete m_parts.player;
    m_parts.player = nullptr;
    delete m_parts.central;
    m_parts.central = nullptr;
    m_service->close();

    logInfo("[MainWindow]: Delete log File...");
    AppStartup::removeStatusLog();
}

void MainWindow::onAgreeDlgFinished(int result) {
    logDebug("MainWindow::onAgreeDlgFinished");
    m_agreementAccepted = result == 1;
}

void MainWindow::onSetNotSaveSetting() {
    logDebug("MainWindow::onSetNotSaveSetting");
    m_saveSettings = false;
}

void MainWindow::connectViews() {
    MainParts& v = m_parts;
    PlayerInterface* player = v.player;
    ViewWiring::wire(v);
    connect(player, &PlayerInterface::onSendLogoSet, this, &MainWindow::onShowLogo);
    connect(player, &PlayerInterface::onSetBlockEvent, this, &MainWindow::onBlockEvent);
    connect(player, &PlayerInterface::onSendShowWindow, this, &MainWindow::onShowPlayWindow);
    connect(player, &PlayerInterface::onSetPlayData, this, &MainWindow::onRecvRefresh);
    connect(this, &MainWindow::onSendStop, player, &PlayerInterface::onClickStop);
    if (v.enabled("Topbar")) {
        connect(v.topBar, &TopBar::onClickMaximized, this, &MainWindow::onShowMaximized);
        connect(v.topBar, &TopBar::onClickMinimized, this, &MainWindow::onShowMinimized);
        connect(v.topBar, &TopBar::onClick_bFullScreen, this, &MainWindow::onRecvFullScreen);
        connect(v.topBar, &TopBar::onClickAlwaysViewTop, this, &MainWindow::onFixedTopScreen);
        connect(v.topBar, &TopBar::onSendUpdate, this, &MainWindow::onUpdateMonitorSize);
        connect(v.topBar, &TopBar::onClickClose, this, &QWidget::close);
        connect(this, &MainWindow::onSendAlwaysTopUiChange, v.topBar, &TopBar::onChangeAlwaysTopUi);
        connect(this, &MainWindow::onSendClear, v.topBar, &TopBar::unsetFileName);
    }
    if (v.enabled("shortcutTable")) {
        TavShortcutTable* table = v.shortcuts;
        connect(table, &TavShortcutTable::onSendSignalLanguage, this, &MainWindow::openLangaugeDlg);
        connect(this, &MainWindow::onSendChangeLanguage, table,
                &TavShortcutTable::onChangeToolTipLanguage);
        connect(table, &TavShortcutTable::onSendSignalPrint, this, &MainWindow::openPrintDlg);
        connect(table, &TavShortcutTable::onSendSignalMemory, this, &MainWindow::openSDCardDlg);
        connect(table, &TavShortcutTable::onSendSignalSetting, this, &MainWindow::openSettingDlg);
        connect(table, &TavShortcutTable::onSendSignalAbout, this, &MainWindow::openAboutDlg);
    }
    connect(v.card, &CardSession::onSendSDCardFile, this, &MainWindow::onCardFiles);
    connect(v.card, &CardSession::onSendCardContentsGone, this, &MainWindow::onCardContentsGone);
    connect(v.card, &CardSession::onSendNotSaveSetting, this, &MainWindow::onSetNotSaveSetting);
    connect(v.card, &CardSession::onSendChangeLanguage, this, &MainWindow::onSendChangeLanguage);
    connect(v.card, &CardSession::onSendShowUpdate, m_service, &ServiceSession::openUpdateDialog);
    connect(m_service, &ServiceSession::onSendQuitForUpdate, qApp, &QCoreApplication::quit,
            Qt::QueuedConnection);
    connect(v.exporter, &ExportSession::onSendShowMap, this, &MainWindow::onRaiseMap);
    connect(v.exporter, &ExportSession::onSendShowList, this, &MainWindow::onShowFilelist);
    if (v.enabled("fileList")) {
        TavFileListItem* list = v.fileList;
        connect(list, &TavFileListItem::onSendLogoSet, this, &MainWindow::onShowLogo);
        connect(list, &TavFileListItem::onSetBlockEvent, this, &MainWindow::onBlockEvent);
        connect(this, &MainWindow::onSendBlockEvent, list, &TavFileListItem::onBlockEvent);
        connect(this, &MainWindow::onSendStopItemThread, list, &TavFileListItem::onSendThreadStop);
        connect(this, &MainWindow::onSendChangeLanguage, list, &TavFileListItem::onChangeLanguage);
        connect(this, &MainWindow::onSendFileList, list, &TavFileListItem::onReceiveFileList);
        connect(this, &MainWindow::onSendClear, list, &TavFileListItem::onDeleteAllFileAtList);
    }
    connectTypeFilter();
    if (v.enabled("StackedWidget")) {
        connect(this, &MainWindow::onSendZoomReset, v.playScreen, &PlayScreenWindow::onResetZoom);
        connect(v.playScreen, &PlayScreenWindow::sceneDoubleClicked, this,
                &MainWindow::onRecvFullScreen);
    }
    if (v.enabled("subSceneBackWidget")) {
        for (SubPlayerWindow* sub : v.subPlayers) {
            if (v.subBack->isEnabledChild(sub->slot() == 1 ? "subPlayer1" : "subPlayer2"))
                connect(sub, &SubPlayerWindow::onChangeView, this, &MainWindow::onChangeSceneView);
        }
        connect(v.subBack, &SubSceneBackWidget::onSendBlockKeyboardEvent, this,
                &MainWindow::onBlockKeyboardEvent);
    }
    if (v.enabled("bFilelist"))
        connect(v.fileListButton, &QPushButton::clicked, this, &MainWindow::onRaiseFilelist);
    if (v.enabled("bDrives") && v.enabled("driveList"))
        connect(v.drivesButton, &QPushButton::clicked, this, &MainWindow::onRaiseDrives);
    if (v.enabled("MapView")) {
        connect(this, &MainWindow::onSendMapShow, v.map, &MapView::onMapShow);
        connect(this, &MainWindow::onSendClear, v.map, &MapView::onClearData);
        connect(v.map, &MapView::onSendBlockKeyboardEvent, this, &MainWindow::onBlockKeyboardEvent);
        if (v.enabled("bMap"))
            connect(v.mapButton, &QPushButton::clicked, this, &MainWindow::onRaiseMap);
    }
    connect(this, &MainWindow::onSendChangeLanguage, this, &MainWindow::onChangeTextByLanguage);
    connect(this, &MainWindow::onSendChangeLanguage, v.driveList, &DriveListView::onChangeLanguage);
    connect(this, &MainWindow::onSendChangeLanguage, v.incidents,
            &IncidentListView::onChangeLanguage);
    if (v.enabled("ControlView")) {
        PlayControlView* control = v.control;
        connect(control, &PlayControlView::onSendRefreshImage, this, &MainWindow::onGetImage);
        connect(this, &MainWindow::onSendClear, control, &PlayControlView::onSendClear);
        connect(this, &MainWindow::onSendSetPause, control, &PlayControlView::onSetPause);
        connect(v.exporter, &ExportSession::onSendSetPause, this, &MainWindow::onSendSetPause);
        connect(this, &MainWindow::onSendBlockEvent, control, &PlayControlView::onBlockEvent);
        control->onRefreshVolume();
    }
    PlayerShortcuts::install(
        this, v.enabled("ControlView") ? v.control : nullptr, player,
        [this] { return m_blockEvent || m_blockKeyboard; }, [this] { onRecvFullScreen(); });
}

void MainWindow::connectTypeFilter() {
    MainParts& v = m_parts;
    if (!v.enabled("cbfileState"))
        return;
    const char* const typeEntries[] = {"bAllType", "bInfinity", "bParking", "bEvent"};
    for (int i = 0; i < 4; ++i) {
        if (v.enabled(typeEntries[i]))
            connect(v.typeButtons[i], &TavTypeButton::onSendCheckedType, this,
                    &MainWindow::onTypeFilter);
    }
    connect(this, &MainWindow::onSendSelectType, v.fileCombo, &TavFileComboBox::onUpdateSetData);
    connect(v.fileCombo, &TavFileComboBox::onSendFileTypeFilter, this, &MainWindow::onShowTypeMask);
    if (!v.enabled("lFileType"))
        return;
    connect(this, &MainWindow::onSendHideTypeList, v.typeList, &TavTypeList::onHideTypeList);
    connect(this, &MainWindow::onSendChangeLanguage, v.fileCombo,
            &TavFileComboBox::onChangeLanguage);
    connect(this, &MainWindow::onSendChangeLanguage, v.typeList, &TavTypeList::onChangeLanguage);
    connect(this, &MainWindow::onSendSelectType, v.typeList, &TavTypeList::onSetMask);
}

// ---- Window state ----

void MainWindow::onUpdateMonitorSize(bool) {
    logDebug("MainWindow::onUpdateMonitorSize");
    m_frame->updateMonitorSize();
}

void MainWindow::onShowMaximized() {
    logDebug("MainWindow::onShowMaximized");
    m_frame->toggleMaximized();
}

void MainWindow::onShowMinimized() {
    logDebug("MainWindow::onShowMinimized");
    showMinimized();
}

void MainWindow::onRecvFullScreen() {
    logDebug("MainWindow::onRecvFullScreen");
    m_frame->toggleFullScreen();
}

void MainWindow::onFixedTopScreen() {
    logDebug("MainWindow::onFixedTopScreen");
    emit onSendAlwaysTopUiChange(m_frame->toggleAlwaysOnTop() ? 1 : 0);
}

void MainWindow::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange && m_parts.topBar != nullptr)
        m_parts.topBar->onWindowStateChanged(windowState());
}

// ---- Views ----

void MainWindow::onShowLogo(bool show) {
    logDebug("MainWindow::onShowLogo");
    m_parts.showScenes(show, m_channels);
}

void MainWindow::onShowPlayWindow(int channels) {
    logDebug("MainWindow::onShowPlayWindow");
    m_channels = channels;
    // The scenes are ready before the first picture: libvlc draws into them from the start.
    m_parts.showScenes(false, channels);
}

void MainWindow::onChangeSceneView(int id) {
    logDebug("MainWindow::onChangeSceneView");
    // Another camera in the main scene: its zoom starts anew.
    if (m_parts.swapIntoMain(id))
        emit onSendZoomReset();
}

void MainWindow::onGetImage() {
    m_parts.exporter->openCaptureDialog();
}

void MainWindow::openPrintDlg() {
    m_parts.exporter->openReport(m_parts.mapButton->isChecked());
}

void MainWindow::restoreScenes() {
    // The front camera shown in a rear scene goes back to the main scene.
    onChangeSceneView(0);
}

void MainWindow::onRecvRefresh() {
    logDebug("MainWindow::onRecvRefresh");
    restoreScenes();
}

void MainWindow::onBlockKeyboardEvent(bool block) {
    logDebug("MainWindow::onBlockKeyboardEvent");
    m_blockKeyboard = block;
}

void MainWindow::openPaths(const QStringList& paths) {
    logDebug("MainWindow::openPaths");
    if (paths.isEmpty() || !m_parts.enabled("fileList"))
        return;
    m_parts.fileList->loadPaths(paths);
    if (!RecordingList::visibleRows.isEmpty())
        m_parts.fileList->onSetFirstFile();
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
    if (!m_blockEvent && event->mimeData()->hasUrls())
        event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event) {
    if (m_parts.enabled("fileList"))
        m_parts.fileList->takeDrop(event);
}

void MainWindow::onBlockEvent(bool block) {
    logDebug("MainWindow::onBlockEvent");
    m_blockEvent = block;
    emit onSendBlockEvent(block);
}

void MainWindow::onShowFilelist() {
    logDebug("MainWindow::onShowFilelist");
    m_parts.showSidePanel(MainParts::ListPanel);
    emit onSendMapShow(false);
}

void MainWindow::onRaiseDrives() {
    logDebug("MainWindow::onRaiseDrives");
    m_parts.showSidePanel(MainParts::DrivesPanel);
    emit onSendMapShow(false);
}

void MainWindow::onRaiseFilelist() {
    logDebug("MainWindow::onRaiseFilelist");
    onShowFilelist();
}

void MainWindow::onRaiseMap() {
    logDebug("MainWindow::onRaiseMap");
    m_parts.showSidePanel(MainParts::MapPanel);
    emit onSendHideTypeList();
    emit onSendMapShow(true);
}

void MainWindow::keyPressEvent(QKeyEvent* event) {
    if (m_blockEvent || m_blockKeyboard) {
        event->ignore();
        return;
    }
    QMainWindow::keyPressEvent(event);
}

// ---- Language ----

void MainWindow::openLangaugeDlg() {
    logDebug("MainWindow::openLangaugeDlg");
    LanguageView dialog(this);
    connect(&dialog, &LanguageView::onSendChangeLanguage, this, &MainWindow::onSendChangeLanguage);
    connect(&dialog, &QDialog::finished, this, &MainWindow::onFinishedDlg);
    if (m_parts.enabled("shortcutTable"))
        connect(&dialog, &QDialog::finished, m_parts.shortcuts, &TavShortcutTable::setBackUi);
    dialog.move(geometry().center() - dialog.rect().center());
    dialog.exec();
}

void MainWindow::openSDCardDlg() {
    logDebug("MainWindow::openSDCardDlg");
    m_parts.card->openCardDialog(this);
}

void MainWindow::openSettingDlg() {
    logDebug("MainWindow::openSettingDlg");
    m_parts.card->openSettingDialog(this);
}

void MainWindow::openAboutDlg() {
    m_service->openAboutDialog();
}

void MainWindow::onCardContentsGone(const QString& root) {
    logDebug("MainWindow::onCardContentsGone");
    const QString prefix = QDir::cleanPath(root) + '/';
    if (PlayerInterface::currentFile.startsWith(prefix))
        emit onSendStop(true);
    const bool listed = std::any_of(
        RecordingList::records.cbegin(), RecordingList::records.cend(),
        [&prefix](const RecordingRecord& record) { return record.filePath.startsWith(prefix); });
    if (listed)
        emit onSendClear();
}

void MainWindow::onCardFiles(const QStringList& paths) {
    logDebug("MainWindow::onCardFiles");
    // The card's recordings take the list's place: what plays from the old list stops first.
    if (PlaybackState::hasRecording())
        emit onSendStop(true);
    emit onSendFileList(paths);
}

void MainWindow::onTypeFilter(int fileType) {
    logDebug("MainWindow::onTypeFilter");
    emit onSendHideTypeList();
    emit onSendSelectType(fileType & 15);
}

void MainWindow::onShowTypeMask(int mask) {
    for (TavTypeButton* button : m_parts.typeButtons)
        button->setChecked(button->fileType() == mask);
}

void MainWindow::onFinishedDlg() {
    logDebug("MainWindow::onFinishedDlg");
}

void MainWindow::onChangeTextByLanguage() {
    logDebug("MainWindow::onChangeTextByLanguage");
    const QList<TavWidget*> views = m_parts.central->findChildren<TavWidget*>();
    m_parts.central->retranslate();
    for (TavWidget* view : views)
        view->retranslate();
}

bool MainWindow::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonPress && m_parts.typeList->isListShown()) {
        // The face of the filter opens and closes the pop-up itself.
        auto* widget = qobject_cast<QWidget*>(watched);
        if (widget != nullptr && widget != m_parts.typeList &&
            !m_parts.typeList->isAncestorOf(widget) && widget != m_parts.fileCombo &&
            !m_parts.fileCombo->isAncestorOf(widget))
            emit onSendHideTypeList();
    }
    return QMainWindow::eventFilter(watched, event);
}
