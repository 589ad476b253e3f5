#pragma once

#include <QString>
#include <QStringList>

#include <chrono>

// The benchmark recordings, made into the build tree on first use, and the external programs
// the benchmarks compare with. Every set has a folder of its own under the benchmarks' media
// folder, so the benchmarks may run in any order and each makes only what it reads.
class BenchMedia {
public:
    using Clock = std::chrono::steady_clock;
    // Wall time since start, in milliseconds.
    static double millisecondsSince(Clock::time_point start) {
        return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
    }

    // Makes a set of tools/make_recordings.py into its folder when it is missing or out of
    // date; false when that failed.
    static bool prepare(const QString& set);
    // The folder of a set, or of files a benchmark makes itself.
    static QString folder(const QString& name);

    // The copies for the length benchmark, in name order ("bench" set).
    static QStringList lengthRecordings();
    // The three-minute drive with 10 Hz telemetry ("bench" set).
    static QString driveRecording();

    // Runs a program to its end with its output discarded; false unless it exits with 0.
    static bool runQuietly(const QString& program, const QStringList& arguments);

    // A scratch data folder for the status log, so that benchmarks never write elsewhere.
    static void useScratchDataFolder();
};
