#include "PlayerInterface.h"

#include "AppGlobals.h"
#include "KDXData.h"
#include "StatusLog.h"
#include "VLCComponent.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QThread>
#include <QTimer>
#include <QWidget>

#include <algorithm>
#include <cstring>

namespace {

// A stop that has not finished after this long will not finish; waiting on would freeze
// the window for good.
constexpr int kStopWaitLimitMs = 10000;

bool isRunningOrPaused() {
    return PlayerInterface::playStatus == PlayerInterface::PlayRunning ||
           PlayerInterface::playStatus == PlayerInterface::PlayPaused;
}

// The path of the current recording for a reader asked to open "the current recording".
QString currentRecordingPath() {
    return PlayerInterface::currentFile;
}

} // namespace

PlayerInterface::PlayerInterface(QWidget* timerWindow)
    : QObject(timerWindow), m_engine(new VLCComponent(this)), m_readyTimer(new QTimer(this)),
      m_tick500(new QTimer(this)), m_tick1s(new QTimer(this)),
      m_info(new unsigned char[KDXData::kInfoSize]) {
    KDXData::setCurrentRecordingSource(currentRecordingPath);
    m_readyTimer->setInterval(1);
    m_tick500->setInterval(500);
    m_tick1s->setInterval(1000);
    connect(m_readyTimer, &QTimer::timeout, this, &PlayerInterface::onCheckSetReady);
    connect(m_tick500, &QTimer::timeout, this, &PlayerInterface::onTimeout_500ms);
    connect(m_tick1s, &QTimer::timeout, this, &PlayerInterface::onTimeout_1s);
    connect(this, &PlayerInterface::onTimeout_500ms, this, &PlayerInterface::onCheckFileEnd);
    connect(this, &PlayerInterface::onTimeout_1s, this, &PlayerInterface::onUpdatePlayTime);
    connect(m_engine, &VLCComponent::send_GoNext, this, &PlayerInterface::onRecvStop);
    connect(m_engine, &VLCComponent::send_GoBack, this, &PlayerInterface::onPlayBackFile);
    connect(m_engine, &VLCComponent::send_playNow, this, &PlayerInterface::onSetComplete);
    connect(m_engine, &VLCComponent::send_setLogo, this, &PlayerInterface::onSendLogoSet);
    connect(m_engine, &VLCComponent::send_setBlockEvent, this, &PlayerInterface::onSetBlockEvent);
}

PlayerInterface::~PlayerInterface() {
    stopTicks();
    if (m_telemetry != nullptr) {
        m_telemetry->KDX_TextDataFree();
        delete m_telemetry;
    }
    delete[] m_info;
}

void PlayerInterface::startTicks() {
    m_tick500->start();
    m_tick1s->start();
}

void PlayerInterface::stopTicks() {
    m_tick500->stop();
    m_tick1s->stop();
}

void PlayerInterface::onRestartTimer() {
    logDebug("PlayerInterface::onRestartTimer");
    startTicks();
}

void PlayerInterface::onStopTimer() {
    logDebug("PlayerInterface::onStopTimer");
    stopTicks();
}

void PlayerInterface::waitForEngineStopped() {
    QElapsedTimer waited;
    waited.start();
    while (VLCComponent::playerState != VLCComponent::Stopped) {
        if (waited.elapsed() > kStopWaitLimitMs) {
            logError("[PlayerInterface]: the player did not stop (state %d)",
                     VLCComponent::playerState);
            return;
        }
        QThread::msleep(100);
    }
}

// ---- Opening ----

void PlayerInterface::checkFileReady(const QString& file) {
    currentFile = file;
    checkFileReady();
}

void PlayerInterface::checkFileReady() {
    logDebug("PlayerInterface::checkFileReady");
    const int state = VLCComponent::playerState;
    const bool ready = state == VLCComponent::Created || state == VLCComponent::Playing ||
                       state == VLCComponent::Paused || state == VLCComponent::StopRequested ||
                       state == VLCComponent::Stopping || state == VLCComponent::Stopped;
    if (m_readyTimer->isActive() || !ready) {
        logInfo("state: %d", state);
        return;
    }
    m_readyTicks = 0;
    m_readyLimit = (state == VLCComponent::StopRequested || state == VLCComponent::Stopping)
                       ? kStoppingTicks
                       : kReadyTicks;
    m_readyTimer->start();
}

void PlayerInterface::onCheckSetReady() {
    if (++m_readyTicks < m_readyLimit)
        return;
    m_readyTicks = 0;
    if (m_readyLimit == kStoppingTicks) {
        logInfo("check currentstate %d", VLCComponent::playerState);
        if (VLCComponent::playerState == VLCComponent::Stopped)
            m_readyLimit = kReadyTicks;
        return;
    }
    m_readyTimer->stop();
    onOpenFile();
}

void PlayerInterface::onOpenFile() {
    logDebug("PlayerInterface::onOpenFile");
    if (isRunningOrPaused()) {
        logInfo("[PlayerInterface]: onClickStop");
        userStop(VLCComponent::StopPlain);
        waitForEngineStopped();
    }
    if (playStatus == PlayStopped)
        playStatus = PlayIdle;
    if (!firstOpenDone) {
        if (currentFile.isEmpty()) {
            m_readyTimer->stop();
            return;
        }
        firstOpenDone = true;
    }
    emit onSendZoomReset();
    onPlay();
}

void PlayerInterface::readTelemetry() {
    m_telemetry->KDX_GetTextData(nullptr, 0);
    const int count = m_telemetry->KDX_GetTextDataTotalCount();
    for (int i = 0; i < count; ++i) {
        const float* buffer = m_telemetry->KDX_GetTextDataFrame(i);
        if (buffer == nullptr)
            continue;
        // The frame as the stream library lays it out; copied, as the buffer is plain bytes.
        KDXTextFrame frame;
        std::memcpy(&frame, buffer, sizeof frame);
        gSensorList.append({i, frame.gSensorX, frame.gSensorY, frame.gSensorZ});
        gpsList.append({i, frame.latitude, frame.longitude, frame.speed, int(frame.gpsFlags & 3u),
                        int((frame.gpsFlags >> 2) & 3u)});
    }
    if (!gSensorList.isEmpty() && !gpsList.isEmpty()) {
        gpsPresent = true;
        telemetryPresent = true;
        emit onSetTextData();
    }
}

void PlayerInterface::onPlay() {
    logDebug("PlayerInterface::onPlay");
    if (playStatus == PlayRunning)
        return;
    if (playStatus == PlayPaused) {
        m_engine->Resume();
        startTicks();
        playStatus = PlayRunning;
        logInfo("[PlayerInterface]: Play video");
        return;
    }

    // The recording that plays, for whoever reads the log after a crash.
    logInfo("[PlayerInterface]: Open %s", currentFile.toLocal8Bit().constData());
    delete m_telemetry;
    gpsList.clear();
    gSensorList.clear();
    m_telemetry = new KDXData(m_info);
    const int opened = m_telemetry->KDX_Open(currentFile);
    if (opened < 0 || opened == 2) {
        // Without readable information the recording plays as one channel.
        playChannelCount = 1;
        emit onSendShowWindow(1);
    } else {
        const int channels = m_telemetry->KDX_GetVideoTotalNum();
        if (channels == 0) {
            logInfo("!!! Ch is 0");
            emit onSetBlockEvent(false);
            return;
        }
        playChannelCount = channels;
        totalTime = m_telemetry->KDX_GetTotalRange();
        emit onSendShowWindow(channels);
        if (opened == 0)
            readTelemetry();
    }

    // libvlc takes paths as UTF-8 on every system.
    const QByteArray path = currentFile.toUtf8();
    std::strncpy(m_pathBuffer, path.constData(), sizeof m_pathBuffer - 1);
    m_pathBuffer[sizeof m_pathBuffer - 1] = '\0';
    const bool split = m_engine->IsSplitChannelFile(m_pathBuffer);
    m_engine->SetFile(m_pathBuffer, playChannelCount, totalTime);
    if (split) {
        playChannelCount = m_engine->GetChannelCount();
        emit onSendShowWindow(playChannelCount);
    }
    emit onInitResizeView(playChannelCount);
    playRequested = true;
    if (m_engine->Play() < 0)
        return;
    if (totalTime == 0)
        totalTime = m_engine->GetTotalTime();
    startTicks();
    logInfo("[PlayerInterface]: Play video");
}

void PlayerInterface::onSetComplete() {
    logDebug("PlayerInterface::onSetComplete");
    logDebug("PlayerInterface::onControlVolume");
    m_engine->SetVolume(volume);
    logDebug("PlayerInterface::onSetMute");
    m_engine->SetMute(muted);
    emit onSetPlayData();
    for (bool& flip : flipState)
        flip = false;
    if (totalTime == 0)
        totalTime = m_engine->GetTotalTime();
    playStatus = PlayRunning;
    speedIndex = 2;
    emit onSendSetPlayButton();
}

// ---- Pause and stop ----

void PlayerInterface::onPause() {
    logDebug("PlayerInterface::onPause");
    if (playStatus != PlayRunning)
        return;
    stopTicks();
    m_engine->Pause();
    playStatus = PlayPaused;
    // The time of the picture that stays, for the panel and whatever reports on it.
    currentTime = std::max(0.0, m_engine->GetCurrentPos());
    emit onUpdateTimeNow();
}

void PlayerInterface::userStop(int reason) {
    stopTicks();
    stopRequested = true;
    m_engine->Stop(reason);
    onClearData();
}

void PlayerInterface::onClickStop(bool isClick) {
    logInfo("[PlayerInterface]: onClickStop");
    if (isRunningOrPaused())
        userStop(isClick ? VLCComponent::StopShowLogo : VLCComponent::StopPlain);
}

void PlayerInterface::onStop(int type) {
    logDebug("PlayerInterface::onStop");
    if (!isRunningOrPaused())
        return;
    stopRequested = false;
    stopTicks();
    switch (type) {
    case 1:
        m_engine->Stop(1);
        onClearData();
        playStatus = PlayIdle;
        break;
    case 3:
        m_engine->Stop(VLCComponent::StopPlain);
        onClearData();
        onClearFileInfo();
        playStatus = PlayStopped;
        break;
    case 4:
        m_engine->Stop(VLCComponent::StopFileRemoved);
        waitForEngineStopped();
        onClearData();
        onClearFileInfo();
        playStatus = PlayStopped;
        break;
    default:
        break;
    }
}

void PlayerInterface::onClearData() {
    logDebug("PlayerInterface::onClearData");
    if (isRunningOrPaused())
        playStatus = PlayIdle;
    emit onSendClear();
    if (m_telemetry != nullptr) {
        m_telemetry->KDX_TextDataFree();
        delete m_telemetry;
        m_telemetry = nullptr;
    }
    gpsList.clear();
    gSensorList.clear();
    for (bool& flip : flipState)
        flip = false;
    telemetryPresent = false;
    gpsPresent = false;
    currentTime = 0;
    totalTime = 0;
    playChannelCount = 0;
}

void PlayerInterface::onClearFileInfo() {
    logDebug("PlayerInterface::onClearFileInfo");
    currentPosition = 0;
}

void PlayerInterface::fileGone() {
    logInfo("[PlayerInterface]: onClickStop");
    if (isRunningOrPaused())
        userStop(VLCComponent::StopPlain);
    logDebug("PlayerInterface::callResetAll");
    emit onSendFileAllDelete();
}

// ---- Moves ----

void PlayerInterface::on5sMove(bool move) {
    logDebug("PlayerInterface::on5sMove");
    stopTicks();
    const double t = currentTime;
    const double total = totalTime;
    if (move && t >= total) {
        m_engine->Forward(-1);
        emit onUpdateTimeNow();
        startTicks();
        return;
    }
    if (!move && t <= 0) {
        m_engine->Rewind(-1);
        emit onUpdateTimeNow();
        startTicks();
        return;
    }
    if (!move) {
        currentTime = t < 5000 ? 0 : t - 5000;
        m_engine->Rewind(5000);
    } else {
        currentTime = t > total - 5000 ? total : t + 5000;
        m_engine->Forward(5000);
    }
    emit onUpdateTimeNow();
    if (VLCComponent::playerState != VLCComponent::Paused) {
        playStatus = PlayRunning;
        startTicks();
    } else {
        playStatus = PlayPaused;
    }
}

void PlayerInterface::onFrameMove(bool move) {
    logDebug("PlayerInterface::onFrameMove");
    if (!QFile::exists(currentFile)) {
        fileGone();
        return;
    }
    if (playStatus != PlayPaused)
        return;
    const double total = m_engine->GetTotalTime();
    const double t = m_engine->GetCurrentPos();
    logInfo("time : %.0f totalTime: %.0f", t, total - 100);
    if (!(total - 100 > t))
        return;
    if (move) {
        logInfo("FORWARD!!!!!!!!!!!!!!%f", m_engine->GetPosition());
        m_engine->NextFrame();
        if (t > currentTime) {
            currentTime = t;
            emit onUpdateTimeNow();
        }
    } else {
        // A step back shows the picture 800 ms after the last one shown.
        logInfo("REWIND!!!!!!!!!!!!!!%.0f", currentTime);
        m_engine->Seek(int(currentTime + 800));
    }
}

void PlayerInterface::onPlayPosMove(int ms) {
    logDebug("PlayerInterface::onPlayPosMove");
    stopTicks();
    m_engine->Seek(ms);
    onCheckFileEnd();
    currentTime = ms;
    emit onUpdateTimeNow();
    logDebug("PlayerInterface::onRestartTimer");
    startTicks();
}

// ---- Ticks ----

void PlayerInterface::onCheckFileEnd() {
    logDebug("PlayerInterface::onCheckFileEnd");
    if (m_engine->GetPosition() > 0.99)
        stopTicks();
    if (isRunningOrPaused() && !QFile::exists(currentFile)) {
        playStatus = PlayStopped;
        logInfo("[PlayerInterface]: onClickStop");
        logDebug("PlayerInterface::callResetAll");
        emit onSendFileAllDelete();
    }
}

void PlayerInterface::onUpdatePlayTime() {
    logDebug("PlayerInterface::onUpdatePlayTime");
    currentTime = m_engine->GetCurrentPos();
    currentPosition = m_engine->GetPosition();
}

// ---- End of file ----

void PlayerInterface::onRecvStop() {
    logDebug("PlayerInterface::onRecvStop");
    recordingEnded(&PlayerInterface::onSendPlayNextFile);
}

void PlayerInterface::onPlayBackFile() {
    logDebug("PlayerInterface::onRecvStop");
    recordingEnded(&PlayerInterface::onSendPlayPreviusFile);
}

void PlayerInterface::recordingEnded(void (PlayerInterface::*moveOn)()) {
    stopTicks();
    if (QFile::exists(currentFile)) {
        onClearData();
        logDebug("PlayerInterface::fileChange");
        emit(this->*moveOn)();
    } else {
        playStatus = PlayStopped;
        onClearData();
        logDebug("PlayerInterface::callResetAll");
        emit onSendFileAllDelete();
    }
}

// ---- Settings of the picture and sound ----

void PlayerInterface::onFlip(int ScreenNum) {
    logDebug("PlayerInterface::onFlip");
    if (ScreenNum < 0 || ScreenNum >= 3)
        return;
    flipState[ScreenNum] = !flipState[ScreenNum];
    m_engine->SetFlip(ScreenNum, flipState[ScreenNum]);
}

void PlayerInterface::onFullScreen() {
    logDebug("PlayerInterface::onFullScreen");
}

void PlayerInterface::onControlSpeed(double speedNum) {
    logDebug("PlayerInterface::onControlSpeed");
    // The panel sends a speed index: 1 half, 2 normal, 3 one and a half, 4 double.
    static const double rates[] = {0.5, 1.0, 1.5, 2.0};
    const int index = int(speedNum);
    if (index < 1 || index > 4 || index != speedNum)
        return;
    speedIndex = index;
    m_engine->SetSpeed(rates[index - 1]);
}

void PlayerInterface::onControlVolume(int value) {
    logDebug("PlayerInterface::onControlVolume");
    volume = value;
    m_engine->SetVolume(value);
}

void PlayerInterface::onSetMute(bool mute) {
    logDebug("PlayerInterface::onSetMute");
    muted = mute;
    m_engine->SetMute(mute);
}

void PlayerInterface::onResizeVideo(int id, QSize size) {
    logDebug("PlayerInterface::onResizeVideo id: %d, size: %dx%d", id, size.width(), size.height());
    m_engine->SetResize(id, size);
}

// ---- Screens and snapshots ----

void PlayerInterface::setMainScreen(QWidget* widget) {
    m_engine->SetVideoWindow(0, widget);
}

void PlayerInterface::setSub1Screen(QWidget* widget) {
    m_engine->SetVideoWindow(1, widget);
}

void PlayerInterface::setSub2Screen(QWidget* widget) {
    m_engine->SetVideoWindow(2, widget);
}

double PlayerInterface::position() const {
    return m_engine->GetPosition();
}

QImage PlayerInterface::getScreenImage(int channel) {
    logDebug("PlayerInterface::getScreenImage");
    const QString folder = AppGlobals::dataFolder + "/Snapshot";
    QDir().mkpath(folder);
    const QString path = QDir::toNativeSeparators(folder + "/" + QString::number(channel) + ".png");
    QImage image;
    if (m_engine->GetImage(channel, path.toUtf8().constData()) == 0)
        image.load(path);
    return image;
}
