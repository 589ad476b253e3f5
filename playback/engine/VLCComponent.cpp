#include "VLCComponent.h"

#include <vlc/vlc.h>

#include "ChannelFiles.h"
#include "ChannelGate.h"
#include "FreedMemory.h"
#include "PausedJoin.h"
#include "StatusLog.h"
#include "VlcCompat.h"

#include <QTimer>
#include <QWidget>

#include <algorithm>
#include <cstdlib>
#include <cstring>

QWidget* VLCComponent::videoWidgets[VLCComponent::kMaxChannels] = {nullptr, nullptr, nullptr};

VLCComponent::VLCComponent(QObject* parent)
    : QObject(parent), m_gate(new ChannelGate(m_channels.players(), this)),
      m_join(new PausedJoin(m_channels, this)), m_syncTimer(new QTimer(this)) {
    if (player(0) != nullptr)
        attachFrontHandlers(player(0));
    for (int i = 0; i < kMaxChannels; ++i)
        m_gate->watch(i, player(i));
    connect(this, &VLCComponent::send_ShowWidget, this, &VLCComponent::recv_ShowWidget);
    connect(this, &VLCComponent::playingReached, this, &VLCComponent::logPlaying,
            Qt::QueuedConnection);
    connect(this, &VLCComponent::firstPictureShown, this, &VLCComponent::applyFirstPicture,
            Qt::QueuedConnection);
    connect(this, &VLCComponent::stoppedReached, this, &VLCComponent::finishStop,
            Qt::QueuedConnection);
    connect(m_gate, &ChannelGate::released, this, [this] { m_clock.run(m_rate); });
    connect(m_gate, &ChannelGate::released, this, &VLCComponent::afterFlip);
    connect(m_join, &PausedJoin::allResting, this, &VLCComponent::afterFlip);
    m_syncTimer->setInterval(kSyncIntervalMs);
    connect(m_syncTimer, &QTimer::timeout, this, &VLCComponent::syncRearChannels);
    playerState = Created;
}

void VLCComponent::attachFrontHandlers(libvlc_media_player_t* player) {
    VlcCompat::attach(player, libvlc_MediaPlayerPlaying, onPlaying, this);
    VlcCompat::attach(player, libvlc_MediaPlayerStopped, onStopped, this);
    VlcCompat::attach(player, libvlc_MediaPlayerVout, onDisplay, this);
    VlcCompat::attach(player, libvlc_MediaPlayerESAdded, onEsAdded, this);
    VlcCompat::attach(player, libvlc_MediaPlayerESDeleted, onEsDeleted, nullptr);
    VlcCompat::attach(player, VlcCompat::kStopping, onEvent, this);
    VlcCompat::attach(player, libvlc_MediaPlayerESSelected, onEvent, this);
}

void VLCComponent::detachFrontHandlers(libvlc_media_player_t* player) {
    VlcCompat::detach(player, libvlc_MediaPlayerPlaying, onPlaying, this);
    VlcCompat::detach(player, libvlc_MediaPlayerStopped, onStopped, this);
    VlcCompat::detach(player, libvlc_MediaPlayerVout, onDisplay, this);
    VlcCompat::detach(player, libvlc_MediaPlayerESAdded, onEsAdded, this);
    VlcCompat::detach(player, libvlc_MediaPlayerESDeleted, onEsDeleted, nullptr);
    VlcCompat::detach(player, VlcCompat::kStopping, onEvent, this);
    VlcCompat::detach(player, libvlc_MediaPlayerESSelected, onEvent, this);
}

VLCComponent::~VLCComponent() {
    m_join->cancel();
    if (player(0) != nullptr)
        detachFrontHandlers(player(0));
    for (int i = 0; i < kMaxChannels; ++i)
        m_gate->unwatch(i, player(i));
    // m_channels waits for the stops still running and releases the players.
    for (QWidget*& widget : videoWidgets)
        widget = nullptr;
}

int VLCComponent::usedChannels() const {
    return std::clamp(channelCount, 0, int(kMaxChannels));
}

int VLCComponent::seekableChannels() const {
    int mask = 0;
    for (int i = 0; i < usedChannels(); ++i) {
        const libvlc_state_t state = libvlc_media_player_get_state(player(i));
        if (state != libvlc_Ended && state != libvlc_Error && state != libvlc_Stopped &&
            state != libvlc_NothingSpecial)
            mask |= 1 << i;
    }
    return mask;
}

bool VLCComponent::IsSplitChannelFile(const char* path) {
    logDebug("VLCComponent::IsSplitChannelFile");
    // The file list groups a recording's files by the same rules: what it lists as one
    // recording of channel files plays as one here.
    m_splitChannelFiles = path != nullptr && ChannelFiles::channelOf(QString::fromUtf8(path)) >= 0;
    return m_splitChannelFiles;
}

void VLCComponent::SetFile(char* path, int count, double totalTime) {
    logDebug("VLCComponent::SetFile");
    if (player(0) == nullptr)
        return;
    // Every recording starts as it was recorded (and with the sound as the user left it).
    m_join->cancel();
    m_gate->hold();
    m_realignOnResume = false;
    for (int i = 0; i < kMaxChannels; ++i) {
        if (m_channels.isMirrored(i))
            replacePlayer(i, false);
    }
    m_totalTime = totalTime;
    channelCount = count;
    stopReason = StopGoNext;

    // A player left at the end of its last media (a rear channel the last recording did not
    // use, or one that ended on its own) still holds its video output and with it its window.
    // Stopping it lets go of both before the next media needs the window. It has nothing
    // left to play, so this does not wait.
    // (The front player is always stopped through Stop or its end; its Stopped event drives
    // what comes next, so it is left alone here.)
    for (int i = 1; i < kMaxChannels; ++i) {
        const libvlc_state_t state = libvlc_media_player_get_state(player(i));
        if (state == libvlc_Ended || state == libvlc_Error)
            libvlc_media_player_stop(player(i));
    }

    uintptr_t windows[kMaxChannels] = {0, 0, 0};
    for (int i = 0; i < kMaxChannels; ++i) {
        if (videoWidgets[i] != nullptr)
            windows[i] = videoWidgets[i]->winId();
    }
    if (VlcCompat::window(player(0)) == 0) {
        for (int i = 0; i < kMaxChannels; ++i)
            VlcCompat::setWindow(player(i), windows[i]);
    }
    // A rear player parked by the last single-file recording gets its window back.
    for (int i = 1; i < kMaxChannels; ++i) {
        if (windows[i] != 0 && VlcCompat::window(player(i)) != windows[i])
            VlcCompat::setWindow(player(i), windows[i]);
    }

    // Every player starts paused: Play lets them go together (see ChannelGate).
    const int opened = m_channels.open(path, m_splitChannelFiles, count, windows, true);
    if (m_splitChannelFiles && opened >= 0)
        channelCount = opened;
    playerState = FileSet;
    if (!m_splitChannelFiles)
        logDebug("VLCComponent::SetFileClear");
    logInfo("!!! call VLC SetFile");
}

void VLCComponent::SetVideoWindow(int index, QWidget* widget) {
    logDebug("VLCComponent::SetVideoWindow");
    logInfo("========== Set Video Window %d ==========", index);
    if (index >= 0 && index < kMaxChannels)
        videoWidgets[index] = widget;
}

void VLCComponent::SetResize(int index, QSize size) {
    logDebug("VLCComponent::SetResize");
    if (index >= 0 && index < kMaxChannels && videoWidgets[index] != nullptr)
        videoWidgets[index]->resize(size);
}

void VLCComponent::chooseAudioOutput(libvlc_media_player_t* player) {
    bool haveWaveOut = false;
    libvlc_audio_output_t* outputs = libvlc_audio_output_list_get(m_channels.instance());
    for (libvlc_audio_output_t* it = outputs; it != nullptr; it = it->p_next) {
        logInfo("audio output: %s", it->psz_name);
        if (std::strncmp(it->psz_name, "waveout", 7) == 0) {
            haveWaveOut = true;
            break;
        }
    }
    libvlc_audio_output_list_release(outputs);

    if (VlcCompat::hasAudioDevice(player))
        VlcCompat::resetAudioDevice(player);
    // "waveout" exists on Windows only; elsewhere libvlc's default output stays.
    if (haveWaveOut)
        libvlc_audio_output_set(player, "waveout");
}

int VLCComponent::Play() {
    logDebug("VLCComponent::Play");
    if (player(0) == nullptr)
        return -1;
    emit send_ShowWidget(false);
    chooseAudioOutput(player(0));

    m_rate = 1.0f;
    m_firstPictureSeen = false;
    m_stopDelivered = false;
    m_clock.anchor(0);
    const int used = usedChannels();
    m_gate->arm((1 << used) - 1);
    for (int i = 0; i < used; ++i) {
        libvlc_media_player_play(player(i));
        libvlc_media_player_set_rate(player(i), 1.0f);
    }
    m_gate->release(used);
    emit send_setBlockEvent(true);
    return 0;
}

void VLCComponent::Pause() {
    logDebug("VLCComponent::Pause");
    m_syncTimer->stop();
    m_gate->hold();
    m_clock.hold();
    // Not libvlc's toggle: players the gate still holds are paused already and stay so.
    for (int i = 0; i < usedChannels(); ++i)
        libvlc_media_player_set_pause(player(i), 1);
    playerState = Paused;
}

void VLCComponent::Resume() {
    logDebug("VLCComponent::Resume");
    playerState = Playing;
    resetDriftEstimates();
    if (m_realignOnResume || m_join->busy()) {
        m_join->cancel();
        m_realignOnResume = false;
        seekTogether(int64_t(std::max(0.0, GetCurrentPos())));
    } else {
        m_gate->release(usedChannels());
    }
    if (channelCount > 1)
        m_syncTimer->start();
}

void VLCComponent::Stop(int reason) {
    logDebug("VLCComponent::Stop");
    logInfo("Stop");
    m_syncTimer->stop();
    m_join->cancel();
    m_realignOnResume = false;
    m_clock.invalidate();
    if (playerState == Paused)
        Resume();
    m_gate->hold();
    m_syncTimer->stop();
    for (int i = 0; i < usedChannels(); ++i)
        libvlc_media_player_set_rate(player(i), 1.0f);
    playerState = StopRequested;
    emit send_setLogo(true);
    emit send_setBlockEvent(true);
    stopReason = reason;
    m_stopDelivered = false;
    // Rear players first: the front player's Stopped event then comes last, when every
    // channel has let go of its file. The front player is always stopped, even when the
    // channel count was cleared by the end of its streams, so that the stop is reported.
    for (int i = usedChannels() - 1; i >= 1; --i)
        VlcCompat::stopAsync(player(i));
    VlcCompat::stopAsync(player(0));
}

bool VLCComponent::playersRun() const {
    // Starting (the gate may have let them go before the first picture) or playing.
    return playerState == Playing || playerState == FileSet || m_gate->releasePending();
}

void VLCComponent::holdPlayers() {
    m_gate->hold();
    m_clock.hold();
    for (int i = 0; i < usedChannels(); ++i)
        libvlc_media_player_set_pause(player(i), 1);
}

void VLCComponent::seekTogether(int64_t ms) {
    resetDriftEstimates();
    // Players that run now (or are about to) run on after the move; paused ones stay paused
    // and go together when the recording is resumed.
    const bool run = playersRun();
    if (run)
        holdPlayers();
    else
        m_gate->hold();
    m_gate->arm(seekableChannels());
    m_clock.anchor(double(ms));
    // Precise seeks: a fast one lands each file on its own key frame.
    for (int i = 0; i < usedChannels(); ++i)
        VlcCompat::setTime(player(i), ms, false);
    if (run)
        m_gate->release(usedChannels());
}

void VLCComponent::Seek(int ms) {
    logDebug("VLCComponent::Seek");
    seekTogether(ms);
}

void VLCComponent::Forward(int ms) {
    logDebug("VLCComponent::Forward");
    const double target = double(libvlc_media_player_get_time(player(0))) + ms;
    if (ms < 0) {
        Resume();
        return;
    }
    if (m_totalTime - target <= 0) {
        // Held at the end, paused: the players must not run on into the end of the media,
        // which would move on to the next recording behind the user's back.
        Seek(int(m_totalTime));
        Pause();
        return;
    }
    Seek(int(target));
    if (playerState != Paused)
        Resume();
}

void VLCComponent::Rewind(int ms) {
    logDebug("VLCComponent::Rewind");
    if (ms < 0) {
        Resume();
        Stop(StopGoBack);
        return;
    }
    const double target = double(libvlc_media_player_get_time(player(0))) - ms;
    Seek(target < 0 ? 0 : int(target));
    if (playerState != Paused)
        Resume();
}

void VLCComponent::NextFrame() {
    logDebug("VLCComponent::NextFrame");
    for (int i = 0; i < usedChannels(); ++i)
        libvlc_media_player_next_frame(player(i));
    // libvlc's time follows the steps; a resume moves every channel to it.
    m_clock.invalidate();
    // The players step to the same frame, but their clocks come out of frame steps a frame
    // or two apart once they run again (measured): the resume moves them together first.
    m_realignOnResume = true;
}

void VLCComponent::SetSpeed(double rate) {
    logDebug("VLCComponent::SetSpeed");
    m_rate = float(rate);
    for (int i = 0; i < usedChannels(); ++i)
        libvlc_media_player_set_rate(player(i), m_rate);
    // One second back, so that nothing is missed at the new speed. Every channel moves, so
    // that they set off together at the new speed (a rate taken by each player at its own
    // moment would leave them apart).
    const double target = std::max(0.0, GetCurrentPos() - 1000);
    seekTogether(int64_t(target));
}

void VLCComponent::SetVolume(int volume) {
    logDebug("VLCComponent::SetVolume");
    libvlc_audio_set_volume(player(0), volume);
}

void VLCComponent::SetMute(bool mute) {
    logDebug("VLCComponent::SetMute");
    // Kept for when a new front player has drawn its paused picture.
    if (m_join->takeFrontMute(mute))
        return;
    libvlc_audio_set_mute(player(0), mute ? 1 : 0);
}

double VLCComponent::GetCurrentPos() {
    logDebug("VLCComponent::GetCurrentPos");
    return m_clock.time(double(libvlc_media_player_get_time(player(0))));
}

double VLCComponent::GetTotalTime() {
    logDebug("VLCComponent::GetTotalTime");
    return double(libvlc_media_player_get_length(player(0)));
}

double VLCComponent::GetPosition() {
    return double(libvlc_media_player_get_position(player(0)));
}

int VLCComponent::GetChannelCount() {
    return channelCount;
}

double VLCComponent::GetChannelTime(int channel) {
    if (channel < 0 || channel >= kMaxChannels)
        return -1;
    return double(libvlc_media_player_get_time(player(channel)));
}

int VLCComponent::GetImage(int channel, const char* path) {
    logDebug("VLCComponent::GetImage");
    if (channel < 0 || channel >= kMaxChannels)
        return -1;
    return VlcCompat::takeSnapshot(player(channel), path, 1920, 1080);
}

void VLCComponent::SetFlip(int channel, bool mirrored) {
    logDebug("VLCComponent::SetFlip");
    if (channel < 0 || channel >= kMaxChannels || m_channels.isMirrored(channel) == mirrored)
        return;
    // Only a channel that shows a recording now is changed; the next one starts unmirrored.
    if ((playerState != Playing && playerState != Paused) || channel >= channelCount)
        return;
    const bool running = playerState == Playing;
    const int used = usedChannels();
    // The time of the picture the others show (libvlc's own trails it).
    const int64_t start = int64_t(std::max(0.0, GetCurrentPos()));
    const uintptr_t window =
        videoWidgets[channel] != nullptr ? videoWidgets[channel]->winId() : uintptr_t(0);
    // The others wait at the front camera's time while the new player fills its buffer;
    // then all of them go on together.
    if (running)
        holdPlayers();
    // Playing, the new player is moved to the others' time by a seek as they are, not by a
    // start time: libvlc anchors a seek's clock with the frames it decodes before the target
    // and a start time's without them, which left the new camera up to a second of frames
    // off the others (measured: 0 to 200 ms).
    if (replacePlayer(channel, mirrored) == nullptr ||
        !m_channels.reopen(channel, running ? 0 : start, running, window)) {
        logWarning("[VLCComponent]: libvlc cannot mirror pictures");
        if (running)
            m_gate->release(used);
        return;
    }
    if (channel == 0)
        chooseAudioOutput(player(0));
    m_flipped = true;
    resetDriftEstimates();
    if (running) {
        m_gate->arm(seekableChannels() | (1 << channel));
        libvlc_media_player_play(player(channel));
        libvlc_media_player_set_rate(player(channel), m_rate);
        for (int i = 0; i < used; ++i)
            VlcCompat::setTime(player(i), start, false);
        m_gate->release(used);
        return;
    }
    // Paused: the new player plays until its picture is in the scene, then rests there. Its
    // clock is not the others' any more, so the resume moves every channel together.
    libvlc_media_player_play(player(channel));
    libvlc_media_player_set_rate(player(channel), m_rate);
    const unsigned outputs =
        (channel > 0 && !m_splitChannelFiles && VlcCompat::tracksChosenWithMedia()) ? 2 : 1;
    m_join->add(channel, videoWidgets[channel], outputs);
    m_realignOnResume = true;
}

libvlc_media_player_t* VLCComponent::replacePlayer(int channel, bool mirrored) {
    libvlc_media_player_t* old = nullptr;
    libvlc_media_player_t* fresh = m_channels.replace(channel, mirrored, &old);
    if (fresh == nullptr)
        return nullptr;
    m_gate->unwatch(channel, old);
    m_gate->watch(channel, fresh);
    if (channel == 0) {
        detachFrontHandlers(old);
        attachFrontHandlers(fresh);
        const int volume = libvlc_audio_get_volume(old);
        if (volume >= 0)
            libvlc_audio_set_volume(fresh, volume);
        libvlc_audio_set_mute(fresh, libvlc_audio_get_mute(old) == 1);
    }
    ChannelPlayers::retire(old);
    return fresh;
}

void VLCComponent::afterFlip() {
    if (!m_flipped)
        return;
    m_flipped = false;
    // The replaced player is released in the background; what it has freed by now goes
    // back to the system (the rest with the next flip or recording).
    platform::returnFreedMemory();
}

bool VLCComponent::stoppingOrStopped() const {
    return playerState == StopRequested || playerState == Stopping || playerState == Stopped;
}

// ---- Event handlers (libvlc threads) ----

void VLCComponent::onPlaying(const libvlc_event_t*, void* self) {
    emit static_cast<VLCComponent*>(self)->playingReached();
}

void VLCComponent::onDisplay(const libvlc_event_t* event, void* self) {
    auto* engine = static_cast<VLCComponent*>(self);
    logDebug("VLCComponent::onDisplay");
    logInfo("!@# display_cb %d", channelCount);
    // A video output going away (count 0) belongs to a stop, not to a first picture.
    // libvlc may report further outputs of the same start; the first one counts.
    if (event->u.media_player_vout.new_count > 0 && !engine->stoppingOrStopped() &&
        !engine->m_firstPictureSeen.exchange(true))
        emit engine->firstPictureShown();
}

void VLCComponent::onStopped(const libvlc_event_t*, void* self) {
    auto* engine = static_cast<VLCComponent*>(self);
    logDebug("VLCComponent::VLC_Stop_cb");
    // libvlc 3.0 may report the end of a media that played out as Stopped and again when the
    // player is then stopped: one stop moves on once.
    const int reason = stopReason;
    {
        // The state goes first: receivers of the signals below run on the GUI thread and
        // must find the player stopped. A Stopping raised at the same time must not
        // overwrite it.
        std::lock_guard<std::mutex> lock(engine->m_stopMutex);
        if (engine->m_stopDelivered.exchange(true))
            return;
        playerState = Stopped;
    }
    switch (reason) {
    case StopGoNext:
        emit engine->send_GoNext();
        emit engine->send_setBlockEvent(true);
        break;
    case StopShowLogo:
        emit engine->send_setLogo(true);
        emit engine->send_setBlockEvent(false);
        break;
    case StopPlain:
        emit engine->send_setBlockEvent(false);
        break;
    case StopFileRemoved:
        logInfo("Stop cause File Remove");
        break;
    case StopGoBack:
        emit engine->send_GoBack();
        emit engine->send_setBlockEvent(true);
        break;
    default:
        break;
    }
    emit engine->stoppedReached(reason);
    logInfo("********** event_occur libvlc_Stopped **********");
}

void VLCComponent::onEsAdded(const libvlc_event_t*, void*) {}

void VLCComponent::onEsDeleted(const libvlc_event_t* event, void*) {
    if (VlcCompat::isTrackListBookkeeping(event))
        return;
    logDebug("VLCComponent::VLC_ES_Deleted_cb");
    logInfo("********** event_occur libvlc_MediaPlayerESDeleted **********");
    if (esDeletePending > 0) {
        playerState = EsDeleting;
        --esDeletePending;
    }
    if (esDeletePending == 0) {
        channelCount = 0;
        playerState = Stopped;
    }
}

void VLCComponent::onEvent(const libvlc_event_t* event, void* self) {
    auto* engine = static_cast<VLCComponent*>(self);
    const auto type = static_cast<libvlc_event_type_t>(event->type);
    if (type == VlcCompat::kStopping) {
        {
            // The stop of a media that already reported its end changes nothing. (3.0
            // reports the end of a media that played out while the end is being turned
            // into a stop, so the two can meet.)
            std::lock_guard<std::mutex> lock(engine->m_stopMutex);
            if (engine->m_stopDelivered)
                return;
            playerState = Stopping;
        }
        logDebug("VLCComponent::libvlc_MediaPlayerStopping");
        logInfo("********** event_occur libvlc_MediaPlayerStopping **********");
        emit engine->send_ShowWidget(false);
        return;
    }
    switch (type) {
    case libvlc_MediaPlayerESSelected:
        logDebug("VLCComponent::libvlc_MediaPlayerESSelected");
        logInfo("********** event_occur libvlc_MediaPlayerESSelected **********");
        break;
    case libvlc_MediaPlayerTimeChanged:
        logDebug("VLCComponent::libvlc_MediaPlayerTimeChanged");
        logInfo("********** event_occur libvlc_MediaPlayerTimeChanged **********");
        if (playerState == DisplayComp)
            logInfo("player currentstate is DisplayComp");
        break;
    case libvlc_MediaPlayerPositionChanged:
        logDebug("VLCComponent::libvlc_MediaPlayerPositionChanged");
        logInfo("********** event_occur libvlc_MediaPlayerPositionChanged **********");
        break;
    case libvlc_MediaPlayerVout:
        logDebug("VLCComponent::libvlc_MediaPlayerVout");
        logInfo("********** event_occur libvlc_MediaPlayerPositionChanged **********");
        break;
    case libvlc_MediaPlayerSnapshotTaken:
        logDebug("VLCComponent::libvlc_MediaPlayerSnapshotTaken");
        logInfo("!@# libvlc_MediaPlayerSnapshotTaken");
        break;
    case libvlc_MediaPlayerBuffering:
        logDebug("VLCComponent::libvlc_MediaPlayerBuffering");
        logInfo("!@# libvlc_MediaPlayerBuffering");
        break;
    case libvlc_MediaPlayerEncounteredError:
        logDebug("VLCComponent::libvlc_MediaPlayerEncounteredError");
        logInfo("!@# libvlc_MediaPlayerEncounteredError");
        break;
    default:
        logInfo("********** event_occur %d **********", int(type));
        break;
    }
}

// ---- Follow-ups of events (GUI thread) ----

void VLCComponent::logPlaying() {
    // The rear players are not pulled to the front player's time here: they were let go
    // together with it, and a pull would only start that one player's clock anew, off by
    // whatever its own start-up takes.
    logInfo("!@# time3 = %lld", static_cast<long long>(libvlc_media_player_get_time(player(0))));
}

void VLCComponent::applyFirstPicture() {
    // The stop may have been asked for while this was queued.
    if (stoppingOrStopped())
        return;
    const libvlc_state_t state = libvlc_media_player_get_state(player(0));
    if (state == libvlc_Ended || state == libvlc_Stopped)
        return;
    m_trackPending = 0;
    for (int i = 0; i < usedChannels(); ++i) {
        if (!m_splitChannelFiles && !VlcCompat::tracksChosenWithMedia() &&
            VlcCompat::selectVideoTrack(player(i), i) != 0)
            m_trackPending |= 1 << i;
        libvlc_media_player_set_rate(player(i), 1.0f);
    }
    if (m_trackPending != 0) {
        m_trackAttempts = 0;
        QTimer::singleShot(kTrackRetryMs, this, &VLCComponent::retryTrackSelection);
    }
    m_rate = 1.0f;
    resetDriftEstimates();
    playerState = Playing;
    emit send_setLogo(false);
    emit send_playNow();
    emit send_ShowWidget(true);
    if (channelCount > 1)
        m_syncTimer->start();
}

void VLCComponent::retryTrackSelection() {
    // A rear player of a single-file recording learns its media's tracks a little after the
    // front player shows its first picture; until then it shows the first track.
    if (stoppingOrStopped() || m_trackPending == 0)
        return;
    for (int i = 0; i < channelCount && i < kMaxChannels; ++i) {
        if ((m_trackPending & (1 << i)) && VlcCompat::selectVideoTrack(player(i), i) == 0)
            m_trackPending &= ~(1 << i);
    }
    if (m_trackPending != 0 && ++m_trackAttempts < kTrackRetries)
        QTimer::singleShot(kTrackRetryMs, this, &VLCComponent::retryTrackSelection);
    else if (m_trackPending != 0)
        logWarning("[VLCComponent]: video tracks not selected for players 0x%x", m_trackPending);
}

void VLCComponent::finishStop(int reason) {
    VlcCompat::resetAudioDevice(player(0));
    if (reason == StopFileRemoved)
        libvlc_media_player_set_media(player(0), nullptr);
}

void VLCComponent::syncRearChannels() {
    if (playerState != Playing || channelCount < 2) {
        m_syncTimer->stop();
        return;
    }
    // While the gate holds the players their times say nothing about their step.
    if (m_gate->releasePending())
        return;
    const double front = double(libvlc_media_player_get_time(player(0)));
    if (front <= 0)
        return;
    for (int i = 1; i < usedChannels(); ++i) {
        if (libvlc_media_player_get_state(player(i)) != libvlc_Playing)
            continue;
        const double rear = double(libvlc_media_player_get_time(player(i)));
        const DriftEstimator::Decision decision = m_drift[i].add(front, rear);
        switch (decision.action) {
        case DriftEstimator::Action::Seek:
            logDebug("VLCComponent::syncRearChannels channel %d off by %.0f ms: seek", i,
                     decision.driftMs);
            // Every channel moves, so that all of them set off together again.
            seekTogether(int64_t(front));
            return;
        case DriftEstimator::Action::None:
            break;
        }
    }
}

void VLCComponent::resetDriftEstimates() {
    for (auto& estimator : m_drift)
        estimator.reset();
}

void VLCComponent::recv_ShowWidget(bool show) {
    logDebug("VLCComponent::recv_ShowWidget");
    const int used = std::min(channelCount, int(kMaxChannels));
    if (!show) {
        for (int i = 0; i < used; ++i) {
            if (videoWidgets[i] != nullptr)
                videoWidgets[i]->hide();
        }
        return;
    }
    for (int i = 1; i < used; ++i) {
        QWidget* widget = videoWidgets[i];
        if (widget != nullptr && widget->parentWidget() != nullptr)
            widget->setGeometry(0, 0, widget->parentWidget()->width(),
                                widget->parentWidget()->height());
    }
    for (int i = 0; i < used; ++i) {
        QWidget* widget = videoWidgets[i];
        if (widget == nullptr)
            continue;
        const QString parentName =
            widget->parentWidget() ? widget->parentWidget()->objectName() : QString();
        logInfo("!!! call vlc recv %s", parentName.toLocal8Bit().constData());
        widget->update();
        widget->show();
    }
    emit send_setBlockEvent(false);
}
