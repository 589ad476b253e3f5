#pragma once

#include "UiItem.h"

#include <QRect>
#include <QSize>
#include <QVector>

class QWidget;

// Moves and resizes a view's children when the view's size differs from the size its
// description was drawn for. Each child follows its record's scale rules:
//   x, y:           Fixed stays, Movable follows the far edge, Expanding/Minimum/Maximum
//                   keep their share (a child drawn in the middle stays in the middle);
//   width, height:  Fixed stays, Expanding grows and shrinks with the view, Minimum grows
//                   but never below the drawn size, Maximum shrinks but never above it,
//                   Movable stays.
class UiLayout {
public:
    // The size the description's positions and sizes were drawn for.
    void setDesignSize(const QSize& size) { m_designSize = size; }
    QSize designSize() const { return m_designSize; }

    void add(QWidget* widget, const UiItem& item);
    void clear() { m_entries.clear(); }
    void remove(QWidget* widget);

    // The geometry a child drawn at `drawn` takes in a view of `size`.
    static QRect place(const QRect& drawn, const UiItem& rules, const QSize& design,
                       const QSize& size);

    void apply(const QSize& size) const;

private:
    struct Entry {
        QWidget* widget;
        QRect drawn;
        UiItem rules;
    };
    QSize m_designSize;
    QVector<Entry> m_entries;
};
