#pragma once

#include <QElapsedTimer>

// The time of the picture on the screen, in ms of the recording.
//
// libvlc 3.0 reports a player's time in the steps its demuxer reads (about a quarter of a
// second), trailing the picture shown by up to about 400 ms (measured: 49 to 382 ms). The
// channel gate, though, knows the moment the pictures start to move: the players are let
// go together from a known time (the start, a seek's target, the paused time). From there the
// picture advances with the clock at the playing rate, so the time of the picture is the
// anchor plus the time since the release.
//
// The estimate is trusted only while it stays in the band in which libvlc's own time trails
// the picture; outside it (a stall, frames that could not be decoded in time) libvlc's time
// is the better answer.
class PlayClock {
public:
    // The picture stands at ms and does not move (paused, or held until the release).
    void anchor(double ms);
    // The players were let go just now, at this rate.
    void run(double rate);
    // The pictures stop moving where they are (a pause, a hold).
    void hold();
    // The picture's time is not known (frame steps, a stop): libvlc's is used until the next
    // anchor.
    void invalidate() { m_valid = false; }

    // The picture's time, given libvlc's time of the front player.
    double time(double libvlcMs) const;

    // How far libvlc's time may trail the picture at normal speed, and how far lead it.
    static constexpr double kMaxTrailMs = 700;
    static constexpr double kMaxLeadMs = 100;

private:
    double estimate() const;

    bool m_valid = false;
    bool m_running = false;
    double m_base = 0;
    double m_rate = 1;
    QElapsedTimer m_since;
};
