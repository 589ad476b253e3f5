#include "PlayerShortcuts.h"

#include "PlayControlView.h"
#include "PlayerInterface.h"

#include <QKeySequence>
#include <QShortcut>
#include <QWidget>

#include <algorithm>

void PlayerShortcuts::install(QWidget* window, PlayControlView* control, PlayerInterface* player,
                              const std::function<bool()>& blocked,
                              const std::function<void()>& toggleFullScreen) {
    const auto add = [window, blocked](const QKeySequence& key, auto action) {
        auto* shortcut = new QShortcut(key, window);
        QObject::connect(shortcut, &QShortcut::activated, window, [blocked, action] {
            if (!blocked())
                action();
        });
    };
    add(Qt::Key_F, toggleFullScreen);
    add(Qt::Key_F11, toggleFullScreen);
    add(Qt::Key_Escape, [window, toggleFullScreen] {
        if (window->isFullScreen())
            toggleFullScreen();
    });
    if (control == nullptr)
        return;
    const auto playing = [] {
        return PlayerInterface::playStatus == PlayerInterface::PlayRunning ||
               PlayerInterface::playStatus == PlayerInterface::PlayPaused;
    };
    add(Qt::Key_Space, [control] { control->onClick_bPlay(); });
    add(Qt::Key_Left, [control] { control->onClick_b5sReward(); });
    add(Qt::Key_Right, [control] { control->onClick_b5sForward(); });
    add(Qt::Key_PageUp, [control] { control->onClick_bReward(); });
    add(Qt::Key_PageDown, [control] { control->onClick_bForward(); });
    add(Qt::Key_M, [control] { control->onClick_bSound(); });
    add(Qt::Key_Plus, [control] { control->onStepVolume(5); });
    add(Qt::Key_Minus, [control] { control->onStepVolume(-5); });
    add(Qt::Key_Home, [player, playing] {
        if (playing())
            player->onPlayPosMove(0);
    });
    add(Qt::Key_End, [player, playing] {
        if (playing())
            player->onPlayPosMove(int(std::max(0.0, PlayerInterface::totalTime - 1000)));
    });
}
