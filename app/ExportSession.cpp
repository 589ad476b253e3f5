#include "ExportSession.h"

#include "AppGlobals.h"
#include "ConfigAccess.h"
#include "EngineState.h"
#include "MapView.h"
#include "PlayerInterface.h"
#include "PrintChannelSelectView.h"
#include "ReportScene.h"
#include "SaveAsView.h"
#include "StatusLog.h"
#include "TavPrompt.h"

#include <QImage>
#include <QTimer>
#include <QWidget>

ExportSession::ExportSession(QWidget* window, PlayerInterface* player, MapView* map)
    : QObject(window), m_window(window), m_player(player), m_map(map) {}

bool ExportSession::pauseForDialog() {
    if (PlaybackState::playStatus != PlaybackState::PlayRunning)
        return false;
    emit onSendSetPause();
    return true;
}

void ExportSession::resumeAfterDialog(bool paused, const QString& file) {
    if (paused && PlaybackState::playStatus == PlaybackState::PlayPaused &&
        PlaybackState::currentFile == file)
        emit onSendResume();
}

void ExportSession::openCaptureDialog() {
    logDebug("MainWindow::onGetImage");
    if (!PlaybackState::hasRecording())
        return;
    const QString file = PlaybackState::currentFile;
    const bool paused = pauseForDialog();
    SaveAsView dialog(m_window);
    for (int channel = 0;
         channel < PlaybackState::playChannelCount && channel < EngineState::kMaxChannels;
         ++channel)
        dialog.setImage(channel, m_player->getScreenImage(channel));
    dialog.setPosition(m_player->position());
    dialog.move(m_window->geometry().center() - dialog.rect().center());
    dialog.exec();
    resumeAfterDialog(paused, file);
}

void ExportSession::openReport(bool mapShown) {
    logDebug("MainWindow::openPrintDlg");
    if (!PlaybackState::hasRecording()) {
        TavPrompt::inform(m_window, tr("Play a recording to print its report."));
        return;
    }
    const bool paused = pauseForDialog();
    if (!PlaybackState::gpsPresent || m_map == nullptr) {
        showReportDialogs(paused, QImage());
        return;
    }
    // The report takes the map drawn for paper. A map hidden behind the list is shown for
    // that moment (a web view draws only while it shows), and the list comes back after.
    if (!mapShown)
        emit onSendShowMap();
    m_map->setPaper(true);
    QTimer::singleShot(kMapDrawMs, this, [this, paused, mapShown] {
        const QImage map = m_map->currentPicture();
        m_map->setPaper(false);
        if (!mapShown)
            emit onSendShowList();
        showReportDialogs(paused, map);
    });
}

void ExportSession::showReportDialogs(bool paused, const QImage& map) {
    if (!PlaybackState::hasRecording())
        return;
    const QString file = PlaybackState::currentFile;
    // The model of the card last opened; empty when the recording came from elsewhere.
    ReportScene scene = ReportScene::fromPlayback(ConfigAccess::modelText, AppGlobals::speedUnit);
    scene.mapImage = map;
    PrintChannelSelectView dialog(m_window);
    dialog.setScene(scene);
    for (int channel = 0;
         channel < PlaybackState::playChannelCount && channel < EngineState::kMaxChannels;
         ++channel)
        dialog.setImage(channel, m_player->getScreenImage(channel));
    dialog.move(m_window->geometry().center() - dialog.rect().center());
    dialog.exec();
    resumeAfterDialog(paused, file);
}
