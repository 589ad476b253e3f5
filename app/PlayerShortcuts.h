#pragma once

#include <functional>

class PlayControlView;
class PlayerInterface;
class QWidget;

// The keys of common players. They act wherever the focus is in the window (the list would
// take letters for its own search), and wait while blocked() says input is blocked.
class PlayerShortcuts {
public:
    // F, F11 and Escape (out of full screen only) call toggleFullScreen; the player's keys
    // come only with a panel (control may be null).
    static void install(QWidget* window, PlayControlView* control, PlayerInterface* player,
                        const std::function<bool()>& blocked,
                        const std::function<void()>& toggleFullScreen);
};
