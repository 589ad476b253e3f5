#pragma once

// The engine is written against the libvlc 4 interface. Debian ships libvlc 3.0; this class
// maps the few 4.x calls and events the engine uses onto 3.0, and is a thin pass-through
// when built against libvlc 4.
//
// The differences that matter:
//  - 4.x stops asynchronously and reports Stopping, then Stopped; 3.0 stops synchronously.
//    Here a stop runs on a worker thread and the two notifications are raised in 4.x order.
//  - 4.x ends a media that played to its end with Stopping and Stopped; 3.0 only reports
//    "end reached" and leaves the player in its Ended state. Here the end is turned into a
//    stop as in 4.x.
//  - Event numbers differ between the versions (265 is "end reached" in 3.0 but "stopping"
//    in 4.x); everything goes by name, never by number.
//  - 3.0 deadlocks if an event callback calls back into the same player. Callers keep
//    their callbacks free of libvlc calls; the compatibility code does too.

#include <vlc/libvlc_version.h>
#include <vlc/vlc.h>

#include <cstdint>

class VlcCompat {
public:
#if LIBVLC_VERSION_MAJOR >= 4
    static constexpr libvlc_event_type_t kStopping = libvlc_MediaPlayerStopping;
#else
    // Raised by this class only; outside libvlc 3.0's range of player events.
    static constexpr libvlc_event_type_t kStopping = 0x1FF;
#endif

    // libvlc_event_attach / detach on a player's event manager; kStopping included.
    static int attach(libvlc_media_player_t* player, libvlc_event_type_t type,
                      libvlc_callback_t callback, void* data);
    static void detach(libvlc_media_player_t* player, libvlc_event_type_t type,
                       libvlc_callback_t callback, void* data);

    // Drops everything this class keeps about a player; called before the player is released
    // (libvlc forgets a released player's handlers too).
    static void forget(libvlc_media_player_t* player);

    // libvlc_media_player_stop_async. Returns at once; completion is the Stopped event.
    static void stopAsync(libvlc_media_player_t* player);

    // Blocks until every stop handed to stopAsync so far has finished. The engine calls this
    // before it releases its players.
    static void waitForStops();

    // libvlc_media_player_set_time(player, ms, fast); 3.0 has no fast seek and always seeks
    // precisely.
    static void setTime(libvlc_media_player_t* player, int64_t ms, bool fast);

    // The native window the player draws into: an HWND on Windows, an X11 window elsewhere.
    static void setWindow(libvlc_media_player_t* player, uintptr_t window);
    static uintptr_t window(libvlc_media_player_t* player);

    // Gives players 0 .. count-1 one recording that carries every channel as a video track
    // of one file; player i shows track i and only player 0 plays sound. On 4.x the players
    // share one media and select their track once the first picture is up. On 3.0 players
    // that share a media disturb each other's track choice, so each gets its own media of
    // the same file with its track chosen before it starts.
    // windows: the players' own windows; parking: hidden windows the rear players may draw
    // into until their track is chosen (see the implementation).
    // startPaused: the players pause before they buffer (see ChannelGate).
    static void setSingleFileMedia(libvlc_instance_t* instance, libvlc_media_player_t** players,
                                   int count, const char* path, const uintptr_t* windows,
                                   const uintptr_t* parking, bool startPaused);

    // Gives the player a media of the file: sound off for rear channels, playing from startMs
    // when above 0, and paused before it buffers when startPaused. False when libvlc cannot
    // make the media.
    static bool setMedia(libvlc_instance_t* instance, libvlc_media_player_t* player,
                         const char* path, bool sound, int64_t startMs, bool startPaused);

    // The same as setSingleFileMedia for one player that joins a single-file recording on its
    // own (index = its track), starting at startMs.
    static void setTrackMedia(libvlc_instance_t* instance, libvlc_media_player_t* player, int index,
                              const char* path, uintptr_t window, uintptr_t parking,
                              int64_t startMs, bool startPaused);

    // Stops a player that is no longer used and releases it, off the calling thread. Its
    // handlers are dropped first, so the stop reports nothing.
    static void retire(libvlc_media_player_t* player);

    // libvlc_video_take_snapshot of the video output the player shows.
    static int takeSnapshot(libvlc_media_player_t* player, const char* path, unsigned width,
                            unsigned height);

    // The next media are one file per channel: no track is to be chosen.
    static void forgetTrackChoices();

    // Whether the track of each player is chosen with the media (true on 3.0) rather than
    // with selectVideoTrack once the picture is up.
    static bool tracksChosenWithMedia();

    // Shows the index-th video track of the player's media (0 = first video track).
    static int selectVideoTrack(libvlc_media_player_t* player, int index);

    // 3.0 reports changes of its "Disable" pseudo track (id -1) as ES-added and ES-deleted
    // events when a media starts; they are not streams coming or going.
    static bool isTrackListBookkeeping(const libvlc_event_t* event);

    // Whether an audio output device was chosen for the player, and back to the default.
    static bool hasAudioDevice(libvlc_media_player_t* player);
    static void resetAudioDevice(libvlc_media_player_t* player);
};
