#pragma once

#include "TavWidget.h"

class QLabel;
class QPushButton;
class TavPlayButton;
class TavPlaySlider;
class TavVolumeProgressBar;

// The strip of playback controls under the video: position slider with the play and total
// times, play/pause, stop, previous/next recording, steps of five seconds or one frame,
// speeds, capture, delete, flip, sound and volume. It only asks; the main window routes
// its requests to the coordinator and the file list, and reads nothing back but the
// coordinator's shared play status and times.
//
// The main window also drives it from the keyboard through the public slots. While input
// is blocked (a recording being opened) the panel takes no clicks and those slots do
// nothing.
class PlayControlView : public TavWidget {
    Q_OBJECT
public:
    explicit PlayControlView(QWidget* parent = nullptr);

    // Whether the step buttons move five seconds (true) or one frame (false).
    bool unitIsSeconds() const { return m_unitIsSeconds; }
    // 1 = 0.5x, 2 = 1.0x, 3 = 1.5x, 4 = 2.0x: the speed the buttons show in force.
    int speedIndex() const { return m_speedIndex; }
    // The camera the main scene shows, which the flip button mirrors.
    void setFlipChannel(int channel) { m_flipChannel = channel; }
    // The place in the panel for the G-sensor chart ("chartView"), which the main window
    // puts there.
    QWidget* chartArea() const { return m_chartArea; }
    bool isMuted() const { return m_muted; }
    bool isBlocked() const { return m_blocked; }

signals:
    void onSendPlay();
    void onClickedPause();
    void onClickedStop(bool isClick);
    void onCallNextFile();
    // 0: the previous recording of the list, 1: the next one.
    void onChangePlayFile(int direction);
    void onClicked5sMove(bool move);
    void onClickMoveFrame(bool move);
    void onClickedMute(bool mute);
    void onClickedFlip(int channel);
    void onClickedMapEnable(bool flag);
    void onClickedDelete();
    void onChangePlayPosition(int value);
    void onSendChangeSpeed(int speed);
    void onSendVolumeChange(int volume);
    void onSendLoadChart();
    void onSendUpdateChart();
    void onSendClear();
    void onSendRefreshImage();
    void onSendStop(int type);
    void onSendStopTimer();
    void onSendRestartTimer();
    void onSendLogoSet();
    void onSendOpenFile();

public slots:
    // Playback to a moment chosen elsewhere in the panel (the chart): the same route as a
    // move of the slider.
    void onSeekTo(int ms);
    // A drive's incidents marked on the slider, at their moments in the drive.
    void onSetIncidentMarks(const QVector<int>& driveMs);
    void onClick_bPlay();
    void onClick_bStop();
    // Previous and next recording.
    void onClick_bReward();
    void onClick_bForward();
    // One step back or forward, five seconds or one frame by the unit.
    void onClick_b5sReward();
    void onClick_b5sForward();
    void onClick_bUnit();
    void onClick_bDelete();
    void onClick_bCapture();
    void onClick_bFlip();
    void onClick_bSound();
    void onChangedSpeed(int index);
    void onSetPlayData();
    void onUpdateSlider();
    void onUpdateTimeText();
    void onChange_sTimeLine();
    void onClearUi();
    void onSetPause();
    void onSetPlayButton();
    void onRecvPlayNextFile();
    void onRecvPlayBackFile();
    void onRefreshVolume();
    void onBlockEvent(bool block);
    void onloadTotalTime();
    // Volume up or down by delta (0 to 100 in all), for the keyboard.
    void onStepVolume(int delta);

    void retranslate() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void setUnit(bool seconds);
    void showSpeed(int index);
    void showVolume();
    void changeVolume(int volume);
    void setMuted(bool mute);
    void onSliderPressed();
    void onSliderReleased();

    bool m_unitIsSeconds = true;
    int m_speedIndex = 2;
    int m_flipChannel = 0;
    bool m_muted = false;
    int m_volume = 100;
    bool m_blocked = false;

    // Play, stop, file and step buttons, kept together in the middle when the panel widens.
    QWidget* m_transport;
    TavPlayButton* m_play;
    QPushButton* m_stop;
    QPushButton* m_previous;
    QPushButton* m_next;
    QPushButton* m_stepBack;
    QPushButton* m_stepForward;
    QPushButton* m_unit;
    QPushButton* m_capture;
    QPushButton* m_delete;
    QPushButton* m_flip;
    QPushButton* m_sound;
    QPushButton* m_speeds[4];
    TavVolumeProgressBar* m_volumeBar;
    QWidget* m_sliderRow;
    QWidget* m_chartArea;
    TavPlaySlider* m_slider;
    QLabel* m_playTime;
    QLabel* m_totalTime;
};
