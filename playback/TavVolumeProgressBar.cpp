#include "TavVolumeProgressBar.h"

#include "UiItem.h"

#include <QMouseEvent>
#include <QWheelEvent>

TavVolumeProgressBar::TavVolumeProgressBar(QWidget* parent) : QProgressBar(parent) {
    setRange(0, 100);
    setTextVisible(false);
    setFocusPolicy(Qt::NoFocus);
    setCursor(Qt::PointingHandCursor);
}

int TavVolumeProgressBar::volumeAt(int x) const {
    const QMargins margins = contentsMargins();
    const int left = margins.left();
    const int span = width() - margins.left() - margins.right();
    if (span <= 0)
        return 0;
    return qBound(0, qRound((x - left) * 100.0 / span), 100);
}

void TavVolumeProgressBar::changeTo(int volume) {
    volume = qBound(minimum(), volume, maximum());
    if (volume == value())
        return;
    setValue(volume);
    emit onSendVolumeChange(volume);
}

void TavVolumeProgressBar::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    m_dragging = true;
    changeTo(volumeAt(event->pos().x()));
    event->accept();
}

void TavVolumeProgressBar::mouseMoveEvent(QMouseEvent* event) {
    if (!m_dragging) {
        event->ignore();
        return;
    }
    changeTo(volumeAt(event->pos().x()));
    event->accept();
}

void TavVolumeProgressBar::mouseReleaseEvent(QMouseEvent* event) {
    if (!m_dragging || event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    m_dragging = false;
    event->accept();
}

void TavVolumeProgressBar::wheelEvent(QWheelEvent* event) {
    const int notches = event->angleDelta().y() / 120;
    if (notches == 0) {
        event->ignore();
        return;
    }
    changeTo(value() + notches * kWheelStep);
    event->accept();
}

QString TavVolumeProgressBar::styleSheet(const UiItem& item) {
    return QStringLiteral("TavVolumeProgressBar{border: none; border-radius: 2px; background: %1; "
                          "margin: %4px %5px %6px %7px;} "
                          "TavVolumeProgressBar::chunk{border-radius: 2px; background: %2;} "
                          "TavVolumeProgressBar::chunk:disabled{background: %3;}")
        .arg(item.colourOr(UiItem::Default, "#3a4150"),
             item.colourOr(UiItem::Select, "#2f7cf6"),
             item.colourOr(UiItem::Disable, "#4a5263"))
        .arg(item.marginTop)
        .arg(item.marginRight)
        .arg(item.marginBottom)
        .arg(item.marginLeft);
}
