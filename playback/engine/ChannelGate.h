#pragma once

#include <QObject>

#include <atomic>

// libvlc's types, declared here so that this header does not bring libvlc's to its readers.
struct libvlc_event_t;
struct libvlc_instance_t;
struct libvlc_media_player_t;

class QTimer;

// Keeps a recording's players paused while they fill their buffers after a start or a seek,
// and lets them all run on one tick once every one of them is ready.
//
// libvlc anchors a player's clock when its buffering ends: pictures are shown at that moment
// plus their distance from the first one. Players that start, or seek, one after the other
// therefore show their pictures a frame or two apart for as long as they play, and no later
// reading of their times can tell (libvlc 3.0 reports a player's time in quarter-second
// steps). A player paused while it buffers anchors its clock at the moment it is let go
// instead; let go together, the channels show the same frame together.
//
// The gate learns that a player is ready from its buffering events: a fresh buffering (a
// level below 100 %) that reaches 100 %. A level of 100 % is not always the end of it: when
// the buffered length comes out exactly at the target, libvlc reports 100 % and finishes
// the buffering only with its next read (measured: a second 100 % a millisecond later). A
// player let go in between finishes buffering while it runs and anchors its clock only after
// its first picture is decoded, a few frames late. A channel therefore counts as ready after
// a second 100 %, or after a short quiet spell after the first. Events run on libvlc's threads
// and only record the level; the release itself happens on the gate's thread.
//
// Players that were stepped frame by frame buffer once more when they are let go (libvlc
// 3.0 leaves them in its frame-step buffering until they run), and each anchors its clock
// when that ends: a frame or two apart (measured). A fresh buffering just after a release is
// therefore gathered once more: the players are held again and let go together when every
// one that buffers has its buffer.
class ChannelGate : public QObject {
    Q_OBJECT
public:
    static constexpr int kMaxChannels = 3;
    // A channel that has not buffered after this long is let go with the others anyway: a
    // picture a little out of step is better than no picture.
    static constexpr int kHoldLimitMs = 2000;
    // No further buffering report this long after a full buffer: the buffering is over.
    static constexpr int kQuietMs = 50;
    // A buffering that starts this soon after a release is the players' own, gathered again.
    static constexpr int kRegatherMs = 100;

    // players: the engine's player array, read whenever the gate looks at or lets go the
    // players.
    explicit ChannelGate(libvlc_media_player_t* const* players, QObject* parent = nullptr);
    ~ChannelGate() override;

    // Follows the buffering of the player of a channel (before the player plays), and stops
    // following it (before the player is released).
    void watch(int channel, libvlc_media_player_t* player);
    void unwatch(int channel, libvlc_media_player_t* player);

    // The channels of mask (bit i for channel i) must buffer anew before they may run; the
    // others are not waited for.
    void arm(int mask);
    // Lets the first count players run together as soon as every armed channel has buffered:
    // at once when they all have.
    void release(int count);
    // Cancels a release that is still waiting; the players stay paused.
    void hold();

    bool releasePending() const { return m_pendingCount > 0; }
    // Whether every armed channel has buffered.
    bool ready() const;

signals:
    // The players were let go.
    void released();

private slots:
    void letGoWhenReady();
    // Holds the players just let go again, until those that buffer anew have buffered.
    void regather();

private:
    enum Phase { Idle = 0, Armed, Filling, Full, Ready };
    struct Channel {
        ChannelGate* gate = nullptr;
        std::atomic<int> phase{Idle};
        // When the buffer was last reported full (ms of the gate's clock).
        std::atomic<qint64> fullAt{0};
    };
    static void onBuffering(const libvlc_event_t* event, void* data);
    void letGo();

    libvlc_media_player_t* const* m_players;
    Channel m_channels[kMaxChannels];
    QTimer* m_limit;
    // Looks again, while a release waits, at channels whose buffer is full (their quiet spell)
    // and at players that failed or ended (they report nothing more).
    QTimer* m_quiet;
    int m_pendingCount = 0;
    // The last release (its time and player count); whether a buffering that starts now is
    // gathered (until kRegatherMs after a release that was not itself a gathering), and
    // whether the gathering was asked for; whether the waiting release is a gathering.
    std::atomic<qint64> m_letGoAt{0};
    int m_letGoCount = 0;
    std::atomic<bool> m_window{false};
    std::atomic<bool> m_regatherAsked{false};
    bool m_regathering = false;
};
