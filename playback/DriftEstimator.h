#pragma once

#include "VlcCompat.h"

#include <array>

// Estimates how far a rear channel runs from the front channel from repeated readings of
// both players' times.
//
// libvlc 3.0 reports a player's time in steps of its demuxer (about 250 ms), so one
// reading of two players can differ by a quarter of a second while their pictures are in
// step. Readings taken at different moments fall at different points of those steps; their
// mean converges on the true offset, so corrections act on the mean of a window of
// readings, never on one.
class DriftEstimator {
public:
    static constexpr int kWindow = 8;

    enum class Action { None, Nudge, Seek };

    struct Decision {
        Action action = Action::None;
        double driftMs = 0;   // mean rear - front over the window
        double rateScale = 1; // for Nudge: multiply the front's rate by this
    };

    // A drift this large is visible at once: seek without waiting for a full window.
    static constexpr double kSeekDriftMs = 400.0;
    // Mean drifts within this count as in step. Readings finer than the players report
    // their time cannot be acted on: nudging on them only moves pictures that were in step.
    static constexpr double kInStepMs =
        VlcCompat::kTimeResolutionMs > 40 ? VlcCompat::kTimeResolutionMs / 2.0 : 20.0;
    // Largest rate change used to close a drift, and the time over which it is closed.
    static constexpr double kMaxNudge = 0.05;
    static constexpr double kCatchUpMs = 4000.0;

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
