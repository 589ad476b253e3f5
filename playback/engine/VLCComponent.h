#pragma once

#include "ChannelPlayers.h"
#include "DriftEstimator.h"
#include "EngineState.h"
#include "PlayClock.h"

#include <QObject>
#include <QSize>

#include <atomic>
#include <mutex>

// libvlc's types, declared here so that this header does not bring libvlc's to its readers.
struct libvlc_event_t;
struct libvlc_instance_t;
struct libvlc_media_player_t;

class ChannelGate;
class PausedJoin;
class QTimer;
class QWidget;

// Drives libvlc: three media players (front, rear 1, rear 2) drawing into the scene widgets.
// Player 0 is the master: time, length, rate, volume and mute are its own.
//
// The channels run in step because they never start on their own: every start, seek and
// change of speed pauses them, lets each fill its buffer, and lets them all go on one tick
// (ChannelGate). Each player's clock is anchored at that moment, so they show the same frame
// together.
//
// libvlc calls the event handlers on its own threads. They only record state and emit
// signals; whatever libvlc work must follow an event runs in a queued slot on the GUI
// thread, because calling back into a player from its own callback can deadlock.
class VLCComponent : public QObject, public EngineState {
    Q_OBJECT
public:
    // The channels' video windows (the scenes), set by the coordinator.
    static QWidget* videoWidgets[kMaxChannels];

    explicit VLCComponent(QObject* parent = nullptr);
    ~VLCComponent() override;

    // Whether path is one of a recording's channel files (ChannelFiles), which the engine
    // opens together; else it plays one file, its video tracks being the channels.
    bool IsSplitChannelFile(const char* path);
    void SetFile(char* path, int count, double totalTime);
    void SetVideoWindow(int index, QWidget* widget);
    void SetResize(int index, QSize size);
    int Play();
    void Pause();
    void Resume();
    void Stop(int reason);
    void Seek(int ms);
    void Forward(int ms);
    void Rewind(int ms);
    void NextFrame();
    void SetSpeed(double rate);
    void SetVolume(int volume);
    void SetMute(bool mute);
    double GetCurrentPos();
    double GetTotalTime();
    double GetPosition();
    int GetChannelCount();
    int GetImage(int channel, const char* path);

    // Shows a channel's picture mirrored left to right, or as recorded again. Takes effect
    // at once while a recording plays or is paused; a new recording starts unmirrored.
    void SetFlip(int channel, bool mirrored);

    // Time of one channel's player in ms (for checks of the channels' step).
    double GetChannelTime(int channel);

    // The rear players' distance from the front player is checked this often while playing.
    static constexpr int kSyncIntervalMs = 170;

signals:
    void send_GoNext();
    void send_GoBack();
    void send_setLogo(bool);
    void send_setBlockEvent(bool);
    void send_playNow();
    void send_ApplyWindowToWidget();
    void send_ShowWidget(bool show);

    // From the event handlers to the GUI thread.
    void playingReached();
    void firstPictureShown();
    void stoppedReached(int reason);

public slots:
    void recv_ShowWidget(bool show);

private slots:
    void logPlaying();
    void applyFirstPicture();
    void finishStop(int reason);
    void syncRearChannels();
    void retryTrackSelection();
    void afterFlip();

private:
    static void onPlaying(const libvlc_event_t* event, void* self);
    static void onStopped(const libvlc_event_t* event, void* self);
    static void onDisplay(const libvlc_event_t* event, void* self);
    static void onEsAdded(const libvlc_event_t* event, void* self);
    static void onEsDeleted(const libvlc_event_t* event, void* self);
    static void onEvent(const libvlc_event_t* event, void* self);

    libvlc_media_player_t* player(int channel) const { return m_channels.player(channel); }
    int usedChannels() const;
    // The channels whose players will buffer after a seek (a player at its end will not).
    int seekableChannels() const;
    // The front player's handlers, on the player that is the front one now.
    void attachFrontHandlers(libvlc_media_player_t* player);
    void detachFrontHandlers(libvlc_media_player_t* player);
    // Puts a new player of the plain or the mirroring instance in a channel's place; the
    // old one is stopped and released in the background.
    libvlc_media_player_t* replacePlayer(int channel, bool mirrored);
    void chooseAudioOutput(libvlc_media_player_t* player);
    // Every used channel to ms together: paused, moved, let go on one tick once all have
    // buffered (unless the recording is paused, when they stay paused).
    void seekTogether(int64_t ms);
    // Whether the players run now or are about to (a start the gate still holds).
    bool playersRun() const;
    // Cancels a waiting release and pauses every used player.
    void holdPlayers();
    bool stoppingOrStopped() const;
    void resetDriftEstimates();

    ChannelPlayers m_channels;
    ChannelGate* m_gate;
    PausedJoin* m_join;
    double m_totalTime = 0;
    bool m_splitChannelFiles = false;
    QTimer* m_syncTimer;
    // Set when the channels may have left their step while paused (frame steps, a camera
    // joined): the next resume moves them all to the front camera's time first.
    bool m_realignOnResume = false;
    // A channel was given a new player: the old one's memory goes back to the system once
    // the new one runs.
    bool m_flipped = false;
    DriftEstimator m_drift[kMaxChannels];
    // The time of the picture on the screen (GetCurrentPos).
    PlayClock m_clock;
    float m_rate = 1.0f;
    std::atomic<bool> m_firstPictureSeen{false};
    std::atomic<bool> m_stopDelivered{false};
    std::mutex m_stopMutex;
    static constexpr int kTrackRetryMs = 50;
    static constexpr int kTrackRetries = 60;
    int m_trackPending = 0;
    int m_trackAttempts = 0;
};
