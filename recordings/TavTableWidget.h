#pragma once

#include <QTableWidget>

class UiDescription;
struct UiItem;

// The viewer's table: no grid, no headers, whole-row selection, nothing editable, a fixed
// row height, and its colours, font, hover and selection looks and its slim scroll bar all
// taken from the view's description.
class TavTableWidget : public QTableWidget {
    Q_OBJECT
public:
    explicit TavTableWidget(QWidget* parent = nullptr);

    // Places and styles the table from the entry tableEntry; the entry "scrollBar" styles
    // the vertical scroll bar, "toolTip" the row tool tips and the height of the entry
    // "row" is the row height. False when the table's entry is absent or disabled (the
    // table is then hidden, as every view's children are).
    bool applyDescription(const UiDescription& ui, const QString& tableEntry);

    // Fixes a column's width to the width of the entry's size, when the entry is usable.
    void applyColumnWidth(const UiDescription& ui, int column, const QString& entry);

    // The style sheet for a table entry and its scroll bar and tool tip entries.
    static QString tableStyleSheet(const UiItem& table, const UiItem& scrollBar,
                                   const UiItem& toolTip);
    // A table's context menu: Default colours and border, Select colours for the item under
    // the pointer; the entry's height is the height of an item.
    static QString menuStyleSheet(const UiItem& menu);
    // A progress bar in the table's top strip: Default colours, Select for the done part.
    static QString progressStyleSheet(const UiItem& bar);
};
