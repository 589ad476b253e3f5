#pragma once

#include "RecordingName.h"

class QTableWidget;
class UiDescription;
struct RecordingRecord;

// How the list shows a recording in a table row: its cells (type, name with the number of
// its cameras, length), the painters of the type and name columns, and the mark of a row
// whose file cannot be played. The records are the process-wide recording list's.
class RecordingRows {
public:
    // The type icon and the camera count painters, as the list's description draws them.
    static void installPainters(QTableWidget* table, const UiDescription& ui);
    // Makes row's cells for record, hidden when the type filter leaves it out.
    static void fill(QTableWidget* table, int row, const RecordingRecord& record);
    // A length read for row's record (row -1: the record went meanwhile): kept in the record
    // and shown, with the cameras it counted and the problem it found.
    static void setLength(QTableWidget* table, int row, const RecordingName::Length& length);
    // Writes the row's length as its record has it, and marks the row when it cannot play.
    static void showLength(QTableWidget* table, int row);
    // A row whose file cannot be played says so: its texts dimmed red, the reason as its
    // tool tip and "--:--" for its length.
    static void markProblem(QTableWidget* table, int row);
    // A one-file recording's cameras are its video tracks, known with its length.
    static void setVideoCount(QTableWidget* table, int row, int videoCount);
};
