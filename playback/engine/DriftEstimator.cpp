#include "DriftEstimator.h"

#include <algorithm>
#include <cmath>

DriftEstimator::Decision DriftEstimator::add(double frontMs, double rearMs) {
    Decision decision;
    const double drift = rearMs - frontMs;
    if (std::fabs(drift) >= kSeekAtOnceMs) {
        decision.action = Action::Seek;
        decision.driftMs = drift;
        reset();
        return decision;
    }
    m_samples[m_next] = drift;
    m_next = (m_next + 1) % kWindow;
    m_count = std::min(m_count + 1, kWindow);
    if (m_count < kWindow)
        return decision;

    double sum = 0;
    for (double sample : m_samples)
        sum += sample;
    decision.driftMs = sum / kWindow;
    if (std::fabs(decision.driftMs) >= kSeekDriftMs) {
        decision.action = Action::Seek;
        reset();
    }
    return decision;
}

void DriftEstimator::reset() {
    m_count = 0;
    m_next = 0;
}
