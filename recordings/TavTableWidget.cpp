#include "TavTableWidget.h"

#include "UiApplier.h"
#include "UiDescription.h"

#include <QHeaderView>

namespace {

QString orDefault(const UiItem::StateStrings& strings, UiItem::State state) {
    return UiItem::isSet(strings[state]) ? strings[state] : strings[UiItem::Default];
}

QString borderRule(const UiItem& item) {
    return UiItem::isSet(item.border[UiItem::Default])
               ? QStringLiteral("1px solid %1").arg(item.border[UiItem::Default])
               : QStringLiteral("none");
}

} // namespace

TavTableWidget::TavTableWidget(QWidget* parent) : QTableWidget(parent) {
    setShowGrid(false);
    setWordWrap(false);
    setCornerButtonEnabled(false);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    horizontalHeader()->hide();
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setMinimumSectionSize(0);
}

bool TavTableWidget::applyDescription(const UiDescription& ui, const QString& tableEntry) {
    const UiItem table = ui.item(tableEntry);
    const UiItem row = ui.item(QStringLiteral("row"));
    if (!UiApplier::apply(this, tableEntry, table,
                          tableStyleSheet(table, ui.item(QStringLiteral("scrollBar")),
                                          ui.item(QStringLiteral("toolTip")))))
        return false;
    if (row.size.isValid() && row.size.height() > 0)
        verticalHeader()->setDefaultSectionSize(row.size.height());
    return true;
}

void TavTableWidget::applyColumnWidth(const UiDescription& ui, int column, const QString& entry) {
    const UiItem item = ui.item(entry);
    if (!item.usable() || !item.size.isValid())
        return;
    horizontalHeader()->setSectionResizeMode(column, QHeaderView::Fixed);
    horizontalHeader()->resizeSection(column, item.size.width());
}

QString TavTableWidget::tableStyleSheet(const UiItem& table, const UiItem& scrollBar,
                                        const UiItem& toolTip) {
    const QString background =
        UiItem::isSet(table.color[UiItem::Default]) ? table.color[UiItem::Default] : "transparent";
    QString sheet =
        QStringLiteral("QTableWidget{background: %1; color: %2; border: %3; outline: 0;} "
                       "QTableWidget::item{border: none; padding: 0px 4px;} "
                       "QTableWidget::item:hover{background: %4; color: %5;} "
                       "QTableWidget::item:selected{background: %6; color: %7;} "
                       "QTableWidget:disabled{color: %8;}")
            .arg(background, table.textColor[UiItem::Default], borderRule(table),
                 orDefault(table.color, UiItem::Hover), orDefault(table.textColor, UiItem::Hover),
                 orDefault(table.color, UiItem::Select), orDefault(table.textColor, UiItem::Select),
                 orDefault(table.textColor, UiItem::Disable));
    if (scrollBar.usable()) {
        const int width = scrollBar.size.isValid() ? scrollBar.size.width() : 8;
        sheet += QStringLiteral(" QScrollBar:vertical{background: %1; width: %2px; margin: 0px; "
                                "border: none;} "
                                "QScrollBar::handle:vertical{background: %3; min-height: 24px; "
                                "border-radius: %4px;} "
                                "QScrollBar::handle:vertical:hover{background: %5;} "
                                "QScrollBar::handle:vertical:pressed{background: %6;} "
                                "QScrollBar::add-line:vertical, QScrollBar::sub-line:vertical"
                                "{height: 0px; border: none; background: none;} "
                                "QScrollBar::add-page:vertical, QScrollBar::sub-page:vertical"
                                "{background: none;}")
                     .arg(orDefault(scrollBar.color, UiItem::Default))
                     .arg(width)
                     .arg(orDefault(scrollBar.color, UiItem::Normal))
                     .arg(width / 2)
                     .arg(orDefault(scrollBar.color, UiItem::Hover),
                          orDefault(scrollBar.color, UiItem::Select));
    }
    if (toolTip.usable())
        sheet += QStringLiteral(" QToolTip{background: %1; color: %2; border: %3; padding: 4px;}")
                     .arg(orDefault(toolTip.color, UiItem::Default),
                          toolTip.textColor[UiItem::Default], borderRule(toolTip));
    return sheet;
}

QString TavTableWidget::menuStyleSheet(const UiItem& menu) {
    const int itemHeight = menu.size.isValid() ? menu.size.height() : 20;
    const int fontSize = menu.font.pixelSize() > 0 ? menu.font.pixelSize() : 12;
    return QStringLiteral("QMenu{background: %1; border: %2;} "
                          "QMenu::item{height: %3px; color: %4; background: transparent; "
                          "font-size: %5px; font-weight: normal; padding: 0px 16px 0px 4px;} "
                          "QMenu::item:selected{background: %6; color: %7;}")
        .arg(menu.color[UiItem::Default], borderRule(menu))
        .arg(itemHeight)
        .arg(menu.textColor[UiItem::Default])
        .arg(fontSize)
        .arg(orDefault(menu.color, UiItem::Select), orDefault(menu.textColor, UiItem::Select));
}

QString TavTableWidget::progressStyleSheet(const UiItem& bar) {
    return QStringLiteral("QProgressBar{background: %1; color: %2; border: none; "
                          "text-align: center;} QProgressBar::chunk{background: %3;}")
        .arg(orDefault(bar.color, UiItem::Default), bar.textColor[UiItem::Default],
             orDefault(bar.color, UiItem::Select));
}
