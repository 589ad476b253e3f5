#pragma once

// What the video engine shares with the coordinator and the views: the engine's state in
// its life cycle, the channels it plays and why it last stopped. The engine (VLCComponent)
// writes these values; anyone may read them without linking libvlc.
class EngineState {
public:
    enum PlayerState {
        Created = 1,
        FileSet = 2,
        DisplayComp = 4,
        Playing = 5,
        Paused = 6,
        StopRequested = 7,
        Stopping = 8,
        EsDeleting = 9,
        Stopped = 10,
    };
    enum StopReason {
        StopGoNext = 0,
        StopShowLogo = 2,
        StopPlain = 3,
        StopFileRemoved = 4,
        StopGoBack = 5,
    };
    // Front camera, rear camera 1, rear camera 2.
    static constexpr int kMaxChannels = 3;

    static int channelCount;
    static int playerState;
    static int esDeletePending;
    static int stopReason;
};
