#pragma once

#include <QPushButton>

// The panel's play/pause button. It is checked while it offers play (nothing playing, or
// paused) and shows "play_on.svg"; unchecked while a recording plays, showing
// "pause_on.svg". Disabled, it shows the "_off.svg" variant of the same picture. A click
// never changes the picture by itself: the panel decides what the button shows, since a
// click may be refused.
class TavPlayButton : public QPushButton {
    Q_OBJECT
public:
    explicit TavPlayButton(QWidget* parent = nullptr);

    void setPlaying(bool playing) { setChecked(!playing); }
    bool isPlaying() const { return !isChecked(); }

    // The four pictures from imageFolder, on a round background of the given radius that
    // turns hoverColour under the mouse (no hover background when the colour is empty).
    static QString styleSheet(const QString& imageFolder, const QString& hoverColour, int radius);

protected:
    void nextCheckState() override {}
};
