#include "MainWindow.h"

#include "AppGlobals.h"
#include "AppStartup.h"
#include "CardSession.h"
#include "ChartView.h"
#include "ExportSession.h"
#include "Frameless.h"
#include "LanguageView.h"
#include "LeftSideView.h"
#include "MapView.h"
#include "PlayControlView.h"
#include "PlayScreenWindow.h"
#include "PlayerInterface.h"
#include "RightSideView.h"
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
#include "WaitPlayLogo.h"

#include <QDir>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMimeData>
#include <QPushButton>
#include <QScreen>
#include <QSettings>
#include <QShortcut>
#include <QStackedWidget>
#include <QTimer>

#include <algorithm>
#include <cstdlib>

MainWindow::MainWindow(QWidget* parent) : QMainWindow(parent) {
    logInfo("[MainWindow]: Enter MainWindow class.");
    hide();
    m_service = new ServiceSession(this);

    AppGlobals::volume = AppGlobals::settings->value("volume", AppGlobals::volume).toInt();
    AppGlobals::mute = AppGlobals::settings->value("mute", AppGlobals::mute).toBool();
    AppGlobals::snapshotPath = AppGlobals::settings->value("snapshotPath").toString();
    AppGlobals::videoPath = AppGlobals::settings->value("videoPath").toString();
    AppGlobals::speedUnit = AppGlobals::settings->value("speedUnit", AppGlobals::speedUnit).toInt();

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
    setupUi();
    connectViews();

    resize(kInitialWidth, kInitialHeight);
    if (const QScreen* screen = QGuiApplication::primaryScreen()) {
        const QRect screenRect = screen->geometry();
        move(screenRect.x() + (screenRect.width() - kInitialWidth) / 2,
             screenRect.y() + (screenRect.height() - kInitialHeight) / 2);
    }
    onShowFilelist();
    onUpdateMonitorSize(true);
    logDebug("create mainWindow success");
}

MainWindow::~MainWindow() {
    logInfo("[MainWindow]: Close Application.");
    if (m_saveSettings && SettingOptProgram::keepsSettings())
        saveSettings();
    delete m_frame;
    m_frame = nullptr;
    // The thumbnail worker stops before its folder goes.
    emit onSendStopItemThread();
    logInfo("[MainWindow]: Delete Thumbs...");
    removeDataFolderLeftovers();
    logInfo("Destruct complete!");

    // The coordinator stops its engine before the scenes it draws into go away.
    delete m_player;
    m_player = nullptr;
    delete m_central;
    m_central = nullptr;
    m_service->close();

    logInfo("[MainWindow]: Delete log File...");
    const QString log = AppGlobals::statusLogPath();
    if (QFile::exists(log) && !QFile::remove(log))
        logError("[MainWindow]: Can not delete log File.");
}

void MainWindow::onAgreeDlgFinished(int result) {
    logDebug("MainWindow::onAgreeDlgFinished");
    m_agreementAccepted = result == 1;
}

void MainWindow::onSetNotSaveSetting() {
    logDebug("MainWindow::onSetNotSaveSetting");
    m_saveSettings = false;
}

bool MainWindow::enabled(const char* entry) const {
    return m_central != nullptr && m_central->isEnabledChild(QLatin1String(entry));
}

void MainWindow::setupUi() {
    m_central = new TavWidget("MainWindow", this);
    m_central->addChild(m_central, "centralWidget", TavWidget::Style::Panel);
    m_central->setObjectName("CentralWidget");
    setCentralWidget(m_central);

    m_leftSide = new LeftSideView(m_central);
    m_central->addChild(m_leftSide, "leftSideView", TavWidget::Style::None);
    m_rightSide = new RightSideView(m_central);
    m_central->addChild(m_rightSide, "rightSideView", TavWidget::Style::None);
    m_topBar = new TopBar(m_central);
    m_central->addChild(m_topBar, "Topbar", TavWidget::Style::None);
    m_topBar->setObjectName("topBar");
    m_shortcuts = new TavShortcutTable(m_central);
    m_central->addChild(m_shortcuts, "shortcutTable", TavWidget::Style::None);

    m_fileListButton = new QPushButton(m_central);
    m_central->addChild(m_fileListButton, "bFilelist", TavWidget::Style::Button);
    m_fileListButton->setCheckable(true);
    m_fileListButton->setFocusPolicy(Qt::NoFocus);
    m_mapButton = new QPushButton(m_central);
    m_central->addChild(m_mapButton, "bMap", TavWidget::Style::Button);
    m_mapButton->setCheckable(true);
    m_mapButton->setFocusPolicy(Qt::NoFocus);

    m_fileList = new TavFileListItem(m_central);
    m_central->addChild(m_fileList, "fileList", TavWidget::Style::None);
    m_fileCombo = new TavFileComboBox(m_central);
    m_central->addChild(m_fileCombo, "cbfileState", TavWidget::Style::None);
    m_typeList = new TavTypeList(m_central);
    m_central->addChild(m_typeList, "lFileType", TavWidget::Style::None);
    m_typeList->hide(); // a pop-up: shown from the combo
    // One click filters the list by one type, or shows every type again.
    const struct {
        const char* entry;
        int fileType;
    } typeButtons[] = {{"bAllType", 15}, {"bInfinity", 1}, {"bParking", 4}, {"bEvent", 2}};
    for (int i = 0; i < 4; ++i) {
        m_typeButtons[i] = new TavTypeButton(m_central, typeButtons[i].fileType);
        m_typeButtons[i]->setFocusPolicy(Qt::NoFocus);
        m_central->addChild(m_typeButtons[i], typeButtons[i].entry, TavWidget::Style::Button);
    }
    onShowTypeMask(15);
    m_map = new MapView(m_central);
    m_central->addChild(m_map, "MapView", TavWidget::Style::None);

    m_stack = new QStackedWidget(m_central);
    m_central->addChild(m_stack, "StackedWidget", TavWidget::Style::None);
    m_logo = new WaitPlayLogo(m_stack);
    m_stack->addWidget(m_logo);
    m_logo->setObjectName("WaitPlayLogo");
    m_playScreen = new PlayScreenWindow(m_stack);
    m_stack->addWidget(m_playScreen);
    m_playScreen->setObjectName("PlayScreenView");
    m_stack->setCurrentWidget(m_logo);

    // The rear scenes float over the main scene on their own backing.
    m_subBack = new SubSceneBackWidget(m_central);
    if (m_central->addChild(m_subBack, "subSceneBackWidget", TavWidget::Style::None))
        m_subBack->setHomePosition(m_subBack->pos());
    const char* const subEntries[] = {"subPlayer1", "subPlayer2"};
    for (int i = 0; i < 2; ++i) {
        m_subPlayers[i] = new SubPlayerWindow(i + 1, m_subBack);
        m_subBack->addChild(m_subPlayers[i], subEntries[i], TavWidget::Style::None);
        m_subPlayers[i]->setObjectName(QString("subPlayerWindow%1").arg(i + 1));
    }
    m_subBack->hide();

    m_control = new PlayControlView(m_central);
    m_central->addChild(m_control, "ControlView", TavWidget::Style::None);
    m_control->setObjectName("ControlView");
    // The chart fills the panel's place for it.
    m_chart = new ChartView(m_control->chartArea());
    m_chart->setGeometry(m_control->chartArea()->rect());
    m_control->chartArea()->installEventFilter(this);
    // The type pop-up closes on a click anywhere else, the scenes and panels that keep their
    // clicks to themselves included.
    qApp->installEventFilter(this);

    m_player = new PlayerInterface(this);
    m_player->setMainScreen(m_playScreen->scene());
    m_player->setSub1Screen(m_subPlayers[0]->scene());
    m_player->setSub2Screen(m_subPlayers[1]->scene());
    m_card = new CardSession(this);
    m_export = new ExportSession(this, m_player, enabled("MapView") && enabled("bMap") ? m_map
                                                                                       : nullptr);

    m_central->retranslate();
    QMetaObject::connectSlotsByName(this);
}

void MainWindow::connectViews() {
    connect(m_player, &PlayerInterface::onSendLogoSet, this, &MainWindow::onShowLogo);
    connect(m_player, &PlayerInterface::onSetBlockEvent, this, &MainWindow::onBlockEvent);

    if (enabled("Topbar")) {
        connect(m_topBar, &TopBar::onClickMaximized, this, &MainWindow::onShowMaximized);
        connect(m_topBar, &TopBar::onClickMinimized, this, &MainWindow::onShowMinimized);
        connect(m_topBar, &TopBar::onClick_bFullScreen, this, &MainWindow::onRecvFullScreen);
        connect(m_topBar, &TopBar::onClickAlwaysViewTop, this, &MainWindow::onFixedTopScreen);
        connect(m_topBar, &TopBar::onSendUpdate, this, &MainWindow::onUpdateMonitorSize);
        connect(m_topBar, &TopBar::onClickClose, this, &QWidget::close);
        connect(this, &MainWindow::onSendAlwaysTopUiChange, m_topBar, &TopBar::onChangeAlwaysTopUi);
        connect(m_player, &PlayerInterface::onSetPlayData, m_topBar, &TopBar::setFileName);
        connect(m_player, &PlayerInterface::onSendClear, m_topBar, &TopBar::unsetFileName);
        connect(this, &MainWindow::onSendClear, m_topBar, &TopBar::unsetFileName);
    }
    if (enabled("shortcutTable")) {
        connect(m_shortcuts, &TavShortcutTable::onSendSignalLanguage, this,
                &MainWindow::openLangaugeDlg);
        connect(this, &MainWindow::onSendChangeLanguage, m_shortcuts,
                &TavShortcutTable::onChangeToolTipLanguage);
        connect(m_shortcuts, &TavShortcutTable::onSendSignalPrint, this, &MainWindow::openPrintDlg);
        if (enabled("ControlView"))
            connect(m_shortcuts, &TavShortcutTable::onSendCapture, m_control,
                    &PlayControlView::onClick_bCapture);
        connect(m_shortcuts, &TavShortcutTable::onSendSignalMemory, this,
                &MainWindow::openSDCardDlg);
        connect(m_shortcuts, &TavShortcutTable::onSendSignalSetting, this,
                &MainWindow::openSettingDlg);
        connect(m_shortcuts, &TavShortcutTable::onSendSignalAbout, this, &MainWindow::openAboutDlg);
    }
    connect(m_card, &CardSession::onSendSDCardFile, this, &MainWindow::onCardFiles);
    connect(this, &MainWindow::onSendStop, m_player, &PlayerInterface::onClickStop);
    connect(m_player, &PlayerInterface::onSetPlayData, this, &MainWindow::onRecvRefresh);
    connect(m_card, &CardSession::onSendCardContentsGone, this, &MainWindow::onCardContentsGone);
    connect(m_card, &CardSession::onSendNotSaveSetting, this, &MainWindow::onSetNotSaveSetting);
    connect(m_card, &CardSession::onSendChangeLanguage, this, &MainWindow::onSendChangeLanguage);
    connect(m_card, &CardSession::onSendShowUpdate, m_service, &ServiceSession::openUpdateDialog);
    connect(m_service, &ServiceSession::onSendQuitForUpdate, qApp, &QCoreApplication::quit,
            Qt::QueuedConnection);
    connect(m_player, &PlayerInterface::onSendShowWindow, this, &MainWindow::onShowPlayWindow);
    connect(m_export, &ExportSession::onSendShowMap, this, &MainWindow::onRaiseMap);
    connect(m_export, &ExportSession::onSendShowList, this, &MainWindow::onShowFilelist);
    if (enabled("fileList")) {
        connect(m_fileList, &TavFileListItem::doubleClickedItem, m_player,
                qOverload<const QString&>(&PlayerInterface::checkFileReady));
        connect(m_fileList, &TavFileListItem::onSendStop, m_player, &PlayerInterface::onStop);
        connect(m_fileList, &TavFileListItem::onSendLogoSet, this, &MainWindow::onShowLogo);
        connect(m_fileList, &TavFileListItem::onSetBlockEvent, this, &MainWindow::onBlockEvent);
        connect(m_player, &PlayerInterface::onSendFileAllDelete, m_fileList,
                &TavFileListItem::onDeleteAllFileAtList);
        connect(this, &MainWindow::onSendBlockEvent, m_fileList, &TavFileListItem::onBlockEvent);
        connect(this, &MainWindow::onSendStopItemThread, m_fileList,
                &TavFileListItem::onSendThreadStop);
        connect(m_fileList, &TavFileListItem::onSendFinishReadFileTime, m_fileList,
                &TavFileListItem::onFinishReadFileTime);
        connect(this, &MainWindow::onSendChangeLanguage, m_fileList,
                &TavFileListItem::onChangeLanguage);
        connect(this, &MainWindow::onSendFileList, m_fileList, &TavFileListItem::onReceiveFileList);
        connect(this, &MainWindow::onSendClear, m_fileList, &TavFileListItem::onDeleteAllFileAtList);
        if (enabled("shortcutTable")) {
            connect(m_shortcuts, &TavShortcutTable::onSendSignalFolder, m_fileList,
                    &TavFileListItem::onOpenFolderDlg);
            connect(m_shortcuts, &TavShortcutTable::onSendSignalFile, m_fileList,
                    &TavFileListItem::recvReqFileOpen);
        }
    }
    if (enabled("cbfileState")) {
        const char* const typeEntries[] = {"bAllType", "bInfinity", "bParking", "bEvent"};
        for (int i = 0; i < 4; ++i) {
            if (enabled(typeEntries[i]))
                connect(m_typeButtons[i], &TavTypeButton::onSendCheckedType, this,
                        &MainWindow::onTypeFilter);
        }
        connect(this, &MainWindow::onSendSelectType, m_fileCombo,
                &TavFileComboBox::onUpdateSetData);
        connect(m_fileCombo, &TavFileComboBox::onSendFileTypeFilter, this,
                &MainWindow::onShowTypeMask);
    }
    if (enabled("cbfileState") && enabled("lFileType")) {
        connect(m_fileCombo, &TavFileComboBox::onSendTypeListControl, m_typeList,
                &TavTypeList::onControlTypeList);
        connect(m_typeList, &TavTypeList::onSendCurrentType, m_fileCombo,
                &TavFileComboBox::onUpdateSetData);
        connect(m_typeList, &TavTypeList::onSendTypeListSet, m_fileCombo,
                &TavFileComboBox::onUpdateListState);
        connect(this, &MainWindow::onSendHideTypeList, m_typeList, &TavTypeList::onHideTypeList);
        connect(this, &MainWindow::onSendChangeLanguage, m_fileCombo,
                &TavFileComboBox::onChangeLanguage);
        connect(this, &MainWindow::onSendChangeLanguage, m_typeList,
                &TavTypeList::onChangeLanguage);
        connect(this, &MainWindow::onSendSelectType, m_typeList, &TavTypeList::onSetMask);
        if (enabled("fileList")) {
            connect(m_fileList, &TavFileListItem::onSendHideTypeList, m_typeList,
                    &TavTypeList::onHideTypeList);
            connect(m_fileList, &TavFileListItem::onSendRefreshFilter, m_fileCombo,
                    &TavFileComboBox::onUpdateList);
            connect(m_fileCombo, &TavFileComboBox::onSendFileTypeFilter, m_fileList,
                    &TavFileListItem::onSortFile);
        }
    }
    if (enabled("StackedWidget")) {
        connect(m_player, &PlayerInterface::onTimeout_1s, m_playScreen,
                &PlayScreenWindow::onSetZoom);
        connect(this, &MainWindow::onSendZoomReset, m_playScreen, &PlayScreenWindow::onResetZoom);
        connect(m_player, &PlayerInterface::onSendZoomReset, m_playScreen,
                &PlayScreenWindow::onResetZoom);
        connect(m_playScreen, &PlayScreenWindow::sendVideoResize, m_player,
                &PlayerInterface::onResizeVideo);
        connect(m_playScreen, &PlayScreenWindow::sceneDoubleClicked, this,
                &MainWindow::onRecvFullScreen);
    }
    if (enabled("subSceneBackWidget")) {
        for (SubPlayerWindow* sub : m_subPlayers) {
            if (!m_subBack->isEnabledChild(sub == m_subPlayers[0] ? "subPlayer1" : "subPlayer2"))
                continue;
            connect(m_player, &PlayerInterface::onInitResizeView, sub,
                    &SubPlayerWindow::onResetView);
            connect(sub, &SubPlayerWindow::sendVideoResize, m_player,
                    &PlayerInterface::onResizeVideo);
            connect(sub, &SubPlayerWindow::onClickedFlip, m_player, &PlayerInterface::onFlip);
            connect(sub, &SubPlayerWindow::onChangeView, this, &MainWindow::onChangeSceneView);
        }
        connect(m_subBack, &SubSceneBackWidget::onSendBlockKeyboardEvent, this,
                &MainWindow::onBlockKeyboardEvent);
        connect(m_player, &PlayerInterface::onSendClear, m_subBack,
                &SubSceneBackWidget::ClearPosition);
    }
    if (enabled("bFilelist"))
        connect(m_fileListButton, &QPushButton::clicked, this, &MainWindow::onRaiseFilelist);
    connectTelemetryViews();
    connect(this, &MainWindow::onSendChangeLanguage, this, &MainWindow::onChangeTextByLanguage);
    if (enabled("ControlView"))
        connectControlView();
    makeShortcuts();
}

void MainWindow::connectControlView() {
    PlayerInterface* player = m_player;
    PlayControlView* control = m_control;
    connect(control, &PlayControlView::onSendOpenFile, player,
            qOverload<>(&PlayerInterface::checkFileReady));
    connect(control, &PlayControlView::onSendPlay, player, &PlayerInterface::onPlay);
    connect(control, &PlayControlView::onClickedPause, player, &PlayerInterface::onPause);
    connect(control, &PlayControlView::onClickedStop, player, &PlayerInterface::onClickStop);
    connect(control, &PlayControlView::onSendStop, player, &PlayerInterface::onStop);
    connect(control, &PlayControlView::onClicked5sMove, player, &PlayerInterface::on5sMove);
    connect(control, &PlayControlView::onClickMoveFrame, player, &PlayerInterface::onFrameMove);
    connect(control, &PlayControlView::onChangePlayPosition, player,
            &PlayerInterface::onPlayPosMove);
    connect(control, &PlayControlView::onSendChangeSpeed, player, &PlayerInterface::onControlSpeed);
    connect(control, &PlayControlView::onClickedMute, player, &PlayerInterface::onSetMute);
    connect(control, &PlayControlView::onSendVolumeChange, player,
            &PlayerInterface::onControlVolume);
    connect(control, &PlayControlView::onClickedFlip, player, &PlayerInterface::onFlip);
    connect(control, &PlayControlView::onSendRefreshImage, this, &MainWindow::onGetImage);
    connect(control, &PlayControlView::onSendStopTimer, player, &PlayerInterface::onStopTimer);
    connect(control, &PlayControlView::onSendRestartTimer, player,
            &PlayerInterface::onRestartTimer);
    connect(player, &PlayerInterface::onSetPlayData, control, &PlayControlView::onSetPlayData);
    connect(player, &PlayerInterface::onTimeout_500ms, control, &PlayControlView::onUpdateSlider);
    connect(player, &PlayerInterface::onUpdateTimeNow, control, &PlayControlView::onUpdateSlider);
    connect(player, &PlayerInterface::onSetTextData, control, &PlayControlView::onSendLoadChart);
    connect(player, &PlayerInterface::onTimeout_500ms, control,
            &PlayControlView::onSendUpdateChart);
    connect(player, &PlayerInterface::onSendClear, control, &PlayControlView::onSendClear);
    connect(this, &MainWindow::onSendClear, control, &PlayControlView::onSendClear);
    connect(this, &MainWindow::onSendSetPause, control, &PlayControlView::onSetPause);
    connect(m_export, &ExportSession::onSendSetPause, this, &MainWindow::onSendSetPause);
    connect(m_export, &ExportSession::onSendResume, control, &PlayControlView::onClick_bPlay);
    connect(player, &PlayerInterface::onSendPlayNextFile, control,
            &PlayControlView::onRecvPlayNextFile);
    connect(player, &PlayerInterface::onSendPlayPreviusFile, control,
            &PlayControlView::onRecvPlayBackFile);
    connect(player, &PlayerInterface::onSendSetPlayButton, control,
            &PlayControlView::onSetPlayButton);
    connect(this, &MainWindow::onSendBlockEvent, control, &PlayControlView::onBlockEvent);
    if (enabled("fileList")) {
        connect(control, &PlayControlView::onClickedDelete, m_fileList,
                &TavFileListItem::onDeleteCurrentFile);
        connect(control, &PlayControlView::onCallNextFile, m_fileList,
                &TavFileListItem::onForwardItemSet);
        connect(control, &PlayControlView::onChangePlayFile, m_fileList,
                &TavFileListItem::onChangePlayItem);
        connect(m_fileList, &TavFileListItem::onSendPause, control, &PlayControlView::onSetPause);
    }
    control->onRefreshVolume();
}

void MainWindow::makeShortcuts() {
    // Keys of common players; they act wherever the focus is in the window (the list would
    // take letters for its own search), and wait while input is blocked.
    const auto add = [this](const QKeySequence& key, auto action) {
        auto* shortcut = new QShortcut(key, this);
        connect(shortcut, &QShortcut::activated, this, [this, action] {
            if (!m_blockEvent && !m_blockKeyboard)
                action();
        });
    };
    add(Qt::Key_F, [this] { onRecvFullScreen(); });
    add(Qt::Key_F11, [this] { onRecvFullScreen(); });
    add(Qt::Key_Escape, [this] {
        if (isFullScreen())
            onRecvFullScreen();
    });
    if (!enabled("ControlView"))
        return;
    PlayControlView* control = m_control;
    PlayerInterface* player = m_player;
    const auto playing = [] {
        return PlayerInterface::playStatus == PlayerInterface::PlayRunning ||
               PlayerInterface::playStatus == PlayerInterface::PlayPaused;
    };
    add(Qt::Key_Space, [control] { control->onClick_bPlay(); });
    add(Qt::Key_Left, [control] { control->onClick_b5sReward(); });
    add(Qt::Key_Right, [control] { control->onClick_b5sForward(); });
    add(Qt::Key_PageUp, [control] { control->onClick_bReward(); });
    add(Qt::Key_PageDown, [control] { control->onClick_bForward(); });
    add(Qt::Key_M, [control] { control->onClick_bSound(); });
    add(Qt::Key_Plus, [control] { control->onStepVolume(5); });
    add(Qt::Key_Minus, [control] { control->onStepVolume(-5); });
    add(Qt::Key_Home, [player, playing] {
        if (playing())
            player->onPlayPosMove(0);
    });
    add(Qt::Key_End, [player, playing] {
        if (playing())
            player->onPlayPosMove(int(std::max(0.0, PlayerInterface::totalTime - 1000)));
    });
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
    if (event->type() == QEvent::WindowStateChange && m_topBar != nullptr)
        m_topBar->onWindowStateChanged(windowState());
}

// ---- Views ----

void MainWindow::onShowLogo(bool show) {
    logDebug("MainWindow::onShowLogo");
    m_stack->setCurrentWidget(show ? static_cast<QWidget*>(m_logo) : m_playScreen);
    m_subBack->setVisible(!show && m_channels > 1 && enabled("subSceneBackWidget"));
    if (m_subBack->isVisible())
        m_subBack->raise();
}

void MainWindow::onShowPlayWindow(int channels) {
    logDebug("MainWindow::onShowPlayWindow");
    m_channels = channels;
    // The scenes are ready before the first picture: libvlc draws into them from the start.
    m_stack->setCurrentWidget(m_playScreen);
    for (SubPlayerWindow* sub : m_subPlayers) {
        const char* entry = sub->slot() == 1 ? "subPlayer1" : "subPlayer2";
        sub->setVisible(channels > sub->slot() && m_subBack->isEnabledChild(entry));
    }
    m_subBack->setVisible(channels > 1 && enabled("subSceneBackWidget"));
    if (m_subBack->isVisible())
        m_subBack->raise();
}

void MainWindow::onChangeSceneView(int id) {
    logDebug("MainWindow::onChangeSceneView");
    SubPlayerWindow* const* found = std::find_if(
        std::begin(m_subPlayers), std::end(m_subPlayers),
        [id](const SubPlayerWindow* sub) { return sub->id() == id; });
    if (found == std::end(m_subPlayers))
        return;
    SubPlayerWindow* sub = *found;
    const int mainId = m_playScreen->id();
    QWidget* subScene = sub->scene();
    const int subId = sub->id();
    QWidget* mainScene = m_playScreen->swapScene(subScene, subId);
    sub->swapScene(mainScene, mainId);
    m_control->setFlipChannel(subId);
    // Another camera in the main scene: its zoom starts anew.
    emit onSendZoomReset();
}

void MainWindow::onGetImage() {
    m_export->openCaptureDialog();
}

void MainWindow::openPrintDlg() {
    m_export->openReport(m_mapButton->isChecked());
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
    if (paths.isEmpty() || !enabled("fileList"))
        return;
    m_fileList->loadPaths(paths);
    if (!RecordingList::visibleRows.isEmpty())
        m_fileList->onSetFirstFile();
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
    if (!m_blockEvent && event->mimeData()->hasUrls())
        event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event) {
    if (enabled("fileList"))
        m_fileList->takeDrop(event);
}

void MainWindow::onBlockEvent(bool block) {
    logDebug("MainWindow::onBlockEvent");
    m_blockEvent = block;
    emit onSendBlockEvent(block);
}

void MainWindow::onShowFilelist() {
    logDebug("MainWindow::onShowFilelist");
    m_fileListButton->setChecked(true);
    m_mapButton->setChecked(false);
    if (enabled("fileList"))
        m_fileList->show();
    if (enabled("cbfileState"))
        m_fileCombo->show();
    emit onSendMapShow(false);
    if (enabled("fileList"))
        m_fileList->raise();
    m_map->lower();
}

void MainWindow::onRaiseFilelist() {
    logDebug("MainWindow::onRaiseFilelist");
    onShowFilelist();
}

void MainWindow::onRaiseMap() {
    logDebug("MainWindow::onRaiseMap");
    m_mapButton->setChecked(true);
    m_fileListButton->setChecked(false);
    if (enabled("fileList"))
        m_fileList->hide();
    if (enabled("cbfileState"))
        m_fileCombo->hide();
    emit onSendHideTypeList();
    emit onSendMapShow(true);
    m_map->raise();
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
    if (enabled("shortcutTable"))
        connect(&dialog, &QDialog::finished, m_shortcuts, &TavShortcutTable::setBackUi);
    dialog.move(geometry().center() - dialog.rect().center());
    dialog.exec();
}

void MainWindow::openSDCardDlg() {
    logDebug("MainWindow::openSDCardDlg");
    m_card->openCardDialog(this);
}

void MainWindow::openSettingDlg() {
    logDebug("MainWindow::openSettingDlg");
    m_card->openSettingDialog(this);
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
    for (TavTypeButton* button : m_typeButtons)
        button->setChecked(button->fileType() == mask);
}

void MainWindow::onFinishedDlg() {
    logDebug("MainWindow::onFinishedDlg");
}

void MainWindow::onChangeTextByLanguage() {
    logDebug("MainWindow::onChangeTextByLanguage");
    const QList<TavWidget*> views = m_central->findChildren<TavWidget*>();
    m_central->retranslate();
    for (TavWidget* view : views)
        view->retranslate();
}

// ---- End ----

void MainWindow::saveSettings() {
    QSettings& settings = *AppGlobals::settings;
    const QRect frame = geometry();
    settings.setValue("width", width());
    settings.setValue("height", height());
    settings.setValue("geoX", frame.x());
    settings.setValue("geoY", frame.y());
    settings.setValue("language", AppGlobals::languageIndex);
    settings.setValue("volume", AppGlobals::volume);
    settings.setValue("mute", AppGlobals::mute);
    settings.setValue("snapshotPath", AppGlobals::snapshotPath);
    settings.setValue("videoPath", AppGlobals::videoPath);
    settings.setValue("version", AppGlobals::version);
    settings.sync();
}

void MainWindow::removeDataFolderLeftovers() {
    // The snapshot folder is spelled two ways by different views; on a case-sensitive file
    // system they are two folders.
    for (const char* folder : {"/Thumbs", "/snapshot", "/Snapshot", "/CONFIG"}) {
        QDir dir(AppGlobals::dataFolder + QLatin1String(folder));
        if (dir.exists())
            dir.removeRecursively();
    }
}

// ---- Chart and map ----

void MainWindow::connectTelemetryViews() {
    if (enabled("MapView")) {
        connect(this, &MainWindow::onSendMapShow, m_map, &MapView::onMapShow);
        connect(m_card, &CardSession::onSendSpeedUnit, m_map, &MapView::onSetSpeedUnit);
        connect(m_player, &PlayerInterface::onSetTextData, m_map, &MapView::onLoadMap);
        connect(m_player, &PlayerInterface::onTimeout_500ms, m_map, &MapView::onUpdateMap);
        connect(m_player, &PlayerInterface::onSendClear, m_map, &MapView::onClearData);
        connect(this, &MainWindow::onSendClear, m_map, &MapView::onClearData);
        connect(m_map, &MapView::onSendBlockKeyboardEvent, this, &MainWindow::onBlockKeyboardEvent);
        if (enabled("bMap"))
            connect(m_mapButton, &QPushButton::clicked, this, &MainWindow::onRaiseMap);
    }
    if (enabled("ControlView") && m_control->isEnabledChild("chartView")) {
        connect(m_control, &PlayControlView::onSendLoadChart, m_chart, &ChartView::onloadChart);
        connect(m_control, &PlayControlView::onSendUpdateChart, m_chart, &ChartView::onUpdateChart);
        connect(m_control, &PlayControlView::onSendClear, m_chart, &ChartView::onClearData);
        connect(m_chart, &ChartView::onSendSeek, m_control, &PlayControlView::onSeekTo);
    }
}

bool MainWindow::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonPress && m_typeList->isListShown()) {
        // The face of the filter opens and closes the pop-up itself.
        auto* widget = qobject_cast<QWidget*>(watched);
        if (widget != nullptr && widget != m_typeList && !m_typeList->isAncestorOf(widget) &&
            widget != m_fileCombo && !m_fileCombo->isAncestorOf(widget))
            emit onSendHideTypeList();
    }
    // The chart keeps the size of the panel's place for it.
    if (watched == m_control->chartArea() && event->type() == QEvent::Resize)
        m_chart->setGeometry(m_control->chartArea()->rect());
    return QMainWindow::eventFilter(watched, event);
}
