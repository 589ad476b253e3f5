#include "PlayScreenWindow.h"

#include "StatusLog.h"

#include <QMouseEvent>
#include <QResizeEvent>
#include <QWheelEvent>

PlayScreenWindow::PlayScreenWindow(QWidget* parent)
    : TavWidget("PlayScreenWindow", parent), m_scene(new QWidget(this)) {
    // libvlc needs a window of its own to draw into.
    m_scene->setAttribute(Qt::WA_NativeWindow);
    addChild(m_scene, "sceneWidget", Style::Panel);
    placeItself(m_scene);
    m_scene->setGeometry(rect());
}

QWidget* PlayScreenWindow::swapScene(QWidget* scene, int id) {
    logDebug("PlayScreenWindow::swapScene");
    QWidget* previous = m_scene;
    m_scene = scene;
    m_id = id;
    // A native window moves with everything libvlc draws in it.
    scene->setParent(this);
    scene->lower();
    scene->show();
    onResetZoom();
    return previous;
}

QRect PlayScreenWindow::sceneGeometry(int level, const QPoint& at, const QSize& window) {
    const int w = window.width();
    const int h = window.height();
    switch (level) {
    case 4:
        return QRect(-at.x(), -at.y(), 2 * w, 2 * h);
    case 5:
        return QRect(-3 * at.x(), -3 * at.y(), 4 * w, 4 * h);
    case 2:
        return QRect(at.x(), at.y(), w / 2, h / 2);
    case 1:
        return QRect(0, 0, w / 4, h / 4);
    default:
        return QRect(0, 0, w, h);
    }
}

void PlayScreenWindow::wheelEvent(QWheelEvent* event) {
    logDebug("PlayScreenWindow::wheelEvent");
    logInfo("!@# zoom = %d / %d", m_zoomLevel, int(m_zoomEnabled));
    if (!m_zoomEnabled)
        return;
    const int angle = event->angleDelta().y();
    int level = m_zoomLevel;
    if (angle > 0 && level < kMaxZoom)
        ++level;
    else if (angle < 0 && level > kNoZoom)
        --level;
    if (level == m_zoomLevel)
        return;
    m_zoomLevel = level;
    m_scene->setGeometry(sceneGeometry(level, event->position().toPoint(), size()));
    emit sendVideoResize(m_id, m_scene->size());
}

void PlayScreenWindow::onResetZoom() {
    logDebug("PlayScreenWindow::onResetZoom");
    logInfo("[PlayScreenWindow::onResetZoom] window: %dx%d / scene: %dx%d", width(), height(),
            m_scene->width(), m_scene->height());
    m_zoomLevel = kNoZoom;
    m_zoomEnabled = false;
    m_dragging = false;
    m_scene->setGeometry(0, 0, width(), height());
    emit sendVideoResize(m_id, m_scene->size());
}

void PlayScreenWindow::onSetZoom() {
    logDebug("PlayScreenWindow::onSetZoom");
    if (!m_zoomEnabled)
        m_zoomEnabled = true;
}

void PlayScreenWindow::onResetView() {
    logDebug("PlayScreenWindow::onResetView");
    m_scene->resize(size());
}

void PlayScreenWindow::onResizeView() {
    logDebug("PlayScreenWindow::onResizeView");
    m_scene->setGeometry(0, 0, width(), height());
    emit sendVideoResize(m_id, m_scene->size());
}

void PlayScreenWindow::onSetId(int id) {
    logDebug("PlayScreenWindow::onSetId");
    m_id = id;
}

void PlayScreenWindow::resizeEvent(QResizeEvent* event) {
    TavWidget::resizeEvent(event);
    // A new window size ends any zoom: the scene fills the window again.
    m_zoomLevel = kNoZoom;
    m_scene->setGeometry(0, 0, width(), height());
    emit sendVideoResize(m_id, m_scene->size());
}

void PlayScreenWindow::mousePressEvent(QMouseEvent* event) {
    logDebug("PlayScreenWindow::mousePressEvent");
    if (event->button() == Qt::LeftButton && m_zoomLevel != kNoZoom) {
        m_dragging = true;
        setCursor(Qt::ClosedHandCursor);
        m_pressOffset = event->globalPos() - m_scene->pos();
    }
    // The picture is not a handle for moving the window.
    event->accept();
}

void PlayScreenWindow::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton)
        emit sceneDoubleClicked();
    event->accept();
}

void PlayScreenWindow::mouseMoveEvent(QMouseEvent* event) {
    if (!m_dragging) {
        TavWidget::mouseMoveEvent(event);
        return;
    }
    // Keep the zoomed picture covering the window.
    QPoint pos = event->globalPos() - m_pressOffset;
    pos.setX(std::min(0, std::max(width() - m_scene->width(), pos.x())));
    pos.setY(std::min(0, std::max(height() - m_scene->height(), pos.y())));
    m_scene->move(pos);
    event->accept();
}

void PlayScreenWindow::mouseReleaseEvent(QMouseEvent* event) {
    logDebug("PlayScreenWindow::mouseReleaseEvent");
    if (m_dragging) {
        m_dragging = false;
        unsetCursor();
    }
    event->accept();
}
