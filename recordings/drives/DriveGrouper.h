#pragma once

#include "Drive.h"
#include "DriveRecording.h"

#include <QVector>

// Groups recordings into drives and parking spans.
//
// A camera in loop recording closes one file and opens the next at once: consecutive
// recordings of a drive start within a second or two of the previous one's end (names carry
// whole seconds; lengths end on a frame). A camera that was switched off needs longer than
// that to start again. So a recording whose start follows the end of the previous one by at
// most `maxGapMs` (10 s unless set) continues its drive. Event and manual recordings within
// a drive's time (they often overlap the loop recording) belong to it, and may bridge a gap
// the loop leaves while the camera writes them. A parking recording ends every drive; parking
// recordings with no driving recording between them form one parking span.
//
// A loop recording that starts more than `overlapMs` before the previous one ended cannot
// follow it (one camera writes one loop at a time): the camera's clock jumped back, and it
// goes on in a drive of its own. A recording that cannot be read keeps its drive together
// (taken to be as long as the recording before it) without being played.
class DriveGrouper {
public:
    struct Rules {
        qint64 maxGapMs = 10000;
        qint64 overlapMs = 2000;
    };

    // Drives and parking spans in time order. recordings need not be sorted.
    static QVector<Drive> group(const QVector<DriveRecording>& recordings, const Rules& rules);
    static QVector<Drive> group(const QVector<DriveRecording>& recordings) {
        return group(recordings, Rules());
    }

    // What identifies a drive between groupings (its incidents, the one that plays): the
    // files of its play list.
    static QString playListKey(const Drive& drive, const QVector<DriveRecording>& recordings);
};
