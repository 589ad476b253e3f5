#pragma once

#include <QImage>
#include <QObject>

// libvlc's types, declared here so that this header does not bring libvlc's to its readers.
struct libvlc_event_t;
struct libvlc_instance_t;
struct libvlc_media_player_t;

class ChannelPlayers;
class QTimer;
class QWidget;

// Brings players that joined a paused recording (a camera mirrored while paused) to rest on
// their first picture.
//
// A player paused before its video output has drawn leaves the old player's last picture in
// the scene. A joining player therefore plays until its picture is in its scene (the scene
// on screen changes, or a moment after its output is up at the latest), then pauses there.
// A front player joining plays silently meanwhile; the user's mute comes back when it rests.
class PausedJoin : public QObject {
    Q_OBJECT
public:
    PausedJoin(const ChannelPlayers& channels, QObject* parent = nullptr);

    // The channel's player has just been started at the paused recording's time; scene is
    // the window it draws into. A rear track of a single-file recording shows its picture in
    // a second output, after the parked one: outputs tells how many outputs it has then.
    void add(int channel, QWidget* scene, unsigned outputs);
    // Every joining player is left as it is (the recording stops or plays on).
    void cancel();
    bool busy() const { return m_joining != 0; }
    bool joining(int channel) const { return (m_joining & (1 << channel)) != 0; }

    // The user's mute for the front camera. False when no front player is joining, so the
    // caller applies it itself.
    bool takeFrontMute(bool mute);

signals:
    // Every joining player rests on its picture.
    void allResting();

private:
    void check();
    void restoreFrontMute();

    const ChannelPlayers& m_channels;
    QTimer* m_timer;
    int m_joining = 0;
    int m_ticks = 0;
    // The scene as it was before the player joined, and the tick at which its output was up.
    QImage m_sceneBefore[3];
    QWidget* m_scenes[3] = {nullptr, nullptr, nullptr};
    unsigned m_outputs[3] = {1, 1, 1};
    int m_outputTick[3] = {-1, -1, -1};
    // The front player's mute while it plays silently to its paused picture; -1 when none.
    int m_muteAfter = -1;
};
