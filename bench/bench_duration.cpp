// Recording lengths for the file list: RecordingName::durationText over 2,000 recordings,
// against running ffprobe once per file on the same recordings.
#include "BenchMedia.h"
#include "KDXData.h"
#include "RecordingName.h"

#include <QCoreApplication>
#include <QFile>

#include <benchmark/benchmark.h>

#include <chrono>
#include <cstdio>

namespace {

constexpr int kFfprobeSample = 200;

QStringList recordings;
std::vector<QByteArray> recordings8;
double durationTextMsPerFile = 0;
double kdxOpenInfoMsPerFile = 0;
double ffprobeMsPerFile = 0;

using Clock = BenchMedia::Clock;

// What the file list's length worker does for every listed recording.
void DurationText(benchmark::State& state) {
    double total = 0;
    std::int64_t files = 0;
    for (auto _ : state) {
        const auto start = Clock::now();
        for (const QString& path : recordings) {
            const QString text = RecordingName::durationText(path);
            if (text != QLatin1String("01:00"))
                state.SkipWithError(qPrintable("unexpected length " + text + " of " + path));
            benchmark::DoNotOptimize(text);
        }
        total += BenchMedia::millisecondsSince(start);
        files += recordings.size();
    }
    durationTextMsPerFile = total / double(files);
    state.counters["files"] = double(recordings.size());
    state.counters["ms_per_file"] = durationTextMsPerFile;
}

// The library part alone: open, information record, close; no status log lines.
void ReaderOpenInfo(benchmark::State& state) {
    double total = 0;
    std::int64_t files = 0;
    static KDXInfo info;
    for (auto _ : state) {
        const auto start = Clock::now();
        for (const QByteArray& path : recordings8) {
            KDXOpenParams params{};
            params.path8 = path.constData();
            KDXReader* reader = nullptr;
            if (KDXReaderOpen(&reader, &params) != KDX_OK ||
                KDXReaderGetInfo(reader, &info) != KDX_OK)
                state.SkipWithError("kdxstream failed");
            benchmark::DoNotOptimize(info.totalRangeMs);
            KDXReaderClose(reader);
        }
        total += BenchMedia::millisecondsSince(start);
        files += recordings8.size();
    }
    kdxOpenInfoMsPerFile = total / double(files);
    state.counters["ms_per_file"] = kdxOpenInfoMsPerFile;
}

// The baseline: the length as a script would get it, one ffprobe run per file.
void FfprobePerFile(benchmark::State& state) {
    const QStringList sample = recordings.mid(0, kFfprobeSample);
    double total = 0;
    std::int64_t files = 0;
    for (auto _ : state) {
        const auto start = Clock::now();
        for (const QString& path : sample)
            if (!BenchMedia::runQuietly("ffprobe", {"-v", "error", "-show_entries",
                                                    "format=duration", "-of", "csv=p=0", path}))
                state.SkipWithError("ffprobe failed");
        total += BenchMedia::millisecondsSince(start);
        files += sample.size();
    }
    ffprobeMsPerFile = total / double(files);
    state.counters["files"] = double(sample.size());
    state.counters["ms_per_file"] = ffprobeMsPerFile;
}

} // namespace

BENCHMARK(DurationText)->Unit(benchmark::kMillisecond)->MinTime(2.0);
BENCHMARK(ReaderOpenInfo)->Unit(benchmark::kMillisecond)->MinTime(2.0);
BENCHMARK(FfprobePerFile)->Unit(benchmark::kMillisecond)->Iterations(1);

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (!BenchMedia::prepare(QStringLiteral("bench")))
        return 1;
    BenchMedia::useScratchDataFolder();
    recordings = BenchMedia::lengthRecordings();
    for (const QString& path : recordings)
        recordings8.push_back(QFile::encodeName(path));
    // Warm cache: every file read once before anything is timed.
    for (const QString& path : recordings)
        RecordingName::durationText(path);

    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();

    std::printf("\nLengths of %lld recordings (warm cache)\n", (long long)recordings.size());
    std::printf("  durationText             %8.3f ms per file   (goal: at most 0.5)\n",
                durationTextMsPerFile);
    std::printf("  kdxstream open + info    %8.3f ms per file\n", kdxOpenInfoMsPerFile);
    std::printf("  baseline: ffprobe        %8.3f ms per file   (%d files)\n", ffprobeMsPerFile,
                kFfprobeSample);
    if (durationTextMsPerFile > 0 && ffprobeMsPerFile > 0)
        std::printf("  durationText is %.0f times faster (goal: at least 100)\n",
                    ffprobeMsPerFile / durationTextMsPerFile);
    return 0;
}
