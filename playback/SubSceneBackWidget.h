#pragma once

#include "TavWidget.h"

#include <QPoint>

// The backing of the rear scenes while they float over the main scene: it can be dragged
// anywhere in the window and put back in its home corner.
class SubSceneBackWidget : public TavWidget {
    Q_OBJECT
public:
    explicit SubSceneBackWidget(QWidget* parent = nullptr);

    // 3: the rear scenes float over the main scene and can be moved.
    static constexpr int kFloatingLayout = 3;
    void setLayoutMode(int mode) { m_layoutMode = mode; }
    void setHomePosition(const QPoint& home) { m_home = home; }

signals:
    void onSendBlockKeyboardEvent(bool flag);

public slots:
    void ClearPosition();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    int m_layoutMode = kFloatingLayout;
    bool m_dragging = false;
    QPoint m_pressOffset;
    QPoint m_home;
};
