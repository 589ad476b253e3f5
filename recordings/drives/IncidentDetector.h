#pragma once

#include "Incident.h"
#include "TraceSample.h"

#include <QVector>

// Finds harsh braking, harsh acceleration, sharp turns and impacts in a drive's G-sensor
// trace.
//
// Thresholds (g): the "elevated g-force event" definitions of the naturalistic teenage
// driving study (Simons-Morton et al., "Do elevated gravitational-force events while
// driving predict crashes and near crashes?", American Journal of Epidemiology 175(10),
// 2012, doi:10.1093/aje/kwr440): a rapid start at a longitudinal acceleration of 0.35 g or
// more, a hard stop at a deceleration of 0.45 g or more, a hard turn at a lateral
// acceleration of 0.50 g or more. Braking, starting and turning are judged on the median of
// three readings (about 0.3 s at the cameras' 10 readings a second), so that the single jolt
// of a bump does not count as a manoeuvre. An impact is a single horizontal reading of
// 1.5 g or more: tyres on dry asphalt (friction coefficient about 0.8 to 1.0) cannot brake
// or turn a car much beyond 1 g, so more than that is a blow, not driving.
//
// Readings of one kind closer than `mergeMs` together are one incident, reported at its
// peak. Braking, starting or turning within `mergeMs` of an impact is part of the impact.
class IncidentDetector {
public:
    struct Thresholds {
        float brakingG = 0.45f;
        float accelerationG = 0.35f;
        float turnG = 0.50f;
        float impactG = 1.5f;
        qint64 mergeMs = 2000;
    };

    // The incidents in time order. The trace is in time order; a jump of more than a
    // second between readings (two recordings with a gap) breaks the smoothing.
    static QVector<Incident> detect(const QVector<TraceSample>& trace,
                                    const Thresholds& thresholds);
    static QVector<Incident> detect(const QVector<TraceSample>& trace) {
        return detect(trace, Thresholds());
    }
};
