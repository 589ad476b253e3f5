#pragma once

#include "DriftEstimator.h"
#include <QObject>

#include <QByteArray>
#include <QImage>
#include <QSize>

#include <vlc/vlc.h>

#include <atomic>
#include <mutex>

class QTimer;
class QWidget;

// Drives libvlc: one instance, three media players (front, rear 1, rear 2) drawing into the
// scene widgets. Player 0 is the master: time, length, rate, volume and mute are its own,
// and the other players are pulled to its time.
//
// libvlc calls the event handlers on its own threads. They only record state and emit
// signals; whatever libvlc work must follow an event runs in a queued slot on the GUI
// thread, because calling back into a player from its own callback can deadlock.
class VLCComponent : public QObject {
    Q_OBJECT
public:
    enum PlayerState {
        Created = 1,
        FileSet = 2,
        DisplayComp = 4,
        Playing = 5,
        Paused = 6,
        StopRequested = 7,
        Stopping = 8,
        EsDeleting = 9,
        Stopped = 10,
    };
    enum StopReason {
        StopGoNext = 0,
        StopShowLogo = 2,
        StopPlain = 3,
        StopFileRemoved = 4,
        StopGoBack = 5,
    };
    static constexpr int kMaxChannels = 3;

    // Shared with the coordinator, the file list and the panels.
    static int channelCount;
    static int playerState;
    static int esDeletePending;
    static int stopReason;
    static QWidget* videoWidgets[kMaxChannels];

    explicit VLCComponent(QObject* parent = nullptr);
    ~VLCComponent() override;

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
    void pullRearChannelsToFront();
    void applyFirstPicture();
    void finishStop(int reason);
    void syncRearChannels();
    void retryTrackSelection();
    void settleReplacedPlayers();

private:
    static void onPlaying(const libvlc_event_t* event, void* self);
    static void onStopped(const libvlc_event_t* event, void* self);
    static void onDisplay(const libvlc_event_t* event, void* self);
    static void onEsAdded(const libvlc_event_t* event, void* self);
    static void onEsDeleted(const libvlc_event_t* event, void* self);
    static void onEvent(const libvlc_event_t* event, void* self);

    void SetSplitChannelFiles(const char* path);
    // The front player's handlers, on the player that is the front one now.
    void attachFrontHandlers(libvlc_media_player_t* player);
    void detachFrontHandlers(libvlc_media_player_t* player);
    // Puts a new player of the plain or the mirroring instance in a channel's place; the
    // old one is stopped and released in the background.
    libvlc_media_player_t* replacePlayer(int channel, bool mirrored);
    libvlc_instance_t* instanceFor(bool mirrored) const {
        return mirrored ? m_mirrorInstance : m_instance;
    }
    void chooseAudioOutput(libvlc_media_player_t* player);
    void restoreFrontMute();
    // No player is settling any more: timer off, the front camera's mute back.
    void finishSettling();
    bool stoppingOrStopped() const;
    // Whether a rear player is measurably off the front player's time.
    bool needsPull(int channel, libvlc_time_t front) const;
    void resetDriftEstimates();

    libvlc_instance_t* m_instance = nullptr;
    // libvlc 3.0 takes video filters per instance only, so mirrored channels play on an
    // instance of their own, made on the first flip.
    libvlc_instance_t* m_mirrorInstance = nullptr;
    bool m_mirrored[kMaxChannels] = {false, false, false};
    // The file each player plays when a recording is one file per channel.
    QByteArray m_channelFiles[kMaxChannels];
    libvlc_media_player_t* m_players[kMaxChannels] = {nullptr, nullptr, nullptr};
    double m_totalTime = 0;
    QByteArray m_filePath;
    bool m_splitChannelFiles = false;
    QTimer* m_syncTimer;
    // Players that joined a running recording and still have to reach its time and state.
    QTimer* m_settleTimer;
    int m_settling = 0;
    int m_settleTicks = 0;
    // The scene as it was before the flip, and the tick at which the new player's output was
    // up; the player has shown its picture once the scene changes.
    QImage m_sceneBefore[kMaxChannels];
    int m_outputTick[kMaxChannels] = {-1, -1, -1};
    // The front player's mute while a new front player plays silently to a paused picture.
    int m_muteAfterSettle = -1;
    // Hidden windows a rear player draws into until its track is chosen (libvlc 3.0).
    QWidget* m_parking[kMaxChannels] = {nullptr, nullptr, nullptr};
    DriftEstimator m_drift[kMaxChannels];
    float m_rate = 1.0f;
    std::atomic<bool> m_firstPictureSeen{false};
    std::atomic<bool> m_stopDelivered{false};
    std::mutex m_stopMutex;
    static constexpr int kTrackRetryMs = 50;
    static constexpr int kTrackRetries = 60;
    int m_trackPending = 0;
    int m_trackAttempts = 0;
};
