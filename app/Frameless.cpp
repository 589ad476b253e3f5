#include "Frameless.h"

#include <QEvent>
#include <QGuiApplication>
#include <QHoverEvent>
#include <QMouseEvent>
#include <QRubberBand>
#include <QScreen>

Frameless::Frameless(QWidget* window)
    : QWidget(nullptr), m_window(window), m_rubberBand(new QRubberBand(QRubberBand::Rectangle)) {
    m_window->setAttribute(Qt::WA_MouseTracking);
    m_window->setWindowFlags(Qt::Window | Qt::FramelessWindowHint | Qt::WindowMinimizeButtonHint |
                             Qt::WindowMaximizeButtonHint);
    m_window->setAttribute(Qt::WA_Hover);
    m_window->installEventFilter(this);
}

Frameless::~Frameless() {
    if (m_window != nullptr)
        m_window->removeEventFilter(this);
    delete m_rubberBand;
}

void Frameless::toggleMaximized() {
    if (m_window->isFullScreen())
        return;
    if (m_window->isMaximized())
        m_window->showNormal();
    else
        m_window->showMaximized();
}

void Frameless::toggleFullScreen() {
    if (m_window->isFullScreen()) {
        if (m_maximizedBeforeFullScreen) {
            m_window->showMaximized();
        } else {
            m_window->showNormal();
            if (m_normalGeometry.isValid())
                m_window->setGeometry(m_normalGeometry);
        }
        return;
    }
    m_maximizedBeforeFullScreen = m_window->isMaximized();
    m_normalGeometry = m_window->geometry();
    m_window->showFullScreen();
}

bool Frameless::toggleAlwaysOnTop() {
    const bool onTop = !(m_window->windowFlags() & Qt::WindowStaysOnTopHint);
    m_window->setWindowFlag(Qt::WindowStaysOnTopHint, onTop);
    m_window->show(); // changing the flags hides a top-level window
    return onTop;
}

void Frameless::updateMonitorSize() {
    if (const QScreen* screen = QGuiApplication::primaryScreen()) {
        m_screenSize = screen->size();
        m_availableGeometry = screen->availableGeometry();
    }
}

void Frameless::placeCentred(const QSize& size) {
    m_window->resize(size);
    if (const QScreen* screen = QGuiApplication::primaryScreen()) {
        const QRect screenRect = screen->geometry();
        m_window->move(screenRect.x() + (screenRect.width() - size.width()) / 2,
                       screenRect.y() + (screenRect.height() - size.height()) / 2);
    }
}

int Frameless::edgesAt(const QPoint& pos, const QSize& size) {
    int edges = None;
    if (pos.x() >= 0 && pos.x() < kEdgeWidth)
        edges |= Left;
    else if (pos.x() < size.width() && pos.x() >= size.width() - kEdgeWidth)
        edges |= Right;
    if (pos.y() >= 0 && pos.y() < kEdgeWidth)
        edges |= Top;
    else if (pos.y() < size.height() && pos.y() >= size.height() - kEdgeWidth)
        edges |= Bottom;
    return edges;
}

QRect Frameless::resizedGeometry(const QRect& start, int edges, const QPoint& pressGlobal,
                                 const QPoint& globalPos, const QSize& minimum) {
    const QPoint delta = globalPos - pressGlobal;
    int left = start.left();
    int top = start.top();
    int right = start.right();
    int bottom = start.bottom();
    if (edges & Left)
        left = std::min(left + delta.x(), right + 1 - minimum.width());
    if (edges & Right)
        right = std::max(right + delta.x(), left - 1 + minimum.width());
    if (edges & Top)
        top = std::min(top + delta.y(), bottom + 1 - minimum.height());
    if (edges & Bottom)
        bottom = std::max(bottom + delta.y(), top - 1 + minimum.height());
    return QRect(QPoint(left, top), QPoint(right, bottom));
}

bool Frameless::canResize() const {
    return !(m_window->windowState() & (Qt::WindowMaximized | Qt::WindowFullScreen));
}

void Frameless::updateCursor(const QPoint& pos) {
    const int edges = canResize() ? edgesAt(pos, m_window->size()) : None;
    switch (edges) {
    case Left | Top:
    case Right | Bottom:
        m_window->setCursor(Qt::SizeFDiagCursor);
        break;
    case Right | Top:
    case Left | Bottom:
        m_window->setCursor(Qt::SizeBDiagCursor);
        break;
    case Left:
    case Right:
        m_window->setCursor(Qt::SizeHorCursor);
        break;
    case Top:
    case Bottom:
        m_window->setCursor(Qt::SizeVerCursor);
        break;
    default:
        m_window->unsetCursor();
    }
}

bool Frameless::eventFilter(QObject* watched, QEvent* event) {
    if (watched != m_window)
        return QWidget::eventFilter(watched, event);

    switch (event->type()) {
    case QEvent::HoverMove:
        if (m_edges == None && !m_moving)
            updateCursor(static_cast<QHoverEvent*>(event)->pos());
        break;
    case QEvent::MouseButtonPress: {
        auto* mouse = static_cast<QMouseEvent*>(event);
        if (mouse->button() != Qt::LeftButton)
            break;
        m_pressGlobal = mouse->globalPos();
        m_startGeometry = m_window->geometry();
        m_edges = canResize() ? edgesAt(mouse->pos(), m_window->size()) : None;
        if (m_edges != None) {
            m_rubberBand->setGeometry(m_startGeometry);
            m_rubberBand->show();
        } else {
            m_moving = !(m_window->windowState() & Qt::WindowFullScreen);
        }
        return true;
    }
    case QEvent::MouseMove: {
        auto* mouse = static_cast<QMouseEvent*>(event);
        if (m_edges != None) {
            m_rubberBand->setGeometry(resizedGeometry(m_startGeometry, m_edges, m_pressGlobal,
                                                      mouse->globalPos(), m_window->minimumSize()));
            return true;
        }
        if (m_moving) {
            if (m_window->windowState() & Qt::WindowMaximized) {
                // Dragging a maximised window restores it under the mouse, as window
                // managers do.
                const double ratio = double(mouse->pos().x()) / std::max(1, m_window->width());
                m_window->showNormal();
                m_startGeometry = m_window->geometry();
                m_startGeometry.moveTopLeft(
                    mouse->globalPos() -
                    QPoint(int(ratio * m_startGeometry.width()), mouse->pos().y()));
                m_pressGlobal = mouse->globalPos();
            }
            m_window->move(m_startGeometry.topLeft() + mouse->globalPos() - m_pressGlobal);
            return true;
        }
        break;
    }
    case QEvent::MouseButtonRelease:
        if (m_edges != None) {
            m_window->setGeometry(m_rubberBand->geometry());
            m_rubberBand->hide();
            m_edges = None;
            return true;
        }
        m_moving = false;
        break;
    case QEvent::Leave:
        if (m_edges == None)
            m_window->unsetCursor();
        break;
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}
