#include "TavPlaySlider.h"

#include "PlayerInterface.h"
#include "UiItem.h"

#include <QColor>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionSlider>

TavPlaySlider::TavPlaySlider(QWidget* parent) : QSlider(Qt::Horizontal, parent) {
    setFocusPolicy(Qt::NoFocus);
    setRange(0, 0);
    setCursor(Qt::PointingHandCursor);
}

void TavPlaySlider::setMarks(const QVector<int>& values) {
    m_marks = values;
    update();
}

int TavPlaySlider::positionOf(int value) const {
    QStyleOptionSlider option;
    initStyleOption(&option);
    const QRect groove =
        style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderGroove, this);
    const QRect handle =
        style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, this);
    const int span = groove.width() - handle.width();
    return groove.x() + handle.width() / 2 +
           QStyle::sliderPositionFromValue(minimum(), maximum(), value, span, option.upsideDown);
}

void TavPlaySlider::paintEvent(QPaintEvent* event) {
    QSlider::paintEvent(event);
    if (m_marks.isEmpty() || maximum() <= minimum())
        return;
    // Each mark a short bar across the groove, in the incidents' colour.
    QPainter painter(this);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0xff, 0xa0, 0x2e));
    const int top = height() / 2 - 6;
    for (int value : m_marks) {
        if (value < minimum() || value > maximum())
            continue;
        painter.drawRoundedRect(QRect(positionOf(value) - 2, top, 4, 12), 1.5, 1.5);
    }
}

bool TavPlaySlider::acceptsInput() const {
    if (parentWidget() == nullptr || parentWidget()->objectName() != QLatin1String("row2Widget"))
        return true;
    return PlayerInterface::playStatus == PlayerInterface::PlayRunning ||
           PlayerInterface::playStatus == PlayerInterface::PlayPaused;
}

int TavPlaySlider::valueAt(const QPoint& point) const {
    QStyleOptionSlider option;
    initStyleOption(&option);
    const QRect groove =
        style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderGroove, this);
    const QRect handle =
        style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, this);
    // The handle's centre travels from half a handle inside the groove's left end to half
    // a handle inside its right end.
    const int span = groove.width() - handle.width();
    const int offset = point.x() - groove.x() - handle.width() / 2;
    return QStyle::sliderValueFromPosition(minimum(), maximum(), qBound(0, offset, span), span,
                                           option.upsideDown);
}

void TavPlaySlider::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    // A refused press is still the slider's: passed on, it would start a window drag.
    event->accept();
    if (!acceptsInput() || maximum() <= minimum())
        return;
    m_dragging = true;
    setSliderDown(true);
    setSliderPosition(valueAt(event->pos()));
}

void TavPlaySlider::mouseMoveEvent(QMouseEvent* event) {
    if (!m_dragging) {
        event->ignore();
        return;
    }
    setSliderPosition(valueAt(event->pos()));
    event->accept();
}

void TavPlaySlider::mouseReleaseEvent(QMouseEvent* event) {
    if (!m_dragging || event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    m_dragging = false;
    setSliderPosition(valueAt(event->pos()));
    setSliderDown(false);
    event->accept();
}

void TavPlaySlider::wheelEvent(QWheelEvent* event) {
    event->ignore();
}

void TavPlaySlider::keyPressEvent(QKeyEvent* event) {
    event->ignore();
}

QString TavPlaySlider::styleSheet(const UiItem& item) {
    const QString groove = item.colourOr(UiItem::Default, "#3a4150");
    const QString played = item.colourOr(UiItem::Select, "#2f7cf6");
    const QString handle = item.colourOr(UiItem::Normal, "#ffffff");
    const QString handleHover = item.colourOr(UiItem::Hover, "#ffffff");
    const QString disabled = item.colourOr(UiItem::Disable, "#4a5263");
    return QStringLiteral(
               "TavPlaySlider{background: transparent; border: none;} "
               "TavPlaySlider::groove:horizontal{height: 4px; border-radius: 2px; background: %1;} "
               "TavPlaySlider::add-page:horizontal{border-radius: 2px; background: %1;} "
               "TavPlaySlider::sub-page:horizontal{border-radius: 2px; background: %2;} "
               "TavPlaySlider::sub-page:horizontal:disabled{background: %5;} "
               "TavPlaySlider::handle:horizontal{width: 12px; margin: -4px 0px; border-radius: "
               "6px; background: %3;} "
               "TavPlaySlider::handle:horizontal:hover{background: %4;}")
        .arg(groove, played, handle, handleHover, disabled);
}
