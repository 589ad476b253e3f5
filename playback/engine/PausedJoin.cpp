#include "PausedJoin.h"

#include <vlc/vlc.h>

#include "ChannelPlayers.h"
#include "StatusLog.h"

#include <QScreen>
#include <QTimer>
#include <QWidget>

#include <cstdlib>

namespace {

constexpr int kIntervalMs = 40;
// How long a joining player may take to show its picture at all.
constexpr int kTicks = 150;
// How long a player may take, once its output is up, before it counts as shown whether or
// not its picture was seen in the scene.
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

PausedJoin::PausedJoin(const ChannelPlayers& channels, QObject* parent)
    : QObject(parent), m_channels(channels), m_timer(new QTimer(this)) {
    m_timer->setInterval(kIntervalMs);
    connect(m_timer, &QTimer::timeout, this, &PausedJoin::check);
}

void PausedJoin::add(int channel, QWidget* scene, unsigned outputs) {
    libvlc_media_player_t* player = m_channels.player(channel);
    if (channel == 0 && m_muteAfter < 0) {
        m_muteAfter = libvlc_audio_get_mute(player) == 1 ? 1 : 0;
        libvlc_audio_set_mute(player, 1);
    }
    m_scenes[channel] = scene;
    m_sceneBefore[channel] = sceneImage(scene);
    m_outputs[channel] = outputs;
    m_outputTick[channel] = -1;
    m_joining |= 1 << channel;
    m_ticks = 0;
    m_timer->start();
}

void PausedJoin::cancel() {
    m_joining = 0;
    m_timer->stop();
    restoreFrontMute();
}

bool PausedJoin::takeFrontMute(bool mute) {
    if (m_muteAfter < 0)
        return false;
    m_muteAfter = mute ? 1 : 0;
    return true;
}

void PausedJoin::restoreFrontMute() {
    if (m_muteAfter < 0)
        return;
    libvlc_audio_set_mute(m_channels.player(0), m_muteAfter);
    m_muteAfter = -1;
}

void PausedJoin::check() {
    if (m_joining == 0) {
        cancel();
        return;
    }
    if (++m_ticks > kTicks) {
        logWarning("[PausedJoin]: players 0x%x showed no picture after a flip", m_joining);
        // They rest where they are: a player left running under a paused recording would
        // play on, and the front one into the next recording.
        for (int i = 0; i < 3; ++i) {
            if (m_joining & (1 << i))
                libvlc_media_player_set_pause(m_channels.player(i), 1);
        }
        cancel();
        emit allResting();
        return;
    }
    for (int i = 0; i < 3; ++i) {
        if (!(m_joining & (1 << i)))
            continue;
        libvlc_media_player_t* player = m_channels.player(i);
        if (libvlc_media_player_get_state(player) != libvlc_Playing ||
            libvlc_media_player_has_vout(player) < m_outputs[i])
            continue;
        // The old player's last picture stays in the scene until the new one draws.
        if (m_outputTick[i] < 0)
            m_outputTick[i] = m_ticks;
        if (m_ticks - m_outputTick[i] < kShowTicks &&
            !imagesDiffer(m_sceneBefore[i], sceneImage(m_scenes[i])))
            continue;
        libvlc_media_player_set_pause(player, 1);
        m_sceneBefore[i] = QImage();
        m_joining &= ~(1 << i);
        if (i == 0)
            restoreFrontMute();
    }
    if (m_joining == 0) {
        m_timer->stop();
        emit allResting();
    }
}
