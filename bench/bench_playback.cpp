// Playback figures on real libvlc with a three-channel 1080p recording whose every frame
// carries its number as a bar code across the top:
//   1. time from checkFileReady() to the first picture (onSetComplete), split into the
//      coordinator's own wait (its ready ticks) and the opening itself, against a plain
//      libvlc player opening the front file;
//   2. the offset between the channels as the user sees them: every 250 ms the three scenes
//      are grabbed from the screen and their frame numbers read, for 20 s, through the
//      coordinator and for three plain libvlc players started together;
//   3. the processor time both use for that playback;
//   4. mirroring a rear camera while it plays: time until the mirrored picture is on screen,
//      its offset from the front camera a second later, and the memory the flips leave
//      behind against the same time of playing without flips.
// Run under a virtual X server: xvfb-run -a -s "-screen 0 1600x900x24" ./bench_playback
#include "BenchMedia.h"
#include "PlayerInterface.h"
#include "VLCComponent.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QScreen>
#include <QTimer>
#include <QWidget>

#include <vlc/vlc.h>

#include <sys/resource.h>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

constexpr int kFps = 30;
constexpr int kBits = 16;
constexpr int kSampleMs = 250;
constexpr int kPlayMs = 20000;
constexpr int kSettleMs = 1000;

QString g_media;

QString channelFile(int channel) {
    return g_media + QString("/20240701_090000_INF_%1.mp4").arg(channel + 1);
}

// Three scenes side by side, each a container with a native video widget inside, as in
// the main window.
struct Scenes {
    QWidget window;
    QWidget* box[3];
    QWidget* video[3];
    Scenes() {
        window.setGeometry(0, 0, 1470, 280);
        for (int i = 0; i < 3; ++i) {
            box[i] = new QWidget(&window);
            box[i]->setObjectName(QString("scene%1").arg(i));
            box[i]->setGeometry(i * 495, 0, 480, 270);
            video[i] = new QWidget(box[i]);
            video[i]->setGeometry(0, 0, 480, 270);
            video[i]->setAttribute(Qt::WA_NativeWindow);
        }
        window.show();
    }
    // The frame number each scene shows now, read left to right (or right to left, for
    // mirrored pictures).
    std::vector<int> frames(bool mirrored = false) {
        const QImage image = QGuiApplication::primaryScreen()->grabWindow(window.winId()).toImage();
        std::vector<int> result;
        for (QWidget* scene : box) {
            const QRect r = scene->geometry();
            int value = 0;
            for (int bit = 0; bit < kBits; ++bit) {
                const int slot = mirrored ? kBits - 1 - bit : bit;
                const int x = r.x() + int((slot + 0.5) * r.width() / kBits);
                const int y = r.y() + r.height() * 24 / 1080;
                if (qGray(image.pixel(x, y)) > 128)
                    value |= 1 << bit;
            }
            result.push_back(value);
        }
        return result;
    }
};

void wait(int ms) {
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < ms)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
}

double cpuSeconds() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_utime.tv_sec + usage.ru_stime.tv_sec +
           (usage.ru_utime.tv_usec + usage.ru_stime.tv_usec) / 1e6;
}

long residentKb() {
    QFile status("/proc/self/status");
    if (!status.open(QIODevice::ReadOnly))
        return -1;
    for (const QByteArray& line : status.readAll().split('\n')) {
        if (line.startsWith("VmRSS:"))
            return line.mid(6).trimmed().split(' ').value(0).toLong();
    }
    return -1;
}

// A frame number is believable when it is within two seconds of the front camera's.
bool near(int frame, int front) {
    return front > 0 && std::abs(frame - front) <= 2 * kFps;
}

double median(std::vector<double> values) {
    if (values.empty())
        return -1;
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

struct Offsets {
    std::vector<double> ms; // |rear - front| of every readable sample after the first second
    int unreadable = 0;
    double cpuPercent = 0;
};

// Samples the scenes while playback runs.
Offsets sampleOffsets(Scenes& scenes, int channels) {
    Offsets offsets;
    const double cpuStart = cpuSeconds();
    QElapsedTimer clock;
    clock.start();
    while (clock.elapsed() < kPlayMs) {
        wait(kSampleMs);
        if (clock.elapsed() < kSettleMs)
            continue;
        const std::vector<int> frames = scenes.frames();
        for (int i = 1; i < channels; ++i) {
            const int diff = frames[size_t(i)] - frames[0];
            // A bar code torn by a repaint reads as nonsense; frames are at most seconds apart.
            if (frames[0] <= 0 || std::abs(diff) > 10 * kFps) {
                ++offsets.unreadable;
                continue;
            }
            offsets.ms.push_back(std::abs(diff) * 1000.0 / kFps);
        }
    }
    offsets.cpuPercent = 100.0 * (cpuSeconds() - cpuStart) / (clock.elapsed() / 1000.0);
    return offsets;
}

void printOffsets(const char* who, const Offsets& offsets) {
    const double worst =
        offsets.ms.empty() ? -1 : *std::max_element(offsets.ms.begin(), offsets.ms.end());
    std::printf(
        "  %-28s median %6.1f ms  max %6.1f ms  (%zu samples, %d unreadable)  CPU %5.1f %%\n", who,
        median(offsets.ms), worst, offsets.ms.size(), offsets.unreadable, offsets.cpuPercent);
    // How many samples were 0, 1, 2 and 3 or more frames apart.
    int apart[4] = {0, 0, 0, 0};
    for (double ms : offsets.ms)
        ++apart[std::min(3, int(ms * kFps / 1000.0 + 0.5))];
    std::printf("  %-28s frames apart: 0 in %d, 1 in %d, 2 in %d, 3 or more in %d samples\n", "",
                apart[0], apart[1], apart[2], apart[3]);
}

// ---- The coordinator ----

struct CoordinatorRun {
    double toFirstPictureMs = -1;
    double readyWaitMs = -1;
};

CoordinatorRun openThroughCoordinator(PlayerInterface& player) {
    CoordinatorRun run;
    QElapsedTimer clock;
    bool shown = false;
    auto zoom = QObject::connect(&player, &PlayerInterface::onSendZoomReset,
                                 [&] { run.readyWaitMs = clock.nsecsElapsed() / 1e6; });
    auto complete = QObject::connect(&player, &PlayerInterface::onSendSetPlayButton, [&] {
        run.toFirstPictureMs = clock.nsecsElapsed() / 1e6;
        shown = true;
    });
    PlayerInterface::currentFile = channelFile(0);
    clock.start();
    player.checkFileReady();
    while (!shown && clock.elapsed() < 20000)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 1);
    QObject::disconnect(zoom);
    QObject::disconnect(complete);
    return run;
}

void stopCoordinator(PlayerInterface& player) {
    player.onClickStop(false);
    while (VLCComponent::playerState != VLCComponent::Stopped)
        wait(20);
    wait(200);
}

// ---- Plain libvlc ----

struct PlainPlayers {
    libvlc_instance_t* instance;
    libvlc_media_player_t* players[3];
    QElapsedTimer clock;
    std::atomic<qint64> firstPictureNs{-1};

    PlainPlayers() {
        const char* args[] = {"--no-stats"};
        instance = libvlc_new(1, args);
        for (auto& player : players)
            player = libvlc_media_player_new(instance);
        libvlc_event_attach(libvlc_media_player_event_manager(players[0]), libvlc_MediaPlayerVout,
                            onVout, this);
    }
    ~PlainPlayers() {
        for (auto* player : players) {
            libvlc_media_player_stop(player);
            libvlc_media_player_release(player);
        }
        libvlc_release(instance);
    }
    static void onVout(const libvlc_event_t* event, void* self) {
        auto* plain = static_cast<PlainPlayers*>(self);
        qint64 expected = -1;
        if (event->u.media_player_vout.new_count > 0)
            plain->firstPictureNs.compare_exchange_strong(expected, plain->clock.nsecsElapsed());
    }
    void start(Scenes& scenes, int channels) {
        for (int i = 0; i < channels; ++i) {
            libvlc_media_t* media =
                libvlc_media_new_path(instance, channelFile(i).toLocal8Bit().constData());
            if (i > 0)
                libvlc_media_add_option(media, "no-audio");
            libvlc_media_player_set_media(players[i], media);
            libvlc_media_release(media);
            libvlc_media_player_set_xwindow(players[i], uint32_t(scenes.video[i]->winId()));
        }
        firstPictureNs = -1;
        clock.start();
        for (int i = 0; i < channels; ++i)
            libvlc_media_player_play(players[i]);
    }
    void stop(int channels) {
        for (int i = 0; i < channels; ++i)
            libvlc_media_player_stop(players[i]);
    }
};

} // namespace

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    BenchMedia::useScratchDataFolder();
    if (!BenchMedia::prepare(QStringLiteral("sync")))
        return 1;
    g_media = BenchMedia::folder(QStringLiteral("sync"));
    Scenes scenes;
    wait(300);

    std::printf("First picture of a three-channel 1080p recording (median of 5)\n");
    std::vector<double> total, readyWait, opening, plain;
    {
        PlayerInterface player(&scenes.window);
        player.setMainScreen(scenes.video[0]);
        player.setSub1Screen(scenes.video[1]);
        player.setSub2Screen(scenes.video[2]);
        for (int i = 0; i < 5; ++i) {
            const CoordinatorRun run = openThroughCoordinator(player);
            total.push_back(run.toFirstPictureMs);
            readyWait.push_back(run.readyWaitMs);
            opening.push_back(run.toFirstPictureMs - run.readyWaitMs);
            wait(500);
            stopCoordinator(player);
        }
        PlainPlayers baseline;
        for (int i = 0; i < 5; ++i) {
            baseline.start(scenes, 1);
            while (baseline.firstPictureNs < 0 && baseline.clock.elapsed() < 20000)
                wait(1);
            plain.push_back(baseline.firstPictureNs / 1e6);
            wait(500);
            baseline.stop(1);
        }
    }
    std::printf("  checkFileReady -> first picture   %7.1f ms   (goal <= 600 ms)\n", median(total));
    std::printf("    of which the ready-tick wait    %7.1f ms\n", median(readyWait));
    std::printf("    of which opening and decoding   %7.1f ms\n", median(opening));
    std::printf("  plain libvlc player, play -> first picture   %7.1f ms   (baseline)\n",
                median(plain));

    std::printf("Channel offset |rear - front| seen on screen, every %d ms for %d s after the "
                "first second\n",
                kSampleMs, kPlayMs / 1000);
    {
        PlayerInterface player(&scenes.window);
        player.setMainScreen(scenes.video[0]);
        player.setSub1Screen(scenes.video[1]);
        player.setSub2Screen(scenes.video[2]);
        openThroughCoordinator(player);
        printOffsets("coordinator (goal 10 / 40)", sampleOffsets(scenes, 3));
        stopCoordinator(player);
    }
    {
        PlainPlayers baseline;
        baseline.start(scenes, 3);
        printOffsets("three plain libvlc players", sampleOffsets(scenes, 3));
        baseline.stop(3);
    }

    constexpr int kFlips = 5;
    constexpr int kQuietMs = 4000;
    std::printf("Mirroring the first rear camera while playing (%d flips, 3 s apart)\n", kFlips);
    {
        PlayerInterface player(&scenes.window);
        player.setMainScreen(scenes.video[0]);
        player.setSub1Screen(scenes.video[1]);
        player.setSub2Screen(scenes.video[2]);
        openThroughCoordinator(player);
        wait(1000);
        const long quietStart = residentKb();
        wait(kQuietMs);
        const long quietGrowth = residentKb() - quietStart;

        std::vector<double> shown, offsetSoon, offsetLater;
        int neverShown = 0;
        const long flipStart = residentKb();
        // The rear camera's distance from the front one as seen on screen, when readable.
        const auto offset = [&scenes](bool mirrored, std::vector<double>& into) {
            const int front = scenes.frames()[0];
            const int rear = scenes.frames(mirrored)[1];
            if (near(rear, front))
                into.push_back(std::abs(rear - front) * 1000.0 / kFps);
        };
        for (int i = 0; i < kFlips; ++i) {
            const bool mirrored = !PlayerInterface::flipState[1];
            QElapsedTimer clock;
            clock.start();
            player.onFlip(1);
            double seenMs = -1;
            while (clock.elapsed() < 5000) {
                wait(5);
                const int front = scenes.frames()[0];
                if (near(scenes.frames(mirrored)[1], front) &&
                    !near(scenes.frames(!mirrored)[1], front)) {
                    seenMs = clock.nsecsElapsed() / 1e6;
                    break;
                }
            }
            if (seenMs < 0)
                ++neverShown;
            else
                shown.push_back(seenMs);
            wait(int(1000 - clock.elapsed()));
            offset(mirrored, offsetSoon);
            wait(2000);
            offset(mirrored, offsetLater);
        }
        const long flipGrowth = residentKb() - flipStart;
        const double worst = shown.empty() ? -1 : *std::max_element(shown.begin(), shown.end());
        std::printf("  flip -> mirrored picture on screen  median %6.1f ms  max %6.1f ms  (%d "
                    "never seen)\n",
                    median(shown), worst, neverShown);
        std::printf("  offset from the front camera  1 s after a flip: median %6.1f ms;  3 s "
                    "after: median %6.1f ms  (%zu / %zu readable)\n",
                    median(offsetSoon), median(offsetLater), offsetSoon.size(), offsetLater.size());
        std::printf("  resident memory  %+6.1f MB over the flips (%.0f s)  vs  %+6.1f MB over "
                    "%.0f s of playing without flips (baseline)\n",
                    flipGrowth / 1024.0, kFlips * 3.0, quietGrowth / 1024.0, kQuietMs / 1000.0);
        stopCoordinator(player);
    }
    return 0;
}
