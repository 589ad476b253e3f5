#pragma once

#include <array>

// Tells from repeated readings of two players' times whether a rear channel has left the
// front channel's step by more than the readings can be wrong.
//
// libvlc 3.0 reports a player's time in steps of its demuxer (about 250 ms), refreshed at
// moments of its own, so one reading of two players in step can differ by a quarter of a
// second, and the mean of a few readings taken at a fixed interval by up to about 200 ms
// (measured). Only the mean of a long window, whose readings fall at every point of the
// steps, says anything; and only a drift well beyond that error is acted on. Finer
// corrections (a nudge of the rate) were tried and only moved pictures that were in step.
class DriftEstimator {
public:
    // About four seconds of readings at the engine's check interval.
    static constexpr int kWindow = 24;

    enum class Action { None, Seek };

    struct Decision {
        Action action = Action::None;
        double driftMs = 0; // mean rear - front over the window (or the one reading)
    };

    // A mean drift this large is real: the channels are moved together again.
    static constexpr double kSeekDriftMs = 400.0;
    // One reading this far off cannot be an artefact of the steps: act at once.
    static constexpr double kSeekAtOnceMs = 2 * kSeekDriftMs;

    // Adds one reading (ms) and says what to do about the channel.
    Decision add(double frontMs, double rearMs);

    // Forgets the readings: after a seek, a pause or a rate change they no longer describe
    // the channel.
    void reset();

    int count() const { return m_count; }

private:
    std::array<double, kWindow> m_samples{};
    int m_count = 0;
    int m_next = 0;
};
