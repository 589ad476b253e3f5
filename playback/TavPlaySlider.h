#pragma once

#include <QSlider>
#include <QVector>

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
    // Where a value is drawn along the groove (the handle's centre there).
    int positionOf(int value) const;

    // Moments marked on the groove (a drive's incidents), in the slider's values.
    void setMarks(const QVector<int>& values);
    const QVector<int>& marks() const { return m_marks; }

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
    void paintEvent(QPaintEvent* event) override;

private:
    bool m_dragging = false;
    QVector<int> m_marks;
};
