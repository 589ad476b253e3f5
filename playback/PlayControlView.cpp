#include "PlayControlView.h"

#include "AppGlobals.h"
#include "PlayerInterface.h"
#include "StatusLog.h"
#include "TavPlayButton.h"
#include "TavPlaySlider.h"
#include "TavVolumeProgressBar.h"

#include <QEvent>
#include <QLabel>
#include <QPushButton>

namespace {

const QString kClearedTime = QStringLiteral("00:00");

const char* const kSpeedButtons[4] = {"bHalfSpeed", "bDefaultSpeed", "bDefHalfSpeed",
                                      "bDoubleSpeed"};

// Minutes and seconds of a time in ms; the hours are not shown.
QString timeText(double ms) {
    const qint64 total = ms > 0 ? qint64(ms / 1000) : 0;
    const qint64 hours = total / 3600;
    const qint64 minutes = (total - hours * 3600) / 60;
    qint64 seconds = total - hours * 3600 - minutes * 60;
    if (seconds >= 60)
        seconds = 0;
    return QStringLiteral("%1:%2").arg(minutes, 2, 10, QChar('0')).arg(seconds, 2, 10, QChar('0'));
}

bool isPlaying() {
    return PlayerInterface::playStatus == PlayerInterface::PlayRunning;
}

bool isPlayingOrPaused() {
    return PlayerInterface::playStatus == PlayerInterface::PlayRunning ||
           PlayerInterface::playStatus == PlayerInterface::PlayPaused;
}

} // namespace

PlayControlView::PlayControlView(QWidget* parent)
    : TavWidget("PlayControlView", parent), m_transport(new QWidget(this)),
      m_play(new TavPlayButton(m_transport)), m_stop(new QPushButton(m_transport)),
      m_previous(new QPushButton(m_transport)), m_next(new QPushButton(m_transport)),
      m_stepBack(new QPushButton(m_transport)), m_stepForward(new QPushButton(m_transport)),
      m_unit(new QPushButton(m_transport)), m_capture(new QPushButton(this)),
      m_delete(new QPushButton(this)), m_flip(new QPushButton(this)),
      m_sound(new QPushButton(this)), m_volumeBar(new TavVolumeProgressBar(this)),
      m_sliderRow(new QWidget(this)), m_chartArea(new QWidget(this)),
      m_slider(new TavPlaySlider(m_sliderRow)), m_playTime(new QLabel(this)),
      m_totalTime(new QLabel(this)) {
    addChild(m_sliderRow, "row2Widget", Style::Panel);
    addChild(m_chartArea, "chartView", Style::None);
    addChild(m_slider, "playBar", Style::None);
    m_slider->setStyleSheet(TavPlaySlider::styleSheet(description().item("playBar")));
    addChild(m_playTime, "playTime", Style::Label);
    addChild(m_totalTime, "totalTime", Style::Label);
    m_playTime->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_totalTime->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);

    addChild(m_transport, "transportGroup", Style::Panel);
    const UiItem play = description().item("bPlay");
    addChild(m_play, "bPlay", Style::None);
    m_play->setStyleSheet(TavPlayButton::styleSheet(description().imageFolder(),
                                                    play.color[UiItem::Hover],
                                                    qMin(m_play->width(), m_play->height()) / 2));

    const struct {
        QPushButton* button;
        const char* name;
        void (PlayControlView::*slot)();
    } buttons[] = {
        {m_stop, "bStop", &PlayControlView::onClick_bStop},
        {m_previous, "previous", &PlayControlView::onClick_bReward},
        {m_stepBack, "rewind", &PlayControlView::onClick_b5sReward},
        {m_stepForward, "fastForward", &PlayControlView::onClick_b5sForward},
        {m_next, "forward", &PlayControlView::onClick_bForward},
        {m_unit, "bUnit", &PlayControlView::onClick_bUnit},
        {m_capture, "bCapture", &PlayControlView::onClick_bCapture},
        {m_delete, "bDelete", &PlayControlView::onClick_bDelete},
        {m_flip, "bFlip", &PlayControlView::onClick_bFlip},
        {m_sound, "bSound", &PlayControlView::onClick_bSound},
    };
    for (const auto& entry : buttons) {
        addChild(entry.button, entry.name, Style::Button);
        connect(entry.button, &QPushButton::clicked, this, entry.slot);
    }
    connect(m_play, &QPushButton::clicked, this, &PlayControlView::onClick_bPlay);
    m_sound->setCheckable(true);

    for (int i = 0; i < 4; ++i) {
        m_speeds[i] = new QPushButton(this);
        addChild(m_speeds[i], kSpeedButtons[i], Style::Button);
        connect(m_speeds[i], &QPushButton::clicked, this, [this, i] { onChangedSpeed(i + 1); });
    }

    const UiItem volume = description().item("bVolumeBar");
    addChild(m_volumeBar, "bVolumeBar", Style::None);
    m_volumeBar->setStyleSheet(TavVolumeProgressBar::styleSheet(volume));
    connect(m_volumeBar, &TavVolumeProgressBar::onSendVolumeChange, this,
            &PlayControlView::changeVolume);

    connect(m_slider, &TavPlaySlider::sliderPressed, this, &PlayControlView::onSliderPressed);
    connect(m_slider, &TavPlaySlider::sliderMoved, this, &PlayControlView::onChange_sTimeLine);
    connect(m_slider, &TavPlaySlider::sliderReleased, this, &PlayControlView::onSliderReleased);

    // The coordinator's clear reaches the panel as its own signal, which the chart shares.
    connect(this, &PlayControlView::onSendClear, this, &PlayControlView::onClearUi);

    // Keys are the main window's; clicks are filtered while input is blocked.
    for (QWidget* child : findChildren<QWidget*>()) {
        child->setFocusPolicy(Qt::NoFocus);
        child->installEventFilter(this);
    }

    m_volume = qBound(0, AppGlobals::volume, 100);
    m_muted = AppGlobals::mute;
    // The coordinator puts these on the engine whenever a recording starts.
    PlayerInterface::volume = m_volume;
    PlayerInterface::muted = m_muted;
    m_sound->setChecked(m_muted);
    showVolume();
    showSpeed(2);
    m_playTime->setText(kClearedTime);
    m_totalTime->setText(kClearedTime);
    retranslate();
}

bool PlayControlView::eventFilter(QObject* watched, QEvent* event) {
    if (m_blocked) {
        switch (event->type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
        case QEvent::Wheel:
            return true;
        default:
            break;
        }
    }
    return TavWidget::eventFilter(watched, event);
}

void PlayControlView::retranslate() {
    TavWidget::retranslate();
    setUnit(m_unitIsSeconds);
    m_play->setToolTip(tr("Play / Pause"));
    m_stop->setToolTip(tr("Stop"));
    m_previous->setToolTip(tr("Previous recording"));
    m_next->setToolTip(tr("Next recording"));
    m_stepBack->setToolTip(tr("Step back"));
    m_stepForward->setToolTip(tr("Step forward"));
    m_unit->setToolTip(tr("Step by five seconds or by one frame"));
    m_capture->setToolTip(tr("Snapshot"));
    m_delete->setToolTip(tr("Delete recording"));
    m_flip->setToolTip(tr("Flip picture"));
    m_sound->setToolTip(tr("Sound on / off"));
    m_volumeBar->setToolTip(tr("Volume"));
}

// ---- Play, pause, stop ----

void PlayControlView::onClick_bPlay() {
    logDebug("PlayControlView::onClick_bPlay");
    if (m_blocked)
        return;
    const int status = PlayerInterface::playStatus;
    if (status == PlayerInterface::PlayStopped)
        return;
    if (status == PlayerInterface::PlayRunning) {
        logInfo("[PlayControlView]: Pause button is clicked.");
        m_play->setPlaying(false);
        emit onClickedPause();
        return;
    }
    // Nothing chosen yet: there is nothing to start.
    if (status == PlayerInterface::PlayIdle && PlayerInterface::currentFile.isEmpty())
        return;
    logInfo("[PlayControlView]: Play button is clicked.");
    m_play->setPlaying(true);
    if (!m_unitIsSeconds)
        setUnit(true);
    emit onSendPlay();
}

void PlayControlView::onClick_bStop() {
    logDebug("PlayControlView::onClick_bStop");
    if (m_blocked)
        return;
    logInfo("[PlayControlView]: button stop is clicked.");
    emit onClickedStop(true);
}

void PlayControlView::onSetPause() {
    logDebug("PlayControlView::onSetPause");
    if (!isPlaying())
        return;
    m_play->setPlaying(false);
    emit onClickedPause();
}

void PlayControlView::onSetPlayButton() {
    logDebug("PlayControlView::onSetPlayButton");
    m_play->setPlaying(true);
    // A recording starts playing, where frame steps cannot be taken.
    setUnit(true);
    // A recording without its length in the telemetry has it only now.
    onloadTotalTime();
}

// ---- Recordings ----

void PlayControlView::onClick_bReward() {
    logDebug("PlayControlView::onClick_bReward");
    if (m_blocked)
        return;
    logInfo("[PlayControlView]: button reward is clicked.");
    emit onChangePlayFile(0);
}

void PlayControlView::onClick_bForward() {
    logDebug("PlayControlView::onClick_bForward");
    if (m_blocked)
        return;
    logInfo("[PlayControlView]: button forward is clicked.");
    emit onChangePlayFile(1);
}

void PlayControlView::onRecvPlayNextFile() {
    logDebug("PlayControlView::onRecvPlayNextFile");
    emit onCallNextFile();
}

void PlayControlView::onRecvPlayBackFile() {
    logDebug("PlayControlView::onRecvPlayBackFile");
    emit onChangePlayFile(0);
}

void PlayControlView::onClick_bDelete() {
    logDebug("PlayControlView::onClick_bDelete");
    if (m_blocked)
        return;
    emit onClickedDelete();
}

void PlayControlView::onClick_bCapture() {
    logDebug("PlayControlView::onClick_bCapture");
    // Pictures exist only while a recording is open.
    if (m_blocked || !isPlayingOrPaused())
        return;
    emit onSendRefreshImage();
}

void PlayControlView::onClick_bFlip() {
    logDebug("PlayControlView::onClick_bFlip");
    if (m_blocked || !isPlayingOrPaused())
        return;
    emit onClickedFlip(m_flipChannel);
}

// ---- Steps ----

void PlayControlView::onClick_b5sReward() {
    logDebug("PlayControlView::onClick_b5sReward");
    // Nothing is open to step in while idle or stopped.
    if (m_blocked || !isPlayingOrPaused())
        return;
    logInfo("[PlayControlView]: button 5s_reward is clicked...");
    if (m_unitIsSeconds) {
        logInfo("go to 5s previous time!");
        emit onClicked5sMove(false);
    } else {
        logInfo("go to previous frame!");
        emit onClickMoveFrame(false);
    }
}

void PlayControlView::onClick_b5sForward() {
    logDebug("PlayControlView::onClick_b5sForward");
    if (m_blocked || !isPlayingOrPaused())
        return;
    logInfo("[PlayControlView]: button 5s_forward is clicked...");
    if (m_unitIsSeconds) {
        logInfo("go to 5s next time!");
        emit onClicked5sMove(true);
    } else {
        logInfo("go to next frame!");
        emit onClickMoveFrame(true);
    }
}

void PlayControlView::onClick_bUnit() {
    logDebug("PlayControlView::onClick_bUnit");
    if (m_blocked)
        return;
    // Frames are stepped only while paused.
    if (isPlaying()) {
        m_play->setPlaying(false);
        emit onClickedPause();
    }
    setUnit(!m_unitIsSeconds);
}

void PlayControlView::setUnit(bool seconds) {
    m_unitIsSeconds = seconds;
    m_unit->setText(seconds ? tr("Sec") : tr("Frm"));
}

// ---- Speed ----

void PlayControlView::onChangedSpeed(int index) {
    logDebug("PlayControlView::onChangedSpeed");
    logInfo("!@# Change Speed = %d / %d", m_speedIndex, index);
    if (m_blocked || !isPlaying() || index == m_speedIndex || index < 1 || index > 4)
        return;
    showSpeed(index);
    emit onSendChangeSpeed(index);
}

void PlayControlView::showSpeed(int index) {
    m_speedIndex = index;
    // The speed in force is the disabled button; absent buttons stay off.
    for (int i = 0; i < 4; ++i)
        if (isEnabledChild(kSpeedButtons[i]))
            m_speeds[i]->setEnabled(i + 1 != index);
}

// ---- Sound ----

void PlayControlView::onClick_bSound() {
    logDebug("PlayControlView::onClick_bSound");
    if (m_blocked) {
        m_sound->setChecked(m_muted);
        return;
    }
    setMuted(!m_muted);
    emit onClickedMute(m_muted);
}

void PlayControlView::setMuted(bool mute) {
    logInfo(mute ? "[PlayControlView]: set mute" : "[PlayControlView]: unset mute");
    m_muted = mute;
    AppGlobals::mute = mute;
    m_sound->setChecked(mute);
    showVolume();
}

void PlayControlView::showVolume() {
    m_volumeBar->setValue(m_muted ? 0 : m_volume);
}

void PlayControlView::changeVolume(int volume) {
    if (m_blocked) {
        showVolume();
        return;
    }
    volume = qBound(0, volume, 100);
    if (volume == m_volume && !m_muted)
        return;
    m_volume = volume;
    AppGlobals::volume = m_volume;
    // Choosing a volume means wanting to hear it.
    if (m_muted) {
        setMuted(false);
        emit onClickedMute(false);
    }
    showVolume();
    emit onSendVolumeChange(m_volume);
}

void PlayControlView::onStepVolume(int delta) {
    logDebug("PlayControlView::onStepVolume");
    if (m_blocked)
        return;
    changeVolume(m_volume + delta);
}

void PlayControlView::onRefreshVolume() {
    logDebug("PlayControlView::onRefreshVolume");
    m_volume = qBound(0, AppGlobals::volume, 100);
    m_muted = AppGlobals::mute;
    m_sound->setChecked(m_muted);
    showVolume();
    emit onSendVolumeChange(m_volume);
    emit onClickedMute(m_muted);
}

// ---- Times and slider ----

void PlayControlView::onSetPlayData() {
    logDebug("PlayControlView::onSetPlayData");
    onloadTotalTime();
    showVolume();
    showSpeed(2);
}

void PlayControlView::onloadTotalTime() {
    logDebug("PlayControlView::onloadTotalTime");
    // A drive's slider and times cover the whole drive.
    m_totalTime->setText(timeText(PlaybackState::shownTotal()));
    m_slider->setMaximum(qMax(0, int(PlaybackState::shownTotal())));
}

void PlayControlView::onUpdateSlider() {
    logDebug("PlayControlView::onUpdateSlider");
    // While dragged, the slider shows the user's time, not the player's.
    if (m_slider->isSliderDown())
        return;
    const double current = PlaybackState::shownTime();
    const double total = PlaybackState::shownTotal();
    if (m_slider->maximum() != int(total))
        onloadTotalTime();
    m_playTime->setText(timeText(current));
    if (total >= current)
        m_slider->setValue(int(current));
}

void PlayControlView::onUpdateTimeText() {
    logDebug("PlayControlView::onUpdateTimeText");
    m_playTime->setText(timeText(m_slider->sliderPosition()));
}

void PlayControlView::onChange_sTimeLine() {
    logDebug("PlayControlView::onChange_sTimeLine");
    m_playTime->setText(timeText(m_slider->sliderPosition()));
}

void PlayControlView::onSliderPressed() {
    if (!isPlayingOrPaused())
        return;
    // The ticks would pull the handle back under the mouse.
    emit onSendStopTimer();
    onUpdateTimeText();
}

void PlayControlView::onSliderReleased() {
    if (!isPlayingOrPaused())
        return;
    emit onChangePlayPosition(m_slider->value());
}

void PlayControlView::onSeekTo(int ms) {
    logDebug("PlayControlView::onSeekTo");
    if (!isPlayingOrPaused())
        return;
    // The chart gives the recording's time; the slider shows the drive's while one plays.
    const int shown = PlaybackState::inDrive() ? int(PlaybackState::driveOffsetMs) + ms : ms;
    m_slider->setValue(shown);
    m_playTime->setText(timeText(shown));
    emit onChangePlayPosition(shown);
}

void PlayControlView::onSetIncidentMarks(const QVector<int>& driveMs) {
    m_slider->setMarks(driveMs);
}

void PlayControlView::onClearUi() {
    logDebug("PlayControlView::onClearUi");
    m_play->setPlaying(false);
    setUnit(true);
    showSpeed(2);
    m_slider->setRange(0, 0);
    m_playTime->setText(kClearedTime);
    m_totalTime->setText(kClearedTime);
}

void PlayControlView::onBlockEvent(bool block) {
    logDebug("PlayControlView::onBlockEvent");
    m_blocked = block;
}
