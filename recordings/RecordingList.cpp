#include "RecordingList.h"

#include "PlaybackState.h"
#include "RecordingName.h"

#include <algorithm>

QVector<RecordingRecord> RecordingList::records;
QVector<int> RecordingList::visibleRows;
int RecordingList::currentIndex = 0;
int RecordingList::s_mask = RecordingList::kAllTypes;
int RecordingList::s_position = -1;

int RecordingList::typeBit(const QString& letter) {
    static const QString letters = QStringLiteral("IEPU");
    const int index = letter.size() == 1 ? letters.indexOf(letter) : -1;
    return index < 0 ? 0 : 1 << index;
}

bool RecordingList::passes(int row) {
    if (row < 0 || row >= records.size())
        return false;
    const int bit = typeBit(RecordingName::typeLabel(records.at(row).type));
    // A recording of no known type has no bit; "All Type" still shows it.
    return bit == 0 ? s_mask == kAllTypes : (s_mask & bit) != 0;
}

void RecordingList::setMask(int mask) {
    s_mask = mask;
    rebuildVisibleRows();
}

void RecordingList::rebuildVisibleRows() {
    visibleRows.clear();
    for (int row = 0; row < records.size(); ++row)
        if (passes(row))
            visibleRows.append(records.at(row).row);
    syncCurrent();
}

bool RecordingList::isCurrentRecording(const RecordingRecord& record) {
    // A row made while a lone rear file played may hand the player its front file now.
    const QString& file = PlaybackState::currentFile;
    return !file.isEmpty() && (record.filePath == file || record.channelFiles.contains(file));
}

bool RecordingList::hasCurrent() {
    return currentIndex >= 0 && currentIndex < records.size() &&
           isCurrentRecording(records.at(currentIndex));
}

void RecordingList::syncCurrent() {
    s_position = -1;
    const auto found = std::find_if(records.cbegin(), records.cend(), isCurrentRecording);
    currentIndex = found != records.cend() ? int(found - records.cbegin()) : 0;
    if (found != records.cend())
        s_position = visibleRows.indexOf(found->row);
}

void RecordingList::setCurrent(int row) {
    currentIndex = row;
    s_position = row >= 0 && row < records.size() ? visibleRows.indexOf(records.at(row).row) : -1;
}

int RecordingList::nextRow() {
    if (!hasCurrent())
        return visibleRows.isEmpty() ? -1 : visibleRows.first();
    return shownRowAfter(currentIndex);
}

int RecordingList::shownRowAfter(int row) {
    const auto later = std::find_if(visibleRows.cbegin(), visibleRows.cend(),
                                    [row](int shown) { return shown > row; });
    return later == visibleRows.cend() ? -1 : *later;
}

int RecordingList::previousRow() {
    if (!hasCurrent())
        return visibleRows.isEmpty() ? -1 : visibleRows.first();
    for (auto it = visibleRows.crbegin(); it != visibleRows.crend(); ++it)
        if (*it < currentIndex)
            return *it;
    return -1;
}

void RecordingList::removeRecord(int row) {
    if (row < 0 || row >= records.size())
        return;
    records.remove(row);
    renumber();
}

void RecordingList::renumber() {
    for (int i = 0; i < records.size(); ++i)
        records[i].row = i;
    rebuildVisibleRows();
}

void RecordingList::clear() {
    records.clear();
    visibleRows.clear();
    currentIndex = 0;
    s_position = -1;
}

int RecordingList::indexOf(const QString& path, int hint) {
    for (int i = qMin(hint, records.size() - 1); i >= 0; --i)
        if (records.at(i).filePath == path)
            return i;
    return -1;
}
