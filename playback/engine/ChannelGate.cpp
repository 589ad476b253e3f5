#include "ChannelGate.h"

#include <vlc/vlc.h>

#include "StatusLog.h"

#include <QTimer>

#include <chrono>

namespace {

// One clock for the libvlc threads that note when a buffer was full and the gate that reads
// it.
qint64 nowMs() {
    return std::chrono::duration_cast<std::chrono::milliseconds>(
               std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

} // namespace

ChannelGate::ChannelGate(libvlc_media_player_t* const* players, QObject* parent)
    : QObject(parent), m_players(players), m_limit(new QTimer(this)), m_quiet(new QTimer(this)) {
    for (Channel& channel : m_channels)
        channel.gate = this;
    m_quiet->setInterval(kQuietMs / 5);
    connect(m_quiet, &QTimer::timeout, this, &ChannelGate::letGoWhenReady);
    m_limit->setSingleShot(true);
    m_limit->setInterval(kHoldLimitMs);
    connect(m_limit, &QTimer::timeout, this, [this] {
        if (m_pendingCount == 0)
            return;
        logWarning("[ChannelGate]: channels not ready after %d ms; playing on regardless",
                   kHoldLimitMs);
        letGo();
    });
}

ChannelGate::~ChannelGate() = default;

void ChannelGate::watch(int channel, libvlc_media_player_t* player) {
    if (channel < 0 || channel >= kMaxChannels || player == nullptr)
        return;
    libvlc_event_attach(libvlc_media_player_event_manager(player), libvlc_MediaPlayerBuffering,
                        onBuffering, &m_channels[channel]);
}

void ChannelGate::unwatch(int channel, libvlc_media_player_t* player) {
    if (channel < 0 || channel >= kMaxChannels || player == nullptr)
        return;
    // libvlc holds its event lock while a handler runs: once this returns, no handler of the
    // player is running any more.
    libvlc_event_detach(libvlc_media_player_event_manager(player), libvlc_MediaPlayerBuffering,
                        onBuffering, &m_channels[channel]);
    m_channels[channel].phase = Idle;
}

void ChannelGate::arm(int mask) {
    // A channel left out (one the next recording does not use, or a player at its end) is
    // not waited for, whatever an earlier arm left it at.
    for (int i = 0; i < kMaxChannels; ++i)
        m_channels[i].phase = (mask & (1 << i)) ? Armed : Idle;
}

bool ChannelGate::ready() const {
    const qint64 now = nowMs();
    for (int i = 0; i < kMaxChannels; ++i) {
        const Channel& channel = m_channels[i];
        const int phase = channel.phase;
        const bool waiting = phase == Armed || phase == Filling ||
                             (phase == Full && now - channel.fullAt < kQuietMs);
        if (!waiting)
            continue;
        // A player that failed to open its file, or ran out of it, will not buffer.
        const libvlc_state_t state =
            m_players[i] != nullptr ? libvlc_media_player_get_state(m_players[i]) : libvlc_Error;
        if (state != libvlc_Error && state != libvlc_Ended)
            return false;
    }
    return true;
}

void ChannelGate::release(int count) {
    m_pendingCount = qBound(0, count, int(kMaxChannels));
    if (m_pendingCount == 0)
        return;
    if (ready()) {
        letGo();
        return;
    }
    m_limit->start();
    m_quiet->start();
}

void ChannelGate::hold() {
    m_pendingCount = 0;
    m_window = false;
    m_regathering = false;
    m_limit->stop();
    m_quiet->stop();
}

void ChannelGate::letGoWhenReady() {
    if (m_pendingCount > 0 && ready())
        letGo();
}

void ChannelGate::letGo() {
    const int count = m_pendingCount;
    const bool regathering = m_regathering;
    hold();
    for (Channel& channel : m_channels)
        channel.phase = Idle;
    m_letGoCount = count;
    m_letGoAt = nowMs();
    m_regatherAsked = false;
    m_window = !regathering;
    // One tight loop: each player's clock starts when it takes its own un-pause, so the
    // less time between them the closer the channels run.
    for (int i = 0; i < count; ++i) {
        if (m_players[i] != nullptr)
            libvlc_media_player_set_pause(m_players[i], 0);
    }
    emit released();
}

void ChannelGate::regather() {
    if (m_pendingCount > 0 || m_letGoCount == 0)
        return; // held, or released anew, since
    for (int i = 0; i < m_letGoCount; ++i) {
        if (m_players[i] != nullptr)
            libvlc_media_player_set_pause(m_players[i], 1);
    }
    m_pendingCount = m_letGoCount;
    m_regathering = true;
    m_limit->start();
    m_quiet->start();
    logInfo("[ChannelGate]: the channels buffer again after their release; gathered again");
}

void ChannelGate::onBuffering(const libvlc_event_t* event, void* data) {
    auto* channel = static_cast<Channel*>(data);
    const float level = event->u.media_player_buffering.new_cache;
    // A level of 100 counts only after a lower one: a full buffer reported before the seek
    // that armed the channel says nothing about the buffer after it.
    // A lower level after a full one is a new buffering (a seek that followed the start):
    // the channel waits for that one too.
    if (level < 100.0f) {
        for (int from : {int(Armed), int(Full), int(Ready)}) {
            if (channel->phase.compare_exchange_strong(from, Filling))
                return;
        }
        ChannelGate* gate = channel->gate;
        int idle = Idle;
        if (gate->m_window && nowMs() - gate->m_letGoAt <= kRegatherMs &&
            channel->phase.compare_exchange_strong(idle, Filling) &&
            !gate->m_regatherAsked.exchange(true))
            QMetaObject::invokeMethod(gate, "regather", Qt::QueuedConnection);
        return;
    }
    if (channel->phase == Filling) {
        // The time goes first: the gate reads it as soon as it sees the phase.
        channel->fullAt = nowMs();
        int filling = Filling;
        if (channel->phase.compare_exchange_strong(filling, Full))
            return;
    }
    int full = Full;
    if (channel->phase.compare_exchange_strong(full, Ready))
        QMetaObject::invokeMethod(channel->gate, "letGoWhenReady", Qt::QueuedConnection);
}
