#pragma once

#include <QByteArray>

#include <cstdint>

// libvlc's types, declared here so that this header does not bring libvlc's to its readers.
struct libvlc_event_t;
struct libvlc_instance_t;
struct libvlc_media_player_t;

class QWidget;

// The libvlc objects behind the three channels: the instance every channel plays on, the
// three media players, and what each of them plays.
//
// libvlc 3.0 takes video filters per instance only, so a channel shown mirrored plays on a
// second instance made with the mirroring filter, made on the first use. Mirroring a channel
// means giving it a new player on the other instance; the old one is stopped and released in
// the background.
class ChannelPlayers {
public:
    static constexpr int kMaxChannels = 3;

    ChannelPlayers();
    ~ChannelPlayers();
    ChannelPlayers(const ChannelPlayers&) = delete;
    ChannelPlayers& operator=(const ChannelPlayers&) = delete;

    libvlc_media_player_t* player(int channel) const { return m_players[channel]; }
    // The array itself, for code that must always see the current players.
    libvlc_media_player_t* const* players() const { return m_players; }
    libvlc_instance_t* instance() const { return m_instance; }
    bool isMirrored(int channel) const { return m_mirrored[channel]; }

    // Gives the players the recording at path: one file per channel (split: the files of the
    // recording found beside path, packed into players 0, 1, ... in channel order) or one file
    // whose video tracks are the channels. Every player starts paused (startPaused) so that
    // the channels can be let go together. windows: the scene windows of the channels.
    // Returns the number of channels given a media, or -1 when the first file found could
    // not be given to player 0 (the caller's count stands then).
    int open(const char* path, bool split, int count, const uintptr_t* windows, bool startPaused);

    // Gives a channel's player the channel's media again, starting at startMs.
    bool reopen(int channel, int64_t startMs, bool startPaused, uintptr_t window);

    // A new player for a channel, on the mirroring instance or the plain one; the old player
    // is handed back to the caller, who must retire() it once it has let go of it. Null when
    // libvlc cannot make the player (the channel keeps its old one).
    libvlc_media_player_t* replace(int channel, bool mirrored, libvlc_media_player_t** old);
    // Stops and releases a player that no channel uses any more, in the background.
    static void retire(libvlc_media_player_t* player);

private:
    static libvlc_instance_t* newInstance(bool mirrored);
    libvlc_instance_t* instanceFor(bool mirrored);

    libvlc_instance_t* m_instance = nullptr;
    libvlc_instance_t* m_mirrorInstance = nullptr;
    libvlc_media_player_t* m_players[kMaxChannels] = {nullptr, nullptr, nullptr};
    bool m_mirrored[kMaxChannels] = {false, false, false};
    bool m_split = false;
    // The file of each channel of a split recording, and the one file of a single-file one.
    QByteArray m_channelFiles[kMaxChannels];
    QByteArray m_filePath;
    // Hidden windows a rear player of a single-file recording draws into until its track is
    // chosen (libvlc 3.0).
    QWidget* m_parking[kMaxChannels] = {nullptr, nullptr, nullptr};
};
