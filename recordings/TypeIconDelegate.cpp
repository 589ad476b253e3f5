#include "TypeIconDelegate.h"

#include "RecordingName.h"

#include <QApplication>
#include <QPainter>

TypeIconDelegate::TypeIconDelegate(const QSize& iconSize, QObject* parent)
    : QStyledItemDelegate(parent), m_iconSize(iconSize) {}

QIcon TypeIconDelegate::icon(const QString& letter) const {
    auto it = m_icons.find(letter);
    if (it == m_icons.end()) {
        const QString path = RecordingName::typeIconPath(letter);
        it = m_icons.insert(letter, path.endsWith(QLatin1String(".svg")) ? QIcon(path) : QIcon());
    }
    return *it;
}

void TypeIconDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                             const QModelIndex& index) const {
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    const QString letter = cell.text;
    cell.text.clear();
    const QWidget* widget = option.widget;
    QStyle* style = widget != nullptr ? widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &cell, painter, widget);
    const QIcon typeIcon = icon(letter);
    if (typeIcon.isNull())
        return;
    QRect target(QPoint(0, 0), m_iconSize);
    target.moveCenter(option.rect.center());
    typeIcon.paint(painter, target, Qt::AlignCenter);
}
