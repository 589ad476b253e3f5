#include "VlcCompat.h"

#include <chrono>
#include <condition_variable>
#include <cstdio>
#include <cstdlib>
#include <deque>
#include <functional>
#include <map>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#if LIBVLC_VERSION_MAJOR >= 4

int VlcCompat::attach(libvlc_media_player_t* player, libvlc_event_type_t type,
                      libvlc_callback_t callback, void* data) {
    return libvlc_event_attach(libvlc_media_player_event_manager(player), type, callback, data);
}
void VlcCompat::detach(libvlc_media_player_t* player, libvlc_event_type_t type,
                       libvlc_callback_t callback, void* data) {
    libvlc_event_detach(libvlc_media_player_event_manager(player), type, callback, data);
}
void VlcCompat::stopAsync(libvlc_media_player_t* player) {
    libvlc_media_player_stop_async(player);
}
void VlcCompat::forget(libvlc_media_player_t*) {}
void VlcCompat::waitForStops() {}
void VlcCompat::setTime(libvlc_media_player_t* player, int64_t ms, bool fast) {
    libvlc_media_player_set_time(player, ms, fast);
}
int VlcCompat::selectVideoTrack(libvlc_media_player_t* player, int index) {
    libvlc_media_tracklist_t* list =
        libvlc_media_player_get_tracklist(player, libvlc_track_video, false);
    if (list == nullptr)
        return -1;
    int result = -1;
    if (index >= 0 && static_cast<size_t>(index) < libvlc_media_tracklist_count(list)) {
        libvlc_media_player_select_track(player, libvlc_media_tracklist_at(list, index));
        result = 0;
    }
    libvlc_media_tracklist_delete(list);
    return result;
}
bool VlcCompat::hasAudioDevice(libvlc_media_player_t* player) {
    char* device = libvlc_audio_output_device_get(player);
    std::free(device);
    return device != nullptr;
}
void VlcCompat::resetAudioDevice(libvlc_media_player_t* player) {
    libvlc_audio_output_device_set(player, nullptr);
}

#else

namespace {

struct Handler {
    libvlc_callback_t callback;
    void* data;
};

// Handlers of the notifications this class raises itself, by player.
struct Registry {
    std::mutex mutex;
    std::map<libvlc_media_player_t*, std::vector<Handler>> stopping;
    std::map<libvlc_media_player_t*, std::vector<Handler>> stopped;
    std::map<libvlc_media_player_t*, int> endWatchers;
};

Registry& registry() {
    static Registry instance;
    return instance;
}

std::vector<Handler> handlersOf(std::map<libvlc_media_player_t*, std::vector<Handler>>& map,
                                libvlc_media_player_t* player) {
    std::lock_guard<std::mutex> lock(registry().mutex);
    const auto it = map.find(player);
    return it == map.end() ? std::vector<Handler>() : it->second;
}

void raise(libvlc_media_player_t* player, libvlc_event_type_t type,
           const std::vector<Handler>& handlers) {
    libvlc_event_t event{};
    event.type = static_cast<int>(type);
    event.p_obj = player;
    for (const Handler& handler : handlers)
        handler.callback(&event, handler.data);
}

void stopNow(libvlc_media_player_t* player) {
    raise(player, VlcCompat::kStopping, handlersOf(registry().stopping, player));
    const libvlc_state_t before = libvlc_media_player_get_state(player);
    // 3.0 sends Stopped from inside stop() unless the player was already stopped; 4.x
    // always reports the end of a stop, so make up for the missing event.
    libvlc_media_player_stop(player);
    if (before == libvlc_Stopped)
        raise(player, libvlc_MediaPlayerStopped, handlersOf(registry().stopped, player));
}

// Runs libvlc work that must not happen inside a libvlc callback or on the GUI thread, one
// job after another in the order asked for: a player is never stopped twice at once and
// stops finish in a predictable order.
class Worker {
public:
    static Worker& instance() {
        static Worker worker;
        return worker;
    }

    void post(std::function<void()> job) {
        std::lock_guard<std::mutex> lock(m_mutex);
        m_queue.push_back(std::move(job));
        ++m_pending;
        if (!m_thread.joinable())
            m_thread = std::thread([this] { run(); });
        m_wake.notify_all();
    }

    void waitIdle() {
        std::unique_lock<std::mutex> lock(m_mutex);
        m_idle.wait(lock, [this] { return m_pending == 0; });
    }

    ~Worker() {
        {
            std::lock_guard<std::mutex> lock(m_mutex);
            m_quit = true;
            m_wake.notify_all();
        }
        if (m_thread.joinable())
            m_thread.join();
    }

private:
    void run() {
        std::unique_lock<std::mutex> lock(m_mutex);
        for (;;) {
            m_wake.wait(lock, [this] { return m_quit || !m_queue.empty(); });
            if (m_queue.empty())
                return;
            std::function<void()> job = std::move(m_queue.front());
            m_queue.pop_front();
            lock.unlock();
            job();
            lock.lock();
            if (--m_pending == 0)
                m_idle.notify_all();
        }
    }

    std::mutex m_mutex;
    std::condition_variable m_wake;
    std::condition_variable m_idle;
    std::deque<std::function<void()>> m_queue;
    int m_pending = 0;
    bool m_quit = false;
    std::thread m_thread;
};

// The track a rear player of a single-file recording must show. libvlc 3.0 starts every
// player on the first video track and cannot be told another before it starts. Switching
// tracks makes it open a second video output while the first one still holds the player's
// window, so the second would pop up in a window of its own. The player therefore starts
// drawing into a hidden parking window; once that first output is up, the player is given
// its real window and switched, and the new output takes the real window.
struct TrackChoice {
    libvlc_media_player_t* player = nullptr;
    int index = -1;
    uintptr_t window = 0;
};

TrackChoice g_trackChoices[3];

// 3.0 selects tracks by their elementary-stream id: the id of the index-th real video track
// (the list also holds a "Disable" entry with id -1), or -1 when there is none yet.
int videoTrackId(libvlc_media_player_t* player, int index) {
    libvlc_track_description_t* list = libvlc_video_get_track_description(player);
    int seen = 0;
    int id = -1;
    for (libvlc_track_description_t* it = list; it != nullptr; it = it->p_next) {
        if (it->i_id >= 0 && seen++ == index) {
            id = it->i_id;
            break;
        }
    }
    libvlc_track_description_list_release(list);
    return id;
}

void chooseTrack(TrackChoice* choice, int attempt) {
    if (choice->index < 0)
        return;
    const int id = videoTrackId(choice->player, choice->index);
    if (id < 0) {
        // The media may announce later tracks after the first output is up.
        constexpr int kAttempts = 40;
        if (attempt < kAttempts) {
            std::this_thread::sleep_for(std::chrono::milliseconds(25));
            Worker::instance().post([choice, attempt] { chooseTrack(choice, attempt + 1); });
        }
        return;
    }
    if (libvlc_video_get_track(choice->player) != id) {
        VlcCompat::setWindow(choice->player, choice->window);
        libvlc_video_set_track(choice->player, id);
    }
}

// The parked output is up: the media has announced its tracks and the old output holds
// the parking window, so the switch can take the real one.
void onParkedOutput(const libvlc_event_t* event, void* data) {
    if (event->u.media_player_vout.new_count == 0)
        return;
    auto* choice = static_cast<TrackChoice*>(data);
    Worker::instance().post([choice] { chooseTrack(choice, 0); });
}

// 4.x stops a player whose media played to its end; 3.0 parks it in Ended.
void onEndReached(const libvlc_event_t* event, void*) {
    auto* player = static_cast<libvlc_media_player_t*>(event->p_obj);
    Worker::instance().post([player] { stopNow(player); });
}

} // namespace

int VlcCompat::attach(libvlc_media_player_t* player, libvlc_event_type_t type,
                      libvlc_callback_t callback, void* data) {
    Registry& reg = registry();
    if (type == kStopping) {
        std::lock_guard<std::mutex> lock(reg.mutex);
        reg.stopping[player].push_back({callback, data});
        return 0;
    }
    libvlc_event_manager_t* manager = libvlc_media_player_event_manager(player);
    if (type == libvlc_MediaPlayerStopped) {
        std::lock_guard<std::mutex> lock(reg.mutex);
        reg.stopped[player].push_back({callback, data});
        if (reg.endWatchers[player]++ == 0)
            libvlc_event_attach(manager, libvlc_MediaPlayerEndReached, onEndReached, nullptr);
    }
    return libvlc_event_attach(manager, type, callback, data);
}

void VlcCompat::detach(libvlc_media_player_t* player, libvlc_event_type_t type,
                       libvlc_callback_t callback, void* data) {
    Registry& reg = registry();
    const auto remove = [&](std::map<libvlc_media_player_t*, std::vector<Handler>>& map) {
        std::lock_guard<std::mutex> lock(reg.mutex);
        auto& list = map[player];
        for (auto it = list.begin(); it != list.end(); ++it) {
            if (it->callback == callback && it->data == data) {
                list.erase(it);
                return true;
            }
        }
        return false;
    };
    if (type == kStopping) {
        remove(reg.stopping);
        return;
    }
    libvlc_event_manager_t* manager = libvlc_media_player_event_manager(player);
    if (type == libvlc_MediaPlayerStopped && remove(reg.stopped)) {
        std::lock_guard<std::mutex> lock(reg.mutex);
        if (--reg.endWatchers[player] == 0)
            libvlc_event_detach(manager, libvlc_MediaPlayerEndReached, onEndReached, nullptr);
    }
    libvlc_event_detach(manager, type, callback, data);
}

void VlcCompat::stopAsync(libvlc_media_player_t* player) {
    Worker::instance().post([player] { stopNow(player); });
}

void VlcCompat::forget(libvlc_media_player_t* player) {
    Worker::instance().waitIdle();
    Registry& reg = registry();
    std::lock_guard<std::mutex> lock(reg.mutex);
    reg.stopping.erase(player);
    reg.stopped.erase(player);
    reg.endWatchers.erase(player);
    for (TrackChoice& choice : g_trackChoices) {
        if (choice.player == player)
            choice = TrackChoice{};
    }
}

void VlcCompat::waitForStops() {
    Worker::instance().waitIdle();
}

void VlcCompat::setTime(libvlc_media_player_t* player, int64_t ms, bool) {
    libvlc_media_player_set_time(player, ms);
}

int VlcCompat::selectVideoTrack(libvlc_media_player_t* player, int index) {
    const int id = videoTrackId(player, index);
    if (id < 0)
        return -1;
    if (libvlc_video_get_track(player) == id)
        return 0;
    return libvlc_video_set_track(player, id);
}

bool VlcCompat::hasAudioDevice(libvlc_media_player_t* player) {
    char* device = libvlc_audio_output_device_get(player);
    const bool set = device != nullptr && device[0] != '\0';
    std::free(device);
    return set;
}

void VlcCompat::resetAudioDevice(libvlc_media_player_t* player) {
    libvlc_audio_output_device_set(player, nullptr, nullptr);
}

#endif

bool VlcCompat::isTrackListBookkeeping(const libvlc_event_t* event) {
#if LIBVLC_VERSION_MAJOR >= 4
    (void)event;
    return false;
#else
    return event->u.media_player_es_changed.i_id < 0;
#endif
}

void VlcCompat::setSingleFileMedia(libvlc_instance_t* instance, libvlc_media_player_t** players,
                                   int count, const char* path, const uintptr_t* windows,
                                   const uintptr_t* parking, bool startPaused) {
#if LIBVLC_VERSION_MAJOR >= 4
    libvlc_media_t* media = libvlc_media_new_path(path);
    if (media != nullptr && startPaused)
        libvlc_media_add_option(media, ":start-paused");
    libvlc_media_player_set_media(players[0], media);
    if (media != nullptr)
        libvlc_media_add_option(media, "no-audio");
    for (int i = 1; i < count && i < 3; ++i)
        libvlc_media_player_set_media(players[i], media);
    if (media != nullptr)
        libvlc_media_release(media);
    (void)instance;
    (void)windows;
    (void)parking;
#else
    // Players that share one media disturb each other's track choice in 3.0: each player
    // gets its own media of the file.
    for (int i = 0; i < count && i < 3; ++i)
        setTrackMedia(instance, players[i], i, path, windows[i], parking[i], 0, startPaused);
#endif
}

bool VlcCompat::setMedia(libvlc_instance_t* instance, libvlc_media_player_t* player,
                         const char* path, bool sound, int64_t startMs, bool startPaused) {
#if LIBVLC_VERSION_MAJOR >= 4
    libvlc_media_t* media = libvlc_media_new_path(path);
    (void)instance;
#else
    libvlc_media_t* media = libvlc_media_new_path(instance, path);
#endif
    if (media == nullptr)
        return false;
    if (!sound)
        libvlc_media_add_option(media, "no-audio");
    if (startMs > 0) {
        // Written without the decimal point of the user's locale, which libvlc would misread.
        char start[48];
        std::snprintf(start, sizeof start, ":start-time=%lld.%03lld",
                      static_cast<long long>(startMs / 1000),
                      static_cast<long long>(startMs % 1000));
        libvlc_media_add_option(media, start);
    }
    if (startPaused)
        libvlc_media_add_option(media, ":start-paused");
    libvlc_media_player_set_media(player, media);
    libvlc_media_release(media);
    return true;
}

void VlcCompat::setTrackMedia(libvlc_instance_t* instance, libvlc_media_player_t* player, int index,
                              const char* path, uintptr_t window, uintptr_t parking,
                              int64_t startMs, bool startPaused) {
    if (!setMedia(instance, player, path, index == 0, startMs, startPaused))
        return;
#if LIBVLC_VERSION_MAJOR >= 4
    (void)window;
    (void)parking;
    // The track is chosen once the picture is up (selectVideoTrack).
#else
    if (index <= 0 || index >= 3)
        return;
    TrackChoice& choice = g_trackChoices[index];
    if (choice.player != player) {
        libvlc_event_attach(libvlc_media_player_event_manager(player), libvlc_MediaPlayerVout,
                            onParkedOutput, &choice);
    }
    choice = {player, index, window};
    if (parking != 0)
        setWindow(player, parking);
#endif
}

void VlcCompat::retire(libvlc_media_player_t* player) {
    if (player == nullptr)
        return;
#if LIBVLC_VERSION_MAJOR >= 4
    libvlc_media_player_stop_async(player);
    libvlc_media_player_release(player);
#else
    bool watchesEnd = false;
    TrackChoice* parked = nullptr;
    {
        Registry& reg = registry();
        std::lock_guard<std::mutex> lock(reg.mutex);
        reg.stopping.erase(player);
        reg.stopped.erase(player);
        const auto it = reg.endWatchers.find(player);
        watchesEnd = it != reg.endWatchers.end() && it->second > 0;
        reg.endWatchers.erase(player);
        for (TrackChoice& choice : g_trackChoices) {
            if (choice.player == player) {
                parked = &choice;
                choice = TrackChoice{};
            }
        }
    }
    // Detached here rather than on the worker: 3.0 holds the event lock while it calls a
    // handler, so once these return no handler of the player is running or can post a job
    // that would run after the release below.
    libvlc_event_manager_t* manager = libvlc_media_player_event_manager(player);
    if (watchesEnd)
        libvlc_event_detach(manager, libvlc_MediaPlayerEndReached, onEndReached, nullptr);
    if (parked != nullptr)
        libvlc_event_detach(manager, libvlc_MediaPlayerVout, onParkedOutput, parked);
    Worker::instance().post([player] {
        libvlc_media_player_stop(player);
        libvlc_media_player_release(player);
    });
#endif
}

void VlcCompat::forgetTrackChoices() {
#if LIBVLC_VERSION_MAJOR < 4
    for (TrackChoice& choice : g_trackChoices)
        choice.index = -1;
#endif
}

int VlcCompat::takeSnapshot(libvlc_media_player_t* player, const char* path, unsigned width,
                            unsigned height) {
#if LIBVLC_VERSION_MAJOR >= 4
    return libvlc_video_take_snapshot(player, 0, path, width, height);
#else
    // After a track switch the parked output stays listed first; the one showing is the last.
    const unsigned outputs = libvlc_media_player_has_vout(player);
    return libvlc_video_take_snapshot(player, outputs > 0 ? outputs - 1 : 0, path, width, height);
#endif
}

bool VlcCompat::tracksChosenWithMedia() {
    return LIBVLC_VERSION_MAJOR < 4;
}

void VlcCompat::setWindow(libvlc_media_player_t* player, uintptr_t window) {
#if defined(_WIN32)
    libvlc_media_player_set_hwnd(player, reinterpret_cast<void*>(window));
#else
    libvlc_media_player_set_xwindow(player, static_cast<uint32_t>(window));
#endif
}

uintptr_t VlcCompat::window(libvlc_media_player_t* player) {
#if defined(_WIN32)
    return reinterpret_cast<uintptr_t>(libvlc_media_player_get_hwnd(player));
#else
    return libvlc_media_player_get_xwindow(player);
#endif
}
