#include "PlayClock.h"

#include <algorithm>

void PlayClock::anchor(double ms) {
    m_valid = true;
    m_running = false;
    m_base = std::max(0.0, ms);
}

void PlayClock::run(double rate) {
    if (!m_valid)
        return;
    if (m_running)
        m_base = estimate();
    m_rate = rate;
    m_running = true;
    m_since.start();
}

void PlayClock::hold() {
    if (!m_valid)
        return;
    m_base = estimate();
    m_running = false;
}

double PlayClock::estimate() const {
    return m_running ? m_base + double(m_since.elapsed()) * m_rate : m_base;
}

double PlayClock::time(double libvlcMs) const {
    if (!m_valid || libvlcMs < 0)
        return libvlcMs;
    const double t = estimate();
    const double rate = std::max(1.0, m_rate);
    if (t < libvlcMs - kMaxLeadMs * rate || t > libvlcMs + kMaxTrailMs * rate)
        return libvlcMs;
    return t;
}
