// The G-sensor chart and the map with an hour of telemetry at 10 Hz (36,000 samples per axis):
//   1. the chart's paint (the whole view, as a repaint draws it) against painting one
//      straight line per axis over the same bar in the same run, and against drawing one
//      line per pair of samples (what the chart did before);
//   2. one tick of the map (onUpdateMap: the position for the play time, the script to the
//      page, the shared texts) with the page loaded, against formatting the same script alone.
// Run under a virtual X server: bash tools/bench.sh chart
#include "BenchMedia.h"
#include "ChartTrace.h"
#include "ChartView.h"
#include "MapView.h"
#include "PlaybackState.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QImage>
#include <QPainter>
#include <QTimer>
#include <QWebEngineView>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <vector>

namespace {

constexpr int kSamples = 36000;
constexpr int kRuns = 200;

double median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

template <typename Work> double medianMs(Work work) {
    std::vector<double> times;
    for (int run = 0; run < kRuns; ++run) {
        QElapsedTimer timer;
        timer.start();
        work(run);
        times.push_back(timer.nsecsElapsed() / 1e6);
    }
    return median(times);
}

// A drive's G-sensor: small vibration around 0, 0, 1 g, and a braking now and then.
void fillTelemetry() {
    PlaybackState::gSensorList.clear();
    PlaybackState::gpsList.clear();
    for (int k = 0; k <= kSamples + 1; ++k) {
        const double t = k / 10.0;
        const double braking = std::fmod(t, 300.0) < 3.0 ? -1.1 : 0.0;
        PlaybackState::gSensorList.append({k, float(0.03 * std::sin(t * 7.1) + braking),
                                           float(0.04 * std::sin(t * 3.3)),
                                           float(1.0 + 0.05 * std::sin(t * 11.7))});
        PlaybackState::gpsList.append({k, float(37.4 + t * 1e-5), float(127.1 + t * 1e-5),
                                       float(40 + 20 * std::sin(t / 60)), 0, 0});
    }
    PlaybackState::telemetryPresent = true;
    PlaybackState::playStatus = PlaybackState::PlayRunning;
    PlaybackState::totalTime = kSamples * 100.0;
    PlaybackState::currentTime = PlaybackState::totalTime / 3;
}

} // namespace

int main(int argc, char** argv) {
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    QApplication app(argc, argv);
    BenchMedia::useScratchDataFolder();
    fillTelemetry();

    ChartView chart;
    chart.show();
    QApplication::processEvents();
    QElapsedTimer loading;
    loading.start();
    chart.onloadChart();
    const double loadMs = loading.nsecsElapsed() / 1e6;
    QImage image(chart.size(), QImage::Format_ARGB32_Premultiplied);
    const double paintMs = medianMs([&](int) { chart.render(&image); });

    const QRect bar = chart.barRect();
    const double straightMs = medianMs([&](int) {
        QPainter painter(&image);
        painter.translate(bar.x(), bar.y() + bar.height() / 2);
        for (const char* colour : ChartView::kAxisColours) {
            painter.setPen(QColor(colour));
            painter.drawLine(0, 0, bar.width(), 0);
        }
    });
    QVector<double> values[3];
    for (const GSensorPoint& point : PlaybackState::gSensorList) {
        values[0].append(point.x);
        values[1].append(point.y);
        values[2].append(point.z);
    }
    const double pairsMs = medianMs([&](int) {
        QPainter painter(&image);
        painter.translate(bar.x(), bar.y() + bar.height() / 2);
        for (int axis = 0; axis < 3; ++axis) {
            painter.setPen(QColor(ChartView::kAxisColours[axis]));
            painter.drawLines(ChartTrace::allLines(values[axis], bar.size()));
        }
    });
    std::printf("G-sensor chart, 3 x %d samples on a %d-pixel bar (median of %d)\n", kSamples,
                bar.width(), kRuns);
    std::printf("  chart paint (whole view)            %7.3f ms   (goal: at most 5 ms)\n", paintMs);
    std::printf("  baseline: one straight line per axis %7.3f ms\n", straightMs);
    std::printf("  one line per pair of samples        %7.3f ms   (for comparison)\n", pairsMs);
    std::printf("  loading the chart (once per recording) %7.3f ms\n", loadMs);

    MapView map;
    map.resize(310, 678);
    map.show();
    bool loaded = false;
    QEventLoop waiting;
    QObject::connect(map.webView(), &QWebEngineView::loadFinished, &waiting, [&](bool ok) {
        loaded = ok;
        waiting.quit();
    });
    QTimer::singleShot(30000, &waiting, &QEventLoop::quit);
    waiting.exec();
    if (!loaded) {
        std::fprintf(stderr, "bench_chart: the map page did not load\n");
        return 1;
    }
    map.onLoadMap();
    int sent = 0;
    QObject::connect(&map, &MapView::scriptSent, [&sent] { ++sent; });
    const double tickMs = medianMs([&](int run) {
        PlaybackState::currentTime = PlaybackState::totalTime * (run + 1) / (kRuns + 2);
        map.onUpdateMap();
    });
    const double formatMs = medianMs([&](int run) {
        const GpsPoint& point = PlaybackState::gpsList.at(run * 100);
        const QString script = QStringLiteral("setLatLng(%1, %2, %3, false)")
                                   .arg(QString::number(point.latitude, 'f', 5),
                                        QString::number(point.longitude, 'f', 5),
                                        QString::number(point.speed, 'g', 6));
        Q_UNUSED(script);
    });
    std::printf("Map, %d points\n", PlaybackState::gpsList.size());
    std::printf("  one onUpdateMap tick                %7.3f ms   (%d ticks sent %d scripts)\n",
                tickMs, kRuns, sent);
    std::printf("  baseline: formatting its script     %7.3f ms\n", formatMs);
    return 0;
}
