#pragma once

#include "TavWidget.h"

#include <QPoint>

// The front channel's scene. libvlc draws into the scene widget; the window zooms the
// scene with the mouse wheel in two steps (two and four times), keeping the point under the
// cursor in place, and pans it by dragging while zoomed.
class PlayScreenWindow : public TavWidget {
    Q_OBJECT
public:
    explicit PlayScreenWindow(QWidget* parent = nullptr);

    QWidget* scene() const { return m_scene; }
    int id() const { return m_id; }

    // Shows another channel's scene here (the scene swap); returns the scene it replaces.
    QWidget* swapScene(QWidget* scene, int id);
    int zoomLevel() const { return m_zoomLevel; }
    bool zoomEnabled() const { return m_zoomEnabled; }

    static constexpr int kNoZoom = 3;
    static constexpr int kMaxZoom = 5;

    // The scene's geometry at a zoom level for a wheel position in a window of size w x h.
    static QRect sceneGeometry(int level, const QPoint& at, const QSize& window);

signals:
    void sendVideoResize(int id, QSize size);
    // A double click on the picture: the main window toggles full screen, as players do.
    void sceneDoubleClicked();

public slots:
    void onResetZoom();
    void onSetZoom();
    void onResetView();
    void onResizeView();
    void onSetId(int id);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    QWidget* m_scene;
    int m_id = 0;
    int m_zoomLevel = kNoZoom;
    bool m_zoomEnabled = false;
    bool m_dragging = false;
    QPoint m_pressOffset;
};
