#include "UiLayout.h"

#include <QWidget>

#include <algorithm>

namespace {

enum Rule { Fixed = 0, Minimum = 1, Maximum = 2, Expanding = 3, Movable = 4 };

int placeStart(int start, int extent, int rule, int delta, int designSpan) {
    switch (rule) {
    case Movable:
        return start + delta;
    case Expanding:
    case Minimum:
    case Maximum:
        if (designSpan <= 0)
            return start;
        // Keep the child's centre at the same share of the view.
        return start + int(double(delta) * (start + extent / 2.0) / designSpan);
    default:
        return start;
    }
}

int placeExtent(int extent, int rule, int delta) {
    switch (rule) {
    case Expanding:
        return std::max(0, extent + delta);
    case Minimum:
        return std::max(extent, extent + delta);
    case Maximum:
        return std::max(0, std::min(extent, extent + delta));
    default:
        return extent;
    }
}

} // namespace

QRect UiLayout::place(const QRect& drawn, const UiItem& rules, const QSize& design,
                      const QSize& size) {
    const int dx = size.width() - design.width();
    const int dy = size.height() - design.height();
    const int width = placeExtent(drawn.width(), rules.scaleWidth, dx);
    const int height = placeExtent(drawn.height(), rules.scaleHeight, dy);
    int x = drawn.x();
    int y = drawn.y();
    // A child that grows with the view keeps its start; one that does not may move.
    if (rules.scaleWidth != Expanding && rules.scaleWidth != Minimum)
        x = placeStart(drawn.x(), drawn.width(), rules.scaleX, dx, design.width());
    else if (rules.scaleX == Movable)
        x = drawn.x() + dx;
    if (rules.scaleHeight != Expanding && rules.scaleHeight != Minimum)
        y = placeStart(drawn.y(), drawn.height(), rules.scaleY, dy, design.height());
    else if (rules.scaleY == Movable)
        y = drawn.y() + dy;
    return QRect(x, y, width, height);
}

void UiLayout::add(QWidget* widget, const UiItem& item) {
    if (!item.usable() || !item.size.isValid())
        return;
    m_entries.append({widget, QRect(QPoint(item.x, item.y), item.size), item});
}

void UiLayout::remove(QWidget* widget) {
    for (int i = m_entries.size() - 1; i >= 0; --i) {
        if (m_entries[i].widget == widget)
            m_entries.remove(i);
    }
}

void UiLayout::apply(const QSize& size) const {
    if (!m_designSize.isValid())
        return;
    for (const Entry& entry : m_entries)
        entry.widget->setGeometry(place(entry.drawn, entry.rules, m_designSize, size));
}
