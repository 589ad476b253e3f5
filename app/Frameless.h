#pragma once

#include <QPoint>
#include <QRect>
#include <QWidget>

class QRubberBand;

// Gives a borderless top-level window the moves and edge resizes a window frame would give:
// drag an empty area to move it, drag within 7 pixels of an edge or corner to resize it.
// While resizing only an outline follows the mouse; the window takes the new geometry when
// the button is released, so the views re-lay themselves out once.
class Frameless : public QWidget {
    Q_OBJECT
public:
    static constexpr int kEdgeWidth = 7;

    enum Edge { None = 0, Left = 1, Top = 2, Right = 4, Bottom = 8 };

    explicit Frameless(QWidget* window);
    ~Frameless() override;

    // The window's states, as its top bar and keys ask for them. Maximising does nothing in
    // full screen; leaving full screen goes back to the geometry, or the maximised state,
    // from before; staying on top is switched and its new state returned.
    void toggleMaximized();
    void toggleFullScreen();
    bool toggleAlwaysOnTop();
    // The primary screen's size and free area, read anew (a screen changed).
    void updateMonitorSize();
    // The window at size, in the middle of the primary screen.
    void placeCentred(const QSize& size);
    QRect availableGeometry() const { return m_availableGeometry; }

    // Which edges of a widget of the given size a point lies on (a corner is two edges).
    static int edgesAt(const QPoint& pos, const QSize& size);

    // The geometry a resize from `start` reaches when the mouse is at globalPos, with the
    // dragged edges following the mouse and the size kept at or above minimum.
    static QRect resizedGeometry(const QRect& start, int edges, const QPoint& pressGlobal,
                                 const QPoint& globalPos, const QSize& minimum);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void updateCursor(const QPoint& pos);
    bool canResize() const;

    QWidget* m_window;
    QRubberBand* m_rubberBand;
    int m_edges = None;
    bool m_moving = false;
    QPoint m_pressGlobal;
    QRect m_startGeometry;
    // The geometry to come back to from full screen.
    QRect m_normalGeometry;
    bool m_maximizedBeforeFullScreen = false;
    QSize m_screenSize;
    QRect m_availableGeometry;
};
