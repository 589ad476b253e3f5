#pragma once

#include "PlaybackState.h"

#include <QImage>
#include <QList>
#include <QObject>
#include <QSize>
#include <QString>

class KDXData;
class QTimer;
class QWidget;
class VLCComponent;

// Between the user interface and the video engine: opens the chosen recording with its
// telemetry, keeps the play status, runs the 500 ms and 1 s ticks that drive the time
// display, slider, chart and map, and carries out every play-control request.
class PlayerInterface : public QObject, public PlaybackState {
    Q_OBJECT
public:
    // Deferred opening: ticks to wait while the engine is still stopping, and once it can
    // take a new file.
    static constexpr int kStoppingTicks = 1000;
    static constexpr int kReadyTicks = 300;

    explicit PlayerInterface(QWidget* timerWindow = nullptr);
    ~PlayerInterface() override;

    // The snapshot of a channel's current picture (1920 x 1080), or a null image.
    QImage getScreenImage(int channel);

    void setMainScreen(QWidget* widget);
    void setSub1Screen(QWidget* widget);
    void setSub2Screen(QWidget* widget);

    VLCComponent* engine() const { return m_engine; }
    // Where playback stands in the recording, 0 to 1.
    double position() const;

signals:
    void onTimeout_500ms();
    void onTimeout_1s();
    void onTimeUpdate();
    void onSetTextData();
    void onSendUnsetFullScreen();
    void onSendLogoSet(bool show);
    void onSetBlockEvent(bool block);
    void onSendShowWindow(int channels);
    void onSendClear();
    void onSendPlayNextFile();
    void onSendPlayPreviusFile();
    void onSendSetFirstFile();
    void onSendFileAllDelete();
    void onInitResizeView(int channels);
    void onSetPlayData();
    void onSendSetPlayButton();
    void onUpdateTimeNow();
    void onSendMapEnable();
    void onSendZoomReset();

public slots:
    // Opens the current recording again, or the one of this file, once the engine can take
    // it.
    void checkFileReady();
    void checkFileReady(const QString& file);
    void onCheckSetReady();
    void onOpenFile();
    void onPlay();
    void onPause();
    void onClickStop(bool isClick);
    void onStop(int type);
    void on5sMove(bool move);
    void onFrameMove(bool move);
    void onFlip(int ScreenNum);
    void onFullScreen();
    void onControlSpeed(double speedNum);
    void onControlVolume(int volume);
    void onSetMute(bool mute);
    void onUpdatePlayTime();
    void onCheckFileEnd();
    void onPlayPosMove(int ms);
    void onRecvStop();
    void onPlayBackFile();
    void onResizeVideo(int id, QSize size);
    void onStopTimer();
    void onRestartTimer();
    void onSetComplete();

private:
    void startTicks();
    void stopTicks();
    void onClearData();
    void onClearFileInfo();
    // A stop the user (or an opening) asked for: ticks off, engine stopped, views cleared.
    void userStop(int reason);
    void fileGone();
    // The engine stopped at an end: on to the next (or previous) recording, or, when the
    // file has gone, clear the list.
    void recordingEnded(void (PlayerInterface::*moveOn)());
    void readTelemetry();
    // Blocks until the engine reports Stopped (in 100 ms sleeps, as a stop takes).
    void waitForEngineStopped();

    VLCComponent* m_engine;
    QTimer* m_readyTimer;
    QTimer* m_tick500;
    QTimer* m_tick1s;
    int m_readyTicks = 0;
    int m_readyLimit = kReadyTicks;
    KDXData* m_telemetry = nullptr;
    unsigned char* m_info;
    // The engine keeps a pointer to the path it plays; room for the longest path a system
    // allows.
    char m_pathBuffer[4096] = {};
};
