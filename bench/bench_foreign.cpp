// Telemetry of other cameras: a three-minute recording of each layout read the way the
// player reads it through KDXData (open, all frames), against the real ExifTool extracting
// the same file's embedded telemetry (exiftool -ee -n) in the same run.
#include "BenchMedia.h"
#include "KDXData.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <benchmark/benchmark.h>

#include <cstdio>
#include <map>
#include <vector>

namespace {

using Clock = BenchMedia::Clock;

struct Figures {
    double kdxDataMs = 0;
    double exifToolMs = 0;
    int frames = 0;
    qint64 bytes = 0;
};
std::map<std::string, Figures> figures;

void readAll(benchmark::State& state, const QString& path, Figures* out) {
    std::vector<unsigned char> info(KDXData::kInfoSize);
    double total = 0;
    for (auto _ : state) {
        const auto start = Clock::now();
        KDXData data(info.data());
        if (data.KDX_Open(path) != 0 || data.KDX_GetTextData(nullptr, 0) != 0)
            state.SkipWithError("KDXData found no telemetry");
        out->frames = data.KDX_GetTextDataTotalCount();
        benchmark::DoNotOptimize(data.KDX_GetTextDataFrame(out->frames - 1));
        data.KDX_TextDataFree();
        total += BenchMedia::millisecondsSince(start);
    }
    out->kdxDataMs = total / double(state.iterations());
}

void exifTool(benchmark::State& state, const QString& path, Figures* out) {
    double total = 0;
    for (auto _ : state) {
        const auto start = Clock::now();
        if (!BenchMedia::runQuietly("exiftool", {"-ee", "-n", path}))
            state.SkipWithError("exiftool failed");
        total += BenchMedia::millisecondsSince(start);
    }
    out->exifToolMs = total / double(state.iterations());
}

} // namespace

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (!BenchMedia::prepare(QStringLiteral("foreign-bench")))
        return 1;
    BenchMedia::useScratchDataFolder();
    const QDir folder(BenchMedia::folder(QStringLiteral("foreign-bench")));
    const QStringList files = folder.entryList({"*.mp4", "*.mov"}, QDir::Files, QDir::Name);
    for (const QString& name : files) {
        const QString path = folder.filePath(name);
        Figures* out = &figures[name.toStdString()];
        out->bytes = QFileInfo(path).size();
        benchmark::RegisterBenchmark(("KDXData/" + name).toStdString().c_str(),
                                     [path, out](benchmark::State& s) { readAll(s, path, out); })
            ->Unit(benchmark::kMillisecond)
            ->MinTime(1.0);
        benchmark::RegisterBenchmark(("ExifTool/" + name).toStdString().c_str(),
                                     [path, out](benchmark::State& s) { exifTool(s, path, out); })
            ->Unit(benchmark::kMillisecond)
            ->Iterations(3);
    }
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();

    std::printf("\nTelemetry of a three-minute recording per layout: KDXData open + all frames "
                "against exiftool -ee -n\n");
    std::printf("  %-22s %7s %7s %12s %12s %9s\n", "file", "MB", "frames", "KDXData ms",
                "ExifTool ms", "ratio");
    for (const auto& [name, f] : figures)
        std::printf("  %-22s %7.1f %7d %12.3f %12.1f %8.0fx\n", name.c_str(), f.bytes / 1e6,
                    f.frames, f.kdxDataMs, f.exifToolMs,
                    f.kdxDataMs > 0 ? f.exifToolMs / f.kdxDataMs : 0.0);
    return 0;
}
