#include "RecordingRows.h"

#include "CameraCountDelegate.h"
#include "RecordingList.h"
#include "RecordingName.h"
#include "TavFileListItem.h"
#include "ThumbnailFeed.h"
#include "TypeIconDelegate.h"
#include "UiDescription.h"

#include <QColor>
#include <QTableWidget>

void RecordingRows::installPainters(QTableWidget* table, const UiDescription& ui) {
    const UiItem icon = ui.item(QStringLiteral("typeIcon"));
    table->setItemDelegateForColumn(
        TavFileListItem::TypeColumn,
        new TypeIconDelegate(icon.size.isValid() ? icon.size : QSize(16, 16), table));
    const UiItem count = ui.item(QStringLiteral("cameraCount"));
    CameraCountDelegate::Look look;
    look.iconPath = ui.imageFolder() + count.image[UiItem::Default];
    if (count.size.isValid())
        look.iconSize = count.size;
    look.font = count.font;
    look.color = QColor(count.textColor[UiItem::Default]);
    look.selectedColor = QColor(count.textColor[UiItem::Select]);
    table->setItemDelegateForColumn(TavFileListItem::NameColumn,
                                    new CameraCountDelegate(look, table));
}

void RecordingRows::fill(QTableWidget* table, int row, const RecordingRecord& record) {
    auto* type = new QTableWidgetItem(RecordingName::typeLabel(record.type));
    type->setTextAlignment(Qt::AlignCenter);
    table->setItem(row, TavFileListItem::TypeColumn, type);
    auto* name = new QTableWidgetItem(record.displayName);
    name->setTextAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    name->setData(CameraCountDelegate::kCameraCountRole, record.cameraCount);
    if (!record.thumbPath.isEmpty())
        name->setToolTip(ThumbnailFeed::toolTip(record.thumbPath));
    table->setItem(row, TavFileListItem::NameColumn, name);
    auto* length = new QTableWidgetItem(record.durationText);
    length->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    table->setItem(row, TavFileListItem::LengthColumn, length);
    // New rows obey the filter in force at once.
    table->setRowHidden(row, !RecordingList::passes(row));
    markProblem(table, row);
}

void RecordingRows::setLength(QTableWidget* table, int row, const RecordingName::Length& length) {
    if (row < 0 || row >= RecordingList::records.size())
        return;
    RecordingList::records[row].durationText = length.text;
    RecordingList::records[row].durationMs = length.ms;
    RecordingList::records[row].problem = length.problem;
    setVideoCount(table, row, length.videoCount);
    showLength(table, row);
}

void RecordingRows::showLength(QTableWidget* table, int row) {
    if (row < 0 || row >= RecordingList::records.size())
        return;
    if (QTableWidgetItem* length = table->item(row, TavFileListItem::LengthColumn)) {
        length->setText(RecordingList::records.at(row).durationText);
        length->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    }
    markProblem(table, row);
}

void RecordingRows::markProblem(QTableWidget* table, int row) {
    if (row < 0 || row >= RecordingList::records.size())
        return;
    const RecordingRecord& record = RecordingList::records.at(row);
    if (record.problem == RecordingName::NoProblem)
        return;
    const QString reason = RecordingName::problemText(record.problem);
    for (int column = 0; column < TavFileListItem::ColumnCount; ++column) {
        if (QTableWidgetItem* cell = table->item(row, column)) {
            cell->setForeground(QColor(0xe0, 0x6c, 0x6c));
            if (column != TavFileListItem::NameColumn || record.thumbPath.isEmpty())
                cell->setToolTip(reason);
        }
    }
    if (QTableWidgetItem* length = table->item(row, TavFileListItem::LengthColumn))
        length->setText(QStringLiteral("--:--"));
}

void RecordingRows::setVideoCount(QTableWidget* table, int row, int videoCount) {
    RecordingRecord& record = RecordingList::records[row];
    // A recording of channel files counts its files, which are what the player opens.
    if (record.hasChannelFiles() || record.cameraCount == videoCount)
        return;
    record.cameraCount = videoCount;
    if (QTableWidgetItem* name = table->item(row, TavFileListItem::NameColumn))
        name->setData(CameraCountDelegate::kCameraCountRole, videoCount);
}
