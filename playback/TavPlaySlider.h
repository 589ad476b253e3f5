#pragma once

#include <QSlider>

struct UiItem;

// The position slider. A press anywhere on the groove puts the handle there and starts a
// drag; the drag ends at the release (QAbstractSlider's sliderPressed, sliderMoved and
// sliderReleased report it). The panel's slider, the one whose parent is "row2Widget",
// takes no press while nothing is playing or paused, so the handle never moves away from a
// time that could be sought.
class TavPlaySlider : public QSlider {
    Q_OBJECT
public:
    explicit TavPlaySlider(QWidget* parent = nullptr);

    // Whether a press would be taken now.
    bool acceptsInput() const;

    // The value under a point of the widget, clamped to the range.
    int valueAt(const QPoint& point) const;

    // Groove (Default colour), played part (Select), handle (Normal; Hover under the mouse)
    // and the played part when disabled (Disable).
    static QString styleSheet(const UiItem& item);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    // A wheel or key would move the value without a release, so nothing would be sought.
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    bool m_dragging = false;
};
