#include "IncidentDetector.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr qint64 kBreakMs = 1000;
constexpr int kKinds = 4;

// The median of reading i and its neighbours (where the trace runs on): one jolt among
// calm readings does not move it.
float smoothed(const QVector<TraceSample>& trace, int i, float TraceSample::*axis) {
    const float here = trace.at(i).*axis;
    const bool before = i > 0 && trace.at(i).timeMs - trace.at(i - 1).timeMs <= kBreakMs &&
                        std::isfinite(trace.at(i - 1).*axis);
    const bool after = i + 1 < trace.size() &&
                       trace.at(i + 1).timeMs - trace.at(i).timeMs <= kBreakMs &&
                       std::isfinite(trace.at(i + 1).*axis);
    if (!before || !after)
        return here;
    const float a = trace.at(i - 1).*axis;
    const float b = trace.at(i + 1).*axis;
    return std::max(std::min(a, b), std::min(std::max(a, b), here));
}

} // namespace

QVector<Incident> IncidentDetector::detect(const QVector<TraceSample>& trace,
                                           const Thresholds& thresholds) {
    // One open episode per kind; closed when its kind has been quiet for mergeMs.
    Incident open[kKinds];
    bool isOpen[kKinds] = {false, false, false, false};
    qint64 lastSeen[kKinds] = {0, 0, 0, 0};
    QVector<Incident> found;
    const auto close = [&](int kind) {
        if (isOpen[kind])
            found.append(open[kind]);
        isOpen[kind] = false;
    };
    for (int i = 0; i < trace.size(); ++i) {
        const TraceSample& sample = trace.at(i);
        if (!std::isfinite(sample.x) || !std::isfinite(sample.y))
            continue;
        const float forward = smoothed(trace, i, &TraceSample::x);
        const float side = smoothed(trace, i, &TraceSample::y);
        const float levels[kKinds] = {-forward, forward, std::fabs(side),
                                      std::hypot(sample.x, sample.y)};
        const float limits[kKinds] = {thresholds.brakingG, thresholds.accelerationG,
                                      thresholds.turnG, thresholds.impactG};
        for (int kind = 0; kind < kKinds; ++kind) {
            if (isOpen[kind] && sample.timeMs - lastSeen[kind] > thresholds.mergeMs)
                close(kind);
            if (!std::isfinite(levels[kind]) || levels[kind] < limits[kind])
                continue;
            lastSeen[kind] = sample.timeMs;
            if (isOpen[kind] && levels[kind] <= open[kind].peakG)
                continue;
            if (!isOpen[kind]) {
                open[kind] = Incident();
                open[kind].kind = Incident::Kind(kind);
                isOpen[kind] = true;
            }
            open[kind].peakG = levels[kind];
            open[kind].timeMs = sample.timeMs;
            open[kind].speedKmh = sample.speedKmh;
            open[kind].latitude = sample.latitude;
            open[kind].longitude = sample.longitude;
        }
    }
    for (int kind = 0; kind < kKinds; ++kind)
        close(kind);

    // What goes with an impact is the impact.
    QVector<Incident> impacts;
    for (const Incident& incident : found)
        if (incident.kind == Incident::Impact)
            impacts.append(incident);
    found.erase(
        std::remove_if(
            found.begin(), found.end(),
            [&](const Incident& incident) {
                if (incident.kind == Incident::Impact)
                    return false;
                return std::any_of(impacts.cbegin(), impacts.cend(), [&](const Incident& impact) {
                    return std::llabs(impact.timeMs - incident.timeMs) <= thresholds.mergeMs;
                });
            }),
        found.end());
    std::stable_sort(found.begin(), found.end(),
                     [](const Incident& a, const Incident& b) { return a.timeMs < b.timeMs; });
    return found;
}
