// All telemetry of a three-minute recording (1,800 readings at 10 Hz) read the way the
// player reads it through KDXData, against extracting the same track with the ffmpeg program.
#include "BenchMedia.h"
#include "KDXData.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <benchmark/benchmark.h>

#include <chrono>
#include <cstdio>
#include <vector>

namespace {

QString drive;
double kdxDataMs = 0;
double ffmpegMs = 0;
int readings = 0;

using Clock = BenchMedia::Clock;

void KdxDataAllTelemetry(benchmark::State& state) {
    std::vector<unsigned char> info(KDXData::kInfoSize);
    double total = 0;
    for (auto _ : state) {
        const auto start = Clock::now();
        KDXData data(info.data());
        if (data.KDX_Open(drive) != 0 || data.KDX_GetTextData(nullptr, 0) != 0)
            state.SkipWithError("KDXData failed");
        readings = data.KDX_GetTextDataTotalCount();
        benchmark::DoNotOptimize(data.KDX_GetTextDataFrame(readings - 1));
        data.KDX_TextDataFree();
        total += BenchMedia::millisecondsSince(start);
    }
    kdxDataMs = total / double(state.iterations());
    state.counters["readings"] = readings;
}

// The baseline: the telemetry track written out as subtitles by the ffmpeg program.
void FfmpegExtractTrack(benchmark::State& state) {
    double total = 0;
    for (auto _ : state) {
        const auto start = Clock::now();
        if (!BenchMedia::runQuietly("ffmpeg", {"-v", "error", "-nostdin", "-i", drive, "-map",
                                               "0:s:0", "-f", "srt", "-y", "/dev/null"}))
            state.SkipWithError("ffmpeg failed");
        total += BenchMedia::millisecondsSince(start);
    }
    ffmpegMs = total / double(state.iterations());
}

} // namespace

BENCHMARK(KdxDataAllTelemetry)->Unit(benchmark::kMillisecond)->MinTime(2.0);
BENCHMARK(FfmpegExtractTrack)->Unit(benchmark::kMillisecond)->Iterations(10);

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (!BenchMedia::prepare(QStringLiteral("bench")))
        return 1;
    BenchMedia::useScratchDataFolder();
    drive = BenchMedia::driveRecording();

    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();

    std::printf("\nTelemetry of a three-minute recording (%d readings, %.1f MB file)\n", readings,
                QFileInfo(drive).size() / 1e6);
    std::printf("  KDXData open + read all  %8.3f ms   (goal: at most 10)\n", kdxDataMs);
    std::printf("  baseline: ffmpeg to srt  %8.3f ms\n", ffmpegMs);
    return 0;
}
