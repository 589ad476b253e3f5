#include "DriveGrouper.h"

#include <algorithm>
#include <cstdlib>
#include <numeric>
#include <vector>

namespace {

// A drive still open to the recordings that follow.
struct OpenDrive {
    int drive;
    qint64 loopEnd;    // where its loop recordings got to
    qint64 end;        // where any of its recordings got to
    qint64 lastLength; // its last readable recording's length
};

// An event recording played after the loop recording of its moments brings this much new
// time at least, or it is left out of the play list.
constexpr qint64 kNewTimeMs = 1000;

void makePlayList(Drive& drive, const QVector<DriveRecording>& recordings) {
    qint64 covered = drive.startMs;
    for (int index : drive.recordings) {
        const DriveRecording& recording = recordings.at(index);
        if (drive.playList.isEmpty() || recording.endMs() > covered + kNewTimeMs) {
            drive.playList.append(index);
            covered = std::max(covered, recording.endMs());
        }
    }
}

} // namespace

QString DriveGrouper::playListKey(const Drive& drive, const QVector<DriveRecording>& recordings) {
    QString made;
    for (int index : drive.playList)
        made += recordings.at(index).path + '\n';
    return made;
}

QVector<Drive> DriveGrouper::group(const QVector<DriveRecording>& recordings, const Rules& rules) {
    std::vector<int> order(size_t(recordings.size()));
    std::iota(order.begin(), order.end(), 0);
    std::stable_sort(order.begin(), order.end(), [&recordings](int a, int b) {
        const DriveRecording& left = recordings.at(a);
        const DriveRecording& right = recordings.at(b);
        return left.startMs != right.startMs ? left.startMs < right.startMs
                                             : left.path < right.path;
    });

    QVector<Drive> drives;
    std::vector<OpenDrive> open;
    int parkingSpan = -1;
    for (int index : order) {
        const DriveRecording& recording = recordings.at(index);
        if (recording.type == DriveRecording::kParking) {
            // Parked: every drive has ended.
            open.clear();
            if (parkingSpan < 0) {
                Drive span;
                span.kind = Drive::Parking;
                span.startMs = span.endMs = recording.startMs;
                drives.append(span);
                parkingSpan = drives.size() - 1;
            }
            Drive& span = drives[parkingSpan];
            (recording.playable() ? span.recordings : span.skipped).append(index);
            span.endMs =
                std::max(span.endMs, recording.startMs + std::max<qint64>(0, recording.durationMs));
            continue;
        }
        parkingSpan = -1;
        const qint64 start = recording.startMs;
        open.erase(std::remove_if(
                       open.begin(), open.end(),
                       [&](const OpenDrive& drive) { return start - drive.end > rules.maxGapMs; }),
                   open.end());
        OpenDrive* joined = nullptr;
        for (OpenDrive& drive : open) {
            const bool fits = recording.isMarked()
                                  ? start >= drives.at(drive.drive).startMs - rules.overlapMs
                                  : start - drive.loopEnd >= -rules.overlapMs;
            if (fits && start - drive.end <= rules.maxGapMs &&
                (joined == nullptr ||
                 std::llabs(start - drive.loopEnd) < std::llabs(start - joined->loopEnd)))
                joined = &drive;
        }
        const qint64 length = recording.playable() ? recording.durationMs
                                                   : (joined != nullptr ? joined->lastLength : 0);
        if (joined == nullptr) {
            Drive drive;
            drive.startMs = drive.endMs = start;
            drives.append(drive);
            open.push_back({drives.size() - 1, start, start, length});
            joined = &open.back();
        }
        Drive& drive = drives[joined->drive];
        (recording.playable() ? drive.recordings : drive.skipped).append(index);
        drive.endMs = std::max(drive.endMs, start + length);
        joined->end = std::max(joined->end, start + length);
        if (!recording.isMarked())
            joined->loopEnd = std::max(joined->loopEnd, start + length);
        if (recording.playable())
            joined->lastLength = length;
    }

    // A span of nothing but unreadable recordings is no drive; its files keep their rows.
    drives.erase(std::remove_if(drives.begin(), drives.end(),
                                [](const Drive& drive) { return drive.recordings.isEmpty(); }),
                 drives.end());
    for (Drive& drive : drives)
        makePlayList(drive, recordings);
    std::stable_sort(drives.begin(), drives.end(),
                     [](const Drive& a, const Drive& b) { return a.startMs < b.startMs; });
    return drives;
}
