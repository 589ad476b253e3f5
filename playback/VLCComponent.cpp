#include "VLCComponent.h"

#include "DriftEstimator.h"
#include "FreedMemory.h"
#include "StatusLog.h"
#include "VlcCompat.h"

#include <QDir>
#include <QFileInfo>
#include <QScreen>
#include <QTimer>
#include <QWidget>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <cstring>

int VLCComponent::channelCount = 0;
int VLCComponent::playerState = 0;
int VLCComponent::esDeletePending = 0;
int VLCComponent::stopReason = 0;
QWidget* VLCComponent::videoWidgets[VLCComponent::kMaxChannels] = {nullptr, nullptr, nullptr};

namespace {

// libvlc's own messages are not wanted in the status log.
void discardLog(void*, int, const libvlc_log_t*, const char*, va_list) {}

// The one set of arguments every channel plays with; a mirroring instance adds the filter.
libvlc_instance_t* newInstance(bool mirrored) {
    const char* const args[] = {
        "--no-keyboard-events", "--no-mouse-events", "--mouse-hide-timeout=-1",
        "--no-sub-autodetect-file", "--no-interact", "--no-stats", "--no-snapshot-preview",
        "--no-snapshot-sequential", "--avcodec-threads=0", "--file-caching=1000", "--verbose=1",
        "--clock-jitter=5000", "--clock-synchro=0",
        // the mirroring instance only:
        "--video-filter=transform", "--transform-type=hflip"};
    constexpr int kAll = int(sizeof args / sizeof args[0]);
    constexpr int kMirrorOnly = 2;
    libvlc_instance_t* instance = libvlc_new(mirrored ? kAll : kAll - kMirrorOnly, args);
    if (instance != nullptr)
        libvlc_log_set(instance, discardLog, nullptr);
    return instance;
}

// How long a player that joins a running recording may take to show its picture.
constexpr int kSettleIntervalMs = 40;
constexpr int kSettleTicks = 150;
// How long a player joining a recording may take, once its output is up, before it counts
// as shown whether or not its picture was seen in the scene.
constexpr int kShowTicks = 25;

// A small copy of what a scene shows on screen (null where the screen cannot be read).
QImage sceneImage(QWidget* scene) {
    if (scene == nullptr || scene->screen() == nullptr || !scene->isVisible())
        return QImage();
    return scene->screen()
        ->grabWindow(scene->winId())
        .toImage()
        .scaled(32, 18, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
        .convertToFormat(QImage::Format_RGB32);
}

bool imagesDiffer(const QImage& a, const QImage& b) {
    if (a.isNull() || b.isNull() || a.size() != b.size())
        return true;
    long long difference = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QRgb p = a.pixel(x, y);
            const QRgb q = b.pixel(x, y);
            difference += std::abs(qRed(p) - qRed(q)) + std::abs(qGreen(p) - qGreen(q)) +
                          std::abs(qBlue(p) - qBlue(q));
        }
    }
    // More than a little noise: an average of 2 levels per colour.
    return difference > 6LL * a.width() * a.height();
}

} // namespace

VLCComponent::VLCComponent(QObject* parent)
    : QObject(parent), m_syncTimer(new QTimer(this)), m_settleTimer(new QTimer(this)) {
    m_instance = newInstance(false);
    if (m_instance != nullptr) {
        for (auto& player : m_players)
            player = libvlc_media_player_new(m_instance);
    }
    if (m_players[0] != nullptr)
        attachFrontHandlers(m_players[0]);
    connect(this, &VLCComponent::send_ShowWidget, this, &VLCComponent::recv_ShowWidget);
    connect(this, &VLCComponent::playingReached, this, &VLCComponent::pullRearChannelsToFront,
            Qt::QueuedConnection);
    connect(this, &VLCComponent::firstPictureShown, this, &VLCComponent::applyFirstPicture,
            Qt::QueuedConnection);
    connect(this, &VLCComponent::stoppedReached, this, &VLCComponent::finishStop,
            Qt::QueuedConnection);
    for (auto& parking : m_parking) {
        parking = new QWidget;
        parking->setAttribute(Qt::WA_NativeWindow);
        parking->resize(2, 2);
    }
    m_syncTimer->setInterval(kSyncIntervalMs);
    connect(m_syncTimer, &QTimer::timeout, this, &VLCComponent::syncRearChannels);
    m_settleTimer->setInterval(kSettleIntervalMs);
    connect(m_settleTimer, &QTimer::timeout, this, &VLCComponent::settleReplacedPlayers);
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
    if (m_players[0] != nullptr)
        detachFrontHandlers(m_players[0]);
    // A stop still running on the stop worker must not outlive its player.
    VlcCompat::waitForStops();
    for (auto& player : m_players) {
        if (player != nullptr) {
            VlcCompat::forget(player);
            libvlc_media_player_release(player);
        }
        player = nullptr;
    }
    if (m_instance != nullptr)
        libvlc_release(m_instance);
    if (m_mirrorInstance != nullptr)
        libvlc_release(m_mirrorInstance);
    for (QWidget* parking : m_parking)
        delete parking;
    for (QWidget*& widget : videoWidgets)
        widget = nullptr;
}

bool VLCComponent::IsSplitChannelFile(const char* path) {
    logDebug("VLCComponent::IsSplitChannelFile");
    const size_t length = path != nullptr ? std::strlen(path) : 0;
    m_splitChannelFiles = false;
    for (const char* suffix : {"_1.mp4", "_2.mp4", "_3.mp4"}) {
        if (length >= 6 && std::strcmp(path + length - 6, suffix) == 0)
            m_splitChannelFiles = true;
    }
    return m_splitChannelFiles;
}

void VLCComponent::SetFile(char* path, int count, double totalTime) {
    logDebug("VLCComponent::SetFile");
    if (m_players[0] == nullptr)
        return;
    // Every recording starts as it was recorded (and with the sound as the user left it).
    m_settling = 0;
    finishSettling();
    for (int i = 0; i < kMaxChannels; ++i) {
        if (m_mirrored[i])
            replacePlayer(i, false);
    }
    m_filePath = QByteArray(path);
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
        const libvlc_state_t state = libvlc_media_player_get_state(m_players[i]);
        if (state == libvlc_Ended || state == libvlc_Error)
            libvlc_media_player_stop(m_players[i]);
    }

    uintptr_t windows[kMaxChannels] = {0, 0, 0};
    for (int i = 0; i < kMaxChannels; ++i) {
        if (videoWidgets[i] != nullptr)
            windows[i] = videoWidgets[i]->winId();
    }
    if (VlcCompat::window(m_players[0]) == 0) {
        for (int i = 0; i < kMaxChannels; ++i)
            VlcCompat::setWindow(m_players[i], windows[i]);
    }
    // A rear player parked by the last single-file recording gets its window back.
    for (int i = 1; i < kMaxChannels; ++i) {
        if (windows[i] != 0 && VlcCompat::window(m_players[i]) != windows[i])
            VlcCompat::setWindow(m_players[i], windows[i]);
    }

    if (!m_splitChannelFiles) {
        uintptr_t parking[kMaxChannels] = {0, 0, 0};
        for (int i = 1; i < kMaxChannels; ++i)
            parking[i] = m_parking[i]->winId();
        VlcCompat::setSingleFileMedia(m_instance, m_players, count, path, windows, parking);
        for (QByteArray& file : m_channelFiles)
            file.clear();
        playerState = FileSet;
        logDebug("VLCComponent::SetFileClear");
    } else {
        SetSplitChannelFiles(path);
    }
    logInfo("!!! call VLC SetFile");
}

void VLCComponent::SetSplitChannelFiles(const char* path) {
    VlcCompat::forgetTrackChoices();
    const QFileInfo info(QDir::toNativeSeparators(QString::fromUtf8(path)));
    const QString directory = info.absolutePath();
    const QString baseName = info.completeBaseName();
    const QString stem =
        baseName.lastIndexOf('_') >= 0 ? baseName.left(baseName.size() - 2) : baseName;

    QStringList found;
    for (const char* suffix : {"_1.mp4", "_2.mp4", "_3.mp4"}) {
        const QString candidate =
            QDir::toNativeSeparators(directory + QDir::separator() + stem + QLatin1String(suffix));
        const QFileInfo candidateInfo(candidate);
        if (candidateInfo.exists() && candidateInfo.isFile())
            found << candidate;
    }
    for (int i = 0; i < kMaxChannels; ++i) {
        // libvlc takes paths as UTF-8 on every system.
        m_channelFiles[i] = i < found.size() ? found[i].toUtf8() : QByteArray();
        if (i >= found.size())
            continue;
        if (VlcCompat::setMedia(m_instance, m_players[i], m_channelFiles[i].constData(), i == 0,
                                0) &&
            i == 0)
            channelCount = found.size();
    }
    playerState = FileSet;
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
    libvlc_audio_output_t* outputs = libvlc_audio_output_list_get(m_instance);
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
    if (m_players[0] == nullptr)
        return -1;
    emit send_ShowWidget(false);
    chooseAudioOutput(m_players[0]);

    m_rate = 1.0f;
    m_firstPictureSeen = false;
    m_stopDelivered = false;
    for (int i = 0; i < channelCount && i < kMaxChannels; ++i) {
        libvlc_media_player_play(m_players[i]);
        libvlc_media_player_set_rate(m_players[i], 1.0f);
    }
    emit send_setBlockEvent(true);
    return 0;
}

void VLCComponent::Pause() {
    logDebug("VLCComponent::Pause");
    m_syncTimer->stop();
    for (int i = 0; i < channelCount && i < kMaxChannels; ++i)
        libvlc_media_player_pause(m_players[i]);
    playerState = Paused;
}

void VLCComponent::Resume() {
    logDebug("VLCComponent::Resume");
    for (int i = 0; i < channelCount && i < kMaxChannels; ++i)
        libvlc_media_player_set_pause(m_players[i], 0);
    playerState = Playing;
    resetDriftEstimates();
    if (channelCount > 1)
        m_syncTimer->start();
}

void VLCComponent::Stop(int reason) {
    logDebug("VLCComponent::Stop");
    logInfo("Stop");
    m_syncTimer->stop();
    if (playerState == Paused)
        Resume();
    m_syncTimer->stop();
    for (int i = 0; i < channelCount && i < kMaxChannels; ++i)
        libvlc_media_player_set_rate(m_players[i], 1.0f);
    playerState = StopRequested;
    emit send_setLogo(true);
    emit send_setBlockEvent(true);
    stopReason = reason;
    m_stopDelivered = false;
    // Rear players first: the front player's Stopped event then comes last, when every
    // channel has let go of its file. The front player is always stopped, even when the
    // channel count was cleared by the end of its streams, so that the stop is reported.
    for (int i = std::min(channelCount, int(kMaxChannels)) - 1; i >= 1; --i)
        VlcCompat::stopAsync(m_players[i]);
    VlcCompat::stopAsync(m_players[0]);
}

void VLCComponent::Seek(int ms) {
    logDebug("VLCComponent::Seek");
    resetDriftEstimates();
    for (int i = 0; i < channelCount && i < kMaxChannels; ++i)
        VlcCompat::setTime(m_players[i], ms, false);
}

void VLCComponent::Forward(int ms) {
    logDebug("VLCComponent::Forward");
    const double target = double(libvlc_media_player_get_time(m_players[0])) + ms;
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
    const double target = double(libvlc_media_player_get_time(m_players[0])) - ms;
    Seek(target < 0 ? 0 : int(target));
    if (playerState != Paused)
        Resume();
}

void VLCComponent::NextFrame() {
    logDebug("VLCComponent::NextFrame");
    for (int i = 0; i < channelCount && i < kMaxChannels; ++i)
        libvlc_media_player_next_frame(m_players[i]);
}

void VLCComponent::SetSpeed(double rate) {
    logDebug("VLCComponent::SetSpeed");
    const int used = std::min(channelCount, int(kMaxChannels));
    for (int i = 0; i < used; ++i)
        libvlc_media_player_set_pause(m_players[i], 1);
    m_rate = float(rate);
    resetDriftEstimates();
    for (int i = 0; i < used; ++i)
        libvlc_media_player_set_rate(m_players[i], m_rate);
    const double t = double(libvlc_media_player_get_time(m_players[0]));
    const double target = (t - 0.5 < 0) ? 0 : t - 1000;
    VlcCompat::setTime(m_players[0], int64_t(target), true);
    for (int i = 0; i < used; ++i)
        libvlc_media_player_set_pause(m_players[i], 0);
}

void VLCComponent::SetVolume(int volume) {
    logDebug("VLCComponent::SetVolume");
    libvlc_audio_set_volume(m_players[0], volume);
}

void VLCComponent::SetMute(bool mute) {
    logDebug("VLCComponent::SetMute");
    // Kept for when a new front player has drawn its paused picture.
    if (m_muteAfterSettle >= 0) {
        m_muteAfterSettle = mute ? 1 : 0;
        return;
    }
    libvlc_audio_set_mute(m_players[0], mute ? 1 : 0);
}

double VLCComponent::GetCurrentPos() {
    logDebug("VLCComponent::GetCurrentPos");
    return double(libvlc_media_player_get_time(m_players[0]));
}

double VLCComponent::GetTotalTime() {
    logDebug("VLCComponent::GetTotalTime");
    return double(libvlc_media_player_get_length(m_players[0]));
}

double VLCComponent::GetPosition() {
    return double(libvlc_media_player_get_position(m_players[0]));
}

int VLCComponent::GetChannelCount() {
    return channelCount;
}

double VLCComponent::GetChannelTime(int channel) {
    if (channel < 0 || channel >= kMaxChannels)
        return -1;
    return double(libvlc_media_player_get_time(m_players[channel]));
}

int VLCComponent::GetImage(int channel, const char* path) {
    logDebug("VLCComponent::GetImage");
    if (channel < 0 || channel >= kMaxChannels)
        return -1;
    return VlcCompat::takeSnapshot(m_players[channel], path, 1920, 1080);
}

void VLCComponent::SetFlip(int channel, bool mirrored) {
    logDebug("VLCComponent::SetFlip");
    if (channel < 0 || channel >= kMaxChannels || m_mirrored[channel] == mirrored)
        return;
    // Only a channel that shows a recording now is changed; the next one starts unmirrored.
    if ((playerState != Playing && playerState != Paused) || channel >= channelCount)
        return;
    if (mirrored && m_mirrorInstance == nullptr) {
        m_mirrorInstance = newInstance(true);
        if (m_mirrorInstance == nullptr) {
            logWarning("[VLCComponent]: libvlc cannot mirror pictures");
            return;
        }
    }
    const libvlc_time_t start =
        std::max<libvlc_time_t>(libvlc_media_player_get_time(m_players[0]), 0);
    const uintptr_t window =
        videoWidgets[channel] != nullptr ? videoWidgets[channel]->winId() : uintptr_t(0);
    libvlc_media_player_t* player = replacePlayer(channel, mirrored);
    if (player == nullptr)
        return;
    libvlc_instance_t* instance = instanceFor(mirrored);
    VlcCompat::setWindow(player, window);
    if (m_splitChannelFiles) {
        if (!VlcCompat::setMedia(instance, player, m_channelFiles[channel].constData(),
                                 channel == 0, start))
            return;
    } else {
        VlcCompat::setTrackMedia(instance, player, channel, m_filePath.constData(), window,
                                 m_parking[channel]->winId(), start);
    }
    if (channel == 0) {
        chooseAudioOutput(player);
        // A paused recording stays silent while the new front player draws its picture.
        if (playerState == Paused && m_muteAfterSettle < 0) {
            m_muteAfterSettle = libvlc_audio_get_mute(player) == 1 ? 1 : 0;
            libvlc_audio_set_mute(player, 1);
        }
    }
    libvlc_media_player_play(player);
    libvlc_media_player_set_rate(player, m_rate);
    resetDriftEstimates();
    m_sceneBefore[channel] = sceneImage(videoWidgets[channel]);
    m_outputTick[channel] = -1;
    m_settling |= 1 << channel;
    m_settleTicks = 0;
    m_settleTimer->start();
}

libvlc_media_player_t* VLCComponent::replacePlayer(int channel, bool mirrored) {
    libvlc_instance_t* instance = instanceFor(mirrored);
    libvlc_media_player_t* player = instance ? libvlc_media_player_new(instance) : nullptr;
    if (player == nullptr)
        return nullptr;
    libvlc_media_player_t* old = m_players[channel];
    if (channel == 0) {
        detachFrontHandlers(old);
        attachFrontHandlers(player);
        const int volume = libvlc_audio_get_volume(old);
        if (volume >= 0)
            libvlc_audio_set_volume(player, volume);
        libvlc_audio_set_mute(player, libvlc_audio_get_mute(old) == 1);
    }
    VlcCompat::retire(old);
    m_players[channel] = player;
    m_mirrored[channel] = mirrored;
    return player;
}

void VLCComponent::settleReplacedPlayers() {
    const bool over = m_settling == 0 || stoppingOrStopped();
    if (!over && ++m_settleTicks > kSettleTicks)
        logWarning("[VLCComponent]: players 0x%x showed no picture after a flip", m_settling);
    if (over || m_settleTicks > kSettleTicks) {
        m_settling = 0;
        finishSettling();
        return;
    }
    bool realign = false;
    for (int i = 0; i < kMaxChannels; ++i) {
        if (!(m_settling & (1 << i)))
            continue;
        libvlc_media_player_t* player = m_players[i];
        // A rear track of a single-file recording shows its picture in a second output,
        // after the parked one.
        const unsigned outputs =
            (i > 0 && !m_splitChannelFiles && VlcCompat::tracksChosenWithMedia()) ? 2 : 1;
        if (libvlc_media_player_get_state(player) != libvlc_Playing ||
            libvlc_media_player_has_vout(player) < outputs)
            continue;
        // The old player's last picture stays in the scene until the new one draws: the new
        // player counts as shown once the scene changes (or after a moment at most).
        if (m_outputTick[i] < 0)
            m_outputTick[i] = m_settleTicks;
        if (m_settleTicks - m_outputTick[i] < kShowTicks &&
            !imagesDiffer(m_sceneBefore[i], sceneImage(videoWidgets[i])))
            continue;
        if (playerState == Paused) {
            // Paused before its output has drawn, it would leave the old picture there.
            libvlc_media_player_set_pause(player, 1);
            // And it stays where it started, next to the paused front camera.
        } else {
            realign = true;
        }
        m_sceneBefore[i] = QImage();
        m_settling &= ~(1 << i);
        if (i == 0)
            restoreFrontMute();
    }
    // A player started on its own is never quite where the others are (it stayed 300-570 ms
    // behind when only it was pulled). Moving every channel to the same time at once puts
    // them back in step, as any seek does.
    if (realign && m_settling == 0) {
        const libvlc_time_t front = libvlc_media_player_get_time(m_players[0]);
        if (front >= 0)
            Seek(int(front));
    }
    if (m_settling == 0)
        finishSettling();
}

void VLCComponent::restoreFrontMute() {
    if (m_muteAfterSettle < 0)
        return;
    libvlc_audio_set_mute(m_players[0], m_muteAfterSettle);
    m_muteAfterSettle = -1;
}

void VLCComponent::finishSettling() {
    m_settleTimer->stop();
    restoreFrontMute();
    // The replaced players are gone by now; their decoders' memory goes back to the system.
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

void VLCComponent::pullRearChannelsToFront() {
    const libvlc_time_t front = libvlc_media_player_get_time(m_players[0]);
    logInfo("!@# time3 = %lld", static_cast<long long>(front));
    for (int i = 1; i < channelCount && i < kMaxChannels; ++i) {
        if (needsPull(i, front))
            VlcCompat::setTime(m_players[i], front, false);
    }
}

bool VLCComponent::needsPull(int channel, libvlc_time_t front) const {
    const libvlc_time_t rear = libvlc_media_player_get_time(m_players[channel]);
    return std::llabs(static_cast<long long>(rear - front)) >= VlcCompat::kTimeResolutionMs;
}

void VLCComponent::applyFirstPicture() {
    // The stop may have been asked for while this was queued.
    if (stoppingOrStopped())
        return;
    const libvlc_state_t state = libvlc_media_player_get_state(m_players[0]);
    if (state == libvlc_Ended || state == libvlc_Stopped)
        return;
    const libvlc_time_t front = libvlc_media_player_get_time(m_players[0]);
    m_trackPending = 0;
    for (int i = 0; i < channelCount && i < kMaxChannels; ++i) {
        if (!m_splitChannelFiles && !VlcCompat::tracksChosenWithMedia() &&
            VlcCompat::selectVideoTrack(m_players[i], i) != 0)
            m_trackPending |= 1 << i;
        libvlc_media_player_set_rate(m_players[i], 1.0f);
        if (i > 0 && needsPull(i, front))
            VlcCompat::setTime(m_players[i], front, true);
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
        if ((m_trackPending & (1 << i)) && VlcCompat::selectVideoTrack(m_players[i], i) == 0)
            m_trackPending &= ~(1 << i);
    }
    if (m_trackPending != 0 && ++m_trackAttempts < kTrackRetries)
        QTimer::singleShot(kTrackRetryMs, this, &VLCComponent::retryTrackSelection);
    else if (m_trackPending != 0)
        logWarning("[VLCComponent]: video tracks not selected for players 0x%x", m_trackPending);
}

void VLCComponent::finishStop(int reason) {
    VlcCompat::resetAudioDevice(m_players[0]);
    if (reason == StopFileRemoved)
        libvlc_media_player_set_media(m_players[0], nullptr);
}

void VLCComponent::syncRearChannels() {
    if (playerState != Playing || channelCount < 2) {
        m_syncTimer->stop();
        return;
    }
    const double front = double(libvlc_media_player_get_time(m_players[0]));
    if (front <= 0)
        return;
    for (int i = 1; i < channelCount && i < kMaxChannels; ++i) {
        // A player that joined after a flip is left alone until it shows its picture.
        if (libvlc_media_player_get_state(m_players[i]) != libvlc_Playing ||
            (m_settling & (1 << i)))
            continue;
        const double rear = double(libvlc_media_player_get_time(m_players[i]));
        const DriftEstimator::Decision decision = m_drift[i].add(front, rear);
        switch (decision.action) {
        case DriftEstimator::Action::Seek:
            logDebug("VLCComponent::syncRearChannels channel %d off by %.0f ms: seek", i,
                     decision.driftMs);
            libvlc_media_player_set_rate(m_players[i], m_rate);
            VlcCompat::setTime(m_players[i], int64_t(front), false);
            break;
        case DriftEstimator::Action::Nudge:
            logDebug("VLCComponent::syncRearChannels channel %d off by %.0f ms: rate x%.3f", i,
                     decision.driftMs, decision.rateScale);
            libvlc_media_player_set_rate(m_players[i], float(m_rate * decision.rateScale));
            break;
        case DriftEstimator::Action::None:
            if (libvlc_media_player_get_rate(m_players[i]) != m_rate)
                libvlc_media_player_set_rate(m_players[i], m_rate);
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
