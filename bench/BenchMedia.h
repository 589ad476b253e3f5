#pragma once

#include <QString>
#include <QStringList>

#include <chrono>

// The benchmark recordings, made once into the build tree, and the external programs the
// benchmarks compare with.
class BenchMedia {
public:
    using Clock = std::chrono::steady_clock;
    // Wall time since start, in milliseconds.
    static double millisecondsSince(Clock::time_point start) {
        return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
    }

    // Makes the recordings when they are missing or out of date; false when that failed.
    static bool prepare();

    static QString folder();
    // The copies for the length benchmark, in name order.
    static QStringList lengthRecordings();
    // The three-minute drive with 10 Hz telemetry.
    static QString driveRecording();

    // Runs a program to its end with its output discarded; false unless it exits with 0.
    static bool runQuietly(const QString& program, const QStringList& arguments);

    // A scratch data folder for the status log, so that benchmarks never write elsewhere.
    static void useScratchDataFolder();
};
