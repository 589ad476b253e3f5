#include "SubSceneBackWidget.h"

#include "StatusLog.h"

#include <QMouseEvent>

SubSceneBackWidget::SubSceneBackWidget(QWidget* parent) : TavWidget("SubSceneBackWidget", parent) {}

void SubSceneBackWidget::ClearPosition() {
    logDebug("SubSceneBackWidget::ClearPosition");
    if (m_layoutMode == kFloatingLayout && !m_home.isNull())
        move(m_home);
    m_dragging = false;
    unsetCursor();
    emit onSendBlockKeyboardEvent(false);
}

void SubSceneBackWidget::mousePressEvent(QMouseEvent* event) {
    logDebug("SubSceneBackWidget::mousePressEvent");
    if (m_layoutMode == kFloatingLayout && event->button() == Qt::LeftButton) {
        emit onSendBlockKeyboardEvent(true);
        m_dragging = true;
        setCursor(Qt::ClosedHandCursor);
        m_pressOffset = event->globalPos() - pos();
    }
    event->accept();
}

void SubSceneBackWidget::mouseMoveEvent(QMouseEvent* event) {
    if (!m_dragging)
        return;
    // Stays inside its parent.
    QPoint target = event->globalPos() - m_pressOffset;
    if (parentWidget() != nullptr) {
        const QRect area = parentWidget()->rect();
        target.setX(std::max(0, std::min(area.width() - width(), target.x())));
        target.setY(std::max(0, std::min(area.height() - height(), target.y())));
    }
    move(target);
    event->accept();
}

void SubSceneBackWidget::mouseReleaseEvent(QMouseEvent* event) {
    logDebug("SubSceneBackWidget::mouseReleaseEvent");
    if (m_dragging) {
        m_dragging = false;
        unsetCursor();
        emit onSendBlockKeyboardEvent(false);
    }
    event->accept();
}
