#pragma once

#include <QHash>
#include <QIcon>
#include <QSize>
#include <QStyledItemDelegate>

// The list's type column: each cell holds its type letter ("I", "E", "P", "U") as text, and
// this delegate paints the letter's icon in its place, centred, so the letter stays
// readable to the code (the type filter reads it) but only the icon shows. One delegate
// serves every row; a widget per row costs seconds for a folder of ten thousand files.
class TypeIconDelegate : public QStyledItemDelegate {
    Q_OBJECT
public:
    TypeIconDelegate(const QSize& iconSize, QObject* parent = nullptr);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;

    // The icon shown for a type letter; null for anything else.
    QIcon icon(const QString& letter) const;

private:
    QSize m_iconSize;
    mutable QHash<QString, QIcon> m_icons;
};
