#pragma once

#include <QString>
#include <QtGlobal>

// A moment of a drive worth looking at: found in the G-sensor trace, or an event recording
// of the camera's own.
struct Incident {
    enum Kind { HarshBraking, HarshAcceleration, SharpTurn, Impact, CameraEvent };

    Kind kind = HarshBraking;
    // Milliseconds from the start of the drive (its first recording's start).
    qint64 timeMs = 0;
    // The largest reading of the episode on its axis, in g, positive (braking 0.6 is a
    // deceleration of 0.6 g); for an impact the horizontal magnitude.
    float peakG = 0;
    // km/h at the peak; negative when no position was known then.
    float speedKmh = -1;
    // Where it happened; both 0 when no position was known then.
    float latitude = 0;
    float longitude = 0;
    // The camera made an event recording of the same moment.
    bool byCamera = false;

    // "harsh_braking", "harsh_acceleration", "sharp_turn", "impact", "camera_event": the
    // names scripts and files use.
    static const char* kindKey(Kind kind);
    // What the user reads for a kind, in the interface language.
    static QString kindText(Kind kind);
};
