// Drives without a window:
//   1. grouping 10,000 recordings (a month of driving: 60 s loop recordings in drives of 20
//      to 60, event recordings inside, parking recordings between drives, given shuffled)
//      against sorting the same recordings by start, the least any grouping has to do;
//   2. incident detection over an hour of 10 Hz telemetry (36,000 readings with a harsh
//      manoeuvre every five minutes) against one pass that only finds the largest reading.
// Run: bash tools/bench.sh drives
#include "DriveGrouper.h"
#include "IncidentDetector.h"

#include <QElapsedTimer>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <random>
#include <vector>

namespace {

constexpr int kRuns = 50;

template <typename Work> double medianMs(Work work) {
    std::vector<double> times;
    for (int run = 0; run < kRuns; ++run) {
        QElapsedTimer timer;
        timer.start();
        work();
        times.push_back(timer.nsecsElapsed() / 1e6);
    }
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

QVector<DriveRecording> month() {
    std::mt19937 random(2024);
    QVector<DriveRecording> recordings;
    qint64 clock = 1718179200000; // 2024-06-12 08:00
    while (recordings.size() < 10000) {
        const int loops = 20 + int(random() % 41);
        for (int i = 0; i < loops; ++i) {
            DriveRecording loop;
            loop.path = QStringLiteral("/card/%1_INF_1.mp4").arg(recordings.size());
            loop.startMs = clock;
            loop.durationMs = 60000;
            loop.type = 1;
            recordings.append(loop);
            if (random() % 10 == 0) {
                DriveRecording event = loop;
                event.path.replace("INF", "EVT");
                event.startMs += 20000;
                event.durationMs = 20000;
                event.type = 2;
                recordings.append(event);
            }
            clock += 60000 + qint64(random() % 1500);
        }
        clock += 3600000;
        for (int i = 0; i < 3; ++i) {
            DriveRecording parked;
            parked.path = QStringLiteral("/card/%1_PRK_1.mp4").arg(recordings.size());
            parked.startMs = clock;
            parked.durationMs = 20000;
            parked.type = 3;
            recordings.append(parked);
            clock += 600000;
        }
    }
    std::shuffle(recordings.begin(), recordings.end(), random);
    return recordings;
}

QVector<TraceSample> hour() {
    std::mt19937 random(7);
    std::normal_distribution<float> noise(0.0f, 0.02f);
    QVector<TraceSample> trace;
    for (int i = 0; i < 36000; ++i) {
        const double t = i / 10.0;
        TraceSample sample;
        sample.timeMs = i * 100;
        sample.x = float(0.2 * std::sin(t / 7.0)) + noise(random);
        sample.y = float(0.3 * std::sin(t / 11.0)) + noise(random);
        sample.z = 1.0f + noise(random);
        sample.speedKmh = 60;
        if (std::fmod(t, 300.0) < 1.5)
            sample.x = -0.6f;
        trace.append(sample);
    }
    return trace;
}

} // namespace

int main() {
    const QVector<DriveRecording> recordings = month();
    int drives = 0;
    const double grouping = medianMs([&] { drives = DriveGrouper::group(recordings).size(); });
    const double sorting = medianMs([&] {
        QVector<DriveRecording> sorted = recordings;
        std::sort(sorted.begin(), sorted.end(),
                  [](const DriveRecording& a, const DriveRecording& b) {
                      return a.startMs != b.startMs ? a.startMs < b.startMs : a.path < b.path;
                  });
    });
    std::printf("Grouping %d recordings into drives (%d drives and parking spans)\n",
                int(recordings.size()), drives);
    std::printf("  group: median %7.2f ms   baseline, sorting them by start: %7.2f ms   "
                "goal: at most 50 ms\n",
                grouping, sorting);

    const QVector<TraceSample> trace = hour();
    int incidents = 0;
    const double detecting = medianMs([&] { incidents = IncidentDetector::detect(trace).size(); });
    float largest = 0;
    const double scanning = medianMs([&] {
        for (const TraceSample& sample : trace)
            largest = std::max(largest, std::hypot(sample.x, sample.y));
    });
    std::printf("Incidents in an hour of 10 Hz telemetry (%d readings, %d found)\n",
                int(trace.size()), incidents);
    std::printf("  detect: median %6.2f ms   baseline, one pass for the largest reading "
                "(%.2f g): %6.2f ms   goal: at most 5 ms\n",
                detecting, double(largest), scanning);
    return 0;
}
