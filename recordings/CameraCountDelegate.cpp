#include "CameraCountDelegate.h"

#include <QApplication>
#include <QFontMetrics>
#include <QIcon>
#include <QPainter>
#include <QStyle>

namespace {

// Between the camera and its number, and between the number and the cell's right edge.
constexpr int kGap = 3;
constexpr int kRightMargin = 6;
// The name's padding and the style's text margins, which the name cannot use either.
constexpr int kNameMargins = 12;

} // namespace

CameraCountDelegate::CameraCountDelegate(const Look& look, QObject* parent)
    : QStyledItemDelegate(parent), m_look(look) {}

QRect CameraCountDelegate::badgeRect(const QRect& cell, int count,
                                     Qt::LayoutDirection direction) const {
    if (count <= 0)
        return QRect();
    const int textWidth = QFontMetrics(m_look.font).horizontalAdvance(QString::number(count));
    const int width = m_look.iconSize.width() + kGap + textWidth;
    const QRect atRight(cell.right() - kRightMargin - width + 1, cell.top(), width, cell.height());
    return QStyle::visualRect(direction, cell, atRight);
}

QPixmap CameraCountDelegate::icon(const QColor& color, qreal pixelRatio) const {
    auto it = m_icons.find(color.rgba());
    if (it == m_icons.end()) {
        // The image gives the shape; the row's state gives the colour.
        QPixmap pixmap = QIcon(m_look.iconPath).pixmap(m_look.iconSize * pixelRatio);
        pixmap.setDevicePixelRatio(pixelRatio);
        if (!pixmap.isNull()) {
            QPainter tint(&pixmap);
            tint.setCompositionMode(QPainter::CompositionMode_SourceIn);
            tint.fillRect(QRect(QPoint(0, 0), m_look.iconSize), color);
        }
        it = m_icons.insert(color.rgba(), pixmap);
    }
    return *it;
}

void CameraCountDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                                const QModelIndex& index) const {
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    const int count = index.data(kCameraCountRole).toInt();
    const QRect badge = badgeRect(option.rect, count, option.direction);
    // The name is cut short before the count rather than painted under it.
    if (!badge.isEmpty())
        cell.text = cell.fontMetrics.elidedText(cell.text, Qt::ElideRight,
                                                option.rect.width() - badge.width() - kRightMargin -
                                                    kNameMargins);
    const QWidget* widget = option.widget;
    QStyle* style = widget != nullptr ? widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &cell, painter, widget);
    if (badge.isEmpty())
        return;

    const QColor color =
        (option.state & QStyle::State_Selected) ? m_look.selectedColor : m_look.color;
    const QPixmap camera = icon(color, painter->device()->devicePixelRatioF());
    QRect iconRect(QPoint(0, 0), m_look.iconSize);
    iconRect.moveCenter(QPoint(badge.left() + m_look.iconSize.width() / 2, badge.center().y()));
    painter->save();
    painter->drawPixmap(iconRect.topLeft(), camera);
    painter->setFont(m_look.font);
    painter->setPen(color);
    painter->drawText(badge.adjusted(m_look.iconSize.width() + kGap, 0, 0, 0),
                      Qt::AlignLeft | Qt::AlignVCenter, QString::number(count));
    painter->restore();
}
