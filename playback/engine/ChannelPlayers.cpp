#include "ChannelPlayers.h"

#include <vlc/vlc.h>

#include "ChannelFiles.h"
#include "VlcCompat.h"

#include <QDir>
#include <QFileInfo>
#include <QStringList>
#include <QWidget>

namespace {

// libvlc's own messages are not wanted in the status log.
void discardLog(void*, int, const libvlc_log_t*, const char*, va_list) {}

} // namespace

libvlc_instance_t* ChannelPlayers::newInstance(bool mirrored) {
    // The one set of arguments every channel plays with; the mirroring instance adds the
    // filter.
    const char* const args[] = {
        "--no-keyboard-events", "--no-mouse-events", "--mouse-hide-timeout=-1",
        "--no-sub-autodetect-file", "--no-interact", "--no-stats", "--no-snapshot-preview",
        // Without it libvlc writes each snapshot's file path over the picture for a while.
        "--no-osd", "--no-snapshot-sequential", "--avcodec-threads=0", "--file-caching=1000",
        "--verbose=1", "--clock-jitter=5000", "--clock-synchro=0",
        // the mirroring instance only:
        "--video-filter=transform", "--transform-type=hflip"};
    constexpr int kAll = int(sizeof args / sizeof args[0]);
    constexpr int kMirrorOnly = 2;
    libvlc_instance_t* instance = libvlc_new(mirrored ? kAll : kAll - kMirrorOnly, args);
    if (instance != nullptr)
        libvlc_log_set(instance, discardLog, nullptr);
    return instance;
}

ChannelPlayers::ChannelPlayers() {
    m_instance = newInstance(false);
    if (m_instance != nullptr) {
        for (auto& player : m_players)
            player = libvlc_media_player_new(m_instance);
    }
    for (auto& parking : m_parking) {
        parking = new QWidget;
        parking->setAttribute(Qt::WA_NativeWindow);
        parking->resize(2, 2);
    }
}

ChannelPlayers::~ChannelPlayers() {
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
}

int ChannelPlayers::open(const char* path, bool split, int count, const uintptr_t* windows,
                         bool startPaused) {
    m_split = split;
    m_filePath = QByteArray(path);
    for (QByteArray& file : m_channelFiles)
        file.clear();
    if (!split) {
        uintptr_t parking[kMaxChannels] = {0, 0, 0};
        for (int i = 1; i < kMaxChannels; ++i)
            parking[i] = m_parking[i]->winId();
        VlcCompat::setSingleFileMedia(m_instance, m_players, count, path, windows, parking,
                                      startPaused);
        return count;
    }

    VlcCompat::forgetTrackChoices();
    // The recording's files beside path, front camera first, by the list's own rules.
    const QString given = QFileInfo(QString::fromUtf8(path)).absoluteFilePath();
    QStringList found;
    for (const QString& file : ChannelFiles::onDisk(given))
        if (!file.isEmpty())
            found << QDir::toNativeSeparators(file);
    int opened = -1;
    for (int i = 0; i < kMaxChannels && i < found.size(); ++i) {
        // libvlc takes paths as UTF-8 on every system.
        m_channelFiles[i] = found[i].toUtf8();
        if (VlcCompat::setMedia(m_instance, m_players[i], m_channelFiles[i].constData(), i == 0, 0,
                                startPaused) &&
            i == 0)
            opened = found.size();
    }
    return opened;
}

bool ChannelPlayers::reopen(int channel, int64_t startMs, bool startPaused, uintptr_t window) {
    libvlc_instance_t* instance = instanceFor(m_mirrored[channel]);
    libvlc_media_player_t* player = m_players[channel];
    VlcCompat::setWindow(player, window);
    if (m_split)
        return VlcCompat::setMedia(instance, player, m_channelFiles[channel].constData(),
                                   channel == 0, startMs, startPaused);
    VlcCompat::setTrackMedia(instance, player, channel, m_filePath.constData(), window,
                             m_parking[channel]->winId(), startMs, startPaused);
    return true;
}

libvlc_instance_t* ChannelPlayers::instanceFor(bool mirrored) {
    if (mirrored && m_mirrorInstance == nullptr)
        m_mirrorInstance = newInstance(true);
    return mirrored ? m_mirrorInstance : m_instance;
}

libvlc_media_player_t* ChannelPlayers::replace(int channel, bool mirrored,
                                               libvlc_media_player_t** old) {
    libvlc_instance_t* instance = instanceFor(mirrored);
    libvlc_media_player_t* player = instance ? libvlc_media_player_new(instance) : nullptr;
    if (player == nullptr)
        return nullptr;
    *old = m_players[channel];
    m_players[channel] = player;
    m_mirrored[channel] = mirrored;
    return player;
}

void ChannelPlayers::retire(libvlc_media_player_t* player) {
    VlcCompat::retire(player);
}
