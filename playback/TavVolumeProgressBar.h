#pragma once

#include <QProgressBar>

struct UiItem;

// The volume bar, 0 to 100. A click sets the volume at the point clicked, left end 0 and
// right end 100; a drag follows the mouse; each wheel notch moves it by kWheelStep. Every
// change made with the mouse is reported by onSendVolumeChange; setValue() from code is
// not.
class TavVolumeProgressBar : public QProgressBar {
    Q_OBJECT
public:
    static constexpr int kWheelStep = 5;

    explicit TavVolumeProgressBar(QWidget* parent = nullptr);

    // The volume a press at x (widget coordinates) would set.
    int volumeAt(int x) const;

    // Groove (Default colour) and level (Select; Disable when disabled); the bar is drawn
    // inside the entry's margins, so the widget can be taller than the line it shows.
    static QString styleSheet(const UiItem& item);

signals:
    void onSendVolumeChange(int volume);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void changeTo(int volume);

    bool m_dragging = false;
};
