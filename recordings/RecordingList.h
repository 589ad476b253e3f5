#pragma once

#include "RecordingRecord.h"

#include <QString>
#include <QVector>

// The list's recordings, without the window that shows them: every listed recording in
// display order, the rows the type filter leaves shown, the recording being played, and the
// rows before and after it. Process-wide, as there is one list; the file list (the view)
// shows it, the loader and the remover change it.
class RecordingList {
public:
    static constexpr int kAllTypes = 15;

    static QVector<RecordingRecord> records;
    // Record row numbers the type filter leaves shown, in display order.
    static QVector<int> visibleRows;
    // The record being played; 0 after a reset.
    static int currentIndex;

    // The filter bit of a type letter: "I" 1, "E" 2, "P" 4, "U" 8; 0 for anything else.
    static int typeBit(const QString& letter);
    // The type mask in force (15 at start: every type), and whether a row passes it (a row
    // of no known type passes only with every type chosen).
    static int typeMask() { return s_mask; }
    static bool passes(int row);
    // A new mask: the shown rows follow.
    static void setMask(int mask);
    // The shown rows made again from the records, after rows came or went.
    static void rebuildVisibleRows();

    // Whether the player's current file is one of the record's files.
    static bool isCurrentRecording(const RecordingRecord& record);
    // The current record is the one the player plays.
    static bool hasCurrent();
    // The current record found again from the player's file, after the rows changed.
    static void syncCurrent();
    // Makes a row the current one.
    static void setCurrent(int row);
    // Where the current recording stands among the shown rows; -1 when the filter hides it
    // or nothing is current.
    static int currentPosition() { return s_position; }

    // The shown row after / before the current one; with nothing current the first shown
    // row either way; -1 at an end.
    static int nextRow();
    static int previousRow();
    // The first shown row after row; -1 when none is.
    static int shownRowAfter(int row);

    // Takes a record out and numbers the rest anew.
    static void removeRecord(int row);
    // Numbers the records anew after several were taken out, and shows what the filter
    // leaves of them.
    static void renumber();
    // Empties the list.
    static void clear();
    // The index of the record of path, looked for from hint back to the first (removals move
    // records up, never down); -1 when it is not there.
    static int indexOf(const QString& path, int hint);

private:
    static int s_mask;
    static int s_position;
};
