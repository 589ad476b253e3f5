#pragma once

#include <QColor>
#include <QFont>
#include <QHash>
#include <QPixmap>
#include <QSize>
#include <QString>
#include <QStyledItemDelegate>

// The list's name column: the recording's name, and at the cell's right end how many cameras
// the recording has, as a small camera with the number beside it. The number is the cell's
// kCameraCountRole; 0 (not known yet) shows none. One delegate paints every row, as
// TypeIconDelegate does for the type column.
class CameraCountDelegate : public QStyledItemDelegate {
    Q_OBJECT
public:
    static constexpr int kCameraCountRole = Qt::UserRole + 1;

    struct Look {
        QString iconPath; // a one-colour image, drawn in the colours below
        QSize iconSize{14, 10};
        QFont font;
        QColor color;         // on a row that is not selected
        QColor selectedColor; // on a selected row
    };

    explicit CameraCountDelegate(const Look& look, QObject* parent = nullptr);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;

    // Where the count of a cell of this rectangle goes: at the end the name does not start
    // from, so at the left in a right-to-left layout; empty for 0.
    QRect badgeRect(const QRect& cell, int count,
                    Qt::LayoutDirection direction = Qt::LeftToRight) const;

private:
    QPixmap icon(const QColor& color, qreal pixelRatio) const;

    Look m_look;
    mutable QHash<QRgb, QPixmap> m_icons;
};
