#include "ViewWiring.h"

#include "CardSession.h"
#include "ChartView.h"
#include "DriveList.h"
#include "DriveListView.h"
#include "DrivePlayback.h"
#include "ExportSession.h"
#include "IncidentListView.h"
#include "MainParts.h"
#include "MapView.h"
#include "PlayControlView.h"
#include "PlayScreenWindow.h"
#include "PlayerInterface.h"
#include "SubPlayerWindow.h"
#include "SubSceneBackWidget.h"
#include "TavFileComboBox.h"
#include "TavFileListItem.h"
#include "TavShortcutTable.h"
#include "TavTypeList.h"
#include "TopBar.h"

#include <QObject>

void ViewWiring::wire(const MainParts& parts) {
    PlayerInterface* player = parts.player;
    if (parts.enabled("Topbar")) {
        QObject::connect(player, &PlayerInterface::onSetPlayData, parts.topBar,
                         &TopBar::setFileName);
        QObject::connect(player, &PlayerInterface::onSendClear, parts.topBar,
                         &TopBar::unsetFileName);
    }
    if (parts.enabled("shortcutTable") && parts.enabled("ControlView"))
        QObject::connect(parts.shortcuts, &TavShortcutTable::onSendCapture, parts.control,
                         &PlayControlView::onClick_bCapture);
    wireList(parts);
    wireScreens(parts);
    if (parts.enabled("ControlView"))
        wireControl(parts);
    wireTelemetry(parts);
}

void ViewWiring::wireList(const MainParts& parts) {
    PlayerInterface* player = parts.player;
    TavFileListItem* list = parts.fileList;
    TavFileComboBox* combo = parts.fileCombo;
    TavTypeList* typeList = parts.typeList;
    const bool listed = parts.enabled("fileList");
    if (listed) {
        QObject::connect(list, &TavFileListItem::doubleClickedItem, player,
                         qOverload<const QString&>(&PlayerInterface::checkFileReady));
        QObject::connect(list, &TavFileListItem::onSendStop, player, &PlayerInterface::onStop);
        QObject::connect(player, &PlayerInterface::onSendFileAllDelete, list,
                         &TavFileListItem::onDeleteAllFileAtList);
        QObject::connect(list, &TavFileListItem::onSendFinishReadFileTime, list,
                         &TavFileListItem::onFinishReadFileTime);
        if (parts.enabled("shortcutTable")) {
            QObject::connect(parts.shortcuts, &TavShortcutTable::onSendSignalFolder, list,
                             &TavFileListItem::onOpenFolderDlg);
            QObject::connect(parts.shortcuts, &TavShortcutTable::onSendSignalFile, list,
                             &TavFileListItem::recvReqFileOpen);
        }
    }
    if (listed && parts.enabled("driveList")) {
        // The drives follow the recordings list: its loads, its lengths, its type filter.
        DriveListView* drives = parts.driveList;
        const auto refreshShown = [drives] {
            if (drives->isVisible())
                drives->refresh();
        };
        QObject::connect(list, &TavFileListItem::onSendFinishReadFileTime, drives, refreshShown);
        QObject::connect(list, &TavFileListItem::onSendRefreshFilter, drives, refreshShown);
        QObject::connect(list, &TavFileListItem::rowsChanged, drives, refreshShown);
        if (parts.enabled("cbfileState"))
            QObject::connect(combo, &TavFileComboBox::onSendFileTypeFilter, drives,
                             &DriveListView::onTypeMask);
        QObject::connect(parts.card, &CardSession::onSendDriveRules, drives,
                         &DriveListView::applyRules);
        QObject::connect(drives, &DriveListView::incidentsRead, parts.drives,
                         [playback = parts.drives] {
                             for (const Drive& drive : DriveList::drives)
                                 playback->setIncidents(DriveList::key(drive), drive.incidents,
                                                        DriveList::trace(drive));
                         });
        QObject::connect(drives, &DriveListView::playDrive, parts.drives,
                         [playback = parts.drives](int drive, int record) {
                             if (drive >= 0 && drive < DriveList::drives.size())
                                 playback->play(DriveList::drives.at(drive), DriveList::recordings,
                                                record,
                                                DriveList::trace(DriveList::drives.at(drive)));
                         });
    }
    if (!parts.enabled("cbfileState") || !parts.enabled("lFileType"))
        return;
    QObject::connect(combo, &TavFileComboBox::onSendTypeListControl, typeList,
                     &TavTypeList::onControlTypeList);
    QObject::connect(typeList, &TavTypeList::onSendCurrentType, combo,
                     &TavFileComboBox::onUpdateSetData);
    QObject::connect(typeList, &TavTypeList::onSendTypeListSet, combo,
                     &TavFileComboBox::onUpdateListState);
    if (listed) {
        QObject::connect(list, &TavFileListItem::onSendHideTypeList, typeList,
                         &TavTypeList::onHideTypeList);
        QObject::connect(list, &TavFileListItem::onSendRefreshFilter, combo,
                         &TavFileComboBox::onUpdateList);
        QObject::connect(combo, &TavFileComboBox::onSendFileTypeFilter, list,
                         &TavFileListItem::onSortFile);
    }
}

void ViewWiring::wireScreens(const MainParts& parts) {
    PlayerInterface* player = parts.player;
    if (parts.enabled("StackedWidget")) {
        QObject::connect(player, &PlayerInterface::onTimeout_1s, parts.playScreen,
                         &PlayScreenWindow::onSetZoom);
        QObject::connect(player, &PlayerInterface::onSendZoomReset, parts.playScreen,
                         &PlayScreenWindow::onResetZoom);
        QObject::connect(parts.playScreen, &PlayScreenWindow::sendVideoResize, player,
                         &PlayerInterface::onResizeVideo);
    }
    if (!parts.enabled("subSceneBackWidget"))
        return;
    for (SubPlayerWindow* sub : parts.subPlayers) {
        if (!parts.subBack->isEnabledChild(sub->slot() == 1 ? "subPlayer1" : "subPlayer2"))
            continue;
        QObject::connect(player, &PlayerInterface::onInitResizeView, sub,
                         &SubPlayerWindow::onResetView);
        QObject::connect(sub, &SubPlayerWindow::sendVideoResize, player,
                         &PlayerInterface::onResizeVideo);
        QObject::connect(sub, &SubPlayerWindow::onClickedFlip, player, &PlayerInterface::onFlip);
    }
    QObject::connect(player, &PlayerInterface::onSendClear, parts.subBack,
                     &SubSceneBackWidget::ClearPosition);
}

void ViewWiring::wireControl(const MainParts& parts) {
    PlayerInterface* player = parts.player;
    PlayControlView* control = parts.control;
    QObject::connect(control, &PlayControlView::onSendOpenFile, player,
                     qOverload<>(&PlayerInterface::checkFileReady));
    QObject::connect(control, &PlayControlView::onSendPlay, player, &PlayerInterface::onPlay);
    QObject::connect(control, &PlayControlView::onClickedPause, player, &PlayerInterface::onPause);
    QObject::connect(control, &PlayControlView::onClickedStop, player,
                     &PlayerInterface::onClickStop);
    QObject::connect(control, &PlayControlView::onSendStop, player, &PlayerInterface::onStop);
    QObject::connect(control, &PlayControlView::onClicked5sMove, player,
                     &PlayerInterface::on5sMove);
    QObject::connect(control, &PlayControlView::onClickMoveFrame, player,
                     &PlayerInterface::onFrameMove);
    // Moves, steps and the end of a recording go through the drive that plays, if any.
    DrivePlayback* drives = parts.drives;
    QObject::connect(control, &PlayControlView::onChangePlayPosition, drives,
                     &DrivePlayback::onSeek);
    QObject::connect(drives, &DrivePlayback::seekInRecording, player,
                     &PlayerInterface::onPlayPosMove);
    QObject::connect(drives, &DrivePlayback::stopRequested, player, &PlayerInterface::onStop);
    QObject::connect(drives, &DrivePlayback::playFile, player,
                     qOverload<const QString&>(&PlayerInterface::checkFileReady));
    QObject::connect(player, &PlayerInterface::onSetPlayData, drives,
                     &DrivePlayback::onRecordingSet);
    QObject::connect(control, &PlayControlView::onSendChangeSpeed, player,
                     &PlayerInterface::onControlSpeed);
    QObject::connect(control, &PlayControlView::onClickedMute, player, &PlayerInterface::onSetMute);
    QObject::connect(control, &PlayControlView::onSendVolumeChange, player,
                     &PlayerInterface::onControlVolume);
    QObject::connect(control, &PlayControlView::onClickedFlip, player, &PlayerInterface::onFlip);
    QObject::connect(control, &PlayControlView::onSendStopTimer, player,
                     &PlayerInterface::onStopTimer);
    QObject::connect(control, &PlayControlView::onSendRestartTimer, player,
                     &PlayerInterface::onRestartTimer);
    QObject::connect(player, &PlayerInterface::onSetPlayData, control,
                     &PlayControlView::onSetPlayData);
    QObject::connect(player, &PlayerInterface::onTimeout_500ms, control,
                     &PlayControlView::onUpdateSlider);
    QObject::connect(player, &PlayerInterface::onUpdateTimeNow, control,
                     &PlayControlView::onUpdateSlider);
    QObject::connect(player, &PlayerInterface::onSetTextData, control,
                     &PlayControlView::onSendLoadChart);
    QObject::connect(player, &PlayerInterface::onTimeout_500ms, control,
                     &PlayControlView::onSendUpdateChart);
    QObject::connect(player, &PlayerInterface::onSendClear, control, &PlayControlView::onSendClear);
    QObject::connect(parts.exporter, &ExportSession::onSendResume, control,
                     &PlayControlView::onClick_bPlay);
    QObject::connect(player, &PlayerInterface::onSendPlayNextFile, control,
                     &PlayControlView::onRecvPlayNextFile);
    QObject::connect(player, &PlayerInterface::onSendPlayPreviusFile, control,
                     &PlayControlView::onRecvPlayBackFile);
    QObject::connect(player, &PlayerInterface::onSendSetPlayButton, control,
                     &PlayControlView::onSetPlayButton);
    if (parts.enabled("fileList")) {
        TavFileListItem* list = parts.fileList;
        QObject::connect(control, &PlayControlView::onClickedDelete, list,
                         &TavFileListItem::onDeleteCurrentFile);
        QObject::connect(control, &PlayControlView::onCallNextFile, drives,
                         &DrivePlayback::onForward);
        QObject::connect(drives, &DrivePlayback::forwardToList, list,
                         &TavFileListItem::onForwardItemSet);
        QObject::connect(drives, &DrivePlayback::ended, list, &TavFileListItem::onEndOfPlayback);
        QObject::connect(control, &PlayControlView::onChangePlayFile, drives,
                         &DrivePlayback::onStep);
        QObject::connect(drives, &DrivePlayback::stepInList, list,
                         &TavFileListItem::onChangePlayItem);
        QObject::connect(drives, &DrivePlayback::noMore, list, &TavFileListItem::onNoMoreItem);
        // Rows went: what plays goes on as a recording of its own.
        QObject::connect(list, &TavFileListItem::rowsChanged, drives, &DrivePlayback::clear);
        QObject::connect(list, &TavFileListItem::onSendPause, control,
                         &PlayControlView::onSetPause);
    }
}

void ViewWiring::wireTelemetry(const MainParts& parts) {
    PlayerInterface* player = parts.player;
    if (parts.enabled("MapView")) {
        MapView* map = parts.map;
        QObject::connect(parts.card, &CardSession::onSendSpeedUnit, map, &MapView::onSetSpeedUnit);
        QObject::connect(player, &PlayerInterface::onSetTextData, map, &MapView::onLoadMap);
        QObject::connect(player, &PlayerInterface::onTimeout_500ms, map, &MapView::onUpdateMap);
        QObject::connect(player, &PlayerInterface::onSendClear, map, &MapView::onClearData);
        QObject::connect(parts.drives, &DrivePlayback::driveRoute, map, &MapView::onSetDrive);
    }
    if (parts.enabled("ControlView") && parts.control->isEnabledChild("chartView")) {
        PlayControlView* control = parts.control;
        ChartView* chart = parts.chart;
        QObject::connect(control, &PlayControlView::onSendLoadChart, chart,
                         &ChartView::onloadChart);
        QObject::connect(control, &PlayControlView::onSendUpdateChart, chart,
                         &ChartView::onUpdateChart);
        // The drive's incidents: listed beside the chart, marked on the slider; a chosen one
        // plays from a little before it.
        QObject::connect(parts.drives, &DrivePlayback::incidentsChanged, parts.incidents,
                         &IncidentListView::setIncidents);
        QObject::connect(parts.drives, &DrivePlayback::incidentMarks, control,
                         &PlayControlView::onSetIncidentMarks);
        QObject::connect(parts.incidents, &IncidentListView::seekTo, parts.drives,
                         &DrivePlayback::onSeek);
        QObject::connect(control, &PlayControlView::onSendClear, chart, &ChartView::onClearData);
        QObject::connect(chart, &ChartView::onSendSeek, control, &PlayControlView::onSeekTo);
        QObject::connect(parts.drives, &DrivePlayback::driveTrace, chart,
                         &ChartView::onSetDriveTrace);
    }
}
